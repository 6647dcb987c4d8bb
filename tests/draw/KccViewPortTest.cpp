// SPDX-License-Identifier: MIT
// KCC_ViewPort and its two kinds: defaults, setters, the ratio calculation, showing zoom areas and the draw
// port's equality. The corner tables of the mappings are in KccViewPortMappingTest.cpp.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "draw/ViewPortKinds.h"
#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/draw/KCC_ViewPortPlot.h"
#include "ncappkit/gui/KCC_GUI_ZoomArea.h"
#include "support/TestData.h"

namespace {

struct KindRow {
  const char* name;
  ViewPortKind kind;
};

const KindRow kKinds[] = {{"Draw", ViewPortKind::Draw}, {"Plot", ViewPortKind::Plot}};

// What both kinds share: everything but the ratio rule.
class KccViewPortKinds : public ::testing::TestWithParam<KindRow> {
 protected:
  std::unique_ptr<KCC_ViewPort> Default() const { return MakeViewPort(GetParam().kind); }
  std::unique_ptr<KCC_ViewPort> Sized(int width, int height) const {
    return MakeViewPort(GetParam().kind, width, height);
  }
};

}  // namespace

TEST_P(KccViewPortKinds, DefaultPortHasAnEmptyCanvas) {
  const auto port = Default();

  EXPECT_EQ(port->GetCanvasHorPixels(), 0);
  EXPECT_EQ(port->GetCanvasVerPixels(), 0);
}

TEST_P(KccViewPortKinds, DefaultPortHasMarginsTenTenTenThirty) {
  const auto port = Default();

  EXPECT_EQ(port->GetPixelMarginLeft(), 10);
  EXPECT_EQ(port->GetPixelMarginRight(), 10);
  EXPECT_EQ(port->GetPixelMarginBottom(), 10);
  EXPECT_EQ(port->GetPixelMarginTop(), 30);
}

TEST_P(KccViewPortKinds, DefaultPortShowsTheWorldFromZeroToHundredAtRatioOne) {
  const auto port = Default();

  EXPECT_TRUE(port->IsRefCornorBottomLeft());
  EXPECT_EQ(port->GetWorldCoordCenterX(), 50.0);
  EXPECT_EQ(port->GetWorldCoordCenterY(), 50.0);
  EXPECT_EQ(port->GetWorld2PixelRatioX(), 1.0);
  EXPECT_EQ(port->GetWorld2PixelRatioY(), 1.0);
  EXPECT_EQ(port->GetPixelCoordCenterX(), 0);
  EXPECT_EQ(port->GetPixelCoordCenterY(), 0);
}

TEST_P(KccViewPortKinds, SizedPortHasTheCanvasAndNoMargins) {
  const auto port = Sized(800, 600);

  EXPECT_EQ(port->GetCanvasHorPixels(), 800);
  EXPECT_EQ(port->GetCanvasVerPixels(), 600);
  EXPECT_EQ(port->GetPixelMarginLeft(), 0);
  EXPECT_EQ(port->GetPixelMarginRight(), 0);
  EXPECT_EQ(port->GetPixelMarginBottom(), 0);
  EXPECT_EQ(port->GetPixelMarginTop(), 0);
}

TEST_P(KccViewPortKinds, SizedPortDoesNotCalculateTheRatios) {
  const auto port = Sized(800, 600);

  EXPECT_EQ(port->GetWorld2PixelRatioX(), 1.0);
  EXPECT_EQ(port->GetWorld2PixelRatioY(), 1.0);
  EXPECT_EQ(port->GetPixelCoordCenterX(), 0);
}

TEST_P(KccViewPortKinds, FreshPortMapsTheWorldCentreToPixelZero) {
  const auto port = Sized(800, 600);
  int sx = -1;
  int sy = -1;

  port->World2ScreenPoint(50.0, 50.0, sx, sy);

  EXPECT_EQ(sx, 0);
  EXPECT_EQ(sy, 0);
}

