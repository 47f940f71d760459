#include <fstream>
#include <string_view>

#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

const std::string kStream = "Plots/EquationPlot1";

std::vector<std::string> EquationCommand(const std::string& document, int version,
                                         const std::vector<std::string>& more = {}) {
  std::vector<std::string> command = {"equation", document + "::" + kStream, "--doc-version",
                                      std::to_string(version)};
  command.insert(command.end(), more.begin(), more.end());
  return command;
}

std::vector<std::string> ExampleCommand(const std::vector<std::string>& more = {}) {
  return EquationCommand(Utf8(Example(890110)), 890110, more);
}

void Append(ByteString& bytes, std::size_t value, int size) {
  for (int index = 0; index < size; ++index) {
    bytes.push_back(static_cast<std::byte>(value >> (8 * index) & 0xFF));
  }
}

void AppendText(ByteString& bytes, std::string_view text) {
  Append(bytes, text.size(), 4);
  for (const char unit : text) {
    Append(bytes, static_cast<unsigned char>(unit), 2);
  }
}

struct Variable {
  std::string_view name;
  std::size_t result;
  std::size_t component;
  std::size_t coefficient;  ///< its bits
};

constexpr std::size_t kOne = 0x3FF0000000000000;

ByteString MakeRecord(std::string_view equation, const std::vector<Variable>& variables) {
  ByteString bytes;
  AppendText(bytes, equation);
  Append(bytes, 0, 4);
  AppendText(bytes, "");
  AppendText(bytes, "");
  Append(bytes, variables.size(), 4);
  for (const Variable& variable : variables) {
    AppendText(bytes, variable.name);
    Append(bytes, variable.result, 4);
    Append(bytes, variable.component, 4);
    Append(bytes, variable.coefficient, 8);
  }
  return bytes;
}

TEST(EquationVerb, TheExampleReadsAsItIsDescribed) {
  std::ifstream file(Example(890110, ".json"));
  const json description = json::parse(file);
  int plots = 0;
  for (const json& record : description.at("records")) {
    if (record.at("kind") != "equation plot") {
      continue;
    }
    ++plots;
    EXPECT_EQ(record.at("stream"), kStream);
    const json answer = RunForJson(ExampleCommand());
    const json& described = record.at("values");
    const json& values = answer.at("values");
    EXPECT_EQ(answer.at("length"), record.at("length"));
    EXPECT_EQ(values.at("equation"), described.at("equation"));
    EXPECT_EQ(values.at("coefficients flag"), described.at("coefficients flag"));
    EXPECT_EQ(values.at("two strings"),
              (json{described.at("first string"), described.at("second string")}));
    EXPECT_EQ(values.at("variables").dump(), described.at("variables").dump());
    EXPECT_EQ(values.size(), 4U);
    EXPECT_EQ(answer.at("corrected"), json::object());
  }
  EXPECT_EQ(plots, 1);
}

TEST(EquationVerb, AnEquationIsShownAsAPersonReadsIt) {
  const Outcome outcome = RunTool(ExampleCommand());
  EXPECT_EQ(outcome.code, 0) << outcome;
  EXPECT_EQ(outcome.out.substr(outcome.out.find(" > ")),
            " > Plots/EquationPlot1: equation plot of version 890110, 200 bytes\n"
            "Equation        (\"Variable0\"+2*\"Variable1\")/3\n"
            "Displayed       (\"SEQ: equivalent stress\"+2*\"DMAG: displacement magnitude\")/3\n"
            "Names of study  0 Static; --study chooses another\n"
            "Coefficients    used, flag 1\n"
            "First string    \"Equation α\"\n"
            "Second string   \"kept text\"\n"
            "Variables       2\n"
            "\n"
            "placeholder  result          component                       coefficient\n"
            "-----------  --------------  ------------------------------  -----------\n"
            "\"Variable0\"  2 Stress        9 SEQ: equivalent stress                1.0\n"
            "\"Variable1\"  1 Displacement  3 DMAG: displacement magnitude       -0.125\n");
  EXPECT_EQ(outcome.err, "");
}

struct NamesCase {
  std::vector<std::string> options;
  const char* study;
  const char* stress;
  const char* displacement;
};

