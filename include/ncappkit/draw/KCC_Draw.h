// SPDX-License-Identifier: MIT
// KCC_Draw: the drawing API on a view port and a client canvas. It maps world coordinates to pixels through
// a KCC_ViewPortDraw and draws points, lines, arrows, arcs, circles, rectangles, texts, element lists,
// selection marks and the background on a KCCanvas, leaving every canvas setting as it found it.
//
//   KCC_ViewPortDraw viewPort(480, 320);
//   KCC_SvgCanvas canvas(480, 320);
//   KCC_Draw draw(viewPort, canvas);                 // holds both, owns neither
//   draw.SetWorldCoord(0.0, 0.0, 120.0, 80.0);
//   int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
//   draw.World2ScreenPoint(0.0, 0.0, x1, y1);
//   draw.World2ScreenPoint(120.0, 0.0, x2, y2);
//   KCC_LineAttributes pen;
//   pen.SetBlueLine();
//   draw.DrawDoubleArrowLine(x1, y1, x2, y2, 12, pen);   // a dimension line with two 12-pixel heads
//
// Rules worth knowing:
// - SetWorldCoord always answers true, also when the view port refuses the rectangle; ask the view port
//   (GetViewPort().SetWorldCoord) when the refusal matters.
// - Drawing takes pixels. The double forms pass their coordinates to the canvas as they are; world
//   coordinates become pixels only through the mapping operations. The pixel y axis points down, so the
//   mapping mirrors: an arc that turns counter-clockwise in the world turns clockwise in pixels.
// - Every operation that changes a canvas setting reads it first with the canvas getter and sets it back
//   afterwards, in the order it read them. Line attributes are applied as pen colour, pen style, pen width.
//   DrawLine and DrawArc use the canvas's current pen and change nothing.
// - DrawArc draws a polyline: steps of 5 degrees, divided by log10(r) when the radius r is above 10. The
//   first point after the start is the start point again (the first step is taken after it), so a quarter
//   circle of radius 100 has 36 intermediate points before the end point. With start equal to end it draws
//   a whole circle when fullCircle is set, and a zero-length segment when it is not. Start and end angles
//   are taken as +-90 degrees when the point lies within 1e-4 of the centre's x.
// - Arrow heads are triangles filled with the line colour as brush colour (the brush style is left as it
//   is): head length min(size, line length), half width a quarter of the size. No head for size <= 0 or
//   for a line shorter than 1e-4 in both x and y.
// - DisplayText centres the measured text on (x, y), turned by the angle: origin x - (w/2) cos a - (h/2)
//   sin a + 0.5 and y + (w/2) sin a - (h/2) cos a + 0.5, each truncated towards zero (w, h from the
//   canvas's MeasureText; the halves are exact). A 40 x 10 text at (100, 50) at angle 0 starts at (80, 45).
// - Filled shapes (fill attributes filled) get a solid brush in the fill colour; hollow ones a clear brush.
// - Selection marks draw black, dotted, 1 pixel wide in pen mode NotXor with a clear brush, so that drawing
//   the same mark twice removes it again.
// - Bad input never crashes: NaN or infinite coordinates reach the canvas as they are (no conversion to
//   int); an arc whose step count is not a finite number draws only start and end; int coordinates are
//   widened to double before any arithmetic, so x - size cannot overflow.
// - Decisions for the operations whose details are this class's own: see each operation's comment (arrow
//   arcs, circles and rectangles with fill, DisplayTextBox, the int DisplayText, element lists and
//   World2Screen).
// See docs/behaviours.md#drawing-api.
#pragma once

#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/draw/KCCanvas.h"
#include "ncappkit/draw/KCI_Draw.h"
#include "ncappkit/export.h"

/// The drawing API: world-to-pixel mapping through a view port and every drawing operation on a canvas.
class NCAPPKIT_EXPORT KCC_Draw : public KCI_Draw {
 public:
  /// Draw on `canvas` with the mapping of `viewPort`; both are held, not owned, and must outlive this.
  KCC_Draw(KCC_ViewPortDraw& viewPort, KCCanvas& canvas);
  /// Holds the same view port and canvas as `other`: both objects then draw on them.
  KCC_Draw(const KCC_Draw& other);
  /// Rebinds: from now on this object holds `other`'s view port and canvas, as a copy would; returns *this.
  /// Neither the old nor the new view port or canvas is changed.
  KCC_Draw& operator=(const KCC_Draw& other);
  /// Releases nothing: the view port and the canvas belong to the caller.
  ~KCC_Draw() override;

  /// The view port this object maps with.
  KCC_ViewPortDraw& GetViewPort() const noexcept { return *m_viewPort; }

