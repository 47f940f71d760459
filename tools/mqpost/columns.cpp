#include <algorithm>
#include <ostream>

#include "catalogue_view.h"
#include "command_line.h"
#include "json_output.h"
#include "language.h"
#include "table.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

constexpr int kNothing = -1;
constexpr int kLastSet = 4;

/// One column as the list describes it; the leading one has a title alone.
struct ListColumn {
  std::string title;
  std::string shortName;
  std::string name;
  int component = kNothing;
};

std::vector<ListColumn> DescribeColumns(const CVekPostListParam& list) {
  std::vector<ListColumn> columns;
  for (int column = 0; column < list.GetListColCount(); ++column) {
    ListColumn& described = columns.emplace_back();
    described.title = Utf8(list.GetListColTitle(column));
    if (column > 0) {
      described.shortName = Utf8(list.GetComponentNameShort(column - 1));
      described.name = Utf8(list.GetComponentName(column - 1));
      described.component = list.GetComponentIndex(column - 1);
    }
  }
  return columns;
}

bool HasNames(const std::vector<ListColumn>& columns) {
  return std::ranges::any_of(columns,
                             [](const ListColumn& column) { return !column.name.empty(); });
}

/// The sets that the result of a list has.
std::vector<int> FindSets(const CVekPostListParam& list) {
  CVekPostListParam other(list);
  other.m_nListSetFlag = 1;
  std::vector<int> sets;
  for (other.m_nListSetKind = 0; other.m_nListSetKind <= kLastSet; ++other.m_nListSetKind) {
    if (other.GetComponentCount() > 0) {
      sets.push_back(other.m_nListSetKind);
    }
  }
  return sets;
}

std::string ShowSets(const std::vector<int>& sets) {
  std::vector<std::string> texts;
  for (const int set : sets) {
    texts.push_back(std::to_string(set));
  }
  return texts.empty() ? "It has no sets" : "Its sets are " + Join(texts, ", ");
}

/// "set 0", or the component that is listed.
std::string ShowListed(const CVekPostListParam& list) {
  return list.m_nListSetFlag != 0 ? "set " + std::to_string(list.m_nListSetKind)
                                  : "component " + std::to_string(list.m_nComponent);
}

std::string ShowUnit(const CVekPostListParam& list) {
  const int type = list.GetUnitType();
  std::string text = ShowCode(UnitTypes(), type);
  if (!vekPostCommonGetUnitName(type, 0).IsEmpty()) {
    const std::string name = Utf8(list.GetUnitName());
    text += ", unit " + std::to_string(list.m_nUnitIndex) + " " +
            (name.empty() ? "(there is no such unit)" : Quoted(name));
  }
  return text;
}

std::string Dashed(const std::string& text) {
  return text.empty() ? "-" : Printable(text);
}

void PrintColumns(Session& session, const CVekPostListParam& list,
                  const std::vector<ListColumn>& columns) {
  PrintHeading(session, "List of " + ShowListed(list) + " of result " +
                            ShowCode(Results(), list.m_nResultType) + " in study " +
                            ShowCode(Studies(), list.m_nAnalysisType));
  PrintFacts(session, {{"Unit", ShowUnit(list)}});
  session.out << '\n';
  Table table({{"column", Align::Right},
               {"title"},
               {"short name", Align::Left, 1},
               {"component", Align::Right},
               {"full name", Align::Left, 0, 18}});
  for (std::size_t index = 0; index < columns.size(); ++index) {
    const ListColumn& column = columns[index];
    table.Add({std::to_string(index), Dashed(column.title), Dashed(column.shortName),
               index == 0                     ? "-"
               : column.component == kNothing ? "none"
                                              : std::to_string(column.component),
               Dashed(column.name)});
  }
  table.Print(session);
}

Json ColumnsToJson(const CVekPostListParam& list, const std::vector<ListColumn>& columns) {
  Json json = NewJson();
  json["study"] = CodeToJson(Studies(), list.m_nAnalysisType);
  json["result"] = CodeToJson(Results(), list.m_nResultType);
  json["set"] = list.m_nListSetFlag != 0 ? Json(list.m_nListSetKind) : Json();
  json["sets"] = FindSets(list);
  json["component"] = list.m_nComponent;
  json["unitType"] = CodeToJson(UnitTypes(), list.GetUnitType());
  json["unit"] = {{"index", list.m_nUnitIndex}, {"name", Utf8(list.GetUnitName())}};
  json["columns"] = Json::array();
  for (const ListColumn& column : columns) {
    json["columns"].push_back({{"title", column.title},
                               {"shortName", column.shortName},
                               {"name", column.name},
                               {"component", column.component}});
  }
  return json;
}

}  // namespace

ExitCode RunColumns(Session& session) {
  std::string study;
  std::string result;
  CVekPostListParam list;
  std::optional<int> set;
  std::optional<int> component;
  std::optional<std::string> wanted;
  bool isActual = false;
  bool isJson = false;
  CommandLine line(session, "columns",
                   "The columns of a result list: the leading one, then one for each component,\n"
                   "with its title, and the unit of the list. Exit code 1 when there are no such\n"
                   "columns.",
                   "mqpost columns static displacement --set 0");
  line.Positional("STUDY", study, "name or code");
  line.Positional("RESULT", result, "name or code");
  line.Integer("--set", set, "a set of components, 0 to 4; without it one component is listed");
  line.Integer("--component", component, "that component; the default of the result without it");
  line.Integer("--variant", list.m_nVariant, "not 0: the leading column has its other title");
  line.Integer("--unit-option", list.m_nUnitOption,
               "not 0: other titles for set 1 of a Dynamic stress");
  line.Integer("--unit", list.m_nUnitIndex, "the unit, by its place among those of the unit type");
  line.Flag("--actual-frequency", isActual, "mode shapes in real units");
  line.Text("--lang", wanted, kLanguageHelp, "LANG");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  list.m_nAnalysisType = ParseChoice(study, Studies(), "study");
  list.m_nResultType = ParseChoice(result, Results(), "result");
  list.m_nListSetFlag = set ? 1 : 0;
  list.m_nListSetKind = set.value_or(0);
  list.m_nComponent =
      component.value_or(DefaultComponent(list.m_nAnalysisType, list.m_nResultType));
  const Language language(session, wanted);
  const FrequencyDisplay display(isActual);
  const std::vector<ListColumn> columns = DescribeColumns(list);
  if (isJson) {
    Print(session, ColumnsToJson(list, columns));
  } else if (HasNames(columns)) {
    PrintColumns(session, list, columns);
  }
  if (HasNames(columns)) {
    const bool isShown = std::ranges::any_of(
        columns, [](const ListColumn& column) { return column.component != kNothing; });
    if (!isShown) {
      session.err << "note: no column has a component in this study\n";
    }
    return ExitCode::Fine;
  }
  session.err << "mqpost: There are no such columns: result "
              << ShowCode(Results(), list.m_nResultType) << " in a study "
              << ShowCode(Studies(), list.m_nAnalysisType) << " has no " << ShowListed(list) << ". "
              << ShowSets(FindSets(list)) << ".\n";
  return ExitCode::Finding;
}

}  // namespace mqp::tool
