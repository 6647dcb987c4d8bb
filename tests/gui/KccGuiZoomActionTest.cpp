// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomAction: the rubber-band zoom from mouse down through moves to mouse up.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <limits>
#include <string>
#include <vector>

#include "SelectMarkDraw.h"
#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/gui/KCC_GUI_ActionList.h"
#include "ncappkit/gui/KCC_GUI_ActionManager.h"
#include "ncappkit/gui/KCC_GUI_Editor.h"
#include "ncappkit/gui/KCC_GUI_Keys.h"
#include "ncappkit/gui/KCC_GUI_ZoomAction.h"
#include "ncappkit/gui/KCC_GUI_ZoomArea.h"
#include "ncappkit/gui/KCI_GUI_MouseButtons.h"

namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

using Corners = std::array<double, 4>;
using Calls = std::vector<std::string>;
using zoomtest::SelectMarkDraw;

Corners CurrentOf(const KCC_GUI_ZoomArea& area) {
  return {area.GetXmin(), area.GetYmin(), area.GetXmax(), area.GetYmax()};
}

// Mouse buttons as the client reports them: all held or none.
class Buttons : public KCI_GUI_MouseButtons {
 public:
  explicit Buttons(bool held) : m_held(held) {}
  bool LeftButtonPressed() const override { return m_held; }
  bool MiddleButtonPressed() const override { return m_held; }
  bool RightButtonPressed() const override { return m_held; }

 private:
  bool m_held;
};

const KCC_GUI_Keys kNoKeys(0U);
const Buttons kLeftHeld(true);

// The pieces a rubber band works with: an 800 x 600 canvas showing world (0, 0, 100, 50), so pixel (x, y)
// shows world (50 + (x - 400) / 8, 25 - (y - 300) / 8): pixel (80, 340) is world (10, 20), pixel (-40, 260)
// is world (-5, 30), pixel (400, 300) is world (50, 25).
class KccGuiZoomAction : public ::testing::Test {
 protected:
  KccGuiZoomAction() : port(800, 600) { port.SetWorldCoord(0.0, 0.0, 100.0, 50.0); }

  KCC_ViewPortDraw port;
  SelectMarkDraw draw;
};

}  // namespace

TEST_F(KccGuiZoomAction, NewActionIsNotDoneAndHasBothCornersAtTheOrigin) {
  const KCC_GUI_ZoomAction band(port, draw);

  EXPECT_FALSE(band.Done());
  EXPECT_EQ(CurrentOf(band.GetZoomArea()), (Corners{0.0, 0.0, 0.0, 0.0}));
}

TEST_F(KccGuiZoomAction, MouseLeftDownTakesTheStartCornerWithoutDrawing) {
  KCC_GUI_ZoomAction band(port, draw);

  band.MouseLeftDown(80, 340, kNoKeys);

  EXPECT_EQ(draw.calls, Calls{});
  EXPECT_FALSE(band.Done());
  EXPECT_EQ(CurrentOf(band.GetZoomArea()), (Corners{10.0, 20.0, 0.0, 0.0}));
}

TEST_F(KccGuiZoomAction, FirstMouseMoveRedrawsTheStartPixelThenDrawsTheRectangle) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);

  band.MouseMove(200, 100, kNoKeys, kLeftHeld);

  EXPECT_EQ(draw.calls, (Calls{"SelectRect(80,340,80,340)", "SelectRect(80,340,200,100)"}));
}

TEST_F(KccGuiZoomAction, LaterMouseMoveErasesThePreviousRectangleThenDrawsTheNewOne) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);
  band.MouseMove(200, 100, kNoKeys, kLeftHeld);
  draw.calls.clear();

  band.MouseMove(300, 150, kNoKeys, kLeftHeld);

  EXPECT_EQ(draw.calls, (Calls{"SelectRect(80,340,200,100)", "SelectRect(80,340,300,150)"}));
}

TEST_F(KccGuiZoomAction, MouseMoveTakesTheWorldPointAsTheCurrentCorner) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);

  band.MouseMove(-40, 260, kNoKeys, kLeftHeld);

  EXPECT_EQ(CurrentOf(band.GetZoomArea()), (Corners{10.0, 20.0, -5.0, 30.0}));
}

TEST_F(KccGuiZoomAction, MouseMoveBeforeMouseLeftDownDrawsNothing) {
  KCC_GUI_ZoomAction band(port, draw);

  band.MouseMove(200, 100, kNoKeys, kLeftHeld);

  EXPECT_EQ(draw.calls, Calls{});
  EXPECT_EQ(CurrentOf(band.GetZoomArea()), (Corners{0.0, 0.0, 0.0, 0.0}));
}

TEST_F(KccGuiZoomAction, MouseMoveAfterMouseLeftUpDrawsNothing) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);
  band.MouseMove(-40, 260, kNoKeys, kLeftHeld);
  band.MouseLeftUp(-40, 260, kNoKeys);
  draw.calls.clear();

  band.MouseMove(200, 100, kNoKeys, kLeftHeld);

  EXPECT_EQ(draw.calls, Calls{});
  EXPECT_EQ(CurrentOf(band.GetZoomArea()), (Corners{10.0, 20.0, -5.0, 30.0}));
}

