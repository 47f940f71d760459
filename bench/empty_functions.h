/// \file
/// Functions with the signatures of the library's, which answer at once, or with one load.
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

/// Totals in an array by study, result, mesh kind and option, none of which is checked.
MQ_EMPTY_API int DenseTotal(int analysisType, int resultType, int, int meshKind, int, int, int,
                            int option, int) noexcept;
MQ_EMPTY_API unsigned char& DenseCell(int analysisType, int resultType, int meshKind,
                                      int option) noexcept;

}  // namespace mqp::bench
