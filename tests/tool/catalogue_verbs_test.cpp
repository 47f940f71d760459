#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <mqCommFuncs/string_table.h>
#include <mqPostCommon/mqPostCommon.h>

#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

// ---------------------------------------------------------------------------------------------
// show

TEST(ShowVerb, AStaticStressHasTwelveComponentsAndStartsOnTheEquivalentOne) {
  const json card = RunForJson({"show", "static", "stress"});
  EXPECT_EQ(card.at("study"), (json{{"code", 0}, {"name", "Static"}}));
  EXPECT_EQ(card.at("result"), (json{{"code", 2}, {"name", "Stress"}}));
  EXPECT_EQ(card.at("resultName"), "Stress");
  EXPECT_EQ(card.at("count"), 12);
  EXPECT_EQ(card.at("default"), 9);
  EXPECT_EQ(card.at("unitSystem"), (json{{"code", 0}, {"name", "SI"}}));
  ASSERT_EQ(card.at("components").size(), 12U);
  const json equivalent = {
      {"index", 9},
      {"isDefault", true},
      {"isBeyondCount", false},
      {"name", "SEQ: equivalent stress"},
      {"barName", "SEQ equivalent stress"},
      {"briefName", "Equivalent stress"},
      {"shortName", "SEQ equivalent stress"},
      {"dataType", {{"code", 2}, {"name", "principal"}}},
      {"members", {6, 7, 8}},
      {"unitType", {{"code", 4}, {"name", "Stress"}}},
      {"unit", {{"index", 0}, {"name", "N/m^2"}}},
      {"direction", "X"},
      {"directionWeights", {1.0, 0.0, 0.0, 0.0}},
      {"bounds", 0},
      {"reference", false},
  };
  EXPECT_EQ(card.at("components")[9], equivalent) << card.at("components")[9].dump(1);
  const json& first = card.at("components")[0];
  EXPECT_EQ(first.at("members"), json::array());
  EXPECT_EQ(first.at("dataType"), (json{{"code", 1}, {"name", "directional"}}));
  EXPECT_EQ(first.at("isDefault"), false);
  EXPECT_EQ(first.at("reference"), true);
  const json& principal = card.at("components")[6];
  EXPECT_EQ(principal.at("direction"), "all 2");
}

struct CountCase {
  std::vector<std::string> arguments;
  int count;
  std::size_t rows;
  int start;
};

TEST(ShowVerb, OptionsReachTheCatalogue) {
  const std::vector<CountCase> cases = {
      {{"static", "displacement"}, 8, 8, 3},
      {{"static", "displacement", "--mesh", "shell"}, 15, 15, 3},
      {{"static", "displacement", "--mesh", "mixed"}, 8, 8, 3},
      {{"static", "displacement", "--mesh", "mixed", "--mesh-flags", "2"}, 15, 15, 3},
      {{"static", "displacement", "--mesh", "mixed", "--mesh-flags", "1"}, 8, 8, 3},
      {{"static", "stress", "--extra-stress"}, 14, 14, 9},
      {{"static", "stress", "--more-stress"}, 12, 12, 9},
      {{"static", "stress", "--extra-stress", "--more-stress"}, 16, 16, 9},
      {{"stepped", "stress", "--mesh", "beam"}, 7, 7, 0},
      {{"dynamic", "stress"}, 12, 12, 9},
      {{"dynamic", "stress", "--dynamic-option", "1"}, 12, 13, 100},
      {{"dynamic", "stress", "--dynamic-option", "1", "--dynamic-choice", "7"}, 13, 14, 100},
      {{"8", "19", "--mesh", "1"}, 7, 7, 3},
      {{"FATIGUE", "FatigueResult"}, 4, 4, 1},
      {{"thermal", "ResultType62"}, 0, 1, 0},
      {{"-1", "-2147483648"}, 0, 1, 0},
  };
  for (const CountCase& row : cases) {
    std::vector<std::string> arguments = row.arguments;
    arguments.insert(arguments.begin(), "show");
    const json card = RunForJson(arguments);
    SCOPED_TRACE(json(arguments).dump());
    EXPECT_EQ(card.at("count"), row.count);
    EXPECT_EQ(card.at("components").size(), row.rows);
    EXPECT_EQ(card.at("default"), row.start);
  }
}

