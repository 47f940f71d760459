/// \file
/// The string table of the stand-alone host, behind `mqpLoadString`: built-in English texts and
/// translations laid over them. One table a process; not to be changed while another thread loads
/// texts.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <mqPostCommon/platform/comm_funcs.h>

namespace mqp::host {

/// One text of the built-in table.
struct StringTableEntry {
  UINT id;
  mqTextView text;  ///< lives as long as the library is loaded
};

/// What became of a translation file. The counts are 0 when there is an error.
struct TranslationReport {
  std::string error;     ///< empty when the file was loaded; otherwise what is wrong with it
  int translated = 0;    ///< texts taken from the file
  int untranslated = 0;  ///< texts that stay English because the file lacks them, has them empty,
                         ///< or translates another English text than the table holds
};

/// Every built-in text in order of the ids.
MQCOMMFUNCS_API std::vector<StringTableEntry> BuiltInTexts();

/// Lays the translations of a compiled gettext file (.mo) over the built-in texts, in place of
/// any that were loaded before. Messages have the id in decimal as their context and the English
/// text as their key; texts are UTF-8. A file that cannot be read, is damaged or has more than
/// 16 MiB changes nothing.
MQCOMMFUNCS_API TranslationReport LoadTranslations(const std::filesystem::path& file);

/// Replaces one text, of a known or a new id, until `UseBuiltInTexts` or the next translation.
MQCOMMFUNCS_API void ReplaceText(UINT id, const CString& text);

/// Goes back to the built-in English texts.
MQCOMMFUNCS_API void UseBuiltInTexts();

/// How many times `mqpLoadString` was asked for an id that the table lacks.
MQCOMMFUNCS_API int CountMissingIds() noexcept;

}  // namespace mqp::host
