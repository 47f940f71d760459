#include <clocale>
#include <cmath>
#include <locale>

#include "platform/make_pipe.h"
#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

void WriteText(const fs::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

std::string ReadText(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::string ExampleCurve() {
  return Utf8(fs::path(MQ_DOCUMENTS_FOLDER).parent_path() / "curve.csv");
}

/// Runs the verb on a file with this text. Messages call the file "CURVE".
Outcome RunOnText(const std::string& text, const std::vector<std::string>& more) {
  const Folder folder;
  const std::string file = folder.Name("curve.csv");
  WriteText(folder / "curve.csv", text);
  std::vector<std::string> arguments = {"curve", file};
  arguments.insert(arguments.end(), more.begin(), more.end());
  Outcome outcome = RunTool(arguments);
  for (std::size_t at = 0; (at = outcome.err.find(file)) != std::string::npos;) {
    outcome.err.replace(at, file.size(), "CURVE");
  }
  return outcome;
}

constexpr const char* kThreePoints = "0,100\n100,80\n200,60\n";

// ---------------------------------------------------------------------------------------------
// Answers

struct AnswerCase {
  const char* text;
  const char* temperature;
  double value;
  const char* place;
  std::vector<int> points;
};

TEST(CurveVerb, APointALineAndTwoFlatEndsAnswer) {
  const AnswerCase cases[] = {
      {kThreePoints, "-50", 100, "flat", {0}},
      {kThreePoints, "0", 100, "point", {0}},
      {kThreePoints, "-0.0", 100, "point", {0}},
      {kThreePoints, "100", 80, "point", {1}},
      {kThreePoints, "150", 70, "interpolated", {1, 2}},
      {kThreePoints, "+150.0", 70, "interpolated", {1, 2}},
      {kThreePoints, "1.5e2", 70, "interpolated", {1, 2}},
      {kThreePoints, "200", 60, "point", {2}},
      {kThreePoints, "250", 60, "flat", {2}},
      {"20,2e11\n", "20", 2e11, "point", {0}},
      {"20,2e11\n", "-273.15", 2e11, "flat", {0}},
      {"20,2e11\n", "21", 2e11, "flat", {0}},
      {"0,5\n100,5\n", "50", 5, "interpolated", {0, 1}},
      // Temperatures twice: the first point with it, but the last one at the end.
      {"0,1\n100,2\n100,3\n200,4\n", "100", 2, "point", {1}},
      {"0,1\n100,2\n100,3\n200,4\n", "150", 3.5, "interpolated", {2, 3}},
      {"0,1\n100,2\n100,3\n", "100", 3, "point", {2}},
      // Out of order: the first point above and the one in front of it.
      {"100,1\n50,2\n200,3\n", "50", 1, "flat", {0}},
      {"100,1\n50,2\n200,3\n", "125", 2.5, "interpolated", {1, 2}},
      {"0,1\n100,2\n50,3\n", "100", 3, "flat", {2}},
  };
  for (const AnswerCase& row : cases) {
    SCOPED_TRACE(json(row.text).dump() + " at " + row.temperature);
    const Outcome outcome = RunOnText(row.text, {"--at", row.temperature, "--json"});
    ASSERT_EQ(outcome.code, 0) << outcome;
    const json answer = json::parse(outcome.out);
    ASSERT_EQ(answer.at("answers").size(), 1U);
    const json& only = answer.at("answers")[0];
    EXPECT_EQ(only.at("value"), row.value);
    EXPECT_EQ(only.at("place"), row.place);
    EXPECT_EQ(only.at("points"), json(row.points));
  }
}

TEST(CurveVerb, TheExampleIsReadWithItsTitles) {
  EXPECT_EQ(
      RunTool({"curve", ExampleCurve(), "--at", "20", "--at", "250", "--at", "700", "--at", "-40"})
          .out,
      "temperature     value  how\n"
      "-----------  --------  -----------------------\n"
      "       20.0   2.1e+08  point\n"
      "      250.0  1.37e+08  between 200.0 and 300.0\n"
      "      700.0  1.02e+08  flat above 600.0\n"
      "      -40.0   2.1e+08  flat below 20.0\n");
  const json answer = RunForJson({"curve", ExampleCurve(), "--at", "250"});
  EXPECT_EQ(answer.at("file"), ExampleCurve());
  EXPECT_EQ(answer.at("titles"), json({"Temperature (°C)", "Yield strength (N/m^2)"}));
  EXPECT_EQ(answer.at("ascending"), true);
  ASSERT_EQ(answer.at("points").size(), 7U);
  EXPECT_EQ(answer.at("points")[0], (json{{"temperature", 20.0}, {"value", 2.1e8}, {"line", 3}}));
  EXPECT_EQ(answer.at("answers"), json::array({{{"temperature", 250.0},
                                                {"value", 1.37e8},
                                                {"place", "interpolated"},
                                                {"points", {2, 3}}}}));
  EXPECT_EQ(answer.at("svg"), nullptr);
}

TEST(CurveVerb, AnAnswerThatIsNoNumberIsAText) {
  // The differences of the largest numbers are infinite, and their quotient is nothing.
  const Outcome outcome =
      RunOnText("-1.7e308,-1.7e308\n1.7e308,1.7e308\n", {"--at", "0", "--json"});
  EXPECT_EQ(json::parse(outcome.out).at("answers")[0].at("value"), "nan") << outcome;
}

// ---------------------------------------------------------------------------------------------
// Files as people write them

struct LayoutCase {
  const char* name;
  std::string text;
  json titles = {nullptr, nullptr};
};

TEST(CurveVerb, FilesAreReadAsTheyComeFromEditorsAndSpreadsheets) {
  const json titles = {"T", "E"};
  const LayoutCase cases[] = {
      {"commas", "10,1.5\n20,2.5\n"},
      {"semicolons", "10;1.5\n20;2.5\n"},
      {"tabs", "10\t1.5\n20\t2.5\n"},
      {"blanks around", "  10 , 1.5  \n\t20 , 2.5 \n"},
      {"other ends of lines", "10,1.5\r\n20,2.5\r\n"},
      {"no end of the last line", "10,1.5\n20,2.5"},
      {"a byte order mark",
       "\xEF\xBB\xBF"
       "10,1.5\n20,2.5\n"},
      {"titles", "T,E\n10,1.5\n20,2.5\n", titles},
      {"a byte order mark and titles", "\xEF\xBB\xBFT,E\n10,1.5\n20,2.5\n", titles},
      {"titles in quotes", "\"T\",\"E\"\r\n\"10\",\"1.5\"\r\n20,2.5\r\n", titles},
      {"separators in titles",
       "\"T; or, so\",\"\"\"E\"\"\"\n10,1.5\n20,2.5\n",
       {"T; or, so", "\"E\""}},
      {"a comma in a title", "T, K;E, Pa\n10;1.5\n20;2.5\n", {"T, K", "E, Pa"}},
      {"comments and empty lines", "# steel\n\nT,E\n \r\n  # first\n10,1.5\n\n20,2.5\n\n", titles},
      {"exponents", "1e1,15E-1\n+2.0e+1,.25e1\n"},
      {"a title that begins like infinity",
       "Information,E\n10,1.5\n20,2.5\n",
       {"Information", "E"}},
  };
  for (const LayoutCase& row : cases) {
    SCOPED_TRACE(row.name);
    const Outcome outcome = RunOnText(row.text, {"--at", "15", "--json"});
    ASSERT_EQ(outcome.code, 0) << outcome;
    EXPECT_EQ(outcome.err, "");
    const json answer = json::parse(outcome.out);
    EXPECT_EQ(answer.at("titles"), row.titles);
    ASSERT_EQ(answer.at("points").size(), 2U) << outcome;
    EXPECT_EQ(answer.at("points")[0].at("temperature"), 10.0);
    EXPECT_EQ(answer.at("points")[1].at("value"), 2.5);
    EXPECT_EQ(answer.at("answers")[0].at("value"), 2.0);
  }
}

struct DamageCase {
  std::string text;
  std::string said;
};

TEST(CurveVerb, DamageIsNamedToTheColumn) {
  const DamageCase cases[] = {
      {"", "CURVE: The file has no points. Write a line for each"},
      {"\n# nothing\n\n", "CURVE: The file has no points."},
      {"T,E\n", "CURVE: The file has no points."},
      {"T,E\n10,1.5\n20,abc\n",
       "CURVE > line 3 > column 2 (value): \"abc\" is not a number of double precision. Write it "
       "with a decimal point"},
      {"10,1\nx,2\n", "CURVE > line 2 > column 1 (temperature): \"x\" is not"},
      {"T,1\n", "CURVE > line 1 > column 1 (temperature): \"T\" is not"},
      {"10,E\n", "CURVE > line 1 > column 2 (value): \"E\" is not"},
      {"T,E\nT,E\n10,1\n", "CURVE > line 2 > column 1 (temperature): \"T\" is not"},
      // Decimal commas never pass for titles or for columns.
      {"20,5;205,3\n", "CURVE > line 1 > column 1 (temperature): \"20,5\" is not"},
      {"20,5,205,3\n", "CURVE > line 1: There are 4 columns, and two are needed"},
      {"T,E\n\n10\n", "CURVE > line 3: There is one column, and two are needed: a temperature"},
      {"10 1.5\n", "CURVE > line 1: There is one column"},
      {"10,1.5,\n", "CURVE > line 1: There are 3 columns"},
      {"10,\n", "CURVE > line 1 > column 2 (value): The number is missing."},
      {",1\n", "CURVE > line 1 > column 1 (temperature): The number is missing."},
      {",\n", "CURVE > line 1 > column 1 (temperature): The number is missing."},
      {"10,1.5 MPa\n", "CURVE > line 1 > column 2 (value): \"1.5 MPa\" is not"},
      {"nan,nan\n", "CURVE > line 1 > column 1 (temperature): \"nan\" is not"},
      {"10,inf\n", "CURVE > line 1 > column 2 (value): \"inf\" is not"},
      {"10,1e999\n", "CURVE > line 1 > column 2 (value): \"1e999\" is not"},
      {"10,0x10\n", "CURVE > line 1 > column 2 (value): \"0x10\" is not"},
      {"10,+-1\n", "CURVE > line 1 > column 2 (value): \"+-1\" is not"},
      {"10,--1\n", "CURVE > line 1 > column 2 (value): \"--1\" is not"},
      {"10,1\x1B[31m\n", "CURVE > line 1 > column 2 (value): \"1\\x1B[31m\" is not"},
      {std::string("10,1\n20,\0\n", 10), "CURVE > line 2 > column 2 (value): \"\\x00\" is not"},
      {std::string("\xFF\xFE"
                   "1\0,\0",
                   6),
       "CURVE: This is UTF-16 text. Save it as UTF-8."},
      {std::string("\xFE\xFF"
                   "\0001\0,",
                   6),
       "CURVE: This is UTF-16 text."},
  };
  for (const DamageCase& row : cases) {
    SCOPED_TRACE(json(row.text).dump(-1, ' ', false, json::error_handler_t::replace));
    const Outcome outcome = RunOnText(row.text, {"--at", "15"});
    EXPECT_EQ(outcome.code, 3) << outcome;
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.starts_with("mqpost: " + row.said)) << outcome;
  }
}

TEST(CurveVerb, TemperaturesOutOfOrderAreToldAndTaken) {
  const Outcome falling = RunOnText("T,E\n100,1\n50,2\n200,3\n20,4\n", {"--at", "60"});
  EXPECT_EQ(falling.code, 0);
  EXPECT_EQ(falling.err,
            "warning: CURVE > line 3: The temperature 50.0 is below the one before, and 1 more. "
            "The curve takes its points in this order: sort the lines.\n");
  const Outcome repeated = RunOnText("10,1\n20,2\n20,3\n", {"--at", "20", "--json"});
  EXPECT_EQ(repeated.code, 0);
  EXPECT_EQ(repeated.err,
            "warning: CURVE > line 3: The temperature 20.0 stands there already. "
            "The curve answers with one of the values: keep one line for each temperature.\n");
  EXPECT_EQ(json::parse(repeated.out).at("ascending"), false);
  EXPECT_EQ(RunOnText(kThreePoints, {"--at", "60"}).err, "");
}

TEST(CurveVerb, FilesThatCannotBeReadAreFileTroubles) {
  const Folder folder;
  fs::create_directory(folder / "folder.csv");
  const Outcome missing = RunTool({"curve", folder.Name("missing.csv"), "--at", "1"});
  EXPECT_EQ(missing.code, 5);
  EXPECT_EQ(missing.err,
            "mqpost: " + folder.Name("missing.csv") + ": There is no such file. Check the path.\n");
  WriteText(folder / "large.csv", "1,2\n");
  fs::resize_file(folder / "large.csv", (64U << 20) + 1);
  const Outcome large = RunTool({"curve", folder.Name("large.csv"), "--at", "1"});
  EXPECT_EQ(large.code, 5);
  EXPECT_EQ(large.err, "mqpost: " + folder.Name("large.csv") +
                           ": The file is larger than 64 MB. Leave out what is not needed.\n");
  const Outcome unreadable = RunTool({"curve", folder.Name("folder.csv"), "--at", "1"});
  EXPECT_EQ(unreadable.code, 5);
  EXPECT_TRUE(Contains(unreadable.err, "folder.csv: This is a folder.")) << unreadable;
}

TEST(CurveVerb, WhatCannotBeUnderstoodIsSaidWithAHint) {
  const std::string file = ExampleCurve();
  const std::vector<UsageCase> cases = {
      {{"curve"}, "FILE.csv is required"},
      {{"curve", file}, "Name a temperature, as in --at 20"},
      {{"curve", file, "--at", "warm"}, "--at takes a number with a decimal point, not \"warm\""},
      {{"curve", file, "--at", "20,5"}, "not \"20,5\""},
      {{"curve", file, "--at", "nan"}, "not \"nan\""},
      {{"curve", file, "--at", "1e400"}, "not \"1e400\""},
      {{"curve", file, "--at", "20", "30"}, "one argument too many: \"30\""},
      {{"curve", file, "--att", "20"}, "Did you mean --at?"},
  };
  ExpectUsageErrors(cases);
}

TEST(CurveVerb, NoLineIsWiderThanTheTerminal) {
  for (const int width : {60, 80}) {
    const Outcome outcome = RunTool(
        {"curve", ExampleCurve(), "--at", "20", "--at", "123.456789012345"}, Terminal(width));
    EXPECT_EQ(outcome.code, 0);
    ExpectNoLineWiderThan(width, outcome.out);
  }
}

// ---------------------------------------------------------------------------------------------
// The picture

/// Whether every element of a document is closed, in the order in which they were opened, and no
/// text holds a character that must be written as an entity.
bool IsWellFormed(const std::string& xml) {
  std::vector<std::string> open;
  std::size_t at = 0;
  while ((at = xml.find('<', at)) != std::string::npos) {
    const std::size_t end = xml.find('>', at);
    if (end == std::string::npos ||
        xml.substr(at + 1, end - at - 1).find('<') != std::string::npos) {
      return false;
    }
    const std::string tag = xml.substr(at + 1, end - at - 1);
    const std::string name = tag.substr(0, tag.find_first_of(" \n"));
    if (tag.starts_with('/')) {
      if (open.empty() || "/" + open.back() != tag) {
        return false;
      }
      open.pop_back();
    } else if (!tag.ends_with('/')) {
      open.push_back(name);
    }
    at = end;
  }
  for (at = 0; (at = xml.find('&', at)) != std::string::npos; ++at) {
    const std::string entity = xml.substr(at, 4);
    if (entity != "&amp" && entity != "&lt;" && entity != "&gt;" && entity != "&quo") {
      return false;
    }
  }
  return open.empty();
}

int Count(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; at += part.size()) {
    ++count;
  }
  return count;
}