TEST(EquationVerb, NamesAreThoseOfTheStudyTheMeshAndTheLanguage) {
  const std::vector<NamesCase> cases = {
      {{}, "Static", "SEQ: equivalent stress", "DMAG: displacement magnitude"},
      {{"--lang", "de"}, "Static", "SEQ: Vergleichsspannung", "DMAG: Betrag der Verschiebung"},
      {{"--study", "dynamic"}, "Dynamic", "SEQ: equivalent stress", "DMAG: displacement magnitude"},
      {{"--study", "1"}, "Frequency", "", "AMAG: normalised amplitude magnitude"},
      {{"--study", "stepped"}, "Stepped", "SEQ: equivalent stress", "DMAG: displacement magnitude"},
      // A beam has no component 9.
      {{"--study", "stepped", "--mesh", "beam"}, "Stepped", "", "DMAG: displacement magnitude"},
  };
  for (const NamesCase& row : cases) {
    SCOPED_TRACE(json(row.options).dump());
    const json answer = RunForJson(ExampleCommand(row.options));
    EXPECT_EQ(answer.at("study").at("name"), row.study);
    EXPECT_EQ(answer.at("variables"),
              (json{{{"placeholder", "\"Variable0\""},
                     {"resultType", {{"code", 2}, {"name", "Stress"}}},
                     {"component", {{"index", 9}, {"name", row.stress}}},
                     {"coefficient", 1.0}},
                    {{"placeholder", "\"Variable1\""},
                     {"resultType", {{"code", 1}, {"name", "Displacement"}}},
                     {"component", {{"index", 3}, {"name", row.displacement}}},
                     {"coefficient", -0.125}}}));
    EXPECT_EQ(answer.at("displayEquation"),
              "(\"" + std::string(row.stress) + "\"+2*\"" + row.displacement + "\")/3");
  }
}

TEST(EquationVerb, AStudyWithoutTheOperandsIsDoubted) {
  const Outcome thermal = RunTool(ExampleCommand({"--study", "thermal"}));
  EXPECT_EQ(thermal.code, 0);
  EXPECT_EQ(thermal.err,
            "note: component 9 of result 2 Stress has no name in a study 3 Thermal: is --study "
            "right?\n");
  EXPECT_EQ(RunTool(ExampleCommand({"--study", "static"})).err, "");
}

TEST(EquationVerb, TheBytesOfTheVariablesAreNamedOneByOne) {
  struct Case {
    int offset;
    int length;
    const char* hex;  ///< its beginning
    const char* field;
    const char* type;
  };
  const Case cases[] = {
      {0, 62, "1D00000028002200", "equation", "string"},
      {62, 4, "01000000", "coefficients flag", "integer"},
      {66, 24, "0A00000045007100", "two strings", "string"},
      {90, 22, "090000006B006500", "two strings", "string"},
      {112, 4, "02000000", "number of variables", "integer"},
      {116, 26, "0B00000022005600", "variable 0: name", "string"},
      {142, 4, "02000000", "variable 0: result type", "integer"},
      {146, 4, "09000000", "variable 0: component", "integer"},
      {150, 8, "000000000000F03F", "variable 0: coefficient", "double"},
      {158, 26, "0B00000022005600", "variable 1: name", "string"},
      {184, 4, "01000000", "variable 1: result type", "integer"},
      {188, 4, "03000000", "variable 1: component", "integer"},
      {192, 8, "000000000000C0BF", "variable 1: coefficient", "double"},
  };
  const json bytes = RunForJson(ExampleCommand({"--bytes"})).at("bytes");
  ASSERT_EQ(bytes.size(), std::size(cases));
  for (std::size_t index = 0; index < bytes.size(); ++index) {
    const Case& row = cases[index];
    const json& answer = bytes[index];
    EXPECT_EQ(answer.at("offset"), row.offset) << answer.dump();
    EXPECT_EQ(answer.at("length"), row.length) << answer.dump();
    EXPECT_TRUE(answer.at("hex").get<std::string>().starts_with(row.hex)) << answer.dump();
    EXPECT_EQ(answer.at("field"), row.field) << answer.dump();
    EXPECT_EQ(answer.at("type"), row.type) << answer.dump();
    EXPECT_EQ(answer.at("since"), 890109) << answer.dump();
  }
  EXPECT_EQ(bytes[3].at("index"), 1);
  EXPECT_EQ(bytes[12].at("value"), -0.125);
  const Outcome text = RunTool(ExampleCommand({"--bytes"}));
  EXPECT_TRUE(Contains(text.out, "two strings [1]          string   \"kept text\"")) << text;
  EXPECT_FALSE(Contains(text.out, "placeholder")) << text;
}

TEST(EquationVerb, AnEquationWithoutVariablesHasNoTable) {
  const Folder folder;
  WriteEquationDocument(folder / "study.cfb", MakeRecord("1+1", {}));
  const Outcome outcome = RunTool(EquationCommand(folder.Name("study.cfb"), 890109));
  EXPECT_EQ(outcome.code, 0) << outcome;
  EXPECT_TRUE(Contains(outcome.out, "Displayed       1+1\n")) << outcome;
  EXPECT_TRUE(outcome.out.ends_with("Variables       0\n")) << outcome;
  EXPECT_EQ(RunForJson(EquationCommand(folder.Name("study.cfb"), 890109)).at("variables"),
            json::array());
}

