#include <climits>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>
#include <mqPostCommon/display/assembly_component.h>

#include "display/display_test_support.h"

namespace mqp::test {
namespace {

static_assert(!std::is_polymorphic_v<CDspAsmComp>);

// clang-format off
const Lines kDefaults = {
    "m_nCompID: 0",
    "m_nFirstElem: -1",
    "m_nLastElem: -1",
    "m_Color: 1 1 1 1",
    "m_BottomColor: 0.5 0.5 0.5 1",
    "m_bHidden: 0",
    "m_strCompName: \"\"",
    "m_strBodyName: \"\"",
    "m_nBodyID: 0",
    "m_nVisIndexBase: 1",
    "m_nHost11: [0 0 0 0 0 0 0 0]",
    "m_dHost11: [0 0 0 0]",
    "m_bOwnsMeshData: 0",
    "m_arrSectProp: ()",
    "m_dHost14: -1",
    "m_strExtra: \"\"",
    "m_nHost16: [0 0 0 0]",
    "m_pHost16: [null null null null null null]",
    "m_arrHost17: [() () ()]",
    "m_arrHost18: [() () ()]",
    "m_nHost19: [[0 0 0 0 0 0 0 0 0] [0 0 0 0 0 0 0 0 0] [0 0 0 0 0 0 0 0 0]]",
    "m_pHost20: [null null]",
    "m_nHost20: [0 0 1 0 0]",
    "m_dHost20: [0 0]",
    "m_bOwnsMeshData2: 0",
    "m_nHost22: [0 0 0 0]",
    "m_arrHost23: ()",
    "m_arrHost24: ()",
    "m_bTempHidden: 0",
    "m_nHost27: 0",
    "m_arrFlipData: ()",
};
// clang-format on

const COGLColor kOrange(1.0F, 0.5F, 0.0F, 0.75F);
const COGLColor kViolet(0.25F, 0.0F, 0.5F, 0.125F);

/// Flip records of the test, which a component that owns nothing may hold.
class Records {
 public:
  explicit Records(int first) {
    for (CShellEntityID_FlipData& record : m_records) {
      record.m_nHost1 = first++;
      record.m_nHost2 = first++;
      record.m_nHost3 = first++;
    }
  }
  void AddTo(CDspAsmComp& component) {
    component.m_arrFlipData.Add(&m_records[0]);
    component.m_arrFlipData.Add(&m_records[1]);
  }

