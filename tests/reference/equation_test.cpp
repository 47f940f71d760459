#include <gtest/gtest.h>

#include <mqPostCommon/mqPostCommon.h>

#include "catalogue.h"
#include "equation_rules.h"
#include "members.h"
#include "tally.h"
#include "texts.h"

namespace reference {
namespace {

Text Quoted(const Text& text) {
  return MQ_TEXT("\"") + text + MQ_TEXT("\"");
}

/// Names of the table, whole and by their short keys, and names that no list has.
std::vector<Text> AnyNames(Random& random, const Numbers& ids, int most) {
  std::vector<Text> names;
  for (int count = random.Between(0, most); count > 0; --count) {
    const Text text = Load(random.From(ids));
    names.push_back(random.Once(4) ? Quoted(ShortKey(text)) : Quoted(text));
    if (random.Once(12)) {
      names.back() = RandomText(random, 5) + MQ_TEXT("\"");
    }
  }
  return names;
}

Offer AnyOffer(Random& random) {
  static const Numbers kStress = Parse("54591-54601 55085 54602 54718 56061");
  static const Numbers kBeam = Parse("52020 54009-54014");
  static const Numbers kStrain = Parse("54603-54611 50177 54591");
  static const Numbers kDisplacement = Parse("54578-54580 50341 54584 54591 54865");
  static const Numbers kThermal = Parse("54612-54619 54555");
  Offer offer;
  offer.stress = AnyNames(random, kStress, 4);
  offer.beamStress = AnyNames(random, kBeam, 4);
  offer.strain = AnyNames(random, kStrain, 4);
  offer.displacement = AnyNames(random, kDisplacement, 4);
  offer.thermal = AnyNames(random, kThermal, 4);
  offer.analysis = random.Of({0, 0, 3, 5, 8, 8, 2, random.Int()});
  offer.lookupOption = random.Below(2);
  offer.coefficientsFlag = random.Between(-1, 1);
  for (int count = random.Between(0, 12); count > 0; --count) {
    const std::vector<Text>& names = random.From(std::vector<std::vector<Text>>{
        offer.stress, offer.beamStress, offer.strain, offer.displacement, offer.thermal});
    offer.variables.push_back(names.empty() ? Quoted(RandomText(random, 3)) : random.From(names));
    offer.coefficients.push_back(random.Double());
  }
  offer.coefficients.resize(static_cast<std::size_t>(random.Below(14)));
  for (int count = random.Between(0, 8); count > 0; --count) {
    offer.equation += random.Once(2) || offer.variables.empty() ? RandomText(random, 6)
                                                                : random.From(offer.variables);
    offer.equation += MQ_TEXT(" + 2*");
  }
  return offer;
}

mqp::StringValues ListOf(const std::vector<Text>& texts) {
  mqp::StringValues list;
  for (const Text& text : texts) {
    list.AddTail(StringOf(text));
  }
  return list;
}

CmqResultCompsEqnVarsList HandedOver(const Offer& offer) {
  CmqResultCompsEqnVarsList list;
  list.m_listStressNames = ListOf(offer.stress);
  list.m_listBeamStressNames = ListOf(offer.beamStress);
  list.m_listStrainNames = ListOf(offer.strain);
  list.m_listDisplacementNames = ListOf(offer.displacement);
  list.m_listThermalNames = ListOf(offer.thermal);
  list.m_nAnalysisType = offer.analysis;
  list.m_nLookupOption = offer.lookupOption;
  list.m_strEquation = StringOf(offer.equation);
  list.m_nCoefficientsFlag = offer.coefficientsFlag;
  list.m_listVariableNames = ListOf(offer.variables);
  for (const double coefficient : offer.coefficients) {
    list.m_arrCoefficients.Add(coefficient);
  }
  return list;
}

class EquationReference : public testing::Test {
 protected:
  void SetUp() override {
    UseTextsById();
    SetActualFrequencyFlag(0);
    ResetTally();
  }
};

std::string Difference(const EquationPlot& expected, const CmqEquationPlotParam& got) {
  Fields fields;
  PutFields(fields, expected);
  return FirstDifference(fields, Snapshot(got));
}

TEST_F(EquationReference, EquationsTakenOverAndDisplayed) {
  Random random(2403);
  const int cases = CountCases(6000);
  for (int number = 0; number < cases; ++number) {
    if (number % 600 == 0) {
      UseTextsById();
    } else if (number % 600 == 300) {
      UseCollidingTexts(random);
    }
    const Offer offer = AnyOffer(random);
    const CmqResultCompsEqnVarsList original = HandedOver(offer);
    const CmqResultCompsEqnVarsList list(original);
    CmqEquationPlotParam plot;
    Scramble(plot, random);
    EquationPlot expected = EquationPlotOf(Snapshot(plot));
    plot.PrepareEquationParams(nullptr);
    ASSERT_EQ("", Difference(expected, plot));

    for (const Text& name : offer.variables) {
      int expectedType = 0;
      int type = 77;
      const int component = FindOperand(offer, name, expectedType);
      ASSERT_EQ(component, list.GetComponentNumberAndResultTypeForVariable(StringOf(name), type))
          << Printable(name);
      ASSERT_EQ(expectedType, type) << Printable(name);
    }
    TakeOver(expected, offer);
    plot.PrepareEquationParams(&list);
    ASSERT_EQ("", Difference(expected, plot)) << Printable(offer.equation);

    const int analysis = random.Once(2) ? offer.analysis : random.Int();
    const int mesh = random.Between(0, 5);
    MakeDisplay(expected, analysis, mesh);
    plot.PrepareEquationToDisplay(analysis, random.Int(), mesh, random.Int());
    ASSERT_EQ("", Difference(expected, plot)) << Printable(offer.equation);
  }
  CheckTally("operand", {"operand: stress", "operand: beam stress", "operand: strain",
                         "operand: displacement", "operand: thermal", "operand: unknown",
                         "operand: component known", "operand: component unknown"});
  CheckTally("replace", {"replace: occurrence"});
  CheckTally("take over", {"take over: no coefficients", "take over: coefficient",
                           "take over: too few coefficients"});
  CheckTally("display", {"display: no name", "display: name"});
  RecordCases(cases);
}

TEST_F(EquationReference, CopiesHoldEveryMemberAndVariablesOfTheirOwn) {
  Random random(2404);
  const int cases = CountCases(3000);
  for (int number = 0; number < cases; ++number) {
    CmqEquationPlotParam source;
    Scramble(source, random);
    const Fields expected = Snapshot(source);
    const CmqEquationPlotParam copy(source);
    CmqEquationPlotParam target;
    Scramble(target, random);
    target = source;
    const CmqEquationPlotParam& self = target;
    target = self;
    Scramble(source, random);
    ASSERT_EQ("", FirstDifference(expected, Snapshot(copy)));
    ASSERT_EQ("", FirstDifference(expected, Snapshot(target)));
  }
  RecordCases(cases);
}

}  // namespace
}  // namespace reference
