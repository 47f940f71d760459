#include <algorithm>
#include <climits>
#include <limits>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/materials/material.h>

#include "materials/material_test_support.h"

namespace mqp::test {
namespace {

static_assert(std::has_virtual_destructor_v<CmqpMaterialData>);
static_assert(std::is_nothrow_move_constructible_v<CmqpMaterialData>);
static_assert(std::is_nothrow_move_assignable_v<CmqpMaterialData>);

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Records are filled in place, so that no copy goes into what is expected of one.

TEST(Material, ANewRecordHasNoDataAndUndefinedStrengths) {
  const CmqpMaterialData material;
  CmqpMaterialData expected;
  MakeNew(expected);
  EXPECT_EQ(Differences(material, expected), "");
}

TEST(Material, TheValuesOfThisTestDifferInEveryMember) {
  CmqpMaterialData one;
  CmqpMaterialData other;
  FillWithDistinctValues(one, 1);
  FillWithDistinctValues(other, 2);
  const std::string differences = Differences(one, other);
  EXPECT_EQ(std::count(differences.begin(), differences.end(), '\n'), 34);
  MakeNew(other);
  const std::string changes = Differences(one, other);
  EXPECT_EQ(std::count(changes.begin(), changes.end(), '\n'), 34);
}

TEST(Material, AResetRecordKeepsItsCurvesAlone) {
  CmqpMaterialData material;
  CmqpMaterialData expected;
  FillWithDistinctValues(material, 1);
  FillWithDistinctValues(expected, 1);
  SetDefaults(expected);
  material.ConstructorInit();
  EXPECT_EQ(Differences(material, expected), "");
  material.ConstructorInit();
  EXPECT_EQ(Differences(material, expected), "");
}

TEST(Material, AResetRecordKeepsEveryByteOfTheCountsOfItsCurves) {
  for (const Strength& strength : kStrengths) {
    for (const int points : {1, 0x100, 0x10000, 0x1000000, INT_MIN}) {
      CmqpMaterialData material;
      (material.*strength.curve).m_nPoints = points;
      material.ConstructorInit();
      EXPECT_EQ((material.*strength.curve).m_nPoints, points) << strength.name;
    }
  }
}

TEST(Material, ACopyHasEveryMemberAndThePointsThatCount) {
  CmqpMaterialData source;
  CmqpMaterialData unchanged;
  CmqpMaterialData expected;
  FillWithDistinctValues(source, 1);
  FillWithDistinctValues(unchanged, 1);
  FillWithDistinctValues(expected, 1);
  ShortenCurves(expected, 3);

  const CmqpMaterialData copy(source);
  EXPECT_EQ(Differences(copy, expected), "");
  EXPECT_EQ(Differences(source, unchanged), "");
}

TEST(Material, AnAssignedRecordHasEveryMemberAndWholeCurves) {
  CmqpMaterialData source;
  CmqpMaterialData expected;
  CmqpMaterialData fresh;
  CmqpMaterialData filled;
  FillWithDistinctValues(source, 1);
  FillWithDistinctValues(expected, 1);
  FillWithDistinctValues(filled, 2);

  CmqpMaterialData& result = filled = source;
  EXPECT_EQ(&result, &filled);
  fresh = source;
  EXPECT_EQ(Differences(filled, expected), "");
  EXPECT_EQ(Differences(fresh, expected), "");
  EXPECT_EQ(Differences(source, expected), "");
}

TEST(Material, CopiesOfANewRecordAreNew) {
  CmqpMaterialData expected;
  MakeNew(expected);
  const CmqpMaterialData fresh;
  const CmqpMaterialData copy(fresh);
  CmqpMaterialData assigned;
  FillWithDistinctValues(assigned, 1);
  assigned = fresh;
  EXPECT_EQ(Differences(copy, expected), "");
  EXPECT_EQ(Differences(assigned, expected), "");
}

TEST(Material, CopiesAreIndependentOfTheirSource) {
  CmqpMaterialData assignedExpected;
  CmqpMaterialData copyExpected;
  FillWithDistinctValues(assignedExpected, 1);
  FillWithDistinctValues(copyExpected, 1);
  ShortenCurves(copyExpected, 3);

  CmqpMaterialData source;
  FillWithDistinctValues(source, 1);
  const CmqpMaterialData copy(source);
  CmqpMaterialData assigned;
  assigned = source;
  FillWithDistinctValues(source, 2);
  EXPECT_EQ(Differences(copy, copyExpected), "");
  EXPECT_EQ(Differences(assigned, assignedExpected), "");
}

TEST(Material, ARecordAssignedToItselfStaysAsItIs) {
  CmqpMaterialData material;
  CmqpMaterialData expected;
  FillWithDistinctValues(material, 1);
  FillWithDistinctValues(expected, 1);
  const CmqpMaterialData& alias = material;
  material = alias;
  EXPECT_EQ(Differences(material, expected), "");
}

TEST(Material, AMovedRecordHasEveryMemberAndWholeCurves) {
  CmqpMaterialData source;
  CmqpMaterialData expected;
  FillWithDistinctValues(source, 1);
  FillWithDistinctValues(expected, 1);
  CmqpMaterialData moved(std::move(source));
  EXPECT_EQ(Differences(moved, expected), "");

  CmqpMaterialData target;
  FillWithDistinctValues(target, 2);
  CmqpMaterialData& result = target = std::move(moved);
  EXPECT_EQ(&result, &target);
  EXPECT_EQ(Differences(target, expected), "");
}

TEST(Material, TheCodesAndTheNameAreReturnedAsTheyAre) {
  for (const int start : {1, -1000, INT_MIN, INT_MAX - 4}) {
    CmqpMaterialData material;
    material.m_nCount = start;
    material.m_nMaterialSource = start + 1;
    material.m_nDefinedUnits = start + 2;
    material.m_nTreatAsMaterial = start + 3;
    material.m_nDefaultFailureCriteria = start + 4;
    material.m_strMaterialName = MQ_TEXT("\u00C4tzstahl");
    material.m_strExtraText = MQ_TEXT("other");
    EXPECT_EQ(material.GetCount(), start);
    EXPECT_EQ(material.GetMaterialSource(), start + 1);
    EXPECT_EQ(material.GetDefinedUnits(), start + 2);
    EXPECT_EQ(material.GetTreatAsMaterial(), start + 3);
    EXPECT_EQ(material.GetDefaultFailureCriteria(), start + 4);
    EXPECT_EQ(material.GetMaterialName(), CString(MQ_TEXT("\u00C4tzstahl")));
  }
}

TEST(Material, TheNameIsReturnedAsACopy) {
  CmqpMaterialData material;
  material.m_strMaterialName = MQ_TEXT("Steel");
  CString name = material.GetMaterialName();
  name += MQ_TEXT(" 2");
  EXPECT_EQ(material.m_strMaterialName, CString(MQ_TEXT("Steel")));
}

TEST(Material, EachStrengthReturnsItsOwnFlagAndConstant) {
  CmqpMaterialData material;
  constexpr int kFlags[kStrengthTotal] = {7, -1, 2, INT_MIN, INT_MAX, 1};
  constexpr double kValues[kStrengthTotal] = {250e6, 1.5, -0.0, kInfinity, -1.0, 3e-320};
  for (int place = 0; place < kStrengthTotal; ++place) {
    material.*kStrengths[place].has = kFlags[place];
    material.*kStrengths[place].value = kValues[place];
  }
  for (int place = 0; place < kStrengthTotal; ++place) {
    const Strength& strength = kStrengths[place];
    double value = 99.0;
    EXPECT_EQ((material.*strength.getValue)(value), kFlags[place]) << strength.name;
    EXPECT_EQ(Difference(value, kValues[place]), "") << strength.name;
  }
}

TEST(Material, AnUndefinedStrengthGivesItsConstantAllTheSame) {
  for (const Strength& strength : kStrengths) {
    CmqpMaterialData material;
    double value = 99.0;
    EXPECT_EQ((material.*strength.getValue)(value), 0) << strength.name;
    EXPECT_EQ(Difference(value, -1.0), "") << strength.name;
    material.*strength.value = 42.0;
    EXPECT_EQ((material.*strength.getValue)(value), 0) << strength.name;
    EXPECT_EQ(Difference(value, 42.0), "") << strength.name;
  }
}

/// Whether each strength varies by the record's account, its curve handed out accordingly.
std::string VariesAndCurves(CmqpMaterialData& material) {
  std::string text;
  for (const Strength& strength : kStrengths) {
    const int varies = (material.*strength.isTempDepend)();
    const CmqTemperatureCurve* curve = (material.*strength.getCurve)();
    text += std::to_string(varies);
    text += curve == nullptr ? '-' : curve == &(material.*strength.curve) ? 'c' : '?';
  }
  return text;
}

TEST(Material, AStrengthVariesWhenItIsDefinedDependsOnTemperatureAndHasPoints) {
  for (int place = 0; place < kStrengthTotal; ++place) {
    const Strength& strength = kStrengths[place];
    for (const int has : {0, 1, -1, 2, INT_MIN, INT_MAX}) {
      for (const int varies : {0, 1, -1, 2, INT_MIN, INT_MAX}) {
        for (const int points : {INT_MIN, -1, 0, 1, 2, INT_MAX}) {
          CmqpMaterialData material;
          material.*strength.has = has;
          material.*strength.varies = varies;
          (material.*strength.curve).m_nPoints = points;
          std::string expected = "0-0-0-0-0-0-";
          if (has != 0 && varies != 0 && points >= 1) {
            expected.replace(2U * static_cast<unsigned>(place), 2, "1c");
          }
          EXPECT_EQ(VariesAndCurves(material), expected)
              << strength.name << ", defined " << has << ", varies " << varies << ", points "
              << points;
        }
      }
    }
  }
}

TEST(Material, AStrengthThatDoesNotVaryLeavesTheOthersAlone) {
  for (int place = 0; place < kStrengthTotal; ++place) {
    const Strength& strength = kStrengths[place];
    CmqpMaterialData material;
    for (const Strength& each : kStrengths) {
      LetVary(material, each);
    }
    EXPECT_EQ(VariesAndCurves(material), "1c1c1c1c1c1c");
    std::string expected = "1c1c1c1c1c1c";
    expected.replace(2U * static_cast<unsigned>(place), 2, "0-");

    material.*strength.has = 0;
    EXPECT_EQ(VariesAndCurves(material), expected) << strength.name << " undefined";
    material.*strength.has = 1;
    material.*strength.varies = 0;
    EXPECT_EQ(VariesAndCurves(material), expected) << strength.name << " constant";
    material.*strength.varies = 1;
    (material.*strength.curve).m_nPoints = 0;
    EXPECT_EQ(VariesAndCurves(material), expected) << strength.name << " without points";
  }
}

TEST(Material, TheCurveIsTheOneOfTheRecordItself) {
  CmqpMaterialData material;
  LetVary(material, kStrengths[kShear]);
  material.GetSIGXYTempCurve()->m_vecY = {5.0};
  EXPECT_EQ(Show(material.m_SIGXYTempCurve.m_vecY), Show(std::vector<double>{5.0}));
  CmqpMaterialData copy(material);
  EXPECT_EQ(copy.GetSIGXYTempCurve(), &copy.m_SIGXYTempCurve);
}

TEST(Material, APointsCountWithoutArraysVariesAllTheSame) {
  CmqpMaterialData material;
  LetVary(material, kStrengths[kYield]);
  material.m_SIGYLDTempCurve.m_vecX.clear();
  material.m_SIGYLDTempCurve.m_vecY.clear();
  EXPECT_EQ(material.IsSIGYLDTempDepend(), 1);
  EXPECT_EQ(material.GetSIGYLDTempCurve(), &material.m_SIGYLDTempCurve);
}

struct UnitRow {
  int count;
  int definedUnits;
  int unit;
};

// clang-format off
constexpr UnitRow kUnits[] = {
    // count   defined   unit
    {      1,       -2,     0},
    {      1,       -1,     0},
    {      1,        0,     0},
    {      1,        1,     1},
    {      1,        2,     2},
    {      1,        3,     0},  // N/mm^2 counts as N/m^2
    {      1,        4,     0},
    {      1,        5,     0},
    {      1,        6,     0},
    {      1,  INT_MIN,     0},
    {      1,  INT_MAX,     0},
    {      0,        1,     0},
    {      0,        2,     0},
    {      0,        3,     0},
    {     -1,        1,     1},
    {     -1,        2,     2},
    {      2,        1,     1},
    {INT_MIN,        2,     2},
    {INT_MAX,        1,     1},
};
// clang-format on

TEST(Material, OnlyPsiAndKilogramsPerSquareCentimetreAreUnitsOfTheirOwn) {
  for (const UnitRow& row : kUnits) {
    CmqpMaterialData material;
    material.m_nCount = row.count;
    material.m_nDefinedUnits = row.definedUnits;
    EXPECT_EQ(GetMatInStressUnit(&material), row.unit) << row.count << ", " << row.definedUnits;
    EXPECT_EQ(material.GetMatUnitInStressUnit(), row.unit) << row.count << ", " << row.definedUnits;
  }
}

TEST(Material, NoRecordAndANewRecordAreInNewtonsPerSquareMetre) {
  EXPECT_EQ(GetMatInStressUnit(nullptr), 0);
  const CmqpMaterialData material;
  EXPECT_EQ(GetMatInStressUnit(&material), 0);
}

TEST(Material, ACompositeNeedsTensileCompressiveAndShearStrength) {
  for (const int flag : {1, -1, 2, INT_MIN, INT_MAX}) {
    for (int defined = 0; defined < 64; ++defined) {
      CmqpMaterialData material;
      for (int place = 0; place < kStrengthTotal; ++place) {
        material.*kStrengths[place].has = (defined >> place & 1) != 0 ? flag : 0;
      }
      const bool tensile = (defined & 1 << kTensile) != 0;
      const bool compressive = (defined & 1 << kCompressive) != 0;
      const bool shear = (defined & 1 << kShear) != 0;
      EXPECT_EQ(material.IsSafeForCompositeFOS(), tensile && compressive && shear ? 1 : 0)
          << "flag " << flag << ", defined strengths " << defined;
    }
  }
}

TEST(Material, OnlyFlagsDecideWhetherACompositeIsSafe) {
  CmqpMaterialData material;
  FillWithDistinctValues(material, 1);
  EXPECT_EQ(material.IsSafeForCompositeFOS(), 1);
  material.m_nCount = 0;
  material.m_dSIGXT = kNaN;
  material.m_dSIGXC = -1.0;
  EXPECT_EQ(material.IsSafeForCompositeFOS(), 1);
}

/// The members that make a difference for design checks.
const std::set<std::string> kCompared = {
    "m_nCount",    "m_nDefinedUnits", "m_bHasSIGYLD", "m_dSIGYLD",   "m_bHasSIGXT",
    "m_dSIGXT",    "m_bHasSIGXC",     "m_dSIGXC",     "m_bHasSIGYT", "m_dSIGYT",
    "m_bHasSIGYC", "m_dSIGYC",        "m_dSIGXY",
};

struct Changer {
  static void Change(int& member) { ++member; }
  static void Change(double& member) { member += 1.0; }
  static void Change(CString& member) { member += MQ_TEXT("x"); }
  static void Change(CmqTemperatureCurve& member) { member.m_vecY[0] += 1.0; }
};

TEST(Material, DesignChecksCompareTheseMembersAndNoOthers) {
  constexpr int kMemberTotal = 34;
  int compared = 0;
  for (int changed = 0; changed < kMemberTotal; ++changed) {
    CmqpMaterialData one;
    CmqpMaterialData other;
    FillWithDistinctValues(one, 1);
    FillWithDistinctValues(other, 1);
    int place = 0;
    std::string changedName;
    VisitMembers(other, [&](const char* name, auto& member) {
      if (place++ == changed) {
        changedName = name;
        Changer::Change(member);
      }
    });
    ASSERT_EQ(place, kMemberTotal);
    const bool counts = kCompared.contains(changedName);
    compared += counts ? 1 : 0;
    EXPECT_EQ(one.IsSameValueForDesignCheck(other), counts ? 0 : 1) << changedName;
    EXPECT_EQ(other.IsSameValueForDesignCheck(one), counts ? 0 : 1) << changedName;
  }
  EXPECT_EQ(compared, 13);
}

TEST(Material, DesignChecksTakeAllThatIsNotComparedAtOnce) {
  CmqpMaterialData one;
  CmqpMaterialData other;
  FillWithDistinctValues(one, 1);
  FillWithDistinctValues(other, 1);
  VisitMembers(other, [](const char* name, auto& member) {
    if (!kCompared.contains(name)) {
      Changer::Change(member);
    }
  });
  EXPECT_EQ(one.IsSameValueForDesignCheck(other), 1);
}

TEST(Material, NewRecordsAreTheSameForDesignChecks) {
  const CmqpMaterialData one;
  const CmqpMaterialData other;
  EXPECT_EQ(one.IsSameValueForDesignCheck(other), 1);
  EXPECT_EQ(one.IsSameValueForDesignCheck(one), 1);
}

TEST(Material, DesignChecksIgnoreWhetherShearStrengthIsDefinedButNotItsValue) {
  CmqpMaterialData one;
  CmqpMaterialData other;
  other.m_bHasSIGXY = 1;
  EXPECT_EQ(one.IsSameValueForDesignCheck(other), 1);
  other.m_bHasSIGXY = 0;
  other.m_dSIGXY = 5.0;
  EXPECT_EQ(one.IsSameValueForDesignCheck(other), 0);
}

TEST(Material, DesignChecksTellFlagsApartThatBothMeanDefined) {
  for (int place = 0; place < kStrengthTotal; ++place) {
    const Strength& strength = kStrengths[place];
    // In the lowest byte, in the highest one, and in all.
    for (const int flag : {2, 0x01000001, -1}) {
      CmqpMaterialData one;
      CmqpMaterialData other;
      one.*strength.has = 1;
      other.*strength.has = flag;
      EXPECT_EQ(one.IsSameValueForDesignCheck(other), place == kShear ? 1 : 0)
          << strength.name << ", " << flag;
    }
  }
}

struct EqualityRow {
  double left;
  double right;
  int same;
};

constexpr EqualityRow kEqualities[] = {
    {250e6, 250e6, 1},
    {1.0, 0x1.0000000000001p+0, 0},  // no tolerance
    {0.0, std::numeric_limits<double>::denorm_min(), 0},
    {-0.0, 0.0, 1},
    {kInfinity, kInfinity, 1},
    {kInfinity, -kInfinity, 0},
    {kNaN, kNaN, 0},
    {kNaN, -1.0, 0},
};

TEST(Material, DesignChecksCompareStrengthsExactly) {
  for (const Strength& strength : kStrengths) {
    for (const EqualityRow& row : kEqualities) {
      CmqpMaterialData one;
      CmqpMaterialData other;
      one.*strength.value = row.left;
      other.*strength.value = row.right;
      EXPECT_EQ(one.IsSameValueForDesignCheck(other), row.same)
          << strength.name << ": " << Show(row.left) << " and " << Show(row.right);
      EXPECT_EQ(other.IsSameValueForDesignCheck(one), row.same)
          << strength.name << ": " << Show(row.right) << " and " << Show(row.left);
    }
    CmqpMaterialData odd;
    odd.*strength.value = kNaN;
    EXPECT_EQ(odd.IsSameValueForDesignCheck(odd), 0) << strength.name;
  }
}

}  // namespace
}  // namespace mqp::test
