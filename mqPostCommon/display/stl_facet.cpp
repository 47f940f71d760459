#include <mqPostCommon/display/stl_facet.h>

CSTLFacet::CSTLFacet(const CSTLVertex& normal, const std::vector<CSTLVertex>& vertices)
    : m_Normal(normal), m_nVertices(static_cast<int>(vertices.size())), m_vecVertices(vertices) {}
CSTLFacet::CSTLFacet(const CSTLFacet&) = default;
CSTLFacet& CSTLFacet::operator=(const CSTLFacet& other) {
  if (this != &other) {
    m_vecVertices = other.m_vecVertices;  // first, as their number must not tell of more than these
    m_Normal = other.m_Normal;
    m_nVertices = other.m_nVertices;
  }
  return *this;
}
CSTLFacet::~CSTLFacet() = default;
