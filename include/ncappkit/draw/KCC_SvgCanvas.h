// SPDX-License-Identifier: MIT
// KCC_SvgCanvas: a KCCanvas that records what is drawn on it and writes it as an SVG 1.1 image.
//
// It lets a program or a test draw through the drawing API without a window: every shape becomes one SVG
// element, in call order, and the image is a text (ToSvg) or a file (SaveToFile).
//
//   KCC_SvgCanvas canvas(320, 200);
//   canvas.SetBrushColor(KCColorWhite(255));
//   canvas.FillCanvas();
//   canvas.SetPenColor(KCColorRed(255));
//   canvas.MoveTo(KC2DPoint(10, 10));
//   canvas.LineTo(KC2DPoint(100, 10));               // one <path d="M10 10 L100 10" .../>
//   canvas.LineTo(KC2DPoint(100, 90));               // joins it: d="M10 10 L100 10 L100 90"
//   canvas.ArcTo(KC2DPoint(10, 90), 45, false, true); // and an arc: " A45 45 0 0 1 10 90"
//   bool saved = canvas.SaveToFile("drawing.svg");
//
// Rules worth knowing:
// - A new canvas has a black solid pen of width 1 in copy mode, a white solid brush, black "Arial" text of
//   12 pixels without styles at angle 0, and the current point (0, 0). Every getter gives back exactly what
//   its setter was given, also values that cannot be drawn as they are (see the next rules).
// - A width or height below 0 is taken as 0; such a canvas still writes a valid SVG that shows nothing.
// - Numbers are written without regard to the locale, with at most GetPrecision() decimals (2 unless set;
//   SetPrecision clamps to 0..10), trailing zeros dropped and "-0" written as "0". The precision applies to
//   the whole output whenever ToSvg runs. The output holds no time or other varying data, so the same calls
//   always give the same bytes.
// - Pen widths below 1 draw 1 pixel wide; the dash pattern of a pen style is scaled by the drawn width. A
//   font size below 0 draws (and measures) as 0, which shows nothing. An alpha below 255 is written as an
//   opacity.
// - Consecutive LineTo calls with the same pen make one <path>; a MoveTo between them starts a new sub-path
//   in it. Any other shape, or a pen that draws differently, ends the path.
// - A shape with a coordinate that is not a finite number is left out (a LineTo still moves the current
//   point); so is a polygon of fewer than two points, an empty text, and FillCanvas with a clear brush.
// - TextOut puts the top-left corner of the text's box at the origin; the baseline lies at 0.8 of the font
//   size below it. The angle turns box and text counter-clockwise about the origin. The brush fills the box
//   (MeasureText's size) unless it is clear. The pen mode has no effect on text.
// - MeasureText estimates: height = font size; width = the sum of typical advance widths of a sans-serif
//   font (Arial, Helvetica) per character, 7 percent wider for bold, or 0.6 of the size per character for
//   monospace families ("Courier New", "Consolas", names holding "Mono" ...), rounded up. A viewer that
//   substitutes another font draws the text a little wider or narrower than measured.
// - Pen mode NotXor draws a shape (not FillCanvas or text) in the complement of its pen and brush colours
//   with mix-blend-mode "difference": a black pen (the select marks) then inverts what lies below, as
//   NOT-XOR does; other colours come close to it. The file
//   keeps every element, so drawing a mark twice does not remove it: where the two strokes cover pixels
//   fully the picture shows what was below again, but their anti-aliased edges stay faintly visible. The
//   inversion needs something drawn below (FillCanvas first); over transparent parts of the canvas a
//   viewer's own background does not take part and a mark drawn with a black pen shows white.
// - Text is written as UTF-8; a byte that does not start a valid UTF-8 sequence is taken as the Latin-1
//   character of that value, and control characters XML forbids become U+FFFD, so the file stays
//   well-formed.
// - BeginGroup and EndGroup put the shapes drawn between them into a <g> element; groups nest, and ToSvg
//   closes the groups still open. A group with a label is marked as a layer for vector editors (Inkscape's
//   groupmode and label attributes; the picture then declares that namespace). SetTitle and SetDescription
//   give the picture's <title> and <desc>, written in that order before the first shape.
// - The canvas keeps shapes compactly: path points are 16 bytes each in one array for the whole canvas, and
//   the settings are stored once per change rather than once per shape, so a picture of a million lines
//   takes some 16 MB besides its text.
// See docs/behaviours.md#svg-canvas.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ncappkit/draw/KCCanvas.h"
#include "ncappkit/export.h"

