/// \file
/// A temperature curve as a picture.
#pragma once

#include <span>
#include <string>

#include "curve_data.h"

namespace mqp::tool {

/// More points than a picture takes: each is asked of the curve, whose search is linear.
inline constexpr int kMostPicturedPoints = 10000;

/// An SVG document: the points, the values in between as the curve answers them, the flat ends,
/// and the answers, numbered and listed below.
std::string DrawCurve(const CurveData& data, std::span<const CurveAnswer> answers);

}  // namespace mqp::tool
