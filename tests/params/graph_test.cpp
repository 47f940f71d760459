#include <algorithm>
#include <climits>
#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>
#include <mqPostCommon/catalogue/components.h>
#include <mqPostCommon/params/graph.h>

#include "params/record_test_support.h"

namespace mqp::test {
namespace {

static_assert(std::has_virtual_destructor_v<CmqPostGraphParam>);
static_assert(std::is_copy_constructible_v<CmqPostGraphParam>);
static_assert(std::is_copy_assignable_v<CmqPostGraphParam>);

/// What a graph starts with where it depends on the arguments.
struct Start {
  int analysisType;
  int resultType;
  int resultOption;
  int yQuantityType;
  int yComponent;
};

/// Sets every member to its default but for the string and the map that `ConstructInit` leaves.
void SetDefaults(CmqPostGraphParam& graph, const Start& start) {
  graph.m_nAnalysisType = start.analysisType;
  graph.m_nResultType = start.resultType;
  graph.m_nHost3 = 1;
  graph.m_nResultOption = start.resultOption;
  graph.m_nHost5[0] = 0;
  graph.m_nHost5[1] = 0;
  graph.m_nHost6 = 1;
  graph.m_nHost7[0] = 0;
  graph.m_nHost7[1] = 0;
  graph.m_XAxis.m_nQuantityType = 14;
  graph.m_XAxis.m_nComponent = 0;
  graph.m_XAxis.m_nUnit = 0;
  graph.m_XAxis.m_nSensor = -1;
  graph.m_YAxis.m_nQuantityType = start.yQuantityType;
  graph.m_YAxis.m_nComponent = start.yComponent;
  graph.m_YAxis.m_nUnit = 0;
  graph.m_YAxis.m_nSensor = -1;
  for (int& value : graph.m_nHost16) {
    value = -1;
  }
  for (int& value : graph.m_nHost17) {
    value = 0;
  }
  for (CString& text : graph.m_strHost18) {
    text = CString();
  }
  graph.m_nHost19 = -1;
  graph.m_strHost20 = CString();
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) {
      graph.m_ViewMatrix[row][column] = row == column ? 1.0 : 0.0;
    }
  }
  graph.m_nHost22[0] = 1;
  graph.m_nHost22[1] = 0;
  graph.m_nHost22[2] = 0;
  graph.m_nDynamicOption = 0;
  graph.m_nHost24 = 0;
  graph.m_nHost25 = 1;
  graph.m_dHost26[0] = 0.0;
  graph.m_dHost26[1] = 0.0;
  graph.m_nHost27 = 1;
  graph.m_nYUnitFlag = 1;
  graph.m_nHost29[0] = 1;
  graph.m_nHost29[1] = 1;
  graph.m_nHost30 = 0;
  graph.m_nHost31 = 0;
  graph.m_nFrequencyResponseFlag = 0;
  graph.m_nFrequencyResponseMode = -1;
  for (int& value : graph.m_nHost34) {
    value = 0;
  }
  graph.m_dHost35 = 0.0;
  graph.m_nHost37[0] = 0;
  graph.m_nHost37[1] = 0;
  graph.m_n64Host37 = 0;
  graph.m_nHost39 = 0;
}

/// A new graph as it must be, made out of one in which every member is something else.
CmqPostGraphParam NewGraph(const Start& start) {
  CmqPostGraphParam graph = FilledGraph(7);
  SetDefaults(graph, start);
  graph.m_strHost36 = CString();
  graph.m_mapHost38.clear();
  return graph;
}

constexpr Start kDefaultStart = {5, 2, 0, 2, 9};

struct StartRow {
  int analysisType;
  int resultType;
  int resultOption;
  int meshKind;
  int dynamicOption;
  Start start;
};

