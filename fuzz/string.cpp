// The string record: what is read and written is what the format says of the same bytes, unit by
// unit, and a text that is written comes back up to its first zero.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include <storage/memory_stream.h>
#include <mqPostCommon/params/stream/strings.h>

#include "input.h"
#include "plain_text.h"

namespace mqp::fuzz {
namespace {

using host::MemoryStream;

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
  MemoryStream plainStream(bytes);
  Units expected(before.View());
  const int answer = ReadTextPlainly(plainStream, expected);
  Require(CStringReadFromStream(&stream, &text) == answer, "the answer of the reader");
  Require(text.View() == expected, "the text that is read");
  Require(stream.Position() == plainStream.Position(), "the bytes that the reader takes");
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
