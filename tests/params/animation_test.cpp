#include <climits>
#include <memory>
#include <type_traits>

#include <gtest/gtest.h>
#include <mqPostCommon/params/animation.h>

#include "catalogue/catalogue_test_support.h"
#include "params/value_test_support.h"

namespace mqp::test {
namespace {

static_assert(std::has_virtual_destructor_v<CmqpAnimateParam>);

TEST(Animation, ANewAnimationHasFiveFrames) {
  CmqpAnimateParam expected;
  FillWithDistinctValues(expected, 7);
  expected.m_nHost1 = 0;
  expected.m_nFrames = 5;
  expected.m_nHost3 = 5;
  expected.m_nHost4 = 0;
  expected.m_nHost5 = 0;
  expected.m_strHost6 = MQ_TEXT("");
  expected.m_n64Host7 = 0;

  const CmqpAnimateParam animation;
  EXPECT_EQ(Differences(animation, LinesOf(expected)), "");
}

TEST(Animation, TheValuesOfThisTestTellTheMembersApart) {
  CmqpAnimateParam one;
  FillWithDistinctValues(one, 1);
  CmqpAnimateParam other;
  EXPECT_EQ(LinesOf(one).size(), 7U);
  EXPECT_EQ(Undistinguished(LinesOf(one), LinesOf(other)), "");
  FillWithDistinctValues(other, 2);
  EXPECT_EQ(Undistinguished(LinesOf(one), LinesOf(other)), "");
}

TEST(Animation, ACopyHasEveryMemberOfItsSource) {
  CmqpAnimateParam source;
  FillWithDistinctValues(source, 1);
  const MemberLines expected = LinesOf(source);

  const CmqpAnimateParam copy(source);
  EXPECT_EQ(Differences(copy, expected), "");
  EXPECT_EQ(Differences(source, expected), "");
  const CmqpAnimateParam moved(AsTemporary(source));
  EXPECT_EQ(Differences(moved, expected), "");
}

TEST(Animation, AnAssignedAnimationHasEveryMemberOfItsSource) {
  CmqpAnimateParam source;
  FillWithDistinctValues(source, 1);
  const MemberLines expected = LinesOf(source);
  CmqpAnimateParam target;
  FillWithDistinctValues(target, 2);

  CmqpAnimateParam& result = target = source;
  EXPECT_EQ(&result, &target);
  EXPECT_EQ(Differences(target, expected), "");
  EXPECT_EQ(Differences(source, expected), "");
}

TEST(Animation, AssigningANewAnimationEmptiesTheString) {
  CmqpAnimateParam target;
  FillWithDistinctValues(target, 1);
  target = CmqpAnimateParam();
  EXPECT_EQ(Differences(target, LinesOf(CmqpAnimateParam())), "");
  EXPECT_TRUE(target.m_strHost6.IsEmpty());
}

TEST(Animation, CopiesAreIndependentOfTheirSource) {
  auto source = std::make_unique<CmqpAnimateParam>();
  FillWithDistinctValues(*source, 1);
  const MemberLines expected = LinesOf(*source);
  const CmqpAnimateParam copy(*source);
  CmqpAnimateParam assigned;
  assigned = *source;

  FillWithDistinctValues(*source, 3);
  EXPECT_EQ(Differences(copy, expected), "");
  EXPECT_EQ(Differences(assigned, expected), "");
  source.reset();
  EXPECT_EQ(Differences(copy, expected), "");
  EXPECT_EQ(Differences(assigned, expected), "");
}

TEST(Animation, AnAnimationAssignedToItselfStaysAsItIs) {
  CmqpAnimateParam animation;
  FillWithDistinctValues(animation, 1);
  const MemberLines expected = LinesOf(animation);
  const CmqpAnimateParam& alias = animation;
  animation = alias;
  EXPECT_EQ(Differences(animation, expected), "");
}

TEST(Animation, TwoToTwentyFramesAreAccepted) {
  CmqpAnimateParam animation;
  FillWithDistinctValues(animation, 1);
  MemberLines expected = LinesOf(animation);
  for (int frames = 2; frames <= 20; ++frames) {
    EXPECT_EQ(animation.SetNFrames(frames), 1) << frames;
    EXPECT_EQ(animation.m_nFrames, frames);

    CmqpAnimateParam numbered;
    numbered.m_nFrames = frames;
    expected = Mixed(expected, LinesOf(numbered), {"m_nFrames"});
    EXPECT_EQ(Differences(animation, expected), "") << frames;
  }
}

TEST(Animation, AnyOtherNumberOfFramesIsRefusedAndChangesNothing) {
  // clang-format off
  constexpr int kRefused[] = {
    -5, -4, -3, -2, -1, 0, 1, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30,
    256 + 5, 65536 + 5, -65536 + 5, INT_MAX - 1, INT_MAX, INT_MIN, INT_MIN + 1, INT_MIN + 5,
  };
  // clang-format on
  CmqpAnimateParam animation;
  for (const int frames : kRefused) {
    EXPECT_EQ(animation.SetNFrames(frames), 0) << frames;
    EXPECT_EQ(animation.m_nFrames, 5) << frames;
  }
  FillWithDistinctValues(animation, 1);
  const MemberLines expected = LinesOf(animation);
  for (const int frames : kRefused) {
    EXPECT_EQ(animation.SetNFrames(frames), 0) << frames;
    EXPECT_EQ(Differences(animation, expected), "") << frames;
  }
}

TEST(Animation, EverySweptNumberIsEitherStoredOrRefused) {
  Sweep sweep({"frames"});
  for (const int frames : kSweptCodes) {
    const bool isAccepted = frames >= 2 && frames <= 20;
    CmqpAnimateParam animation;
    animation.m_nFrames = 77;
    const int result = animation.SetNFrames(frames);
    sweep.Check(isAccepted ? 1 : 0, result, frames);
    sweep.Check(isAccepted ? frames : 77, animation.m_nFrames, frames);
  }
}

TEST(Animation, ARefusalKeepsTheNumberThatWasSetBefore) {
  CmqpAnimateParam animation;
  EXPECT_EQ(animation.SetNFrames(12), 1);
  EXPECT_EQ(animation.SetNFrames(21), 0);
  EXPECT_EQ(animation.m_nFrames, 12);
  EXPECT_EQ(animation.SetNFrames(1), 0);
  EXPECT_EQ(animation.m_nFrames, 12);
}

TEST(Animation, ADerivedAnimationIsDestroyedThroughItsBase) {
  struct Derived : CmqpAnimateParam {
    explicit Derived(bool& isGone) : m_isGone(isGone) {}
    ~Derived() override { m_isGone = true; }
    bool& m_isGone;
  };
  bool isGone = false;
  std::unique_ptr<CmqpAnimateParam> animation = std::make_unique<Derived>(isGone);
  animation.reset();
  EXPECT_TRUE(isGone);
}

}  // namespace
}  // namespace mqp::test
