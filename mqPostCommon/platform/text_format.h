/// \file
/// The `printf` conversions behind `CString::Format`, with arguments whose types are known.
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include <mqPostCommon/platform/text.h>

namespace mqp {

/// One argument of a format: a number, a code as its integer, or a text that outlives the call.
class FormatArgument {
 public:
  template <std::integral Integer>
  explicit FormatArgument(Integer value)
      : m_value(static_cast<std::int64_t>(value)), m_bytes(sizeof(Integer)) {}
  template <class Code>
    requires std::is_enum_v<Code>
  explicit FormatArgument(Code code)
      : FormatArgument(static_cast<std::underlying_type_t<Code>>(code)) {}
  template <std::floating_point Number>
  explicit FormatArgument(Number value) : m_value(static_cast<double>(value)) {}
  explicit FormatArgument(const mqChar* text)
      : m_value(text == nullptr ? mqTextView(MQ_TEXT("(null)")) : mqTextView(text)) {}

  /// The value as a signed integer; 0 for anything but an integer.
  [[nodiscard]] std::int64_t Signed() const noexcept {
    const auto* value = std::get_if<std::int64_t>(&m_value);
    return value == nullptr ? 0 : *value;
  }
  /// The value as an unsigned integer of its own width; 0 for anything but an integer.
  [[nodiscard]] std::uint64_t Unsigned() const noexcept {
    const auto bits = static_cast<std::uint64_t>(Signed());
    return m_bytes < sizeof(bits) ? bits & ((std::uint64_t{1} << (8 * m_bytes)) - 1) : bits;
  }
  /// The value as a number; 0 for anything but a floating-point number.
  [[nodiscard]] double Number() const noexcept {
    const auto* value = std::get_if<double>(&m_value);
    return value == nullptr ? 0.0 : *value;
  }
  /// The text; empty for anything but a text.
  [[nodiscard]] mqTextView Text() const noexcept {
    const auto* value = std::get_if<mqTextView>(&m_value);
    return value == nullptr ? mqTextView() : *value;
  }

 private:
  std::variant<std::int64_t, double, mqTextView> m_value;
  std::size_t m_bytes = 0;
};

/// How one conversion of a format is laid out: `%[flags][width][.precision]letter`.
struct FormatLayout {
  bool left = false;       ///< '-'
  bool zeros = false;      ///< '0'
  bool plus = false;       ///< '+'
  bool blank = false;      ///< ' '
  bool alternate = false;  ///< '#'
  std::size_t width = 0;
  int precision = -1;  ///< -1: none given
};

/// Widths and precisions above this are cut to it, so that no format can ask for endless text;
/// a text with a precision above it is cut as well.
inline constexpr std::size_t kMaximumFormatWidth = 1024;

inline void AppendPadded(std::basic_string<mqChar>& out, mqTextView sign, mqTextView body,
                         bool zeros, const FormatLayout& layout) {
  const std::size_t used = sign.size() + body.size();
  const std::size_t padding = used < layout.width ? layout.width - used : 0;
  const bool padLeft = !layout.left && !zeros;
  out.append(padLeft ? padding : 0, MQ_TEXT(' ')).append(sign);
  out.append(!layout.left && zeros ? padding : 0, MQ_TEXT('0')).append(body);
  out.append(layout.left ? padding : 0, MQ_TEXT(' '));
}

inline mqTextView SignOf(bool negative, const FormatLayout& layout) {
  return negative      ? MQ_TEXT("-")
         : layout.plus ? MQ_TEXT("+")
                       : (layout.blank ? MQ_TEXT(" ") : MQ_TEXT(""));
}

/// Digits as `std::to_chars` writes them, its letters in upper case if asked.
inline std::basic_string<mqChar> Widen(std::string_view digits, bool upper) {
  std::basic_string<mqChar> text;
  for (const char digit : digits) {
    text += static_cast<mqChar>(upper && digit >= 'a' ? digit - 'a' + 'A' : digit);
  }
  return text;
}

inline void AppendInteger(std::basic_string<mqChar>& out, bool negative, std::uint64_t magnitude,
                          int base, bool isSigned, bool upper, const FormatLayout& layout) {
  std::array<char, 64> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), magnitude, base).ptr;
  std::basic_string<mqChar> body = Widen({digits.data(), end}, upper);
  if (layout.precision == 0 && magnitude == 0) {
    body.clear();
  }
  if (layout.precision > static_cast<int>(body.size())) {
    body.insert(0, static_cast<std::size_t>(layout.precision) - body.size(), MQ_TEXT('0'));
  }
  mqTextView prefix = isSigned ? SignOf(negative, layout) : MQ_TEXT("");
  if (layout.alternate && base == 16 && magnitude != 0) {
    prefix = upper ? MQ_TEXT("0X") : MQ_TEXT("0x");
  }
  if (layout.alternate && base == 8 && (body.empty() || body.front() != MQ_TEXT('0'))) {
    prefix = MQ_TEXT("0");
  }
  AppendPadded(out, prefix, body, layout.zeros && layout.precision < 0, layout);
}

