/// \file
/// `CString`, the wide string of the host's framework.
#pragma once

#include <algorithm>
#include <compare>
#include <concepts>
#include <cstddef>
#include <string>
#include <utility>

#include <mqPostCommon/platform/case_folding.h>
#include <mqPostCommon/platform/text.h>
#include <mqPostCommon/platform/text_format.h>
#include <mqPostCommon/platform/text_store.h>

/// A string of UTF-16 code units that owns its text. Positions and lengths count code units and
/// are 0-based. Zero units inside the text count like any other, except in `operator const
/// mqChar*` and `GetString`, whose reader stops at the first one.
///
/// When memory runs out a function throws `std::bad_alloc` and the text is as it was.
class CString {
 public:
  CString() noexcept = default;
  /// Copies a zero-terminated text; null counts as empty.
  CString(const mqChar* text)  // NOLINT(google-explicit-constructor): the framework converts
      : m_text(text == nullptr ? mqTextView() : mqTextView(text)) {}
  /// Copies `length` code units; null counts as empty, and so does a length below 0.
  CString(const mqChar* text, int length)
      : m_text(text == nullptr ? mqTextView() : mqTextView(text, Count(length))) {}
  explicit CString(mqChar unit, int count = 1) : m_text(Count(count), unit) {}
  explicit CString(mqTextView text) : m_text(text) {}
  explicit CString(mqp::PaddedText text) : m_text(text) {}

  CString& operator=(const mqChar* text) {
    return *this = text == nullptr ? mqTextView() : mqTextView(text);
  }

  /// Takes the room that is there when it is enough, so that nothing is allocated.
  CString& operator=(mqTextView text) {
    m_text.Assign(text);
    return *this;
  }

  [[nodiscard]] int GetLength() const noexcept { return static_cast<int>(m_text.Length()); }
  [[nodiscard]] bool IsEmpty() const noexcept { return m_text.Length() == 0; }
  void Empty() noexcept { m_text.Erase(0, m_text.Length()); }

  /// The code unit at a position from 0 to the length; at the length it is 0.
  [[nodiscard]] mqChar GetAt(int position) const { return m_text.Units()[Count(position)]; }
  /// Takes every integer as it is: the subscript of `operator const mqChar*` never competes.
  template <std::integral Index>
  [[nodiscard]] mqChar operator[](Index position) const {
    return GetAt(static_cast<int>(position));
  }
  /// Replaces the code unit at a position below the length.
  void SetAt(int position, mqChar unit) { m_text.Units()[Count(position)] = unit; }

  /// The text with a terminating zero; valid until the string changes.
  [[nodiscard]] const mqChar* GetString() const noexcept { return m_text.Units(); }
  operator const mqChar*() const noexcept {  // NOLINT(google-explicit-constructor)
    return GetString();
  }
  /// The text as a view; valid until the string changes.
  [[nodiscard]] mqTextView View() const noexcept { return m_text.View(); }

  /// The text is no part of this one.
  CString& operator=(mqp::PaddedText text) {
    m_text.Assign(text);
    return *this;
  }

  CString& operator+=(const CString& text) { return *this += text.View(); }
  CString& operator+=(const mqChar* text) {
    return *this += text == nullptr ? mqTextView() : mqTextView(text);
  }
  CString& operator+=(mqTextView text) {
    m_text.Append(text);
    return *this;
  }
  CString& operator+=(mqChar unit) { return *this += mqTextView(&unit, 1); }
  friend CString operator+(CString left, const CString& right) { return std::move(left += right); }
  friend CString operator+(CString left, const mqChar* right) { return std::move(left += right); }
  friend CString operator+(const mqChar* left, const CString& right) {
    return CString(left) + right;
  }
  friend CString operator+(CString left, mqChar right) { return std::move(left += right); }
  friend CString operator+(mqChar left, const CString& right) { return CString(left) + right; }

