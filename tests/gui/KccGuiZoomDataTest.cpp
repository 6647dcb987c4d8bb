// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomData: zoom and pan steps on the current world rectangle, and how a view port shows the result.
#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/foundation/KC2DArea.h"
#include "ncappkit/gui/KCC_GUI_ZoomArea.h"
#include "ncappkit/gui/KCC_GUI_ZoomData.h"

namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

// (Xmin, Ymin, Xmax, Ymax).
using Corners = std::array<double, 4>;

Corners CurrentOf(const KCC_GUI_ZoomArea& area) {
  return {area.GetXmin(), area.GetYmin(), area.GetXmax(), area.GetYmax()};
}

Corners PreviousOf(const KCC_GUI_ZoomArea& area) {
  KCC_GUI_ZoomArea copy(area);
  copy.RestorePreviousValues();
  return CurrentOf(copy);
}

// Zoom data whose current (and fit) data is (0, 0, 100, 50) with the default offset of 10 %.
KCC_GUI_ZoomData StartingZoom() {
  KCC_GUI_ZoomData zoom;
  zoom.SetFitData(KCC_GUI_ZoomArea(0.0, 0.0, 100.0, 50.0), true);
  return zoom;
}

// An 800 x 600 canvas showing world (0, 0, 100, 50): 0.125 world units per pixel, world centre (50, 25) at
// pixel (400, 300), so pixel (x, y) shows world (50 + (x - 400) / 8, 25 - (y - 300) / 8).
KCC_ViewPortDraw PortShowingStart() {
  KCC_ViewPortDraw port(800, 600);
  port.SetWorldCoord(0.0, 0.0, 100.0, 50.0);
  return port;
}

// The pixel at which `port` shows world point (wx, wy), unrounded.
std::array<double, 2> PixelOf(const KCC_ViewPortDraw& port, double wx, double wy) {
  double sx = 0.0;
  double sy = 0.0;
  port.World2ScreenPoint(wx, wy, sx, sy);
  return {sx, sy};
}

}  // namespace

TEST(KccGuiZoomData, NewZoomDataHasInvalidAreasAndOffsetTen) {
  const KCC_GUI_ZoomData zoom;

  EXPECT_FALSE(zoom.GetFitData().Valid());
  EXPECT_FALSE(zoom.GetCurrenData().Valid());
  EXPECT_EQ(zoom.GetActionOffset(), 10.0);
}

TEST(KccGuiZoomData, ZoomInMovesEachEdgeInwardsByTheOffset) {
  KCC_GUI_ZoomData zoom = StartingZoom();

  zoom.ZoomIn();

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{10.0, 5.0, 90.0, 45.0}));
}

TEST(KccGuiZoomData, ZoomInKeepsTheStartingRectangleAsPreviousValues) {
  KCC_GUI_ZoomData zoom = StartingZoom();
  zoom.GetCurrenData().SetXmin(0.0);  // previous values no longer the constructor's

  zoom.ZoomIn();

  EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{0.0, 0.0, 100.0, 50.0}));
}

TEST(KccGuiZoomData, ZoomOutMovesEachEdgeOutwardsByTheOffset) {
  KCC_GUI_ZoomData zoom = StartingZoom();

  zoom.ZoomOut();

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{-10.0, -5.0, 110.0, 55.0}));
  EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{0.0, 0.0, 100.0, 50.0}));
}

TEST(KccGuiZoomData, ZoomInThenZoomOutDoesNotReturnToTheStart) {
  KCC_GUI_ZoomData zoom = StartingZoom();

  zoom.ZoomIn();   // 80 x 40
  zoom.ZoomOut();  // 80 * 1.2 = 96 wide, 48 high

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{2.0, 1.0, 98.0, 49.0}));
}

TEST(KccGuiZoomData, ZoomStepFollowsTheActionOffset) {
  KCC_GUI_ZoomData zoom = StartingZoom();
  zoom.SetActionOffset(25.0);

  zoom.ZoomIn();

  EXPECT_EQ(zoom.GetActionOffset(), 25.0);
  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{25.0, 12.5, 75.0, 37.5}));
}

TEST(KccGuiZoomData, PanRightMovesTheRectangleByTheOffsetOfItsWidth) {
  KCC_GUI_ZoomData zoom = StartingZoom();

  zoom.PanRight();

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{10.0, 0.0, 110.0, 50.0}));
}

