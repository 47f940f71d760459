#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <span>

#include <mqPostCommon/params/stream/record.h>
#include <mqPostCommon/params/stream/strings.h>

void mqp::ReadUnits(IStream& stream, std::span<std::byte> bytes, int count, CString& text) {
  const auto* const units = reinterpret_cast<const mqChar*>(bytes.data());
  std::memset(bytes.data(), 0, sizeof(mqChar) * static_cast<std::size_t>(count));
  stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
  text = mqTextView(units, std::find(units, units + count, mqChar{0}));
}

int CStringWriteToStream(IStream* stream, CString* text) {
  return text == nullptr ? 0
                         : mqp::WriteRecord(stream, *text, [](const CString& value, auto& writer) {
                             writer.Strings(0, {}, {&value, 1});
                           });
}

int CStringReadFromStream(IStream* stream, CString* text) {
  if (stream == nullptr || text == nullptr) {
    return 0;
  }
  alignas(mqChar) std::array<std::byte, mqp::kMaximumTextSize> bytes;
  int count = 0;
  std::fill_n(bytes.data(), sizeof(count), std::byte{0});
  stream->Read(bytes.data(), sizeof(count), nullptr);
  mqp::LoadValues(bytes.data(), std::span(&count, 1));
  if (count < 1) {
    return 0;
  }
  count = std::min(count, mqp::kMaximumStringRecordLength);
  const auto size = sizeof(mqChar) * static_cast<std::size_t>(count);
  mqp::ReadUnits(*stream, std::span(bytes).first(size), count, *text);
  return 1;
}
