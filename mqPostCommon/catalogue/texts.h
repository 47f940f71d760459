// What the catalogue and its callers do with display texts.
#pragma once

#include <mqPostCommon/catalogue/name_ids.h>
#include <mqPostCommon/platform/comm_funcs.h>
#include <mqPostCommon/platform/integers.h>
#include <mqPostCommon/platform/wide_string.h>

namespace mqp {

/// A text of the string table; empty for an unknown id, and without asking for `kNoName`.
inline CString LoadText(UINT id) {
  CString text;
  if (id != kNoName) {
    mqpLoadString(text, id);
  }
  return text;
}

/// The part of a longer text by which names are compared and columns titled: its first six code
/// units, cut before a colon and then before a blank that do not stand in front. It lies in the
/// text.
mqTextView KeyOf(mqTextView text) noexcept;

}  // namespace mqp
