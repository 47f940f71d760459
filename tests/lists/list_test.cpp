#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/units.h>
#include <mqPostCommon/lists/list.h>
#include <mqPostCommon/lists/pairs.h>

#include "catalogue/catalogue_test_support.h"
#include "catalogue/name_test_support.h"
#include "lists/list_test_support.h"
#include "params/value_test_support.h"

namespace mqp::test {
namespace {

static_assert(!std::is_polymorphic_v<CVekPostListParam>);
static_assert(std::is_copy_constructible_v<CVekPostListParam>);
static_assert(std::is_copy_assignable_v<CVekPostListParam>);

MemberLines LinesOfFilledList(int seed) {
  CVekPostListParam list;
  FillWithDistinctValues(list, seed);
  return LinesOf(list);
}

/// Sets every member of a list to its default, one by one.
void SetListDefaults(CVekPostListParam& list) {
  list.m_strStudyPath = MQ_TEXT("");
  list.m_nAnalysisType = 0;
  list.m_nResultType = 0;
  list.m_nComponent = 0;
  list.m_nHost5 = 1;
  list.m_nHost6 = 1;
  list.m_nVariant = 0;
  list.m_nUnitIndex = 0;
  list.m_nHost9 = 0;
  list.m_nHost10 = 0;
  list.m_nListSetFlag = 0;
  list.m_nHost12 = 0;
  list.m_nHost13 = 1;
  list.m_dHost14 = 5.0;
  list.m_nHost15[0] = 1;
  list.m_nHost15[1] = 0;
  list.m_nListSetKind = 0;
  list.m_nTitleSwitch = 1;
  list.m_nHost18 = -1;
  list.m_strHost19 = MQ_TEXT("");
  list.m_nHost20 = 0;
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) {
      list.m_ViewMatrix[row][column] = row == column ? 1.0 : 0.0;
    }
  }
  list.m_nHost22[0] = 0;
  list.m_nHost22[1] = 0;
  list.m_nHost22[2] = 0;
  list.m_nUnitOption = 0;
  list.m_arrHost23[0].RemoveAll();
  list.m_arrHost23[1].RemoveAll();
  list.m_nHost24[0] = 0;
  list.m_nHost24[1] = 0;
  list.m_nHost24[2] = 0;
  list.m_nHost24[3] = 0;
  list.m_nHost24[4] = 0;
  list.m_nHost24[5] = 1;
  list.m_nHost24[6] = 0;
  list.m_nHost24[7] = -1;
  list.m_nHost24[8] = -1;
}

MemberLines LinesOfDefaultList() {
  CVekPostListParam list;
  FillWithDistinctValues(list, 7);
  SetListDefaults(list);
  return LinesOf(list);
}

// --- members ---

TEST(List, ANewListHasEveryDefault) {
  const CVekPostListParam list;
  EXPECT_EQ(Differences(list, LinesOfDefaultList()), "");
}

TEST(List, TheValuesOfThisTestTellTheMembersApart) {
  const MemberLines one = LinesOfFilledList(1);
  EXPECT_EQ(Undistinguished(one, LinesOfFilledList(2)), "");
  EXPECT_EQ(Undistinguished(one, LinesOfDefaultList()), "");
  EXPECT_EQ(one.size(), 52U);
}

TEST(List, ACopyHasEveryMemberOfItsSource) {
  CVekPostListParam source;
  FillWithDistinctValues(source, 1);
  const MemberLines expected = LinesOf(source);
  const CVekPostListParam copy(source);
  EXPECT_EQ(Differences(copy, expected), "");
  EXPECT_EQ(Differences(source, expected), "");
  const CVekPostListParam moved(AsTemporary(source));
  EXPECT_EQ(Differences(moved, expected), "");
}

TEST(List, AnAssignedListHasEveryMemberOfItsSource) {
  CVekPostListParam source;
  FillWithDistinctValues(source, 1);
  const MemberLines expected = LinesOf(source);
  CVekPostListParam target;
  FillWithDistinctValues(target, 2);
  CVekPostListParam& result = target = source;
  EXPECT_EQ(&result, &target);
  EXPECT_EQ(Differences(target, expected), "");
  EXPECT_EQ(Differences(source, expected), "");

  CVekPostListParam other;
  FillWithDistinctValues(other, 3);
  other = AsTemporary(source);
  EXPECT_EQ(Differences(other, expected), "");
}

TEST(List, AssigningANewListEmptiesTheArraysUnlikeThoseOfAPlot) {
  CVekPostListParam target;
  FillWithDistinctValues(target, 1);
  const CVekPostListParam source;
  target = source;
  EXPECT_EQ(Differences(target, LinesOfDefaultList()), "");
  EXPECT_TRUE(target.m_arrHost23[0].IsEmpty());
  EXPECT_TRUE(target.m_arrHost23[1].IsEmpty());
}

TEST(List, EachArrayIsTakenOverOnItsOwn) {
  CVekPostListParam source;
  source.m_arrHost23[0].Add(1);
  CVekPostListParam target;
  target.m_arrHost23[0].Add(2);
  target.m_arrHost23[0].Add(3);
  target.m_arrHost23[1].Add(4);
  target = source;
  EXPECT_EQ(Show(target.m_arrHost23[0]), "{1}");
  EXPECT_EQ(Show(target.m_arrHost23[1]), "{}");
  source.m_arrHost23[0].RemoveAll();
  source.m_arrHost23[1].Add(5);
  target = source;
  EXPECT_EQ(Show(target.m_arrHost23[0]), "{}");
  EXPECT_EQ(Show(target.m_arrHost23[1]), "{5}");
}

