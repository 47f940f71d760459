#include <algorithm>
#include <bit>
#include <climits>
#include <cstdint>
#include <functional>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/display/assembly_list.h>

#include "display/display_test_support.h"

namespace mqp::test {
namespace {

using Colors = CArray<COGLColor, COGLColor>;
using Integers = std::vector<int>;
using Strings = std::vector<CString>;

constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();

/// The numbers 1, 2, ... of components whose other members are the defaults.
CDspAsmCompList Numbered(int count) {
  CDspAsmCompList list;
  for (int number = 1; number <= count; ++number) {
    list.Add(Make({.compId = number}));
  }
  return list;
}

Integers Numbers(const CDspAsmCompList& list) {
  return Column(list, &CDspAsmComp::m_nCompID);
}
Integers Values(const CDspAsmCompList& list) {
  return Read(list.m_arrCompValues);
}

TEST(AssemblyList, ANewOneIsEmpty) {
  CDspAsmCompList list;
  EXPECT_EQ(list.GetSize(), 0);
  EXPECT_EQ(list.m_arrComps.GetSize(), 0);
  EXPECT_EQ(list.m_arrCompValues.GetSize(), 0);
  EXPECT_EQ(&list.GetDspAsmCompList(), &list.m_arrComps);
}

TEST(AssemblyList, AddReturnsTheIndexAndGivesTheValueOfTheNewCount) {
  CDspAsmCompList list;
  EXPECT_EQ(list.Add(Make({.compId = 5})), 0);
  EXPECT_EQ(list.Add(Make({.compId = 6})), 1);
  EXPECT_EQ(list.Add(Make({.compId = 5})), 2);
  EXPECT_EQ(list.GetSize(), 3);
  EXPECT_EQ(Numbers(list), (Integers{5, 6, 5}));
  EXPECT_EQ(Values(list), (Integers{1, 2, 3}));
}

TEST(AssemblyList, AddTakesAnyValue) {
  CDspAsmCompList list;
  EXPECT_EQ(list.Add(Make({.compId = 5}), -7), 0);
  EXPECT_EQ(list.Add(Make({.compId = 6}), INT_MAX), 1);
  EXPECT_EQ(list.Add(Make({.compId = 7})), 2);
  EXPECT_EQ(list.Add(Make({.compId = 8}), INT_MIN), 3);
  EXPECT_EQ(Numbers(list), (Integers{5, 6, 7, 8}));
  EXPECT_EQ(Values(list), (Integers{-7, INT_MAX, 3, INT_MIN}));
}

TEST(AssemblyList, AddTakesEveryMember) {
  CDspAsmCompList list;
  const CDspAsmComp component = Filled(10);
  list.Add(component);
  EXPECT_EQ(Difference(Describe(list.m_arrComps[0]), Describe(Filled(10))), "");
  EXPECT_EQ(Difference(Describe(component), Describe(Filled(10))), "");
}

TEST(AssemblyList, AComponentOfTheListMayBeAddedToItAtEverySize) {
  CDspAsmCompList list;
  list.Add(Filled(10));
  for (int size = 1; size < 40; ++size) {
    EXPECT_EQ(list.Add(list.GetDspAsmCompList()[size / 2], size), size);
    ASSERT_EQ(Difference(Describe(list.m_arrComps[size]), Describe(Filled(10))), "");
  }
}

TEST(AssemblyList, RemovingAllEmptiesComponentsAndValues) {
  CDspAsmCompList list = Numbered(3);
  list.RemoveAll();
  EXPECT_EQ(list.GetSize(), 0);
  EXPECT_TRUE(list.m_arrComps.IsEmpty());
  EXPECT_TRUE(list.m_arrCompValues.IsEmpty());
  list.RemoveAll();
  EXPECT_EQ(list.Add(Make({})), 0);
  EXPECT_EQ(Values(list), (Integers{1}));
}

TEST(AssemblyList, GetAtGivesCopiesAndTheirValues) {
  CDspAsmCompList list;
  list.Add(Filled(10), 70);
  list.Add(Filled(501), -80);
  EXPECT_EQ(Difference(Describe(list.GetAt(0)), Describe(Filled(10))), "");
  EXPECT_EQ(Difference(Describe(list.GetAt(1)), Describe(Filled(501))), "");
  int value = 0;
  EXPECT_EQ(Difference(Describe(list.GetAt(1, &value)), Describe(Filled(501))), "");
  EXPECT_EQ(value, -80);
  EXPECT_EQ(Difference(Describe(list.GetAt(0, &value)), Describe(Filled(10))), "");
  EXPECT_EQ(value, 70);
  CDspAsmComp copy = list.GetAt(0);
  copy.m_strCompName = MQ_TEXT("another");
  copy.m_arrHost17[0].RemoveAll();
  EXPECT_EQ(Difference(Describe(list.GetAt(0)), Describe(Filled(10))), "");
}

TEST(AssemblyList, TheComponentsOfTheListAreChangedInPlace) {
  CDspAsmCompList list = Numbered(2);
  list.GetDspAsmCompList()[1].m_nCompID = 50;
  EXPECT_EQ(list.GetAt(1).m_nCompID, 50);
}

TEST(AssemblyList, ComponentsAddedPastTheListHaveTheValue0) {
  CDspAsmCompList list = Numbered(1);
  list.GetDspAsmCompList().Add(Make({.compId = 20}));
  EXPECT_EQ(list.GetSize(), 2);
  int value = 77;
  EXPECT_EQ(list.GetAt(1, &value).m_nCompID, 20);
  EXPECT_EQ(value, 0);
  const CDspAsmCompList copy(list);
  EXPECT_EQ(copy.GetAt(1, &value).m_nCompID, 20);
  EXPECT_EQ(value, 0);
  EXPECT_EQ(list.Add(Make({.compId = 30})), 2);
  EXPECT_EQ(Values(list), (Integers{1, 0, 3}));
  list.GetDspAsmCompList().Add(Make({.compId = 40}));
  list.SetAt(3, Make({.compId = 50}), 9);
  EXPECT_EQ(Values(list), (Integers{1, 0, 3, 9}));
  list.GetDspAsmCompList().Add(Make({.compId = 60, .last = -5}));
  EXPECT_EQ(list.SortByElemID(1), 1);
  EXPECT_EQ(list.m_arrComps[0].m_nCompID, 60);
  EXPECT_EQ(Values(list), (Integers{1, 2, 3, 4, 5}));
}

TEST(AssemblyList, SetAtReplacesTheComponentAndKeepsOrSetsTheValue) {
  CDspAsmCompList list;
  list.Add(Filled(10), 70);
  list.Add(Filled(20), 80);
  list.Add(Filled(30), 90);
  list.SetAt(1, Filled(501));
  EXPECT_EQ(Values(list), (Integers{70, 80, 90}));
  EXPECT_EQ(Difference(Describe(list.m_arrComps[1]), Describe(Filled(501))), "");
  list.SetAt(2, CDspAsmComp(), -5);
  EXPECT_EQ(Values(list), (Integers{70, 80, -5}));
  EXPECT_EQ(Difference(Describe(list.m_arrComps[0]), Describe(Filled(10))), "");
  EXPECT_EQ(Difference(Describe(list.m_arrComps[1]), Describe(Filled(501))), "");
  EXPECT_EQ(Difference(Describe(list.m_arrComps[2]), Describe(CDspAsmComp())), "");
  list.SetAt(0, list.GetDspAsmCompList()[1]);
  EXPECT_EQ(Difference(Describe(list.m_arrComps[0]), Describe(Filled(501))), "");
}

TEST(AssemblyList, SetSequenceSetsTheRangeAndNothingElse) {
  CDspAsmCompList list;
  list.Add(Filled(10), 70);
  list.Add(Filled(501), 80);
  const Lines before = Describe(list);
  list.SetSequence(1, 2000, 1999);
  EXPECT_EQ(
      Difference(Describe(list), With(before, {"1 m_nFirstElem: 2000", "1 m_nLastElem: 1999"})),
      "");
  list.SetSequence(0, INT_MIN, INT_MAX);
  EXPECT_EQ(list.m_arrComps[0].m_nFirstElem, INT_MIN);
  EXPECT_EQ(list.m_arrComps[0].m_nLastElem, INT_MAX);
}

TEST(AssemblyList, AnIndexOutsideTheListIsRefusedAndNothingChanges) {
  using Operation = std::function<void(CDspAsmCompList&, int)>;
  int value = 77;
  // clang-format off
  const std::pair<const char*, Operation> operations[] = {
      {"GetAt",                [](CDspAsmCompList& list, int index) { static_cast<void>(list.GetAt(index)); }},
      {"GetAt with a value",   [&](CDspAsmCompList& list, int index) { static_cast<void>(list.GetAt(index, &value)); }},
      {"SetAt",                [](CDspAsmCompList& list, int index) { list.SetAt(index, Filled(10)); }},
      {"SetAt with a value",   [](CDspAsmCompList& list, int index) { list.SetAt(index, Filled(10), 5); }},
      {"SetSequence",          [](CDspAsmCompList& list, int index) { list.SetSequence(index, 5, 6); }},
  };
  // clang-format on
  for (const int size : {0, 1, 3}) {
    for (const int index : {-1, size, size + 1, INT_MAX, INT_MIN}) {
      for (const auto& [name, operation] : operations) {
        SCOPED_TRACE(std::string(name) + ", index " + std::to_string(index) + " of " +
                     std::to_string(size));
        CDspAsmCompList list = Numbered(size);
        const Lines before = Describe(list);
        EXPECT_THROW(operation(list, index), CInvalidArgException);
        EXPECT_THROW(operation(list, index), std::invalid_argument);
        EXPECT_EQ(Difference(Describe(list), before), "");
        EXPECT_EQ(value, 77);
      }
    }
  }
}

TEST(AssemblyList, AnIndexOutsideIsCalledOne) {
  try {
    static_cast<void>(Numbered(3).GetAt(3));
    FAIL() << "nothing was raised";
  } catch (const CInvalidArgException& exception) {
    EXPECT_STREQ(exception.what(), "a component index lies outside the list");
  }
}

TEST(AssemblyList, ACopyHasComponentsAndValuesOfItsOwn) {
  CDspAsmCompList source;
  source.Add(Filled(10), 70);
  source.Add(Filled(501));
  source.Add(CDspAsmComp(), -90);
  const Lines expected = Describe(source);
  CDspAsmCompList copy(source);
  EXPECT_EQ(Difference(Describe(copy), expected), "");
  copy.SetAt(0, CDspAsmComp(), 1);
  copy.Add(Filled(30));
  EXPECT_EQ(Difference(Describe(source), expected), "");
  EXPECT_EQ(CDspAsmCompList(CDspAsmCompList()).GetSize(), 0);
}

TEST(AssemblyList, AnAssignmentEmptiesTheTargetFirst) {
  CDspAsmCompList source;
  source.Add(Filled(10), 70);
  source.Add(Filled(501), 5);
  const Lines expected = Describe(source);
  for (const int size : {0, 1, 2, 7}) {
    CDspAsmCompList target = Numbered(size);
    EXPECT_EQ(&(target = source), &target);
    EXPECT_EQ(Difference(Describe(target), expected), "") << size << " components before";
  }
  EXPECT_EQ(Difference(Describe(source), expected), "");
  source = CDspAsmCompList();
  EXPECT_EQ(source.GetSize(), 0);
  EXPECT_TRUE(source.m_arrCompValues.IsEmpty());
}

TEST(AssemblyList, AnAssignmentToItselfChangesNothing) {
  CDspAsmCompList list;
  list.Add(Filled(10), 70);
  list.Add(Filled(501), 5);
  const Lines expected = Describe(list);
  const CDspAsmCompList& self = list;
  list = self;
  EXPECT_EQ(Difference(Describe(list), expected), "");
}

TEST(AssemblyList, MovingTakesComponentsAndValues) {
  CDspAsmCompList source;
  source.Add(Filled(10), 70);
  source.Add(Filled(501), 5);
  const Lines expected = Describe(source);
  CDspAsmCompList target(std::move(source));
  EXPECT_EQ(Difference(Describe(target), expected), "");
  CDspAsmCompList assigned = Numbered(3);
  assigned = std::move(target);
  EXPECT_EQ(Difference(Describe(assigned), expected), "");
}

TEST(AssemblyList, ListsAreEqualWhenTheirComponentsAreOneByOne) {
  EXPECT_EQ(CDspAsmCompList() == CDspAsmCompList(), 1);
  EXPECT_EQ(Numbered(3) == Numbered(3), 1);
  EXPECT_EQ(Numbered(3) == Numbered(2), 0);
  EXPECT_EQ(Numbered(3) != Numbered(3), 0);
  EXPECT_EQ(Numbered(3) != Numbered(2), 1);
  EXPECT_EQ(Numbered(2) == Numbered(3), 0);
  EXPECT_EQ(Numbered(0) == Numbered(1), 0);
  EXPECT_EQ(Numbered(1) == Numbered(0), 0);
  const CDspAsmCompList list = Numbered(3);
  EXPECT_EQ(list == list, 1);
  for (int index = 0; index < 3; ++index) {
    CDspAsmCompList other = Numbered(3);
    other.SetSequence(index, -1, 0);
    EXPECT_EQ(list == other, 0) << index;
  }
  EXPECT_EQ(MakeList({{.compId = 1}, {.compId = 2}}) == MakeList({{.compId = 2}, {.compId = 1}}),
            0);
}

TEST(AssemblyList, EqualityIgnoresNamesColorsAndValues) {
  CDspAsmCompList one = Numbered(2);
  CDspAsmCompList other = Numbered(2);
  other.m_arrComps[1].m_strCompName = MQ_TEXT("name");
  other.m_arrComps[1].m_strBodyName = MQ_TEXT("body");
  other.m_arrComps[1].m_Color = 0x000000FFUL;
  other.m_arrComps[1].m_bTempHidden = 1;
  other.m_arrCompValues[0] = 50;
  EXPECT_EQ(one == other, 1);
  EXPECT_EQ(other == one, 1);
}

TEST(AssemblyList, AllHiddenAsksEveryComponent) {
  struct Row {
    Integers hidden;
    int expected;
  };
  // clang-format off
  const Row rows[] = {
      // hidden flags         all hidden
      {{},                    1},
      {{0},                   0},
      {{1},                   1},
      {{2, -1, INT_MIN},      1},
      {{0, 1, 1},             0},
      {{1, 0, 1},             0},
      {{1, 1, 0},             0},
      {{1, 1, 1},             1},
  };
  // clang-format on
  for (const Row& row : rows) {
    CDspAsmCompList list;
    for (const int hidden : row.hidden) {
      list.Add(Make({.hidden = hidden, .tempHidden = 1 - hidden % 2}));
    }
    EXPECT_EQ(list.AllHidden(), row.expected) << ::testing::PrintToString(row.hidden);
  }
}

TEST(AssemblyList, AComponentCountsWhenNeitherEndOfItsRangeIsZero) {
  struct Row {
    int firstElem;
    int lastElem;
    int expected;
  };
  // clang-format off
  const Row rows[] = {
      // first     last         counts
      {-1,         -1,          1},  // though it has no range
      {0,          0,           0},
      {0,          9,           0},  // though it has a range
      {0,          -1,          0},
      {-1,         0,           0},
      {9,          0,           0},
      {1,          9,           1},
      {9,          1,           1},
      {INT_MIN,    INT_MAX,     1},
      {INT_MAX,    INT_MIN,     1},
      {INT_MIN,    0,           0},
  };
  // clang-format on
  for (const Row& row : rows) {
    const CDspAsmCompList list = MakeList({{.first = row.firstElem, .last = row.lastElem}});
    EXPECT_EQ(list.GetPostAvailableCompCount(), row.expected)
        << "range " << row.firstElem << " to " << row.lastElem;
  }
  EXPECT_EQ(CDspAsmCompList().GetPostAvailableCompCount(), 0);
  EXPECT_EQ(Numbered(4).GetPostAvailableCompCount(), 4);
  EXPECT_EQ(MakeList({{.first = 1, .last = 9, .hidden = 1}, {.first = 0, .last = 9}, {}})
                .GetPostAvailableCompCount(),
            2);
}

TEST(AssemblyList, AComponentThatCountsIsMissingWithoutItsName) {
  struct Row {
    const char* situation;
    std::vector<Body> own;
    std::vector<Body> others;
    int expected;
  };
  const Body a{.first = 1, .last = 2, .name = MQ_TEXT("a")};
  const Body b{.first = 1, .last = 2, .name = MQ_TEXT("b")};
  const Body upperA{.first = 1, .last = 2, .name = MQ_TEXT("A")};
  const Body atZero{.first = 0, .last = 2, .name = MQ_TEXT("a")};
  const Body toZero{.first = -2, .last = 0, .name = MQ_TEXT("a")};
  const Body noRange{.name = MQ_TEXT("a")};
  const Body hiddenA{.first = 7, .last = 3, .name = MQ_TEXT("a"), .bodyId = 5, .hidden = 1};
  const Body noName{.first = 1, .last = 2};
  const Body bodyA{.first = 1, .last = 2, .name = MQ_TEXT("b"), .bodyName = MQ_TEXT("a")};
  const Row rows[] = {
      {"two empty lists", {}, {}, 0},
      {"an empty other list", {a}, {}, 0},
      {"an empty list", {}, {a}, 1},
      {"the same name", {a}, {a}, 0},
      {"the same name of a hidden one of another range", {hiddenA}, {a}, 0},
      {"the same name of one that does not count", {atZero}, {a}, 0},
      {"another name", {b}, {a}, 1},
      {"another case", {upperA}, {a}, 1},
      {"the name of a body", {bodyA}, {a}, 1},
      {"a range from 0 does not count", {b}, {atZero}, 0},
      {"a range to 0 does not count", {b}, {toZero}, 0},
      {"no range counts", {b}, {noRange}, 1},
      {"a hidden one counts", {b}, {hiddenA}, 1},
      {"the first is missing", {b}, {a, b}, 1},
      {"the last is missing", {b}, {b, b, a}, 1},
      {"none is missing of more", {a, b}, {b, a, b, a}, 0},
      {"an empty name is missing", {a}, {noName}, 1},
      {"an empty name is a name", {a, noName}, {noName}, 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(MakeList(row.own).HasPostCompMissing(MakeList(row.others)), row.expected)
        << row.situation;
  }
  const CDspAsmCompList list = MakeList({a, b, noRange});
  EXPECT_EQ(list.HasPostCompMissing(list), 0);
}

TEST(AssemblyList, TheVisibleIndexOfAnElementIsThatOfItsComponent) {
  const COGLColor color;
  CDspAsmCompList list;
  ExpectVisible(list, {{0, 0, 999}, {-1, 0, 999}});
  list.Add(CDspAsmComp(7, 100, 199, color, color, 0));
  ExpectVisible(list, {{150, 1, 151},
                       {100, 1, 101},
                       {199, 1, 200},
                       {99, 0, 999},
                       {200, 0, 999},
                       {-1, 0, 999},
                       {0, 0, 999},
                       {INT_MAX, 0, 999},
                       {INT_MIN, 0, 999}});
  list.m_arrComps[0].m_bHidden = 1;
  ExpectVisible(list, {{150, 0, 999}});
  list.m_arrComps[0].m_bHidden = -1;
  ExpectVisible(list, {{150, 0, 999}});
}

TEST(AssemblyList, TheFirstComponentThatIsShownAndHoldsTheElementGivesItsVisibleIndex) {
  const CDspAsmCompList list = MakeList({
      {.first = 5, .last = 9, .hidden = 1, .visIndexBase = 1000},
      {.first = 9, .last = 5, .visIndexBase = 2000},    // reversed
      {.first = -3, .last = 20, .visIndexBase = 3000},  // starts below 0
      {.visIndexBase = 4000},
      {.first = 7, .last = 7, .visIndexBase = 100},
      {.first = 6, .last = 8, .visIndexBase = 200, .tempHidden = 1},
      {.first = 0, .last = 9, .visIndexBase = -300},
      {.first = 0, .last = 0, .visIndexBase = 500},
  });
  ExpectVisible(list, {{7, 1, 100},
                       {6, 1, 200},
                       {8, 1, 202},
                       {5, 1, -295},
                       {9, 1, -291},
                       {0, 1, -300},
                       {-1, 0, 999},
                       {-3, 0, 999},
                       {10, 0, 999},
                       {20, 0, 999}});
}

TEST(AssemblyList, TheVisibleIndexWrapsAround) {
  ExpectVisible(MakeList({{.first = 0, .last = INT_MAX, .visIndexBase = INT_MAX}}),
                {{0, 1, INT_MAX}, {1, 1, INT_MIN}, {INT_MAX, 1, -2}, {-1, 0, 999}});
  ExpectVisible(MakeList({{.first = INT_MAX, .last = INT_MAX, .visIndexBase = INT_MIN}}),
                {{INT_MAX, 1, INT_MIN}, {INT_MAX - 1, 0, 999}});
  ExpectVisible(MakeList({{.first = 5, .last = INT_MAX, .visIndexBase = INT_MIN}}),
                {{5, 1, INT_MIN}, {6, 1, INT_MIN + 1}, {INT_MAX, 1, -6}});
}

TEST(AssemblyList, TheActiveIndexIsTheBaseAndTheLengthsInFront) {
  struct Row {
    int compIndex;
    int base;
    int expected;
  };
  const CDspAsmCompList list =
      MakeList({{.first = 0, .last = 9}, {.first = 10, .last = 14}, {.first = 3, .last = 3}});
  // clang-format off
  const Row rows[] = {
      // component   base        expected
      {5,            10,         1},
      {3,            10,         1},
      {-1,           10,         1},
      {INT_MAX,      10,         1},
      {INT_MIN,      10,         1},
      {0,            10,         10},
      {0,            -4,         -4},
      {1,            10,         20},
      {2,            10,         25},
      {2,            -15,        0},
      {0,            INT_MAX,    INT_MAX},
      {1,            INT_MAX,    INT_MIN + 9},  // wraps around
  };
  // clang-format on
  for (const Row& row : rows) {
    EXPECT_EQ(list.GetActiveElemIndex(row.compIndex, row.base), row.expected)
        << "component " << row.compIndex << ", base " << row.base;
  }
  EXPECT_EQ(CDspAsmCompList().GetActiveElemIndex(0, 10), 1);
}

TEST(AssemblyList, EveryRangeInFrontCountsWithItsLength) {
  const CDspAsmCompList list = MakeList({
      {},                       // 1, like a range of one element
      {.first = 9, .last = 0},  // -8
      {.first = 5, .last = 4},  // 0
      {.first = 5, .last = 6, .hidden = 1},
      {.first = 0, .last = INT_MAX},        // wraps around to INT_MIN
      {.first = INT_MIN, .last = INT_MAX},  // wraps around to 0
      {.first = INT_MAX, .last = INT_MIN},  // wraps around to 2
      {},
  });
  const int expected[] = {100, 101, 93, 93, 95, INT_MIN + 95, INT_MIN + 95, INT_MIN + 97};
  for (int index = 0; index < 8; ++index) {
    EXPECT_EQ(list.GetActiveElemIndex(index, 100), expected[index]) << index;
  }
}

CDspAsmCompList Bodies() {
  return MakeList(
      {{.compId = 1, .name = MQ_TEXT("part 1"), .bodyName = MQ_TEXT("x"), .bodyId = 4},
       {.compId = 2, .name = MQ_TEXT("part 2"), .bodyName = MQ_TEXT("y"), .bodyId = -4},
       {.compId = 3, .name = MQ_TEXT("part 3"), .bodyName = MQ_TEXT("z"), .bodyId = 4},
       {.compId = 4, .bodyId = INT_MIN},
       {.compId = 5, .name = MQ_TEXT("part 5"), .bodyName = MQ_TEXT("w"), .bodyId = 0}});
}

TEST(AssemblyList, TheFirstComponentOfABodyIsFound) {
  struct Row {
    long bodyId;
    int index;
    const mqChar* bodyName;
    const mqChar* partName;
    int found;
    int outCompId;
  };
  // clang-format off
  const Row rows[] = {
      // body     index   body name        part name             found   component
      {4,         0,      MQ_TEXT("x"),    MQ_TEXT("part 1"),    1,      1},
      {-4,        1,      MQ_TEXT("y"),    MQ_TEXT("part 2"),    1,      2},
      {INT_MIN,   3,      MQ_TEXT(""),     MQ_TEXT(""),          1,      4},
      {0,         4,      MQ_TEXT("w"),    MQ_TEXT("part 5"),    1,      5},
      {5,         -1,     MQ_TEXT(""),     MQ_TEXT(""),          0,      5},  // the last one
      {INT_MAX,   -1,     MQ_TEXT(""),     MQ_TEXT(""),          0,      5},
      {-1,        -1,     MQ_TEXT(""),     MQ_TEXT(""),          0,      5},
  };
  // clang-format on
  const CDspAsmCompList list = Bodies();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.bodyId);
    EXPECT_EQ(list.GetIndexByBodyID(row.bodyId), row.index);
    EXPECT_EQ(list.GetBodyNameByBodyID(row.bodyId), row.bodyName);
    EXPECT_EQ(list.GetPartNameByBodyID(row.bodyId), row.partName);
    CDspAsmComp out = Filled(501);
    EXPECT_EQ(list.GetComponentByBodyID(row.bodyId, out), row.found);
    EXPECT_EQ(Difference(Describe(out), Describe(list.GetAt(row.outCompId - 1))), "");
  }
}

TEST(AssemblyList, ABodyBeyondTheRangeOfAnIntegerIsNotFound) {
  if (sizeof(long) == sizeof(int)) {
    GTEST_SKIP() << "every number is a body here";
  }
  const CDspAsmCompList list = Bodies();
  for (const long long beyond :
       {0x100000004LL, -0xFFFFFFFCLL, 0x100000000LL, LLONG_MIN, 0x80000000LL}) {
    const long bodyId = static_cast<long>(beyond);
    EXPECT_EQ(list.GetIndexByBodyID(bodyId), -1) << bodyId;
    EXPECT_EQ(list.GetBodyNameByBodyID(bodyId), MQ_TEXT("")) << bodyId;
    EXPECT_EQ(list.GetPartNameByBodyID(bodyId), MQ_TEXT("")) << bodyId;
    CDspAsmComp out;
    EXPECT_EQ(list.GetComponentByBodyID(bodyId, out), 0) << bodyId;
    EXPECT_EQ(out.m_nCompID, 5) << bodyId;
  }
}

TEST(AssemblyList, AnEmptyListLeavesTheComponentAsItIs) {
  const CDspAsmCompList list;
  CDspAsmComp out = Filled(501);
  EXPECT_EQ(list.GetComponentByBodyID(0, out), 0);
  EXPECT_EQ(Difference(Describe(out), Describe(Filled(501))), "");
  EXPECT_EQ(list.GetIndexByBodyID(0), -1);
  EXPECT_EQ(list.GetBodyNameByBodyID(0), MQ_TEXT(""));
  EXPECT_EQ(list.GetPartNameByBodyID(0), MQ_TEXT(""));
}

TEST(AssemblyList, AComponentOfTheListMayReceiveTheOneOfABody) {
  CDspAsmCompList list = Bodies();
  EXPECT_EQ(list.GetComponentByBodyID(-4, list.GetDspAsmCompList()[4]), 1);
  EXPECT_EQ(Numbers(list), (Integers{1, 2, 3, 4, 2}));
  EXPECT_EQ(list.GetComponentByBodyID(77, list.GetDspAsmCompList()[0]), 0);
  EXPECT_EQ(Numbers(list), (Integers{2, 2, 3, 4, 2}));
}

/// Names that differ in case, in length, and in letters outside ASCII.
CDspAsmCompList Named() {
  return MakeList({{.compId = 1, .name = MQ_TEXT("Rod"), .bodyName = MQ_TEXT("rod")},
                   {.compId = 2, .name = MQ_TEXT("rod"), .bodyName = MQ_TEXT("Rod")},
                   {.compId = 3, .name = MQ_TEXT("Rods"), .bodyName = MQ_TEXT("Rod")},
                   {.compId = 4},
                   {.compId = 5, .name = MQ_TEXT("ROD"), .bodyName = MQ_TEXT("Ro")},
                   {.compId = 6, .name = MQ_TEXT("\u00C4RM"), .bodyName = MQ_TEXT("\u00E4rm")},
                   {.compId = 7, .name = MQ_TEXT("Rod"), .bodyName = MQ_TEXT("rod")}});
}

struct NameRow {
  CString name;
  Integers withoutCase;  ///< indices of components of the name, whatever its case
  Integers withCase;     ///< numbers of components of just the name
  Integers ofBody;       ///< numbers of components of just the body name
};

// clang-format off
const NameRow kNameRows[] = {
    // name                      without case     with case   of body
    {MQ_TEXT("Rod"),             {0, 1, 4, 6},    {1, 7},     {2, 3}},
    {MQ_TEXT("rod"),             {0, 1, 4, 6},    {2},        {1, 7}},
    {MQ_TEXT("rOD"),             {0, 1, 4, 6},    {},         {}},
    {MQ_TEXT("rods"),            {2},             {},         {}},
    {MQ_TEXT("Ro"),              {},              {},         {5}},
    {MQ_TEXT(""),                {3},             {4},        {4}},
    {MQ_TEXT("\u00E4rm"),        {5},             {},         {6}},
    {MQ_TEXT("\u00C4RM"),        {5},             {6},        {}},
    {MQ_TEXT("arm"),             {},              {},         {}},
    {MQ_TEXT(" Rod"),            {},              {},         {}},
    {CString(MQ_TEXT("Rod\0"), 4), {},            {},         {}},  // a zero is part of a name
};
// clang-format on

TEST(AssemblyList, PartsOfANameAreListedWhateverItsCase) {
  const CDspAsmCompList list = Named();
  for (const NameRow& row : kNameRows) {
    Integers out = {-7, 0};
    list.GetBodyListByPartName(&out, row.name);
    Integers expected = {-7, 0};
    expected.insert(expected.end(), row.withoutCase.begin(), row.withoutCase.end());
    EXPECT_EQ(out, expected) << ::testing::PrintToString(row.name);
  }
  Integers out = {5};
  CDspAsmCompList().GetBodyListByPartName(&out, MQ_TEXT(""));
  EXPECT_EQ(out, (Integers{5}));
}

TEST(AssemblyList, AListOfANameHasCopiesOfComponentsOfJustThatName) {
  CDspAsmCompList list = Named();
  list.m_arrComps[6].m_dHost14 = 5.5;
  list.m_arrCompValues[6] = 60;
  const Lines before = Describe(list);
  for (const NameRow& row : kNameRows) {
    SCOPED_TRACE(::testing::PrintToString(row.name));
    const CDspAsmCompList ofName = list.GetCompListByComponentName(row.name);
    EXPECT_EQ(Numbers(ofName), row.withCase);
    const CDspAsmCompList ofBody = list.GetCompListByBodyName(row.name);
    EXPECT_EQ(Numbers(ofBody), row.ofBody);
    EXPECT_EQ(Values(ofName).size(), row.withCase.size());
    EXPECT_EQ(Values(ofBody).size(), row.ofBody.size());
  }
  const CDspAsmCompList rods = list.GetCompListByComponentName(MQ_TEXT("Rod"));
  ASSERT_EQ(Values(rods), (Integers{1, 2}));
  EXPECT_EQ(Difference(Describe(rods.m_arrComps[1]), Describe(list.m_arrComps[6])), "");
  const CDspAsmCompList bodies = list.GetCompListByBodyName(MQ_TEXT("rod"));
  ASSERT_EQ(Values(bodies), (Integers{1, 2}));
  EXPECT_EQ(Difference(Describe(bodies.m_arrComps[1]), Describe(list.m_arrComps[6])), "");
  EXPECT_EQ(Difference(Describe(list), before), "");
}

TEST(AssemblyList, AComponentExistsByJustItsName) {
  const CDspAsmCompList list = Named();
  for (const NameRow& row : kNameRows) {
    EXPECT_EQ(list.IsComponentExistByName(row.name), row.withCase.empty() ? 0 : 1)
        << ::testing::PrintToString(row.name);
  }
  EXPECT_EQ(CDspAsmCompList().IsComponentExistByName(MQ_TEXT("")), 0);
}

TEST(AssemblyList, TheFirstComponentOfANameIsRenamedWhateverItsCase) {
  for (const NameRow& row : kNameRows) {
    SCOPED_TRACE(::testing::PrintToString(row.name));
    CDspAsmCompList list = Named();
    Strings expected = Column(list, &CDspAsmComp::m_strCompName);
    if (!row.withoutCase.empty()) {
      expected[static_cast<std::size_t>(row.withoutCase[0])] = MQ_TEXT("New");
    }
    EXPECT_EQ(list.ChangeCompName(row.name, MQ_TEXT("New")), row.withoutCase.empty() ? 0 : 1);
    EXPECT_EQ(Column(list, &CDspAsmComp::m_strCompName), expected);
    EXPECT_EQ(Column(list, &CDspAsmComp::m_strBodyName),
              Column(Named(), &CDspAsmComp::m_strBodyName));
  }
  EXPECT_EQ(CDspAsmCompList().ChangeCompName(MQ_TEXT(""), MQ_TEXT("New")), 0);
}

TEST(AssemblyList, ANameOfTheListMayBeHandedIn) {
  CDspAsmCompList list = Named();
  EXPECT_EQ(list.ChangeCompName(list.m_arrComps[4].m_strCompName, list.m_arrComps[2].m_strCompName),
            1);
  EXPECT_EQ(list.ChangeCompName(list.m_arrComps[1].m_strCompName, list.m_arrComps[5].m_strCompName),
            1);
  EXPECT_EQ(Column(list, &CDspAsmComp::m_strCompName),
            (Strings{MQ_TEXT("Rods"), MQ_TEXT("\u00C4RM"), MQ_TEXT("Rods"), MQ_TEXT(""),
                     MQ_TEXT("ROD"), MQ_TEXT("\u00C4RM"), MQ_TEXT("Rod")}));
  list.HideAllExceptOneComponent(list.m_arrComps[2].m_strCompName);
  EXPECT_EQ(Column(list, &CDspAsmComp::m_bHidden), (Integers{0, 1, 0, 1, 1, 1, 1}));
}

TEST(AssemblyList, RenamingToAnotherCaseOrTheSameNameSucceeds) {
  CDspAsmCompList list = Named();
  EXPECT_EQ(list.ChangeCompName(MQ_TEXT("ROD"), MQ_TEXT("rOd")), 1);
  EXPECT_EQ(list.m_arrComps[0].m_strCompName, MQ_TEXT("rOd"));
  EXPECT_EQ(list.ChangeCompName(MQ_TEXT("rod"), MQ_TEXT("rOd")), 1);
  EXPECT_EQ(list.m_arrComps[0].m_strCompName, MQ_TEXT("rOd"));
  EXPECT_EQ(list.m_arrComps[1].m_strCompName, MQ_TEXT("rod"));
}

TEST(AssemblyList, AllButTheComponentsOfJustANameAreHidden) {
  const Integers before = {0, 1, 5, 0, -1, 2, 3};
  for (const NameRow& row : kNameRows) {
    CDspAsmCompList list = Named();
    for (int index = 0; index < list.GetSize(); ++index) {
      list.m_arrComps[index].m_bHidden = before[static_cast<std::size_t>(index)];
      list.m_arrComps[index].m_bTempHidden = 1;
    }
    Integers expected = before;
    if (!row.withCase.empty()) {
      expected.assign(7, 1);
      for (const int number : row.withCase) {
        expected[static_cast<std::size_t>(number - 1)] = 0;
      }
    }
    list.HideAllExceptOneComponent(row.name);
    EXPECT_EQ(Column(list, &CDspAsmComp::m_bHidden), expected)
        << ::testing::PrintToString(row.name);
    EXPECT_EQ(Column(list, &CDspAsmComp::m_bTempHidden), (Integers{1, 1, 1, 1, 1, 1, 1}));
  }
}

TEST(AssemblyList, OnlyTheValue1IsHiddenTemporarily) {
  CDspAsmCompList list = MakeList({{.hidden = 1, .tempHidden = 1},
                                   {.hidden = 1, .tempHidden = 0},
                                   {.hidden = 1, .tempHidden = 2},
                                   {.hidden = 1, .tempHidden = -1},
                                   {.hidden = 7, .tempHidden = 1},
                                   {.hidden = 0, .tempHidden = 1},
                                   {.hidden = 0, .tempHidden = 3},
                                   {.hidden = 5, .tempHidden = INT_MIN},
                                   {.hidden = 0, .tempHidden = 0}});
  list.UnHideTemporarilyHiddenComps();
  EXPECT_EQ(Column(list, &CDspAsmComp::m_bHidden), (Integers{0, 1, 1, 1, 0, 0, 0, 5, 0}));
  EXPECT_EQ(Column(list, &CDspAsmComp::m_bTempHidden),
            (Integers{0, 0, 2, -1, 0, 0, 3, INT_MIN, 0}));
}

TEST(AssemblyList, FlippingSwapsTheColorsOfEveryComponentAndNothingElse) {
  CDspAsmCompList list;
  list.FlipColor();
  list.Add(Filled(10));
  list.Add(CDspAsmComp());
  list.Add(CDspAsmComp(1, 2, 3, COGLColor(1.0F, 0.5F, 0.0F, 0.75F),
                       COGLColor(0.25F, 0.0F, 0.5F, 0.125F), 0));
  const Lines before = Describe(list);
  list.FlipColor();
  const std::string colorOf0 = Show(Filled(10).m_Color);
  const std::string bottomColorOf0 = Show(Filled(10).m_BottomColor);
  EXPECT_EQ(
      Difference(Describe(list),
                 With(before, {"0 m_Color: " + bottomColorOf0, "0 m_BottomColor: " + colorOf0,
                               "1 m_Color: 0.5 0.5 0.5 1", "1 m_BottomColor: 1 1 1 1",
                               "2 m_Color: 0.25 0 0.5 0.125", "2 m_BottomColor: 1 0.5 0 0.75"})),
      "");
  list.FlipColor();
  EXPECT_EQ(Difference(Describe(list), before), "");
}

TEST(AssemblyList, TheBottomColorIsSetFromAPackedOne) {
  CDspAsmCompList list;
  list.SetShellBottomFaceColor(0x000000FFUL);
  list.Add(Filled(10));
  list.Add(CDspAsmComp());
  struct Row {
    unsigned long packed;
    const char* color;
  };
  // clang-format off
  const Row rows[] = {
      // packed       red green blue alpha
      {0x000000FFUL,  "1 0 0 1"},
      {0x0000FF00UL,  "0 1 0 1"},
      {0x00FF0000UL,  "0 0 1 1"},
      {0x00FFFFFFUL,  "1 1 1 1"},
      {0xFF00FF00UL,  "0 1 0 1"},  // the highest byte has no effect
      {0x00000000UL,  "0 0 0 1"},
  };
  // clang-format on
  for (const Row& row : rows) {
    const Lines before = Describe(list);
    list.SetShellBottomFaceColor(row.packed);
    const std::string color = row.color;
    EXPECT_EQ(Difference(Describe(list),
                         With(before, {"0 m_BottomColor: " + color, "1 m_BottomColor: " + color})),
              "")
        << "packed 0x" << std::hex << row.packed;
  }
  list.SetShellBottomFaceColor(0x00996633UL);
  EXPECT_TRUE(list.m_arrComps[0].m_BottomColor == COGLColor(0.2F, 0.4F, 0.6F, 1.0F));
}

/// Colours by a letter each.
COGLColor ColorOf(char letter) {
  switch (letter) {
    case 'R': return {1.0F, 0.0F, 0.0F, 1.0F};
    case 'r':  // half transparent
      return {1.0F, 0.0F, 0.0F, 0.5F};
    case 'G': return {0.0F, 1.0F, 0.0F, 1.0F};
    case 'B': return {0.0F, 0.0F, 1.0F, 1.0F};
    case 'y': return {0.5F, 0.5F, 0.5F, 1.0F};
    case '0': return {0.0F, 0.0F, 0.0F, 1.0F};
    case '-':  // equals '0'
      return {-0.0F, 0.0F, -0.0F, 1.0F};
    case 'n': return {kNotANumber, 0.0F, 0.0F, 1.0F};
    default:  // 'N'
      return {1.0F, 0.0F, 0.0F, kNotANumber};
  }
}

std::string Letters(const Colors& colors) {
  const auto bits = [](const COGLColor& color) {
    return std::vector{
        std::bit_cast<std::uint32_t>(color.Red()), std::bit_cast<std::uint32_t>(color.Green()),
        std::bit_cast<std::uint32_t>(color.Blue()), std::bit_cast<std::uint32_t>(color.Alpha())};
  };
  std::string letters;
  for (int index = 0; index < colors.GetSize(); ++index) {
    char found = '?';
    for (const char letter : {'R', 'r', 'G', 'B', 'y', '0', '-', 'n', 'N'}) {
      if (bits(ColorOf(letter)) == bits(colors[index])) {
        found = letter;
      }
    }
    letters += found;
  }
  return letters;
}

/// One component for each word of a colour and a bottom colour: "Ry RB".
CDspAsmCompList Colored(const std::string& words) {
  CDspAsmCompList list;
  for (std::size_t position = 0; position + 1 < words.size(); position += 3) {
    list.Add(CDspAsmComp(0, 0, 0, ColorOf(words[position]), ColorOf(words[position + 1]), 0));
  }
  return list;
}

TEST(AssemblyList, FromTheSecondDistinctColorOnBottomColorsAreColorsToo) {
  struct Row {
    const char* components;
    const char* colors;
    const char* bottomColors;
  };
  // clang-format off
  const Row rows[] = {
      // components       colors     bottom colors
      {"Ry RB Gy",        "RGy",     "yy"},
      {"RG",              "R",       "G"},
      {"RR",              "R",       "R"},
      {"RG RG RB",        "R",       "G"},
      {"RG GB",           "RGB",     "GB"},     // the first bottom colour is no colour
      {"RG GR",           "RGR",     "GR"},
      {"RG GB BR",        "RGB",     "GB"},     // a later one is
      {"RG GB BR yR",     "RGByR",   "GBR"},
      {"RG GG",           "RGG",     "GG"},
      {"RG GR RB Gy",     "RGR",     "GR"},
      {"RG By yR",        "RBy",     "Gy"},
      {"RG By GR",        "RByGR",   "GyR"},
      {"Ry ry",           "Rry",     "yy"},     // alpha alone
      {"Ry Gr rB",        "RGr",     "yr"},
      {"0R -G",           "0",       "R"},      // -0 equals 0
      {"-R 0G",           "-",       "R"},
      {"RG B- 0G",        "RB-",     "G-"},
      {"nR nR",           "nnR",     "RR"},     // what is not a number equals nothing
      {"nn nn nn",        "nnnnn",   "nnn"},
      {"RG nG nB",        "RnGnB",   "GGB"},
      {"RN Ny NR",        "RNyNR",   "NyR"},
      {"nG GB",           "nGB",     "GB"},
      {"nG RB RG",        "nRB",     "GB"},
  };
  // clang-format on
  for (const Row& row : rows) {
    const CDspAsmCompList list = Colored(row.components);
    const Lines before = Describe(list);
    Colors colors;
    Colors bottomColors;
    for (int old = 0; old < 3; ++old) {  // emptied first
      colors.Add(ColorOf('G'));
      bottomColors.Add(ColorOf('B'));
    }
    EXPECT_EQ(list.MakeColorList(&colors, &bottomColors), 1) << row.components;
    EXPECT_EQ(Letters(colors), row.colors) << row.components;
    EXPECT_EQ(Letters(bottomColors), row.bottomColors) << row.components;
    EXPECT_EQ(Difference(Describe(list), before), "");
  }
}

TEST(AssemblyList, NoColorsAreListedWithoutBothArrays) {
  const CDspAsmCompList list = Colored("RG By");
  Colors colors;
  colors.Add(ColorOf('y'));
  EXPECT_EQ(list.MakeColorList(nullptr, &colors), 0);
  EXPECT_EQ(Letters(colors), "y");
  EXPECT_EQ(list.MakeColorList(&colors, nullptr), 0);
  EXPECT_EQ(Letters(colors), "y");
  EXPECT_EQ(list.MakeColorList(nullptr, nullptr), 0);
  EXPECT_EQ(CDspAsmCompList().MakeColorList(nullptr, &colors), 0);
  EXPECT_EQ(Letters(colors), "y");
}

TEST(AssemblyList, AnEmptyListHasNoColors) {
  Colors colors;
  Colors bottomColors;
  colors.Add(ColorOf('R'));
  bottomColors.Add(ColorOf('G'));
  EXPECT_EQ(CDspAsmCompList().MakeColorList(&colors, &bottomColors), 0);
  EXPECT_TRUE(colors.IsEmpty());
  EXPECT_TRUE(bottomColors.IsEmpty());
}

TEST(AssemblyList, ManyColorsAreListedAsAPlainSearchListsThem) {
  std::mt19937 random(20240731);
  const auto component = [&random] { return static_cast<float>(random() % 12) / 8.0F - 0.25F; };
  CDspAsmCompList list;
  std::vector<COGLColor> expected;
  std::vector<COGLColor> expectedBottom;
  for (int index = 0; index < 2500; ++index) {
    const float red = component();
    const float green = component();
    const COGLColor color(red, green, 0.0F, 1.0F);
    const COGLColor bottomColor(component(), component(), 0.0F, 1.0F);
    list.Add(CDspAsmComp(0, 0, 0, color, bottomColor, 0));
    const bool isKnown = std::find(expected.begin(), expected.end(), color) != expected.end();
    if (index == 0) {
      expected.push_back(color);
      expectedBottom.push_back(bottomColor);
    } else if (!isKnown) {
      expected.insert(expected.end(), {color, bottomColor});
      expectedBottom.push_back(bottomColor);
    }
  }
  Colors colors;
  Colors bottomColors;
  EXPECT_EQ(list.MakeColorList(&colors, &bottomColors), 1);
  ASSERT_EQ(colors.GetSize(), static_cast<int>(expected.size()));
  ASSERT_EQ(bottomColors.GetSize(), static_cast<int>(expectedBottom.size()));
  EXPECT_GT(expectedBottom.size(), 50U);
  EXPECT_TRUE(std::equal(expected.begin(), expected.end(), colors.GetData()));
  EXPECT_TRUE(std::equal(expectedBottom.begin(), expectedBottom.end(), bottomColors.GetData()));
}

// A search through all colours before, for each of them, would not end in time.
TEST(AssemblyList, ManyDistinctColorsAreAllListed) {
  constexpr int kComponents = 50'000;
  const COGLColor grey(0.5F, 0.5F, 0.5F, 1.0F);
  CDspAsmCompList list;
  for (int index = 0; index < kComponents; ++index) {
    list.Add(CDspAsmComp(0, 0, 0, COGLColor(static_cast<float>(index), 0.0F, 0.0F, 1.0F), 0));
  }
  Colors colors;
  Colors bottomColors;
  EXPECT_EQ(list.MakeColorList(&colors, &bottomColors), 1);
  ASSERT_EQ(colors.GetSize(), 2 * kComponents - 1);
  ASSERT_EQ(bottomColors.GetSize(), kComponents);
  EXPECT_EQ(colors[0].Red(), 0.0F);
  for (int index = 1; index < kComponents; ++index) {
    ASSERT_EQ(colors[2 * index - 1].Red(), static_cast<float>(index));
    ASSERT_EQ(colors[2 * index], grey) << index;
    ASSERT_EQ(bottomColors[index], grey) << index;
  }
}

/// Components that end at `lastElems` and carry their old index, with values that stand out.
CDspAsmCompList Ending(const Integers& lastElems) {
  CDspAsmCompList list;
  for (const int lastElem : lastElems) {
    CDspAsmComp component = Filled(10);
    component.m_nHost27 = list.GetSize();
    component.m_nLastElem = lastElem;
    list.Add(component, 1000 - list.GetSize());
  }
  return list;
}

/// Sorts and expects the keys in order, each old component once and whole, and new values.
void ExpectSorted(const Integers& lastElems, int ascending) {
  SCOPED_TRACE(::testing::PrintToString(lastElems) + (ascending != 0 ? " up" : " down"));
  CDspAsmCompList list = Ending(lastElems);
  const CDspAsmCompList before = list;
  EXPECT_EQ(list.SortByElemID(ascending), 1);
  ASSERT_EQ(list.GetSize(), static_cast<int>(lastElems.size()));
  ASSERT_EQ(list.m_arrCompValues.GetSize(), list.GetSize());
  std::vector<bool> seen(lastElems.size());
  for (int index = 0; index < list.GetSize(); ++index) {
    const CDspAsmComp& component = list.m_arrComps[index];
    const int key = component.m_nLastElem;
    const int previous = list.m_arrComps[std::max(index - 1, 0)].m_nLastElem;
    EXPECT_TRUE(ascending != 0 ? previous <= key : previous >= key) << "index " << index;
    const int old = component.m_nHost27;
    ASSERT_TRUE(old >= 0 && old < list.GetSize());
    EXPECT_FALSE(seen[static_cast<std::size_t>(old)]) << "component " << old;
    seen[static_cast<std::size_t>(old)] = true;
    ASSERT_EQ(Difference(Describe(component), Describe(before.m_arrComps[old])), "");
    EXPECT_EQ(list.m_arrCompValues[index], index + 1);
  }
}

// More colours than hashes of 32 bits can tell apart.
TEST(AssemblyList, EachOfManyColoursIsInTheColourList) {
  constexpr int kComponents = 100'000;
  std::mt19937 random(20260105);
  std::uniform_real_distribution<float> part(0.0F, 1.0F);
  const auto color = [&] { return COGLColor(part(random), part(random), part(random), 1.0F); };
  CDspAsmCompList list;
  list.m_arrComps.SetSize(kComponents);
  for (int index = 0; index < kComponents; ++index) {
    list.m_arrComps[index].m_Color = color();
    list.m_arrComps[index].m_BottomColor = color();
  }
  Colors colors;
  Colors bottoms;
  EXPECT_EQ(list.MakeColorList(&colors, &bottoms), 1);
  EXPECT_EQ(colors.GetSize(), 199'999);
  EXPECT_EQ(bottoms.GetSize(), 100'000);
}

TEST(AssemblyList, ColoursThatDifferByTheSmallestNumberAreTwo) {
  CDspAsmCompList list;
  const COGLColor bottom(0.5F, 0.5F, 0.5F, 1.0F);
  list.Add(CDspAsmComp(1, 0, 9, COGLColor(0.0F, 0.0F, 0.0F, 1.0F), bottom, 0));
  list.Add(CDspAsmComp(2, 0, 9, COGLColor(1e-45F, 0.0F, 0.0F, 1.0F), bottom, 0));
  list.Add(CDspAsmComp(3, 0, 9, COGLColor(-0.0F, 0.0F, -0.0F, 1.0F), bottom, 0));
  Colors colors;
  Colors bottoms;
  EXPECT_EQ(list.MakeColorList(&colors, &bottoms), 1);
  EXPECT_EQ(colors.GetSize(), 3);  // with the bottom colour of the second
  EXPECT_EQ(bottoms.GetSize(), 2);
}

TEST(AssemblyList, SortingGoesByTheLastElementInBothDirections) {
  CDspAsmCompList list = MakeList({{.compId = 1, .first = 9, .last = 5},
                                   {.compId = 2, .first = 1, .last = 20},
                                   {.compId = 3, .first = 5, .last = 10}});
  list.m_arrCompValues[0] = 70;
  EXPECT_EQ(list.SortByElemID(0), 1);
  EXPECT_EQ(Column(list, &CDspAsmComp::m_nLastElem), (Integers{20, 10, 5}));
  EXPECT_EQ(Numbers(list), (Integers{2, 3, 1}));
  EXPECT_EQ(Values(list), (Integers{1, 2, 3}));
  for (const int ascending : {1, -1, 2, INT_MIN}) {
    list.m_arrCompValues[2] = 70;
    EXPECT_EQ(list.SortByElemID(ascending), 1);
    EXPECT_EQ(Numbers(list), (Integers{1, 3, 2})) << ascending;
    EXPECT_EQ(Values(list), (Integers{1, 2, 3})) << ascending;
    EXPECT_EQ(list.SortByElemID(0), 1);
    EXPECT_EQ(Numbers(list), (Integers{2, 3, 1}));
  }
}

TEST(AssemblyList, FewerThanTwoComponentsKeepTheirValues) {
  CDspAsmCompList list;
  EXPECT_EQ(list.SortByElemID(1), 1);
  EXPECT_EQ(list.SortByElemID(0), 1);
  EXPECT_EQ(list.GetSize(), 0);
  list.Add(Filled(10), 70);
  const Lines before = Describe(list);
  EXPECT_EQ(list.SortByElemID(1), 1);
  EXPECT_EQ(Difference(Describe(list), before), "");
  EXPECT_EQ(list.SortByElemID(0), 1);
  EXPECT_EQ(Difference(Describe(list), before), "");
}

TEST(AssemblyList, EveryTripleOfKeysIsSortedWithoutOverflow) {
  const int keys[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX - 1, INT_MAX};
  for (const int first : keys) {
    for (const int second : keys) {
      ExpectSorted({first, second}, 0);
      ExpectSorted({first, second}, 1);
      for (const int third : keys) {
        ExpectSorted({first, second, third}, 0);
        ExpectSorted({first, second, third}, 1);
      }
    }
  }
}

TEST(AssemblyList, TiesComeInAnyOrderAndNoneIsLost) {
  for (const int ascending : {0, 1}) {
    ExpectSorted({5, 5}, ascending);
    ExpectSorted({5, 5, 5, 5, 5, 5, 5}, ascending);
    ExpectSorted({-1, 7, -1, 7, 3, 3, -1}, ascending);
  }
}

TEST(AssemblyList, ManyComponentsAreSorted) {
  std::mt19937 random(77);
  Integers any;
  Integers few;
  for (int count = 0; count < 1000; ++count) {
    any.push_back(static_cast<int>(random()));
    few.push_back(static_cast<int>(random() % 3) - 1);
  }
  Integers up = any;
  std::sort(up.begin(), up.end());
  const Integers down(up.rbegin(), up.rend());
  for (const int ascending : {0, 1}) {
    ExpectSorted(any, ascending);
    ExpectSorted(few, ascending);
    ExpectSorted(up, ascending);
    ExpectSorted(down, ascending);
  }
}

}  // namespace
}  // namespace mqp::test
