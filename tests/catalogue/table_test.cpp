// How rows become an index, on rows of a few values each. What the library's own tables answer is
// asked elsewhere.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/catalogue/table.h>

namespace mqp {
namespace {

using Row = ComponentRow<int>;
using ListRow = SequenceRow<int>;
using enum AnalysisType;
using ResultType::BeamStress;
using ResultType::Displacement;
using ResultType::FactorOfSafety;
using ResultType::ResultType0;
using ResultType::Strain;
using ResultType::Stress;

// ---------------------------------------------------------------------------------------------
// Sets of codes

std::vector<int> Members(const CodeSet& set) {
  std::vector<int> members;
  for (int code = 0; code < 128; ++code) {
    if (set.Has(code)) {
      members.push_back(code);
    }
  }
  return members;
}

TEST(CodeSets, HoldTheCodesTheyWereGivenAndNoOthers) {
  EXPECT_EQ(Members({}), std::vector<int>{});
  EXPECT_EQ(Members({0}), std::vector<int>{0});
  EXPECT_EQ(Members({127, 63, 64, 1}), (std::vector<int>{1, 63, 64, 127}));
  EXPECT_EQ(Members(CodeSet::Range(62, 66)), (std::vector<int>{62, 63, 64, 65, 66}));
  EXPECT_EQ(Members(CodeSet::Range(5, 5)), std::vector<int>{5});
  EXPECT_EQ(Members(CodeSet::Range(5, 4)), std::vector<int>{});
  EXPECT_EQ(Members(CodeSet{2, 70} | CodeSet{3, 70, 90}), (std::vector<int>{2, 3, 70, 90}));
}

TEST(CodeSets, KnowTheirEnds) {
  struct Case {
    CodeSet set;
    int lowest;
    int end;
  };
  const Case cases[] = {
      {CodeSet(), 128, 0}, {{0}, 0, 1},        {{63}, 63, 64},
      {{64}, 64, 65},      {{127}, 127, 128},  {{5, 9}, 5, 10},
      {{5, 90}, 5, 91},    {{70, 90}, 70, 91}, {{0, 127}, 0, 128},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(row.set.Lowest(), row.lowest) << testing::PrintToString(Members(row.set));
    EXPECT_EQ(row.set.End(), row.end) << testing::PrintToString(Members(row.set));
  }
}

TEST(CodeSets, IntersectInEitherHalf) {
  EXPECT_TRUE((CodeSet{1, 2}.Intersects({2, 3})));
  EXPECT_TRUE((CodeSet{1, 65}.Intersects({2, 65})));
  EXPECT_FALSE((CodeSet{1, 65}.Intersects({2, 66})));
  EXPECT_FALSE((CodeSet{1}.Intersects({65})));  // the same bit of the other half
  EXPECT_FALSE((CodeSet{}.Intersects({1})));
}

TEST(CodeSets, OfStudiesAndResultsAreThoseThatShareRules) {
  EXPECT_EQ(Members(kAnyStudy), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
  EXPECT_EQ(Members(kModalStudies), (std::vector<int>{1, 2}));
  EXPECT_EQ(Members(kStepStudies), (std::vector<int>{5, 6}));
  EXPECT_EQ(Members(kTimeStudies), (std::vector<int>{5, 6, 8}));
  EXPECT_EQ(Members(kStressStudies), (std::vector<int>{0, 5, 6, 8}));
  EXPECT_EQ(Members(kAnyResult).size(), 73U);
  EXPECT_EQ(Members(kResultsBelow2), (std::vector<int>{0, 1}));
  EXPECT_EQ(Members(kStrains), (std::vector<int>{3, 22}));
  EXPECT_EQ(Members(kStresses), (std::vector<int>{2, 57}));
  EXPECT_EQ(Members(kMotions), (std::vector<int>{19, 20}));
  EXPECT_EQ(Members(Static | Fatigue), (std::vector<int>{0, 7}));
  EXPECT_EQ(Members(StudySet(Static) | StudySet(Dynamic)), (std::vector<int>{0, 8}));
  EXPECT_EQ(Members(Stress | BeamStress), (std::vector<int>{2, 59}));
}

TEST(CodeSets, OfComponentsMayTakeInAllThatNoRowLists) {
  const ComponentSet listed = To(1, 3);
  EXPECT_EQ(Members(listed.listed), (std::vector<int>{1, 2, 3}));
  EXPECT_FALSE(listed.others);
  EXPECT_FALSE(ComponentSet({4, 7}).others);
  const ComponentSet both = listed | kOthers;
  EXPECT_EQ(Members(both.listed), (std::vector<int>{1, 2, 3}));
  EXPECT_TRUE(both.others);
  EXPECT_TRUE((kOthers | ComponentSet{5}).others);
  EXPECT_EQ(Members((To(1, 2) | ComponentSet{5}).listed), (std::vector<int>{1, 2, 5}));
}

TEST(CodeSets, NegativeCodesAndThoseBehindTheLastShareAPlace) {
  EXPECT_EQ(StudySlot(0), 0U);
  EXPECT_EQ(StudySlot(10), 10U);
  EXPECT_EQ(StudySlot(11), 11U);
  EXPECT_EQ(StudySlot(12), 11U);
  EXPECT_EQ(StudySlot(-1), 11U);
  EXPECT_EQ(ResultSlot(0), 0U);
  EXPECT_EQ(ResultSlot(71), 71U);
  EXPECT_EQ(ResultSlot(72), 72U);
  EXPECT_EQ(ResultSlot(73), 72U);
  EXPECT_EQ(ResultSlot(-1), 72U);
  EXPECT_EQ(CellOf(0, 0), 0U);
  EXPECT_EQ(CellOf(2, 3), 149U);
  EXPECT_EQ(CellOf(-1, -1), 875U);
}

// ---------------------------------------------------------------------------------------------
// Conditions

TEST(Conditions, AreBitsOfWhichOneIsEnough) {
  EXPECT_EQ(If(true, When::BeamMesh), When::BeamMesh);
  EXPECT_EQ(If(false, When::BeamMesh), When::Always);
  const When both = When::BeamMesh | When::RealModes;
  EXPECT_TRUE(Holds(both, When::BeamMesh));
  EXPECT_TRUE(Holds(both, When::RealModes));
  EXPECT_FALSE(Holds(both, When::Spectral));
  EXPECT_FALSE(Holds(both, When::Always));
  EXPECT_FALSE(Holds(When::Always, When::BeamMesh));
}

// ---------------------------------------------------------------------------------------------
// Rows

TEST(Rows, OfOneValueGiveItToTheirComponents) {
  const Row row = {Static, Stress, When::Always, {2, 5}, 7};
  EXPECT_EQ(row.End(), 6);
  EXPECT_TRUE(row.Lists(2));
  EXPECT_FALSE(row.Lists(3));
  EXPECT_EQ(row.At(5), 7);
  EXPECT_EQ(row.Others(), 7);
  EXPECT_FALSE(row.HasOthers());
  EXPECT_TRUE((Row{Static, Stress, When::Always, kOthers, 7}.HasOthers()));
}

constexpr Sequence<int> kFromTwo = {
    .values = {30, 31, 32}, .count = 3, .first = 2, .hasOthers = true, .others = 9};

TEST(Rows, OfSequencesGiveEachComponentItsOwn) {
  const ListRow row = {Static, Stress, When::Always, kFromTwo};
  EXPECT_EQ(row.End(), 5);
  EXPECT_FALSE(row.Lists(1));
  EXPECT_TRUE(row.Lists(2));
  EXPECT_TRUE(row.Lists(4));
  EXPECT_FALSE(row.Lists(5));
  EXPECT_EQ(row.At(2), 30);
  EXPECT_EQ(row.At(4), 32);
  EXPECT_EQ(row.At(1), 9);
  EXPECT_EQ(row.At(5), 9);
  EXPECT_TRUE(row.HasOthers());
  EXPECT_EQ(row.Others(), 9);
  const ListRow empty = {Static, Stress, When::Always, {.first = 4}};
  EXPECT_EQ(empty.End(), 0);
  EXPECT_FALSE(empty.HasOthers());
}

TEST(Rows, SequencesAreJoinedBehindTheFirst) {
  const Sequence<int> joined = kFromTwo + Sequence<int>{.values = {50, 51}, .count = 2};
  EXPECT_EQ(joined.count, 5);
  EXPECT_EQ(joined.first, 2);
  EXPECT_EQ(joined.others, 9);
  EXPECT_EQ(joined.At(4), 32);
  EXPECT_EQ(joined.At(5), 50);
  EXPECT_EQ(joined.At(6), 51);
  EXPECT_EQ(joined.At(7), 9);
}

// ---------------------------------------------------------------------------------------------
// What must hold of rows

/// What the checks answer when every row is right.
constexpr int kNoRow = -1;

TEST(RowChecks, RowsStandByStudyThenByResult) {
  // clang-format off
  const auto sorted = std::to_array<Row>({
      {Static,           Displacement,    When::Always, {0}, 1},
      {Static,           Stress,          When::Always, {0}, 1},
      {Static | Dynamic, Stress | Strain, When::Always, {0}, 1},
      {Buckling,         Displacement,    When::Always, {0}, 1},
  });
  // clang-format on
  EXPECT_EQ(FirstUnsorted(sorted), kNoRow);
  auto resultsExchanged = sorted;
  std::swap(resultsExchanged[0], resultsExchanged[1]);
  EXPECT_EQ(FirstUnsorted(resultsExchanged), 1);
  auto studiesExchanged = sorted;
  std::swap(studiesExchanged[2], studiesExchanged[3]);
  EXPECT_EQ(FirstUnsorted(studiesExchanged), 3);
}

struct Keyed {
  int key;
  AnalysisType code;
};

TEST(RowChecks, KeysRiseAndNoneComesTwice) {
  const auto rising = std::to_array<Keyed>({{-4, Static}, {0, Static}, {9, Static}});
  EXPECT_EQ(FirstUnsorted(rising, &Keyed::key), kNoRow);
  const auto repeated = std::to_array<Keyed>({{1, Static}, {2, Static}, {2, Static}});
  EXPECT_EQ(FirstUnsorted(repeated, &Keyed::key), 2);
  const auto falling = std::to_array<Keyed>({{1, Static}, {0, Static}, {2, Static}});
  EXPECT_EQ(FirstUnsorted(falling, &Keyed::key), 1);
}

TEST(RowChecks, EachRowStandsAtThePlaceOfItsCode) {
  const auto inPlace = std::to_array<Keyed>({{0, Static}, {0, Frequency}, {0, Buckling}});
  EXPECT_EQ(FirstOutOfPlace(inPlace, &Keyed::code), kNoRow);
  const auto shifted = std::to_array<Keyed>({{0, Static}, {0, Buckling}});
  EXPECT_EQ(FirstOutOfPlace(shifted, &Keyed::code), 1);
  const auto wrong = std::to_array<Keyed>({{0, Dynamic}});
  EXPECT_EQ(FirstOutOfPlace(wrong, &Keyed::code), 0);
}

TEST(RowChecks, RowsCollideThatAnswerTheSameQuestion) {
  const Row row = {Static, Stress, When::Always, {2, 5}, 7};
  struct Case {
    const char* name;
    Row other;
    bool collides;
  };
  // clang-format off
  const Case cases[] = {
      {"the same",             {Static,    Stress, When::Always,   {2, 5},              7}, true},
      {"its last component",   {Static,    Stress, When::Always,   {5, 9},              7}, true},
      {"its first component",  {Static,    Stress, When::Always,   {0, 2},              7}, true},
      {"other components",     {Static,    Stress, When::Always,   {3, 4, 6},           7}, false},
      {"another condition",    {Static,    Stress, When::BeamMesh, {2, 5},              7}, false},
      {"another study",        {Frequency, Stress, When::Always,   {2, 5},              7}, false},
      {"another result",       {Static,    Strain, When::Always,   {2, 5},              7}, false},
      {"all others",           {Static,    Stress, When::Always,   kOthers,             7}, false},
  };
  // clang-format on
  for (const Case& one : cases) {
    EXPECT_EQ(Collide(row, one.other), one.collides) << one.name;
    EXPECT_EQ(Collide(one.other, row), one.collides) << one.name;
  }
  const Row others = {Static, Stress, When::Always, kOthers, 7};
  EXPECT_TRUE(Collide(others, others));
  const ChoiceRow choice = {Static, Stress, When::Always, 1};
  EXPECT_TRUE(Collide(choice, choice));
  EXPECT_FALSE(Collide(choice, ChoiceRow{Static, Stress, When::BeamMesh, 1}));
}

TEST(RowChecks, TheSecondOfTwoThatCollideIsNamed) {
  // clang-format off
  const auto rows = std::to_array<Row>({
      {Static, Stress, When::Always, {0}, 1},
      {Static, Stress, When::Always, {1}, 1},
      {Static, Stress, When::Always, {2}, 1},
      {Static, Stress, When::Always, {1}, 1},
  });
  // clang-format on
  EXPECT_EQ(FirstRepeated(rows), 3);
  EXPECT_EQ(FirstRepeated(std::to_array({rows[0], rows[1], rows[2]})), kNoRow);
  EXPECT_EQ(FirstRepeated(std::to_array({rows[0], rows[0]})), 1);
}

// ---------------------------------------------------------------------------------------------
// Lists of a cell

TEST(MergedRows, GiveEachComponentItsValueAndTheRestTheNothing) {
  const Row plain = {Static, Stress, When::Always, {0, 2}, 10};
  const Row later = {Static, Stress, When::Always, {1, 3}, 11};
  const Row special = {Static, Stress, When::BeamMesh, {2, 4}, 20};
  const std::vector<const Row*> rows = {&plain, &later, &special};
  EXPECT_EQ(MergeRows(rows, When::Always, -1), (std::vector<int>{10, 11, 10, 11, -1}));
  // Rows with the condition change single components.
  EXPECT_EQ(MergeRows(rows, When::BeamMesh, -1), (std::vector<int>{10, 11, 20, 11, 20, -1}));
  EXPECT_EQ(MergeRows(rows, When::Spectral, -1), (std::vector<int>{10, 11, 10, 11, -1}));
  EXPECT_EQ(MergeRows(std::vector<const Row*>{}, When::Always, -1), std::vector<int>{-1});
}

TEST(MergedRows, OthersTakeWhatNoRowLists) {
  const Row listed = {Static, Stress, When::Always, {2}, 10};
  const Row others = {Static, Stress, When::Always, ComponentSet{0} | kOthers, 11};
  EXPECT_EQ(MergeRows(std::vector<const Row*>{&listed, &others}, When::Always, -1),
            (std::vector<int>{11, 11, 10, 11}));
}

TEST(MergedRows, ASequenceUnderAConditionReplacesThePlainOne) {
  const ListRow plain = {Static, Stress, When::Always, kFromTwo};
  const ListRow special = {Static, Stress, When::BeamMesh, {.values = {80}, .count = 1}};
  const std::vector<const ListRow*> rows = {&plain, &special};
  EXPECT_EQ(MergeRows(rows, When::Always, -1), (std::vector<int>{9, 9, 30, 31, 32, 9}));
  EXPECT_EQ(MergeRows(rows, When::BeamMesh, -1), (std::vector<int>{80, -1}));
  EXPECT_EQ(MergeRows(rows, When::Spectral, -1), (std::vector<int>{9, 9, 30, 31, 32, 9}));
}

// ---------------------------------------------------------------------------------------------
// The index

// clang-format off
constexpr auto kFirstGroup = std::to_array<Row>({
    {Static,               Stress,                  When::Always,   {0, 1},    10},
    {Static,               Stress,                  When::BeamMesh, {1},       11},
    {Frequency | Buckling, Strain,                  When::Spectral, {0},       12},
    {Thermal,              Strain | FactorOfSafety, When::Always,   {0},       13},
});
constexpr auto kSecondGroup = std::to_array<Row>({
    {Static | Fatigue, ResultType0 | BeamStress, When::Always, {0},       21},
    {kAnyStudy,        Stress,                   When::Always, {0, 1, 2}, 20},
});
// clang-format on

TEST(BuiltIndexes, AnswerByStudyResultConditionAndComponent) {
  const auto built = BuildIndex(-1, kFirstGroup, kSecondGroup);
  ComponentIndex<int, 24> index{};
  ASSERT_LE(built.values.size(), index.values.size());
  index.cells = built.cells;
  std::copy(built.values.begin(), built.values.end(), index.values.begin());
  struct Case {
    int study;
    int result;
    When given;
    std::vector<int> listed;
    int beyond;
  };
  // clang-format off
  const Case cases[] = {
      {0,  2, When::Always,                     {10, 10},     -1},
      {0,  2, When::BeamMesh,                   {10, 11},     -1},
      {0,  2, When::Spectral,                   {10, 10},     -1},  // the condition of other cells
      {0,  2, When::BeamMesh | When::Spectral,  {10, 11},     -1},
      {1,  3, When::Always,                     {},           -1},
      {1,  3, When::Spectral,                   {12},         -1},
      {2,  3, When::Spectral,                   {12},         -1},
      {3,  3, When::Spectral,                   {13},         -1},
      {3,  4, When::Always,                     {13},         -1},
      {3,  5, When::Always,                     {},           -1},
      {5,  3, When::Spectral,                   {},           -1},
      {1,  2, When::Always,                     {20, 20, 20}, -1},
      {11, 2, When::BeamMesh,                   {20, 20, 20}, -1},
      {-1, 2, When::Always,                     {20, 20, 20}, -1},
      {0,  0, When::Always,                     {21},         -1},
      {0, 59, When::Always,                     {21},         -1},
      {7,  0, When::Always,                     {21},         -1},
      {7, 59, When::Always,                     {21},         -1},
      {5,  0, When::Always,                     {},           -1},
      {0,  1, When::Always,                     {},           -1},
      {0, 58, When::Always,                     {},           -1},
      {0, -1, When::Always,                     {},           -1},
  };
  // clang-format on
  for (const Case& row : cases) {
    const std::string name = "study " + std::to_string(row.study) + ", result " +
                             std::to_string(row.result) + ", given " +
                             std::to_string(static_cast<unsigned>(row.given));
    const auto listed = index.Listed(row.study, row.result, row.given);
    EXPECT_EQ(std::vector<int>(listed.begin(), listed.end()), row.listed) << name;
    const int count = static_cast<int>(row.listed.size());
    for (int component = 0; component < count; ++component) {
      EXPECT_EQ(index.At(row.study, row.result, row.given, component),
                row.listed[static_cast<std::size_t>(component)])
          << name;
    }
    for (const int component : {-1, count, count + 1, 1000}) {
      EXPECT_EQ(index.At(row.study, row.result, row.given, component), row.beyond) << name;
    }
  }
}

TEST(BuiltIndexes, KeepEqualListsOnce) {
  // By cells, each list with the nothing behind it: no rows; static result 0; static stress
  // without and with beams; the stresses of other studies; the strains of modes, and those of a
  // thermal study.
  EXPECT_EQ(BuildIndex(-1, kFirstGroup, kSecondGroup).values,
            (std::vector<int>{-1, 21, -1, 10, 10, -1, 10, 11, -1, 20, 20, 20, -1, 12, -1, 13, -1}));
  ListPool<int> pool;
  const ValueList first = pool.Keep({1, 2, 3});
  const ValueList second = pool.Keep({1, 2, 4});
  const ValueList shorter = pool.Keep({1, 2});
  const ValueList again = pool.Keep({1, 2, 3});
  EXPECT_EQ(first.first, 0);
  EXPECT_EQ(first.count, 2);
  EXPECT_EQ(second.first, 3);
  EXPECT_EQ(shorter.first, 6);
  EXPECT_EQ(shorter.count, 1);
  EXPECT_EQ(again.first, 0);
  EXPECT_EQ(pool.Values(), (std::vector<int>{1, 2, 3, 1, 2, 4, 1, 2}));
}

TEST(BuiltIndexes, ACellWithTwoConditionsIsRefused) {
  // clang-format off
  const auto rows = std::to_array<Row>({
      {Static, Stress, When::BeamMesh, {0}, 1},
      {Static, Stress, When::Always,   {0}, 1},
      {Static, Stress, When::Spectral, {0}, 1},
  });
  // clang-format on
  EXPECT_THROW(BuildIndex(-1, rows), const char*);
  EXPECT_NO_THROW(BuildIndex(-1, std::to_array({rows[0], rows[1]})));
  const Row sameCondition = {Static, Stress, When::BeamMesh, {1}, 2};
  EXPECT_NO_THROW(BuildIndex(-1, std::to_array({rows[0], sameCondition, rows[1]})));
}

// clang-format off
constexpr auto kChoiceRows = std::to_array<ChoiceRow>({
    {Static,    Stress, When::BeamMesh, 5},
    {Static,    Stress, When::Spectral, 6},
    {kAnyStudy, Stress, When::Always,   7},
});
// clang-format on

TEST(Choices, TheFirstConditionThatHoldsDecides) {
  constexpr ChoiceIndex kIndex = MakeChoices<kChoiceRows>();
  const Choice& both = kIndex[CellOf(0, 2)];
  EXPECT_EQ(both.Pick(When::Always), 7);
  EXPECT_EQ(both.Pick(When::BeamMesh), 5);
  EXPECT_EQ(both.Pick(When::Spectral), 6);
  EXPECT_EQ(both.Pick(When::BeamMesh | When::Spectral), 5);
  EXPECT_EQ(kIndex[CellOf(3, 2)].Pick(When::BeamMesh), 7);
  EXPECT_EQ(kIndex[CellOf(0, 3)].Pick(When::BeamMesh), 0);
}

}  // namespace
}  // namespace mqp
