#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstddef>
#include <ostream>
#include <span>
#include <string_view>
#include <vector>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/components.h>

#include "catalogue_test_support.h"

namespace mqp::test {
namespace {

using Study = AnalysisType;
using Result = ResultType;

/// Read before the first test runs, and so before any of them sets the flag.
const int kFlagAtStart = vekPostCommonGetActualFreqDispFlag();

// ---- counts -------------------------------------------------------------------------------

/// The options that a row of counts stands for.
enum class Choice { Any, NoExtra, Extra, ExtraAndMore, Plain, Chosen };

struct CountRow {
  Study study;
  Result result;
  Choice choice;
  int solid, unlisted, shell, mixed, mixedRotational, beam;
};

// clang-format off
constexpr auto kCounts = std::to_array<CountRow>({
    // study                result                     choice              solid  unlisted shell  mixed  rotational beam
    {Study::Static,         Result::Displacement,      Choice::Any,            8,      8,    15,     8,    15,    15},
    {Study::Static,         Result::Stress,            Choice::NoExtra,       12,     12,    12,    12,    12,    12},
    {Study::Static,         Result::Stress,            Choice::Extra,         14,     14,    14,    14,    14,    14},
    {Study::Static,         Result::Stress,            Choice::ExtraAndMore,  16,     16,    16,    16,    16,    16},
    {Study::Static,         Result::StressAlt,         Choice::NoExtra,       12,     12,    12,    12,    12,    12},
    {Study::Static,         Result::StressAlt,         Choice::Extra,         14,     14,    14,    14,    14,    14},
    {Study::Static,         Result::StressAlt,         Choice::ExtraAndMore,  16,     16,    16,    16,    16,    16},
    {Study::Static,         Result::Strain,            Choice::Any,           12,     12,    12,    12,    12,    12},
    {Study::Static,         Result::StrainAlt,         Choice::Any,           12,     12,    12,    12,    12,    12},
    {Study::Static,         Result::ResultType55,      Choice::Any,            4,      4,     4,     4,     4,     4},
    {Study::Static,         Result::ResultType18,      Choice::Any,            3,      3,     3,     3,     3,     3},
    {Study::Static,         Result::BeamStress,        Choice::Any,            7,      7,     7,     7,     7,     7},
    {Study::Frequency,      Result::Displacement,      Choice::Any,            4,      4,     4,     4,     4,     4},
    {Study::Buckling,       Result::Displacement,      Choice::Any,            4,      4,     7,     4,     7,     7},
    {Study::Thermal,        Result::Thermal,           Choice::Any,            9,      9,     9,     9,     9,     9},
    {Study::Stepped,        Result::Displacement,      Choice::Any,            8,      8,    15,     8,    15,    15},
    {Study::Stepped,        Result::Stress,            Choice::Any,           14,     14,    14,    14,    14,     7},
    {Study::Stepped,        Result::Strain,            Choice::Any,           12,     12,    12,    12,    12,    12},
    {Study::Stepped,        Result::StrainAlt,         Choice::Any,           12,     12,    12,    12,    12,    12},
    {Study::Stepped,        Result::Velocity,          Choice::Any,            4,      4,     4,     4,     4,     7},
    {Study::Stepped,        Result::Acceleration,      Choice::Any,            4,      4,     4,     4,     4,     7},
    {Study::Stepped,        Result::BeamStress,        Choice::Any,            7,      7,     7,     7,     7,     7},
    {Study::SteppedReduced, Result::Displacement,      Choice::Any,            4,      4,     4,     4,     4,     4},
    {Study::SteppedReduced, Result::Stress,            Choice::Any,           14,     14,    14,    14,    14,    14},
    {Study::SteppedReduced, Result::Strain,            Choice::Any,           12,     12,    12,    12,    12,    12},
    {Study::SteppedReduced, Result::StrainAlt,         Choice::Any,           12,     12,    12,    12,    12,    12},
    {Study::SteppedReduced, Result::Velocity,          Choice::Any,            4,      4,     4,     4,     4,     4},
    {Study::SteppedReduced, Result::Acceleration,      Choice::Any,            4,      4,     4,     4,     4,     4},
    {Study::Dynamic,        Result::Displacement,      Choice::Any,            8,     15,    15,    15,    15,    15},
    {Study::Dynamic,        Result::Stress,            Choice::Plain,         12,     12,    12,    12,    12,     5},
    {Study::Dynamic,        Result::Stress,            Choice::Chosen,        13,     13,    13,    13,    13,     5},
    {Study::Dynamic,        Result::Strain,            Choice::Any,           12,     12,    12,    12,    12,    12},
    {Study::Dynamic,        Result::StrainAlt,         Choice::Any,           12,     12,    12,    12,    12,    12},
    {Study::Dynamic,        Result::Velocity,          Choice::Any,            4,      7,     7,     7,     7,     7},
    {Study::Dynamic,        Result::Acceleration,      Choice::Any,            4,      7,     7,     7,     7,     7},
    {Study::Dynamic,        Result::BeamStress,        Choice::Any,            5,      5,     5,     5,     5,     5},
    {Study::FlowImport,     Result::FlowVelocity,      Choice::Any,            8,      8,     8,     8,     8,     8},
    {Study::FlowImport,     Result::FlowPressure,      Choice::Any,            5,      5,     5,     5,     5,     5},
    {Study::FlowImport,     Result::FlowFluidProperty, Choice::Any,            7,      7,     7,     7,     7,     7},
    {Study::FlowImport,     Result::FlowTemperature,   Choice::Any,            7,      7,     7,     7,     7,     7},
    {Study::FlowImport,     Result::FlowWallLoad,      Choice::Any,            7,      7,     7,     7,     7,     7},
    {Study::FlowImport,     Result::FlowHeatTransfer,  Choice::Any,           12,     12,    12,    12,    12,    12},
});
// clang-format on

struct CountOptions {
  int extraStress = 0;
  int meshKind = 0;
  int ignored = 0;
  int moreStress = 0;
  int meshFlags = 0;
  int dynamicOption = 0;
  int dynamicChoice = 0;
};

bool IsMeant(Choice choice, const CountOptions& options) {
  const bool extra = options.extraStress != 0;
  const bool more = options.moreStress != 0;
  const bool chosen = options.dynamicOption == 1 && options.dynamicChoice == 7;
  switch (choice) {
    case Choice::Any: return true;
    case Choice::NoExtra: return !extra;
    case Choice::Extra: return extra && !more;
    case Choice::ExtraAndMore: return extra && more;
    case Choice::Plain: return !chosen;
    case Choice::Chosen: return chosen;
  }
  return false;
}

int CountOnMesh(const CountRow& row, int meshKind, int meshFlags) {
  switch (meshKind) {
    case 0: return row.solid;
    case 2: return row.shell;
    case 3: return (meshFlags & 2) != 0 || (meshFlags & 4) != 0 ? row.mixedRotational : row.mixed;
    case 4: return row.beam;
    default: return row.unlisted;
  }
}

int ExpectedCount(int analysisType, std::span<const CountRow> rows, const CountOptions& options) {
  if (analysisType == 7) {
    return 4;  // of every result type, even of codes that name none
  }
  for (const CountRow& row : rows) {
    if (IsMeant(row.choice, options)) {
      return CountOnMesh(row, options.meshKind, options.meshFlags);
    }
  }
  return 0;
}

int Count(int analysisType, int resultType, const CountOptions& options) {
  return vekPostCommonGetComponentTotal(
      analysisType, resultType, options.extraStress, options.meshKind, options.ignored,
      options.moreStress, options.meshFlags, options.dynamicOption, options.dynamicChoice);
}

constexpr auto kSweptFlags =
    std::to_array<int>({0, 1, 2, 3, 4, 5, 6, 7, 8, -1, ~6, INT_MIN, INT_MAX});
constexpr auto kSweptSwitches = std::to_array<int>({0, 1, -1, INT_MIN});

class CountSweep {
 public:
  void Check(int analysisType, int resultType, CountOptions options) {
    // The argument without effect changes from case to case.
    options.ignored = kSweptMeshKinds[m_turn++ % kSweptMeshKinds.size()];
    m_sweep.Check(ExpectedCount(analysisType, RowsFor(analysisType, resultType), options),
                  Count(analysisType, resultType, options), analysisType, resultType,
                  options.extraStress, options.meshKind, options.ignored, options.moreStress,
                  options.meshFlags, options.dynamicOption, options.dynamicChoice);
  }

