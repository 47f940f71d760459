// The string record: what is read and written is what the format says of the same bytes, unit by
// unit, and a text that is written comes back up to its first zero.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include <storage/memory_stream.h>
#include <mqPostCommon/params/stream/strings.h>

#include "input.h"

namespace mqp::fuzz {
namespace {

using host::MemoryStream;
using Units = std::basic_string<mqChar>;

constexpr std::size_t kMostUnits = 1024;

struct Reading {
  int answer;
  Units text;
  std::size_t taken;  ///< bytes of the stream
};

Reading ReadPlainly(const ByteString& bytes, const Units& before) {
  const auto at = [&bytes](std::size_t place) {
    return place < bytes.size() ? std::to_integer<unsigned>(bytes[place]) : 0U;
  };
  const auto count = static_cast<int>(at(0) | at(1) << 8 | at(2) << 16 | at(3) << 24);
  if (count < 1) {
    return {0, before, std::min<std::size_t>(bytes.size(), 4)};
  }
  const std::size_t units = std::min(static_cast<std::size_t>(count), kMostUnits);
  Units text;
  for (std::size_t unit = 0; unit < units; ++unit) {
    text += static_cast<mqChar>(at(4 + 2 * unit) | at(5 + 2 * unit) << 8);
  }
  return {1, text.substr(0, text.find(mqChar{0})), std::min(bytes.size(), 4 + 2 * units)};
}

ByteString LayOut(Units text) {
  text.resize(std::min(text.size(), kMostUnits));
  ByteString bytes;
  const auto add = [&bytes](std::size_t value, int width) {
    for (int byte = 0; byte < width; ++byte) {
      bytes.push_back(static_cast<std::byte>(value >> (8 * byte) & 0xFF));
    }
  };
  add(text.size(), 4);
  for (const mqChar unit : text) {
    add(unit, 2);
  }
  return bytes;
}

void CheckReading(const ByteString& bytes, const CString& before) {
  CString text = before;
  MemoryStream stream(bytes);
  const Reading expected = ReadPlainly(bytes, Units(before.View()));
  Require(CStringReadFromStream(&stream, &text) == expected.answer, "the answer of the reader");
  Require(text.View() == expected.text, "the text that is read");
  Require(stream.Position() == expected.taken, "the bytes that the reader takes");
}

void CheckWriting(CString text) {
  const CString before = text;
  MemoryStream stream;
  Require(CStringWriteToStream(&stream, &text) == 1, "the answer of the writer");
  Require(stream.Bytes() == LayOut(Units(before.View())), "the bytes that are written");
  Require(text == before, "the writer leaves the text alone");
  CheckReading(stream.Bytes(), before);
}

void CheckNull(const ByteString& bytes, CString text) {
  const CString before = text;
  MemoryStream stream(bytes);
  const bool isRefused =
      CStringReadFromStream(nullptr, &text) == 0 && CStringReadFromStream(&stream, nullptr) == 0 &&
      CStringWriteToStream(nullptr, &text) == 0 && CStringWriteToStream(&stream, nullptr) == 0;
  Require(isRefused && text == before, "null is refused");
  Require(stream.Position() == 0 && stream.Bytes() == bytes, "null moves no byte");
}

/// As it stands in the input: two bytes a unit, zeros among them.
CString TextOf(const ByteString& bytes) {
  Units units;
  for (std::size_t place = 0; place + 1 < bytes.size(); place += 2) {
    units += static_cast<mqChar>(std::to_integer<unsigned>(bytes[place]) |
                                 std::to_integer<unsigned>(bytes[place + 1]) << 8);
  }
  return CString(mqTextView(units));
}

}  // namespace
}  // namespace mqp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  mqp::fuzz::Input input(data, size);
  const CString before(static_cast<mqChar>('a'), input.Below(3));
  const mqp::fuzz::ByteString bytes = input.Rest();
  mqp::fuzz::CheckReading(bytes, before);
  mqp::fuzz::CheckWriting(mqp::fuzz::TextOf(bytes));
  mqp::fuzz::CheckNull(bytes, before);
  return 0;
}
