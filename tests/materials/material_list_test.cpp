#include <array>
#include <climits>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/materials/material.h>
#include <mqPostCommon/params/plot.h>

#include "materials/material_test_support.h"

namespace mqp::test {
namespace {

using List = CmqpMaterialDataList;
using Indices = std::vector<int>;

static_assert(!std::has_virtual_destructor_v<List>);
static_assert(
    std::is_same_v<decltype(List::m_arrMaterials), CArray<CmqpMaterialData, CmqpMaterialData>>);
static_assert(std::is_same_v<decltype(std::declval<const List&>().GetSize()), __int64>);

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

void Add(List& list, int bodyId, int secondaryId = 0) {
  CmqpMaterialData material;
  material.m_nBodyID = bodyId;
  material.m_nSecondaryID = secondaryId;
  list.Add(material);
}

void AddNamed(List& list, const CString& name) {
  CmqpMaterialData material;
  material.m_strMaterialName = name;
  list.Add(material);
}

/// What a list keeps of a record filled with a seed.
CmqpMaterialData Kept(int seed) {
  CmqpMaterialData material;
  FillWithDistinctValues(material, seed);
  ShortenCurves(material, 3);
  return material;
}

/// A list of records filled with these seeds.
void Fill(List& list, std::initializer_list<int> seeds) {
  list.RemoveAll();
  for (const int seed : seeds) {
    CmqpMaterialData material;
    FillWithDistinctValues(material, seed);
    list.Add(material);
  }
}

void ExpectFilled(const List& list, std::initializer_list<int> seeds) {
  ASSERT_EQ(list.GetSize(), static_cast<__int64>(seeds.size()));
  int index = 0;
  for (const int seed : seeds) {
    EXPECT_EQ(Differences(list.GetAt(index), Kept(seed)), "") << "record " << index;
    ++index;
  }
}

TEST(MaterialList, ANewListIsEmpty) {
  const List list;
  EXPECT_EQ(list.GetSize(), 0);
  EXPECT_EQ(list.m_arrMaterials.GetSize(), 0);
}

TEST(MaterialList, RecordsAreAppended) {
  List list;
  for (int index = 0; index < 100; ++index) {
    CmqpMaterialData material;
    material.m_nReserved = 500 + index;
    EXPECT_EQ(list.Add(material), index);
    EXPECT_EQ(list.GetSize(), index + 1);
  }
  for (int index = 0; index < 100; ++index) {
    EXPECT_EQ(list.GetAt(index).m_nReserved, 500 + index);
    EXPECT_EQ(list.m_arrMaterials[index].m_nReserved, 500 + index);
  }
}

TEST(MaterialList, RecordsAreAddedAndHandedOutAsCopies) {
  List list;
  CmqpMaterialData material;
  CmqpMaterialData unchanged;
  FillWithDistinctValues(material, 1);
  FillWithDistinctValues(unchanged, 1);
  list.Add(material);
  EXPECT_EQ(Differences(material, unchanged), "");
  FillWithDistinctValues(material, 2);
  ExpectFilled(list, {1});

  CmqpMaterialData got = list.GetAt(0);
  FillWithDistinctValues(got, 3);
  ExpectFilled(list, {1});
}

TEST(MaterialList, ARecordOfTheListItselfCanBeAdded) {
  List list;
  Fill(list, {1, 2});
  for (int count = 2; count < 20; ++count) {
    EXPECT_EQ(list.Add(list.m_arrMaterials[1]), count);
    EXPECT_EQ(Differences(list.GetAt(count), Kept(2)), "");
  }
  EXPECT_EQ(Differences(list.GetAt(0), Kept(1)), "");
}

TEST(MaterialList, RecordsStayAsTheyAreWhileTheListGrows) {
  List list;
  Fill(list, {1, 2});
  // More entries than points, as only the host can leave them there.
  FillWithDistinctValues(list.m_arrMaterials[0], 4);
  CmqpMaterialData expected;
  FillWithDistinctValues(expected, 4);
  for (int count = 2; count < 200; ++count) {
    Add(list, count);
  }
  EXPECT_EQ(Differences(list.m_arrMaterials[0], expected), "");
  EXPECT_EQ(Differences(list.m_arrMaterials[1], Kept(2)), "");
}

TEST(MaterialList, AnIndexOutsideGivesANewRecord) {
  CmqpMaterialData expected;
  MakeNew(expected);
  List list;
  for (const int index : {-1, 0, 1, INT_MIN, INT_MAX}) {
    EXPECT_EQ(Differences(list.GetAt(index), expected), "") << index;
  }
  Fill(list, {1, 2, 3});
  for (const int index : {-1, -3, 3, 4, 1000, INT_MIN, INT_MAX}) {
    EXPECT_EQ(Differences(list.GetAt(index), expected), "") << index;
  }
  ExpectFilled(list, {1, 2, 3});
}

TEST(MaterialList, AnEmptiedListStartsAnew) {
  List list;
  list.RemoveAll();
  EXPECT_EQ(list.GetSize(), 0);
  Fill(list, {1, 2, 3});
  list.RemoveAll();
  EXPECT_EQ(list.GetSize(), 0);
  CmqpMaterialData expected;
  MakeNew(expected);
  EXPECT_EQ(Differences(list.GetAt(0), expected), "");
  Fill(list, {4});
  ExpectFilled(list, {4});
}

TEST(MaterialList, ACopyHasTheRecordsInOrder) {
  List source;
  Fill(source, {1, 2, 3});
  List copy(source);
  ExpectFilled(copy, {1, 2, 3});
  Fill(source, {4, 5});
  ExpectFilled(copy, {1, 2, 3});
  copy.RemoveAll();
  ExpectFilled(source, {4, 5});

  const List empty;
  const List emptyCopy(empty);
  EXPECT_EQ(emptyCopy.GetSize(), 0);
}

TEST(MaterialList, AnAssignedListHasTheRecordsOfItsSourceAlone) {
  List source;
  Fill(source, {1, 2, 3});
  List target;
  Fill(target, {4, 5, 6, 7});
  List& result = target = source;
  EXPECT_EQ(&result, &target);
  ExpectFilled(target, {1, 2, 3});
  ExpectFilled(source, {1, 2, 3});
  FillWithDistinctValues(source.m_arrMaterials[1], 5);
  ExpectFilled(target, {1, 2, 3});

  const List empty;
  target = empty;
  EXPECT_EQ(target.GetSize(), 0);
  target = source;
  source.RemoveAll();
  EXPECT_EQ(target.GetSize(), 3);
}

TEST(MaterialList, AListAssignedToItselfStaysAsItIs) {
  List list;
  Fill(list, {1, 2});
  const List& alias = list;
  list = alias;
  ExpectFilled(list, {1, 2});
}

// --- look-up by body ---

struct BodyRow {
  long bodyId;
  int secondaryId;
  int index;  ///< -1: none
};

// clang-format off
constexpr BodyRow kBodies[] = {
    // body  secondary  index
    {    7,        0,     1},
    {    7,       -1,     1},
    {    7,  INT_MIN,     1},
    {    7,        5,     1},
    {    7,        2,     3},
    {    7,        1,     6},
    {    7,        3,    -1},
    {    7,  INT_MAX,    -1},
    {    8,        0,     0},
    {    8,        5,     0},
    {    8,        2,     8},
    {    8,        1,    -1},
    {    9,        0,     5},
    {    9,        1,    -1},
    {   -1,        0,     2},
    {   -1,        5,     2},
    {    0,        0,     4},
    {    0,        2,     4},
    {    0,        1,    -1},
    {  -20,        0,     9},  // secondary ids of the records below 1 are found by no key
    {  -20,       -3,     9},
    {   70,        0,    -1},
    {   -7,        0,    -1},
    {  INT_MIN,    0,    10},
    {  INT_MAX,    0,    11},
    {  INT_MAX,    7,    11},
    {  INT_MAX - 1, 0,   -1},
};
// clang-format on

void FillBodies(List& list) {
  Add(list, 8, 5);
  Add(list, 7, 5);
  Add(list, -1, 5);
  Add(list, 7, 2);
  Add(list, 0, 2);
  Add(list, 9, 0);
  Add(list, 7, 1);
  Add(list, 7, 2);
  Add(list, 8, 2);
  Add(list, -20, -3);
  Add(list, INT_MIN, 0);
  Add(list, INT_MAX, 7);
  for (int index = 0; index < list.m_arrMaterials.GetSize(); ++index) {
    list.m_arrMaterials[index].m_nReserved = 100 + index;
  }
}

TEST(MaterialList, TheFirstRecordOfABodyIsFound) {
  List list;
  FillBodies(list);
  for (const BodyRow& row : kBodies) {
    SCOPED_TRACE("body " + std::to_string(row.bodyId) + ", secondary " +
                 std::to_string(row.secondaryId));
    CmqpMaterialData out;
    FillWithDistinctValues(out, 3);
    CmqpMaterialData before;
    FillWithDistinctValues(before, 3);
    int index = 77;
    const int found = list.GetByBodyID(row.bodyId, &out, &index, row.secondaryId);
    EXPECT_EQ(found, row.index < 0 ? 0 : 1);
    EXPECT_EQ(index, row.index < 0 ? 77 : row.index);
    EXPECT_EQ(Differences(out, row.index < 0 ? before : list.m_arrMaterials[row.index]), "");

    CmqpMaterialData other;
    FillWithDistinctValues(other, 3);
    EXPECT_EQ(list.GetByBodyID(row.bodyId, &other, nullptr, row.secondaryId), found);
    EXPECT_EQ(Differences(other, out), "");
  }
}

TEST(MaterialList, NothingIsFoundInAnEmptyList) {
  const List list;
  for (const long bodyId : {-1L, 0L, 1L}) {
    CmqpMaterialData out;
    FillWithDistinctValues(out, 3);
    CmqpMaterialData before;
    FillWithDistinctValues(before, 3);
    int index = 77;
    EXPECT_EQ(list.GetByBodyID(bodyId, &out, &index, 0), 0);
    EXPECT_EQ(list.GetByBodyID(bodyId, &out, nullptr, 1), 0);
    EXPECT_EQ(index, 77);
    EXPECT_EQ(Differences(out, before), "");
  }
}

TEST(MaterialList, ABodyIdIsNotCutToTheWidthOfARecords) {
  List list;
  Add(list, -1);
  Add(list, 0);
  CmqpMaterialData out;
  int index = 77;
  EXPECT_EQ(list.GetByBodyID(LONG_MAX, &out, &index, 0), 0);
  EXPECT_EQ(list.GetByBodyID(LONG_MIN, &out, &index, 0), 0);
  EXPECT_EQ(index, 77);
}

TEST(MaterialList, AFoundRecordIsAssignedWithWholeCurves) {
  List list;
  Fill(list, {1, 2});
  FillWithDistinctValues(list.m_arrMaterials[1], 4);
  CmqpMaterialData expected;
  FillWithDistinctValues(expected, 4);
  CmqpMaterialData out;
  EXPECT_EQ(list.GetByBodyID(expected.m_nBodyID, &out, nullptr, 0), 1);
  EXPECT_EQ(Differences(out, expected), "");
  FillWithDistinctValues(out, 5);
  EXPECT_EQ(Differences(list.m_arrMaterials[1], expected), "");
}

// --- distinct names ---

Indices Unique(const List& list) {
  Indices indices = {42, -1, 0, 7};
  const unsigned long long count = list.GetUniqueMaterialList(indices);
  EXPECT_EQ(count, indices.size());
  return indices;
}

struct NamesRow {
  std::vector<const mqChar*> names;
  Indices indices;
};

// clang-format off
const NamesRow kNames[] = {
    {{}, {0}},
    {{MQ_TEXT("")}, {0}},
    {{MQ_TEXT("Steel")}, {0}},
    {{MQ_TEXT("Steel"), MQ_TEXT("STEEL"), MQ_TEXT("Alloy"), MQ_TEXT("steel")}, {0, 2}},
    {{MQ_TEXT("Alloy"), MQ_TEXT("Steel"), MQ_TEXT("ALLOY"), MQ_TEXT("sTEEL"), MQ_TEXT("Brass")}, {0, 1, 4}},
    {{MQ_TEXT("c"), MQ_TEXT("b"), MQ_TEXT("a"), MQ_TEXT("B"), MQ_TEXT("A"), MQ_TEXT("C")}, {0, 1, 2}},
    {{MQ_TEXT(""), MQ_TEXT("a"), MQ_TEXT(""), MQ_TEXT(" "), MQ_TEXT("A")}, {0, 1, 3}},
    {{MQ_TEXT("Steel"), MQ_TEXT("Steel "), MQ_TEXT(" Steel"), MQ_TEXT("Steel 2"), MQ_TEXT("Stee")}, {0, 1, 2, 3, 4}},
    {{MQ_TEXT("\u00E4tzstahl"), MQ_TEXT("\u00C4TZSTAHL"), MQ_TEXT("atzstahl")}, {0, 2}},
    {{MQ_TEXT("\u00C4"), MQ_TEXT("\u00E4"), MQ_TEXT("A\u0308"), MQ_TEXT("a\u0308")}, {0, 2}},  // no normal form
    {{MQ_TEXT("\u0416"), MQ_TEXT("\u0436"), MQ_TEXT("\u03A3"), MQ_TEXT("\u03C3"), MQ_TEXT("\u03C2")}, {0, 2}},
    {{MQ_TEXT("i"), MQ_TEXT("I"), MQ_TEXT("\u0130"), MQ_TEXT("\u0131")}, {0, 2, 3}},
    {{MQ_TEXT("\u00DF"), MQ_TEXT("ss"), MQ_TEXT("\u1E9E"), MQ_TEXT("SS")}, {0, 1}},
    {{MQ_TEXT("\U00010400"), MQ_TEXT("\U00010428"), MQ_TEXT("\U00010400")}, {0, 1}},  // pairs are not folded
    {{MQ_TEXT("\u94A2"), MQ_TEXT("\u94A2"), MQ_TEXT("\u94DD")}, {0, 2}},
    {{MQ_TEXT("_"), MQ_TEXT("A"), MQ_TEXT("["), MQ_TEXT("{"), MQ_TEXT("@"), MQ_TEXT("`")}, {0, 1, 2, 3, 4, 5}},
};
// clang-format on

TEST(MaterialList, NamesCountOnceWhateverTheirCase) {
  for (const NamesRow& row : kNames) {
    List list;
    std::string names;
    for (const mqChar* name : row.names) {
      AddNamed(list, CString(name));
      names += Show(CString(name)) + ' ';
    }
    EXPECT_EQ(Unique(list), row.indices) << names;
    EXPECT_EQ(list.GetSize(), static_cast<__int64>(row.names.size()));
  }
}

TEST(MaterialList, NamesWithAZeroInsideAreComparedWhole) {
  List list;
  AddNamed(list, CString(MQ_TEXT("a\0b"), 3));
  AddNamed(list, CString(MQ_TEXT("A\0c"), 3));
  AddNamed(list, CString(MQ_TEXT("a"), 1));
  AddNamed(list, CString(MQ_TEXT("A\0B"), 3));
  EXPECT_EQ(Unique(list), (Indices{0, 1, 2}));
}

TEST(MaterialList, OnlyTheNameTellsMaterialsApart) {
  List list;
  Fill(list, {1, 2, 3});
  for (int index = 0; index < 3; ++index) {
    list.m_arrMaterials[index].m_strMaterialName = MQ_TEXT("Steel");
  }
  EXPECT_EQ(Unique(list), Indices{0});
}

TEST(MaterialList, AnEmptyListHasOneIndexAllTheSame) {
  List list;
  Indices indices = {5, 6, 7};
  EXPECT_EQ(list.GetUniqueMaterialList(indices), 1U);
  EXPECT_EQ(indices, Indices{0});
  EXPECT_EQ(list.GetUniqueMaterialList(indices), 1U);
  EXPECT_EQ(indices, Indices{0});
}

/// Every name against every one that is taken already.
Indices UniqueByComparison(const List& list) {
  Indices indices = {0};
  for (int index = 1; index < list.GetSize(); ++index) {
    const CString& name = list.m_arrMaterials[index].m_strMaterialName;
    bool known = false;
    for (const int taken : indices) {
      known = known || list.m_arrMaterials[taken].m_strMaterialName.CompareNoCase(name) == 0;
    }
    if (!known) {
      indices.push_back(index);
    }
  }
  return indices;
}

CString Numbered(const mqChar* format, int number) {
  CString name;
  name.Format(format, number);
  return name;
}

constexpr int kManyRecords = 10'000;

TEST(MaterialList, ManyRecordsOfFewNamesComeDownToTheFirstOfEach) {
  constexpr const mqChar* kForms[] = {MQ_TEXT("St\u00E4hle %d"), MQ_TEXT("st\u00C4HLE %d"),
                                      MQ_TEXT("Alloy %d"), MQ_TEXT("ALLOY %d")};
  std::mt19937 random(20250101);
  for (const unsigned distinct : {1U, 5U, 150U}) {
    List list;
    for (int index = 0; index < kManyRecords; ++index) {
      const unsigned draw = static_cast<unsigned>(random());
      AddNamed(list, Numbered(kForms[draw % 4], static_cast<int>(draw / 4 % distinct)));
    }
    const Indices expected = UniqueByComparison(list);
    EXPECT_EQ(expected.size(), 2 * distinct);
    EXPECT_EQ(Unique(list), expected);
  }
}

TEST(MaterialList, ManyRecordsOfDifferentNamesAreAllKept) {
  List list;
  Indices expected;
  for (int index = 0; index < kManyRecords; ++index) {
    AddNamed(list, Numbered(MQ_TEXT("Material %d"), index));
    expected.push_back(index);
  }
  EXPECT_EQ(Unique(list), expected);
  for (int index = 0; index < kManyRecords; ++index) {
    AddNamed(list, Numbered(MQ_TEXT("mATERIAL %d"), kManyRecords - 1 - index));
  }
  EXPECT_EQ(Unique(list), expected);
}

// --- design checks ---

TEST(MaterialList, AnEmptyListIsNotTheSameForDesignChecks) {
  const List list;
  EXPECT_EQ(list.IsSameValueForDesignCheck(), 0);
}

TEST(MaterialList, OneRecordIsAlwaysTheSame) {
  List list;
  Fill(list, {1});
  EXPECT_EQ(list.IsSameValueForDesignCheck(), 1);
  list.m_arrMaterials[0].m_dSIGYLD = kNaN;  // differs from itself, but is not compared
  EXPECT_EQ(list.IsSameValueForDesignCheck(), 1);
}

TEST(MaterialList, EveryRecordIsComparedWithTheFirst) {
  for (int size = 2; size <= 5; ++size) {
    for (int different = -1; different < size; ++different) {
      List list;
      for (int index = 0; index < size; ++index) {
        Add(list, index, 10 * index);
        list.m_arrMaterials[index].m_dSIGYC = index == different ? 2.0 : 1.0;
      }
      EXPECT_EQ(list.IsSameValueForDesignCheck(), different < 0 ? 1 : 0)
          << size << " records, different: " << different;
    }
  }
}

TEST(MaterialList, TwoPairsOfRecordsAreNotTheSame) {
  List list;
  for (const double value : {1.0, 1.0, 2.0, 2.0}) {
    CmqpMaterialData material;
    material.m_dSIGXY = value;
    list.Add(material);
  }
  EXPECT_EQ(list.IsSameValueForDesignCheck(), 0);
}

TEST(MaterialList, RecordsWithAStrengthThatIsNoNumberDiffer) {
  List list;
  CmqpMaterialData material;
  material.m_dSIGXC = kNaN;
  list.Add(material);
  list.Add(material);
  EXPECT_EQ(list.IsSameValueForDesignCheck(), 0);
}

TEST(MaterialList, TheShearFlagMakesNoDifference) {
  List list;
  CmqpMaterialData material;
  list.Add(material);
  material.m_bHasSIGXY = 1;
  list.Add(material);
  EXPECT_EQ(list.IsSameValueForDesignCheck(), 1);
}

// --- factor of safety over temperature ---

constexpr unsigned kNone = 0;
constexpr unsigned kY = 1U << kYield;
constexpr unsigned kCT = 1U << kCompressive | 1U << kTensile;
constexpr unsigned kYCT = kY | kCT;

constexpr int kCriteria[] = {-1, 0, 1, 2, 3, 4, 5, INT_MIN, INT_MAX};

struct CriterionRow {
  int first;
  int second;
  unsigned counting[std::size(kCriteria)];  ///< the strengths that count, a criterion each
};

// clang-format off
constexpr CriterionRow kOptions[] = {
    // first  second   criterion -1      0      1    2      3      4      5   min    max
    {      0,      0, {         kY,    kY,    kY, kCT,    kY,  kYCT,    kY,    kY,    kY}},
    {      0,      1, {         kY,    kY,    kY, kCT,    kY,  kYCT,    kY,    kY,    kY}},
    {      0,      2, {         kY,    kY,    kY, kCT,    kY,  kYCT,    kY,    kY,    kY}},
    {      1,      0, {         kY,    kY,    kY, kCT,    kY,  kYCT,    kY,    kY,    kY}},
    {      1,      1, {         kY,    kY,    kY, kCT,    kY,  kYCT,    kY,    kY,    kY}},
    {      1,      2, {         kY,    kY,    kY, kCT,    kY,  kYCT,    kY,    kY,    kY}},
    {      3,      2, {         kY,    kY,    kY, kCT,    kY,  kYCT,    kY,    kY,    kY}},
    {      3,      3, {         kY,    kY,    kY, kCT,    kY,  kYCT,    kY,    kY,    kY}},
    {     -2,      2, {         kY,    kY,    kY, kCT,    kY,  kYCT,    kY,    kY,    kY}},
    {INT_MIN, INT_MAX, {        kY,    kY,    kY, kCT,    kY,  kYCT,    kY,    kY,    kY}},
    {      2,      0, {      kNone, kNone, kNone, kCT, kNone,  kYCT, kNone, kNone, kNone}},
    {      2,      1, {      kNone, kNone, kNone, kCT, kNone,  kYCT, kNone, kNone, kNone}},
    {      2,      3, {      kNone, kNone, kNone, kCT, kNone,  kYCT, kNone, kNone, kNone}},
    {      2,     -2, {      kNone, kNone, kNone, kCT, kNone,  kYCT, kNone, kNone, kNone}},
    {      2,      2, {      kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone}},
};
// clang-format on

void AddVarying(List& list, int bodyId, int secondaryId, unsigned varying) {
  CmqpMaterialData material;
  material.m_nBodyID = bodyId;
  material.m_nSecondaryID = secondaryId;
  for (int place = 0; place < kStrengthTotal; ++place) {
    if ((varying >> place & 1U) != 0) {
      LetVary(material, kStrengths[place]);
    }
  }
  list.Add(material);
}

/// Where the record with the strengths that vary stands, and the plots that see it.
struct Scene {
  const char* name;
  int bodies[3];
  int secondaryIds[3];
  int varying;  ///< the place of the record
  int plotBody;
  bool seen;
};

// clang-format off
constexpr Scene kScenes[] = {
    // name                            bodies        secondary   varying  plot of  seen
    {"all bodies, first record",       {6, 7, 8},    {0, 0, 0},  0,       0,       true},
    {"all bodies, middle record",      {6, 7, 8},    {0, 0, 0},  1,       0,       true},
    {"all bodies, last record",        {6, 7, 8},    {0, 0, 0},  2,       0,       true},
    {"body -1 is all bodies",          {6, 7, 8},    {0, 0, 0},  2,      -1,       true},
    {"any negative one is all bodies", {6, 7, 8},    {0, 0, 0},  1, INT_MIN,       true},
    {"that body",                      {6, 7, 8},    {0, 0, 0},  1,       7,       true},
    {"body 1",                         {6, 1, 8},    {0, 0, 0},  1,       1,       true},
    {"the largest body",               {6, 7, INT_MAX}, {0, 0, 0}, 2, INT_MAX,     true},
    {"that body, any secondary id",    {6, 7, 8},    {1, 5, 1},  1,       7,       true},
    {"another body",                   {6, 7, 8},    {0, 0, 0},  1,       6,       false},
    {"another body behind",            {6, 7, 8},    {0, 0, 0},  1,       8,       false},
    {"an unknown body",                {6, 7, 8},    {0, 0, 0},  1,       9,       false},
    {"the first of a body twice",      {6, 7, 7},    {0, 0, 0},  1,       7,       true},
    {"the second of a body twice",     {6, 7, 7},    {0, 0, 0},  2,       7,       false},
    {"the second, with secondary 0",   {6, 7, 7},    {5, 5, 0},  2,       7,       false},
    {"the secondary id is no body",    {6, 8, 9},    {7, 7, 7},  1,       7,       false},
};
// clang-format on

TEST(MaterialList, TheCriterionAndItsOptionsSayWhichStrengthsCount) {
  for (const Scene& scene : kScenes) {
    for (unsigned varying = 0; varying < 64; ++varying) {
      List list;
      for (int place = 0; place < 3; ++place) {
        AddVarying(list, scene.bodies[place], scene.secondaryIds[place],
                   place == scene.varying ? varying : kNone);
      }
      CmqPostDataParam plot;
      plot.m_nResultType = 4;
      plot.m_nBodyId = scene.plotBody;
      for (const CriterionRow& row : kOptions) {
        for (std::size_t criterion = 0; criterion < std::size(kCriteria); ++criterion) {
          plot.m_nFailureCriterion = kCriteria[criterion];
          plot.m_nCriterionOptions[0] = row.first;
          plot.m_nCriterionOptions[1] = row.second;
          const int expected = scene.seen && (varying & row.counting[criterion]) != 0 ? 1 : 0;
          EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), expected)
              << scene.name << ", criterion " << kCriteria[criterion] << ", options " << row.first
              << " and " << row.second << ", varying strengths " << varying;
        }
      }
    }
  }
}