  /// Compares code unit by code unit: below 0, 0, above 0 as this text sorts before, equals or
  /// sorts behind the other.
  [[nodiscard]] int Compare(mqTextView other) const noexcept { return Sign(View().compare(other)); }
  [[nodiscard]] int Compare(const CString& other) const noexcept { return Compare(other.View()); }
  [[nodiscard]] int Compare(const mqChar* other) const noexcept {
    return Compare(other == nullptr ? mqTextView() : mqTextView(other));
  }
  /// `Compare` after folding case unit by unit (`mqp::FoldCase`), in every locale alike.
  [[nodiscard]] int CompareNoCase(mqTextView other) const noexcept {
    const mqTextView text = View();
    const std::size_t common = std::min(text.size(), other.size());
    for (std::size_t position = 0; position < common; ++position) {
      const mqChar left = mqp::FoldCase(text[position]);
      const mqChar right = mqp::FoldCase(other[position]);
      if (left != right) {
        return left < right ? -1 : 1;
      }
    }
    return text.size() == other.size() ? 0 : (text.size() < other.size() ? -1 : 1);
  }
  [[nodiscard]] int CompareNoCase(const CString& other) const noexcept {
    return CompareNoCase(other.View());
  }
  [[nodiscard]] int CompareNoCase(const mqChar* other) const noexcept {
    return CompareNoCase(other == nullptr ? mqTextView() : mqTextView(other));
  }
  friend bool operator==(const CString& left, const CString& right) noexcept {
    return left.View() == right.View();
  }
  friend bool operator==(const CString& left, const mqChar* right) noexcept {
    return left.Compare(right) == 0;
  }
  friend std::strong_ordering operator<=>(const CString& left, const CString& right) noexcept {
    return left.Compare(right) <=> 0;
  }
  friend std::strong_ordering operator<=>(const CString& left, const mqChar* right) noexcept {
    return left.Compare(right) <=> 0;
  }

  /// The position of the first occurrence at or behind `start`, or -1. An empty text is found
  /// at `start` itself; a start outside 0 to the length finds nothing.
  [[nodiscard]] int Find(mqTextView text, int start = 0) const noexcept {
    return start < 0 ? -1 : Position(View().find(text, Count(start)));
  }
  [[nodiscard]] int Find(const CString& text, int start = 0) const noexcept {
    return Find(text.View(), start);
  }
  [[nodiscard]] int Find(const mqChar* text, int start = 0) const noexcept {
    return text == nullptr ? -1 : Find(mqTextView(text), start);
  }
  [[nodiscard]] int Find(mqChar unit, int start = 0) const noexcept {
    return start < 0 ? -1 : Position(View().find(unit, Count(start)));
  }
  /// The position of the last occurrence, or -1.
  [[nodiscard]] int ReverseFind(mqChar unit) const noexcept { return Position(View().rfind(unit)); }

  /// The first `count` code units, the whole text if it is shorter, nothing below 0.
  [[nodiscard]] CString Left(int count) const { return CString(View().substr(0, Count(count))); }
  /// The last `count` code units, the whole text if it is shorter, nothing below 0.
  [[nodiscard]] CString Right(int count) const {
    const std::size_t kept = std::min(m_text.Length(), Count(count));
    return CString(View().substr(m_text.Length() - kept));
  }
  /// `count` code units from `first`, as far as the text has them; negative arguments count as 0.
  [[nodiscard]] CString Mid(int first, int count) const {
    return CString(View().substr(std::min(m_text.Length(), Count(first)), Count(count)));
  }
  [[nodiscard]] CString Mid(int first) const {
    return CString(View().substr(std::min(m_text.Length(), Count(first))));
  }

  /// Removes white space (`IsSpace`) at both ends, at the left, at the right.
  CString& Trim() { return TrimRight().TrimLeft(); }
  CString& TrimLeft() { return DropLeft(CountLeading(IsSpace)); }
  CString& TrimRight() { return DropRight(CountTrailing(IsSpace)); }
  /// Removes every code unit that occurs in `units` at both ends, at the left, at the right.
  CString& Trim(const mqChar* units) {
    const CString kept(units);  // `units` may point into this text
    return TrimRight(kept).TrimLeft(kept);
  }
  CString& TrimLeft(const mqChar* units) { return DropLeft(CountLeading(AnyOf(units))); }
  CString& TrimRight(const mqChar* units) { return DropRight(CountTrailing(AnyOf(units))); }
  CString& Trim(mqChar unit) { return TrimRight(unit).TrimLeft(unit); }
  CString& TrimLeft(mqChar unit) {
    return DropLeft(CountLeading([unit](mqChar other) { return other == unit; }));
  }
  CString& TrimRight(mqChar unit) {
    return DropRight(CountTrailing([unit](mqChar other) { return other == unit; }));
  }

