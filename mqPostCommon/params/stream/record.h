// The two directions of a stream record. A class lists the fields of its record once, in a
// function template that hands them to a visitor one after the other; RecordWriter,
// RecordReader and FieldLister are the visitors, so that writing, reading and explaining a record
// cannot differ.
//
//     record := field*                  no tags, lengths, alignment or padding
//     field  := integer | double | string | list
//     list   := count record*           count := integer
//
// A visitor has four operations, each with the first document version that has the field:
// Integers, Doubles, Strings and Records. The last one is given a list and a function that visits
// the fields of one of its objects.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include <mqPostCommon/params/stream/record_field.h>
#include <mqPostCommon/params/stream/strings.h>
#include <mqPostCommon/platform/comm_funcs.h>
#include <mqPostCommon/platform/owned.h>
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

/// A list of records is read up to this length. No document holds more; a count beyond it comes
/// from damaged bytes, and no memory would suffice for the largest.
inline constexpr int kMaximumRecordCount = 65536;

/// Reads the characters of a string record whose count has been read.
/// \return false for a count of 0 or less: nothing is read, and the text keeps its value
bool ReadCharacters(IStream& stream, int count, CString& text);

/// Writes fields of every version. Fields that follow one another go into the stream in one call
/// as far as the buffer has room; what the stream answers is not looked at. Nothing is complete
/// without `Finish`. A record has at least one field.
class RecordWriter {
 public:
  explicit RecordWriter(IStream& stream) : m_stream(stream) {}
  RecordWriter(const RecordWriter&) = delete;
  RecordWriter& operator=(const RecordWriter&) = delete;

  void Integers(int /*since*/, std::string_view /*name*/, std::span<const int> values) {
    Fixed(values);
  }
  void Doubles(int /*since*/, std::string_view /*name*/, std::span<const double> values) {
    Fixed(values);
  }
  void Strings(int /*since*/, std::string_view /*name*/, std::span<const CString> values) {
    for (const CString& text : values) {
      Text(text);
    }
  }
  template <class List, class Visit>
  void Records(int since, std::string_view name, const List& list, Visit visit) {
    const int count = list.GetCount();
    Integers(since, name, {&count, 1});
    for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
      visit(*list.GetNext(position));
    }
  }
  void Finish() {
    m_stream.Write(m_buffer.data(), static_cast<ULONG>(m_used), nullptr);
    m_used = 0;
  }

 private:
  template <class Value>
  void Fixed(std::span<const Value> values) {
    for (const Value& value : values) {
      Store(value);
    }
  }
  void Text(const CString& text) {
    const int count = std::min(text.GetLength(), kMaximumStringRecordLength);
    std::array<unsigned short, kMaximumStringRecordLength> units;
    const auto stored = std::span(units).first(static_cast<std::size_t>(count));
    std::ranges::fill(stored, static_cast<unsigned short>(0));  // should less be copied
    STRING2LPUSHORT(text, units.data(), kMaximumStringRecordLength);
    Store(count);
    for (const unsigned short unit : stored) {
      Store(unit);
    }
  }
  template <class Value>
  void Store(Value value) {
    if (m_buffer.size() - m_used < sizeof(Value)) {
      Finish();
    }
    StoreLittleEndian(value, m_buffer.data() + m_used);
    m_used += sizeof(Value);
  }

  IStream& m_stream;
  std::array<std::byte, 4096> m_buffer;
  std::size_t m_used = 0;
};

/// Reads the fields that a document of a version has; the others keep their values. Fixed fields
/// that follow one another are read in one call over a buffer that holds their previous bytes:
/// where the stream ends early, a field keeps the bytes that were not delivered. The fields have
/// their values after `Finish`; those before a text or a list already when these are read.
class RecordReader {
 public:
  RecordReader(IStream& stream, int version) : m_stream(stream), m_version(version) {}
  RecordReader(const RecordReader&) = delete;
  RecordReader& operator=(const RecordReader&) = delete;

  void Integers(int since, std::string_view /*name*/, std::span<int> values) {
    Fixed(since, values);
  }
  void Doubles(int since, std::string_view /*name*/, std::span<double> values) {
    Fixed(since, values);
  }
  void Strings(int since, std::string_view /*name*/, std::span<CString> values) {
    for (CString& text : values) {
      ReadCharacters(m_stream, ReadCount(since), text);
    }
  }
  /// Appends to the list. Nothing is reserved: only as many objects are made as are read.
  template <class Object, class Visit>
  void Records(int since, std::string_view /*name*/, OwnedList<Object>& list, Visit visit) {
    const int count = std::min(ReadCount(since), kMaximumRecordCount);
    for (int place = 0; place < count; ++place) {
      visit(list.Append(std::make_unique<Object>()));
    }
  }
  void Finish() {
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
      if (m_buffer.size() - m_used < sizeof(Value)) {
        Finish();
      }
      StoreLittleEndian(value, m_buffer.data() + m_used);
      m_used += sizeof(Value);
      m_targets[m_targetCount++] = {&value, sizeof(Value)};
    }
  }
  /// Together with the fields before it; 0 as far as the stream does not deliver it, and in a
  /// version that does not have it.
  int ReadCount(int since) {
    int count = 0;
    Integers(since, {}, {&count, 1});
    Finish();
    return count;
  }

  IStream& m_stream;
  int m_version;
  std::array<std::byte, 512> m_buffer;
  std::array<Target, 512 / sizeof(int)> m_targets;  // the smallest fields fill both
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
  /// The count alone: the records of a list are laid out by the field list of their class.
  template <class List, class Visit>
  void Records(int since, std::string_view name, const List& /*list*/, Visit /*visit*/) {
    Add(since, name, FieldType::Integer, 1);
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

/// Writes the record whose fields `visit` hands to a visitor; the answer of `WriteToStream`.
template <class Visit>
int WriteRecord(IStream* stream, Visit visit) {
  if (stream == nullptr) {
    return 0;
  }
  RecordWriter writer(*stream);
  visit(writer);
  writer.Finish();
  return 1;
}

/// Reads it from a document of a version; the answer of `ReadFromStream`.
/// \param first the first version that has the record
template <class Visit>
int ReadRecord(IStream* stream, int version, int first, Visit visit) {
  if (stream == nullptr || version < first) {
    return 0;
  }
  RecordReader reader(*stream, version);
  visit(reader);
  reader.Finish();
  return 1;
}

template <class Visit>
std::vector<RecordField> ListFields(Visit visit) {
  FieldLister lister;
  visit(lister);
  return lister.Take();
}

}  // namespace mqp
