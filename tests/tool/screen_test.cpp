#include <sstream>

#include <mqpost/text.h>

#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

struct WidthCase {
  const char* text;
  int columns;
};

TEST(Columns, CountWhatATerminalDraws) {
  const WidthCase cases[] = {
      {"", 0},  {"abc", 3}, {"Übersicht", 9}, {"応力", 4}, {"e\u0301", 1},
      {"𝜎", 1}, {"ΣF", 2},  {"한글", 4},      {"\xFF", 1},
  };
  for (const WidthCase& row : cases) {
    EXPECT_EQ(tool::CountColumns(row.text), row.columns) << row.text;
  }
}

TEST(Columns, TextsAreCutAndWrappedBetweenCharacters) {
  EXPECT_EQ(tool::Shorten("応力応力", 5), "応力…");
  EXPECT_EQ(tool::Shorten("abc", 3), "abc");
  EXPECT_EQ(tool::Wrap("first principal stress", 10),
            (std::vector<std::string>{"first", "principal", "stress"}));
  EXPECT_EQ(tool::Wrap("応力応力", 5), (std::vector<std::string>{"応力", "応力"}));
  EXPECT_EQ(tool::Wrap("abcdefgh", 3), (std::vector<std::string>{"abc", "def", "gh"}));
  EXPECT_EQ(tool::Wrap("応", 1), (std::vector<std::string>{"応"}));
}

TEST(Columns, WhatWouldSteerATerminalIsSpelledOut) {
  EXPECT_EQ(tool::Printable("a\x1B[1m\n\u202Eb\u009B\x7F"), "a\\x1B[1m\\x0A\\u202Eb\\x9B\\x7F");
  EXPECT_EQ(tool::Printable("Übersicht 応力"), "Übersicht 応力");
}

TEST(Columns, NumbersReadBackAndShowThatTheyAreReal) {
  EXPECT_EQ(tool::ShowNumber(0.1), "0.1");
  EXPECT_EQ(tool::ShowNumber(-0.0), "-0.0");
  EXPECT_EQ(tool::ShowNumber(1.0), "1.0");
  EXPECT_EQ(tool::ShowNumber(5e-324), "5e-324");
  EXPECT_EQ(tool::ShowNumber(1.7976931348623157e308), "1.7976931348623157e+308");
}

TEST(Screen, NoLineIsWiderThanTheTerminal) {
  const std::string graph = Utf8(Example(890110)) + "::Graphs/Graph2";
  const std::vector<std::vector<std::string>> commands = {
      {"list"},
      {"list", "fatigue"},
      {"show", "static", "stress"},
      {"show", "dynamic", "displacement", "--mesh", "shell", "--lang", "de"},
      {"show", "stepped", "stress", "--mesh", "beam"},
      {"units"},
      {"units", "--lists"},
      {"strings", "--lang", "de"},
  };
  for (const auto& command : commands) {
    for (int width = 72; width <= 144; ++width) {
      std::istringstream lines(RunTool(command, Terminal(width)).out);
      for (std::string line; std::getline(lines, line);) {
        EXPECT_LE(tool::CountColumns(line), width) << json(command).dump() << ": " << line;
        EXPECT_FALSE(line.ends_with(' ')) << line;
      }
    }
  }
  for (const std::string option : {"", "--bytes"}) {
    std::vector<std::string> command = {"graph", graph, "--doc-version", "890110"};
    if (!option.empty()) {
      command.push_back(option);
    }
    std::istringstream lines(RunTool(command, Terminal(80)).out);
    std::string heading;
    std::getline(lines, heading);  // names the document, whose path may be long
    for (std::string line; std::getline(lines, line);) {
      EXPECT_LE(tool::CountColumns(line), 80) << line;
    }
  }
}

TEST(Screen, EquationsAndColumnsFitANarrowTerminal) {
  const std::string plot = Utf8(Example(890110)) + "::Plots/EquationPlot1";
  const std::vector<std::vector<std::string>> commands = {
      {"equation", plot, "--doc-version", "890110"},
      {"equation", plot, "--doc-version", "890110", "--lang", "de", "--study", "frequency"},
      {"equation", plot, "--doc-version", "890110", "--bytes"},
      {"equation", "check", "--study", "static",
       "(\"SX: stress along X\"+\"FRMAG: reaction force magnitude\")/\"WD: strain energy "
       "density\"-2*\"quite another name\""},
      {"columns", "frequency", "displacement", "--set", "0", "--lang", "de"},
      {"columns", "dynamic", "stress", "--set", "1", "--unit-option", "2", "--variant", "1"},
  };
  for (const auto& command : commands) {
    for (const int width : {60, 80, 120}) {
      std::istringstream lines(RunTool(command, Terminal(width)).out);
      std::string heading;
      std::getline(lines, heading);  // names the document, whose path may be long
      int count = 0;
      for (std::string line; std::getline(lines, line); ++count) {
        EXPECT_LE(tool::CountColumns(line), width) << json(command).dump() << ": " << line;
        EXPECT_FALSE(line.ends_with(' ')) << line;
      }
      EXPECT_GT(count, 3) << json(command).dump();
    }
  }
}

TEST(Screen, APipeHasNoWidth) {
  const Outcome outcome = RunTool({"show", "static", "stress"});
  EXPECT_TRUE(Contains(outcome.out,
                       "\n*9  SEQ: equivalent stress         SEQ equivalent stress  Equivalent "
                       "stress   principal 6,7,8  N/m^2  X           -  -\n"))
      << outcome;
  EXPECT_EQ(outcome.err, "");
}

TEST(Screen, ColumnsWithoutRoomAreNamed) {
  const Outcome narrow = RunTool({"show", "static", "stress"}, Terminal(80));
  EXPECT_FALSE(Contains(narrow.out, "brief name")) << narrow;
  EXPECT_TRUE(Contains(narrow.err, "no room for brief name")) << narrow;
  const Outcome wide = RunTool({"show", "static", "stress"}, Terminal(140));
  EXPECT_TRUE(Contains(wide.out, "brief name")) << wide;
  EXPECT_EQ(wide.err, "");
}

TEST(Screen, ATerminalOfFewColumnsStillGetsAnAnswer) {
  for (const int width : {1, 10, 20, 40}) {
    const Outcome outcome = RunTool({"show", "static", "stress"}, Terminal(width));
    EXPECT_EQ(outcome.code, 0) << width;
    EXPECT_TRUE(Contains(outcome.out, "SEQ:")) << width << outcome;
  }
}

TEST(Screen, ColourIsForTerminalsThatWantIt) {
  tool::Environment terminal = Terminal(100);
  const auto isColored = [](const tool::Environment& environment) {
    return Contains(RunTool({"show", "static", "stress"}, environment).out, "\x1B[");
  };
  EXPECT_FALSE(isColored(terminal));
  terminal.isColorless = false;
  EXPECT_TRUE(isColored(terminal));
  terminal.isTerminal = false;
  EXPECT_FALSE(isColored(terminal));
}

TEST(Screen, ShortNamesHaveAColumnOnlyWhereTheyDifferFromTheBarNames) {
  EXPECT_TRUE(Contains(RunTool({"show", "static", "stress"}).out, "bar, short name"));
  const Outcome beam = RunTool({"show", "stepped", "stress", "--mesh", "beam"});
  EXPECT_TRUE(Contains(beam.out, "bar name") && Contains(beam.out, "short name")) << beam;
  EXPECT_FALSE(Contains(beam.out, "bar, short name")) << beam;
}

}  // namespace
}  // namespace mqp::test
