/// \file
/// The string record as it is written down, unit by unit: what the library's reader is held to.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>

#include <mqPostCommon/platform/stream.h>
#include <mqPostCommon/platform/text.h>

namespace mqp::fuzz {

using Units = std::basic_string<mqChar>;

inline constexpr std::size_t kMostUnits = 1024;

/// What the stream does not deliver is zero.
/// \returns 1, or 0 where there is no count or none above zero, which leaves the text
inline int ReadTextPlainly(IStream& stream, Units& text) {
  const auto number = [&stream](int width) {
    unsigned value = 0;
    for (int byte = 0; byte < width; ++byte) {
      unsigned char read = 0;
      stream.Read(&read, 1, nullptr);
      value |= static_cast<unsigned>(read) << (8 * byte);
    }
    return value;
  };
  const auto count = static_cast<int>(number(4));
  if (count < 1) {
    return 0;
  }
  Units units(std::min(static_cast<std::size_t>(count), kMostUnits), mqChar{0});
  for (mqChar& unit : units) {
    unit = static_cast<mqChar>(number(2));
  }
  text = units.substr(0, units.find(mqChar{0}));
  return 1;
}

}  // namespace mqp::fuzz
