/// \file
/// The language of the texts, and the other settings of the process that a verb changes for
/// itself alone.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <mqCommFuncs/string_table.h>

#include "session.h"

namespace mqp::tool {

/// Loads translations while it lives; the built-in texts are used again afterwards.
class Language {
 public:
  /// \param wanted a language with a file in one of the locale folders, or the path of a `.mo`
  ///               file; nothing for the built-in English texts
  /// \throw Problem `Usage` for an unknown language, `FileTrouble`, `Damaged`
  Language(Session& session, const std::optional<std::string>& wanted);
  ~Language() { host::UseBuiltInTexts(); }
  Language(const Language&) = delete;
  Language& operator=(const Language&) = delete;

  /// The file in use; empty without one.
  [[nodiscard]] const std::filesystem::path& File() const noexcept { return m_file; }

 private:
  std::filesystem::path m_file;
};

inline constexpr const char* kLanguageHelp = "texts in this language, or those of a FILE.mo";

}  // namespace mqp::tool
