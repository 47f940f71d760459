#include "utf8.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace mqp::host {
namespace {

struct CodePoint {
  std::uint32_t value;
  std::size_t bytes;
};

/// How a lead byte begins: the bits that mark it, the length that it announces, and the lowest
/// value that needs that length.
struct LeadByte {
  unsigned mask;
  unsigned mark;
  std::size_t bytes;
  std::uint32_t lowest;
};

// clang-format off
constexpr LeadByte kLeadBytes[] = {
    // mask  mark  bytes  lowest
    { 0x80, 0x00,  1,     0x0 },
    { 0xE0, 0xC0,  2,     0x80 },
    { 0xF0, 0xE0,  3,     0x800 },
    { 0xF8, 0xF0,  4,     0x10000 },
};
// clang-format on

constexpr std::uint32_t kReplacementCharacter = 0xFFFD;

unsigned Byte(char byte) {
  return static_cast<unsigned char>(byte);
}

bool IsScalarValue(std::uint32_t value) {
  return value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
}

std::optional<CodePoint> Decode(std::string_view text, const LeadByte& lead) {
  if (text.size() < lead.bytes) {
    return std::nullopt;
  }
  std::uint32_t value = Byte(text[0]) & ~lead.mask;
  for (std::size_t index = 1; index < lead.bytes; ++index) {
    if ((Byte(text[index]) & 0xC0U) != 0x80U) {
      return std::nullopt;
    }
    value = (value << 6U) | (Byte(text[index]) & 0x3FU);
  }
  if (value < lead.lowest || !IsScalarValue(value)) {
    return std::nullopt;
  }
  return CodePoint{value, lead.bytes};
}

/// The code point at the beginning of a text that is not empty.
std::optional<CodePoint> DecodeFirst(std::string_view text) {
  for (const LeadByte& lead : kLeadBytes) {
    if ((Byte(text[0]) & lead.mask) == lead.mark) {
      return Decode(text, lead);
    }
  }
  return std::nullopt;
}

void AppendScalarValue(std::uint32_t value, std::basic_string<mqChar>& units) {
  if (value < 0x10000) {
    units += static_cast<mqChar>(value);
    return;
  }
  units += static_cast<mqChar>(0xD800U + ((value - 0x10000U) >> 10U));
  units += static_cast<mqChar>(0xDC00U + ((value - 0x10000U) & 0x3FFU));
}

}  // namespace

bool AppendUtf8(std::string_view utf8, std::basic_string<mqChar>& units) {
  bool valid = true;
  while (!utf8.empty()) {
    const std::optional<CodePoint> first = DecodeFirst(utf8);
    valid = valid && first.has_value();
    const CodePoint point = first.value_or(CodePoint{kReplacementCharacter, 1});
    AppendScalarValue(point.value, units);
    utf8.remove_prefix(point.bytes);
  }
  return valid;
}

}  // namespace mqp::host