  /// The view port's world units per pixel applied to world x.
  double GetWorld2PixelRatioX() const override;
  /// The view port's world units per pixel applied to world y.
  double GetWorld2PixelRatioY() const override;
  /// Passes the rectangle (both minima first) to the view port's SetWorldCoord and answers true whatever
  /// the view port answered.
  bool SetWorldCoord(double xMin, double yMin, double xMax, double yMax) override;
  /// The view port's Screen2WorldPoint: the world point (x, y) under pixel (px, py).
  void Screen2WorldPoint(int px, int py, double& x, double& y) const override;
  /// The view port's double World2ScreenPoint: pixel position (px, py) of (x, y), not rounded.
  void World2ScreenPoint(double x, double y, double& px, double& py) const override;
  /// The view port's int World2ScreenPoint: pixel (px, py) of (x, y), offsets truncated towards zero.
  void World2ScreenPoint(double x, double y, int& px, int& py) const override;
  /// `screen` is emptied and gets, for each entry of `world` in order, a new element of the same kind with
  /// every point mapped by the double World2ScreenPoint (null entries stay null). Arcs get the opposite
  /// turning sense, because the mapping mirrors; rectangles stay axis-parallel. `world` and `screen` may be
  /// the same list.
  void World2Screen(const KC2DElmList& world, KC2DElmList& screen) const override;

