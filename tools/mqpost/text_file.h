/// \file
/// Files of text that a verb reads and writes.
#pragma once

#include <string>
#include <string_view>

namespace mqp::tool {

/// The content of a UTF-8 file without its byte order mark.
/// \throw Problem `FileTrouble`; `Damaged` for text of another encoding
std::string ReadTextFile(const std::string& name);

/// Writes the whole file or leaves what was there.
/// \throw Problem `FileTrouble`
void WriteTextFile(const std::string& name, std::string_view text);

}  // namespace mqp::tool