TEST(ShowVerb, TheDefaultBeyondTheCountIsShownAsSuch) {
  const json card = RunForJson({"show", "dynamic", "stress", "--dynamic-option", "1"});
  const json& last = card.at("components").back();
  EXPECT_EQ(last.at("index"), 100);
  EXPECT_EQ(last.at("isDefault"), true);
  EXPECT_EQ(last.at("isBeyondCount"), true);
  EXPECT_EQ(last.at("members"), json({6, 7, 8}));
  EXPECT_EQ(last.at("name"), "SPB: stress from the principal stresses");
}

TEST(ShowVerb, UnitsFollowTheSystemAndTheSpectralOption) {
  struct Case {
    std::vector<std::string> arguments;
    std::size_t component;
    const char* unit;
  };
  const std::vector<Case> cases = {
      {{"static", "stress"}, 9, "N/m^2"},
      {{"static", "stress", "--units", "ips"}, 9, "psi"},
      {{"static", "stress", "--units", "METRIC"}, 9, "kgf/cm^2"},
      {{"static", "displacement"}, 0, "m"},
      {{"static", "displacement", "--units", "ips"}, 0, "in"},
      {{"static", "displacement", "--units", "metric"}, 0, "cm"},
      {{"static", "displacement", "--units", "77"}, 4, "kgf"},
      {{"dynamic", "displacement", "--dynamic-option", "2"}, 0, "m^2/Hz"},
      {{"dynamic", "stress", "--dynamic-option", "2", "--units", "ips"}, 0, "psi^2/Hz"},
      {{"dynamic", "stress", "--dynamic-option", "1"}, 0, "N/m^2"},
      {{"frequency", "displacement"}, 0, ""},
      {{"frequency", "displacement", "--actual-frequency"}, 0, "m"},
  };
  for (const Case& row : cases) {
    std::vector<std::string> arguments = row.arguments;
    arguments.insert(arguments.begin(), "show");
    EXPECT_EQ(RunForJson(arguments).at("components")[row.component].at("unit").at("name"), row.unit)
        << json(arguments).dump();
  }
}

TEST(ShowVerb, NamesFollowTheirOptions) {
  const auto firstName = [](std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "show");
    return RunForJson(arguments).at("components")[0].at("name").get<std::string>();
  };
  EXPECT_EQ(firstName({"static", "displacement"}), "DX: displacement along X");
  EXPECT_EQ(firstName({"static", "displacement", "--alternate"}), "D1: displacement along axis 1");
  EXPECT_EQ(firstName({"stepped", "stress", "--mesh", "beam"}), "BA: beam stress A");
  EXPECT_EQ(firstName({"frequency", "displacement"}), "AX: normalised amplitude along X");
  EXPECT_EQ(firstName({"frequency", "displacement", "--actual-frequency"}),
            "DX: displacement along X");
  EXPECT_EQ(firstName({"static", "displacement", "--lang", "de"}), "DX: Verschiebung in X");
}

TEST(ShowVerb, StressComponentTwelveHasBoundsAndDirectionOnDemand) {
  const auto twelve = [](std::vector<std::string> more) {
    more.insert(more.begin(), {"show", "stepped", "stress"});
    return RunForJson(more).at("components")[12];
  };
  EXPECT_EQ(twelve({}).at("bounds"), 0);
  EXPECT_EQ(twelve({}).at("direction"), "-");
  EXPECT_EQ(twelve({"--stress-12"}).at("bounds"), 2);
  EXPECT_EQ(twelve({"--stress-12"}).at("direction"), "X");
}

