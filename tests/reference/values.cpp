#include "values.h"

#include <bit>
#include <cstdio>

namespace reference {

std::string Printable(const Text& text) {
  std::string out = "'";
  for (const mqChar unit : text) {
    if (unit >= 0x20 && unit < 0x7F) {
      out += static_cast<char>(unit);
      continue;
    }
    char escaped[8];
    std::snprintf(escaped, sizeof escaped, "\\u%04X", static_cast<unsigned>(unit));
    out += escaped;
  }
  return out + "'";
}

Value ValueOf(int number) {
  return ValueOf(static_cast<long long>(number));
}

Value ValueOf(long long number) {
  return {static_cast<std::uint64_t>(number), {}};
}

Value ValueOf(float number) {
  return {std::bit_cast<std::uint32_t>(number), {}};
}

Value ValueOf(double number) {
  return {std::bit_cast<std::uint64_t>(number), {}};
}

Value ValueOf(const Text& text) {
  return {0, text};
}

int IntOf(const Value& value) {
  return static_cast<int>(static_cast<std::uint32_t>(value.bits));
}

int IntAt(const Fields& fields, std::string_view name, int place) {
  return IntOf(fields.at({name, place}));
}

Text TextAt(const Fields& fields, std::string_view name, int place) {
  return fields.at({name, place}).text;
}

void PutEmpty(Fields& fields, std::string_view name, int count) {
  for (int place = 0; place < count; ++place) {
    fields[{name, place}] = ValueOf(Text());
  }
}

void PutIdentity(Fields& fields) {
  for (int place = 0; place < 16; ++place) {
    fields[{"view matrix", place}] = ValueOf(place % 5 == 0 ? 1.0 : 0.0);
  }
}

namespace {

std::string Describe(const Fields& fields, const Field& field) {
  const auto found = fields.find(field);
  if (found == fields.end()) {
    return "absent";
  }
  return std::to_string(static_cast<std::int64_t>(found->second.bits)) + " " +
         Printable(found->second.text);
}

std::string DescribeBoth(const Field& field, const Fields& expected, const Fields& got) {
  return std::string(field.first) + "[" + std::to_string(field.second) + "] expected " +
         Describe(expected, field) + ", got " + Describe(got, field);
}

}  // namespace

std::string FirstDifference(const Fields& expected, const Fields& got) {
  if (expected == got) {
    return {};
  }
  for (const auto& [field, value] : expected) {
    const auto found = got.find(field);
    if (found == got.end() || found->second != value) {
      return DescribeBoth(field, expected, got);
    }
  }
  for (const auto& [field, value] : got) {
    if (!expected.contains(field)) {
      return DescribeBoth(field, expected, got);
    }
  }
  return "unequal";
}

}  // namespace reference
