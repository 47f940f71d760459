#include <ostream>

#include "catalogue_view.h"
#include "command_line.h"
#include "json_output.h"
#include "table.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

/// The stored names of a unit type, those behind the offered ones included.
std::vector<std::string> StoredNames(int unitType) {
  std::vector<std::string> names;
  for (int index = 0;; ++index) {
    std::string name = Utf8(vekPostCommonGetUnitName(unitType, index));
    if (name.empty()) {
      return names;
    }
    names.push_back(std::move(name));
  }
}

/// The default unit per system. The library chooses it for components, so that a unit type that
/// no component has shows none.
using Defaults = std::vector<int>;

Defaults DefaultsOfComponent(int study, int result, int component, int option) {
  Defaults defaults;
  for (const Choice& system : UnitSystems()) {
    defaults.push_back(vekPostCommonGetComponentUnitsBasedOnSystemUnit(system.code, study, result,
                                                                       component, option, option));
  }
  return defaults;
}

Defaults FindDefaults(int unitType) {
  constexpr int kNoOption = 0;
  constexpr int kSpectralOption = 2;
  for (const int option : {kNoOption, kSpectralOption}) {
    for (const Choice& study : Studies()) {
      for (const Choice& result : Results()) {
        for (int component = 0; component <= kLastComponent; ++component) {
          if (vekPostCommonGetUnitType(study.code, result.code, component, option, option) ==
              unitType) {
            return DefaultsOfComponent(study.code, result.code, component, option);
          }
        }
      }
    }
  }
  return {};
}

std::string ShowDefaults(const Defaults& defaults, const std::vector<std::string>& names) {
  std::vector<std::string> shown;
  for (const int unit : defaults) {
    const auto index = static_cast<std::size_t>(unit);
    shown.push_back(index < names.size() ? names[index] : std::to_string(unit));
  }
  return shown.empty() || names.empty() ? "-" : Join(shown, " / ");
}

void PrintUnits(Session& session, const std::vector<Choice>& types) {
  Table table({{"code", Align::Right},
               {"unit type"},
               {"SI / IPS / metric", Align::Left, 0, 12},
               {"offered", Align::Right, 1},
               {"names, (those not offered)", Align::Left, 0, 14}});
  for (const Choice& type : types) {
    std::vector<std::string> names = StoredNames(type.code);
    const int offered = vekPostCommonGetUnitTotal(type.code);
    const std::string shown = ShowDefaults(FindDefaults(type.code), names);
    for (std::size_t index = static_cast<std::size_t>(offered); index < names.size(); ++index) {
      names[index] = "(" + names[index] + ")";
    }
    table.Add({std::to_string(type.code), std::string(type.name), shown, std::to_string(offered),
               names.empty() ? "-" : Join(names, ", ")});
  }
  table.Print(session);
}

Json UnitsToJson(const std::vector<Choice>& types) {
  Json json = NewJson();
  json["unitTypes"] = Json::array();
  for (const Choice& type : types) {
    Json row = CodeToJson(UnitTypes(), type.code);
    row["offered"] = vekPostCommonGetUnitTotal(type.code);
    row["names"] = StoredNames(type.code);
    const Defaults defaults = FindDefaults(type.code);
    row["defaults"] = nullptr;
    for (std::size_t system = 0; system < defaults.size(); ++system) {
      row["defaults"][UnitSystems()[system].name] = defaults[system];
    }
    json["unitTypes"].push_back(std::move(row));
  }
  return json;
}

void PrintLists(Session& session) {
  Table table({{"list"}, {"units", Align::Left, 0, 30}});
  for (const UnitList& list : g_UnitLists) {
    table.Add({Utf8(mqTextView(list.m_strName)), Utf8(mqTextView(list.m_strText))});
  }
  table.Print(session);
}

Json ListsToJson() {
  Json json = NewJson();
  json["lists"] = Json::array();
  for (const UnitList& list : g_UnitLists) {
    json["lists"].push_back(
        {{"name", Utf8(mqTextView(list.m_strName))}, {"text", Utf8(mqTextView(list.m_strText))}});
  }
  return json;
}

}  // namespace

ExitCode RunUnits(Session& session) {
  std::optional<std::string> word;
  bool isLists = false;
  bool isJson = false;
  CommandLine line(session, "units",
                   "Unit types with their default in each unit system and their units. Names that\n"
                   "are stored but not offered stand in brackets; a unit type that no component\n"
                   "has shows no default.",
                   "mqpost units Stress");
  line.OptionalPositional("TYPE", word, "one unit type, by name or code");
  line.Flag("--lists", isLists, "the unit lists of the choosers instead");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  if (isLists && word) {
    throw Problem(ExitCode::Usage, "--lists prints every list: leave out " + Quoted(*word) + ".");
  }
  std::vector<Choice> types = UnitTypes();
  std::string name;  // outlives the choice that looks at it
  if (word) {
    const int code = ParseChoice(*word, types, "unit type");
    name = NameOf(types, code);
    types = {{code, name.empty() ? std::string_view("-") : std::string_view(name)}};
  }
  if (isJson) {
    Print(session, isLists ? ListsToJson() : UnitsToJson(types));
  } else if (isLists) {
    PrintLists(session);
  } else {
    PrintUnits(session, types);
  }
  return ExitCode::Fine;
}

}  // namespace mqp::tool
