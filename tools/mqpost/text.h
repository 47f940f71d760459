/// \file
/// Text between the library, the command line and the screen. Everything that the tool reads and
/// prints is UTF-8.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <mqPostCommon/mqPostCommon.h>

namespace mqp::tool {

/// A surrogate without its partner becomes U+FFFD.
std::string Utf8(mqTextView text);
inline std::string Utf8(const CString& text) {
  return Utf8(text.View());
}
std::string Utf8(const std::filesystem::path& path);
CString Wide(const std::string& utf8);
std::filesystem::path PathOf(const std::string& utf8);

/// How many columns a terminal gives a text, in every locale alike: none to combining marks, two
/// to East Asian wide characters and pictographs.
int CountColumns(std::string_view utf8);

/// Control characters and changes of the writing direction spelled out ("\x1B", "\u202E"): texts
/// from documents must not steer a terminal.
std::string Printable(std::string_view utf8);
std::string Quoted(std::string_view utf8);

/// Cut to a number of columns, the last of them "…".
std::string Shorten(std::string_view utf8, int columns);

/// Lines of at most `columns` columns, broken at blanks where there are any.
std::vector<std::string> Wrap(std::string_view utf8, int columns);

std::string Join(const std::vector<std::string>& parts, std::string_view separator);

/// The shortest decimal text that reads back as the same value, in every locale alike;
/// a whole number has ".0".
std::string ShowNumber(double value);

}  // namespace mqp::tool
