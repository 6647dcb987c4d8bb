// SPDX-License-Identifier: MIT
// KCCanvas: the drawing surface a client program hands to the drawing API (KCC_Draw). The library reaches
// it only through these virtual operations; KCC_SvgCanvas is the library's own canvas, and a client wraps
// its window or printer in a class of its own.
//
//   class MyWindowCanvas : public KCCanvas { ... };   // every operation below, on the client's device
//   KCC_ViewPortDraw viewPort(800, 600);
//   MyWindowCanvas canvas(window);
//   KCC_Draw draw(viewPort, canvas);
//   draw.DrawLine(10, 10, 200, 120);                  // MoveTo + LineTo on the canvas
//
// Rules worth knowing:
// - Coordinates are canvas pixels, y growing downwards; double coordinates of the drawing API arrive here
//   as they are (KC2DPoint holds doubles), so a canvas may draw them with sub-pixel precision.
// - The canvas keeps the current settings (pen, brush, font, text angle) and a current point; the drawing
//   API reads a setting before it changes it and sets it back afterwards, so a canvas's getters must give
//   back exactly what its setters were given.
// - The pen mode NotXor means "drawing the same thing twice leaves the surface as before" (selection marks).
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KC2DElement.h"
#include "ncappkit/foundation/KCBrushStyle.h"
#include "ncappkit/foundation/KCColor.h"
#include "ncappkit/foundation/KCFontStyle.h"
#include "ncappkit/foundation/KCPenMode.h"
#include "ncappkit/foundation/KCPenStyle.h"
#include "ncappkit/foundation/KCString.h"

/// A drawing surface: pen, brush and font settings, a current point, and the shapes the drawing API draws.
class NCAPPKIT_EXPORT KCCanvas {
 public:
  /// Nothing to set up: the interface holds no data.
  KCCanvas() = default;
  /// Nothing to copy: the interface holds no data.
  KCCanvas(const KCCanvas&) = default;
  /// Nothing to assign: the interface holds no data; returns *this.
  KCCanvas& operator=(const KCCanvas&) = default;
  virtual ~KCCanvas();

  /// The pen colour (lines, outlines).
  virtual KCColor GetPenColor() const = 0;
  /// Set the pen colour.
  virtual void SetPenColor(const KCColor& color) = 0;
  /// The brush colour (fills).
  virtual KCColor GetBrushColor() const = 0;
  /// Set the brush colour.
  virtual void SetBrushColor(const KCColor& color) = 0;
  /// The colour of text.
  virtual KCColor GetFontColor() const = 0;
  /// Set the colour of text.
  virtual void SetFontColor(const KCColor& color) = 0;
  /// The font styles (bold, italic, underline, strike-out).
  virtual KCFontStyles GetFontStyles() const = 0;
  /// Set the font styles.
  virtual void SetFontStyles(const KCFontStyles& styles) = 0;
  /// The font name ("Arial").
  virtual KCString GetFontName() const = 0;
  /// Set the font name.
  virtual void SetFontName(const KCString& name) = 0;
  /// The pen style (solid, dash, dot, dash-dot, dash-dot-dot).
  virtual KCPenStyle GetPenStyle() const = 0;
  /// Set the pen style.
  virtual void SetPenStyle(const KCPenStyle& style) = 0;
  /// The pen mode (normal copy, or NotXor for marks that a second drawing erases).
  virtual KCPenMode GetPenMode() const = 0;
  /// Set the pen mode.
  virtual void SetPenMode(const KCPenMode& mode) = 0;
  /// The brush style (solid or clear).
  virtual KCBrushStyle GetBrushStyle() const = 0;
  /// Set the brush style.
  virtual void SetBrushStyle(const KCBrushStyle& style) = 0;
  /// The font size in pixels.
  virtual int GetFontSize() const = 0;
  /// Set the font size in pixels.
  virtual void SetFontSize(int size) = 0;
  /// The text angle in degrees, counter-clockwise.
  virtual double GetTextAngle() const = 0;
  /// Set the text angle in degrees, counter-clockwise.
  virtual void SetTextAngle(double degrees) = 0;
  /// The width and height in pixels that `text` takes in the current font (unturned).
  virtual void MeasureText(const KCString& text, int& width, int& height) const = 0;
  /// The pen width in pixels.
  virtual int GetPenWidth() const = 0;
  /// Set the pen width in pixels.
  virtual void SetPenWidth(int width) = 0;

  /// Paint the whole canvas with the brush.
  virtual void FillCanvas() = 0;
  /// Draw `rectangle` outlined with the pen and filled with the brush.
  virtual void Rectangle(const KC2DRectangle& rectangle) = 0;
  /// Draw the outline of `rectangle` with the pen (and the pen mode); the inside is left as it is.
  virtual void FrameRectangle(const KC2DRectangle& rectangle) = 0;
  /// Draw the ellipse inscribed in `bounds`, outlined with the pen and filled with the brush.
  virtual void Ellipse(const KC2DRectangle& bounds) = 0;
  /// Draw the ellipse inscribed in `bounds` as a mark (pen and pen mode; the inside is left as it is).
  virtual void EllipseMark(const KC2DRectangle& bounds) = 0;
  /// Draw `text` in the current font, colour and angle with its top-left corner at `origin`; the brush
  /// fills the text's box unless it is clear.
  virtual void TextOut(const KC2DPoint& origin, const KCString& text) = 0;
  /// Draw the closed polygon through `points`, outlined with the pen and filled with the brush.
  virtual void Polygon(const KC2DPointList& points) = 0;
  /// Make `point` the current point.
  virtual void MoveTo(const KC2DPoint& point) = 0;
  /// Draw a line with the pen from the current point to `point`, which becomes the current point.
  virtual void LineTo(const KC2DPoint& point) = 0;
};