TEST_P(KccViewPortKinds, FreshPortMapsTheWorldOriginToMinusFiftyFifty) {
  const auto port = Default();
  int sx = 0;
  int sy = 0;

  port->World2ScreenPoint(0.0, 0.0, sx, sy);

  EXPECT_EQ(sx, -50);
  EXPECT_EQ(sy, 50);
}

TEST_P(KccViewPortKinds, InitSetsTheCanvasAndClearsEveryMargin) {
  const auto port = Default();

  port->Init(640, 480);

  EXPECT_EQ(port->GetCanvasHorPixels(), 640);
  EXPECT_EQ(port->GetCanvasVerPixels(), 480);
  EXPECT_EQ(port->GetPixelMarginLeft(), 0);
  EXPECT_EQ(port->GetPixelMarginTop(), 0);
}

TEST_P(KccViewPortKinds, SetCanvasPixelsTakesLeftRightBottomTop) {
  const auto port = Default();

  port->SetCanvasPixels(10, 110, 70, 20);

  EXPECT_EQ(port->GetCanvasHorPixels(), 100);
  EXPECT_EQ(port->GetCanvasVerPixels(), 50);
}

TEST_P(KccViewPortKinds, CanvasSizesAreSignedWithoutAbsoluteValue) {
  const auto port = Default();

  port->SetCanvasPixels(110, 10, 20, 70);

  EXPECT_EQ(port->GetCanvasHorPixels(), -100);
  EXPECT_EQ(port->GetCanvasVerPixels(), -50);
}

TEST_P(KccViewPortKinds, SetPixelMarginsSetsAllFour) {
  const auto port = Default();

  port->SetPixelMargins(7);

  EXPECT_EQ(port->GetPixelMarginLeft(), 7);
  EXPECT_EQ(port->GetPixelMarginRight(), 7);
  EXPECT_EQ(port->GetPixelMarginBottom(), 7);
  EXPECT_EQ(port->GetPixelMarginTop(), 7);
}

TEST_P(KccViewPortKinds, EachMarginSetterSetsOnlyItsMargin) {
  const auto port = Sized(800, 600);

  port->SetPixelMarginLeft(1);
  port->SetPixelMarginRight(2);
  port->SetPixelMarginBottom(3);
  port->SetPixelMarginTop(4);

  EXPECT_EQ(port->GetPixelMarginLeft(), 1);
  EXPECT_EQ(port->GetPixelMarginRight(), 2);
  EXPECT_EQ(port->GetPixelMarginBottom(), 3);
  EXPECT_EQ(port->GetPixelMarginTop(), 4);
}

TEST_P(KccViewPortKinds, SetWorldCoordTakesBothMinimaFirst) {
  const auto port = Sized(800, 600);

  port->SetWorldCoord(1.0, 2.0, 3.0, 6.0);

  EXPECT_EQ(port->GetWorldCoordCenterX(), 2.0);
  EXPECT_EQ(port->GetWorldCoordCenterY(), 4.0);
}

TEST_P(KccViewPortKinds, PixelCentreIsHalfTheUsableSizePlusTheLeftAndTopMargins) {
  const auto port = Sized(800, 600);
  port->SetPixelMarginLeft(20);
  port->SetPixelMarginRight(80);
  port->SetPixelMarginBottom(40);
  port->SetPixelMarginTop(60);

  ASSERT_TRUE(port->SetWorldCoord(0.0, 0.0, 100.0, 50.0));

  EXPECT_EQ(port->GetPixelCoordCenterX(), 370);  // (800 - 100) / 2 + 20
  EXPECT_EQ(port->GetPixelCoordCenterY(), 310);  // (600 - 100) / 2 + 60
}

TEST_P(KccViewPortKinds, OddUsableWidthTruncatesTheCentre) {
  const auto port = Default();            // margins 10, 10, 10, 30
  port->SetCanvasPixels(0, 821, 600, 0);  // usable width 801

  ASSERT_TRUE(port->SetWorldCoord(0.0, 0.0, 100.0, 50.0));

  EXPECT_EQ(port->GetPixelCoordCenterX(), 410);  // 801 / 2 = 400, plus margin left 10
}

