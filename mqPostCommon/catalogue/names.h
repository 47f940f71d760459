/// \file
/// The display texts of results and components. No text lies in this library: each function
/// picks a `StringId` and loads its text with `mqpLoadString`, so the answer is in the language
/// of the string table. Where nothing is known the answer is the empty string; a result type
/// without a name of its own gets a catch-all one.
///
/// Arguments throughout: `analysisType` an `AnalysisType`, `resultType` a `ResultType`,
/// `component` a 0-based index (the fourth argument here), `meshKind` a `MeshKind`. Any integer
/// may be passed. The actual-frequency display flag counts as set when it is not 0. When memory
/// runs out for a text they throw `std::bad_alloc`, and nothing else.
#pragma once

#include <mqPostCommon/export.h>
#include <mqPostCommon/platform/wide_string.h>

/// The name of a result type; a catch-all name for every type without one of its own.
MQPOSTCOMMON_API CString vekPostCommonGetResultName(int resultType);

/// The full name of a component: in the string table, by custom, a symbol, a colon and a
/// description.
/// \param ignored        has no effect
/// \param meshKind       a beam mesh has names of its own for the stress of time studies
/// \param alternateNames non-zero: the second list of displacement names of `Static`, `Stepped`,
///                       `SteppedReduced` and `Dynamic` studies
MQPOSTCOMMON_API CString vekPostCommonGetComponentName(int analysisType, int resultType,
                                                       int ignored, int component, int meshKind,
                                                       int alternateNames);

/// The name of a component on a colour bar. A component without one takes its full name up to
/// the first colon; a full name without a colon, or with one in front, is taken whole.
/// \param passOn         handed to `vekPostCommonGetComponentName`, which ignores it
/// \param meshKind       a beam mesh has names of its own for the stress of `Stepped` and
///                       `SteppedReduced` studies
/// \param fatigueVariant 1: the other name of component 1 in a `Fatigue` study
MQPOSTCOMMON_API CString vekPostCommonGetComponentNameBar(int analysisType, int resultType,
                                                          int passOn, int component, int meshKind,
                                                          int fatigueVariant);

/// The colour-bar name on a solid mesh and without the fatigue variant.
MQPOSTCOMMON_API CString vekPostCommonGetComponentNameShort(int analysisType, int resultType,
                                                            int passOn, int component);

/// The brief name of a component, from tables of its own and without a fall-back.
/// \param passOn has no effect
MQPOSTCOMMON_API CString vekPostCommonGetComponentNameBrief(int analysisType, int resultType,
                                                            int passOn, int component);

/// The title of a graph in a report.
/// \param chartVariant  non-zero: the other title of a `FatigueGraph`
/// \param dynamicOption 1 or 2: the other title of a `Dynamic` study
MQPOSTCOMMON_API CString vekPostCommonGetGraphNameForReport(int analysisType, int resultType,
                                                            int chartVariant, int dynamicOption);
