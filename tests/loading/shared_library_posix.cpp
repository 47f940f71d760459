#include <dlfcn.h>
#include <malloc.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "loading/shared_library.h"

namespace mqp::test {
namespace {

std::string LastError() {
  const char* error = dlerror();
  return error != nullptr ? error : "";
}

std::size_t ResidentBytes() {
  std::ifstream statm("/proc/self/statm");
  std::size_t totalPages = 0;
  std::size_t residentPages = 0;
  statm >> totalPages >> residentPages;
  return residentPages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace

SharedLibrary::SharedLibrary(const std::string& file)
    : m_handle(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
  EXPECT_TRUE(IsLoaded()) << LastError();
}

SharedLibrary::~SharedLibrary() {
  if (IsLoaded()) {
    EXPECT_EQ(dlclose(m_handle), 0) << LastError();
  }
}

SharedLibrary::Address SharedLibrary::FindAddress(const char* name) const {
  return reinterpret_cast<Address>(dlsym(m_handle, name));
}

bool IsMapped(const std::string& file) {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    if (line.find('/' + file) != std::string::npos) {
      return true;
    }
  }
  return false;
}

Resources UsedResources() {
  const auto files = std::filesystem::directory_iterator("/proc/self/fd");
  return {mallinfo2().uordblks, ResidentBytes(),
          static_cast<std::size_t>(std::distance(begin(files), end(files)))};
}

}  // namespace mqp::test
