#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/display/shell_flip_data.h>
#include <mqPostCommon/display/stl_facet.h>

namespace {

using Floats = std::array<float, 3>;
using Integers = std::array<int, 3>;

static_assert(!std::is_polymorphic_v<CSTLVertex> && !std::is_polymorphic_v<CSTLFacet> &&
              !std::is_polymorphic_v<CShellEntityID_FlipData>);
static_assert(sizeof(CSTLVertex) == 12 && sizeof(CShellEntityID_FlipData) == 12);

CSTLVertex Vertex(float x, float y, float z) {
  CSTLVertex vertex;
  vertex.m_fX = x;
  vertex.m_fY = y;
  vertex.m_fZ = z;
  return vertex;
}

Floats Read(const CSTLVertex& vertex) {
  return {vertex.GetX(), vertex.GetY(), vertex.GetZ()};
}

std::vector<Floats> Read(const std::vector<CSTLVertex>& vertices) {
  std::vector<Floats> floats;
  for (const CSTLVertex& vertex : vertices) {
    floats.push_back(Read(vertex));
  }
  return floats;
}

Integers Read(const CShellEntityID_FlipData& record) {
  return {record.m_nHost1, record.m_nHost2, record.m_nHost3};
}

CSTLFacet Triangle() {
  return CSTLFacet(Vertex(0, 0, 1), {Vertex(1, 2, 3), Vertex(4, 5, 6), Vertex(7, 8, 9)});
}

const std::vector<Floats> kTriangle = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};

TEST(StlVertex, ANewOneLiesAtTheOrigin) {
  const CSTLVertex vertex;
  EXPECT_EQ(Read(vertex), (Floats{0, 0, 0}));
  EXPECT_EQ((Floats{vertex.m_fX, vertex.m_fY, vertex.m_fZ}), (Floats{0, 0, 0}));
}

TEST(StlVertex, EachCoordinateIsSetByItself) {
  CSTLVertex vertex;
  vertex.SetY(2.5F);
  EXPECT_EQ(Read(vertex), (Floats{0, 2.5F, 0}));
  vertex.SetX(-1.5F);
  EXPECT_EQ(Read(vertex), (Floats{-1.5F, 2.5F, 0}));
  vertex.SetZ(8);
  EXPECT_EQ(Read(vertex), (Floats{-1.5F, 2.5F, 8}));
  EXPECT_EQ((Floats{vertex.m_fX, vertex.m_fY, vertex.m_fZ}), (Floats{-1.5F, 2.5F, 8}));
}

TEST(StlVertex, CopiesAndAssignmentsTakeAllThreeCoordinates) {
  const CSTLVertex source = Vertex(1, 2, 3);
  const CSTLVertex copy(source);
  EXPECT_EQ(Read(copy), (Floats{1, 2, 3}));
  CSTLVertex target = Vertex(7, 8, 9);
  EXPECT_EQ(&(target = source), &target);
  EXPECT_EQ(Read(target), (Floats{1, 2, 3}));
  EXPECT_EQ(Read(source), (Floats{1, 2, 3}));
  const CSTLVertex& self = target;
  target = self;
  EXPECT_EQ(Read(target), (Floats{1, 2, 3}));
}

TEST(StlVertex, MovingIsCopying) {
  CSTLVertex source = Vertex(1, 2, 3);
  CSTLVertex target = Vertex(7, 8, 9);
  EXPECT_EQ(&(target = std::move(source)), &target);
  EXPECT_EQ(Read(target), (Floats{1, 2, 3}));
  const CSTLVertex moved(std::move(target));
  EXPECT_EQ(Read(moved), (Floats{1, 2, 3}));
}

TEST(StlVertex, EveryFloatIsKeptToTheBit) {
  const float floats[] = {
      -0.0F, std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
      std::numeric_limits<float>::denorm_min(), std::numeric_limits<float>::lowest()};
  for (const float value : floats) {
    CSTLVertex vertex;
    vertex.SetX(value);
    vertex.SetZ(value);
    CSTLVertex copy;
    copy = vertex;
    const auto bits = std::bit_cast<std::uint32_t>(value);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(copy.GetX()), bits);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(copy.GetY()), 0U);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(copy.GetZ()), bits);
  }
}

TEST(StlFacet, ATriangleHasItsNormalAndItsVerticesInOrder) {
  const CSTLFacet facet = Triangle();
  EXPECT_EQ(Read(facet.m_Normal), (Floats{0, 0, 1}));
  EXPECT_EQ(facet.m_nVertices, 3);
  EXPECT_EQ(Read(facet.m_vecVertices), kTriangle);
}

