#include "target_file.h"

#include <filesystem>
#include <system_error>

#include "session.h"
#include "text.h"

namespace fs = std::filesystem;

namespace mqp::tool {

void CheckTarget(const std::string& source, const std::string& target, bool isForced) {
  const fs::path file = PathOf(target);
  std::error_code ignored;
  if (fs::equivalent(PathOf(source), file, ignored)) {
    throw Problem(
        ExitCode::Usage,
        Printable(target) +
            ": This is the file that is read, and it is never written over. Name another one.");
  }
  if (fs::is_directory(file, ignored)) {
    throw Problem(ExitCode::FileTrouble,
                  Printable(target) + ": This is a folder. Name the file to be written in it.");
  }
  if (const fs::path folder = file.parent_path(); !folder.empty() && !fs::exists(folder, ignored)) {
    throw Problem(ExitCode::FileTrouble,
                  Printable(target) + ": There is no such folder. Make it, or name another one.");
  }
  if (fs::exists(file, ignored) && !fs::is_regular_file(file, ignored)) {
    throw Problem(ExitCode::FileTrouble,
                  Printable(target) + ": This is a device or a pipe. Name a file to be written.");
  }
  if (!isForced && fs::exists(file, ignored)) {
    throw Problem(
        ExitCode::Usage,
        Printable(target) +
            ": There is such a file already. Name another one, or add --force to replace it.");
  }
}

}  // namespace mqp::tool
