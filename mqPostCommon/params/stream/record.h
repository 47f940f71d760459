// The two directions of a stream record. A class lists the fields of its record once, in a
// function template that hands them to a visitor one after the other; RecordWriter,
// RecordReader and FieldLister are the visitors, so that writing, reading and explaining a record
// cannot differ.
//
//     record := field*                  no tags, lengths, alignment or padding
//     field  := integer | double | string
//
// A visitor has three operations, each with the first document version that has the field:
// Integers, Doubles and Strings.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include <mqPostCommon/params/stream/record_field.h>
#include <mqPostCommon/params/stream/strings.h>
#include <mqPostCommon/platform/stream.h>

namespace mqp {

/// A value of 4 or 8 bytes in the byte order of a stream, which is little-endian.
template <class Value>
void StoreLittleEndian(Value value, std::byte* bytes) noexcept {
  std::memcpy(bytes, &value, sizeof(value));
  if constexpr (std::endian::native == std::endian::big) {
    std::reverse(bytes, bytes + sizeof(value));
  }
}
template <class Value>
Value LoadLittleEndian(const std::byte* bytes) noexcept {
  std::array<std::byte, sizeof(Value)> ordered;
  std::copy_n(bytes, sizeof(Value), ordered.begin());
  if constexpr (std::endian::native == std::endian::big) {
    std::ranges::reverse(ordered);
  }
  Value value;
  std::memcpy(&value, ordered.data(), sizeof(value));
  return value;
}

void WriteStringRecord(IStream& stream, const CString& text);

/// Writes fields of every version. Fixed fields that follow one another go into the stream in one
/// call; what the stream answers is not looked at.
class RecordWriter {
 public:
  explicit RecordWriter(IStream& stream) : m_stream(stream) {}
  RecordWriter(const RecordWriter&) = delete;
  RecordWriter& operator=(const RecordWriter&) = delete;
  ~RecordWriter() { Flush(); }

  void Integers(int /*since*/, std::string_view /*name*/, std::span<const int> values) {
    Fixed(values);
  }
  void Doubles(int /*since*/, std::string_view /*name*/, std::span<const double> values) {
    Fixed(values);
  }
  void Strings(int /*since*/, std::string_view /*name*/, std::span<const CString> values) {
    Flush();
    for (const CString& text : values) {
      WriteStringRecord(m_stream, text);
    }
  }

 private:
  template <class Value>
  void Fixed(std::span<const Value> values) {
    for (const Value& value : values) {
      if (m_buffer.size() - m_used < sizeof(Value)) {
        Flush();
      }
      StoreLittleEndian(value, m_buffer.data() + m_used);
      m_used += sizeof(Value);
    }
  }
  void Flush() {
    if (m_used > 0) {
      m_stream.Write(m_buffer.data(), static_cast<ULONG>(m_used), nullptr);
      m_used = 0;
    }
  }

  IStream& m_stream;
  std::array<std::byte, 512> m_buffer;
  std::size_t m_used = 0;
};

/// Reads the fields that a document of a version has; the others keep their values. Fixed fields
/// that follow one another are read in one call over a buffer that holds their previous bytes:
/// where the stream ends early, a field keeps the bytes that were not delivered.
class RecordReader {
 public:
  RecordReader(IStream& stream, int version) : m_stream(stream), m_version(version) {}
  RecordReader(const RecordReader&) = delete;
  RecordReader& operator=(const RecordReader&) = delete;
  ~RecordReader() { Flush(); }

  void Integers(int since, std::string_view /*name*/, std::span<int> values) {
    Fixed(since, values);
  }
  void Doubles(int since, std::string_view /*name*/, std::span<double> values) {
    Fixed(since, values);
  }
  void Strings(int since, std::string_view /*name*/, std::span<CString> values) {
    if (m_version < since) {
      return;
    }
    Flush();
    for (CString& text : values) {
      CStringReadFromStream(&m_stream, &text);
    }
  }

 private:
  struct Target {
    void* value;
    std::size_t size;
  };

  template <class Value>
  void Fixed(int since, std::span<Value> values) {
    if (m_version < since) {
      return;
    }
    for (Value& value : values) {
      if (m_buffer.size() - m_used < sizeof(Value) || m_targetCount == m_targets.size()) {
        Flush();
      }
      StoreLittleEndian(value, m_buffer.data() + m_used);
      m_used += sizeof(Value);
      m_targets[m_targetCount++] = {&value, sizeof(Value)};
    }
  }
  void Flush() {
    if (m_used == 0) {
      return;
    }
    m_stream.Read(m_buffer.data(), static_cast<ULONG>(m_used), nullptr);
    const std::byte* bytes = m_buffer.data();
    for (const Target& target : std::span(m_targets).first(m_targetCount)) {
      if (target.size == sizeof(int)) {
        *static_cast<int*>(target.value) = LoadLittleEndian<int>(bytes);
      } else {
        *static_cast<double*>(target.value) = LoadLittleEndian<double>(bytes);
      }
      bytes += target.size;
    }
    m_used = 0;
    m_targetCount = 0;
  }

  IStream& m_stream;
  int m_version;
  std::array<std::byte, 512> m_buffer;
  std::array<Target, 128> m_targets;
  std::size_t m_used = 0;
  std::size_t m_targetCount = 0;
};

/// Lists the fields; neighbours of one name are one field.
class FieldLister {
 public:
  void Integers(int since, std::string_view name, std::span<const int> values) {
    Add(since, name, FieldType::Integer, values.size());
  }
  void Doubles(int since, std::string_view name, std::span<const double> values) {
    Add(since, name, FieldType::Double, values.size());
  }
  void Strings(int since, std::string_view name, std::span<const CString> values) {
    Add(since, name, FieldType::String, values.size());
  }
  [[nodiscard]] std::vector<RecordField> Take() { return std::move(m_fields); }

 private:
  void Add(int since, std::string_view name, FieldType type, std::size_t count) {
    if (!m_fields.empty() && m_fields.back().name == name) {
      m_fields.back().count += static_cast<int>(count);
      return;
    }
    m_fields.push_back({name, type, static_cast<int>(count), since});
  }

  std::vector<RecordField> m_fields;
};

/// A member as the values of a field: one value, a row or a matrix.
template <class Value>
std::span<Value> ValuesOf(Value& value) noexcept {
  return {&value, 1};
}
template <class Value, std::size_t Count>
std::span<Value> ValuesOf(Value (&values)[Count]) noexcept {
  return values;
}
template <class Value, std::size_t Rows, std::size_t Columns>
std::span<Value> ValuesOf(Value (&values)[Rows][Columns]) noexcept {
  return {&values[0][0], Rows * Columns};
}

}  // namespace mqp