  /// Replaces every occurrence, left to right and without looking at what was put in.
  /// \return how many were replaced; 0 for an empty or null `old`
  int Replace(const CString& old, const CString& replacement) {
    const int replaced = CountOccurrences(old);
    if (replaced == 0) {
      return 0;
    }
    CString result;
    mqTextView rest = View();
    for (int left = replaced; left > 0; --left) {
      const std::size_t found = rest.find(old.View());
      result += rest.substr(0, found);
      result += replacement;
      rest.remove_prefix(found + old.m_text.Length());
    }
    result += rest;
    *this = std::move(result);
    return replaced;
  }
  /// The same for code units; replacing one by itself counts as none.
  int Replace(mqChar old, mqChar replacement) {
    int replaced = 0;
    for (int position = 0; position < GetLength(); ++position) {
      if (GetAt(position) == old && old != replacement) {
        SetAt(position, replacement);
        ++replaced;
      }
    }
    return replaced;
  }
  /// Removes every occurrence of a code unit and returns how many there were.
  int Remove(mqChar unit) {
    mqChar* const end = m_text.Units() + m_text.Length();
    const auto removed = end - std::remove(m_text.Units(), end, unit);
    m_text.Erase(m_text.Length() - static_cast<std::size_t>(removed), m_text.Length());
    return static_cast<int>(removed);
  }
  /// Inserts at a position, clipped to the text; returns the new length.
  int Insert(int position, const CString& text) {
    const int place = std::min(GetLength(), position);
    *this = Left(place) + text + Mid(place);
    return GetLength();
  }
  int Insert(int position, mqChar unit) { return Insert(position, CString(unit)); }
  /// Deletes `count` code units from `first`, as far as the text has them; negative arguments
  /// count as 0. Returns the new length.
  int Delete(int first, int count = 1) {
    const std::size_t begin = std::min(m_text.Length(), Count(first));
    m_text.Erase(begin, begin + std::min(m_text.Length() - begin, Count(count)));
    return GetLength();
  }

  /// Replaces the text by a formatted one; see `mqp::FormatText` for the conversions.
  template <class... Arguments>
  void Format(const mqChar* format, const Arguments&... arguments) {
    *this = mqTextView(mqp::FormatText(format, {mqp::FormatArgument(arguments)...}));
  }
  template <class... Arguments>
  void AppendFormat(const mqChar* format, const Arguments&... arguments) {
    *this += mqTextView(mqp::FormatText(format, {mqp::FormatArgument(arguments)...}));
  }

  /// The white space that the `Trim` functions remove: the code units with Unicode's property
  /// White_Space, in every locale alike.
  [[nodiscard]] static constexpr bool IsSpace(mqChar unit) noexcept {
    return (unit >= 0x09 && unit <= 0x0D) || unit == 0x20 || unit == 0x85 || unit == 0xA0 ||
           unit == 0x1680 || (unit >= 0x2000 && unit <= 0x200A) || unit == 0x2028 ||
           unit == 0x2029 || unit == 0x202F || unit == 0x205F || unit == 0x3000;
  }

 private:
  static std::size_t Count(int count) noexcept {
    return count < 0 ? 0 : static_cast<std::size_t>(count);
  }
  static int Position(std::size_t position) noexcept {
    return position == mqTextView::npos ? -1 : static_cast<int>(position);
  }
  /// Those that do not overlap, left to right.
  [[nodiscard]] int CountOccurrences(const CString& text) const noexcept {
    int count = 0;
    for (int found = text.IsEmpty() ? -1 : Find(text); found >= 0;
         found = Find(text, found + text.GetLength())) {
      ++count;
    }
    return count;
  }
  static int Sign(int order) noexcept { return order == 0 ? 0 : (order < 0 ? -1 : 1); }

  struct AnyOf {
    explicit AnyOf(const mqChar* units) : set(units == nullptr ? mqTextView() : units) {}
    bool operator()(mqChar unit) const { return set.find(unit) != mqTextView::npos; }
    mqTextView set;
  };
  template <class Predicate>
  [[nodiscard]] std::size_t CountLeading(Predicate matches) const {
    const mqTextView text = View();
    std::size_t count = 0;
    while (count < text.size() && matches(text[count])) {
      ++count;
    }
    return count;
  }
  template <class Predicate>
  [[nodiscard]] std::size_t CountTrailing(Predicate matches) const {
    const mqTextView text = View();
    std::size_t count = 0;
    while (count < text.size() && matches(text[text.size() - 1 - count])) {
      ++count;
    }
    return count;
  }
  CString& DropLeft(std::size_t count) {
    m_text.Erase(0, count);
    return *this;
  }
  CString& DropRight(std::size_t count) {
    m_text.Erase(m_text.Length() - count, m_text.Length());
    return *this;
  }

  mqp::TextStore m_text;
};
