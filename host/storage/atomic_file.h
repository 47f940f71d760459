/// \file
/// Replacing a file in one step.
#pragma once

#include <cstddef>
#include <filesystem>
#include <span>

namespace mqp::host {

/// Writes a temporary file beside the target, takes it to the disk and renames it over the
/// target, whose permissions it takes over. A target that is a symbolic link stays one, and a
/// write-protected target is left alone.
/// \throw std::system_error with the target as it was and the temporary file removed
void WriteAtomically(const std::filesystem::path& target, std::span<const std::byte> bytes);

}  // namespace mqp::host
