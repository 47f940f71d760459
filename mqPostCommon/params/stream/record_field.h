/// \file
/// How a stream record is laid out, for those who show or explain one. A record is a plain
/// sequence of its fields without tags, lengths or padding; a record of an older document lacks
/// the fields that were added since.
#pragma once

#include <string_view>

namespace mqp {

enum class FieldType {
  Integer,  ///< 4 bytes, signed, little-endian
  Double,   ///< 8 bytes, IEEE 754 binary64, little-endian
  String,   ///< a string record
};

/// One field of a record: `count` values of one type, one behind the other.
struct RecordField {
  std::string_view name;  ///< lives as long as the library is loaded
  FieldType type;
  int count;
  int since;  ///< the first document version whose records have the field
};

/// The first document version that has the newest layout of every record. Documents of later
/// versions may hold more than this library knows.
inline constexpr int kNewestRecordVersion = 890110;

}  // namespace mqp