/// The picture of a file with this text.
std::string Draw(const std::string& text, const std::vector<std::string>& temperatures = {}) {
  const Folder folder;
  WriteText(folder / "curve.csv", text);
  std::vector<std::string> arguments = {"curve", folder.Name("curve.csv"), "--svg",
                                        folder.Name("curve.svg")};
  for (const std::string& temperature : temperatures) {
    arguments.insert(arguments.end(), {"--at", temperature});
  }
  const Outcome outcome = RunTool(arguments);
  EXPECT_EQ(outcome.code, 0) << outcome;
  EXPECT_TRUE(outcome.out.ends_with("Drawn: " + folder.Name("curve.svg") + "\n")) << outcome;
  EXPECT_EQ(folder.Names(), (std::vector<std::string>{"curve.csv", "curve.svg"}));
  std::string svg = ReadText(folder / "curve.svg");
  EXPECT_TRUE(IsWellFormed(svg)) << svg;
  EXPECT_FALSE(Contains(svg, "=\"nan") || Contains(svg, "=\"-nan") || Contains(svg, "inf\"") ||
               Contains(svg, "Lnan") || Contains(svg, "http://www.w3.org/1999"))
      << svg;
  return svg;
}

TEST(CurvePicture, ShowsThePointsTheLineTheFlatEndsAndTheAnswers) {
  const std::string svg = Draw("Temperature (°C),E\n0,100\n100,80\n200,60\n", {"150", "250"});
  EXPECT_EQ(Count(svg, "<circle class=\"point\""), 3 + 1);  // one in the legend
  EXPECT_EQ(Count(svg, "<path class=\"flat\""), 2);
  EXPECT_EQ(Count(svg, "<path class=\"curve\""), 1);
  EXPECT_EQ(Count(svg, "<line class=\"asked\""), 2);
  EXPECT_EQ(Count(svg, "<circle class=\"answer\""), 2);
  for (const char* part :
       {">curve.csv</text>", ">Temperature (°C)</text>", ">E</text>", ">50</text>", ">250</text>",
        ">60</text>", ">100</text>", ">150.0 → 70, between 100.0 and 200.0</text>",
        ">250.0 → 60, flat above 200.0</text>", "<title>100.0: 80.0</title>"}) {
    EXPECT_TRUE(Contains(svg, part)) << part << '\n' << svg;
  }
  EXPECT_FALSE(Contains(svg, "×10"));
}

