// The two directions of a stream record. A class lists the fields of its record once, in a
// function template that hands them to a visitor one after the other; RecordWriter,
// FieldStorer, RecordReader and FieldLister are the visitors, so that writing, reading and
// explaining a record cannot differ.
//
//     record := field*                  no tags, lengths, alignment or padding
//     field  := integer | double | string | list
//     list   := count record*           count := integer
//
// A visitor has four operations, each with the first document version that has the field:
// Integers, Doubles, Strings and Records. The last one is given a list and a function that hands
// the fields of one of its objects to a visitor.
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
#include <type_traits>
#include <utility>
#include <vector>

#include <mqPostCommon/params/stream/record_field.h>
#include <mqPostCommon/params/stream/strings.h>
#include <mqPostCommon/platform/comm_funcs.h>
#include <mqPostCommon/platform/owned.h>
#include <mqPostCommon/platform/stream.h>

namespace mqp {

static_assert(std::endian::native == std::endian::little,
              "numbers lie in a stream as they do in memory");

/// Stores values as they lie in a stream.
/// \return the place behind them
template <class Value>
std::byte* StoreValues(std::span<const Value> values, std::byte* bytes) noexcept {
  std::memcpy(bytes, values.data(), values.size_bytes());
  return bytes + values.size_bytes();
}
/// Loads as many values as there are.
/// \return the place behind their bytes
template <class Value>
std::byte* LoadValues(std::byte* bytes, std::span<Value> values) noexcept {
  std::memcpy(values.data(), bytes, values.size_bytes());
  return bytes + values.size_bytes();
}

/// The most bytes of the units of a text.
inline constexpr std::size_t kMaximumTextSize = std::size_t{2} * kMaximumStringRecordLength;

/// No object with a record is larger, nor are all of its numbers, each a member of its own.
inline constexpr std::size_t kMaximumObjectSize = 4096;

/// A list of records is read up to this length. No document holds more; a count beyond it comes
/// from damaged bytes, and no memory would suffice for the largest.
inline constexpr int kMaximumRecordCount = 65536;

/// Stores the first so many units of a text.
/// \param bytes room for the longest text of a record
inline void StoreUnits(const CString& text, int count, std::byte* bytes) {
  // What a host does not copy is zeros. There is room for 64 bytes in any case, which are cleared
  // without a call; a short text needs no more.
  constexpr std::size_t kShort = 64;
  const std::size_t size = sizeof(mqChar) * static_cast<std::size_t>(count);
  if (size <= kShort) {
    std::memset(bytes, 0, kShort);
  } else {
    std::memset(bytes, 0, size);
  }
  STRING2LPUSHORT(text, reinterpret_cast<unsigned short*>(bytes), kMaximumStringRecordLength);
}

/// Fills bytes from a stream and takes their first so many units for a text, up to the first zero.
/// What the stream does not deliver of the units counts as zeros, so that it ends the text.
/// \param bytes the units, aligned as such, and whatever else is to be read with them, which keeps
///              what is not delivered
void ReadUnits(IStream& stream, std::span<std::byte> bytes, int count, CString& text);

/// What goes into a stream in one call, and room behind it for what is stored before it is looked
/// at again: a count, the longest text, and the numbers of an object of a list and of the one
/// around it.
struct WriteBuffer {
  static constexpr std::size_t kFull = 4096;
  alignas(double)
      std::array<std::byte, kFull + sizeof(int) + kMaximumTextSize + 2 * kMaximumObjectSize> bytes;
};

/// Writes fields of every version into a buffer, which goes into the stream when it is full. What
/// the stream answers is not looked at. Nothing is complete without `Finish`. A record has at least
/// one field.
class RecordWriter {
 public:
  RecordWriter(IStream& stream, WriteBuffer& buffer)
      : m_stream(stream), m_begin(buffer.bytes.data()), m_end(m_begin) {}

  void Integers(int /*since*/, std::string_view /*name*/, std::span<const int> values) {
    m_end = StoreValues(values, m_end);
  }
  void Doubles(int /*since*/, std::string_view /*name*/, std::span<const double> values) {
    m_end = StoreValues(values, m_end);
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
      const auto& object = *list.GetNext(position);
      static_assert(sizeof(object) <= kMaximumObjectSize);
      MakeRoom();
      visit(object, *this);
    }
  }
  void Finish() {
    m_stream.Write(m_begin, static_cast<ULONG>(m_end - m_begin), nullptr);
    m_end = m_begin;
  }

