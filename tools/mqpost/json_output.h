/// \file
/// What `--json` prints. Keys are never renamed and never change their meaning; new ones may come.
#pragma once

#include <ostream>
#include <span>

#include <nlohmann/json.hpp>

#include "choices.h"
#include "session.h"

namespace mqp::tool {

using Json = nlohmann::ordered_json;

/// Counts up when a key goes or changes its meaning.
inline constexpr int kJsonSchema = 1;

inline Json NewJson() {
  return Json{{"schema", kJsonSchema}};
}

/// A code with its name, null where it has none.
inline Json CodeToJson(std::span<const Choice> choices, int code) {
  const std::string name = NameOf(choices, code);
  return Json{{"code", code}, {"name", name.empty() ? Json() : Json(name)}};
}

inline void Print(Session& session, const Json& json) {
  // File names and arguments need not be UTF-8.
  session.out << json.dump(1, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace mqp::tool
