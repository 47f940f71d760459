#include <algorithm>
#include <climits>
#include <cstddef>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/display/assembly_index.h>

#include "display/display_test_support.h"

namespace mqp::test {
namespace {

using Integers = std::vector<int>;

Integers BodiesOf(const CDspAsmCompIndex& index, const CString& name) {
  Integers found = {77};
  index.GetBodyListByPartName(&found, name);
  return found;
}

TEST(AssemblyIndex, OfAnEmptyListFindsNothing) {
  const CDspAsmCompIndex index{CDspAsmCompList()};
  EXPECT_EQ(index.GetSize(), 0);
  ExpectVisible(index, {{0, 0, 999}, {-1, 0, 999}, {INT_MAX, 0, 999}, {INT_MIN, 0, 999}});
  EXPECT_EQ(index.GetActiveElemIndex(0, 5), 1);
  EXPECT_EQ(index.GetIndexByBodyID(0), -1);
  EXPECT_EQ(index.IsComponentExistByName(MQ_TEXT("")), 0);
  EXPECT_EQ(BodiesOf(index, MQ_TEXT("")), (Integers{77}));
}

TEST(AssemblyIndex, FindsTheElementsOfOneComponent) {
  const CDspAsmCompIndex index(MakeList({{.first = 100, .last = 199, .visIndexBase = 101}}));
  EXPECT_EQ(index.GetSize(), 1);
  ExpectVisible(index, {{150, 1, 151},
                        {100, 1, 101},
                        {199, 1, 200},
                        {99, 0, 999},
                        {200, 0, 999},
                        {-1, 0, 999},
                        {0, 0, 999},
                        {INT_MAX, 0, 999},
                        {INT_MIN, 0, 999}});
}

TEST(AssemblyIndex, TheFirstComponentThatIsShownAndHoldsTheElementGivesItsVisibleIndex) {
  const CDspAsmCompIndex index(MakeList({
      {.first = 5, .last = 9, .hidden = 1, .visIndexBase = 1000},
      {.first = 9, .last = 5, .visIndexBase = 2000},    // reversed
      {.first = -3, .last = 20, .visIndexBase = 3000},  // starts below 0
      {.visIndexBase = 4000},
      {.first = 7, .last = 7, .visIndexBase = 100},
      {.first = 6, .last = 8, .visIndexBase = 200, .tempHidden = 1},
      {.first = 0, .last = 9, .visIndexBase = -300},
      {.first = 0, .last = 0, .visIndexBase = 500},
      {.first = 3, .last = 12, .hidden = -1, .visIndexBase = 6000},
      {.first = 8, .last = 11, .visIndexBase = 700},
  }));
  ExpectVisible(index, {{-1, 0, 999},
                        {0, 1, -300},
                        {5, 1, -295},
                        {6, 1, 200},
                        {7, 1, 100},
                        {8, 1, 202},
                        {9, 1, -291},
                        {10, 1, 702},
                        {11, 1, 703},
                        {12, 0, 999},
                        {20, 0, 999}});
}

TEST(AssemblyIndex, ARangeOfAllElementsGivesWayToThoseBeforeIt) {
  const CDspAsmCompIndex index(MakeList({
      {.first = INT_MAX, .last = INT_MAX, .visIndexBase = 10},
      {.first = 0, .last = 0, .visIndexBase = 20},
      {.first = 1000, .last = 1001, .visIndexBase = 30},
      {.first = 0, .last = INT_MAX, .visIndexBase = INT_MAX},
      {.first = 2000, .last = 2001, .visIndexBase = 40},
  }));
  ExpectVisible(index, {{0, 1, 20},
                        {1, 1, INT_MIN},  // the sum wraps around
                        {999, 1, -2147482650},
                        {1000, 1, 30},
                        {1001, 1, 31},
                        {1002, 1, -2147482647},
                        {2000, 1, -2147481649},
                        {INT_MAX - 1, 1, -3},
                        {INT_MAX, 1, 10},
                        {-1, 0, 999},
                        {INT_MIN, 0, 999}});
}

TEST(AssemblyIndex, FindsRangesThatCrowdAtOnePlace) {
  CDspAsmCompList list;
  list.Add(Make({.first = 1'000'000'000, .last = 2'000'000'000, .visIndexBase = 5}));
  for (int number = 0; number < 100; ++number) {
    const int first = 500'000 + 3 * number;
    list.Add(Make({.first = first, .last = first + 1, .visIndexBase = 100 * number}));
  }
  ExpectVisible(CDspAsmCompIndex(list), {{499'999, 0, 999},
                                         {500'000, 1, 0},
                                         {500'001, 1, 1},
                                         {500'002, 0, 999},
                                         {500'003, 1, 100},
                                         {500'150, 1, 5000},
                                         {500'151, 1, 5001},
                                         {500'297, 1, 9900},
                                         {500'298, 1, 9901},
                                         {500'299, 0, 999},
                                         {999'999'999, 0, 999},
                                         {1'000'000'000, 1, 5},
                                         {2'000'000'000, 1, 1'000'000'005},
                                         {2'000'000'001, 0, 999}});
}

TEST(AssemblyIndex, ElementsBeforeAComponentCountHiddenOnesAndWrapAround) {
  const CDspAsmCompIndex index(MakeList({
      {.first = 10, .last = 19},
      {.first = 5, .last = 5, .hidden = 1},
      {.first = 9, .last = 5},  // -3 elements
      {.first = 0, .last = INT_MAX},
      {.first = 1, .last = 2},
  }));
  struct Row {
    int component;
    int base;
    int expected;
  };
  const Row rows[] = {
      {0, 1, 1},           {1, 1, 11},      {2, 1, 12},      {3, 1, 9},
      {4, 1, -2147483639}, {5, 1, 1},       {5, INT_MAX, 1}, {-1, 7, 1},
      {INT_MIN, 7, 1},     {INT_MAX, 7, 1}, {0, 7, 7},       {1, INT_MAX, -2147483639},
      {3, -8, 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(index.GetActiveElemIndex(row.component, row.base), row.expected)
        << "component " << row.component << " base " << row.base;
  }
}

TEST(AssemblyIndex, FindsTheFirstComponentOfABody) {
  const CDspAsmCompIndex index(MakeList({
      {.bodyId = 7},
      {.bodyId = -1},
      {.bodyId = 7},
      {.bodyId = INT_MIN},
      {.bodyId = INT_MAX},
      {.bodyId = -1},
      {.bodyId = 0},
  }));
  struct Row {
    long bodyId;
    int expected;
  };
  for (const Row& row : std::vector<Row>{
           {7, 0}, {-1, 1}, {INT_MIN, 3}, {INT_MAX, 4}, {0, 6}, {8, -1}, {1, -1}, {-2, -1}}) {
    EXPECT_EQ(index.GetIndexByBodyID(row.bodyId), row.expected) << row.bodyId;
  }
}

TEST(AssemblyIndex, ABodyBeyondAllIntsIsUnknown) {
  if (sizeof(long) == sizeof(int)) {
    GTEST_SKIP() << "there is none here";
  }
  const CDspAsmCompIndex index(MakeList({{.bodyId = 0}, {.bodyId = -1}, {.bodyId = INT_MIN}}));
  const auto beyond = static_cast<long>(4'294'967'296LL);
  EXPECT_EQ(index.GetIndexByBodyID(beyond), -1);           // its low half is 0
  EXPECT_EQ(index.GetIndexByBodyID(beyond - 1), -1);       // its low half is -1
  EXPECT_EQ(index.GetIndexByBodyID(beyond / -2 - 1), -1);  // one below the smallest int
  EXPECT_EQ(index.GetIndexByBodyID(beyond / -2), 2);
}

TEST(AssemblyIndex, FindsNamesAsTheyAreWrittenAndBodiesWhateverTheLetterCase) {
  const CDspAsmCompIndex index(MakeList({
      {.name = MQ_TEXT("Wheel")},
      {.name = MQ_TEXT("Axle")},
      {.name = MQ_TEXT("WHEEL")},
      {.name = MQ_TEXT("")},
      {.name = MQ_TEXT("Wheel"), .hidden = 1},
      {.name = MQ_TEXT("\u00C9t\u0436")},
  }));
  struct Row {
    const mqChar* name;
    int isThere;
    Integers bodies;
  };
  const Row rows[] = {
      {MQ_TEXT("Wheel"), 1, {77, 0, 2, 4}},
      {MQ_TEXT("WHEEL"), 1, {77, 0, 2, 4}},
      {MQ_TEXT("wheel"), 0, {77, 0, 2, 4}},
      {MQ_TEXT("axle"), 0, {77, 1}},
      {MQ_TEXT("Axle"), 1, {77, 1}},
      {MQ_TEXT("Wheels"), 0, {77}},
      {MQ_TEXT("Whee"), 0, {77}},
      {MQ_TEXT(""), 1, {77, 3}},
      {MQ_TEXT("\u00E9T\u0416"), 0, {77, 5}},
      {MQ_TEXT("\u00C9t\u0436"), 1, {77, 5}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(index.IsComponentExistByName(row.name), row.isThere) << Show(CString(row.name));
    EXPECT_EQ(BodiesOf(index, row.name), row.bodies) << Show(CString(row.name));
  }
}

TEST(AssemblyIndex, AnswersAsTheListWasWhenItWasMade) {
  std::optional<CDspAsmCompList> list(
      MakeList({{.first = 1, .last = 9, .name = MQ_TEXT("a"), .bodyId = 3, .visIndexBase = 50}}));
  const CDspAsmCompIndex index(*list);
  list->m_arrComps[0].m_bHidden = 1;
  list->m_arrComps[0].m_strCompName = MQ_TEXT("b");
  list->m_arrComps[0].m_nBodyID = 4;
  list->Add(Make({.first = 0, .last = 9}));
  const CDspAsmCompIndex later(*list);
  list.reset();
  ExpectVisible(index, {{0, 0, 999}, {1, 1, 50}, {9, 1, 58}});
  EXPECT_EQ(index.GetSize(), 1);
  EXPECT_EQ(index.GetIndexByBodyID(3), 0);
  EXPECT_EQ(index.IsComponentExistByName(MQ_TEXT("a")), 1);
  ExpectVisible(later, {{0, 1, 1}, {1, 1, 2}, {9, 1, 10}});
  EXPECT_EQ(later.GetSize(), 2);
  EXPECT_EQ(later.GetIndexByBodyID(3), -1);
  EXPECT_EQ(later.IsComponentExistByName(MQ_TEXT("a")), 0);
}

TEST(AssemblyIndex, CopiesAndAssignmentsKnowTheSame) {
  const CDspAsmCompIndex one(MakeList({{.first = 1, .last = 1, .visIndexBase = 5}}));
  CDspAsmCompIndex other(MakeList({{.first = 2, .last = 2, .visIndexBase = 6}, {}}));
  CDspAsmCompIndex copy(other);
  other = one;
  ExpectVisible(other, {{1, 1, 5}, {2, 0, 999}});
  ExpectVisible(copy, {{1, 0, 999}, {2, 1, 6}});
  const CDspAsmCompIndex moved(std::move(copy));
  ExpectVisible(moved, {{1, 0, 999}, {2, 1, 6}});
  ExpectVisible(copy, {{1, 0, 999}, {2, 1, 6}});  // NOLINT(bugprone-use-after-move): it was copied
  const CDspAsmCompIndex& same = other;
  other = same;
  ExpectVisible(other, {{1, 1, 5}, {2, 0, 999}});
}

// More names than hashes of 32 bits can tell apart.
TEST(AssemblyIndex, FindsEachOfManyNames) {
  constexpr int kNames = 300'000;
  CDspAsmCompList list;
  list.m_arrComps.SetSize(kNames);
  const auto nameOf = [](int number) {
    CString name;
    name.Format(MQ_TEXT("Part %d"), number);
    return name;
  };
  for (int number = 0; number < kNames; ++number) {
    list.m_arrComps[number].m_strCompName = nameOf(number);
    list.m_arrComps[number].m_nBodyID = 7 * number;
  }
  const CDspAsmCompIndex index(list);
  for (int number = 0; number < kNames; ++number) {
    ASSERT_EQ(index.IsComponentExistByName(nameOf(number)), 1) << number;
    ASSERT_EQ(index.IsComponentExistByName(nameOf(number + kNames)), 0) << number + kNames;
    ASSERT_EQ(BodiesOf(index, nameOf(number)), (Integers{77, number}));
    ASSERT_EQ(index.GetIndexByBodyID(7 * number), number);
    ASSERT_EQ(index.GetIndexByBodyID(7 * number + 1), -1);
  }
  RecordProperty("cases", 5 * kNames);
}

// ---------------------------------------------------------------------------------------------
// Random lists: the index and the list answer alike.

const mqChar* const kNames[] = {MQ_TEXT("a"),
                                MQ_TEXT("A"),
                                MQ_TEXT("ab"),
                                MQ_TEXT("AB"),
                                MQ_TEXT("Ab"),
                                MQ_TEXT(""),
                                MQ_TEXT("\u00C9"),
                                MQ_TEXT("\u00E9"),
                                MQ_TEXT("b"),
                                MQ_TEXT("ba"),
                                MQ_TEXT("a long name, a long name")};
const int kExtremes[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX - 1, INT_MAX};

class RandomList {
 public:
  explicit RandomList(unsigned seed) : m_random(seed) {}

  int Between(int first, int last) {
    return std::uniform_int_distribution<int>(first, last)(m_random);
  }
  template <class Value, std::size_t kCount>
  Value OneOf(const Value (&values)[kCount]) {
    return values[Between(0, static_cast<int>(kCount) - 1)];
  }

  /// A number near which ranges begin and end, mostly.
  int Number() {
    switch (Between(0, 9)) {
      case 0: return OneOf(kExtremes);
      case 1: return Between(0, INT_MAX);
      case 2: return m_center + Between(-100'000, 100'000);
      default: return m_center + Between(-60, 60);
    }
  }

  CDspAsmCompList Make() {
    m_center = Between(0, 1) == 0 ? 50 : Between(200'000, INT_MAX - 200'000);
    CDspAsmCompList list;
    for (int left = Between(0, 1) == 0 ? Between(0, 8) : Between(0, 300); left > 0; --left) {
      const int first = Number();
      const bool isNarrow = Between(0, 3) != 0 && first > INT_MIN + 2 && first < INT_MAX - 10;
      list.Add(test::Make({.first = first,
                           .last = isNarrow ? first + Between(-2, 10) : Number(),
                           .name = OneOf(kNames),
                           .bodyId = Between(0, 3) == 0 ? Number() : Between(-3, 40),
                           .hidden = Between(0, 4) == 0 ? Between(-1, 2) : 0,
                           .visIndexBase = Between(0, 3) == 0 ? Number() : Between(1, 500)}));
    }
    return list;
  }

 private:
  std::mt19937 m_random;
  int m_center = 0;
};

/// The answers to one question of each kind, in words.
template <class Asked>
std::string Answers(const Asked& asked, int number, const mqChar* name) {
  int visible = 999;
  const int isVisible = asked.GetVisPartIndex_1based(number, &visible);
  Integers bodies = {77};
  asked.GetBodyListByPartName(&bodies, name);
  std::string text = Show(isVisible) + ' ' + Show(visible) + ", elements before " +
                     Show(asked.GetActiveElemIndex(number, number)) + ", body " +
                     Show(asked.GetIndexByBodyID(number)) + ", name " +
                     Show(asked.IsComponentExistByName(name)) + ", bodies";
  for (const int body : bodies) {
    text += ' ' + Show(body);
  }
  return text;
}

TEST(AssemblyIndex, AnswersAsTheListInRandomLists) {
  constexpr int kLists = 4000;
  constexpr int kElements = 250;
  constexpr int kOthers = 10;
  int found = 0;
  for (unsigned seed = 1; seed <= kLists; ++seed) {
    RandomList random(seed);
    const CDspAsmCompList list = random.Make();
    const CDspAsmCompIndex index(list);
    for (int query = 0; query < kElements; ++query) {
      const int elem = random.Number();
      int expected = 999;
      int got = 999;
      const int isFound = list.GetVisPartIndex_1based(elem, &expected);
      ASSERT_EQ(index.GetVisPartIndex_1based(elem, &got), isFound)
          << "list " << seed << " element " << elem;
      ASSERT_EQ(got, expected) << "list " << seed << " element " << elem;
      found += isFound;
    }
    for (int query = 0; query < kOthers; ++query) {
      const int number = query % 2 == 0 ? random.Number() : random.Between(-2, 300);
      const mqChar* name = random.OneOf(kNames);
      ASSERT_EQ(Answers(index, number, name), Answers(list, number, name))
          << "list " << seed << " number " << number << " name " << Show(CString(name));
    }
  }
  EXPECT_GT(found, kLists * kElements / 10);
  RecordProperty("cases", kLists * (kElements + 5 * kOthers));
}

}  // namespace
}  // namespace mqp::test