TEST(List, CopiesAreIndependentOfTheirSource) {
  auto source = std::make_unique<CVekPostListParam>();
  FillWithDistinctValues(*source, 1);
  const MemberLines expected = LinesOf(*source);
  const CVekPostListParam copy(*source);
  CVekPostListParam assigned;
  assigned = *source;
  EXPECT_NE(copy.m_arrHost23[0].GetData(), source->m_arrHost23[0].GetData());
  EXPECT_NE(assigned.m_arrHost23[1].GetData(), source->m_arrHost23[1].GetData());

  FillWithDistinctValues(*source, 3);
  EXPECT_EQ(Differences(copy, expected), "");
  EXPECT_EQ(Differences(assigned, expected), "");
  source.reset();
  EXPECT_EQ(Differences(copy, expected), "");
  EXPECT_EQ(Differences(assigned, expected), "");
}

TEST(List, AListAssignedToItselfStaysAsItIs) {
  CVekPostListParam list;
  FillWithDistinctValues(list, 1);
  const MemberLines expected = LinesOf(list);
  const CVekPostListParam& alias = list;
  list = alias;
  EXPECT_EQ(Differences(list, expected), "");
}

// --- short names ---

struct ShortRow {
  const mqChar* name;
  const mqChar* shortName;
};

// clang-format off
constexpr auto kShortNames = std::to_array<ShortRow>({
    // full name                        short name
    { MQ_TEXT(""),                      MQ_TEXT("") },
    { MQ_TEXT("a"),                     MQ_TEXT("a") },
    { MQ_TEXT("abcdef"),                MQ_TEXT("abcdef") },
    { MQ_TEXT("abcdefgh"),              MQ_TEXT("abcdef") },
    { MQ_TEXT("ab: c"),                 MQ_TEXT("ab") },
    { MQ_TEXT("ab:c:d"),                MQ_TEXT("ab") },
    { MQ_TEXT("a:"),                    MQ_TEXT("a") },
    { MQ_TEXT("ab c"),                  MQ_TEXT("ab") },
    { MQ_TEXT("a b c"),                 MQ_TEXT("a") },
    { MQ_TEXT("a "),                    MQ_TEXT("a") },
    { MQ_TEXT("a b:c"),                 MQ_TEXT("a") },
    { MQ_TEXT("a:b c"),                 MQ_TEXT("a") },
    { MQ_TEXT("abcde:f"),               MQ_TEXT("abcde") },
    { MQ_TEXT("abcde f"),               MQ_TEXT("abcde") },
    { MQ_TEXT("abcdef: g"),             MQ_TEXT("abcdef") },   // behind the sixth they are out of sight
    { MQ_TEXT("abcdef g"),              MQ_TEXT("abcdef") },
    { MQ_TEXT(":x"),                    MQ_TEXT(":x") },       // in front they cut nothing
    { MQ_TEXT(" x"),                    MQ_TEXT(" x") },
    { MQ_TEXT(":"),                     MQ_TEXT(":") },
    { MQ_TEXT(" "),                     MQ_TEXT(" ") },
    { MQ_TEXT(": x"),                   MQ_TEXT(":") },
    { MQ_TEXT(" :x"),                   MQ_TEXT(" ") },
    { MQ_TEXT(":x y"),                  MQ_TEXT(":x") },
    { MQ_TEXT(" x:y"),                  MQ_TEXT(" x") },
    { MQ_TEXT(":a:b"),                  MQ_TEXT(":a:b") },     // the first one decides, as in a look-up
    { MQ_TEXT(" a b"),                  MQ_TEXT(" a b") },
    { MQ_TEXT(":abcdefgh"),             MQ_TEXT(":abcde") },
    { MQ_TEXT("a\tb"),                  MQ_TEXT("a\tb") },     // only a blank cuts
    { MQ_TEXT("a\u00A0b"),              MQ_TEXT("a\u00A0b") },
    { MQ_TEXT("a\uFF1Ab"),              MQ_TEXT("a\uFF1Ab") }, // nor does a colon of full width
    { MQ_TEXT("\u4E2D\u6587\u4E2D\u6587\u4E2D\u6587\u4E2D"), MQ_TEXT("\u4E2D\u6587\u4E2D\u6587\u4E2D\u6587") },
});
// clang-format on

TEST(List, AShortNameIsSixUnitsCutAtAColonAndThenAtABlank) {
  const ReplacedTexts texts;
  const CVekPostListParam single = SingleList(Study::Static, Result::Displacement, 0);
  const CVekPostListParam set = SetList(Study::Static, Result::Displacement, 0);
  for (const ShortRow& row : kShortNames) {
    ReplacedTexts::Set(54578, row.name);
    EXPECT_EQ(single.GetComponentNameShort(0), CString(row.shortName)) << Narrow(row.name);
    EXPECT_EQ(set.GetComponentNameShort(0), CString(row.shortName)) << Narrow(row.name);
    EXPECT_EQ(set.GetListColTitle(1), CString(row.shortName)) << Narrow(row.name);
    EXPECT_EQ(set.GetComponentName(0), CString(row.name)) << Narrow(row.name);
  }
}

TEST(List, SixUnitsMayEndInsideASurrogatePair) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(54578, MQ_TEXT("abcde\U0001F600"));
  const CString name = SetList(Study::Static, Result::Displacement, 0).GetComponentNameShort(0);
  ASSERT_EQ(name.GetLength(), 6);
  EXPECT_EQ(name[5], static_cast<mqChar>(0xD83D));
}

