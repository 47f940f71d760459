#include <algorithm>
#include <array>
#include <numeric>
#include <ostream>

#include "command_line.h"
#include "json_output.h"
#include "table.h"
#include "text.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

// The systems in which the strengths of a material are defined. 4 and 5 are reserved.
constexpr auto kSystems = std::to_array<Choice>({
    {0, "si"},
    {1, "ips"},
    {2, "metric"},
    {3, "si-mm"},
});
constexpr int kUsedSystems = static_cast<int>(kSystems.size());

using Indices = std::vector<int>;

Indices FirstIndices(int count) {
  Indices indices(static_cast<std::size_t>(count));
  std::iota(indices.begin(), indices.end(), 0);
  return indices;
}

std::string Keyword(int property) {
  return Utf8(mqTextView(g_strMatPropKeywords[property]));
}

std::string Unit(int property, int system) {
  return Utf8(mqTextView(g_strMatPropUnits[property * kMatUnitSystemTotal + system]));
}

std::vector<std::string> ModelKeywords(int number) {
  const MaterialModel model = GetMaterialModel(number);
  std::vector<std::string> keywords;
  for (int index = 0; index < model.m_nKeywords; ++index) {
    keywords.push_back(Utf8(mqTextView(model.m_strKeywords[index])));
  }
  return keywords;
}

/// The properties of these keywords, in their order.
Indices FindProperties(const std::vector<std::string>& keywords) {
  Indices properties;
  for (const std::string& keyword : keywords) {
    const int property = FindMaterialProperty(Wide(keyword).View());
    if (property < 0) {
      std::vector<std::string> known;
      for (const int index : FirstIndices(kMatPropTotal)) {
        known.push_back(Keyword(index));
      }
      const std::vector<std::string> nearest = FindNearest(keyword, known);
      throw Problem(ExitCode::Finding, "There is no material property " + Quoted(keyword) + "." +
                                           (nearest.empty() ? " mqpost material keywords has all."
                                                            : AskWhether(nearest)));
    }
    properties.push_back(property);
  }
  return properties;
}

int ParseModel(const std::string& word) {
  const std::optional<int> number = ParseInteger(word);
  if (!number) {
    throw Problem(ExitCode::Usage, "A material model is a number from 1 to " +
                                       std::to_string(kMaterialModelTotal) + ", not " +
                                       Quoted(word) + ".");
  }
  if (GetMaterialModel(*number).m_nKeywords == 0) {
    throw Problem(ExitCode::Finding,
                  "There is no material model " + word + ". Did you mean " +
                      std::to_string(std::clamp(*number, 1, kMaterialModelTotal)) +
                      "? They are numbered from 1 to " + std::to_string(kMaterialModelTotal) + ".");
  }
  return *number;
}

int ParseSystem(const std::string& word) {
  const auto lower = [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  };
  for (const Choice& system : kSystems) {
    if (std::ranges::equal(system.name, word, {}, {}, lower)) {
      return system.code;
    }
  }
  const std::optional<int> code = ParseInteger(word);
  if (!code || *code < 0 || *code >= kMatUnitSystemTotal) {
    throw Problem(ExitCode::Usage, "There is no material unit system " + Quoted(word) +
                                       ". Known are si, ips, metric, si-mm, and 0 to 5.");
  }
  return *code;
}

void PrintProperties(Session& session, const Indices& properties, const Indices& systems) {
  std::vector<Column> columns = {{"index", Align::Right}, {"keyword"}};
  for (const int system : systems) {
    const int dropOrder = std::max(0, system - kUsedSystems + 1);
    columns.push_back({ShowCode(kSystems, system), Align::Left, dropOrder, 8});
  }
  Table table(columns);
  for (const int property : properties) {
    std::vector<std::string> cells = {std::to_string(property), Keyword(property)};
    for (const int system : systems) {
      cells.push_back(Unit(property, system));
    }
    table.Add(std::move(cells));
  }
  table.Print(session);
}

void AddProperties(Json& json, const Indices& properties, const Indices& systems) {
  json["systems"] = Json::array();
  for (const int system : systems) {
    json["systems"].push_back(CodeToJson(kSystems, system));
  }
  json["properties"] = Json::array();
  for (const int property : properties) {
    Json row{{"index", property}, {"keyword", Keyword(property)}, {"units", Json::array()}};
    for (const int system : systems) {
      row["units"].push_back(Unit(property, system));
    }
    json["properties"].push_back(std::move(row));
  }
}

