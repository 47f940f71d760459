#include <array>
#include <fstream>

#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

std::vector<std::string> ConvertCommand(const std::string& source, const std::string& target,
                                        int version, const std::vector<std::string>& more = {}) {
  std::vector<std::string> command = {"convert", source,          "-o",
                                      target,    "--doc-version", std::to_string(version)};
  command.insert(command.end(), more.begin(), more.end());
  return command;
}

constexpr std::array kVersions = {800018, 800062, 820022, 870002, 890005, 890110};

TEST(ConvertVerb, EveryExampleReadsAsDescribedAfterwards) {
  for (const int version : kVersions) {
    SCOPED_TRACE(version);
    const Folder folder;
    const std::string target = folder.Name("new.cfb");
    const ByteString before = ReadBytes(Example(version));
    const json report = RunForJson(ConvertCommand(Utf8(Example(version)), target, version));
    EXPECT_EQ(report.at("outputVersion"), 890110);
    EXPECT_EQ(ReadBytes(Example(version)), before);
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"new.cfb"});

    std::ifstream file(Example(version, ".json"));
    const json description = json::parse(file);
    for (const json& record : description.at("records")) {
      const std::string stream = record.at("stream").get<std::string>();
      SCOPED_TRACE(stream);
      EXPECT_EQ(report.at("kept"), json::array());
      if (record.at("kind") != "graph") {
        // Written by the library, and yet the same bytes.
        EXPECT_EQ(host::CompoundDocument(fs::path(folder / "new.cfb")).ReadStream(stream),
                  host::CompoundDocument(Example(version)).ReadStream(stream));
        continue;
      }
      const json answer = RunForJson({"graph", target + "::" + stream, "--doc-version", "890110"});
      EXPECT_EQ(answer.at("values"), record.at("values"));
      EXPECT_EQ(answer.at("corrected"), json::object());
      EXPECT_EQ(answer.at("defaulted"), json::array());
    }
  }
}

TEST(ConvertVerb, WhatWasDefaultedAndCorrectedIsReported) {
  const Folder folder;
  const json report =
      RunForJson(ConvertCommand(Utf8(Example(820022)), folder.Name("new.cfb"), 820022));
  ASSERT_EQ(report.at("records").size(), 2U);
  const json& reaction = report.at("records")[0];
  EXPECT_EQ(reaction.at("stream"), "Graphs/Graph1");
  EXPECT_EQ(reaction.at("corrected"), (json{{"Y unit flag", {{"stored", 0}, {"read", 1}}}}));
  EXPECT_EQ(reaction.at("defaulted"),
            (json{{"X axis sensor", -1},
                  {"Y axis transient sensor", -1},
                  {"integer after the Y unit flag", 0},
                  {"frequency response flag", 0},
                  {"frequency response mode", -1},
                  {"four integers after the frequency response mode", {0, 0, 0, 0}},
                  {"double after the four integers", 0.0},
                  {"last integer", 0}}));
  EXPECT_EQ(report.at("records")[1].at("corrected"),
            (json{{"Y axis component", {{"stored", 12}, {"read", 13}}}}));

  const Outcome text =
      RunTool(ConvertCommand(Utf8(Example(820022)), folder.Name("text.cfb"), 820022));
  EXPECT_EQ(text.code, 0);
  EXPECT_TRUE(Contains(text.out, "corrected  Y axis component: 12 -> 13\n")) << text;
  EXPECT_TRUE(Contains(text.out, "Written and read back: 2 graphs.\n")) << text;
}

TEST(ConvertVerb, ATextThatEndsEarlyIsACorrection) {
  ByteString record = NewestRecord();
  // "Graph 1": its third unit becomes 0, and the record is read up to there.
  ASSERT_EQ(record[76], std::byte{'a'});
  record[76] = std::byte{0};
  const Folder folder;
  WriteGraphDocument(folder / "old.cfb", record);
  const json report =
      RunForJson(ConvertCommand(folder.Name("old.cfb"), folder.Name("new.cfb"), 890110));
  EXPECT_EQ(report.at("records")[0].at("corrected").at("three strings [0]"),
            (json{{"stored", std::string("Gr\0ph 1", 7)}, {"read", "Gr"}}));
}

