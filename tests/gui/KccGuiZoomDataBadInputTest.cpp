// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomData with values a client should not hand in: NaN, infinite and huge rectangles, odd action
// offsets, extreme pixels, and zooms the view port refuses. Every result is defined.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cmath>
#include <limits>

#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/gui/KCC_GUI_ZoomArea.h"
#include "ncappkit/gui/KCC_GUI_ZoomData.h"

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

using Corners = std::array<double, 4>;

Corners CurrentOf(const KCC_GUI_ZoomArea& area) {
  return {area.GetXmin(), area.GetYmin(), area.GetXmax(), area.GetYmax()};
}

Corners PreviousOf(const KCC_GUI_ZoomArea& area) {
  KCC_GUI_ZoomArea copy(area);
  copy.RestorePreviousValues();
  return CurrentOf(copy);
}

KCC_GUI_ZoomData ZoomOn(double xMin, double yMin, double xMax, double yMax) {
  KCC_GUI_ZoomData zoom;
  zoom.SetCurrentData(KCC_GUI_ZoomArea(xMin, yMin, xMax, yMax));
  return zoom;
}

KCC_ViewPortDraw PortShowingStart() {
  KCC_ViewPortDraw port(800, 600);
  port.SetWorldCoord(0.0, 0.0, 100.0, 50.0);
  return port;
}

}  // namespace

TEST(KccGuiZoomDataBadInput, NaNCurrentDataIsInvalidSoZoomInDoesNothing) {
  KCC_GUI_ZoomData zoom = ZoomOn(kNaN, 0.0, 100.0, 50.0);

  zoom.ZoomIn();
  zoom.PanRight();

  EXPECT_TRUE(std::isnan(zoom.GetCurrenData().GetXmin()));
  EXPECT_EQ(zoom.GetCurrenData().GetYmin(), 0.0);
  EXPECT_EQ(zoom.GetCurrenData().GetXmax(), 100.0);
  EXPECT_EQ(zoom.GetCurrenData().GetYmax(), 50.0);
}

TEST(KccGuiZoomDataBadInput, InfiniteCurrentDataZoomsInToNaNAndThenStops) {
  KCC_GUI_ZoomData zoom = ZoomOn(-kInf, 0.0, kInf, 50.0);

  zoom.ZoomIn();  // the x step is infinite: -inf + inf and inf - inf
  zoom.ZoomIn();  // no longer valid: nothing happens

  EXPECT_TRUE(std::isnan(zoom.GetCurrenData().GetXmin()));
  EXPECT_TRUE(std::isnan(zoom.GetCurrenData().GetXmax()));
  EXPECT_EQ(zoom.GetCurrenData().GetYmin(), 5.0);
  EXPECT_EQ(zoom.GetCurrenData().GetYmax(), 45.0);
  EXPECT_FALSE(zoom.GetCurrenData().Valid());
}

TEST(KccGuiZoomDataBadInput, HugeWidthOverflowsBecauseTheStepMultipliesFirst) {
  KCC_GUI_ZoomData zoom = ZoomOn(0.0, 0.0, 1e308, 50.0);

  zoom.ZoomIn();  // 1e308 * 10 is infinite before the division by 100

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{kInf, 5.0, -kInf, 45.0}));
  EXPECT_FALSE(zoom.GetCurrenData().Valid());
}

TEST(KccGuiZoomDataBadInput, NaNActionOffsetTurnsTheRectangleIntoNaN) {
  KCC_GUI_ZoomData zoom = ZoomOn(0.0, 0.0, 100.0, 50.0);
  zoom.SetActionOffset(kNaN);

  zoom.ZoomIn();

  EXPECT_TRUE(std::isnan(zoom.GetCurrenData().GetXmin()));
  EXPECT_TRUE(std::isnan(zoom.GetCurrenData().GetYmax()));
  EXPECT_FALSE(zoom.GetCurrenData().Valid());
}