// clang-format off
constexpr StartRow kStarts[] = {
  // analysis  result  option  mesh  dynamic    analysis  result  option  Y type  Y component
  {         5,      2,      0,    0,      -1, {        5,      2,      0,      2,      9}},
  {         0,      1,      0,    0,       0, {        0,      1,      0,      1,      3}},
  {         0,      2,      3,    0,       0, {        0,      2,      3,      2,      9}},
  {         0,      3,     -1,    0,       0, {        0,      3,     -1,      1,      6}},
  {         0,     13,      0,    0,       0, {        0,      2,      0,      2,      9}},
  {         5,     13,      7,    4,       0, {        5,      2,      7,      2,      0}},
  {         6,     13,      0,    2,       1, {        6,      2,      0,      2,      9}},
  {         8,     13,      2,    0,       1, {        8,      2,      2,      2,    100}},
  {         8,     13,      2,    4,       1, {        8,      2,      2,      2,      3}},
  {         8,      2,      0,    0,       1, {        8,      2,      0,      2,    100}},
  {         8,      2,      0,    0,       2, {        8,      2,      0,      2,      9}},
  {         8,      2,      0,    4,       2, {        8,      2,      0,      2,      3}},
  {         8,      1,      0,    0,       1, {        8,      1,      0,      1,      3}},
  {         8,     19,      0,    4,       1, {        8,     19,      0,      1,      3}},
  {         5,     20,      0,    0,       0, {        5,     20,      0,      1,      3}},
  {         5,      2,      0,    3,       0, {        5,      2,      0,      2,      9}},
  {         7,     52,      0,    0,       0, {        7,     52,      0,      1,      1}},
  {         7,     12,      0,    0,       0, {        7,     12,      0,      1,      1}},
  {         7,     13,      0,    0,       0, {        7,      2,      0,      2,      1}},
  {         1,      1,      0,    0,       0, {        1,      1,      0,      1,      3}},
  {         3,      5,      0,    0,       0, {        3,      5,      0,      1,      0}},
  {         3,     13,      0,    0,       0, {        3,      2,      0,      2,      0}},
  {        10,      6,      0,    0,       0, {       10,      6,      0,      1,      3}},
  {         8,     63,      0,    0,       1, {        8,     63,      0,      1,      0}},
  {         8,     12,      0,    0,       1, {        8,     12,      0,      1,      0}},
  {         8,     14,      0,    0,       1, {        8,     14,      0,      1,      0}},
  {         0,     57,      0,    0,       0, {        0,     57,      0,      1,      0}},
  {         4,      2,      0,    0,       0, {        4,      2,      0,      2,      0}},
  {   INT_MIN, INT_MAX, INT_MIN, INT_MAX, INT_MIN, {INT_MIN, INT_MAX, INT_MIN, 1,      0}},
};
// clang-format on

std::string Trace(const StartRow& row) {
  return "(" + std::to_string(row.analysisType) + ", " + std::to_string(row.resultType) + ", " +
         std::to_string(row.resultOption) + ", " + std::to_string(row.meshKind) + ", " +
         std::to_string(row.dynamicOption) + ")";
}

TEST(Graph, ANewGraphShowsTheEquivalentStressOfASteppedStudy) {
  const CmqPostGraphParam graph;
  EXPECT_EQ(Differences(graph, NewGraph(kDefaultStart)), "");
  EXPECT_EQ(graph.m_nAnalysisType, 5);
  EXPECT_EQ(graph.m_nResultType, 2);
  EXPECT_EQ(graph.m_XAxis.m_nQuantityType, 14);
  EXPECT_EQ(graph.m_YAxis.m_nQuantityType, 2);
  EXPECT_EQ(graph.m_YAxis.m_nComponent, 9);
  EXPECT_EQ(graph.GetResultGraphType(), 13);
  EXPECT_EQ(graph.GetFolderName(), CString(MQ_TEXT("Response")));
}

TEST(Graph, ANewGraphOfAResultStartsOnItsDefaultComponent) {
  for (const StartRow& row : kStarts) {
    const CmqPostGraphParam graph(row.analysisType, row.resultType, row.resultOption, row.meshKind,
                                  row.dynamicOption);
    EXPECT_EQ(Differences(graph, NewGraph(row.start)), "") << Trace(row);
  }
}

TEST(Graph, AFilledGraphStartsAnewButKeepsAStringAndTheMap) {
  for (const StartRow& row : kStarts) {
    CmqPostGraphParam graph = FilledGraph(1);
    CmqPostGraphParam expected = FilledGraph(1);
    SetDefaults(expected, row.start);

    graph.ConstructInit(row.analysisType, row.resultType, row.resultOption, row.meshKind,
                        row.dynamicOption);
    EXPECT_EQ(Differences(graph, expected), "") << Trace(row);
    EXPECT_FALSE(graph.m_strHost36.IsEmpty());
    EXPECT_EQ(graph.m_mapHost38.size(), 2U);
  }
}

