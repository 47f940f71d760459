#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

std::vector<std::string> CheckCommand(const std::string& text, const std::string& study,
                                      const std::vector<std::string>& more = {}) {
  std::vector<std::string> command = {"equation", "check", text, "--study", study};
  command.insert(command.end(), more.begin(), more.end());
  return command;
}

TEST(EquationCheck, NamesBecomePlaceholdersInTheirOrder) {
  const std::string text =
      R"(("DX: displacement along X"-2*"SX: stress along X")/"DX: displacement along X")";
  const json answer = RunForJson(CheckCommand(text, "static"));
  EXPECT_EQ(answer, (json{{"schema", 1},
                          {"study", {{"code", 0}, {"name", "Static"}}},
                          {"typed", text},
                          {"equation", R"(("Variable0"-2*"Variable1")/"Variable0")"},
                          {"displayEquation", text},
                          {"isPaired", true},
                          {"variables",
                           {{{"name", "DX: displacement along X"},
                             {"isKnown", true},
                             {"placeholder", "\"Variable0\""},
                             {"resultType", {{"code", 1}, {"name", "Displacement"}}},
                             {"component", {{"index", 0}, {"name", "DX: displacement along X"}}}},
                            {{"name", "SX: stress along X"},
                             {"isKnown", true},
                             {"placeholder", "\"Variable1\""},
                             {"resultType", {{"code", 2}, {"name", "Stress"}}},
                             {"component", {{"index", 0}, {"name", "SX: stress along X"}}}}}}}))
      << answer.dump(1);
}

struct NameCase {
  const char* name;
  const char* study;
  std::vector<std::string> more;
  int code;
  int result;
  int component;
};

TEST(EquationCheck, ANameIsLookedForInTheResultsOfTheStudy) {
  const std::vector<NameCase> cases = {
      {"TYZ: shear stress in plane YZ", "static", {}, 0, 2, 5},
      {"BG: beam stress G", "static", {}, 0, 59, 6},
      {"WD: strain energy density", "static", {}, 0, 3, 7},
      {"FRMAG: reaction force magnitude", "static", {}, 0, 1, 7},
      {"HFZ: heat flux along Z", "thermal", {}, 0, 5, 7},
      {"TEMP: temperature", "static", {}, 1, -1, -1},
      {"SX: stress along X", "thermal", {}, 1, -1, -1},
      {"AY: normalised amplitude along Y", "1", {}, 0, 1, 1},
      {"SVEC: directional stress", "stepped", {}, 0, 2, 13},
      {"SVEC: directional stress", "dynamic", {}, 1, -1, -1},
      {"ROTX: rotation about X", "static", {}, 1, -1, -1},
      {"ROTX: rotation about X", "static", {"--mesh", "shell"}, 0, 1, 8},
      {"DX: Verschiebung in X", "static", {}, 1, -1, -1},
      {"DX: Verschiebung in X", "static", {"--lang", "de"}, 0, 1, 0},
      {"DX: displacement along X", "static", {"--lang", "de"}, 1, -1, -1},
      // Offered as stresses of the beam mesh, whose names the look-up of stresses does not know.
      {"BA: beam stress A", "dynamic", {"--mesh", "beam"}, 1, 2, -1},
      // Only whole names, exactly as they are.
      {"TYZ", "static", {}, 1, -1, -1},
      {"TYZ: shear stress in plane yz", "static", {}, 1, -1, -1},
      {" TYZ: shear stress in plane YZ", "static", {}, 1, -1, -1},
      {"", "static", {}, 1, -1, -1},
      {"Variable0", "static", {}, 1, -1, -1},
  };
  for (const NameCase& row : cases) {
    SCOPED_TRACE(std::string(row.name) + " " + row.study);
    const json answer =
        RunForJson(CheckCommand('"' + std::string(row.name) + '"', row.study, row.more), row.code);
    ASSERT_EQ(answer.at("variables").size(), 1U);
    const json& variable = answer.at("variables")[0];
    EXPECT_EQ(variable.at("name"), row.name);
    EXPECT_EQ(variable.at("isKnown"), row.code == 0);
    EXPECT_EQ(variable.at("resultType").at("code"), row.result);
    EXPECT_EQ(variable.at("component").at("index"), row.component);
    EXPECT_EQ(variable.at("component").at("name"), row.code == 0 ? row.name : "");
  }
}

struct HintCase {
  const char* name;
  const char* hint;
};

TEST(EquationCheck, WhoTypesANameAlmostRightGetsTheNameItself) {
  const HintCase cases[] = {
      {"SX", "Did you mean \"SX: stress along X\""},
      {"sx", "Did you mean \"SX: stress along X\""},
      {"SX:", "Did you mean \"SX: stress along X\""},
      {"SX:stress along X", "Did you mean \"SX: stress along X\""},
      {"SX : stress along X", "Did you mean \"SX: stress along X\""},
      {"sx: Stress along x", "Did you mean \"SX: stress along X\""},
      {"stress along X", "Did you mean \"SX: stress along X\""},
      {"stres along X", "\"SX: stress along X\""},
      {"equivalent", "Did you mean \"SEQ: equivalent stress\"?"},
      {"SEQ (N/m^2)", "Did you mean \"SEQ: equivalent stress\""},
      {"FRMGA", "Did you mean \"FRMAG: reaction force magnitude\""},
  };
  for (const HintCase& row : cases) {
    const Outcome outcome = RunTool(CheckCommand('"' + std::string(row.name) + '"', "static"));
    EXPECT_EQ(outcome.code, 1) << row.name;
    EXPECT_TRUE(
        Contains(outcome.err, "No component for an equation of a study 0 Static is called \"" +
                                  std::string(row.name) + "\"."))
        << outcome;
    EXPECT_TRUE(Contains(outcome.err, row.hint)) << row.name << '\n' << outcome;
  }
  const Outcome alien = RunTool(CheckCommand("\"qqqqqqq\"", "static"));
  EXPECT_EQ(alien.code, 1);
  EXPECT_FALSE(Contains(alien.err, "Did you mean")) << alien;
  // The names of a fatigue study are the same in every result.
  const Outcome life = RunTool(CheckCommand("\"LIFE\"", "fatigue"));
  EXPECT_TRUE(Contains(life.err, "Did you mean \"LIFE: fatigue life\"?")) << life;
}

