// SPDX-License-Identifier: MIT
// example_draw: draw a small part - a plate with rounded corners, a centre bore and a bolt circle of holes -
// with its dimensions, through the drawing API into an SVG image.
//
//   example_draw [file.svg]
//
// The part is described in millimetres (world coordinates); a KCC_ViewPortDraw maps them to the pixels of
// a KCC_SvgCanvas, and KCC_Draw draws in pixels. The SVG text goes to standard output; with a path argument
// it is also saved to that file. The canvas writes no time or other varying data, so the output is the same
// on every run and every machine.
#include <cmath>
#include <iostream>
#include <string>

#include "ncappkit/draw/KCC_Draw.h"
#include "ncappkit/draw/KCC_FillAttributes.h"
#include "ncappkit/draw/KCC_FontAttributes.h"
#include "ncappkit/draw/KCC_LineAttributes.h"
#include "ncappkit/draw/KCC_SvgCanvas.h"
#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/foundation/KC2DElmList.h"
#include "ncappkit/objects/KCC_ObjectPattern.h"

namespace {

// The part, in millimetres, centred on the origin.
constexpr double kWidth = 120.0;
constexpr double kHeight = 80.0;
constexpr double kCornerRadius = 10.0;
constexpr double kBoreRadius = 12.0;
constexpr double kBoltCircleRadius = 28.0;
constexpr double kHoleRadius = 4.0;
constexpr int kArrowSize = 10;  // pixels

// A pixel position.
struct Pixel {
  int x = 0;
  int y = 0;
};

// The pixel of world point (x, y).
Pixel ToPixel(const KCC_Draw& draw, double x, double y) {
  Pixel p;
  draw.World2ScreenPoint(x, y, p.x, p.y);
  return p;
}

// A length in millimetres as a whole number of pixels (for radii).
int ToPixels(const KCC_Draw& draw, double length) {
  return static_cast<int>(std::lround(length / draw.GetWorld2PixelRatioX()));
}

// The outline of the plate: four lines and four corner arcs, counter-clockwise from the bottom edge.
KC2DElmList PlateOutline() {
  const double x = kWidth / 2.0;
  const double y = kHeight / 2.0;
  const double r = kCornerRadius;
  KC2DElmList outline;
  outline.Add(new KC2DLine(-x + r, -y, x - r, -y));
  outline.Add(new KC2DArc(KC2DPoint(x - r, -y), KC2DPoint(x, -y + r), KC2DPoint(x - r, -y + r), true));
  outline.Add(new KC2DLine(x, -y + r, x, y - r));
  outline.Add(new KC2DArc(KC2DPoint(x, y - r), KC2DPoint(x - r, y), KC2DPoint(x - r, y - r), true));
  outline.Add(new KC2DLine(x - r, y, -x + r, y));
  outline.Add(new KC2DArc(KC2DPoint(-x + r, y), KC2DPoint(-x, y - r), KC2DPoint(-x + r, y - r), true));
  outline.Add(new KC2DLine(-x, y - r, -x, -y + r));
  outline.Add(new KC2DArc(KC2DPoint(-x, -y + r), KC2DPoint(-x + r, -y), KC2DPoint(-x + r, -y + r), true));
  return outline;
}

// Draws the plate's contour element by element with the drawing API's line and arc operations.
void DrawContour(KCC_Draw& draw, const KC2DElmList& outline, const KCC_LineAttributes& pen) {
  for (const KC2DElement* element : outline) {
    if (const auto* line = dynamic_cast<const KC2DLine*>(element)) {
      const Pixel a = ToPixel(draw, line->GetStartPoint().GetX(), line->GetStartPoint().GetY());
      const Pixel b = ToPixel(draw, line->GetEndPoint().GetX(), line->GetEndPoint().GetY());
      draw.DrawAttrLine(a.x, a.y, b.x, b.y, pen);
    } else if (const auto* arc = dynamic_cast<const KC2DArc*>(element)) {
      const Pixel a = ToPixel(draw, arc->GetStartPoint().GetX(), arc->GetStartPoint().GetY());
      const Pixel b = ToPixel(draw, arc->GetEndPoint().GetX(), arc->GetEndPoint().GetY());
      const Pixel c = ToPixel(draw, arc->GetCenterPoint().GetX(), arc->GetCenterPoint().GetY());
      // Pixel y grows downwards, so an arc that turns counter-clockwise in the world turns clockwise in
      // pixels.
      draw.DrawAttrArc(a.x, a.y, b.x, b.y, c.x, c.y, arc->IsCCW(), false, pen);
    }
  }
}

// A dimension between world points a and b, drawn `offset` (> 0) millimetres beside them, to the left of
// the direction a -> b: two extension lines, the dimension line with two heads and the text at its middle.
void DrawDimension(KCC_Draw& draw, double ax, double ay, double bx, double by, double offset,
                   const char* text, double textAngle) {
  KCC_LineAttributes thin;
  thin.SetDarkGrayLine();
  const double length = std::hypot(bx - ax, by - ay);
  const double nx = -(by - ay) / length * offset;  // the offset across the direction a -> b
  const double ny = (bx - ax) / length * offset;
  const double gap = 1.5;   // millimetres between the part and the extension line
  const double over = 2.0;  // how far the extension line reaches past the dimension line
  const double sx = nx / offset;
  const double sy = ny / offset;

  const Pixel a0 = ToPixel(draw, ax + sx * gap, ay + sy * gap);
  const Pixel a1 = ToPixel(draw, ax + nx + sx * over, ay + ny + sy * over);
  const Pixel b0 = ToPixel(draw, bx + sx * gap, by + sy * gap);
  const Pixel b1 = ToPixel(draw, bx + nx + sx * over, by + ny + sy * over);
  draw.DrawAttrLine(a0.x, a0.y, a1.x, a1.y, thin);
  draw.DrawAttrLine(b0.x, b0.y, b1.x, b1.y, thin);

  const Pixel da = ToPixel(draw, ax + nx, ay + ny);
  const Pixel db = ToPixel(draw, bx + nx, by + ny);
  draw.DrawDoubleArrowLine(da.x, da.y, db.x, db.y, kArrowSize, thin);

  // The text sits on a white box just outside the dimension line's middle.
  KCC_TextAttributes font("Arial");
  font.SetFontSize(13);
  font.SetAngleDeg(textAngle);
  const KCC_FillAttributes paper(KCColorWhite(255), true);
  const Pixel mid = ToPixel(draw, (ax + bx) / 2.0 + nx + sx * 3.0, (ay + by) / 2.0 + ny + sy * 3.0);
  draw.DisplayText(text, mid.x, mid.y, paper, font);
}

}  // namespace

