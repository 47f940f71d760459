/// \file
/// Names of components that somebody may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mqp::tool {

/// The names most like a mistyped one, each in quotation marks, the likeliest first; at most three.
/// A name is like a part of it, and where its symbol or its description is nearly the same.
std::vector<std::string> FindNearestNames(std::string_view typed,
                                          const std::vector<std::string>& names);

}  // namespace mqp::tool