TEST(EquationVerb, CodesWithoutANameAreShownAsTheyAre) {
  const Folder folder;
  WriteEquationDocument(
      folder / "study.cfb",
      MakeRecord("\"Variable0\"", {{"\"Variable0\"", 0xFFFFFFFF, 0xFFFFFFFF, 0x7FF8000000000000}}));
  const json answer = RunForJson(EquationCommand(folder.Name("study.cfb"), 890110));
  EXPECT_EQ(answer.at("variables"), (json{{{"placeholder", "\"Variable0\""},
                                           {"resultType", {{"code", -1}, {"name", nullptr}}},
                                           {"component", {{"index", -1}, {"name", ""}}},
                                           {"coefficient", "nan"}}}));
  EXPECT_EQ(answer.at("displayEquation"), "\"\"");
  const Outcome text = RunTool(EquationCommand(folder.Name("study.cfb"), 890110));
  EXPECT_TRUE(Contains(text.out, "\"Variable0\"  -1      -1                 nan\n")) << text;
  EXPECT_TRUE(Contains(text.out, "Coefficients    not used, flag 0\n")) << text;
}

TEST(EquationVerb, AnEmptyNameIsReadAsTheDefault) {
  const Folder folder;
  WriteEquationDocument(folder / "study.cfb", MakeRecord("\"Variable0\"", {{"", 2, 9, kOne}}));
  const json answer = RunForJson(EquationCommand(folder.Name("study.cfb"), 890110));
  EXPECT_EQ(answer.at("corrected"),
            (json{{"variable 0: name", {{"stored", ""}, {"read", "Variable"}}}}));
  const Outcome text = RunTool(EquationCommand(folder.Name("study.cfb"), 890110));
  EXPECT_TRUE(Contains(text.out, "Corrected       variable 0: name: \"\" -> \"Variable\"\n"))
      << text;
}

TEST(EquationVerb, ADisplayEquationThatGrowsIsCut) {
  // Every "s" is found again in "SX: stress along X": the length would have 19 digits.
  const Folder folder;
  std::vector<Variable> variables(40, {"s", 2, 0, kOne});
  variables.insert(variables.begin(), {"\"Variable0\"", 2, 0, kOne});
  WriteEquationDocument(folder / "study.cfb", MakeRecord("\"Variable0\"", variables));
  const json answer = RunForJson(EquationCommand(folder.Name("study.cfb"), 890110));
  EXPECT_LT(answer.at("displayEquation").get<std::string>().size(), 1000000U);
  EXPECT_EQ(answer.at("variables").size(), 41U);
  const Outcome text = RunTool(EquationCommand(folder.Name("study.cfb"), 890110));
  EXPECT_EQ(text.code, 0);
  EXPECT_TRUE(Contains(text.out, "\nDisplayed       \"SX: \"SX: ")) << text.out.substr(0, 300);
  EXPECT_TRUE(Contains(text.out, "…\nNames of study")) << text.out.substr(0, 300);
  EXPECT_LT(text.out.size(), 30000U);
}

// ---------------------------------------------------------------------------------------------
// Records that are not what they should be

struct RecordCase {
  const char* name;
  ByteString record;
  int version;
  int code;
  std::vector<std::string> said;
};

ByteString WithCount(std::uint32_t count) {
  ByteString bytes = EquationRecord();
  for (std::size_t index = 0; index < 4; ++index) {
    bytes[112 + index] = static_cast<std::byte>(count >> (8 * index) & 0xFF);
  }
  return bytes;
}