TEST(Graph, TheValuesOfThisTestDifferInEveryMember) {
  CmqPostGraphParam one = FilledGraph(1);
  const CmqPostGraphParam other = FilledGraph(2);
  int members = 0;
  VisitMembers(one, [&members](const char*, int, auto&) { ++members; });
  const std::string differences = Differences(one, other);
  EXPECT_EQ(std::count(differences.begin(), differences.end(), '\n'), members);
}

// These fill their graphs in place, so that no copy goes into what is expected of one.

TEST(Graph, ACopyHasEveryMemberOfItsSource) {
  CmqPostGraphParam expected;
  FillWithDistinctValues(expected, 1);
  CmqPostGraphParam source;
  FillWithDistinctValues(source, 1);

  const CmqPostGraphParam copy(source);
  EXPECT_EQ(Differences(copy, expected), "");
  EXPECT_EQ(Differences(source, expected), "");
}

TEST(Graph, AnAssignedGraphHasEveryMemberOfItsSource) {
  CmqPostGraphParam expected;
  FillWithDistinctValues(expected, 1);
  CmqPostGraphParam source;
  FillWithDistinctValues(source, 1);
  CmqPostGraphParam target;
  FillWithDistinctValues(target, 2);

  CmqPostGraphParam& result = target = source;
  EXPECT_EQ(&result, &target);
  EXPECT_EQ(Differences(target, expected), "");
  EXPECT_EQ(Differences(source, expected), "");
}

TEST(Graph, AssigningANewGraphEmptiesTheStringsAndTheMap) {
  CmqPostGraphParam target;
  FillWithDistinctValues(target, 1);
  target = CmqPostGraphParam();
  EXPECT_EQ(Differences(target, NewGraph(kDefaultStart)), "");
}

TEST(Graph, CopiesAreIndependentOfTheirSource) {
  CmqPostGraphParam expected;
  FillWithDistinctValues(expected, 1);
  CmqPostGraphParam changed;
  FillWithDistinctValues(changed, 3);

  CmqPostGraphParam source;
  FillWithDistinctValues(source, 1);
  CmqPostGraphParam copy(source);
  CmqPostGraphParam assigned;
  assigned = source;

  FillWithDistinctValues(source, 3);
  EXPECT_EQ(Differences(copy, expected), "");
  EXPECT_EQ(Differences(assigned, expected), "");

  FillWithDistinctValues(copy, 4);
  FillWithDistinctValues(assigned, 5);
  EXPECT_EQ(Differences(source, changed), "");
}

TEST(Graph, TheEntriesOfTheMapAreCopiedAndNotShared) {
  CmqPostGraphParam source;
  source.m_mapHost38[7] = MQ_TEXT("seven");
  CmqPostGraphParam copy(source);
  CmqPostGraphParam assigned;
  assigned.m_mapHost38[8] = MQ_TEXT("eight");
  assigned = source;

  source.m_mapHost38[7] = MQ_TEXT("changed");
  source.m_mapHost38.erase(7);
  EXPECT_EQ(Show(copy.m_mapHost38), "{7: \"seven\" (5 units); }");
  EXPECT_EQ(Show(assigned.m_mapHost38), "{7: \"seven\" (5 units); }");
}

TEST(Graph, AGraphAssignedToItselfStaysAsItIs) {
  CmqPostGraphParam expected;
  FillWithDistinctValues(expected, 1);
  CmqPostGraphParam graph;
  FillWithDistinctValues(graph, 1);
  const CmqPostGraphParam& alias = graph;
  graph = alias;
  EXPECT_EQ(Differences(graph, expected), "");
}

TEST(Graph, AMovedGraphHasEveryMember) {
  CmqPostGraphParam expected;
  FillWithDistinctValues(expected, 1);
  CmqPostGraphParam source;
  FillWithDistinctValues(source, 1);
  const CmqPostGraphParam moved(std::move(source));
  EXPECT_EQ(Differences(moved, expected), "");
}