 private:
  std::span<const CountRow> RowsFor(int analysisType, int resultType) {
    if (analysisType != m_analysisType || resultType != m_resultType) {
      m_rows = RowsOf(kCounts, analysisType, resultType);
      m_analysisType = analysisType;
      m_resultType = resultType;
    }
    return m_rows;
  }

  Sweep m_sweep{"analysisType", "resultType", "extraStress",   "meshKind",     "ignored",
                "moreStress",   "meshFlags",  "dynamicOption", "dynamicChoice"};
  std::size_t m_turn = 0;
  int m_analysisType = 0;
  int m_resultType = 0;
  std::span<const CountRow> m_rows = RowsOf(kCounts, 0, 0);
};

TEST(ComponentTotal, IsAsListedForEveryPairOfCodesAndEveryMesh) {
  // extraStress, moreStress, dynamicOption, dynamicChoice
  constexpr auto kChoices = std::to_array<std::array<int, 4>>(
      {{0, 0, 0, 0}, {1, 0, 1, 7}, {0, 1, 1, 6}, {1, 1, 0, 7}, {-1, 2, 2, 7}, {2, -1, 1, 8}});
  CountSweep sweep;
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : kSweptCodes) {
      for (const int meshKind : kSweptMeshKinds) {
        for (const int meshFlags : {0, 2, 4, -1}) {
          for (const auto& [extra, more, option, choice] : kChoices) {
            sweep.Check(analysisType, resultType,
                        {extra, meshKind, 0, more, meshFlags, option, choice});
          }
        }
      }
    }
  }
}

TEST(ComponentTotal, IsAsListedForEveryOptionValueAndItsNeighbours) {
  CountSweep sweep;
  const auto checkSwitches = [&](int analysisType, int resultType, int meshKind, int meshFlags) {
    for (const int extra : kSweptSwitches) {
      for (const int more : kSweptSwitches) {
        for (const int option : {0, 1, 2, -1, 257}) {
          for (const int choice : {-1, 0, 1, 6, 7, 8, 263, INT_MAX}) {
            sweep.Check(analysisType, resultType,
                        {extra, meshKind, 0, more, meshFlags, option, choice});
          }
        }
      }
    }
  };
  for (const int analysisType : {0, 1, 2, 3, 5, 6, 7, 8, 10}) {
    for (const int resultType : {1, 2, 3, 5, 6, 11, 18, 19, 20, 22, 55, 57, 59}) {
      for (const int meshKind : kSweptMeshKinds) {
        for (const int meshFlags : kSweptFlags) {
          checkSwitches(analysisType, resultType, meshKind, meshFlags);
        }
      }
    }
  }
}

TEST(ComponentTotal, OfAMixedMeshFollowsItsRotationalElements) {
  EXPECT_EQ(vekPostCommonGetComponentTotal(0, 1, 0, 3, 0, 0, 0, 0, 0), 8);
  EXPECT_EQ(vekPostCommonGetComponentTotal(0, 1, 0, 3, 0, 0, 2, 0, 0), 15);
  EXPECT_EQ(vekPostCommonGetComponentTotal(0, 1, 0, 3, 0, 0, 4, 0, 0), 15);
  EXPECT_EQ(vekPostCommonGetComponentTotal(0, 1, 0, 3, 0, 0, 6, 0, 0), 15);
  EXPECT_EQ(vekPostCommonGetComponentTotal(0, 1, 0, 3, 0, 0, 1, 0, 0), 8);
  EXPECT_EQ(vekPostCommonGetComponentTotal(0, 1, 0, 3, 0, 0, 8, 0, 0), 8);
}

TEST(ComponentTotal, CountsMeshFlagsInStaticBucklingAndSteppedDisplacementOnly) {
  EXPECT_EQ(Count(0, 1, {.meshKind = 3, .meshFlags = 2}), 15);
  EXPECT_EQ(Count(2, 1, {.meshKind = 3, .meshFlags = 2}), 7);
  EXPECT_EQ(Count(5, 1, {.meshKind = 3, .meshFlags = 2}), 15);
  EXPECT_EQ(Count(1, 1, {.meshKind = 3, .meshFlags = 2}), 4);
  EXPECT_EQ(Count(6, 1, {.meshKind = 3, .meshFlags = 2}), 4);
  EXPECT_EQ(Count(8, 1, {.meshKind = 3, .meshFlags = 0}), 15);
  EXPECT_EQ(Count(5, 19, {.meshKind = 3, .meshFlags = 6}), 4);
}

TEST(ComponentTotal, IgnoresMeshFlagsOfAMeshThatIsNotMixed) {
  EXPECT_EQ(Count(0, 1, {.meshKind = 0, .meshFlags = 6}), 8);
  EXPECT_EQ(Count(0, 1, {.meshKind = 1, .meshFlags = 6}), 8);
  EXPECT_EQ(Count(0, 1, {.meshKind = 2, .meshFlags = 0}), 15);
  EXPECT_EQ(Count(0, 1, {.meshKind = 4, .meshFlags = 0}), 15);
}

TEST(ComponentTotal, OfADynamicStudyTakesEveryMeshButSolidForRotational) {
  for (const int meshKind : {1, 2, 3, 4}) {
    EXPECT_EQ(Count(8, 1, {.meshKind = meshKind}), 15) << "meshKind " << meshKind;
    EXPECT_EQ(Count(8, 19, {.meshKind = meshKind}), 7) << "meshKind " << meshKind;
    EXPECT_EQ(Count(8, 20, {.meshKind = meshKind}), 7) << "meshKind " << meshKind;
  }
  EXPECT_EQ(Count(8, 1, {}), 8);
  EXPECT_EQ(Count(8, 19, {}), 4);
  EXPECT_EQ(Count(8, 20, {}), 4);
}

