/// \file
/// The string table in use, as the parts of this library share it.
#pragma once

#include <optional>
#include <span>
#include <string>

#include <mqPostCommon/platform/integers.h>
#include <mqPostCommon/platform/text.h>

namespace mqp::host {

/// A text that stands in place of the built-in one.
struct Translation {
  UINT id;
  std::basic_string<mqChar> text;
};

/// The built-in English text of an id.
std::optional<mqTextView> FindBuiltInText(UINT id) noexcept;

/// Uses the built-in texts with these in place of some, and nothing of what was laid over before.
void UseTranslations(std::span<const Translation> translations);

}  // namespace mqp::host
