// Command lines of the tool and the files that it reads: points of a curve, components, documents,
// translations. The input is a line for each word, an empty line, and the file, which has the names
// "file" and "xx.mo". Whatever the words, the file stays as it is, nothing half-written stays
// behind, and what claims to be JSON is.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "input.h"
#include "tool_run.h"

namespace mqp::fuzz {
namespace {

constexpr std::size_t kMostWords = 16;

/// No file but those in the working folder can be named: slashes stay in the names of streams
/// alone, whose document lies there, and the tool makes no folders.
std::string Confined(std::string word) {
  std::erase(word, '\0');
  if (!word.starts_with("file::")) {
    std::ranges::replace(word, '/', '|');
  }
  return word;
}

/// Takes the words off the front of the input, with the empty line behind them.
Words TakeWords(std::string_view& input) {
  Words words;
  while (!input.empty()) {
    const std::string_view line = input.substr(0, input.find('\n'));
    input.remove_prefix(std::min(line.size() + 1, input.size()));
    if (line.empty()) {
      break;
    }
    if (words.size() < kMostWords) {
      words.push_back(Confined(std::string(line)));
    }
  }
  return words;
}

bool Has(const Words& words, std::string_view word) {
  return std::ranges::find(words, word) != words.end();
}

/// Whether results go out as JSON, as far as the words alone tell.
bool AsksForJson(const Words& words) {
  const auto isHelp = [](const std::string& word) {
    return word.starts_with("-h") || word.starts_with("--h") || word == "help" ||
           word == "--version";
  };
  return Has(words, "--json") && !Has(words, "--") && std::ranges::none_of(words, isHelp);
}

/// A message for people has nothing in it that only a programmer knows, unless it quotes that.
void CheckMessage(const std::string& message, const Words& words, std::string_view content) {
  constexpr std::array<std::string_view, 6> kInternal = {"exception.", "std::", "basic_",
                                                         "vector::",   "_M_",   "bad_"};
  for (const std::string_view mark : kInternal) {
    const auto hasMark = [mark](const std::string& word) { return Contains(word, mark); };
    Require(
        !Contains(message, mark) || Contains(content, mark) || std::ranges::any_of(words, hasMark),
        message);
  }
}

void CheckFolder(const Folder& folder, const Words& words, std::string_view content) {
  Require(ReadFile("file") == content, "the file that is read stays as it is");
  std::set<std::string> names = folder.Names();
  names.erase("file");
  names.erase("xx.mo");
  Require(names.size() <= 1, "one file is written at most");
  for (const std::string& name : names) {
    const auto isOf = [&name](const std::string& word) { return word.ends_with(name); };
    Require(std::ranges::any_of(words, isOf), "no file is written but the one that is named");
  }
}

tool::Environment AnyEnvironment(std::string_view input) {
  const int last = input.empty() ? 0 : static_cast<unsigned char>(input.back());
  tool::Environment environment;
  environment.isTerminal = last % 2 == 1;
  environment.width = environment.isTerminal ? last : 0;
  environment.isColorless = last % 4 == 1;
  environment.localeFolders = {"."};
  return environment;
}

}  // namespace
}  // namespace mqp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mqp::fuzz;
  const std::string text(data, data + size);
  std::string_view content = text;
  const Words words = TakeWords(content);
  const Folder folder;
  WriteFile("file", content);
  fs::create_symlink("file", "xx.mo");
  const Outcome outcome = RunTool(words, AnyEnvironment(text));
  CheckMessage(outcome.err, words, content);
  CheckFolder(folder, words, content);
  if (outcome.code < 2 && !outcome.out.empty() && AsksForJson(words)) {
    static_cast<void>(ParseAnswer(outcome));
  }
  return 0;
}