inline void AppendNumber(std::basic_string<mqChar>& out, double value, mqChar letter,
                         const FormatLayout& layout) {
  const bool upper = letter == MQ_TEXT('E') || letter == MQ_TEXT('G') || letter == MQ_TEXT('F');
  const bool exponent = letter == MQ_TEXT('e') || letter == MQ_TEXT('E');
  const bool shortest = letter == MQ_TEXT('g') || letter == MQ_TEXT('G');
  // A number has at most 309 digits before its point.
  std::array<char, 320 + kMaximumFormatWidth> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), value,
                                 exponent   ? std::chars_format::scientific
                                 : shortest ? std::chars_format::general
                                            : std::chars_format::fixed,
                                 layout.precision < 0 ? 6 : layout.precision)
                       .ptr;
  const bool negative = digits.front() == '-';
  const std::basic_string<mqChar> body = Widen({digits.data() + (negative ? 1 : 0), end}, upper);
  AppendPadded(out, SignOf(negative, layout), body, layout.zeros && std::isfinite(value), layout);
}

/// Formats as `printf` does, without a locale: the decimal point is a point.
/// Conversions: `%d %i %u %o %x %X %c %s %f %F %e %E %g %G %%` with the flags `- 0 + blank #`,
/// a width and a precision (`*` takes an argument). Length modifiers are accepted and skipped:
/// each argument knows its own width, so that a `short` of -1 is "ffff" in `%x`. `#` has an
/// effect on `o`, `x` and `X`. A conversion without an argument, or one that is not listed,
/// stands in the result as it was written; one that is not listed takes no argument, but its
/// stars do. An argument of another kind than the conversion asks for counts as 0 or empty.
inline std::basic_string<mqChar> FormatText(const mqChar* format,
                                            std::initializer_list<FormatArgument> arguments) {
  std::basic_string<mqChar> out;
  const mqTextView text = format == nullptr ? mqTextView() : mqTextView(format);
  const auto* argument = arguments.begin();
  std::size_t position = 0;
  const auto peek = [&] { return position < text.size() ? text[position] : mqChar{}; };
  const auto number = [&]() -> std::int64_t {
    constexpr auto kLimit = static_cast<std::int64_t>(kMaximumFormatWidth);
    if (peek() == MQ_TEXT('*') && argument != arguments.end()) {
      ++position;
      return std::clamp((argument++)->Signed(), -kLimit, kLimit);
    }
    std::int64_t value = 0;
    for (; peek() >= MQ_TEXT('0') && peek() <= MQ_TEXT('9'); ++position) {
      value = std::min(value * 10 + (peek() - MQ_TEXT('0')), kLimit);
    }
    return value;
  };

  while (position < text.size()) {
    const std::size_t percent = std::min(text.find(MQ_TEXT('%'), position), text.size());
    out.append(text, position, percent - position);
    position = percent;
    if (position == text.size()) {
      break;
    }
    ++position;
    FormatLayout layout;
    for (bool flag = true; flag;) {
      switch (peek()) {
        case MQ_TEXT('-'): layout.left = true; break;
        case MQ_TEXT('0'): layout.zeros = true; break;
        case MQ_TEXT('+'): layout.plus = true; break;
        case MQ_TEXT(' '): layout.blank = true; break;
        case MQ_TEXT('#'): layout.alternate = true; break;
        default: flag = false; continue;
      }
      ++position;
    }
    const std::int64_t width = number();
    layout.left = layout.left || width < 0;
    layout.width = static_cast<std::size_t>(width < 0 ? -width : width);
    if (peek() == MQ_TEXT('.')) {
      ++position;
      const std::int64_t precision = number();
      layout.precision = precision < 0 ? -1 : static_cast<int>(precision);
    }
    while (peek() == MQ_TEXT('l') || peek() == MQ_TEXT('h')) {
      ++position;
    }
    const mqChar letter = peek();
    position = std::min(position + 1, text.size());
    if (letter == MQ_TEXT('%')) {
      out += letter;
      continue;
    }
    const bool known = mqTextView(MQ_TEXT("diuoxXcsfFeEgG")).find(letter) != mqTextView::npos;
    if (argument == arguments.end() || !known) {
      out.append(text, percent, position - percent);
      continue;
    }
    const FormatArgument& value = *argument++;
    switch (letter) {
      case MQ_TEXT('d'):
      case MQ_TEXT('i'): {
        const std::int64_t integer = value.Signed();
        const auto bits = static_cast<std::uint64_t>(integer);
        AppendInteger(out, integer < 0, integer < 0 ? ~bits + 1 : bits, 10, true, false, layout);
        break;
      }
      case MQ_TEXT('u'):
        AppendInteger(out, false, value.Unsigned(), 10, false, false, layout);
        break;
      case MQ_TEXT('o'):
        AppendInteger(out, false, value.Unsigned(), 8, false, false, layout);
        break;
      case MQ_TEXT('x'):
        AppendInteger(out, false, value.Unsigned(), 16, false, false, layout);
        break;
      case MQ_TEXT('X'):
        AppendInteger(out, false, value.Unsigned(), 16, false, true, layout);
        break;
      case MQ_TEXT('c'): {
        const auto unit = static_cast<mqChar>(value.Unsigned());
        AppendPadded(out, {}, mqTextView(&unit, 1), false, layout);
        break;
      }
      case MQ_TEXT('s'): {
        const auto limit = static_cast<std::size_t>(layout.precision < 0 ? -1 : layout.precision);
        AppendPadded(out, {}, value.Text().substr(0, limit), false, layout);
        break;
      }
      default: AppendNumber(out, value.Number(), letter, layout); break;
    }
  }
  return out;
}

}  // namespace mqp
