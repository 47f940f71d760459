#include <algorithm>
#include <ostream>

#include "catalogue_view.h"
#include "command_line.h"
#include "document_stream.h"
#include "json_output.h"
#include "language.h"
#include "record_output.h"
#include "stored_record.h"
#include "table.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

/// No equation as it is typed comes near; those of damaged records grow further.
constexpr int kLongestDisplay = 16384;

/// Everything that is shown of one equation plot.
struct EquationView {
  StreamName name;
  int study;
  int meshKind;
  const StoredRecord& record;
  CmqEquationPlotParam plot;
};

std::vector<const CmqEquationVariable*> VariablesOf(const CmqEquationPlotParam& plot) {
  std::vector<const CmqEquationVariable*> variables;
  for (POSITION position = plot.m_listVariables.GetHeadPosition(); position != nullptr;) {
    variables.push_back(plot.m_listVariables.GetNext(position));
  }
  return variables;
}

std::string DisplayEquation(const EquationView& view) {
  CmqEquationPlotParam plot(view.plot);
  plot.PrepareEquationToDisplay(view.study, 0, view.meshKind, 0);
  return Utf8(plot.m_strDisplayEquation);
}

std::string NameComponent(const EquationView& view, const CmqEquationVariable& variable) {
  return Utf8(variable.GetComponentName(view.study, 0, view.meshKind, 0));
}

void PrintSummary(Session& session, const EquationView& view) {
  const CmqEquationPlotParam& plot = view.plot;
  PrintHeading(session, ShowStreamName(view.name) + ": equation plot of version " +
                            std::to_string(view.record.Version()) + ", " +
                            std::to_string(view.record.StoredBytes().size()) + " bytes");
  const std::string flag = "flag " + std::to_string(plot.m_nCoefficientsFlag);
  std::vector<Fact> facts = {
      {"Equation", Printable(Utf8(plot.m_strEquation))},
      {"Displayed", Shorten(Printable(DisplayEquation(view)), kLongestDisplay)},
      {"Names of study", ShowCode(Studies(), view.study) + "; --study chooses another"},
      {"Coefficients", plot.m_nCoefficientsFlag != 0 ? "used, " + flag : "not used, " + flag},
      {"First string", Quoted(Utf8(plot.m_strHost3[0]))},
      {"Second string", Quoted(Utf8(plot.m_strHost3[1]))},
      {"Variables", std::to_string(plot.m_listVariables.GetCount())}};
  for (const Correction& correction : view.record.Corrections()) {
    facts.emplace_back("Corrected", ShowCorrection(correction));
  }
  PrintFacts(session, facts);
}

void PrintVariables(Session& session, const EquationView& view) {
  Table table({{"placeholder", Align::Left, 0, 13},
               {"result", Align::Left, 0, 12},
               {"component", Align::Left, 0, 14},
               {"coefficient", Align::Right}});
  for (const CmqEquationVariable* variable : VariablesOf(view.plot)) {
    const std::string name = NameComponent(view, *variable);
    table.Add({Printable(Utf8(variable->m_strName)), ShowCode(Results(), variable->m_nResultType),
               std::to_string(variable->m_nComponent) + (name.empty() ? "" : " " + Printable(name)),
               ShowNumber(variable->m_dCoefficient)});
  }
  table.Print(session);
}

Json EquationToJson(const EquationView& view, bool isBytes) {
  Json json = NewJson();
  json["document"] = view.name.document;
  json["stream"] = view.name.stream;
  json["version"] = view.record.Version();
  json["length"] = view.record.StoredBytes().size();
  json["study"] = CodeToJson(Studies(), view.study);
  json["displayEquation"] = DisplayEquation(view);
  json["variables"] = Json::array();
  for (const CmqEquationVariable* variable : VariablesOf(view.plot)) {
    json["variables"].push_back(
        {{"placeholder", Utf8(variable->m_strName)},
         {"resultType", CodeToJson(Results(), variable->m_nResultType)},
         {"component",
          {{"index", variable->m_nComponent}, {"name", NameComponent(view, *variable)}}},
         {"coefficient", ValueToJson(variable->m_dCoefficient)}});
  }
  json["values"] = ValuesToJson(view.record);
  json["corrected"] = CorrectionsToJson(view.record);
  if (isBytes) {
    json["bytes"] = BytesToJson(view.record.Stored());
  }
  return json;
}

/// A study that lacks an operand is most likely not that of the plot.
void NoteNameless(Session& session, const EquationView& view) {
  for (const CmqEquationVariable* variable : VariablesOf(view.plot)) {
    if (NameComponent(view, *variable).empty()) {
      session.err << "note: component " << variable->m_nComponent << " of result "
                  << ShowCode(Results(), variable->m_nResultType) << " has no name in a study "
                  << ShowCode(Studies(), view.study) << ": is --study right?\n";
      return;
    }
  }
}

void PrintEquation(Session& session, const EquationView& view, bool isBytes) {
  PrintSummary(session, view);
  if (isBytes) {
    session.out << '\n';
    PrintBytes(session, view.record.Stored());
  } else if (!view.plot.m_listVariables.IsEmpty()) {
    session.out << '\n';
    PrintVariables(session, view);
  }
}

ExitCode RunStored(Session& session) {
  std::string word;
  std::optional<int> version;
  std::optional<std::string> wanted;
  int study = Code(AnalysisType::Static);
  int meshKind = Code(MeshKind::SolidMesh);
  bool isBytes = false;
  bool isJson = false;
  CommandLine line(
      session, "equation",
      "A stored equation plot as a person reads it: the equation with its placeholders\n"
      "and as it is displayed, and what each placeholder stands for. The record does\n"
      "not say which kind of study it belongs to, and names depend on it: --study\n"
      "does. An equation that is still to be stored: mqpost equation check --help.",
      "mqpost equation study.cfb::Plots/EquationPlot1 --doc-version 890110");
  line.Positional("DOC::STREAM", word, "a document and a stream in it");
  line.Integer("--doc-version", version, kVersionHelp);
  line.OneOf("--study", study, Studies(), "study", "for the names; Static when it is missing");
  line.OneOf("--mesh", meshKind, Meshes(), "kind of mesh", kMeshHelp);
  line.Flag("--bytes", isBytes, "the stored bytes, field by field");
  line.Text("--lang", wanted, kLanguageHelp, "LANG");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  const StreamName name = DivideName(word);
  RequireVersion(version, EquationPlotKind());
  const Language language(session, wanted);
  const StoredRecord record(EquationPlotKind(), ShowStreamName(name), ReadStream(name), *version);
  if (const std::optional<Problem> problem = record.Check()) {
    if (isBytes && !isJson) {
      PrintBytes(session, record.Stored());
    }
    throw *problem;
  }
  const EquationView view{name, study, meshKind, record, record.Read<CmqEquationPlotParam>()};
  if (isJson) {
    Print(session, EquationToJson(view, isBytes));
  } else {
    PrintEquation(session, view, isBytes);
  }
  NoteNameless(session, view);
  return ExitCode::Fine;
}

}  // namespace

ExitCode RunEquation(Session& session) {
  // The name of a stream has "::" in it and cannot be taken for the word.
  const auto check = std::ranges::find(session.arguments, "check");
  if (check == session.arguments.end()) {
    return RunStored(session);
  }
  session.arguments.erase(check);
  return RunEquationCheck(session);
}

}  // namespace mqp::tool
