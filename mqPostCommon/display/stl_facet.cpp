#include <mqPostCommon/display/stl_facet.h>

CSTLFacet::CSTLFacet(const CSTLVertex& normal, const std::vector<CSTLVertex>& vertices)
    : m_Normal(normal), m_nVertices(static_cast<int>(vertices.size())), m_vecVertices(vertices) {}
CSTLFacet::CSTLFacet(const CSTLFacet&) = default;
CSTLFacet& CSTLFacet::operator=(const CSTLFacet&) = default;
CSTLFacet::~CSTLFacet() = default;
