/// \file
/// Temperature curves from files, and what they answer.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <mqPostCommon/mqPostCommon.h>

namespace mqp::tool {

/// The two columns of a file, in the order of its lines.
struct CurveData {
  std::string file;
  std::string temperatureTitle;  ///< empty for a file without a header line
  std::string valueTitle;
  CmqTemperatureCurve curve;  ///< has a point at least
  std::vector<int> lines;     ///< where each point stands, from 1
};

/// \throw Problem that names the line and the column
CurveData ReadCurve(const std::string& file);

enum class CurvePlace { Point, Between, FlatBelow, FlatAbove };

/// What a curve answers at a temperature, and which points decide that.
struct CurveAnswer {
  double temperature;
  double value;
  CurvePlace place;
  std::size_t low;   ///< the point itself, the lower one, or that of the flat end
  std::size_t high;  ///< the same as `low` but between two points
};

CurveAnswer AskCurve(const CmqTemperatureCurve& curve, double temperature);

/// "point", "between 20.0 and 100.0", "flat above 600.0"
std::string ShowPlace(const CmqTemperatureCurve& curve, const CurveAnswer& answer);

/// The value as short as it reads back, "nan" where interpolation between the largest numbers
/// came to nothing.
std::string ShowValue(const CurveAnswer& answer);

/// A finite number with a decimal point, in every locale alike.
std::optional<double> ParseNumber(std::string_view word);

}  // namespace mqp::tool
