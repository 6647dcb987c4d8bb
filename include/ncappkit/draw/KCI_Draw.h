// SPDX-License-Identifier: MIT
// KCI_Draw: the one interface through which an application draws points, lines, arrows, arcs, circles,
// rectangles, texts, element lists, selection marks and the background. KCC_Draw implements it on a view
// port and a client canvas.
//
//   void DrawPart(KCI_Draw& draw, const KCC_LineAttributes& pen) {
//     int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
//     draw.World2ScreenPoint(0.0, 0.0, x1, y1);        // world -> pixel
//     draw.World2ScreenPoint(100.0, 50.0, x2, y2);
//     draw.DrawArrowLine(x1, y1, x2, y2, 12, pen);     // a line with a 12-pixel head at (x2, y2)
//   }
//
// The drawing operations take pixel coordinates; world coordinates become pixels only through the mapping
// operations (slots 1 to 7).
#pragma once

#include "ncappkit/export.h"

class KCC_LineAttributes;
class KCC_FillAttributes;
class KCC_TextAttributes;
class KC2DElmList;
class KCColor;
class KCString;

/// The drawing interface: mapping between world and pixels, and every drawing operation.
class NCAPPKIT_EXPORT KCI_Draw {
 public:
  /// Nothing to set up: the interface holds no data.
  KCI_Draw() = default;
  /// Nothing to copy: the interface holds no data.
  KCI_Draw(const KCI_Draw&) = default;
  /// Nothing to assign: the interface holds no data; returns *this.
  KCI_Draw& operator=(const KCI_Draw&) = default;
  virtual ~KCI_Draw();

