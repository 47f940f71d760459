// The library is loaded and unloaded in a process that has the host's libraries and the standard
// library already. This program is not linked with it.

#include <dlfcn.h>

#include <string>

#include "family.h"

namespace mqp::bench {
namespace {

void* Load(const char* file) {
  return dlopen(file, RTLD_NOW | RTLD_LOCAL);
}

void AddLoading(const std::string& variant, const char* file) {
  void* const library = Load(file);
  RequireSame(library != nullptr, std::string("no library ") + file);
  dlclose(library);
  RequireSame(dlopen(file, RTLD_NOW | RTLD_NOLOAD) == nullptr, variant + " stays in memory");
  Add("load and unload", variant, [file](std::size_t) { dlclose(Load(file)); });
}

}  // namespace
}  // namespace mqp::bench

int main(int argc, char** argv) {
  using namespace mqp::bench;
  for (const char* const file : {MQ_COMM_FUNCS_FILE, MQ_GFX_CORE_FILE}) {
    RequireSame(Load(file) != nullptr, std::string("no library ") + file);
  }
  AddLoading(kOurs, MQ_LIBRARY_FILE);
  AddLoading(kLimit, MQ_EMPTY_LIBRARY_FILE);
  AddLoading("tables of string objects", MQ_OBJECTS_LIBRARY_FILE);
  return RunFamily(argc, argv);
}
