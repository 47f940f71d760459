#include <algorithm>
#include <climits>
#include <cstddef>
#include <initializer_list>
#include <string>

#include <gtest/gtest.h>
#include <mqPostCommon/params/graph.h>
#include <mqPostCommon/platform/comm_funcs.h>

#include "params/record_test_support.h"

namespace mqp::test {
namespace {

CString LoadText(UINT id) {
  CString text;
  EXPECT_EQ(mqpLoadString(text, id), 1) << id;
  EXPECT_FALSE(text.IsEmpty()) << id;
  return text;
}

/// Puts the texts of the string table in place of their ids: "{53984}" is the text 53984,
/// "{54419:}" what it has in front of its first colon.
CString Compose(mqTextView pattern) {
  CString composed;
  while (!pattern.empty()) {
    const std::size_t open = std::min(pattern.find(MQ_TEXT('{')), pattern.size());
    composed += CString(pattern.substr(0, open));
    pattern.remove_prefix(open);
    if (pattern.empty()) {
      break;
    }
    UINT id = 0;
    std::size_t position = 1;
    for (; pattern[position] >= MQ_TEXT('0') && pattern[position] <= MQ_TEXT('9'); ++position) {
      id = id * 10 + static_cast<UINT>(pattern[position] - MQ_TEXT('0'));
    }
    CString text = LoadText(id);
    if (pattern[position] == MQ_TEXT(':')) {
      ++position;
      const int colon = text.Find(MQ_TEXT(':'));
      text = colon > 0 ? text.Left(colon) : text;
    }
    composed += text;
    pattern.remove_prefix(position + 1);
  }
  return composed;
}

struct PlotNameRow {
  int analysisType;
  int dynamicOption;
  int yUnitFlag;
  int xType;
  int xComponent;
  int yType;
  int yComponent;
  int nameOption;
  const mqChar* name;
};

std::string Trace(const PlotNameRow& row) {
  return "analysis type " + std::to_string(row.analysisType) + ", dynamic option " +
         std::to_string(row.dynamicOption) + ", Y unit flag " + std::to_string(row.yUnitFlag) +
         ", X " + std::to_string(row.xType) + " component " + std::to_string(row.xComponent) +
         ", Y " + std::to_string(row.yType) + " component " + std::to_string(row.yComponent) +
         ", name option " + std::to_string(row.nameOption);
}

/// The name of a graph whose other members say something else.
CString PlotName(const PlotNameRow& row, int resultType = 62) {
  CmqPostGraphParam graph = FilledGraph(1);
  graph.m_nResultType = resultType;
  graph.m_nAnalysisType = row.analysisType;
  graph.m_nDynamicOption = row.dynamicOption;
  graph.m_nYUnitFlag = row.yUnitFlag;
  graph.m_XAxis.m_nQuantityType = row.xType;
  graph.m_XAxis.m_nComponent = row.xComponent;
  graph.m_YAxis.m_nQuantityType = row.yType;
  graph.m_YAxis.m_nComponent = row.yComponent;
  graph.m_nFrequencyResponseFlag = 1;
  graph.m_nFrequencyResponseMode = 1;
  return graph.GetDefaultPlotName(row.nameOption);
}

void CheckPlotNames(std::initializer_list<PlotNameRow> rows) {
  for (const PlotNameRow& row : rows) {
    EXPECT_EQ(PlotName(row), Compose(row.name)) << Trace(row);
  }
}

TEST(GraphPlotName, TheModeNamesAFrequencyResponseGraph) {
  struct Row {
    int mode;
    const mqChar* name;
  };
  const Row kRows[] = {
      {0, MQ_TEXT("{55123}{54668}")},
      {1, MQ_TEXT("{55123}{55124}")},
      {2, MQ_TEXT("{55123}{55125}")},
      {-1, MQ_TEXT("")},
      {3, MQ_TEXT("")},
      {INT_MIN, MQ_TEXT("")},
      {INT_MAX, MQ_TEXT("")},
  };
  for (const Row& row : kRows) {
    for (const int analysisType : {0, 5, 8}) {
      SCOPED_TRACE("mode " + std::to_string(row.mode) + ", analysis type " +
                   std::to_string(analysisType));
      // The axes would have names.
      CmqPostGraphParam graph(analysisType, 63, 0, 0, 0);
      graph.m_nDynamicOption = 2;
      graph.m_YAxis.m_nQuantityType = 1;
      graph.m_nFrequencyResponseMode = row.mode;
      EXPECT_EQ(graph.GetDefaultPlotName(0), Compose(row.name));
    }
  }
}

TEST(GraphPlotName, ANewFrequencyResponseGraphHasNoName) {
  EXPECT_EQ(CmqPostGraphParam(8, 63, 0, 0, 1).GetDefaultPlotName(0), CString());
}

TEST(GraphPlotName, OnlyItsResultTypeMakesAFrequencyResponseGraph) {
  const PlotNameRow row = {0, 0, 1, 14, 0, 1, 3, 0, nullptr};
  for (const int resultType : {62, 64, 61, 13, 0, -1}) {
    EXPECT_EQ(PlotName(row, resultType), Compose(MQ_TEXT("{51724}-{53984}"))) << resultType;
  }
}

TEST(GraphPlotName, ANewGraphNamesTheFourteenthQuantityAndTheEquivalentStress) {
  EXPECT_EQ(CmqPostGraphParam().GetDefaultPlotName(0), Compose(MQ_TEXT("{51724}-{53034}")));
}

TEST(GraphPlotName, DisplacementsVelocitiesAndAccelerationsHaveTheirColourBarNames) {
  // clang-format off
  CheckPlotNames({
    // analysis dynamic flag  X   c   Y   c  option
    {         0,     0,   1,  1,  0,  0,  0,  0, MQ_TEXT("{53981}")},
    {         0,     0,   1,  1,  3,  0,  0,  0, MQ_TEXT("{53984}")},
    {         0,     0,   1,  0,  0,  1,  3,  0, MQ_TEXT("{53984}")},
    {         0,     0,   1,  1,  4,  0,  0,  0, MQ_TEXT("{53473}")},
    {         0,     0,   1,  1, 14,  0,  0,  0, MQ_TEXT("{53483}")},
    {         0,     0,   1,  1, 15,  0,  0,  0, MQ_TEXT("")},
    {         0,     0,   1,  1, -1,  0,  0,  0, MQ_TEXT("")},
    {         5,     0,   1,  1, 14,  0,  0,  4, MQ_TEXT("{53483}")},
    {         5,     0,   1,  1, 15,  0,  0,  0, MQ_TEXT("")},
    {         8,     0,   1,  1,  3,  0,  0,  4, MQ_TEXT("{53984}")},
    {         8,     0,   1,  1, 15,  0,  0,  0, MQ_TEXT("{54419:}")},
    {         8,     0,   1,  1, 16,  0,  0,  0, MQ_TEXT("")},
    {         1,     0,   1,  1,  3,  0,  0,  0, MQ_TEXT("{54876}")},
    {         1,     0,   1,  1,  5,  0,  0,  0, MQ_TEXT("{55270:}")},
    {         2,     0,   1,  1,  6,  0,  0,  0, MQ_TEXT("{55268}")},
    {         7,     0,   1,  1,  0,  0,  0,  0, MQ_TEXT("{54015}")},
    {         7,     0,   1,  1,  1,  0,  0,  1, MQ_TEXT("{54019}")},
    {         7,     0,   1, 20,  1,  0,  0,  0, MQ_TEXT("{54019}")},
    {         7,     0,   1,  1,  5,  0,  0,  0, MQ_TEXT("")},
    {         3,     0,   1,  1,  0,  0,  0,  0, MQ_TEXT("")},
    {        10,     0,   1,  1,  0,  0,  0,  0, MQ_TEXT("")},
    {         4,     0,   1,  1,  0,  0,  0,  0, MQ_TEXT("")},
    {        -1,     0,   1,  1,  0,  0,  0,  0, MQ_TEXT("")},
    {         5,     0,   1, 19,  0,  0,  0,  0, MQ_TEXT("{54022}")},
    {         6,     0,   1, 19,  6,  0,  0,  0, MQ_TEXT("{54028}")},
    {         5,     0,   1, 19,  7,  0,  0,  0, MQ_TEXT("{54419:}")},
    {         8,     0,   1, 19,  3,  0,  0,  0, MQ_TEXT("{54025}")},
    {         0,     0,   1, 19,  0,  0,  0,  0, MQ_TEXT("")},
    {         8,     0,   1, 20,  3,  0,  0,  0, MQ_TEXT("{53945}")},
    {         6,     0,   1, 20,  7,  0,  0,  0, MQ_TEXT("{53946}")},
    {         8,     0,   1, 20,  8,  0,  0,  0, MQ_TEXT("")},
    {         0,     0,   1, 20,  0,  0,  0,  0, MQ_TEXT("")},
  });
  // clang-format on
}

TEST(GraphPlotName, StressesHaveTheColourBarNamesOfTheNameOptionAsMeshKind) {
  // clang-format off
  CheckPlotNames({
    // analysis dynamic flag  X   c   Y   c  option
    {         0,     0,   1,  2,  0,  0,  0,  0, MQ_TEXT("{53987}")},
    {         0,     0,   1,  2,  9,  0,  0,  0, MQ_TEXT("{53034}")},
    {         0,     0,   1,  0,  0,  2,  9,  0, MQ_TEXT("{53034}")},
    {         0,     0,   1,  2, 15,  0,  0,  0, MQ_TEXT("{54499}")},
    {         0,     0,   1,  2, 16,  0,  0,  0, MQ_TEXT("")},
    {         0,     0,   1,  2,  0,  0,  0,  4, MQ_TEXT("{53987}")},
    {         5,     0,   1,  2,  0,  0,  0,  4, MQ_TEXT("{52020}")},
    {         6,     0,   1,  2,  6,  0,  0,  4, MQ_TEXT("{54014}")},
    {         5,     0,   1,  2,  7,  0,  0,  4, MQ_TEXT("{54598:}")},   // a solid's full name
    {         5,     0,   1,  2,  0,  0,  0,  3, MQ_TEXT("{53987}")},
    {         5,     0,   1,  2,  0,  0,  0,  5, MQ_TEXT("{53987}")},
    {         5,     0,   1,  2, 13,  0,  0,  0, MQ_TEXT("{53997}")},
    {         5,     0,   1,  2, 14,  0,  0,  0, MQ_TEXT("")},
    {         5,     0,   1,  2,  0,  2,  1,  4, MQ_TEXT("{52020}-{54009}")},
    {         8,     0,   1,  2,  0,  0,  0,  4, MQ_TEXT("{53987}")},
    {         8,     0,   1,  2, 11,  0,  0,  0, MQ_TEXT("{55084}")},
    {         8,     0,   1,  2, 12,  0,  0,  0, MQ_TEXT("")},
    {         8,     0,   1,  2,100,  0,  0,  0, MQ_TEXT("{56061:}")},
    {         7,     0,   1,  2,  2,  0,  0,  0, MQ_TEXT("{54020}")},
  });
  // clang-format on
}

TEST(GraphPlotName, DisplacementsVelocitiesAndAccelerationsNameTheYUnitFlagUnderDynamicOptionOne) {
  // clang-format off
  CheckPlotNames({
    // analysis dynamic flag  X   c   Y   c  option
    {         8,     1,   1,  1,  3,  0,  0,  0, MQ_TEXT("{53984} ({53044})")},
    {         8,     1,   0,  1,  3,  0,  0,  0, MQ_TEXT("{53984} ({54441})")},
    {         8,     1,   2,  1,  3,  0,  0,  0, MQ_TEXT("{53984} ({53044})")},
    {         8,     1,  -5,  1,  3,  0,  0,  0, MQ_TEXT("{53984} ({53044})")},
    {         8,     1,   1, 19,  0,  0,  0,  0, MQ_TEXT("{54022} ({53044})")},
    {         8,     1,   0, 19,  0,  0,  0,  0, MQ_TEXT("{54022} ({54441})")},
    {         8,     1,   1, 20,  0,  0,  0,  0, MQ_TEXT("{54029} ({53044})")},
    {         8,     1,   0, 20,  0,  0,  0,  0, MQ_TEXT("{54029} ({54441})")},
    {         8,     1,   1,  0,  0,  1,  3,  0, MQ_TEXT("{53984} ({53044})")},
    {         8,     1,   0,  0,  0, 19,  0,  0, MQ_TEXT("{54022} ({54441})")},
    {         8,     1,   1,  1,  3, 20,  0,  0, MQ_TEXT("{53984} ({53044})-{54029} ({53044})")},
    {         8,     1,   0,  1,  3, 20,  0,  0, MQ_TEXT("{53984} ({54441})-{54029} ({54441})")},
    {         8,     1,   1,  1, 15,  0,  0,  0, MQ_TEXT("{54419:} ({53044})")},
    {         8,     1,   1,  1, -1,  0,  0,  0, MQ_TEXT(" ({53044})")},   // no name, yet a part
    {         8,     1,   0, 14,  0,  1, -1,  0, MQ_TEXT("{50004}- ({54441})")},
    {         8,     1,   1,  2,  0,  0,  0,  0, MQ_TEXT("{53987}")},
    {         8,     1,   0,  2,  0,  0,  0,  0, MQ_TEXT("{53987}")},
    {         8,     1,   0, 14,  0, 16,  0,  0, MQ_TEXT("{50004}-{50578}")},
    {         8,     1,   0,  0,  0,  3,  0,  0, MQ_TEXT("")},
    {         8,     0,   0,  1,  3,  0,  0,  0, MQ_TEXT("{53984}")},
    {         8,     2,   0,  1,  3,  0,  0,  0, MQ_TEXT("{53984}")},
    {         8,    -1,   0,  1,  3,  0,  0,  0, MQ_TEXT("{53984}")},
    {         7,     1,   0,  1,  0,  0,  0,  0, MQ_TEXT("{54015}")},
    {         6,     1,   0,  1,  3,  0,  0,  0, MQ_TEXT("{53984}")},
    {         5,     1,   1, 19,  0,  0,  0,  0, MQ_TEXT("{54022}")},
    {         0,     1,   1,  1,  3,  0,  0,  0, MQ_TEXT("{53984}")},
    {         9,     1,   1,  1,  3,  0,  0,  0, MQ_TEXT("")},
  });
  // clang-format on
}

TEST(GraphPlotName, TheFourteenthQuantityHasAnotherNameInADynamicStudyWithAnOption) {
  // clang-format off
  CheckPlotNames({
    // analysis dynamic flag  X   c   Y   c  option
    {         0,     0,   1, 14,  0,  0,  0,  0, MQ_TEXT("{51724}")},
    {         0,     1,   1, 14,  0,  0,  0,  0, MQ_TEXT("{51724}")},
    {         7,     1,   1, 14,  0,  0,  0,  0, MQ_TEXT("{51724}")},
    {         9,     1,   1, 14,  0,  0,  0,  0, MQ_TEXT("{51724}")},
    {         5,     2,   1, 14,  9,  0,  0,  4, MQ_TEXT("{51724}")},
    {         8,     0,   1, 14,  0,  0,  0,  0, MQ_TEXT("{51724}")},
    {         8,     1,   1, 14,  0,  0,  0,  0, MQ_TEXT("{50004}")},
    {         8,     3,   1, 14,  0,  0,  0,  0, MQ_TEXT("{50004}")},
    {         8,    -1,   0, 14,  0,  0,  0,  0, MQ_TEXT("{50004}")},
    {         8,     0,   1,  0,  0, 14,  0,  0, MQ_TEXT("{51724}")},
    {         8,     1,   1,  0,  0, 14,  0,  0, MQ_TEXT("{50004}")},
    {         0,     0,   1, 16,  0,  0,  0,  0, MQ_TEXT("{50578}")},
    {         8,     1,   1, 16,  5,  0,  0,  4, MQ_TEXT("{50578}")},
    {         8,     2,   1,  0,  0, 16,  0,  0, MQ_TEXT("{50578}")},
  });
  // clang-format on
}

TEST(GraphPlotName, OtherQuantitiesHaveNoNameThoughTheyHaveColourBarNames) {
  for (const int type : {0,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 15, 17,      18,
                         21, 22, 52, 53, 54, 55, 57, 59, 62, 63, 71, -1, -2, INT_MAX, INT_MIN}) {
    for (const int analysisType : {0, 3, 5, 7, 8}) {
      SCOPED_TRACE("quantity type " + std::to_string(type) + ", analysis type " +
                   std::to_string(analysisType));
      EXPECT_EQ(PlotName({analysisType, 1, 1, type, 0, type, 0, 0, nullptr}), CString());
      EXPECT_EQ(PlotName({analysisType, 0, 1, type, 0, 16, 0, 0, nullptr}), LoadText(50578));
      EXPECT_EQ(PlotName({analysisType, 0, 1, 16, 0, type, 0, 0, nullptr}), LoadText(50578));
    }
  }
}

TEST(GraphPlotName, AHyphenStandsBetweenTwoPartsAlone) {
  // clang-format off
  CheckPlotNames({
    // analysis dynamic flag  X   c   Y   c  option
    {         0,     0,   1, 14,  0,  1,  3,  0, MQ_TEXT("{51724}-{53984}")},
    {         0,     0,   1,  1,  3, 14,  0,  0, MQ_TEXT("{53984}-{51724}")},
    {         0,     0,   1,  2,  9,  1,  3,  0, MQ_TEXT("{53034}-{53984}")},
    {         0,     0,   1, 16,  0, 16,  0,  0, MQ_TEXT("{50578}-{50578}")},
    {         0,     0,   1, 14,  0,  0,  0,  0, MQ_TEXT("{51724}")},
    {         0,     0,   1,  0,  0,  1,  3,  0, MQ_TEXT("{53984}")},
    {         0,     0,   1, 14,  0,  1, 15,  0, MQ_TEXT("{51724}")},     // a part without a name
    {         0,     0,   1,  1, 15,  1,  3,  0, MQ_TEXT("{53984}")},
    {         0,     0,   1,  1, 15,  1, 15,  0, MQ_TEXT("")},
    {         0,     0,   1,  0,  0,  0,  0,  0, MQ_TEXT("")},
  });
  // clang-format on
}

TEST(GraphPlotName, ASpectralDensityOverFrequencySaysSo) {
  // clang-format off
  CheckPlotNames({
    // analysis dynamic flag  X   c   Y   c  option
    {         8,     2,   1, 14,  0,  1,  3,  0, MQ_TEXT("{50004}-{53984}-{54477}")},
    {         8,     2,   0, 14,  0,  2,  0,  0, MQ_TEXT("{50004}-{53987}-{54477}")},
    {         8,     2,   1, 14,  0,  0,  0,  0, MQ_TEXT("{50004}-{54477}")},
    {         8,     2,   1, 14,  0, 14,  0,  0, MQ_TEXT("{50004}-{50004}-{54477}")},
    {         8,     2,   1, 16,  0,  1,  3,  0, MQ_TEXT("{50578}-{53984}")},
    {         8,     2,   1,  1,  3, 14,  0,  0, MQ_TEXT("{53984}-{50004}")},
    {         8,     2,   1,  0,  0, 14,  0,  0, MQ_TEXT("{50004}")},
    {         8,     2,   1,  0,  0,  0,  0,  0, MQ_TEXT("")},
    {         8,     1,   1, 14,  0,  2,  0,  0, MQ_TEXT("{50004}-{53987}")},
    {         8,     3,   1, 14,  0,  2,  0,  0, MQ_TEXT("{50004}-{53987}")},
    {         8,     0,   1, 14,  0,  2,  0,  0, MQ_TEXT("{51724}-{53987}")},
    {         7,     2,   1, 14,  0,  1,  0,  0, MQ_TEXT("{51724}-{54015}")},
    {         5,     2,   1, 14,  0,  1,  3,  0, MQ_TEXT("{51724}-{53984}")},
    {         9,     2,   1, 14,  0,  1,  3,  0, MQ_TEXT("{51724}")},
  });
  // clang-format on
}

struct TitleRow {
  int analysisType;
  int resultType;
  int dynamicOption;
  int yUnitFlag;
  int xType;
  int yType;
  int yComponent;
  int yUnit;
  int nameOption;
  int flag;
  const mqChar* title;
};

std::string Trace(const TitleRow& row) {
  return "analysis type " + std::to_string(row.analysisType) + ", result type " +
         std::to_string(row.resultType) + ", dynamic option " + std::to_string(row.dynamicOption) +
         ", Y unit flag " + std::to_string(row.yUnitFlag) + ", X " + std::to_string(row.xType) +
         ", Y " + std::to_string(row.yType) + " component " + std::to_string(row.yComponent) +
         " unit " + std::to_string(row.yUnit) + ", name option " + std::to_string(row.nameOption) +
         ", flag " + std::to_string(row.flag);
}

void CheckTitles(std::initializer_list<TitleRow> rows) {
  for (const TitleRow& row : rows) {
    CmqPostGraphParam graph = FilledGraph(1);
    graph.m_nAnalysisType = row.analysisType;
    graph.m_nResultType = row.resultType;
    graph.m_nDynamicOption = row.dynamicOption;
    graph.m_nYUnitFlag = row.yUnitFlag;
    graph.m_XAxis.m_nQuantityType = row.xType;
    graph.m_XAxis.m_nComponent = 1;
    graph.m_XAxis.m_nUnit = 4;
    graph.m_YAxis.m_nQuantityType = row.yType;
    graph.m_YAxis.m_nComponent = row.yComponent;
    graph.m_YAxis.m_nUnit = row.yUnit;
    EXPECT_EQ(graph.GetYTitle(row.nameOption, row.flag), Compose(row.title)) << Trace(row);
  }
}

TEST(GraphYTitle, IsTheColourBarNameOfTheResultWithItsUnit) {
  // clang-format off
  CheckTitles({
    // analysis result dynamic flag  X   Y    c  unit option flag
    {         0,    1,     0,   1,  14,  1,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         0,    1,     0,   0,  14,  1,   3,  2,    0,   1, MQ_TEXT("{53984} (m)")},
    {         0,    1,     0,   1,  14,  1,   4,  1,    0,   0, MQ_TEXT("{53473} (lbf)")},
    {         0,    1,     0,   1,  14,  1,   3, -1,    0,   0, MQ_TEXT("{53984} ()")},
    {         0,    2,     0,   1,  14,  1,   9,  0,    0,   0, MQ_TEXT("{53034} (N/m^2)")},
    {         0,    2,     0,   1,  14,  2,   9,  3,    0,   0, MQ_TEXT("{53034} (N/mm^2 (MPa))")},
    {         0,    2,     0,   1,  14,  2,   0,  1,    4,   1, MQ_TEXT("{53987} (psi)")},
    {         0,    2,     0,   1,  14,  2,  12,  0,    0,   0, MQ_TEXT("{52190} ()")},
    {         0,    3,     0,   1,  14,  1,   6,  0,    0,   0, MQ_TEXT("{53975} ()")},
    {         0,    3,     0,   1,  14,  1,   7,  1,    0,   0, MQ_TEXT("{53976} (ft.lbs/ft^3)")},
    {         1,    1,     0,   1,  14,  1,   3,  0,    0,   0, MQ_TEXT("{54876} ()")},
    {         3,    5,     0,   1,  14,  1,   0,  2,    0,   0, MQ_TEXT("{53985} (Celsius)")},
    {         5,    2,     0,   1,  14,  2,   0,  0,    4,   0, MQ_TEXT("{52020} (N/m^2)")},
    {         5,    2,     0,   1,  14,  2,   7,  0,    4,   0, MQ_TEXT("{54598:} (N/m^2)")},
    {         5,    2,     0,   1,  14,  2,   0,  0,    3,   1, MQ_TEXT("{53987} (N/m^2)")},
    {         5,    2,     0,   1,  14, 19,   9,  4,    0,   0, MQ_TEXT("{53034} (ksi)")},
    {         5,   19,     0,   1,  14, 19,   7,  0,    0,   0, MQ_TEXT("{54419:} (mm/sec)")},
    {         6,   20,     0,   1,  14, 20,   3,  5,    0,   0, MQ_TEXT("{53945} (g)")},
    {         7,   12,     0,   1,  14,  1,   1,  0,    1,   0, MQ_TEXT("{54019} ()")},
    {         7,   12,     0,   1,  14,  1,   4,  0,    0,   0, MQ_TEXT("{54015} (sec)")},
    {        10,    6,     0,   1,  14,  6,   0,  0,    0,   0, MQ_TEXT(" (mm/sec)")},
    {         4,    1,     0,   1,  14,  1,   3,  0,    0,   0, MQ_TEXT(" ()")},
    {         0,    1,     0,   1,  14,  0,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         0,    1,     0,   1,  14, 14,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
  });
  // clang-format on
}

TEST(GraphYTitle, TheNameOfTheSixteenthQuantityIsReplacedAgain) {
  // clang-format off
  CheckTitles({
    // analysis result dynamic flag  X   Y    c  unit option flag
    {         0,    1,     0,   1,  14, 16,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         8,    1,     1,   1,  14, 16,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         8,    2,     0,   1,  14, 16,   1,  0,    4,   1, MQ_TEXT("{53988} (N/m^2)")},
    {         4,    1,     0,   1,  14, 16,   3,  0,    0,   0, MQ_TEXT(" ()")},
  });
  // clang-format on
}

TEST(GraphYTitle, DisplacementsVelocitiesAndAccelerationsNameTheYUnitFlagUnderDynamicOptionOne) {
  // clang-format off
  CheckTitles({
    // analysis result dynamic flag  X   Y    c  unit option flag
    {         8,    1,     1,   1,  14,  1,   3,  0,    0,   0, MQ_TEXT("{53984}-{53044} (mm)")},
    {         8,    1,     1,   2,   0,  1,   3,  3,    4,   1, MQ_TEXT("{53984}-{53044} (in)")},
    {         8,    1,     1,  -5,   0,  1,   3,  3,    4,   1, MQ_TEXT("{53984}-{53044} (in)")},
    {         8,    1,     1,   0,  14,  1,   3,  0,    0,   0, MQ_TEXT("{53984}-{54441} ({54684})")},
    {         8,    1,     1,   0,  14,  1,   3,  9,    3,   1, MQ_TEXT("{53984}-{54441} ({54684})")},
    {         8,   19,     1,   1,  14, 19,   0,  0,    0,   0, MQ_TEXT("{54022}-{53044} (mm/sec)")},
    {         8,   19,     1,   0,  14, 19,   0,  0,    0,   0, MQ_TEXT("{54022}-{54441} ({54684})")},
    {         8,   20,     1,   1,  14, 20,   3,  5,    0,   0, MQ_TEXT("{53945}-{53044} (g)")},
    {         8,   20,     1,   0,  14, 20,   3,  5,    0,   0, MQ_TEXT("{53945}-{54441} ({54684})")},
    // The name and the unit are those of the result type, whatever the axis shows.
    {         8,    1,     1,   1,  14, 19,   3,  0,    0,   0, MQ_TEXT("{53984}-{53044} (mm)")},
    {         8,   20,     1,   1,  14,  1,   3,  0,    0,   0, MQ_TEXT("{53945}-{53044} (mm/s^2)")},
    {         8,    2,     1,   1,  14,  1,   0,  1,    4,   1, MQ_TEXT("{53987}-{53044} (psi)")},
    {         8,    2,     1,   1,  14,  1, 100,  0,    0,   0, MQ_TEXT("{56061:}-{53044} (N/m^2)")},
    {         8,    3,     1,   1,  14,  1,   6,  0,    0,   0, MQ_TEXT("{53975}-{53044} ()")},
    {         8,    1,     1,   1,  14,  1,   4,  0,    0,   0, MQ_TEXT("{53473}-{53044} (N)")},
    {         8,    1,     1,   1,  14,  1,   8,  0,    0,   0, MQ_TEXT("{53477}-{53044} (deg)")},
    {         8,    1,     1,   1,  14,  1,  -1,  0,    0,   0, MQ_TEXT("-{53044} ()")},
    {         8,    1,     1,   1,  14,  1,  15,  0,    0,   0, MQ_TEXT("{54419:}-{53044} ()")},
    {         8,    1,     1,   1,  14,  1,   3, -1,    0,   0, MQ_TEXT("{53984}-{53044} ()")},
    // Neighbours that get the colour-bar name.
    {         8,    1,     0,   1,  14,  1,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         8,    1,    -1,   0,  14,  1,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         8,    1,     3,   1,  14,  1,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         8,    1,     1,   1,  14,  0,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         8,    1,     1,   1,  14,  2,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         8,    1,     1,   1,  14, 18,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         8,    1,     1,   0,  14, 21,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         5,    1,     1,   1,  14,  1,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         0,    1,     1,   0,  14,  1,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         7,    1,     1,   1,  14,  1,   0,  0,    0,   0, MQ_TEXT("{54015} ()")},
    {         9,    1,     1,   1,  14,  1,   0,  0,    0,   0, MQ_TEXT(" ()")},
  });
  // clang-format on
}

TEST(GraphYTitle, AStressOfBeamsInADynamicStudyHasItsOwnNames) {
  // clang-format off
  CheckTitles({
    // analysis result dynamic flag  X   Y    c  unit option flag
    {         8,    2,     0,   1,  14,  2,   0,  0,    4,   0, MQ_TEXT("{52020} (N/m^2)")},
    {         8,    2,     0,   1,  14,  2,   1,  1,    4,   1, MQ_TEXT("{54009} (psi)")},
    {         8,    2,     0,   1,  14,  2,   2,  0,    4,   0, MQ_TEXT("{54010} (N/m^2)")},
    {         8,    2,     0,   1,  14,  2,   3,  0,    4,   0, MQ_TEXT("{54011} (N/m^2)")},
    {         8,    2,     0,   0,  14,  2,   4,  0,    4,   0, MQ_TEXT("{54012} (N/m^2)")},
    {         8,    2,     0,   1,  14,  2,   5,  0,    4,   0, MQ_TEXT("{54013} (N/m^2)")},
    {         8,    2,     0,   1,  14,  2,   6,  0,    4,   0, MQ_TEXT("{54014} (N/m^2)")},
    {         8,    2,     0,   1,  14,  2,   7,  0,    4,   0, MQ_TEXT(" (N/m^2)")},
    {         8,    2,     0,   1,  14,  2,  -1,  0,    4,   0, MQ_TEXT(" (N/m^2)")},
    {         8,    2,     0,   1,  14,  2, 100,  0,    4,   0, MQ_TEXT(" (N/m^2)")},
    {         8,    2,     0,   1,  14,  2, INT_MIN, 0, 4,   0, MQ_TEXT(" (N/m^2)")},
    {         8,    2,     0,   1,  14,  2, INT_MAX, 0, 4,   0, MQ_TEXT(" (N/m^2)")},
    {         8,    2,     0,   1,  14,  2,   0,  0,    3,   1, MQ_TEXT("{52020} (N/m^2)")},
    {         8,    2,     0,   1,  14,  2,   6,  0,    3,  -1, MQ_TEXT("{54014} (N/m^2)")},
    {         8,    2,     0,   1,  14,  2,   0,  0,    3,   2, MQ_TEXT("{52020} (N/m^2)")},
    {         8,    2,     1,   0,  14,  2,   1,  0,    4,   0, MQ_TEXT("{54009} (N/m^2)")},
    {         8,    2,     2,   1,  14,  2,   1,  0,    4,   0, MQ_TEXT("{54009} ((N/m^2)^2/Hz)")},
    {         8,    2,     2,   1,  14,  2,   1,  1,    3,   1, MQ_TEXT("{54009} (psi^2/Hz)")},
    // The names go by the quantity of the axis, the unit by the result type.
    {         8,    1,     0,   1,  14,  2,   0,  0,    4,   0, MQ_TEXT("{52020} (mm)")},
    // Neighbours that get the colour-bar name.
    {         8,    2,     0,   1,  14,  2,   0,  0,    3,   0, MQ_TEXT("{53987} (N/m^2)")},
    {         8,    2,     0,   1,  14,  2,   0,  0,    2,   1, MQ_TEXT("{53987} (N/m^2)")},
    {         8,    2,     0,   1,  14,  2,   0,  0,    5,   1, MQ_TEXT("{53987} (N/m^2)")},
    {         8,    2,     0,   1,  14,  2,   0,  0,    0,   1, MQ_TEXT("{53987} (N/m^2)")},
    {         8,    2,     0,   1,  14,  1,   0,  0,    4,   1, MQ_TEXT("{53987} (N/m^2)")},
    {         8,    2,     0,   1,  14,  3,   0,  0,    4,   1, MQ_TEXT("{53987} (N/m^2)")},
    {         0,    2,     0,   1,  14,  2,   0,  0,    4,   1, MQ_TEXT("{53987} (N/m^2)")},
    {         7,    2,     0,   1,  14,  2,   0,  0,    4,   1, MQ_TEXT("{54015} ()")},
    {         9,    2,     0,   1,  14,  2,   0,  0,    4,   1, MQ_TEXT(" ()")},
  });
  // clang-format on
}

TEST(GraphYTitle, ASpectralDensityOverFrequencySaysSo) {
  // clang-format off
  CheckTitles({
    // analysis result dynamic flag  X   Y    c  unit option flag
    {         8,    1,     2,   1,  14,  1,   3,  0,    0,   0, MQ_TEXT("{53984} {54477} (mm^2/Hz)")},
    {         8,    1,     2,   0,  14,  1,   3,  2,    4,   1, MQ_TEXT("{53984} {54477} (m^2/Hz)")},
    {         8,    2,     2,   1,  14,  2,   0,  0,    0,   1, MQ_TEXT("{53987} {54477} ((N/m^2)^2/Hz)")},
    {         8,   19,     2,   1,  14, 19,   4,  0,    0,   0, MQ_TEXT("{54026} {54477} ((rad/s)^2/Hz)")},
    {         8,    1,     2,   1,  14,  1,   4,  0,    0,   0, MQ_TEXT("{53473} {54477} ()")},    // no unit of that name
    {         8,    1,     2,   1,  14, 16,   3,  0,    0,   0, MQ_TEXT("{53984} {54477} (mm^2/Hz)")},
    {         8,    1,     2,   1,  14,  1,  -1,  0,    0,   0, MQ_TEXT(" {54477} ()")},
    {         8,    1,     2,   1,  16,  1,   3,  0,    0,   0, MQ_TEXT("{53984} (mm^2/Hz)")},
    {         8,    1,     2,   1,   1, 14,   3,  0,    0,   0, MQ_TEXT("{53984} (mm^2/Hz)")},
    {         8,    1,     2,   1,  13,  1,   3,  0,    0,   0, MQ_TEXT("{53984} (mm^2/Hz)")},
    {         8,    1,     1,   1,  14,  2,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         8,    1,     3,   1,  14,  1,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         5,    1,     2,   1,  14,  1,   3,  0,    0,   0, MQ_TEXT("{53984} (mm)")},
    {         7,   12,     2,   1,  14,  1,   4,  0,    0,   0, MQ_TEXT("{54015} (sec)")},
  });
  // clang-format on
}

TEST(GraphNames, AskingChangesNothing) {
  CmqPostGraphParam graph = FilledGraph(1);
  graph.m_nAnalysisType = 8;
  graph.m_nDynamicOption = 1;
  graph.m_YAxis.m_nQuantityType = 1;
  const CmqPostGraphParam before = graph;
  const CString name = graph.GetDefaultPlotName(0);
  const CString title = graph.GetYTitle(0, 0);
  EXPECT_EQ(Differences(graph, before), "");
  EXPECT_EQ(graph.GetDefaultPlotName(0), name);
  EXPECT_EQ(graph.GetYTitle(0, 0), title);
}

}  // namespace
}  // namespace mqp::test
