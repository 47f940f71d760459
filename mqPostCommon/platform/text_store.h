/// \file
/// The units of a `CString`.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
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
/// A function that needs memory throws `std::bad_alloc` when there is none, or for more units than
/// 32 bits count, and the text is as it was. The views handed in may be parts of this text.
class TextStore {
 public:
  /// The longest text without an allocation. A zero stands behind it.
  static constexpr std::size_t kOwnRoom = PaddedText::kUnits - 1;

  TextStore() noexcept { Terminate(0); }
  explicit TextStore(mqTextView text) : TextStore(Room{text.size()}) { Append(text); }
  explicit TextStore(PaddedText text) : TextStore() { Assign(text); }
  TextStore(std::size_t count, mqChar unit) : TextStore(Room{count}) {
    std::fill_n(Units(), count, unit);
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
      Free();
      Take(other);
    }
    return *this;
  }
  ~TextStore() { Free(); }

  [[nodiscard]] mqTextView View() const noexcept { return {Units(), m_length}; }
  [[nodiscard]] const mqChar* Units() const noexcept { return IsOwn() ? m_own : m_memory; }
  [[nodiscard]] mqChar* Units() noexcept { return IsOwn() ? m_own : m_memory; }
  [[nodiscard]] std::size_t Length() const noexcept { return m_length; }

  /// Allocates only when there is no room for the text.
  void Assign(mqTextView text) {
    if (text.size() > m_room) {
      *this = TextStore(text);
      return;
    }
    std::char_traits<mqChar>::move(Units(), text.data(), text.size());
    Terminate(text.size());
  }
  /// The same with a text that is no part of this one.
  void Assign(PaddedText text) {
    if (text.length > kOwnRoom) {
      Assign(mqTextView(text.units, text.length));
      return;
    }
    std::memcpy(Units(), text.units, sizeof m_own);
    Terminate(text.length);
  }
  /// Appending again and again allocates as often as the length doubles.
  void Append(mqTextView text) {
    const std::size_t length = m_length + text.size();
    if (length > m_room) {
      TextStore longer(Room{std::max(length, 2 * std::size_t{m_room})});
      longer.Append(View());
      longer.Append(text);
      *this = std::move(longer);
      return;
    }
    std::copy_n(text.data(), text.size(), Units() + m_length);
    Terminate(length);
  }
  /// Removes the units from `first` up to `last`, which the text has.
  void Erase(std::size_t first, std::size_t last) noexcept {
    mqChar* const units = Units();
    Terminate(
        static_cast<std::size_t>(std::copy(units + last, units + m_length, units + first) - units));
  }

 private:
  [[nodiscard]] PaddedText Padded() const noexcept { return {Units(), m_length}; }
  [[nodiscard]] bool IsOwn() const noexcept { return m_room == kOwnRoom; }

  struct Room {
    std::size_t units;
  };
  /// Empty, with room for so many units.
  explicit TextStore(Room room) {
    if (room.units > kOwnRoom) {
      if (room.units > std::numeric_limits<std::uint32_t>::max()) {
        throw std::bad_alloc();
      }
      m_memory = new mqChar[room.units + 1];
      m_room = static_cast<std::uint32_t>(room.units);
    }
    Terminate(0);
  }
  void Terminate(std::size_t length) noexcept {
    m_length = static_cast<std::uint32_t>(length);
    Units()[length] = 0;
  }
  void Free() noexcept {
    if (!IsOwn()) {
      delete[] m_memory;
    }
  }
  /// From another one, which is empty then; what this one held is lost.
  void Take(TextStore& other) noexcept {
    std::memcpy(m_own, other.m_own, sizeof m_own);
    m_length = other.m_length;
    m_room = std::exchange(other.m_room, kOwnRoom);
    other.Terminate(0);
  }

  std::uint32_t m_length;
  std::uint32_t m_room = kOwnRoom;  ///< more of it lies in `m_memory`
  union {
    mqChar m_own[kOwnRoom + 1];
    mqChar* m_memory;
  };
};

}  // namespace mqp
