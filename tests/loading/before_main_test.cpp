#include <gtest/gtest.h>

#include <mqPostCommon/platform/text.h>

#include "loading/early_caller.h"
#include "platform/print_text.h"

namespace mqp::test {
namespace {

// Read before any test runs, so that the answers can only come from the load.
const EarlyAnswers& answers = AnswersBeforeMain();

TEST(AGlobalOfAnotherLibrary, GetsTheLibrarysAnswersBeforeMain) {
  EXPECT_EQ(answers.componentTotal, 12);
  EXPECT_EQ(answers.flag, 0);
  EXPECT_EQ(answers.componentName, MQ_TEXT("DX: displacement along X"));
  EXPECT_EQ(answers.unitName, MQ_TEXT("psi"));
  EXPECT_EQ(answers.keyword, MQ_TEXT("EX"));
  RecordProperty("cases", 5);
}

}  // namespace
}  // namespace mqp::test
