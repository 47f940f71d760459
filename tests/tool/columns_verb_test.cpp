#include <mqPostCommon/mqPostCommon.h>

#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

std::vector<std::string> ColumnsCommand(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "columns");
  return arguments;
}

/// The values of one key of every column.
template <class Value>
std::vector<Value> EachColumn(const json& answer, const char* key) {
  std::vector<Value> values;
  for (const json& column : answer.at("columns")) {
    values.push_back(column.at(key).get<Value>());
  }
  return values;
}

using Texts = std::vector<std::string>;
using Indices = std::vector<int>;

TEST(ColumnsVerb, AListOfASetIsShownColumnByColumn) {
  const Outcome outcome = RunTool(ColumnsCommand({"static", "displacement", "--set", "0"}));
  EXPECT_EQ(outcome.code, 0) << outcome;
  EXPECT_EQ(outcome.out,
            "List of set 0 of result 1 Displacement in study 0 Static\n"
            "Unit  0 Length, unit 0 \"mm\"\n"
            "\n"
            "column  title  short name  component  full name\n"
            "------  -----  ----------  ---------  ----------------------------\n"
            "     0  Node   -                   -  -\n"
            "     1  DX     DX                  0  DX: displacement along X\n"
            "     2  DY     DY                  1  DY: displacement along Y\n"
            "     3  DZ     DZ                  2  DZ: displacement along Z\n"
            "     4  DMAG   DMAG                3  DMAG: displacement magnitude\n");
  EXPECT_EQ(outcome.err, "");
}

TEST(ColumnsVerb, AListWithoutASetHasOneComponent) {
  EXPECT_EQ(RunForJson(ColumnsCommand({"static", "stress", "--component", "6", "--unit", "3"})),
            (json{{"schema", 1},
                  {"study", {{"code", 0}, {"name", "Static"}}},
                  {"result", {{"code", 2}, {"name", "Stress"}}},
                  {"set", nullptr},
                  {"sets", {0, 1}},
                  {"component", 6},
                  {"unitType", {{"code", 4}, {"name", "Stress"}}},
                  {"unit", {{"index", 3}, {"name", "N/mm^2 (MPa)"}}},
                  {"columns",
                   {{{"title", "Node"}, {"shortName", ""}, {"name", ""}, {"component", -1}},
                    {{"title", "SP1"},
                     {"shortName", "SP1"},
                     {"name", "SP1: first principal stress"},
                     {"component", 6}}}}}));
  // The default of the result, when no component is named.
  const json stress = RunForJson(ColumnsCommand({"static", "stress"}));
  EXPECT_EQ(EachColumn<std::string>(stress, "title"), (Texts{"Node", "SEQ"}));
  EXPECT_EQ(stress.at("component"), 9);
}

struct TitlesCase {
  std::vector<std::string> arguments;
  Texts titles;
  Indices components;
  int unitType;
};

TEST(ColumnsVerb, OptionsReachTheList) {
  const std::vector<TitlesCase> cases = {
      {{"static", "displacement", "--set", "1"},
       {"Node", "FRX", "FRY", "FRZ", "FRMAG"},
       {-1, 4, 5, 6, 7},
       2},
      {{"0", "1", "--set", "2"}, {"Node", "ROTX", "ROTY", "ROTZ"}, {-1, 8, 9, 10}, 9},
      {{"frequency", "displacement", "--set", "0"},
       {"Node", "AX", "AY", "AZ", "AMAG"},
       {-1, 0, 1, 2, 3},
       9999},
      {{"frequency", "displacement", "--set", "0", "--actual-frequency"},
       {"Node", "DX", "DY", "DZ", "DMAG"},
       {-1, 0, 1, 2, 3},
       0},
      {{"static", "strain", "--set", "2"},
       {"Node", "EP1", "EP2", "EP3", "ES"},
       {-1, 9, 10, 11, 6},
       9999},
      {{"stepped", "strain", "--set", "2"}, {"Node", "ES"}, {-1, 6}, 9999},
      {{"static", "strain", "--set", "4"}, {"Node", "WT"}, {-1, 8}, 19},
      {{"thermal", "thermal", "--set", "1"},
       {"Node", "HFX", "HFY", "HFZ", "HFMAG"},
       {-1, 5, 6, 7, 8},
       7},
      {{"static", "displacement", "--set", "2", "--variant", "1"},
       {"Element", "ROTX", "ROTY", "ROTZ"},
       {-1, 8, 9, 10},
       9},
      {{"dynamic", "stress", "--set", "1"},
       {"Node", "SP1", "SP2", "SP3", "SEQ", "SA", "SB"},
       {-1, 6, 7, 8, 9, 10, 11},
       4},
      // The titles of a spectral list are one column ahead of the components.
      {{"dynamic", "stress", "--set", "1", "--unit-option", "2"},
       {"Node", "SP2", "SP3", "SEQ", "SA", "SB", ""},
       {-1, 6, 7, 8, 9, 10, 11},
       4},
      {{"dynamic", "stress", "--set", "1", "--unit-option", "2", "--variant", "1"},
       {"Element", "SEQ", "SEQ", "SEQ", "SEQ", "SEQ", "SEQ"},
       {-1, 6, 7, 8, 9, 10, 11},
       4},
      {{"dynamic", "stress", "--set", "1", "--component", "100"},
       {"Node", "SP1", "SP2", "SP3", "SPB", "SA", "SB"},
       {-1, 6, 7, 8, 100, 10, 11},
       4},
      // One column for every set, named by the listed component.
      {{"fatigue", "fatigueresult", "--set", "7", "--component", "4"},
       {"Node", "LIFE"},
       {-1, 0},
       9999},
      // The set belongs to the result; the study has none of the components.
      {{"thermal", "stress", "--set", "0"},
       {"Node", "SX", "SY", "SZ", "TXY", "TXZ", "TYZ"},
       {-1, -1, -1, -1, -1, -1, -1},
       9999},
  };
  for (const TitlesCase& row : cases) {
    SCOPED_TRACE(json(row.arguments).dump());
    const json answer = RunForJson(ColumnsCommand(row.arguments));
    EXPECT_EQ(EachColumn<std::string>(answer, "title"), row.titles);
    EXPECT_EQ(EachColumn<int>(answer, "component"), row.components);
    EXPECT_EQ(answer.at("unitType").at("code"), row.unitType);
  }
}

