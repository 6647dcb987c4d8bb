// SPDX-License-Identifier: MIT
// KCC_Draw and element lists: World2Screen maps a world list to pixels; DrawHollowElmList outlines every
// element, DrawFilledElmList joins them into one polygon.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "draw/DrawCallPoints.h"
#include "ncappkit/draw/KCC_Draw.h"
#include "ncappkit/draw/KCC_FillAttributes.h"
#include "ncappkit/draw/KCC_LineAttributes.h"
#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/foundation/KC2DElmList.h"
#include "support/RecordingCanvas.h"

namespace {

using Calls = std::vector<std::string>;

KCC_LineAttributes OrangeDashWidth3() {
  return KCC_LineAttributes(KCColor(200, 100, 50), KCPenStyleDash(), 3);
}

// A view port of 800 x 600 pixels showing the world 0..100 x 0..50: ratio 0.125, world (0, 0) at (0, 500).
class KccDrawElmList : public ::testing::Test {
 protected:
  void SetUp() override { m_viewPort.SetWorldCoord(0.0, 0.0, 100.0, 50.0); }

  KCC_ViewPortDraw m_viewPort{800, 600};
  RecordingCanvas m_canvas;
  KCC_Draw m_draw{m_viewPort, m_canvas};
};

// ---- World2Screen ----

TEST_F(KccDrawElmList, World2ScreenMapsALine) {
  KC2DElmList world;
  world.Add(new KC2DLine(0.0, 0.0, 100.0, 50.0));
  KC2DElmList screen;

  m_draw.World2Screen(world, screen);

  ASSERT_EQ(screen.size(), 1U);
  EXPECT_TRUE(screen.GetAt(0)->IsAlmostEq(KC2DLine(0.0, 500.0, 800.0, 100.0), 0.0));
}

TEST_F(KccDrawElmList, World2ScreenMapsAPoint) {
  KC2DElmList world;
  world.Add(new KC2DPoint(50.0, 25.0));
  KC2DElmList screen;

  m_draw.World2Screen(world, screen);

  ASSERT_EQ(screen.size(), 1U);
  EXPECT_TRUE(screen.GetAt(0)->IsAlmostEq(KC2DPoint(400.0, 300.0), 0.0));
}

TEST_F(KccDrawElmList, World2ScreenTurnsACounterClockwiseArcClockwise) {
  KC2DElmList world;
  world.Add(new KC2DArc(KC2DPoint(100.0, 25.0), KC2DPoint(50.0, 50.0), KC2DPoint(50.0, 25.0), true));
  KC2DElmList screen;

  m_draw.World2Screen(world, screen);

  // Pixel y grows downwards: the mapping mirrors, so the same path turns the other way in pixels.
  ASSERT_EQ(screen.size(), 1U);
  const KC2DArc expected(KC2DPoint(800.0, 300.0), KC2DPoint(400.0, 100.0), KC2DPoint(400.0, 300.0), false);
  EXPECT_TRUE(screen.GetAt(0)->IsAlmostEq(expected, 0.0));
}

TEST_F(KccDrawElmList, World2ScreenKeepsARectangleAxisParallel) {
  KC2DElmList world;
  world.Add(new KC2DRectangle(0.0, 0.0, 100.0, 50.0));
  KC2DElmList screen;

  m_draw.World2Screen(world, screen);

  ASSERT_EQ(screen.size(), 1U);
  EXPECT_TRUE(screen.GetAt(0)->IsAlmostEq(KC2DRectangle(0.0, 100.0, 800.0, 500.0), 0.0));
}

TEST_F(KccDrawElmList, World2ScreenReplacesWhatTheScreenListHeld) {
  KC2DElmList world;
  world.Add(new KC2DPoint(0.0, 0.0));
  KC2DElmList screen;
  screen.Add(new KC2DPoint(7.0, 7.0));
  screen.Add(new KC2DPoint(8.0, 8.0));

  m_draw.World2Screen(world, screen);

  ASSERT_EQ(screen.size(), 1U);
  EXPECT_TRUE(screen.GetAt(0)->IsAlmostEq(KC2DPoint(0.0, 500.0), 0.0));
}

TEST_F(KccDrawElmList, World2ScreenKeepsNullEntriesInPlace) {
  KC2DElmList world;
  world.Add(nullptr);
  world.Add(new KC2DPoint(100.0, 50.0));
  KC2DElmList screen;

  m_draw.World2Screen(world, screen);

  ASSERT_EQ(screen.size(), 2U);
  EXPECT_EQ(screen.GetAt(0), nullptr);
  EXPECT_TRUE(screen.GetAt(1)->IsAlmostEq(KC2DPoint(800.0, 100.0), 0.0));
}

TEST_F(KccDrawElmList, World2ScreenIntoTheSameListMapsItInPlace) {
  KC2DElmList list;
  list.Add(new KC2DPoint(100.0, 50.0));

  m_draw.World2Screen(list, list);

  ASSERT_EQ(list.size(), 1U);
  EXPECT_TRUE(list.GetAt(0)->IsAlmostEq(KC2DPoint(800.0, 100.0), 0.0));
}

TEST_F(KccDrawElmList, World2ScreenOfAnEmptyListGivesAnEmptyList) {
  const KC2DElmList world;
  KC2DElmList screen;
  screen.Add(new KC2DPoint(1.0, 1.0));

  m_draw.World2Screen(world, screen);

  EXPECT_TRUE(screen.empty());
}

// ---- DrawHollowElmList ----

TEST_F(KccDrawElmList, HollowListOutlinesEveryElementOnItsOwn) {
  KC2DElmList list;
  list.Add(new KC2DLine(0.0, 0.0, 10.0, 0.0));
  list.Add(new KC2DRectangle(0.0, 0.0, 10.0, 10.0));
  list.Add(new KC2DPoint(5.0, 5.0));

  m_draw.DrawHollowElmList(list, OrangeDashWidth3());

  EXPECT_EQ(m_canvas.Calls(),
            (Calls{"GetPenColor()", "GetPenWidth()", "GetPenStyle()", "SetPenColor(200,100,50,255)",
                   "SetPenStyle(Dash)", "SetPenWidth(3)", "MoveTo(0,0)", "LineTo(10,0)", "MoveTo(0,0)",
                   "LineTo(10,0)", "LineTo(10,10)", "LineTo(0,10)", "LineTo(0,0)", "MoveTo(5,5)",
                   "LineTo(5,5)", "SetPenColor(0,0,0,255)", "SetPenWidth(1)", "SetPenStyle(Solid)"}));
}

TEST_F(KccDrawElmList, HollowListDrawsAnArcAsDrawArcDoes) {
  KC2DElmList list;
  list.Add(new KC2DArc(KC2DPoint(100.0, 0.0), KC2DPoint(0.0, 100.0), KC2DPoint(0.0, 0.0), true));

  m_draw.DrawHollowElmList(list, OrangeDashWidth3());

  const std::vector<KC2DPoint> targets = drawtest::PointsOf(m_canvas.Calls(), "LineTo");
  ASSERT_EQ(targets.size(), 37U);  // 36 intermediate points of 2.5 degrees, then the end
  EXPECT_EQ(targets[36], KC2DPoint(0, 100));
}

TEST_F(KccDrawElmList, HollowListDrawsAClosedArcAsAWholeCircle) {
  KC2DElmList list;
  list.Add(new KC2DArc(KC2DPoint(100.0, 0.0), KC2DPoint(100.0, 0.0), KC2DPoint(0.0, 0.0), true));

  m_draw.DrawHollowElmList(list, OrangeDashWidth3());

  EXPECT_EQ(drawtest::CountOf(m_canvas.Calls(), "LineTo"), 145U);
}

TEST_F(KccDrawElmList, HollowListSkipsNullEntries) {
  KC2DElmList list;
  list.Add(nullptr);
  list.Add(new KC2DLine(1.0, 2.0, 3.0, 4.0));

  m_draw.DrawHollowElmList(list, OrangeDashWidth3());

  EXPECT_EQ(drawtest::CountOf(m_canvas.Calls(), "MoveTo"), 1U);
  EXPECT_EQ(drawtest::PointsOf(m_canvas.Calls(), "LineTo"), (std::vector<KC2DPoint>{KC2DPoint(3, 4)}));
}

TEST_F(KccDrawElmList, EmptyHollowListMakesNoCanvasCall) {
  KC2DElmList list;

  m_draw.DrawHollowElmList(list, OrangeDashWidth3());

  EXPECT_TRUE(m_canvas.Calls().empty());
}

TEST_F(KccDrawElmList, HollowListOfOnlyNullEntriesMakesNoCanvasCall) {
  KC2DElmList list;
  list.Add(nullptr);

  m_draw.DrawHollowElmList(list, OrangeDashWidth3());

  EXPECT_TRUE(m_canvas.Calls().empty());
}

// ---- DrawFilledElmList ----

TEST_F(KccDrawElmList, FilledListJoinsTheElementsIntoOnePolygon) {
  KC2DElmList triangle;
  triangle.Add(new KC2DLine(0.0, 0.0, 100.0, 0.0));
  triangle.Add(new KC2DLine(100.0, 0.0, 100.0, 50.0));
  triangle.Add(new KC2DLine(100.0, 50.0, 0.0, 0.0));
  const KCC_FillAttributes fill(KCColor(10, 20, 30), true);

  m_draw.DrawFilledElmList(triangle, OrangeDashWidth3(), fill);

  // The shared corners appear once.
  EXPECT_EQ(m_canvas.Calls(),
            (Calls{"GetPenColor()", "GetPenWidth()", "GetPenStyle()", "GetBrushStyle()", "GetBrushColor()",
                   "SetPenColor(200,100,50,255)", "SetPenStyle(Dash)", "SetPenWidth(3)",
                   "SetBrushStyle(Solid)", "SetBrushColor(10,20,30,255)", "Polygon(0,0 100,0 100,50 0,0)",
                   "SetPenColor(0,0,0,255)", "SetPenWidth(1)", "SetPenStyle(Solid)", "SetBrushStyle(Solid)",
                   "SetBrushColor(255,255,255,255)"}));
}

TEST_F(KccDrawElmList, FilledListWithHollowFillUsesAClearBrush) {
  KC2DElmList list;
  list.Add(new KC2DRectangle(0.0, 0.0, 10.0, 20.0));
  const KCC_FillAttributes hollow(KCColor(10, 20, 30), false);

  m_draw.DrawFilledElmList(list, OrangeDashWidth3(), hollow);

  const Calls calls = m_canvas.CallsWithoutGetters();
  EXPECT_EQ(calls[3], "SetBrushStyle(Clear)");
  EXPECT_EQ(calls[4], "Polygon(0,0 10,0 10,20 0,20 0,0)");
}

TEST_F(KccDrawElmList, FilledListTakesTheArcPointsOfDrawArc) {
  KC2DElmList sector;
  sector.Add(new KC2DLine(0.0, 0.0, 100.0, 0.0));
  sector.Add(new KC2DArc(KC2DPoint(100.0, 0.0), KC2DPoint(0.0, 100.0), KC2DPoint(0.0, 0.0), true));
  sector.Add(new KC2DLine(0.0, 100.0, 0.0, 0.0));

  m_draw.DrawFilledElmList(sector, OrangeDashWidth3(), KCC_FillAttributes(KCColor(10, 20, 30), true));

  // (0, 0), (100, 0), 35 more arc points (the first is (100, 0) again and left out), (0, 100), (0, 0).
  const KC2DPointList polygon = drawtest::PolygonOf(m_canvas.Calls(), 0);
  ASSERT_EQ(polygon.size(), 39U);
  EXPECT_EQ(polygon[1], KC2DPoint(100, 0));
  EXPECT_NEAR(polygon[19].GetX(), 70.710678118654752, 1e-9);  // 45 degrees
  EXPECT_EQ(polygon[37], KC2DPoint(0, 100));
  EXPECT_EQ(polygon[38], KC2DPoint(0, 0));
}

TEST_F(KccDrawElmList, EmptyFilledListMakesNoCanvasCall) {
  KC2DElmList list;

  m_draw.DrawFilledElmList(list, OrangeDashWidth3(), KCC_FillAttributes(KCColor(10, 20, 30), true));

  EXPECT_TRUE(m_canvas.Calls().empty());
}

}  // namespace
