/// \file
/// Functions with the signatures of the library's, which answer at once.
#pragma once

#include <mqPostCommon/platform/wide_string.h>

#define MQ_EMPTY_API __attribute__((visibility("default")))

namespace mqp::bench {

MQ_EMPTY_API int EmptyTotal(int, int, int, int, int, int, int, int, int) noexcept;
MQ_EMPTY_API int EmptyDataType(int, int, int, int*, int) noexcept;
MQ_EMPTY_API int EmptyDefault(int, int, int, int, int) noexcept;
MQ_EMPTY_API int EmptyQuery(int, int, int, int) noexcept;
MQ_EMPTY_API int EmptyUnitType(int, int, int, int, int) noexcept;
MQ_EMPTY_API int EmptyUnitDefault(int, int, int, int, int, int) noexcept;
MQ_EMPTY_API void EmptyDirection(int, int, int, int, float*) noexcept;
MQ_EMPTY_API CString EmptyName(int, int, int, int, int, int);
MQ_EMPTY_API CString EmptyUnitName(int, int);
MQ_EMPTY_API int EmptyLookup(int, int, int, CString, int);

}  // namespace mqp::bench
