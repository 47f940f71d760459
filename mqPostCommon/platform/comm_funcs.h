/// \file
/// What the common-functions library `mqCommFuncs` supplies. Declarations only: the library
/// calls them through the dynamic symbols, so a production `mqCommFuncs`, and on Linux an
/// executable that defines `mqpLoadString` itself, takes the stand-in's place without a rebuild.
#pragma once

#include <mqPostCommon/platform/integers.h>
#include <mqPostCommon/platform/wide_string.h>

#if defined(_WIN32)
#if defined(MQCOMMFUNCS_BUILD)
#define MQCOMMFUNCS_API __declspec(dllexport)
#else
#define MQCOMMFUNCS_API __declspec(dllimport)
#endif
#else
#define MQCOMMFUNCS_API __attribute__((visibility("default")))
#endif

/// Loads the display text of a string-table id.
/// \param text receives the text in the language of the string table; emptied for an unknown id
/// \param id   the `StringId`
/// \return 1 when the table holds the id, 0 otherwise
MQCOMMFUNCS_API int mqpLoadString(CString& text, UINT id);

/// Widens a narrow string.
/// \param narrow zero-terminated UTF-8; null counts as empty, an invalid byte becomes U+FFFD
/// \param wide   receives the UTF-16 code units
MQCOMMFUNCS_API void CharToCString(const char* narrow, CString& wide);

/// Copies a string into an array of unsigned 16-bit units, without a terminator.
/// \param text     the string; at most `capacity` of its code units are copied
/// \param units    the array, owned by the caller
/// \param capacity its length in units
/// \return the number of units copied
MQCOMMFUNCS_API int STRING2LPUSHORT(const CString& text, unsigned short* units, int capacity);