TEST(List, AShortNameIsNotTheColourBarName) {
  const NumberedTexts texts;
  EXPECT_EQ(SeenName(SingleList(Study::Static, Result::Stress, 9).GetComponentNameShort(0)),
            CutAtColon(54600));
}

TEST(List, AComponentWithoutANameHasNoShortOne) {
  const CVekPostListParam list = SetList(Study::Static, Result::Displacement, 0);
  for (const int component : {-1, 4, INT_MIN, INT_MAX}) {
    EXPECT_EQ(list.GetComponentNameShort(component), CString()) << component;
  }
  EXPECT_EQ(SingleList(Study::Dynamic, Result::Stress, 9).GetComponentNameShort(3),
            CString(MQ_TEXT("SEQ")));
}

// --- component indices ---

constexpr int kAnyComponent = INT_MIN + 77;

/// The components of the columns of a list set in the studies that know them; each study is a
/// digit of `studies`.
struct IndicesRow {
  std::string_view studies;
  Result result;
  int kind;
  int component;
  std::vector<int> indices;
};

/// The component that stands for a whole set.
struct SetComponentRow {
  std::string_view studies;
  Result result;
  int kind;
  int index;
};

// clang-format off

const IndicesRow kIndices[] = {
    // studies   result              kind  component        indices
    { "012568",  Result::Displacement, 0,  kAnyComponent, { 0, 1, 2, 3 } },
    { "0568",    Result::Displacement, 1,  kAnyComponent, { 4, 5, 6, 7 } },
    { "08",      Result::Displacement, 2,  kAnyComponent, { 8, 9, 10 } },
    { "2",       Result::Displacement, 2,  kAnyComponent, { 4, 5, 6 } },
    { "08",      Result::Displacement, 3,  kAnyComponent, { 11, 12, 13, 14 } },
    { "0568",    Result::Stress,       0,  kAnyComponent, { 0, 1, 2, 3, 4, 5 } },
    { "8",       Result::Stress,       1,  100,           { 6, 7, 8, 100, 10, 11 } },
    { "056",     Result::Stress,       1,  100,           { 6, 7, 8, -1, 10, 11 } },  // the name is unknown there
    { "0568",    Result::Stress,       1,  kAnyComponent, { 6, 7, 8, 9, 10, 11 } },
    { "0568",    Result::Strain,       0,  kAnyComponent, { 0, 1, 2, 3, 4, 5 } },
    { "0568",    Result::Strain,       1,  kAnyComponent, { 7 } },
    { "0",       Result::Strain,       2,  kAnyComponent, { 9, 10, 11, 6 } },
    { "568",     Result::Strain,       2,  kAnyComponent, { 6 } },
    { "0568",    Result::Strain,       4,  kAnyComponent, { 8 } },
    { "3",       Result::Thermal,      0,  kAnyComponent, { 0, 1, 2, 3, 4 } },
    { "3",       Result::Thermal,      1,  kAnyComponent, { 5, 6, 7, 8 } },
    { "568",     Result::Velocity,     0,  kAnyComponent, { 0, 1, 2, 3 } },
    { "568",     Result::Velocity,     1,  kAnyComponent, { 4, 5, 6 } },
    { "568",     Result::Acceleration, 0,  kAnyComponent, { 0, 1, 2, 3 } },
    { "8",       Result::Acceleration, 1,  kAnyComponent, { 4, 5, 6 } },
    { "56",      Result::Acceleration, 1,  kAnyComponent, { 0, 1, 2 } },              // other names of the first three
};

constexpr auto kSetComponents = std::to_array<SetComponentRow>({
    // studies   result              kind  index
    { "012568",  Result::Displacement, 0,   3 },  // whatever names the display flag shows
    { "0568",    Result::Displacement, 1,   7 },
    { "08",      Result::Displacement, 2,   8 },  // the first rotation, there is no resultant
    { "2",       Result::Displacement, 2,   4 },
    { "08",      Result::Displacement, 3,  14 },
    { "3",       Result::Thermal,      0,   0 },  // the temperature, the first column
    { "3",       Result::Thermal,      1,   8 },
    { "568",     Result::Velocity,     0,   3 },
    { "568",     Result::Velocity,     1,   4 },
    { "568",     Result::Acceleration, 0,   3 },
    { "8",       Result::Acceleration, 1,   4 },
    { "56",      Result::Acceleration, 1,   0 },
    { "0568",    Result::Strain,       1,   7 },
    { "0568",    Result::Strain,       4,   8 },  // kinds 0 and 2, and stresses, have none
});

// clang-format on

bool IsStudyOf(std::string_view studies, int analysisType) {
  return std::ranges::any_of(studies, [=](char digit) { return digit - '0' == analysisType; });
}

/// Component 4 shares the name of component 0.
int ExpectedFatigueIndex(int analysisType, int component) {
  if (analysisType != 7 || component < 0 || component > 4) {
    return -1;
  }
  return component == 4 ? 0 : component;
}

/// The components of the columns of a list set, as many as there are columns.
std::vector<int> ExpectedIndices(int analysisType, int resultType, int kind, int component) {
  const int count = ExpectedSetCount(analysisType, resultType, kind);
  if (resultType == Code(Result::FatigueResult)) {
    return {ExpectedFatigueIndex(analysisType, component)};
  }
  for (const IndicesRow& row : kIndices) {
    if (IsStudyOf(row.studies, analysisType) && Code(row.result) == resultType &&
        row.kind == kind && (row.component == kAnyComponent || row.component == component)) {
      EXPECT_EQ(row.indices.size(), static_cast<std::size_t>(count));
      return row.indices;
    }
  }
  return std::vector<int>(static_cast<std::size_t>(count), -1);
}