TEST(KccGuiZoomDataBadInput, TooDeepZoomIsRefusedByTheViewPortWhichRestoresThePreviousArea) {
  // 0.009 x 0.0045 on 800 x 600 pixels: 1.125e-5 units per pixel; 80 % of it would be below 1e-5.
  KCC_GUI_ZoomData zoom = ZoomOn(0.0, 0.0, 0.009, 0.0045);
  KCC_ViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(zoom.GetCurrenData()));

  zoom.ZoomIn();
  const bool shown = port.SetWorldCoord(zoom.GetCurrenData());

  EXPECT_TRUE(shown);
  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{0.0, 0.0, 0.009, 0.0045}));
  EXPECT_DOUBLE_EQ(port.GetWorld2PixelRatioX(), 1.125e-5);
}

TEST(KccGuiZoomDataBadInput, OffsetZeroLeavesTheRectangleButSavesThePreviousValues) {
  KCC_GUI_ZoomArea area(-1.0, -2.0, 99.0, 48.0);
  area.SetXmin(0.0);
  area.SetYmin(0.0);
  area.SetXmax(100.0);
  area.SetYmax(50.0);  // previous (-1, -2, 99, 48)
  KCC_GUI_ZoomData zoom;
  zoom.SetCurrentData(area);
  zoom.SetActionOffset(0.0);

  zoom.ZoomIn();

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{0.0, 0.0, 100.0, 50.0}));
  EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{0.0, 0.0, 100.0, 50.0}));
}

TEST(KccGuiZoomDataBadInput, NegativeOffsetMakesZoomInGrowTheRectangle) {
  KCC_GUI_ZoomData zoom = ZoomOn(0.0, 0.0, 100.0, 50.0);
  zoom.SetActionOffset(-10.0);

  zoom.ZoomIn();

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{-10.0, -5.0, 110.0, 55.0}));
}

TEST(KccGuiZoomDataBadInput, NegativeOffsetMakesPanRightMoveLeft) {
  KCC_GUI_ZoomData zoom = ZoomOn(0.0, 0.0, 100.0, 50.0);
  zoom.SetActionOffset(-10.0);

  zoom.PanRight();

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{-10.0, 0.0, 90.0, 50.0}));
}

TEST(KccGuiZoomDataBadInput, OffsetFiftyCollapsesZoomInToTheCentre) {
  KCC_GUI_ZoomData zoom = ZoomOn(0.0, 0.0, 100.0, 50.0);
  zoom.SetActionOffset(50.0);

  zoom.ZoomIn();

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{50.0, 25.0, 50.0, 25.0}));
}

TEST(KccGuiZoomDataBadInput, OffsetAboveFiftyTurnsTheRectangleInsideOut) {
  KCC_GUI_ZoomData zoom = ZoomOn(0.0, 0.0, 100.0, 50.0);
  zoom.SetActionOffset(60.0);

  zoom.ZoomIn();

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{60.0, 30.0, 40.0, 20.0}));
}

TEST(KccGuiZoomDataBadInput, SweepAcrossTheWholeIntRangeShiftsByTheWorldDistance) {
  KCC_GUI_ZoomData zoom = ZoomOn(0.0, 0.0, 100.0, 50.0);
  KCC_ViewPortDraw port = PortShowingStart();

  zoom.Sweep(INT_MIN, INT_MIN, INT_MAX, INT_MAX, port);

  // (INT_MIN - INT_MAX) pixels of 0.125 units: 536870911.875 left, and as much up (y grows downwards).
  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()),
            (Corners{-536870911.875, 536870911.875, -536870811.875, 536870961.875}));
}

TEST(KccGuiZoomDataBadInput, ZoomInToMouseAtAnExtremePixelStillZoomsToEightyPercent) {
  KCC_GUI_ZoomData zoom = ZoomOn(0.0, 0.0, 100.0, 50.0);
  KCC_ViewPortDraw port = PortShowingStart();

  zoom.ZoomInToMouse(INT_MAX, INT_MIN, port);

  const KCC_GUI_ZoomArea& current = zoom.GetCurrenData();
  EXPECT_TRUE(current.Valid());
  EXPECT_NEAR(current.GetXmax() - current.GetXmin(), 80.0, 1e-6);
  EXPECT_NEAR(current.GetYmax() - current.GetYmin(), 40.0, 1e-6);
}