TEST(ComponentTotal, OfASteppedVelocityIsSevenOnABeamMeshOnly) {
  for (const int meshKind : {0, 1, 2, 3}) {
    EXPECT_EQ(Count(5, 19, {.meshKind = meshKind}), 4) << "meshKind " << meshKind;
    EXPECT_EQ(Count(5, 20, {.meshKind = meshKind}), 4) << "meshKind " << meshKind;
  }
  EXPECT_EQ(Count(5, 19, {.meshKind = 4}), 7);
  EXPECT_EQ(Count(5, 20, {.meshKind = 4}), 7);
  EXPECT_EQ(Count(6, 19, {.meshKind = 4}), 4);
}

TEST(ComponentTotal, OfADynamicStressNeedsTheOptionAndTheChoiceForThirteen) {
  EXPECT_EQ(Count(8, 2, {.dynamicOption = 1, .dynamicChoice = 7}), 13);
  EXPECT_EQ(Count(8, 2, {.dynamicOption = 1, .dynamicChoice = 6}), 12);
  EXPECT_EQ(Count(8, 2, {.dynamicOption = 2, .dynamicChoice = 7}), 12);
  EXPECT_EQ(Count(8, 2, {.dynamicOption = 0, .dynamicChoice = 7}), 12);
  EXPECT_EQ(Count(8, 2, {}), 12);
}

TEST(ComponentTotal, OfADynamicStressOnABeamMeshIsFiveWhateverTheOptions) {
  EXPECT_EQ(Count(8, 2, {.meshKind = 4}), 5);
  EXPECT_EQ(Count(8, 2, {.meshKind = 4, .dynamicOption = 1, .dynamicChoice = 7}), 5);
  EXPECT_EQ(Count(8, 2, {.extraStress = 1, .meshKind = 4, .moreStress = 1}), 5);
}

TEST(ComponentTotal, OfAStaticStressGrowsByExtraAndThenByMoreStress) {
  EXPECT_EQ(Count(0, 2, {}), 12);
  EXPECT_EQ(Count(0, 2, {.extraStress = 1}), 14);
  EXPECT_EQ(Count(0, 2, {.extraStress = 1, .moreStress = 1}), 16);
  EXPECT_EQ(Count(0, 2, {.extraStress = 0, .moreStress = 1}), 12);
}

TEST(ComponentTotal, IsZeroForTheStudiesThatDoNotExist) {
  for (const int analysisType : {4, 9, 11, -1}) {
    for (const int resultType : kSweptCodes) {
      EXPECT_EQ(Count(analysisType, resultType, {}), 0)
          << "analysisType " << analysisType << ", resultType " << resultType;
    }
  }
}

TEST(ComponentTotal, IsFourForEveryResultOfAFatigueStudy) {
  for (const int resultType : kSweptCodes) {
    EXPECT_EQ(Count(7, resultType, {}), 4) << "resultType " << resultType;
  }
}

TEST(ComponentTotal, CountsTheSecondStrainAsStrainInEveryStudyAndTheSecondStressInOne) {
  for (const int analysisType : {0, 5, 6, 8}) {
    EXPECT_EQ(Count(analysisType, 22, {}), 12) << "analysisType " << analysisType;
  }
  EXPECT_EQ(Count(0, 57, {}), 12);
  EXPECT_EQ(Count(0, 57, {.extraStress = 1}), 14);
  EXPECT_EQ(Count(0, 57, {.extraStress = 1, .moreStress = 1}), 16);
  for (const int analysisType : {5, 6, 8}) {
    EXPECT_EQ(Count(analysisType, 57, {}), 0) << "analysisType " << analysisType;
  }
}

// ---- data types ---------------------------------------------------------------------------

// clang-format off
constexpr auto kDataTypes = std::to_array<ComponentLine>({
    // study                result                      0         1         2
    //                                                  01234567890123456789012345
    {Study::Static,         Result::Displacement,      "111111111111111"},
    {Study::Static,         Result::Stress,            "1111111112...1"},
    {Study::Static,         Result::StressAlt,         "1111111112...1"},
    {Study::Static,         Result::Strain,            "111111...111"},
    {Study::Static,         Result::StrainAlt,         "111111...111"},
    {Study::Static,         Result::ResultType55,      "1111"},
    {Study::Static,         Result::ResultType18,      "111"},
    {Study::Frequency,      Result::Displacement,      "1111"},
    {Study::Buckling,       Result::Displacement,      "1111"},
    {Study::Thermal,        Result::Thermal,           ".11111111"},
    {Study::Stepped,        Result::Displacement,      "11111111111111111111111111"},
    {Study::Stepped,        Result::Stress,            "1111111112...1"},
    {Study::Stepped,        Result::Strain,            "111111...111"},
    {Study::Stepped,        Result::StrainAlt,         "111111...111"},
    {Study::Stepped,        Result::Velocity,          "1111111"},
    {Study::Stepped,        Result::Acceleration,      "1111111"},
    {Study::SteppedReduced, Result::Displacement,      "11111111111111111111111111"},
    {Study::SteppedReduced, Result::Stress,            "1111111112...1"},
    {Study::SteppedReduced, Result::Strain,            "111111...111"},
    {Study::SteppedReduced, Result::StrainAlt,         "111111...111"},
    {Study::SteppedReduced, Result::Velocity,          "1111111"},
    {Study::SteppedReduced, Result::Acceleration,      "1111111"},
    {Study::Dynamic,        Result::Displacement,      "111111111111111"},
    {Study::Dynamic,        Result::Stress,            "1111111112"},       // and component 100
    {Study::Dynamic,        Result::Strain,            "111111...111"},
    {Study::Dynamic,        Result::StrainAlt,         "111111...111"},
    {Study::Dynamic,        Result::Velocity,          "1111111"},
    {Study::Dynamic,        Result::Acceleration,      "1111111"},
    {Study::FlowImport,     Result::FlowVelocity,      "...1...1"},
    {Study::FlowImport,     Result::FlowTemperature,   ".....1"},
    {Study::FlowImport,     Result::FlowWallLoad,      "...1"},
});

struct MemberRow {
  Study study;
  Result result;
  int component;
  std::array<int, 3> members;
};

