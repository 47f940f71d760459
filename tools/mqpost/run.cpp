#include "run.h"

#include <algorithm>
#include <array>
#include <locale>
#include <ostream>
#include <string_view>

#include <storage/compound_document.h>

#include "choices.h"
#include "text.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

struct Verb {
  std::string_view name;
  std::string_view arguments;
  std::string_view summary;
  ExitCode (*run)(Session&);
};

// clang-format off
constexpr auto kVerbs = std::to_array<Verb>({
    {"list",       "[STUDY]",                      "kinds of study and their results",         RunList},
    {"show",       "STUDY RESULT",                 "the components of a result",               RunShow},
    {"find",       "STUDY RESULT NAME",            "the component that a name stands for",     RunFind},
    {"columns",    "STUDY RESULT [--set N]",       "the columns of a result list",             RunColumns},
    {"units",      "[TYPE]",                       "unit types with their units and defaults", RunUnits},
    {"strings",    "[ID...]",                      "the string table and its translation",     RunStrings},
    {"ls",         "DOC",                          "streams and storages of a document",       RunLs},
    {"graph",      "DOC::STREAM --doc-version N",  "a stored graph as a person reads it",      RunGraph},
    {"equation",   "DOC::STREAM --doc-version N",  "a stored equation plot likewise",          RunEquation},
    {"equation",   "check TEXT --study STUDY",     "what an equation is stored as",            RunEquation},
    {"convert",    "DOC -o NEW --doc-version N",   "a document in the newest layout",          RunConvert},
    {"material",   "keywords|units|model [WORD]",  "material properties, units and models",    RunMaterial},
    {"curve",      "FILE.csv --at T",              "a property over temperature",              RunCurve},
    {"components", "FILE.json",                    "the display list of an assembly",          RunComponents},
});
// clang-format on

constexpr std::string_view kHelpEnd = R"(
Every verb: --json for programs, --help for its options and an example.
STUDY, RESULT and TYPE are names in any letter case, or integer codes.

Examples:
  mqpost show static stress --units ips
  mqpost graph study.cfb::Graphs/Graph1 --doc-version 890110 --bytes
  mqpost equation study.cfb::Plots/EquationPlot1 --doc-version 890110
  mqpost convert old.cfb -o new.cfb --doc-version 800018

Exit codes:
  0  fine
  1  it ran and came to a finding: no such name (find, equation check, material,
     components), no such columns (columns), no such text (strings), texts
     without a translation (strings --missing)
  2  the command line cannot be understood or carried out
  3  a file or record is damaged, or not what it should be
  4  a record holds more than this version knows
  5  a file or stream is missing, or cannot be read or written

Results go to standard output, everything else to standard error. Colour is
used on a terminal only, unless NO_COLOR is set or TERM is "dumb".
)";

void PrintHelp(std::ostream& out) {
  out << "mqpost: looks into the result catalogue and the records of study documents\n\n"
         "Usage: mqpost VERB [ARGUMENTS] [OPTIONS]\n"
         "       mqpost --help | --version\n\nVerbs:\n";
  for (const Verb& verb : kVerbs) {
    const std::string begin = "  " + std::string(verb.name) + " " + std::string(verb.arguments);
    out << begin << std::string(begin.size() < 40 ? 40 - begin.size() : 1, ' ') << verb.summary
        << '\n';
  }
  out << kHelpEnd;
}

const Verb& FindVerb(const std::string& word) {
  const auto verb = std::ranges::find(kVerbs, word, &Verb::name);
  if (verb != kVerbs.end()) {
    return *verb;
  }
  std::vector<std::string> names = {"--help", "--version"};
  for (const Verb& known : kVerbs) {
    names.emplace_back(known.name);
  }
  const std::vector<std::string> nearest = FindNearest(word, names);
  throw Problem(ExitCode::Usage,
                "There is no verb " + Quoted(word) + "." +
                    (nearest.empty() ? " See mqpost --help." : AskWhether(nearest)));
}

ExitCode Dispatch(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
                  const Environment& environment) {
  if (arguments.empty()) {
    throw Problem(ExitCode::Usage, "Name a verb. See mqpost --help.");
  }
  const std::string& word = arguments.front();
  if (word == "--help" || word == "-h" || word == "help") {
    PrintHelp(out);
    return ExitCode::Fine;
  }
  if (word == "--version") {
    out << "mqpost " MQPOST_VERSION "\n";
    return ExitCode::Fine;
  }
  const Verb& verb = FindVerb(word);
  Session session{{arguments.begin() + 1, arguments.end()}, out, err, environment};
  return verb.run(session);
}

ExitCode CodeOf(host::DocumentProblem problem) {
  switch (problem) {
    case host::DocumentProblem::NotCompound:
    case host::DocumentProblem::Damaged:
    case host::DocumentProblem::BadPath: return ExitCode::Damaged;
    case host::DocumentProblem::File:
    case host::DocumentProblem::NoStream: break;
  }
  return ExitCode::FileTrouble;
}

ExitCode RunGuarded(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
                    const Environment& environment) {
  const auto complain = [&err](const std::exception& error) {
    err << "mqpost: " << error.what() << '\n';
  };
  try {
    return Dispatch(arguments, out, err, environment);
  } catch (const Problem& problem) {
    complain(problem);
    return problem.Code();
  } catch (const host::DocumentError& error) {
    complain(error);
    return CodeOf(error.Problem());
  } catch (const std::exception& error) {
    complain(error);
    return ExitCode::FileTrouble;
  }
}

}  // namespace

int Run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
        const Environment& environment) {
  // Numbers look alike in every locale.
  out.imbue(std::locale::classic());
  err.imbue(std::locale::classic());
  const ExitCode code = RunGuarded(arguments, out, err, environment);
  out.flush();
  if (!out) {
    err << "mqpost: The standard output cannot be written. Is the disk full?\n";
    return Code(ExitCode::FileTrouble);
  }
  return Code(code);
}

}  // namespace mqp::tool
