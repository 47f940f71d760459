#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include <mqPostCommon/mqPostCommon.h>

#include "catalogue.h"
#include "random.h"
#include "tally.h"
#include "texts.h"

namespace reference {
namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

std::string Describe(const Question& q) {
  return "analysis " + std::to_string(q.analysis) + ", result " + std::to_string(q.result) +
         ", component " + std::to_string(q.component) + ", mesh " + std::to_string(q.mesh) +
         ", option " + std::to_string(q.option) + ", second option " +
         std::to_string(q.moreStress) + ", mesh flags " + std::to_string(q.meshFlags) +
         ", dynamic " + std::to_string(q.dynamicOption) + " " + std::to_string(q.dynamicChoice) +
         ", flag " + std::to_string(ActualFrequencyFlag());
}

Numbers AllAnalyses() {
  Numbers codes = Parse("0-13");
  codes.insert(codes.end(), {-1, -2, kLeast, kMost});
  return codes;
}

Numbers AllResults() {
  Numbers codes = Parse("0-75");
  codes.insert(codes.end(), {-1, -2, kLeast, kMost});
  return codes;
}

Numbers AllComponents() {
  Numbers codes = Parse("0-30 99-101");
  codes.insert(codes.end(), {-1, -2, kLeast, kMost});
  return codes;
}

/// Calls `act` for every analysis, result and component; returns how many there were.
template <class Act>
long ForEachComponent(Act act) {
  long cases = 0;
  for (const int analysis : AllAnalyses()) {
    for (const int result : AllResults()) {
      for (const int component : AllComponents()) {
        act(Question{.analysis = analysis, .result = result, .component = component});
        ++cases;
      }
    }
  }
  return cases;
}

class CatalogueReference : public testing::Test {
 protected:
  void SetUp() override {
    UseTextsById();
    SetActualFrequencyFlag(0);
    ResetTally();
    ResetCountTables();
    ResetNameTables();
    ResetUnitTables();
    ResetLookupTables();
  }
  void TearDown() override { SetActualFrequencyFlag(0); }
};

TEST_F(CatalogueReference, CountsAndDefaultsOfEveryCombination) {
  long cases = 0;
  for (const int analysis : AllAnalyses()) {
    for (const int result : AllResults()) {
      for (int options = 0; options < 6 * 2 * 2 * 8 * 3 * 2; ++options) {
        const Question q{.analysis = analysis,
                         .result = result,
                         .mesh = options % 6,
                         .option = options / 6 % 2 * 3,
                         .moreStress = options / 12 % 2 * -1,
                         .meshFlags = options / 24 % 8,
                         .dynamicOption = options / 192 % 3,
                         .dynamicChoice = options / 576 * 7};
        ASSERT_EQ(ComponentTotal(q),
                  vekPostCommonGetComponentTotal(q.analysis, q.result, q.option, q.mesh, options,
                                                 q.moreStress, q.meshFlags, q.dynamicOption,
                                                 q.dynamicChoice))
            << Describe(q);
        ASSERT_EQ(ComponentDefault(q), vekPostCommonGetComponentDefault(
                                           q.analysis, q.result, options, q.mesh, q.dynamicOption))
            << Describe(q);
        ++cases;
      }
    }
  }
  CheckTotalTables();
  RecordCases(cases);
}

TEST_F(CatalogueReference, DataTypesBoundsReferencesAndDirectionsOfEveryComponent) {
  long cases = 0;
  for (const int option : {0, 1, -7}) {
    for (const int mesh : {0, 2, 4}) {
      cases += ForEachComponent([option, mesh](Question q) {
        q.option = option;
        q.mesh = mesh;
        const DataType expected = ComponentDataType(q);
        Numbers members = {-5, -6, -7};
        const int type = vekPostCommonGetComponentDataType(q.analysis, q.result, q.component,
                                                           members.data(), q.option);
        ASSERT_EQ(expected.type, type) << Describe(q);
        ASSERT_EQ(expected.members.empty() ? Numbers({-5, -6, -7}) : expected.members, members)
            << Describe(q);
        ASSERT_EQ(EnvelopeBounds(q),
                  vekPostCommonGetEnvelopBoundTotal(q.analysis, q.result, q.component, q.option))
            << Describe(q);
        ASSERT_EQ(IsReferenceAvailable(q),
                  vekPostCommonIsReferenceAvailable(q.analysis, q.result, q.component, q.mesh))
            << Describe(q);
        std::array<float, 4> direction = {9, 9, 9, 9};
        vekPostCommonGetComponentVectorDir(q.analysis, q.result, q.component, q.option,
                                           direction.data());
        ASSERT_EQ(VectorDirection(q), direction) << Describe(q);
      });
    }
  }
  for (const int result : AllResults()) {
    CArray<int, int> list;
    list.Add(77);
    ASSERT_EQ(1, vekPostCommonGetAvailableAnalysisType(result, 3, list));
    const Numbers expected = AvailableAnalyses(result);
    ASSERT_EQ(expected, Numbers(list.GetData(), list.GetData() + list.GetSize())) << result;
    ASSERT_EQ(expected.empty() ? -1 : expected.front(),
              vekPostCommonGetFirstAvailableAnalysisType(result, 3))
        << result;
  }
  CheckComponentTables();
  RecordCases(cases);
}

TEST_F(CatalogueReference, UnitsOfEveryComponent) {
  long cases = 0;
  for (const int flag : {0, 1, 2, -1}) {
    SetActualFrequencyFlag(flag);
    for (const int option : {0, 1, 2}) {
      for (const int optionFlag : {0, 1, -3}) {
        cases += ForEachComponent([option, optionFlag](Question q) {
          q.option = option;
          q.moreStress = optionFlag;
          const int type = UnitType(q.analysis, q.result, q.component, option, optionFlag);
          ASSERT_EQ(type,
                    vekPostCommonGetUnitType(q.analysis, q.result, q.component, option, optionFlag))
              << Describe(q);
          const int system = q.component % 4 - 1;
          ASSERT_EQ(DefaultUnit(system, type),
                    vekPostCommonGetComponentUnitsBasedOnSystemUnit(
                        system, q.analysis, q.result, q.component, option, optionFlag))
              << "system " << system << ", " << Describe(q);
        });
      }
    }
  }
  CheckUnitTables();
  RecordCases(cases);
}

TEST_F(CatalogueReference, CountsAndNamesOfEveryUnit) {
  Numbers types = Parse("0-60 9998-10000");
  types.insert(types.end(), {-1, -2, kLeast, kMost});
  Numbers indices = Parse("0-20");
  indices.insert(indices.end(), {-1, kLeast, kMost});
  long cases = 0;
  for (const int type : types) {
    ASSERT_EQ(UnitTotal(type), vekPostCommonGetUnitTotal(type)) << type;
    for (const int index : indices) {
      ASSERT_EQ(Printable(UnitName(type, index)),
                Printable(TextOf(vekPostCommonGetUnitName(type, index))))
          << "unit type " << type << ", index " << index;
      ++cases;
    }
  }
  RecordCases(cases);
}

void CompareNames(const Question& q, int passOn, int alternate, int variant) {
  const auto same = [&q](const char* which, const Text& expected, const CString& got) {
    ASSERT_TRUE(expected == TextOf(got))
        << which << " name: expected " << Printable(expected) << ", got " << Printable(TextOf(got))
        << " for " << Describe(q);
  };
  same("full", FullName(q.analysis, q.result, q.component, q.mesh, alternate),
       vekPostCommonGetComponentName(q.analysis, q.result, passOn, q.component, q.mesh, alternate));
  same(
      "bar", BarName(q.analysis, q.result, q.component, q.mesh, variant),
      vekPostCommonGetComponentNameBar(q.analysis, q.result, passOn, q.component, q.mesh, variant));
  same("short", BarName(q.analysis, q.result, q.component, 0, 0),
       vekPostCommonGetComponentNameShort(q.analysis, q.result, passOn, q.component));
  same("brief", BriefName(q.analysis, q.result, q.component),
       vekPostCommonGetComponentNameBrief(q.analysis, q.result, passOn, q.component));
  same("result", ResultName(q.result), vekPostCommonGetResultName(q.result));
  same("report", ReportTitle(q.analysis, q.result, alternate, variant),
       vekPostCommonGetGraphNameForReport(q.analysis, q.result, alternate, variant));
}

TEST_F(CatalogueReference, NamesOfEveryComponent) {
  long cases = 0;
  for (const int flag : {0, 1, 2, -1}) {
    SetActualFrequencyFlag(flag);
    cases += ForEachComponent([flag](Question q) {
      for (const int mesh : {0, 4}) {
        q.mesh = mesh;
        CompareNames(q, flag, mesh - flag, q.result % 3);
      }
    });
    if (HasFatalFailure()) {
      return;
    }
  }
  CheckNameTables();
  CheckTally("full", {"full: component 100"});
  CheckTally("brief",
             {"brief: real amplitude", "brief: normalised amplitude", "brief: component 100"});
  CheckTally("title", {"title: chart variant", "title: chart", "title: 63", "title: stepped",
                       "title: reduced", "title: dynamic option", "title: dynamic", "title: none"});
  RecordCases(cases);
}

/// A code that the catalogue knows, most of the time.
int AnyAnalysis(Random& random) {
  return random.Once(20) ? random.Int() : random.Of({0, 1, 2, 3, 5, 6, 7, 8, 10});
}

int AnyResult(Random& random) {
  return random.Once(3) ? random.Between(-1, 72)
                        : random.Of({0, 1, 2, 3, 4, 5, 19, 20, 22, 52, 53, 54, 57, 59});
}

TEST_F(CatalogueReference, NamesFromTextsThatHoldColonsAnywhereOrNothing) {
  Random random(1305);
  const int tables = CountCases(12);
  long cases = 0;
  for (int table = 0; table < tables; ++table) {
    UseCollidingTexts(random);
    for (int repeat = 0; repeat < 2500 && !HasFatalFailure(); ++repeat, ++cases) {
      SetActualFrequencyFlag(random.Below(2));
      CompareNames({.analysis = AnyAnalysis(random),
                    .result = AnyResult(random),
                    .component = random.Once(10) ? 100 : random.Between(-1, 16),
                    .mesh = random.Below(6)},
                   random.Int(), random.Below(3), random.Below(3));
    }
  }
  CheckTally("bar", {"bar: never falls back", "bar: of its own", "bar: no colon",
                     "bar: colon first", "bar: colon inside"});
  RecordCases(cases);
}

/// A name as users and columns have it: a text of the table, part of one, or anything.
Text AnyName(Random& random) {
  static const Numbers kIds = Parse(
      "54578-54619 50341 50345 50264 54555 54556 54405-54419 55085 54718 56061 54494 54495 54745-"
      "54749 52020 54009-54014 54865-54868 55269-55271 50177-50179 54763-54766");
  const Text text = Load(random.From(kIds));
  switch (random.Below(8)) {
    case 0: return text.substr(0, static_cast<std::size_t>(random.Below(8)));
    case 1: return MQ_TEXT(" \t") + text + MQ_TEXT("  ");
    case 2: return RandomText(random, 4);
    case 3:
      return random.Of({Text(), Text(MQ_TEXT("  ")), Text(MQ_TEXT(": a")), Text(MQ_TEXT("S"))});
    default: return text;
  }
}

TEST_F(CatalogueReference, ComponentsByNameWithTextsOfTheirOwnAndWithTextsThatCollide) {
  Random random(1404);
  const int tables = CountCases(12);
  long cases = 0;
  for (int table = 0; table < tables; ++table) {
    if (table % 4 == 0) {
      UseTextsById();
    } else {
      UseCollidingTexts(random);
    }
    for (int repeat = 0; repeat < 2500; ++repeat, ++cases) {
      const int analysis = AnyAnalysis(random);
      const int result = AnyResult(random);
      const int variant = random.Below(3) - 1;
      const int exact = random.Below(3) - 1;
      const Text name = AnyName(random);
      ASSERT_EQ(
          ComponentByName(analysis, result, variant, name, exact),
          vekPostCommonGetComponentIndexByName(analysis, result, variant, StringOf(name), exact))
          << "analysis " << analysis << ", result " << result << ", variant " << variant
          << ", exact " << exact << ", name " << Printable(name);
      ASSERT_EQ(ResultTypeByName(name), vekPostCommonGetResultTypeByComponentName(StringOf(name)))
          << Printable(name);
    }
  }
  CheckLookupTables();
  CheckTally("lookup", {"lookup: empty name", "lookup: no list", "lookup: no name",
                        "lookup: empty key", "lookup: first name", "lookup: later name"});
  CheckTally("key", {"key: cut at a colon", "key: cut at a blank"});
  CheckTally("type", {"type: 1", "type: 2", "type: 3", "type: 5", "type: 12", "type: 19",
                      "type: 20", "type: none"});
  RecordCases(cases);
}

}  // namespace
}  // namespace reference