TEST(KccGuiZoomData, PanRightSavesOnlyThePreviousXPair) {
  KCC_GUI_ZoomArea area(-1.0, -2.0, 99.0, 48.0);
  area.SetXmin(0.0);
  area.SetYmin(0.0);
  area.SetXmax(100.0);
  area.SetYmax(50.0);  // current (0, 0, 100, 50), previous (-1, -2, 99, 48)
  KCC_GUI_ZoomData zoom;
  zoom.SetCurrentData(area);

  zoom.PanRight();

  EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{0.0, -2.0, 100.0, 48.0}));
}

TEST(KccGuiZoomData, PanLeftMovesTheRectangleLeft) {
  KCC_GUI_ZoomData zoom = StartingZoom();

  zoom.PanLeft();

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{-10.0, 0.0, 90.0, 50.0}));
}

TEST(KccGuiZoomData, PanUpMovesTheRectangleUpByTheOffsetOfItsHeight) {
  KCC_GUI_ZoomData zoom = StartingZoom();

  zoom.PanUp();

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{0.0, 5.0, 100.0, 55.0}));
}

TEST(KccGuiZoomData, PanDownMovesTheRectangleDown) {
  KCC_GUI_ZoomData zoom = StartingZoom();

  zoom.PanDown();

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{0.0, -5.0, 100.0, 45.0}));
}

TEST(KccGuiZoomData, PanUpSavesOnlyThePreviousYPair) {
  KCC_GUI_ZoomArea area(-1.0, -2.0, 99.0, 48.0);
  area.SetXmin(0.0);
  area.SetYmin(0.0);
  area.SetXmax(100.0);
  area.SetYmax(50.0);  // current (0, 0, 100, 50), previous (-1, -2, 99, 48)
  KCC_GUI_ZoomData zoom;
  zoom.SetCurrentData(area);

  zoom.PanUp();

  EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{-1.0, 0.0, 99.0, 50.0}));
}

TEST(KccGuiZoomData, SetFitDataWithoutCurrentLeavesCurrentInvalidSoZoomInDoesNothing) {
  KCC_GUI_ZoomData zoom;

  zoom.SetFitData(KCC_GUI_ZoomArea(0.0, 0.0, 100.0, 50.0), false);
  zoom.ZoomIn();

  EXPECT_EQ(CurrentOf(zoom.GetFitData()), (Corners{0.0, 0.0, 100.0, 50.0}));
  EXPECT_FALSE(zoom.GetCurrenData().Valid());
  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{kLargest, kLargest, -kLargest, -kLargest}));
}

TEST(KccGuiZoomData, SetFitDataAlsoCurrentCopiesAllEightValuesIntoBoth) {
  KCC_GUI_ZoomArea area(1.0, 2.0, 3.0, 4.0);
  area.SetXmax(30.0);  // previous Xmax 3
  KCC_GUI_ZoomData zoom;

  zoom.SetFitData(area, true);

  EXPECT_EQ(CurrentOf(zoom.GetFitData()), (Corners{1.0, 2.0, 30.0, 4.0}));
  EXPECT_EQ(PreviousOf(zoom.GetFitData()), (Corners{1.0, 2.0, 3.0, 4.0}));
  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{1.0, 2.0, 30.0, 4.0}));
  EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{1.0, 2.0, 3.0, 4.0}));
}

TEST(KccGuiZoomData, SetFitDataFromABoundingAreaReadsMinXMinYMaxXMaxY) {
  KC2DArea box;
  box.ApplyPoint(1.0, 2.0);
  box.ApplyPoint(-3.0, 5.0);
  KCC_GUI_ZoomData zoom;

  zoom.SetFitData(box, true);

  EXPECT_EQ(CurrentOf(zoom.GetFitData()), (Corners{-3.0, 2.0, 1.0, 5.0}));
  EXPECT_EQ(PreviousOf(zoom.GetFitData()), (Corners{-3.0, 2.0, 1.0, 5.0}));
  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{-3.0, 2.0, 1.0, 5.0}));
}

