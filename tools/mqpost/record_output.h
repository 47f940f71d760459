/// \file
/// Records on the screen and as JSON.
#pragma once

#include <string>

#include "json_output.h"
#include "record_view.h"
#include "session.h"
#include "stored_record.h"

namespace mqp::tool {

/// The stored bytes with their fields, as far as they are a record.
void PrintBytes(Session& session, const RecordView& stored);
Json BytesToJson(const RecordView& stored);

/// A number or text; numbers that JSON lacks as "nan", "inf" and "-inf".
Json ValueToJson(const StoredValue& value);
/// A field of one value as that value, of several as a list.
Json FieldToJson(const FieldView& field);
/// Every field by its name. Child records are a list, which takes the place of their counter and
/// has the name of one child and an "s".
Json ValuesToJson(const StoredRecord& record);
/// By name, what is stored and what the library reads.
Json CorrectionsToJson(const StoredRecord& record);

/// "Y axis component: 12 -> 13"
std::string ShowCorrection(const Correction& correction);

}  // namespace mqp::tool
