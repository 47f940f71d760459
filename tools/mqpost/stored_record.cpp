#include "stored_record.h"

#include <algorithm>
#include <array>
#include <utility>

#include "text.h"

namespace mqp::tool {
namespace {

std::vector<std::byte> RewriteGraph(const std::vector<std::byte>& stored, int version) {
  host::MemoryStream stream;
  ReadObject<CmqPostGraphParam>(stored, version).WriteToStream(&stream);
  return stream.Bytes();
}

std::vector<std::byte> RewriteEquationPlot(const std::vector<std::byte>& stored, int version) {
  host::MemoryStream stream;
  ReadObject<CmqEquationPlotParam>(stored, version).WriteToStream(&stream, kNewestRecordVersion);
  return stream.Bytes();
}

std::array<const RecordKind*, 2> Kinds() {
  return {&GraphKind(), &EquationPlotKind()};
}

std::string WithArticle(const RecordKind& kind) {
  const bool isVowel = std::string_view("aeiou").find(kind.name.front()) != std::string_view::npos;
  return (isVowel ? "an " : "a ") + std::string(kind.name);
}

std::string ShowRanges(const std::vector<VersionRange>& ranges) {
  std::vector<std::string> texts;
  for (const VersionRange& range : ranges) {
    texts.push_back(std::to_string(range.first) +
                    (range.last ? " to " + std::to_string(*range.last) : " and later"));
  }
  return Join(texts, ", or ");
}

bool IsSame(const ValueView& left, const ValueView& right) {
  return std::equal(left.bytes.begin(), left.bytes.end(), right.bytes.begin(), right.bytes.end());
}

}  // namespace

const RecordKind& GraphKind() {
  static const RecordKind kind{
      "graph", "Graphs/", {CmqPostGraphParam::GetRecordFields(), {}, {}}, RewriteGraph};
  return kind;
}

const RecordKind& EquationPlotKind() {
  static const RecordKind kind{
      "equation plot",
      "Plots/EquationPlot",
      {CmqEquationPlotParam::GetRecordFields(), CmqEquationVariable::GetRecordFields(), "variable"},
      RewriteEquationPlot};
  return kind;
}

const RecordKind* FindKind(std::string_view path) {
  for (const RecordKind* kind : Kinds()) {
    if (path.starts_with(kind->pathBeginning)) {
      return kind;
    }
  }
  return nullptr;
}

std::string CountOf(std::size_t count, const RecordKind& kind) {
  return std::to_string(count) + " " + std::string(kind.name) + (count == 1 ? "" : "s");
}

int RequireVersion(const std::optional<int>& version, const RecordKind& kind) {
  if (!version) {
    throw Problem(ExitCode::Usage,
                  "--doc-version is missing. How a record is laid out depends on the version of "
                  "the document, and that stands outside the records: say it, as in "
                  "--doc-version " +
                      std::to_string(kNewestRecordVersion) + ".");
  }
  if (*version < FirstVersion(kind.layout)) {
    throw Problem(ExitCode::Usage, "--doc-version " + std::to_string(*version) +
                                       " is too old: documents have " + std::string(kind.name) +
                                       "s from version " +
                                       std::to_string(FirstVersion(kind.layout)) + " on.");
  }
  return *version;
}

StoredRecord::StoredRecord(const RecordKind& kind, std::string where, std::vector<std::byte> stored,
                           int version)
    : m_kind(&kind), m_where(std::move(where)), m_version(version), m_stored(std::move(stored)) {
  m_storedView = ViewRecord(m_stored, kind.layout, version);
  if (!Check()) {
    // A text that ends at its first unit is written as an empty one, for which the next reader
    // finds its default: what it writes, every later one reads and writes again.
    m_new = kind.rewrite(kind.rewrite(m_stored, version), kNewestRecordVersion);
    m_newView = ViewRecord(m_new, kind.layout, kNewestRecordVersion);
  }
}

std::optional<Problem> StoredRecord::Check() const {
  const std::string version = std::to_string(m_version);
  const int first = FirstVersion(m_kind->layout);
  if (m_version < first) {
    return Problem(ExitCode::Damaged, m_where + ": Documents have " + std::string(m_kind->name) +
                                          "s from version " + std::to_string(first) +
                                          " on, and this one is said to be of version " + version +
                                          "." + Advise());
  }
  if (m_storedView.Fits()) {
    return std::nullopt;
  }
  if (const std::optional<RecordFault>& fault = m_storedView.fault) {
    return Problem(ExitCode::Damaged, m_where + " > " + fault->field + " > byte " +
                                          std::to_string(fault->offset) +
                                          ": The record is damaged or not of version " + version +
                                          ": " + fault->what + "." + Advise());
  }
  const std::string leftover = m_where + " > behind the last field > byte " +
                               std::to_string(m_storedView.end) + ": " +
                               std::to_string(m_storedView.leftover) + " bytes are left over";
  if (m_version > kNewestRecordVersion) {
    return Problem(ExitCode::TooNew,
                   leftover + ". Version " + version + " is newer than " +
                       std::to_string(kNewestRecordVersion) +
                       ", the newest that this program knows: take a newer mqpost.");
  }
  return Problem(ExitCode::Damaged, leftover + ". The record is damaged or not of version " +
                                        version + "." + Advise());
}

/// What to do about a record that does not have the layout of its version.
std::string StoredRecord::Advise() const {
  const std::vector<VersionRange> ranges = FindFittingVersions(m_stored, m_kind->layout);
  if (!ranges.empty()) {
    return " The record has exactly the layout of the versions " + ShowRanges(ranges) +
           ": check --doc-version.";
  }
  for (const RecordKind* kind : Kinds()) {
    if (ViewRecord(m_stored, kind->layout, m_version).Fits()) {
      return " It has the layout of " + WithArticle(*kind) + ", not of " + WithArticle(*m_kind) +
             ".";
    }
  }
  return " No version has this layout: the stream is damaged, or holds no " +
         std::string(m_kind->name) + ".";
}

std::vector<StoredRecord::FieldPair> StoredRecord::PairFields() const {
  std::vector<FieldPair> pairs;
  // An older layout has the same fields in the same order, but for those that it lacks.
  auto stored = m_storedView.fields.begin();
  for (const FieldView& field : m_newView.fields) {
    const bool isStored = stored != m_storedView.fields.end() && stored->name == field.name;
    pairs.push_back({&field, isStored ? &*stored : nullptr});
    stored += isStored ? 1 : 0;
  }
  return pairs;
}

std::vector<const FieldView*> StoredRecord::Defaulted() const {
  std::vector<const FieldView*> fields;
  for (const auto& [field, stored] : PairFields()) {
    if (stored == nullptr) {
      fields.push_back(field);
    }
  }
  return fields;
}

std::vector<Correction> StoredRecord::Corrections() const {
  std::vector<Correction> corrections;
  for (const auto& [field, stored] : PairFields()) {
    for (std::size_t index = 0; stored != nullptr && index < stored->values.size(); ++index) {
      if (!IsSame(stored->values[index], field->values[index])) {
        corrections.push_back(
            {NameValue(*field, index), stored->values[index].value, field->values[index].value});
      }
    }
  }
  return corrections;
}

}  // namespace mqp::tool
