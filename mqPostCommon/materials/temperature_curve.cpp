#include <algorithm>
#include <bit>
#include <concepts>
#include <cstddef>
#include <span>

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

constexpr std::size_t Index(std::integral auto number) noexcept {
  return static_cast<std::size_t>(number);
}

/// Where an asked temperature stands among others.
struct Place {
  std::size_t above;  ///< without an equal one, the first one above it, or how many there are
  std::size_t same;   ///< the first one equal to it, likewise
};

/// A bit for each of eight comparisons in turn, and for each of eight others.
unsigned BitsOf(const __m128d (&ones)[4], const __m128d (&others)[4]) noexcept {
  const auto narrow = [](const __m128d(&pairs)[4]) {
    const auto four = [](__m128d left, __m128d right) {
      constexpr int kLowHalves = 0b10'00'10'00;
      return _mm_castps_si128(
          _mm_shuffle_ps(_mm_castpd_ps(left), _mm_castpd_ps(right), kLowHalves));
    };
    return _mm_packs_epi32(four(pairs[0], pairs[1]), four(pairs[2], pairs[3]));
  };
  return static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(narrow(ones), narrow(others))));
}

/// Looks at all temperatures, as they may be out of order, from the last ones to the first, eight
/// at a time by instructions that every x86-64 has. No jump depends on where the first one above
/// stands, as nobody could guess it; only a few temperatures are searched one by one.
Place FindPlace(std::span<const double> temperatures, double x) noexcept {
  constexpr std::size_t kTogether = 8;
  const std::size_t count = temperatures.size();
  Place found{count, count};
  if (count < kTogether) {
    const auto isNotBelow = [x](double other) { return other >= x; };
    const auto first = std::ranges::find_if(temperatures, isNotBelow);
    return {Index(first - temperatures.begin()),
            Index(std::find(first, temperatures.end(), x) - temperatures.begin())};
  }
  const __m128d asked = _mm_set1_pd(x);
  for (std::size_t left = count; left > 0;) {
    left = std::max(left, kTogether) - kTogether;  // some are looked at twice
    __m128d above[4];
    __m128d same[4];
    for (std::size_t pair = 0; pair < 4; ++pair) {
      const __m128d two = _mm_loadu_pd(&temperatures[left + 2 * pair]);
      above[pair] = _mm_cmpgt_pd(two, asked);
      same[pair] = _mm_cmpeq_pd(two, asked);
    }
    const unsigned bits = BitsOf(above, same);
    const std::size_t first = left + Index(std::countr_zero(bits));
    found.above = (bits & 0xFF) != 0 ? first : found.above;
    if (bits > 0xFF) {
      found.same = left + Index(std::countr_zero(bits >> kTogether));
    }
  }
  return found;
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
  const mqp::Place place = mqp::FindPlace({X, count}, x);
  if (place.same < count) {  // also when it stands behind its interval
    return Y[place.same];
  }
  if (place.above == count) {  // the last temperature is not a number
    return Y[count - 1];
  }
  const std::size_t hi = place.above;
  const std::size_t lo = hi - 1;  // the first one is below
  if (Y[hi] == Y[lo]) {           // the temperatures differ: that of lo is below x, or no number
    return Y[hi];
  }
  return Y[hi] + (Y[lo] - Y[hi]) * (x - X[hi]) / (X[lo] - X[hi]);
}
