#include <array>
#include <climits>
#include <cstddef>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/names.h>
#include <mqPostCommon/lists/list.h>

#include "catalogue/catalogue_test_support.h"
#include "catalogue/name_test_support.h"
#include "lists/list_test_support.h"
#include "params/record_test_support.h"

namespace mqp::test {
namespace {

// --- tables of the expected columns ---

enum class When {
  Always,
  Normalised,     ///< mode shapes while the display flag is 0
  NotNormalised,  ///< any other displacement
  OverTime,       ///< analysis types 5, 6 and 8
  NotOverTime,
  Component100,
  AnotherComponent,
};

/// The columns of a list set in order; behind the last one stands 0.
struct ColumnRow {
  Result result;
  int kind;
  When when;
  std::array<UINT, 6> ids;
};

struct FatigueRow {
  int component;
  UINT id;
};

// clang-format off

constexpr auto kColumnIds = std::to_array<ColumnRow>({
    // result              kind  when                    ids
    { Result::Displacement, 0, When::NotNormalised,    { 54578, 54579, 54580, 50341 } },
    { Result::Displacement, 0, When::Normalised,       { 54865, 54866, 54867, 54868 } },
    { Result::Displacement, 1, When::Always,           { 54581, 54582, 54583, 50345 } },
    { Result::Displacement, 2, When::NotNormalised,    { 54584, 54585, 54586 } },
    { Result::Displacement, 2, When::Normalised,       { 55269, 55270, 55271 } },
    { Result::Displacement, 3, When::Always,           { 54587, 54588, 54589, 54590 } },
    { Result::Stress,       0, When::Always,           { 54591, 54592, 54593, 54594, 54595, 54596 } },
    { Result::Stress,       1, When::AnotherComponent, { 54597, 54598, 54599, 54600, 54601, 55085 } },
    { Result::Stress,       1, When::Component100,     { 54597, 54598, 54599, 56061, 54601, 55085 } },
    { Result::Strain,       0, When::Always,           { 54603, 54604, 54605, 54606, 54607, 54608 } },
    { Result::Strain,       1, When::Always,           { 54610 } },
    { Result::Strain,       2, When::OverTime,         { 54609 } },
    { Result::Strain,       2, When::NotOverTime,      { 50177, 50178, 50179, 54609 } },
    { Result::Strain,       4, When::Always,           { 54611 } },
    { Result::Thermal,      0, When::Always,           { 54612, 54613, 54614, 54615, 54616 } },
    { Result::Thermal,      1, When::Always,           { 54617, 54618, 54619, 50264 } },
    { Result::Velocity,     0, When::Always,           { 54405, 54406, 54407, 54411 } },  // the resultant's id leaves the run
    { Result::Velocity,     1, When::Always,           { 54408, 54409, 54410 } },
    { Result::Acceleration, 0, When::Always,           { 54412, 54413, 54414, 54418 } },
    { Result::Acceleration, 1, When::Always,           { 54415, 54416, 54417 } },
});

constexpr auto kFatigueIds = std::to_array<FatigueRow>({
    // component  id
    { 0,          54745 },
    { 1,          54746 },
    { 2,          54747 },
    { 3,          54749 },  // 54748 is no column
    { 4,          54745 },  // the life in time units shares the name of component 0
});

// clang-format on

bool Holds(When when, int analysisType, int component, int displayFlag) {
  const bool isNormalised = (analysisType == 1 || analysisType == 2) && displayFlag == 0;
  switch (when) {
    case When::Always: return true;
    case When::Normalised: return isNormalised;
    case When::NotNormalised: return !isNormalised;
    case When::OverTime: return IsOverTime(analysisType);
    case When::NotOverTime: return !IsOverTime(analysisType);
    case When::Component100: return component == 100;
    case When::AnotherComponent: return component != 100;
  }
  return false;
}

/// The ids of the columns of a list set; 0 for a column without a name.
std::vector<UINT> ExpectedSetIds(int analysisType, int resultType, int kind, int component,
                                 int displayFlag) {
  if (resultType == Code(Result::FatigueResult)) {
    for (const FatigueRow& row : kFatigueIds) {
      if (row.component == component) {
        return {row.id};
      }
    }
    return {0};
  }
  std::vector<UINT> ids;
  for (const ColumnRow& row : kColumnIds) {
    if (Code(row.result) == resultType && row.kind == kind &&
        Holds(row.when, analysisType, component, displayFlag)) {
      for (const UINT id : row.ids) {
        if (id != 0) {
          ids.push_back(id);
        }
      }
    }
  }
  return ids;
}

UINT IdAt(const std::vector<UINT>& ids, int column) {
  return column >= 0 && column < static_cast<int>(ids.size())
             ? ids[static_cast<std::size_t>(column)]
             : 0;
}

Name FullName(UINT id) {
  return id == 0 ? kNoName : Whole(id);
}
/// The numbered texts have their colon behind the fifth code unit.
Name ShortName(UINT id) {
  return id == 0 ? kNoName : CutAtColon(id);
}

/// Single components with the ids of their full names, for lists without a list set.
struct SingleRow {
  Study study;
  Result result;
  int component;
  int displayFlag;
  UINT id;
};

// clang-format off
constexpr auto kSingles = std::to_array<SingleRow>({
    // study               result              component  flag  id
    { Study::Static,         Result::Displacement,    0,    0,  54578 },  // never the alternate 54751
    { Study::Static,         Result::Displacement,    3,    0,  50341 },
    { Study::Static,         Result::Displacement,    4,    1,  54581 },
    { Study::Static,         Result::Displacement,   14,    0,  54590 },
    { Study::Static,         Result::Displacement,   15,    0,      0 },
    { Study::Static,         Result::Stress,          9,    0,  54600 },
    { Study::Static,         Result::Stress,         14,    0,  54494 },
    { Study::Static,         Result::Stress,        100,    0,      0 },
    { Study::Static,         Result::Strain,          9,    0,  50177 },
    { Study::Static,         Result::StrainAlt,       6,    0,  54609 },
    { Study::Static,         Result::StressAlt,       2,    0,  54525 },
    { Study::Static,         Result::FactorOfSafety,  1,    0,  53575 },
    { Study::Static,         Result::ResultType18,    1,    0,  53156 },
    { Study::Static,         Result::BeamStress,      6,    0,  54014 },
    { Study::Static,         Result::ResultType0,    50,    0,  50330 },
    { Study::Static,         Result::Displacement,   -1,    0,      0 },
    { Study::Frequency,      Result::Displacement,    0,    0,  54865 },
    { Study::Frequency,      Result::Displacement,    0,    1,  54578 },
    { Study::Frequency,      Result::Displacement,    0,    2,  54578 },
    { Study::Buckling,       Result::Displacement,    6,    0,  55271 },
    { Study::Buckling,       Result::Displacement,    6,   -1,  54586 },
    { Study::Thermal,        Result::Thermal,        10,    0,  54556 },
    { Study::Stepped,        Result::Stress,         13,    0,  54718 },  // a beam mesh is not asked for
    { Study::Stepped,        Result::Displacement,    0,    0,  54578 },
    { Study::SteppedReduced, Result::Velocity,        3,    0,  54411 },
    { Study::SteppedReduced, Result::Acceleration,    4,    0,  54415 },
    { Study::Fatigue,        Result::FatigueResult,   2,    0,  54020 },  // the list set has 54747
    { Study::Fatigue,        Result::FatigueResult,   4,    0,  54745 },
    { Study::Dynamic,        Result::Displacement,   15,    0,  54419 },
    { Study::Dynamic,        Result::Displacement,    0,    0,  54578 },
    { Study::Dynamic,        Result::Stress,          0,    0,  54591 },  // of a beam mesh it were 52020
    { Study::Dynamic,        Result::Stress,          8,    0,  54599 },
    { Study::Dynamic,        Result::Stress,          9,    0,  54600 },
    { Study::Dynamic,        Result::Stress,         10,    0,  54601 },
    { Study::Dynamic,        Result::Stress,         12,    0,      0 },
    { Study::Dynamic,        Result::Stress,         99,    0,      0 },
    { Study::Dynamic,        Result::Stress,        100,    0,  56061 },
    { Study::Dynamic,        Result::Stress,        101,    0,      0 },
    { Study::Dynamic,        Result::Strain,          9,    0,  50177 },
    { Study::FlowImport,     Result::FlowVelocity,    3,    0,      0 },
});
// clang-format on

/// Whether a list without a list set has the column 3 that lies outside its count.
bool HasColumnThree(const SingleRow& row) {
  return row.study == Study::Dynamic && row.result == Result::Stress &&
         (row.component == 9 || row.component == 100);
}

// --- counts ---

TEST(ListColumns, EveryKindOfEveryResultInEveryStudy) {
  constexpr int kSetFlags[] = {1, -1, 2, 256, INT_MIN};
  Sweep sweep({"analysis type", "result type", "kind", "list-set flag"});
  for (const int analysisType : kListStudies) {
    for (const int resultType : kSweptCodes) {
      for (const int kind : kListSetKinds) {
        CVekPostListParam list = SetList(analysisType, resultType, kind);
        const int expected = ExpectedSetCount(analysisType, resultType, kind);
        for (const int flag : kSetFlags) {
          list.m_nListSetFlag = flag;
          sweep.Check(expected, list.GetComponentCount(), analysisType, resultType, kind, flag);
          sweep.Check(expected + 1, list.GetListColCount(), analysisType, resultType, kind, flag);
        }
        list.m_nListSetFlag = 0;
        sweep.Check(1, list.GetComponentCount(), analysisType, resultType, kind, 0);
        sweep.Check(2, list.GetListColCount(), analysisType, resultType, kind, 0);
      }
    }
  }
}

TEST(ListColumns, ANewListHasOneComponentColumn) {
  const CVekPostListParam list;
  EXPECT_EQ(list.GetComponentCount(), 1);
  EXPECT_EQ(list.GetListColCount(), 2);
}

TEST(ListColumns, TheComponentChangesNoCount) {
  Sweep sweep({"component", "result type", "kind"});
  for (const int component : kListedComponents) {
    for (const Result result : kListResults) {
      for (const int kind : kListSetKinds) {
        const CVekPostListParam list = SetList(Code(Study::Dynamic), Code(result), kind, component);
        sweep.Check(ExpectedSetCount(Code(Study::Dynamic), Code(result), kind),
                    list.GetComponentCount(), component, Code(result), kind);
      }
    }
  }
}

TEST(ListColumns, PrincipalStrainsAreNotListedOverTime) {
  EXPECT_EQ(SetList(Study::Static, Result::Strain, 2).GetComponentCount(), 4);
  EXPECT_EQ(SetList(Study::Stepped, Result::Strain, 2).GetComponentCount(), 1);
  EXPECT_EQ(SetList(Study::SteppedReduced, Result::Strain, 2).GetComponentCount(), 1);
  EXPECT_EQ(SetList(Study::Fatigue, Result::Strain, 2).GetComponentCount(), 4);
  EXPECT_EQ(SetList(Study::Dynamic, Result::Strain, 2).GetComponentCount(), 1);
}

TEST(ListColumns, AlternativeResultsHaveNoListSets) {
  EXPECT_EQ(SetList(Study::Static, Result::StrainAlt, 0).GetComponentCount(), 0);
  EXPECT_EQ(SetList(Study::Static, Result::StressAlt, 0).GetComponentCount(), 0);
  EXPECT_EQ(SetList(Study::Static, Result::BeamStress, 0).GetListColCount(), 1);
}

// --- names with a list set ---

TEST(ListColumns, EveryColumnOfEveryListSet) {
  const NumberedTexts texts;
  Sweep sweep({"display flag", "analysis type", "result type", "kind", "component", "column"});
  for (const int displayFlag : kDisplayFlags) {
    const ActualFrequencyFlag flag(displayFlag);
    for (const int analysisType : kListStudies) {
      for (const Result result : kListResults) {
        for (const int kind : kListSetKinds) {
          for (const int component : kListedComponents) {
            const CVekPostListParam list = SetList(analysisType, Code(result), kind, component);
            const std::vector<UINT> ids =
                ExpectedSetIds(analysisType, Code(result), kind, component, displayFlag);
            for (const int column : kColumns) {
              sweep.Check(FullName(IdAt(ids, column)), SeenName(list.GetComponentName(column)),
                          displayFlag, analysisType, Code(result), kind, component, column);
            }
          }
        }
      }
    }
  }
}

TEST(ListColumns, EveryResultTypeInEveryStudy) {
  const NumberedTexts texts;
  constexpr int kDisplayFlag = 0;
  constexpr int kComponent = 9;
  const ActualFrequencyFlag flag(kDisplayFlag);
  Sweep sweep({"analysis type", "result type", "kind", "column"});
  for (const int analysisType : kListStudies) {
    for (const int resultType : kSweptCodes) {
      for (const int kind : kListSetKinds) {
        const CVekPostListParam list = SetList(analysisType, resultType, kind, kComponent);
        const std::vector<UINT> ids =
            ExpectedSetIds(analysisType, resultType, kind, kComponent, kDisplayFlag);
        for (const int column : {-1, 0, 1, 3, 6}) {
          sweep.Check(FullName(IdAt(ids, column)), SeenName(list.GetComponentName(column)),
                      analysisType, resultType, kind, column);
        }
      }
    }
  }
}

TEST(ListColumns, AsManyColumnsHaveNamesAsAreCounted) {
  Sweep sweep({"analysis type", "result type", "kind", "column"});
  for (const int analysisType : kStudiesAndHoles) {
    for (const Result result : kListResults) {
      for (const int kind : kListSetKinds) {
        const CVekPostListParam list = SetList(analysisType, Code(result), kind);
        const int count = ExpectedSetCount(analysisType, Code(result), kind);
        for (const int column : kColumns) {
          sweep.Check(column >= 0 && column < count, !list.GetComponentName(column).IsEmpty(),
                      analysisType, Code(result), kind, column);
        }
      }
    }
  }
}

TEST(ListColumns, BuiltInTextsOfEveryListSet) {
  Sweep sweep({"display flag", "analysis type", "result type", "kind", "column"});
  for (const int displayFlag : {0, 1}) {
    const ActualFrequencyFlag flag(displayFlag);
    for (const int analysisType : kStudiesAndHoles) {
      for (const Result result : kListResults) {
        for (const int kind : kListSetKinds) {
          const CVekPostListParam list = SetList(analysisType, Code(result), kind);
          const std::vector<UINT> ids =
              ExpectedSetIds(analysisType, Code(result), kind, 0, displayFlag);
          for (int column = 0; column < static_cast<int>(ids.size()); ++column) {
            const CString expected = LoadText(IdAt(ids, column));
            EXPECT_FALSE(expected.IsEmpty()) << IdAt(ids, column);
            sweep.Check(expected, list.GetComponentName(column), displayFlag, analysisType,
                        Code(result), kind, column);
          }
        }
      }
    }
  }
}

TEST(ListColumns, EveryFlagButZeroListsASet) {
  const NumberedTexts texts;
  for (const int flag : {1, 2, -1, 256, INT_MIN, INT_MAX}) {
    CVekPostListParam list = SetList(Study::Static, Result::Displacement, 1);
    list.m_nListSetFlag = flag;
    EXPECT_EQ(SeenName(list.GetComponentName(3)), Whole(50345)) << flag;
  }
}

TEST(ListColumns, TheVariantChangesNoName) {
  const NumberedTexts texts;
  for (const int variant : kSweptOptions) {
    CVekPostListParam list = SetList(Study::Static, Result::Stress, 1);
    list.m_nVariant = variant;
    EXPECT_EQ(SeenName(list.GetComponentName(5)), Whole(55085)) << variant;
    list = SingleList(Study::Static, Result::Displacement, 0);
    list.m_nVariant = variant;
    EXPECT_EQ(SeenName(list.GetComponentName(0)), Whole(54578)) << variant;
  }
}

TEST(ListColumns, ModeShapesChangeTheirNamesWithTheDisplayFlag) {
  const NumberedTexts texts;
  for (const Study study : {Study::Frequency, Study::Buckling}) {
    const CVekPostListParam translations = SetList(study, Result::Displacement, 0);
    const CVekPostListParam rotations = SetList(study, Result::Displacement, 2);
    {
      const ActualFrequencyFlag flag(0);
      EXPECT_EQ(SeenName(translations.GetComponentName(3)), Whole(54868));
      EXPECT_EQ(SeenName(rotations.GetComponentName(2)), Whole(55271));
    }
    for (const int set : {1, 2, -1}) {
      const ActualFrequencyFlag flag(set);
      EXPECT_EQ(SeenName(translations.GetComponentName(3)), Whole(50341)) << set;
      EXPECT_EQ(SeenName(rotations.GetComponentName(2)), Whole(54586)) << set;
    }
  }
}

TEST(ListColumns, ReactionsOfModeShapesKeepTheirNamesWhateverTheDisplayFlag) {
  const NumberedTexts texts;
  for (const int set : kDisplayFlags) {
    const ActualFrequencyFlag flag(set);
    for (const Study study : {Study::Frequency, Study::Buckling}) {
      EXPECT_EQ(SeenName(SetList(study, Result::Displacement, 1).GetComponentName(0)),
                Whole(54581));
      EXPECT_EQ(SeenName(SetList(study, Result::Displacement, 3).GetComponentName(3)),
                Whole(54590));
    }
    EXPECT_EQ(SeenName(SetList(Study::Static, Result::Displacement, 0).GetComponentName(0)),
              Whole(54578));
  }
}

TEST(ListColumns, Component100RenamesTheFourthColumnInEveryStudy) {
  const NumberedTexts texts;
  for (const int analysisType : kListStudies) {
    const auto column = [analysisType](int kind, int component, int index) {
      return SeenName(
          SetList(analysisType, Code(Result::Stress), kind, component).GetComponentName(index));
    };
    EXPECT_EQ(column(1, 100, 3), Whole(56061)) << analysisType;
    EXPECT_EQ(column(1, 99, 3), Whole(54600)) << analysisType;
    EXPECT_EQ(column(1, 9, 3), Whole(54600)) << analysisType;
    EXPECT_EQ(column(1, 100, 2), Whole(54599)) << analysisType;
    EXPECT_EQ(column(1, 100, 4), Whole(54601)) << analysisType;
    EXPECT_EQ(column(0, 100, 3), Whole(54594)) << analysisType;
  }
}

TEST(ListColumns, FatigueColumnsAreNamedByTheComponent) {
  const NumberedTexts texts;
  for (const int kind : kListSetKinds) {
    const auto column = [kind](int component, int index) {
      return SeenName(
          SetList(Study::Fatigue, Result::FatigueResult, kind, component).GetComponentName(index));
    };
    EXPECT_EQ(column(0, 0), Whole(54745)) << kind;
    EXPECT_EQ(column(1, 0), Whole(54746)) << kind;
    EXPECT_EQ(column(2, 0), Whole(54747)) << kind;
    EXPECT_EQ(column(3, 0), Whole(54749)) << kind;
    EXPECT_EQ(column(4, 0), Whole(54745)) << kind;
    EXPECT_EQ(column(5, 0), kNoName) << kind;
    EXPECT_EQ(column(-1, 0), kNoName) << kind;
    EXPECT_EQ(column(1, 1), kNoName) << kind;
  }
}

TEST(ListColumns, AFatigueListSetNamesComponentTwoUnlikeTheCatalogue) {
  const NumberedTexts texts;
  EXPECT_EQ(SeenName(SetList(Study::Fatigue, Result::FatigueResult, 0, 2).GetComponentName(0)),
            Whole(54747));
  EXPECT_EQ(SeenName(SingleList(Study::Fatigue, Result::FatigueResult, 2).GetComponentName(0)),
            Whole(54020));
}

TEST(ListColumns, FurtherKindsOfAThermalListHaveNoColumns) {
  const NumberedTexts texts;
  for (const int kind : {-1, 2, 3, 4, 5, 256}) {
    const CVekPostListParam list = SetList(Study::Thermal, Result::Thermal, kind);
    for (const int column : kColumns) {
      EXPECT_EQ(list.GetComponentName(column), CString()) << kind << ", " << column;
    }
  }
}

TEST(ListColumns, ATextThatTheTableLacksIsEmpty) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(54581, MQ_TEXT(""));
  EXPECT_TRUE(SetList(Study::Static, Result::Displacement, 1).GetComponentName(0).IsEmpty());
}

// --- names without a list set ---

TEST(ListColumns, ASingleComponentHasItsFullName) {
  const NumberedTexts texts;
  Sweep sweep({"analysis type", "result type", "component", "display flag", "column"});
  for (const SingleRow& row : kSingles) {
    const ActualFrequencyFlag flag(row.displayFlag);
    const CVekPostListParam list = SingleList(row.study, row.result, row.component);
    for (const int column : kColumns) {
      const bool hasName = column == 0 || (column == 3 && HasColumnThree(row));
      sweep.Check(hasName ? FullName(row.id) : kNoName, SeenName(list.GetComponentName(column)),
                  Code(row.study), Code(row.result), row.component, row.displayFlag, column);
    }
  }
}

TEST(ListColumns, EverySingleComponentIsNamedAsInTheCatalogue) {
  const NumberedTexts texts;
  Sweep sweep({"display flag", "analysis type", "result type", "component", "kind"});
  for (const int displayFlag : {0, 1}) {
    const ActualFrequencyFlag flag(displayFlag);
    for (const int analysisType : kStudiesAndHoles) {
      for (const int resultType : kSweptCodes) {
        for (int component = -1; component <= 17; ++component) {
          CVekPostListParam list = SingleList(analysisType, resultType, component);
          const CString expected =
              vekPostCommonGetComponentName(analysisType, resultType, 0, component, 0, 0);
          for (const int kind : {0, 1}) {
            list.m_nListSetKind = kind;
            sweep.Check(expected, list.GetComponentName(0), displayFlag, analysisType, resultType,
                        component, kind);
          }
        }
      }
    }
  }
}

TEST(ListColumns, OnlyTheEquivalentStressOfADynamicStudyHasAColumnThree) {
  const NumberedTexts texts;
  Sweep sweep({"analysis type", "result type", "component", "column"});
  for (const int analysisType : kListStudies) {
    for (const int resultType : kSweptCodes) {
      for (const int component : kListedComponents) {
        const CVekPostListParam list = SingleList(analysisType, resultType, component);
        const bool isMeant = analysisType == 8 && resultType == 2;
        const UINT id = !isMeant ? 0 : component == 9 ? 54600 : component == 100 ? 56061 : 0;
        for (const int column : {-1, 1, 2, 3, 4, 5, 256 + 3, INT_MIN + 3, INT_MAX}) {
          sweep.Check(column == 3 ? FullName(id) : kNoName, SeenName(list.GetComponentName(column)),
                      analysisType, resultType, component, column);
        }
      }
    }
  }
}

TEST(ListColumns, AListSetWithoutColumnsHasNoColumnThreeEither) {
  const NumberedTexts texts;
  for (const int component : {9, 100}) {
    for (const int kind : {-1, 2, 3, 4, 5}) {
      EXPECT_EQ(
          SeenName(SetList(Study::Dynamic, Result::Stress, kind, component).GetComponentName(3)),
          kNoName)
          << component << ", " << kind;
    }
  }
}

TEST(ListColumns, TheKindOfASingleListHasNoEffect) {
  const NumberedTexts texts;
  for (const int kind : kListSetKinds) {
    CVekPostListParam list = SingleList(Study::Dynamic, Result::Stress, 100);
    list.m_nListSetKind = kind;
    EXPECT_EQ(SeenName(list.GetComponentName(0)), Whole(56061)) << kind;
    EXPECT_EQ(SeenName(list.GetComponentName(1)), kNoName) << kind;
    EXPECT_EQ(SeenName(list.GetComponentName(3)), Whole(56061)) << kind;
  }
}

// --- titles ---

constexpr int kFlagStates[] = {0, 1, -1};
constexpr int kVariants[] = {0, 1, -1, 256};

/// The title of a column of a list without a list set.
Name ExpectedSingleTitle(const SingleRow& row, int variant, int column) {
  switch (column) {
    case 0: return Whole(variant == 0 ? 50733 : 50757);
    case 1: return ShortName(row.id);
    case 3: return HasColumnThree(row) ? ShortName(row.id) : kNoName;
    default: return kNoName;
  }
}

TEST(ListTitles, EverySingleList) {
  const NumberedTexts texts;
  Sweep sweep({"analysis type", "result type", "component", "variant", "title switch",
               "unit option", "kind", "column"});
  for (const SingleRow& row : kSingles) {
    const ActualFrequencyFlag flag(row.displayFlag);
    CVekPostListParam list = SingleList(row.study, row.result, row.component);
    for (const int variant : kVariants) {
      list.m_nVariant = variant;
      for (const int titleSwitch : kFlagStates) {
        list.m_nTitleSwitch = titleSwitch;
        for (const int option : kFlagStates) {
          list.m_nUnitOption = option;
          for (const int kind : {0, 1}) {
            list.m_nListSetKind = kind;
            for (const int column : kColumns) {
              sweep.Check(ExpectedSingleTitle(row, variant, column),
                          SeenName(list.GetListColTitle(column)), Code(row.study), Code(row.result),
                          row.component, variant, titleSwitch, option, kind, column);
            }
          }
        }
      }
    }
  }
}

/// The title of a column of a list with a list set.
Name ExpectedSetTitle(const CVekPostListParam& list, const std::vector<UINT>& ids, int column) {
  if (column < 0 || column > static_cast<int>(ids.size())) {
    return kNoName;
  }
  if (column == 0) {
    return Whole(list.m_nVariant != 0 && list.m_nTitleSwitch != 0 ? 50757 : 50733);
  }
  const bool isDynamicStress =
      list.m_nListSetKind == 1 && list.m_nAnalysisType == 8 && list.m_nResultType == 2;
  if (isDynamicStress && list.m_nUnitOption != 0) {
    return ShortName(IdAt(ids, list.m_nVariant == 0 ? column : 3));
  }
  return ShortName(IdAt(ids, column - 1));
}

TEST(ListTitles, EveryListSet) {
  const NumberedTexts texts;
  Sweep sweep({"display flag", "analysis type", "result type", "kind", "component", "variant",
               "title switch", "unit option", "column"});
  for (const int displayFlag : {0, 1}) {
    const ActualFrequencyFlag flag(displayFlag);
    for (const int analysisType : kStudiesAndHoles) {
      for (const Result result : kListResults) {
        for (const int kind : {-1, 0, 1, 2, 3, 4, 5}) {
          for (const int component : {0, 9, 100}) {
            CVekPostListParam list = SetList(analysisType, Code(result), kind, component);
            const std::vector<UINT> ids =
                ExpectedSetIds(analysisType, Code(result), kind, component, displayFlag);
            for (const int variant : {0, 1, -1}) {
              list.m_nVariant = variant;
              for (const int titleSwitch : {0, 1, -1}) {
                list.m_nTitleSwitch = titleSwitch;
                for (const int option : {0, 1, -1}) {
                  list.m_nUnitOption = option;
                  for (const int column : {INT_MIN, -1, 0, 1, 2, 3, 4, 5, 6, 7, INT_MAX}) {
                    sweep.Check(ExpectedSetTitle(list, ids, column),
                                SeenName(list.GetListColTitle(column)), displayFlag, analysisType,
                                Code(result), kind, component, variant, titleSwitch, option,
                                column);
                  }
                }
              }
            }
          }
        }
      }
    }
  }
}

/// The titles of columns 1 to 6 of a stress list of kind 1.
struct TitlesRow {
  Study study;
  int component;
  int variant;
  int unitOption;
  std::array<UINT, 6> ids;
};

// clang-format off
constexpr auto kStressTitles = std::to_array<TitlesRow>({
    // study        component  variant  option  titles of columns 1 to 6
    { Study::Dynamic,     9,      0,      0,    { 54597, 54598, 54599, 54600, 54601, 55085 } },
    { Study::Dynamic,     9,      0,      1,    { 54598, 54599, 54600, 54601, 55085,     0 } },  // shifted, the last one empty
    { Study::Dynamic,   100,      0,      1,    { 54598, 54599, 56061, 54601, 55085,     0 } },
    { Study::Dynamic,     9,      0,     -1,    { 54598, 54599, 54600, 54601, 55085,     0 } },
    { Study::Dynamic,     9,      0,      2,    { 54598, 54599, 54600, 54601, 55085,     0 } },
    { Study::Dynamic,     9,      1,      0,    { 54597, 54598, 54599, 54600, 54601, 55085 } },
    { Study::Dynamic,     9,      1,      1,    { 54600, 54600, 54600, 54600, 54600, 54600 } },  // one title for all
    { Study::Dynamic,   100,     -1,      2,    { 56061, 56061, 56061, 56061, 56061, 56061 } },
    { Study::Static,      9,      0,      1,    { 54597, 54598, 54599, 54600, 54601, 55085 } },
    { Study::Static,      9,      1,      1,    { 54597, 54598, 54599, 54600, 54601, 55085 } },
    { Study::Stepped,     9,      1,      1,    { 54597, 54598, 54599, 54600, 54601, 55085 } },
});
// clang-format on

TEST(ListTitles, TheUnitOptionShiftsOrLevelsTheTitlesOfDynamicStresses) {
  const NumberedTexts texts;
  Sweep sweep({"analysis type", "component", "variant", "unit option", "column"});
  for (const TitlesRow& row : kStressTitles) {
    CVekPostListParam list = SetList(row.study, Result::Stress, 1, row.component);
    list.m_nVariant = row.variant;
    list.m_nUnitOption = row.unitOption;
    for (int column = 1; column <= 6; ++column) {
      sweep.Check(ShortName(row.ids[static_cast<std::size_t>(column - 1)]),
                  SeenName(list.GetListColTitle(column)), Code(row.study), row.component,
                  row.variant, row.unitOption, column);
    }
    EXPECT_EQ(list.GetListColTitle(7), CString());
  }
}

TEST(ListTitles, OtherSetsOfDynamicStudiesAreNotShifted) {
  const NumberedTexts texts;
  CVekPostListParam list = SetList(Study::Dynamic, Result::Stress, 0);
  list.m_nUnitOption = 1;
  EXPECT_EQ(SeenName(list.GetListColTitle(1)), CutAtColon(54591));
  EXPECT_EQ(SeenName(list.GetListColTitle(6)), CutAtColon(54596));
  list = SetList(Study::Dynamic, Result::Displacement, 1);
  list.m_nUnitOption = 1;
  list.m_nVariant = 1;
  EXPECT_EQ(SeenName(list.GetListColTitle(1)), CutAtColon(54581));
  EXPECT_EQ(SeenName(list.GetListColTitle(2)), CutAtColon(54582));
}

TEST(ListTitles, TheLeadingColumnOfASetWithAVariantFollowsTheSwitch) {
  CVekPostListParam list = SetList(Study::Static, Result::Displacement, 0);
  const auto leading = [&list](int variant, int titleSwitch) {
    list.m_nVariant = variant;
    list.m_nTitleSwitch = titleSwitch;
    return list.GetListColTitle(0);
  };
  const CString one = LoadText(50733);
  const CString other = LoadText(50757);
  EXPECT_NE(one, other);
  EXPECT_EQ(leading(0, 0), one);
  EXPECT_EQ(leading(0, 1), one);
  EXPECT_EQ(leading(1, 0), one);
  EXPECT_EQ(leading(1, 1), other);

  list.m_nListSetFlag = 0;
  EXPECT_EQ(leading(0, 1), one);
  EXPECT_EQ(leading(1, 0), other);
}

TEST(ListTitles, ASetWithoutColumnsStillHasItsLeadingOne) {
  const CVekPostListParam list = SetList(Study::Static, Result::FactorOfSafety, 0);
  EXPECT_EQ(list.GetListColCount(), 1);
  EXPECT_EQ(list.GetListColTitle(0), LoadText(50733));
  EXPECT_EQ(list.GetListColTitle(1), CString());
  EXPECT_EQ(list.GetListColTitle(-1), CString());
}

TEST(ListTitles, ColumnThreeOfASingleEquivalentStressHasATitleOutsideTheList) {
  CVekPostListParam list = SingleList(Study::Dynamic, Result::Stress, 9);
  EXPECT_EQ(list.GetListColCount(), 2);
  EXPECT_EQ(list.GetListColTitle(1), CString(MQ_TEXT("SEQ")));
  EXPECT_EQ(list.GetListColTitle(2), CString());
  EXPECT_EQ(list.GetListColTitle(3), CString(MQ_TEXT("SEQ")));
  EXPECT_EQ(list.GetListColTitle(4), CString());
  list.m_nComponent = 100;
  EXPECT_EQ(list.GetListColTitle(3), CString(MQ_TEXT("SPB")));
  list.m_nComponent = 8;
  EXPECT_EQ(list.GetListColTitle(3), CString());
}

TEST(ListTitles, TheLeadingTitleIsNotCut) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(50733, MQ_TEXT("Number: of the node"));
  ReplacedTexts::Set(50757, MQ_TEXT("Number of the element"));
  CVekPostListParam list = SingleList(Study::Static, Result::Displacement, 0);
  EXPECT_EQ(list.GetListColTitle(0), CString(MQ_TEXT("Number: of the node")));
  list.m_nVariant = 1;
  EXPECT_EQ(list.GetListColTitle(0), CString(MQ_TEXT("Number of the element")));
}

}  // namespace
}  // namespace mqp::test
