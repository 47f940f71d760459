#include <bit>

#include <gtest/gtest.h>

#include <mqPostCommon/mqPostCommon.h>

#include "members.h"
#include "plot_rules.h"
#include "tally.h"

namespace reference {
namespace {

void MakePlot(CmqPostDataParam& plot, Random& random) {
  Scramble(plot, random);
  plot.m_nDeformScaleMode = random.Between(-1, 2);
  plot.m_nAnalysisType = random.Once(8) ? random.Int() : random.Between(-1, 11);
  plot.m_nEnvelopeFlag = random.Between(-1, 1);
  if (random.Once(3)) {
    plot.m_nAnalysisType = random.Of({3, 3, 5});
    plot.m_nResultType = random.Of({5, 5, 2});
    plot.m_nComponent = random.Between(9, 11);
  }
}

TEST(PlotReference, DefaultsCopiesAssignmentsAndQuestions) {
  ResetTally();
  Random random(2201);
  ASSERT_EQ("", FirstDifference(DefaultPlot(), Snapshot(CmqPostDataParam())));
  const int cases = CountCases(4000);
  for (int number = 0; number < cases; ++number) {
    CmqPostDataParam source;
    MakePlot(source, random);
    CmqPostDataParam target;
    MakePlot(target, random);
    const Fields sourceMembers = Snapshot(source);
    const Fields assigned = AssignedPlot(Snapshot(target), sourceMembers);
    const CmqPostDataParam copy(source);
    target = source;
    const CmqPostDataParam& self = source;
    source = self;
    ASSERT_EQ("", FirstDifference(sourceMembers, Snapshot(source))) << "assigned to itself";
    Scramble(source, random);
    ASSERT_EQ("", FirstDifference(CopiedPlot(sourceMembers), Snapshot(copy)));
    ASSERT_EQ("", FirstDifference(assigned, Snapshot(target)));

    CmqPostDataParam asked(target);
    const Fields members = Snapshot(asked);
    ASSERT_EQ(std::bit_cast<std::uint32_t>(DeformScaleFactor(members)),
              std::bit_cast<std::uint32_t>(asked.GetDeformScaleFactor()));
    ASSERT_EQ(IsEnvelope(members), asked.IsEnvelopPlot());
    ASSERT_EQ(IsHeatEnergy(members), asked.IsThermalHeatEnergy());
  }
  CheckTally("assign", {"assign: array refilled", "assign: array filled", "assign: array left",
                        "assign: array empty"});
  CheckTally("scale", {"scale: mode 1", "scale: mode 0", "scale: other mode"});
  CheckTally("envelope",
             {"envelope: yes", "envelope: flag clear", "envelope: not in this analysis"});
  CheckTally("heat", {"heat: yes", "heat: no"});
  RecordCases(cases);
}

TEST(AnimationReference, FramesWithinTheirBoundsAndCopies) {
  ResetTally();
  Random random(2501);
  Fields defaults;
  Put(defaults, "row 1", {0});
  Put(defaults, "frames", {5});
  Put(defaults, "row 3", {5});
  Put(defaults, "row 4", {0});
  Put(defaults, "row 5", {0});
  PutEmpty(defaults, "row 6");
  Put(defaults, "row 7", {0});
  ASSERT_EQ("", FirstDifference(defaults, Snapshot(CmqpAnimateParam())));
  const int cases = CountCases(4000);
  for (int number = 0; number < cases; ++number) {
    CmqpAnimateParam animation;
    Scramble(animation, random);
    Fields members = Snapshot(animation);
    const int frames = random.Once(4) ? random.Int() : random.Between(-2, 24);
    const bool isAccepted = 2 <= frames && frames <= 20;
    Hit(isAccepted ? "frames: accepted" : "frames: refused");
    if (isAccepted) {
      Put(members, "frames", {frames});
    }
    ASSERT_EQ(isAccepted ? 1 : 0, animation.SetNFrames(frames)) << frames;
    ASSERT_EQ("", FirstDifference(members, Snapshot(animation))) << frames;
    const CmqpAnimateParam copy(animation);
    CmqpAnimateParam target;
    Scramble(target, random);
    target = animation;
    Scramble(animation, random);
    ASSERT_EQ("", FirstDifference(members, Snapshot(copy)));
    ASSERT_EQ("", FirstDifference(members, Snapshot(target)));
  }
  CheckTally("frames", {"frames: accepted", "frames: refused"});
  RecordCases(cases);
}

}  // namespace
}  // namespace reference
