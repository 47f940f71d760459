#include <algorithm>
#include <bit>
#include <cstddef>

#include <emmintrin.h>

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

/// The first number for which `meets(number, x)` holds, or `end`. Eight are looked at together, by
/// instructions that every x86-64 has.
template <class Meets>
const double* FindFirst(const double* at, const double* end, double x, Meets meets) noexcept {
  const __m128d both = _mm_set1_pd(x);
  const auto pair = [&](const double* numbers) {
    return reinterpret_cast<__m128d>(meets(_mm_loadu_pd(numbers), both));
  };
  for (; end - at >= 8; at += 8) {
    const __m128d met[] = {pair(at), pair(at + 2), pair(at + 4), pair(at + 6)};
    if (_mm_movemask_pd(_mm_or_pd(_mm_or_pd(met[0], met[1]), _mm_or_pd(met[2], met[3]))) != 0) {
      const int places = _mm_movemask_pd(met[0]) | _mm_movemask_pd(met[1]) << 2 |
                         _mm_movemask_pd(met[2]) << 4 | _mm_movemask_pd(met[3]) << 6;
      return at + std::countr_zero(static_cast<unsigned>(places));
    }
  }
  return std::find_if(at, end, [&](double number) { return meets(number, x); });
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
  if (!(x > X[0])) {
    return Y[0];
  }
  if (x >= X[count - 1]) {
    return Y[count - 1];
  }
  const double* const end = X + count;
  const auto isNotBelow = [](auto other, auto asked) { return other >= asked; };
  const double* const above = mqp::FindFirst(X + 1, end, x, isNotBelow);
  if (above == end) {  // the last temperature is not a number
    return Y[count - 1];
  }
  // A point of its own goes before the interval, also when it stands behind it.
  const auto isSame = [](auto other, auto asked) { return other == asked; };
  const double* const exact = mqp::FindFirst(above, end, x, isSame);
  if (exact != end) {
    return Y[exact - X];
  }
  const auto hi = static_cast<std::size_t>(above - X);
  const std::size_t lo = hi - 1;
  if (Y[hi] == Y[lo]) {  // the temperatures differ: that of lo is below x, or no number
    return Y[hi];
  }
  return Y[hi] + (Y[lo] - Y[hi]) * (x - X[hi]) / (X[lo] - X[hi]);
}
