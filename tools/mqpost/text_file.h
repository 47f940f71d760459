/// \file
/// Files of text that a verb reads and writes.
#pragma once

#include <string>
#include <string_view>

namespace mqp::tool {

/// The content of a UTF-8 file without its byte order mark.
/// \throw Problem `FileTrouble`; `Damaged` for text of another encoding
std::string ReadTextFile(const std::string& name);

/// Whether a file may be written. Ask before the work is done.
/// \param source the file that is read, which is never written over
/// \throw Problem `Usage`, or `FileTrouble` for a folder
void CheckTarget(const std::string& source, const std::string& target, bool isForced);

/// Writes the whole file or leaves what was there.
/// \throw Problem `FileTrouble`
void WriteTextFile(const std::string& name, std::string_view text);

}  // namespace mqp::tool
