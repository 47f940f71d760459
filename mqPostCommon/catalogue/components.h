/// \file
/// How many components a result has, which is the default, what each is, how many envelope
/// bounds it keeps, whether it can be shown relative to a reference geometry, and in which kinds
/// of study a result exists. Pure functions of their arguments, reentrant and without allocation
/// (but for the list function); the actual-frequency display flag is the one state.
///
/// Arguments throughout: `analysisType` an `AnalysisType`, `resultType` a `ResultType`,
/// `component` a 0-based index, `meshKind` a `MeshKind`. Any integer may be passed.
#pragma once

#include <mqPostCommon/export.h>
#include <mqPostCommon/platform/arrays.h>

/// The process-wide actual-frequency display flag, 0 until it is set. While it is set, mode
/// shapes of `Frequency` and `Buckling` studies are shown in real length and angle units and
/// named accordingly; otherwise they are dimensionless. What counts as set is said at each
/// function that reads it: exactly 1 for units, any non-zero value for names.
MQPOSTCOMMON_API int vekPostCommonGetActualFreqDispFlag() noexcept;

/// Stores any value unchanged. The flag is shared by all threads of the process; whoever sets it
/// does so before units or names are asked for on another thread.
MQPOSTCOMMON_API void vekPostCommonSetActualFreqDispFlag(int flag) noexcept;

/// The number of components.
/// \param extraStress   non-zero: a `Static` study has its extra stress components (14)
/// \param meshKind      shell and beam meshes, and mixed ones with a flag below, have rotations; in
///                      a `Dynamic` study every kind but 0 has. A beam mesh has its own stresses
/// \param ignored       has no effect
/// \param moreStress    non-zero together with `extraStress`: two stress components more (16)
/// \param meshFlags     a set of `MeshFlags`; of effect on a `MixedMesh` in `Static`, `Buckling`
///                      and `Stepped` displacement only
/// \param dynamicOption 1 with `dynamicChoice` 7: the 13 stress components of a `Dynamic` study
/// \param dynamicChoice see `dynamicOption`
/// \return 0 to 16; 0 for an unknown combination
MQPOSTCOMMON_API int vekPostCommonGetComponentTotal(int analysisType, int resultType,
                                                    int extraStress, int meshKind, int ignored,
                                                    int moreStress, int meshFlags,
                                                    int dynamicOption, int dynamicChoice) noexcept;

/// What a component is.
/// \param vectorMembers    three integers owned by the caller, or null. For a resultant and for a
///                         principal-based component they receive the indices of its members
///                         (for component 0 of `ResultType55` 1, 1 and 3); for anything else, the
///                         resultants of velocities and accelerations included, they are left alone
/// \param forceDirectional non-zero: every index of a displacement in `Static`, `Frequency` and
///                         `Buckling`, and of `ResultType55` and `ResultType18` in `Static`, is
///                         directional, negative ones and those beyond the count included
/// \return a `ComponentDataType`; `ScalarComponent` for an unknown combination
MQPOSTCOMMON_API int vekPostCommonGetComponentDataType(int analysisType, int resultType,
                                                       int component, int* vectorMembers,
                                                       int forceDirectional) noexcept;

/// The component on which a new plot or graph starts.
/// \param ignored       has no effect
/// \param dynamicOption 1 selects component 100 of a `Dynamic` stress, which lies beyond its count;
///                      not on a beam mesh
/// \return the index; 0 for an unknown combination
MQPOSTCOMMON_API int vekPostCommonGetComponentDefault(int analysisType, int resultType, int ignored,
                                                      int meshKind, int dynamicOption) noexcept;

/// How many bounds are kept of a component when its result is enveloped over the steps.
/// \param stressComponent12 non-zero: component 12 of a stepped stress has an envelope
/// \return 3 for a signed component, 2 for a magnitude, 0 where there is no envelope
MQPOSTCOMMON_API int vekPostCommonGetEnvelopBoundTotal(int analysisType, int resultType,
                                                       int component,
                                                       int stressComponent12) noexcept;

/// Whether a component can be shown relative to a reference geometry.
/// \param meshKind a stepped stress has no reference on a beam mesh
/// \return 1 or 0
MQPOSTCOMMON_API int vekPostCommonIsReferenceAvailable(int analysisType, int resultType,
                                                       int component, int meshKind) noexcept;

/// Lists the kinds of study in which a result exists, in the order of the user's choices.
/// \param ignored has no effect
/// \param list    emptied, then filled with `AnalysisType` codes; stays empty for an unknown result
/// \return 1
/// \throw std::bad_alloc when memory runs out; the list then has some of the codes
MQPOSTCOMMON_API int vekPostCommonGetAvailableAnalysisType(int resultType, int ignored,
                                                           CArray<int, int>& list);

/// The first entry of that list, or -1 when it is empty.
/// \param ignored has no effect
MQPOSTCOMMON_API int vekPostCommonGetFirstAvailableAnalysisType(int resultType,
                                                                int ignored) noexcept;
