/// \file
/// An `IStream` over bytes in memory.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include <mqPostCommon/platform/stream.h>

namespace mqp::host {

/// A stream over a vector of bytes that it owns. It starts at the first byte; reading and
/// writing share one position, and writing beyond the end lengthens the vector. The object is
/// owned by whoever made it: on Windows reference counts are answered but not acted on. Derive
/// from it and override `Read` or `Write` for a stream that fails.
class MemoryStream : public IStream {
 public:
  MemoryStream() = default;
  explicit MemoryStream(std::vector<std::byte> bytes) : m_bytes(std::move(bytes)) {}
  virtual ~MemoryStream() = default;

  [[nodiscard]] const std::vector<std::byte>& Bytes() const noexcept { return m_bytes; }
  /// How many bytes lie before the next one to be read or written.
  [[nodiscard]] std::size_t Position() const noexcept { return m_position; }
  void Rewind() noexcept { m_position = 0; }

  /// Delivers what there is: `S_OK` when that is all that was asked for, `S_FALSE` when it is
  /// less, `E_POINTER` for a null buffer that should take bytes.
  HRESULT Read(void* buffer, ULONG size, ULONG* transferred) override;
  /// Takes all bytes and answers `S_OK`, or none: `E_POINTER` for a null buffer with bytes,
  /// `E_FAIL` when memory runs out.
  HRESULT Write(const void* buffer, ULONG size, ULONG* transferred) override;

#if defined(_WIN32)
  HRESULT QueryInterface(REFIID id, void** object) override;
  ULONG AddRef() override { return 1; }
  ULONG Release() override { return 1; }
  /// Any place from the first byte on; a write behind the end fills the gap with zeros.
  HRESULT Seek(LARGE_INTEGER distance, DWORD origin, ULARGE_INTEGER* position) override;
  HRESULT SetSize(ULARGE_INTEGER size) override;
  /// Type and size alone; the stream has no name.
  HRESULT Stat(STATSTG* statistics, DWORD flags) override;
  HRESULT Commit(DWORD) override { return S_OK; }
  HRESULT Revert() override { return S_OK; }
  HRESULT CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override {
    return E_NOTIMPL;
  }
  HRESULT LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
  HRESULT UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
  HRESULT Clone(IStream**) override { return E_NOTIMPL; }
#endif

 private:
  std::vector<std::byte> m_bytes;
  std::size_t m_position = 0;
};

}  // namespace mqp::host
