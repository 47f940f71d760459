/// \file
/// The integer names of the host's framework where the platform does not bring them.
#pragma once

#include <cstdint>

using UINT = unsigned int;

#if !defined(_WIN32)
using __int64 = long long;  // NOLINT(bugprone-reserved-identifier): the framework's name
#endif

static_assert(sizeof(int) == 4 && sizeof(UINT) == 4 && sizeof(__int64) == 8);