/// A KCCanvas that keeps every shape drawn on it and writes them as an SVG 1.1 image.
class NCAPPKIT_EXPORT KCC_SvgCanvas : public KCCanvas {
 public:
  /// An empty canvas of `width` x `height` pixels (values below 0 taken as 0) with the default settings.
  KCC_SvgCanvas(int width, int height);
  /// Copies size, precision, settings, current point and every shape drawn so far.
  KCC_SvgCanvas(const KCC_SvgCanvas& other);
  /// Copies size, precision, settings, current point and every shape drawn so far; returns *this.
  KCC_SvgCanvas& operator=(const KCC_SvgCanvas& other);
  ~KCC_SvgCanvas() override;

  /// The canvas width in pixels (0 when constructed with a negative width).
  int GetWidth() const noexcept { return m_width; }
  /// The canvas height in pixels (0 when constructed with a negative height).
  int GetHeight() const noexcept { return m_height; }
  /// The number of decimals written for coordinates and sizes (default 2).
  int GetPrecision() const noexcept { return m_precision; }
  /// Set the number of decimals written for coordinates and sizes; values outside 0..10 are clamped.
  void SetPrecision(int decimals) noexcept;
  /// The number of threads ToSvg may use to write a long path (default 1: only the calling one).
  int GetWriteThreads() const noexcept { return m_writeThreads; }
  /// Let ToSvg write each path of more than kPointsPerWriteThread points in up to `threads` parts side by
  /// side, the calling thread taking the first; values outside 1..kMaxWriteThreads are clamped. The output
  /// is the same bytes whatever the number.
  void SetWriteThreads(int threads) noexcept;
  /// Most threads SetWriteThreads allows.
  static constexpr int kMaxWriteThreads = 8;
  /// Fewest points a path needs per write thread before ToSvg starts one more.
  static constexpr std::size_t kPointsPerWriteThread = 50000;
  /// The current point: where the next LineTo starts.
  KC2DPoint GetCurrentPoint() const noexcept { return m_current; }

  /// Add a circular arc of `radius` from the current point to `end`, turning clockwise on the canvas (pixel y
  /// down) when `clockwise`, the larger of the two possible arcs when `largeArc` (SVG's arc command), and
  /// make `end` current. It joins the open path as LineTo does. As in SVG a radius too small to reach `end`
  /// is enlarged to half the chord, and a radius of 0 draws a line; nothing is drawn when either point or the
  /// radius is not finite, or when `end` is the current point (split a full circle in two).
  void ArcTo(const KC2DPoint& end, double radius, bool largeArc, bool clockwise);

  /// Make room for `count` more path and polygon points, so that a picture of known size is recorded without
  /// the point array growing step by step. A line that continues the open path takes one, an arc three; a
  /// step that starts a path takes one more, and one that leaves the path's last point two more (a move).
  /// Room reserved and not used costs address space only. A count too large to hold is ignored;
  /// std::bad_alloc when memory runs out.
  void ReservePoints(std::size_t count);

  /// Start a group: the shapes drawn until the matching EndGroup become children of one group element
  /// (`g`) with the id `id` (none when empty), marked as a layer named `label` for vector editors when
  /// `label` is not empty. Ends an open path; never fails.
  void BeginGroup(const KCString& id, const KCString& label);
  /// End the innermost open group; nothing when none is open.
  void EndGroup();
  /// The number of groups begun and not yet ended.
  int GetOpenGroupCount() const noexcept { return m_openGroups; }
  /// Set the text of the picture's title element, `title` (none when empty); never fails.
  void SetTitle(const KCString& title);
  /// The title as set (empty by default).
  KCString GetTitle() const;
  /// Set the text of the picture's description element, `desc` (none when empty); line breaks are kept;
  /// never fails.
  void SetDescription(const KCString& description);
  /// The description as set (empty by default).
  KCString GetDescription() const;