TEST(EquationVerb, ARecordThatDoesNotFitIsReportedToTheByte) {
  const ByteString good = EquationRecord();
  ASSERT_EQ(good.size(), 200U);
  ASSERT_EQ(good[112], std::byte{2});
  const std::vector<RecordCase> cases = {
      {"good", good, 890110, 0, {}},
      {"good, of the first version", good, 890109, 0, {}},
      {"good, of a version to come", good, 890111, 0, {}},
      {"empty", {}, 890110, 3, {" > equation > byte 0: ", "the record ends there"}},
      {"cut inside the number of variables",
       FirstBytes(good, 114),
       890110,
       3,
       {" > number of variables > byte 112: ",
        "4 bytes are needed at byte 112, and only 2 are left"}},
      {"cut before the variables",
       FirstBytes(good, 116),
       890110,
       3,
       {" > number of variables > byte 112: ",
        "the record claims 2 variables of at least 20 bytes each, and the record ends there",
        "No version has this layout"}},
      {"cut where the names of two variables fit no longer",
       FirstBytes(good, 155),
       890110,
       3,
       {"byte 112: ", "2 variables of at least 20 bytes each, and only 39 bytes are left"}},
      {"cut inside the last coefficient",
       FirstBytes(good, 199),
       890110,
       3,
       {" > variable 1: coefficient > byte 192: ",
        "8 bytes are needed at byte 192, and only 7 are left"}},
      {"left over",
       Joined(good, {1, 2, 3}),
       890110,
       3,
       {" > behind the last field > byte 200: 3 bytes are left over", "holds no equation plot"}},
      {"left over in a version to come",
       Joined(good, {1, 2, 3, 4}),
       890111,
       4,
       {" > byte 200: 4 bytes are left over", "newer than 890110", "take a newer mqpost"}},
      {"cut in a version to come",
       FirstBytes(good, 190),
       890111,
       3,
       {" > variable 1: component > byte 188: "}},
      {"one variable fewer than there are",
       WithCount(1),
       890110,
       3,
       {" > behind the last field > byte 158: 42 bytes are left over"}},
      {"minus one variables",
       WithCount(0xFFFFFFFF),
       890110,
       3,
       {" > number of variables > byte 112: ",
        "the record claims -1 variables, and 0 to 65536 are possible"}},
      {"the lowest number of variables", WithCount(0x80000000), 890110, 3, {"-2147483648"}},
      {"one variable too many",
       WithCount(65537),
       890110,
       3,
       {"65537 variables, and 0 to 65536 are possible"}},
      {"the highest number of variables, which are not there",
       WithCount(65536),
       890110,
       3,
       {"65536 variables of at least 20 bytes each, and only 84 bytes are left"}},
      {"a graph",
       NewestRecord(),
       890110,
       3,
       {"It has the layout of a graph, not of an equation plot."}},
  };
  const Folder folder;
  for (const RecordCase& row : cases) {
    SCOPED_TRACE(row.name);
    const std::string document = folder.Name("study.cfb");
    WriteEquationDocument(folder / "study.cfb", row.record);
    const Outcome outcome = RunTool(EquationCommand(document, row.version));
    EXPECT_EQ(outcome.code, row.code) << outcome;
    for (const std::string& part : row.said) {
      EXPECT_TRUE(Contains(outcome.err, part)) << part << "\n" << outcome;
    }
    if (row.code != 0) {
      EXPECT_EQ(outcome.out, "");
      EXPECT_TRUE(outcome.err.starts_with("mqpost: " + document + " > Plots/EquationPlot1 > "))
          << outcome;
    }
  }
}

TEST(EquationVerb, ADamagedRecordShowsItsBytesUpToTheDamage) {
  const Folder folder;
  WriteEquationDocument(folder / "study.cfb", WithCount(7));
  const Outcome outcome = RunTool(EquationCommand(folder.Name("study.cfb"), 890110, {"--bytes"}));
  EXPECT_EQ(outcome.code, 3);
  EXPECT_TRUE(Contains(outcome.out, " 112  07 00 00 00                number of variables"))
      << outcome;
  EXPECT_FALSE(Contains(outcome.out, "variable 0")) << outcome;
}

TEST(EquationVerb, AnEquationPlotIsNoGraph) {
  const Outcome outcome =
      RunTool({"graph", Utf8(Example(890110)) + "::" + kStream, "--doc-version", "890110"});
  EXPECT_EQ(outcome.code, 3);
  EXPECT_TRUE(Contains(outcome.err, "It has the layout of an equation plot, not of a graph."))
      << outcome;
}

TEST(EquationVerb, AMissingStreamIsAFileTroubleWithAHint) {
  const Outcome outcome = RunTool(
      {"equation", Utf8(Example(890110)) + "::Plots/EquationPlot", "--doc-version", "890110"});
  EXPECT_EQ(outcome.code, 5);
  EXPECT_TRUE(Contains(outcome.err, "Did you mean Plots/EquationPlot1")) << outcome;
}

TEST(EquationVerb, ManyVariablesTakeMemoryByTheirBytes) {
  const Folder folder;
  WriteEquationDocument(folder / "study.cfb",
                        MakeRecord("\"V\"", std::vector<Variable>(65536, {"\"V\"", 2, 0, kOne})));
  const json answer = RunForJson(EquationCommand(folder.Name("study.cfb"), 890110));
  EXPECT_EQ(answer.at("variables").size(), 65536U);
  EXPECT_EQ(answer.at("displayEquation"), "\"SX: stress along X\"");
}

}  // namespace
}  // namespace mqp::test