constexpr auto kMembers = std::to_array<MemberRow>({
    // study                result                     component  members
    {Study::Static,         Result::Displacement,          3,     { 0,  1,  2}},
    {Study::Static,         Result::Displacement,          7,     { 4,  5,  6}},
    {Study::Static,         Result::Displacement,         14,     {11, 12, 13}},
    {Study::Static,         Result::Stress,                9,     { 6,  7,  8}},
    {Study::Static,         Result::StressAlt,             9,     { 6,  7,  8}},
    {Study::Static,         Result::ResultType55,          0,     { 1,  1,  3}},  // the second repeats the first
    {Study::Frequency,      Result::Displacement,          3,     { 0,  1,  2}},
    {Study::Buckling,       Result::Displacement,          3,     { 0,  1,  2}},
    {Study::Thermal,        Result::Thermal,               4,     { 1,  2,  3}},
    {Study::Thermal,        Result::Thermal,               8,     { 5,  6,  7}},
    {Study::Stepped,        Result::Displacement,          3,     { 0,  1,  2}},
    {Study::Stepped,        Result::Displacement,          7,     { 4,  5,  6}},
    {Study::Stepped,        Result::Displacement,         14,     {11, 12, 13}},
    {Study::Stepped,        Result::Displacement,         18,     {15, 16, 17}},
    {Study::Stepped,        Result::Displacement,         25,     {22, 23, 24}},
    {Study::Stepped,        Result::Stress,                9,     { 6,  7,  8}},
    {Study::SteppedReduced, Result::Displacement,          3,     { 0,  1,  2}},
    {Study::SteppedReduced, Result::Displacement,          7,     { 4,  5,  6}},
    {Study::SteppedReduced, Result::Displacement,         14,     {11, 12, 13}},
    {Study::SteppedReduced, Result::Displacement,         18,     {15, 16, 17}},
    {Study::SteppedReduced, Result::Displacement,         25,     {22, 23, 24}},
    {Study::SteppedReduced, Result::Stress,                9,     { 6,  7,  8}},
    {Study::Dynamic,        Result::Displacement,          3,     { 0,  1,  2}},
    {Study::Dynamic,        Result::Displacement,          7,     { 4,  5,  6}},
    {Study::Dynamic,        Result::Displacement,         14,     {11, 12, 13}},
    {Study::Dynamic,        Result::Stress,                9,     { 6,  7,  8}},
    {Study::Dynamic,        Result::Stress,              100,     { 6,  7,  8}},
    {Study::FlowImport,     Result::FlowVelocity,          3,     { 0,  1,  2}},
    {Study::FlowImport,     Result::FlowVelocity,          7,     { 4,  5,  6}},
    {Study::FlowImport,     Result::FlowTemperature,       5,     { 2,  3,  4}},
    {Study::FlowImport,     Result::FlowWallLoad,          3,     { 0,  1,  2}},
});
// clang-format on

/// The answer and what stands in the caller's array afterwards, with a cell on each side of it.
struct DataType {
  int type = 0;
  std::array<int, 5> cells{};

  bool operator==(const DataType&) const = default;
  friend void PrintTo(const DataType& answer, std::ostream* out) {
    *out << "type " << answer.type << ", array " << testing::PrintToString(answer.cells);
  }
};

constexpr int kUntouched = -777;
constexpr std::array<int, 5> kUntouchedCells{kUntouched, kUntouched, kUntouched, kUntouched,
                                             kUntouched};

DataType WithMembers(int type, std::array<int, 3> members) {
  return {type, {kUntouched, members[0], members[1], members[2], kUntouched}};
}

DataType AskDataType(int analysisType, int resultType, int component, int forceDirectional) {
  std::array<int, 5> cells = kUntouchedCells;
  const int type = vekPostCommonGetComponentDataType(analysisType, resultType, component, &cells[1],
                                                     forceDirectional);
  return {type, cells};
}

/// The studies and results for which `forceDirectional` has an effect.
bool CanBeForced(int analysisType, int resultType) {
  switch (analysisType) {
    case 0: return resultType == 1 || resultType == 18 || resultType == 55;
    case 1:
    case 2: return resultType == 1;
    default: return false;
  }
}

/// What is expected of the components of one result in one study.
class DataTypesOfResult {
 public:
  DataTypesOfResult(int analysisType, int resultType)
      : m_line(LineOf(kDataTypes, analysisType, resultType)),
        m_members(RowsOf(kMembers, analysisType, resultType)),
        m_canBeForced(CanBeForced(analysisType, resultType)),
        m_hasComponent100(analysisType == 8 && resultType == 2) {}

  [[nodiscard]] DataType Expected(int component, int forceDirectional) const {
    const int type = ExpectedType(component, forceDirectional);
    for (const MemberRow& row : m_members) {
      if (row.component == component) {
        return WithMembers(type, row.members);
      }
    }
    return {type, kUntouchedCells};
  }

 private:
  [[nodiscard]] int ExpectedType(int component, int forceDirectional) const {
    if (forceDirectional != 0 && m_canBeForced) {
      return 1;
    }
    if (component == 100 && m_hasComponent100) {
      return 2;
    }
    const char answer = AnswerAt(m_line, component);
    return answer == kNothing ? 0 : answer - '0';
  }

  std::string_view m_line;
  std::span<const MemberRow> m_members;
  bool m_canBeForced;
  bool m_hasComponent100;
};

TEST(ComponentDataType, IsAsListedForEveryCode) {
  Sweep sweep{"analysisType", "resultType", "component", "forceDirectional"};
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : kSweptCodes) {
      const DataTypesOfResult result(analysisType, resultType);
      for (const int component : kSweptCodes) {
        for (const int force : {0, 1, -1, INT_MIN}) {
          sweep.Check(result.Expected(component, force),
                      AskDataType(analysisType, resultType, component, force), analysisType,
                      resultType, component, force);
        }
      }
    }
  }
}

TEST(ComponentDataType, IsTheSameForANullArrayForEveryCode) {
  Sweep sweep{"analysisType", "resultType", "component", "forceDirectional"};
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : kSweptCodes) {
      const DataTypesOfResult result(analysisType, resultType);
      for (const int component : kSweptCodes) {
        for (const int force : {0, 1}) {
          const int got = vekPostCommonGetComponentDataType(analysisType, resultType, component,
                                                            nullptr, force);
          sweep.Check(result.Expected(component, force).type, got, analysisType, resultType,
                      component, force);
        }
      }
    }
  }
}

TEST(ComponentDataType, OfAResultantNamesItsMembers) {
  EXPECT_EQ(AskDataType(0, 1, 3, 0), WithMembers(1, {0, 1, 2}));
  EXPECT_EQ(AskDataType(0, 1, 7, 0), WithMembers(1, {4, 5, 6}));
  EXPECT_EQ(AskDataType(0, 1, 14, 0), WithMembers(1, {11, 12, 13}));
}

TEST(ComponentDataType, OfAnAxisComponentLeavesTheArrayAlone) {
  EXPECT_EQ(AskDataType(0, 1, 0, 0), (DataType{1, kUntouchedCells}));
  EXPECT_EQ(AskDataType(0, 1, 10, 0), (DataType{1, kUntouchedCells}));
}

TEST(ComponentDataType, OfTheEquivalentStressIsBasedOnThePrincipals) {
  for (const int analysisType : {0, 5, 6, 8}) {
    EXPECT_EQ(AskDataType(analysisType, 2, 9, 0), WithMembers(2, {6, 7, 8}))
        << "analysisType " << analysisType;
  }
}

