// Prints the translation template of the built-in texts, or compares a file with it: the
// template is derived from the table and never edited.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>

#include "../texts/all_texts.h"

namespace {

using mqp::host::kTextGroups;
using mqp::host::TextGroup;
using mqp::host::TextRow;

/// The date is fixed, so that the same texts always give the same template; msgfmt wants one.
constexpr std::string_view kHeader =
    R"(# Texts of the host's string table; mqWriteTemplate prints their template.
msgid ""
msgstr ""
"Project-Id-Version: mqCommFuncs\n"
"PO-Revision-Date: 2026-01-01 00:00+0000\n"
"Last-Translator: none\n"
"Language-Team: none\n"
"Language: \n"
"MIME-Version: 1.0\n"
"Content-Type: text/plain; charset=UTF-8\n"
"Content-Transfer-Encoding: 8bit\n"
)";

/// The texts are printable ASCII, so that each unit is a character of the template.
std::string Narrow(mqTextView text) {
  std::string narrow;
  std::ranges::transform(text, std::back_inserter(narrow),
                         [](mqChar unit) { return static_cast<char>(unit); });
  return narrow;
}

std::string WriteTemplate() {
  std::ostringstream out;
  out << kHeader;
  for (const TextGroup& group : kTextGroups) {
    for (const TextRow& row : group.rows) {
      out << "\n#. " << group.name << "\nmsgctxt \"" << row.id << "\"\nmsgid \"" << Narrow(row.text)
          << "\"\nmsgstr \"\"\n";
    }
  }
  return std::move(out).str();
}

/// Says on the error stream where a file first differs from the template.
bool IsCurrent(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) {
    std::cerr << file << ": cannot be opened\n";
    return false;
  }
  std::istringstream expected(WriteTemplate());
  std::string have;
  std::string want;
  for (int line = 1;; ++line) {
    const bool hasLine = static_cast<bool>(std::getline(stream, have));
    const bool wantsLine = static_cast<bool>(std::getline(expected, want));
    if (!hasLine && !wantsLine) {
      return true;
    }
    if (hasLine != wantsLine || have != want) {
      std::cerr << file << ":" << line << ": not the template of today's texts\n  expected: "
                << (wantsLine ? want : "end of file")
                << "\n  got:      " << (hasLine ? have : "end of file")
                << "\nrun the target mqUpdateTranslations\n";
      return false;
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 2) {
    std::cerr << "usage: mqWriteTemplate           prints the template\n"
                 "       mqWriteTemplate <file>    compares a file with it\n";
    return 2;
  }
  if (argc == 2) {
    return IsCurrent(argv[1]) ? 0 : 1;
  }
  std::cout << WriteTemplate();
  return 0;
}
