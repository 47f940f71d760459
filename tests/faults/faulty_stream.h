/// \file
/// A stream that misbehaves as a plan says and keeps a log of what came through, and the reading
/// of such a log by the rules of the record primitives.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <storage/memory_stream.h>
#include <mqPostCommon/platform/stream.h>
#include <mqPostCommon/platform/wide_string.h>

#include "params/record_test_support.h"

namespace mqp::test {

/// What a stream does instead of transferring all that it was asked for.
struct Fault {
  const char* name;
  HRESULT answer;
  ULONG (*transferred)(ULONG asked);  ///< how many bytes all the same
  ByteString scribble;  ///< what a failing read leaves in the buffer, over and over; empty: nothing
};

inline ULONG None(ULONG /*asked*/) {
  return 0;
}
inline ULONG One(ULONG asked) {
  return std::min<ULONG>(asked, 1);
}
inline ULONG Half(ULONG asked) {
  return asked / 2;
}
inline ULONG AllButOne(ULONG asked) {
  return asked == 0 ? 0 : asked - 1;
}
inline ULONG All(ULONG asked) {
  return asked;
}

/// The calls that a fault hits.
struct FaultPlan {
  const Fault* fault = nullptr;
  int call = INT_MAX;  ///< counted from 0
  bool isOnce = false;
};

/// What a reader asked for, in order.
struct ReadLog {
  /// What its buffer received, up to the last byte that did.
  std::vector<std::optional<std::byte>> bytes{};
  std::size_t asked = 0;
};

/// Bytes in memory, delivered and taken as the plan says.
class FaultyStream : public host::MemoryStream {
 public:
  explicit FaultyStream(ByteString bytes, FaultPlan plan = {})
      : MemoryStream(std::move(bytes)), m_plan(plan) {}

  HRESULT Read(void* buffer, ULONG size, ULONG* transferred) override {
    countsAsked += transferred != nullptr ? 1 : 0;
    mostAsked = std::max(mostAsked, size);
    const Fault* fault = NextFault();
    auto* bytes = static_cast<std::byte*>(buffer);
    ULONG delivered = 0;
    HRESULT answer =
        MemoryStream::Read(buffer, fault == nullptr ? size : fault->transferred(size), &delivered);
    if (fault != nullptr) {
      answer = fault->answer;
      for (; delivered < size && !fault->scribble.empty(); ++delivered) {
        bytes[delivered] = fault->scribble[delivered % fault->scribble.size()];
      }
    }
    if (delivered > 0) {
      read.bytes.resize(read.asked);
      read.bytes.insert(read.bytes.end(), bytes, bytes + delivered);
    }
    read.asked += size;
    Answer(transferred, delivered);
    return answer;
  }
  HRESULT Write(const void* buffer, ULONG size, ULONG* transferred) override {
    countsAsked += transferred != nullptr ? 1 : 0;
    mostAsked = std::max(mostAsked, size);
    const Fault* fault = NextFault();
    const auto* bytes = static_cast<const std::byte*>(buffer);
    written.insert(written.end(), bytes, bytes + size);
    Answer(transferred, fault == nullptr ? size : fault->transferred(size));
    return fault == nullptr ? S_OK : fault->answer;
  }

  ReadLog read;
  /// Every byte that was handed over, taken or not.
  ByteString written;
  int calls = 0;
  int countsAsked = 0;  ///< calls that wanted to know how many bytes were transferred
  ULONG mostAsked = 0;  ///< the most bytes of one call

 private:
  const Fault* NextFault() {
    const int call = calls++;
    const bool isHit = m_plan.isOnce ? call == m_plan.call : call >= m_plan.call;
    return isHit ? m_plan.fault : nullptr;
  }

  FaultPlan m_plan;
};

/// The fields of a record as a log of its reading has them. A number keeps the bytes that the
/// stream did not deliver; a count starts at zero, and so do the units of a text.
class LoggedFields {
 public:
  explicit LoggedFields(const ReadLog& log) : m_log(log) {}

  void Read(int& value) {
    value = std::bit_cast<int>(Overlay(std::bit_cast<std::uint32_t>(value)));
  }
  void Read(double& value) {
    value = std::bit_cast<double>(Overlay(std::bit_cast<std::uint64_t>(value)));
  }
  int ReadCount() {
    int count = 0;
    Read(count);
    return count;
  }
  /// Returns whether there is a text; a record without one leaves the held text alone.
  bool Read(CString& text) {
    const int count = std::min(ReadCount(), 1024);
    if (count < 1) {
      return false;
    }
    std::basic_string<mqChar> units;
    bool isEnded = false;
    for (int place = 0; place < count; ++place) {
      const std::uint16_t unit = Overlay(std::uint16_t{0});
      isEnded = isEnded || unit == 0;
      if (!isEnded) {
        units += static_cast<mqChar>(unit);
      }
    }
    text = CString(mqTextView(units));
    return true;
  }

  /// In words, when the reader asked for another number of bytes than its fields have.
  [[nodiscard]] std::string Imbalance() const {
    return m_position == m_log.asked
               ? std::string()
               : "the fields have " + std::to_string(m_position) + " bytes, asked for were " +
                     std::to_string(m_log.asked) + '\n';
  }

 private:
  template <class Bits>
  Bits Overlay(Bits bits) {
    for (std::size_t byte = 0; byte < sizeof(Bits); ++byte) {
      const std::size_t position = m_position + byte;
      if (position < m_log.bytes.size() && m_log.bytes[position].has_value()) {
        const auto value = std::to_integer<std::uint64_t>(*m_log.bytes[position]);
        const std::uint64_t others = bits & ~(std::uint64_t{0xFF} << (8 * byte));
        bits = static_cast<Bits>(others | value << (8 * byte));
      }
    }
    m_position += sizeof(Bits);
    return bits;
  }

  const ReadLog& m_log;
  std::size_t m_position = 0;
};

}  // namespace mqp::test
