#include <vector>

#include <gtest/gtest.h>

#include <mqPostCommon/mqPostCommon.h>

#include "catalogue.h"
#include "list_rules.h"
#include "members.h"
#include "tally.h"
#include "texts.h"

namespace reference {
namespace {

void MakeList(CVekPostListParam& list, Random& random) {
  Scramble(list, random);
  list.m_nAnalysisType =
      random.Once(15) ? random.Int() : random.Of({0, 1, 2, 3, 5, 6, 7, 8, 8, 10});
  list.m_nResultType = random.Once(12) ? random.Int() : random.Of({1, 2, 3, 5, 12, 19, 20, 2, 22});
  list.m_nComponent = random.Once(12) ? random.Int() : random.Of({9, 100, random.Between(-1, 12)});
  list.m_nVariant = random.Between(-1, 1);
  list.m_nListSetFlag = random.Between(-1, 1);
  list.m_nListSetKind = random.Once(12) ? random.Int() : random.Between(-1, 5);
  list.m_nTitleSwitch = random.Between(-1, 1);
  list.m_nUnitOption = random.Between(0, 2);
  list.m_nUnitIndex = random.Between(-1, 10);
}

std::string Describe(const Fields& list) {
  std::string text;
  for (const std::string_view name : {"analysis type", "result type", "component", "variant",
                                      "list-set flag", "list-set kind", "title switch"}) {
    text += std::string(name) + " " + std::to_string(IntAt(list, name)) + ", ";
  }
  return text + "unit option " + std::to_string(IntAt(list, "row 22", 3));
}

class ListReference : public testing::Test {
 protected:
  void SetUp() override {
    UseTextsById();
    SetActualFrequencyFlag(0);
    ResetTally();
  }
  void TearDown() override { SetActualFrequencyFlag(0); }
};

void CompareColumns(const CVekPostListParam& list, const Fields& members) {
  for (int column = -2; column < 9; ++column) {
    SCOPED_TRACE("column " + std::to_string(column) + ", " + Describe(members));
    ASSERT_EQ(Printable(ColumnName(members, column)),
              Printable(TextOf(list.GetComponentName(column))));
    ASSERT_EQ(Printable(ColumnShortName(members, column)),
              Printable(TextOf(list.GetComponentNameShort(column))));
    ASSERT_EQ(ColumnComponent(members, column), list.GetComponentIndex(column));
    ASSERT_EQ(Printable(ColumnTitle(members, column)),
              Printable(TextOf(list.GetListColTitle(column))));
  }
}

TEST_F(ListReference, ColumnsTitlesUnitsAndPlots) {
  Random random(3101);
  ASSERT_EQ("", FirstDifference(DefaultList(), Snapshot(CVekPostListParam())));
  const int cases = CountCases(6000);
  for (int number = 0; number < cases; ++number) {
    if (number % 1000 == 500) {
      UseCollidingTexts(random);
    } else if (number % 1000 == 0) {
      UseTextsById();
    }
    SetActualFrequencyFlag(random.Between(0, 2));
    CVekPostListParam list;
    MakeList(list, random);
    const Fields members = Snapshot(list);
    const int count = ColumnCount(members);
    ASSERT_EQ(count, list.GetComponentCount()) << Describe(members);
    ASSERT_EQ(count + 1, list.GetListColCount()) << Describe(members);
    ASSERT_NO_FATAL_FAILURE(CompareColumns(list, members));

    std::vector<int> expectedSet;
    for (int column = 0; column < count; ++column) {
      expectedSet.push_back(ColumnComponent(members, column));
    }
    std::vector<int> set(static_cast<std::size_t>(count) + 1, -77);
    expectedSet.push_back(-77);
    list.GetComponentSet(set.data());
    ASSERT_EQ(expectedSet, set) << Describe(members);

    ASSERT_EQ(SetComponent(members), list.GetComponentIndexByListSet()) << Describe(members);
    ASSERT_EQ(ListUnitType(members), list.GetUnitType()) << Describe(members);
    ASSERT_EQ(Printable(ListUnitName(members)), Printable(TextOf(list.GetUnitName())))
        << Describe(members);
    ASSERT_EQ(Printable(StudyName(members)), Printable(TextOf(list.GetStudyName())));
    const int column = random.Between(-1, 6);
    ASSERT_EQ("", FirstDifference(ColumnPlot(members, column), Snapshot(list.GetDataParam(column))))
        << "column " << column << ", " << Describe(members);

    const CVekPostListParam copy(list);
    CVekPostListParam target;
    MakeList(target, random);
    target = list;
    ASSERT_EQ("", FirstDifference(members, Snapshot(list))) << "a question changed the list";
    Scramble(list, random);
    ASSERT_EQ("", FirstDifference(members, Snapshot(copy)));
    ASSERT_EQ("", FirstDifference(members, Snapshot(target)));
  }
  CheckTally("set", {"set: displacement",
                     "set: normalised displacement",
                     "set: reaction force",
                     "set: rotation",
                     "set: normalised rotation",
                     "set: reaction moment",
                     "set: stress components",
                     "set: stresses",
                     "set: stresses with component 100",
                     "set: strain components",
                     "set: strain energy density",
                     "set: scalar strain",
                     "set: principal strains",
                     "set: strain energy",
                     "set: gradients",
                     "set: heat fluxes",
                     "set: velocity",
                     "set: angular velocity",
                     "set: acceleration",
                     "set: angular acceleration"});
  CheckTally("fatigue", {"fatigue: 0", "fatigue: 1", "fatigue: 2", "fatigue: 3", "fatigue: 4",
                         "fatigue: none"});
  CheckTally("name", {"name: fourth stress", "name: outside", "name: single", "name: of a set"});
  CheckTally("whole", {"whole: nothing stands for it", "whole: one id"});
  CheckTally("column title",
             {"column title: fourth stress", "column title: outside", "column title: first",
              "column title: other first", "column title: moved on",
              "column title: always the fourth", "column title: of its column"});
  CheckTally("study", {"study: whole path", "study: last part"});
  RecordCases(cases);
}

}  // namespace
}  // namespace reference
