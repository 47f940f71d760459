/// \file
/// What the tests of names and of look-ups share: texts that say their own id, so that an answer
/// shows which text was picked and whether it was cut.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <ostream>
#include <string>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/platform/comm_funcs.h>
#include <mqPostCommon/platform/integers.h>
#include <mqPostCommon/platform/text.h>
#include <mqPostCommon/platform/wide_string.h>

#include <mqCommFuncs/string_table.h>

namespace mqp::test {

using Study = AnalysisType;
using Result = ResultType;

/// In a line of a table: of all studies, of all results.
inline constexpr std::optional<Study> kAnyStudy{};
inline constexpr std::optional<Result> kAnyResult{};

/// Arguments that a function compares with 0 or with 1: neighbours, and values of which the low
/// bits alone would be 0 or 1.
inline constexpr auto kSweptOptions = std::to_array<int>({-1, 0, 1, 2, 256, 257, 65536});

/// Every analysis type that has names, the holes between them and the neighbours.
inline constexpr auto kStudiesAndHoles =
    std::to_array<int>({-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});

/// A text for failure messages, with a question mark for what is not ASCII.
inline std::string Narrow(const CString& text) {
  std::string narrow;
  for (const mqChar unit : text.View()) {
    narrow += unit < 0x80 ? static_cast<char>(unit) : '?';
  }
  return narrow;
}

inline CString LoadText(UINT id) {
  CString text;
  mqpLoadString(text, id);
  return text;
}

inline constexpr mqTextView kNumberedTail = MQ_TEXT(": name");

inline CString NumberedText(UINT id) {
  CString text;
  text.Format(MQ_TEXT("%d"), static_cast<int>(id));
  return text + CString(kNumberedTail);
}

/// While it lives, every text of the string table is its id, a colon and a word: no two begin
/// alike, neither whole nor cut at the colon.
class NumberedTexts {
 public:
  NumberedTexts() {
    for (const host::StringTableEntry& entry : host::BuiltInTexts()) {
      host::ReplaceText(entry.id, NumberedText(entry.id));
    }
  }
  NumberedTexts(const NumberedTexts&) = delete;
  NumberedTexts& operator=(const NumberedTexts&) = delete;
  ~NumberedTexts() { host::UseBuiltInTexts(); }
};

/// While it lives, texts may be replaced; the built-in ones come back afterwards.
class ReplacedTexts {
 public:
  ReplacedTexts() = default;
  ReplacedTexts(const ReplacedTexts&) = delete;
  ReplacedTexts& operator=(const ReplacedTexts&) = delete;
  ~ReplacedTexts() { host::UseBuiltInTexts(); }

  static void Set(UINT id, const mqChar* text) { host::ReplaceText(id, CString(text)); }
};

/// A name as it is seen through `NumberedTexts`.
struct Name {
  UINT id = 0;         ///< 0: no name; 1: a text that is not one of the table's
  bool isCut = false;  ///< the text before the colon only

  friend bool operator==(const Name&, const Name&) = default;
};

inline constexpr Name kNoName{};

constexpr Name Whole(UINT id) {
  return {id, false};
}
constexpr Name CutAtColon(UINT id) {
  return {id, true};
}

inline void PrintTo(const Name& name, std::ostream* stream) {
  *stream << name.id << (name.isCut ? " cut at its colon" : "");
}

inline Name SeenName(const CString& text) {
  const mqTextView view = text.View();
  if (view.empty()) {
    return kNoName;
  }
  UINT id = 0;
  std::size_t digits = 0;
  while (digits < view.size() && view[digits] >= MQ_TEXT('0') && view[digits] <= MQ_TEXT('9')) {
    id = id * 10 + static_cast<UINT>(view[digits] - MQ_TEXT('0'));
    ++digits;
  }
  const mqTextView tail = view.substr(digits);
  if (tail.empty()) {
    return CutAtColon(id);
  }
  return tail == kNumberedTail ? Whole(id) : Whole(1);
}

}  // namespace mqp::test
