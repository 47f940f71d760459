#include "mo_file.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace mqp::host {
namespace {

constexpr std::uint32_t kMark = 0x950412DE;
constexpr std::uint32_t kMarkOfOtherByteOrder = 0xDE120495;
constexpr std::uint32_t kNewestMajorRevision = 1;

constexpr std::size_t kRevisionAt = 4;
constexpr std::size_t kCountAt = 8;
constexpr std::size_t kKeyTableAt = 12;
constexpr std::size_t kTextTableAt = 16;
constexpr std::size_t kHeaderSize = 28;
constexpr std::size_t kRowSize = 8;

std::string At(std::size_t byte, const std::string& what) {
  return "byte " + std::to_string(byte) + ": " + what;
}

class MoReader {
 public:
  explicit MoReader(std::string_view bytes) : m_bytes(bytes) {}

  MoFile Read() {
    MoFile file;
    if (ReadHeader()) {
      ReadMessages(file.messages);
    }
    if (!m_error.empty()) {
      file.messages.clear();
    }
    file.error = m_error;
    return file;
  }

 private:
  /// The integer at an offset that lies at least four bytes before the end.
  [[nodiscard]] std::uint32_t Integer(std::size_t offset) const {
    std::uint32_t value = 0;
    for (std::size_t index = 0; index < 4; ++index) {
      const std::size_t at = offset + (m_bigEndian ? index : 3 - index);
      value = (value << 8U) | static_cast<unsigned char>(m_bytes[at]);
    }
    return value;
  }

  bool Fail(std::size_t byte, const std::string& what) {
    m_error = At(byte, what);
    return false;
  }

  bool ReadHeader() {
    if (m_bytes.size() < kHeaderSize) {
      return Fail(m_bytes.size(),
                  "the file ends inside its header of " + std::to_string(kHeaderSize) + " bytes");
    }
    const std::uint32_t mark = Integer(0);
    if (mark != kMark && mark != kMarkOfOtherByteOrder) {
      return Fail(0, "not a compiled gettext file");
    }
    m_bigEndian = mark == kMarkOfOtherByteOrder;
    if (const std::uint32_t major = Integer(kRevisionAt) >> 16U; major > kNewestMajorRevision) {
      return Fail(kRevisionAt, "revision " + std::to_string(major) + " is not known");
    }
    m_count = Integer(kCountAt);
    return CheckTable(kKeyTableAt) && CheckTable(kTextTableAt);
  }

  bool CheckTable(std::size_t tableAt) {
    const std::size_t table = Integer(tableAt);
    if (table > m_bytes.size() || m_count > (m_bytes.size() - table) / kRowSize) {
      return Fail(tableAt, "a table of " + std::to_string(m_count) + " messages from byte " +
                               std::to_string(table) + " does not fit into the file");
    }
    return true;
  }

  void ReadMessages(std::vector<MoMessage>& messages) {
    messages.reserve(m_count);
    for (std::size_t index = 0; index < m_count; ++index) {
      const std::size_t keyRow = Integer(kKeyTableAt) + index * kRowSize;
      const std::optional<std::string_view> key = ReadText(keyRow);
      if (!key) {
        return;
      }
      if (!messages.empty() && *key <= messages.back().key) {
        Fail(keyRow, "the key of message " + std::to_string(index) + " does not ascend");
        return;
      }
      const std::optional<std::string_view> text =
          ReadText(Integer(kTextTableAt) + index * kRowSize);
      if (!text) {
        return;
      }
      messages.push_back({*key, *text});
    }
  }

  /// The key or text that a row of a table describes.
  std::optional<std::string_view> ReadText(std::size_t row) {
    const std::size_t length = Integer(row);
    const std::size_t offset = Integer(row + 4);
    if (offset >= m_bytes.size() || length >= m_bytes.size() - offset) {
      Fail(row, "a text of " + std::to_string(length) + " bytes from byte " +
                    std::to_string(offset) + " does not fit into the file");
      return std::nullopt;
    }
    if (m_bytes[offset + length] != '\0') {
      Fail(offset + length, "no zero behind a text");
      return std::nullopt;
    }
    return m_bytes.substr(offset, length);
  }

  std::string_view m_bytes;
  bool m_bigEndian = false;
  std::size_t m_count = 0;
  std::string m_error;
};

}  // namespace

MoFile ReadMo(std::string_view bytes) {
  return MoReader(bytes).Read();
}

}  // namespace mqp::host