void PrintModels(Session& session) {
  Table table(
      {{"model", Align::Right}, {"properties", Align::Right}, {"keywords", Align::Left, 0, 20}});
  for (int number = 1; number <= kMaterialModelTotal; ++number) {
    const std::vector<std::string> keywords = ModelKeywords(number);
    table.Add({std::to_string(number), std::to_string(keywords.size()), Join(keywords, " ")});
  }
  table.Print(session);
}

Json ModelsToJson() {
  Json json = NewJson();
  json["models"] = Json::array();
  for (int number = 1; number <= kMaterialModelTotal; ++number) {
    const std::vector<std::string> keywords = ModelKeywords(number);
    json["models"].push_back(
        {{"model", number}, {"count", keywords.size()}, {"keywords", keywords}});
  }
  return json;
}

struct Request {
  std::vector<std::string> words;  ///< behind what is asked for
  Indices systems;                 ///< those of `--system`, or empty
  bool isJson = false;
};

void AnswerProperties(Session& session, const Request& request, const Indices& properties,
                      int systemsByDefault, int model = 0) {
  const Indices systems =
      request.systems.empty() ? FirstIndices(systemsByDefault) : request.systems;
  if (!request.isJson) {
    PrintProperties(session, properties, systems);
    return;
  }
  Json json = NewJson();
  if (model != 0) {
    json["model"] = model;
  }
  AddProperties(json, properties, systems);
  Print(session, json);
}

void AnswerKeywords(Session& session, const Request& request) {
  if (!request.words.empty()) {
    throw Problem(ExitCode::Usage,
                  "There is one argument too many: " + Quoted(request.words.front()) +
                      ". mqpost material units takes keywords.");
  }
  AnswerProperties(session, request, FirstIndices(kMatPropTotal), kUsedSystems);
}

void AnswerUnits(Session& session, const Request& request) {
  AnswerProperties(
      session, request,
      request.words.empty() ? FirstIndices(kMatPropTotal) : FindProperties(request.words),
      kMatUnitSystemTotal);
}

void AnswerModel(Session& session, const Request& request) {
  if (request.words.size() > 1) {
    throw Problem(ExitCode::Usage, "There is one argument too many: " + Quoted(request.words[1]) +
                                       ". Name one model.");
  }
  if (!request.words.empty()) {
    const int number = ParseModel(request.words.front());
    AnswerProperties(session, request, FindProperties(ModelKeywords(number)), kUsedSystems, number);
  } else if (!request.systems.empty()) {
    throw Problem(ExitCode::Usage, "--system needs a model: name its number.");
  } else if (request.isJson) {
    Print(session, ModelsToJson());
  } else {
    PrintModels(session);
  }
}

}  // namespace

ExitCode RunMaterial(Session& session) {
  std::string what;
  std::optional<std::string> system;
  Request request;
  CommandLine line(
      session, "material",
      "The tables of material properties:\n"
      "  keywords            every property with its index and its units\n"
      "  units [KEYWORD...]  units, the reserved systems 4 and 5 included\n"
      "  model [N]           the properties that a material model uses, or all models\n"
      "\"NA\": without a unit. Exit code 1 for an unknown keyword or model.",
      "mqpost material units SIGYLD DENS --system ips");
  line.Positional("WHAT", what, "keywords, units or model");
  line.Positionals("KEYWORD or N", request.words, "keywords as they are written, or a model");
  line.Text("--system", system, "one unit system: si, ips, metric, si-mm, or 0 to 5", "NAME");
  line.Flag("--json", request.isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  if (system) {
    request.systems = {ParseSystem(*system)};
  }
  if (what == "keywords") {
    AnswerKeywords(session, request);
  } else if (what == "units") {
    AnswerUnits(session, request);
  } else if (what == "model") {
    AnswerModel(session, request);
  } else {
    const std::vector<std::string> nearest = FindNearest(what, {"keywords", "units", "model"});
    throw Problem(ExitCode::Usage,
                  "material has no part " + Quoted(what) + "." +
                      (nearest.empty() ? " Name keywords, units or model." : AskWhether(nearest)));
  }
  return ExitCode::Fine;
}

}  // namespace mqp::tool
