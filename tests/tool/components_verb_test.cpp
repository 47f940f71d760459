#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

constexpr const char* kGrey = "(0.5, 0.5, 0.5, 1.0)";

void WriteText(const fs::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

std::string ExampleAssembly() {
  return Utf8(fs::path(MQ_DOCUMENTS_FOLDER).parent_path() / "assembly.json");
}

/// Runs the verb on a file with this text. Messages call the file "ASSEMBLY".
Outcome RunOnText(const std::string& text, const std::vector<std::string>& more = {}) {
  const Folder folder;
  const std::string file = folder.Name("assembly.json");
  WriteText(folder / "assembly.json", text);
  std::vector<std::string> arguments = {"components", file};
  arguments.insert(arguments.end(), more.begin(), more.end());
  Outcome outcome = RunTool(arguments);
  for (std::size_t at = 0; (at = outcome.err.find(file)) != std::string::npos;) {
    outcome.err.replace(at, file.size(), "ASSEMBLY");
  }
  return outcome;
}

/// What `--json` answers to components, which stand in an array.
json AnswerTo(const std::string& components, std::vector<std::string> more = {}, int code = 0) {
  more.emplace_back("--json");
  const Outcome outcome = RunOnText("{\"components\": " + components + "}", more);
  EXPECT_EQ(outcome.code, code) << outcome;
  json answer = json::parse(outcome.out, nullptr, false);
  EXPECT_EQ(answer.value("schema", 0), 1) << outcome;
  return answer;
}

std::vector<json> Column(const json& answer, const char* key) {
  std::vector<json> cells;
  for (const json& component : answer.at("components")) {
    cells.push_back(component.at(key));
  }
  return cells;
}

using Cells = std::vector<json>;

// ---------------------------------------------------------------------------------------------
// What is read and shown

TEST(ComponentsVerb, EveryKeyOfAComponentHasItsDefault) {
  const json answer = AnswerTo("[{}]");
  EXPECT_EQ(answer.at("components"), json::array({{{"index", 0},
                                                   {"id", 0},
                                                   {"name", ""},
                                                   {"bodyId", 0},
                                                   {"bodyName", ""},
                                                   {"first", -1},
                                                   {"last", -1},
                                                   {"visIndexBase", 1},
                                                   {"available", false},
                                                   {"hidden", 0},
                                                   {"tempHidden", 0},
                                                   {"color", "#FFFFFF"},
                                                   {"bottomColor", kGrey},
                                                   {"value", 1}}}));
  EXPECT_EQ(answer.at("noEndAtElement0"), 1);
  EXPECT_EQ(answer.at("allHidden"), false);
  EXPECT_EQ(answer.at("elements"), json::array());
}

TEST(ComponentsVerb, EveryKeyReachesItsMember) {
  const json answer = AnswerTo(
      R"([{"id": 7, "first": 100, "last": 199, "color": "#ff8000", "bottomColor": "#010203",
           "hidden": 2, "tempHidden": true, "name": "Wälzlager", "bodyName": "応力",
           "bodyId": -2147483648},
          {"first": 2147483647, "last": 2147483647, "visIndexBase": 40, "hidden": false},
          {"first": 0, "last": 0}])");
  EXPECT_EQ(answer.at("components")[0], (json{{"index", 0},
                                              {"id", 7},
                                              {"name", "Wälzlager"},
                                              {"bodyId", -2147483648LL},
                                              {"bodyName", "応力"},
                                              {"first", 100},
                                              {"last", 199},
                                              {"visIndexBase", 101},
                                              {"available", true},
                                              {"hidden", 2},
                                              {"tempHidden", 1},
                                              {"color", "#FF8000"},
                                              {"bottomColor", "#010203"},
                                              {"value", 1}}));
  EXPECT_EQ(Column(answer, "visIndexBase"), (Cells{101, 40, 1}));
  EXPECT_EQ(Column(answer, "value"), (Cells{1, 2, 3}));
  EXPECT_EQ(Column(answer, "available"), (Cells{true, true, true}));
  EXPECT_EQ(answer.at("noEndAtElement0"), 2);
}

