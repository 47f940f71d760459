#include "graph_record.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <storage/memory_stream.h>

#include "text.h"

namespace mqp::tool {
namespace {

const std::vector<RecordField>& Layout() {
  static const std::vector<RecordField> layout = CmqPostGraphParam::GetRecordFields();
  return layout;
}

std::string ShowRanges(const std::vector<VersionRange>& ranges) {
  std::vector<std::string> texts;
  for (const VersionRange& range : ranges) {
    texts.push_back(std::to_string(range.first) +
                    (range.last ? " to " + std::to_string(*range.last) : " and later"));
  }
  return Join(texts, ", or ");
}

/// What to do about a record that does not have the layout of its version.
std::string Advise(Bytes bytes) {
  const std::vector<VersionRange> ranges = FindFittingVersions(bytes, Layout());
  return ranges.empty() ? " No version has this layout: the stream is damaged, or holds no graph."
                        : " The record has exactly the layout of the versions " +
                              ShowRanges(ranges) + ": check --doc-version.";
}

bool IsSame(const ValueView& left, const ValueView& right) {
  return std::equal(left.bytes.begin(), left.bytes.end(), right.bytes.begin(), right.bytes.end());
}

}  // namespace

int RequireVersion(const std::optional<int>& version) {
  if (!version) {
    throw Problem(ExitCode::Usage,
                  "--doc-version is missing. How a record is laid out depends on the version of "
                  "the document, and that stands outside the records: say it, as in "
                  "--doc-version " +
                      std::to_string(kNewestRecordVersion) + ".");
  }
  if (*version < FirstVersion(Layout())) {
    throw Problem(ExitCode::Usage, "--doc-version " + std::to_string(*version) +
                                       " is too old: documents have graphs from version " +
                                       std::to_string(FirstVersion(Layout())) + " on.");
  }
  return *version;
}

std::vector<std::byte> WriteGraph(const CmqPostGraphParam& graph) {
  host::MemoryStream stream;
  graph.WriteToStream(&stream);
  return stream.Bytes();
}

GraphRecord::GraphRecord(std::string where, std::vector<std::byte> stored, int version)
    : m_where(std::move(where)), m_version(version), m_stored(std::move(stored)) {
  host::MemoryStream stream(m_stored);
  m_graph.ReadFromStream(&stream, version);
  m_new = WriteGraph(m_graph);
  m_storedView = ViewRecord(m_stored, Layout(), version);
  m_newView = ViewRecord(m_new, Layout(), kNewestRecordVersion);
}

std::optional<Problem> GraphRecord::Check() const {
  if (m_storedView.Fits()) {
    return std::nullopt;
  }
  const std::string version = std::to_string(m_version);
  if (const std::optional<RecordFault>& fault = m_storedView.fault) {
    return Problem(ExitCode::Damaged, m_where + " > " + fault->field + " > byte " +
                                          std::to_string(fault->offset) +
                                          ": The record is damaged or not of version " + version +
                                          ": " + fault->what + "." + Advise(m_stored));
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
                                        version + "." + Advise(m_stored));
}

std::vector<const FieldView*> GraphRecord::Defaulted() const {
  std::vector<const FieldView*> fields;
  for (const FieldView& field : m_newView.fields) {
    if (FindField(m_storedView, field.field.name) == nullptr) {
      fields.push_back(&field);
    }
  }
  return fields;
}

std::vector<Correction> GraphRecord::Corrections() const {
  std::vector<Correction> corrections;
  for (const FieldView& field : m_newView.fields) {
    const FieldView* stored = FindField(m_storedView, field.field.name);
    for (std::size_t index = 0; stored != nullptr && index < stored->values.size(); ++index) {
      if (!IsSame(stored->values[index], field.values[index])) {
        corrections.push_back({NameValue(field.field, index), stored->values[index].value,
                               field.values[index].value});
      }
    }
  }
  return corrections;
}

Json ValueToJson(const StoredValue& value) {
  if (const int* integer = std::get_if<int>(&value)) {
    return *integer;
  }
  if (const double* number = std::get_if<double>(&value)) {
    return std::isfinite(*number) ? Json(*number) : Json(ShowNumber(*number));
  }
  return Utf8(mqTextView(std::get<std::basic_string<mqChar>>(value)));
}

Json FieldToJson(const FieldView& field) {
  if (field.field.count == 1) {
    return ValueToJson(field.values.front().value);
  }
  Json values = Json::array();
  for (const ValueView& value : field.values) {
    values.push_back(ValueToJson(value.value));
  }
  return values;
}

Json CorrectionsToJson(const GraphRecord& record) {
  Json json = Json::object();
  for (const Correction& correction : record.Corrections()) {
    json[correction.name] = {{"stored", ValueToJson(correction.stored)},
                             {"read", ValueToJson(correction.read)}};
  }
  return json;
}

}  // namespace mqp::tool