TEST(CurvePicture, TheLineGoesThroughThePointsInTheirPlaces) {
  // With room of 8 % at both ends, the outer points lie 8/116 of the plot inside it: it is 340
  // high from 58 on, so the values 1 and 0 lie at 81.4 and 374.6, and 0.5 in the middle at 228.
  const std::string svg = Draw("0,0\n100,1\n200,0.5\n");
  EXPECT_TRUE(Contains(svg, "cy=\"374.6\" r=\"4.0\"><title>0.0: 0.0<")) << svg;
  EXPECT_TRUE(Contains(svg, "cy=\"81.4\" r=\"4.0\"><title>100.0: 1.0<")) << svg;
  EXPECT_TRUE(Contains(svg, "cy=\"228.0\" r=\"4.0\"><title>200.0: 0.5<")) << svg;
  const std::size_t path = svg.find("<path class=\"curve\" d=\"M");
  ASSERT_NE(path, std::string::npos);
  const std::string line = svg.substr(path, svg.find("/>", path) - path);
  EXPECT_TRUE(Contains(line, " 374.6 L") && Contains(line, " 81.4 L") && line.ends_with(" 228.0\""))
      << line;
}

TEST(CurvePicture, LargeAndSmallNumbersShareAPowerOfAThousand) {
  const std::string steel = Draw("20,2.1e11\n600,1.5e11\n");
  EXPECT_TRUE(Contains(steel, ">×10<tspan dy=\"-5\" font-size=\"9\">9</tspan>")) << steel;
  EXPECT_TRUE(Contains(steel, ">150</text>") && Contains(steel, ">200</text>")) << steel;
  const std::string small = Draw("1e-5,1.5e-9\n3e-5,-2e-9\n");
  EXPECT_TRUE(Contains(small, ">−9</tspan>") && Contains(small, ">−6</tspan>")) << small;
  EXPECT_TRUE(Contains(small, ">−2.0</text>") && Contains(small, ">0.0</text>")) << small;
}