TEST_P(KccViewPortKinds, PixelCentreIsMeasuredFromPixelZero) {
  const auto port = Sized(800, 600);
  port->SetCanvasPixels(100, 900, 650, 50);

  ASSERT_TRUE(port->SetWorldCoord(0.0, 0.0, 100.0, 50.0));

  EXPECT_EQ(port->GetPixelCoordCenterX(), 400);  // not 500
  EXPECT_EQ(port->GetPixelCoordCenterY(), 300);  // not 350
}

TEST_P(KccViewPortKinds, EmptyXExtentIsRefusedAndKeepsTheRatios) {
  const auto port = Sized(800, 600);
  ASSERT_TRUE(port->SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  const double ratioX = port->GetWorld2PixelRatioX();

  const bool result = port->SetWorldCoord(5.0, 0.0, 5.0, 50.0);

  EXPECT_FALSE(result);
  EXPECT_EQ(port->GetWorldCoordCenterX(), 5.0);  // the degenerate extents are stored
  EXPECT_EQ(port->GetWorld2PixelRatioX(), ratioX);
}

TEST_P(KccViewPortKinds, EmptyYExtentIsRefused) {
  const auto port = Sized(800, 600);

  EXPECT_FALSE(port->SetWorldCoord(0.0, 7.0, 100.0, 7.0));
}

TEST_P(KccViewPortKinds, FailedCalculationKeepsTheCentreOfTheLastSuccess) {
  const auto port = Sized(800, 600);
  ASSERT_TRUE(port->SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  port->Init(200, 100);

  ASSERT_FALSE(port->SetWorldCoord(0.0, 0.0, 0.0, 50.0));

  EXPECT_EQ(port->GetPixelCoordCenterX(), 400);
  EXPECT_EQ(port->GetPixelCoordCenterY(), 300);
}

TEST_P(KccViewPortKinds, UsableWidthOfZeroIsRefused) {
  const auto port = Sized(100, 600);
  port->SetPixelMarginLeft(40);
  port->SetPixelMarginRight(60);

  EXPECT_FALSE(port->SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  EXPECT_EQ(port->GetPixelCoordCenterX(), 0);
}

TEST_P(KccViewPortKinds, UsableHeightOfZeroIsRefused) {
  const auto port = Sized(800, 40);
  port->SetPixelMarginTop(30);
  port->SetPixelMarginBottom(10);

  EXPECT_FALSE(port->SetWorldCoord(0.0, 0.0, 100.0, 50.0));
}

TEST_P(KccViewPortKinds, CanvasChangeCountsOnlyFromTheNextSetWorldCoord) {
  const auto port = Sized(800, 600);
  ASSERT_TRUE(port->SetWorldCoord(0.0, 0.0, 100.0, 50.0));

  port->Init(400, 300);
  int sx = 0;
  int sy = 0;
  port->World2ScreenPoint(50.0, 25.0, sx, sy);

  EXPECT_EQ(sx, 400);
  EXPECT_EQ(sy, 300);
}

TEST_P(KccViewPortKinds, CornerChangeCountsOnlyFromTheNextSetWorldCoord) {
  const auto port = Sized(800, 600);
  ASSERT_TRUE(port->SetWorldCoord(0.0, 0.0, 100.0, 50.0));  // ratio X 0.125 for both kinds

  port->SetRefCornorBottomRight();

  EXPECT_EQ(port->GetWorld2PixelRatioX(), 0.125);
}

TEST_P(KccViewPortKinds, CopyConstructorCopiesEveryField) {
  const auto original = Sized(800, 600);
  original->SetRefCornorTopRight();
  ASSERT_TRUE(original->SetWorldCoord(0.0, 0.0, 100.0, 50.0));

  std::unique_ptr<KCC_ViewPort> copy;
  if (GetParam().kind == ViewPortKind::Draw)
    copy = std::make_unique<KCC_ViewPortDraw>(static_cast<const KCC_ViewPortDraw&>(*original));
  else
    copy = std::make_unique<KCC_ViewPortPlot>(static_cast<const KCC_ViewPortPlot&>(*original));

  EXPECT_TRUE(copy->IsRefCornorTopRight());
  EXPECT_EQ(copy->GetCanvasHorPixels(), 800);
  EXPECT_EQ(copy->GetCanvasVerPixels(), 600);
  EXPECT_EQ(copy->GetPixelMarginTop(), 0);
  EXPECT_EQ(copy->GetWorldCoordCenterX(), 50.0);
  EXPECT_EQ(copy->GetWorldCoordCenterY(), 25.0);
  EXPECT_EQ(copy->GetWorld2PixelRatioX(), 0.125);
  EXPECT_EQ(copy->GetPixelCoordCenterX(), 400);
  EXPECT_EQ(copy->GetPixelCoordCenterY(), 300);
}

TEST_P(KccViewPortKinds, ZoomAreaThatCalculatesIsShownAndLeftAlone) {
  const auto port = Sized(800, 600);
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);
  area.SetXmax(200.0);

  const bool result = port->SetWorldCoord(area);

  EXPECT_TRUE(result);
  EXPECT_EQ(area.GetXmax(), 200.0);
  EXPECT_EQ(port->GetWorldCoordCenterX(), 100.0);
  EXPECT_EQ(port->GetWorld2PixelRatioX(), 0.25);
}

TEST_P(KccViewPortKinds, ZoomAreaWithAnEmptyExtentIsRefusedWithoutRestoring) {
  const auto port = Sized(800, 600);
  ASSERT_TRUE(port->SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);
  area.SetXmax(0.0);

  const bool result = port->SetWorldCoord(area);

  EXPECT_FALSE(result);
  EXPECT_EQ(area.GetXmax(), 0.0);                  // the area is not restored
  EXPECT_EQ(port->GetWorldCoordCenterX(), 0.0);    // the port holds the area's extents
  EXPECT_EQ(port->GetWorld2PixelRatioX(), 0.125);  // with the ratios of the last success
}

INSTANTIATE_TEST_SUITE_P(Kinds, KccViewPortKinds, ::testing::ValuesIn(kKinds), RowName());

TEST(KccViewPortDraw, RatioIsTheLargerOfTheTwoAxes) {
  KCC_ViewPortDraw port(800, 600);

  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));

  EXPECT_EQ(port.GetWorld2PixelRatioX(), 0.125);  // max(100 / 800, 50 / 600)
  EXPECT_EQ(port.GetWorld2PixelRatioY(), 0.125);
}

