#include <algorithm>

#include "catalogue_view.h"
#include "command_line.h"
#include "json_output.h"
#include "language.h"
#include "table.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

struct Subject {
  int study;
  int result;
  CatalogueOptions options;
  int unitSystem;
};

/// All that the catalogue says of one component.
struct ComponentCard {
  int index;
  bool isDefault;
  bool isBeyondCount;
  std::string name;
  std::string barName;
  std::string briefName;
  std::string shortName;
  int dataType;
  std::vector<int> members;  ///< three, or none
  int unitType;
  int unitIndex;
  std::string unit;
  std::array<float, 4> direction;
  int bounds;
  bool hasReference;
};

std::vector<int> FindMembers(const Subject& subject, int component) {
  constexpr int kUntouched = -1;
  std::vector<int> members(3, kUntouched);
  vekPostCommonGetComponentDataType(subject.study, subject.result, component, members.data(), 0);
  return members.front() == kUntouched ? std::vector<int>() : members;
}

ComponentCard DescribeComponent(const Subject& subject, int component) {
  const auto& [study, result, options, system] = subject;
  ComponentCard card{};
  card.index = component;
  card.isDefault = component == DefaultComponent(study, result, options);
  card.isBeyondCount = component >= CountComponents(study, result, options);
  card.name = ComponentName(study, result, component, options);
  card.barName =
      Utf8(vekPostCommonGetComponentNameBar(study, result, 0, component, options.meshKind, 0));
  card.briefName = Utf8(vekPostCommonGetComponentNameBrief(study, result, 0, component));
  card.shortName = Utf8(vekPostCommonGetComponentNameShort(study, result, 0, component));
  card.dataType = vekPostCommonGetComponentDataType(study, result, component, nullptr, 0);
  card.members = FindMembers(subject, component);
  card.unitType = vekPostCommonGetUnitType(study, result, component, options.dynamicOption,
                                           options.UnitOptionFlag());
  card.unitIndex = vekPostCommonGetComponentUnitsBasedOnSystemUnit(
      system, study, result, component, options.dynamicOption, options.UnitOptionFlag());
  card.unit = Utf8(vekPostCommonGetUnitName(card.unitType, card.unitIndex));
  vekPostCommonGetComponentVectorDir(study, result, component, options.stressComponent12,
                                     card.direction.data());
  card.bounds =
      vekPostCommonGetEnvelopBoundTotal(study, result, component, options.stressComponent12);
  card.hasReference =
      vekPostCommonIsReferenceAvailable(study, result, component, options.meshKind) != 0;
  return card;
}

std::vector<ComponentCard> DescribeComponents(const Subject& subject) {
  std::vector<ComponentCard> cards;
  const int count = CountComponents(subject.study, subject.result, subject.options);
  for (int component = 0; component < count; ++component) {
    cards.push_back(DescribeComponent(subject, component));
  }
  const int start = DefaultComponent(subject.study, subject.result, subject.options);
  if (start >= count) {
    cards.push_back(DescribeComponent(subject, start));
  }
  return cards;
}

std::string NameDataType(int dataType) {
  switch (static_cast<ComponentDataType>(dataType)) {
    case ComponentDataType::ScalarComponent: return "scalar";
    case ComponentDataType::DirectionalComponent: return "directional";
    case ComponentDataType::PrincipalBasedComponent: return "principal";
  }
  return std::to_string(dataType);
}

/// "X", "all", "all 2": the axes, then the marker where it is not 0.
std::string NameDirection(const std::array<float, 4>& direction) {
  constexpr std::string_view kAxes = "XYZ";
  std::string axes;
  for (std::size_t axis = 0; axis < kAxes.size(); ++axis) {
    axes += direction[axis] != 0.0F ? std::string(1, kAxes[axis]) : "";
  }
  const std::string pattern = axes == kAxes ? "all" : axes.empty() ? "-" : axes;
  return pattern +
         (direction[3] != 0.0F ? " " + std::to_string(static_cast<int>(direction[3])) : "");
}

std::string JoinNumbers(const std::vector<int>& numbers) {
  std::vector<std::string> texts;
  for (const int number : numbers) {
    texts.push_back(std::to_string(number));
  }
  return Join(texts, ",");
}

std::string Dashed(const std::string& text) {
  return text.empty() ? "-" : Printable(text);
}

void PrintComponents(Session& session, const std::vector<ComponentCard>& cards) {
  // The short names are bar names, and mostly the same ones.
  const bool isShortBar = std::ranges::all_of(
      cards, [](const ComponentCard& card) { return card.shortName == card.barName; });
  std::vector<Column> columns = {{"", Align::Right},
                                 {"full name", Align::Left, 0, 18},
                                 {isShortBar ? "bar, short name" : "bar name", Align::Left, 3, 14}};
  if (!isShortBar) {
    columns.push_back({"short name", Align::Left, 7, 14});
  }
  const std::vector<Column> others = {
      {"brief name", Align::Left, 6, 12}, {"type", Align::Left, 2, 11},
      {"unit", Align::Left, 0, 10},       {"dir"},
      {"bounds", Align::Right, 5},        {"ref", Align::Left, 4}};
  columns.insert(columns.end(), others.begin(), others.end());
  Table table(columns);
  for (const ComponentCard& card : cards) {
    const std::string members = card.members.empty() ? "" : " " + JoinNumbers(card.members);
    std::vector<std::string> cells = {(card.isDefault ? "*" : "") + std::to_string(card.index),
                                      Dashed(card.name), Dashed(card.barName)};
    if (!isShortBar) {
      cells.push_back(Dashed(card.shortName));
    }
    const std::vector<std::string> more = {Dashed(card.briefName),
                                           NameDataType(card.dataType) + members,
                                           Dashed(card.unit),
                                           NameDirection(card.direction),
                                           card.bounds == 0 ? "-" : std::to_string(card.bounds),
                                           card.hasReference ? "yes" : "-"};
    cells.insert(cells.end(), more.begin(), more.end());
    table.Add(std::move(cells), card.isDefault);
  }
  table.Print(session);
}