TEST(CurvePicture, WhatIsHardToScaleIsDrawn) {
  for (const char* text :
       {"20,2e11\n", "0,0\n", "0,0\n100,0\n", "20,200000000000\n100,200000000001\n",
        "-1.7e308,-1.7e308\n1.7e308,1.7e308\n", "0,5e-324\n1e-323,1e-323\n", "1e15,1\n1e15,1\n",
        "-5,-5\n-4,-4\n", "0,1.7976931348623157e308\n1,1.7976931348623157e308\n"}) {
    SCOPED_TRACE(text);
    const std::string svg = Draw(text, {"0", "1e3"});
    EXPECT_GE(Count(svg, "class=\"tick middle\""), 1) << svg;
    EXPECT_GE(Count(svg, "class=\"tick end\""), 2) << svg;
    EXPECT_LT(svg.size(), 20000U);
  }
}

TEST(CurvePicture, ACurveOutOfOrderIsDrawnAsItAnswers) {
  // Flat up to the first point at 100, from there on between the second one and the third.
  const std::string svg = Draw("100,1\n50,2\n200,3\n");
  EXPECT_EQ(Count(svg, "<path class=\"curve\""), 1);
  EXPECT_EQ(Count(svg, "<path class=\"flat\""), 2);
  // A jump at a temperature that stands twice parts the line.
  EXPECT_EQ(Count(Draw("0,1\n100,2\n100,3\n200,4\n"), "<path class=\"curve\""), 2);
}

