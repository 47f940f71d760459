/// \file
/// A library with a global object that asks the catalogue while the program is being loaded.
#pragma once

#include <mqPostCommon/platform/wide_string.h>

#include "mqearlycaller_export.h"

namespace mqp::test {

/// What the library answered then.
struct EarlyAnswers {
  int componentTotal = -1;
  int flag = -1;
  CString componentName;
  CString unitName;
  CString keyword;
};
MQEARLYCALLER_EXPORT const EarlyAnswers& AnswersBeforeMain();

}  // namespace mqp::test