TEST(StlFacet, AnyNumberOfVerticesIsTaken) {
  for (const int count : {0, 1, 2, 3, 4, 5, 1000}) {
    std::vector<CSTLVertex> vertices;
    std::vector<Floats> expected;
    for (int index = 0; index < count; ++index) {
      const float value = static_cast<float>(index);
      vertices.push_back(Vertex(value, -value, 0.5F));
      expected.push_back({value, -value, 0.5F});
    }
    const CSTLFacet facet(Vertex(1, 0, 0), vertices);
    EXPECT_EQ(facet.m_nVertices, count);
    EXPECT_EQ(Read(facet.m_vecVertices), expected);
    EXPECT_EQ(Read(facet.m_Normal), (Floats{1, 0, 0}));
  }
}

TEST(StlFacet, TheCallersVerticesAreCopied) {
  std::vector<CSTLVertex> vertices = {Vertex(1, 2, 3), Vertex(4, 5, 6), Vertex(7, 8, 9)};
  CSTLVertex normal = Vertex(0, 0, 1);
  const CSTLFacet facet(normal, vertices);
  EXPECT_EQ(Read(vertices), kTriangle);
  vertices[1].SetX(100);
  vertices.pop_back();
  normal.SetZ(-1);
  EXPECT_EQ(facet.m_nVertices, 3);
  EXPECT_EQ(Read(facet.m_vecVertices), kTriangle);
  EXPECT_EQ(Read(facet.m_Normal), (Floats{0, 0, 1}));
}

TEST(StlFacet, ACopyStandsByItself) {
  CSTLFacet source = Triangle();
  source.m_nVertices = 17;  // a member like any other, not counted again
  const CSTLFacet copy(source);
  source.m_vecVertices[0].SetX(100);
  source.m_Normal.SetX(100);
  EXPECT_EQ(Read(copy.m_Normal), (Floats{0, 0, 1}));
  EXPECT_EQ(copy.m_nVertices, 17);
  EXPECT_EQ(Read(copy.m_vecVertices), kTriangle);
}

TEST(StlFacet, AnAssignmentReplacesMoreAndFewerVertices) {
  const CSTLFacet source = Triangle();
  for (const std::size_t count : {std::size_t{0}, std::size_t{2}, std::size_t{50}}) {
    CSTLFacet target(Vertex(1, 1, 1), std::vector<CSTLVertex>(count));
    EXPECT_EQ(&(target = source), &target);
    EXPECT_EQ(Read(target.m_Normal), (Floats{0, 0, 1}));
    EXPECT_EQ(target.m_nVertices, 3);
    EXPECT_EQ(Read(target.m_vecVertices), kTriangle);
  }
  EXPECT_EQ(Read(source.m_vecVertices), kTriangle);
}

TEST(StlFacet, AnAssignmentOfAnEmptyOneEmpties) {
  CSTLFacet target = Triangle();
  target = CSTLFacet(Vertex(1, 0, 0), {});
  EXPECT_EQ(Read(target.m_Normal), (Floats{1, 0, 0}));
  EXPECT_EQ(target.m_nVertices, 0);
  EXPECT_TRUE(target.m_vecVertices.empty());
}

TEST(StlFacet, AnAssignmentToItselfChangesNothing) {
  CSTLFacet facet = Triangle();
  const CSTLFacet& self = facet;
  facet = self;
  EXPECT_EQ(Read(facet.m_Normal), (Floats{0, 0, 1}));
  EXPECT_EQ(facet.m_nVertices, 3);
  EXPECT_EQ(Read(facet.m_vecVertices), kTriangle);
}

TEST(FlipRecord, ANewOneIsZero) {
  EXPECT_EQ(Read(CShellEntityID_FlipData()), (Integers{0, 0, 0}));
}

TEST(FlipRecord, CopiesAndAssignmentsTakeAllThreeValues) {
  CShellEntityID_FlipData source;
  source.m_nHost1 = 1;
  source.m_nHost2 = -2;
  source.m_nHost3 = std::numeric_limits<int>::min();
  const Integers expected{1, -2, -2147483647 - 1};
  const CShellEntityID_FlipData copy(source);
  EXPECT_EQ(Read(copy), expected);
  CShellEntityID_FlipData target;
  target.m_nHost1 = target.m_nHost2 = target.m_nHost3 = 9;
  EXPECT_EQ(&(target = source), &target);
  EXPECT_EQ(Read(target), expected);
  const CShellEntityID_FlipData& self = target;
  target = self;
  EXPECT_EQ(Read(target), expected);
  EXPECT_EQ(Read(source), expected);
}

}  // namespace
