/// \file
/// The rows of the built-in string table.
#pragma once

#include <span>
#include <string_view>

#include <mqPostCommon/platform/integers.h>
#include <mqPostCommon/platform/text.h>

namespace mqp::host {

/// One English text and its id: printable ASCII without quotation marks and backslashes, so that
/// it can stand in a translation template as it is.
struct TextRow {
  UINT id;
  mqTextView text;
};

/// Rows that belong together; the name tells translators what the texts are for.
struct TextGroup {
  std::string_view name;
  std::span<const TextRow> rows;
};

}  // namespace mqp::host