struct KindRow {
  int analysisType;
  int resultType;
  int sensor;
  int frequencyResponseFlag;
  int damage;
  int transient;
  int graphType;
  const char* folder;
};

// clang-format off
constexpr KindRow kKinds[] = {
  // analysis  result  sensor  response    damage  transient  type  folder
  {         7,     52,     -1,        0,        1,         0,   52, "Damage Matrix Charts"},
  {         7,     52,      0,        1,        1,         1,   52, "Damage Matrix Charts"},
  {         7,     52,      0,        0,        1,         1,   52, "Damage Matrix Charts"},
  {         7,     52,     -1,        1,        1,         0,   52, "Damage Matrix Charts"},
  {         7,     51,     -1,        0,        0,         0,   13, "Response"},
  {         7,     53,     -1,        0,        0,         0,   13, "Response"},
  {         7,     12,     -1,        0,        0,         0,   13, "Response"},
  {         6,     52,     -1,        0,        0,         0,   13, "Response"},
  {         8,     52,     -1,        0,        0,         0,   13, "Response"},
  {        52,      7,     -1,        0,        0,         0,   13, "Response"},
  {         5,      2,      0,        0,        0,         1,   61, "Response"},
  {         5,      2,      0,        1,        0,         1,   61, "Response"},
  {         5,      2,      1,        0,        0,         1,   61, "Response"},
  {         5,      2,     -2,        0,        0,         1,   61, "Response"},
  {         5,      2, INT_MIN,       0,        0,         1,   61, "Response"},
  {         5,      2, INT_MAX,       0,        0,         1,   61, "Response"},
  {         5,      2,     -1,        1,        0,         0,   63, "Response"},
  {         5,      2,     -1,        2,        0,         0,   13, "Response"},
  {         5,      2,     -1,       -1,        0,         0,   13, "Response"},
  {         5,      2,     -1,  INT_MIN,        0,         0,   13, "Response"},
  {         5,     61,     -1,        0,        0,         0,   13, "Graph Transient Sensors"},
  {         5,     61,     -1,        1,        0,         0,   63, "Graph Transient Sensors"},
  {         7,     61,      3,        0,        0,         1,   61, "Graph Transient Sensors"},
  {         5,     60,     -1,        0,        0,         0,   13, "Response"},
  {         5,     62,     -1,        0,        0,         0,   13, "Response"},
  {         8,     63,     -1,        0,        0,         0,   13, "Frequency Response Graph"},
  {         8,     63,      3,        1,        0,         1,   61, "Frequency Response Graph"},
  {         7,     63,     -1,        1,        0,         0,   63, "Frequency Response Graph"},
  {         8,     64,     -1,        0,        0,         0,   13, "Response"},
  {   INT_MAX, INT_MIN,    -1,        0,        0,         0,   13, "Response"},
};
// clang-format on

TEST(Graph, TheKindComesFromTheSensorAndTheFlagAndTheFolderFromTheResultType) {
  for (const KindRow& row : kKinds) {
    SCOPED_TRACE("analysis type " + std::to_string(row.analysisType) + ", result type " +
                 std::to_string(row.resultType) + ", sensor " + std::to_string(row.sensor) +
                 ", flag " + std::to_string(row.frequencyResponseFlag));
    CmqPostGraphParam graph;
    graph.m_nAnalysisType = row.analysisType;
    graph.m_nResultType = row.resultType;
    graph.m_YAxis.m_nSensor = row.sensor;
    graph.m_nFrequencyResponseFlag = row.frequencyResponseFlag;
    const CmqPostGraphParam before = graph;

    EXPECT_EQ(graph.IsFatigueDamageMatrix(), row.damage);
    EXPECT_EQ(graph.IsTransientGraphMatrix(), row.transient);
    EXPECT_EQ(graph.GetResultGraphType(), row.graphType);
    CString folder;
    for (const char* letter = row.folder; *letter != 0; ++letter) {
      folder += static_cast<mqChar>(*letter);
    }
    EXPECT_EQ(graph.GetFolderName(), folder);
    EXPECT_EQ(Differences(graph, before), "");
  }
}

