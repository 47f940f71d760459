#include <gtest/gtest.h>

#include <mqPostCommon/mqPostCommon.h>

#include "catalogue.h"
#include "graph_rules.h"
#include "members.h"
#include "tally.h"
#include "texts.h"

namespace reference {
namespace {

class GraphReference : public testing::Test {
 protected:
  void SetUp() override {
    UseTextsById();
    SetActualFrequencyFlag(0);
    ResetTally();
  }
  void TearDown() override { SetActualFrequencyFlag(0); }
};

int AnyAnalysis(Random& random) {
  return random.Once(10) ? random.Int() : random.Of({0, 1, 2, 3, 5, 6, 7, 8, 8, 8, 10});
}

int AnyResult(Random& random) {
  return random.Once(5) ? random.Int()
                        : random.Of({1, 2, 3, 5, 13, 15, 19, 20, 52, 55, 61, 63, 65, 71});
}

void MakeGraph(CmqPostGraphParam& graph, Random& random) {
  Scramble(graph, random);
  graph.m_nAnalysisType = AnyAnalysis(random);
  graph.m_nResultType = AnyResult(random);
  graph.m_nDynamicOption = random.Between(-1, 3);
  graph.m_nYUnitFlag = random.Between(-1, 1);
  for (CmqGraphAxis* axis : {&graph.m_XAxis, &graph.m_YAxis}) {
    axis->m_nQuantityType = random.Of({0, 1, 2, 3, 14, 14, 16, 17, 19, 20, 21, random.Int()});
    axis->m_nComponent = random.Of({100, 3, random.Between(-1, 20), random.Int()});
    axis->m_nUnit = random.Of({random.Between(-1, 12), random.Int()});
    axis->m_nSensor = random.Of({-1, -1, 0, 5, -2});
  }
  if (random.Once(15)) {
    graph.m_nAnalysisType = 3;
    graph.m_nResultType = 5;
    graph.m_YAxis.m_nComponent = random.Between(0, 10);
  }
  graph.m_nFrequencyResponseFlag = random.Between(-1, 2);
  graph.m_nFrequencyResponseMode = random.Between(-1, 4);
}

TEST_F(GraphReference, MembersAfterConstructionAndInitialisation) {
  Random random(2302);
  const int cases = CountCases(6000);
  for (int number = 0; number < cases; ++number) {
    const int analysis = AnyAnalysis(random);
    const int result = AnyResult(random);
    const int option = random.Int();
    const int mesh = random.Between(-1, 5);
    const int dynamic = random.Between(-1, 3);
    Fields expected;
    InitialiseGraph(expected, analysis, result, option, mesh, dynamic);
    CmqPostGraphParam graph;
    MakeGraph(graph, random);
    const Fields before = Snapshot(graph);
    graph.ConstructInit(analysis, result, option, mesh, dynamic);
    Fields afterwards = before;
    for (const auto& [field, value] : expected) {
      afterwards[field] = value;
    }
    ASSERT_EQ("", FirstDifference(afterwards, Snapshot(graph)));

    PutEmpty(expected, "row 36");
    Put(expected, "row 38", {0});
    ASSERT_EQ("", FirstDifference(expected, Snapshot(CmqPostGraphParam(analysis, result, option,
                                                                       mesh, dynamic))));
  }
  Fields byDefault;
  InitialiseGraph(byDefault, 5, 2, 0, 0, -1);
  PutEmpty(byDefault, "row 36");
  Put(byDefault, "row 38", {0});
  ASSERT_EQ("", FirstDifference(byDefault, Snapshot(CmqPostGraphParam())));
  CheckTally("init", {"init: graph stress", "init: stress", "init: other result"});
  RecordCases(cases);
}

TEST_F(GraphReference, CopiesHoldEveryMember) {
  Random random(2303);
  const int cases = CountCases(1500);
  for (int number = 0; number < cases; ++number) {
    CmqPostGraphParam source;
    Scramble(source, random);
    const Fields expected = Snapshot(source);
    const CmqPostGraphParam copy(source);
    CmqPostGraphParam target;
    Scramble(target, random);
    target = source;
    Scramble(source, random);
    ASSERT_EQ("", FirstDifference(expected, Snapshot(copy)));
    ASSERT_EQ("", FirstDifference(expected, Snapshot(target)));
  }
  RecordCases(cases);
}

TEST_F(GraphReference, QuestionsNamesTitlesAndPreferences) {
  Random random(2304);
  const int cases = CountCases(20000);
  for (int number = 0; number < cases; ++number) {
    if (number % 1000 == 500) {
      UseCollidingTexts(random);
    } else if (number % 1000 == 0) {
      UseTextsById();
    }
    SetActualFrequencyFlag(random.Below(2));
    CmqPostGraphParam graph;
    MakeGraph(graph, random);
    Fields members = Snapshot(graph);
    const int nameOption = random.Between(-1, 5);
    const int flag = random.Between(-1, 1);
    const auto describe = [&] {
      std::string text =
          "name option " + std::to_string(nameOption) + ", flag " + std::to_string(flag);
      for (const std::string_view name : {"analysis type", "result type", "dynamic option",
                                          "y unit flag", "frequency response mode"}) {
        text += ", " + std::string(name) + " " + std::to_string(IntAt(members, name));
      }
      for (const std::string_view name : {"x axis", "y axis"}) {
        for (int place = 0; place < 4; ++place) {
          text += ", " + std::string(name) + " " + std::to_string(IntAt(members, name, place));
        }
      }
      return text;
    };
    ASSERT_EQ(IsDamageMatrix(members), graph.IsFatigueDamageMatrix()) << describe();
    ASSERT_EQ(IsTransient(members), graph.IsTransientGraphMatrix()) << describe();
    ASSERT_EQ(GraphType(members), graph.GetResultGraphType()) << describe();
    ASSERT_EQ(Printable(FolderName(members)), Printable(TextOf(graph.GetFolderName())))
        << describe();
    ASSERT_EQ(Printable(PlotName(members, nameOption)),
              Printable(TextOf(graph.GetDefaultPlotName(nameOption))))
        << describe();
    ASSERT_EQ(Printable(YTitle(members, nameOption, flag)),
              Printable(TextOf(graph.GetYTitle(nameOption, flag))))
        << describe();
    ASSERT_EQ("", FirstDifference(members, Snapshot(graph))) << "a question changed the graph";
    const preference preferences{random.Int(), random.Int(), random.Int()};
    UsePreferences(members, preferences.m_nStressUnit, preferences.m_nLengthUnit,
                   preferences.m_nTemperatureUnit);
    graph.SetDefaultOptionByPreferences(nullptr);
    graph.SetDefaultOptionByPreferences(&preferences);
    ASSERT_EQ("", FirstDifference(members, Snapshot(graph))) << describe();
  }
  CheckTally("kind",
             {"kind: damage matrix", "kind: transient", "kind: frequency response", "kind: other"});
  CheckTally("folder", {"folder: damage matrix", "folder: transient", "folder: frequency response",
                        "folder: response"});
  CheckTally("axis",
             {"axis: motion with units", "axis: motion without units", "axis: motion",
              "axis: stress", "axis: frequency", "axis: time", "axis: parameter", "axis: nothing"});
  CheckTally("plot name", {"plot name: mode 0", "plot name: mode 1", "plot name: mode 2",
                           "plot name: no mode", "plot name: both parts", "plot name: no part",
                           "plot name: one part", "plot name: spectral"});
  CheckTally("y title",
             {"y title: motion with units", "y title: motion without units", "y title: beam stress",
              "y title: beam stress of a mixed mesh", "y title: spectral", "y title: plain"});
  CheckTally("preference",
             {"preference: unit system", "preference: stress", "preference: stress spectrum",
              "preference: length", "preference: displacement spectrum", "preference: temperature",
              "preference: none"});
  RecordCases(cases);
}

}  // namespace
}  // namespace reference
