// SPDX-License-Identifier: MIT
// The view port on input it cannot map sensibly: empty and negative canvases, margins wider than the
// canvas, NaN, infinite and huge world rectangles and points, and coordinates at the int limits. Each case
// gives a defined result; under UndefinedBehaviorSanitizer none of them may report anything.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "draw/ViewPortKinds.h"
#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/draw/KCC_ViewPortPlot.h"
#include "ncappkit/gui/KCC_GUI_ZoomArea.h"

namespace {

constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

}  // namespace

TEST(KccViewPortBadInput, ZeroSizeCanvasIsRefusedAndKeepsTheRatios) {
  KCC_ViewPortDraw port(0, 0);

  const bool result = port.SetWorldCoord(0.0, 0.0, 100.0, 50.0);

  EXPECT_FALSE(result);
  EXPECT_EQ(port.GetWorld2PixelRatioX(), 1.0);
  EXPECT_EQ(port.GetPixelCoordCenterX(), 0);
}

TEST(KccViewPortBadInput, ZeroWidthCanvasIsRefused) {
  KCC_ViewPortPlot port(0, 600);

  EXPECT_FALSE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));
}

TEST(KccViewPortBadInput, NegativeCanvasHasNegativeSizes) {
  KCC_ViewPortDraw port(-800, -600);

  EXPECT_EQ(port.GetCanvasHorPixels(), -800);
  EXPECT_EQ(port.GetCanvasVerPixels(), -600);
}

TEST(KccViewPortBadInput, NegativeCanvasMapsLikeThePositiveOne) {
  KCC_ViewPortDraw port(-800, -600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  int sx = -1;
  int sy = -1;

  port.World2ScreenPoint(0.0, 0.0, sx, sy);

  EXPECT_EQ(port.GetWorld2PixelRatioX(), 0.125);
  EXPECT_EQ(sx, 0);
  EXPECT_EQ(sy, 500);
}

TEST(KccViewPortBadInput, MarginsWiderThanTheCanvasGiveANegativeDrawRatio) {
  KCC_ViewPortDraw port(100, 100);
  port.SetPixelMargins(60);  // usable size 100 - 120 = -20, centre -10 + 60 = 50

  const bool result = port.SetWorldCoord(0.0, 0.0, 100.0, 100.0);

  EXPECT_TRUE(result);
  EXPECT_EQ(port.GetWorld2PixelRatioX(), -5.0);
  EXPECT_EQ(port.GetPixelCoordCenterX(), 50);
  EXPECT_EQ(port.GetPixelCoordCenterY(), 50);
}

TEST(KccViewPortBadInput, MarginsWiderThanTheCanvasMirrorThePicture) {
  KCC_ViewPortDraw port(100, 100);
  port.SetPixelMargins(60);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 100.0));
  int sx = 0;
  int sy = 0;

  port.World2ScreenPoint(100.0, 100.0, sx, sy);  // the top right world corner lands left and below

  EXPECT_EQ(sx, 40);
  EXPECT_EQ(sy, 60);
}

TEST(KccViewPortBadInput, MarginsWiderThanTheCanvasRefuseThePlotRatio) {
  KCC_ViewPortPlot port(100, 100);
  port.SetPixelMargins(60);

  const bool result = port.SetWorldCoord(0.0, 0.0, 100.0, 100.0);

  EXPECT_FALSE(result);  // ratio X = 100 / -20 is negative
  EXPECT_EQ(port.GetWorld2PixelRatioX(), -5.0);
}

TEST(KccViewPortBadInput, MarginsFillingTheCanvasExactlyAreRefused) {
  KCC_ViewPortDraw port(100, 100);
  port.SetPixelMargins(50);

  EXPECT_FALSE(port.SetWorldCoord(0.0, 0.0, 100.0, 100.0));
}

TEST(KccViewPortBadInput, NaNWorldRectangleIsNotRefused) {
  KCC_ViewPortDraw port(800, 600);

  const bool result = port.SetWorldCoord(kNaN, kNaN, kNaN, kNaN);

  EXPECT_TRUE(result);
  EXPECT_TRUE(std::isnan(port.GetWorld2PixelRatioX()));
  EXPECT_FALSE(port.IsWorld2PixelRatioTooSmall());
}

TEST(KccViewPortBadInput, NaNWorldRectangleMapsEveryPointToThePixelCentre) {
  KCC_ViewPortPlot port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(kNaN, kNaN, kNaN, kNaN));
  int sx = 0;
  int sy = 0;

  port.World2ScreenPoint(10.0, 20.0, sx, sy);

  EXPECT_EQ(sx, 400);
  EXPECT_EQ(sy, 300);
}

TEST(KccViewPortBadInput, NaNWorldRectangleGivesNaNWorldPoints) {
  KCC_ViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(kNaN, kNaN, kNaN, kNaN));
  double wx = 0.0;
  double wy = 0.0;

  port.Screen2WorldPoint(10, 20, wx, wy);

  EXPECT_TRUE(std::isnan(wx));
  EXPECT_TRUE(std::isnan(wy));
}

TEST(KccViewPortBadInput, NaNWorldPointMapsToThePixelCentre) {
  KCC_ViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  int sx = 0;
  int sy = 0;

  port.World2ScreenPoint(kNaN, kNaN, sx, sy);

  EXPECT_EQ(sx, 400);
  EXPECT_EQ(sy, 300);
}

