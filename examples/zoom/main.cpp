// SPDX-License-Identifier: MIT
// example_zoom: zoom a drawing the way a client window does, with a scripted mouse instead of a real one.
//
//   example_zoom [output-folder]
//
// A plate with two holes and a pocket is drawn through KCC_Draw on an SVG canvas. A rubber band
// (KCC_GUI_ZoomAction) is dragged from mouse down through moves to mouse up, and its area becomes the zoom
// data's current data, which the view port shows. The finished band goes to an editor's manager; then zoom
// in, zoom out and a pan, each recorded by this program's own ZoomStep action so that the manager can undo
// and redo it. Last, zooming in too deep is refused by the view port, which restores the previous area.
// With an output folder the views before and after are saved there as before.svg and after.svg.
// Numbers are printed with KCString's locale-free conversion, so the output is the same on every machine.
#include <iostream>
#include <string>

#include "ncappkit/draw/KCC_Draw.h"
#include "ncappkit/draw/KCC_FillAttributes.h"
#include "ncappkit/draw/KCC_LineAttributes.h"
#include "ncappkit/draw/KCC_SvgCanvas.h"
#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/foundation/KC2DArea.h"
#include "ncappkit/foundation/KCColor.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/gui/KCC_GUI_Action.h"
#include "ncappkit/gui/KCC_GUI_Editor.h"
#include "ncappkit/gui/KCC_GUI_Keys.h"
#include "ncappkit/gui/KCC_GUI_ZoomAction.h"
#include "ncappkit/gui/KCC_GUI_ZoomArea.h"
#include "ncappkit/gui/KCC_GUI_ZoomData.h"
#include "ncappkit/gui/KCI_GUI_MouseButtons.h"

namespace {

constexpr int kWidth = 500;
constexpr int kHeight = 340;

// A number with at most `decimals` decimals, trailing zeros dropped ("120", "59.9994").
std::string Num(double value, int decimals = 6) {
  KCString text(value, decimals, false);
  text.CleanDoubleString();
  return text.str();
}

std::string Text(const KCC_GUI_ZoomArea& area) {
  return "(" + Num(area.GetXmin()) + ", " + Num(area.GetYmin()) + ", " + Num(area.GetXmax()) + ", " +
         Num(area.GetYmax()) + ")";
}

// The mouse buttons as a window would report them during a drag: only the left one held.
class LeftButtonHeld : public KCI_GUI_MouseButtons {
 public:
  bool LeftButtonPressed() const override { return true; }
  bool MiddleButtonPressed() const override { return false; }
  bool RightButtonPressed() const override { return false; }
};

// Shows the zoom data's current data on the view port; false when the port could not show it.
bool Show(KCC_GUI_ZoomData& zoom, KCC_ViewPortDraw& port) {
  return port.SetWorldCoord(zoom.GetCurrenData());
}

// One change of the zoom data, kept in the editor's history: undo shows the rectangle before the change
// again, redo the one after it.
class ZoomStep : public KCC_GUI_Action {
 public:
  ZoomStep(const char* name, KCC_GUI_ZoomData& zoom, KCC_ViewPortDraw& port, const KCC_GUI_ZoomArea& before)
      : m_name(name), m_zoom(&zoom), m_port(&port), m_before(before), m_after(zoom.GetCurrenData()) {
    SetFinishedState(true);
  }
  void Undo() override { ShowArea(m_before); }
  void Redo() override { ShowArea(m_after); }
  KCString ToString() override { return KCString(m_name); }

 private:
  void ShowArea(const KCC_GUI_ZoomArea& area) {
    m_zoom->SetCurrentData(area);
    Show(*m_zoom, *m_port);
  }