int main(int argc, char** argv) {
  // A canvas of 560 x 400 pixels; the view port keeps a margin of 40 pixels and shows the world from
  // (-70, -50) to (70, 50): one ratio for both axes, here 0.3125 mm per pixel.
  KCC_SvgCanvas canvas(560, 400);
  KCC_ViewPortDraw viewPort(560, 400);
  viewPort.SetPixelMargins(40);
  KCC_Draw draw(viewPort, canvas);
  draw.SetWorldCoord(-70.0, -50.0, 70.0, 50.0);

  KCColor paper = KCColorWhite(255);
  draw.PaintBackGround(paper);

  // The plate: its outline mapped to pixels as an element list and filled, then its contour drawn.
  const KC2DElmList outline = PlateOutline();
  KC2DElmList outlinePixels;
  draw.World2Screen(outline, outlinePixels);
  KCC_LineAttributes noOutline(KCColor(220, 228, 240), KCPenStyleSolid(), 1);
  const KCC_FillAttributes steel(KCColor(220, 228, 240), true);
  draw.DrawFilledElmList(outlinePixels, noOutline, steel);
  KCC_LineAttributes contour;
  contour.SetDarkBlueLine();
  contour.SetLineWidth(2);
  DrawContour(draw, outline, contour);

  const Pixel centre = ToPixel(draw, 0.0, 0.0);
  // The bore and the holes of the bolt circle: white inside, so they read as holes in the plate. A
  // circular pattern hands out the hole positions around the centre.
  const KCC_FillAttributes hole(KCColorWhite(255), true);
  draw.DrawAttrCircle(centre.x, centre.y, ToPixels(draw, kBoreRadius), contour, hole);
  KCC_ObjectPattern_Circular boltCircle(kBoltCircleRadius, 30.0, 60.0);
  double hx = 0.0;
  double hy = 0.0;
  int holes = 0;
  for (bool more = boltCircle.GetFirstPosition(hx, hy); more; more = boltCircle.GetNextPosition(hx, hy)) {
    const Pixel h = ToPixel(draw, hx, hy);
    draw.DrawAttrCircle(h.x, h.y, ToPixels(draw, kHoleRadius), contour, hole);
    ++holes;
  }

  // Centre lines through the bore and the bolt circle, dash-dot, drawn over the holes as a drawing shows
  // them.
  KCC_LineAttributes centreLine;
  centreLine.SetDarkRedLine();
  centreLine.SetDashDotLine();
  const Pixel left = ToPixel(draw, -kWidth / 2.0 - 4.0, 0.0);
  const Pixel right = ToPixel(draw, kWidth / 2.0 + 4.0, 0.0);
  const Pixel bottom = ToPixel(draw, 0.0, -kHeight / 2.0 - 4.0);
  const Pixel top = ToPixel(draw, 0.0, kHeight / 2.0 + 4.0);
  draw.DrawAttrLine(left.x, left.y, right.x, right.y, centreLine);
  draw.DrawAttrLine(bottom.x, bottom.y, top.x, top.y, centreLine);
  draw.DrawAttrCircle(centre.x, centre.y, ToPixels(draw, kBoltCircleRadius), centreLine);

  // Workpiece zero at the bottom-left corner of the plate's bounding box.
  KCC_LineAttributes marker;
  marker.SetRedLine();
  marker.SetLineWidth(2);
  const Pixel zero = ToPixel(draw, -kWidth / 2.0, -kHeight / 2.0);
  draw.DrawPointDiamond(zero.x, zero.y, 6, marker);

  // Dimensions: width below the plate, height to its right (text turned by 90 degrees).
  DrawDimension(draw, kWidth / 2.0, -kHeight / 2.0, -kWidth / 2.0, -kHeight / 2.0, 6.0, "120", 0.0);
  DrawDimension(draw, kWidth / 2.0, kHeight / 2.0, kWidth / 2.0, -kHeight / 2.0, 6.0, "80", 90.0);

  // The angle between two neighbouring holes: an arc with a head, counter-clockwise in the world from the
  // first hole's angle to the second's, so clockwise in pixels.
  KCC_LineAttributes thin;
  thin.SetDarkGrayLine();
  const double rad = std::atan(1.0) / 45.0;
  const double r = 19.0;
  const Pixel from = ToPixel(draw, r * std::cos(30.0 * rad), r * std::sin(30.0 * rad));
  const Pixel to = ToPixel(draw, r * std::cos(90.0 * rad), r * std::sin(90.0 * rad));
  draw.DrawArrowArc_CW(from.x, from.y, to.x, to.y, centre.x, centre.y, false, kArrowSize, thin);

  // Labels.
  KCC_TextAttributes label("Arial");
  label.SetFontSize(12);
  const KCC_FillAttributes clear;
  const Pixel angleText = ToPixel(draw, 22.0 * std::cos(60.0 * rad), 22.0 * std::sin(60.0 * rad));
  draw.DisplayText("60\xC2\xB0", angleText.x, angleText.y, clear, label);
  const Pixel holeText = ToPixel(draw, -36.0, 27.0);
  const KCString holeCallout = std::to_string(holes) +
                               " x \xC3\x98"
                               "8";
  draw.DisplayText(holeCallout, holeText.x, holeText.y, clear, label);
  const Pixel boreText = ToPixel(draw, 0.0, -8.0);
  draw.DisplayText(
      "\xC3\x98"
      "24",
      boreText.x, boreText.y, clear, label);

  KCC_TextAttributes title("Arial");
  title.SetFontSize(16);
  title.EnableBold();
  const Pixel titleBox0 = ToPixel(draw, -70.0, 50.0);
  const Pixel titleBox1 = ToPixel(draw, 70.0, 44.0);
  draw.DisplayTextBox("Flange plate 120 x 80", titleBox0.x, titleBox0.y, titleBox1.x, titleBox1.y, clear,
                      title);

  std::cout << canvas.ToSvg();
  if (argc > 1 && !canvas.SaveToFile(argv[1])) {
    std::cerr << "example_draw: cannot write " << argv[1] << "\n";
    return 1;
  }
  return 0;
}
