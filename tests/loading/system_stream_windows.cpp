#include "loading/system_stream.h"

#include <windows.h>
// Behind the header that it needs.
#include <objbase.h>

#include <fstream>
#include <stdexcept>

namespace mqp::test {
namespace {

void Demand(bool fulfilled, const char* what) {
  if (!fulfilled) {
    throw std::runtime_error(std::string("the system refuses ") + what);
  }
}

/// The size of the stream, not of the block, which the system rounds up.
std::streamsize SizeOf(IStream& stream) {
  STATSTG statistics{};
  Demand(stream.Stat(&statistics, STATFLAG_NONAME) == S_OK, "the size of a stream");
  return static_cast<std::streamsize>(statistics.cbSize.QuadPart);
}

}  // namespace

void WriteThroughSystemStream(const std::filesystem::path& file,
                              const std::function<void(IStream&)>& write) {
  IStream* stream = nullptr;
  Demand(CreateStreamOnHGlobal(nullptr, TRUE, &stream) == S_OK, "a stream");
  write(*stream);
  HGLOBAL block = nullptr;
  Demand(GetHGlobalFromStream(stream, &block) == S_OK, "the memory of a stream");
  std::ofstream(file, std::ios::binary)
      .write(static_cast<const char*>(GlobalLock(block)), SizeOf(*stream));
  GlobalUnlock(block);
  stream->Release();
}

}  // namespace mqp::test
