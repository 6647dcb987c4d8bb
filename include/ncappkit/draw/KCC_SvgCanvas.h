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
// See docs/behaviours.md#svg-canvas.
#pragma once

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
  /// The current point: where the next LineTo starts.
  KC2DPoint GetCurrentPoint() const noexcept { return m_current; }

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
  // Everything that decides how a shape looks, copied into each shape when it is drawn.
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
  enum class ShapeKind { Fill, Rectangle, Frame, Ellipse, EllipseMark, Text, Polygon, Path };
  // One step of a path: a move (starting a sub-path) or a line to `point`.
  struct PathStep {
    bool move = false;
    KC2DPoint point;
  };
  struct Shape {
    ShapeKind kind = ShapeKind::Fill;
    Settings settings;
    double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;  // box corners, smallest first
    KCString text;
    int textWidth = 0;
    int textHeight = 0;
    std::vector<PathStep> steps;  // polygon points or path steps
  };

  void AddBox(ShapeKind kind, const KC2DRectangle& box);
  void WriteShape(std::string& out, const Shape& shape) const;
  std::string Number(double value) const;

  int m_width = 0;
  int m_height = 0;
  int m_precision;  // set by the constructor
  Settings m_settings;
  KC2DPoint m_current;
  bool m_pathOpen = false;  // the last shape is a path that a LineTo may extend
  std::vector<Shape> m_shapes;
};