TEST(ComponentDataType, OfDynamicComponent100IsBasedOnThePrincipalsAlthoughBeyondTheCount) {
  EXPECT_EQ(AskDataType(8, 2, 100, 0), WithMembers(2, {6, 7, 8}));
  EXPECT_EQ(AskDataType(0, 2, 100, 0), (DataType{0, kUntouchedCells}));
  EXPECT_EQ(AskDataType(5, 2, 100, 0), (DataType{0, kUntouchedCells}));
}

TEST(ComponentDataType, IsTheSameWithANullArrayThatIsNotWritten) {
  EXPECT_EQ(vekPostCommonGetComponentDataType(0, 1, 3, nullptr, 0), 1);
  EXPECT_EQ(vekPostCommonGetComponentDataType(0, 2, 9, nullptr, 0), 2);
  EXPECT_EQ(vekPostCommonGetComponentDataType(0, 55, 0, nullptr, 1), 1);
  EXPECT_EQ(vekPostCommonGetComponentDataType(3, 5, 0, nullptr, 0), 0);
}

TEST(ComponentDataType, RepeatsTheFirstMemberOfResultType55AsItsSecond) {
  EXPECT_EQ(AskDataType(0, 55, 0, 0), WithMembers(1, {1, 1, 3}));
}

TEST(ComponentDataType, OfAnImportedFlowIsDirectionalForResultantsOnly) {
  for (const int axis : {0, 1, 2}) {
    EXPECT_EQ(AskDataType(10, 6, axis, 0), (DataType{0, kUntouchedCells})) << "velocity " << axis;
    EXPECT_EQ(AskDataType(10, 6, axis + 4, 0), (DataType{0, kUntouchedCells})) << axis + 4;
    EXPECT_EQ(AskDataType(10, 9, axis + 2, 0), (DataType{0, kUntouchedCells})) << "gradient";
    EXPECT_EQ(AskDataType(10, 10, axis, 0), (DataType{0, kUntouchedCells})) << "force " << axis;
  }
  EXPECT_EQ(AskDataType(10, 6, 3, 0), WithMembers(1, {0, 1, 2}));
  EXPECT_EQ(AskDataType(10, 6, 7, 0), WithMembers(1, {4, 5, 6}));
  EXPECT_EQ(AskDataType(10, 9, 5, 0), WithMembers(1, {2, 3, 4}));
  EXPECT_EQ(AskDataType(10, 10, 3, 0), WithMembers(1, {0, 1, 2}));
}

TEST(ComponentDataType, OfATemperatureAndOfHeatIsScalar) {
  EXPECT_EQ(AskDataType(3, 5, 0, 0), (DataType{0, kUntouchedCells}));
  EXPECT_EQ(AskDataType(3, 5, 9, 0), (DataType{0, kUntouchedCells}));
  EXPECT_EQ(AskDataType(3, 5, 10, 0), (DataType{0, kUntouchedCells}));
}

TEST(ComponentDataType, OfAVelocityResultantNamesNoMembers) {
  for (const int analysisType : {5, 6, 8}) {
    EXPECT_EQ(AskDataType(analysisType, 19, 3, 0), (DataType{1, kUntouchedCells}));
    EXPECT_EQ(AskDataType(analysisType, 20, 3, 0), (DataType{1, kUntouchedCells}));
  }
}

TEST(ComponentDataType, OfSteppedDisplacementsKnowsResultantsBeyondTheCount) {
  EXPECT_EQ(AskDataType(5, 1, 18, 0), WithMembers(1, {15, 16, 17}));
  EXPECT_EQ(AskDataType(6, 1, 25, 0), WithMembers(1, {22, 23, 24}));
  EXPECT_EQ(AskDataType(5, 1, 26, 0), (DataType{0, kUntouchedCells}));
  EXPECT_EQ(AskDataType(0, 1, 18, 0), (DataType{0, kUntouchedCells}));
  EXPECT_EQ(AskDataType(8, 1, 18, 0), (DataType{0, kUntouchedCells}));
}

TEST(ComponentDataType, OfAnIndexOutsideTheListIsScalar) {
  EXPECT_EQ(AskDataType(0, 1, -1, 0), (DataType{0, kUntouchedCells}));
  EXPECT_EQ(AskDataType(0, 1, INT_MIN, 0), (DataType{0, kUntouchedCells}));
  EXPECT_EQ(AskDataType(0, 1, 15, 0), (DataType{0, kUntouchedCells}));
  EXPECT_EQ(AskDataType(1, 1, 4, 0), (DataType{0, kUntouchedCells}));
  EXPECT_EQ(AskDataType(2, 1, 4, 0), (DataType{0, kUntouchedCells}));
}

TEST(ComponentDataType, IsDirectionalWhateverTheIndexWhenForced) {
  for (const int component : {-1, INT_MIN, 15, 100, INT_MAX}) {
    for (const int analysisType : {0, 1, 2}) {
      EXPECT_EQ(AskDataType(analysisType, 1, component, 1), (DataType{1, kUntouchedCells}))
          << "analysisType " << analysisType << ", component " << component;
    }
    EXPECT_EQ(AskDataType(0, 18, component, 1), (DataType{1, kUntouchedCells})) << component;
    EXPECT_EQ(AskDataType(0, 55, component, 1), (DataType{1, kUntouchedCells})) << component;
  }
}

TEST(ComponentDataType, NamesTheMembersOfListedResultantsAlsoWhenForced) {
  EXPECT_EQ(AskDataType(0, 1, 14, 1), WithMembers(1, {11, 12, 13}));
  EXPECT_EQ(AskDataType(1, 1, 3, 1), WithMembers(1, {0, 1, 2}));
  EXPECT_EQ(AskDataType(2, 1, 7, 1), (DataType{1, kUntouchedCells}));
  EXPECT_EQ(AskDataType(0, 55, 0, 1), WithMembers(1, {1, 1, 3}));
}

TEST(ComponentDataType, IsNotForcedInAnyOtherStudyOrResult) {
  EXPECT_EQ(AskDataType(5, 1, 26, 1), (DataType{0, kUntouchedCells}));
  EXPECT_EQ(AskDataType(8, 1, 15, 1), (DataType{0, kUntouchedCells}));
  EXPECT_EQ(AskDataType(0, 2, 10, 1), (DataType{0, kUntouchedCells}));
  EXPECT_EQ(AskDataType(0, 2, 9, 1), WithMembers(2, {6, 7, 8}));
  EXPECT_EQ(AskDataType(10, 6, 0, 1), (DataType{0, kUntouchedCells}));
}

// ---- defaults -----------------------------------------------------------------------------

struct DefaultRow {
  Study study;
  Result result;
  int usual, withDynamicOption, onBeamMesh;
};

