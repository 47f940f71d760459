/// \file
/// The string record that every class with text writes into a stream:
///
///     string := count characters
///     count  := 4 bytes, signed, little-endian; UTF-16 code units, at most 1024
///     characters := 2 x count bytes, little-endian, without a terminator
///
/// When memory runs out reading throws `std::bad_alloc` behind the record; the text is as it was.
#pragma once

#include <mqPostCommon/export.h>
#include <mqPostCommon/platform/stream.h>
#include <mqPostCommon/platform/wide_string.h>

namespace mqp {

/// A string record holds at most this many code units; a longer text is cut when it is written.
inline constexpr int kMaximumStringRecordLength = 1024;

}  // namespace mqp

/// Writes a string record. What the stream answers is not looked at.
/// \param stream the stream, owned by the caller
/// \param text   the text; left as it is
/// \return 1; 0 when either pointer is null, with nothing written
MQPOSTCOMMON_API int CStringWriteToStream(IStream* stream, CString* text);

/// Reads a string record. A zero unit ends the text early; all units are consumed all the same. Of
/// a record that claims more than 1024 units the first 1024 are read; the rest stays in the stream.
/// \param stream the stream, owned by the caller
/// \param text   receives the text; keeps its value when the count is 0 or less, as it is when
///               nothing of it could be read. So an empty text does not come back
/// \return 1; 0 when either pointer is null or the count is 0 or less
MQPOSTCOMMON_API int CStringReadFromStream(IStream* stream, CString* text);