TEST(CurvePicture, NumbersOfAnswersNeverLieOverEachOther) {
  const std::string svg = Draw("0,0\n1000,1\n", {"500", "501", "900", "502"});
  std::vector<std::pair<double, double>> badges;
  const std::string begin = "<circle class=\"number\" cx=\"";
  for (std::size_t at = 0; (at = svg.find(begin, at)) != std::string::npos; ++at) {
    const double x = std::stod(svg.substr(at + begin.size()));
    const double y = std::stod(svg.substr(svg.find("cy=\"", at) + 4));
    badges.emplace_back(x, y);
  }
  ASSERT_EQ(badges.size(), 8U);  // four above the plot and four in the list
  for (std::size_t left = 0; left < badges.size(); ++left) {
    for (std::size_t right = left + 1; right < badges.size(); ++right) {
      EXPECT_GE(std::hypot(badges[left].first - badges[right].first,
                           badges[left].second - badges[right].second),
                17.0)
          << left << ' ' << right;
    }
  }
}

TEST(CurvePicture, TextsFromTheFileStayTexts) {
  const std::string svg =
      Draw("<b>T</b> & \"K\"\tE\x01 \xFF\xED\xA0\x80\xEF\xBF\xBE end\n1\t2\n3\t4\n");
  EXPECT_TRUE(Contains(svg, "&lt;b&gt;T&lt;/b&gt; &amp; &quot;K&quot;")) << svg;
  EXPECT_TRUE(Contains(svg, ">E\\x01 ") && Contains(svg, " end</text>")) << svg;
  EXPECT_FALSE(Contains(svg, "\xFF") || Contains(svg, "\xED\xA0\x80") ||
               Contains(svg, "\xEF\xBF\xBE"));
  const std::string long_ = Draw("T;" + std::string(200, 'x') + "\n1;2\n");
  EXPECT_TRUE(Contains(long_, ">" + std::string(49, 'x') + "…<")) << long_;
}