int ExpectedSetComponent(int analysisType, int resultType, int kind, int component) {
  if (resultType == Code(Result::FatigueResult)) {
    return ExpectedFatigueIndex(analysisType, component);
  }
  for (const SetComponentRow& row : kSetComponents) {
    if (IsStudyOf(row.studies, analysisType) && Code(row.result) == resultType &&
        row.kind == kind) {
      return row.index;
    }
  }
  return -1;
}

int IndexAt(const std::vector<int>& indices, int column) {
  return column >= 0 && column < static_cast<int>(indices.size())
             ? indices[static_cast<std::size_t>(column)]
             : -1;
}

void CheckEveryComponentIndex() {
  Sweep sweep({"display flag", "analysis type", "result type", "kind", "component", "column"});
  for (const int displayFlag : kDisplayFlags) {
    const ActualFrequencyFlag flag(displayFlag);
    for (const int analysisType : kListStudies) {
      for (const Result result : kListResults) {
        for (const int kind : {-1, 0, 1, 2, 3, 4, 5}) {
          for (const int component : {-1, 0, 1, 2, 3, 4, 5, 9, 100}) {
            const CVekPostListParam list = SetList(analysisType, Code(result), kind, component);
            const std::vector<int> indices =
                ExpectedIndices(analysisType, Code(result), kind, component);
            for (const int column : {INT_MIN, -1, 0, 1, 2, 3, 4, 5, 6, INT_MAX}) {
              sweep.Check(IndexAt(indices, column), list.GetComponentIndex(column), displayFlag,
                          analysisType, Code(result), kind, component, column);
            }
          }
        }
      }
    }
  }
}

TEST(List, EveryColumnOfEveryListSetLeadsToItsComponent) {
  const NumberedTexts texts;
  CheckEveryComponentIndex();
}

TEST(List, EveryColumnWithItsBuiltInTextLeadsToItsComponent) {
  CheckEveryComponentIndex();
}

struct SingleIndexRow {
  Study study;
  Result result;
  int component;
  int variant;
  int column;
  int index;
};

// clang-format off
constexpr auto kSingleIndices = std::to_array<SingleIndexRow>({
    // study               result               component  variant  column  index
    { Study::Static,         Result::Displacement,    5,      0,      0,      5 },
    { Study::Static,         Result::Displacement,   14,      0,      0,     14 },
    { Study::Static,         Result::Displacement,   15,      0,      0,     -1 },
    { Study::Static,         Result::Displacement,    5,      0,      1,     -1 },
    { Study::Static,         Result::Stress,         13,      0,      0,     13 },
    { Study::Static,         Result::Stress,         14,      0,      0,     -1 },  // known with a variant only
    { Study::Static,         Result::Stress,         14,      1,      0,     14 },
    { Study::Static,         Result::Stress,         15,     -1,      0,     15 },
    { Study::Static,         Result::StrainAlt,      11,      0,      0,     11 },
    { Study::Static,         Result::StressAlt,       3,      0,      0,     -1 },
    { Study::Static,         Result::BeamStress,      6,      0,      0,      6 },
    { Study::Static,         Result::ResultType0,     2,      0,      0,     -1 },
    { Study::Frequency,      Result::Displacement,    3,      0,      0,      3 },
    { Study::Frequency,      Result::Displacement,    4,      0,      0,     -1 },  // named, but not looked up
    { Study::Buckling,       Result::Displacement,    6,      0,      0,      6 },
    { Study::Stepped,        Result::Displacement,    8,      0,      0,     -1 },
    { Study::Stepped,        Result::Acceleration,    4,      0,      0,      0 },
    { Study::Dynamic,        Result::Acceleration,    4,      0,      0,      4 },
    { Study::Dynamic,        Result::Velocity,        7,      0,      0,      7 },
    { Study::Thermal,        Result::Thermal,        10,      0,      0,     10 },
    { Study::Fatigue,        Result::FatigueResult,   1,      0,      0,      1 },
    { Study::Fatigue,        Result::FatigueResult,   2,      0,      0,     -1 },  // its full name is no list's
    { Study::Fatigue,        Result::FatigueResult,   4,      0,      0,      0 },
    { Study::Dynamic,        Result::Stress,          9,      0,      3,      9 },
    { Study::Dynamic,        Result::Stress,        100,      0,      3,    100 },
    { Study::Dynamic,        Result::Stress,        100,      0,      0,    100 },
    { Study::Dynamic,        Result::Stress,        100,      0,      1,     -1 },
    { Study::Dynamic,        Result::Stress,          8,      0,      3,     -1 },
    { Study::FlowImport,     Result::FlowVelocity,    3,      0,      0,     -1 },
});
// clang-format on

TEST(List, ASingleComponentIsFoundAgainByItsName) {
  Sweep sweep({"analysis type", "result type", "component", "variant", "column"});
  for (const SingleIndexRow& row : kSingleIndices) {
    CVekPostListParam list = SingleList(row.study, row.result, row.component);
    list.m_nVariant = row.variant;
    sweep.Check(row.index, list.GetComponentIndex(row.column), Code(row.study), Code(row.result),
                row.component, row.variant, row.column);
  }
}

