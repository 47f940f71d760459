/// \file
/// A record as a document stores it, and as the library reads it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <storage/memory_stream.h>

#include "record_view.h"
#include "session.h"

namespace mqp::tool {

/// What the library reads.
template <class Object>
Object ReadObject(const std::vector<std::byte>& stored, int version) {
  host::MemoryStream stream(stored);
  Object object;
  object.ReadFromStream(&stream, version);
  return object;
}

/// What documents hold records of.
struct RecordKind {
  std::string_view name;           ///< "graph"; more of them end in an "s"
  std::string_view pathBeginning;  ///< of the streams that hold one: "Graphs/"
  RecordLayout layout;
  /// What the library writes of what it reads.
  std::vector<std::byte> (*rewrite)(const std::vector<std::byte>& stored, int version);
};

const RecordKind& GraphKind();
const RecordKind& EquationPlotKind();

/// The kind of record that a stream holds, told by its path; null for any other stream.
const RecordKind* FindKind(std::string_view path);

/// "1 graph", "2 graphs"
std::string CountOf(std::size_t count, const RecordKind& kind);

inline constexpr const char* kVersionHelp =
    "version of the document; it stands outside the records";

/// \throw Problem `Usage` when it is missing, or too old for any record of the kind to be stored
int RequireVersion(const std::optional<int>& version, const RecordKind& kind);

/// A value that the library reads otherwise than it is stored.
struct Correction {
  std::string name;  ///< "three strings [1]"
  StoredValue stored;
  StoredValue read;
};

/// One record. The views look into the bytes beside them; moving keeps these in place.
class StoredRecord {
 public:
  /// \param kind  outlives the record
  /// \param where "study.cfb > Graphs/Graph1", for errors
  StoredRecord(const RecordKind& kind, std::string where, std::vector<std::byte> stored,
               int version);
  StoredRecord(const StoredRecord&) = delete;
  StoredRecord& operator=(const StoredRecord&) = delete;
  StoredRecord(StoredRecord&&) = default;
  StoredRecord& operator=(StoredRecord&&) = default;

  /// What is wrong with the record, or nothing. The library itself reads every record; what is
  /// wrong is not handed to it, so that beside `Stored` everything below is empty.
  [[nodiscard]] std::optional<Problem> Check() const;

  [[nodiscard]] const RecordKind& Kind() const noexcept { return *m_kind; }
  [[nodiscard]] int Version() const noexcept { return m_version; }
  [[nodiscard]] const std::vector<std::byte>& StoredBytes() const noexcept { return m_stored; }
  /// The newest layout of what the library reads.
  [[nodiscard]] const std::vector<std::byte>& NewBytes() const noexcept { return m_new; }
  [[nodiscard]] const RecordView& Stored() const noexcept { return m_storedView; }
  [[nodiscard]] const RecordView& Values() const noexcept { return m_newView; }

  /// The fields that the version lacks, with the values that they get.
  [[nodiscard]] std::vector<const FieldView*> Defaulted() const;
  [[nodiscard]] std::vector<Correction> Corrections() const;

  /// The object that the library makes of the record.
  template <class Object>
  [[nodiscard]] Object Read() const {
    return ReadObject<Object>(m_stored, m_version);
  }

 private:
  /// A field of the newest layout beside its stored one, which is null when the version lacks it.
  struct FieldPair {
    const FieldView* read;
    const FieldView* stored;
  };
  [[nodiscard]] std::vector<FieldPair> PairFields() const;
  [[nodiscard]] std::string Advise() const;

  const RecordKind* m_kind;
  std::string m_where;
  int m_version;
  std::vector<std::byte> m_stored;
  std::vector<std::byte> m_new;
  RecordView m_storedView;
  RecordView m_newView;
};

}  // namespace mqp::tool
