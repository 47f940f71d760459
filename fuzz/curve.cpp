// Curves over temperature, in order and out of order, with values that are no numbers and a count
// of points beyond the arrays: the value is, bit for bit, the one of the steps written down one
// after the other.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include <mqPostCommon/materials/temperature_curve.h>

#include "input.h"

namespace mqp::fuzz {
namespace {

using Limits = std::numeric_limits<double>;

constexpr double kValues[] = {0.0,
                              -0.0,
                              1.0,
                              2.0,
                              3.0,
                              -1.0,
                              0.1,
                              1e308,
                              -1e308,
                              Limits::denorm_min(),
                              Limits::infinity(),
                              -Limits::infinity(),
                              Limits::quiet_NaN()};

/// Mostly one of few values, so that temperatures meet.
double AnyDouble(Input& input) {
  const auto chosen = input.ConsumeIntegral<std::uint8_t>();
  return chosen < 0xF0 ? kValues[chosen % std::size(kValues)]
                       : std::bit_cast<double>(input.ConsumeIntegral<std::uint64_t>());
}

std::vector<double> AnyDoubles(Input& input) {
  std::vector<double> values(static_cast<std::size_t>(input.Below(12)));
  for (double& value : values) {
    value = AnyDouble(input);
  }
  return values;
}

double EvaluatePlainly(const std::vector<double>& X, const std::vector<double>& Y, int points,
                       double x) {
  if (points == 1 && !Y.empty()) {
    return Y[0];
  }
  const int held = static_cast<int>(std::min(X.size(), Y.size()));
  const auto n = static_cast<std::size_t>(std::clamp(points, 0, held));
  if (n < 1) {
    return 0.0;
  }
  if (n == 1 || !(x > X[0])) {
    return Y[0];
  }
  if (x >= X[n - 1]) {
    return Y[n - 1];
  }
  for (std::size_t i = 0; i < n; ++i) {
    if (X[i] == x) {
      return Y[i];
    }
  }
  std::size_t hi = 0;
  while (hi < n && !(x < X[hi])) {
    ++hi;
  }
  if (hi == n) {  // the last temperature is not a number
    return Y[n - 1];
  }
  const std::size_t lo = hi - 1;
  if (Y[hi] == Y[lo] || X[hi] == X[lo]) {
    return Y[hi];
  }
  return Y[hi] + (Y[lo] - Y[hi]) * (x - X[hi]) / (X[lo] - X[hi]);
}

/// Which of two operands that are no numbers goes on is the processor's affair.
bool IsSame(double left, double right) {
  return (std::isnan(left) && std::isnan(right)) ||
         std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right);
}

/// Copies hold the points that count, assignments all entries; both have the same values.
void CheckCopies(const CmqTemperatureCurve& curve, double x, double expected) {
  const CmqTemperatureCurve copy(curve);
  CmqTemperatureCurve assigned;
  assigned.m_vecX = {5.0, 6.0};
  assigned = curve;
  const auto count = static_cast<std::size_t>(std::max(curve.m_nPoints, 0));
  Require(copy.m_vecX.size() == std::min(count, curve.m_vecX.size()) &&
              copy.m_vecY.size() == std::min(count, curve.m_vecY.size()),
          "a copy holds the points that count");
  Require(assigned.m_vecX.size() == curve.m_vecX.size() &&
              assigned.m_vecY.size() == curve.m_vecY.size(),
          "an assignment takes both arrays whole");
  Require(copy.m_nPoints == curve.m_nPoints && assigned.m_nPoints == curve.m_nPoints,
          "copies count as many points");
  Require(IsSame(copy.GetYValueAt(x), expected) && IsSame(assigned.GetYValueAt(x), expected),
          "copies have the same values");
}

}  // namespace
}  // namespace mqp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mqp::fuzz;
  Input input(data, size);
  CmqTemperatureCurve curve;
  curve.m_vecX = AnyDoubles(input);
  curve.m_vecY = AnyDoubles(input);
  curve.m_nPoints = input.AnyCode();
  do {
    const double x = AnyDouble(input);
    const double expected = EvaluatePlainly(curve.m_vecX, curve.m_vecY, curve.m_nPoints, x);
    Require(IsSame(curve.GetYValueAt(x), expected), "the value at a temperature");
    CheckCopies(curve, x, expected);
  } while (!input.IsOver());
  return 0;
}