struct RangeCase {
  const char* component;
  bool isAvailable;
};

TEST(ComponentsVerb, AComponentWithoutARangeIsNotAvailable) {
  const RangeCase cases[] = {
      {R"({"first": 5, "last": 5})", true},
      {R"({"first": 5, "last": 4})", false},
      {R"({"first": 5})", false},
      {R"({"last": 5})", false},
      {R"({"first": -1, "last": 5})", false},
      {R"({"first": 0, "last": 0})", true},
  };
  for (const RangeCase& row : cases) {
    const json answer = AnswerTo("[" + std::string(row.component) + "]");
    EXPECT_EQ(answer.at("components")[0].at("available"), row.isAvailable) << row.component;
  }
}

TEST(ComponentsVerb, ColoursAreListedOnceWithTheirLopsidedRule) {
  // Red over grey, red over blue, green over grey: the first bottom colour stays out of the
  // colours, those of later distinct ones do not.
  const json answer = AnswerTo(
      R"([{"color": "#FF0000", "bottomColor": "#808080"},
          {"color": "#FF0000", "bottomColor": "#0000FF"},
          {"color": "#00FF00", "bottomColor": "#808080"}])");
  EXPECT_EQ(answer.at("colors"), json({"#FF0000", "#00FF00", "#808080"}));
  EXPECT_EQ(answer.at("bottomColors"), json({"#808080", "#808080"}));
  // The grey of a component without a bottom colour is another one than #808080.
  const json greys = AnswerTo(R"([{}, {"color": "#808080"}, {"color": "#000000"}])");
  EXPECT_EQ(greys.at("colors"), json({"#FFFFFF", "#808080", kGrey, "#000000", kGrey}));
  EXPECT_EQ(greys.at("bottomColors"), json({kGrey, kGrey, kGrey}));
}

TEST(ComponentsVerb, AnEmptyListIsAllHiddenAndHasNoColours) {
  const json answer = AnswerTo("[]");
  EXPECT_EQ(answer.at("allHidden"), true);
  EXPECT_EQ(answer.at("colors"), json::array());
  EXPECT_EQ(answer.at("bottomColors"), json::array());
  EXPECT_EQ(answer.at("noEndAtElement0"), 0);
  EXPECT_TRUE(Contains(RunOnText("{\"components\": []}").out, "All hidden           yes\n"));
}

TEST(ComponentsVerb, TheExampleIsShownInItsOrder) {
  const Outcome outcome = RunTool({"components", ExampleAssembly(), "--element", "1500"});
  EXPECT_EQ(outcome.code, 0) << outcome;
  EXPECT_EQ(outcome.err, "");
  EXPECT_TRUE(outcome.out.starts_with(
      "index  id  name     body                    first  last  base  available  hidden     "
      "colour   bottom                value\n"))
      << outcome;
  EXPECT_TRUE(Contains(outcome.out,
                       "\n    2   3  Shaft    13 Shaft-1/Turned        1480  2199  1481  yes"
                       "        no         #CCBB44  #EEEEBB                   3\n"))
      << outcome;
  EXPECT_TRUE(Contains(outcome.out, "  yes, temp  #4477AA  (0.5, 0.5, 0.5, 1.0)      5\n"))
      << outcome;
  EXPECT_TRUE(outcome.out.ends_with("Element 1500  component 2 \"Shaft\", visible index 1501\n"))
      << outcome;
}

