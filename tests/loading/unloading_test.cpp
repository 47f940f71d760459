// The library comes and goes without a trace. This program is not linked with it.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include <mqPostCommon/platform/text.h>
#include <mqPostCommon/platform/wide_string.h>

#include "loading/shared_library.h"
#include "platform/print_text.h"

namespace mqp::test {
namespace {

const std::string kLibrary = MQ_LIBRARY_FILE;
const std::string kStringTable = MQ_STRING_TABLE_FILE;

// Exported names; both compilers make them by the same rules.
constexpr const char* kGetComponentTotal = "_Z30vekPostCommonGetComponentTotaliiiiiiiii";
constexpr const char* kGetResultName = "_Z26vekPostCommonGetResultNamei";
constexpr const char* kGetFlag = "_Z34vekPostCommonGetActualFreqDispFlagv";
constexpr const char* kSetFlag = "_Z34vekPostCommonSetActualFreqDispFlagi";

/// Loads the library, uses it as a host does, leaves a mark in its one state, and lets it go.
void LoadUseAndUnload() {
  const SharedLibrary library(kLibrary);
  ASSERT_TRUE(library.IsLoaded());
  const auto total =
      library.Find<int(int, int, int, int, int, int, int, int, int)>(kGetComponentTotal);
  const auto resultName = library.Find<CString(int)>(kGetResultName);
  const auto getFlag = library.Find<int()>(kGetFlag);
  const auto setFlag = library.Find<void(int)>(kSetFlag);
  ASSERT_TRUE(total && resultName && getFlag && setFlag);
  EXPECT_EQ(getFlag(), 0) << "of a library that has just been loaded";
  EXPECT_EQ(total(0, 2, 0, 0, 0, 0, 0, 0, 0), 12);
  EXPECT_EQ(resultName(2), MQ_TEXT("Stress"));
  setFlag(7);
}

TEST(TheLibrary, IsGoneFromMemoryAfterEachOfAThousandLoadsWithoutGrowth) {
  constexpr int kLoads = 1000;
  constexpr int kWarmUp = 100;  // the loader and the allocator keep what they have once had
  // Some bytes a load; a page of the library that stayed would be 4096.
  constexpr std::size_t kAllowedGrowth = std::size_t{16} * 1024;
  constexpr std::size_t kAllowedResidentGrowth = std::size_t{512} * 1024;
  ASSERT_FALSE(IsMapped(kLibrary)) << "before the first load";
  Resources before;
  for (int load = 0; load < kLoads + kWarmUp && !HasFailure(); ++load) {
    if (load == kWarmUp) {
      before = UsedResources();
    }
    SCOPED_TRACE(load);
    LoadUseAndUnload();
    EXPECT_FALSE(IsMapped(kLibrary));
    EXPECT_FALSE(IsMapped(kStringTable));
  }
  if (HasFailure()) {
    return;
  }
  const Resources after = UsedResources();
  EXPECT_LE(after.allocated, before.allocated + kAllowedGrowth);
  EXPECT_LE(after.resident, before.resident + kAllowedResidentGrowth);
  EXPECT_EQ(after.handles, before.handles);
  RecordProperty("cases", kLoads);
  RecordProperty("allocated",
                 std::to_string(before.allocated) + " to " + std::to_string(after.allocated));
  RecordProperty("resident",
                 std::to_string(before.resident) + " to " + std::to_string(after.resident));
}

TEST(TheLibrary, StaysWhileOneOfTwoUsersHoldsIt) {
  const SharedLibrary first(kLibrary);
  {
    const SharedLibrary second(kLibrary);
    EXPECT_TRUE(IsMapped(kLibrary));
  }
  EXPECT_TRUE(IsMapped(kLibrary));
  EXPECT_NE(first.Find<int()>(kGetFlag), nullptr);
  RecordProperty("cases", 1);
}

}  // namespace
}  // namespace mqp::test