// clang-format off
constexpr auto kDefaults = std::to_array<DefaultRow>({
    // study                result                     usual  dynamicOption 1  beam mesh
    {Study::Static,         Result::Displacement,        3,        3,            3},
    {Study::Static,         Result::Stress,              9,        9,            9},
    {Study::Static,         Result::Strain,              6,        6,            6},
    {Study::Static,         Result::StrainAlt,           6,        6,            6},
    {Study::Frequency,      Result::Displacement,        3,        3,            3},
    {Study::Buckling,       Result::Displacement,        3,        3,            3},
    {Study::Stepped,        Result::Displacement,        3,        3,            3},
    {Study::Stepped,        Result::Stress,              9,        9,            0},
    {Study::Stepped,        Result::Strain,              6,        6,            6},
    {Study::Stepped,        Result::StrainAlt,           6,        6,            6},
    {Study::Stepped,        Result::Velocity,            3,        3,            3},
    {Study::Stepped,        Result::Acceleration,        3,        3,            3},
    {Study::SteppedReduced, Result::Displacement,        3,        3,            3},
    {Study::SteppedReduced, Result::Stress,              9,        9,            0},
    {Study::SteppedReduced, Result::Strain,              6,        6,            6},
    {Study::SteppedReduced, Result::StrainAlt,           6,        6,            6},
    {Study::SteppedReduced, Result::Velocity,            3,        3,            3},
    {Study::SteppedReduced, Result::Acceleration,        3,        3,            3},
    {Study::Dynamic,        Result::Displacement,        3,        3,            3},
    {Study::Dynamic,        Result::Stress,              9,      100,            3},
    {Study::Dynamic,        Result::Strain,              6,        6,            6},
    {Study::Dynamic,        Result::StrainAlt,           6,        6,            6},
    {Study::Dynamic,        Result::Velocity,            3,        3,            3},
    {Study::Dynamic,        Result::Acceleration,        3,        3,            3},
    {Study::FlowImport,     Result::FlowVelocity,        3,        3,            3},
    {Study::FlowImport,     Result::FlowWallLoad,        3,        3,            3},
});
// clang-format on

int ExpectedDefault(int analysisType, std::span<const DefaultRow> rows, int meshKind,
                    int dynamicOption) {
  if (analysisType == 7) {
    return 1;  // of every result type, even of codes that name none
  }
  if (rows.empty()) {
    return 0;
  }
  if (meshKind == 4) {
    return rows.front().onBeamMesh;
  }
  return dynamicOption == 1 ? rows.front().withDynamicOption : rows.front().usual;
}

TEST(ComponentDefault, IsAsListedForEveryCodeAndOption) {
  Sweep sweep{"analysisType", "resultType", "ignored", "meshKind", "dynamicOption"};
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : kSweptCodes) {
      const std::span<const DefaultRow> rows = RowsOf(kDefaults, analysisType, resultType);
      ASSERT_LE(rows.size(), 1U);
      for (const int ignored : {0, 1, 4, -1}) {
        for (const int meshKind : kSweptMeshKinds) {
          for (const int option : {-1, 0, 1, 2, 257, INT_MIN, INT_MAX}) {
            sweep.Check(ExpectedDefault(analysisType, rows, meshKind, option),
                        vekPostCommonGetComponentDefault(analysisType, resultType, ignored,
                                                         meshKind, option),
                        analysisType, resultType, ignored, meshKind, option);
          }
        }
      }
    }
  }
}

TEST(ComponentDefault, OfADynamicStressWithItsOptionIs100) {
  EXPECT_EQ(vekPostCommonGetComponentDefault(8, 2, 0, 0, 1), 100);
  EXPECT_EQ(vekPostCommonGetComponentDefault(8, 2, 0, 0, 0), 9);
  EXPECT_EQ(vekPostCommonGetComponentDefault(8, 2, 0, 0, 2), 9);
}

TEST(ComponentDefault, OfADynamicStressOnABeamMeshIsThreeWhateverTheOption) {
  EXPECT_EQ(vekPostCommonGetComponentDefault(8, 2, 0, 4, 0), 3);
  EXPECT_EQ(vekPostCommonGetComponentDefault(8, 2, 0, 4, 1), 3);
}

TEST(ComponentDefault, OfASteppedStressOnABeamMeshIsZero) {
  EXPECT_EQ(vekPostCommonGetComponentDefault(5, 2, 0, 4, 0), 0);
  EXPECT_EQ(vekPostCommonGetComponentDefault(6, 2, 0, 4, 0), 0);
  EXPECT_EQ(vekPostCommonGetComponentDefault(5, 2, 0, 2, 0), 9);
  EXPECT_EQ(vekPostCommonGetComponentDefault(0, 2, 0, 4, 0), 9);
}

TEST(ComponentDefault, OfTheSecondStressIsZeroAlthoughItCountsLikeStress) {
  EXPECT_EQ(vekPostCommonGetComponentDefault(0, 57, 0, 0, 0), 0);
}

TEST(ComponentDefault, OfAThermalStudyIsZeroAndOfAFatigueStudyOneForEveryResult) {
  for (const int resultType : kSweptCodes) {
    EXPECT_EQ(vekPostCommonGetComponentDefault(3, resultType, 0, 0, 0), 0) << resultType;
    EXPECT_EQ(vekPostCommonGetComponentDefault(7, resultType, 0, 0, 0), 1) << resultType;
  }
}

// ---- envelope bounds ----------------------------------------------------------------------

// clang-format off
constexpr auto kBounds = std::to_array<ComponentLine>({
    // study                result                 0         1
    //                                             012345678901234     s: 2 with stressComponent12
    {Study::Stepped,        Result::Displacement, "333233323333332"},
    {Study::Stepped,        Result::Stress,       "333333333222s"},
    {Study::Stepped,        Result::Strain,       "333333223333"},
    {Study::Stepped,        Result::StrainAlt,    "333333223333"},
    {Study::Stepped,        Result::Velocity,     "33323332"},
    {Study::Stepped,        Result::Acceleration, "33323332"},
    {Study::SteppedReduced, Result::Displacement, "333233323333332"},
    {Study::SteppedReduced, Result::Stress,       "333333333222s"},
    {Study::SteppedReduced, Result::Strain,       "333333223333"},
    {Study::SteppedReduced, Result::StrainAlt,    "333333223333"},
    {Study::SteppedReduced, Result::Velocity,     "33323332"},
    {Study::SteppedReduced, Result::Acceleration, "33323332"},
    {Study::Dynamic,        Result::Displacement, "333233323333332"},
    {Study::Dynamic,        Result::Stress,       "333333333222"},
    {Study::Dynamic,        Result::Strain,       "333333222"},
    {Study::Dynamic,        Result::StrainAlt,    "333333222"},
    {Study::Dynamic,        Result::Velocity,     "33323332"},
    {Study::Dynamic,        Result::Acceleration, "33323332"},
});
// clang-format on

/// Of every result type in a `Thermal` study, even of codes that name none.
constexpr std::string_view kThermalBounds = "3333233323";

int ExpectedBounds(std::string_view line, int component, int stressComponent12) {
  switch (AnswerAt(line, component)) {
    case '3': return 3;
    case '2': return 2;
    case 's': return stressComponent12 != 0 ? 2 : 0;
    default: return 0;
  }
}

