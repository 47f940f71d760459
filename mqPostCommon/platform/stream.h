/// \file
/// `IStream`, of which this library uses `Read` and `Write` alone. On Windows it is the real
/// interface; elsewhere an abstract class with the same two operations.
#pragma once

#if defined(_WIN32)

#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#if !defined(WIN32_LEAN_AND_MEAN)
#define WIN32_LEAN_AND_MEAN
#endif
#include <objidl.h>

#else

#include <cstdint>

using HRESULT = std::int32_t;
using ULONG = std::uint32_t;

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT S_FALSE = 1;
inline constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003U);
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005U);
inline constexpr HRESULT STG_E_ACCESSDENIED = static_cast<HRESULT>(0x80030005U);

/// A sequential byte stream that the caller opened, positioned and owns.
class IStream {
 public:
  /// Reads up to `size` bytes at the current position into `buffer` and moves behind them.
  /// \param buffer     room for `size` bytes, owned by the caller
  /// \param transferred receives the number of bytes delivered; may be null
  /// \return `S_OK`; `S_FALSE` or `S_OK` with fewer bytes at the end; a failure code below 0
  virtual HRESULT Read(void* buffer, ULONG size, ULONG* transferred) = 0;

  /// Writes `size` bytes of `buffer` at the current position and moves behind them.
  /// \param transferred receives the number of bytes taken; may be null
  /// \return `S_OK`, or a failure code below 0
  virtual HRESULT Write(const void* buffer, ULONG size, ULONG* transferred) = 0;

 protected:
  IStream() = default;
  IStream(const IStream&) = default;
  IStream& operator=(const IStream&) = default;
  ~IStream() = default;
};

#endif
