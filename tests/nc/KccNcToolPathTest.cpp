// SPDX-License-Identifier: MIT
// KCC_NcToolPath: one behaviour per test, every expected value computed by hand. Segments are compared in
// the text form of NcToolPathText.h: kind, start > end, for arcs "c" centre and plane, feed, tool,
// program:line and flags.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "NcToolPathText.h"
#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_NcToolPath.h"
#include "support/TempDir.h"

using toolpath_test::Interpret;
using toolpath_test::InterpretLines;
using toolpath_test::SegmentText;

namespace {

std::vector<std::string> Segments(const KCC_NcToolPath& path) {
  std::vector<std::string> texts;
  for (const KCC_NcToolPath::Segment& s : path.GetSegments())
    texts.push_back(SegmentText(path, s));
  return texts;
}

std::vector<std::string> Warnings(const KCC_NcToolPath& path) {
  std::vector<std::string> texts;
  for (const KCC_NcToolPath::Note& n : path.GetWarnings())
    texts.push_back(std::to_string(n.line) + " " + n.text.str());
  return texts;
}

std::vector<std::string> NotInterpreted(const KCC_NcToolPath& path) {
  std::vector<std::string> texts;
  for (const KCC_NcToolPath::Note& n : path.GetNotInterpreted())
    texts.push_back(std::to_string(n.line) + " " + n.text.str());
  return texts;
}

using Texts = std::vector<std::string>;

}  // namespace

// --- straight moves ----------------------------------------------------------------------------------------

TEST(KccNcToolPath, RapidMoveGoesFromTheStartPoint) {
  const KCC_NcToolPath path = Interpret({"O1", "G0 X10 Y5 Z2", "M30"});

  EXPECT_EQ(Segments(path), Texts({"rapid 0 0 0 > 10 5 2 F0 T0 O0001:2"}));
}

