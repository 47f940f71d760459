/// \file
/// From UTF-8 to UTF-16.
#pragma once

#include <string>
#include <string_view>

#include <mqPostCommon/platform/text.h>

namespace mqp::host {

/// Appends the UTF-16 code units of a UTF-8 text. A byte that begins no complete, shortest
/// sequence of a Unicode scalar value becomes U+FFFD, and reading goes on with the next byte.
/// \return whether every byte was valid
bool AppendUtf8(std::string_view utf8, std::basic_string<mqChar>& units);

}  // namespace mqp::host