TEST(ColumnsVerb, ASetWithoutComponentsInTheStudyIsNoted) {
  const Outcome lacking = RunTool(ColumnsCommand({"thermal", "stress", "--set", "0"}));
  EXPECT_EQ(lacking.code, 0);
  EXPECT_EQ(lacking.err, "note: no column has a component in this study\n");
  EXPECT_EQ(RunTool(ColumnsCommand({"static", "stress", "--set", "0"})).err, "");
}

TEST(ColumnsVerb, NamesAreInTheLanguageThatIsAskedFor) {
  const json answer =
      RunForJson(ColumnsCommand({"static", "displacement", "--set", "0", "--lang", "de"}));
  EXPECT_EQ(answer.at("columns")[0].at("title"), "Knoten");
  EXPECT_EQ(answer.at("columns")[1].at("name"), "DX: Verschiebung in X");
}

TEST(ColumnsVerb, AUnitThatThereIsNotIsShownAsSuch) {
  const Outcome outcome = RunTool(ColumnsCommand({"static", "stress", "--unit", "77"}));
  EXPECT_EQ(outcome.code, 0);
  EXPECT_TRUE(Contains(outcome.out, "Unit  4 Stress, unit 77 (there is no such unit)\n"))
      << outcome;
  const Outcome none = RunTool(ColumnsCommand({"static", "strain", "--set", "0"}));
  EXPECT_TRUE(Contains(none.out, "Unit  9999 None\n")) << none;
}

struct NoColumnsCase {
  std::vector<std::string> arguments;
  const char* said;
};

TEST(ColumnsVerb, ColumnsThatThereAreNotAreAFinding) {
  const std::vector<NoColumnsCase> cases = {
      {{"static", "stress", "--set", "2"},
       "result 2 Stress in a study 0 Static has no set 2. Its sets are 0, 1."},
      {{"static", "strain", "--set", "3"}, "has no set 3. Its sets are 0, 1, 2, 4."},
      {{"static", "displacement", "--set", "-1"}, "has no set -1. Its sets are 0, 1, 2, 3."},
      {{"static", "factorofsafety", "--set", "0"}, "has no set 0. It has no sets."},
      {{"static", "stress", "--component", "77"},
       "result 2 Stress in a study 0 Static has no component 77. Its sets are 0, 1."},
      {{"77", "77"}, "result 77 in a study 77 has no component 0. It has no sets."},
      {{"fatigue", "fatigueresult", "--set", "0", "--component", "9"}, "has no set 0."},
  };
  for (const NoColumnsCase& row : cases) {
    const Outcome outcome = RunTool(ColumnsCommand(row.arguments));
    SCOPED_TRACE(json(row.arguments).dump());
    EXPECT_EQ(outcome.code, 1) << outcome;
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.starts_with("mqpost: There are no such columns: ")) << outcome;
    EXPECT_TRUE(Contains(outcome.err, row.said)) << outcome;
  }
  const json empty = RunForJson(ColumnsCommand({"static", "stress", "--set", "2"}), 1);
  EXPECT_EQ(EachColumn<std::string>(empty, "title"), Texts{"Node"});
  EXPECT_EQ(empty.at("sets"), json({0, 1}));
}

TEST(ColumnsVerb, NothingOfARunStaysBehind) {
  RunTool(ColumnsCommand({"frequency", "displacement", "--actual-frequency"}));
  EXPECT_EQ(vekPostCommonGetActualFreqDispFlag(), 0);
}

}  // namespace
}  // namespace mqp::test