TEST(EquationCheck, ANameThatTheStudyHasElsewhereIsToldApart) {
  const Outcome velocity = RunTool(CheckCommand("\"VX: velocity along X\"", "stepped"));
  EXPECT_EQ(velocity.code, 1);
  EXPECT_TRUE(Contains(velocity.err, "It is one of 19 Velocity, which equations cannot have"))
      << velocity;
  const Outcome moment = RunTool(CheckCommand("\"MRX: reaction moment about X\"", "static"));
  EXPECT_EQ(moment.code, 1);
  EXPECT_TRUE(Contains(moment.err, " With --mesh shell there is one.\n")) << moment;
}

TEST(EquationCheck, EveryUnknownNameIsNamedOnce) {
  const Outcome outcome =
      RunTool(CheckCommand(R"("qqq"+"SX: stress along X"+"rrr"-"qqq")", "static"));
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.err,
            "mqpost: No component for an equation of a study 0 Static is called \"qqq\".\n"
            "mqpost: No component for an equation of a study 0 Static is called \"rrr\".\n");
  EXPECT_EQ(outcome.out,
            "Equation for study 0 Static\n"
            "Typed      \"qqq\"+\"SX: stress along X\"+\"rrr\"-\"qqq\"\n"
            "Stored     \"Variable0\"+\"Variable1\"+\"Variable2\"-\"Variable0\"\n"
            "Displayed  \"\"+\"SX: stress along X\"+\"\"-\"\"\n"
            "\n"
            "placeholder  name                result    component\n"
            "-----------  ------------------  --------  ---------\n"
            "\"Variable0\"  qqq                 unknown   -\n"
            "\"Variable1\"  SX: stress along X  2 Stress  0\n"
            "\"Variable2\"  rrr                 unknown   -\n");
}

struct MarkCase {
  const char* text;
  std::size_t names;
  const char* said;
};

TEST(EquationCheck, AQuotationMarkWithoutAPartnerIsAFinding) {
  const MarkCase cases[] = {
      {R"(")", 0, "behind it stands \"\"."},
      {R"("SX: stress along X" + "SY)", 1, "behind it stands \"SY\"."},
      {R"(SX: stress along X")", 0, "behind it stands \"\"."},
      {R"("SX: stress along X"")", 1, "behind it stands \"\"."},
  };
  for (const MarkCase& row : cases) {
    const json answer = RunForJson(CheckCommand(row.text, "static"), 1);
    EXPECT_EQ(answer.at("isPaired"), false) << row.text;
    EXPECT_EQ(answer.at("variables").size(), row.names) << row.text;
    const Outcome outcome = RunTool(CheckCommand(row.text, "static"));
    EXPECT_TRUE(Contains(outcome.err, "The last quotation mark has no partner") &&
                Contains(outcome.err, row.said))
        << outcome;
    EXPECT_FALSE(Contains(outcome.err, "note:")) << outcome;
  }
}

TEST(EquationCheck, AnEquationWithoutNamesIsFineWithANote) {
  for (const std::string text : {"2*3", "SX: stress along X", ""}) {
    const Outcome outcome = RunTool(CheckCommand(text, "static"));
    EXPECT_EQ(outcome.code, 0) << outcome;
    EXPECT_TRUE(outcome.err.starts_with("note: the equation has no names.")) << outcome;
    EXPECT_FALSE(Contains(outcome.out, "placeholder")) << outcome;
  }
}

TEST(EquationCheck, ANameThatTheLookUpDoesNotFindIsSaidToBeSo) {
  const Outcome outcome =
      RunTool(CheckCommand("\"BA: beam stress A\"", "dynamic", {"--mesh", "beam"}));
  EXPECT_EQ(outcome.code, 1);
  EXPECT_TRUE(Contains(outcome.err, "\"BA: beam stress A\" is offered for result 2 Stress"))
      << outcome;
  EXPECT_TRUE(Contains(outcome.out, "\"Variable0\"  BA: beam stress A  2 Stress  none\n"))
      << outcome;
}

TEST(EquationCheck, TheWordMayStandBehindOptions) {
  EXPECT_EQ(RunTool({"equation", "--study", "static", "check", "\"SX: stress along X\""}).code, 0);
}

TEST(EquationCheck, AMinusInFrontStandsBehindTwo) {
  const Outcome outcome =
      RunTool({"equation", "check", "--study", "static", "--", "-\"SX: stress along X\""});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_TRUE(Contains(outcome.out, "Stored     -\"Variable0\"\n")) << outcome;
}

TEST(EquationCheck, TextsThatAreNoUtf8DoNoHarm) {
  const json answer = RunForJson(CheckCommand("\"\xFFX\xC3\"", "static"), 1);
  EXPECT_EQ(answer.at("variables")[0].at("name"), "\uFFFDX\uFFFD");
  EXPECT_EQ(answer.at("equation"), "\"Variable0\"");
}

}  // namespace
}  // namespace mqp::test