TEST(EnvelopeBounds, AreAsListedForEveryCode) {
  Sweep sweep{"analysisType", "resultType", "component", "stressComponent12"};
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : kSweptCodes) {
      const std::string_view line =
          analysisType == 3 ? kThermalBounds : LineOf(kBounds, analysisType, resultType);
      for (const int component : kSweptCodes) {
        for (const int component12 : {0, 1, -1, INT_MIN}) {
          sweep.Check(
              ExpectedBounds(line, component, component12),
              vekPostCommonGetEnvelopBoundTotal(analysisType, resultType, component, component12),
              analysisType, resultType, component, component12);
        }
      }
    }
  }
}

TEST(EnvelopeBounds, OfSteppedStressComponent12FollowItsSwitch) {
  EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(5, 2, 12, 1), 2);
  EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(6, 2, 12, -1), 2);
  EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(5, 2, 12, 0), 0);
  EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(8, 2, 12, 1), 0);
}

TEST(EnvelopeBounds, OfStrainComponent8AreThreeInASteppedStudyAndTwoInADynamicOne) {
  EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(5, 3, 8, 0), 3);
  EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(6, 22, 8, 0), 3);
  EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(8, 3, 8, 0), 2);
  EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(8, 3, 9, 0), 0);
}

TEST(EnvelopeBounds, OfAThermalStudyAreThoseOfTheComponentWhateverTheResult) {
  for (const int resultType : {-1, 0, 1, 5, 100, INT_MAX}) {
    EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(3, resultType, 0, 0), 3) << resultType;
    EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(3, resultType, 4, 0), 2) << resultType;
    EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(3, resultType, 9, 0), 3) << resultType;
  }
}

TEST(EnvelopeBounds, DoNotExistForHeatEnergyAndForStaticResults) {
  EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(3, 5, 10, 0), 0);
  EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(0, 1, 0, 0), 0);
  EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(0, 2, 9, 1), 0);
}

TEST(EnvelopeBounds, DoNotExistForANegativeComponent) {
  for (const int component : {-1, INT_MIN}) {
    EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(5, 2, component, 1), 0);
    EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(8, 1, component, 0), 0);
    EXPECT_EQ(vekPostCommonGetEnvelopBoundTotal(3, 5, component, 0), 0);
  }
}

// ---- reference geometry -------------------------------------------------------------------

// clang-format off
constexpr auto kReferences = std::to_array<ComponentLine>({
    // study                result                 0         1         2
    //                                             01234567890123456789012345678     r: not on a beam mesh
    {Study::Static,         Result::Displacement, "+++.+++.+++++++"},
    {Study::Static,         Result::Stress,       "++++++"},
    {Study::Static,         Result::Strain,       "++++++"},
    {Study::Static,         Result::StrainAlt,    "++++++"},
    {Study::Frequency,      Result::Displacement, "+++"},
    {Study::Buckling,       Result::Displacement, "+++"},
    {Study::Thermal,        Result::Thermal,      ".+++.+++"},
    {Study::Stepped,        Result::Displacement, "+++.+++.+++++++++++++++++++++"},
    {Study::Stepped,        Result::Stress,       "rrrrrr"},
    {Study::Stepped,        Result::Strain,       "++++++"},
    {Study::Stepped,        Result::StrainAlt,    "++++++"},
    {Study::Stepped,        Result::Velocity,     "+++.+++"},
    {Study::Stepped,        Result::Acceleration, "+++.+++"},
    {Study::SteppedReduced, Result::Displacement, "+++.+++.+++++++++++++++++++++"},
    {Study::SteppedReduced, Result::Stress,       "rrrrrr"},
    {Study::SteppedReduced, Result::Strain,       "++++++"},
    {Study::SteppedReduced, Result::StrainAlt,    "++++++"},
    {Study::SteppedReduced, Result::Velocity,     "+++.+++"},
    {Study::SteppedReduced, Result::Acceleration, "+++.+++"},
    {Study::Dynamic,        Result::Displacement, "+++.+++.++++++"},
    {Study::Dynamic,        Result::Stress,       "++++++"},
    {Study::Dynamic,        Result::Strain,       "++++++"},
    {Study::Dynamic,        Result::StrainAlt,    "++++++"},
    {Study::Dynamic,        Result::Velocity,     "+++.+++"},
    {Study::Dynamic,        Result::Acceleration, "+++.+++"},
});
// clang-format on

int ExpectedReference(std::string_view line, int component, int meshKind) {
  switch (AnswerAt(line, component)) {
    case '+': return 1;
    case 'r': return meshKind != 4 ? 1 : 0;
    default: return 0;
  }
}

void SweepReferences(Sweep& sweep, int analysisType, int resultType,
                     std::span<const int> meshKinds) {
  const bool isEveryIndex = analysisType == 0 && resultType == 55;
  const std::string_view line = LineOf(kReferences, analysisType, resultType);
  for (const int component : kSweptCodes) {
    for (const int meshKind : meshKinds) {
      sweep.Check(isEveryIndex ? 1 : ExpectedReference(line, component, meshKind),
                  vekPostCommonIsReferenceAvailable(analysisType, resultType, component, meshKind),
                  analysisType, resultType, component, meshKind);
    }
  }
}

TEST(ReferenceAvailability, IsAsListedForEveryCode) {
  constexpr auto kSolidAndBeam = std::to_array<int>({0, 4});
  Sweep sweep{"analysisType", "resultType", "component", "meshKind"};
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : kSweptCodes) {
      SweepReferences(sweep, analysisType, resultType, kSolidAndBeam);
    }
  }
}

TEST(ReferenceAvailability, IsAsListedForEveryMeshKind) {
  Sweep sweep{"analysisType", "resultType", "component", "meshKind"};
  for (const int analysisType : {0, 1, 2, 3, 5, 6, 7, 8, 10}) {
    for (const int resultType : {1, 2, 3, 5, 19, 20, 22, 55, 57, 59}) {
      SweepReferences(sweep, analysisType, resultType, kSweptMeshKinds);
    }
  }
}

TEST(ReferenceAvailability, OfResultType55IsGivenForEveryIndex) {
  for (const int component : {INT_MIN, -1, 0, 3, 4, 100, INT_MAX}) {
    EXPECT_EQ(vekPostCommonIsReferenceAvailable(0, 55, component, 0), 1) << component;
    EXPECT_EQ(vekPostCommonIsReferenceAvailable(5, 55, component, 0), 0) << component;
  }
}

TEST(ReferenceAvailability, OfTheResultantReactionMomentIsMissingInADynamicStudyOnly) {
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(0, 1, 14, 0), 1);
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(5, 1, 14, 0), 1);
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(6, 1, 14, 0), 1);
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(8, 1, 14, 0), 0);
}