TEST_F(KccGuiZoomAction, MouseLeftUpAfterMouseLeftDownFinishesTheDrag) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);

  band.MouseLeftUp(80, 340, kNoKeys);

  EXPECT_TRUE(band.Done());
}

TEST_F(KccGuiZoomAction, MouseLeftUpIgnoresTheReleasePositionAndErasesNothing) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);
  band.MouseMove(-40, 260, kNoKeys, kLeftHeld);
  draw.calls.clear();

  band.MouseLeftUp(800, 0, kNoKeys);

  EXPECT_EQ(draw.calls, Calls{});
  EXPECT_EQ(CurrentOf(band.GetZoomArea()), (Corners{10.0, 20.0, -5.0, 30.0}));
}

TEST_F(KccGuiZoomAction, MouseLeftUpBeforeMouseLeftDownChangesNothing) {
  KCC_GUI_ZoomAction band(port, draw);

  band.MouseLeftUp(80, 340, kNoKeys);
  band.MouseLeftDown(400, 300, kNoKeys);

  EXPECT_FALSE(band.Done());
  EXPECT_EQ(CurrentOf(band.GetZoomArea()), (Corners{50.0, 25.0, 0.0, 0.0}));
}

TEST_F(KccGuiZoomAction, SecondMouseLeftDownWhileDraggingIsIgnored) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);

  band.MouseLeftDown(400, 300, kNoKeys);
  band.MouseMove(-40, 260, kNoKeys, kLeftHeld);

  EXPECT_EQ(draw.calls, (Calls{"SelectRect(80,340,80,340)", "SelectRect(80,340,-40,260)"}));
  EXPECT_EQ(CurrentOf(band.GetZoomArea()), (Corners{10.0, 20.0, -5.0, 30.0}));
}

TEST_F(KccGuiZoomAction, FinishedDragNeverStartsAgain) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);
  band.MouseLeftUp(80, 340, kNoKeys);

  band.MouseLeftDown(400, 300, kNoKeys);
  band.MouseMove(-40, 260, kNoKeys, kLeftHeld);

  EXPECT_TRUE(band.Done());
  EXPECT_EQ(draw.calls, Calls{});
  EXPECT_EQ(CurrentOf(band.GetZoomArea()), (Corners{10.0, 20.0, 0.0, 0.0}));
}

TEST_F(KccGuiZoomAction, ClickWithoutMovementIsDoneWithTheCurrentCornerStillAtTheOrigin) {
  KCC_GUI_ZoomAction band(port, draw);

  band.MouseLeftDown(400, 300, kNoKeys);
  band.MouseLeftUp(400, 300, kNoKeys);

  EXPECT_TRUE(band.Done());
  EXPECT_EQ(CurrentOf(band.GetZoomArea()), (Corners{50.0, 25.0, 0.0, 0.0}));
}

TEST_F(KccGuiZoomAction, ZoomAreaHoldsTheDragCornersUnsorted) {
  KCC_GUI_ZoomAction band(port, draw);

  band.MouseLeftDown(80, 340, kNoKeys);          // world (10, 20)
  band.MouseMove(-40, 260, kNoKeys, kLeftHeld);  // world (-5, 30)
  band.MouseLeftUp(-40, 260, kNoKeys);

  const KCC_GUI_ZoomArea area = band.GetZoomArea();
  EXPECT_EQ(area.GetXmin(), 10.0);
  EXPECT_EQ(area.GetYmin(), 20.0);
  EXPECT_EQ(area.GetXmax(), -5.0);
  EXPECT_EQ(area.GetYmax(), 30.0);
}

TEST_F(KccGuiZoomAction, NormalizedZoomAreaIsSorted) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);
  band.MouseMove(-40, 260, kNoKeys, kLeftHeld);
  band.MouseLeftUp(-40, 260, kNoKeys);
  KCC_GUI_ZoomArea area = band.GetZoomArea();

  area.Normalize();

  EXPECT_EQ(CurrentOf(area), (Corners{-5.0, 20.0, 10.0, 30.0}));
}

TEST_F(KccGuiZoomAction, ZoomAreaPreviousValuesAreTheInvalidMarkers) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);
  band.MouseMove(-40, 260, kNoKeys, kLeftHeld);
  KCC_GUI_ZoomArea area = band.GetZoomArea();

  area.RestorePreviousValues();

  EXPECT_EQ(CurrentOf(area), (Corners{kLargest, kLargest, -kLargest, -kLargest}));
  EXPECT_FALSE(area.Valid());
}

