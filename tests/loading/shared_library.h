/// \file
/// Shared libraries at run time: loaded, asked and let go of, by the loader of the system.
#pragma once

#include <cstddef>
#include <string>

namespace mqp::test {

/// A library that lies beside the program, held until the object goes out of scope.
class SharedLibrary {
 public:
  /// \param file its file name; a failure to load or unload it fails the test
  explicit SharedLibrary(const std::string& file);
  ~SharedLibrary();
  SharedLibrary(const SharedLibrary&) = delete;
  SharedLibrary& operator=(const SharedLibrary&) = delete;

  [[nodiscard]] bool IsLoaded() const noexcept { return m_handle != nullptr; }
  /// A function by its exported name; null when there is none.
  template <class Function>
  [[nodiscard]] Function* Find(const char* name) const {
    return reinterpret_cast<Function*>(FindAddress(name));
  }

 private:
  using Address = void (*)();
  [[nodiscard]] Address FindAddress(const char* name) const;

  void* m_handle = nullptr;
};

/// Whether a library of this file name lies in the memory of the process.
[[nodiscard]] bool IsMapped(const std::string& file);

/// What a process can lose a little of each time.
struct Resources {
  std::size_t allocated = 0;  ///< bytes that are allocated
  std::size_t resident = 0;   ///< bytes in physical memory
  std::size_t handles = 0;    ///< a number that grows with the open files, or handles
};
[[nodiscard]] Resources UsedResources();

}  // namespace mqp::test
