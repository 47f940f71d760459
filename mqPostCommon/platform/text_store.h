/// \file
/// The units of a `CString`.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <utility>

#include <mqPostCommon/platform/text.h>

namespace mqp {

/// A text in memory of which `kUnits` units may be read, however short it is: of one that is
/// shorter all of them are copied, as no processor could guess how long the next text is.
struct PaddedText {
  static constexpr std::size_t kUnits = 44;

  const mqChar* units;
  std::size_t length;
};

/// Code units that lie behind each other, and a zero behind the last one. As many as a display name
/// has lie in the object itself, so that a name is returned without an allocation; more lie in
/// memory of their own, which `Assign` and `Erase` keep when the text becomes shorter.
///
/// A function that needs memory throws `std::bad_alloc` when there is none, and the text is as it
/// was. The views handed in may be parts of this text.
class TextStore {
 public:
  /// The longest text without an allocation. A zero stands behind it.
  static constexpr std::size_t kOwnRoom = PaddedText::kUnits - 1;

  TextStore() noexcept { Terminate(0); }
  explicit TextStore(mqTextView text) : TextStore(Room{text.size()}) { Append(text); }
  explicit TextStore(PaddedText text) : TextStore() { Assign(text); }
  TextStore(std::size_t count, mqChar unit) : TextStore(Room{count}) {
    std::fill_n(m_units, count, unit);
    Terminate(count);
  }
  TextStore(const TextStore& other) : TextStore(other.Padded()) {}
  TextStore(TextStore&& other) noexcept { Take(other); }
  TextStore& operator=(const TextStore& other) {
    if (this != &other) {
      Assign(other.Padded());
    }
    return *this;
  }
  TextStore& operator=(TextStore&& other) noexcept {
    if (this != &other) {
      Take(other);
    }
    return *this;
  }
  ~TextStore() = default;

  [[nodiscard]] mqTextView View() const noexcept { return {m_units, m_length}; }
  [[nodiscard]] const mqChar* Units() const noexcept { return m_units; }
  [[nodiscard]] mqChar* Units() noexcept { return m_units; }
  [[nodiscard]] std::size_t Length() const noexcept { return m_length; }

  /// Allocates only when there is no room for the text.
  void Assign(mqTextView text) {
    if (text.size() > m_room) {
      *this = TextStore(text);
      return;
    }
    std::char_traits<mqChar>::move(m_units, text.data(), text.size());
    Terminate(text.size());
  }
  /// The same with a text that is no part of this one.
  void Assign(PaddedText text) {
    if (text.length > kOwnRoom) {
      Assign(mqTextView(text.units, text.length));
      return;
    }
    std::memcpy(m_units, text.units, sizeof m_own);
    Terminate(text.length);
  }
  /// Appending again and again allocates as often as the length doubles.
  void Append(mqTextView text) {
    const std::size_t length = m_length + text.size();
    if (length > m_room) {
      TextStore longer(Room{std::max(length, 2 * m_room)});
      longer.Append(View());
      longer.Append(text);
      *this = std::move(longer);
      return;
    }
    std::copy_n(text.data(), text.size(), m_units + m_length);
    Terminate(length);
  }
  /// Removes the units from `first` up to `last`, which the text has.
  void Erase(std::size_t first, std::size_t last) noexcept {
    Terminate(static_cast<std::size_t>(
        std::copy(m_units + last, m_units + m_length, m_units + first) - m_units));
  }

 private:
  [[nodiscard]] PaddedText Padded() const noexcept { return {m_units, m_length}; }

  struct Room {
    std::size_t units;
  };
  /// Empty, with room for so many units.
  explicit TextStore(Room room) {
    if (room.units > kOwnRoom) {
      m_memory = std::make_unique_for_overwrite<mqChar[]>(room.units + 1);
      m_units = m_memory.get();
      m_room = room.units;
    }
    Terminate(0);
  }
  void Terminate(std::size_t length) noexcept {
    m_length = length;
    m_units[length] = 0;
  }
  /// From another one, which is empty then; of this one nothing is kept.
  void Take(TextStore& other) noexcept {
    m_memory = std::move(other.m_memory);
    m_units = m_memory == nullptr ? m_own : m_memory.get();
    m_room = std::exchange(other.m_room, kOwnRoom);
    if (m_memory == nullptr) {
      std::memcpy(m_own, other.m_own, sizeof m_own);
    }
    Terminate(other.m_length);
    other.m_units = other.m_own;
    other.Terminate(0);
  }

  std::unique_ptr<mqChar[]> m_memory;
  mqChar* m_units = m_own;
  std::size_t m_length;
  std::size_t m_room = kOwnRoom;
  mqChar m_own[kOwnRoom + 1];
};

}  // namespace mqp