TEST(CurvePicture, AnExistingFileIsReplacedOnlyByForce) {
  const Folder folder;
  WriteText(folder / "curve.csv", kThreePoints);
  WriteText(folder / "old.svg", "old");
  const std::vector<std::string> command = {"curve", folder.Name("curve.csv"), "--svg",
                                            folder.Name("old.svg")};
  const Outcome refused = RunTool(command);
  EXPECT_EQ(refused.code, 2);
  EXPECT_EQ(refused.out, "");
  EXPECT_TRUE(Contains(refused.err, "old.svg: There is such a file already.") &&
              Contains(refused.err, "--force"))
      << refused;
  EXPECT_EQ(ReadText(folder / "old.svg"), "old");
  std::vector<std::string> forced = command;
  forced.emplace_back("--force");
  EXPECT_EQ(RunTool(forced).code, 0);
  EXPECT_TRUE(ReadText(folder / "old.svg").starts_with("<svg "));
  EXPECT_EQ(folder.Names(), (std::vector<std::string>{"curve.csv", "old.svg"}));
}

TEST(CurveVerb, AValueBeyondTheLargestNumberIsWarnedOf) {
  const Folder folder;
  WriteText(folder / "curve.csv", "20,1e308\n30,-1e308\n");
  const Outcome outcome = RunTool({"curve", folder.Name("curve.csv"), "--at", "25", "--at", "30"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_TRUE(Contains(outcome.err, "warning: ") &&
              Contains(outcome.err, "curve.csv: The value at 25.0 is beyond the largest number"))
      << outcome;
  EXPECT_FALSE(Contains(outcome.err, "30.0")) << outcome;
}

TEST(CurvePicture, TheFileThatIsReadIsNeverReplaced) {
  const Folder folder;
  WriteText(folder / "curve.csv", kThreePoints);
  const std::string file = folder.Name("curve.csv");
  const Outcome outcome = RunTool({"curve", file, "--svg", file, "--force"});
  EXPECT_EQ(outcome.code, 2);
  EXPECT_TRUE(Contains(outcome.err, "the file that is read")) << outcome;
  EXPECT_EQ(ReadText(folder / "curve.csv"), kThreePoints);
}

TEST(CurvePicture, AFolderThatIsNotThereIsAFileTrouble) {
  const Folder folder;
  const std::string file = ExampleCurve();
  const Outcome missing = RunTool({"curve", file, "--svg", folder.Name("none/curve.svg")});
  EXPECT_EQ(missing.code, 5);
  EXPECT_EQ(missing.out, "");
  EXPECT_TRUE(Contains(missing.err, "curve.svg: There is no such folder.")) << missing;
  fs::create_directory(folder / "folder.svg");
  const Outcome taken = RunTool({"curve", file, "--svg", folder.Name("folder.svg"), "--force"});
  EXPECT_EQ(taken.code, 5);
  EXPECT_TRUE(Contains(taken.err, "This is a folder.")) << taken;
}

TEST(CurvePicture, APipeIsNeverReplacedByAFile) {
  const Folder folder;
  if (!MakePipe(folder / "pipe")) {
    GTEST_SKIP() << "no pipe in the file system here";
  }
  const Outcome outcome =
      RunTool({"curve", ExampleCurve(), "--svg", folder.Name("pipe"), "--force"});
  EXPECT_EQ(outcome.code, 5);
  EXPECT_EQ(outcome.out, "");
  EXPECT_TRUE(Contains(outcome.err, "pipe: This is a device or a pipe.")) << outcome;
  EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST(CurvePicture, NothingIsDrawnOfADamagedFile) {
  const Folder folder;
  WriteText(folder / "curve.csv", "1,2\n3,x\n");
  EXPECT_EQ(RunTool({"curve", folder.Name("curve.csv"), "--svg", folder.Name("new.svg")}).code, 3);
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"curve.csv"});
}

TEST(CurvePicture, APictureTakesTenThousandPoints) {
  const auto draw = [](int count) {
    std::string text;
    for (int point = 0; point < count; ++point) {
      text += std::to_string(point) + ',' + std::to_string(point % 7) + '\n';
    }
    const Folder folder;
    WriteText(folder / "curve.csv", text);
    return RunTool({"curve", folder.Name("curve.csv"), "--svg", folder.Name("new.svg")});
  };
  EXPECT_EQ(draw(10000).code, 0);
  const Outcome refused = draw(10001);
  EXPECT_EQ(refused.code, 2);
  EXPECT_TRUE(Contains(refused.err, "These are 10001 points, and a picture takes 10000."))
      << refused;
}

class GermanNumbers : public std::numpunct<char> {
 protected:
  [[nodiscard]] char do_decimal_point() const override { return ','; }
  [[nodiscard]] char do_thousands_sep() const override { return '.'; }
  [[nodiscard]] std::string do_grouping() const override { return "\3"; }
};

TEST(CurvePicture, NumbersHaveADecimalPointInEveryLocale) {
  // Streams ask the first kind of locale and the functions of C the second, where it is installed.
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new GermanNumbers));
  for (const char* name : {"C", "de_DE.UTF-8", "German"}) {
    if (std::setlocale(LC_ALL, name) == nullptr) {
      continue;
    }
    const Outcome outcome = RunOnText("10,1.5\n2000,2.5\n", {"--at", "1502.5"});
    EXPECT_TRUE(Contains(outcome.out, "\n     1502.5   2.25  between 10.0 and 2000.0\n"))
        << outcome;
    const std::string svg = Draw("10,1.5\n2000,2.5\n", {"1502.5"});
    EXPECT_TRUE(Contains(svg, "width=\"800\"") && Contains(svg, ">1.6</text>") &&
                Contains(svg, ">1000</text>"))
        << svg;
  }
  EXPECT_NE(std::setlocale(LC_ALL, "C"), nullptr);
  std::locale::global(before);
}

}  // namespace
}  // namespace mqp::test
