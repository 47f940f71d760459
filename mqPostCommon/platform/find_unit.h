// Where a unit stands in a text. Not installed.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>

#include <emmintrin.h>

#include <mqPostCommon/platform/text.h>

namespace mqp {

/// The place of the first unit of a text that equals another one, the length when there is none.
/// Eight units are looked at together.
inline std::size_t FindUnit(mqTextView text, mqChar unit) noexcept {
  constexpr std::size_t kTogether = 8;
  if (text.size() < kTogether) {
    return std::min(text.find(unit), text.size());
  }
  const __m128i wanted = _mm_set1_epi16(static_cast<short>(unit));
  for (std::size_t place = 0; place < text.size(); place += kTogether) {
    // The last eight overlap those before them.
    const std::size_t first = std::min(place, text.size() - kTogether);
    const __m128i eight = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text.data() + first));
    const auto found = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi16(eight, wanted)));
    if (found != 0) {
      return first + static_cast<std::size_t>(std::countr_zero(found)) / sizeof(mqChar);
    }
  }
  return text.size();
}

}  // namespace mqp
