#include <algorithm>
#include <ostream>

#include "catalogue_view.h"
#include "command_line.h"
#include "json_output.h"
#include "language.h"
#include "name_hints.h"
#include "table.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

constexpr mqChar kQuote = MQ_TEXT('"');
constexpr int kNothing = -1;

struct OfferedList {
  StringValues CmqResultCompsEqnVarsList::* names;
  ResultType result;
};

// Those whose components an equation can have.
// clang-format off
constexpr auto kOfferedLists = std::to_array<OfferedList>({
    {&CmqResultCompsEqnVarsList::m_listStressNames,       ResultType::Stress},
    {&CmqResultCompsEqnVarsList::m_listBeamStressNames,   ResultType::BeamStress},
    {&CmqResultCompsEqnVarsList::m_listStrainNames,       ResultType::Strain},
    {&CmqResultCompsEqnVarsList::m_listDisplacementNames, ResultType::Displacement},
    {&CmqResultCompsEqnVarsList::m_listThermalNames,      ResultType::Thermal},
});
// clang-format on

/// A name in the equation, and what becomes of it.
struct Operand {
  std::string name;  ///< without its quotation marks
  std::string placeholder;
  int result;     ///< -1 when no list offers the name
  int component;  ///< -1 when the look-up finds none
  std::string componentName;

  [[nodiscard]] bool IsKnown() const { return component != kNothing; }
};

/// An equation as it would be stored for a study.
struct CheckedEquation {
  int study;
  int meshKind;
  std::string typed;
  std::vector<std::string> offered;
  std::optional<std::string> unpaired;  ///< what stands behind a quotation mark without a partner
  std::vector<Operand> operands;
  std::string stored;
  std::string displayed;

  [[nodiscard]] bool IsFine() const {
    return !unpaired && std::ranges::all_of(operands, &Operand::IsKnown);
  }
};

/// Offers every component that the study has.
void OfferNames(CheckedEquation& equation, CmqResultCompsEqnVarsList& editor) {
  CatalogueOptions options;
  options.meshKind = equation.meshKind;
  for (const OfferedList& list : kOfferedLists) {
    const int result = Code(list.result);
    const int count = CountComponents(equation.study, result, options);
    for (int component = 0; component < count; ++component) {
      const std::string name = ComponentName(equation.study, result, component, options);
      if (!name.empty()) {
        (editor.*list.names).AddTail(Wide('"' + name + '"'));
        equation.offered.push_back(name);
      }
    }
  }
}

/// Takes the names over, each once, from one quotation mark to the next.
void CollectNames(CheckedEquation& equation, CmqResultCompsEqnVarsList& editor) {
  const mqTextView text = editor.m_strEquation.View();
  for (std::size_t begin = text.find(kQuote); begin != mqTextView::npos;) {
    const std::size_t end = text.find(kQuote, begin + 1);
    if (end == mqTextView::npos) {
      equation.unpaired = Utf8(text.substr(begin + 1));
      return;
    }
    const CString name(text.substr(begin, end + 1 - begin));
    if (editor.m_listVariableNames.Find(name) == nullptr) {
      editor.m_listVariableNames.AddTail(name);
    }
    begin = text.find(kQuote, end + 1);
  }
}

void PrepareEquation(CheckedEquation& equation, const CmqResultCompsEqnVarsList& editor) {
  CmqEquationPlotParam plot;
  plot.PrepareEquationParams(&editor);
  POSITION name = editor.m_listVariableNames.GetHeadPosition();
  for (POSITION place = plot.m_listVariables.GetHeadPosition(); place != nullptr;) {
    const CmqEquationVariable& variable = *plot.m_listVariables.GetNext(place);
    const mqTextView quoted = editor.m_listVariableNames.GetNext(name).View();
    equation.operands.push_back(
        {Utf8(quoted.substr(1, quoted.size() - 2)), Utf8(variable.m_strName),
         variable.m_nResultType, variable.m_nComponent,
         Utf8(variable.GetComponentName(equation.study, 0, equation.meshKind, 0))});
  }
  equation.stored = Utf8(plot.m_strEquation);
  plot.PrepareEquationToDisplay(equation.study, 0, equation.meshKind, 0);
  equation.displayed = Utf8(plot.m_strDisplayEquation);
}

CheckedEquation CheckEquation(const std::string& text, int study, int meshKind) {
  CheckedEquation equation{};
  equation.study = study;
  equation.meshKind = meshKind;
  equation.typed = text;
  CmqResultCompsEqnVarsList editor;
  editor.m_nAnalysisType = study;
  editor.m_strEquation = Wide(text);
  OfferNames(equation, editor);
  CollectNames(equation, editor);
  PrepareEquation(equation, editor);
  return equation;
}

std::string ShowResult(const Operand& operand) {
  return operand.result == kNothing ? "unknown" : ShowCode(Results(), operand.result);
}

/// The name only where it is another one than was typed: a look-up compares the symbols alone.
std::string ShowComponent(const Operand& operand) {
  if (!operand.IsKnown()) {
    return operand.result == kNothing ? "-" : "none";
  }
  const bool isSame = operand.componentName == operand.name;
  return std::to_string(operand.component) + (isSame ? "" : " " + Printable(operand.componentName));
}