TEST(MaterialList, RecordsTogetherAreAsGoodAsOne) {
  List list;
  AddVarying(list, 1, 0, kNone);
  AddVarying(list, 2, 0, 1U << kSecondTensile | 1U << kShear);
  CmqPostDataParam plot;
  plot.m_nResultType = 4;
  plot.m_nFailureCriterion = 4;
  EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), 0);
  AddVarying(list, 3, 0, kY);
  EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), 1);
  plot.m_nFailureCriterion = 2;
  EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), 0);
  AddVarying(list, 4, 0, 1U << kTensile);
  EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), 1);
}

TEST(MaterialList, NoPlotAndNoRecordsDependOnNothing) {
  List list;
  CmqPostDataParam plot;
  plot.m_nResultType = 4;
  for (const int bodyId : {-1, 0, 1}) {
    plot.m_nBodyId = bodyId;
    EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), 0) << bodyId;
  }
  EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(nullptr), 0);
  AddVarying(list, 1, 0, 63);
  EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(nullptr), 0);
}

TEST(MaterialList, OnlyAFactorOfSafetyDependsOnTemperature) {
  List list;
  AddVarying(list, 1, 0, 63);
  CmqPostDataParam plot;
  EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), 0) << "a new plot";
  for (const int criterion : {0, 2, 4}) {
    plot.m_nFailureCriterion = criterion;
    for (int resultType = -5; resultType <= 70; ++resultType) {
      plot.m_nResultType = resultType;
      EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), resultType == 4 ? 1 : 0)
          << "result type " << resultType;
    }
  }
  for (const int resultType : {INT_MIN, INT_MAX}) {
    plot.m_nResultType = resultType;
    EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), 0) << resultType;
  }
}

