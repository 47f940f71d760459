/// \file
/// Which way a component points.
#pragma once

#include <mqPostCommon/export.h>

/// Tells along which global axes a component lies.
/// \param analysisType an `AnalysisType`
/// \param resultType   a `ResultType`
/// \param component    a 0-based index
/// \param variant      non-zero: component 12 of a stress in `Static`, `Stepped` and
///                     `SteppedReduced` studies lies along X; otherwise it has no direction
/// \param dir          four numbers owned by the caller: the weights of X, Y and Z (each 0 or 1;
///                     all three for a resultant, for stress 13 and, but in `Dynamic`, for a
///                     principal value) and a marker, 2 for principal values and 0 otherwise. All 0
///                     for a component without direction, a negative one and unknown codes. Null is
///                     allowed: nothing is written
MQPOSTCOMMON_API void vekPostCommonGetComponentVectorDir(int analysisType, int resultType,
                                                         int component, int variant,
                                                         float* dir) noexcept;