 private:
  CShellEntityID_FlipData m_records[2];
};

/// An assignment makes records that belong to nobody but the host.
void DeleteRecords(CDspAsmComp& component) {
  for (int index = 0; index < component.m_arrFlipData.GetSize(); ++index) {
    delete component.m_arrFlipData[index];
  }
  component.m_arrFlipData.RemoveAll();
}

TEST(AssemblyComponent, ANewOneHasTheDefaults) {
  EXPECT_EQ(Difference(Describe(CDspAsmComp()), kDefaults), "");
}

TEST(AssemblyComponent, OneOfARangeAndTwoColorsSetsThese) {
  const CDspAsmComp component(7, 100, 199, kOrange, kViolet, 1);
  EXPECT_EQ(Difference(Describe(component),
                       With(kDefaults, {"m_nCompID: 7", "m_nFirstElem: 100", "m_nLastElem: 199",
                                        "m_Color: 1 0.5 0 0.75", "m_BottomColor: 0.25 0 0.5 0.125",
                                        "m_bHidden: 1", "m_nVisIndexBase: 101"})),
            "");
}

TEST(AssemblyComponent, OneOfARangeAndOneColorHasAGreyBottomFace) {
  const CDspAsmComp component(-8, 3, 2, kViolet, -5);
  EXPECT_EQ(Difference(Describe(component),
                       With(kDefaults,
                            {"m_nCompID: -8", "m_nFirstElem: 3", "m_nLastElem: 2",
                             "m_Color: 0.25 0 0.5 0.125", "m_bHidden: -5", "m_nVisIndexBase: 4"})),
            "");
}

TEST(AssemblyComponent, TheVisibleIndexBaseIsTheFirstElementPlusOne) {
  struct Row {
    int firstElem;
    int expected;
  };
  // clang-format off
  const Row rows[] = {
      // first elem      base
      {0,                1},
      {-1,               0},
      {1,                2},
      {INT_MAX - 1,      INT_MAX},
      {INT_MAX,          INT_MIN},  // wraps around
      {INT_MIN,          INT_MIN + 1},
  };
  // clang-format on
  for (const Row& row : rows) {
    SCOPED_TRACE(row.firstElem);
    EXPECT_EQ(CDspAsmComp(0, row.firstElem, 0, kOrange, 0).m_nVisIndexBase, row.expected);
    EXPECT_EQ(CDspAsmComp(0, row.firstElem, 0, kOrange, kViolet, 0).m_nVisIndexBase, row.expected);
  }
}

TEST(AssemblyComponent, TheColorsHandedInStayAsTheyAre) {
  COGLColor color = kOrange;
  COGLColor bottomColor = kViolet;
  CDspAsmComp component(1, 2, 3, color, bottomColor, 0);
  component.FlipColor();
  EXPECT_TRUE(color == kOrange);
  EXPECT_TRUE(bottomColor == kViolet);
  color = 0x00FFFFFFUL;
  EXPECT_TRUE(component.m_BottomColor == kOrange);
}

TEST(AssemblyComponent, TwoFilledOnesDifferFromTheDefaultsAndFromEachOtherInEveryMember) {
  const Lines one = Describe(Filled(10));
  const Lines other = Describe(Filled(501));
  for (std::size_t index = 0; index + 1 < kDefaults.size(); ++index) {
    EXPECT_NE(one[index], kDefaults[index]);
    EXPECT_NE(other[index], kDefaults[index]);
    EXPECT_NE(one[index], other[index]);
  }
}

TEST(AssemblyComponent, ACopyTakesEveryMember) {
  Records records(900);
  CDspAsmComp source = Filled(10);
  records.AddTo(source);
  const Lines expected = Describe(source);
  const CDspAsmComp copy(source);
  EXPECT_EQ(Difference(Describe(copy), expected), "");
  EXPECT_EQ(Difference(Describe(source), expected), "");
  EXPECT_EQ(expected.back(), "m_arrFlipData: (900/901/902 903/904/905)");
}

TEST(AssemblyComponent, ACopyOfANewOneIsNew) {
  const CDspAsmComp source;
  EXPECT_EQ(Difference(Describe(CDspAsmComp(source)), kDefaults), "");
}

TEST(AssemblyComponent, ACopyStandsByItself) {
  CDspAsmComp source = Filled(10);
  const Lines expected = Describe(source);
  CDspAsmComp copy(source);
  Filler fill(501);
  VisitMembers(copy, [&fill](const char*, auto& member) { fill(member); });
  EXPECT_EQ(Difference(Describe(source), expected), "");
  EXPECT_EQ(Difference(Describe(copy), Describe(Filled(501))), "");
}

TEST(AssemblyComponent, AnAssignmentReplacesEveryMember) {
  Records sourceRecords(900);
  Records targetRecords(950);
  CDspAsmComp source = Filled(10);
  sourceRecords.AddTo(source);
  const Lines expected = Describe(source);
  CDspAsmComp target = Filled(501);
  targetRecords.AddTo(target);
  EXPECT_EQ(&(target = source), &target);
  EXPECT_EQ(Difference(Describe(target), expected), "");
  EXPECT_EQ(Difference(Describe(source), expected), "");
  DeleteRecords(target);
}

TEST(AssemblyComponent, AnAssignmentOfANewOneEmptiesAFilledOne) {
  Records records(900);
  CDspAsmComp target = Filled(10);
  records.AddTo(target);
  target = CDspAsmComp();
  EXPECT_EQ(Difference(Describe(target), kDefaults), "");
}

TEST(AssemblyComponent, AnAssignmentFillsANewOne) {
  const CDspAsmComp source = Filled(10);
  CDspAsmComp target;
  target = source;
  EXPECT_EQ(Difference(Describe(target), Describe(Filled(10))), "");
}

TEST(AssemblyComponent, AnAssignmentToItselfChangesNothing) {
  Records records(900);
  CDspAsmComp component = Filled(10);
  records.AddTo(component);
  const Lines expected = Describe(component);
  const CDspAsmComp& self = component;
  EXPECT_EQ(&(component = self), &component);
  EXPECT_EQ(Difference(Describe(component), expected), "");
}

TEST(AssemblyComponent, AMovedOneTakesEveryMember) {
  Records records(900);
  CDspAsmComp source = Filled(10);
  records.AddTo(source);
  const Lines expected = Describe(source);
  const CDspAsmComp target(std::move(source));
  EXPECT_EQ(Difference(Describe(target), expected), "");
}

TEST(AssemblyComponent, EqualityLooksAtFiveMembersAndAtNoOther) {
  int count = 0;
  for (std::size_t changed = 0; changed + 1 < kDefaults.size(); ++changed) {
    const CDspAsmComp one = Filled(10);
    CDspAsmComp other = Filled(10);
    std::string_view changedName;
    std::size_t index = 0;
    VisitMembers(other, [&](const char* name, auto& member) {
      if (index++ == changed) {
        Filler(501)(member);
        changedName = name;
      }
    });
    const bool decides = changedName == "m_nCompID" || changedName == "m_nFirstElem" ||
                         changedName == "m_nLastElem" || changedName == "m_bHidden" ||
                         changedName == "m_nBodyID";
    count += decides ? 1 : 0;
    EXPECT_EQ(one == other, decides ? 0 : 1) << changedName;
    EXPECT_EQ(other == one, decides ? 0 : 1) << changedName;
    EXPECT_EQ(one != other, decides ? 1 : 0) << changedName;
  }
  EXPECT_EQ(count, 5);
}

TEST(AssemblyComponent, EqualityIgnoresFlipRecords) {
  Records records(900);
  const CDspAsmComp one = Filled(10);
  CDspAsmComp other = Filled(10);
  records.AddTo(other);
  EXPECT_EQ(one == other, 1);
}

TEST(AssemblyComponent, EqualityOfFlagsIsThatOfTheirValues) {
  const CDspAsmComp one(1, 2, 3, kOrange, 1);
  const CDspAsmComp other(1, 2, 3, kOrange, 2);
  EXPECT_EQ(one == other, 0);
  EXPECT_EQ(one == one, 1);
  EXPECT_EQ(CDspAsmComp() == CDspAsmComp(), 1);
}

TEST(AssemblyComponent, IsAvailableWithARangeThatStartsAtZeroOrAbove) {
  struct Row {
    int firstElem;
    int lastElem;
    int expected;
  };
  // clang-format off
  const Row rows[] = {
      // first      last          available
      {-1,          -1,           0},
      {-1,          0,            0},
      {-1,          5,            0},
      {0,           -1,           0},
      {0,           0,            1},
      {0,           1,            1},
      {1,           0,            0},
      {5,           4,            0},
      {5,           5,            1},
      {5,           6,            1},
      {-5,          -3,           0},
      {0,           INT_MAX,      1},
      {INT_MAX,     INT_MAX,      1},
      {INT_MAX,     INT_MAX - 1,  0},
      {INT_MAX,     0,            0},
      {INT_MAX,     INT_MIN,      0},
      {INT_MIN,     INT_MAX,      0},
      {INT_MIN,     INT_MIN,      0},
      {INT_MIN,     0,            0},
      {0,           INT_MIN,      0},
  };
  // clang-format on
  for (const Row& row : rows) {
    const CDspAsmComp component(1, row.firstElem, row.lastElem, kOrange, 1);
    EXPECT_EQ(component.PostAvailable(), row.expected)
        << "range " << row.firstElem << " to " << row.lastElem;
  }
}

TEST(AssemblyComponent, FlippingSwapsTheColorsAndNothingElse) {
  CDspAsmComp component = Filled(10);
  component.m_Color = kOrange;
  component.m_BottomColor = kViolet;
  const Lines before = Describe(component);
  component.FlipColor();
  EXPECT_EQ(Difference(Describe(component),
                       With(before, {"m_Color: 0.25 0 0.5 0.125", "m_BottomColor: 1 0.5 0 0.75"})),
            "");
  component.FlipColor();
  EXPECT_EQ(Difference(Describe(component), before), "");
}

}  // namespace
}  // namespace mqp::test
