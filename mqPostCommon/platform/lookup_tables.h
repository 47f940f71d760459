/// \file
/// Tables that find what was met before by a hash of it. Not installed.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include <emmintrin.h>

#include <mqPostCommon/platform/case_folding.h>
#include <mqPostCommon/platform/text.h>

namespace mqp {

/// Numbers from 0 on, each under a key. Different things may share a key: `isMeant(number)` says
/// whether the number is that of the thing in question, and is asked when the keys are equal.
class KeyTable {
 public:
  static constexpr int kNone = -1;

  /// The number of a thing, or `kNone`.
  template <class IsMeant>
  [[nodiscard]] int Find(std::uint32_t key, IsMeant isMeant) const {
    return m_slots[Seek(key, isMeant)].number;
  }
  /// The same; a thing that is not here yet gets `number`.
  template <class IsMeant>
  int FindOrAdd(std::uint32_t key, int number, IsMeant isMeant) {
    const std::size_t place = Seek(key, isMeant);
    if (m_slots[place].number != kNone) {
      return m_slots[place].number;
    }
    m_slots[place] = {key, number};
    if (++m_count * 2 > m_slots.size()) {
      Grow();
    }
    return number;
  }

 private:
  struct Slot {
    std::uint32_t key = 0;
    int number = kNone;
  };

  /// Where the thing is, or the free slot where it belongs; half of the slots are free at least.
  template <class IsMeant>
  [[nodiscard]] std::size_t Seek(std::uint32_t key, IsMeant isMeant) const {
    constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15U;
    const int bits = std::countr_zero(m_slots.size());
    std::size_t place = static_cast<std::size_t>(key * kGoldenRatio >> (64 - bits));
    while (m_slots[place].number != kNone &&
           (m_slots[place].key != key || !isMeant(m_slots[place].number))) {
      place = (place + 1) & (m_slots.size() - 1);
    }
    return place;
  }

  void Grow() {
    const std::vector<Slot> full = std::exchange(m_slots, std::vector<Slot>(m_slots.size() * 4));
    for (const Slot& slot : full) {
      if (slot.number != kNone) {
        m_slots[Seek(slot.key, [](int) { return false; })] = slot;
      }
    }
  }

  std::vector<Slot> m_slots = std::vector<Slot>(16);
  std::size_t m_count = 0;
};

/// Numbers texts 0, 1, 2, ... in the order in which they come for the first time, and keeps copies
/// of them.
class TextTable {
 public:
  [[nodiscard]] int GetSize() const noexcept { return static_cast<int>(m_ends.size()); }

  /// The number of a text, or `KeyTable::kNone`.
  [[nodiscard]] int Find(mqTextView text) const {
    return m_numbers.Find(KeyOf(text), [&](int number) { return At(number) == text; });
  }
  int FindOrAdd(mqTextView text) {
    const int number =
        m_numbers.FindOrAdd(KeyOf(text), GetSize(), [&](int known) { return At(known) == text; });
    if (number == GetSize()) {
      m_texts += text;
      m_ends.push_back(m_texts.size());
    }
    return number;
  }

 private:
  static std::uint32_t KeyOf(mqTextView text) noexcept {
    return static_cast<std::uint32_t>(std::hash<mqTextView>()(text));
  }
  [[nodiscard]] mqTextView At(int number) const noexcept {
    const auto place = static_cast<std::size_t>(number);
    const std::size_t start = place == 0 ? 0 : m_ends[place - 1];
    return mqTextView(m_texts).substr(start, m_ends[place] - start);
  }

  std::basic_string<mqChar> m_texts;
  std::vector<std::size_t> m_ends;
  KeyTable m_numbers;
};

/// Has the first bytes of a member brought into the cache, of the record some places behind
/// `place`: in a loop over records so large that no processor looks that far ahead by itself.
template <class Record>
void FetchAhead(std::span<const Record> records, std::size_t place, auto member) noexcept {
  constexpr std::size_t kAhead = 16;
  constexpr std::size_t kCacheLine = 64;
  const Record& ahead = records[std::min(place + kAhead, records.size() - 1)];
  const auto* const bytes = reinterpret_cast<const char*>(&(ahead.*member));
  _mm_prefetch(bytes, _MM_HINT_T0);
  _mm_prefetch(bytes + kCacheLine, _MM_HINT_T0);  // they rarely end with the line
}

/// Makes `folded` the same for texts that differ in letter case alone.
inline void FoldText(mqTextView text, std::basic_string<mqChar>& folded) {
  folded.resize(text.size());
  std::ranges::transform(text, folded.begin(), FoldCase);
}

}  // namespace mqp
