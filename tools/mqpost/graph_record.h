/// \file
/// A graph as a document stores it, and as the library reads it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "json_output.h"
#include "record_view.h"
#include "session.h"

namespace mqp::tool {

/// Graphs lie in streams under this storage.
inline constexpr std::string_view kGraphFolder = "Graphs/";

inline constexpr const char* kVersionHelp =
    "version of the document; it stands outside the records";

/// \throw Problem `Usage` when it is missing, or too old for any graph to be stored
int RequireVersion(const std::optional<int>& version);

/// A value that the library reads otherwise than it is stored.
struct Correction {
  std::string name;  ///< "three strings [1]"
  StoredValue stored;
  StoredValue read;
};

/// One graph record. The views look into the bytes beside them; moving keeps these in place.
class GraphRecord {
 public:
  /// \param where "study.cfb > Graphs/Graph1", for errors
  GraphRecord(std::string where, std::vector<std::byte> stored, int version);
  GraphRecord(const GraphRecord&) = delete;
  GraphRecord& operator=(const GraphRecord&) = delete;
  GraphRecord(GraphRecord&&) = default;
  GraphRecord& operator=(GraphRecord&&) = default;

  /// What is wrong with the record, or nothing. The library itself reads every record.
  [[nodiscard]] std::optional<Problem> Check() const;

  [[nodiscard]] const std::vector<std::byte>& StoredBytes() const noexcept { return m_stored; }
  /// The newest layout of what the library reads.
  [[nodiscard]] const std::vector<std::byte>& NewBytes() const noexcept { return m_new; }
  [[nodiscard]] const RecordView& Stored() const noexcept { return m_storedView; }
  [[nodiscard]] const RecordView& Values() const noexcept { return m_newView; }
  [[nodiscard]] const CmqPostGraphParam& Graph() const noexcept { return m_graph; }

  /// The fields that the version lacks, with the values that they get.
  [[nodiscard]] std::vector<const FieldView*> Defaulted() const;
  [[nodiscard]] std::vector<Correction> Corrections() const;

 private:
  std::string m_where;
  int m_version;
  std::vector<std::byte> m_stored;
  std::vector<std::byte> m_new;
  CmqPostGraphParam m_graph;
  RecordView m_storedView;
  RecordView m_newView;
};

/// What the library writes for a graph.
std::vector<std::byte> WriteGraph(const CmqPostGraphParam& graph);

/// A number or text; numbers that JSON lacks as "nan", "inf" and "-inf".
Json ValueToJson(const StoredValue& value);
/// A field of one value as that value, of several as a list.
Json FieldToJson(const FieldView& field);
/// By name, what is stored and what the library reads.
Json CorrectionsToJson(const GraphRecord& record);

}  // namespace mqp::tool