TEST(MaterialList, TheRestOfThePlotMakesNoDifference) {
  List list;
  AddVarying(list, 1, 0, kY);
  for (int analysisType = -1; analysisType <= 12; ++analysisType) {
    CmqPostDataParam plot;
    plot.m_nResultType = 4;
    plot.m_nAnalysisType = analysisType;
    plot.m_nComponent = 2;
    plot.m_nVariant = 2;
    plot.m_nHost14 = 2;
    EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), 1) << analysisType;
    plot.m_nFailureCriterion = 2;
    EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), 0) << analysisType;
  }
}

TEST(MaterialList, AStrengthThatIsUndefinedOrWithoutPointsDoesNotVary) {
  CmqPostDataParam plot;
  plot.m_nResultType = 4;
  CmqpMaterialData material;
  LetVary(material, kStrengths[kYield]);
  material.m_bHasSIGYLD = 0;
  List list;
  list.Add(material);
  EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), 0);
  list.m_arrMaterials[0].m_bHasSIGYLD = 1;
  EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), 1);
  list.m_arrMaterials[0].m_SIGYLDTempCurve.m_nPoints = 0;
  EXPECT_EQ(list.IsTemperatureDependentFOSCriterion(&plot), 0);
}

// --- a long run against a plain model ---

struct ModelRecord {
  int id = 0;
  int bodyId = -1;
  int secondaryId = 0;
  int name = 0;   ///< place in `kModelNames`
  int value = 0;  ///< 2: not a number
  unsigned varying = 0;
};

