#include <algorithm>
#include <array>
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

constexpr int kNothingShown = 0;
constexpr int kNoSensor = -1;

// What GetResultGraphType answers.
constexpr auto kGraphKinds = std::to_array<Choice>({
    {13, "response graph"},
    {52, "fatigue damage matrix"},
    {61, "transient sensor graph"},
    {63, "frequency response graph"},
});

/// What an axis shows, in words and as the codes that it has.
struct AxisView {
  const CmqGraphAxis& axis;
  std::string quantity;
  std::string component;
  std::string unit;
  bool hasUnits = false;  ///< the component has a unit type with units
};

/// The text that a plot's name takes for the X axis alone.
std::string NameQuantityOfPlot(const CmqPostGraphParam& graph, const CmqGraphAxis& axis) {
  CmqPostGraphParam alone(graph);
  alone.m_nResultType = Code(ResultType::ResultType0);
  alone.m_XAxis = axis;
  alone.m_YAxis.m_nQuantityType = kNothingShown;
  return Utf8(alone.GetDefaultPlotName(0));
}

AxisView DescribeAxis(const CmqPostGraphParam& graph, const CmqGraphAxis& axis, int result,
                      int meshKind) {
  AxisView view{axis, NameOf(Results(), axis.m_nQuantityType), {}, {}};
  if (axis.m_nQuantityType == kNothingShown) {
    view.quantity = "nothing";
    return view;
  }
  if (view.quantity.empty()) {
    view.quantity = NameQuantityOfPlot(graph, axis);
    return view;
  }
  const int study = graph.m_nAnalysisType;
  view.component =
      Utf8(vekPostCommonGetComponentName(study, result, 0, axis.m_nComponent, meshKind, 0));
  const int unitType =
      vekPostCommonGetUnitType(study, result, axis.m_nComponent, graph.m_nDynamicOption, 1);
  view.unit = Utf8(vekPostCommonGetUnitName(unitType, axis.m_nUnit));
  view.hasUnits = !vekPostCommonGetUnitName(unitType, 0).IsEmpty();
  return view;
}

/// Everything that is shown of one graph.
struct GraphView {
  StreamName name;
  int meshKind;
  const StoredRecord& record;
  CmqPostGraphParam graph;

  [[nodiscard]] AxisView XAxis() const {
    return DescribeAxis(graph, graph.m_XAxis, graph.m_XAxis.m_nQuantityType, meshKind);
  }
  /// The Y axis shows the stored result; its own quantity type can be a more general one.
  [[nodiscard]] AxisView YAxis() const {
    return DescribeAxis(graph, graph.m_YAxis, graph.m_nResultType, meshKind);
  }
};

std::string ShowAxis(const AxisView& view) {
  const CmqGraphAxis& axis = view.axis;
  std::string text = std::to_string(axis.m_nQuantityType) + " " + Printable(view.quantity) +
                     ", component " + std::to_string(axis.m_nComponent);
  text += view.component.empty() ? "" : " " + Quoted(view.component);
  text += ", unit " + std::to_string(axis.m_nUnit);
  text += view.unit.empty() ? "" : " " + Quoted(view.unit);
  text += view.hasUnits && view.unit.empty() ? " (there is no such unit)" : "";
  text += axis.m_nSensor == kNoSensor ? "" : ", sensor " + std::to_string(axis.m_nSensor);
  return text;
}

void PrintSummary(Session& session, const GraphView& view) {
  const CmqPostGraphParam& graph = view.graph;
  PrintHeading(session, ShowStreamName(view.name) + ": graph of version " +
                            std::to_string(view.record.Version()) + ", " +
                            std::to_string(view.record.StoredBytes().size()) + " bytes");
  PrintFacts(session,
             {{"Default plot name", Printable(Utf8(graph.GetDefaultPlotName(view.meshKind)))},
              {"Y title", Printable(Utf8(graph.GetYTitle(view.meshKind, 0)))},
              {"Folder", Printable(Utf8(graph.GetFolderName()))},
              {"Kind", ShowCode(kGraphKinds, graph.GetResultGraphType())},
              {"Study", ShowCode(Studies(), graph.m_nAnalysisType)},
              {"Result", ShowCode(Results(), graph.m_nResultType) + ", " +
                             Quoted(Utf8(vekPostCommonGetResultName(graph.m_nResultType)))},
              {"X axis", ShowAxis(view.XAxis())},
              {"Y axis", ShowAxis(view.YAxis())}});
  session.out << '\n';
}