TEST(KccViewPortBadInput, InfiniteWorldRectangleGivesAnInfiniteRatio) {
  KCC_ViewPortDraw port(800, 600);

  const bool result = port.SetWorldCoord(0.0, 0.0, kInf, 50.0);

  EXPECT_TRUE(result);
  EXPECT_EQ(port.GetWorld2PixelRatioX(), kInf);
}

TEST(KccViewPortBadInput, InfiniteWorldRectangleMapsToThePixelCentre) {
  KCC_ViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, kInf, 50.0));
  int sx = 0;
  int sy = 0;

  port.World2ScreenPoint(0.0, 0.0, sx, sy);

  EXPECT_EQ(sx, 400);
  EXPECT_EQ(sy, 300);
}

TEST(KccViewPortBadInput, HugeWorldRectangleOverflowsTheWidthToAnInfiniteRatio) {
  KCC_ViewPortDraw port(800, 600);

  const bool result = port.SetWorldCoord(-1e308, -1e308, 1e308, 1e308);

  EXPECT_TRUE(result);
  EXPECT_EQ(port.GetWorld2PixelRatioX(), kInf);
  EXPECT_EQ(port.GetWorldCoordCenterX(), 0.0);
}

TEST(KccViewPortBadInput, InvalidZoomAreaIsNotRefused) {
  KCC_ViewPortDraw port(800, 600);
  KCC_GUI_ZoomArea area;  // Xmin = largest double, Xmax = its negative

  const bool result = port.SetWorldCoord(area);

  EXPECT_TRUE(result);
  EXPECT_EQ(port.GetWorld2PixelRatioX(), -kInf);
  EXPECT_FALSE(area.Valid());
}

TEST(KccViewPortBadInput, WorldPointFarRightClampsToTheIntMaximum) {
  KCC_ViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  int sx = 0;
  int sy = 0;

  port.World2ScreenPoint(1e300, 25.0, sx, sy);

  EXPECT_EQ(sx, kIntMax);
  EXPECT_EQ(sy, 300);
}

TEST(KccViewPortBadInput, WorldPointFarLeftClampsTheOffsetToTheIntMinimum) {
  KCC_ViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  int sx = 0;
  int sy = 0;

  port.World2ScreenPoint(-1e300, 25.0, sx, sy);

  EXPECT_EQ(sx, 400 + kIntMin);  // the offset is clamped, the sum with the centre still fits
  EXPECT_EQ(sy, 300);
}

TEST(KccViewPortBadInput, SumOfCentreAndClampedOffsetIsClampedAgain) {
  KCC_ViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  int sx = 0;
  int sy = 0;

  port.World2ScreenPoint(50.0, -1e300, sx, sy);  // 300 minus the int minimum does not fit

  EXPECT_EQ(sx, 400);
  EXPECT_EQ(sy, kIntMax);
}

TEST(KccViewPortBadInput, Screen2WorldPointAtTheIntLimitsDoesNotOverflow) {
  KCC_ViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));  // ratio 0.125, centre (400, 300)
  double wx = 0.0;
  double wy = 0.0;

  port.Screen2WorldPoint(kIntMax, kIntMin, wx, wy);

  EXPECT_EQ(wx, 50.0 + (2147483647.0 - 400.0) * 0.125);
  EXPECT_EQ(wy, 25.0 - (-2147483648.0 - 300.0) * 0.125);
}

TEST(KccViewPortBadInput, CanvasSpanningTheIntRangeClampsItsSize) {
  KCC_ViewPortDraw port;

  port.SetCanvasPixels(kIntMin, kIntMax, kIntMax, kIntMin);

  EXPECT_EQ(port.GetCanvasHorPixels(), kIntMax);
  EXPECT_EQ(port.GetCanvasVerPixels(), kIntMax);
}

TEST(KccViewPortBadInput, ReversedCanvasSpanningTheIntRangeClampsToTheIntMinimum) {
  KCC_ViewPortDraw port;

  port.SetCanvasPixels(kIntMax, kIntMin, kIntMin, kIntMax);

  EXPECT_EQ(port.GetCanvasHorPixels(), kIntMin);
  EXPECT_EQ(port.GetCanvasVerPixels(), kIntMin);
}

TEST(KccViewPortBadInput, CanvasSpanningTheIntRangeStillCentres) {
  KCC_ViewPortDraw port(800, 600);
  port.SetCanvasPixels(kIntMin, kIntMax, kIntMax, kIntMin);  // usable size 4294967295

  const bool result = port.SetWorldCoord(0.0, 0.0, 1e6, 1e6);

  EXPECT_TRUE(result);
  EXPECT_EQ(port.GetPixelCoordCenterX(), kIntMax);
  EXPECT_EQ(port.GetPixelCoordCenterY(), kIntMax);
}

TEST(KccViewPortBadInput, MarginsAtTheIntMaximumDoNotOverflow) {
  KCC_ViewPortDraw port(800, 600);
  port.SetPixelMargins(kIntMax);

  const bool result = port.SetWorldCoord(0.0, 0.0, 100.0, 50.0);

  EXPECT_FALSE(result);  // ratio about -2.3e-8, too small
  EXPECT_EQ(port.GetPixelCoordCenterX(), 400);
  EXPECT_EQ(port.GetPixelCoordCenterY(), 300);
}

TEST(KccViewPortBadInput, IntAbsOfTheIntMinimumGivesTheIntMaximum) {
  EXPECT_EQ(OpenViewPortDraw::__IntAbs(kIntMin), kIntMax);
}

TEST(KccViewPortBadInput, DoubleAbsKeepsNaN) {
  EXPECT_TRUE(std::isnan(OpenViewPortDraw::__DoubleAbs(kNaN)));
}