// Empty, it is written as a count of 0, and that leaves what an object holds before it is read.
TEST(ConvertVerb, ATextThatEndsAtOnceBecomesTheDefaultThatIsReadFromThenOn) {
  const Folder folder;
  ByteString record = EquationRecord();
  // The name of the second variable, "Variable1" in quotes.
  ASSERT_EQ(record[162], std::byte{'"'});
  record[162] = std::byte{0};
  WriteEquationDocument(folder / "old.cfb", record);
  const std::string first = folder.Name("first.cfb");
  const std::string second = folder.Name("second.cfb");
  const json report = RunForJson(ConvertCommand(folder.Name("old.cfb"), first, 890110));
  EXPECT_EQ(report.at("records")[0].at("corrected"),
            (json{{"variable 1: name",
                   {{"stored", std::string("\0Variable1\"", 11)}, {"read", "Variable"}}}}));
  const json again = RunForJson(ConvertCommand(first, second, 890110));
  EXPECT_EQ(again.at("records")[0].at("corrected"), json::object());
  const auto written = [](const std::string& document) {
    return host::CompoundDocument(fs::path(document)).ReadStream("Plots/EquationPlot1");
  };
  EXPECT_EQ(written(second), written(first));
}

// ---------------------------------------------------------------------------------------------
// Equation plots

TEST(ConvertVerb, AnEquationPlotIsWrittenAnew) {
  const Folder folder;
  ByteString record = EquationRecord();
  // The name of the second variable ends behind its second unit.
  ASSERT_EQ(record[166], std::byte{'a'});
  record[166] = std::byte{0};
  WriteEquationDocument(folder / "old.cfb", record);
  const json report =
      RunForJson(ConvertCommand(folder.Name("old.cfb"), folder.Name("new.cfb"), 890109));
  EXPECT_EQ(report.at("records"),
            (json{{{"stream", "Plots/EquationPlot1"},
                   {"kind", "equation plot"},
                   {"length", 200},
                   {"outputLength", 182},
                   {"defaulted", json::object()},
                   {"corrected",
                    {{"variable 1: name",
                      {{"stored", std::string("\"V\0riable1\"", 11)}, {"read", "\"V"}}}}}}}));
  const ByteString written =
      host::CompoundDocument(fs::path(folder / "new.cfb")).ReadStream("Plots/EquationPlot1");
  ByteString expected = FirstBytes(EquationRecord(), 158);
  expected = Joined(expected, {2, 0, 0, 0, '"', 0, 'V', 0});
  const ByteString whole = EquationRecord();
  expected.insert(expected.end(), whole.begin() + 184, whole.end());
  EXPECT_EQ(written, expected);
}

TEST(ConvertVerb, WhatWasWrittenIsCountedByKind) {
  const Folder folder;
  const Outcome outcome =
      RunTool(ConvertCommand(Utf8(Example(890110)), folder.Name("new.cfb"), 890110));
  EXPECT_TRUE(Contains(outcome.out, "  Plots/EquationPlot1: 200 -> 200 bytes\n")) << outcome;
  EXPECT_TRUE(outcome.out.ends_with("Written and read back: 2 graphs, 1 equation plot.\n"))
      << outcome;
}

TEST(ConvertVerb, OtherStreamsBesideEquationPlotsAreKept) {
  const Folder folder;
  host::CompoundDocumentWriter writer(folder / "old.cfb");
  writer.AddStream("EquationPlot1", Joined({}, {1}));
  writer.AddStream("Plots/Plot1", Joined({}, {2}));
  writer.AddStream("Plots/EquationPlot2", EquationRecord());
  writer.Commit();
  const json report =
      RunForJson(ConvertCommand(folder.Name("old.cfb"), folder.Name("new.cfb"), 890110));
  EXPECT_EQ(report.at("kept").size(), 2U);
  EXPECT_EQ(report.at("records").size(), 1U);
  const host::CompoundDocument written(folder / "new.cfb");
  EXPECT_EQ(written.ReadStream("EquationPlot1"), Joined({}, {1}));
  EXPECT_EQ(written.ReadStream("Plots/Plot1"), Joined({}, {2}));
}

