#include "memory_stream.h"

#include <algorithm>
#include <cstring>
#include <exception>

namespace mqp::host {
namespace {

void Report(ULONG* transferred, std::size_t count) noexcept {
  if (transferred != nullptr) {
    *transferred = static_cast<ULONG>(count);
  }
}

}  // namespace

HRESULT MemoryStream::Read(void* buffer, ULONG size, ULONG* transferred) {
  Report(transferred, 0);
  if (buffer == nullptr && size > 0) {
    return E_POINTER;
  }
  const std::size_t rest = m_bytes.size() - std::min(m_position, m_bytes.size());
  const std::size_t count = std::min<std::size_t>(size, rest);
  if (count > 0) {
    std::memcpy(buffer, m_bytes.data() + m_position, count);
    m_position += count;
  }
  Report(transferred, count);
  return count == size ? S_OK : S_FALSE;
}

HRESULT MemoryStream::Write(const void* buffer, ULONG size, ULONG* transferred) {
  Report(transferred, 0);
  if (size == 0) {
    return S_OK;
  }
  if (buffer == nullptr) {
    return E_POINTER;
  }
  const std::size_t end = m_position + size;
  try {
    m_bytes.resize(std::max(m_bytes.size(), end));
  } catch (const std::exception&) {
    return E_FAIL;
  }
  std::memcpy(m_bytes.data() + m_position, buffer, size);
  m_position = end;
  Report(transferred, size);
  return S_OK;
}

#if defined(_WIN32)

HRESULT MemoryStream::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) {
    return E_POINTER;
  }
  const bool isOurs = id == IID_IUnknown || id == IID_ISequentialStream || id == IID_IStream;
  *object = isOurs ? static_cast<IStream*>(this) : nullptr;
  return isOurs ? S_OK : E_NOINTERFACE;
}

HRESULT MemoryStream::Seek(LARGE_INTEGER distance, DWORD origin, ULARGE_INTEGER* position) {
  std::size_t base = 0;
  switch (origin) {
    case STREAM_SEEK_SET: break;
    case STREAM_SEEK_CUR: base = m_position; break;
    case STREAM_SEEK_END: base = m_bytes.size(); break;
    default: return STG_E_INVALIDFUNCTION;
  }
  const LONGLONG target = static_cast<LONGLONG>(base) + distance.QuadPart;
  if (target < 0) {
    return STG_E_INVALIDFUNCTION;
  }
  m_position = static_cast<std::size_t>(target);
  if (position != nullptr) {
    position->QuadPart = static_cast<ULONGLONG>(target);
  }
  return S_OK;
}

HRESULT MemoryStream::SetSize(ULARGE_INTEGER size) {
  try {
    m_bytes.resize(static_cast<std::size_t>(size.QuadPart));
    return S_OK;
  } catch (const std::exception&) {
    return STG_E_MEDIUMFULL;
  }
}

HRESULT MemoryStream::Stat(STATSTG* statistics, DWORD) {
  if (statistics == nullptr) {
    return E_POINTER;
  }
  *statistics = {};
  statistics->type = STGTY_STREAM;
  statistics->cbSize.QuadPart = m_bytes.size();
  return S_OK;
}

#endif

}  // namespace mqp::host