  std::string m_name;
  KCC_GUI_ZoomData* m_zoom;
  KCC_ViewPortDraw* m_port;
  KCC_GUI_ZoomArea m_before;
  KCC_GUI_ZoomArea m_after;
};

// Runs one zoom data operation, shows the result and hands a ZoomStep for it to the editor.
void Record(const char* name, void (KCC_GUI_ZoomData::*operation)(), KCC_GUI_ZoomData& zoom,
            KCC_ViewPortDraw& port, KCC_GUI_Editor& editor) {
  const KCC_GUI_ZoomArea before = zoom.GetCurrenData();
  (zoom.*operation)();
  Show(zoom, port);
  editor.GetGUIActionManager().AddActionInCreation(*new ZoomStep(name, zoom, port, before));
  std::cout << name << ": " << Text(zoom.GetCurrenData()) << "\n";
}

void PrintHistory(KCC_GUI_Editor& editor) {
  std::cout << "history:";
  for (KCC_GUI_Action* action : editor.GetGUIActionList())
    std::cout << " [" << action->ToString().str() << "]";
  KCC_GUI_Action* next = editor.GetGUIActionManager().GetCurrentAction();
  std::cout << ", next redo: " << (next == nullptr ? std::string("none") : next->ToString().str()) << "\n";
}

// The part, in world millimetres: a 120 x 80 plate, two holes of radius 10 and a filled pocket. World
// points become pixels through the drawing API's mapping; the drawing operations take pixels.
void DrawPart(KCC_Draw& draw, KCC_SvgCanvas& canvas) {
  KCColorWhite white(255);
  draw.PaintBackGround(white);
  KCC_LineAttributes pen;
  pen.SetBlackLine();
  pen.SetLineWidth(2);
  int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  draw.World2ScreenPoint(0.0, 0.0, x1, y1);
  draw.World2ScreenPoint(120.0, 80.0, x2, y2);
  draw.DrawHollowRectangle(x1, y1, x2, y2, pen);
  KCC_FillAttributes pocketFill(KCColorSilver(255), true);
  draw.World2ScreenPoint(45.0, 50.0, x1, y1);
  draw.World2ScreenPoint(75.0, 65.0, x2, y2);
  draw.DrawFilledRectangle(x1, y1, x2, y2, pen, pocketFill);
  pen.SetBlueLine();
  const int radius = static_cast<int>(10.0 / draw.GetWorld2PixelRatioX());
  for (double hx : {30.0, 90.0}) {
    draw.World2ScreenPoint(hx, 40.0, x1, y1);
    draw.DrawAttrCircle(x1, y1, radius, pen);
  }
  draw.World2ScreenPoint(30.0, 40.0, x1, y1);
  std::cout << "  " << canvas.GetWidth() << " x " << canvas.GetHeight() << " pixels, "
            << Num(draw.GetWorld2PixelRatioX(), 9) << " mm per pixel; hole at (30, 40) drawn at pixel (" << x1
            << ", " << y1 << ") with radius " << radius << "\n";
}

void Save(const KCC_SvgCanvas& canvas, const std::string& folder, const char* name) {
  if (folder.empty())
    return;
  const std::string path = folder + "/" + name;
  if (canvas.SaveToFile(KCString(path)))
    std::cout << "saved " << path << "\n";
  else
    std::cerr << "could not save " << path << "\n";
}

}  // namespace

