#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <mqPostCommon/mqPostCommon.h>

#include "material_rules.h"
#include "members.h"
#include "tally.h"

namespace reference {
namespace {

/// The same bits, or both not a number: what bits an invalid operation gives is the processor's.
bool IsSame(double one, double other) {
  return std::bit_cast<std::uint64_t>(one) == std::bit_cast<std::uint64_t>(other) ||
         (std::isnan(one) && std::isnan(other));
}

/// Ascending as a host fills it, with values that repeat, or any numbers at all.
Curve AnyCurve(Random& random) {
  Curve curve;
  const int held = random.Between(0, random.Once(4) ? 40 : 6);
  const bool isOrdered = !random.Once(3);
  for (int index = 0; index < held; ++index) {
    curve.x.push_back(isOrdered ? random.Between(-40, 40) / 8.0 : random.Double());
    curve.y.push_back(random.Once(3) ? random.Between(0, 2) : random.Double());
  }
  if (isOrdered) {
    std::ranges::sort(curve.x);
  }
  if (random.Once(6)) {
    curve.y.resize(static_cast<std::size_t>(random.Between(0, 6)), 3.25);
  }
  curve.points = random.Once(4) ? random.Between(-2, 9) : held;
  if (random.Once(40)) {
    curve.points = random.Of({std::numeric_limits<int>::min(), std::numeric_limits<int>::max()});
  }
  return curve;
}

void Fill(CmqTemperatureCurve& target, const Curve& curve) {
  target.m_nPoints = curve.points;
  target.m_vecX = curve.x;
  target.m_vecY = curve.y;
}

std::string Describe(const Curve& curve) {
  std::string text = "points " + std::to_string(curve.points) + ", x";
  for (const double x : curve.x) {
    text += " " + std::to_string(x);
  }
  text += ", y";
  for (const double y : curve.y) {
    text += " " + std::to_string(y);
  }
  return text;
}

double AnyTemperature(const Curve& curve, Random& random) {
  if (!curve.x.empty() && random.Once(3)) {
    const double point = random.From(curve.x);
    return random.Of({point, std::nextafter(point, 1e300), std::nextafter(point, -1e300)});
  }
  return random.Once(3) ? random.Double() : random.Between(-500, 500) / 97.0;
}

TEST(CurveReference, ValuesAtAnyTemperatureBitByBit) {
  ResetTally();
  Random random(4101);
  const int cases = CountCases(60000);
  for (int number = 0; number < cases; ++number) {
    const Curve curve = AnyCurve(random);
    CmqTemperatureCurve asked;
    Fill(asked, curve);
    for (int repeat = 0; repeat < 3; ++repeat) {
      const double x = AnyTemperature(curve, random);
      const double expected = ValueAt(curve, x);
      const double got = asked.GetYValueAt(x);
      ASSERT_TRUE(IsSame(expected, got))
          << "at " << x << ": expected " << expected << ", got " << got << "; " << Describe(curve);
    }
  }
  CheckTally("curve", {"curve: more points than held", "curve: no point", "curve: single point",
                       "curve: one point held", "curve: not a number", "curve: below",
                       "curve: above", "curve: at a point", "curve: level", "curve: between",
                       "curve: from a point without temperature", "curve: no upper point"});
  // The first point above a temperature never shares its own with the point before it.
  EXPECT_EQ(0, Hits("curve: step"));
  RecordCases(3L * cases);
}

TEST(CurveReference, CopiesTakeThePointsAndAssignmentsTheArrays) {
  Random random(4102);
  const int cases = CountCases(5000);
  for (int number = 0; number < cases; ++number) {
    const Curve curve = AnyCurve(random);
    CmqTemperatureCurve source;
    Fill(source, curve);
    const CmqTemperatureCurve copy(source);
    CmqTemperatureCurve target;
    Fill(target, AnyCurve(random));
    target = source;
    ASSERT_EQ("", FirstDifference(CopiedCurve(curve), Snapshot(copy))) << Describe(curve);
    ASSERT_EQ("", FirstDifference(AssignedCurve(curve), Snapshot(target))) << Describe(curve);
  }
  RecordCases(cases);
}

/// Few different values each, so that records meet in many members and differ in some.
void MakeMaterial(CmqpMaterialData& material, Random& random) {
  Scramble(material, random);
  material.m_nCount = random.Between(0, 1);
  material.m_nDefinedUnits = random.Between(-1, 6);
  for (int* flag :
       {&material.m_bHasSIGYLD, &material.m_bHasSIGXT, &material.m_bHasSIGXC, &material.m_bHasSIGYT,
        &material.m_bHasSIGYC, &material.m_bHasSIGXY, &material.m_bSIGYLDTempDepend,
        &material.m_bSIGXTTempDepend, &material.m_bSIGXCTempDepend, &material.m_bSIGYTTempDepend,
        &material.m_bSIGYCTempDepend, &material.m_bSIGXYTempDepend}) {
    *flag = random.Of({0, 1, 1, -2});
  }
  for (CmqTemperatureCurve* curve :
       {&material.m_SIGYLDTempCurve, &material.m_SIGXTTempCurve, &material.m_SIGXCTempCurve,
        &material.m_SIGYTTempCurve, &material.m_SIGYCTempCurve, &material.m_SIGXYTempCurve}) {
    Fill(*curve, AnyCurve(random));
  }
  static const std::vector<Text> kNames = {
      MQ_TEXT("Steel"),         MQ_TEXT("STEEL"),         MQ_TEXT("steel "), MQ_TEXT("Alloy"),
      MQ_TEXT("\u00C9t\u0416"), MQ_TEXT("\u00E9T\u0436"), MQ_TEXT("")};
  material.m_strMaterialName = StringOf(random.From(kNames));
  material.m_nBodyID = random.Between(-1, 4);
  material.m_nSecondaryID = random.Between(-1, 3);
}

/// A copy that differs in at most one member.
CmqpMaterialData Twin(const CmqpMaterialData& material, Random& random) {
  CmqpMaterialData twin(material);
  switch (random.Below(10)) {
    case 0: twin.m_bHasSIGXY = 1 - twin.m_bHasSIGXY; break;
    case 1: twin.m_dSIGXY = random.Double(); break;
    case 2: twin.m_dSIGXT = std::nextafter(twin.m_dSIGXT, 1e9); break;
    case 3: twin.m_bHasSIGYC = 1 - twin.m_bHasSIGYC; break;
    case 4: twin.m_nDefinedUnits = random.Between(0, 2); break;
    case 5: twin.m_nMaterialSource = random.Int(); break;
    case 6: twin.m_dSIGYT = -twin.m_dSIGYT; break;
    default: break;
  }
  twin.m_nBodyID = random.Between(-1, 4);
  return twin;
}

/// The six strengths of a record by their accessors.
struct Accessors {
  int (CmqpMaterialData::*value)(double&) const noexcept;
  int (CmqpMaterialData::*depends)() const noexcept;
  CmqTemperatureCurve* (CmqpMaterialData::*curve)() noexcept;
  CmqTemperatureCurve CmqpMaterialData::* member;
};

// clang-format off
constexpr Accessors kAccessors[kStrengths] = {
    { &CmqpMaterialData::GetPropertyValue_SIGYLD, &CmqpMaterialData::IsSIGYLDTempDepend,
      &CmqpMaterialData::GetSIGYLDTempCurve,      &CmqpMaterialData::m_SIGYLDTempCurve },
    { &CmqpMaterialData::GetPropertyValue_SIGXT,  &CmqpMaterialData::IsSIGXTTempDepend,
      &CmqpMaterialData::GetSIGXTTempCurve,       &CmqpMaterialData::m_SIGXTTempCurve },
    { &CmqpMaterialData::GetPropertyValue_SIGXC,  &CmqpMaterialData::IsSIGXCTempDepend,
      &CmqpMaterialData::GetSIGXCTempCurve,       &CmqpMaterialData::m_SIGXCTempCurve },
    { &CmqpMaterialData::GetPropertyValue_SIGYT,  &CmqpMaterialData::IsSIGYTTempDepend,
      &CmqpMaterialData::GetSIGYTTempCurve,       &CmqpMaterialData::m_SIGYTTempCurve },
    { &CmqpMaterialData::GetPropertyValue_SIGYC,  &CmqpMaterialData::IsSIGYCTempDepend,
      &CmqpMaterialData::GetSIGYCTempCurve,       &CmqpMaterialData::m_SIGYCTempCurve },
    { &CmqpMaterialData::GetPropertyValue_SIGXY,  &CmqpMaterialData::IsSIGXYTempDepend,
      &CmqpMaterialData::GetSIGXYTempCurve,       &CmqpMaterialData::m_SIGXYTempCurve },
};
// clang-format on

TEST(MaterialReference, RecordsAnswerForEachStrength) {
  ResetTally();
  Random random(4103);
  const int cases = CountCases(4000);
  for (int number = 0; number < cases; ++number) {
    CmqpMaterialData material;
    MakeMaterial(material, random);
    Fields members = Snapshot(material);
    for (int strength = 0; strength < kStrengths; ++strength) {
      const Accessors& access = kAccessors[strength];
      double value = 77.0;
      ASSERT_EQ(IntAt(members, "has", strength), (material.*access.value)(value)) << strength;
      ASSERT_EQ(members.at({"value", strength}), ValueOf(value)) << strength;
      const int depends = DependsOnTemperature(members, strength);
      ASSERT_EQ(depends, (material.*access.depends)()) << strength;
      ASSERT_EQ(depends == 1 ? &(material.*access.member) : nullptr, (material.*access.curve)())
          << strength;
    }
    ASSERT_EQ(StressUnit(members), GetMatInStressUnit(&material));
    ASSERT_EQ(StressUnit(members), material.GetMatUnitInStressUnit());
    ASSERT_EQ(IsSafeForComposite(members), material.IsSafeForCompositeFOS());
    const CmqpMaterialData twin = Twin(material, random);
    ASSERT_EQ(IsSameForDesign(members, Snapshot(twin)), material.IsSameValueForDesignCheck(twin))
        << FirstDifference(members, Snapshot(twin));

    CmqpMaterialData target;
    MakeMaterial(target, random);
    target = material;
    ASSERT_EQ("", FirstDifference(members, Snapshot(target)));
    InitialiseMaterial(members);
    material.ConstructorInit();
    ASSERT_EQ("", FirstDifference(members, Snapshot(material)));
  }
  ASSERT_EQ(0, GetMatInStressUnit(nullptr));
  CheckTally("depends",
             {"depends: not defined", "depends: constant", "depends: yes", "depends: no points"});
  CheckTally("stress unit",
             {"stress unit: no data", "stress unit: passed on", "stress unit: first"});
  CheckTally("composite", {"composite: yes", "composite: no"});
  CheckTally("same", {"same: counts or units differ", "same: a flag differs",
                      "same: the shear strength differs", "same: a strength differs", "same: yes",
                      "same: in spite of the shear flag"});
  RecordCases(cases);
}

void MakePlot(CmqPostDataParam& plot, Random& random) {
  plot.m_nResultType = random.Once(8) ? random.Int() : 4;
  plot.m_nFailureCriterion = random.Of({0, 2, 4, 4, 7, -1});
  plot.m_nCriterionOptions[0] = random.Of({0, 1, 2});
  plot.m_nCriterionOptions[1] = random.Of({0, 2, 3});
  plot.m_nBodyId = random.Of({0, -1, random.Between(1, 5)});
}

void CompareLists(const CmqpMaterialDataList& list, const Materials& model, Random& random) {
  const auto size = static_cast<int>(model.size());
  ASSERT_EQ(size, list.GetSize());
  for (const int index : {-1, size, random.Int(), random.Between(0, size)}) {
    Fields expected = Snapshot(CmqpMaterialData());
    InitialiseMaterial(expected);
    if (0 <= index && index < size) {
      expected = model[static_cast<std::size_t>(index)];
    }
    ASSERT_EQ("", FirstDifference(expected, Snapshot(list.GetAt(index)))) << index;
  }
  const int body = random.Between(-2, 5);
  const int secondary = random.Between(-1, 3);
  const int found = FindBody(model, body, secondary);
  CmqpMaterialData out;
  out.m_nReserved = 777;
  const Fields untouched = Snapshot(out);
  int index = -777;
  ASSERT_EQ(found >= 0 ? 1 : 0, list.GetByBodyID(body, &out, &index, secondary));
  ASSERT_EQ(found >= 0 ? found : -777, index) << body << " " << secondary;
  ASSERT_EQ("", FirstDifference(found >= 0 ? model[static_cast<std::size_t>(found)] : untouched,
                                Snapshot(out)));
  ASSERT_EQ(found >= 0 ? 1 : 0, list.GetByBodyID(body, &out, nullptr, secondary));

  std::vector<int> indices = {7, 7};
  const std::vector<int> expected = UniqueMaterials(model);
  ASSERT_EQ(expected.size(), list.GetUniqueMaterialList(indices));
  ASSERT_EQ(expected, indices);
  ASSERT_EQ(AreAllSame(model), list.IsSameValueForDesignCheck());
  CmqPostDataParam plot;
  MakePlot(plot, random);
  ASSERT_EQ(DependsOnTemperature(model, Snapshot(plot)),
            list.IsTemperatureDependentFOSCriterion(&plot));
  ASSERT_EQ(0, list.IsTemperatureDependentFOSCriterion(nullptr));
}

TEST(MaterialReference, ListsAnswerAsAPlainVectorDoes) {
  ResetTally();
  Random random(4104);
  const int cases = CountCases(5000);
  for (int number = 0; number < cases; ++number) {
    CmqpMaterialDataList list;
    Materials model;
    const bool areTwins = random.Once(2);
    CmqpMaterialData first;
    MakeMaterial(first, random);
    for (int size = random.Between(0, 6); size > 0; --size) {
      CmqpMaterialData material;
      if (areTwins) {
        material = Twin(first, random);
      } else {
        MakeMaterial(material, random);
      }
      // A record goes in and out as a copy, whose curves hold no more than their points.
      model.push_back(Snapshot(CmqpMaterialData(material)));
      ASSERT_EQ(static_cast<int>(model.size()) - 1, list.Add(material));
    }
    ASSERT_NO_FATAL_FAILURE(CompareLists(list, model, random));
    const CmqpMaterialDataList copy(list);
    CmqpMaterialDataList target;
    target.Add(first);
    target = list;
    list.RemoveAll();
    ASSERT_NO_FATAL_FAILURE(CompareLists(copy, model, random));
    ASSERT_NO_FATAL_FAILURE(CompareLists(target, model, random));
    ASSERT_NO_FATAL_FAILURE(CompareLists(list, {}, random));
  }
  CheckTally("body", {"body: by its id alone", "body: by both ids", "body: another secondary id",
                      "body: none"});
  CheckTally("unique", {"unique: empty list", "unique: known", "unique: new"});
  CheckTally("all same",
             {"all same: empty list", "all same: one", "all same: yes", "all same: no"});
  CheckTally("criterion", {"criterion: 4", "criterion: 2", "criterion: other, first option 2",
                           "criterion: other"});
  CheckTally("safety", {"safety: other result", "safety: both options 2", "safety: body unknown",
                        "safety: body depends", "safety: body does not",
                        "safety: some body depends", "safety: no body depends"});
  RecordCases(cases);
}

}  // namespace
}  // namespace reference