  /// The image as SVG 1.1 text (UTF-8, LF line ends), the shapes in call order; never fails.
  std::string ToSvg() const;
  /// Write ToSvg() to `path` through a temporary file beside it, so an existing file is replaced only by a
  /// complete new one (a symbolic link is followed and stays). False when the file cannot be written or the
  /// path holds a NUL byte; nothing is changed then.
  bool SaveToFile(const KCString& path) const;

  /// The pen colour; never fails.
  KCColor GetPenColor() const override;
  /// Set the pen colour; never fails.
  void SetPenColor(const KCColor& color) override;
  /// The brush colour; never fails.
  KCColor GetBrushColor() const override;
  /// Set the brush colour; never fails.
  void SetBrushColor(const KCColor& color) override;
  /// The text colour; never fails.
  KCColor GetFontColor() const override;
  /// Set the text colour; never fails.
  void SetFontColor(const KCColor& color) override;
  /// The font styles; never fails.
  KCFontStyles GetFontStyles() const override;
  /// Set the font styles; never fails.
  void SetFontStyles(const KCFontStyles& styles) override;
  /// The font name; never fails.
  KCString GetFontName() const override;
  /// Set the font name (an empty name leaves the family to the viewer); never fails.
  void SetFontName(const KCString& name) override;
  /// The pen style; never fails.
  KCPenStyle GetPenStyle() const override;
  /// Set the pen style; never fails.
  void SetPenStyle(const KCPenStyle& style) override;
  /// The pen mode; never fails.
  KCPenMode GetPenMode() const override;
  /// Set the pen mode; never fails.
  void SetPenMode(const KCPenMode& mode) override;
  /// The brush style; never fails.
  KCBrushStyle GetBrushStyle() const override;
  /// Set the brush style; never fails.
  void SetBrushStyle(const KCBrushStyle& style) override;
  /// The font size in pixels as set, also when below 0; never fails.
  int GetFontSize() const override;
  /// Set the font size in pixels; never fails.
  void SetFontSize(int size) override;
  /// The text angle in degrees, counter-clockwise, as set; never fails.
  double GetTextAngle() const override;
  /// Set the text angle in degrees, counter-clockwise; never fails.
  void SetTextAngle(double degrees) override;
  /// The estimated width and height in pixels of `text` in the current font (see the rules above); never
  /// fails.
  void MeasureText(const KCString& text, int& width, int& height) const override;
  /// The pen width in pixels as set, also when below 1; never fails.
  int GetPenWidth() const override;
  /// Set the pen width in pixels; never fails.
  void SetPenWidth(int width) override;

  /// Add a rectangle over the whole canvas in the brush colour; nothing when the brush is clear.
  void FillCanvas() override;
  /// Add `rectangle` outlined with the pen and filled with the brush; nothing for non-finite corners.
  void Rectangle(const KC2DRectangle& rectangle) override;
  /// Add the outline of `rectangle` with the pen and pen mode; nothing for non-finite corners.
  void FrameRectangle(const KC2DRectangle& rectangle) override;
  /// Add the ellipse inscribed in `bounds`, outlined with the pen and filled with the brush; nothing for
  /// non-finite corners.
  void Ellipse(const KC2DRectangle& bounds) override;
  /// Add the outline of the ellipse inscribed in `bounds` with the pen and pen mode; nothing for non-finite
  /// corners.
  void EllipseMark(const KC2DRectangle& bounds) override;
  /// Add `text` with its box's top-left corner at `origin`; nothing for an empty text or a non-finite origin.
  void TextOut(const KC2DPoint& origin, const KCString& text) override;
  /// Add the closed polygon through `points`; nothing for fewer than two points or a non-finite point.
  void Polygon(const KC2DPointList& points) override;
  /// Make `point` the current point; never fails.
  void MoveTo(const KC2DPoint& point) override;
  /// Add a line from the current point to `point` (joining the open path when the pen draws the same) and
  /// make `point` current; nothing is drawn when either point is not finite.
  void LineTo(const KC2DPoint& point) override;