TEST(ShowVerb, NothingOfARunStaysBehind) {
  RunTool({"show", "frequency", "displacement", "--actual-frequency", "--lang", "de"});
  EXPECT_EQ(vekPostCommonGetActualFreqDispFlag(), 0);
  CString text;
  mqpLoadString(text, 54579);
  EXPECT_EQ(text, CString(MQ_TEXT("DY: displacement along Y")));
}

// ---------------------------------------------------------------------------------------------
// list

/// The result of that name in a listed study, or null.
json ResultIn(const json& listed, std::size_t study, const std::string& name) {
  for (const json& result : listed.at("studies").at(study).at("results")) {
    if (result.at("name") == name) {
      return result;
    }
  }
  return nullptr;
}

TEST(ListVerb, EveryStudyIsListedInOrderOfItsCode) {
  const json listed = RunForJson({"list"});
  std::vector<int> codes;
  for (const json& study : listed.at("studies")) {
    codes.push_back(study.at("code").get<int>());
  }
  EXPECT_EQ(codes, (std::vector<int>{0, 1, 2, 3, 5, 6, 7, 8, 10}));
}

TEST(ListVerb, AResultIsListedForItsCountItsNameOrItsAvailability) {
  const json thermal = RunForJson({"list", "thermal"});
  EXPECT_EQ(ResultIn(thermal, 0, "Thermal").at("count"), 9);
  // No components and no names, and yet available.
  EXPECT_EQ(ResultIn(thermal, 0, "Displacement").at("count"), 0);
  // No components, but a name for the first one.
  EXPECT_EQ(ResultIn(thermal, 0, "FactorOfSafety").at("count"), 0);
  EXPECT_TRUE(ResultIn(thermal, 0, "Stress").is_null());
  const json statics = RunForJson({"list", "0"});
  EXPECT_EQ(ResultIn(statics, 0, "Stress"), (json{{"code", 2},
                                                  {"name", "Stress"},
                                                  {"resultName", "Stress"},
                                                  {"count", 12},
                                                  {"default", 9}}));
  // Counted, but neither named nor available.
  EXPECT_EQ(ResultIn(RunForJson({"list", "flowimport"}), 0, "FlowHeatTransfer").at("count"), 12);
  EXPECT_EQ(ResultIn(RunForJson({"list", "fatigue"}), 0, "MassProperties").at("count"), 4);
}

// ---------------------------------------------------------------------------------------------
// find

struct FindCase {
  std::vector<std::string> arguments;
  int code;
  int component;
  int result;
};

TEST(FindVerb, AnswersAsTheLibraryDoes) {
  const std::vector<FindCase> cases = {
      {{"static", "stress", "SEQ: equivalent stress"}, 0, 9, 2},
      {{"static", "stress", "SEQ (N/m^2)"}, 0, 9, 2},
      {{"static", "stress", " SEQ: equivalent stress ", "--exact"}, 0, 9, 9999},
      {{"static", "stress", "SEQ (N/m^2)", "--exact"}, 1, -1, 2},
      {{"static", "stress", "seq"}, 1, -1, 9999},
      {{"static", "stress", "SC:", "--variant", "1"}, 0, 14, 9999},
      {{"static", "stress", "SC:"}, 1, -1, 9999},
      {{"dynamic", "stress", "SPB:"}, 0, 100, 9999},
      {{"static", "stress", "list"}, 1, -1, 9999},
      {{"static", "stress", ""}, 1, -1, 1},
      {{"stepped", "acceleration", "AAX: angular"}, 0, 0, 20},
      {{"dynamic", "acceleration", "AAX: angular"}, 0, 4, 20},
  };
  for (const FindCase& row : cases) {
    std::vector<std::string> arguments = row.arguments;
    arguments.insert(arguments.begin(), "find");
    SCOPED_TRACE(json(arguments).dump());
    const json answer = RunForJson(arguments, row.code);
    EXPECT_EQ(answer.at("component"), row.component);
    EXPECT_EQ(answer.at("resultTypeByName").at("code"), row.result);
  }
}

