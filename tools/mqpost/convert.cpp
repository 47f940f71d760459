#include <fstream>
#include <map>
#include <ostream>
#include <random>
#include <system_error>
#include <utility>

#include <storage/atomic_file.h>
#include <storage/compound_document.h>

#include "command_line.h"
#include "graph_record.h"
#include "json_output.h"
#include "table.h"
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
  GraphRecord record;
};

/// The new document before it has been checked, beside its target. Removed in the end.
class Draft {
 public:
  explicit Draft(const fs::path& target) {
    std::random_device random;
    m_path = target;
    m_path += "." + std::to_string(random()) + ".draft";
  }
  ~Draft() {
    std::error_code ignored;
    fs::remove(m_path, ignored);
  }
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;
  [[nodiscard]] const fs::path& Path() const noexcept { return m_path; }

 private:
  fs::path m_path;
};

void CheckTarget(const Job& job, bool isForced) {
  const fs::path target = PathOf(job.target);
  std::error_code ignored;
  if (fs::equivalent(PathOf(job.source), target, ignored)) {
    throw Problem(ExitCode::Usage, job.target +
                                       ": This is the document that is read, and it is never "
                                       "written over. Name another file after -o.");
  }
  if (fs::is_directory(target, ignored)) {
    throw Problem(ExitCode::FileTrouble,
                  job.target + ": This is a folder. Name the file to be written in it.");
  }
  if (!isForced && fs::exists(target, ignored)) {
    throw Problem(ExitCode::Usage, job.target +
                                       ": There is such a file already. Name another one, or add "
                                       "--force to replace it.");
  }
}

std::vector<NamedRecord> ReadRecords(const Job& job, const host::CompoundDocument& document) {
  std::vector<NamedRecord> records;
  for (const host::DocumentEntry& entry : document.Entries()) {
    if (!entry.isStorage && entry.path.starts_with(kGraphFolder)) {
      records.push_back({entry.path, GraphRecord(job.source + " > " + Printable(entry.path),
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

/// Whether the library reads from new bytes the graph that it wrote into them.
bool ReadsBack(const std::vector<std::byte>& bytes) {
  const GraphRecord record({}, bytes, kNewestRecordVersion);
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
    isSame = isSame && ReadsBack(written.ReadStream(named.stream));
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
  const Draft draft(target);
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
    if (!entry.isStorage && !entry.path.starts_with(kGraphFolder)) {
      kept.push_back(entry.path);
    }
  }
  return kept;
}

void PrintRecord(Session& session, const NamedRecord& named) {
  const GraphRecord& record = named.record;
  session.out << "  " << Printable(named.stream) << ": " << record.StoredBytes().size() << " -> "
              << record.NewBytes().size() << " bytes\n";
  std::vector<std::string> defaulted;
  for (const FieldView* field : record.Defaulted()) {
    defaulted.emplace_back(field->field.name);
  }
  std::vector<Fact> facts;
  if (!defaulted.empty()) {
    facts.emplace_back("    defaulted", Join(defaulted, ", "));
  }
  for (const Correction& correction : record.Corrections()) {
    facts.emplace_back("    corrected", correction.name + ": " + ShowValue(correction.stored, 32) +
                                            " -> " + ShowValue(correction.read, 32));
  }
  PrintFacts(session, facts);
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
  session.out << "Written and read back: " << records.size() << " graphs.\n";
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
             {"length", named.record.StoredBytes().size()},
             {"outputLength", named.record.NewBytes().size()},
             {"defaulted", Json::object()},
             {"corrected", CorrectionsToJson(named.record)}};
    for (const FieldView* field : named.record.Defaulted()) {
      row["defaulted"][std::string(field->field.name)] = FieldToJson(*field);
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
      "Copies a document with its graphs, the streams under Graphs/, in the newest\n"
      "layout; other streams are kept. Says of each graph which fields were given\n"
      "their defaults and which values were corrected. A damaged record ends it before\n"
      "anything is written; the new document is read back before success is reported.",
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
  job.version = RequireVersion(version);
  CheckTarget(job, isForced);
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
    session.err << "note: the document has no graphs, it was copied\n";
  }
  return ExitCode::Fine;
}

}  // namespace mqp::tool
