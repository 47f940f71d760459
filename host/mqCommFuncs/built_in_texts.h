/// \file
/// The index of the built-in texts, made from their rows at compile time: a place for every id
/// from the first to the last, and all texts in one run of code units. Neither holds a pointer,
/// so that loading the library has nothing to adjust.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "texts/all_texts.h"

namespace mqp::host {

/// Where the text of an id lies in a run of code units.
struct TextPlace {
  std::uint32_t offset;
  std::uint32_t length;
};

/// The place of an id without a text. A text may be empty, so that a length of 0 does not say it.
inline constexpr TextPlace kNoText{std::numeric_limits<std::uint32_t>::max(), 0};

constexpr bool HoldsText(TextPlace place) {
  return place.offset != kNoText.offset;
}

/// What the compile-time checks answer when they find nothing wrong.
inline constexpr UINT kNoId = 0;

consteval UINT FindFirstId() {
  UINT first = std::numeric_limits<UINT>::max();
  for (const TextGroup& group : kTextGroups) {
    for (const TextRow& row : group.rows) {
      first = std::min(first, row.id);
    }
  }
  return first;
}

consteval UINT FindLastId() {
  UINT last = 0;
  for (const TextGroup& group : kTextGroups) {
    for (const TextRow& row : group.rows) {
      last = std::max(last, row.id);
    }
  }
  return last;
}

consteval std::size_t CountUnits() {
  std::size_t count = 0;
  for (const TextGroup& group : kTextGroups) {
    for (const TextRow& row : group.rows) {
      count += row.text.size();
    }
  }
  return count;
}

inline constexpr UINT kFirstId = FindFirstId();
inline constexpr UINT kIdCount = FindLastId() - kFirstId + 1;

struct BuiltInTable {
  std::array<TextPlace, kIdCount> places;  ///< by id, the first one at 0
  std::array<mqChar, CountUnits() + PaddedText::kUnits> units;
};

consteval BuiltInTable BuildTable() {
  BuiltInTable table{};
  table.places.fill(kNoText);
  std::size_t end = 0;
  for (const TextGroup& group : kTextGroups) {
    for (const TextRow& row : group.rows) {
      table.places[row.id - kFirstId] = {static_cast<std::uint32_t>(end),
                                         static_cast<std::uint32_t>(row.text.size())};
      std::ranges::copy(row.text, table.units.begin() + static_cast<std::ptrdiff_t>(end));
      end += row.text.size();
    }
  }
  return table;
}

inline constexpr BuiltInTable kBuiltIn = BuildTable();

consteval UINT FirstRepeatedId() {
  std::array<bool, kIdCount> seen{};
  for (const TextGroup& group : kTextGroups) {
    for (const TextRow& row : group.rows) {
      if (seen[row.id - kFirstId]) {
        return row.id;
      }
      seen[row.id - kFirstId] = true;
    }
  }
  return kNoId;
}

consteval UINT FirstIdWithoutText() {
  for (const TextGroup& group : kTextGroups) {
    for (const TextRow& row : group.rows) {
      if (row.text.empty()) {
        return row.id;
      }
    }
  }
  return kNoId;
}

consteval UINT FirstIdUnfitForTemplate() {
  for (const TextGroup& group : kTextGroups) {
    for (const TextRow& row : group.rows) {
      for (const mqChar unit : row.text) {
        if (unit < 0x20 || unit > 0x7E || unit == '"' || unit == '\\') {
          return row.id;
        }
      }
    }
  }
  return kNoId;
}

static_assert(FirstRepeatedId() == kNoId);
static_assert(FirstIdWithoutText() == kNoId);
static_assert(FirstIdUnfitForTemplate() == kNoId);

}  // namespace mqp::host
