#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/params/equation_plot.h>

#include "catalogue/name_test_support.h"
#include "params/value_test_support.h"

namespace mqp::test {
namespace {

CmqEquationPlotParam PlotOf(const CString& equation, std::vector<VariableState> variables) {
  EquationState state;
  state.equation = equation;
  state.variables = std::move(variables);
  CmqEquationPlotParam plot;
  SetState(plot, state);
  return plot;
}

CString Repeated(const mqChar* piece, int times) {
  CString text;
  for (int time = 0; time < times; ++time) {
    text += piece;
  }
  return text;
}

TEST(EquationGrowth, AnEquationOfManyThousandUnitsIsTakenToItsEnd) {
  CmqResultCompsEqnVarsList list;
  list.m_strEquation = Repeated(MQ_TEXT(R"("a"-"b"*)"), 2500);  // 20,000 units
  list.m_listVariableNames.AddTail(MQ_TEXT("\"a\""));
  list.m_listVariableNames.AddTail(MQ_TEXT("\"b\""));
  CmqEquationPlotParam plot;
  plot.PrepareEquationParams(&list);
  EXPECT_TRUE(plot.m_strEquation == Repeated(MQ_TEXT(R"("Variable0"-"Variable1"*)"), 2500));
  EXPECT_TRUE(plot.m_strDisplayEquation == list.m_strEquation);
}

/// The display equation in a static study.
CString Displayed(CmqEquationPlotParam& plot) {
  plot.PrepareEquationToDisplay(0, 0, 0, 0);
  return plot.m_strDisplayEquation;
}

TEST(EquationGrowth, AnEquationOfManyThousandUnitsIsShownToItsEnd) {
  const CString equation = Repeated(MQ_TEXT(R"("Variable0"+"Variable1"-)"), 1000);  // 24,000 units
  CmqEquationPlotParam plot = PlotOf(
      equation, {{MQ_TEXT("\"Variable0\""), 2, 2, 3.0}, {MQ_TEXT("\"Variable1\""), 1, 4, 1.0}});
  EXPECT_TRUE(Displayed(plot) ==
              Repeated(MQ_TEXT(R"("SZ: stress along Z"+"FRX: reaction force along X"-)"), 1000));
}

TEST(EquationGrowth, FortyVariablesThatAreQuotesStayBounded) {
  const std::vector<VariableState> stresses(40, {MQ_TEXT("\""), 2, 9, 1.0});
  const std::vector<VariableState> unknown(40, {MQ_TEXT("\""), -1, -1, 1.0});
  for (const auto& variables : {stresses, unknown}) {
    for (const int length : {1, 40, 2000, 20000}) {
      CmqEquationPlotParam plot = PlotOf(Repeated(MQ_TEXT("\""), length), variables);
      plot.PrepareEquationToDisplay(0, 0, 0, 0);
      EXPECT_LT(plot.m_strDisplayEquation.GetLength(), 1'000'000) << length << " units";
      EXPECT_GT(plot.m_strDisplayEquation.GetLength(), 16 * length) << length << " units";
      EXPECT_GT(plot.m_strDisplayEquation.GetLength(), 16'384) << length << " units";
    }
  }
}

TEST(EquationGrowth, ATextThatDoublesStopsWithTheFirstThatIsTooLong) {
  // Each variable turns a quote into two; 16,384 and 320,000 are not beyond the bound.
  const std::vector<VariableState> variables(40, {MQ_TEXT("\""), -1, -1, 1.0});
  CmqEquationPlotParam plot = PlotOf(MQ_TEXT("\""), variables);
  EXPECT_EQ(Displayed(plot).GetLength(), 32'768);
  plot.m_strEquation = Repeated(MQ_TEXT("\""), 20000);
  EXPECT_EQ(Displayed(plot).GetLength(), 640'000);
}

struct GrowthRow {
  int equation;
  int grown;
  bool isReplacedFurther;
};

TEST(EquationGrowth, TheBoundIsSixteenTimesTheEquationAndAtLeast16384Units) {
  // clang-format off
  constexpr GrowthRow kRows[] = {
    {    2, 16'384, true},
    {    2, 16'385, false},
    { 1024, 16'384, true},
    { 1024, 16'385, false},
    { 1025, 16'400, true},
    { 1025, 16'401, false},
    { 2000, 32'000, true},
    { 2000, 32'001, false},
  };
  // clang-format on
  const ReplacedTexts texts;
  for (const GrowthRow& row : kRows) {
    // The name of `v`, in quotes, takes the place of one unit; `w` is left.
    host::ReplaceText(54600, CString(MQ_TEXT('n'), row.grown - (row.equation - 1) - 2));
    CmqEquationPlotParam plot = PlotOf(MQ_TEXT("vw") + CString(MQ_TEXT('+'), row.equation - 2),
                                       {{MQ_TEXT("v"), 2, 9, 1.0}, {MQ_TEXT("w"), -1, -1, 1.0}});
    const CString shown = Displayed(plot);
    EXPECT_EQ(shown.GetLength(), row.grown + (row.isReplacedFurther ? 1 : 0))
        << row.equation << " units grown to " << row.grown;
    EXPECT_EQ(shown.Find(MQ_TEXT('w')) < 0, row.isReplacedFurther)
        << row.equation << " units grown to " << row.grown;
  }
}

}  // namespace
}  // namespace mqp::test