TEST(KccViewPortDraw, Init800By600MapsTheWorldOriginToZeroFiveHundred) {
  KCC_ViewPortDraw port;
  port.Init(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  int sx = -1;
  int sy = -1;

  port.World2ScreenPoint(0.0, 0.0, sx, sy);

  EXPECT_EQ(port.GetPixelCoordCenterX(), 400);
  EXPECT_EQ(port.GetPixelCoordCenterY(), 300);
  EXPECT_EQ(sx, 0);
  EXPECT_EQ(sy, 500);
}

TEST(KccViewPortDraw, RatioBelowTheLimitIsRefused) {
  KCC_ViewPortDraw port(800, 600);

  const bool result = port.SetWorldCoord(0.0, 0.0, 0.001, 0.001);

  EXPECT_FALSE(result);
  EXPECT_TRUE(port.IsWorld2PixelRatioTooSmall());
}

TEST(KccViewPortDraw, TooSmallRatioStillStoresTheCentre) {
  KCC_ViewPortDraw port(800, 600);

  ASSERT_FALSE(port.SetWorldCoord(0.0, 0.0, 0.001, 0.001));

  EXPECT_EQ(port.GetPixelCoordCenterX(), 400);
  EXPECT_EQ(port.GetPixelCoordCenterY(), 300);
}

TEST(KccViewPortDraw, TooDeepZoomAreaIsRestoredAndShownAsBefore) {
  KCC_ViewPortDraw port(800, 600);
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);
  area.SetXmin(10.0);
  area.SetYmin(10.0);
  area.SetXmax(10.001);
  area.SetYmax(10.001);

  const bool result = port.SetWorldCoord(area);

  EXPECT_TRUE(result);  // the result of showing the restored values
  EXPECT_EQ(area.GetXmin(), 0.0);
  EXPECT_EQ(area.GetYmin(), 0.0);
  EXPECT_EQ(area.GetXmax(), 100.0);
  EXPECT_EQ(area.GetYmax(), 50.0);
  EXPECT_EQ(port.GetWorldCoordCenterX(), 50.0);
  EXPECT_EQ(port.GetWorldCoordCenterY(), 25.0);
  EXPECT_EQ(port.GetWorld2PixelRatioX(), 0.125);
}