void PrintEquation(Session& session, const CheckedEquation& equation) {
  PrintHeading(session, "Equation for study " + ShowCode(Studies(), equation.study));
  PrintFacts(session, {{"Typed", Printable(equation.typed)},
                       {"Stored", Printable(equation.stored)},
                       {"Displayed", Printable(equation.displayed)}});
  if (equation.operands.empty()) {
    return;
  }
  Table table({{"placeholder"},
               {"name", Align::Left, 0, 14},
               {"result", Align::Left, 0, 12},
               {"component", Align::Left, 0, 14}});
  for (const Operand& operand : equation.operands) {
    table.Add({operand.placeholder, Printable(operand.name), ShowResult(operand),
               ShowComponent(operand)});
  }
  session.out << '\n';
  table.Print(session);
}

Json EquationToJson(const CheckedEquation& equation) {
  Json json = NewJson();
  json["study"] = CodeToJson(Studies(), equation.study);
  json["typed"] = equation.typed;
  json["equation"] = equation.stored;
  json["displayEquation"] = equation.displayed;
  json["isPaired"] = !equation.unpaired.has_value();
  json["variables"] = Json::array();
  for (const Operand& operand : equation.operands) {
    json["variables"].push_back(
        {{"name", operand.name},
         {"isKnown", operand.IsKnown()},
         {"placeholder", operand.placeholder},
         {"resultType", CodeToJson(Results(), operand.result)},
         {"component", {{"index", operand.component}, {"name", operand.componentName}}}});
  }
  return json;
}

bool HasComponent(const CheckedEquation& equation, int result, int meshKind,
                  const std::string& name) {
  CatalogueOptions options;
  options.meshKind = meshKind;
  const int count = CountComponents(equation.study, result, options);
  for (int component = 0; component < count; ++component) {
    if (ComponentName(equation.study, result, component, options) == name) {
      return true;
    }
  }
  return false;
}

/// Where else the study has a component of that name, or what may have been meant.
std::string FindElsewhere(const CheckedEquation& equation, const std::string& name) {
  for (const Choice& mesh : Meshes()) {
    for (const OfferedList& list : kOfferedLists) {
      if (HasComponent(equation, Code(list.result), mesh.code, name)) {
        return " With --mesh " + std::string(mesh.name) + " there is one.";
      }
    }
  }
  for (const Choice& result : Results()) {
    if (HasComponent(equation, result.code, equation.meshKind, name)) {
      return " It is one of " + ShowCode(Results(), result.code) +
             ", which equations cannot have: they take stresses, beam stresses, strains, "
             "displacements and thermal results.";
    }
  }
  return AskWhether(FindNearestNames(name, equation.offered));
}

void Complain(Session& session, const CheckedEquation& equation) {
  for (const Operand& operand : equation.operands) {
    if (operand.result == kNothing) {
      session.err << "mqpost: No component for an equation of a study "
                  << ShowCode(Studies(), equation.study) << " is called " << Quoted(operand.name)
                  << "." << FindElsewhere(equation, operand.name) << '\n';
    } else if (!operand.IsKnown()) {
      session.err << "mqpost: " << Quoted(operand.name) << " is offered for result "
                  << ShowCode(Results(), operand.result)
                  << ", but the look-up by name finds no component of it.\n";
    }
  }
  if (equation.unpaired) {
    session.err << "mqpost: The last quotation mark has no partner; behind it stands "
                << Quoted(Shorten(*equation.unpaired, 32))
                << ". A name stands between two of them.\n";
  } else if (equation.operands.empty()) {
    session.err << "note: the equation has no names. These stand in double-quote characters, "
                   "which a shell keeps to itself unless the whole equation is quoted, as in "
                   "'2*\"SX: stress along X\"'\n";
  }
}

}  // namespace

ExitCode RunEquationCheck(Session& session) {
  std::string text;
  std::optional<std::string> study;
  int meshKind = Code(MeshKind::SolidMesh);
  std::optional<std::string> wanted;
  bool isJson = false;
  CommandLine line(
      session, "equation check",
      "What an equation is stored as, and which components its names stand for. A name\n"
      "is the full name of a component in double-quote characters: of a stress, beam\n"
      "stress, strain, displacement or thermal result. Operators and numbers are not\n"
      "checked. An equation that begins with a minus stands behind --. Exit code 1 when\n"
      "a name is unknown or a quotation mark has no partner.",
      "mqpost equation check '\"SX: stress along X\"/2' --study static");
  line.Positional("TEXT", text, "the equation as it is typed");
  line.Text("--study", study, "the kind of study: name or code", "NAME");
  line.OneOf("--mesh", meshKind, Meshes(), "kind of mesh", kMeshHelp);
  line.Text("--lang", wanted, kLanguageHelp, "LANG");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  if (!study) {
    throw Problem(ExitCode::Usage,
                  "--study is missing: which names there are depends on the kind of study, as in "
                  "--study static.");
  }
  const int studyCode = ParseChoice(*study, Studies(), "study");
  const Language language(session, wanted);
  const CheckedEquation equation = CheckEquation(text, studyCode, meshKind);
  if (isJson) {
    Print(session, EquationToJson(equation));
  } else {
    PrintEquation(session, equation);
  }
  Complain(session, equation);
  return equation.IsFine() ? ExitCode::Fine : ExitCode::Finding;
}

}  // namespace mqp::tool
