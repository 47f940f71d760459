#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>
#include <vector>

#include <gtest/gtest.h>
#include <storage/atomic_file.h>

#include "platform/make_pipe.h"

namespace fs = std::filesystem;

namespace mqp::host {
namespace {

/// A folder of its own for each test.
class AtomicFiles : public testing::Test {
 protected:
  void SetUp() override {
    m_folder = fs::temp_directory_path() / ("mq-atomic-" + std::to_string(std::random_device()()));
    fs::create_directories(m_folder);
  }
  void TearDown() override {
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
  }

  [[nodiscard]] fs::path File(const std::string& name) const { return m_folder / name; }
  [[nodiscard]] bool IsEmpty() const { return fs::is_empty(m_folder); }

 private:
  fs::path m_folder;
};

void WriteText(const fs::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

std::string ReadText(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

TEST_F(AtomicFiles, ATemporaryFileHasANameOfItsOwnBesideItsTarget) {
  const fs::path target = File("study.cfb");
  const TemporaryFile first(target);
  const TemporaryFile second(target);
  EXPECT_EQ(first.Path().parent_path(), target.parent_path());
  EXPECT_TRUE(first.Path().filename().string().starts_with("study.cfb."));
  EXPECT_NE(first.Path(), target);
  EXPECT_NE(first.Path(), second.Path());
  EXPECT_TRUE(IsEmpty());
}

TEST_F(AtomicFiles, ATargetThatIsAPipeStaysOne) {
  if (!test::MakePipe(File("pipe"))) {
    GTEST_SKIP() << "no pipe in the file system here";
  }
  const std::byte byte{1};
  EXPECT_THROW(WriteAtomically(File("pipe"), {&byte, 1}), std::system_error);
  EXPECT_TRUE(fs::is_fifo(File("pipe")));
  fs::remove(File("pipe"));
  EXPECT_TRUE(IsEmpty());
}

TEST_F(AtomicFiles, ATemporaryFileIsRemovedInTheEnd) {
  {
    const TemporaryFile temporary(File("study.cfb"));
    WriteText(temporary.Path(), "new");
    EXPECT_FALSE(IsEmpty());
  }
  EXPECT_TRUE(IsEmpty());
}

TEST_F(AtomicFiles, ATemporaryFileThatWasRenamedStays) {
  {
    const TemporaryFile temporary(File("study.cfb"));
    WriteText(temporary.Path(), "new");
    fs::rename(temporary.Path(), File("study.cfb"));
  }
  EXPECT_EQ(ReadText(File("study.cfb")), "new");
}

TEST_F(AtomicFiles, ATargetWithoutAFolderHasItsTemporaryFileWhereTheProgramRuns) {
  const TemporaryFile temporary("study.cfb");
  EXPECT_EQ(temporary.Path().parent_path(), fs::path());
  EXPECT_TRUE(temporary.Path().string().starts_with("study.cfb."));
}

}  // namespace
}  // namespace mqp::host