TEST(KccViewPortDraw, TooDeepZoomAreaWhosePreviousValuesAreTooDeepToo) {
  KCC_ViewPortDraw port(800, 600);
  KCC_GUI_ZoomArea area(0.0, 0.0, 0.001, 0.001);  // previous values equal the current ones

  const bool result = port.SetWorldCoord(area);

  EXPECT_FALSE(result);  // the second calculation fails as well
  EXPECT_EQ(area.GetXmax(), 0.001);
  EXPECT_TRUE(port.IsWorld2PixelRatioTooSmall());
}

TEST(KccViewPortDraw, RestoredZoomAreaGivesBackOnlyTheLastChangePerCoordinate) {
  KCC_ViewPortDraw port(800, 600);
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);
  area.SetXmax(60.0);
  area.SetXmax(0.001);  // previous Xmax is now 60, not 100
  area.SetYmax(0.001);

  ASSERT_TRUE(port.SetWorldCoord(area));

  EXPECT_EQ(area.GetXmax(), 60.0);
  EXPECT_EQ(port.GetWorldCoordCenterX(), 30.0);
}

TEST(KccViewPortDraw, EqualWhenMarginsAndRatiosMatchWhateverTheCanvasCornerAndWorld) {
  KCC_ViewPortDraw first(800, 600);
  ASSERT_TRUE(first.SetWorldCoord(0.0, 0.0, 100.0, 50.0));  // 0.125
  KCC_ViewPortDraw second(1600, 1200);
  second.SetRefCornorTopRight();
  ASSERT_TRUE(second.SetWorldCoord(-100.0, 0.0, 100.0, 10.0));  // 200 / 1600 = 0.125

  EXPECT_TRUE(first == second);
}

TEST(KccViewPortDraw, EqualWhenRatiosDifferByLessThanTheTolerance) {
  KCC_ViewPortDraw first(800, 600);
  ASSERT_TRUE(first.SetWorldCoord(0.0, 0.0, 100.0, 50.0));  // 0.125
  KCC_ViewPortDraw second(800, 600);
  ASSERT_TRUE(second.SetWorldCoord(0.0, 0.0, 100.004, 50.0));  // 0.125005

  EXPECT_TRUE(first == second);
}

TEST(KccViewPortDraw, NotEqualWhenRatiosDifferByMoreThanTheTolerance) {
  KCC_ViewPortDraw first(800, 600);
  ASSERT_TRUE(first.SetWorldCoord(0.0, 0.0, 100.0, 50.0));  // 0.125
  KCC_ViewPortDraw second(800, 600);
  ASSERT_TRUE(second.SetWorldCoord(0.0, 0.0, 100.016, 50.0));  // 0.12502

  EXPECT_FALSE(first == second);
}