TEST(KccNcToolPath, FeedMoveKeepsFeedAndLine) {
  const KCC_NcToolPath path = Interpret({"O1", "G1 X10 F200", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 10 0 0 F200 T0 O0001:2"}));
}

TEST(KccNcToolPath, MotionIsModal) {
  const KCC_NcToolPath path = Interpret({"O1", "G1 X10 F100", "Y10", "M30"});

  EXPECT_EQ(Segments(path),
            Texts({"feed 0 0 0 > 10 0 0 F100 T0 O0001:2", "feed 10 0 0 > 10 10 0 F100 T0 O0001:3"}));
}

TEST(KccNcToolPath, IncrementalMovesAddUp) {
  const KCC_NcToolPath path = Interpret({"O1", "G91 G1 X10 F100", "X10 Y-5", "M30"});

  EXPECT_EQ(Segments(path),
            Texts({"feed 0 0 0 > 10 0 0 F100 T0 O0001:2", "feed 10 0 0 > 20 -5 0 F100 T0 O0001:3"}));
}

TEST(KccNcToolPath, StartPointIsWhereTheFirstMoveStarts) {
  KCC_NcToolPath path;
  path.SetStartPoint(1.0, 2.0, 3.0);

  InterpretLines({"O1", "G0 X10", "M30"}, path);

  EXPECT_EQ(Segments(path), Texts({"rapid 1 2 3 > 10 2 3 F0 T0 O0001:2"}));
}

TEST(KccNcToolPath, InchInputIsKeptInMillimetres) {
  const KCC_NcToolPath path = Interpret({"O1", "G20 G1 X1 Y-0.5 F10", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 25.4 -12.7 0 F254 T0 O0001:2"}));
}

TEST(KccNcToolPath, MetricCodeAfterInchSwitchesBack) {
  const KCC_NcToolPath path = Interpret({"O1", "G20 G1 X1 F10", "G21 X10", "M30"});

  EXPECT_EQ(Segments(path),
            Texts({"feed 0 0 0 > 25.4 0 0 F254 T0 O0001:2", "feed 25.4 0 0 > 10 0 0 F254 T0 O0001:3"}));
}

TEST(KccNcToolPath, SiemensG70AndG700AreInchG71AndG710Metric) {
  const KCC_NcToolPath path = Interpret({"O1", "G70 G1 X2 F100", "G71 X10", "G700 Y1", "G710 Y3", "M30"});

  EXPECT_EQ(Segments(path),
            Texts({"feed 0 0 0 > 50.8 0 0 F2540 T0 O0001:2", "feed 50.8 0 0 > 10 0 0 F2540 T0 O0001:3",
                   "feed 10 0 0 > 10 25.4 0 F2540 T0 O0001:4", "feed 10 25.4 0 > 10 3 0 F2540 T0 O0001:5"}));
}

TEST(KccNcToolPath, CommentsBlockNumbersAndSemicolonTextAreSkipped) {
  const KCC_NcToolPath path = Interpret({"O1 (PLATE)", "N10 G1 (X99) X10 F100 ; X50", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 10 0 0 F100 T0 O0001:2"}));
  EXPECT_TRUE(path.GetWarnings().empty());
  EXPECT_TRUE(path.GetNotInterpreted().empty());
}

TEST(KccNcToolPath, BlockDeleteBlockRunsByDefault) {
  const KCC_NcToolPath path = Interpret({"O1", "/G1 X10 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 10 0 0 F100 T0 O0001:2"}));
}

TEST(KccNcToolPath, BlockDeleteBlockIsSkippedWhenAsked) {
  KCC_NcToolPath path;
  path.SetSkipDeletableBlocks(true);

  InterpretLines({"O1", "/G1 X10 F100", "G1 Y5 F100", "M30"}, path);

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 0 5 0 F100 T0 O0001:3"}));
}

TEST(KccNcToolPath, ToolIsActiveFromTheToolChange) {
  const KCC_NcToolPath path = Interpret({"O1", "T1 M6", "G1 X10 F100", "T2", "X20", "M6", "X30", "M30"});

  EXPECT_EQ(Segments(path),
            Texts({"feed 0 0 0 > 10 0 0 F100 T1 O0001:3", "feed 10 0 0 > 20 0 0 F100 T1 O0001:5",
                   "feed 20 0 0 > 30 0 0 F100 T2 O0001:7"}));
}

TEST(KccNcToolPath, DwellTakesTimeAndDoesNotMove) {
  const KCC_NcToolPath path = Interpret({"O1", "G4 X2.5", "G4 P500", "M30"});

  EXPECT_TRUE(path.GetSegments().empty());
  EXPECT_DOUBLE_EQ(path.GetRunTime(), 3.0);
}

// --- arcs --------------------------------------------------------------------------------------------------

TEST(KccNcToolPath, ClockwiseArcByCentreOffsets) {
  const KCC_NcToolPath path = Interpret({"O1", "G17 G2 X10 Y0 I5 J0 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"cw 0 0 0 > 10 0 0 c 5 0 0 XY F100 T0 O0001:2"}));
}

TEST(KccNcToolPath, ClockwiseHalfCircleBulgesToPositiveY) {
  const KCC_NcToolPath path = Interpret({"O1", "G2 X10 I5 F100", "M30"});

  KCC_NcToolPath::Extents box;
  ASSERT_TRUE(path.GetExtents(box));
  EXPECT_DOUBLE_EQ(box.min[1], 0.0);
  EXPECT_DOUBLE_EQ(box.max[1], 5.0);
}

TEST(KccNcToolPath, CounterClockwiseHalfCircleBulgesToNegativeY) {
  const KCC_NcToolPath path = Interpret({"O1", "G3 X10 I5 F100", "M30"});

  KCC_NcToolPath::Extents box;
  ASSERT_TRUE(path.GetExtents(box));
  EXPECT_DOUBLE_EQ(box.min[1], -5.0);
  EXPECT_DOUBLE_EQ(box.max[1], 0.0);
}

TEST(KccNcToolPath, QuarterArcExtentsHoldOnlyItsEnds) {
  // Counter-clockwise from (10,0) to (0,10) about the origin: no quadrant point between the ends.
  const KCC_NcToolPath path = Interpret({"O1", "G0 X10", "G3 X0 Y10 I-10 F100", "M30"});

  KCC_NcToolPath::Extents box;
  ASSERT_TRUE(path.GetExtents(box));
  EXPECT_DOUBLE_EQ(box.min[0], 0.0);
  EXPECT_DOUBLE_EQ(box.max[0], 10.0);
  EXPECT_DOUBLE_EQ(box.min[1], 0.0);
  EXPECT_DOUBLE_EQ(box.max[1], 10.0);
}

TEST(KccNcToolPath, SemicircleByRadiusWithChordExactlyTwiceTheRadius) {
  const KCC_NcToolPath path = Interpret({"O1", "G2 X10 R5 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"cw 0 0 0 > 10 0 0 c 5 0 0 XY F100 T0 O0001:2"}));
  EXPECT_TRUE(path.GetWarnings().empty());
  EXPECT_NEAR(path.GetFeedLength(), 15.70796, 1e-5);  // pi * 5
}

TEST(KccNcToolPath, PositiveRadiusTakesTheShortArc) {
  // Chord (0,0)-(10,10); clockwise with R10: centre (10,0), a quarter circle.
  const KCC_NcToolPath path = Interpret({"O1", "G2 X10 Y10 R10 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"cw 0 0 0 > 10 10 0 c 10 0 0 XY F100 T0 O0001:2"}));
  EXPECT_NEAR(path.GetFeedLength(), 15.70796, 1e-5);  // 10 * pi / 2
}

TEST(KccNcToolPath, NegativeRadiusTakesTheArcOver180Degrees) {
  // Same chord with R-10: centre (0,10), three quarters of a circle.
  const KCC_NcToolPath path = Interpret({"O1", "G2 X10 Y10 R-10 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"cw 0 0 0 > 10 10 0 c 0 10 0 XY F100 T0 O0001:2"}));
  EXPECT_NEAR(path.GetFeedLength(), 47.12389, 1e-5);  // 10 * 3 pi / 2
}

TEST(KccNcToolPath, SiemensCrIsTheArcRadius) {
  const KCC_NcToolPath path = Interpret({"O1", "G3 X10 Y10 CR=10 F100", "M30"});

  // Counter-clockwise, short arc: centre left of the chord, (0,10).
  EXPECT_EQ(Segments(path), Texts({"ccw 0 0 0 > 10 10 0 c 0 10 0 XY F100 T0 O0001:2"}));
}

TEST(KccNcToolPath, RadiusShorterThanHalfTheChordIsReportedAndRunAsHalfCircle) {
  const KCC_NcToolPath path = Interpret({"O1", "G2 X10 R4 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"cw 0 0 0 > 10 0 0 c 5 0 0 XY F100 T0 O0001:2 inconsistent"}));
  EXPECT_EQ(
      Warnings(path),
      Texts({"2 arc radius 4 is shorter than half the chord 5: run as the half circle over the chord"}));
}

TEST(KccNcToolPath, CentreWithDifferentStartAndEndRadiusIsReportedAndKept) {
  const KCC_NcToolPath path = Interpret({"O1", "G2 X10 I4 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"cw 0 0 0 > 10 0 0 c 4 0 0 XY F100 T0 O0001:2 inconsistent"}));
  EXPECT_EQ(Warnings(path), Texts({"2 arc radius at the start 4 and at the end 6 differ"}));
}

TEST(KccNcToolPath, RadiusDifferenceWithinTheToleranceIsNoWarning) {
  const KCC_NcToolPath path = Interpret({"O1", "G2 X10.005 I5 F100", "M30"});

  EXPECT_EQ(path.GetSegmentCount(), 1u);
  EXPECT_TRUE(path.GetWarnings().empty());
  EXPECT_EQ(path.GetSegments()[0].flags, 0);
}

TEST(KccNcToolPath, ArcEndingAtItsStartIsAFullCircle) {
  const KCC_NcToolPath path = Interpret({"O1", "G2 I5 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"cw 0 0 0 > 0 0 0 c 5 0 0 XY F100 T0 O0001:2 full"}));
  EXPECT_NEAR(path.GetFeedLength(), 31.41593, 1e-5);  // 2 pi 5
  KCC_NcToolPath::Extents box;
  ASSERT_TRUE(path.GetExtents(box));
  EXPECT_DOUBLE_EQ(box.max[0], 10.0);
  EXPECT_DOUBLE_EQ(box.min[1], -5.0);
  EXPECT_DOUBLE_EQ(box.max[1], 5.0);
}

TEST(KccNcToolPath, HelicalArcLengthFollowsTheHelix) {
  // A full turn of radius 5 that drops 10: sqrt((2 pi 5)^2 + 10^2) = sqrt(1086.9604) = 32.96908.
  const KCC_NcToolPath path = Interpret({"O1", "G3 Z-10 I5 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"ccw 0 0 0 > 0 0 -10 c 5 0 0 XY F100 T0 O0001:2 full"}));
  EXPECT_NEAR(path.GetFeedLength(), 32.96908, 1e-5);
}

TEST(KccNcToolPath, G18ArcWhoseProjectionOntoXYIsALine) {
  // In the ZX plane, clockwise seen from +Y: from X0 to X20 about X10 it passes Z-10.
  const KCC_NcToolPath path = Interpret({"O1", "G18 G2 X20 I10 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"cw 0 0 0 > 20 0 0 c 10 0 0 ZX F100 T0 O0001:2"}));
  KCC_NcToolPath::Extents box;
  ASSERT_TRUE(path.GetExtents(box));
  EXPECT_DOUBLE_EQ(box.min[1], 0.0);
  EXPECT_DOUBLE_EQ(box.max[1], 0.0);
  EXPECT_DOUBLE_EQ(box.min[2], -10.0);
  EXPECT_DOUBLE_EQ(box.max[2], 0.0);
}

TEST(KccNcToolPath, G19ArcTurnsFromYTowardsZ) {
  // In the YZ plane, counter-clockwise seen from +X: from Y0 to Y20 about Y10 it passes Z-10.
  const KCC_NcToolPath path = Interpret({"O1", "G19 G3 Y20 J10 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"ccw 0 0 0 > 0 20 0 c 0 10 0 YZ F100 T0 O0001:2"}));
  KCC_NcToolPath::Extents box;
  ASSERT_TRUE(path.GetExtents(box));
  EXPECT_DOUBLE_EQ(box.min[2], -10.0);
}

TEST(KccNcToolPath, ArcWithoutCentreOrRadiusIsAMarkedStraightMove) {
  const KCC_NcToolPath path = Interpret({"O1", "G2 X10 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 10 0 0 F100 T0 O0001:2 inconsistent"}));
  EXPECT_EQ(Warnings(path), Texts({"2 arc without centre (I, J, K) or radius (R): run as a straight move"}));
}

// --- lengths, time, extents --------------------------------------------------------------------------------

TEST(KccNcToolPath, LengthsAndRunTimeUseFeedsAndTheRapidRate) {
  KCC_NcToolPath path;
  path.SetRapidRate(10000.0);

  InterpretLines({"O1", "G0 X100", "G1 X200 F1000", "M30"}, path);

  EXPECT_DOUBLE_EQ(path.GetRapidLength(), 100.0);
  EXPECT_DOUBLE_EQ(path.GetFeedLength(), 100.0);
  EXPECT_DOUBLE_EQ(path.GetRunTime(), 6.6);  // 100/10000 min + 100/1000 min
}

TEST(KccNcToolPath, InchFeedIsConvertedForTheRunTime) {
  const KCC_NcToolPath path = Interpret({"O1", "G20 G1 X10 F10", "M30"});

  EXPECT_DOUBLE_EQ(path.GetFeedLength(), 254.0);
  EXPECT_DOUBLE_EQ(path.GetRunTime(), 60.0);
}

TEST(KccNcToolPath, FeedMoveWithoutFeedIsReportedOnce) {
  const KCC_NcToolPath path = Interpret({"O1", "G1 X10", "X20", "M30"});

  EXPECT_EQ(Warnings(path), Texts({"2 move at feed without a feed rate (F): its time is not counted"}));
  EXPECT_DOUBLE_EQ(path.GetRunTime(), 0.0);
}

TEST(KccNcToolPath, NoSegmentGivesNoExtents) {
  const KCC_NcToolPath path = Interpret({"O1", "M30"});

  KCC_NcToolPath::Extents box;
  EXPECT_FALSE(path.GetExtents(box));
}

TEST(KccNcToolPath, SegmentTakesFiftySixBytes) {
  EXPECT_EQ(sizeof(KCC_NcToolPath::Segment), 56u);
}

// --- canned cycles -----------------------------------------------------------------------------------------

TEST(KccNcToolPath, DrillCycleWithG99StaysAtTheRLevel) {
  const KCC_NcToolPath path = Interpret({"O1", "G0 Z10", "G99 G81 X10 Y0 Z-5 R2 F100", "X20", "G80", "M30"});

  EXPECT_EQ(Segments(path),
            Texts({"rapid 0 0 0 > 0 0 10 F0 T0 O0001:2", "rapid 0 0 10 > 10 0 10 F0 T0 O0001:3",
                   "rapid 10 0 10 > 10 0 2 F0 T0 O0001:3", "hole 10 0 2 > 10 0 -5 F100 T0 O0001:3",
                   "rapid 10 0 2 > 20 0 2 F0 T0 O0001:4", "hole 20 0 2 > 20 0 -5 F100 T0 O0001:4"}));
}

TEST(KccNcToolPath, DrillCycleWithG98ReturnsToTheInitialLevel) {
  const KCC_NcToolPath path = Interpret({"O1", "G0 Z10", "G98 G81 X10 Z-5 R2 F100", "M30"});

  EXPECT_EQ(Segments(path),
            Texts({"rapid 0 0 0 > 0 0 10 F0 T0 O0001:2", "rapid 0 0 10 > 10 0 10 F0 T0 O0001:3",
                   "rapid 10 0 10 > 10 0 2 F0 T0 O0001:3", "hole 10 0 2 > 10 0 -5 F100 T0 O0001:3",
                   "rapid 10 0 2 > 10 0 10 F0 T0 O0001:3"}));
  // Rapids 10 + 10 + 8 + 7 (retract) + 8; feed 7.
  EXPECT_DOUBLE_EQ(path.GetRapidLength(), 43.0);
  EXPECT_DOUBLE_EQ(path.GetFeedLength(), 7.0);
}

TEST(KccNcToolPath, MotionWordCancelsTheCycle) {
  const KCC_NcToolPath path = Interpret({"O1", "G99 G81 X10 Z-5 R2 F100", "G1 X20", "M30"});

  ASSERT_EQ(path.GetSegmentCount(), 4u);
  EXPECT_EQ(SegmentText(path, path.GetSegments()[3]), "feed 10 0 2 > 20 0 2 F100 T0 O0001:3");
}

TEST(KccNcToolPath, IncrementalCycleCountsRFromTheInitialLevelAndDepthFromR) {
  // Initial level 10; R-8 gives the R level 2, Z-5 from there the depth -3. K3 steps X by 10 three times.
  const KCC_NcToolPath path = Interpret({"O1", "G0 Z10", "G91 G99 G81 X10 Z-5 R-8 K3 F100", "M30"});

  Texts holes;
  for (const std::string& s : Segments(path)) {
    if (s.rfind("hole", 0) == 0)
      holes.push_back(s);
  }
  EXPECT_EQ(holes, Texts({"hole 10 0 2 > 10 0 -3 F100 T0 O0001:3", "hole 20 0 2 > 20 0 -3 F100 T0 O0001:3",
                          "hole 30 0 2 > 30 0 -3 F100 T0 O0001:3"}));
}

TEST(KccNcToolPath, RepeatCountZeroDrillsNothing) {
  const KCC_NcToolPath path = Interpret({"O1", "G81 X10 Z-5 R2 K0 F100", "M30"});

  EXPECT_TRUE(path.GetSegments().empty());
}

TEST(KccNcToolPath, TwelveHoleBoltCircleWithPolarCoordinatesAndRepeats) {
  // Radius 50 about the origin: the first hole at 0 degrees, then L11 steps of 30 degrees.
  const KCC_NcToolPath path = Interpret(
      {"O1", "G0 G90 G17 Z10", "G16", "G98 G81 X50 Y0 Z-5 R2 F100", "G91 Y30 L11", "G80 G15", "M30"});

  Texts holes;
  for (const std::string& s : Segments(path)) {
    if (s.rfind("hole", 0) == 0)
      holes.push_back(s.substr(0, s.find(" >")));
  }
  EXPECT_EQ(holes, Texts({"hole 50 0 2", "hole 43.301 25 2", "hole 25 43.301 2", "hole 0 50 2",
                          "hole -25 43.301 2", "hole -43.301 25 2", "hole -50 0 2", "hole -43.301 -25 2",
                          "hole -25 -43.301 2", "hole 0 -50 2", "hole 25 -43.301 2", "hole 43.301 -25 2"}));
}

// --- calls -------------------------------------------------------------------------------------------------

TEST(KccNcToolPath, M98WithLRepeatsTheSubProgram) {
  const KCC_NcToolPath path = Interpret({"O1", "G91 G1 F100", "M98 P10 L3", "M30", "O10", "X10", "M99"});

  EXPECT_EQ(Segments(path),
            Texts({"feed 0 0 0 > 10 0 0 F100 T0 O0010:2", "feed 10 0 0 > 20 0 0 F100 T0 O0010:2",
                   "feed 20 0 0 > 30 0 0 F100 T0 O0010:2"}));
}

TEST(KccNcToolPath, EightDigitPGivesRepeatsAndProgramNumber) {
  const KCC_NcToolPath path = Interpret({"O1", "G91 G1 F100", "M98 P30010", "M30", "O10", "X10", "M99"});

  EXPECT_EQ(Segments(path),
            Texts({"feed 0 0 0 > 10 0 0 F100 T0 O0010:2", "feed 10 0 0 > 20 0 0 F100 T0 O0010:2",
                   "feed 20 0 0 > 30 0 0 F100 T0 O0010:2"}));
}

TEST(KccNcToolPath, SiemensLCallWithPRepeats) {
  const KCC_NcToolPath path = Interpret({"O1", "G91 G1 F100", "L10 P3", "M30", "O10", "X10", "RET"});

  EXPECT_EQ(Segments(path),
            Texts({"feed 0 0 0 > 10 0 0 F100 T0 O0010:2", "feed 10 0 0 > 20 0 0 F100 T0 O0010:2",
                   "feed 20 0 0 > 30 0 0 F100 T0 O0010:2"}));
}

TEST(KccNcToolPath, SubProgramReturnsToTheBlockAfterTheCall) {
  const KCC_NcToolPath path = Interpret({"O1", "G1 F100", "M98 P10", "Y5", "M30", "O10", "X10", "M99"});

  EXPECT_EQ(Segments(path),
            Texts({"feed 0 0 0 > 10 0 0 F100 T0 O0010:2", "feed 10 0 0 > 10 5 0 F100 T0 O0001:4"}));
}

TEST(KccNcToolPath, ProgramEndInACalledProgramReturnsLikeM99) {
  const KCC_NcToolPath path = Interpret({"O1", "G1 F100", "M98 P10", "Y5", "M30", "O10", "X10", "M30"});

  EXPECT_EQ(Segments(path),
            Texts({"feed 0 0 0 > 10 0 0 F100 T0 O0010:2", "feed 10 0 0 > 10 5 0 F100 T0 O0001:4"}));
}

TEST(KccNcToolPath, SubProgramThatCallsItselfIsReportedAndNotFollowed) {
  const KCC_NcToolPath path = Interpret({"O1", "M98 P10", "M30", "O10", "G91 G1 X1 F100", "M98 P10", "M99"});

  EXPECT_TRUE(path.IsComplete());
  EXPECT_EQ(path.GetSegmentCount(), 1u);
  EXPECT_EQ(Warnings(path), Texts({"3 call of O0010, which is already running: not followed"}));
}

TEST(KccNcToolPath, MissingSubProgramIsReported) {
  const KCC_NcToolPath path = Interpret({"O1", "M98 P77", "M30"});

  EXPECT_EQ(Warnings(path), Texts({"2 sub-program O0077 not found: call not followed"}));
}

TEST(KccNcToolPath, CallsDeeperThanTheLimitAreNotFollowed) {
  KCC_NcToolPath path;
  path.SetMaxCallDepth(1);

  InterpretLines({"O1", "M98 P10", "M30", "O10", "M98 P20", "M99", "O20", "G1 X1 F100", "M99"}, path);

  EXPECT_TRUE(path.GetSegments().empty());
  EXPECT_EQ(Warnings(path), Texts({"2 call of O0020 deeper than the call-depth limit (1): not followed"}));
}

TEST(KccNcToolPath, ExpansionBeyondTheSegmentLimitStopsTheRun) {
  // 10000 * 10000 calls of one move each would make 100 million segments.
  KCC_NcToolPath path;
  path.SetMaxSegments(1000);

  const bool complete = InterpretLines({"O1", "M98 P20 L10000", "M30", "O20", "M98 P30 L10000", "M99", "O30",
                                        "G91 G1 X1 F100", "M99"},
                                       path)
                            .IsComplete();

  EXPECT_FALSE(complete);
  EXPECT_EQ(path.GetSegmentCount(), 1000u);
  EXPECT_EQ(path.GetStopReason().str(), "stopped after 1000 segments (the segment limit)");
}

TEST(KccNcToolPath, LoopWithoutMotionStopsAtTheBlockLimit) {
  KCC_NcToolPath path;
  path.SetMaxBlocks(5000);

  InterpretLines({"O1", "M98 P20 L100000000", "M30", "O20", "(NOTHING)", "M99"}, path);

  EXPECT_FALSE(path.IsComplete());
  EXPECT_EQ(path.GetStopReason().str(), "stopped after 5000 blocks (the block limit)");
}

TEST(KccNcToolPath, SiemensCallFindsTheProgramFileInTheFolder) {
  TempDir dir;
  dir.WriteFile("L8010.SPF", "%_N_L8010_SPF\nG1 X10 F100\nRET\n");
  KCC_NcToolPath path;
  path.SetSubProgramFolder(dir.Path());

  InterpretLines({"O1", "L8010", "M30"}, path);

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 10 0 0 F100 T0 L8010:1"}));
  EXPECT_TRUE(path.GetWarnings().empty());
}

TEST(KccNcToolPath, SiemensCallByNameFindsNameSpf) {
  TempDir dir;
  dir.WriteFile("POCKET.SPF", "G91 G1 Y5 F100\nM17\n");
  KCC_NcToolPath path;
  path.SetSubProgramFolder(dir.Path());

  InterpretLines({"O1", "POCKET P2", "M30"}, path);

  EXPECT_EQ(Segments(path),
            Texts({"feed 0 0 0 > 0 5 0 F100 T0 POCKET:1", "feed 0 5 0 > 0 10 0 F100 T0 POCKET:1"}));
}

// --- parameters --------------------------------------------------------------------------------------------

TEST(KccNcToolPath, HashParameterGivesAWordItsValue) {
  const KCC_NcToolPath path = Interpret({"O1", "#100 = 15 (X)", "G1 X#100 Y-#100 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 15 -15 0 F100 T0 O0001:3"}));
}

TEST(KccNcToolPath, BracketExpressionIsEvaluated) {
  const KCC_NcToolPath path = Interpret({"O1", "#101 = 4", "G1 X[#101 + 2*3] F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 10 0 0 F100 T0 O0001:3"}));
}

TEST(KccNcToolPath, ExpressionAddsAndSubtractsLeftToRight) {
  const KCC_NcToolPath path = Interpret({"O1", "G1 X[10 - 4 + 2] Y[8 / 2 * 2] F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 8 8 0 F100 T0 O0001:2"}));
}

TEST(KccNcToolPath, SineTakesDegrees) {
  const KCC_NcToolPath path = Interpret({"O1", "G1 X[10 * SIN[30]] F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 5 0 0 F100 T0 O0001:2"}));
}

TEST(KccNcToolPath, AssignmentUsesEarlierParameters) {
  const KCC_NcToolPath path = Interpret({"O1", "#1 = 2", "#2 = #1 * 3 + 1", "G1 X#2 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 7 0 0 F100 T0 O0001:4"}));
}

TEST(KccNcToolPath, SiemensRParameterAfterEquals) {
  const KCC_NcToolPath path = Interpret({"O1", "R10 = 4.5 ; DEPTH", "G1 Z=-R10 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 0 0 -4.5 F100 T0 O0001:3"}));
}

TEST(KccNcToolPath, ParameterWithoutValueIsReportedAndTheWordIgnored) {
  const KCC_NcToolPath path = Interpret({"O1", "G1 X#105 Y2 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 0 2 0 F100 T0 O0001:2"}));
  EXPECT_EQ(Warnings(path), Texts({"2 cannot evaluate X#105: #105 has no value; the word is ignored"}));
}

TEST(KccNcToolPath, UnknownFunctionIsReportedWithItsLine) {
  const KCC_NcToolPath path = Interpret({"O1", "G1 F100", "X[ABS[-5]]", "M30"});

  EXPECT_TRUE(path.GetSegments().empty());
  EXPECT_EQ(Warnings(path),
            Texts({"3 cannot evaluate X[ABS[-5]]: ABS is not evaluated; the word is ignored"}));
}

TEST(KccNcToolPath, VacantValueEmptiesAParameter) {
  const KCC_NcToolPath path = Interpret({"O1", "#1 = 5", "#1 = #0", "G1 X#1 F100", "M30"});

  EXPECT_EQ(Warnings(path), Texts({"4 cannot evaluate X#1: #1 has no value; the word is ignored"}));
}

// --- what is not interpreted -------------------------------------------------------------------------------

TEST(KccNcToolPath, UnknownWordsAreListedWithTheirLines) {
  const KCC_NcToolPath path =
      Interpret({"O1", "G54", "G41 D1 G1 X10 F100", "IF [#1 GT 5] GOTO 10", "G1 A30", "M30"});

  EXPECT_EQ(NotInterpreted(path), Texts({"2 G54", "3 G41", "4 IF", "5 A"}));
}

TEST(KccNcToolPath, NotInterpretedKindsAreCounted) {
  const KCC_NcToolPath path = Interpret({"O1", "G41 X1", "G42 X2", "G41 X3", "M30"});

  ASSERT_EQ(path.GetNotInterpretedKinds().size(), 2u);
  EXPECT_EQ(path.GetNotInterpretedKinds()[0].kind.str(), "G41");
  EXPECT_EQ(path.GetNotInterpretedKinds()[0].count, 2u);
  EXPECT_EQ(path.GetNotInterpretedKinds()[1].kind.str(), "G42");
  EXPECT_EQ(path.GetNotInterpretedKinds()[1].count, 1u);
}

TEST(KccNcToolPath, CutterCompensationBlockStillMoves) {
  const KCC_NcToolPath path = Interpret({"O1", "G41 D1 G1 X10 F100", "M30"});

  EXPECT_EQ(Segments(path), Texts({"feed 0 0 0 > 10 0 0 F100 T0 O0001:2"}));
}

TEST(KccNcToolPath, ReferenceReturnTakesTheAxisWords) {
  const KCC_NcToolPath path = Interpret({"O1", "G91 G28 Z0", "G28 X0 Y0", "M30"});

  EXPECT_TRUE(path.GetSegments().empty());
  EXPECT_EQ(NotInterpreted(path), Texts({"2 G28", "3 G28"}));
}

TEST(KccNcToolPath, UnknownNameMakesTheWholeBlockNotInterpreted) {
  const KCC_NcToolPath path = Interpret({"O1", "TRANS X10", "M30"});

  EXPECT_TRUE(path.GetSegments().empty());
  EXPECT_EQ(NotInterpreted(path), Texts({"2 TRANS"}));
}

TEST(KccNcToolPath, StrayCharacterIsListed) {
  const KCC_NcToolPath path = Interpret({"O1", "G1 X10 F100 &", "M30"});

  EXPECT_EQ(path.GetSegmentCount(), 1u);
  EXPECT_EQ(NotInterpreted(path), Texts({"2 '&'"}));
}

// --- the object --------------------------------------------------------------------------------------------

TEST(KccNcToolPath, CopyKeepsTheResult) {
  const KCC_NcToolPath path = Interpret({"O1", "G1 X10 F100", "M30"});

  const KCC_NcToolPath copy(path);

  EXPECT_EQ(Segments(copy), Segments(path));
  EXPECT_EQ(copy.GetProgramName(0).str(), "O0001");
}

TEST(KccNcToolPath, InterpretReplacesTheEarlierResult) {
  KCC_NcToolPath path;
  InterpretLines({"O1", "G1 X10 F100", "X20", "M30"}, path);

  InterpretLines({"O2", "G0 Y5", "M30"}, path);

  EXPECT_EQ(Segments(path), Texts({"rapid 0 0 0 > 0 5 0 F0 T0 O0002:2"}));
}

TEST(KccNcToolPath, NewObjectUsesTheNamedDefaultLimits) {
  const KCC_NcToolPath path;

  EXPECT_EQ(path.GetMaxSegments(), KCC_NcToolPath::kDefaultMaxSegments);
  EXPECT_EQ(path.GetMaxBlocks(), KCC_NcToolPath::kDefaultMaxBlocks);
  EXPECT_EQ(path.GetMaxCallDepth(), KCC_NcToolPath::kDefaultMaxCallDepth);
  EXPECT_DOUBLE_EQ(path.GetRapidRate(), KCC_NcToolPath::kDefaultRapidRate);
}

TEST(KccNcToolPath, WarningsBeyondTheKeptNumberAreOnlyCounted) {
  // Each of the 1500 blocks warns once about its arc; 1000 warnings are kept.
  std::vector<std::string> lines = {"O1", "G1 F100"};
  for (int i = 0; i < 1500; ++i)
    lines.push_back(i % 2 == 0 ? "G2 X10 I4" : "G2 X0 I-6");
  lines.push_back("M30");

  const KCC_NcToolPath path = Interpret(lines);

  EXPECT_EQ(path.GetWarningCount(), 1500u);
  EXPECT_EQ(path.GetWarnings().size(), KCC_NcToolPath::kMaxKeptNotes);
}
