#include <algorithm>
#include <fstream>
#include <map>
#include <ostream>
#include <system_error>
#include <utility>

#include <storage/atomic_file.h>
#include <storage/compound_document.h>

#include "command_line.h"
#include "document_stream.h"
#include "json_output.h"
#include "record_output.h"
#include "stored_record.h"
#include "table.h"
#include "target_file.h"
#include "text.h"
#include "verbs.h"

namespace fs = std::filesystem;

namespace mqp::tool {
namespace {

struct Job {
  std::string source;
  std::string target;
  int version;
};

struct NamedRecord {
  std::string stream;
  StoredRecord record;
};

std::vector<NamedRecord> ReadRecords(const Job& job, const host::CompoundDocument& document) {
  std::vector<NamedRecord> records;
  for (const host::DocumentEntry& entry : document.Entries()) {
    const RecordKind* kind = entry.isStorage ? nullptr : FindKind(entry.path);
    if (kind != nullptr) {
      records.push_back({entry.path, StoredRecord(*kind, ShowStreamName({job.source, entry.path}),
                                                  document.ReadStream(entry.path), job.version)});
    }
  }
  return records;
}

/// Names every record that does not fit, and ends the verb when there is one. Damage outweighs
/// being too new.
void CheckRecords(Session& session, const std::vector<NamedRecord>& records) {
  std::optional<Problem> worst;
  for (const NamedRecord& named : records) {
    const std::optional<Problem> problem = named.record.Check();
    if (!problem) {
      continue;
    }
    session.err << "mqpost: " << problem->what() << '\n';
    if (!worst || problem->Code() == ExitCode::Damaged) {
      worst.emplace(*problem);
    }
  }
  if (worst) {
    throw Problem(worst->Code(), "Nothing was written.");
  }
}

/// The streams of a document after the conversion.
std::map<std::string, std::vector<std::byte>> ExpectStreams(
    const host::CompoundDocument& source, const std::vector<NamedRecord>& records) {
  std::map<std::string, std::vector<std::byte>> streams;
  for (const host::DocumentEntry& entry : source.Entries()) {
    if (!entry.isStorage) {
      streams[entry.path] = source.ReadStream(entry.path);
    }
  }
  for (const NamedRecord& named : records) {
    streams[named.stream] = named.record.NewBytes();
  }
  return streams;
}

/// Whether the library reads from new bytes what it wrote into them.
bool ReadsBack(const RecordKind& kind, const std::vector<std::byte>& bytes) {
  const StoredRecord record(kind, {}, bytes, kNewestRecordVersion);
  return !record.Check() && record.NewBytes() == bytes;
}

void Verify(const host::CompoundDocument& source, const fs::path& draft,
            const std::vector<NamedRecord>& records) {
  const host::CompoundDocument written(draft);
  bool isSame = written.Entries().size() == source.Entries().size() &&
                written.RootClassId() == source.RootClassId();
  for (const auto& [path, bytes] : ExpectStreams(source, records)) {
    isSame = isSame && written.ReadStream(path) == bytes;
  }
  for (const NamedRecord& named : records) {
    isSame = isSame && ReadsBack(named.record.Kind(), written.ReadStream(named.stream));
  }
  if (!isSame) {
    throw Problem(ExitCode::FileTrouble,
                  Utf8(draft) +
                      ": What was written does not read back. Nothing was replaced: "
                      "check the disk.");
  }
}

std::vector<std::byte> ReadFile(const fs::path& file) {
  std::vector<std::byte> bytes(static_cast<std::size_t>(fs::file_size(file)));
  std::ifstream stream(file, std::ios::binary);
  stream.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (!stream) {
    throw Problem(ExitCode::FileTrouble, Utf8(file) + ": The file cannot be read again.");
  }
  return bytes;
}

/// Writes a draft, verifies it and puts it in the place of the target. What stands there stays as
/// it is until the draft has been found good.
void WriteDocument(const Job& job, const host::CompoundDocument& source,
                   const std::vector<NamedRecord>& records) {
  const fs::path target = PathOf(job.target);
  const host::TemporaryFile draft(target);
  std::map<std::string, std::vector<std::byte>> replacements;
  for (const NamedRecord& named : records) {
    replacements[named.stream] = named.record.NewBytes();
  }
  try {
    host::RewriteDocument(PathOf(job.source), draft.Path(), replacements);
    Verify(source, draft.Path(), records);
    host::WriteAtomically(target, ReadFile(draft.Path()));
  } catch (const host::DocumentError& error) {
    // Nobody knows the draft by its name.
    std::string what = error.what();
    const std::string name = Utf8(draft.Path());
    if (what.starts_with(name)) {
      what.replace(0, name.size(), job.target);
    }
    throw host::DocumentError(error.Problem(), what);
  } catch (const std::system_error& error) {
    throw Problem(ExitCode::FileTrouble,
                  job.target + ": The file cannot be written: " + error.code().message() +
                      ". Check its permissions and the room on the disk.");
  }
}

std::vector<std::string> KeptStreams(const host::CompoundDocument& document) {
  std::vector<std::string> kept;
  for (const host::DocumentEntry& entry : document.Entries()) {
    if (!entry.isStorage && FindKind(entry.path) == nullptr) {
      kept.push_back(entry.path);
    }
  }
  return kept;
}

void PrintRecord(Session& session, const NamedRecord& named) {
  const StoredRecord& record = named.record;
  session.out << "  " << Printable(named.stream) << ": " << record.StoredBytes().size() << " -> "
              << record.NewBytes().size() << " bytes\n";
  std::vector<std::string> defaulted;
  for (const FieldView* field : record.Defaulted()) {
    defaulted.push_back(field->name);
  }
  std::vector<Fact> facts;
  if (!defaulted.empty()) {
    facts.emplace_back("    defaulted", Join(defaulted, ", "));
  }
  for (const Correction& correction : record.Corrections()) {
    facts.emplace_back("    corrected", ShowCorrection(correction));
  }
  PrintFacts(session, facts);
}

/// "2 graphs", "2 graphs, 1 equation plot"
std::string CountRecords(const std::vector<NamedRecord>& records) {
  const auto countOf = [&records](const RecordKind& kind) {
    const auto count = std::ranges::count_if(
        records, [&kind](const NamedRecord& named) { return &named.record.Kind() == &kind; });
    return static_cast<std::size_t>(count);
  };
  const std::size_t plots = countOf(EquationPlotKind());
  return CountOf(countOf(GraphKind()), GraphKind()) +
         (plots == 0 ? "" : ", " + CountOf(plots, EquationPlotKind()));
}

void PrintReport(Session& session, const Job& job, const host::CompoundDocument& document,
                 const std::vector<NamedRecord>& records) {
  PrintHeading(session, Printable(job.source) + " of version " + std::to_string(job.version) +
                            " -> " + Printable(job.target) + " of version " +
                            std::to_string(kNewestRecordVersion));
  for (const NamedRecord& named : records) {
    PrintRecord(session, named);
  }
  for (const std::string& stream : KeptStreams(document)) {
    session.out << "  " << Printable(stream) << ": kept\n";
  }
  session.out << "Written and read back: " << CountRecords(records) << ".\n";
}

Json ReportToJson(const Job& job, const host::CompoundDocument& document,
                  const std::vector<NamedRecord>& records) {
  Json json = NewJson();
  json["document"] = job.source;
  json["version"] = job.version;
  json["output"] = job.target;
  json["outputVersion"] = kNewestRecordVersion;
  json["records"] = Json::array();
  for (const NamedRecord& named : records) {
    Json row{{"stream", named.stream},
             {"kind", named.record.Kind().name},
             {"length", named.record.StoredBytes().size()},
             {"outputLength", named.record.NewBytes().size()},
             {"defaulted", Json::object()},
             {"corrected", CorrectionsToJson(named.record)}};
    for (const FieldView* field : named.record.Defaulted()) {
      row["defaulted"][field->name] = FieldToJson(*field);
    }
    json["records"].push_back(std::move(row));
  }
  json["kept"] = KeptStreams(document);
  return json;
}

}  // namespace

ExitCode RunConvert(Session& session) {
  Job job{};
  std::optional<std::string> target;
  std::optional<int> version;
  bool isForced = false;
  bool isJson = false;
  CommandLine line(
      session, "convert",
      "Copies a document with its records in the newest layout: the graphs, which are\n"
      "the streams under Graphs/, and the equation plots, which are those under Plots/\n"
      "whose names begin with EquationPlot. Other streams are kept. Says of each record\n"
      "which fields were given their defaults and which values were corrected. A damaged\n"
      "record ends it before anything is written; the new document is read back before\n"
      "success is reported.",
      "mqpost convert old.cfb -o new.cfb --doc-version 800018");
  line.Positional("DOC", job.source, "the document to read; it is never changed");
  line.Text("-o,--output", target, "the document to write", "NEW");
  line.Integer("--doc-version", version, kVersionHelp);
  line.Flag("--force", isForced, "replace an existing file");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  if (!target || target->empty()) {
    throw Problem(ExitCode::Usage, "-o is missing: name the document to write, as in -o new.cfb.");
  }
  job.target = *target;
  job.version = RequireVersion(version, GraphKind());
  CheckTarget(job.source, job.target, isForced);
  const host::CompoundDocument document(PathOf(job.source));
  const std::vector<NamedRecord> records = ReadRecords(job, document);
  CheckRecords(session, records);
  WriteDocument(job, document, records);
  if (isJson) {
    Print(session, ReportToJson(job, document, records));
  } else {
    PrintReport(session, job, document, records);
  }
  if (records.empty()) {
    session.err << "note: the document has no graphs and no equation plots, it was copied\n";
  }
  return ExitCode::Fine;
}

}  // namespace mqp::tool
