#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <string>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/names.h>

#include "catalogue_test_support.h"
#include "name_test_support.h"

namespace mqp::test {
namespace {

struct ResultNameRow {
  Result result;
  UINT id;
};

// clang-format off
constexpr auto kResultNames = std::to_array<ResultNameRow>({
    // result                  id
    { Result::Displacement,    52941 },
    { Result::Stress,          52980 },
    { Result::Strain,          53557 },
    { Result::FactorOfSafety,  54327 },
    { Result::Thermal,         50006 },
    { Result::ModeFrequency,   50004 },
    { Result::ResultType18,    53153 },
    { Result::Velocity,        52961 },
    { Result::Acceleration,    52962 },
    { Result::BucklingResult,  54060 },
    { Result::ResultType55,    54464 },
    { Result::BeamStress,      54332 },
    { Result::ResultType62,    53326 },
    { Result::MassProperties,  55670 },
});
// clang-format on

constexpr UINT kCatchAll = 54465;

UINT ExpectedResultName(int resultType) {
  for (const ResultNameRow& row : kResultNames) {
    if (Code(row.result) == resultType) {
      return row.id;
    }
  }
  return kCatchAll;
}

UINT ExpectedTitle(int analysisType, int resultType, int chartVariant, int dynamicOption) {
  if (analysisType == 7 && resultType == 52) {
    return chartVariant != 0 ? 54822 : 54823;
  }
  if (resultType == 63) {
    return 55144;
  }
  switch (analysisType) {
    case 5: return 54715;
    case 6: return 54714;
    case 8: return dynamicOption == 1 || dynamicOption == 2 ? 50610 : 54714;
    default: return 0;
  }
}

Name Title(int analysisType, int resultType, int chartVariant, int dynamicOption) {
  return SeenName(
      vekPostCommonGetGraphNameForReport(analysisType, resultType, chartVariant, dynamicOption));
}

// ---- names of result types ----------------------------------------------------------------

TEST(ResultNamesTest, EveryCodeHasItsNameOrTheCatchAll) {
  const NumberedTexts texts;
  Sweep sweep({"result type"});
  for (const int resultType : kSweptCodes) {
    sweep.Check(Whole(ExpectedResultName(resultType)),
                SeenName(vekPostCommonGetResultName(resultType)), resultType);
  }
}

TEST(ResultNamesTest, EveryCodeHasABuiltInText) {
  Sweep sweep({"result type"});
  for (const int resultType : kSweptCodes) {
    const std::string expected = Narrow(LoadText(ExpectedResultName(resultType)));
    ASSERT_FALSE(expected.empty()) << resultType;
    sweep.Check(expected, Narrow(vekPostCommonGetResultName(resultType)), resultType);
  }
}

TEST(ResultNamesTest, AlternativeStrainsAndStressesGetTheCatchAll) {
  const NumberedTexts texts;
  EXPECT_EQ(SeenName(vekPostCommonGetResultName(22)), Whole(54465));
  EXPECT_EQ(SeenName(vekPostCommonGetResultName(57)), Whole(54465));
  EXPECT_EQ(SeenName(vekPostCommonGetResultName(12)), Whole(54465));
  EXPECT_EQ(SeenName(vekPostCommonGetResultName(0)), Whole(54465));
}

TEST(ResultNamesTest, ATextThatTheTableLacksIsEmptyAndNotTheCatchAll) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(52941, MQ_TEXT(""));
  EXPECT_EQ(vekPostCommonGetResultName(1), MQ_TEXT(""));
}

// ---- titles of report graphs --------------------------------------------------------------

TEST(ReportGraphTitlesTest, EveryStudyResultAndOption) {
  const NumberedTexts texts;
  Sweep sweep({"analysis type", "result type", "chart variant", "dynamic option"});
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : kSweptCodes) {
      for (const int chartVariant : {-1, 0, 1, 2, 256}) {
        for (const int dynamicOption : {-1, 0, 1, 2, 3, 257, 258}) {
          const UINT expected =
              ExpectedTitle(analysisType, resultType, chartVariant, dynamicOption);
          sweep.Check(Whole(expected), Title(analysisType, resultType, chartVariant, dynamicOption),
                      analysisType, resultType, chartVariant, dynamicOption);
        }
      }
    }
  }
}

TEST(ReportGraphTitlesTest, TheTitlesAreTheTextsOfTheTable) {
  // clang-format off
  struct Row { int analysisType, resultType, chartVariant, dynamicOption; UINT id; };
  const auto rows = std::to_array<Row>({
      { 7, 52, 1, 0, 54822 },
      { 7, 52, 0, 0, 54823 },
      { 0, 63, 0, 0, 55144 },
      { 5,  1, 0, 0, 54715 },
      { 6,  1, 0, 0, 54714 },
      { 8,  1, 0, 1, 50610 },
      { 8,  1, 0, 2, 50610 },
      { 8,  1, 0, 0, 54714 },
  });
  // clang-format on
  for (const Row& row : rows) {
    const CString expected = LoadText(row.id);
    const CString got = vekPostCommonGetGraphNameForReport(row.analysisType, row.resultType,
                                                           row.chartVariant, row.dynamicOption);
    EXPECT_FALSE(expected.IsEmpty()) << row.id;
    EXPECT_EQ(Narrow(got), Narrow(expected))
        << "analysis type " << row.analysisType << ", result type " << row.resultType
        << ", chart variant " << row.chartVariant << ", dynamic option " << row.dynamicOption;
  }
}

TEST(ReportGraphTitlesTest, AStaticStressHasNone) {
  EXPECT_EQ(vekPostCommonGetGraphNameForReport(0, 2, 0, 0), MQ_TEXT(""));
  EXPECT_EQ(vekPostCommonGetGraphNameForReport(0, 2, 1, 1), MQ_TEXT(""));
}

TEST(ReportGraphTitlesTest, ResultType63HasOneTitleInEveryStudy) {
  const NumberedTexts texts;
  for (const int analysisType : kSweptCodes) {
    EXPECT_EQ(Title(analysisType, 63, 1, 1), Whole(55144)) << analysisType;
  }
}

TEST(ReportGraphTitlesTest, AFatigueGraphOfAnotherStudyIsTitledByTheStudy) {
  const NumberedTexts texts;
  EXPECT_EQ(Title(5, 52, 1, 0), Whole(54715));
  EXPECT_EQ(Title(6, 52, 1, 0), Whole(54714));
  EXPECT_EQ(Title(8, 52, 1, 2), Whole(50610));
  EXPECT_EQ(Title(0, 52, 1, 0), kNoName);
  EXPECT_EQ(Title(7, 12, 1, 0), kNoName);
}

TEST(ReportGraphTitlesTest, OnlyOptionsOneAndTwoRetitleADynamicStudy) {
  const NumberedTexts texts;
  EXPECT_EQ(Title(8, 1, 0, 1), Whole(50610));
  EXPECT_EQ(Title(8, 1, 0, 2), Whole(50610));
  for (const int option : {INT_MIN, -1, 0, 3, INT_MAX}) {
    EXPECT_EQ(Title(8, 1, 0, option), Whole(54714)) << option;
  }
}

}  // namespace
}  // namespace mqp::test