TEST(ConvertVerb, ADocumentTooOldForItsEquationPlotIsNotConverted) {
  const Folder folder;
  for (const ByteString& record : {EquationRecord(), ByteString()}) {
    WriteEquationDocument(folder / "old.cfb", record);
    const Outcome outcome =
        RunTool(ConvertCommand(folder.Name("old.cfb"), folder.Name("new.cfb"), 890108));
    EXPECT_EQ(outcome.code, 3) << outcome;
    EXPECT_TRUE(Contains(outcome.err,
                         "Plots/EquationPlot1: Documents have equation plots from version 890109 "
                         "on, and this one is said to be of version 890108."))
        << outcome;
    EXPECT_EQ(Contains(outcome.err, "the layout of the versions 890109 and later"), !record.empty())
        << outcome;
    EXPECT_FALSE(fs::exists(folder / "new.cfb"));
  }
}

TEST(ConvertVerb, ADamagedEquationPlotLeavesTheGraphsUnconvertedToo) {
  const Folder folder;
  host::CompoundDocumentWriter writer(folder / "study.cfb");
  writer.AddStream("Graphs/Graph1", NewestRecord());
  writer.AddStream("Plots/EquationPlot1", FirstBytes(EquationRecord(), 199));
  writer.Commit();
  const Outcome outcome =
      RunTool(ConvertCommand(folder.Name("study.cfb"), folder.Name("new.cfb"), 890110));
  EXPECT_EQ(outcome.code, 3);
  EXPECT_TRUE(Contains(outcome.err,
                       "study.cfb > Plots/EquationPlot1 > variable 1: coefficient > byte 192: "))
      << outcome;
  EXPECT_TRUE(Contains(outcome.err, "Nothing was written.")) << outcome;
  EXPECT_EQ(folder.Names(), (std::vector<std::string>{"study.cfb"}));
}

// ---------------------------------------------------------------------------------------------
// What is no record, and what goes wrong

TEST(ConvertVerb, ADocumentWithoutGraphsIsCopied) {
  const Folder folder;
  host::CompoundDocumentWriter writer(folder / "old.cfb");
  writer.AddStream("Other/Stream", Joined({}, {1, 2, 3}));
  writer.Commit();
  const Outcome outcome =
      RunTool(ConvertCommand(folder.Name("old.cfb"), folder.Name("new.cfb"), 890110));
  EXPECT_EQ(outcome.code, 0) << outcome;
  EXPECT_TRUE(Contains(outcome.err, "no graphs and no equation plots")) << outcome;
  EXPECT_EQ(host::CompoundDocument(fs::path(folder / "new.cfb")).ReadStream("Other/Stream"),
            Joined({}, {1, 2, 3}));
}

struct RefusalCase {
  const char* name;
  ByteString record;
  int version;
  int code;
};

TEST(ConvertVerb, ADamagedRecordLeavesTheOldOutputAsItWas) {
  const ByteString good = NewestRecord();
  const std::vector<RefusalCase> cases = {
      {"truncated", FirstBytes(good, 467), 890110, 3},
      {"left over", Joined(good, {0}), 890110, 3},
      {"wrong version", good, 800018, 3},
      {"newer than known", Joined(good, {0, 0, 0, 0}), 900000, 4},
  };
  const ByteString old = Joined({}, {'o', 'l', 'd'});
  for (const RefusalCase& row : cases) {
    SCOPED_TRACE(row.name);
    const Folder folder;
    WriteGraphDocument(folder / "study.cfb", row.record);
    WriteBytes(folder / "new.cfb", old);
    const Outcome outcome = RunTool(
        ConvertCommand(folder.Name("study.cfb"), folder.Name("new.cfb"), row.version, {"--force"}));
    EXPECT_EQ(outcome.code, row.code) << outcome;
    EXPECT_TRUE(Contains(outcome.err, "study.cfb > Graphs/Graph1 > ")) << outcome;
    EXPECT_TRUE(Contains(outcome.err, "Nothing was written.")) << outcome;
    EXPECT_EQ(ReadBytes(folder / "new.cfb"), old);
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"new.cfb", "study.cfb"}));
  }
}