struct ModelName {
  const mqChar* text;
  int material;
};

constexpr ModelName kModelNames[] = {
    {MQ_TEXT("Steel"), 0},  {MQ_TEXT("STEEL"), 0},       {MQ_TEXT("st\u00E4hle"), 1},
    {MQ_TEXT("Alloy"), 2},  {MQ_TEXT("ST\u00C4hle"), 1}, {MQ_TEXT(""), 3},
    {MQ_TEXT("Steel2"), 4}, {MQ_TEXT("aLLOY"), 2},
};

using ModelList = std::vector<ModelRecord>;

/// A list and what it must hold. An operation goes to both and tells whether they agree.
class ListAndModel {
 public:
  bool Add(const ModelRecord& record) {
    CmqpMaterialData material;
    material.m_nReserved = record.id;
    material.m_nBodyID = record.bodyId;
    material.m_nSecondaryID = record.secondaryId;
    material.m_strMaterialName = kModelNames[record.name].text;
    material.m_dSIGYT = record.value == 2 ? kNaN : record.value;
    for (int place = 0; place < kStrengthTotal; ++place) {
      material.*kStrengths[place].has = 1;  // of which design checks take notice
      if ((record.varying >> place & 1U) != 0) {
        LetVary(material, kStrengths[place]);
      }
    }
    m_model.push_back(record);
    return m_list.Add(material) == static_cast<__int64>(m_model.size()) - 1;
  }