  /// The outline of the square with half-size `size` around (x, y): one MoveTo and four LineTo from
  /// (x - size, y - size) through (x - size, y + size), (x + size, y + size), (x + size, y - size).
  void DrawPointSquare(int x, int y, int size, const KCC_LineAttributes& line) override;
  /// The outline of the diamond with half-size `size` around (x, y): from (x - size, y) through
  /// (x, y + size), (x + size, y), (x, y - size) back to (x - size, y).
  void DrawPointDiamond(int x, int y, int size, const KCC_LineAttributes& line) override;
  /// MoveTo (x1, y1), LineTo (x2, y2) with the canvas's current pen; no setting is changed.
  void DrawLine(double x1, double y1, double x2, double y2) override;
  /// The double DrawLine with the four values converted to double.
  void DrawLine(int x1, int y1, int x2, int y2) override;
  /// DrawLine with the pen of the line attributes (colour, style, width), restored afterwards.
  void DrawAttrLine(double x1, double y1, double x2, double y2, const KCC_LineAttributes& line) override;
  /// The double DrawAttrLine with the four values converted to double.
  void DrawAttrLine(int x1, int y1, int x2, int y2, const KCC_LineAttributes& line) override;
  /// DrawLine with the pen of the line attributes and a head at (x2, y2) filled with the line colour (see
  /// the rules above for its size; no head for size <= 0 or a line shorter than 1e-4 in x and y).
  void DrawArrowLine(double x1, double y1, double x2, double y2, int size,
                     const KCC_LineAttributes& line) override;
  /// The double DrawArrowLine with the four coordinates converted to double.
  void DrawArrowLine(int x1, int y1, int x2, int y2, int size, const KCC_LineAttributes& line) override;
  /// As DrawArrowLine, with a second, mirrored head at (x1, y1) drawn after the one at (x2, y2).
  void DrawDoubleArrowLine(int x1, int y1, int x2, int y2, int size, const KCC_LineAttributes& line) override;
  /// The arc from (x1, y1) to (x2, y2) around (xc, yc) as a polyline with the canvas's current pen (see the
  /// rules above); the radius is the distance from the centre to the start point.
  void DrawArc(double x1, double y1, double x2, double y2, double xc, double yc, bool clockwise,
               bool fullCircle) override;
  /// The double DrawArc with the six coordinates converted to double.
  void DrawArc(int x1, int y1, int x2, int y2, int xc, int yc, bool clockwise, bool fullCircle) override;
  /// Ellipse in (x - radius, y - radius, x + radius, y + radius) with the pen of the line attributes and,
  /// when `fill` is filled, a solid brush in the fill colour, else a clear brush. Reads and restores pen
  /// style, pen width, pen colour, brush style and brush colour, in that order.
  void DrawAttrCircle(int x, int y, int radius, const KCC_LineAttributes& line,
                      const KCC_FillAttributes& fill) override;
  /// Ellipse in (x - radius, y - radius, x + radius, y + radius) with the pen of the line attributes and a
  /// clear brush. Reads and restores pen style, pen width, pen colour and brush style, in that order.
  void DrawAttrCircle(int x, int y, int radius, const KCC_LineAttributes& line) override;
  /// This object's DrawArrowArc_CW (clockwise set) or DrawArrowArc_CCW with arrow size 0: the arc with the
  /// pen of the line attributes and no head.
  void DrawAttrArc(int x1, int y1, int x2, int y2, int xc, int yc, bool clockwise, bool fullCircle,
                   const KCC_LineAttributes& line) override;
  /// DrawArc clockwise with the pen of the line attributes, and a head at (x2, y2) pointing along the arc's
  /// tangent there, built as DrawArrowLine's head with the arc length as the line length (no head for size
  /// <= 0 or an arc shorter than 1e-4). Reads and restores pen colour, width, style and brush colour.
  void DrawArrowArc_CW(double x1, double y1, double x2, double y2, double xc, double yc, bool fullCircle,
                       int size, const KCC_LineAttributes& line) override;
  /// The double DrawArrowArc_CW with the six coordinates converted to double.
  void DrawArrowArc_CW(int x1, int y1, int x2, int y2, int xc, int yc, bool fullCircle, int size,
                       const KCC_LineAttributes& line) override;
  /// As DrawArrowArc_CW, turning counter-clockwise.
  void DrawArrowArc_CCW(double x1, double y1, double x2, double y2, double xc, double yc, bool fullCircle,
                        int size, const KCC_LineAttributes& line) override;
  /// The double DrawArrowArc_CCW with the six coordinates converted to double.
  void DrawArrowArc_CCW(int x1, int y1, int x2, int y2, int xc, int yc, bool fullCircle, int size,
                        const KCC_LineAttributes& line) override;
  /// The canvas Rectangle (x1, y1, x2, y2) with a black dotted pen of width 1 and a clear brush (a rubber
  /// band); the pen mode is left as it is.
  void DrawRectangle(int x1, int y1, int x2, int y2) override;
  /// The canvas Rectangle (x1, y1, x2, y2) with the pen of the line attributes and a clear brush. Reads and
  /// restores pen colour, width, style and brush style.
  void DrawHollowRectangle(double x1, double y1, double x2, double y2,
                           const KCC_LineAttributes& line) override;
  /// The double DrawHollowRectangle with the four values converted to double.
  void DrawHollowRectangle(int x1, int y1, int x2, int y2, const KCC_LineAttributes& line) override;
  /// The canvas Rectangle (x1, y1, x2, y2) with the pen of the line attributes and a solid brush in the
  /// fill colour when `fill` is filled, else a clear brush (then it looks like DrawHollowRectangle). Reads
  /// and restores pen colour, width, style, brush style and brush colour.
  void DrawFilledRectangle(double x1, double y1, double x2, double y2, const KCC_LineAttributes& line,
                           const KCC_FillAttributes& fill) override;
  /// The double DrawFilledRectangle with the four values converted to double.
  void DrawFilledRectangle(int x1, int y1, int x2, int y2, const KCC_LineAttributes& line,
                           const KCC_FillAttributes& fill) override;
  /// `text` centred on (x, y) in the font, colour, size, styles and angle of `font`; a filled `fill` paints
  /// the text's box in the fill colour (see the rules above for the origin).
  void DisplayText(const KCString& text, double x, double y, const KCC_FillAttributes& fill,
                   const KCC_TextAttributes& font) override;
  /// The double DisplayText with (x, y) converted to double.
  void DisplayText(const KCString& text, int x, int y, const KCC_FillAttributes& fill,
                   const KCC_TextAttributes& font) override;
  /// The double DisplayText at the centre ((x1 + x2) / 2, (y1 + y2) / 2) of the box, computed in double; the
  /// box itself is not drawn and does not clip the text.
  void DisplayTextBox(const KCString& text, int x1, int y1, int x2, int y2, const KCC_FillAttributes& fill,
                      const KCC_TextAttributes& font) override;
  /// The canvas FrameRectangle (x1, y1, x2, y2) as a selection mark (see the rules above).
  void DrawSelectHollowRectangle(int x1, int y1, int x2, int y2) override;
  /// MoveTo (x1, y1), LineTo (x2, y2) as a selection mark (see the rules above).
  void DrawSelectLine(int x1, int y1, int x2, int y2) override;
  /// The canvas EllipseMark in (x - radius, y - radius, x + radius, y + radius) as a selection mark.
  void DrawSelectCircle(int x, int y, int radius) override;
  /// FillCanvas with a solid brush and a solid pen of width 1, both in `colour`; every setting restored.
  void PaintBackGround(KCColor& colour) override;
  /// The elements (pixel coordinates) joined in list order into one canvas Polygon: a line adds its start
  /// and end, an arc the points DrawArc would draw (full circle when its start and end coincide), a
  /// rectangle its outline, a point itself; a point equal to the one before it is left out. Pen from the
  /// line attributes, brush as DrawFilledRectangle's. A list without drawable points makes no canvas call.
  void DrawFilledElmList(KC2DElmList& elements, const KCC_LineAttributes& line,
                         const KCC_FillAttributes& fill) override;
  /// Each element (pixel coordinates) on its own, starting with a MoveTo: a line as one LineTo, an arc as
  /// DrawArc (full circle when its start and end coincide), a rectangle as its closed outline, a point as a
  /// zero-length segment. Pen from the line attributes; null entries are skipped, and a list without
  /// elements makes no canvas call.
  void DrawHollowElmList(KC2DElmList& elements, const KCC_LineAttributes& line) override;

 private:
  // Pointers rather than references so that assignment can rebind; never null.
  KCC_ViewPortDraw* m_viewPort;
  KCCanvas* m_canvas;
};