TEST(KccViewPortDraw, NotEqualWhenOneMarginDiffers) {
  KCC_ViewPortDraw first(800, 600);
  KCC_ViewPortDraw second(800, 600);

  second.SetPixelMarginTop(1);

  EXPECT_FALSE(first == second);
}

TEST(KccViewPortDraw, AssignmentCopiesEveryField) {
  KCC_ViewPortDraw source(800, 600);
  source.SetPixelMarginLeft(5);
  source.SetRefCornorBottomRight();
  ASSERT_TRUE(source.SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  KCC_ViewPortDraw target;

  target = source;

  EXPECT_EQ(target.GetCanvasHorPixels(), 800);
  EXPECT_EQ(target.GetPixelMarginLeft(), 5);
  EXPECT_TRUE(target.IsRefCornorBottomRight());
  EXPECT_EQ(target.GetWorldCoordCenterX(), 50.0);
  EXPECT_EQ(target.GetWorld2PixelRatioX(), source.GetWorld2PixelRatioX());
  EXPECT_EQ(target.GetPixelCoordCenterX(), source.GetPixelCoordCenterX());
}

TEST(KccViewPortDraw, UnknownCornerFailsWithBothRatiosZero) {
  OpenViewPortDraw carrier(800, 600);
  carrier.ForceCorner(7);
  KCC_ViewPortDraw port(carrier);  // a copy carrying the unknown corner

  const bool result = port.SetWorldCoord(0.0, 0.0, 100.0, 50.0);

  EXPECT_FALSE(result);
  EXPECT_EQ(port.GetWorld2PixelRatioX(), 0.0);
  EXPECT_EQ(port.GetWorld2PixelRatioY(), 0.0);
}

TEST(KccViewPortDraw, UnknownCornerAnswersNoCornerPredicate) {
  OpenViewPortDraw port(800, 600);

  port.ForceCorner(-1);

  EXPECT_FALSE(port.IsRefCornorBottomLeft());
  EXPECT_FALSE(port.IsRefCornorBottomRight());
  EXPECT_FALSE(port.IsRefCornorTopLeft());
  EXPECT_FALSE(port.IsRefCornorTopRight());
}

TEST(KccViewPortDraw, UnknownCornerMapsLikeBottomLeft) {
  OpenViewPortDraw port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  port.ForceCorner(9);  // after the calculation, so the ratios are usable
  int sx = 0;
  int sy = 0;
  double wx = 0.0;
  double wy = 0.0;

  port.World2ScreenPoint(0.0, 0.0, sx, sy);
  port.Screen2WorldPoint(0, 500, wx, wy);

  EXPECT_EQ(sx, 0);
  EXPECT_EQ(sy, 500);
  EXPECT_EQ(wx, 0.0);
  EXPECT_EQ(wy, 0.0);
}

TEST(KccViewPortDraw, DoubleAbsNegatesOnlyValuesBelowZero) {
  EXPECT_EQ(OpenViewPortDraw::__DoubleAbs(-2.5), 2.5);
  EXPECT_EQ(OpenViewPortDraw::__DoubleAbs(3.0), 3.0);
}

TEST(KccViewPortDraw, DoubleMaxGivesTheSecondUnlessTheFirstIsLarger) {
  EXPECT_EQ(OpenViewPortDraw::__DoubleMax(2.0, 1.0), 2.0);
  EXPECT_EQ(OpenViewPortDraw::__DoubleMax(1.0, 2.0), 2.0);
  EXPECT_EQ(OpenViewPortDraw::__DoubleMax(std::nan(""), 1.0), 1.0);
}

TEST(KccViewPortDraw, IntAbsNegatesNegativeValues) {
  EXPECT_EQ(OpenViewPortDraw::__IntAbs(-7), 7);
  EXPECT_EQ(OpenViewPortDraw::__IntAbs(7), 7);
}

TEST(KccViewPortPlot, RatiosFollowEachAxis) {
  KCC_ViewPortPlot port(800, 600);

  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));

  EXPECT_EQ(port.GetWorld2PixelRatioX(), 0.125);
  EXPECT_EQ(port.GetWorld2PixelRatioY(), 50.0 / 600.0);
}

