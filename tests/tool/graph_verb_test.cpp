#include <array>
#include <fstream>

#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

std::vector<std::string> GraphCommand(const std::string& document, const std::string& stream,
                                      int version) {
  return {"graph", document + "::" + stream, "--doc-version", std::to_string(version)};
}

constexpr std::array kVersions = {800018, 800062, 820022, 870002, 890005, 890110};

TEST(GraphVerb, EveryExampleReadsAsItIsDescribed) {
  int graphs = 0;
  for (const int version : kVersions) {
    std::ifstream file(Example(version, ".json"));
    const json description = json::parse(file);
    for (const json& record : description.at("records")) {
      if (record.at("kind") != "graph") {
        continue;
      }
      ++graphs;
      const std::string stream = record.at("stream").get<std::string>();
      SCOPED_TRACE(std::to_string(version) + " " + stream);
      const json answer = RunForJson(GraphCommand(Utf8(Example(version)), stream, version));
      EXPECT_EQ(answer.at("length"), record.at("length"));
      EXPECT_EQ(answer.at("values").size(), record.at("values").size());
      for (const auto& [key, value] : record.at("values").items()) {
        EXPECT_EQ(answer.at("values").value(key, json()).dump(), value.dump()) << key;
      }
      const json otherwise = record.value("stored otherwise", json::object());
      EXPECT_EQ(answer.at("corrected").size(), otherwise.size());
      for (const auto& [key, value] : otherwise.items()) {
        const json correction = answer.at("corrected").value(key, json());
        EXPECT_EQ(correction, (json{{"stored", value}, {"read", record.at("values").at(key)}}));
      }
    }
  }
  EXPECT_EQ(graphs, 12);
}

TEST(GraphVerb, AGraphIsNamedAndItsAxesAreExplained) {
  const json answer = RunForJson(GraphCommand(Utf8(Example(890110)), "Graphs/Graph1", 890110));
  EXPECT_EQ(answer.at("defaultPlotName"), "Time or step-FRY reaction force");
  EXPECT_EQ(answer.at("yTitle"), "FRY reaction force (N)");
  EXPECT_EQ(answer.at("folder"), "Response");
  EXPECT_EQ(answer.at("graphKind"), (json{{"code", 13}, {"name", "response graph"}}));
  EXPECT_EQ(answer.at("study"), (json{{"code", 0}, {"name", "Static"}}));
  EXPECT_EQ(answer.at("result"), (json{{"code", 1}, {"name", "Displacement"}}));
  EXPECT_EQ(answer.at("xAxis"), (json{{"quantityType", {{"code", 14}, {"name", "Time or step"}}},
                                      {"component", {{"index", 0}, {"name", ""}}},
                                      {"unit", {{"index", 2}, {"name", ""}}},
                                      {"sensor", 0}}));
  EXPECT_EQ(answer.at("yAxis"),
            (json{{"quantityType", {{"code", 1}, {"name", "Displacement"}}},
                  {"component", {{"index", 5}, {"name", "FRY: reaction force along Y"}}},
                  {"unit", {{"index", 0}, {"name", "N"}}},
                  {"sensor", -1}}));
}

TEST(GraphVerb, FieldsThatTheVersionLacksAreNamed) {
  const json old = RunForJson(GraphCommand(Utf8(Example(890005)), "Graphs/Graph1", 890005));
  EXPECT_EQ(old.at("defaulted"), json({"last integer"}));
  const json oldest = RunForJson(GraphCommand(Utf8(Example(800018)), "Graphs/Graph1", 800018));
  EXPECT_EQ(oldest.at("defaulted").size(), 16U);
  EXPECT_EQ(oldest.at("defaulted")[0], "X axis sensor");
}

TEST(GraphVerb, TheBytesAreExplainedWithoutAGap) {
  std::vector<std::string> command = GraphCommand(Utf8(Example(890110)), "Graphs/Graph1", 890110);
  command.emplace_back("--bytes");
  const json answer = RunForJson(command);
  std::size_t end = 0;
  for (const json& row : answer.at("bytes")) {
    EXPECT_EQ(row.at("offset"), end) << row.dump();
    EXPECT_EQ(row.at("hex").get<std::string>().size(), 2 * row.at("length").get<std::size_t>());
    end += row.at("length").get<std::size_t>();
  }
  EXPECT_EQ(end, 468U);
  EXPECT_EQ(answer.at("bytes")[1], (json{{"offset", 4},
                                         {"length", 4},
                                         {"hex", "01000000"},
                                         {"field", "result type"},
                                         {"index", 0},
                                         {"type", "integer"},
                                         {"value", 1},
                                         {"since", 800018}}));
  // What is stored, not what the library makes of it.
  for (const json& row : answer.at("bytes")) {
    if (row.at("field") == "Y unit flag") {
      EXPECT_EQ(row.at("value"), 0);
    }
  }
  const Outcome text = RunTool(command);
  EXPECT_TRUE(Contains(text.out, "07 00 00 00 47 00 72 00 …")) << text;
}