TEST(List, ANameIsLookedUpByItsFirstUnitsOnly) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(54581, MQ_TEXT("DX and more"));
  EXPECT_EQ(SetList(Study::Static, Result::Displacement, 1).GetComponentIndex(0), 0);
}

TEST(List, TheComponentSetIsThatOfEveryColumnAndNothingBehind) {
  constexpr int kGuard = 0x5A5A'5A5A;
  Sweep sweep({"analysis type", "result type", "kind", "component", "column"});
  for (const int analysisType : kListStudies) {
    for (const int resultType : kSweptCodes) {
      for (const int kind : kListSetKinds) {
        for (const int component : {4, 100}) {
          const std::vector<int> expected =
              ExpectedIndices(analysisType, resultType, kind, component);
          std::array<int, 9> set;
          set.fill(kGuard);
          SetList(analysisType, resultType, kind, component).GetComponentSet(&set[1]);
          for (std::size_t place = 0; place < set.size(); ++place) {
            const int column = static_cast<int>(place) - 1;
            const bool isColumn = column >= 0 && column < static_cast<int>(expected.size());
            sweep.Check(isColumn ? IndexAt(expected, column) : kGuard, set[place], analysisType,
                        resultType, kind, component, column);
          }
        }
      }
    }
  }
}

TEST(List, TheComponentSetOfASingleListIsItsComponent) {
  int set[] = {77, 77};
  SingleList(Study::Static, Result::Displacement, 12).GetComponentSet(set);
  EXPECT_EQ(set[0], 12);
  EXPECT_EQ(set[1], 77);
  SingleList(Study::Static, Result::Displacement, 15).GetComponentSet(set);
  EXPECT_EQ(set[0], -1);
  EXPECT_EQ(set[1], 77);
}

TEST(List, WithoutRoomNoComponentSetIsWritten) {
  const CVekPostListParam list = SetList(Study::Static, Result::Stress, 0);
  list.GetComponentSet(nullptr);
  EXPECT_EQ(list.GetComponentCount(), 6);
}

void CheckEverySetComponent() {
  Sweep sweep(
      {"display flag", "analysis type", "result type", "kind", "component", "list-set flag"});
  for (const int displayFlag : {0, 1}) {
    const ActualFrequencyFlag flag(displayFlag);
    for (const int analysisType : kListStudies) {
      for (const int resultType : kSweptCodes) {
        for (const int kind : {-1, 0, 1, 2, 3, 4, 5, 256, INT_MIN, INT_MAX}) {
          for (const int component : {-1, 0, 1, 2, 3, 4, 5, 9}) {
            CVekPostListParam list = SetList(analysisType, resultType, kind, component);
            const int expected = ExpectedSetComponent(analysisType, resultType, kind, component);
            for (const int setFlag : {0, 1}) {
              list.m_nListSetFlag = setFlag;
              sweep.Check(expected, list.GetComponentIndexByListSet(), displayFlag, analysisType,
                          resultType, kind, component, setFlag);
            }
          }
        }
      }
    }
  }
}

TEST(List, EveryListSetHasItsOneComponent) {
  const NumberedTexts texts;
  CheckEverySetComponent();
}

TEST(List, EveryListSetWithBuiltInTextsHasItsOneComponent) {
  CheckEverySetComponent();
}

TEST(List, StressesAndComponentStrainsHaveNoComponentForTheSet) {
  EXPECT_EQ(SetList(Study::Static, Result::Stress, 0).GetComponentIndexByListSet(), -1);
  EXPECT_EQ(SetList(Study::Static, Result::Stress, 1).GetComponentIndexByListSet(), -1);
  EXPECT_EQ(SetList(Study::Static, Result::Strain, 0).GetComponentIndexByListSet(), -1);
  EXPECT_EQ(SetList(Study::Static, Result::Strain, 2).GetComponentIndexByListSet(), -1);
}

TEST(List, TheSetOfAModeShapeIsFoundWhateverItsColumnsAreCalled) {
  const NumberedTexts texts;
  for (const int displayFlag : kDisplayFlags) {
    const ActualFrequencyFlag flag(displayFlag);
    EXPECT_EQ(SetList(Study::Frequency, Result::Displacement, 0).GetComponentIndexByListSet(), 3);
    EXPECT_EQ(SetList(Study::Frequency, Result::Displacement, 2).GetComponentIndexByListSet(), -1);
    EXPECT_EQ(SetList(Study::Buckling, Result::Displacement, 2).GetComponentIndexByListSet(), 4);
  }
}

// --- plots ---

/// The plot that a list must give.
CmqPostDataParam& SetExpectedPlot(CmqPostDataParam& plot, const CVekPostListParam& list,
                                  int component) {
  FillWithDistinctValues(plot, 7);
  SetDefaults(plot);
  plot.m_strPlotName = list.m_strStudyPath;
  plot.m_nAnalysisType = list.m_nAnalysisType;
  plot.m_nResultType = list.m_nResultType;
  plot.m_nComponent = component;
  plot.m_nHost5 = list.m_nHost5;
  plot.m_nVariant = list.m_nVariant;
  plot.m_nHost8 = 0;
  plot.m_nUnitIndex = list.m_nUnitIndex;
  plot.m_nHost12[1] = list.m_nHost10;
  plot.m_nHost12[2] = list.m_nHost24[6];
  plot.m_nHost19 = list.m_nHost18;
  plot.m_strHost20[0] = list.m_strHost19;
  plot.m_nHost21 = list.m_nHost20;
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) {
      plot.m_ViewMatrix[row][column] = list.m_ViewMatrix[row][column];
    }
  }
  plot.m_nHost25[2] = list.m_nHost22[2];
  plot.m_nHost25[3] = list.m_nUnitOption;
  plot.m_nHost25[4] = list.m_nHost24[1];
  plot.m_nHost27[0] = list.m_nHost24[3];
  plot.m_nHost27[3] = list.m_nHost24[4];
  plot.m_nHost28[0] = list.m_nHost24[5];
  plot.m_nHost28[1] = list.m_nHost24[2];
  plot.m_nHost28[5] = list.m_nHost24[7];
  plot.m_nHost28[6] = list.m_nHost24[8];
  return plot;
}