TEST(ReferenceAvailability, OfTheFurtherSteppedResultantsIsGiven) {
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(5, 1, 18, 0), 1);
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(5, 1, 25, 0), 1);
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(5, 1, 28, 0), 1);
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(5, 1, 29, 0), 0);
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(0, 1, 18, 0), 0);
}

TEST(ReferenceAvailability, OfAStressOnABeamMeshIsMissingInSteppedStudiesOnly) {
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(5, 2, 0, 4), 0);
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(6, 2, 5, 4), 0);
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(5, 2, 0, 3), 1);
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(0, 2, 0, 4), 1);
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(8, 2, 5, 4), 1);
}

TEST(ReferenceAvailability, OfADisplacementResultantIsMissing) {
  for (const int analysisType : {0, 1, 2, 5, 6, 8}) {
    EXPECT_EQ(vekPostCommonIsReferenceAvailable(analysisType, 1, 3, 0), 0) << analysisType;
    EXPECT_EQ(vekPostCommonIsReferenceAvailable(analysisType, 1, 7, 0), 0) << analysisType;
  }
}

TEST(ReferenceAvailability, OfANegativeComponentIsMissing) {
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(0, 1, -1, 0), 0);
  EXPECT_EQ(vekPostCommonIsReferenceAvailable(5, 1, INT_MIN, 0), 0);
}

// ---- studies that have a result -----------------------------------------------------------

/// The studies of a result in the order of the user's choices, one digit each.
std::string_view StudiesOf(int resultType) {
  switch (resultType) {
    case 1: return "0123586";
    case 2:
    case 3: return "0586";
    case 5: return "3";
    case 15: return "1";
    case 18:
    case 55: return "0";
    case 19:
    case 20: return "8";
    case 21: return "2";
    case 59: return "05";
    default: return "";
  }
}

std::vector<int> ExpectedStudies(int resultType) {
  std::vector<int> studies;
  for (const char digit : StudiesOf(resultType)) {
    studies.push_back(digit - '0');
  }
  return studies;
}

std::vector<int> Contents(const CArray<int, int>& list) {
  std::vector<int> contents;
  for (int index = 0; index < list.GetSize(); ++index) {
    contents.push_back(list[index]);
  }
  return contents;
}

TEST(AvailableStudies, AreAsListedForEveryResultTypeAndReplaceWhatTheListHeld) {
  Sweep sweep{"resultType", "ignored"};
  for (const int resultType : kSweptCodes) {
    for (const int ignored : kSweptCodes) {
      CArray<int, int> list;
      list.Add(-5);
      list.Add(ignored);
      const int answer = vekPostCommonGetAvailableAnalysisType(resultType, ignored, list);
      sweep.Check(1, answer, resultType, ignored);
      sweep.Check(ExpectedStudies(resultType), Contents(list), resultType, ignored);
    }
  }
}

TEST(AvailableStudies, ClearAListThatHeldValuesEvenForAnUnknownResult) {
  CArray<int, int> list;
  list.Add(17);
  list.Add(4);
  EXPECT_EQ(vekPostCommonGetAvailableAnalysisType(14, 0, list), 1);
  EXPECT_TRUE(list.IsEmpty());
}

TEST(AvailableStudies, OfADisplacementEndWithTheReducedStudyBehindTheDynamicOne) {
  CArray<int, int> list;
  EXPECT_EQ(vekPostCommonGetAvailableAnalysisType(1, 0, list), 1);
  EXPECT_EQ(Contents(list), (std::vector<int>{0, 1, 2, 3, 5, 8, 6}));
}

TEST(AvailableStudies, DoNotAgreeWithTheCountsEverywhere) {
  CArray<int, int> list;
  EXPECT_EQ(vekPostCommonGetAvailableAnalysisType(19, 0, list), 1);
  EXPECT_EQ(Contents(list), std::vector<int>{8});
  EXPECT_EQ(Count(5, 19, {}), 4) << "counted in a study that the list leaves out";
  EXPECT_EQ(Count(3, 1, {}), 0) << "not counted in a study that the list names";
}

TEST(FirstAvailableStudy, IsAsListedForEveryResultType) {
  Sweep sweep{"resultType", "ignored"};
  for (const int resultType : kSweptCodes) {
    for (const int ignored : kSweptCodes) {
      const std::string_view studies = StudiesOf(resultType);
      const int expected = studies.empty() ? -1 : studies.front() - '0';
      sweep.Check(expected, vekPostCommonGetFirstAvailableAnalysisType(resultType, ignored),
                  resultType, ignored);
    }
  }
}

TEST(FirstAvailableStudy, OfEachListedResultIsThisOne) {
  struct Row {
    Result result;
    int study;
  };
  // clang-format off
  constexpr Row kRows[] = {
      {Result::Displacement,   0},
      {Result::Stress,         0},
      {Result::Strain,         0},
      {Result::ResultType18,   0},
      {Result::ResultType55,   0},
      {Result::BeamStress,     0},
      {Result::Thermal,        3},
      {Result::ModeFrequency,  1},
      {Result::Velocity,       8},
      {Result::Acceleration,   8},
      {Result::BucklingResult, 2},
  };
  // clang-format on
  for (const Row& row : kRows) {
    EXPECT_EQ(vekPostCommonGetFirstAvailableAnalysisType(Code(row.result), 0), row.study)
        << "resultType " << Code(row.result);
  }
}

TEST(FirstAvailableStudy, DoesNotExistForTheSecondStrainAndStress) {
  EXPECT_EQ(vekPostCommonGetFirstAvailableAnalysisType(22, 0), -1);
  EXPECT_EQ(vekPostCommonGetFirstAvailableAnalysisType(57, 0), -1);
}

// ---- the display flag ---------------------------------------------------------------------

TEST(ActualFrequencyDisplay, IsOffUntilItIsSet) {
  EXPECT_EQ(kFlagAtStart, 0);
}

TEST(ActualFrequencyDisplay, KeepsAnyValueUnchanged) {
  const ActualFrequencyFlag restoring(0);
  for (const int value : {1, 0, 2, -1, 256, 9999, INT_MIN, INT_MAX}) {
    vekPostCommonSetActualFreqDispFlag(value);
    EXPECT_EQ(vekPostCommonGetActualFreqDispFlag(), value);
    EXPECT_EQ(vekPostCommonGetActualFreqDispFlag(), value) << "reading does not consume it";
  }
}

TEST(ActualFrequencyDisplay, HasNoEffectOnCountsAndDefaults) {
  for (const int value : {0, 1, 2}) {
    const ActualFrequencyFlag flag(value);
    EXPECT_EQ(Count(1, 1, {}), 4) << "flag " << value;
    EXPECT_EQ(Count(2, 1, {.meshKind = 2}), 7) << "flag " << value;
    EXPECT_EQ(vekPostCommonGetComponentDefault(1, 1, 0, 0, 0), 3) << "flag " << value;
    EXPECT_EQ(vekPostCommonGetComponentDataType(2, 1, 3, nullptr, 0), 1) << "flag " << value;
  }
}

}  // namespace
}  // namespace mqp::test
