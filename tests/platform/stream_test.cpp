#include <cstdint>

#include <gtest/gtest.h>
#include <mqPostCommon/platform/stream.h>

namespace {

TEST(Stream, ResultCodesHaveTheValuesOfCompoundDocuments) {
  struct Row {
    const char* name;
    HRESULT code;
    std::uint32_t expected;
  };
  // clang-format off
  const Row kRows[] = {
      {"S_OK",                S_OK,                0x00000000},
      {"S_FALSE",             S_FALSE,             0x00000001},
      {"E_POINTER",           E_POINTER,           0x80004003},
      {"E_FAIL",              E_FAIL,              0x80004005},
      {"STG_E_ACCESSDENIED",  STG_E_ACCESSDENIED,  0x80030005},
  };
  // clang-format on
  for (const Row& row : kRows) {
    EXPECT_EQ(static_cast<std::uint32_t>(row.code), row.expected) << row.name;
  }
}

}  // namespace
