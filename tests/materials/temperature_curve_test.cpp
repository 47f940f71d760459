#include <climits>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/materials/temperature_curve.h>

#include "materials/material_test_support.h"

namespace mqp::test {
namespace {

using Curve = CmqTemperatureCurve;

static_assert(std::has_virtual_destructor_v<Curve>);
static_assert(std::is_nothrow_move_constructible_v<Curve>);
static_assert(std::is_nothrow_move_assignable_v<Curve>);
static_assert(std::is_same_v<decltype(Curve::m_nPoints), int>);
static_assert(std::is_same_v<decltype(Curve::m_vecX), std::vector<double>>);
static_assert(std::is_same_v<decltype(Curve::m_vecY), std::vector<double>>);

using Limits = std::numeric_limits<double>;
constexpr double kInfinity = Limits::infinity();
constexpr double kNaN = Limits::quiet_NaN();
constexpr double kLargest = Limits::max();
constexpr double kTiny = Limits::denorm_min();

struct CurveState {
  int points;
  std::vector<double> temperatures;
  std::vector<double> values;
};

void Set(Curve& curve, const CurveState& state) {
  curve.m_nPoints = state.points;
  curve.m_vecX = state.temperatures;
  curve.m_vecY = state.values;
}

std::string Differences(const Curve& got, const CurveState& expected) {
  Curve curve;
  Set(curve, expected);
  return Difference(got, curve);
}

TEST(TemperatureCurve, ANewCurveHasNoPoints) {
  const Curve curve;
  EXPECT_EQ(Differences(curve, {0, {}, {}}), "");
}

struct CopyRow {
  CurveState source;
  CurveState copy;  ///< what the copy constructor makes of it
};

// clang-format off
const CopyRow kCopies[] = {
    // source                                                copy
    {{0,       {},              {}},                         {0,       {},           {}}},
    {{1,       {20.0},          {200.0}},                    {1,       {20.0},       {200.0}}},
    {{2,       {20.0, 30.0},    {200.0, 190.0}},             {2,       {20.0, 30.0}, {200.0, 190.0}}},
    {{2,       {20.0, 30.0, 40.0}, {1.0, 2.0, 3.0, 4.0}},    {2,       {20.0, 30.0}, {1.0, 2.0}}},
    {{1,       {20.0, 30.0, 40.0}, {1.0, 2.0, 3.0, 4.0}},    {1,       {20.0},       {1.0}}},
    {{0,       {20.0, 30.0},    {200.0, 190.0}},             {0,       {},           {}}},
    {{-1,      {20.0, 30.0},    {200.0, 190.0}},             {-1,      {},           {}}},
    {{INT_MIN, {20.0, 30.0},    {200.0, 190.0}},             {INT_MIN, {},           {}}},
    // Arrays that hold less than the count are copied as far as they go, each on its own.
    {{3,       {20.0, 30.0},    {200.0, 190.0}},             {3,       {20.0, 30.0}, {200.0, 190.0}}},
    {{3,       {20.0},          {1.0, 2.0, 3.0, 4.0}},       {3,       {20.0},       {1.0, 2.0, 3.0}}},
    {{3,       {1.0, 2.0, 3.0, 4.0}, {20.0}},                {3,       {1.0, 2.0, 3.0}, {20.0}}},
    {{2,       {},              {1.0}},                      {2,       {},           {1.0}}},
    {{5,       {},              {}},                         {5,       {},           {}}},
    {{INT_MAX, {20.0},          {1.0, 2.0}},                 {INT_MAX, {20.0},       {1.0, 2.0}}},
    {{2,       {-0.0, kInfinity, 1.0}, {kNaN, kTiny, 1.0}},  {2,       {-0.0, kInfinity}, {kNaN, kTiny}}},
};
// clang-format on

TEST(TemperatureCurve, ACopyHasThePointsThatCount) {
  for (const CopyRow& row : kCopies) {
    Curve source;
    Set(source, row.source);
    const Curve copy(source);
    EXPECT_EQ(Differences(copy, row.copy), "");
    EXPECT_EQ(Differences(source, row.source), "");
  }
}

TEST(TemperatureCurve, AnAssignedCurveHasBothArraysWhole) {
  const CurveState targets[] = {
      {0, {}, {}},
      {4, {5.0, 6.0, 7.0, 8.0, 9.0, 10.0}, {5.0, 6.0, 7.0, 8.0, 9.0, 10.0}},
  };
  for (const CopyRow& row : kCopies) {
    for (const CurveState& before : targets) {
      Curve source;
      Set(source, row.source);
      Curve target;
      Set(target, before);
      Curve& result = target = source;
      EXPECT_EQ(&result, &target);
      EXPECT_EQ(Differences(target, row.source), "");
      EXPECT_EQ(Differences(source, row.source), "");
    }
  }
}

TEST(TemperatureCurve, ACurveAssignedToItselfStaysAsItIs) {
  for (const CopyRow& row : kCopies) {
    Curve curve;
    Set(curve, row.source);
    const Curve& alias = curve;
    curve = alias;
    EXPECT_EQ(Differences(curve, row.source), "");
  }
}

TEST(TemperatureCurve, AMovedCurveHasBothArraysWhole) {
  for (const CopyRow& row : kCopies) {
    Curve source;
    Set(source, row.source);
    Curve moved(std::move(source));
    EXPECT_EQ(Differences(moved, row.source), "");

    Curve target;
    Set(target, {4, {5.0, 6.0, 7.0, 8.0}, {5.0, 6.0, 7.0, 8.0}});
    Curve& result = target = std::move(moved);
    EXPECT_EQ(&result, &target);
    EXPECT_EQ(Differences(target, row.source), "");
  }
}

TEST(TemperatureCurve, AMovedFromCurveCanBeUsedAnew) {
  Curve source;
  Set(source, {2, {20.0, 30.0}, {200.0, 190.0}});
  const Curve moved(std::move(source));
  Curve other;
  Set(other, {1, {1.0}, {2.0}});
  source = other;
  EXPECT_EQ(Differences(source, {1, {1.0}, {2.0}}), "");
  EXPECT_EQ(Differences(moved, {2, {20.0, 30.0}, {200.0, 190.0}}), "");
}

TEST(TemperatureCurve, CopiesAreIndependentOfTheirSource) {
  Curve source;
  Set(source, {2, {20.0, 30.0}, {200.0, 190.0}});
  const Curve copy(source);
  Curve assigned;
  assigned = source;
  source.m_nPoints = 1;
  source.m_vecX[0] = 1.0;
  source.m_vecY.clear();
  EXPECT_EQ(Differences(copy, {2, {20.0, 30.0}, {200.0, 190.0}}), "");
  EXPECT_EQ(Differences(assigned, {2, {20.0, 30.0}, {200.0, 190.0}}), "");
}

struct ValueRow {
  CurveState curve;
  double x;
  double y;
};

using Rows = std::initializer_list<ValueRow>;

/// Values are compared by their bits; one NaN is as good as another.
void ExpectValues(Rows rows) {
  for (const ValueRow& row : rows) {
    Curve curve;
    Set(curve, row.curve);
    const double got = curve.GetYValueAt(row.x);
    if (!std::isnan(row.y) || !std::isnan(got)) {
      EXPECT_EQ(Difference(got, row.y), "") << "at " << Show(row.x) << " of " << Show(curve);
    }
    EXPECT_EQ(Differences(curve, row.curve), "");
  }
}

const CurveState kNothing = {0, {}, {}};
const CurveState kOne = {1, {20.0}, {200.0}};
const CurveState kTwo = {2, {20.0, 100.0}, {250e6, 234e6}};
const CurveState kThree = {3, {0.0, 100.0, 200.0}, {100.0, 80.0, 60.0}};

TEST(TemperatureCurve, ACurveWithoutPointsIsZero) {
  for (const double x : {0.0, -0.0, 20.0, -1e300, kInfinity, -kInfinity, kNaN}) {
    ExpectValues({{kNothing, x, 0.0},
                  {{0, {10.0, 20.0}, {5.0, 6.0}}, x, 0.0},
                  {{-1, {10.0, 20.0}, {5.0, 6.0}}, x, 0.0},
                  {{INT_MIN, {10.0, 20.0}, {5.0, 6.0}}, x, 0.0}});
  }
}

TEST(TemperatureCurve, OnePointHoldsForEveryTemperature) {
  for (const double x : {20.0, 0.0, -0.0, 19.0, 21.0, -1e300, 1e300, kInfinity, -kInfinity, kNaN}) {
    ExpectValues({{kOne, x, 200.0},
                  {{1, {kNaN}, {-3.0}}, x, -3.0},
                  {{1, {20.0}, {-0.0}}, x, -0.0},
                  {{1, {20.0}, {kInfinity}}, x, kInfinity},
                  {{1, {20.0, 30.0, 40.0}, {200.0, 190.0, 180.0}}, x, 200.0}});
  }
}

// clang-format off
TEST(TemperatureCurve, TwoPointsMakeALineThatIsFlatOutside) {
  ExpectValues({
      // curve  temperature       value
      {kTwo,     20.0,            250e6},
      {kTwo,    100.0,            234e6},
      {kTwo,     60.0,            242e6},
      {kTwo,     40.0,            246e6},
      {kTwo,     95.0,            235e6},
      {kTwo,     19.999,          250e6},
      {kTwo,    100.001,          234e6},
      {kTwo,   -273.15,           250e6},
      {kTwo,      0.0,            250e6},
      {kTwo,      kTiny,          250e6},
      {kTwo,      1e308,          234e6},
      {kTwo,      kInfinity,      234e6},
      {kTwo,     -kInfinity,      250e6},
      {kTwo,      kNaN,           250e6},
  });
}

TEST(TemperatureCurve, ThreePointsMakeTwoLinesThatAreFlatOutside) {
  ExpectValues({
      // curve  temperature       value
      {kThree,  -50.0,            100.0},
      {kThree,    0.0,            100.0},
      {kThree,   -0.0,            100.0},
      {kThree,   50.0,             90.0},
      {kThree,  100.0,             80.0},
      {kThree,  150.0,             70.0},
      {kThree,  175.0,             65.0},
      {kThree,  200.0,             60.0},
      {kThree,  250.0,             60.0},
      {kThree,   kInfinity,        60.0},
      {kThree,  -kInfinity,       100.0},
      {kThree,   kNaN,            100.0},
  });
}

// The values of the order "from the upper point, product before quotient", one rounding a step.
// The middle rows differ in the last bit from the line from the lower point, from the quotient
// before the product, from weights, and from a product that is not rounded.
TEST(TemperatureCurve, TheLineIsComputedFromTheUpperPointWithTheProductFirst) {
  ExpectValues({
      // temperatures and values                        temperature  value
      {{2, {20.0, 100.0}, {250e6, 235e6}},               50.0,       0x1.d21bbbp+27},
      {{2, {20.0, 200.0}, {355.0, 280.1}},               73.3,       0x1.4cd23f42ac7cbp+8},
      {{2, {-40.1, 0.1}, {0.1, 0.3}},                    -0.2,       0x1.31abf0b7672ap-2},
      {{2, {0.1, 0.7}, {1e300, -1e300}},                  0.3,       0x1.fdafb60009cdp+994},
      {{2, {43.8, 175.8}, {613528.0, 409.91}},           60.36,      0x1.0604318f065e2p+19},
      {{2, {293.1, 447.1}, {636415.0, 92.044}},         438.99,      0x1.068498c41b18fp+15},
      {{2, {182.5, 268.2}, {758009.0, 356.027}},        186.27,      0x1.61d8eaeffb0d6p+19},
      {{2, {-15.7, 183.9}, {1007.861, 452.199}},         37.72,      0x1.ad92b854710e7p+9},
      // The same line in the middle and at either end of a longer curve.
      {{4, {0.0, 43.8, 175.8, 300.0}, {7.0, 613528.0, 409.91, 3.0}}, 60.36, 0x1.0604318f065e2p+19},
      {{3, {43.8, 175.8, 300.0}, {613528.0, 409.91, 3.0}},           60.36, 0x1.0604318f065e2p+19},
      {{3, {0.0, 43.8, 175.8}, {7.0, 613528.0, 409.91}},             60.36, 0x1.0604318f065e2p+19},
      // Neighbouring numbers and denormals.
      {{2, {1.0, 0x1.0000000000002p+0}, {1.0, 2.0}},     0x1.0000000000001p+0, 1.5},
      {{2, {kTiny, 3 * kTiny}, {1.0, 4.0}},              2 * kTiny,  2.5},
      {{2, {0.0, 1.0}, {kTiny, 0.0}},                     0.5,       0.0},  // a tie goes to even
      {{2, {0.0, 3.0}, {0.0, 3 * kTiny}},                 1.0,       kTiny},
      {{2, {0.0, 3.0}, {2 * kTiny, kTiny}},               1.0,       2 * kTiny},
      {{2, {0.0, 1.0}, {5.0, 5.0 + 0x1p-50}},             kTiny,     5.0},
  });
}

TEST(TemperatureCurve, AnIntermediateValueMayOverflow) {
  ExpectValues({
      {{2, {0.0, 10.0}, {0.0, kLargest}},                 5.0,      -kInfinity},
      {{2, {0.0, 10.0}, {-1e308, 1.5e308}},               5.0,      -kInfinity},
      {{2, {0.0, 10.0}, {kLargest, 0.0}},                 5.0,       kInfinity},
      {{2, {-kLargest, kLargest}, {1.0, 2.0}},            0.0,       2.0},  // an endless interval
      {{2, {-kLargest, kLargest}, {1.0, 1.0}},            0.0,       1.0},
  });
}

TEST(TemperatureCurve, APointWithExactlyThisTemperatureComesFirst) {
  ExpectValues({
      // the first of several
      {{4, {0.0, 10.0, 10.0, 20.0}, {1.0, 2.0, 3.0, 4.0}},      10.0,   2.0},
      {{5, {0.0, 10.0, 10.0, 10.0, 20.0}, {1.0, 2.0, 3.0, 4.0, 5.0}}, 10.0, 2.0},
      // before the interval, also from behind it
      {{4, {0.0, 10.0, 5.0, 20.0}, {1.0, 2.0, 3.0, 4.0}},        5.0,   3.0},
      {{5, {0.0, 10.0, 20.0, 5.0, 30.0}, {1.0, 2.0, 3.0, 4.0, 5.0}}, 5.0, 4.0},
      // an infinite value at the point itself
      {{3, {0.0, 10.0, 20.0}, {1.0, kInfinity, 3.0}},           10.0,   kInfinity},
      {{3, {0.0, 10.0, 20.0}, {1.0, -kInfinity, 3.0}},          10.0,  -kInfinity},
      // beside an infinite value or one that is none, where the line is none
      {{4, {0.0, 10.0, 20.0, 30.0}, {kNaN, 2.0, kInfinity, 4.0}}, 10.0, 2.0},
      // zeros of either sign are the same temperature
      {{3, {-1.0, 0.0, 1.0}, {1.0, 2.0, 3.0}},                  -0.0,   2.0},
      {{3, {-1.0, -0.0, 1.0}, {1.0, 2.0, 3.0}},                  0.0,   2.0},
      {{4, {-1.0, -0.0, 0.0, 1.0}, {1.0, 2.0, 3.0, 4.0}},        0.0,   2.0},
      {{2, {0.0, 1.0}, {1.0, 2.0}},                             -0.0,   1.0},
      {{2, {-1.0, -0.0}, {1.0, 2.0}},                            0.0,   2.0},
      // no tolerance
      {{3, {0.0, 0.3, 1.0}, {0.0, 3.0, 3.0}},        0x1.3333333333334p-2, 3.0},
      {{3, {0.0, 1.0, 2.0}, {0.0, 1.0, 1e6}},        0x1.0000000000001p+0, 0x1.00000001p+0},
  });
}

TEST(TemperatureCurve, TheEndsComeBeforeAPointWithExactlyThisTemperature) {
  ExpectValues({
      {{2, {10.0, 10.0}, {1.0, 2.0}},                          10.0,    1.0},
      {{2, {10.0, 10.0}, {1.0, 2.0}},                          11.0,    2.0},
      {{3, {0.0, 20.0, 20.0}, {1.0, 2.0, 3.0}},                20.0,    3.0},
      {{3, {0.0, 50.0, 20.0}, {1.0, 2.0, 3.0}},                50.0,    3.0},
      {{3, {10.0, 5.0, 20.0}, {1.0, 2.0, 3.0}},                 5.0,    1.0},
      {{2, {10.0, 5.0}, {1.0, 2.0}},                            7.0,    1.0},  // both ends: the first
      {{2, {10.0, 5.0}, {1.0, 2.0}},                           10.0,    1.0},
      {{2, {10.0, 5.0}, {1.0, 2.0}},                           11.0,    2.0},
  });
}

TEST(TemperatureCurve, TemperaturesOutOfOrderAreTakenAsTheyStand) {
  ExpectValues({
      // The first point above and the one before it, not the nearest ones.
      {{4, {0.0, 10.0, 5.0, 20.0}, {0.0, 100.0, 300.0, 400.0}},   7.0,   70.0},
      {{4, {0.0, 10.0, 5.0, 20.0}, {0.0, 100.0, 300.0, 450.0}},  15.0,  400.0},
      {{4, {0.0, 100.0, 50.0, 20.0}, {0.0, 1.0, 2.0, 3.0}},      60.0,    3.0},
      {{4, {0.0, 100.0, 50.0, 20.0}, {0.0, 100.0, 2.0, 3.0}},    10.0,   10.0},
      {{5, {0.0, 16.0, 8.0, 16.0, 32.0}, {0.0, 16.0, 0.0, 80.0, 0.0}}, 12.0, 12.0},
      // The point before is below: an interval of zero length is never reached.
      {{4, {0.0, 16.0, 16.0, 32.0}, {0.0, 16.0, 64.0, 128.0}},    8.0,    8.0},
      {{4, {0.0, 16.0, 16.0, 32.0}, {0.0, 16.0, 64.0, 128.0}},   24.0,   96.0},
  });
}

/// Point i of a curve of any length: temperature 10 i, value i.
CurveState Rising(int points) {
  CurveState state = {points, {}, {}};
  for (int point = 0; point < points; ++point) {
    state.temperatures.push_back(10.0 * point);
    state.values.push_back(point);
  }
  return state;
}

TEST(TemperatureCurve, EachPointOfALongCurveIsFoundInAndOutOfOrder) {
  for (const int points : {8, 9, 10, 15, 16, 17, 18, 25, 40}) {
    for (int point = 1; point < points - 1; ++point) {
      const double x = 10.0 * point;
      const CurveState rising = Rising(points);
      ExpectValues({{rising, x, 1.0 * point}, {rising, x - 5.0, point - 0.5}});
      CurveState gap = rising;
      gap.temperatures[static_cast<std::size_t>(point)] = kNaN;
      ExpectValues({{gap, x, kNaN}, {gap, x - 5.0, kNaN}, {gap, x - 10.0, point - 1.0}});
      // One far above all that stand behind it, in front of which the value is the same.
      CurveState peak = rising;
      peak.temperatures[static_cast<std::size_t>(point)] = 1e6;
      peak.values[static_cast<std::size_t>(point)] = 1000.0 + point;
      peak.values[static_cast<std::size_t>(point) - 1] = 1000.0 + point;
      const double belowTheLast = 10.0 * (points - 1) - 5.0;
      ExpectValues({{peak, belowTheLast, 1000.0 + point}});
      peak.temperatures[static_cast<std::size_t>(point)] = belowTheLast;
      ExpectValues({{peak, belowTheLast, 1000.0 + point}});
      // A temperature out of order, at each place behind the one where it belongs.
      for (int stray = point; stray < points - 1; ++stray) {
        CurveState state = rising;
        state.temperatures[static_cast<std::size_t>(stray)] = x - 5.0;
        ExpectValues({{state, x - 5.0, 1.0 * stray}});
      }
    }
  }
}

TEST(TemperatureCurve, EqualValuesNeedNoLine) {
  ExpectValues({
      {{2, {0.0, 10.0}, {7.0, 7.0}},                              5.0,    7.0},
      {{2, {0.1, 0.7}, {0.3, 0.3}},                               0.2,    0.3},
      {{3, {0.0, 10.0, 20.0}, {1.0, 7.0, 7.0}},                  15.0,    7.0},
      // The upper one of two zeros keeps its sign, and infinities have no difference.
      {{2, {0.0, 10.0}, {0.0, -0.0}},                             5.0,   -0.0},
      {{2, {0.0, 10.0}, {-0.0, 0.0}},                             5.0,    0.0},
      {{2, {0.0, 10.0}, {kInfinity, kInfinity}},                  5.0,    kInfinity},
      {{2, {0.0, 10.0}, {-kInfinity, -kInfinity}},                5.0,   -kInfinity},
      {{2, {0.0, kInfinity}, {7.0, 7.0}},                         5.0,    7.0},
      {{2, {-kInfinity, kInfinity}, {7.0, 7.0}},                  5.0,    7.0},
  });
}

TEST(TemperatureCurve, InfiniteTemperaturesAndValuesGoThroughTheArithmetic) {
  ExpectValues({
      {{2, {0.0, kInfinity}, {1.0, 2.0}},                         5.0,    kNaN},
      {{2, {0.0, kInfinity}, {1.0, 2.0}},                   kInfinity,    2.0},
      {{2, {0.0, kInfinity}, {1.0, 2.0}},                         0.0,    1.0},
      {{2, {-kInfinity, 10.0}, {1.0, 2.0}},                       5.0,    2.0},
      {{2, {-kInfinity, 10.0}, {1.0, 2.0}},                -kInfinity,    1.0},
      {{3, {0.0, kInfinity, 50.0}, {1.0, 2.0, 3.0}},        kInfinity,    3.0},
      {{2, {0.0, 10.0}, {kInfinity, 1.0}},                        5.0,    kInfinity},
      {{2, {0.0, 10.0}, {-kInfinity, 1.0}},                       5.0,   -kInfinity},
      {{2, {0.0, 10.0}, {1.0, kInfinity}},                        5.0,    kNaN},
      {{2, {0.0, 10.0}, {-kInfinity, kInfinity}},                 5.0,    kNaN},
  });
}

TEST(TemperatureCurve, WhatIsNotANumberComparesWithNothing) {
  ExpectValues({
      // the temperature asked for
      {{3, {0.0, kNaN, 20.0}, {1.0, 2.0, 3.0}},                  kNaN,    1.0},
      // the first temperature: nothing is greater
      {{3, {kNaN, 10.0, 20.0}, {1.0, 2.0, 3.0}},                  5.0,    1.0},
      {{3, {kNaN, 10.0, 20.0}, {1.0, 2.0, 3.0}},                 10.0,    1.0},
      {{3, {kNaN, 10.0, 20.0}, {1.0, 2.0, 3.0}},            kInfinity,    1.0},
      // one in the middle: skipped as an upper point, no help as a lower one
      {{4, {0.0, kNaN, 10.0, 20.0}, {1.0, 2.0, 3.0, 4.0}},        5.0,    kNaN},
      {{4, {0.0, kNaN, 10.0, 20.0}, {1.0, 3.0, 3.0, 4.0}},        5.0,    3.0},
      {{4, {0.0, kNaN, 10.0, 20.0}, {1.0, 2.0, 3.0, 4.0}},       10.0,    3.0},
      {{4, {0.0, kNaN, 10.0, 20.0}, {1.0, 2.0, 3.0, 4.0}},       15.0,    3.5},
      {{4, {0.0, kNaN, 10.0, 20.0}, {1.0, 2.0, 3.0, 4.0}},       20.0,    4.0},
      // the last one: nothing is at least that
      {{3, {0.0, 10.0, kNaN}, {1.0, 2.0, 3.0}},                   5.0,    1.5},
      {{3, {0.0, 10.0, kNaN}, {1.0, 2.0, 3.0}},                  10.0,    2.0},
      {{3, {0.0, 10.0, kNaN}, {1.0, 2.0, 3.0}},                   0.0,    1.0},
      // where no point is above, the last value holds
      {{3, {0.0, 10.0, kNaN}, {1.0, 2.0, 3.0}},                  15.0,    3.0},
      {{3, {0.0, 10.0, kNaN}, {1.0, 2.0, 3.0}},             kInfinity,    3.0},
      {{2, {0.0, kNaN}, {1.0, 2.0}},                              5.0,    2.0},
      {{3, {0.0, kNaN, kNaN}, {1.0, 2.0, 3.0}},                   5.0,    3.0},
      // a value
      {{2, {0.0, 10.0}, {kNaN, 1.0}},                             0.0,    kNaN},
      {{2, {0.0, 10.0}, {kNaN, 1.0}},                             5.0,    kNaN},
      {{2, {0.0, 10.0}, {kNaN, 1.0}},                            10.0,    1.0},
      {{2, {0.0, 10.0}, {1.0, kNaN}},                             5.0,    kNaN},
      {{2, {0.0, 10.0}, {1.0, kNaN}},                            10.0,    kNaN},
      {{2, {0.0, 10.0}, {kNaN, kNaN}},                            5.0,    kNaN},
      {{3, {0.0, 10.0, 20.0}, {1.0, 2.0, kNaN}},                  5.0,    1.5},
  });
}

TEST(TemperatureCurve, TheCountAndNotTheArraysSaysHowManyPointsThereAre) {
  const std::vector<double> x = {0.0, 10.0, 20.0, 30.0};
  const std::vector<double> y = {1.0, 2.0, 4.0, 8.0};
  ExpectValues({
      {{4, x, y}, 30.0, 8.0},   {{4, x, y}, 25.0, 6.0},   {{4, x, y}, 99.0, 8.0},
      {{3, x, y}, 30.0, 4.0},   {{3, x, y}, 25.0, 4.0},   {{3, x, y}, 15.0, 3.0},
      {{2, x, y}, 30.0, 2.0},   {{2, x, y}, 20.0, 2.0},   {{2, x, y},  5.0, 1.5},
      {{1, x, y}, 30.0, 1.0},   {{1, x, y}, 10.0, 1.0},   {{1, x, y}, -5.0, 1.0},
      {{0, x, y}, 30.0, 0.0},   {{0, x, y}, 10.0, 0.0},   {{0, x, y}, -5.0, 0.0},
  });
}

TEST(TemperatureCurve, ACountBeyondTheArraysIsWhatBothHold) {
  for (const int points : {4, 5, 1000, INT_MAX}) {
    ExpectValues({
        {{points, {0.0, 10.0, 20.0}, {1.0, 2.0, 4.0}},        15.0,    3.0},
        {{points, {0.0, 10.0, 20.0}, {1.0, 2.0, 4.0}},        20.0,    4.0},
        {{points, {0.0, 10.0, 20.0}, {1.0, 2.0, 4.0}},        25.0,    4.0},
        {{points, {0.0, 10.0, 20.0}, {1.0, 2.0}},             15.0,    2.0},
        {{points, {0.0, 10.0, 20.0}, {1.0, 2.0}},              5.0,    1.5},
        {{points, {0.0, 10.0}, {1.0, 2.0, 4.0}},              15.0,    2.0},
        {{points, {0.0, 10.0}, {1.0, 2.0, 4.0}},               5.0,    1.5},
        {{points, {0.0}, {1.0, 2.0, 4.0}},                    15.0,    1.0},
        {{points, {0.0, 10.0, 20.0}, {1.0}},                  15.0,    1.0},
        {{points, {0.0}, {1.0}},                              -5.0,    1.0},
        {{points, {}, {1.0, 2.0, 4.0}},                       15.0,    0.0},
        {{points, {0.0, 10.0, 20.0}, {}},                     15.0,    0.0},
        {{points, {}, {}},                                    15.0,    0.0},
    });
  }
  ExpectValues({
      {{3, {0.0, 10.0}, {1.0, 2.0, 4.0}},                     20.0,    2.0},
      {{2, {0.0, 10.0, 20.0}, {1.0}},                          5.0,    1.0},
      {{1, {}, {1.0}},                                         5.0,    1.0},
      {{1, {}, {-2.5, 7.0}},                                   5.0,   -2.5},
      {{2, {}, {1.0}},                                         5.0,    0.0},
      {{1, {5.0}, {}},                                         5.0,    0.0},
  });
}
// clang-format on

/// Temperatures 0, 8, 16 and so on, and their squares over 64: 0, 1, 4, 9.
CurveState Squares(int points) {
  CurveState state{points, {}, {}};
  for (int point = 0; point < points; ++point) {
    state.temperatures.push_back(8.0 * point);
    state.values.push_back(static_cast<double>(point) * point);
  }
  return state;
}

TEST(TemperatureCurve, EveryIntervalOfALongCurveIsFound) {
  const CurveState state = Squares(100);
  for (int point = 0; point < 100; ++point) {
    const double square = static_cast<double>(point) * point;
    ExpectValues({{state, 8.0 * point, square}});
    if (point < 99) {  // the next square is 2 * point + 1 away; all of this is exact
      const double eighth = (2.0 * point + 1.0) / 8.0;
      for (int step = 1; step < 8; ++step) {
        ExpectValues({{state, 8.0 * point + step, square + step * eighth}});
      }
    }
  }
  ExpectValues({{state, 792.0, 9801.0},
                {state, 793.0, 9801.0},
                {state, 1e9, 9801.0},
                {state, -1.0, 0.0},
                {state, kNaN, 0.0}});
}

}  // namespace
}  // namespace mqp::test
