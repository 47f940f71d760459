#include "choices.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <numeric>
#include <system_error>

#include "session.h"
#include "text.h"

namespace mqp::tool {
namespace {

// clang-format off
constexpr auto kMeshNames = std::to_array<CodeName<MeshKind>>({
    {MeshKind::SolidMesh, "solid"},
    {MeshKind::ShellMesh, "shell"},
    {MeshKind::MixedMesh, "mixed"},
    {MeshKind::BeamMesh,  "beam"},
});
constexpr auto kUnitSystemNames = std::to_array<CodeName<UnitSystem>>({
    {UnitSystem::SI,      "si"},
    {UnitSystem::English, "ips"},
    {UnitSystem::Metric,  "metric"},
});
// clang-format on

template <class Rows>
std::vector<Choice> ChoicesOf(const Rows& rows) {
  std::vector<Choice> choices;
  for (const auto& row : rows) {
    choices.push_back({Code(row.code), row.name});
  }
  return choices;
}

std::string LowerCase(std::string_view word) {
  std::string lower(word);
  for (char& letter : lower) {
    letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  }
  return lower;
}

/// How many letters must be added, removed or replaced, or neighbours swapped.
std::size_t Distance(std::string_view left, std::string_view right) {
  std::vector<std::size_t> beforeLast(right.size() + 1);
  std::vector<std::size_t> last(right.size() + 1);
  std::vector<std::size_t> now(right.size() + 1);
  std::iota(last.begin(), last.end(), std::size_t{0});
  for (std::size_t row = 1; row <= left.size(); ++row) {
    now[0] = row;
    for (std::size_t column = 1; column <= right.size(); ++column) {
      const bool isSame = left[row - 1] == right[column - 1];
      now[column] =
          std::min({last[column] + 1, now[column - 1] + 1, last[column - 1] + (isSame ? 0U : 1U)});
      if (row > 1 && column > 1 && left[row - 1] == right[column - 2] &&
          left[row - 2] == right[column - 1]) {
        now[column] = std::min(now[column], beforeLast[column - 2] + 1);
      }
    }
    std::swap(beforeLast, last);
    std::swap(last, now);
  }
  return last[right.size()];
}

}  // namespace

std::vector<Choice> Studies() {
  return ChoicesOf(kAnalysisTypeNames);
}
std::vector<Choice> Results() {
  return ChoicesOf(kResultTypeNames);
}
std::vector<Choice> UnitTypes() {
  return ChoicesOf(kUnitTypeNames);
}
std::vector<Choice> Meshes() {
  return ChoicesOf(kMeshNames);
}
std::vector<Choice> UnitSystems() {
  return ChoicesOf(kUnitSystemNames);
}

std::string NameOf(std::span<const Choice> choices, int code) {
  const auto choice = std::ranges::find(choices, code, &Choice::code);
  return choice == choices.end() ? std::string() : std::string(choice->name);
}

std::string ShowCode(std::span<const Choice> choices, int code) {
  const std::string name = NameOf(choices, code);
  return std::to_string(code) + (name.empty() ? "" : " " + name);
}

std::optional<int> ParseInteger(std::string_view word) {
  int value = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  return error == std::errc() && end == word.data() + word.size() ? std::optional(value)
                                                                  : std::nullopt;
}

int ParseChoice(const std::string& word, std::span<const Choice> choices, std::string_view what) {
  if (const std::optional<int> code = ParseInteger(word)) {
    return *code;
  }
  std::vector<std::string> names;
  for (const Choice& choice : choices) {
    if (LowerCase(choice.name) == LowerCase(word)) {
      return choice.code;
    }
    names.emplace_back(choice.name);
  }
  const std::vector<std::string> nearest = FindNearest(word, names);
  throw Problem(ExitCode::Usage, "There is no " + std::string(what) + " " + Quoted(word) + "." +
                                     (nearest.empty() ? " Known are " + Join(names, ", ") +
                                                            ", and every integer code."
                                                      : AskWhether(nearest)));
}

std::vector<std::string> FindNearest(std::string_view word, const std::vector<std::string>& words) {
  const std::string typed = LowerCase(word);
  std::multimap<std::size_t, std::string> byDistance;
  for (const std::string& known : words) {
    const std::string lower = LowerCase(known);
    const bool isBeginning = typed.size() >= 2 && lower.starts_with(typed);
    const std::size_t distance = isBeginning ? 1 : Distance(typed, lower);
    if (distance <= std::max<std::size_t>(1, std::min(typed.size(), lower.size()) / 3)) {
      byDistance.emplace(distance, known);
    }
  }
  std::vector<std::string> nearest;
  for (const auto& [distance, known] : byDistance) {
    if (nearest.size() < 3 && std::ranges::find(nearest, known) == nearest.end()) {
      nearest.push_back(known);
    }
  }
  return nearest;
}

std::string AskWhether(const std::vector<std::string>& nearest) {
  if (nearest.empty()) {
    return {};
  }
  const std::vector<std::string> first(nearest.begin(), nearest.end() - 1);
  return " Did you mean " + (first.empty() ? "" : Join(first, ", ") + " or ") + nearest.back() +
         "?";
}

}  // namespace mqp::tool
