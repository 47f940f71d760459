#include "atomic_file.h"

#include <cerrno>
#include <fstream>
#include <random>
#include <string>
#include <system_error>

#if defined(_WIN32)
#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace mqp::host {
namespace {

/// Waits until the disk holds what was written to a closed file.
std::error_code FlushToDisk(const fs::path& file) {
#if defined(_WIN32)
  const HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  const auto lastError = [] {
    return std::error_code(static_cast<int>(GetLastError()), std::system_category());
  };
  if (handle == INVALID_HANDLE_VALUE) {
    return lastError();
  }
  const std::error_code result = FlushFileBuffers(handle) != 0 ? std::error_code() : lastError();
  CloseHandle(handle);
  return result;
#else
  const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC);
  const bool isFlushed = descriptor >= 0 && fsync(descriptor) == 0;
  const std::error_code result =
      isFlushed ? std::error_code() : std::error_code(errno, std::generic_category());
  if (descriptor >= 0) {
    close(descriptor);
  }
  return result;
#endif
}

/// The rename itself is safe from a power failure once the folder is on the disk. Windows has no
/// such call, and some file systems refuse it: the file is complete either way.
void FlushFolder([[maybe_unused]] const fs::path& folder) {
#if !defined(_WIN32)
  [[maybe_unused]] const std::error_code refused = FlushToDisk(folder);
#endif
}

fs::path NameTemporary(const fs::path& target) {
  std::random_device random;
  fs::path name = target.filename();
  name += "." + std::to_string(random()) + ".tmp";
  return target.parent_path() / name;
}

void WriteBytes(const fs::path& file, std::span<const std::byte> bytes) {
  errno = 0;
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  stream.close();
  if (!stream) {
    throw std::system_error(errno != 0 ? errno : EIO, std::generic_category());
  }
}

}  // namespace

TemporaryFile::TemporaryFile(const fs::path& target) : m_path(NameTemporary(target)) {}

TemporaryFile::~TemporaryFile() {
  std::error_code ignored;
  fs::remove(m_path, ignored);
}

void WriteAtomically(const fs::path& target, std::span<const std::byte> bytes) {
  const fs::path place = fs::is_symlink(target) ? fs::canonical(target) : target;
  const fs::file_status old = fs::status(place);
  if (fs::exists(old) && !fs::is_regular_file(old)) {
    // A rename would put a file in the place of a device or a pipe that others use.
    throw std::system_error(std::make_error_code(std::errc::operation_not_supported));
  }
  if (fs::exists(old) && (old.permissions() & fs::perms::owner_write) == fs::perms::none) {
    // A rename asks the folder alone and would get past the protection of the file.
    throw std::system_error(std::make_error_code(std::errc::permission_denied));
  }
  const TemporaryFile temporary(place);
  WriteBytes(temporary.Path(), bytes);
  if (const std::error_code error = FlushToDisk(temporary.Path())) {
    throw std::system_error(error);
  }
  if (fs::exists(old)) {
    fs::permissions(temporary.Path(), old.permissions());
  }
  fs::rename(temporary.Path(), place);
  FlushFolder(place.parent_path().empty() ? fs::path(".") : place.parent_path());
}

}  // namespace mqp::host
