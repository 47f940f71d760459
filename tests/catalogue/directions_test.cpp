#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <string_view>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/directions.h>

#include "catalogue_test_support.h"

namespace mqp::test {
namespace {

using Study = AnalysisType;
using Result = ResultType;

// X, Y, Z: one axis. A: all three. x, y, z, a: the same with the marker of principal values.
// v: X with a variant, else nothing.
// clang-format off
constexpr auto kDirections = std::to_array<ComponentLine>({
    // study                result                      0         1         2
    //                                                  01234567890123456789012345678
    {Study::Static,         Result::Displacement,      "XYZAXYZAXYZXYZA"},
    {Study::Static,         Result::Stress,            "XYZZYXaaaXXXvA"},
    {Study::Static,         Result::StressAlt,         "XYZZYXaaaXXXvA"},
    {Study::Static,         Result::Strain,            "XYZZYXXXXaaa"},
    {Study::Static,         Result::StrainAlt,         "XYZZYXXXXaaa"},
    {Study::Frequency,      Result::Displacement,      "XYZAXYZ"},
    {Study::Buckling,       Result::Displacement,      "XYZAXYZ"},
    {Study::Thermal,        Result::Thermal,           "XXYZAXYZAXX"},
    {Study::Stepped,        Result::Displacement,      "XYZAXYZAXYZXYZAXYZAXYZXYZAXYZ"},
    {Study::Stepped,        Result::Stress,            "XYZZYXaaaXXXvA"},
    {Study::Stepped,        Result::Strain,            "XYZZYXXX.aaa"},
    {Study::Stepped,        Result::StrainAlt,         "XYZZYXXX.aaa"},
    {Study::Stepped,        Result::Velocity,          "XYZAXYZ"},           // X from 7 on, without end
    {Study::Stepped,        Result::Acceleration,      "XYZAXYZ"},
    {Study::SteppedReduced, Result::Displacement,      "XYZAXYZAXYZXYZAXYZAXYZXYZAXYZ"},
    {Study::SteppedReduced, Result::Stress,            "XYZZYXaaaXXXvA"},
    {Study::SteppedReduced, Result::Strain,            "XYZZYXXX.aaa"},
    {Study::SteppedReduced, Result::StrainAlt,         "XYZZYXXX.aaa"},
    {Study::SteppedReduced, Result::Velocity,          "XYZAXYZ"},
    {Study::SteppedReduced, Result::Acceleration,      "XYZAXYZ"},
    {Study::Dynamic,        Result::Displacement,      "XYZAXYZAXYZXYZAX"},
    {Study::Dynamic,        Result::Stress,            "XYZZYXxyzXXX"},
    {Study::Dynamic,        Result::Strain,            "XYZZYXXXXxyz"},
    {Study::Dynamic,        Result::StrainAlt,         "XYZZYXXXXxyz"},
    {Study::Dynamic,        Result::Velocity,          "XYZAXYZ"},
    {Study::Dynamic,        Result::Acceleration,      "XYZAXYZ"},
    {Study::FlowImport,     Result::FlowVelocity,      "XYZAXYZA"},
    {Study::FlowImport,     Result::FlowPressure,      "XXXXX"},
    {Study::FlowImport,     Result::FlowFluidProperty, "XXXXXXX"},
    {Study::FlowImport,     Result::FlowTemperature,   "XXXYZAX"},
    {Study::FlowImport,     Result::FlowWallLoad,      "XYZAXYZ"},
    {Study::FlowImport,     Result::FlowHeatTransfer,  "XXXXXXXXXYZX"},
});
// clang-format on

/// The four numbers with a cell of the caller on each side, which nobody may touch.
using Direction = std::array<float, 6>;

constexpr float kUntouched = -7.25F;

Direction Axes(float x, float y, float z, float marker) {
  return {kUntouched, x, y, z, marker, kUntouched};
}

Direction Expected(char letter, int variant) {
  switch (letter) {
    case 'X': return Axes(1, 0, 0, 0);
    case 'Y': return Axes(0, 1, 0, 0);
    case 'Z': return Axes(0, 0, 1, 0);
    case 'A': return Axes(1, 1, 1, 0);
    case 'x': return Axes(1, 0, 0, 2);
    case 'y': return Axes(0, 1, 0, 2);
    case 'z': return Axes(0, 0, 1, 2);
    case 'a': return Axes(1, 1, 1, 2);
    case 'v': return variant != 0 ? Axes(1, 0, 0, 0) : Axes(0, 0, 0, 0);
    default: return Axes(0, 0, 0, 0);
  }
}

/// Velocities and accelerations have a direction without an upper bound of the component.
bool IsEndless(int analysisType, int resultType) {
  return (analysisType == 5 || analysisType == 6 || analysisType == 8) &&
         (resultType == 19 || resultType == 20);
}

char LetterAt(std::string_view line, bool isEndless, int component) {
  return isEndless && component > 6 ? 'X' : AnswerAt(line, component);
}

Direction Ask(int analysisType, int resultType, int component, int variant) {
  Direction dir = Axes(kUntouched, kUntouched, kUntouched, kUntouched);
  vekPostCommonGetComponentVectorDir(analysisType, resultType, component, variant, &dir[1]);
  return dir;
}

const Direction kNone = Axes(0, 0, 0, 0);
const Direction kX = Axes(1, 0, 0, 0);
const Direction kAll = Axes(1, 1, 1, 0);
const Direction kAllMarked = Axes(1, 1, 1, 2);

TEST(VectorDirection, IsAsListedForEveryCode) {
  Sweep sweep{"analysisType", "resultType", "component", "variant"};
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : kSweptCodes) {
      const std::string_view line = LineOf(kDirections, analysisType, resultType);
      const bool isEndless = IsEndless(analysisType, resultType);
      for (const int component : kSweptCodes) {
        const char letter = LetterAt(line, isEndless, component);
        for (const int variant : {0, 1, -1, INT_MIN}) {
          sweep.Check(Expected(letter, variant), Ask(analysisType, resultType, component, variant),
                      analysisType, resultType, component, variant);
        }
      }
    }
  }
}

