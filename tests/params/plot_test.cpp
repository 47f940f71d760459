#include <array>
#include <climits>
#include <memory>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>
#include <mqPostCommon/params/plot.h>

#include "catalogue/catalogue_test_support.h"
#include "params/value_test_support.h"

namespace mqp::test {
namespace {

static_assert(std::has_virtual_destructor_v<CmqPostDataParam>);
static_assert(std::is_copy_constructible_v<CmqPostDataParam>);
static_assert(std::is_copy_assignable_v<CmqPostDataParam>);

/// Flags that are set, and one that is not.
constexpr auto kFlags = std::to_array<int>({0, 1, -1, 2, 256, INT_MIN, INT_MAX});

MemberLines LinesOfFilledPlot(int seed) {
  CmqPostDataParam plot;
  FillWithDistinctValues(plot, seed);
  return LinesOf(plot);
}

MemberLines LinesOfDefaults() {
  CmqPostDataParam plot;
  FillWithDistinctValues(plot, 7);
  SetDefaults(plot);
  return LinesOf(plot);
}

/// What a target holds after an assignment, when both arrays of the source have elements.
MemberLines LinesOfAssigned(const MemberLines& source, const MemberLines& target) {
  const MemberLines kept =
      Mixed(source, target, {"m_nHost41[0]", "m_arrHost40[0]", "m_arrHost40[1]"});
  return Mixed(kept, LinesOfDefaults(), {"m_nHost30[1]", "m_nHost30[2]"});
}

// --- construction ---

TEST(Plot, ANewPlotHasEveryDefault) {
  const CmqPostDataParam plot;
  EXPECT_EQ(Differences(plot, LinesOfDefaults()), "");
}

TEST(Plot, ANewPlotShowsTheEquivalentStressOfAStaticStudy) {
  const CmqPostDataParam plot;
  EXPECT_EQ(plot.m_nAnalysisType, 0);
  EXPECT_EQ(plot.m_nResultType, 2);
  EXPECT_EQ(plot.m_nComponent, 9);
  EXPECT_EQ(plot.m_strHost38, CString(MQ_TEXT(" ")));
  EXPECT_TRUE(plot.m_strHost39.IsEmpty());
  EXPECT_EQ(plot.GetDeformScaleFactor(), 0.0F);
  EXPECT_EQ(plot.IsEnvelopPlot(), 0);
  EXPECT_EQ(plot.IsThermalHeatEnergy(), 0);
}

TEST(Plot, ANewPlotHasAnEquationPlotWithoutVariables) {
  const CmqPostDataParam plot;
  EXPECT_EQ(Differences(plot.m_EquationPlot, EquationState()), "");
}

TEST(Plot, TheValuesOfThisTestTellTheMembersApart) {
  const MemberLines one = LinesOfFilledPlot(1);
  EXPECT_EQ(Undistinguished(one, LinesOfFilledPlot(2)), "");
  EXPECT_EQ(Undistinguished(one, LinesOfDefaults()), "");
  EXPECT_EQ(one.size(), 88U);
}

// --- copies ---

TEST(Plot, ACopyHasEveryMemberOfItsSourceButTheTwoLists) {
  CmqPostDataParam source;
  FillWithDistinctValues(source, 1);
  const MemberLines before = LinesOf(source);

  const CmqPostDataParam copy(source);
  EXPECT_EQ(
      Differences(copy, Mixed(before, LinesOfDefaults(), {"m_arrHost40[0]", "m_arrHost40[1]"})),
      "");
  EXPECT_EQ(Differences(source, before), "");
}

TEST(Plot, ACopyHasTheIntegersThatAnAssignmentLeavesOut) {
  CmqPostDataParam source;
  source.m_nHost30[0] = 31;
  source.m_nHost30[1] = 32;
  source.m_nHost30[2] = 33;
  source.m_nHost41[0] = 41;
  source.m_nHost41[1] = 42;
  const CmqPostDataParam copy(source);
  EXPECT_EQ(copy.m_nHost30[0], 31);
  EXPECT_EQ(copy.m_nHost30[1], 32);
  EXPECT_EQ(copy.m_nHost30[2], 33);
  EXPECT_EQ(copy.m_nHost41[0], 41);
  EXPECT_EQ(copy.m_nHost41[1], 42);

  CmqPostDataParam target;
  target.m_nHost30[0] = 51;
  target.m_nHost30[1] = 52;
  target.m_nHost30[2] = 53;
  target.m_nHost41[0] = 61;
  target.m_nHost41[1] = 62;
  target = source;
  EXPECT_EQ(target.m_nHost30[0], 31);
  EXPECT_EQ(target.m_nHost30[1], 0);
  EXPECT_EQ(target.m_nHost30[2], 0);
  EXPECT_EQ(target.m_nHost41[0], 61);
  EXPECT_EQ(target.m_nHost41[1], 42);
}

TEST(Plot, ACopyOfANewPlotIsANewPlot) {
  CmqPostDataParam source;
  const CmqPostDataParam copy(source);
  source.m_nHost5 = 2;
  EXPECT_EQ(Differences(copy, LinesOfDefaults()), "");
}

TEST(Plot, APlotMadeFromATemporaryHasEveryMemberButTheTwoLists) {
  CmqPostDataParam source;
  FillWithDistinctValues(source, 1);
  const MemberLines expected =
      Mixed(LinesOf(source), LinesOfDefaults(), {"m_arrHost40[0]", "m_arrHost40[1]"});
  const CmqPostDataParam moved(AsTemporary(source));
  EXPECT_EQ(Differences(moved, expected), "");
}

TEST(Plot, CopiesAreIndependentOfTheirSource) {
  auto source = std::make_unique<CmqPostDataParam>();
  FillWithDistinctValues(*source, 1);
  CmqPostDataParam copy(*source);
  CmqPostDataParam assigned;
  assigned = *source;
  const MemberLines linesOfCopy = LinesOf(copy);
  const MemberLines linesOfAssigned = LinesOf(assigned);

  FillWithDistinctValues(*source, 3);
  EXPECT_EQ(Differences(copy, linesOfCopy), "");
  EXPECT_EQ(Differences(assigned, linesOfAssigned), "");
  source.reset();
  EXPECT_EQ(Differences(copy, linesOfCopy), "");
  EXPECT_EQ(Differences(assigned, linesOfAssigned), "");
}

TEST(Plot, ChangingACopyLeavesItsSourceAlone) {
  CmqPostDataParam source;
  FillWithDistinctValues(source, 1);
  const MemberLines expected = LinesOf(source);
  CmqPostDataParam copy(source);
  CmqPostDataParam assigned;
  assigned = source;
  FillWithDistinctValues(copy, 4);
  FillWithDistinctValues(assigned, 5);
  EXPECT_EQ(Differences(source, expected), "");
}

TEST(Plot, ArraysOfACopyHoldStringsOfTheirOwn) {
  CmqPostDataParam source;
  source.m_arrHost31.Add(7);
  source.m_arrHost32.Add(CString(MQ_TEXT("first")));
  source.m_arrHost32.Add(CString(MQ_TEXT("second")));
  const CmqPostDataParam copy(source);
  CmqPostDataParam assigned;
  assigned = source;
  EXPECT_NE(copy.m_arrHost32.GetData(), source.m_arrHost32.GetData());
  EXPECT_NE(assigned.m_arrHost32.GetData(), source.m_arrHost32.GetData());

  source.m_arrHost31[0] = 8;
  source.m_arrHost32[0].SetAt(0, MQ_TEXT('F'));
  source.m_arrHost32.RemoveAt(1);
  EXPECT_EQ(Show(copy.m_arrHost31), "{7}");
  EXPECT_EQ(Show(copy.m_arrHost32), "{\"first\" (5 units), \"second\" (6 units)}");
  EXPECT_EQ(Show(assigned.m_arrHost31), "{7}");
  EXPECT_EQ(Show(assigned.m_arrHost32), "{\"first\" (5 units), \"second\" (6 units)}");
}

TEST(Plot, TheEquationPlotIsCopiedWithItsVariables) {
  CmqPostDataParam source;
  SetState(source.m_EquationPlot, FilledEquation(1, 3));
  const CmqPostDataParam copy(source);
  CmqPostDataParam assigned;
  SetState(assigned.m_EquationPlot, FilledEquation(2, 5));
  assigned = source;
  EXPECT_EQ(Differences(copy.m_EquationPlot, FilledEquation(1, 3)), "");
  EXPECT_EQ(Differences(assigned.m_EquationPlot, FilledEquation(1, 3)), "");

  CmqEquationVariable* const variable = source.m_EquationPlot.m_listVariables.GetHead();
  EXPECT_NE(copy.m_EquationPlot.m_listVariables.GetHead(), variable);
  EXPECT_NE(assigned.m_EquationPlot.m_listVariables.GetHead(), variable);
  variable->m_dCoefficient = 12.0;
  source.m_EquationPlot.m_listVariables.DeleteAll();
  EXPECT_EQ(Differences(copy.m_EquationPlot, FilledEquation(1, 3)), "");
  EXPECT_EQ(Differences(assigned.m_EquationPlot, FilledEquation(1, 3)), "");
}

// --- assignment ---

TEST(Plot, AnAssignmentTakesEveryMemberButWhatBelongsToTheTarget) {
  CmqPostDataParam source;
  FillWithDistinctValues(source, 1);
  const MemberLines before = LinesOf(source);
  CmqPostDataParam target;
  FillWithDistinctValues(target, 2);
  const MemberLines expected = LinesOfAssigned(before, LinesOf(target));

  CmqPostDataParam& result = target = source;
  EXPECT_EQ(&result, &target);
  EXPECT_EQ(Differences(target, expected), "");
  EXPECT_EQ(Differences(source, before), "");
}

TEST(Plot, ANewPlotTakesAFilledOneOver) {
  CmqPostDataParam source;
  FillWithDistinctValues(source, 1);
  CmqPostDataParam target;
  target = source;
  EXPECT_EQ(Differences(target, LinesOfAssigned(LinesOfFilledPlot(1), LinesOfDefaults())), "");
}

TEST(Plot, AssigningANewPlotKeepsTheArraysAsWell) {
  CmqPostDataParam target;
  FillWithDistinctValues(target, 1);
  const CmqPostDataParam source;
  target = source;
  const MemberLines expected = Mixed(LinesOfAssigned(LinesOfDefaults(), LinesOfFilledPlot(1)),
                                     LinesOfFilledPlot(1), {"m_arrHost31", "m_arrHost32"});
  EXPECT_EQ(Differences(target, expected), "");
}

TEST(Plot, AssigningANewPlotEmptiesTheEquationPlot) {
  CmqPostDataParam target;
  SetState(target.m_EquationPlot, FilledEquation(1, 3));
  const CmqPostDataParam source;
  target = source;
  EXPECT_EQ(Differences(target.m_EquationPlot, EquationState()), "");
}

TEST(Plot, EachArrayStaysOnItsOwnWhenTheSourceHasNone) {
  const auto setArrays = [](CmqPostDataParam& plot, int integers, int texts, int value) {
    for (int index = 0; index < integers; ++index) {
      plot.m_arrHost31.Add(value + index);
    }
    for (int index = 0; index < texts; ++index) {
      CString text;
      text.Format(MQ_TEXT("%d"), value + index);
      plot.m_arrHost32.Add(text);
    }
  };
  constexpr int kCounts[] = {0, 1, 2, 5};
  Sweep sweep({"integers of the source", "texts of the source", "integers of the target",
               "texts of the target"});
  for (const int sourceIntegers : kCounts) {
    for (const int sourceTexts : kCounts) {
      for (const int targetIntegers : kCounts) {
        for (const int targetTexts : kCounts) {
          CmqPostDataParam source;
          setArrays(source, sourceIntegers, sourceTexts, 100);
          CmqPostDataParam target;
          setArrays(target, targetIntegers, targetTexts, 200);
          CmqPostDataParam integersFrom;
          setArrays(integersFrom, sourceIntegers == 0 ? targetIntegers : sourceIntegers, 0,
                    sourceIntegers == 0 ? 200 : 100);
          CmqPostDataParam textsFrom;
          setArrays(textsFrom, 0, sourceTexts == 0 ? targetTexts : sourceTexts,
                    sourceTexts == 0 ? 200 : 100);
          target = source;
          sweep.Check(Show(integersFrom.m_arrHost31), Show(target.m_arrHost31), sourceIntegers,
                      sourceTexts, targetIntegers, targetTexts);
          sweep.Check(Show(textsFrom.m_arrHost32), Show(target.m_arrHost32), sourceIntegers,
                      sourceTexts, targetIntegers, targetTexts);
        }
      }
    }
  }
}

TEST(Plot, TwoTextsOutliveTheAssignmentOfAPlotWithoutTexts) {
  CmqPostDataParam target;
  target.m_arrHost31.Add(5);
  target.m_arrHost32.Add(CString(MQ_TEXT("one")));
  target.m_arrHost32.Add(CString(MQ_TEXT("two")));
  const CmqPostDataParam source;
  target = source;
  ASSERT_EQ(target.m_arrHost31.GetSize(), 1);
  EXPECT_EQ(target.m_arrHost31[0], 5);
  ASSERT_EQ(target.m_arrHost32.GetSize(), 2);
  EXPECT_EQ(target.m_arrHost32[0], CString(MQ_TEXT("one")));
  EXPECT_EQ(target.m_arrHost32[1], CString(MQ_TEXT("two")));
}

TEST(Plot, ACopyOfAPlotWithoutArraysHasNone) {
  CmqPostDataParam source;
  FillWithDistinctValues(source, 1);
  source.m_arrHost31.RemoveAll();
  source.m_arrHost32.RemoveAll();
  const CmqPostDataParam copy(source);
  EXPECT_TRUE(copy.m_arrHost31.IsEmpty());
  EXPECT_TRUE(copy.m_arrHost32.IsEmpty());
}

TEST(Plot, TheTwoListsAreNeverCopiedAndNeverOverwritten) {
  CmqPostDataParam source;
  source.m_arrHost40[0].Add(1);
  source.m_arrHost40[1].Add(2);
  const CmqPostDataParam copy(source);
  EXPECT_TRUE(copy.m_arrHost40[0].IsEmpty());
  EXPECT_TRUE(copy.m_arrHost40[1].IsEmpty());

  CmqPostDataParam target;
  target.m_arrHost40[0].Add(3);
  target.m_arrHost40[0].Add(4);
  target = source;
  EXPECT_EQ(Show(target.m_arrHost40[0]), "{3, 4}");
  EXPECT_EQ(Show(target.m_arrHost40[1]), "{}");
  target = CmqPostDataParam();
  EXPECT_EQ(Show(target.m_arrHost40[0]), "{3, 4}");
  EXPECT_EQ(Show(source.m_arrHost40[0]), "{1}");
  EXPECT_EQ(Show(source.m_arrHost40[1]), "{2}");
}

TEST(Plot, ATemporaryIsAssignedByTheSameRules) {
  CmqPostDataParam source;
  FillWithDistinctValues(source, 1);
  CmqPostDataParam target;
  FillWithDistinctValues(target, 2);
  const MemberLines expected = LinesOfAssigned(LinesOf(source), LinesOf(target));
  target = CmqPostDataParam(source);
  EXPECT_EQ(Differences(target, expected), "");

  CmqPostDataParam other;
  FillWithDistinctValues(other, 3);
  const MemberLines expectedOfOther = LinesOfAssigned(LinesOf(source), LinesOf(other));
  other = AsTemporary(source);
  EXPECT_EQ(Differences(other, expectedOfOther), "");
}

TEST(Plot, ATemporaryWithoutArraysKeepsThoseOfTheTarget) {
  CmqPostDataParam target;
  FillWithDistinctValues(target, 1);
  const MemberLines before = LinesOf(target);
  target = CmqPostDataParam();
  const MemberLines expected =
      Mixed(LinesOfAssigned(LinesOfDefaults(), before), before, {"m_arrHost31", "m_arrHost32"});
  EXPECT_EQ(Differences(target, expected), "");
}

TEST(Plot, APlotAssignedToItselfStaysAsItIs) {
  CmqPostDataParam plot;
  FillWithDistinctValues(plot, 1);
  const MemberLines expected = LinesOf(plot);
  const CmqEquationVariable* const variable = plot.m_EquationPlot.m_listVariables.GetHead();
  CmqPostDataParam& alias = plot;
  CmqPostDataParam& result = plot = alias;
  EXPECT_EQ(&result, &plot);
  EXPECT_EQ(Differences(plot, expected), "");
  EXPECT_NE(plot.m_nHost30[1], 0);
  EXPECT_NE(plot.m_nHost30[2], 0);
  EXPECT_EQ(plot.m_EquationPlot.m_listVariables.GetHead(), variable);

  plot = AsTemporary(alias);
  EXPECT_EQ(Differences(plot, expected), "");
}

TEST(Plot, AssignmentsInARowActFromTheRight) {
  CmqPostDataParam source;
  FillWithDistinctValues(source, 1);
  CmqPostDataParam middle;
  FillWithDistinctValues(middle, 2);
  CmqPostDataParam target;
  FillWithDistinctValues(target, 3);
  const MemberLines expectedOfMiddle = LinesOfAssigned(LinesOf(source), LinesOf(middle));
  const MemberLines expected = LinesOfAssigned(expectedOfMiddle, LinesOf(target));
  target = middle = source;
  EXPECT_EQ(Differences(middle, expectedOfMiddle), "");
  EXPECT_EQ(Differences(target, expected), "");
}

TEST(Plot, ADerivedPlotIsDestroyedThroughItsBase) {
  struct Derived : CmqPostDataParam {
    explicit Derived(bool& isGone) : m_isGone(isGone) {}
    ~Derived() override { m_isGone = true; }
    bool& m_isGone;
  };
  bool isGone = false;
  std::unique_ptr<CmqPostDataParam> plot = std::make_unique<Derived>(isGone);
  FillWithDistinctValues(*plot, 1);
  plot.reset();
  EXPECT_TRUE(isGone);
}

// --- questions ---

TEST(Plot, EveryModeButZeroAndOneScalesByOne) {
  CmqPostDataParam plot;
  plot.m_fDeformScaleFactor1 = 2.5F;
  plot.m_fDeformScaleFactor0 = -0.75F;
  Sweep sweep({"mode"});
  for (const int mode : kSweptCodes) {
    plot.m_nDeformScaleMode = mode;
    const float expected = mode == 1 ? 2.5F : mode == 0 ? -0.75F : 1.0F;
    sweep.Check(expected, plot.GetDeformScaleFactor(), mode);
  }
}

TEST(Plot, TheFactorOfAModeIsTakenAsItIs) {
  constexpr float kFactors[] = {0.0F, 1.0F, -1.0F, 1e-30F, 3.0e38F, 0.1F};
  for (const float factor : kFactors) {
    CmqPostDataParam plot;
    plot.m_nDeformScaleMode = 1;
    plot.m_fDeformScaleFactor1 = factor;
    plot.m_fDeformScaleFactor0 = 5.0F;
    EXPECT_EQ(plot.GetDeformScaleFactor(), factor);
    plot.m_nDeformScaleMode = 0;
    EXPECT_EQ(plot.GetDeformScaleFactor(), 5.0F);
  }
}

TEST(Plot, OnlyStudiesOverTimeHaveEnvelopes) {
  Sweep sweep({"analysis type", "flag"});
  for (const int analysisType : kSweptCodes) {
    const bool isOverTime =
        analysisType == 3 || analysisType == 5 || analysisType == 6 || analysisType == 8;
    for (const int flag : kFlags) {
      CmqPostDataParam plot;
      plot.m_nAnalysisType = analysisType;
      plot.m_nEnvelopeFlag = flag;
      sweep.Check(isOverTime && flag != 0 ? 1 : 0, plot.IsEnvelopPlot(), analysisType, flag);
    }
  }
}

TEST(Plot, TheEnvelopeFlagOfAStudyBetweenThoseOverTimeHasNoEffect) {
  CmqPostDataParam plot;
  plot.m_nEnvelopeFlag = 1;
  plot.m_nAnalysisType = 4;
  EXPECT_EQ(plot.IsEnvelopPlot(), 0);
  plot.m_nAnalysisType = 7;
  EXPECT_EQ(plot.IsEnvelopPlot(), 0);
}

TEST(Plot, OnlyComponentTenOfAThermalResultIsHeatEnergy) {
  Sweep sweep({"analysis type", "result type", "component"});
  CmqPostDataParam plot;
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : kSweptCodes) {
      for (const int component : kSweptCodes) {
        plot.m_nAnalysisType = analysisType;
        plot.m_nResultType = resultType;
        plot.m_nComponent = component;
        const bool isHeatEnergy = analysisType == 3 && resultType == 5 && component == 10;
        sweep.Check(isHeatEnergy ? 1 : 0, plot.IsThermalHeatEnergy(), analysisType, resultType,
                    component);
      }
    }
  }
}

TEST(Plot, OtherMembersDoNotChangeTheAnswersNorTheAnswersThem) {
  CmqPostDataParam plot;
  FillWithDistinctValues(plot, 1);
  plot.m_nAnalysisType = 3;
  plot.m_nResultType = 5;
  plot.m_nComponent = 10;
  const MemberLines before = LinesOf(plot);
  const CmqPostDataParam& read = plot;
  EXPECT_EQ(read.IsThermalHeatEnergy(), 1);
  EXPECT_EQ(read.IsEnvelopPlot(), 1);
  EXPECT_EQ(read.GetDeformScaleFactor(), 1.0F);
  EXPECT_EQ(Differences(plot, before), "");
}

}  // namespace
}  // namespace mqp::test
