/// \file
/// The transformation of a view.
#pragma once

#include <concepts>

namespace mqp {

/// A homogeneous transformation, the identity to begin with; `matrix[row][column]`, both from 0
/// to 3.
struct ViewMatrix {
  // clang-format off
  double m_dRows[4][4] = {{1.0, 0.0, 0.0, 0.0},
                          {0.0, 1.0, 0.0, 0.0},
                          {0.0, 0.0, 1.0, 0.0},
                          {0.0, 0.0, 0.0, 1.0}};
  // clang-format on

  [[nodiscard]] auto& operator[](std::integral auto row) noexcept { return m_dRows[row]; }
  [[nodiscard]] auto& operator[](std::integral auto row) const noexcept { return m_dRows[row]; }
};

}  // namespace mqp
