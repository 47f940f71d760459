#include <algorithm>
#include <array>
#include <ostream>

#include <storage/compound_document.h>

#include "catalogue_view.h"
#include "command_line.h"
#include "graph_record.h"
#include "json_output.h"
#include "language.h"
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

/// "DOC::STREAM", divided at the last "::"; a drive letter has but one colon.
struct StreamName {
  std::string document;
  std::string stream;
};

StreamName DivideName(const std::string& word) {
  const std::size_t colons = word.rfind("::");
  StreamName name;
  name.document = word.substr(0, colons);
  name.stream = colons == std::string::npos ? std::string() : word.substr(colons + 2);
  if (name.document.empty() || name.stream.empty()) {
    throw Problem(ExitCode::Usage,
                  "Name a document and a stream in it, joined by \"::\", as in "
                  "study.cfb::Graphs/Graph1, not " +
                      Quoted(word) + ". mqpost ls lists the streams.");
  }
  return name;
}

std::vector<std::byte> ReadStream(const StreamName& name) {
  const host::CompoundDocument document(PathOf(name.document));
  try {
    return document.ReadStream(name.stream);
  } catch (const host::DocumentError& error) {
    if (error.Problem() != host::DocumentProblem::NoStream) {
      throw;
    }
    std::vector<std::string> streams;
    for (const host::DocumentEntry& entry : document.Entries()) {
      if (!entry.isStorage) {
        streams.push_back(Printable(entry.path));
      }
    }
    throw Problem(ExitCode::FileTrouble,
                  error.what() + AskWhether(FindNearest(name.stream, streams)));
  }
}

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
  int version;
  int meshKind;
  const GraphRecord& record;

  [[nodiscard]] const CmqPostGraphParam& Graph() const { return record.Graph(); }
  [[nodiscard]] AxisView XAxis() const {
    const CmqGraphAxis& axis = Graph().m_XAxis;
    return DescribeAxis(Graph(), axis, axis.m_nQuantityType, meshKind);
  }
  /// The Y axis shows the stored result; its own quantity type can be a more general one.
  [[nodiscard]] AxisView YAxis() const {
    return DescribeAxis(Graph(), Graph().m_YAxis, Graph().m_nResultType, meshKind);
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

std::string ShowHex(Bytes bytes, std::string_view separator) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (const std::byte byte : bytes) {
    const auto value = std::to_integer<unsigned>(byte);
    text += text.empty() ? "" : separator;
    text += kDigits[value >> 4];
    text += kDigits[value & 0xF];
  }
  return text;
}

std::string ShowFirstHex(Bytes bytes) {
  constexpr std::size_t kShown = 8;
  return bytes.size() > kShown ? ShowHex(bytes.first(kShown), " ") + " …" : ShowHex(bytes, " ");
}

void PrintSummary(Session& session, const GraphView& view) {
  const CmqPostGraphParam& graph = view.Graph();
  PrintHeading(session, Printable(view.name.document) + " > " + Printable(view.name.stream) +
                            ": graph of version " + std::to_string(view.version) + ", " +
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
std::string Remark(const GraphRecord& record, const FieldView& field) {
  if (FindField(record.Stored(), field.field.name) == nullptr) {
    return "default";
  }
  std::vector<std::string> remarks;
  for (const Correction& correction : record.Corrections()) {
    const std::string name(field.field.name);
    if (correction.name == name || correction.name.starts_with(name + " [")) {
      remarks.push_back("stored as " + ShowValue(correction.stored, 20));
    }
  }
  return Join(remarks, ", ");
}

void PrintFields(Session& session, const GraphRecord& record) {
  Table table({{"field", Align::Left, 0, 24},
               {"value", Align::Left, 0, 24},
               {"remark", Align::Left, 0, 8}});
  for (const FieldView& field : record.Values().fields) {
    table.Add({std::string(field.field.name), ShowValues(field, 32), Remark(record, field)});
  }
  table.Print(session);
}

void PrintBytes(Session& session, const RecordView& stored) {
  Table table({{"byte", Align::Right},
               {"hex", Align::Left, 0, 11},
               {"field", Align::Left, 0, 23},
               {"type", Align::Left, 1},
               {"value", Align::Left, 0, 14},
               {"since", Align::Right, 2}});
  for (const FieldView& field : stored.fields) {
    for (std::size_t index = 0; index < field.values.size(); ++index) {
      const ValueView& value = field.values[index];
      table.Add({std::to_string(value.offset), ShowFirstHex(value.bytes),
                 NameValue(field.field, index), std::string(NameType(field.field.type)),
                 ShowValue(value.value, 32), std::to_string(field.field.since)});
    }
  }
  table.Print(session);
}

Json AxisToJson(const AxisView& view) {
  return {{"quantityType", {{"code", view.axis.m_nQuantityType}, {"name", view.quantity}}},
          {"component", {{"index", view.axis.m_nComponent}, {"name", view.component}}},
          {"unit", {{"index", view.axis.m_nUnit}, {"name", view.unit}}},
          {"sensor", view.axis.m_nSensor}};
}

Json BytesToJson(const RecordView& stored) {
  Json rows = Json::array();
  for (const FieldView& field : stored.fields) {
    for (std::size_t index = 0; index < field.values.size(); ++index) {
      const ValueView& value = field.values[index];
      rows.push_back({{"offset", value.offset},
                      {"length", value.bytes.size()},
                      {"hex", ShowHex(value.bytes, "")},
                      {"field", field.field.name},
                      {"index", index},
                      {"type", NameType(field.field.type)},
                      {"value", ValueToJson(value.value)},
                      {"since", field.field.since}});
    }
  }
  return rows;
}

Json GraphToJson(const GraphView& view, bool isBytes) {
  const CmqPostGraphParam& graph = view.Graph();
  Json json = NewJson();
  json["document"] = view.name.document;
  json["stream"] = view.name.stream;
  json["version"] = view.version;
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
  json["values"] = Json::object();
  for (const FieldView& field : view.record.Values().fields) {
    json["values"][std::string(field.field.name)] = FieldToJson(field);
  }
  json["defaulted"] = Json::array();
  for (const FieldView* field : view.record.Defaulted()) {
    json["defaulted"].push_back(field->field.name);
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
  line.OneOf("--mesh", meshKind, Meshes(), "kind of mesh",
             "for the names: solid, shell, mixed or beam");
  line.Text("--lang", wanted, kLanguageHelp, "LANG");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  const StreamName name = DivideName(word);
  RequireVersion(version);
  const Language language(session, wanted);
  const GraphRecord record(name.document + " > " + name.stream, ReadStream(name), *version);
  const std::optional<Problem> problem = record.Check();
  if (problem) {
    if (isBytes && !isJson) {
      PrintBytes(session, record.Stored());
    }
    throw *problem;
  }
  const GraphView view{name, *version, meshKind, record};
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