MemberLines LinesOfExpectedPlot(const CVekPostListParam& list, int component) {
  CmqPostDataParam plot;
  return LinesOf(SetExpectedPlot(plot, list, component));
}

TEST(List, APlotOfAFilledListHasItsMembersInTheirPlaces) {
  CVekPostListParam list;
  FillWithDistinctValues(list, 1);
  list.m_nListSetFlag = 0;
  const MemberLines before = LinesOf(list);
  for (const int column : kColumns) {
    EXPECT_EQ(Differences(list.GetDataParam(column), LinesOfExpectedPlot(list, list.m_nComponent)),
              "")
        << column;
  }
  EXPECT_EQ(Differences(list, before), "");
}

TEST(List, APlotOfANewListHasTheDefaultsOfTheList) {
  const CVekPostListParam list;
  const CmqPostDataParam plot = list.GetDataParam(0);
  EXPECT_EQ(Differences(plot, LinesOfExpectedPlot(list, 0)), "");
  EXPECT_EQ(plot.m_nResultType, 0);
  EXPECT_EQ(plot.m_nHost8, 0);
  EXPECT_EQ(plot.m_nHost28[0], 1);
  EXPECT_EQ(plot.m_nHost28[1], 0);
  EXPECT_EQ(plot.m_nHost28[5], -1);
  EXPECT_EQ(plot.m_nHost28[6], -1);
  EXPECT_EQ(plot.m_strHost38, CString(MQ_TEXT(" ")));
}

TEST(List, APlotOfAListSetShowsTheComponentOfTheColumn) {
  CVekPostListParam list;
  FillWithDistinctValues(list, 1);
  list.m_nAnalysisType = Code(Study::Static);
  list.m_nResultType = Code(Result::Displacement);
  list.m_nListSetKind = 1;
  const auto plot = [&list](int column) { return list.GetDataParam(column); };
  EXPECT_EQ(Differences(plot(0), LinesOfExpectedPlot(list, 4)), "");
  EXPECT_EQ(Differences(plot(1), LinesOfExpectedPlot(list, 5)), "");
  EXPECT_EQ(Differences(plot(2), LinesOfExpectedPlot(list, 6)), "");
  EXPECT_EQ(Differences(plot(3), LinesOfExpectedPlot(list, 7)), "");
  for (const int column : {-1, 4, 5, INT_MIN, INT_MAX}) {
    EXPECT_EQ(Differences(plot(column), LinesOfExpectedPlot(list, -1)), "") << column;
  }
}

TEST(List, APlotOfAnUnknownListSetShowsNoComponent) {
  CVekPostListParam list;
  FillWithDistinctValues(list, 1);
  EXPECT_EQ(Differences(list.GetDataParam(0), LinesOfExpectedPlot(list, -1)), "");
}

TEST(List, PlotsOfEveryColumnOfEveryListSet) {
  Sweep sweep({"analysis type", "result type", "kind", "component", "list-set flag", "column"});
  for (const int analysisType : kStudiesAndHoles) {
    for (const Result result : kListResults) {
      for (const int kind : {-1, 0, 1, 2, 3, 4, 5}) {
        for (const int component : {4, 100}) {
          CVekPostListParam list = SetList(analysisType, Code(result), kind, component);
          const std::vector<int> indices =
              ExpectedIndices(analysisType, Code(result), kind, component);
          for (const int column : {-1, 0, 1, 2, 3, 4, 5, 6}) {
            list.m_nListSetFlag = 1;
            sweep.Check(IndexAt(indices, column), list.GetDataParam(column).m_nComponent,
                        analysisType, Code(result), kind, component, 1, column);
            list.m_nListSetFlag = 0;
            sweep.Check(component, list.GetDataParam(column).m_nComponent, analysisType,
                        Code(result), kind, component, 0, column);
          }
        }
      }
    }
  }
}

TEST(List, APlotOfAListIsAssignedByTheRulesOfPlots) {
  CVekPostListParam list;
  FillWithDistinctValues(list, 1);
  list.m_nListSetFlag = 0;
  CmqPostDataParam plot;
  FillWithDistinctValues(plot, 2);
  const MemberLines expected =
      Mixed(LinesOfExpectedPlot(list, list.m_nComponent), LinesOf(plot),
            {"m_arrHost31", "m_arrHost32", "m_arrHost40[0]", "m_arrHost40[1]", "m_nHost41[0]"});
  plot = list.GetDataParam(0);
  EXPECT_EQ(Differences(plot, expected), "");
}

// --- the study ---

