#include <algorithm>
#include <cstddef>

#include <mqPostCommon/materials/temperature_curve.h>

CmqTemperatureCurve::CmqTemperatureCurve() = default;
CmqTemperatureCurve::CmqTemperatureCurve(CmqTemperatureCurve&&) noexcept = default;
CmqTemperatureCurve& CmqTemperatureCurve::operator=(const CmqTemperatureCurve&) = default;
CmqTemperatureCurve& CmqTemperatureCurve::operator=(CmqTemperatureCurve&&) noexcept = default;
CmqTemperatureCurve::~CmqTemperatureCurve() = default;

namespace mqp {
namespace {

std::vector<double> FirstEntries(const std::vector<double>& entries, int count) {
  const auto end = std::min(entries.size(), static_cast<std::size_t>(std::max(count, 0)));
  return {entries.begin(), entries.begin() + static_cast<std::ptrdiff_t>(end)};
}

}  // namespace
}  // namespace mqp

CmqTemperatureCurve::CmqTemperatureCurve(const CmqTemperatureCurve& other)
    : m_nPoints(other.m_nPoints),
      m_vecX(mqp::FirstEntries(other.m_vecX, other.m_nPoints)),
      m_vecY(mqp::FirstEntries(other.m_vecY, other.m_nPoints)) {}

std::size_t CmqTemperatureCurve::CountPoints() const noexcept {
  return std::min({static_cast<std::size_t>(std::max(m_nPoints, 0)), m_vecX.size(), m_vecY.size()});
}

double CmqTemperatureCurve::GetYValueAt(double x) const noexcept {
  if (m_nPoints == 1 && !m_vecY.empty()) {  // whose temperature does not matter
    return m_vecY[0];
  }
  const std::size_t count = CountPoints();
  if (count == 0) {
    return 0.0;
  }
  const double* const X = m_vecX.data();
  const double* const Y = m_vecY.data();
  if (count == 1 || !(x > X[0])) {
    return Y[0];
  }
  if (x >= X[count - 1]) {
    return Y[count - 1];
  }
  // A point of its own goes before the interval, also when it stands behind it.
  const double* const end = X + count;
  if (const double* const exact = std::find(X, end, x); exact != end) {
    return Y[exact - X];
  }
  const double* const above = std::find_if(X, end, [x](double other) { return x < other; });
  if (above == end) {  // the last temperature is not a number
    return Y[count - 1];
  }
  const auto hi = static_cast<std::size_t>(above - X);
  const std::size_t lo = hi - 1;
  if (Y[hi] == Y[lo]) {  // the temperatures differ: that of lo is below x, or no number
    return Y[hi];
  }
  return Y[hi] + (Y[lo] - Y[hi]) * (x - X[hi]) / (X[lo] - X[hi]);
}