 private:
  // Everything that decides how a shape looks. A shape refers to the snapshot in m_styles that was current
  // when it was drawn; a setter only marks the settings as changed, and the next shape takes a new snapshot.
  struct Settings {
    KCColor penColor = KCColor(0, 0, 0);
    KCColor brushColor = KCColor(255, 255, 255);
    KCColor fontColor = KCColor(0, 0, 0);
    KCFontStyles fontStyles;
    KCString fontName = "Arial";
    KCPenStyle penStyle;
    KCPenMode penMode;
    KCBrushStyle brushStyle;
    int fontSize = 12;
    double textAngle = 0.0;
    int penWidth = 1;
  };
  enum class ShapeKind : std::uint8_t {
    Fill,
    Rectangle,
    Frame,
    Ellipse,
    EllipseMark,
    Text,
    Polygon,
    Path,
    GroupBegin,
    GroupEnd
  };
  // A point of a polygon or a path. In a path a point whose x is NaN is a mark (drawn points are always
  // finite, so it cannot be mistaken for one): y == 0 marks a move, the next point starting a sub-path;
  // y == 1 + largeArc + 2 * clockwise marks an arc, the next point holding the radius twice and the one
  // after it the arc's end.
  struct Point {
    double x;
    double y;
  };
  struct Shape {
    ShapeKind kind = ShapeKind::Fill;
    std::uint32_t style = 0;                        // index into m_styles
    double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;  // box corners, smallest first
    std::size_t first = 0;  // Polygon, Path: first point in m_points; Text, GroupBegin: text in m_texts
    std::size_t count = 0;  // Polygon, Path: number of points in m_points
    int textWidth = 0;
    int textHeight = 0;
  };

  std::uint32_t CurrentStyle();
  void AddShape(Shape shape);
  void AddBox(ShapeKind kind, const KC2DRectangle& box);
  bool SamePenAsOpenPath() const;
  // The open path, extended to start at (x, y), when a step may join it; nullptr otherwise.
  Shape* JoinOpenPath(double x, double y);
  // Start a new path at (x, y); returns it.
  Shape& StartPath(double x, double y);
  // A step of a path from the current point to `to`: moves the current point and returns the path the step
  // extends (the open one, or a new one), or nullptr when the step draws nothing (`drawable` false or a
  // point not finite).
  Shape* BeginStep(const KC2DPoint& to, bool drawable);
  // One shape's element lines, each indented by `indent` spaces.
  void WriteShape(std::string& out, const Shape& shape, std::size_t indent) const;
  // All of `shape`'s path data, in parts on up to m_writeThreads threads when the path is long.
  void WritePathData(std::string& out, const Shape& shape) const;
  // The path data of `shape`'s points [from, to); `from` and `to` do not fall inside an arc's three points.
  void WritePathSteps(std::string& out, const Shape& shape, std::size_t from, std::size_t to) const;

  int m_width = 0;
  int m_height = 0;
  int m_precision;  // set by the constructor
  int m_writeThreads = 1;
  Settings m_settings;
  bool m_settingsChanged = true;  // m_settings differs from the last snapshot (true while there is none)
  KC2DPoint m_current;
  bool m_pathOpen = false;  // the last shape is a path that a LineTo may extend
  int m_openGroups = 0;
  KCString m_title;
  KCString m_description;
  std::vector<Settings> m_styles;
  std::vector<Shape> m_shapes;
  std::vector<Point> m_points;
  std::vector<std::string> m_texts;  // texts of Text shapes; id and label of groups (two entries)
};
