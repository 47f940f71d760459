#include <algorithm>
#include <array>
#include <cstddef>

#include <mqPostCommon/params/stream/record.h>
#include <mqPostCommon/params/stream/strings.h>
#include <mqPostCommon/platform/comm_funcs.h>

namespace {

constexpr std::size_t kCountBytes = 4;
constexpr std::size_t kUnitBytes = 2;
constexpr std::size_t kMaximumBytes = kUnitBytes * kMaximumStringRecordLength;

}  // namespace

void mqp::WriteStringRecord(IStream& stream, const CString& text) {
  const int count = std::min(text.GetLength(), kMaximumStringRecordLength);
  std::array<unsigned short, kMaximumStringRecordLength> units;
  STRING2LPUSHORT(text, units.data(), count);

  std::array<std::byte, kCountBytes + kMaximumBytes> bytes;
  std::byte* end = bytes.data();
  StoreLittleEndian(count, end);
  end += kCountBytes;
  for (int place = 0; place < count; ++place) {
    StoreLittleEndian(units[static_cast<std::size_t>(place)], end);
    end += kUnitBytes;
  }
  stream.Write(bytes.data(), static_cast<ULONG>(end - bytes.data()), nullptr);
}

int CStringWriteToStream(IStream* stream, CString* text) {
  if (stream == nullptr || text == nullptr) {
    return 0;
  }
  mqp::WriteStringRecord(*stream, *text);
  return 1;
}

int CStringReadFromStream(IStream* stream, CString* text) {
  if (stream == nullptr || text == nullptr) {
    return 0;
  }
  std::array<std::byte, kCountBytes> countBytes{};
  stream->Read(countBytes.data(), kCountBytes, nullptr);
  const int count =
      std::min(mqp::LoadLittleEndian<int>(countBytes.data()), kMaximumStringRecordLength);
  if (count < 1) {
    return 0;
  }
  // Zeroed, so that a stream that ends early ends the text.
  std::array<std::byte, kMaximumBytes> bytes{};
  stream->Read(bytes.data(), static_cast<ULONG>(kUnitBytes * static_cast<std::size_t>(count)),
               nullptr);

  std::array<mqChar, kMaximumStringRecordLength> units;
  int length = 0;
  for (; length < count; ++length) {
    const auto place = static_cast<std::size_t>(length);
    units[place] = mqp::LoadLittleEndian<mqChar>(bytes.data() + kUnitBytes * place);
    if (units[place] == 0) {
      break;
    }
  }
  *text = CString(units.data(), length);
  return 1;
}
