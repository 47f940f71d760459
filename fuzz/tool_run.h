/// \file
/// Running the tool in a folder of its own, and what is promised of every run.
#pragma once

#include <stdlib.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <nlohmann/json.hpp>
#include <mqpost/run.h>

#include "input.h"

namespace mqp::fuzz {

namespace fs = std::filesystem;
using nlohmann::json;
using Words = std::vector<std::string>;

/// A new folder, the working folder of the process while the object lives. Names without a slash
/// lie in it.
class Folder {
 public:
  Folder() : m_before(fs::current_path()) {
    std::string name = (fs::temp_directory_path() / "mqfuzz-XXXXXX").string();
    Require(mkdtemp(name.data()) != nullptr, "a temporary folder can be made");
    m_folder = name;
    fs::current_path(m_folder);
  }
  ~Folder() {
    std::error_code ignored;
    fs::current_path(m_before, ignored);
    fs::remove_all(m_folder, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  [[nodiscard]] std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_folder)) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }

 private:
  fs::path m_before;
  fs::path m_folder;
};

inline void WriteFile(const std::string& name, std::string_view bytes) {
  std::ofstream(name, std::ios::binary).write(bytes.data(), std::ssize(bytes));
}
inline std::string ReadFile(const std::string& name) {
  std::ifstream stream(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

struct Outcome {
  int code;
  std::string out;
  std::string err;
};

inline Outcome RunTool(const Words& words, const tool::Environment& environment = {}) {
  std::ostringstream out;
  std::ostringstream err;
  const int code = tool::Run(words, out, err, environment);
  Require(code >= 0 && code <= 5, "an exit code that is documented");
  Require(code < 2 || err.str().starts_with("mqpost: ") || Contains(err.str(), "\nmqpost: "),
          "a run that fails says why");
  Require(code != 2 || out.str().empty(), "a command line that is not understood prints nothing");
  return {code, out.str(), err.str()};
}

/// What `--json` answers.
inline json ParseAnswer(const Outcome& outcome) {
  json answer = json::parse(outcome.out, nullptr, false);
  Require(answer.is_object() && answer.value("schema", 0) == 1, "JSON of the known schema");
  return answer;
}

}  // namespace mqp::fuzz