int main(int argc, char** argv) {
  const std::string folder = argc > 1 ? argv[1] : "";

  // The view: a 500 x 340 canvas with 10 free pixels at each edge, so 480 x 320 usable pixels.
  KCC_ViewPortDraw port(kWidth, kHeight);
  port.SetPixelMargins(10);
  KCC_SvgCanvas before(kWidth, kHeight);
  KCC_Draw draw(port, before);

  // The fit data is the extent of the part; to begin with the view shows all of it.
  KC2DArea extent;
  extent.ApplyPoint(0.0, 0.0);
  extent.ApplyPoint(120.0, 80.0);
  KCC_GUI_ZoomData zoom;
  zoom.SetFitData(extent, true);
  Show(zoom, port);
  std::cout << "fit data: " << Text(zoom.GetFitData()) << "\nbefore:\n";
  DrawPart(draw, before);

  // The rubber band: mouse down at the world point (70, 60), three moves, release at (20, 15). Each move
  // erases the previous select rectangle and draws the new one on the same canvas.
  KCC_GUI_Editor editor(0);
  auto* band = new KCC_GUI_ZoomAction(port, draw);
  const KCC_GUI_Keys noKeys(0U);
  const LeftButtonHeld leftHeld;
  int downX = 0, downY = 0, upX = 0, upY = 0;
  draw.World2ScreenPoint(70.0, 60.0, downX, downY);
  draw.World2ScreenPoint(20.0, 15.0, upX, upY);
  std::cout << "rubber band:\n  mouse down at (" << downX << ", " << downY << ")\n";
  band->MouseLeftDown(downX, downY, noKeys);
  for (int step = 1; step <= 3; ++step) {
    const int x = downX + (upX - downX) * step / 3;
    const int y = downY + (upY - downY) * step / 3;
    std::cout << "  mouse move to (" << x << ", " << y << ")\n";
    band->MouseMove(x, y, noKeys, leftHeld);
  }
  std::cout << "  mouse up at (" << upX << ", " << upY << ")\n";
  band->MouseLeftUp(upX, upY, noKeys);
  std::cout << "  done: " << (band->Done() ? "yes" : "no") << "\n";

  // The band's corners come as dragged, here from top right to bottom left, so Xmin > Xmax and Ymin > Ymax
  // until the area is normalised.
  KCC_GUI_ZoomArea dragged = band->GetZoomArea();
  std::cout << "  zoom area as dragged: " << Text(dragged) << "\n";
  dragged.Normalize();
  zoom.SetCurrentData(dragged);
  const bool shown = Show(zoom, port);
  std::cout << "  normalised and shown: " << Text(zoom.GetCurrenData()) << (shown ? "" : " (refused)")
            << "\n";

  // The action does not mark itself finished; the client does so before handing it to the manager, which
  // owns it from now on. It keeps the base class's Undo (nothing) and ToString ("???").
  band->SetFinishedState(band->Done());
  editor.GetGUIActionManager().AddActionInCreation(*band);

  Record("zoom in", &KCC_GUI_ZoomData::ZoomIn, zoom, port, editor);
  Record("zoom out", &KCC_GUI_ZoomData::ZoomOut, zoom, port, editor);
  Record("pan right", &KCC_GUI_ZoomData::PanRight, zoom, port, editor);
  PrintHistory(editor);

  editor.GetGUIActionManager().UndoAction();
  std::cout << "undo: " << Text(zoom.GetCurrenData()) << "\n";
  PrintHistory(editor);
  editor.GetGUIActionManager().RedoAction();
  std::cout << "redo: " << Text(zoom.GetCurrenData()) << "\n";
  PrintHistory(editor);

  KCC_SvgCanvas after(kWidth, kHeight);
  KCC_Draw afterDraw(port, after);
  std::cout << "after:\n";
  DrawPart(afterDraw, after);

  // Too deep: from the fit data, zoom in by 45 % per edge (to a tenth) until the view port refuses. The
  // view port gives the area its previous values back and shows those.
  zoom.RestoreFitData();
  zoom.SetActionOffset(45.0);
  Show(zoom, port);
  std::cout << "zooming in by 45 % from " << Text(zoom.GetCurrenData()) << ":\n";
  for (int step = 1; step <= 8; ++step) {
    zoom.ZoomIn();
    const std::string asked = Text(zoom.GetCurrenData());
    const bool accepted = Show(zoom, port);
    const std::string showing = Text(zoom.GetCurrenData());
    std::cout << "  asked " << asked << ", showing " << showing << ", " << Num(port.GetWorld2PixelRatioX(), 9)
              << " mm per pixel" << (accepted ? "" : ", not shown") << "\n";
    if (showing != asked) {
      std::cout << "  refused: too deep, the previous area is back\n";
      break;
    }
  }

  Save(before, folder, "before.svg");
  Save(after, folder, "after.svg");
  return 0;
}
