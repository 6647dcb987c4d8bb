// SPDX-License-Identifier: MIT
// The two mappings of the view port, world -> pixel and pixel -> world, for all four reference corners of
// both kinds. Every row uses an 800 x 400 canvas without margins and the world rectangle (0, 0)-(200, 50),
// so the ratios are exact powers of two and every expected pixel is exact: pixel centre (400, 200), world
// centre (100, 25), and the world point (120, 35) sits 20 right of and 10 above the world centre.
#include <gtest/gtest.h>

#include <cmath>

#include "draw/ViewPortKinds.h"
#include "support/TestData.h"

namespace {

struct CornerRow {
  const char* name;
  ViewPortKind kind;
  void (KCC_ViewPort::*setCorner)();
  double ratioX;
  double ratioY;
  int sx;  // pixel of the world point (120, 35)
  int sy;
};

// Draw: one ratio, max(w / W, h / H) = max(0.25, 0.125) in the straight corners and
// max(h / W, w / H) = max(0.0625, 0.5) in the turned ones. Plot: w / W and h / H, or h / W and w / H.
const CornerRow kCorners[] = {
    {"DrawBottomLeft", ViewPortKind::Draw, &KCC_ViewPort::SetRefCornorBottomLeft, 0.25, 0.25, 480, 160},
    {"DrawBottomRight", ViewPortKind::Draw, &KCC_ViewPort::SetRefCornorBottomRight, 0.5, 0.5, 380, 160},
    {"DrawTopLeft", ViewPortKind::Draw, &KCC_ViewPort::SetRefCornorTopLeft, 0.5, 0.5, 420, 240},
    {"DrawTopRight", ViewPortKind::Draw, &KCC_ViewPort::SetRefCornorTopRight, 0.25, 0.25, 320, 240},
    {"PlotBottomLeft", ViewPortKind::Plot, &KCC_ViewPort::SetRefCornorBottomLeft, 0.25, 0.125, 480, 120},
    {"PlotBottomRight", ViewPortKind::Plot, &KCC_ViewPort::SetRefCornorBottomRight, 0.0625, 0.5, 380, -120},
    {"PlotTopLeft", ViewPortKind::Plot, &KCC_ViewPort::SetRefCornorTopLeft, 0.0625, 0.5, 420, 520},
    {"PlotTopRight", ViewPortKind::Plot, &KCC_ViewPort::SetRefCornorTopRight, 0.25, 0.125, 320, 280},
};

class KccViewPortCorners : public ::testing::TestWithParam<CornerRow> {
 protected:
  void SetUp() override {
    port = MakeViewPort(GetParam().kind, 800, 400);
    ((*port).*GetParam().setCorner)();
    ASSERT_TRUE(port->SetWorldCoord(0.0, 0.0, 200.0, 50.0));
  }
  std::unique_ptr<KCC_ViewPort> port;
};

}  // namespace

TEST_P(KccViewPortCorners, SetWorldCoordCalculatesTheRatiosOfTheCorner) {
  EXPECT_EQ(port->GetWorld2PixelRatioX(), GetParam().ratioX);
  EXPECT_EQ(port->GetWorld2PixelRatioY(), GetParam().ratioY);
}

TEST_P(KccViewPortCorners, SetWorldCoordPutsTheCentreInTheMiddleOfTheCanvas) {
  EXPECT_EQ(port->GetPixelCoordCenterX(), 400);
  EXPECT_EQ(port->GetPixelCoordCenterY(), 200);
}

TEST_P(KccViewPortCorners, World2ScreenPointGivesThePixelOfTheCorner) {
  int sx = 0;
  int sy = 0;

  port->World2ScreenPoint(120.0, 35.0, sx, sy);

  EXPECT_EQ(sx, GetParam().sx);
  EXPECT_EQ(sy, GetParam().sy);
}

TEST_P(KccViewPortCorners, DoubleWorld2ScreenPointGivesThePixelOfTheCorner) {
  double sx = 0.0;
  double sy = 0.0;

  port->World2ScreenPoint(120.0, 35.0, sx, sy);

  EXPECT_EQ(sx, GetParam().sx);
  EXPECT_EQ(sy, GetParam().sy);
}

TEST_P(KccViewPortCorners, Screen2WorldPointGivesTheWorldPointBack) {
  double wx = 0.0;
  double wy = 0.0;

  port->Screen2WorldPoint(GetParam().sx, GetParam().sy, wx, wy);

  EXPECT_EQ(wx, 120.0);
  EXPECT_EQ(wy, 35.0);
}

