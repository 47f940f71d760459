/// \file
/// In which physical quantity a component is shown, which unit names are offered for it, and
/// which of them is the default in a unit system. Unit names are literal texts of this library
/// and are never translated.
///
/// Arguments throughout: `analysisType` an `AnalysisType`, `resultType` a `ResultType`,
/// `component` a 0-based index, `unitType` a `UnitType`. Any integer may be passed. Nothing takes
/// memory: a unit name lies in the string that is returned.
#pragma once

#include <mqPostCommon/export.h>
#include <mqPostCommon/platform/wide_string.h>

/// The physical quantity of a component. A negative component counts as one beyond every list.
/// Mode-shape displacements have a quantity only while the actual-frequency display flag is
/// exactly 1.
/// \param option     2 with a non-zero `optionFlag`: the spectral densities of a `Dynamic` study
/// \param optionFlag see `option`
/// \return a `UnitType`; 9999 for no unit and for unknown codes
MQPOSTCOMMON_API int vekPostCommonGetUnitType(int analysisType, int resultType, int component,
                                              int option, int optionFlag) noexcept;

/// The number of unit names that are offered for a quantity; 0 for unknown codes. More names can
/// be stored than are offered, and some quantities offer none of theirs.
MQPOSTCOMMON_API int vekPostCommonGetUnitTotal(int unitType) noexcept;

/// The name of a unit.
/// \param index 0-based within the stored names, which can be more than are offered
/// \return the name; empty for an unknown quantity and for an index outside the stored names
MQPOSTCOMMON_API CString vekPostCommonGetUnitName(int unitType, int index);

/// The default unit of a component in a unit system; the arguments behind `unitSystem` are those
/// of `vekPostCommonGetUnitType`.
/// \param unitSystem a `UnitSystem`; every code but 0 and 1 counts as `UnitSystem::Metric`
/// \return an index for `vekPostCommonGetUnitName`, for a frequency in `Metric` one behind the
///         offered names; 0 where no unit exists
MQPOSTCOMMON_API int vekPostCommonGetComponentUnitsBasedOnSystemUnit(int unitSystem,
                                                                     int analysisType,
                                                                     int resultType, int component,
                                                                     int option,
                                                                     int optionFlag) noexcept;
