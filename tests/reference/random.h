#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <random>
#include <vector>

#include "values.h"

namespace reference {

/// The same numbers from every compiler and standard library: of the library's random parts only
/// the engine is fixed bit by bit, the distributions are not.
class Random {
 public:
  explicit Random(std::uint64_t seed) : m_engine(seed) {}

  std::uint64_t Bits() { return m_engine(); }

  /// From 0 to count - 1.
  int Below(int count) { return static_cast<int>(Bits() % static_cast<std::uint64_t>(count)); }

  int Between(int first, int last) {
    const auto width = static_cast<std::uint64_t>(static_cast<std::int64_t>(last) - first) + 1;
    return static_cast<int>(first + static_cast<std::int64_t>(Bits() % width));
  }

  bool Once(int inSoMany) { return Below(inSoMany) == 0; }

  template <class Kind>
  Kind Of(std::initializer_list<Kind> choices) {
    return *(choices.begin() + Below(static_cast<int>(choices.size())));
  }

  template <class Kind>
  Kind From(const std::vector<Kind>& choices) {
    return choices[static_cast<std::size_t>(Below(static_cast<int>(choices.size())))];
  }

  /// Mostly small, where codes live, now and then anything.
  int Int() {
    switch (Below(8)) {
      case 0: return Between(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
      case 1:
        return Of(
            {std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), -1, 0, 1, 100});
      default: return Between(-3, 75);
    }
  }

  /// Round values that meet each other, any bits, and the special numbers.
  double Double() {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    switch (Below(6)) {
      case 0: return std::bit_cast<double>(Bits());
      case 1:
        return Of({0.0, -0.0, kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN(),
                   std::numeric_limits<double>::denorm_min(), std::numeric_limits<double>::max()});
      case 2: return Between(-1000000, 1000000) / 999.0;
      default: return Between(-5, 10);
    }
  }

  float Float() {
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    switch (Below(4)) {
      case 0: return std::bit_cast<float>(static_cast<std::uint32_t>(Bits()));
      case 1:
        return Of({0.0F, -0.0F, kInfinity, -kInfinity, std::numeric_limits<float>::quiet_NaN(),
                   std::numeric_limits<float>::denorm_min(), std::numeric_limits<float>::max()});
      default: return static_cast<float>(Between(-100000, 100000)) / 999.0F;
    }
  }

 private:
  std::mt19937_64 m_engine;
};

/// Short, with quotes, colons, blanks, letters beyond ASCII and lone surrogates.
Text RandomText(Random& random, int longest = 12);

}  // namespace reference