 private:
  void Text(const CString& text) {
    MakeRoom();
    const int count = std::min(text.GetLength(), kMaximumStringRecordLength);
    m_end = StoreValues(std::span(&count, 1), m_end);
    if (count > 0) {
      StoreUnits(text, count, m_end);
      m_end += std::ptrdiff_t{2} * count;
    }
  }
  void MakeRoom() {
    if (m_end - m_begin > static_cast<std::ptrdiff_t>(WriteBuffer::kFull)) {
      Finish();
    }
  }

  IStream& m_stream;
  std::byte* m_begin;
  std::byte* m_end;
};

/// What records of one class are read through. Their bytes stand in the second part as they would
/// in a record whose texts and lists are empty: each number is a member of its own, and a text or a
/// list takes more room in an object than its count does here. Behind them is room for the first
/// fields of the next record. The first part is room for the units of a text.
template <class Object>
struct ReadBuffer {
  alignas(double) std::array<std::byte, kMaximumTextSize + 2 * sizeof(Object)> bytes;
  std::array<std::byte*, sizeof(Object) / sizeof(int)> runEnds;
};

/// A version that has every field, known to the compiler, which then knows where each of them lies.
using NewestVersion = std::integral_constant<int, kNewestRecordVersion>;

/// Puts the values that the fields of a version have into a buffer, 0 for every count, and marks
/// the ends of the runs: behind each count, where the stream goes on with what is counted.
template <class Version>
class FieldStorer {
 public:
  FieldStorer(Version version, std::byte* bytes, std::byte** runEnds)
      : m_version(version), m_end(bytes), m_runEnd(runEnds) {}

  void Integers(int since, std::string_view /*name*/, std::span<const int> values) {
    Store(since, values);
  }
  void Doubles(int since, std::string_view /*name*/, std::span<const double> values) {
    Store(since, values);
  }
  void Strings(int since, std::string_view /*name*/, std::span<const CString> values) {
    for (std::size_t left = values.size(); left > 0; --left) {
      Count(since);
    }
  }
  template <class List, class Visit>
  void Records(int since, std::string_view /*name*/, const List& /*list*/, Visit /*visit*/) {
    Count(since);
  }
  /// \return where the end of the run is kept
  std::byte** EndRun() {
    *m_runEnd = m_end;
    return m_runEnd++;
  }

 private:
  template <class Value>
  void Store(int since, std::span<const Value> values) {
    if (m_version >= since) {
      m_end = StoreValues(values, m_end);
    }
  }
  void Count(int since) {
    constexpr int kEmpty = 0;
    Store(since, std::span(&kEmpty, 1));
    if (m_version >= since) {
      EndRun();
    }
  }

  Version m_version;
  std::byte* m_end;
  std::byte** m_runEnd;
};

template <class Version, class Object, class Visit>
class ObjectReader;

/// Reads the fields that a document of a version has; the others keep their values. A run of
/// numbers is read in one call, with the count behind it and the text before it, over a buffer that
/// holds their previous bytes: where the stream ends early, a field keeps the bytes that were not
/// delivered.
template <class Version>
class RecordReader {
 public:
  /// \param bytes       what a `FieldStorer` has stored, behind room for the units of a text
  /// \param alreadyRead how many of the bytes are not to be read any more
  RecordReader(IStream& stream, Version version, std::byte* bytes, std::byte** runEnds,
               std::size_t alreadyRead)
      : m_stream(stream), m_version(version), m_bytes(bytes), m_runEnd(runEnds) {
    ReadRun(bytes + alreadyRead);
  }

  void Integers(int since, std::string_view /*name*/, std::span<int> values) {
    Load(since, values);
  }
  void Doubles(int since, std::string_view /*name*/, std::span<double> values) {
    Load(since, values);
  }
  void Strings(int since, std::string_view /*name*/, std::span<CString> values) {
    for (CString& text : values) {
      Text(since, text);
    }
  }
  /// Appends to the list. Nothing is reserved; what is claimed is made even where the stream has
  /// ended.
  template <class Object, class Visit>
  void Records(int since, std::string_view /*name*/, OwnedList<Object>& list, Visit visit) {
    if (m_version < since) {
      return;
    }
    const int count = std::min(LoadCount(), kMaximumRecordCount);
    ObjectReader<Version, Object, Visit> reader(m_stream, m_version, visit);
    for (int left = count; left > 0; --left) {
      reader.Read(list.Append(std::make_unique<Object>()), left > 1);
    }
    ReadRun(m_bytes);
  }

