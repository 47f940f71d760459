#include "name_hints.h"

#include <algorithm>

#include "choices.h"
#include "text.h"

namespace mqp::tool {
namespace {

/// The symbol in front of the colon, by which names are told apart; all of a name without one.
std::string SymbolOf(std::string_view name) {
  return std::string(name.substr(0, name.find_first_of(": ")));
}

/// What stands behind the colon; all of a name without one.
std::string DescriptionOf(std::string_view name) {
  const std::size_t begin = name.find_first_not_of(' ', name.find(':') + 1);
  return begin == std::string_view::npos ? std::string() : std::string(name.substr(begin));
}

bool Contains(std::string_view name, std::string_view part) {
  const auto isSame = [](char left, char right) {
    constexpr char kCaseBit = 0x20;
    return left == right ||
           ((left ^ right) == kCaseBit && (left | kCaseBit) >= 'a' && (left | kCaseBit) <= 'z');
  };
  return !std::ranges::search(name, part, isSame).empty();
}

/// The first names that hold a part of a name: its description, or its symbol in another case.
std::vector<std::string> FindContaining(std::string_view part,
                                        const std::vector<std::string>& names) {
  constexpr std::size_t kShortestPart = 2;
  std::vector<std::string> found;
  for (const std::string& name : names) {
    if (part.size() >= kShortestPart && Contains(name, part)) {
      found.push_back(name);
    }
  }
  return found;
}

/// The names of which a part is nearly the same.
std::vector<std::string> FindNear(std::string_view typed, const std::vector<std::string>& names,
                                  std::string (*partOf)(std::string_view)) {
  std::vector<std::string> parts;
  for (const std::string& name : names) {
    parts.push_back(partOf(name));
  }
  std::vector<std::string> found;
  for (const std::string& part : FindNearest(partOf(typed), parts)) {
    const auto index = std::ranges::find(parts, part) - parts.begin();
    found.push_back(names[static_cast<std::size_t>(index)]);
  }
  return found;
}

}  // namespace

std::vector<std::string> FindNearestNames(std::string_view typed,
                                          const std::vector<std::string>& names) {
  constexpr std::size_t kMost = 3;
  std::vector<std::string> nearest;
  for (const std::vector<std::string>& found :
       {FindContaining(typed, names), FindNear(typed, names, SymbolOf),
        FindNear(typed, names, DescriptionOf)}) {
    for (const std::string& name : found) {
      const std::string quoted = Quoted(name);
      if (nearest.size() < kMost && std::ranges::find(nearest, quoted) == nearest.end()) {
        nearest.push_back(quoted);
      }
    }
  }
  return nearest;
}

}  // namespace mqp::tool
