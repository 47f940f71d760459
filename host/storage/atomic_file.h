/// \file
/// Replacing a file in one step.
#pragma once

#include <cstddef>
#include <filesystem>
#include <span>

namespace mqp::host {

/// A name beside a file, for a new version of it that is not good yet. No file of that name is
/// made; one that was is removed in the end, unless it has been renamed.
class TemporaryFile {
 public:
  /// \param target need not exist; its folder and the beginning of the name are taken over
  explicit TemporaryFile(const std::filesystem::path& target);
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_path; }

 private:
  std::filesystem::path m_path;
};

/// Writes a temporary file beside the target, takes it to the disk and renames it over the
/// target, whose permissions it takes over. A target that is a symbolic link stays one, and a
/// write-protected target is left alone, as is one that is no file.
/// \throw std::system_error with the target as it was and the temporary file removed
void WriteAtomically(const std::filesystem::path& target, std::span<const std::byte> bytes);

}  // namespace mqp::host
