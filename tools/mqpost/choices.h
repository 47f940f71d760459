/// \file
/// Words of the command line that stand for codes, and what somebody may have meant.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <mqPostCommon/mqPostCommon.h>

namespace mqp::tool {

struct Choice {
  int code;
  std::string_view name;
};

std::vector<Choice> Studies();
std::vector<Choice> Results();
std::vector<Choice> UnitTypes();
std::vector<Choice> Meshes();
std::vector<Choice> UnitSystems();

std::string ShowCode(std::span<const Choice> choices, int code);  ///< "2 Stress", "17"
std::string NameOf(std::span<const Choice> choices, int code);    ///< empty when it has none

/// A whole decimal number that fits an `int`.
std::optional<int> ParseInteger(std::string_view word);

/// The code of a name, in any letter case, or any integer.
/// \param what names the argument in the error: "study"
/// \throw Problem `Usage` with the nearest name, or all of them
int ParseChoice(const std::string& word, std::span<const Choice> choices, std::string_view what);

/// The words most like a mistyped one, the likeliest first; at most three, none when nothing is
/// like it.
std::vector<std::string> FindNearest(std::string_view word, const std::vector<std::string>& words);

/// " Did you mean a, b or c?", or empty.
std::string AskWhether(const std::vector<std::string>& nearest);

}  // namespace mqp::tool
