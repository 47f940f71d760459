/// \file
/// The bytes of a stream record, field by field, for any record whose fields are known.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include <mqPostCommon/mqPostCommon.h>

namespace mqp::tool {

using Bytes = std::span<const std::byte>;

/// A text is kept as it is stored, zero units included.
using StoredValue = std::variant<int, double, std::basic_string<mqChar>>;

/// One of the values of a field, and the bytes that it takes.
struct ValueView {
  std::size_t offset;
  Bytes bytes;
  StoredValue value;
};

struct FieldView {
  RecordField field;
  std::string name;                  ///< in a child record with that in front: "variable 0: name"
  std::optional<std::size_t> child;  ///< which child record has the field
  std::vector<ValueView> values;
};

/// Where the bytes stop to be a record.
struct RecordFault {
  std::string field;
  std::size_t offset;
  std::string what;
};

/// The fields of a kind of record, in order.
struct RecordLayout {
  std::vector<RecordField> fields;
  /// Those of each child record, when there are any: then the last one of `fields` is an integer
  /// that counts the children, and these follow it.
  std::vector<RecordField> childFields;
  std::string_view childName;  ///< "variable"
};

/// A record holds at most this many children.
inline constexpr int kMaximumChildCount = 65536;

/// A record of one version as far as it can be decoded. It looks into the bytes it was made from
/// and must not outlive them.
struct RecordView {
  std::vector<FieldView> fields;  ///< those that the version has
  std::size_t end = 0;            ///< behind the last byte that was decoded
  std::size_t leftover = 0;       ///< bytes behind it; not counted when there is a fault
  std::optional<RecordFault> fault;

  [[nodiscard]] bool Fits() const noexcept { return !fault && leftover == 0; }
};

/// The memory that this takes is a multiple of the bytes, whatever a count in them claims.
RecordView ViewRecord(Bytes bytes, const RecordLayout& layout, int version);

/// The field of that name, or null.
const FieldView* FindField(const RecordView& record, std::string_view name);

/// Versions from `first` to `last` share one layout.
struct VersionRange {
  int first;
  std::optional<int> last;  ///< nothing: and later
};

/// Those whose layout the bytes fit exactly.
std::vector<VersionRange> FindFittingVersions(Bytes bytes, const RecordLayout& layout);

int FirstVersion(const RecordLayout& layout);

/// For people; a text in quotation marks, cut to `columns` when these are above 0.
std::string ShowValue(const StoredValue& value, int columns);
std::string ShowValues(const FieldView& field, int columns);

/// "name", or "name [2]" for one of several values.
std::string NameValue(const FieldView& field, std::size_t index);

std::string_view NameType(FieldType type);

}  // namespace mqp::tool