void PrintCard(Session& session, const Subject& subject) {
  const auto& [study, result, options, system] = subject;
  const int count = CountComponents(study, result, options);
  const std::vector<ComponentCard> cards = DescribeComponents(subject);
  const bool isMarked = std::ranges::any_of(cards, &ComponentCard::isDefault);
  PrintHeading(session,
               "Result " + ShowCode(Results(), result) + " of study " + ShowCode(Studies(), study));
  PrintFacts(session, {{"Result name", Printable(Utf8(vekPostCommonGetResultName(result)))},
                       {"Components", std::to_string(count)},
                       {"Default", std::to_string(DefaultComponent(study, result, options)) +
                                       (isMarked ? ", marked * below" : "")},
                       {"Unit system",
                        Utf8(vekPostCommonGetUnitName(Code(UnitType::UnitSystemName), system))}});
  session.out << '\n';
  PrintComponents(session, cards);
}

Json ComponentToJson(const ComponentCard& card) {
  Json json{{"index", card.index},
            {"isDefault", card.isDefault},
            {"isBeyondCount", card.isBeyondCount},
            {"name", card.name},
            {"barName", card.barName},
            {"briefName", card.briefName},
            {"shortName", card.shortName},
            {"dataType", CodeToJson({}, card.dataType)},
            {"members", card.members},
            {"unitType", CodeToJson(UnitTypes(), card.unitType)},
            {"unit", {{"index", card.unitIndex}, {"name", card.unit}}},
            {"direction", NameDirection(card.direction)},
            {"directionWeights", card.direction},
            {"bounds", card.bounds},
            {"reference", card.hasReference}};
  json["dataType"]["name"] = NameDataType(card.dataType);
  return json;
}

Json CardToJson(const Subject& subject) {
  const auto& [study, result, options, system] = subject;
  Json json = NewJson();
  json["study"] = CodeToJson(Studies(), study);
  json["result"] = CodeToJson(Results(), result);
  json["resultName"] = Utf8(vekPostCommonGetResultName(result));
  json["count"] = CountComponents(study, result, options);
  json["default"] = DefaultComponent(study, result, options);
  json["unitSystem"] = {
      {"code", system},
      {"name", Utf8(vekPostCommonGetUnitName(Code(UnitType::UnitSystemName), system))}};
  json["components"] = Json::array();
  for (const ComponentCard& card : DescribeComponents(subject)) {
    json["components"].push_back(ComponentToJson(card));
  }
  return json;
}

}  // namespace

ExitCode RunShow(Session& session) {
  std::string study;
  std::string result;
  Subject subject{};
  CatalogueOptions& options = subject.options;
  bool isActual = false;
  bool isJson = false;
  std::optional<std::string> wanted;
  CommandLine line(session, "show", "The components of a result in a kind of study.",
                   "mqpost show dynamic stress --dynamic-option 2 --units ips");
  line.Positional("STUDY", study, "name or code");
  line.Positional("RESULT", result, "name or code");
  line.OneOf("--units", subject.unitSystem, UnitSystems(), "unit system",
             "of the default units: si, ips (English) or metric");
  line.OneOf("--mesh", options.meshKind, Meshes(), "kind of mesh", "solid, shell, mixed or beam");
  line.Integer("--mesh-flags", options.meshFlags, "2 or 4: a mixed mesh with rotations");
  line.Flag("--extra-stress", options.extraStress, "the extra components of a Static stress");
  line.Flag("--more-stress", options.moreStress, "two more, together with --extra-stress");
  line.Flag("--stress-12", options.stressComponent12,
            "component 12 of a stress has bounds and a direction");
  line.Integer("--dynamic-option", options.dynamicOption,
               "1: component 100 of a Dynamic stress; 2: spectral units");
  line.Integer("--dynamic-choice", options.dynamicChoice,
               "7: with --dynamic-option 1 one component more");
  line.Flag("--alternate", options.alternateNames, "the second list of displacement names");
  line.Flag("--actual-frequency", isActual, "mode shapes in real units");
  line.Text("--lang", wanted, kLanguageHelp, "LANG");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  subject.study = ParseChoice(study, Studies(), "study");
  subject.result = ParseChoice(result, Results(), "result");
  const Language language(session, wanted);
  const FrequencyDisplay display(isActual);
  if (isJson) {
    Print(session, CardToJson(subject));
  } else {
    PrintCard(session, subject);
  }
  return ExitCode::Fine;
}

}  // namespace mqp::tool
