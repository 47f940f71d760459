#include <array>
#include <climits>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/materials/property_tables.h>
#include <mqPostCommon/platform/text.h>

namespace mqp::test {
namespace {

using Text = std::basic_string<mqChar>;

/// Every text of these tables is ASCII.
Text Wide(std::string_view ascii) {
  Text text;
  for (const char letter : ascii) {
    text += static_cast<mqChar>(letter);
  }
  return text;
}

std::string Narrow(mqTextView wide) {
  std::string text;
  for (const mqChar unit : wide) {
    text += unit > 0 && unit < 0x7F ? static_cast<char>(unit) : '?';
  }
  return text;
}

// clang-format off
constexpr std::string_view kKeywords[] = {
    "EX", "EY", "EZ", "NUXY", "NUYZ", "NUXZ", "GXY", "GYZ", "GXZ", "DENS",
    "SIGXT", "SIGXC", "SIGYLD", "ALPX", "ALPY", "ALPZ", "KX", "KY", "KZ", "C",
    "MC11", "MC12", "MC13", "MC14", "MC15", "MC16", "MC22", "MC23", "MC24", "MC25",
    "MC26", "MC33", "MC34", "MC35", "MC36", "MC44", "MC45", "MC46", "MC55", "MC56",
    "MC66", "ETAN", "COHESN", "FRCANG", "MOONEY_A", "MOONEY_B", "MOONEY_C", "MOONEY_D", "MOONEY_E", "MOONEY_F",
    "ALPH1", "ALPH2", "ALPH3", "ALPH4", "MU1", "MU2", "MU3", "MU4", "G1", "G2",
    "G3", "G4", "G5", "G6", "G7", "G8", "TAUG1", "TAUG2", "TAUG3", "TAUG4",
    "TAUG5", "TAUG6", "TAUG7", "TAUG8", "K1", "K2", "K3", "K4", "K5", "K6",
    "K7", "K8", "TAUK1", "TAUK2", "TAUK3", "TAUK4", "TAUK5", "TAUK6", "TAUK7", "TAUK8",
    "REFTEMP", "VC1", "VC2", "CREEPX", "CREEPC", "CREEPCONST1", "CREEPCONST2", "CREEPCONST3", "CREEPCONST4", "CREEPCONST5",
    "CREEPCONST6", "CREEPCONST7", "CREEPTC", "RK", "SIGT_S1", "SIGT_F1", "SIGT_S2", "SIGT_F2", "SIGC_S1", "SIGC_F1",
    "SIGC_S2", "SIGC_F2", "EUL", "BETAT_1", "BETAT_2", "BETAC_1", "BETAC_2", "MDAMP", "SIGYT", "SIGYC",
    "SIGXY",
};
// clang-format on
constexpr int kKeywordTotal = 121;
static_assert(std::size(kKeywords) == kKeywordTotal);

/// Properties with the same units.
struct UnitGroup {
  std::vector<std::string_view> keywords;
  std::array<std::string_view, 6> units;
};

// clang-format off
const UnitGroup kUnitGroups[] = {
    {{"EX", "EY", "EZ", "GXY", "GYZ", "GXZ", "SIGXT", "SIGXC", "SIGYLD", "ETAN", "COHESN",
      "MOONEY_A", "MOONEY_B", "MOONEY_C", "MOONEY_D", "MOONEY_E", "MOONEY_F", "MU1", "MU2", "MU3", "MU4",
      "SIGT_S1", "SIGT_F1", "SIGT_S2", "SIGT_F2", "SIGC_S1", "SIGC_F1", "SIGC_S2", "SIGC_F2",
      "SIGYT", "SIGYC", "SIGXY"},
     {"N/m^2", "psi", "kgf/cm^2", "N/mm^2", "Future", "Future"}},
    {{"DENS"},
     {"kg/m^3", "lb/in^3", "kg/cm^3", "g/cm^3", "Future", "Future"}},
    {{"ALPX", "ALPY", "ALPZ"},
     {"/Kelvin", "/Fahrenheit", "/Centigrade", "/Kelvin", "Future", "Future"}},
    {{"KX", "KY", "KZ"},
     {"W/(m.K)", "BTU/(in.s.F)", "Cal/(cm.s.C)", "W/(cm.K)", "Future", "Future"}},
    {{"C"},
     {"J/(kg.K)", "Btu/(lb.F)", "Cal/(kg.C)", "Cal/(kg.C)", "Future", "Future"}},
    {{"REFTEMP"},
     {"Kelvin", "Fahrenheit", "Centigrade", "Kelvin", "Future", "Future"}},
    {{"CREEPCONST1"},
     {"(N/m^2)^-CREEPCONST2", "(psi)^-CREEPCONST2", "(kgf/cm^2)^-CREEPCONST2", "(N/mm^2)^-CREEPCONST2", "NA", "NA"}},
    {{"CREEPTC"},
     {"SI", "IPS", "MKS", "Kelvin", "Future", "Future"}},
    {{"FRCANG"},
     {"Deg", "Deg", "Deg", "Deg", "Deg", "Deg"}},
    {{"TAUG1", "TAUK1"},
     {"sec", "sec", "sec", "sec", "sec", "sec"}},
    {{"NUXY", "NUYZ", "NUXZ",
      "MC11", "MC12", "MC13", "MC14", "MC15", "MC16", "MC22", "MC23", "MC24", "MC25", "MC26",
      "MC33", "MC34", "MC35", "MC36", "MC44", "MC45", "MC46", "MC55", "MC56", "MC66",
      "ALPH1", "ALPH2", "ALPH3", "ALPH4", "G1", "G2", "G3", "G4", "G5", "G6", "G7", "G8",
      "TAUG2", "TAUG3", "TAUG4", "TAUG5", "TAUG6", "TAUG7", "TAUG8",
      "K1", "K2", "K3", "K4", "K5", "K6", "K7", "K8",
      "TAUK2", "TAUK3", "TAUK4", "TAUK5", "TAUK6", "TAUK7", "TAUK8",
      "VC1", "VC2", "CREEPX", "CREEPC",
      "CREEPCONST2", "CREEPCONST3", "CREEPCONST4", "CREEPCONST5", "CREEPCONST6", "CREEPCONST7",
      "RK", "EUL", "BETAT_1", "BETAT_2", "BETAC_1", "BETAC_2", "MDAMP"},
     {"NA", "NA", "NA", "NA", "NA", "NA"}},
};

using Model = std::vector<std::string_view>;

const Model kModels[] = {
    {"MC11", "MC12", "MC13", "MC14", "MC15", "MC16", "MC22", "MC23", "MC24", "MC25", "MC26", "MC33", "MC34", "MC35", "MC36", "MC44",
     "MC45", "MC46", "MC55", "MC56", "MC66", "DENS"},
    {"EX", "ALPX", "DENS", "SIGXT", "CREEPCONST1", "CREEPCONST2", "CREEPCONST3", "CREEPTC"},
    {"CREEPCONST1", "CREEPCONST2", "CREEPCONST3", "CREEPTC", "DENS"},
    {"CREEPCONST1", "CREEPCONST2", "CREEPCONST3", "CREEPCONST4", "CREEPCONST5", "CREEPCONST6", "CREEPCONST7"},
    {"EX", "NUXY", "COHESN", "FRCANG", "ALPX", "DENS", "SIGXT", "CREEPCONST1", "CREEPCONST2", "CREEPCONST3", "CREEPTC"},
    {"EX", "NUXY", "GXY", "DENS", "SIGXT", "SIGXC", "SIGYLD", "ALPX", "KX", "C", "MDAMP"},
    {"EX", "NUXY", "GXY", "DENS", "SIGXT", "SIGXC", "SIGYLD", "ALPX", "KX", "C", "MDAMP",
     "CREEPCONST1", "CREEPCONST2", "CREEPCONST3", "CREEPTC"},
    {"NUXY", "ALPX", "MOONEY_A", "MOONEY_B", "MOONEY_C", "MOONEY_D", "MOONEY_E", "MOONEY_F", "DENS", "SIGXT",
     "CREEPCONST1", "CREEPCONST2", "CREEPCONST3", "CREEPTC"},
    {"NUXY", "ALPX", "DENS", "SIGXT", "CREEPCONST1", "CREEPCONST2", "CREEPCONST3", "CREEPTC"},
    {"EX", "NUXY", "SIGT_S1", "SIGT_F1", "SIGT_S2", "SIGT_F2", "SIGC_S1", "SIGC_F1", "SIGC_S2", "SIGC_F2", "EUL",
     "BETAT_1", "BETAT_2", "BETAC_1", "BETAC_2", "DENS", "ALPX"},
    {"NUXY", "ALPX", "ALPH1", "ALPH2", "ALPH3", "ALPH4", "MU1", "MU2", "MU3", "MU4", "DENS", "SIGXT",
     "CREEPCONST1", "CREEPCONST2", "CREEPCONST3", "CREEPTC"},
    {"EX", "EY", "EZ", "NUXY", "NUYZ", "NUXZ", "GXY", "GYZ", "GXZ", "DENS", "SIGXT", "SIGYT", "SIGXC", "SIGYC", "SIGYLD", "SIGXY",
     "ALPX", "ALPY", "ALPZ", "KX", "KY", "KZ", "C", "MDAMP"},
    {"EX", "EY", "EZ", "NUXY", "NUYZ", "NUXZ", "GXY", "GYZ", "GXZ", "DENS", "SIGXT", "SIGXC", "SIGYLD",
     "ALPX", "ALPY", "ALPZ", "KX", "KY", "KZ", "C", "ETAN", "SIGYT", "SIGYC", "SIGXY"},
    {"EX", "NUXY", "SIGYLD", "ETAN", "ALPX", "DENS", "RK", "SIGXT", "CREEPCONST1", "CREEPCONST2", "CREEPCONST3", "CREEPTC"},
    {"EX", "NUXY", "GXY", "ALPX", "G1", "G2", "G3", "G4", "G5", "G6", "G7", "G8", "SIGXT",
     "TAUG1", "TAUG2", "TAUG3", "TAUG4", "TAUG5", "TAUG6", "TAUG7", "TAUG8",
     "K1", "K2", "K3", "K4", "K5", "K6", "K7", "K8",
     "TAUK1", "TAUK2", "TAUK3", "TAUK4", "TAUK5", "TAUK6", "TAUK7", "TAUK8", "REFTEMP", "VC1", "VC2", "DENS"},
};
// clang-format on

constexpr int kModelCounts[] = {22, 8, 5, 7, 11, 11, 15, 14, 8, 17, 16, 24, 24, 12, 41};

/// -1 for a word that is no keyword.
int PlaceOf(std::string_view word) {
  for (int place = 0; place < kKeywordTotal; ++place) {
    if (kKeywords[place] == word) {
      return place;
    }
  }
  return -1;
}

const std::array<std::string_view, 6>* UnitsOf(std::string_view keyword) {
  const std::array<std::string_view, 6>* units = nullptr;
  for (const UnitGroup& group : kUnitGroups) {
    for (const std::string_view member : group.keywords) {
      if (member == keyword) {
        EXPECT_EQ(units, nullptr) << keyword << " is in two groups";
        units = &group.units;
      }
    }
  }
  return units;
}

TEST(PropertyTables, TheKeywordsStandInThisOrder) {
  ASSERT_EQ(g_strMatPropKeywords.size(), kKeywordTotal);
  for (int property = 0; property < kKeywordTotal; ++property) {
    EXPECT_EQ(Narrow(g_strMatPropKeywords[property]), kKeywords[property]) << property;
  }
}

TEST(PropertyTables, KnownPropertiesHaveTheseIndices) {
  EXPECT_EQ(Narrow(g_strMatPropKeywords[3]), "NUXY");
  EXPECT_EQ(Narrow(g_strMatPropKeywords[9]), "DENS");
  EXPECT_EQ(Narrow(g_strMatPropKeywords[10]), "SIGXT");
  EXPECT_EQ(Narrow(g_strMatPropKeywords[11]), "SIGXC");
  EXPECT_EQ(Narrow(g_strMatPropKeywords[12]), "SIGYLD");
  EXPECT_EQ(Narrow(g_strMatPropKeywords[118]), "SIGYT");
  EXPECT_EQ(Narrow(g_strMatPropKeywords[119]), "SIGYC");
  EXPECT_EQ(Narrow(g_strMatPropKeywords[120]), "SIGXY");
}

TEST(PropertyTables, EveryPropertyHasItsUnitInEverySystem) {
  ASSERT_EQ(g_strMatPropUnits.size(), 726);
  for (int property = 0; property < kKeywordTotal; ++property) {
    const auto* units = UnitsOf(kKeywords[property]);
    ASSERT_NE(units, nullptr) << kKeywords[property];
    for (int system = 0; system < 6; ++system) {
      EXPECT_EQ(Narrow(g_strMatPropUnits[property * 6 + system]),
                (*units)[static_cast<std::size_t>(system)])
          << kKeywords[property] << " in system " << system;
    }
  }
}

TEST(PropertyTables, KnownUnitsStandAtThesePlaces) {
  EXPECT_EQ(Narrow(g_strMatPropUnits[12 * 6 + 1]), "psi");
  EXPECT_EQ(Narrow(g_strMatPropUnits[9 * 6 + 3]), "g/cm^3");
  for (int system = 0; system < 6; ++system) {
    EXPECT_EQ(Narrow(g_strMatPropUnits[3 * 6 + system]), "NA") << system;
  }
}

TEST(PropertyTables, TheReservedSystemsSayFutureWhereAPropertyHasUnits) {
  int future = 0;
  for (int property = 0; property < kKeywordTotal; ++property) {
    const std::string_view keyword = kKeywords[property];
    const auto* units = UnitsOf(keyword);
    ASSERT_NE(units, nullptr) << keyword;
    std::string expected = (*units)[0] == "NA" ? "NA" : "Future";
    if (keyword == "FRCANG") {
      expected = "Deg";
    } else if (keyword == "TAUG1" || keyword == "TAUK1") {
      expected = "sec";
    } else if (keyword == "CREEPCONST1") {
      expected = "NA";
    }
    EXPECT_EQ(Narrow(g_strMatPropUnits[property * 6 + 4]), expected) << keyword;
    EXPECT_EQ(Narrow(g_strMatPropUnits[property * 6 + 5]), expected) << keyword;
    future += expected == "Future" ? 1 : 0;
  }
  EXPECT_EQ(future, 42);
}

TEST(PropertyTables, APlaceOutsideATableIsEmpty) {
  for (const int place : {-1, -2, -121, 121, 122, 726, INT_MIN, INT_MAX}) {
    EXPECT_EQ(Narrow(g_strMatPropKeywords[place]), "") << place;
  }
  for (const int place : {-1, -6, 726, 727, INT_MIN, INT_MAX}) {
    EXPECT_EQ(Narrow(g_strMatPropUnits[place]), "") << place;
  }
  for (const int place : {-1, 22, 23, INT_MIN, INT_MAX}) {
    EXPECT_EQ(Narrow(g_strMatModelKeywords1[place]), "") << place;
  }
  for (const int place : {-1, 41, 42, INT_MIN, INT_MAX}) {
    EXPECT_EQ(Narrow(g_strMatModelKeywords15[place]), "") << place;
  }
}

TEST(PropertyTables, EveryKeywordFindsItsProperty) {
  for (int property = 0; property < kKeywordTotal; ++property) {
    EXPECT_EQ(FindMaterialProperty(Wide(kKeywords[property])), property) << kKeywords[property];
  }
}

TEST(PropertyTables, PartsOfKeywordsAndLongerWordsAreOtherWords) {
  for (const std::string_view keyword : kKeywords) {
    for (std::size_t length = 0; length < keyword.size(); ++length) {
      const std::string_view head = keyword.substr(0, length);
      EXPECT_EQ(FindMaterialProperty(Wide(head)), PlaceOf(head)) << head;
      const std::string_view tail = keyword.substr(keyword.size() - length);
      EXPECT_EQ(FindMaterialProperty(Wide(tail)), PlaceOf(tail)) << tail;
    }
    for (const char letter : {'X', 'Y', 'Z', 'C', 'T', '0', '1', '2', '_', ' ', 'x'}) {
      const std::string longer = std::string(keyword) + letter;
      EXPECT_EQ(FindMaterialProperty(Wide(longer)), PlaceOf(longer)) << longer;
      const std::string behind = letter + std::string(keyword);
      EXPECT_EQ(FindMaterialProperty(Wide(behind)), PlaceOf(behind)) << behind;
    }
  }
}

TEST(PropertyTables, KeywordsAreComparedAsTheyAreWritten) {
  for (const std::string_view keyword : kKeywords) {
    Text lower = Wide(keyword);
    for (mqChar& unit : lower) {
      if (unit >= 'A' && unit <= 'Z') {
        unit = static_cast<mqChar>(unit + 32);
      }
    }
    EXPECT_EQ(FindMaterialProperty(lower), -1) << keyword;
    Text fullWidth = Wide(keyword);
    fullWidth[0] = static_cast<mqChar>(fullWidth[0] + 0xFEE0);
    EXPECT_EQ(FindMaterialProperty(fullWidth), -1) << keyword;
    Text sameLowByte = Wide(keyword);
    sameLowByte.back() = static_cast<mqChar>(sameLowByte.back() + 0x0100);
    EXPECT_EQ(FindMaterialProperty(sameLowByte), -1) << keyword;
  }
  EXPECT_EQ(FindMaterialProperty(MQ_TEXT("\u041A1")), -1);  // a Cyrillic K
  EXPECT_EQ(FindMaterialProperty(MQ_TEXT("\u212A1")), -1);  // the Kelvin sign
}

TEST(PropertyTables, OtherWordsFindNothing) {
  for (const std::string_view word :
       {"", " ", "E", "N/m^2", "NA", "Future", "SIG", "MC", "MC67", "CREEPCONST", "CREEPCONST0",
        "CREEPCONST8", "CREEPCONST10", "CREEPCONST11", "G0", "G9", "ZZZZZZZZZZZZ",
        "ZZZZZZZZZZZZZZZZZZZZZZZZ"}) {
    EXPECT_EQ(FindMaterialProperty(Wide(word)), -1) << word;
  }
  EXPECT_EQ(FindMaterialProperty(mqTextView()), -1);
  EXPECT_EQ(FindMaterialProperty(Text(100'000, MQ_TEXT('E'))), -1);
}

TEST(PropertyTables, AKeywordEndsWhereItsViewEnds) {
  EXPECT_EQ(FindMaterialProperty(mqTextView(MQ_TEXT("EXTRA")).substr(0, 2)), 0);
  EXPECT_EQ(FindMaterialProperty(mqTextView(MQ_TEXT("CREEPCONST12")).substr(0, 11)), 95);
  for (const std::string_view keyword : kKeywords) {
    EXPECT_EQ(FindMaterialProperty(Wide(keyword) + mqChar{0}), -1) << keyword << " and a zero";
    EXPECT_EQ(FindMaterialProperty(Wide(keyword) + Text(11, mqChar{0})), -1) << keyword;
  }
  EXPECT_EQ(FindMaterialProperty(Text(1, mqChar{0})), -1);
  EXPECT_EQ(FindMaterialProperty(Text(12, mqChar{0})), -1);
}

template <std::size_t Count>
void ExpectModel(int number, const KeywordTable<Count>& table) {
  SCOPED_TRACE("model " + std::to_string(number));
  const Model& expected = kModels[number - 1];
  ASSERT_EQ(expected.size(), static_cast<std::size_t>(kModelCounts[number - 1]));
  ASSERT_EQ(table.size(), kModelCounts[number - 1]);
  for (int place = 0; place < table.size(); ++place) {
    EXPECT_EQ(Narrow(table[place]), expected[static_cast<std::size_t>(place)]) << place;
  }
  EXPECT_EQ(Narrow(table[-1]), "");
  EXPECT_EQ(Narrow(table[table.size()]), "");

  const MaterialModel model = GetMaterialModel(number);
  ASSERT_EQ(model.m_nKeywords, kModelCounts[number - 1]);
  EXPECT_EQ(model.m_strKeywords, table.m_strTexts);
}

TEST(PropertyTables, EveryModelHasItsKeywordsInOrder) {
  ExpectModel(1, g_strMatModelKeywords1);
  ExpectModel(2, g_strMatModelKeywords2);
  ExpectModel(3, g_strMatModelKeywords3);
  ExpectModel(4, g_strMatModelKeywords4);
  ExpectModel(5, g_strMatModelKeywords5);
  ExpectModel(6, g_strMatModelKeywords6);
  ExpectModel(7, g_strMatModelKeywords7);
  ExpectModel(8, g_strMatModelKeywords8);
  ExpectModel(9, g_strMatModelKeywords9);
  ExpectModel(10, g_strMatModelKeywords10);
  ExpectModel(11, g_strMatModelKeywords11);
  ExpectModel(12, g_strMatModelKeywords12);
  ExpectModel(13, g_strMatModelKeywords13);
  ExpectModel(14, g_strMatModelKeywords14);
  ExpectModel(15, g_strMatModelKeywords15);
}

TEST(PropertyTables, OtherNumbersAreNoModel) {
  EXPECT_EQ(kMaterialModelTotal, 15);
  for (const int number : {-1, 0, 16, 17, -15, 31, INT_MIN, INT_MAX}) {
    EXPECT_EQ(GetMaterialModel(number).m_nKeywords, 0) << number;
  }
}

}  // namespace
}  // namespace mqp::test
