#include <algorithm>
#include <cwchar>
#include <locale>

#include "compound_parts.h"

namespace mqp::host {
namespace {

constexpr std::size_t kMaxNameUnits = 31;

/// The standard's conversion between UTF-8 and UTF-16, which depends on no locale.
class Utf8Conversion : public std::codecvt<char16_t, char8_t, std::mbstate_t> {};

}  // namespace

std::optional<std::string> Utf8FromUtf16(std::u16string_view text) {
  std::u8string converted(3 * text.size(), u8'\0');
  std::mbstate_t state{};
  const char16_t* taken = nullptr;
  char8_t* end = nullptr;
  const auto result =
      Utf8Conversion().out(state, text.data(), text.data() + text.size(), taken, converted.data(),
                           converted.data() + converted.size(), end);
  if (!text.empty() && (result != std::codecvt_base::ok || taken != text.data() + text.size())) {
    return std::nullopt;
  }
  return std::string(converted.data(), end == nullptr ? converted.data() : end);
}

std::optional<std::u16string> Utf16FromUtf8(std::string_view text) {
  const std::u8string source(text.begin(), text.end());
  std::u16string converted(text.size(), u'\0');
  std::mbstate_t state{};
  const char8_t* taken = nullptr;
  char16_t* end = converted.data();
  const auto result =
      Utf8Conversion().in(state, source.data(), source.data() + source.size(), taken,
                          converted.data(), converted.data() + converted.size(), end);
  if (!text.empty() && result != std::codecvt_base::ok) {
    return std::nullopt;
  }
  converted.resize(static_cast<std::size_t>(end - converted.data()));
  // Encoded surrogates pass the conversion, but not the way back.
  return Utf8FromUtf16(converted) == text ? std::optional(converted) : std::nullopt;
}

std::vector<std::string> SplitPath(std::string_view path) {
  std::vector<std::string> names;
  for (std::size_t end = path.find('/'); end != std::string_view::npos; end = path.find('/')) {
    names.emplace_back(path.substr(0, end));
    path.remove_prefix(end + 1);
  }
  names.emplace_back(path);
  return names;
}

std::string JoinPath(std::span<const std::string> names) {
  std::string path;
  for (const std::string& name : names) {
    path += path.empty() ? name : "/" + name;
  }
  return path;
}

std::string_view FindNameFault(std::u16string_view name) {
  if (name.empty()) {
    return "a name is empty";
  }
  if (name.size() > kMaxNameUnits) {
    return "a name is longer than 31 UTF-16 units";
  }
  const auto isForbidden = [](char16_t unit) {
    return std::u16string_view(u"/\\:!").find(unit) != std::u16string_view::npos || unit == 0;
  };
  return std::any_of(name.begin(), name.end(), isForbidden)
             ? "a name contains one of / \\ : ! or a zero"
             : "";
}

}  // namespace mqp::host
