/// \file
/// What the fuzz targets share: values taken from the bytes that the fuzzer hands over, and the end
/// of the program where a promise is broken, for the fuzzer to keep the input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include <fuzzer/FuzzedDataProvider.h>
#include <mqPostCommon/platform/wide_string.h>

namespace mqp::fuzz {

using ByteString = std::vector<std::byte>;

/// \param what  what does not hold, or the difference that there should not be
inline void Require(bool isKept, std::string_view what) {
  if (!isKept) {
    std::fprintf(stderr, "broken: %.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
  }
}
/// \param difference empty when the promise is kept
inline void RequireNone(const std::string& difference) {
  Require(difference.empty(), difference);
}

/// Numbers are taken from the end of the input, bytes and texts from its beginning, so that a
/// record followed by numbers is a seed. Behind the end everything is zero or empty.
class Input : public FuzzedDataProvider {
 public:
  using FuzzedDataProvider::FuzzedDataProvider;

  [[nodiscard]] bool IsOver() { return remaining_bytes() == 0; }
  int Below(int bound) { return ConsumeIntegralInRange(0, bound - 1); }
  int AnyInt() { return ConsumeIntegral<int>(); }
  /// Mostly one of a byte, where every code of the catalogue lies; seldom any other.
  int AnyCode() {
    constexpr std::int8_t kAny = 127;
    const auto code = ConsumeIntegral<std::int8_t>();
    return code == kAny ? AnyInt() : code;
  }
  /// ASCII, and units from all of the upper half of the code space with surrogates among them.
  CString AnyText(std::size_t most) {
    std::basic_string<mqChar> units;
    for (const char byte : ConsumeRandomLengthString(most)) {
      const auto value = static_cast<unsigned char>(byte);
      units += static_cast<mqChar>(value < 0x80 ? value : value * 0x0101);
    }
    return CString(mqTextView(units));
  }
  ByteString Rest() { return ConsumeRemainingBytes<std::byte>(); }
};

}  // namespace mqp::fuzz
