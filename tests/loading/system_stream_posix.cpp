#include "loading/system_stream.h"

#include <fcntl.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

namespace mqp::test {
namespace {

/// Each call of `Write` is a call of the system, whose arguments a memory checker looks at byte by
/// byte.
class FileStream final : public IStream {
 public:
  explicit FileStream(const std::filesystem::path& file)
      : m_descriptor(open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644)) {
    if (m_descriptor < 0) {
      throw std::runtime_error("cannot write " + file.string());
    }
  }
  ~FileStream() { close(m_descriptor); }
  FileStream(const FileStream&) = delete;
  FileStream& operator=(const FileStream&) = delete;

  HRESULT Read(void*, ULONG, ULONG*) override { return E_FAIL; }
  HRESULT Write(const void* buffer, ULONG size, ULONG* transferred) override {
    const ssize_t written = write(m_descriptor, buffer, size);
    if (transferred != nullptr) {
      *transferred = written > 0 ? static_cast<ULONG>(written) : 0;
    }
    return written == static_cast<ssize_t>(size) ? S_OK : E_FAIL;
  }

 private:
  int m_descriptor;
};

}  // namespace

void WriteThroughSystemStream(const std::filesystem::path& file,
                              const std::function<void(IStream&)>& write) {
  FileStream stream(file);
  write(stream);
}

}  // namespace mqp::test
