#include <algorithm>

#include "catalogue_view.h"
#include "command_line.h"
#include "json_output.h"
#include "language.h"
#include "table.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

struct ListedResult {
  int code;
  int count;
  int defaultComponent;
  std::string name;
};

bool IsAvailable(int study, int result) {
  CArray<int, int> studies;
  vekPostCommonGetAvailableAnalysisType(result, 0, studies);
  const int* first = studies.GetData();
  return std::find(first, first + studies.GetSize(), study) != first + studies.GetSize();
}

std::vector<ListedResult> ListResults(int study) {
  std::vector<ListedResult> results;
  for (const Choice& result : Results()) {
    const int count = CountComponents(study, result.code);
    if (count > 0 || !ComponentName(study, result.code, 0).empty() ||
        IsAvailable(study, result.code)) {
      results.push_back({result.code, count, DefaultComponent(study, result.code),
                         Utf8(vekPostCommonGetResultName(result.code))});
    }
  }
  return results;
}

Json StudyToJson(int study) {
  Json results = Json::array();
  for (const ListedResult& result : ListResults(study)) {
    Json row = CodeToJson(Results(), result.code);
    row["resultName"] = result.name;
    row["count"] = result.count;
    row["default"] = result.defaultComponent;
    results.push_back(std::move(row));
  }
  Json json = CodeToJson(Studies(), study);
  json["results"] = std::move(results);
  return json;
}

Json StudiesToJson(const std::vector<Choice>& studies) {
  Json json = NewJson();
  json["studies"] = Json::array();
  for (const Choice& study : studies) {
    json["studies"].push_back(StudyToJson(study.code));
  }
  return json;
}

void PrintStudies(Session& session) {
  Table table({{"code", Align::Right}, {"study"}, {"results(components)", Align::Left, 0, 30}});
  for (const Choice& study : Studies()) {
    std::vector<std::string> results;
    for (const ListedResult& result : ListResults(study.code)) {
      const std::string count = result.count > 0 ? "(" + std::to_string(result.count) + ")" : "";
      results.push_back(NameOf(Results(), result.code) + count);
    }
    table.Add({std::to_string(study.code), std::string(study.name), Join(results, ", ")});
  }
  table.Print(session);
}

void PrintStudy(Session& session, int study) {
  PrintHeading(session, "Results of study " + ShowCode(Studies(), study));
  Table table({{"code", Align::Right},
               {"result"},
               {"components", Align::Right},
               {"default", Align::Right},
               {"result name", Align::Left, 0, 12}});
  for (const ListedResult& result : ListResults(study)) {
    table.Add({std::to_string(result.code), NameOf(Results(), result.code),
               std::to_string(result.count), std::to_string(result.defaultComponent),
               Printable(result.name)});
  }
  table.Print(session);
}

}  // namespace

ExitCode RunList(Session& session) {
  std::optional<std::string> word;
  std::optional<std::string> wanted;
  bool isJson = false;
  CommandLine line(session, "list",
                   "The kinds of study with their results: those with components, with a name for\n"
                   "the first one, or listed as available in the study. Components are counted on\n"
                   "a solid mesh without options.",
                   "mqpost list dynamic");
  line.OptionalPositional("STUDY", word, "one kind of study, with the defaults of its results");
  line.Text("--lang", wanted, kLanguageHelp, "LANG");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  const Language language(session, wanted);
  if (!word) {
    if (isJson) {
      Print(session, StudiesToJson(Studies()));
    } else {
      PrintStudies(session);
    }
    return ExitCode::Fine;
  }
  const int study = ParseChoice(*word, Studies(), "study");
  if (isJson) {
    Print(session, StudiesToJson({{study, {}}}));
  } else {
    PrintStudy(session, study);
  }
  return ExitCode::Fine;
}

}  // namespace mqp::tool