TEST(List, TheStudyNameStandsBehindTheLastBackslash) {
  struct Row {
    const mqChar* path;
    const mqChar* name;
  };
  // clang-format off
  constexpr Row kRows[] = {
      { MQ_TEXT("C:\\parts\\Study 1"),     MQ_TEXT("Study 1") },
      { MQ_TEXT("parts\\Study 1"),         MQ_TEXT("Study 1") },
      { MQ_TEXT("Study 1"),                MQ_TEXT("Study 1") },
      { MQ_TEXT(""),                       MQ_TEXT("") },
      { MQ_TEXT("parts\\"),                MQ_TEXT("") },
      { MQ_TEXT("\\"),                     MQ_TEXT("") },
      { MQ_TEXT("\\Study 1"),              MQ_TEXT("Study 1") },
      { MQ_TEXT("a\\\\b"),                 MQ_TEXT("b") },
      { MQ_TEXT("a/b"),                    MQ_TEXT("a/b") },           // only a backslash divides
      { MQ_TEXT("a\\b/c"),                 MQ_TEXT("b/c") },
      { MQ_TEXT("a\uFF3Cb"),               MQ_TEXT("a\uFF3Cb") },
      { MQ_TEXT("\u90E8\u54C1\\\u89E3\u6790 "), MQ_TEXT("\u89E3\u6790 ") },
  };
  // clang-format on
  for (const Row& row : kRows) {
    CVekPostListParam list;
    list.m_strStudyPath = row.path;
    EXPECT_EQ(list.GetStudyName(), CString(row.name)) << Narrow(row.path);
    EXPECT_EQ(list.m_strStudyPath, CString(row.path));
  }
}

// --- units ---

struct UnitRow {
  Study study;
  Result result;
  int component;
  int listSetFlag;
  int kind;
  int unitOption;
  int unitType;
  int unitIndex;
  const mqChar* unitName;
};

// clang-format off
constexpr auto kUnits = std::to_array<UnitRow>({
    // study               result              component flag kind option  type  index  name
    { Study::Static,         Result::Displacement,  4,    0,   0,   0,        2,    1,  MQ_TEXT("lbf") },
    { Study::Static,         Result::Displacement,  4,    1,   0,   0,        0,    4,  MQ_TEXT("ft") },
    { Study::Static,         Result::Displacement,  0,    1,   1,   0,        2,    2,  MQ_TEXT("kgf") },
    { Study::Static,         Result::Displacement,  0,   -1,   1,   0,        2,    0,  MQ_TEXT("N") },
    { Study::Static,         Result::Displacement,  0,    1,   2,   0,        9,    3,  MQ_TEXT("rad") },
    { Study::Static,         Result::Displacement,  0,    1,   3,   0,        3,    1,  MQ_TEXT("lbf.in") },
    { Study::Static,         Result::Displacement,  0,    1,   4,   0,     9999,    0,  MQ_TEXT("") },
    { Study::Static,         Result::Displacement,  0,    0,   1,   0,        0,    2,  MQ_TEXT("m") },
    { Study::Static,         Result::Displacement,  0,    0,   1,   0,        0,   -1,  MQ_TEXT("") },
    { Study::Static,         Result::Stress,       12,    0,   0,   0,     9999,    0,  MQ_TEXT("") },
    { Study::Static,         Result::Stress,       12,    1,   0,   0,        4,    3,  MQ_TEXT("N/mm^2 (MPa)") },
    { Study::Static,         Result::Strain,        7,    0,   0,   0,       20,    1,  MQ_TEXT("ft.lbs/ft^3") },
    { Study::Static,         Result::Strain,        7,    1,   0,   0,     9999,    1,  MQ_TEXT("") },
    { Study::Static,         Result::Strain,        0,    1,   1,   0,       20,    2,  MQ_TEXT("Cal/m^3") },
    { Study::Static,         Result::Strain,        0,    1,   4,   0,       19,    0,  MQ_TEXT("N.m") },
    { Study::Thermal,        Result::Thermal,       8,    1,   0,   0,        5,    2,  MQ_TEXT("Celsius") },
    { Study::Thermal,        Result::Thermal,       0,    1,   1,   0,        7,    0,  MQ_TEXT("W/m^2") },
    { Study::Thermal,        Result::Thermal,      10,    0,   0,   0,       36,    1,  MQ_TEXT("BTU") },
    { Study::Fatigue,        Result::FatigueResult, 4,    0,   0,   0,       37,    3,  MQ_TEXT("day") },
    { Study::Fatigue,        Result::FatigueResult, 4,    1,   0,   0,     9999,    3,  MQ_TEXT("") },   // found again as component 0
    { Study::Stepped,        Result::Displacement,  9,    1,   2,   0,     9999,    0,  MQ_TEXT("") },   // rotations are not looked up there
    { Study::Stepped,        Result::Velocity,      0,    1,   1,   0,       27,    2,  MQ_TEXT("rpm") },
    { Study::Stepped,        Result::Acceleration,  0,    1,   1,   0,       18,    5,  MQ_TEXT("g") },  // found again as component 0
    { Study::Dynamic,        Result::Acceleration,  0,    1,   1,   0,       29,    0,  MQ_TEXT("rad/s^2") },
    { Study::Dynamic,        Result::Displacement,  0,    0,   0,   2,        0,    0,  MQ_TEXT("mm") }, // never a spectral density
    { Study::Dynamic,        Result::Stress,        9,    0,   0,   2,        4,    1,  MQ_TEXT("psi") },
    { Study::Dynamic,        Result::Stress,        9,    1,   1,   2,        4,    4,  MQ_TEXT("ksi") },
    { Study::FlowImport,     Result::FlowVelocity,  0,    0,   0,   0,       14,    2,  MQ_TEXT("m/sec") },
    { Study::FlowImport,     Result::FlowVelocity,  0,    1,   0,   0,       14,    3,  MQ_TEXT("in/sec") },
});
// clang-format on