TEST(KccGuiZoomData, SetFitDataFromABoundingAreaWithoutCurrentLeavesCurrentInvalid) {
  KC2DArea box;
  box.ApplyPoint(1.0, 2.0);
  box.ApplyPoint(-3.0, 5.0);
  KCC_GUI_ZoomData zoom;

  zoom.SetFitData(box, false);

  EXPECT_TRUE(zoom.GetFitData().Valid());
  EXPECT_FALSE(zoom.GetCurrenData().Valid());
}

TEST(KccGuiZoomData, SetFitDataFromAnEmptyBoundingAreaGivesAZeroRectangleTheViewPortRefuses) {
  const KC2DArea empty;
  KCC_GUI_ZoomData zoom;
  KCC_ViewPortDraw port = PortShowingStart();

  zoom.SetFitData(empty, true);
  const bool shown = port.SetWorldCoord(zoom.GetCurrenData());

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{0.0, 0.0, 0.0, 0.0}));
  EXPECT_TRUE(zoom.GetCurrenData().Valid());
  EXPECT_FALSE(shown);
}

TEST(KccGuiZoomData, SetCurrentDataCopiesAllEightValuesAndLeavesTheFitData) {
  KCC_GUI_ZoomArea area(1.0, 2.0, 3.0, 4.0);
  area.SetYmin(20.0);  // previous Ymin 2
  KCC_GUI_ZoomData zoom;

  zoom.SetCurrentData(area);

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{1.0, 20.0, 3.0, 4.0}));
  EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{1.0, 2.0, 3.0, 4.0}));
  EXPECT_FALSE(zoom.GetFitData().Valid());
}

TEST(KccGuiZoomData, RestoreFitDataCopiesTheFitDataWithItsPreviousValues) {
  KCC_GUI_ZoomData zoom = StartingZoom();
  zoom.GetFitData().SetXmin(-5.0);  // fit (-5, 0, 100, 50), previous Xmin 0
  zoom.ZoomIn();

  zoom.RestoreFitData();

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{-5.0, 0.0, 100.0, 50.0}));
  EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{0.0, 0.0, 100.0, 50.0}));
}

TEST(KccGuiZoomData, MakeInvalidInvalidatesBothAreasAndKeepsTheirPreviousValues) {
  KCC_GUI_ZoomData zoom = StartingZoom();

  zoom.MakeInvalid();

  EXPECT_FALSE(zoom.GetFitData().Valid());
  EXPECT_FALSE(zoom.GetCurrenData().Valid());
  EXPECT_EQ(PreviousOf(zoom.GetFitData()), (Corners{0.0, 0.0, 100.0, 50.0}));
  EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{0.0, 0.0, 100.0, 50.0}));
}

TEST(KccGuiZoomData, CopyHasTheSameAreasAndOffset) {
  KCC_GUI_ZoomData zoom = StartingZoom();
  zoom.SetActionOffset(20.0);
  zoom.ZoomIn();  // current (20, 10, 80, 40), previous (0, 0, 100, 50)

  const KCC_GUI_ZoomData copy(zoom);

  EXPECT_EQ(copy.GetActionOffset(), 20.0);
  EXPECT_EQ(CurrentOf(copy.GetFitData()), (Corners{0.0, 0.0, 100.0, 50.0}));
  EXPECT_EQ(CurrentOf(copy.GetCurrenData()), (Corners{20.0, 10.0, 80.0, 40.0}));
  EXPECT_EQ(PreviousOf(copy.GetCurrenData()), (Corners{0.0, 0.0, 100.0, 50.0}));
}

TEST(KccGuiZoomData, AssignmentTakesOverTheAreasAndOffset) {
  KCC_GUI_ZoomData zoom = StartingZoom();
  zoom.SetActionOffset(20.0);
  zoom.ZoomIn();
  KCC_GUI_ZoomData other;

  other = zoom;

  EXPECT_EQ(other.GetActionOffset(), 20.0);
  EXPECT_EQ(CurrentOf(other.GetFitData()), (Corners{0.0, 0.0, 100.0, 50.0}));
  EXPECT_EQ(CurrentOf(other.GetCurrenData()), (Corners{20.0, 10.0, 80.0, 40.0}));
  EXPECT_EQ(PreviousOf(other.GetCurrenData()), (Corners{0.0, 0.0, 100.0, 50.0}));
}