  void RemoveAll() {
    m_list.RemoveAll();
    m_model.clear();
  }

  [[nodiscard]] bool GetSize() const {
    return m_list.GetSize() == static_cast<__int64>(m_model.size());
  }

  [[nodiscard]] bool GetAt(int index) const {
    const CmqpMaterialData got = m_list.GetAt(index);
    const bool inside = index >= 0 && index < static_cast<int>(m_model.size());
    return IsRecord(got, inside ? m_model[static_cast<std::size_t>(index)] : ModelRecord(), inside);
  }

  [[nodiscard]] bool GetByBodyID(long bodyId, int secondaryId) const {
    CmqpMaterialData out;
    int index = -77;
    const int found = m_list.GetByBodyID(bodyId, &out, &index, secondaryId);
    for (std::size_t place = 0; place < m_model.size(); ++place) {
      const ModelRecord& record = m_model[place];
      if (record.bodyId == bodyId && (secondaryId < 1 || record.secondaryId == secondaryId)) {
        return found == 1 && index == static_cast<int>(place) && IsRecord(out, record, true);
      }
    }
    return found == 0 && index == -77 && IsRecord(out, ModelRecord(), false);
  }

  [[nodiscard]] bool GetUniqueMaterialList() const {
    Indices expected = {0};
    for (std::size_t place = 1; place < m_model.size(); ++place) {
      bool known = false;
      for (const int taken : expected) {
        known = known || MaterialOf(static_cast<std::size_t>(taken)) == MaterialOf(place);
      }
      if (!known) {
        expected.push_back(static_cast<int>(place));
      }
    }
    Indices indices = {3, 4};
    return m_list.GetUniqueMaterialList(indices) == expected.size() && indices == expected;
  }