TEST(FindVerb, NearNamesAreOffered) {
  for (const char* name : {"SEQU", "seq", "equivalent", "SEX"}) {
    const Outcome outcome = RunTool({"find", "static", "stress", name});
    EXPECT_EQ(outcome.code, 1) << name;
    EXPECT_TRUE(Contains(outcome.err, "Did you mean") &&
                Contains(outcome.err, "\"SEQ: equivalent stress\""))
        << name << ": " << outcome;
  }
  EXPECT_FALSE(Contains(RunTool({"find", "static", "stress", "zzzzzzz"}).err, "Did you mean"));
}

TEST(FindVerb, NamesOfALanguageAreFoundInIt) {
  const std::vector<std::string> question = {"find", "static", "displacement",
                                             "DX: Verschiebung in X", "--exact"};
  std::vector<std::string> german = question;
  german.insert(german.end(), {"--lang", "de"});
  EXPECT_EQ(RunTool(german).code, 0);
  EXPECT_EQ(RunTool(question).code, 1);
}

// ---------------------------------------------------------------------------------------------
// units

TEST(UnitsVerb, AUnitTypeShowsItsNamesAndDefaults) {
  EXPECT_EQ(RunForJson({"units", "stress"}).at("unitTypes"),
            (json{{{"code", 4},
                   {"name", "Stress"},
                   {"offered", 5},
                   {"names", {"N/m^2", "psi", "kgf/cm^2", "N/mm^2 (MPa)", "ksi"}},
                   {"defaults", {{"si", 0}, {"ips", 1}, {"metric", 2}}}}}));
  const json volume = RunForJson({"units", "39"}).at("unitTypes")[0];
  EXPECT_EQ(volume.at("offered"), 0);
  EXPECT_EQ(volume.at("names"), json({"m^3", "in^3", "cm^3", "cm^3", "m^3", "m^3"}));
  const json conductivity = RunForJson({"units", "17"}).at("unitTypes")[0];
  EXPECT_EQ(conductivity.at("names")[1], "BTU/(in.s.°F)");
  const json spectral = RunForJson({"units", "22"}).at("unitTypes")[0];
  EXPECT_EQ(spectral.at("defaults"), (json{{"si", 2}, {"ips", 3}, {"metric", 1}}));
  // No component has it, so that the library chooses no default.
  EXPECT_EQ(RunForJson({"units", "34"}).at("unitTypes")[0].at("defaults"), nullptr);
}

TEST(UnitsVerb, AUnitTypeThatIsNamedIsShownWithItsName) {
  // The second name is too long to lie inside a string.
  for (const auto& [word, name] :
       {std::pair("stress", "4  Stress "),
        std::pair("HEATTRANSFERCOEFFICIENT", "16  HeatTransferCoefficient ")}) {
    const Outcome outcome = RunTool({"units", word});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_TRUE(Contains(outcome.out, name)) << outcome;
  }
}

TEST(UnitsVerb, EveryUnitTypeIsListed) {
  EXPECT_EQ(RunForJson({"units"}).at("unitTypes").size(), 42U);
}

TEST(UnitsVerb, TheUnitListsAreTheConstants) {
  const json lists = RunForJson({"units", "--lists"}).at("lists");
  ASSERT_EQ(lists.size(), 54U);
  EXPECT_EQ(lists[0], (json{{"name", "UnitSystem"}, {"text", "SI|English (IPS)|Metric (G)"}}));
  EXPECT_EQ(lists[9], (json{{"name", "StressSpectralDensityTruncated"},
                            {"text", "(N/m^2)^2/Hz|psi^2/Hz|(kgf/cm^2)^2/H|MPa^2/Hz|ksi^2/Hz"}}));
}

// ---------------------------------------------------------------------------------------------
// strings