  /// World units per pixel applied to world x.
  virtual double GetWorld2PixelRatioX() const = 0;
  /// World units per pixel applied to world y.
  virtual double GetWorld2PixelRatioY() const = 0;
  /// Show the world rectangle (both minima first); see the implementation for what the result says.
  virtual bool SetWorldCoord(double xMin, double yMin, double xMax, double yMax) = 0;
  /// The world point (x, y) under pixel (px, py).
  virtual void Screen2WorldPoint(int px, int py, double& x, double& y) const = 0;
  /// The pixel position (px, py) of world point (x, y), not rounded.
  virtual void World2ScreenPoint(double x, double y, double& px, double& py) const = 0;
  /// The pixel (px, py) of world point (x, y), truncated towards zero.
  virtual void World2ScreenPoint(double x, double y, int& px, int& py) const = 0;
  /// `screen` gets the elements of `world` mapped to pixel coordinates.
  virtual void World2Screen(const KC2DElmList& world, KC2DElmList& screen) const = 0;
  /// A square point mark of half-size `size` around (x, y) with the line attributes.
  virtual void DrawPointSquare(int x, int y, int size, const KCC_LineAttributes& line) = 0;
  /// A diamond point mark of half-size `size` around (x, y) with the line attributes.
  virtual void DrawPointDiamond(int x, int y, int size, const KCC_LineAttributes& line) = 0;
  /// A line with the canvas's current pen.
  virtual void DrawLine(double x1, double y1, double x2, double y2) = 0;
  /// A line with the canvas's current pen.
  virtual void DrawLine(int x1, int y1, int x2, int y2) = 0;
  /// A line with the pen of the line attributes.
  virtual void DrawAttrLine(double x1, double y1, double x2, double y2, const KCC_LineAttributes& line) = 0;
  /// A line with the pen of the line attributes.
  virtual void DrawAttrLine(int x1, int y1, int x2, int y2, const KCC_LineAttributes& line) = 0;
  /// A line with an arrow head of `size` pixels at (x2, y2).
  virtual void DrawArrowLine(double x1, double y1, double x2, double y2, int size,
                             const KCC_LineAttributes& line) = 0;
  /// A line with an arrow head of `size` pixels at (x2, y2).
  virtual void DrawArrowLine(int x1, int y1, int x2, int y2, int size, const KCC_LineAttributes& line) = 0;
  /// A line with arrow heads of `size` pixels at both ends.
  virtual void DrawDoubleArrowLine(int x1, int y1, int x2, int y2, int size,
                                   const KCC_LineAttributes& line) = 0;
  /// An arc from (x1, y1) to (x2, y2) around (xc, yc) with the canvas's current pen.
  virtual void DrawArc(double x1, double y1, double x2, double y2, double xc, double yc, bool clockwise,
                       bool fullCircle) = 0;
  /// An arc from (x1, y1) to (x2, y2) around (xc, yc) with the canvas's current pen.
  virtual void DrawArc(int x1, int y1, int x2, int y2, int xc, int yc, bool clockwise, bool fullCircle) = 0;
  /// A circle with the pen of the line attributes, filled as the fill attributes say.
  virtual void DrawAttrCircle(int x, int y, int radius, const KCC_LineAttributes& line,
                              const KCC_FillAttributes& fill) = 0;
  /// A hollow circle with the pen of the line attributes.
  virtual void DrawAttrCircle(int x, int y, int radius, const KCC_LineAttributes& line) = 0;
  /// An arc with the pen of the line attributes.
  virtual void DrawAttrArc(int x1, int y1, int x2, int y2, int xc, int yc, bool clockwise, bool fullCircle,
                           const KCC_LineAttributes& line) = 0;
  /// A clockwise arc with an arrow head of `size` pixels at its end.
  virtual void DrawArrowArc_CW(double x1, double y1, double x2, double y2, double xc, double yc,
                               bool fullCircle, int size, const KCC_LineAttributes& line) = 0;
  /// A clockwise arc with an arrow head of `size` pixels at its end.
  virtual void DrawArrowArc_CW(int x1, int y1, int x2, int y2, int xc, int yc, bool fullCircle, int size,
                               const KCC_LineAttributes& line) = 0;
  /// A counter-clockwise arc with an arrow head of `size` pixels at its end.
  virtual void DrawArrowArc_CCW(double x1, double y1, double x2, double y2, double xc, double yc,
                                bool fullCircle, int size, const KCC_LineAttributes& line) = 0;
  /// A counter-clockwise arc with an arrow head of `size` pixels at its end.
  virtual void DrawArrowArc_CCW(int x1, int y1, int x2, int y2, int xc, int yc, bool fullCircle, int size,
                                const KCC_LineAttributes& line) = 0;
  /// A dotted black rectangle with a clear brush (a rubber band).
  virtual void DrawRectangle(int x1, int y1, int x2, int y2) = 0;
  /// The outline of a rectangle with the pen of the line attributes.
  virtual void DrawHollowRectangle(double x1, double y1, double x2, double y2,
                                   const KCC_LineAttributes& line) = 0;
  /// The outline of a rectangle with the pen of the line attributes.
  virtual void DrawHollowRectangle(int x1, int y1, int x2, int y2, const KCC_LineAttributes& line) = 0;
  /// A rectangle outlined with the line attributes and filled as the fill attributes say.
  virtual void DrawFilledRectangle(double x1, double y1, double x2, double y2, const KCC_LineAttributes& line,
                                   const KCC_FillAttributes& fill) = 0;
  /// A rectangle outlined with the line attributes and filled as the fill attributes say.
  virtual void DrawFilledRectangle(int x1, int y1, int x2, int y2, const KCC_LineAttributes& line,
                                   const KCC_FillAttributes& fill) = 0;
  /// `text` centred on (x, y), turned by the text attributes' angle.
  virtual void DisplayText(const KCString& text, double x, double y, const KCC_FillAttributes& fill,
                           const KCC_TextAttributes& font) = 0;
  /// `text` centred on (x, y), turned by the text attributes' angle.
  virtual void DisplayText(const KCString& text, int x, int y, const KCC_FillAttributes& fill,
                           const KCC_TextAttributes& font) = 0;
  /// `text` in the box (x1, y1)-(x2, y2).
  virtual void DisplayTextBox(const KCString& text, int x1, int y1, int x2, int y2,
                              const KCC_FillAttributes& fill, const KCC_TextAttributes& font) = 0;
  /// A selection rectangle that a second identical call erases.
  virtual void DrawSelectHollowRectangle(int x1, int y1, int x2, int y2) = 0;
  /// A selection line that a second identical call erases.
  virtual void DrawSelectLine(int x1, int y1, int x2, int y2) = 0;
  /// A selection circle that a second identical call erases.
  virtual void DrawSelectCircle(int x, int y, int radius) = 0;
  /// Paint the whole canvas with `colour`.
  virtual void PaintBackGround(KCColor& colour) = 0;
  /// The elements of the list (pixel coordinates) as closed shapes, outlined and filled.
  virtual void DrawFilledElmList(KC2DElmList& elements, const KCC_LineAttributes& line,
                                 const KCC_FillAttributes& fill) = 0;
  /// The elements of the list (pixel coordinates), outlined.
  virtual void DrawHollowElmList(KC2DElmList& elements, const KCC_LineAttributes& line) = 0;
};