TEST(VectorDirection, OfADisplacementResultantIsAllThreeAxes) {
  EXPECT_EQ(Ask(0, 1, 3, 0), kAll);
  EXPECT_EQ(Ask(0, 1, 15, 0), kNone);
}

TEST(VectorDirection, OfStressComponent12FollowsTheVariant) {
  for (const int analysisType : {0, 5, 6}) {
    EXPECT_EQ(Ask(analysisType, 2, 12, 1), kX) << "analysisType " << analysisType;
    EXPECT_EQ(Ask(analysisType, 2, 12, -1), kX) << "analysisType " << analysisType;
    EXPECT_EQ(Ask(analysisType, 2, 12, 0), kNone) << "analysisType " << analysisType;
  }
  EXPECT_EQ(Ask(0, 57, 12, 1), kX);
  EXPECT_EQ(Ask(0, 57, 12, 0), kNone);
  EXPECT_EQ(Ask(8, 2, 12, 1), kNone);
}

TEST(VectorDirection, OfAPrincipalStressIsOneAxisInADynamicStudyAndAllThreeElsewhere) {
  EXPECT_EQ(Ask(8, 2, 6, 0), Axes(1, 0, 0, 2));
  EXPECT_EQ(Ask(8, 2, 7, 0), Axes(0, 1, 0, 2));
  EXPECT_EQ(Ask(8, 2, 8, 0), Axes(0, 0, 1, 2));
  for (const int analysisType : {0, 5, 6}) {
    EXPECT_EQ(Ask(analysisType, 2, 7, 0), kAllMarked) << "analysisType " << analysisType;
  }
}

TEST(VectorDirection, OfAPrincipalStrainIsOneAxisInADynamicStudyAndAllThreeElsewhere) {
  for (const int resultType : {3, 22}) {
    EXPECT_EQ(Ask(8, resultType, 9, 0), Axes(1, 0, 0, 2)) << "resultType " << resultType;
    EXPECT_EQ(Ask(8, resultType, 10, 0), Axes(0, 1, 0, 2)) << "resultType " << resultType;
    EXPECT_EQ(Ask(8, resultType, 11, 0), Axes(0, 0, 1, 2)) << "resultType " << resultType;
    EXPECT_EQ(Ask(0, resultType, 10, 0), kAllMarked) << "resultType " << resultType;
    EXPECT_EQ(Ask(5, resultType, 10, 0), kAllMarked) << "resultType " << resultType;
  }
}

TEST(VectorDirection, OfVelocityAndAccelerationIsXForEveryComponentAboveSeven) {
  EXPECT_EQ(Ask(5, 19, 100, 0), kX);
  for (const int analysisType : {5, 6, 8}) {
    for (const int resultType : {19, 20}) {
      for (const int component : {0, 4, 7, 8, 9999, INT_MAX}) {
        EXPECT_EQ(Ask(analysisType, resultType, component, 0), kX)
            << "analysisType " << analysisType << ", resultType " << resultType << ", component "
            << component;
      }
    }
  }
}

