#include <ostream>
#include <streambuf>

#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

TEST(CommandLine, HelpSaysEverythingAndIsFine) {
  for (const std::string help : {"--help", "-h", "help"}) {
    const Outcome outcome = RunTool({help});
    EXPECT_EQ(outcome.code, 0) << help;
    for (const char* part : {"list", "show", "find", "units", "strings", "ls", "graph", "convert",
                             "columns", "equation", "equation check", "material", "curve",
                             "components", "Exit codes:", "  5  ", "NO_COLOR"}) {
      EXPECT_TRUE(Contains(outcome.out, part)) << part;
    }
  }
  for (const std::string verb :
       {"list", "show", "find", "columns", "units", "strings", "ls", "graph", "equation", "convert",
        "material", "curve", "components"}) {
    const Outcome outcome = RunTool({verb, "--help"});
    EXPECT_EQ(outcome.code, 0) << verb;
    EXPECT_TRUE(Contains(outcome.out, "Usage: mqpost " + verb)) << outcome;
    EXPECT_TRUE(Contains(outcome.out, "Example:\n  mqpost " + verb)) << outcome;
    EXPECT_EQ(outcome.err, "") << verb;
  }
  EXPECT_EQ(RunTool({"--version"}).out, "mqpost 0.1.0\n");
}

TEST(CommandLine, WhatCannotBeUnderstoodIsSaidWithAHint) {
  const std::string document = Utf8(Example(890110));
  const std::vector<UsageCase> cases = {
      {{}, "Name a verb"},
      {{"shwo"}, "There is no verb \"shwo\". Did you mean show?"},
      {{"--hlep"}, "Did you mean --help?"},
      {{"qqqqqq"}, "See mqpost --help"},
      {{"show"}, "STUDY is required"},
      {{"show", "static"}, "RESULT is required"},
      {{"show", "statc", "stress"}, "There is no study \"statc\". Did you mean Static?"},
      {{"show", "static", "acelleration"}, "Did you mean Acceleration?"},
      {{"show", "static", "qqqqqq"}, "Known are ResultType0, Displacement"},
      {{"show", "static", "stress", "--mehs", "solid"}, "Did you mean --mesh"},
      {{"show", "static", "stress", "--mesh", "shel"}, "Did you mean shell?"},
      {{"show", "static", "stress", "--units", "ipss"},
       "no unit system \"ipss\". Did you mean ips?"},
      {{"show", "static", "stress", "--mesh-flags", "2x"}, "whole number"},
      {{"show", "static", "99999999999"}, "There is no result"},
      {{"show", "static", "stress", "more"}, "one argument too many: \"more\""},
      {{"list", "dinamic"}, "Did you mean Dynamic?"},
      {{"units", "lenght"}, "Did you mean Length"},
      {{"units", "length", "--lists"}, "--lists"},
      {{"strings", "abc"}, "An ID is a number"},
      {{"strings", "--missing"}, "add --lang"},
      {{"graph", document, "--doc-version", "890110"}, "joined by \"::\""},
      {{"graph", document + "::", "--doc-version", "890110"}, "joined by \"::\""},
      {{"graph", "::Graphs/Graph1", "--doc-version", "890110"}, "joined by \"::\""},
      {{"graph", document + "::Graphs/Graph1"}, "--doc-version is missing"},
      {{"graph", document + "::Graphs/Graph1", "--doc-version", "new"}, "whole number"},
      {{"graph", document + "::Graphs/Graph1", "--doc-version", "800017"},
       "from version 800018 on"},
      {{"equation", document + "::Plots/EquationPlot1"}, "--doc-version is missing"},
      {{"equation", document + "::Plots/EquationPlot1", "--doc-version", "890108"},
       "documents have equation plots from version 890109 on"},
      {{"equation", document, "--doc-version", "890110"}, "joined by \"::\""},
      {{"equation", document + "::Plots/EquationPlot1", "--doc-version", "890110", "--study", "x"},
       "There is no study \"x\""},
      {{"equation", "check"}, "TEXT is required. See mqpost equation check --help"},
      {{"equation", "check", "1"}, "--study is missing"},
      {{"equation", "check", "1", "--study", "statik"}, "Did you mean Static?"},
      {{"equation", "check", "1", "2", "--study", "static"}, "one argument too many: \"2\""},
      {{"equaton"}, "There is no verb \"equaton\". Did you mean equation?"},
      {{"columns", "static"}, "RESULT is required"},
      {{"columns", "static", "stress", "--set", "all"}, "--set takes a whole number"},
      {{"convert", document, "--doc-version", "890110"}, "-o is missing"},
      {{"convert", document, "-o", "x.cfb"}, "--doc-version is missing"},
      {{"convert", document, "-o", "x.cfb", "--doc-version", "-1"}, "from version 800018 on"},
  };
  ExpectUsageErrors(cases);
}

TEST(CommandLine, ErrorsAreTextEvenWhereJsonIsAskedFor) {
  const Outcome outcome = RunTool({"show", "statc", "stress", "--json"});
  EXPECT_EQ(outcome.code, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_TRUE(outcome.err.starts_with("mqpost: ")) << outcome;
}

TEST(CommandLine, ArgumentsThatAreNoUtf8DoNoHarm) {
  const json answer = RunForJson({"find", "static", "stress", "\xFFX\xC3"}, 1);
  EXPECT_EQ(answer.at("name"), "\uFFFDX\uFFFD");
  EXPECT_EQ(RunTool({"show", "\xFF", "stress"}).code, 2);
}

class FullDisk : public std::streambuf {
 protected:
  int_type overflow(int_type) override { return traits_type::eof(); }
};

TEST(CommandLine, OutputThatCannotBeWrittenIsAFileTrouble) {
  FullDisk full;
  std::ostream out(&full);
  std::ostringstream err;
  EXPECT_EQ(tool::Run({"list"}, out, err, PipedEnvironment()), 5);
  EXPECT_TRUE(Contains(err.str(), "standard output")) << err.str();
}

}  // namespace
}  // namespace mqp::test
