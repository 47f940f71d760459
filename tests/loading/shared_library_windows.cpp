#include <windows.h>
// Behind the header that it needs.
#include <psapi.h>

#include <string>

#include <gtest/gtest.h>

#include "loading/shared_library.h"

namespace mqp::test {
namespace {

/// Grows with the handles that are never closed: the system gives the lowest free one.
std::size_t NextHandle() {
  const HANDLE handle = CreateEventA(nullptr, TRUE, FALSE, nullptr);
  EXPECT_NE(handle, nullptr) << "error " << GetLastError();
  CloseHandle(handle);
  return reinterpret_cast<std::size_t>(handle);
}

}  // namespace

SharedLibrary::SharedLibrary(const std::string& file) : m_handle(LoadLibraryA(file.c_str())) {
  EXPECT_TRUE(IsLoaded()) << "error " << GetLastError();
}

SharedLibrary::~SharedLibrary() {
  if (IsLoaded()) {
    EXPECT_NE(FreeLibrary(static_cast<HMODULE>(m_handle)), 0) << "error " << GetLastError();
  }
}

SharedLibrary::Address SharedLibrary::FindAddress(const char* name) const {
  return reinterpret_cast<Address>(GetProcAddress(static_cast<HMODULE>(m_handle), name));
}

bool IsMapped(const std::string& file) {
  return GetModuleHandleA(file.c_str()) != nullptr;
}

Resources UsedResources() {
  PROCESS_MEMORY_COUNTERS memory{};
  memory.cb = sizeof memory;
  EXPECT_NE(
      GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory),
                           sizeof memory),
      0);
  return {memory.PagefileUsage, memory.WorkingSetSize, NextHandle()};
}

}  // namespace mqp::test