/// A compiled translation of little-endian layout; sorted by its keys.
void WriteTranslation(const fs::path& file,
                      const std::vector<std::pair<std::string, std::string>>& messages) {
  ByteString bytes;
  const auto number = [&bytes](std::size_t value) {
    for (int shift = 0; shift < 32; shift += 8) {
      bytes.push_back(static_cast<std::byte>(value >> shift & 0xFF));
    }
  };
  std::string texts;
  const std::size_t begin = 28 + 16 * messages.size();
  for (const std::size_t value :
       {std::size_t{0x950412DE}, std::size_t{0}, messages.size(), std::size_t{28},
        28 + 8 * messages.size(), std::size_t{0}, begin}) {
    number(value);
  }
  for (const bool isKey : {true, false}) {
    for (const auto& message : messages) {
      const std::string& text = isKey ? message.first : message.second;
      number(text.size());
      number(begin + texts.size());
      texts += text + '\0';
    }
  }
  for (const char unit : texts) {
    bytes.push_back(static_cast<std::byte>(unit));
  }
  WriteBytes(file, bytes);
}

TEST(StringsVerb, ShowsTextsBesideTheirTranslation) {
  const json english = RunForJson({"strings", "54578"});
  EXPECT_EQ(english.at("translations"), nullptr);
  EXPECT_EQ(
      english.at("strings"),
      (json{{{"id", 54578}, {"english", "DX: displacement along X"}, {"translation", nullptr}}}));
  const json german = RunForJson({"strings", "54579", "54578", "--lang", "de"});
  ASSERT_EQ(german.at("strings").size(), 2U);
  EXPECT_EQ(german.at("strings")[0].at("id"), 54579);
  EXPECT_EQ(german.at("strings")[1].at("translation"), "DX: Verschiebung in X");
  EXPECT_EQ(RunForJson({"strings"}).at("strings").size(), 315U);
  EXPECT_EQ(RunTool({"strings", "1"}).code, 1);
}

TEST(StringsVerb, AFullTranslationLacksNothing) {
  EXPECT_EQ(RunForJson({"strings", "--lang", "de", "--missing"}).at("strings"), json::array());
}

TEST(StringsVerb, TextsWithoutATranslationAreAFinding) {
  const Folder folder;
  // The second one reads like the English text and is a translation all the same.
  WriteTranslation(folder / "xx.mo", {{"", "Content-Type: text/plain; charset=UTF-8\n"},
                                      {"50757\x04"
                                       "Element",
                                       "Element"},
                                      {"54578\x04"
                                       "DX: displacement along X",
                                       "DX: über X"}});
  const std::string file = folder.Name("xx.mo");
  const json missing = RunForJson({"strings", "--lang", file, "--missing"}, 1);
  EXPECT_EQ(missing.at("strings").size(), 313U);
  for (const json& row : missing.at("strings")) {
    EXPECT_NE(row.at("id"), 54578);
    EXPECT_NE(row.at("id"), 50757);
  }
  EXPECT_EQ(RunTool({"strings", "54578", "50757", "--lang", file, "--missing"}).code, 0);
  EXPECT_EQ(RunTool({"strings", "54578", "54579", "--lang", file, "--missing"}).code, 1);
  EXPECT_EQ(RunForJson({"strings", "54578", "--lang", file}).at("strings")[0].at("translation"),
            "DX: über X");
}

TEST(StringsVerb, TranslationsThatCannotBeUsedAreNamed) {
  const Folder folder;
  WriteBytes(folder / "damaged.mo", Joined({}, {0xDE, 0x12, 0x04, 0x95, 0x00}));
  EXPECT_EQ(RunTool({"strings", "--lang", folder.Name("damaged.mo")}).code, 3);
  EXPECT_EQ(RunTool({"strings", "--lang", folder.Name("none.mo")}).code, 5);
  const Outcome unknown = RunTool({"show", "static", "stress", "--lang", "dee"});
  EXPECT_EQ(unknown.code, 2);
  EXPECT_TRUE(Contains(unknown.err, "Did you mean de?")) << unknown;
}

}  // namespace
}  // namespace mqp::test