TEST(ComponentsVerb, NamesDoNotSteerTheTerminal) {
  const Outcome outcome = RunOnText(
      R"({"components": [{"name": "a\u001b[1m", "bodyName": "b\nc", "first": 1, "last": 1}]})",
      {"--element", "1", "--hide-all-but", "x\x1By"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_FALSE(Contains(outcome.out + outcome.err, "\x1B")) << outcome;
  EXPECT_TRUE(Contains(outcome.out, "a\\x1B[1m") && Contains(outcome.out, "b\\x0Ac")) << outcome;
}

// ---------------------------------------------------------------------------------------------
// Sorting, hiding, probing

constexpr const char* kRanges =
    R"([{"id": 1, "name": "A", "first": 0, "last": 5},
        {"id": 2, "name": "B", "first": 11, "last": 20},
        {"id": 3, "name": "B", "first": 6, "last": 10, "visIndexBase": 100}])";

TEST(ComponentsVerb, SortingGoesByTheLastElementAndNumbersAnew) {
  const json down = AnswerTo(kRanges, {"--sort", "desc"});
  EXPECT_EQ(Column(down, "last"), (Cells{20, 10, 5}));
  EXPECT_EQ(Column(down, "id"), (Cells{2, 3, 1}));
  EXPECT_EQ(Column(down, "value"), (Cells{1, 2, 3}));
  const json up = AnswerTo(kRanges, {"--sort", "asc"});
  EXPECT_EQ(Column(up, "last"), (Cells{5, 10, 20}));
  EXPECT_EQ(Column(AnswerTo(kRanges), "last"), (Cells{5, 20, 10}));
}

TEST(ComponentsVerb, AllButTheComponentsOfOneNameAreHidden) {
  const json answer = AnswerTo(kRanges, {"--hide-all-but", "B", "--sort", "asc"});
  EXPECT_EQ(Column(answer, "name"), (Cells{"A", "B", "B"}));
  EXPECT_EQ(Column(answer, "hidden"), (Cells{1, 0, 0}));
  const Outcome unknown = RunOnText("{\"components\": " + std::string(kRanges) + "}",
                                    {"--hide-all-but", "b", "--json"});
  EXPECT_EQ(unknown.code, 1);
  EXPECT_EQ(unknown.err,
            "mqpost: No component is called \"b\", nothing was hidden. Did you mean B or A?\n");
  EXPECT_EQ(Column(json::parse(unknown.out), "hidden"), (Cells{0, 0, 0}));
}

struct ElementCase {
  const char* element;
  json component;
  json visibleIndex;
  json hiddenComponent;
};

TEST(ComponentsVerb, AnElementIsFoundInTheFirstShownComponentThatHoldsIt) {
  const std::string components =
      R"([{"first": 0, "last": 9, "hidden": true},
          {"first": 5, "last": 14, "visIndexBase": 40},
          {"first": 10, "last": 19},
          {"first": 30, "last": 29},
          {"first": 50, "last": 59, "hidden": 3}])";
  const ElementCase cases[] = {
      {"5", 1, 40, nullptr},
      {"4", nullptr, nullptr, 0},
      {"9", 1, 44, nullptr},
      {"14", 1, 49, nullptr},
      {"15", 2, 16, nullptr},
      {"19", 2, 20, nullptr},
      {"20", nullptr, nullptr, nullptr},
      {"30", nullptr, nullptr, nullptr},
      {"59", nullptr, nullptr, 4},
      {"-1", nullptr, nullptr, nullptr},
      {"-2147483648", nullptr, nullptr, nullptr},
  };
  for (const ElementCase& row : cases) {
    SCOPED_TRACE(row.element);
    const int code = row.component.is_null() ? 1 : 0;
    const json answer = AnswerTo(components, {"--element", row.element}, code);
    EXPECT_EQ(answer.at("elements"), json::array({{{"element", std::stol(row.element)},
                                                   {"component", row.component},
                                                   {"visibleIndex", row.visibleIndex},
                                                   {"hiddenComponent", row.hiddenComponent}}}));
  }
}