  [[nodiscard]] bool IsSameValueForDesignCheck() const {
    bool same = !m_model.empty();
    for (std::size_t place = 1; place < m_model.size(); ++place) {
      same = same && m_model[0].value != 2 && m_model[0].value == m_model[place].value;
    }
    return m_list.IsSameValueForDesignCheck() == (same ? 1 : 0);
  }

  [[nodiscard]] bool IsTemperatureDependentFOSCriterion(const CmqPostDataParam& plot) const {
    return m_list.IsTemperatureDependentFOSCriterion(&plot) == (Varies(plot) ? 1 : 0);
  }

  bool CopyFrom(const ListAndModel& other) {
    const CmqpMaterialDataList copy(other.m_list);
    m_list = copy;
    m_model = ModelList(other.m_model);
    return GetSize();
  }

  [[nodiscard]] int Size() const { return static_cast<int>(m_model.size()); }

 private:
  static bool IsRecord(const CmqpMaterialData& got, const ModelRecord& record, bool inside) {
    const bool isNaN = !(got.m_dSIGYT == got.m_dSIGYT);
    bool same = got.m_nReserved == record.id && got.m_nBodyID == record.bodyId &&
                got.m_nSecondaryID == record.secondaryId &&
                got.m_strMaterialName == (inside ? kModelNames[record.name].text : MQ_TEXT(""));
    same = same && (!inside             ? got.m_dSIGYT == -1.0
                    : record.value == 2 ? isNaN
                                        : got.m_dSIGYT == record.value);
    for (int place = 0; place < kStrengthTotal; ++place) {
      const bool varies = (record.varying >> place & 1U) != 0;
      same = same && (got.*kStrengths[place].curve).m_vecX.size() == (varies ? 1U : 0U) &&
             (got.*kStrengths[place].isTempDepend)() == (varies ? 1 : 0);
    }
    return same;
  }

