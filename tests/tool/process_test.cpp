#include <cstdlib>

#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

constexpr bool kIsWindows = fs::path::preferred_separator == '\\';

std::string InQuotes(const std::string& text) {
  return '"' + text + '"';
}

std::string Content(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// Runs the executable through the command interpreter of the platform.
Outcome RunProcess(const std::string& arguments) {
  const Folder folder;
  const std::string program = fs::path(MQPOST_PROGRAM).make_preferred().string();
  std::string command = InQuotes(program) + " " + arguments + " > " +
                        InQuotes(fs::path(folder / "out").make_preferred().string()) + " 2> " +
                        InQuotes(fs::path(folder / "err").make_preferred().string());
  if (kIsWindows) {
    command = InQuotes(command);  // the interpreter takes the outermost ones off
  }
  const int status = std::system(command.c_str());
  return {kIsWindows ? status : status >> 8, Content(folder / "out"), Content(folder / "err")};
}

TEST(Process, AnswersOnItsOutputWithPlainLineEnds) {
  const Outcome outcome = RunProcess("--version");
  EXPECT_EQ(outcome.code, 0) << outcome;
  EXPECT_EQ(outcome.out, "mqpost 0.1.0\n");
  EXPECT_EQ(outcome.err, "");
}

TEST(Process, WritesUtf8) {
  const Outcome outcome = RunProcess("units 17 --json");
  EXPECT_EQ(outcome.code, 0) << outcome;
  EXPECT_EQ(json::parse(outcome.out).at("unitTypes")[0].at("names")[2], "Cal/(cm.s.°C)");
}

TEST(Process, FindsTheTranslationsBesideItself) {
  const Outcome outcome = RunProcess("strings 54578 --lang de --json");
  EXPECT_EQ(outcome.code, 0) << outcome;
  EXPECT_EQ(json::parse(outcome.out).at("strings")[0].at("translation"), "DX: Verschiebung in X");
}

TEST(Process, PrintsWhatTheFunctionPrints) {
  const std::string name = fs::path(Example(890110)).make_preferred().string();
  const Outcome process =
      RunProcess("graph " + InQuotes(name + "::Graphs/Graph2") + " --doc-version 890110");
  const Outcome function = RunTool({"graph", name + "::Graphs/Graph2", "--doc-version", "890110"});
  EXPECT_EQ(process.code, 0) << process;
  EXPECT_EQ(process.out, function.out);
}

TEST(Process, EndsWithTheExitCode) {
  const std::string name = InQuotes(fs::path(Example(890110)).make_preferred().string());
  EXPECT_EQ(RunProcess("find static stress ZZZ").code, 1);
  EXPECT_EQ(RunProcess("shwo").code, 2);
  EXPECT_EQ(RunProcess("ls " + InQuotes(fs::path(MQPOST_PROGRAM).make_preferred().string())).code,
            3);
  EXPECT_EQ(RunProcess("ls missing.cfb").code, 5);
  EXPECT_EQ(RunProcess("ls " + name).code, 0);
}

}  // namespace
}  // namespace mqp::test
