#include "text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include <mqCommFuncs/string_table.h>

namespace mqp::tool {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

void AppendCodePoint(std::uint32_t point, std::string& utf8) {
  const auto add = [&utf8](std::uint32_t byte) { utf8 += static_cast<char>(byte); };
  if (point < 0x80) {
    add(point);
  } else if (point < 0x800) {
    add(0xC0 | point >> 6);
    add(0x80 | (point & 0x3F));
  } else if (point < 0x10000) {
    add(0xE0 | point >> 12);
    add(0x80 | (point >> 6 & 0x3F));
    add(0x80 | (point & 0x3F));
  } else {
    add(0xF0 | point >> 18);
    add(0x80 | (point >> 12 & 0x3F));
    add(0x80 | (point >> 6 & 0x3F));
    add(0x80 | (point & 0x3F));
  }
}

std::size_t SequenceLength(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

/// Takes the first character off a text that is not empty. Arguments of the command line need not
/// be UTF-8: a stray byte counts as a replacement character.
std::uint32_t TakeCodePoint(std::string_view& utf8) {
  const std::size_t length = SequenceLength(utf8.front());
  const auto lead = static_cast<unsigned char>(utf8.front());
  std::uint32_t point = length == 1 ? lead : lead & (0x7FU >> length);
  bool isValid = utf8.size() >= length && lead < 0xF8 && (length > 1 || lead < 0x80);
  for (std::size_t index = 1; isValid && index < length; ++index) {
    const auto byte = static_cast<unsigned char>(utf8[index]);
    isValid = (byte & 0xC0U) == 0x80U;
    point = point << 6 | (byte & 0x3FU);
  }
  utf8.remove_prefix(isValid ? length : 1);
  return isValid ? point : kReplacement;
}

struct Range {
  std::uint32_t first;
  std::uint32_t last;
};

// Blocks, not single characters: what a terminal draws differs in between as well.
// clang-format off
constexpr auto kWithoutWidth = std::to_array<Range>({
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x0610, 0x061A}, {0x064B, 0x065F},
    {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x200B, 0x200F}, {0x20D0, 0x20FF}, {0x302A, 0x302D},
    {0x3099, 0x309A}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0xFEFF, 0xFEFF}, {0xE0100, 0xE01EF},
});
constexpr auto kWide = std::to_array<Range>({
    {0x1100, 0x115F}, {0x2E80, 0x303E},   {0x3041, 0xA4CF},   {0xA960, 0xA97F},   {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF}, {0xFE30, 0xFE6F},   {0xFF01, 0xFF60},   {0xFFE0, 0xFFE6},
    {0x1F300, 0x1F64F}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD},
});
// Those that change the writing direction and show nothing themselves.
constexpr auto kSteering = std::to_array<Range>({
    {0x0000, 0x001F}, {0x007F, 0x009F}, {0x061C, 0x061C}, {0x200E, 0x200F}, {0x2028, 0x202E},
    {0x2066, 0x2069},
});
// clang-format on

template <std::size_t Size>
bool IsIn(const std::array<Range, Size>& ranges, std::uint32_t point) {
  return std::ranges::any_of(
      ranges, [point](const Range& range) { return point >= range.first && point <= range.last; });
}

int ColumnsOf(std::uint32_t point) {
  return IsIn(kWithoutWidth, point) ? 0 : IsIn(kWide, point) ? 2 : 1;
}

/// The longest beginning that fits, at least one character of a text that is not empty.
std::string_view TakeColumns(std::string_view utf8, int columns) {
  std::string_view rest = utf8;
  int used = 0;
  while (!rest.empty()) {
    std::string_view next = rest;
    used += ColumnsOf(TakeCodePoint(next));
    if (used > columns && rest.size() < utf8.size()) {
      break;
    }
    rest = next;
  }
  return utf8.substr(0, utf8.size() - rest.size());
}

}  // namespace

std::string Utf8(mqTextView text) {
  std::string utf8;
  for (std::size_t index = 0; index < text.size(); ++index) {
    const std::uint32_t unit = text[index];
    const std::uint32_t next = index + 1 < text.size() ? text[index + 1] : 0U;
    if ((unit & 0xFC00) == 0xD800 && (next & 0xFC00) == 0xDC00) {
      AppendCodePoint(0x10000 + ((unit & 0x3FF) << 10 | (next & 0x3FF)), utf8);
      ++index;
    } else {
      AppendCodePoint((unit & 0xF800) == 0xD800 ? kReplacement : unit, utf8);
    }
  }
  return utf8;
}

std::string Utf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

CString Wide(const std::string& utf8) {
  CString wide;
  CharToCString(utf8.c_str(), wide);
  return wide;
}

std::filesystem::path PathOf(const std::string& utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

int CountColumns(std::string_view utf8) {
  int columns = 0;
  while (!utf8.empty()) {
    columns += ColumnsOf(TakeCodePoint(utf8));
  }
  return columns;
}

std::string Printable(std::string_view utf8) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  while (!utf8.empty()) {
    const std::uint32_t point = TakeCodePoint(utf8);
    if (!IsIn(kSteering, point)) {
      AppendCodePoint(point, text);
      continue;
    }
    text += point < 0x100 ? "\\x" : "\\u";
    for (int shift = point < 0x100 ? 4 : 12; shift >= 0; shift -= 4) {
      text += kDigits[point >> shift & 0xF];
    }
  }
  return text;
}

std::string Quoted(std::string_view utf8) {
  return '"' + Printable(utf8) + '"';
}

std::string Shorten(std::string_view utf8, int columns) {
  return CountColumns(utf8) <= columns ? std::string(utf8)
                                       : std::string(TakeColumns(utf8, columns - 1)) + "…";
}

std::vector<std::string> Wrap(std::string_view utf8, int columns) {
  std::vector<std::string> lines;
  while (CountColumns(utf8) > columns) {
    std::string_view line = TakeColumns(utf8, columns);
    const std::size_t blank = utf8.substr(0, line.size() + 1).rfind(' ');
    if (blank != std::string_view::npos && blank > 0) {
      line = utf8.substr(0, blank);
    }
    lines.emplace_back(line);
    utf8.remove_prefix(line.size());
    utf8.remove_prefix(std::min(utf8.find_first_not_of(' '), utf8.size()));
  }
  if (!utf8.empty() || lines.empty()) {
    lines.emplace_back(utf8);
  }
  return lines;
}

std::string Join(const std::vector<std::string>& parts, std::string_view separator) {
  std::string text;
  for (const std::string& part : parts) {
    if (&part != &parts.front()) {
      text += separator;
    }
    text += part;
  }
  return text;
}

std::string ShowNumber(double value) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  const std::string text(digits.data(), end);
  const bool isWhole = text.find_first_not_of("-0123456789") == std::string::npos;
  return isWhole ? text + ".0" : text;
}

}  // namespace mqp::tool
