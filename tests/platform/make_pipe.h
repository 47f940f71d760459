/// \file
/// A named pipe where the system has them.
#pragma once

#include <filesystem>

#if !defined(_WIN32)
#include <sys/stat.h>
#endif

namespace mqp::test {

inline bool MakePipe([[maybe_unused]] const std::filesystem::path& file) {
#if defined(_WIN32)
  return false;
#else
  return mkfifo(file.c_str(), S_IRUSR | S_IWUSR) == 0;
#endif
}

}  // namespace mqp::test
