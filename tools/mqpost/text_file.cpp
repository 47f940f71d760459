#include "text_file.h"

#include <fstream>
#include <span>
#include <system_error>

#include <storage/atomic_file.h>

#include "session.h"
#include "text.h"

namespace fs = std::filesystem;

namespace mqp::tool {
namespace {

constexpr std::uintmax_t kMostBytes = 64U << 20;

[[noreturn]] void Fail(ExitCode code, const std::string& name, const std::string& sentences) {
  throw Problem(code, Printable(name) + ": " + sentences);
}

std::uintmax_t CheckSource(const std::string& name, const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (status.type() == fs::file_type::not_found) {
    Fail(ExitCode::FileTrouble, name, "There is no such file. Check the path.");
  }
  if (status.type() == fs::file_type::none) {
    Fail(ExitCode::FileTrouble, name,
         "The file cannot be reached: " + error.message() + ". Check the permissions above it.");
  }
  if (fs::is_directory(status)) {
    Fail(ExitCode::FileTrouble, name, "This is a folder. Name the file in it.");
  }
  if (!fs::is_regular_file(status)) {
    Fail(ExitCode::FileTrouble, name, "This is not a regular file. Name a text file.");
  }
  const std::uintmax_t size = fs::file_size(file, error);
  if (error || size > kMostBytes) {
    Fail(ExitCode::FileTrouble, name,
         "The file is larger than 64 MB. Leave out what is not needed.");
  }
  return size;
}

}  // namespace

std::string ReadTextFile(const std::string& name) {
  const fs::path file = PathOf(name);
  std::string text(static_cast<std::size_t>(CheckSource(name, file)), '\0');
  std::ifstream stream(file, std::ios::binary);
  stream.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (!stream) {
    Fail(ExitCode::FileTrouble, name, "The file cannot be read. Check its permissions.");
  }
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
    Fail(ExitCode::Damaged, name, "This is UTF-16 text. Save it as UTF-8.");
  }
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  return text.starts_with(kByteOrderMark) ? text.substr(kByteOrderMark.size()) : text;
}

void WriteTextFile(const std::string& name, std::string_view text) {
  try {
    host::WriteAtomically(PathOf(name), std::as_bytes(std::span(text)));
  } catch (const std::system_error& error) {
    Fail(ExitCode::FileTrouble, name,
         "The file cannot be written: " + error.code().message() +
             ". Check its permissions and the room on the disk.");
  }
}

}  // namespace mqp::tool
