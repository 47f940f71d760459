#include <ostream>
#include <utility>

#include "catalogue_view.h"
#include "command_line.h"
#include "json_output.h"
#include "language.h"
#include "name_hints.h"
#include "table.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

constexpr int kNothing = -1;
constexpr int kNoResult = 9999;

struct Question {
  int study;
  int result;
  int variant;
  bool isExact;
  std::string name;
};

/// The names of the result that look like the one asked for.
std::vector<std::string> FindNearestOf(const Question& question) {
  std::vector<std::string> names;
  for (int component = 0; component <= kLastComponent; ++component) {
    std::string name = ComponentName(question.study, question.result, component);
    if (!name.empty()) {
      names.push_back(std::move(name));
    }
  }
  return FindNearestNames(question.name, names);
}

void Answer(Session& session, const Question& question, int component, int result) {
  const std::string found =
      component == kNothing ? "none"
                            : std::to_string(component) + "  " +
                                  Quoted(ComponentName(question.study, question.result, component));
  const std::string byName = result == kNoResult ? "none" : ShowCode(Results(), result);
  PrintFacts(session, {{"Component of " + ShowCode(Results(), question.result) + " in " +
                            ShowCode(Studies(), question.study),
                        found},
                       {"Result type by the name alone", byName}});
}

Json AnswerToJson(const Question& question, int component, int result) {
  Json json = NewJson();
  json["study"] = CodeToJson(Studies(), question.study);
  json["result"] = CodeToJson(Results(), question.result);
  json["name"] = question.name;
  json["component"] = component;
  json["resultTypeByName"] = CodeToJson(Results(), result);
  return json;
}

}  // namespace

ExitCode RunFind(Session& session) {
  std::string study;
  std::string result;
  Question question{};
  bool isJson = false;
  std::optional<std::string> wanted;
  CommandLine line(session, "find",
                   "The component that a name stands for. Names are compared from their beginning\n"
                   "and with case. Exit code 1 when none is found.",
                   "mqpost find static stress \"SEQ: equivalent stress\" --exact");
  line.Positional("STUDY", study, "name or code");
  line.Positional("RESULT", result, "name or code");
  line.Positional("NAME", question.name, "a name, or a text that begins with one");
  line.Flag("--exact", question.isExact, "NAME is a whole name; otherwise its symbol decides");
  line.Integer("--variant", question.variant, "not 0: components 14 and 15 of a Static stress too");
  line.Text("--lang", wanted, kLanguageHelp, "LANG");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  question.study = ParseChoice(study, Studies(), "study");
  question.result = ParseChoice(result, Results(), "result");
  const Language language(session, wanted);
  const int component =
      vekPostCommonGetComponentIndexByName(question.study, question.result, question.variant,
                                           Wide(question.name), question.isExact ? 1 : 0);
  const int byName = vekPostCommonGetResultTypeByComponentName(Wide(question.name));
  if (isJson) {
    Print(session, AnswerToJson(question, component, byName));
  } else {
    Answer(session, question, component, byName);
  }
  if (component != kNothing) {
    return ExitCode::Fine;
  }
  session.err << "mqpost: No component of " << ShowCode(Results(), question.result)
              << " in a study " << ShowCode(Studies(), question.study) << " is called "
              << Quoted(question.name) << "." << AskWhether(FindNearestOf(question)) << '\n';
  return ExitCode::Finding;
}

}  // namespace mqp::tool
