#include <storage/compound_document.h>

#include "command_line.h"
#include "json_output.h"
#include "table.h"
#include "text.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

void PrintEntries(Session& session, const host::CompoundDocument& document) {
  Table table({{"bytes", Align::Right}, {"stream, or storage/", Align::Left, 0, 20}});
  for (const host::DocumentEntry& entry : document.Entries()) {
    table.Add({entry.isStorage ? "-" : std::to_string(entry.size),
               Printable(entry.path) + (entry.isStorage ? "/" : "")});
  }
  table.Print(session);
}

Json EntriesToJson(const std::string& name, const host::CompoundDocument& document) {
  Json json = NewJson();
  json["document"] = name;
  json["entries"] = Json::array();
  for (const host::DocumentEntry& entry : document.Entries()) {
    json["entries"].push_back({{"path", entry.path},
                               {"kind", entry.isStorage ? "storage" : "stream"},
                               {"size", entry.isStorage ? Json() : Json(entry.size)}});
  }
  return json;
}

}  // namespace

ExitCode RunLs(Session& session) {
  std::string name;
  bool isJson = false;
  CommandLine line(session, "ls", "The streams and storages of a document.", "mqpost ls study.cfb");
  line.Positional("DOC", name, "a study document");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  const host::CompoundDocument document(PathOf(name));
  if (isJson) {
    Print(session, EntriesToJson(name, document));
  } else {
    PrintEntries(session, document);
  }
  return ExitCode::Fine;
}

}  // namespace mqp::tool