TEST_F(KccGuiZoomAction, KeysAndMouseButtonsAreIgnored) {
  SelectMarkDraw plainDraw;
  KCC_GUI_ZoomAction plain(port, plainDraw);
  KCC_GUI_ZoomAction withKeys(port, draw);
  const KCC_GUI_Keys allKeys(0x2CU);
  const Buttons noButtons(false);

  plain.MouseLeftDown(80, 340, kNoKeys);
  plain.MouseMove(-40, 260, kNoKeys, kLeftHeld);
  plain.MouseLeftUp(-40, 260, kNoKeys);
  withKeys.MouseLeftDown(80, 340, allKeys);
  withKeys.MouseMove(-40, 260, allKeys, noButtons);
  withKeys.MouseLeftUp(-40, 260, allKeys);

  EXPECT_EQ(draw.calls, plainDraw.calls);
  EXPECT_TRUE(withKeys.Done());
  EXPECT_EQ(CurrentOf(withKeys.GetZoomArea()), (Corners{10.0, 20.0, -5.0, 30.0}));
}

TEST_F(KccGuiZoomAction, FinishedDragLeavesTheFinishedStateToTheClient) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);
  band.MouseLeftUp(80, 340, kNoKeys);
  bool result = false;

  const bool finished = band.HasFinishedState(result);

  EXPECT_TRUE(band.Done());
  EXPECT_FALSE(finished);
}

TEST_F(KccGuiZoomAction, OtherSlotsKeepTheBaseBehaviour) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);

  band.MouseRightDown(400, 300, kNoKeys);
  band.MouseRightUp(400, 300, kNoKeys);
  band.DoAction(400, 300, kNoKeys);
  band.Undo();
  band.Redo();

  EXPECT_EQ(band.ToString().str(), "???");
  EXPECT_EQ(draw.calls, Calls{});
  EXPECT_FALSE(band.Done());
  EXPECT_EQ(CurrentOf(band.GetZoomArea()), (Corners{10.0, 20.0, 0.0, 0.0}));
}

TEST_F(KccGuiZoomAction, CopyContinuesTheDragOnTheSameDrawing) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);
  band.MouseMove(200, 100, kNoKeys, kLeftHeld);
  draw.calls.clear();

  KCC_GUI_ZoomAction copy(band);
  copy.MouseMove(-40, 260, kNoKeys, kLeftHeld);

  EXPECT_EQ(draw.calls, (Calls{"SelectRect(80,340,200,100)", "SelectRect(80,340,-40,260)"}));
  EXPECT_EQ(CurrentOf(copy.GetZoomArea()), (Corners{10.0, 20.0, -5.0, 30.0}));
}

TEST_F(KccGuiZoomAction, AssignmentContinuesTheDragOnTheSourcesDrawing) {
  KCC_GUI_ZoomAction band(port, draw);
  band.MouseLeftDown(80, 340, kNoKeys);
  band.MouseMove(200, 100, kNoKeys, kLeftHeld);
  draw.calls.clear();
  SelectMarkDraw otherDraw;
  KCC_ViewPortDraw otherPort(100, 100);
  KCC_GUI_ZoomAction other(otherPort, otherDraw);

  other = band;
  other.MouseMove(-40, 260, kNoKeys, kLeftHeld);

  EXPECT_EQ(otherDraw.calls, Calls{});
  EXPECT_EQ(draw.calls, (Calls{"SelectRect(80,340,200,100)", "SelectRect(80,340,-40,260)"}));
  EXPECT_EQ(CurrentOf(other.GetZoomArea()), (Corners{10.0, 20.0, -5.0, 30.0}));  // mapped through `port`
}

TEST_F(KccGuiZoomAction, AssignmentCopiesTheFinishedState) {
  KCC_GUI_ZoomAction band(port, draw);
  band.SetFinishedState(true);
  KCC_GUI_ZoomAction other(port, draw);
  bool result = false;

  other = band;

  EXPECT_TRUE(other.HasFinishedState(result));
  EXPECT_TRUE(result);
}

TEST_F(KccGuiZoomAction, FinishedActionGoesToTheEditorWhichOwnsIt) {
  KCC_GUI_Editor editor(10);
  auto* band = new KCC_GUI_ZoomAction(port, draw);
  band->MouseLeftDown(80, 340, kNoKeys);
  band->MouseMove(-40, 260, kNoKeys, kLeftHeld);
  band->MouseLeftUp(-40, 260, kNoKeys);
  band->SetFinishedState(band->Done());

  editor.GetGUIActionManager().AddActionInCreation(*band);

  ASSERT_EQ(editor.GetGUIActionList().GetNumberOfActions(), 1);
  EXPECT_EQ(*editor.GetGUIActionList().begin(), band);
  EXPECT_EQ(editor.GetGUIActionManager().GetCurrentAction(), nullptr);
}

TEST_F(KccGuiZoomAction, DragToExtremePixelsGivesFiniteCorners) {
  KCC_GUI_ZoomAction band(port, draw);

  band.MouseLeftDown(INT_MIN, INT_MAX, kNoKeys);
  band.MouseMove(INT_MAX, INT_MIN, kNoKeys, kLeftHeld);

  const std::string minText = std::to_string(INT_MIN);
  const std::string maxText = std::to_string(INT_MAX);
  EXPECT_EQ(draw.calls.back(), "SelectRect(" + minText + "," + maxText + "," + maxText + "," + minText + ")");
  const KCC_GUI_ZoomArea area = band.GetZoomArea();
  EXPECT_EQ(CurrentOf(area), (Corners{-268435456.0, -268435393.375, 268435455.875, 268435518.5}));
}
