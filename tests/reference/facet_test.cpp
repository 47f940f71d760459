#include <array>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <mqPostCommon/mqPostCommon.h>

#include "members.h"
#include "tally.h"

namespace reference {
namespace {

static_assert(!std::is_polymorphic_v<CSTLVertex> && !std::is_polymorphic_v<CSTLFacet>);

/// Three floats in order, by their bits.
using Point = std::array<Value, 3>;

struct PlainFacet {
  Point normal;
  int count = 0;
  std::vector<Point> vertices;
};

Fields FieldsOf(const Point& point) {
  return {{{"x", 0}, point[0]}, {{"y", 0}, point[1]}, {{"z", 0}, point[2]}};
}

/// As a snapshot has them: the count of the vertices at 0, the first vertex from 3 on.
Fields FieldsOf(const PlainFacet& facet) {
  Fields fields;
  Put(fields, "count", {facet.count});
  Put(fields, "vertices", {static_cast<int>(facet.vertices.size())});
  for (int coordinate = 0; coordinate < 3; ++coordinate) {
    const auto nth = static_cast<std::size_t>(coordinate);
    fields[{"normal", coordinate}] = facet.normal[nth];
    int place = coordinate;
    for (const Point& vertex : facet.vertices) {
      fields[{"vertices", place += 3}] = vertex[nth];
    }
  }
  return fields;
}

Point Origin() {
  return {ValueOf(0.0F), ValueOf(0.0F), ValueOf(0.0F)};
}

Point PointOf(const CSTLVertex& vertex) {
  return {ValueOf(vertex.GetX()), ValueOf(vertex.GetY()), ValueOf(vertex.GetZ())};
}

PlainFacet Build(const Point& normal, const std::vector<Point>& vertices) {
  PlainFacet facet;
  facet.normal = normal;
  for (const Point& vertex : vertices) {
    facet.vertices.push_back(vertex);
    ++facet.count;
  }
  return facet;
}

void Change(CSTLVertex& vertex, Point& point, Random& random) {
  const float number = random.Float();
  CSTLVertex other;
  Scramble(other, random);
  const Point otherPoint = {ValueOf(other.m_fX), ValueOf(other.m_fY), ValueOf(other.m_fZ)};
  switch (random.Below(6)) {
    case 0:
      Hit("vertex: x");
      vertex.SetX(number);
      point[0] = ValueOf(number);
      break;
    case 1:
      Hit("vertex: y");
      vertex.SetY(number);
      point[1] = ValueOf(number);
      break;
    case 2:
      Hit("vertex: z");
      vertex.SetZ(number);
      point[2] = ValueOf(number);
      break;
    case 3:
      Hit("vertex: assigned");
      vertex = other;
      point = otherPoint;
      break;
    case 4:
      Hit("vertex: moved");
      vertex = std::move(other);
      point = otherPoint;
      break;
    default: {
      Hit("vertex: copied");
      const CSTLVertex copy(vertex);
      vertex = CSTLVertex();
      ASSERT_EQ("", FirstDifference(FieldsOf(Origin()), Snapshot(vertex)));
      vertex = copy;
    }
  }
}

TEST(FacetReference, VerticesTakeAndTellEachCoordinate) {
  ResetTally();
  Random random(5201);
  const int cases = CountCases(20000);
  CSTLVertex vertex;
  Point point = Origin();
  for (int number = 0; number < cases; ++number) {
    SCOPED_TRACE("change " + std::to_string(number));
    ASSERT_EQ("", FirstDifference(FieldsOf(point), Snapshot(vertex)));
    ASSERT_TRUE(point == PointOf(vertex));
    ASSERT_NO_FATAL_FAILURE(Change(vertex, point, random));
  }
  CheckTally("vertex", {"vertex: x", "vertex: y", "vertex: z", "vertex: assigned", "vertex: moved",
                        "vertex: copied"});
  RecordCases(cases);
}

CSTLVertex AnyVertex(Random& random) {
  CSTLVertex vertex;
  Scramble(vertex, random);
  return vertex;
}

void HitAssignment(std::size_t before, std::size_t after) {
  Hit(before < after   ? "assigned: grows"
      : before > after ? "assigned: shrinks"
                       : "assigned: stays");
}

TEST(FacetReference, FacetsMadeCopiedAndAssigned) {
  ResetTally();
  Random random(5202);
  const int cases = CountCases(5000);
  for (int number = 0; number < cases; ++number) {
    SCOPED_TRACE("facet " + std::to_string(number));
    CSTLVertex normal = AnyVertex(random);
    std::vector<CSTLVertex> vertices;
    std::vector<Point> points;
    for (int count = random.Between(0, 6); count > 0; --count) {
      vertices.push_back(AnyVertex(random));
      points.push_back(PointOf(vertices.back()));
    }
    Hit(points.empty() ? "made: of none" : points.size() == 3 ? "made: of three" : "made: of some");
    PlainFacet plain = Build(PointOf(normal), points);
    auto facet = std::make_unique<CSTLFacet>(normal, vertices);
    normal = AnyVertex(random);
    vertices.assign(2, AnyVertex(random));
    ASSERT_EQ("", FirstDifference(FieldsOf(plain), Snapshot(*facet)));

    if (random.Once(3)) {
      Hit("counted: otherwise");
      plain.count = facet->m_nVertices = random.Int();
    }
    CSTLFacet target(normal, vertices);
    Scramble(target, random);
    HitAssignment(target.m_vecVertices.size(), points.size());
    const CSTLFacet copy(*facet);
    target = *facet;
    const CSTLFacet& same = *facet;
    *facet = same;
    ASSERT_EQ("", FirstDifference(FieldsOf(plain), Snapshot(*facet)));
    Scramble(*facet, random);
    facet.reset();
    ASSERT_EQ("", FirstDifference(FieldsOf(plain), Snapshot(copy)));
    ASSERT_EQ("", FirstDifference(FieldsOf(plain), Snapshot(target)));
  }
  CheckTally("made", {"made: of none", "made: of three", "made: of some"});
  CheckTally("counted", {"counted: otherwise"});
  CheckTally("assigned", {"assigned: grows", "assigned: shrinks", "assigned: stays"});
  RecordCases(cases);
}

}  // namespace
}  // namespace reference
