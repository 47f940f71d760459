// What the tests of the tool share: running it, looking into its JSON, and documents made for a
// test.
#pragma once

#include <atomic>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>
#include <gtest/gtest.h>
#include <mqpost/run.h>
#include <mqpost/text.h>
#include <storage/compound_document.h>

namespace mqp::test {

using nlohmann::json;
using ByteString = std::vector<std::byte>;
namespace fs = std::filesystem;

struct Outcome {
  int code;
  std::string out;
  std::string err;
};

inline std::ostream& operator<<(std::ostream& stream, const Outcome& outcome) {
  return stream << "exit code " << outcome.code << "\nout: " << outcome.out
                << "\nerr: " << outcome.err;
}

inline tool::Environment PipedEnvironment() {
  tool::Environment environment;
  environment.localeFolders = {MQ_TRANSLATIONS_FOLDER};
  return environment;
}

inline Outcome RunTool(const std::vector<std::string>& arguments,
                       const tool::Environment& environment = PipedEnvironment()) {
  std::ostringstream out;
  std::ostringstream err;
  const int code = tool::Run(arguments, out, err, environment);
  return {code, out.str(), err.str()};
}

/// What `--json` answers; the exit code is expected to be `code`.
inline json RunForJson(std::vector<std::string> arguments, int code = 0) {
  arguments.emplace_back("--json");
  const Outcome outcome = RunTool(arguments);
  EXPECT_EQ(outcome.code, code) << outcome;
  json answer = json::parse(outcome.out, nullptr, false);
  EXPECT_FALSE(answer.is_discarded()) << outcome;
  EXPECT_EQ(answer.value("schema", 0), 1) << outcome;
  return answer;
}

inline bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

/// A command line that cannot be understood or carried out, and a part of what is said of it.
struct UsageCase {
  std::vector<std::string> arguments;
  const char* said;
};

inline void ExpectUsageErrors(const std::vector<UsageCase>& cases) {
  for (const UsageCase& row : cases) {
    SCOPED_TRACE(json(row.arguments).dump());
    const Outcome outcome = RunTool(row.arguments);
    EXPECT_EQ(outcome.code, 2) << outcome;
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.starts_with("mqpost: ")) << outcome;
    EXPECT_TRUE(Contains(outcome.err, row.said)) << outcome;
  }
}

inline std::string Utf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

inline tool::Environment Terminal(int width) {
  tool::Environment environment = PipedEnvironment();
  environment.isTerminal = true;
  environment.width = width;
  return environment;
}

inline void ExpectNoLineWiderThan(int width, const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    EXPECT_LE(tool::CountColumns(line), width) << line;
    EXPECT_FALSE(line.ends_with(' ')) << line;
  }
}

inline fs::path Example(int version, const std::string& ending = ".cfb") {
  return fs::path(MQ_DOCUMENTS_FOLDER) / ("study_" + std::to_string(version) + ending);
}

inline ByteString ReadBytes(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  ByteString bytes;
  for (const char unit : text) {
    bytes.push_back(static_cast<std::byte>(unit));
  }
  return bytes;
}

inline void WriteBytes(const fs::path& file, const ByteString& bytes) {
  std::ofstream stream(file, std::ios::binary);
  for (const std::byte byte : bytes) {
    stream.put(static_cast<char>(byte));
  }
}

/// A folder of its own for one test, removed in the end.
class Folder {
 public:
  Folder() {
    static std::atomic<int> count = 0;
    const auto seed = static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed());
    do {
      m_path = fs::path(testing::TempDir()) /
               ("mqpost" + std::to_string(seed) + "." + std::to_string(++count));
    } while (!fs::create_directories(m_path));
  }
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  [[nodiscard]] fs::path operator/(const std::string& name) const { return m_path / name; }
  [[nodiscard]] std::string Name(const std::string& name) const { return Utf8(m_path / name); }
  /// The names in it, in order.
  [[nodiscard]] std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_path)) {
      names.push_back(Utf8(entry.path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  fs::path m_path;
};

/// The first graph of the newest example: 468 bytes.
inline ByteString NewestRecord() {
  return host::CompoundDocument(Example(890110)).ReadStream("Graphs/Graph1");
}

inline void WriteDocument(const fs::path& file, const std::string& stream,
                          const ByteString& record) {
  host::CompoundDocumentWriter writer(file);
  writer.AddStream(stream, record);
  writer.Commit();
}

inline void WriteGraphDocument(const fs::path& file, const ByteString& record) {
  WriteDocument(file, "Graphs/Graph1", record);
}

/// The equation plot of the newest example: 200 bytes, the number of its variables at byte 112.
inline ByteString EquationRecord() {
  return host::CompoundDocument(Example(890110)).ReadStream("Plots/EquationPlot1");
}

inline void WriteEquationDocument(const fs::path& file, const ByteString& record) {
  WriteDocument(file, "Plots/EquationPlot1", record);
}

inline ByteString FirstBytes(const ByteString& bytes, std::size_t count) {
  return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
}

inline ByteString Joined(ByteString left, std::initializer_list<int> right) {
  for (const int byte : right) {
    left.push_back(static_cast<std::byte>(byte));
  }
  return left;
}

}  // namespace mqp::test
