/// \file
/// How GoogleTest shows a `CString` when an expectation fails.
#pragma once

#include <cstdio>
#include <ostream>

#include <mqPostCommon/platform/wide_string.h>

/// Printable ASCII as it is, every other code unit as its number: "a<U+0000>b".
inline void PrintTo(const CString& text, std::ostream* out) {
  *out << '"';
  for (const mqChar unit : text.View()) {
    if (unit >= 0x20 && unit < 0x7F) {
      *out << static_cast<char>(unit);
      continue;
    }
    char number[sizeof "<U+FFFF>"];
    std::snprintf(number, sizeof number, "<U+%04X>", static_cast<unsigned>(unit));
    *out << number;
  }
  *out << '"';
}