/// What is to be said of a field beside its values.
std::string Remark(const StoredRecord& record, const FieldView& field) {
  if (FindField(record.Stored(), field.name) == nullptr) {
    return "default";
  }
  std::vector<std::string> remarks;
  for (const Correction& correction : record.Corrections()) {
    if (correction.name == field.name || correction.name.starts_with(field.name + " [")) {
      remarks.push_back("stored as " + ShowValue(correction.stored, 20));
    }
  }
  return Join(remarks, ", ");
}

void PrintFields(Session& session, const StoredRecord& record) {
  Table table({{"field", Align::Left, 0, 24},
               {"value", Align::Left, 0, 24},
               {"remark", Align::Left, 0, 8}});
  for (const FieldView& field : record.Values().fields) {
    table.Add({field.name, ShowValues(field, 32), Remark(record, field)});
  }
  table.Print(session);
}

Json AxisToJson(const AxisView& view) {
  return {{"quantityType", {{"code", view.axis.m_nQuantityType}, {"name", view.quantity}}},
          {"component", {{"index", view.axis.m_nComponent}, {"name", view.component}}},
          {"unit", {{"index", view.axis.m_nUnit}, {"name", view.unit}}},
          {"sensor", view.axis.m_nSensor}};
}

Json GraphToJson(const GraphView& view, bool isBytes) {
  const CmqPostGraphParam& graph = view.graph;
  Json json = NewJson();
  json["document"] = view.name.document;
  json["stream"] = view.name.stream;
  json["version"] = view.record.Version();
  json["length"] = view.record.StoredBytes().size();
  json["defaultPlotName"] = Utf8(graph.GetDefaultPlotName(view.meshKind));
  json["yTitle"] = Utf8(graph.GetYTitle(view.meshKind, 0));
  json["folder"] = Utf8(graph.GetFolderName());
  json["graphKind"] = CodeToJson(kGraphKinds, graph.GetResultGraphType());
  json["study"] = CodeToJson(Studies(), graph.m_nAnalysisType);
  json["result"] = CodeToJson(Results(), graph.m_nResultType);
  json["resultName"] = Utf8(vekPostCommonGetResultName(graph.m_nResultType));
  json["xAxis"] = AxisToJson(view.XAxis());
  json["yAxis"] = AxisToJson(view.YAxis());
  json["values"] = ValuesToJson(view.record);
  json["defaulted"] = Json::array();
  for (const FieldView* field : view.record.Defaulted()) {
    json["defaulted"].push_back(field->name);
  }
  json["corrected"] = CorrectionsToJson(view.record);
  if (isBytes) {
    json["bytes"] = BytesToJson(view.record.Stored());
  }
  return json;
}

}  // namespace

ExitCode RunGraph(Session& session) {
  std::string word;
  std::optional<int> version;
  std::optional<std::string> wanted;
  int meshKind = 0;
  bool isBytes = false;
  bool isJson = false;
  CommandLine line(session, "graph",
                   "A stored graph as a person reads it: what it is called and shows, and its\n"
                   "fields as the library reads them, older records brought up to date.",
                   "mqpost graph study.cfb::Graphs/Graph1 --doc-version 890110");
  line.Positional("DOC::STREAM", word, "a document and a stream in it");
  line.Integer("--doc-version", version, kVersionHelp);
  line.Flag("--bytes", isBytes, "the stored bytes, field by field");
  line.OneOf("--mesh", meshKind, Meshes(), "kind of mesh", kMeshHelp);
  line.Text("--lang", wanted, kLanguageHelp, "LANG");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  const StreamName name = DivideName(word);
  RequireVersion(version, GraphKind());
  const Language language(session, wanted);
  const StoredRecord record(GraphKind(), ShowStreamName(name), ReadStream(name), *version);
  const std::optional<Problem> problem = record.Check();
  if (problem) {
    if (isBytes && !isJson) {
      PrintBytes(session, record.Stored());
    }
    throw *problem;
  }
  const GraphView view{name, meshKind, record, record.Read<CmqPostGraphParam>()};
  if (isJson) {
    Print(session, GraphToJson(view, isBytes));
    return ExitCode::Fine;
  }
  PrintSummary(session, view);
  if (isBytes) {
    PrintBytes(session, record.Stored());
  } else {
    PrintFields(session, record);
  }
  return ExitCode::Fine;
}

}  // namespace mqp::tool
