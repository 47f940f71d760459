// Compound documents, damaged ones and well-built ones, through the verbs that open one. An input
// with the signature of such documents is one as it stands; any other says which elements a new one
// gets, and these are all in it. What is converted keeps its other streams and is converted again
// without a change; a conversion that fails writes nothing.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <string>
#include <string_view>

#include <storage/compound_document.h>

#include "input.h"
#include "tool_run.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

namespace mqp::fuzz {
namespace {

using host::CompoundDocument;
using Streams = std::map<std::string, ByteString>;

constexpr std::string_view kSignature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
constexpr int kVersions[] = {800018, 800062, 820022, 870002, 890005, 890110};
constexpr std::string_view kBeginnings[] = {"", "Graphs/", "Graphs/Graph", "Plots/EquationPlot"};
constexpr const char* kOld = "old.cfb";
constexpr int kMostStreams = 3;  // that are shown

std::string Text(const ByteString& bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

Streams StreamsOf(const CompoundDocument& document) {
  Streams streams;
  for (const host::DocumentEntry& entry : document.Entries()) {
    if (!entry.isStorage) {
      streams[entry.path] = document.ReadStream(entry.path);
    }
  }
  return streams;
}

bool IsRecord(const std::string& path) {
  return path.starts_with("Graphs/") || path.starts_with("Plots/EquationPlot");
}

void Build(Input& input) {
  host::CompoundDocumentWriter writer(kOld);
  Streams added;
  for (int count = input.Below(8); count > 0; --count) {
    const std::string path = std::string(kBeginnings[input.Below(std::size(kBeginnings))]) +
                             input.ConsumeRandomLengthString(40);
    try {
      if (input.Below(4) == 0) {
        writer.AddStorage(path);
      } else {
        const auto bytes =
            input.ConsumeBytes<std::byte>(static_cast<std::size_t>(input.Below(1024)));
        writer.AddStream(path, bytes);
        added[path] = bytes;
      }
    } catch (const host::DocumentError& error) {
      Require(error.Problem() == host::DocumentProblem::BadPath, error.what());
    }
  }
  writer.Commit();
  Require(StreamsOf(CompoundDocument(kOld)) == added,
          "a new document has the streams it was given");
}

/// \return whether the document can be opened
bool List() {
  const Outcome outcome = RunTool({"ls", kOld, "--json"});
  Require(RunTool({"ls", kOld}).code == outcome.code, "both forms of a list end alike");
  if (outcome.code != 0) {
    return false;
  }
  const json answer = ParseAnswer(outcome);
  const CompoundDocument document(kOld);
  Require(answer["entries"].size() == document.Entries().size(), "a list names every element");
  for (const json& entry : answer["entries"]) {
    Require(entry["kind"] == "storage" ||
                document.ReadStream(entry["path"]).size() == entry["size"].get<std::size_t>(),
            "streams are as long as they are said to be");
  }
  return true;
}

/// \return whether all records were shown
bool ShowRecords(const std::string& version) {
  bool areShown = true;
  int count = 0;
  for (const auto& [path, bytes] : StreamsOf(CompoundDocument(kOld))) {
    if (++count > kMostStreams) {
      return false;
    }
    const char* verb = path.starts_with("Plots/") ? "equation" : "graph";
    Words words = {verb, std::string(kOld) + "::" + path, "--doc-version", version};
    const int code = RunTool(words).code;
    words.insert(words.end(), {"--bytes", "--json"});
    const Outcome outcome = RunTool(words);
    Require(outcome.code == code, "both forms of a record end alike");
    Require(code != 0 || ParseAnswer(outcome)["length"] == bytes.size(), "the length of a record");
    areShown = areShown && (code == 0 || !IsRecord(path));
  }
  return areShown;
}

/// \return whether there is a new document
bool Convert(const char* source, const char* target, const std::string& version) {
  const Outcome outcome = RunTool({"convert", source, "-o", target, "--doc-version", version});
  Require(fs::exists(target) == (outcome.code == 0), "a new document, or an error");
  return outcome.code == 0;
}

void CheckConversion(const std::string& version, bool isSound) {
  const Streams old = StreamsOf(CompoundDocument(kOld));
  if (!Convert(kOld, "new.cfb", version)) {
    Require(!isSound, "a sound document is converted");
    return;
  }
  Require(Convert("new.cfb", "again.cfb", "890110"), "what was converted can be converted");
  const Streams converted = StreamsOf(CompoundDocument("new.cfb"));
  Require(StreamsOf(CompoundDocument("again.cfb")) == converted, "the newest layout stays");
  Require(old.size() == converted.size(), "no stream is lost");
  for (const auto& [path, bytes] : converted) {
    Require(IsRecord(path) || (old.contains(path) && old.at(path) == bytes), "others are kept");
  }
}

bool IsDocument(const std::uint8_t* data, std::size_t size) {
  return std::string_view(reinterpret_cast<const char*>(data), size).starts_with(kSignature);
}

}  // namespace
}  // namespace mqp::fuzz

/// A document hangs by the numbers of its sectors: every other change puts another one somewhere.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed) {
  constexpr std::uint32_t kNumbers[] = {0, 1, 2, 3, 4, 0xFFFFFFFD, 0xFFFFFFFE, 0xFFFFFFFF};
  if (seed % 2 == 0 || !mqp::fuzz::IsDocument(data, size)) {
    return LLVMFuzzerMutate(data, size, most);
  }
  std::minstd_rand random(seed);
  const std::size_t place = random() % (size / 4) * 4;
  std::memcpy(data + place, &kNumbers[random() % std::size(kNumbers)], 4);
  return size;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mqp::fuzz;
  Input input(data, size);
  const std::string version = std::to_string(kVersions[input.Below(std::size(kVersions))]);
  const Folder folder;
  const bool isDocument = IsDocument(data, size);
  if (isDocument) {
    WriteFile(kOld, Text(input.Rest()));
  } else {
    Build(input);
  }
  const std::string before = ReadFile(kOld);
  if (List()) {
    const bool areShown = ShowRecords(version);
    CheckConversion(version, areShown && !isDocument);
  } else {
    Require(!Convert(kOld, "new.cfb", version), "what cannot be opened is not converted");
  }
  Require(ReadFile(kOld) == before, "the document that is read stays as it is");
  const std::set<std::string> known = {kOld, "new.cfb", "again.cfb"};
  Require(std::ranges::includes(known, folder.Names()), "nothing half-written stays behind");
  return 0;
}