TEST(VectorDirection, OfANegativeComponentIsNoneEvenOfAVelocity) {
  for (const int component : {-1, -100, INT_MIN}) {
    EXPECT_EQ(Ask(0, 1, component, 0), kNone) << component;
    EXPECT_EQ(Ask(0, 2, component, 1), kNone) << component;
    EXPECT_EQ(Ask(5, 19, component, 0), kNone) << component;
    EXPECT_EQ(Ask(8, 20, component, 0), kNone) << component;
  }
}

TEST(VectorDirection, OfAnUnknownStudyIsNone) {
  for (const int analysisType : {4, 7, 9, 11, -1, INT_MIN, INT_MAX}) {
    for (const int resultType : kSweptCodes) {
      EXPECT_EQ(Ask(analysisType, resultType, 0, 1), kNone)
          << "analysisType " << analysisType << ", resultType " << resultType;
    }
  }
}

TEST(VectorDirection, OfStrainEnergyIsXExceptInSteppedStudies) {
  for (const int resultType : {3, 22}) {
    EXPECT_EQ(Ask(0, resultType, 8, 0), kX) << "resultType " << resultType;
    EXPECT_EQ(Ask(8, resultType, 8, 0), kX) << "resultType " << resultType;
    EXPECT_EQ(Ask(5, resultType, 8, 0), kNone) << "resultType " << resultType;
    EXPECT_EQ(Ask(6, resultType, 8, 0), kNone) << "resultType " << resultType;
  }
}

TEST(VectorDirection, OfAnImportedPressureOrFluidPropertyIsXForEachComponent) {
  for (const int component : {0, 1, 2, 3, 4}) {
    EXPECT_EQ(Ask(10, 7, component, 0), kX) << component;
    EXPECT_EQ(Ask(10, 8, component, 0), kX) << component;
  }
  EXPECT_EQ(Ask(10, 7, 5, 0), kNone);
  EXPECT_EQ(Ask(10, 8, 6, 0), kX);
  EXPECT_EQ(Ask(10, 8, 7, 0), kNone);
}

TEST(VectorDirection, OfTheSecondStressExistsInAStaticStudyOnly) {
  EXPECT_EQ(Ask(0, 57, 0, 0), kX);
  for (const int analysisType : {5, 6, 8}) {
    EXPECT_EQ(Ask(analysisType, 57, 0, 0), kNone) << "analysisType " << analysisType;
  }
}

TEST(VectorDirection, OfABeamStressIsNoneInEveryStudy) {
  for (const int analysisType : kSweptCodes) {
    EXPECT_EQ(Ask(analysisType, 59, 0, 1), kNone) << "analysisType " << analysisType;
  }
}

TEST(VectorDirection, EndsWithTheLastListedComponent) {
  struct Row {
    int analysisType, resultType, last;
    Direction direction;
  };
  // clang-format off
  const auto kRows = std::to_array<Row>({
      // analysisType, resultType, last
      { 0,  1, 14, kAll},
      { 0,  2, 13, kAll},
      { 1,  1,  6, Axes(0, 0, 1, 0)},
      { 2,  1,  6, Axes(0, 0, 1, 0)},
      { 3,  5, 10, kX},
      { 5,  1, 28, Axes(0, 0, 1, 0)},
      { 6,  1, 28, Axes(0, 0, 1, 0)},
      { 8,  1, 15, kX},
      { 8,  2, 11, kX},
      {10,  6,  7, kAll},
      {10, 11, 11, kX},
  });
  // clang-format on
  for (const Row& row : kRows) {
    EXPECT_EQ(Ask(row.analysisType, row.resultType, row.last, 0), row.direction)
        << "analysisType " << row.analysisType << ", resultType " << row.resultType;
    EXPECT_EQ(Ask(row.analysisType, row.resultType, row.last + 1, 0), kNone)
        << "analysisType " << row.analysisType << ", resultType " << row.resultType;
  }
}

TEST(VectorDirection, IsAskedInVainWithANullArray) {
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : {1, 2, 5, 6, 19, 57, 100}) {
      for (const int component : {-1, 0, 3, 7, 12, 100}) {
        vekPostCommonGetComponentVectorDir(analysisType, resultType, component, 1, nullptr);
      }
    }
  }
  EXPECT_EQ(Ask(0, 1, 3, 0), kAll) << "and the next caller gets his answer";
}

}  // namespace
}  // namespace mqp::test