TEST_P(KccViewPortCorners, DoubleWorld2ScreenPointIsTheExactInverseOfScreen2WorldPoint) {
  double wx = 0.0;
  double wy = 0.0;
  port->Screen2WorldPoint(437, 151, wx, wy);
  double sx = 0.0;
  double sy = 0.0;

  port->World2ScreenPoint(wx, wy, sx, sy);

  EXPECT_EQ(sx, 437.0);
  EXPECT_EQ(sy, 151.0);
}

TEST_P(KccViewPortCorners, WorldCentreMapsToThePixelCentre) {
  int sx = 0;
  int sy = 0;

  port->World2ScreenPoint(100.0, 25.0, sx, sy);

  EXPECT_EQ(sx, 400);
  EXPECT_EQ(sy, 200);
}

INSTANTIATE_TEST_SUITE_P(Corners, KccViewPortCorners, ::testing::ValuesIn(kCorners), RowName());

namespace {

// The corner setters and the predicates that answer them.
struct CornerPredicateRow {
  const char* name;
  void (KCC_ViewPort::*set)();
  bool bottomLeft;
  bool bottomRight;
  bool topLeft;
  bool topRight;
};

const CornerPredicateRow kCornerPredicates[] = {
    {"BottomLeft", &KCC_ViewPort::SetRefCornorBottomLeft, true, false, false, false},
    {"BottomRight", &KCC_ViewPort::SetRefCornorBottomRight, false, true, false, false},
    {"TopLeft", &KCC_ViewPort::SetRefCornorTopLeft, false, false, true, false},
    {"TopRight", &KCC_ViewPort::SetRefCornorTopRight, false, false, false, true},
};

class KccViewPortCornerPredicates : public ::testing::TestWithParam<CornerPredicateRow> {};

}  // namespace

TEST_P(KccViewPortCornerPredicates, SetterMakesOnlyItsOwnPredicateTrue) {
  KCC_ViewPortDraw port(800, 600);
  port.SetRefCornorTopRight();  // start away from the default corner

  (port.*GetParam().set)();

  EXPECT_EQ(port.IsRefCornorBottomLeft(), GetParam().bottomLeft);
  EXPECT_EQ(port.IsRefCornorBottomRight(), GetParam().bottomRight);
  EXPECT_EQ(port.IsRefCornorTopLeft(), GetParam().topLeft);
  EXPECT_EQ(port.IsRefCornorTopRight(), GetParam().topRight);
}

INSTANTIATE_TEST_SUITE_P(Corners, KccViewPortCornerPredicates, ::testing::ValuesIn(kCornerPredicates),
                         RowName());

TEST(KccViewPortMapping, IntegerWorld2ScreenPointTruncatesTowardsZero) {
  KCC_ViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));  // ratio 0.125, centre (400, 300)
  int sx = 0;
  int sy = 0;

  port.World2ScreenPoint(49.6625, 25.0, sx, sy);  // dx = -0.3375 / 0.125 = -2.7

  EXPECT_EQ(sx, 398);  // 400 - 2, not 400 - 3
  EXPECT_EQ(sy, 300);
}

TEST(KccViewPortMapping, DoubleWorld2ScreenPointKeepsTheFraction) {
  KCC_ViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  double sx = 0.0;
  double sy = 0.0;

  port.World2ScreenPoint(49.6625, 25.0, sx, sy);

  EXPECT_NEAR(sx, 397.3, 1e-9);
  EXPECT_EQ(sy, 300.0);
}

TEST(KccViewPortMapping, IntegerWorld2ScreenPointTruncatesEachAxisOnItsOwn) {
  KCC_ViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  int sx = 0;
  int sy = 0;

  port.World2ScreenPoint(50.3375, 25.3375, sx, sy);  // dx = dy = +2.7

  EXPECT_EQ(sx, 402);  // 400 + 2
  EXPECT_EQ(sy, 298);  // 300 - 2
}

TEST(KccViewPortMapping, TurnedPlotCornerDoesNotFillTheCanvas) {
  KCC_ViewPortPlot port(800, 400);
  port.SetRefCornorBottomRight();
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 200.0, 50.0));  // ratio X = 50 / 800 applied to world x
  int sx = 0;
  int sy = 0;

  port.World2ScreenPoint(200.0, 25.0, sx, sy);  // right edge of the world: 100 / 0.0625 = 1600 pixels up

  EXPECT_EQ(sx, 400);
  EXPECT_EQ(sy, -1400);
}
