/// \file
/// Surfaces in the STL format.
#pragma once

#include <vector>

#include <mqPostCommon/export.h>

/// A point or a direction, in the length unit of the host.
class MQPOSTCOMMON_API CSTLVertex {
 public:
  [[nodiscard]] float GetX() const noexcept { return m_fX; }
  [[nodiscard]] float GetY() const noexcept { return m_fY; }
  [[nodiscard]] float GetZ() const noexcept { return m_fZ; }
  void SetX(float x) noexcept { m_fX = x; }
  void SetY(float y) noexcept { m_fY = y; }
  void SetZ(float z) noexcept { m_fZ = z; }

  float m_fX = 0.0F;
  float m_fY = 0.0F;
  float m_fZ = 0.0F;
};

/// A facet: its normal and its vertices in order, of which a triangle has three. A value type. A
/// copy or an assignment that runs out of memory throws `std::bad_alloc` and leaves the target as
/// it was.
class MQPOSTCOMMON_API CSTLFacet {
 public:
  /// \param vertices any number of them; copied
  CSTLFacet(const CSTLVertex& normal, const std::vector<CSTLVertex>& vertices);
  CSTLFacet(const CSTLFacet&);
  CSTLFacet& operator=(const CSTLFacet&);
  ~CSTLFacet();

  CSTLVertex m_Normal;
  int m_nVertices = 0;  ///< as many as the facet was made of
  std::vector<CSTLVertex> m_vecVertices;
};
