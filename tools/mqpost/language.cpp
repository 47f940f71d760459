#include "language.h"

#include <algorithm>
#include <fstream>
#include <ostream>
#include <system_error>
#include <vector>

#include "choices.h"
#include "text.h"

namespace fs = std::filesystem;

namespace mqp::tool {
namespace {

std::vector<std::string> ListLanguages(const Environment& environment) {
  std::vector<std::string> languages;
  std::error_code ignored;
  for (const fs::path& folder : environment.localeFolders) {
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
      if (entry.path().extension() == ".mo") {
        languages.push_back(Utf8(entry.path().stem()));
      }
    }
  }
  std::ranges::sort(languages);
  const auto repeated = std::ranges::unique(languages);
  languages.erase(repeated.begin(), repeated.end());
  return languages;
}

bool IsPath(const std::string& wanted) {
  return wanted.ends_with(".mo") || wanted.find_first_of("/\\") != std::string::npos;
}

fs::path FindFile(const Environment& environment, const std::string& wanted) {
  if (IsPath(wanted)) {
    return PathOf(wanted);
  }
  std::error_code ignored;
  for (const fs::path& folder : environment.localeFolders) {
    const fs::path file = folder / PathOf(wanted + ".mo");
    if (fs::exists(file, ignored)) {
      return file;
    }
  }
  const std::vector<std::string> languages = ListLanguages(environment);
  const std::vector<std::string> nearest = FindNearest(wanted, languages);
  throw Problem(
      ExitCode::Usage,
      "There are no translations for " + Quoted(wanted) + "." +
          (!nearest.empty()    ? AskWhether(nearest)
           : languages.empty() ? " None are installed beside this program: name a FILE.mo."
                               : " Known are " + Join(languages, ", ") + ", and every FILE.mo."));
}

}  // namespace

Language::Language(Session& session, const std::optional<std::string>& wanted) {
  if (!wanted || *wanted == "en") {  // the built-in texts
    return;
  }
  m_file = FindFile(session.environment, *wanted);
  std::error_code ignored;
  const bool isFile = fs::is_regular_file(m_file, ignored);
  if (!isFile || !std::ifstream(m_file, std::ios::binary)) {
    throw Problem(ExitCode::FileTrouble,
                  Utf8(m_file) + ": " +
                      (isFile ? "The file cannot be opened." : "There is no such file.") +
                      " Name a compiled translation, a .mo file.");
  }
  const host::TranslationReport report = host::LoadTranslations(m_file);
  if (!report.error.empty()) {
    throw Problem(ExitCode::Damaged, report.error + ". Compile the translation again.");
  }
  if (report.translated == 0) {
    session.err << "note: " << Utf8(m_file) << " translates none of the texts\n";
  }
}

}  // namespace mqp::tool
