/// \file
/// Text is UTF-16 code units on every platform. `wchar_t` has 16 bits on Windows and 32 on
/// Linux, so the code unit type and its literals go through the two names defined here.
#pragma once

#include <string_view>

#if defined(_WIN32)
using mqChar = wchar_t;
#define MQ_TEXT_CONCATENATE(literal) L##literal
#else
using mqChar = char16_t;
#define MQ_TEXT_CONCATENATE(literal) u##literal
#endif

/// A literal of UTF-16 code units: `MQ_TEXT("mm")`.
#define MQ_TEXT(literal) MQ_TEXT_CONCATENATE(literal)

static_assert(sizeof(mqChar) == 2, "text is UTF-16 code units");

/// A view of UTF-16 code units that somebody else owns.
using mqTextView = std::basic_string_view<mqChar>;
