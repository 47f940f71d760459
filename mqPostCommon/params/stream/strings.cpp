#include <algorithm>
#include <array>
#include <cstddef>

#include <mqPostCommon/params/stream/record.h>
#include <mqPostCommon/params/stream/strings.h>

namespace {

constexpr std::size_t kCountBytes = 4;
constexpr std::size_t kUnitBytes = 2;
constexpr std::size_t kMaximumBytes = kUnitBytes * mqp::kMaximumStringRecordLength;

}  // namespace

bool mqp::ReadCharacters(IStream& stream, int count, CString& text) {
  const int stored = std::min(count, kMaximumStringRecordLength);
  if (stored < 1) {
    return false;
  }
  // Zeroed, so that a stream that ends early ends the text.
  std::array<std::byte, kMaximumBytes> bytes{};
  stream.Read(bytes.data(), static_cast<ULONG>(kUnitBytes * static_cast<std::size_t>(stored)),
              nullptr);

  std::array<mqChar, kMaximumStringRecordLength> units;
  int length = 0;
  for (; length < stored; ++length) {
    const auto place = static_cast<std::size_t>(length);
    units[place] = LoadLittleEndian<mqChar>(bytes.data() + kUnitBytes * place);
    if (units[place] == 0) {
      break;
    }
  }
  text = CString(units.data(), length);
  return true;
}

int CStringWriteToStream(IStream* stream, CString* text) {
  if (stream == nullptr || text == nullptr) {
    return 0;
  }
  mqp::RecordWriter writer(*stream);
  writer.Strings(0, {}, {text, 1});
  writer.Finish();
  return 1;
}

int CStringReadFromStream(IStream* stream, CString* text) {
  if (stream == nullptr || text == nullptr) {
    return 0;
  }
  std::array<std::byte, kCountBytes> countBytes{};
  stream->Read(countBytes.data(), kCountBytes, nullptr);
  const int count = mqp::LoadLittleEndian<int>(countBytes.data());
  return mqp::ReadCharacters(*stream, count, *text) ? 1 : 0;
}
