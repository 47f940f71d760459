#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include <mqPostCommon/params/stream/record.h>
#include <mqPostCommon/params/stream/strings.h>

void mqp::TakeUnits(std::byte* bytes, int count, CString& text) {
  std::array<mqChar, kMaximumStringRecordLength> units;
  const auto taken = std::span(units).first(static_cast<std::size_t>(count));
  LoadLittleEndian(bytes, taken);
  const auto end = std::ranges::find(taken, mqChar{0});
  text = CString(units.data(), static_cast<int>(end - taken.begin()));
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
  std::array<std::byte, mqp::kMaximumTextSize> bytes;
  int count = 0;
  std::fill_n(bytes.data(), sizeof(count), std::byte{0});
  stream->Read(bytes.data(), sizeof(count), nullptr);
  mqp::LoadLittleEndian(bytes.data(), std::span(&count, 1));
  if (count < 1) {
    return 0;
  }
  count = std::min(count, mqp::kMaximumStringRecordLength);
  const auto size = sizeof(mqChar) * static_cast<std::size_t>(count);
  std::fill_n(bytes.data(), size, std::byte{0});
  stream->Read(bytes.data(), static_cast<ULONG>(size), nullptr);
  mqp::TakeUnits(bytes.data(), count, *text);
  return 1;
}