TEST(KccGuiZoomData, EveryZoomAndPanDoesNothingWhileTheCurrentDataIsInvalid) {
  KCC_ViewPortDraw port = PortShowingStart();
  KCC_GUI_ZoomArea invalid(0.0, 0.0, 100.0, 50.0);
  invalid.MakeInvalid();  // previous values stay (0, 0, 100, 50)
  const std::array<void (*)(KCC_GUI_ZoomData&, KCC_ViewPortDraw&), 9> steps = {
      [](KCC_GUI_ZoomData& z, KCC_ViewPortDraw&) { z.ZoomIn(); },
      [](KCC_GUI_ZoomData& z, KCC_ViewPortDraw&) { z.ZoomOut(); },
      [](KCC_GUI_ZoomData& z, KCC_ViewPortDraw&) { z.PanLeft(); },
      [](KCC_GUI_ZoomData& z, KCC_ViewPortDraw&) { z.PanRight(); },
      [](KCC_GUI_ZoomData& z, KCC_ViewPortDraw&) { z.PanUp(); },
      [](KCC_GUI_ZoomData& z, KCC_ViewPortDraw&) { z.PanDown(); },
      [](KCC_GUI_ZoomData& z, KCC_ViewPortDraw& p) { z.Sweep(400, 300, 480, 260, p); },
      [](KCC_GUI_ZoomData& z, KCC_ViewPortDraw& p) { z.RepositionZoomAreaCenter(480, 260, p); },
      [](KCC_GUI_ZoomData& z, KCC_ViewPortDraw& p) { z.ZoomInToMouse(200, 400, p); },
  };

  for (std::size_t i = 0; i < steps.size(); ++i) {
    SCOPED_TRACE("step " + std::to_string(i));
    KCC_GUI_ZoomData zoom;
    zoom.SetCurrentData(invalid);
    steps[i](zoom, port);
    EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{kLargest, kLargest, -kLargest, -kLargest}));
    EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{0.0, 0.0, 100.0, 50.0}));
  }
}

TEST(KccGuiZoomData, SweepShiftsTheRectangleSoThePictureFollowsTheMouse) {
  KCC_GUI_ZoomData zoom = StartingZoom();
  KCC_ViewPortDraw port = PortShowingStart();

  zoom.Sweep(400, 300, 480, 260, port);  // from world (50, 25) to the pixel of world (60, 30)

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{-10.0, -5.0, 90.0, 45.0}));
}

TEST(KccGuiZoomData, SweptRectangleShowsTheGrabbedPointUnderTheReleasePixel) {
  KCC_GUI_ZoomData zoom = StartingZoom();
  KCC_ViewPortDraw port = PortShowingStart();

  zoom.Sweep(400, 300, 480, 260, port);
  port.SetWorldCoord(zoom.GetCurrenData());

  EXPECT_EQ(PixelOf(port, 50.0, 25.0), (std::array<double, 2>{480.0, 260.0}));
}

TEST(KccGuiZoomData, SweepSavesAllFourPreviousValues) {
  KCC_GUI_ZoomData zoom = StartingZoom();
  KCC_ViewPortDraw port = PortShowingStart();
  zoom.ZoomIn();  // (10, 5, 90, 45)

  zoom.Sweep(400, 300, 480, 260, port);

  EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{10.0, 5.0, 90.0, 45.0}));
}

TEST(KccGuiZoomData, RepositionZoomAreaCenterMakesTheClickedPointTheCentre) {
  KCC_GUI_ZoomData zoom = StartingZoom();
  KCC_ViewPortDraw port = PortShowingStart();

  zoom.RepositionZoomAreaCenter(480, 260, port);  // world (60, 30)

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{10.0, 5.0, 110.0, 55.0}));
  EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{0.0, 0.0, 100.0, 50.0}));
}

TEST(KccGuiZoomData, RepositionZoomAreaCenterMeasuresFromTheViewPortsCentreNotTheZoomData) {
  KCC_GUI_ZoomData zoom;
  zoom.SetCurrentData(KCC_GUI_ZoomArea(100.0, 100.0, 200.0, 150.0));
  KCC_ViewPortDraw port = PortShowingStart();  // world centre (50, 25)

  zoom.RepositionZoomAreaCenter(480, 260, port);  // world (60, 30): 10 right and 5 up of the port's centre

  EXPECT_EQ(CurrentOf(zoom.GetCurrenData()), (Corners{110.0, 105.0, 210.0, 155.0}));
}