TEST(ConvertVerb, EveryDamagedRecordIsNamed) {
  const Folder folder;
  host::CompoundDocumentWriter writer(folder / "study.cfb");
  writer.AddStream("Graphs/First", FirstBytes(NewestRecord(), 10));
  writer.AddStream("Graphs/Second", NewestRecord());
  writer.AddStream("Graphs/Third", Joined(NewestRecord(), {0}));
  writer.Commit();
  const Outcome outcome =
      RunTool(ConvertCommand(folder.Name("study.cfb"), folder.Name("new.cfb"), 890110));
  EXPECT_EQ(outcome.code, 3);
  EXPECT_TRUE(Contains(outcome.err, "Graphs/First")) << outcome;
  EXPECT_FALSE(Contains(outcome.err, "Graphs/Second")) << outcome;
  EXPECT_TRUE(Contains(outcome.err, "Graphs/Third")) << outcome;
}

TEST(ConvertVerb, TheInputIsNeverTheOutput) {
  const Folder folder;
  fs::copy_file(Example(890005), folder / "study.cfb");
  const ByteString before = ReadBytes(folder / "study.cfb");
  const std::string same = Utf8(fs::path(folder / ".") / "study.cfb");
  for (const std::string& target : {folder.Name("study.cfb"), same}) {
    const Outcome outcome =
        RunTool(ConvertCommand(folder.Name("study.cfb"), target, 890005, {"--force"}));
    EXPECT_EQ(outcome.code, 2) << outcome;
    EXPECT_TRUE(Contains(outcome.err, "never written over")) << outcome;
    EXPECT_EQ(ReadBytes(folder / "study.cfb"), before);
  }
}

TEST(ConvertVerb, AnExistingFileIsReplacedOnlyByForce) {
  const Folder folder;
  const ByteString old = Joined({}, {'o', 'l', 'd'});
  WriteBytes(folder / "new.cfb", old);
  const auto convert = [&](const std::vector<std::string>& more) {
    return RunTool(ConvertCommand(Utf8(Example(890005)), folder.Name("new.cfb"), 890005, more));
  };
  const Outcome refused = convert({});
  EXPECT_EQ(refused.code, 2);
  EXPECT_TRUE(Contains(refused.err, "--force")) << refused;
  EXPECT_EQ(ReadBytes(folder / "new.cfb"), old);
  EXPECT_EQ(convert({"--force"}).code, 0);
  EXPECT_EQ(host::CompoundDocument(fs::path(folder / "new.cfb")).Entries().front().path, "Graphs");
}

TEST(ConvertVerb, AnOutputThatCannotBeWrittenIsAFileTrouble) {
  const Folder folder;
  fs::create_directory(folder / "folder");
  WriteBytes(folder / "protected.cfb", Joined({}, {'o', 'l', 'd'}));
  fs::permissions(folder / "protected.cfb", fs::perms::owner_read | fs::perms::group_read);
  for (const std::string name : {"missing/new.cfb", "folder", "protected.cfb"}) {
    const Outcome outcome =
        RunTool(ConvertCommand(Utf8(Example(890005)), folder.Name(name), 890005, {"--force"}));
    EXPECT_EQ(outcome.code, 5) << name << '\n' << outcome;
    EXPECT_TRUE(outcome.err.starts_with("mqpost: " + folder.Name(name) + ": ")) << outcome;
  }
  EXPECT_EQ(ReadBytes(folder / "protected.cfb"), Joined({}, {'o', 'l', 'd'}));
  EXPECT_EQ(folder.Names(), (std::vector<std::string>{"folder", "protected.cfb"}));
  fs::permissions(folder / "protected.cfb", fs::perms::owner_all);
}

}  // namespace
}  // namespace mqp::test