  [[nodiscard]] int MaterialOf(std::size_t place) const {
    return kModelNames[m_model[place].name].material;
  }

  [[nodiscard]] bool Varies(const CmqPostDataParam& plot) const {
    const int* options = plot.m_nCriterionOptions;
    if (plot.m_nResultType != 4 || (options[0] == 2 && options[1] == 2)) {
      return false;
    }
    unsigned counting = options[0] == 2 ? kNone : kY;
    if (plot.m_nFailureCriterion == 4) {
      counting = kYCT;
    } else if (plot.m_nFailureCriterion == 2) {
      counting = kCT;
    }
    for (const ModelRecord& record : m_model) {
      if (plot.m_nBodyId <= 0 && (record.varying & counting) != 0) {
        return true;
      }
      if (plot.m_nBodyId > 0 && record.bodyId == plot.m_nBodyId) {
        return (record.varying & counting) != 0;
      }
    }
    return false;
  }

  CmqpMaterialDataList m_list;
  ModelList m_model;
};

class Draw {
 public:
  explicit Draw(unsigned seed) : m_random(seed) {}
  /// A number from `first` to `last`.
  int operator()(int first, int last) {
    return first + static_cast<int>(m_random() % static_cast<unsigned>(last - first + 1));
  }

 private:
  std::mt19937 m_random;
};