TEST(GraphVerb, TextsFromADocumentDoNotSteerTheTerminal) {
  const Outcome outcome = RunTool(GraphCommand(Utf8(Example(890110)), "Graphs/Graph2", 890110));
  EXPECT_EQ(outcome.code, 0);
  EXPECT_TRUE(Contains(outcome.out, "\"tab\\x09and\\x0Aline\"")) << outcome;
  EXPECT_TRUE(Contains(outcome.out, "…\" (1024 units)")) << outcome;
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

TEST(GraphVerb, ARecordThatDoesNotFitIsReportedToTheByte) {
  const ByteString good = NewestRecord();
  ASSERT_EQ(good.size(), 468U);
  // The count of the first string stands behind seventeen integers.
  ByteString longText = good;
  longText[68] = std::byte{0x01};
  longText[69] = std::byte{0x04};
  longText[70] = longText[71] = std::byte{0};
  ByteString negativeText = good;
  for (int index = 68; index < 72; ++index) {
    negativeText[static_cast<std::size_t>(index)] = std::byte{0xFF};
  }
  const std::vector<RecordCase> cases = {
      {"good", good, 890110, 0, {}},
      {"good, of a version to come", good, 890111, 0, {}},
      {"empty",
       {},
       890110,
       3,
       {" > Graphs/Graph1 > analysis type > byte 0: ", "the record ends there"}},
      {"cut inside an integer",
       FirstBytes(good, 6),
       890110,
       3,
       {" > result type > byte 4: ", "4 bytes are needed at byte 4, and only 2 are left",
        "No version has this layout"}},
      {"cut before the last field",
       FirstBytes(good, 464),
       890110,
       3,
       {" > last integer > byte 464: ", "the layout of the versions 890005 to 890109",
        "check --doc-version"}},
      {"a newer record than said",
       good,
       890005,
       3,
       {" > byte 464: 4 bytes are left over", "the layout of the versions 890110 and later"}},
      {"left over",
       Joined(good, {1, 2, 3}),
       890110,
       3,
       {" > behind the last field > byte 468: 3 bytes are left over",
        "No version has this layout"}},
      {"left over in a version to come",
       Joined(good, {1, 2, 3, 4}),
       890111,
       4,
       {" > byte 468: 4 bytes are left over", "newer than 890110", "take a newer mqpost"}},
      {"cut in a version to come",
       FirstBytes(good, 460),
       890111,
       3,
       {" > double after the four integers > byte 456: "}},
      {"a text of 1025 units",
       longText,
       890110,
       3,
       {" > three strings [0] > byte 68: ", "1025 code units, and 0 to 1024 are possible"}},
      {"a text of -1 units", negativeText, 890110, 3, {"byte 68: ", "-1 code units"}},
  };
  const Folder folder;
  for (const RecordCase& row : cases) {
    SCOPED_TRACE(row.name);
    const std::string document = folder.Name("study.cfb");
    WriteGraphDocument(folder / "study.cfb", row.record);
    const Outcome outcome = RunTool(GraphCommand(document, "Graphs/Graph1", row.version));
    EXPECT_EQ(outcome.code, row.code) << outcome;
    for (const std::string& part : row.said) {
      EXPECT_TRUE(Contains(outcome.err, part)) << part << "\n" << outcome;
    }
    if (row.code != 0) {
      EXPECT_EQ(outcome.out, "");
      EXPECT_TRUE(outcome.err.starts_with("mqpost: " + document + " > Graphs/Graph1 > "))
          << outcome;
    }
  }
}

TEST(GraphVerb, ADamagedRecordShowsItsBytesUpToTheDamage) {
  const Folder folder;
  WriteGraphDocument(folder / "study.cfb", FirstBytes(NewestRecord(), 6));
  std::vector<std::string> command =
      GraphCommand(folder.Name("study.cfb"), "Graphs/Graph1", 890110);
  command.emplace_back("--bytes");
  const Outcome outcome = RunTool(command);
  EXPECT_EQ(outcome.code, 3);
  EXPECT_TRUE(Contains(outcome.out, "analysis type")) << outcome;
  EXPECT_FALSE(Contains(outcome.out, "result option")) << outcome;
}

TEST(GraphVerb, NumbersThatJsonLacksAreTexts) {
  // The first of the two doubles of the newest record; its place is searched for by its bytes.
  ByteString record = NewestRecord();
  const ByteString negativeZero = Joined({}, {0, 0, 0, 0, 0, 0, 0, 0x80});
  const auto place =
      std::search(record.begin(), record.end(), negativeZero.begin(), negativeZero.end());
  ASSERT_NE(place, record.end());
  place[6] = std::byte{0xF0};
  place[7] = std::byte{0xFF};
  const Folder folder;
  WriteGraphDocument(folder / "study.cfb", record);
  const json answer = RunForJson(GraphCommand(folder.Name("study.cfb"), "Graphs/Graph1", 890110));
  EXPECT_EQ(answer.at("values").at("two doubles"), json({"-inf", -0.081064}));
}

// ---------------------------------------------------------------------------------------------
// Files and streams that are not what they should be

TEST(DocumentVerbs, FilesThatAreNoDocumentsAreTold) {
  const Folder folder;
  fs::create_directory(folder / "folder.cfb");
  WriteBytes(folder / "empty.cfb", {});
  WriteBytes(folder / "text.cfb", Joined({}, {'t', 'e', 'x', 't'}));
  ByteString noise;
  for (unsigned value = 12345; noise.size() < 4096; value = value * 1103515245U + 12345U) {
    noise.push_back(static_cast<std::byte>(value >> 16 & 0xFF));
  }
  WriteBytes(folder / "noise.cfb", noise);
  WriteBytes(folder / "cut.cfb", FirstBytes(ReadBytes(Example(890110)), 1500));
  struct Case {
    const char* file;
    int code;
  };
  const Case cases[] = {
      {"missing.cfb", 5}, {"folder.cfb", 5}, {"empty.cfb", 3},
      {"text.cfb", 3},    {"noise.cfb", 3},  {"cut.cfb", 3},
  };
  for (const Case& row : cases) {
    const std::string file = folder.Name(row.file);
    const std::vector<std::vector<std::string>> commands = {
        {"ls", file},
        GraphCommand(file, "Graphs/Graph1", 890110),
        {"convert", file, "-o", folder.Name("new.cfb"), "--doc-version", "890110"},
    };
    for (const auto& command : commands) {
      const Outcome outcome = RunTool(command);
      EXPECT_EQ(outcome.code, row.code) << json(command).dump() << '\n' << outcome;
      EXPECT_EQ(outcome.out, "");
      EXPECT_TRUE(outcome.err.starts_with("mqpost: " + file + ": ")) << outcome;
      EXPECT_FALSE(fs::exists(folder / "new.cfb"));
    }
  }
}

TEST(DocumentVerbs, AMissingStreamIsAFileTroubleWithAHint) {
  const Outcome outcome = RunTool(GraphCommand(Utf8(Example(890110)), "Graphs/Grph1", 890110));
  EXPECT_EQ(outcome.code, 5);
  EXPECT_TRUE(Contains(outcome.err, "Did you mean Graphs/Graph1")) << outcome;
  EXPECT_EQ(RunTool(GraphCommand(Utf8(Example(890110)), "Graphs", 890110)).code, 5);
}

TEST(DocumentVerbs, AStreamIsDividedFromItsDocumentAtTheLastColons) {
  struct Case {
    const char* argument;
    const char* document;
  };
  const Case cases[] = {
      {"C:\\no such folder\\y.cfb::Graphs/Graph1", "C:\\no such folder\\y.cfb: "},
      {"C:y.cfb::Graphs/Graph1", "C:y.cfb: "},
      {"no::such.cfb::Graphs/Graph1", "no::such.cfb: "},
  };
  for (const Case& row : cases) {
    const Outcome outcome = RunTool({"graph", row.argument, "--doc-version", "890110"});
    EXPECT_EQ(outcome.code, 5) << outcome;
    EXPECT_TRUE(Contains(outcome.err, row.document)) << outcome;
  }
}

TEST(DocumentVerbs, LsListsStreamsAndStorages) {
  // A directory puts shorter names first.
  EXPECT_EQ(RunForJson({"ls", Utf8(Example(890110))}).at("entries"),
            (json{{{"path", "Plots"}, {"kind", "storage"}, {"size", nullptr}},
                  {{"path", "Plots/EquationPlot1"}, {"kind", "stream"}, {"size", 200}},
                  {{"path", "Graphs"}, {"kind", "storage"}, {"size", nullptr}},
                  {{"path", "Graphs/Graph1"}, {"kind", "stream"}, {"size", 468}},
                  {{"path", "Graphs/Graph2"}, {"kind", "stream"}, {"size", 3072}}}));
  EXPECT_EQ(RunTool({"ls", Utf8(Example(800018))}).out,
            "bytes  stream, or storage/\n"
            "-----  -------------------\n"
            "    -  Graphs/\n"
            "  210  Graphs/Graph1\n"
            "  254  Graphs/Graph2\n");
}

}  // namespace
}  // namespace mqp::test