TEST(ComponentsVerb, OneElementWithoutAComponentIsAFinding) {
  const Outcome outcome = RunTool({"components", ExampleAssembly(), "--element", "0", "--element",
                                   "2210", "--element", "99999"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_TRUE(
      outcome.out.ends_with("Element 0      component 0 \"Housing\", visible index 1\n"
                            "Element 2210   no component shows it; 3 \"Bolt M8\" is hidden\n"
                            "Element 99999  no component\n"))
      << outcome;
  EXPECT_EQ(outcome.err,
            "mqpost: No component shows element 2210.\n"
            "mqpost: No component shows element 99999.\n");
}

// ---------------------------------------------------------------------------------------------
// Files that are not what they should be

struct DamageCase {
  std::string text;
  std::string said;
};

TEST(ComponentsVerb, DamageIsNamedWithItsPlace) {
  const std::string open = "{\"components\": [{}, {";
  const DamageCase cases[] = {
      {"", "ASSEMBLY > line 1, column 1: This is not JSON: "},
      {"{\"components\": [\n  {\"id\": 1,}\n]}",
       "ASSEMBLY > line 2, column 12: This is not JSON: "},
      {"{\"components\": [\n\n  {\"id\" 1}]}", "ASSEMBLY > line 3, column 9: This is not JSON: "},
      {"{\"components\": " + std::string(64, '[') + std::string(64, ']') + "}",
       "ASSEMBLY > components[0]: an object with the keys of a "},
      {"{\"components\": " + std::string(65, '[') + std::string(65, ']') + "}",
       "ASSEMBLY: The brackets are nested more than 64 deep."},
      {"{\"components\": []} [" + std::string(100000, '['),
       "ASSEMBLY > line 1, column 20: This is not JSON: "},
      {std::string(100000, '['), "ASSEMBLY: The brackets are nested more than 64 deep."},
      {"{\"components\": []} x", "ASSEMBLY > line 1, column 20: This is not JSON: "},
      {"{\"components\": [{\"id\": 1e999}]}", "ASSEMBLY: number overflow parsing '1e999'."},
      {"{\"components\": [{\"name\": \"\xFF\"}]}",
       "ASSEMBLY > line 1, column 27: This is not JSON: "},
      {std::string("\xFF\xFE{\0", 4), "ASSEMBLY: This is UTF-16 text. Save it as UTF-8."},
      {"[]", "ASSEMBLY > the whole file: an object {\"components\": [...]} is expected, not []."},
      {"{}",
       "ASSEMBLY: There is no \"components\". Write {\"components\": [...]} around the list."},
      {"{\"component\": []}", "ASSEMBLY: There is no \"components\". "},
      {"{\"components\": {}}", "ASSEMBLY > components: an array of objects is expected, not {}."},
      {"{\"components\": [{}, 7]}", "ASSEMBLY > components[1]: an object with the keys of a "},
      {open + "\"colour\": 1}]}",
       "ASSEMBLY > components[1]: There is no key \"colour\". Did you mean color?"},
      {open + "\"qqqqqq\": 1}]}",
       "ASSEMBLY > components[1]: There is no key \"qqqqqq\". Known are "
       "id, first, last, bodyId, visIndexBase, hidden, tempHidden, "},
      {open + "\"id\": 1.0}]}",
       "ASSEMBLY > components[1].id: a whole number from -2147483648 to "
       "2147483647 is expected, not 1.0."},
      {open + "\"first\": 2147483648}]}", "ASSEMBLY > components[1].first: a whole number from "},
      {open + "\"last\": -2147483649}]}", "ASSEMBLY > components[1].last: a whole number from "},
      {open + "\"bodyId\": 18446744073709551615}]}", "ASSEMBLY > components[1].bodyId: a whole "},
      {open + "\"bodyId\": 99999999999999999999}]}", "ASSEMBLY > components[1].bodyId: a whole "},
      {open + "\"visIndexBase\": \"1\"}]}", "ASSEMBLY > components[1].visIndexBase: a whole "},
      {open + "\"id\": null}]}", "ASSEMBLY > components[1].id: a whole number"},
      {open + "\"id\": true}]}", "ASSEMBLY > components[1].id: a whole number"},
      {open + "\"hidden\": \"yes\"}]}",
       "ASSEMBLY > components[1].hidden: true, false or a whole "
       "number of 32 bits is expected, not \"yes\"."},
      {open + "\"tempHidden\": 4294967296}]}", "ASSEMBLY > components[1].tempHidden: true, false"},
      {open + "\"color\": \"red\"}]}",
       "ASSEMBLY > components[1].color: a colour such as "
       "\"#4477AA\" is expected, not \"red\"."},
      {open + "\"color\": \"#4477A\"}]}", "ASSEMBLY > components[1].color: a colour"},
      {open + "\"color\": \"#4477AG\"}]}", "ASSEMBLY > components[1].color: a colour"},
      {open + "\"color\": \"#-477AA\"}]}", "ASSEMBLY > components[1].color: a colour"},
      {open + "\"color\": \"4477AAB\"}]}", "ASSEMBLY > components[1].color: a colour"},
      {open + "\"bottomColor\": 255}]}", "ASSEMBLY > components[1].bottomColor: a colour"},
      {open + "\"name\": 5}]}", "ASSEMBLY > components[1].name: a text without zero characters "},
      {open + "\"bodyName\": \"a\\u0000b\"}]}",
       "ASSEMBLY > components[1].bodyName: a text without"},
  };
  for (const DamageCase& row : cases) {
    SCOPED_TRACE(json(row.text).dump(-1, ' ', false, json::error_handler_t::replace));
    const Outcome outcome = RunOnText(row.text);
    EXPECT_EQ(outcome.code, 3) << outcome;
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.starts_with("mqpost: " + row.said)) << outcome;
  }
}

TEST(ComponentsVerb, AByteOrderMarkAndOtherLineEndsAreTaken) {
  const Outcome outcome = RunOnText("\xEF\xBB\xBF{\r\n\"components\": [{\"id\": 4}]\r\n}\r\n");
  EXPECT_EQ(outcome.code, 0) << outcome;
}

TEST(ComponentsVerb, FilesThatCannotBeReadAreFileTroubles) {
  const Folder folder;
  EXPECT_EQ(RunTool({"components", folder.Name("missing.json")}).code, 5);
  fs::create_directory(folder / "folder.json");
  EXPECT_EQ(RunTool({"components", folder.Name("folder.json")}).code, 5);
}

TEST(ComponentsVerb, WhatCannotBeUnderstoodIsSaidWithAHint) {
  const std::string file = ExampleAssembly();
  const std::vector<UsageCase> cases = {
      {{"components"}, "FILE.json is required"},
      {{"components", file, "--sort", "up"}, "--sort takes asc or desc, not \"up\""},
      {{"components", file, "--element", "x"}, "--element takes a whole number of 32 bits"},
      {{"components", file, "--element", "2147483648"}, "not \"2147483648\""},
      {{"components", file, "--element", "1", "2"}, "one argument too many: \"2\""},
      {{"components", file, "--elements", "1"}, "Did you mean --element?"},
  };
  ExpectUsageErrors(cases);
}

TEST(ComponentsVerb, NoLineIsWiderThanTheTerminal) {
  for (const int width : {60, 72, 80, 100, 132}) {
    const Outcome outcome =
        RunTool({"components", ExampleAssembly(), "--element", "1500", "--element", "2210"},
                Terminal(width));
    EXPECT_EQ(outcome.code, 1);
    ExpectNoLineWiderThan(width, outcome.out);
    EXPECT_TRUE(Contains(outcome.out, "Gasket")) << outcome;
  }
  EXPECT_TRUE(Contains(RunTool({"components", ExampleAssembly()}, Terminal(80)).err,
                       "note: no room for value, bottom"));
}

TEST(ComponentsVerb, HelpNamesEveryKey) {
  const Outcome outcome = RunTool({"components", "--help"});
  for (const char* key : {"id", "first", "last", "bodyId", "visIndexBase", "hidden", "tempHidden",
                          "color", "bottomColor", "name", "bodyName"}) {
    EXPECT_TRUE(Contains(outcome.out, key)) << key << outcome;
  }
}

}  // namespace
}  // namespace mqp::test
