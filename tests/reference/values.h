#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include <mqPostCommon/platform/text.h>
#include <mqPostCommon/platform/wide_string.h>

namespace reference {

using Text = std::basic_string<mqChar>;

inline Text TextOf(const CString& text) {
  return Text(text.View());
}

inline CString StringOf(const Text& text) {
  return CString(mqTextView(text));
}

/// ASCII as it is, everything else as \uXXXX.
std::string Printable(const Text& text);

/// One member of an object: numbers by their bits, so that NaN and -0.0 are told apart.
struct Value {
  std::uint64_t bits = 0;
  Text text;
  bool operator==(const Value&) const = default;
};

Value ValueOf(int number);
Value ValueOf(long long number);
Value ValueOf(float number);
Value ValueOf(double number);
Value ValueOf(const Text& text);

int IntOf(const Value& value);

/// The members of an object by name and place within the name.
using Field = std::pair<std::string_view, int>;
using Fields = std::map<Field, Value>;

int IntAt(const Fields& fields, std::string_view name, int place = 0);
Text TextAt(const Fields& fields, std::string_view name, int place = 0);

/// Sets the places of a name from 0 on.
template <class Number>
void Put(Fields& fields, std::string_view name, std::initializer_list<Number> numbers) {
  int place = 0;
  for (const Number number : numbers) {
    fields[{name, place++}] = ValueOf(number);
  }
}

/// Sets as many texts to the empty one.
void PutEmpty(Fields& fields, std::string_view name, int count = 1);

/// Sets a view matrix that changes nothing.
void PutIdentity(Fields& fields);

/// Empty when both hold the same, else the first field that differs with both values.
std::string FirstDifference(const Fields& expected, const Fields& got);

}  // namespace reference