TEST(Graph, TheSensorOfTheXAxisMakesNoTransientGraph) {
  CmqPostGraphParam graph;
  graph.m_XAxis.m_nSensor = 3;
  EXPECT_EQ(graph.IsTransientGraphMatrix(), 0);
  EXPECT_EQ(graph.GetResultGraphType(), 13);
}

constexpr int kStressUnit = 101;
constexpr int kLengthUnit = 102;
constexpr int kTemperatureUnit = 103;
constexpr int kHeldUnit = 77;

struct UnitRow {
  int analysisType;
  int resultType;
  int component;
  int dynamicOption;
  int unit;
};

// clang-format off
constexpr UnitRow kUnits[] = {
  // analysis  result  component  dynamic  Y unit            what the component is
  {         5,     65,         0,       0, kStressUnit},      // unit system
  {        -1,     65,        -1,       2, kStressUnit},
  {         0,      2,         9,       0, kStressUnit},      // stress
  {         5,      2,        12,       0, kStressUnit},
  {         0,      4,         0,       0, kStressUnit},
  {        10,      7,         0,       0, kStressUnit},
  {         8,      2,         0,       0, kStressUnit},
  {         8,      2,         0,       1, kStressUnit},
  {         8,      2,         0,       2, kStressUnit},      // stress spectral density
  {         0,      1,         0,       0, kLengthUnit},      // length
  {         0,      1,         3,       2, kLengthUnit},
  {         5,      1,         3,       0, kLengthUnit},
  {         8,      1,         3,       0, kLengthUnit},
  {         8,      1,         3,       1, kLengthUnit},
  {         8,      1,         3,       3, kLengthUnit},
  {         8,      1,         0,       2, kLengthUnit},      // displacement spectral density
  {         8,      1,         3,       2, kLengthUnit},
  {         0,     53,         4,       0, kLengthUnit},
  {         0,     71,         3,       0, kLengthUnit},
  {        10,      8,         5,       0, kLengthUnit},
  {         3,      5,         0,       0, kTemperatureUnit}, // temperature
  {        10,      9,         0,       0, kTemperatureUnit},
  {         0,      2,        12,       0, kHeldUnit},        // no unit
  {         0,      3,         0,       0, kHeldUnit},
  {         1,      1,         0,       0, kHeldUnit},        // a mode shape while the flag is 0
  {         0,      1,         4,       0, kHeldUnit},        // force
  {         0,      1,        11,       0, kHeldUnit},        // moment
  {         0,      1,         8,       0, kHeldUnit},        // angle
  {         0,      1,        15,       0, kHeldUnit},
  {         0,      1,        -1,       0, kHeldUnit},
  {         3,      5,         1,       0, kHeldUnit},        // temperature gradient
  {         3,      5,         5,       0, kHeldUnit},        // heat flux
  {         3,      5,         9,       0, kHeldUnit},        // heat power
  {         3,      5,        10,       0, kHeldUnit},        // heat energy
  {         1,     15,         0,       0, kHeldUnit},        // frequency
  {        10,     11,         1,       0, kHeldUnit},        // density
  {        10,      8,         0,       0, kHeldUnit},        // specific energy
  {        10,      8,         3,       0, kHeldUnit},        // viscosity
  {        10,     11,         2,       0, kHeldUnit},        // mass flow
  {         5,     19,         0,       0, kHeldUnit},        // velocity
  {        10,     11,         4,       0, kHeldUnit},        // film coefficient
  {        10,      8,         4,       0, kHeldUnit},        // conductivity
  {         5,     20,         0,       0, kHeldUnit},        // acceleration
  {         0,      3,         8,       0, kHeldUnit},        // energy
  {         0,      3,         7,       0, kHeldUnit},        // energy density
  {         8,     19,         0,       2, kHeldUnit},        // velocity spectral density
  {         8,     20,         0,       2, kHeldUnit},        // acceleration spectral density
  {         8,      1,        11,       2, kHeldUnit},        // moment spectral density
  {         8,      1,         4,       2, kHeldUnit},        // force spectral density
  {         8,     19,         4,       0, kHeldUnit},        // angular velocity
  {         8,     20,         4,       0, kHeldUnit},        // angular acceleration
  {         7,     12,         4,       0, kHeldUnit},        // time
  {         0,     71,         0,       0, kHeldUnit},        // mass
  {         0,     71,         1,       0, kHeldUnit},        // volume
  {         0,     71,         2,       0, kHeldUnit},        // area
  {         4,      2,         0,       0, kHeldUnit},        // an unknown study
};
// clang-format on