 private:
  template <class Value>
  void Load(int since, std::span<Value> values) {
    if (m_version >= since) {
      m_bytes = LoadValues(m_bytes, values);
    }
  }
  int LoadCount() {
    int count = 0;
    m_bytes = LoadValues(m_bytes, std::span(&count, 1));
    return count;
  }
  /// The units are read to where the bytes of earlier fields were.
  void Text(int since, CString& text) {
    if (m_version < since) {
      return;
    }
    const int count = std::min(LoadCount(), kMaximumStringRecordLength);
    if (count > 0) {
      ReadUnits(m_stream, {m_bytes - std::ptrdiff_t{2} * count, *m_runEnd++}, count, text);
    } else {
      ReadRun(m_bytes);
    }
  }
  /// From `begin` on, if there is anything.
  void ReadRun(std::byte* begin) {
    const auto size = static_cast<ULONG>(*m_runEnd++ - begin);
    if (size > 0) {
      m_stream.Read(begin, size, nullptr);
    }
  }

  IStream& m_stream;
  Version m_version;
  std::byte* m_bytes;
  std::byte** m_runEnd;
};

/// Reads records of one class that lie behind each other. The fields before the first text or list
/// of a record are read together with the end of the record before it: a call costs more than they
/// do. A stream that refuses such a call as a whole loses the end of the one with the begin of the
/// other.
template <class Version, class Object, class Visit>
class ObjectReader {
 public:
  ObjectReader(IStream& stream, Version version, Visit visit)
      : m_stream(stream), m_version(version), m_visit(visit) {}

  /// \param object with its defaults, which are taken for those of the next one as well
  /// \param goesOn whether another record follows, which is read next
  void Read(Object& object, bool goesOn) {
    std::byte* const bytes = m_buffer.bytes.data() + kMaximumTextSize;
    std::byte** const runEnds = m_buffer.runEnds.data();
    FieldStorer storer(m_version, bytes, runEnds);
    m_visit(object, storer);
    std::byte*& end = *storer.EndRun();
    const auto firstRun = static_cast<std::size_t>(*runEnds - bytes);
    // The first run of the next record is read behind this one, over its defaults. There the first
    // run of this one was read, which now changes places with them.
    if (m_alreadyRead > 0) {
      std::swap_ranges(bytes, bytes + firstRun, end);
    } else if (goesOn) {
      std::copy_n(bytes, firstRun, end);
    }
    end += goesOn ? firstRun : 0;
    RecordReader reader(m_stream, m_version, bytes, runEnds, m_alreadyRead);
    m_visit(object, reader);
    m_alreadyRead = firstRun;
  }

 private:
  IStream& m_stream;
  Version m_version;
  Visit m_visit;
  ReadBuffer<Object> m_buffer;
  std::size_t m_alreadyRead = 0;  ///< bytes of the next record
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
template <class Object, class Visit>
int WriteRecord(IStream* stream, const Object& object, Visit visit) {
  if (stream == nullptr) {
    return 0;
  }
  static_assert(sizeof(object) <= kMaximumObjectSize);
  WriteBuffer buffer;
  RecordWriter writer(*stream, buffer);
  visit(object, writer);
  writer.Finish();
  return 1;
}

/// Reads it from a document of a version; the answer of `ReadFromStream`.
/// \param first the first version that has the record
template <class Object, class Visit>
int ReadRecord(IStream* stream, int version, int first, Object& object, Visit visit) {
  if (stream == nullptr || version < first) {
    return 0;
  }
  if (version >= kNewestRecordVersion) {
    ObjectReader<NewestVersion, Object, Visit>(*stream, {}, visit).Read(object, false);
  } else {
    ObjectReader<int, Object, Visit>(*stream, version, visit).Read(object, false);
  }
  return 1;
}

template <class Object, class Visit>
std::vector<RecordField> ListFields(const Object& object, Visit visit) {
  FieldLister lister;
  visit(object, lister);
  return lister.Take();
}

}  // namespace mqp