TEST(KccGuiZoomData, ZoomInToMouseZoomsInAroundThePointUnderTheMouse) {
  KCC_GUI_ZoomData zoom = StartingZoom();
  KCC_ViewPortDraw port = PortShowingStart();

  zoom.ZoomInToMouse(200, 400, port);  // world (25, 12.5)

  const KCC_GUI_ZoomArea& current = zoom.GetCurrenData();
  EXPECT_DOUBLE_EQ(current.GetXmin(), 5.0);
  EXPECT_DOUBLE_EQ(current.GetYmin(), 2.5);
  EXPECT_DOUBLE_EQ(current.GetXmax(), 85.0);
  EXPECT_DOUBLE_EQ(current.GetYmax(), 42.5);
}

TEST(KccGuiZoomData, ZoomInToMouseKeepsTheWorldPointUnderTheMouseWithinAPixel) {
  const std::array<std::array<int, 2>, 6> mice = {
      {{200, 400}, {0, 0}, {799, 599}, {401, 299}, {123, 457}, {-50, 650}}};

  for (const auto& mouse : mice) {
    SCOPED_TRACE("mouse at " + std::to_string(mouse[0]) + ", " + std::to_string(mouse[1]));
    KCC_GUI_ZoomData zoom = StartingZoom();
    KCC_ViewPortDraw port = PortShowingStart();
    double wx = 0.0;
    double wy = 0.0;
    port.Screen2WorldPoint(mouse[0], mouse[1], wx, wy);

    zoom.ZoomInToMouse(mouse[0], mouse[1], port);
    ASSERT_TRUE(port.SetWorldCoord(zoom.GetCurrenData()));

    const std::array<double, 2> pixel = PixelOf(port, wx, wy);
    EXPECT_NEAR(pixel[0], mouse[0], 1.0);
    EXPECT_NEAR(pixel[1], mouse[1], 1.0);
    EXPECT_DOUBLE_EQ(port.GetWorld2PixelRatioX(), 0.1);  // zoomed in: 80 % of 0.125
  }
}

TEST(KccGuiZoomData, ZoomInToMousePreviousValuesHoldTheZoomedRectangleBeforeTheLastShift) {
  KCC_GUI_ZoomData zoom = StartingZoom();
  KCC_ViewPortDraw port = PortShowingStart();

  zoom.ZoomInToMouse(200, 400, port);

  // Centred on (25, 12.5) and zoomed in, not the (0, 0, 100, 50) of before the call.
  EXPECT_EQ(PreviousOf(zoom.GetCurrenData()), (Corners{-15.0, -7.5, 65.0, 32.5}));
}

TEST(KccGuiZoomData, ZoomInToMouseLeavesTheViewPortAlone) {
  KCC_GUI_ZoomData zoom = StartingZoom();
  KCC_ViewPortDraw port = PortShowingStart();

  zoom.ZoomInToMouse(200, 400, port);

  EXPECT_EQ(port.GetWorld2PixelRatioX(), 0.125);
  EXPECT_EQ(port.GetWorldCoordCenterX(), 50.0);
  EXPECT_EQ(port.GetWorldCoordCenterY(), 25.0);
  EXPECT_EQ(port.GetPixelCoordCenterX(), 400);
  EXPECT_EQ(port.GetPixelCoordCenterY(), 300);
}

TEST(KccGuiZoomData, ZoomInToMouseThatGoesTooDeepLeavesTheRectangleWhereItWas) {
  // 0.009 x 0.0045 on 800 x 600 pixels: 1.125e-5 units per pixel; 80 % of it would be below 1e-5.
  KCC_GUI_ZoomData zoom;
  zoom.SetCurrentData(KCC_GUI_ZoomArea(0.0, 0.0, 0.009, 0.0045));
  KCC_ViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(zoom.GetCurrenData()));

  zoom.ZoomInToMouse(200, 400, port);

  const KCC_GUI_ZoomArea& current = zoom.GetCurrenData();
  EXPECT_NEAR(current.GetXmin(), 0.0, 1e-15);
  EXPECT_NEAR(current.GetYmin(), 0.0, 1e-15);
  EXPECT_NEAR(current.GetXmax(), 0.009, 1e-15);
  EXPECT_NEAR(current.GetYmax(), 0.0045, 1e-15);
}