/// A graph whose X axis, quantity types and options say nothing about the Y unit.
CmqPostGraphParam UnitGraph(const UnitRow& row) {
  CmqPostGraphParam graph = FilledGraph(1);
  graph.m_nAnalysisType = row.analysisType;
  graph.m_nResultType = row.resultType;
  graph.m_YAxis.m_nComponent = row.component;
  graph.m_nDynamicOption = row.dynamicOption;
  graph.m_YAxis.m_nUnit = kHeldUnit;
  return graph;
}

TEST(Graph, ThePreferencesGiveTheYUnitOfStressesLengthsAndTemperatures) {
  const preference preferences = {kStressUnit, kLengthUnit, kTemperatureUnit};
  for (const UnitRow& row : kUnits) {
    SCOPED_TRACE("analysis type " + std::to_string(row.analysisType) + ", result type " +
                 std::to_string(row.resultType) + ", component " + std::to_string(row.component) +
                 ", dynamic option " + std::to_string(row.dynamicOption));
    CmqPostGraphParam graph = UnitGraph(row);
    CmqPostGraphParam expected = UnitGraph(row);
    expected.m_YAxis.m_nUnit = row.unit;
    graph.SetDefaultOptionByPreferences(&preferences);
    EXPECT_EQ(Differences(graph, expected), "");
  }
  EXPECT_EQ(preferences.m_nStressUnit, kStressUnit);
  EXPECT_EQ(preferences.m_nLengthUnit, kLengthUnit);
  EXPECT_EQ(preferences.m_nTemperatureUnit, kTemperatureUnit);
}

TEST(Graph, WithoutPreferencesNothingHappens) {
  for (const UnitRow& row : kUnits) {
    CmqPostGraphParam graph = UnitGraph(row);
    graph.SetDefaultOptionByPreferences(nullptr);
    EXPECT_EQ(Differences(graph, UnitGraph(row)), "");
  }
}

TEST(Graph, AnAxisOfItsOwnShowsNothing) {
  const CmqGraphAxis axis;
  EXPECT_EQ(axis.m_nQuantityType, 0);
  EXPECT_EQ(axis.m_nComponent, 0);
  EXPECT_EQ(axis.m_nUnit, 0);
  EXPECT_EQ(axis.m_nSensor, -1);
}

TEST(Graph, PreferencesAreTakenWhateverTheirValue) {
  for (const int unit : {INT_MIN, -1, 0, 99, INT_MAX}) {
    CmqPostGraphParam graph = UnitGraph({0, 2, 9, 0, 0});
    const preference preferences = {unit, 5, 6};
    graph.SetDefaultOptionByPreferences(&preferences);
    EXPECT_EQ(graph.m_YAxis.m_nUnit, unit);
  }
}

/// Sets the actual-frequency display flag for a scope.
class ScopedFrequencyFlag {
 public:
  explicit ScopedFrequencyFlag(int flag) { vekPostCommonSetActualFreqDispFlag(flag); }
  ~ScopedFrequencyFlag() { vekPostCommonSetActualFreqDispFlag(0); }
  ScopedFrequencyFlag(const ScopedFrequencyFlag&) = delete;
  ScopedFrequencyFlag& operator=(const ScopedFrequencyFlag&) = delete;
};

TEST(Graph, ModeShapesTakeTheLengthOfThePreferencesWhileTheyHaveRealUnits) {
  const ScopedFrequencyFlag flag(1);
  CmqPostGraphParam graph = UnitGraph({1, 1, 0, 0, 0});
  const preference preferences = {kStressUnit, kLengthUnit, kTemperatureUnit};
  graph.SetDefaultOptionByPreferences(&preferences);
  EXPECT_EQ(graph.m_YAxis.m_nUnit, kLengthUnit);
}

}  // namespace
}  // namespace mqp::test
