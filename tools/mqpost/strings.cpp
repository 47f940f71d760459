#include <algorithm>
#include <fstream>
#include <iterator>
#include <ostream>

#include "command_line.h"
#include "json_output.h"
#include "language.h"
#include "table.h"
#include "text.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

struct Row {
  UINT id;
  std::string english;
  std::optional<std::string> translation;
};

/// Some translations read like the English text. The file still has a message for them: compiled
/// files keep keys as they are, each ended by a zero, and leave out messages without translation.
class MessageKeys {
 public:
  explicit MessageKeys(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    m_content.assign(std::istreambuf_iterator<char>(stream), {});
  }
  [[nodiscard]] bool Has(UINT id, const std::string& english) const {
    constexpr char kContextEnd = '\x04';
    const std::string key = '\0' + std::to_string(id) + kContextEnd + english + '\0';
    return m_content.find(key) != std::string::npos;
  }

 private:
  std::string m_content;
};

std::vector<Row> ReadRows(const Language& language) {
  const MessageKeys keys(language.File());
  std::vector<Row> rows;
  for (const host::StringTableEntry& entry : host::BuiltInTexts()) {
    Row row{entry.id, Utf8(entry.text), std::nullopt};
    CString loaded;
    mqpLoadString(loaded, entry.id);
    std::string text = Utf8(loaded);
    if (text != row.english || keys.Has(row.id, row.english)) {
      row.translation = std::move(text);
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

UINT ParseId(const std::string& word) {
  const std::optional<int> id = ParseInteger(word);
  if (!id || *id < 0) {
    throw Problem(ExitCode::Usage, "An ID is a number such as 54578, not " + Quoted(word) + ".");
  }
  return static_cast<UINT>(*id);
}

/// The rows of these ids, in their order.
std::vector<Row> Select(const std::vector<Row>& rows, const std::vector<UINT>& ids) {
  std::vector<Row> selected;
  for (const UINT id : ids) {
    const auto row = std::ranges::find(rows, id, &Row::id);
    if (row == rows.end()) {
      throw Problem(ExitCode::Finding, "The string table has no text " + std::to_string(id) + ".");
    }
    selected.push_back(*row);
  }
  return selected;
}

void PrintRows(Session& session, const std::vector<Row>& rows, bool hasLanguage) {
  std::vector<Column> columns = {{"id", Align::Right}, {"English", Align::Left, 0, 20}};
  if (hasLanguage) {
    columns.push_back({"translation", Align::Left, 0, 20});
  }
  Table table(columns);
  for (const Row& row : rows) {
    std::vector<std::string> cells = {std::to_string(row.id), Printable(row.english)};
    if (hasLanguage) {
      cells.push_back(row.translation ? Printable(*row.translation) : "-");
    }
    table.Add(std::move(cells));
  }
  table.Print(session);
}

Json RowsToJson(const std::vector<Row>& rows, const Language& language) {
  Json json = NewJson();
  json["translations"] = language.File().empty() ? Json() : Json(Utf8(language.File()));
  json["strings"] = Json::array();
  for (const Row& row : rows) {
    json["strings"].push_back({{"id", row.id},
                               {"english", row.english},
                               {"translation", row.translation ? Json(*row.translation) : Json()}});
  }
  return json;
}

}  // namespace

ExitCode RunStrings(Session& session) {
  std::vector<std::string> words;
  std::optional<std::string> wanted;
  bool isMissing = false;
  bool isJson = false;
  CommandLine line(session, "strings", "The string table: id, English text and translation.",
                   "mqpost strings --lang de --missing");
  line.Positionals("ID", words, "these texts alone");
  line.Text("--lang", wanted, "with the translations of this language, or of a FILE.mo", "LANG");
  line.Flag("--missing", isMissing, "those without a translation; exit code 1 if there are any");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  if (isMissing && !wanted) {
    throw Problem(ExitCode::Usage, "--missing needs a translation to look into: add --lang.");
  }
  std::vector<UINT> ids;
  std::ranges::transform(words, std::back_inserter(ids), ParseId);
  const Language language(session, wanted);
  std::vector<Row> rows = ReadRows(language);
  if (!ids.empty()) {
    rows = Select(rows, ids);
  }
  if (isMissing) {
    std::erase_if(rows, [](const Row& row) { return row.translation.has_value(); });
  }
  if (isJson) {
    Print(session, RowsToJson(rows, language));
  } else if (!isMissing || !rows.empty()) {
    PrintRows(session, rows, wanted.has_value());
  }
  if (!isMissing) {
    return ExitCode::Fine;
  }
  session.err << "note: " << rows.size() << " texts without a translation\n";
  return rows.empty() ? ExitCode::Fine : ExitCode::Finding;
}

}  // namespace mqp::tool
