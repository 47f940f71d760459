/// \file
/// The file that a verb is told to write.
#pragma once

#include <string>

namespace mqp::tool {

/// Whether a file may be written. Ask before the work is done.
/// \param source the file that is read, which is never written over
/// \throw Problem `Usage`, or `FileTrouble` for what is no file, and for a folder that is missing
void CheckTarget(const std::string& source, const std::string& target, bool isForced);

}  // namespace mqp::tool