/// One random operation; false when list and model disagree.
bool Step(std::array<ListAndModel, 3>& lists, CmqPostDataParam& plot, int id, Draw& draw) {
  const auto any = [&]() -> ListAndModel& { return lists[static_cast<std::size_t>(draw(0, 2))]; };
  ListAndModel& list = any();
  const int operation = draw(0, 99);
  if (operation < 20) {
    const bool varying = draw(0, 3) == 0;
    return list.Add({id, draw(-1, 3), draw(-1, 2), draw(0, 7), draw(0, 19) == 0 ? draw(1, 2) : 0,
                     varying ? 1U << draw(0, 5) : 0U});
  }
  if (operation < 23 || list.Size() > 20) {
    list.RemoveAll();
    return list.GetSize();
  }
  if (operation < 24) {
    return list.CopyFrom(any());
  }
  if (operation < 28) {
    return list.GetSize();
  }
  if (operation < 42) {
    return list.GetAt(draw(-2, list.Size() + 1));
  }
  if (operation < 58) {
    return list.GetByBodyID(draw(-2, 4), draw(-2, 3));
  }
  if (operation < 65) {
    return list.GetUniqueMaterialList();
  }
  if (operation < 75) {
    return list.IsSameValueForDesignCheck();
  }
  plot.m_nResultType = draw(0, 9) == 0 ? draw(-1, 60) : 4;
  plot.m_nFailureCriterion = draw(-1, 5);
  plot.m_nCriterionOptions[0] = draw(0, 3);
  plot.m_nCriterionOptions[1] = draw(0, 3);
  plot.m_nBodyId = draw(-1, 4);
  return list.IsTemperatureDependentFOSCriterion(plot);
}

TEST(MaterialList, AMillionRandomOperationsGoAsInAPlainModel) {
  constexpr unsigned kSeed = 20250102;
  constexpr int kOperations = 1'000'000;
  Draw draw(kSeed);
  std::array<ListAndModel, 3> lists;
  CmqPostDataParam plot;
  for (int operation = 0; operation < kOperations; ++operation) {
    ASSERT_TRUE(Step(lists, plot, operation, draw))
        << "seed " << kSeed << ", operation " << operation;
  }
}

}  // namespace
}  // namespace mqp::test