TEST(KccViewPortPlot, Init800By600MapsTheWorldOriginToZeroSixHundred) {
  KCC_ViewPortPlot port;
  port.Init(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 50.0));
  int sx = -1;
  int sy = -1;

  port.World2ScreenPoint(0.0, 0.0, sx, sy);

  EXPECT_EQ(sx, 0);
  EXPECT_EQ(sy, 600);
}

TEST(KccViewPortPlot, TinyRatioYIsNotTested) {
  KCC_ViewPortPlot port(800, 600);

  const bool result = port.SetWorldCoord(0.0, 0.0, 100.0, 0.000001);

  EXPECT_TRUE(result);
  EXPECT_EQ(port.GetWorld2PixelRatioX(), 0.125);
  EXPECT_TRUE(port.IsWorld2PixelRatioTooSmall());
}

TEST(KccViewPortPlot, TinyRatioYLeavesWorld2ScreenPointAtZero) {
  KCC_ViewPortPlot port(800, 600);
  ASSERT_TRUE(port.SetWorldCoord(0.0, 0.0, 100.0, 0.000001));
  int sx = -1;
  int sy = -1;

  port.World2ScreenPoint(50.0, 0.0, sx, sy);

  EXPECT_EQ(sx, 0);
  EXPECT_EQ(sy, 0);
}

TEST(KccViewPortPlot, TinyRatioYInAZoomAreaIsNotRestored) {
  KCC_ViewPortPlot port(800, 600);
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);
  area.SetYmax(0.000001);

  const bool result = port.SetWorldCoord(area);

  EXPECT_TRUE(result);
  EXPECT_EQ(area.GetYmax(), 0.000001);
}

TEST(KccViewPortPlot, NegativeRatioYIsAccepted) {
  KCC_ViewPortPlot port(800, 600);

  const bool result = port.SetWorldCoord(0.0, 60.0, 100.0, 0.0);

  EXPECT_TRUE(result);
  EXPECT_EQ(port.GetWorld2PixelRatioY(), -0.1);
}

TEST(KccViewPortPlot, NegativeRatioXIsRefused) {
  KCC_ViewPortPlot port(800, 600);

  const bool result = port.SetWorldCoord(100.0, 0.0, 0.0, 50.0);

  EXPECT_FALSE(result);
  EXPECT_EQ(port.GetWorld2PixelRatioX(), -0.125);
}

TEST(KccViewPortPlot, NegativeRatioXInAZoomAreaIsRefusedWithoutRestoring) {
  KCC_ViewPortPlot port(800, 600);
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);
  area.SetXmin(200.0);

  const bool result = port.SetWorldCoord(area);

  EXPECT_FALSE(result);
  EXPECT_EQ(area.GetXmin(), 200.0);
}

TEST(KccViewPortPlot, TinyRatioXInAZoomAreaIsRestored) {
  KCC_ViewPortPlot port(800, 600);
  KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);
  area.SetXmax(0.001);

  const bool result = port.SetWorldCoord(area);

  EXPECT_TRUE(result);
  EXPECT_EQ(area.GetXmax(), 100.0);
  EXPECT_EQ(port.GetWorld2PixelRatioX(), 0.125);
}

TEST(KccViewPortPlot, UnknownCornerFailsWithBothRatiosZero) {
  OpenViewPortDraw carrier(800, 600);
  carrier.ForceCorner(4);
  KCC_ViewPortPlot port(800, 600);
  static_cast<KCC_ViewPort&>(port) = static_cast<const KCC_ViewPort&>(carrier);  // copies the corner

  const bool result = port.SetWorldCoord(0.0, 0.0, 100.0, 50.0);

  EXPECT_FALSE(result);
  EXPECT_EQ(port.GetWorld2PixelRatioX(), 0.0);
  EXPECT_EQ(port.GetWorld2PixelRatioY(), 0.0);
}