TEST(List, TheUnitIsThatOfTheComponentOrOfTheOneForTheSet) {
  Sweep types({"analysis type", "result type", "component", "list-set flag", "kind", "option"});
  Sweep names({"analysis type", "result type", "component", "list-set flag", "kind", "index"});
  for (const UnitRow& row : kUnits) {
    CVekPostListParam list = SetList(row.study, row.result, row.kind, row.component);
    list.m_nListSetFlag = row.listSetFlag;
    list.m_nUnitOption = row.unitOption;
    list.m_nUnitIndex = row.unitIndex;
    types.Check(row.unitType, list.GetUnitType(), Code(row.study), Code(row.result), row.component,
                row.listSetFlag, row.kind, row.unitOption);
    names.Check(CString(row.unitName), list.GetUnitName(), Code(row.study), Code(row.result),
                row.component, row.listSetFlag, row.kind, row.unitIndex);
  }
}

TEST(List, ModeShapesHaveAUnitWhileTheDisplayFlagIsOne) {
  CVekPostListParam list = SetList(Study::Buckling, Result::Displacement, 2);
  list.m_nUnitIndex = 3;
  {
    const ActualFrequencyFlag flag(0);
    EXPECT_EQ(list.GetUnitType(), 9999);
    EXPECT_EQ(list.GetUnitName(), CString());
  }
  {
    const ActualFrequencyFlag flag(1);
    EXPECT_EQ(list.GetUnitType(), 9);
    EXPECT_EQ(list.GetUnitName(), CString(MQ_TEXT("rad")));
  }
  const ActualFrequencyFlag flag(2);
  EXPECT_EQ(list.GetUnitType(), 9999);
}

TEST(List, UnitsOfEveryListSetAndOfEverySingleComponent) {
  Sweep sweep({"display flag", "analysis type", "result type", "kind", "component", "option",
               "list-set flag"});
  for (const int displayFlag : {0, 1}) {
    const ActualFrequencyFlag flag(displayFlag);
    for (const int analysisType : kListStudies) {
      for (const int resultType : kSweptCodes) {
        for (const int kind : {0, 1, 2, 3, 4}) {
          for (const int component : {0, 3, 4, 8, 12}) {
            CVekPostListParam list = SetList(analysisType, resultType, kind, component);
            const int setComponent =
                ExpectedSetComponent(analysisType, resultType, kind, component);
            for (const int option : {0, 2}) {
              list.m_nUnitOption = option;
              list.m_nListSetFlag = 1;
              sweep.Check(
                  vekPostCommonGetUnitType(analysisType, resultType, setComponent, option, 0),
                  list.GetUnitType(), displayFlag, analysisType, resultType, kind, component,
                  option, 1);
              list.m_nListSetFlag = 0;
              sweep.Check(vekPostCommonGetUnitType(analysisType, resultType, component, option, 0),
                          list.GetUnitType(), displayFlag, analysisType, resultType, kind,
                          component, option, 0);
            }
          }
        }
      }
    }
  }
}

// --- pairs ---

template <class Pair>
class ListPairs : public testing::Test {};
using PairTypes = testing::Types<CVekPostListPair, CVekIntPair>;
TYPED_TEST_SUITE(ListPairs, PairTypes);

TYPED_TEST(ListPairs, ANewPairHoldsZeros) {
  static_assert(std::has_virtual_destructor_v<TypeParam>);
  alignas(TypeParam) std::array<unsigned char, sizeof(TypeParam)> memory;
  memory.fill(0xAA);
  auto* const pair = new (memory.data()) TypeParam;
  EXPECT_EQ(pair->m_nFirst, 0);
  EXPECT_EQ(pair->m_nSecond, 0);
  pair->~TypeParam();
}

TYPED_TEST(ListPairs, CopiesHoldBothIntegersOnTheirOwn) {
  TypeParam source;
  source.m_nFirst = INT_MIN;
  source.m_nSecond = INT_MAX;
  const TypeParam copy(source);
  TypeParam assigned;
  assigned.m_nFirst = 3;
  assigned.m_nSecond = 4;
  TypeParam& result = assigned = source;
  EXPECT_EQ(&result, &assigned);
  source.m_nFirst = 1;
  source.m_nSecond = 2;
  EXPECT_EQ(copy.m_nFirst, INT_MIN);
  EXPECT_EQ(copy.m_nSecond, INT_MAX);
  EXPECT_EQ(assigned.m_nFirst, INT_MIN);
  EXPECT_EQ(assigned.m_nSecond, INT_MAX);
}

TYPED_TEST(ListPairs, APairAssignedToItselfStaysAsItIs) {
  TypeParam pair;
  pair.m_nFirst = 5;
  pair.m_nSecond = 6;
  const TypeParam& alias = pair;
  pair = alias;
  EXPECT_EQ(pair.m_nFirst, 5);
  EXPECT_EQ(pair.m_nSecond, 6);
}

TYPED_TEST(ListPairs, ADerivedPairIsDestroyedThroughItsBase) {
  struct Derived : TypeParam {
    explicit Derived(bool& isGone) : m_isGone(isGone) {}
    ~Derived() override { m_isGone = true; }
    bool& m_isGone;
  };
  bool isGone = false;
  std::unique_ptr<TypeParam> pair = std::make_unique<Derived>(isGone);
  pair.reset();
  EXPECT_TRUE(isGone);
}

}  // namespace
}  // namespace mqp::test
