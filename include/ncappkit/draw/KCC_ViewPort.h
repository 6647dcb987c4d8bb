// SPDX-License-Identifier: MIT
// KCC_ViewPort: the common part of the world-to-pixel mapping: the visible world rectangle, the canvas in
// pixels, four pixel margins, a reference corner and the ratios derived from them. It is abstract; use
// KCC_ViewPortDraw (one ratio for both axes, KCC_ViewPortDraw.h) or KCC_ViewPortPlot (one ratio per axis,
// KCC_ViewPortPlot.h), which each add only how the ratios are calculated.
//
//   KCC_ViewPortDraw port(800, 600);               // canvas 800 x 600, no margins, bottom-left corner
//   port.SetWorldCoord(0.0, 0.0, 100.0, 50.0);     // xMin, yMin, xMax, yMax: ratio 0.125, centre (400, 300)
//   int sx = 0, sy = 0;
//   port.World2ScreenPoint(0.0, 0.0, sx, sy);      // (0, 500)
//   double wx = 0.0, wy = 0.0;
//   port.Screen2WorldPoint(sx, sy, wx, wy);        // (0, 0)
//
// Rules worth knowing:
// - Only SetWorldCoord calculates the ratios and the pixel centre. A new view port has ratios 1.0 and
//   centre (0, 0), so it maps the world centre (50, 50) to pixel (0, 0) and world (0, 0) to (-50, 50); a
//   changed canvas, margin or reference corner counts only from the next SetWorldCoord.
// - SetWorldCoord takes both minima first. When it fails, the world rectangle already holds the new
//   extents while the ratios and the centre keep the values of the last successful calculation.
// - SetWorldCoord(area) refuses a zoom that goes too deep: when the ratio would fall below 1e-5 it restores
//   the area's previous values (the area itself is changed), shows those and returns the result of that
//   second calculation. Any other failure returns false without touching the area.
// - The usable size is |right - left| - margins (and the same for the height); a negative usable size is not
//   refused, it mirrors the picture. The pixel centre is usable size / 2 + margin, in integers truncated
//   towards zero, measured from pixel 0 and not from the canvas left/top: SetCanvasPixels(100, 900, 600, 0)
//   puts the centre at x = 400.
// - GetCanvasHorPixels and GetCanvasVerPixels are signed (right - left, bottom - top), no absolute value.
// - The integer World2ScreenPoint truncates each offset from the centre towards zero: an offset of -2.7
//   pixels gives centre - 2. The double form does not round and is the exact inverse of Screen2WorldPoint.
// - World2ScreenPoint gives (0, 0) while IsWorld2PixelRatioTooSmall; Screen2WorldPoint has no such guard.
// - The reference corners 1 (bottom-right) and 2 (top-left) turn the world axes onto the other screen axes
//   (world x runs up or down). A corner code outside 0 to 3 (only possible through a derived class) makes
//   the ratio calculation fail with both ratios 0 and maps like corner 0.
// - A NaN or infinite world rectangle is not refused; the ratio calculation follows its formulas (a NaN
//   ratio is not "too small"), and the mappings stay defined: see the next rule.
// - Integer results never overflow: an offset outside the int range is clamped to it and NaN counts as 0,
//   and the sum with the centre is clamped again; so is a canvas size beyond the int range. The usable size
//   and Screen2WorldPoint's pixel differences are computed in 64 bits.
// See docs/behaviours.md#view-port.
#pragma once

#include <cstdint>

#include "ncappkit/draw/KCI_ViewPort.h"
#include "ncappkit/export.h"

class KCC_GUI_ZoomArea;

/// The world-to-pixel mapping with all its data; abstract, the kinds supply CalculateRatio.
class NCAPPKIT_EXPORT KCC_ViewPort : public KCI_ViewPort {
 public:
  /// Corner bottom-left, canvas (0, 0, 0, 0), margins 50, world 0 to 100 in x and y, ratios 1.0, centre
  /// (0, 0).
  KCC_ViewPort();
  /// Copies every field.
  KCC_ViewPort(const KCC_ViewPort& other);
  /// Copies every field; returns *this.
  KCC_ViewPort& operator=(const KCC_ViewPort& other);
  /// Pure, so that only the kinds can be made; it has a body and releases nothing.
  ~KCC_ViewPort() override = 0;

  /// Show the area's current rectangle. True when the ratios could be calculated; when they would be too
  /// small the area gets its previous values back and the result is that of showing those.
  bool SetWorldCoord(KCC_GUI_ZoomArea& area) override;
  /// Store the world rectangle (both minima first) and return CalculateRatio(): false for an empty extent,
  /// an empty canvas or usable size, a too small ratio or an unknown corner.
  bool SetWorldCoord(double xMin, double yMin, double xMax, double yMax) override;
  /// The world point (wx, wy) under pixel (sx, sy); uses the stored ratios and centre, never fails.
  void Screen2WorldPoint(int sx, int sy, double& wx, double& wy) const override;
  /// The pixel (sx, sy) of world point (wx, wy), offsets truncated towards zero and clamped to int;
  /// (0, 0) when IsWorld2PixelRatioTooSmall.
  void World2ScreenPoint(double wx, double wy, int& sx, int& sy) const override;
  /// The pixel (sx, sy) of world point (wx, wy) without rounding; (0, 0) when IsWorld2PixelRatioTooSmall.
  void World2ScreenPoint(double wx, double wy, double& sx, double& sy) const;
  /// The stored world units per pixel applied to world x.
  double GetWorld2PixelRatioX() const override;
  /// The stored world units per pixel applied to world y.
  double GetWorld2PixelRatioY() const override;
  /// Canvas right - left, signed, clamped to the int range.
  int GetCanvasHorPixels() const override;
  /// Canvas bottom - top, signed, clamped to the int range.
  int GetCanvasVerPixels() const override;

  /// Canvas left 0, right `width`, bottom `height`, top 0, and all four margins 0; never fails.
  void Init(int width, int height);
  /// Store the canvas coordinates in this argument order; never fails.
  void SetCanvasPixels(int left, int right, int bottom, int top);

  /// All four margins = `margin`; never fails.
  void SetPixelMargins(int margin);
  /// The left margin = `margin`; never fails.
  void SetPixelMarginLeft(int margin);
  /// The right margin = `margin`; never fails.
  void SetPixelMarginRight(int margin);
  /// The bottom margin = `margin`; never fails.
  void SetPixelMarginBottom(int margin);
  /// The top margin = `margin`; never fails.
  void SetPixelMarginTop(int margin);
  /// The left margin in pixels.
  int GetPixelMarginLeft() const;
  /// The right margin in pixels.
  int GetPixelMarginRight() const;
  /// The bottom margin in pixels.
  int GetPixelMarginBottom() const;
  /// The top margin in pixels.
  int GetPixelMarginTop() const;

  /// Reference corner 0: world x right, world y up.
  void SetRefCornorBottomLeft();
  /// Reference corner 1: world x up, world y left.
  void SetRefCornorBottomRight();
  /// Reference corner 2: world x down, world y right.
  void SetRefCornorTopLeft();
  /// Reference corner 3: world x left, world y down.
  void SetRefCornorTopRight();
  /// True when the reference corner is 0 (bottom-left).
  bool IsRefCornorBottomLeft() const;
  /// True when the reference corner is 1 (bottom-right).
  bool IsRefCornorBottomRight() const;
  /// True when the reference corner is 2 (top-left).
  bool IsRefCornorTopLeft() const;
  /// True when the reference corner is 3 (top-right).
  bool IsRefCornorTopRight() const;

  /// (xMax + xMin) * 0.5 of the stored world rectangle.
  double GetWorldCoordCenterX() const;
  /// (yMax + yMin) * 0.5 of the stored world rectangle.
  double GetWorldCoordCenterY() const;
  /// The stored pixel at which the world centre is drawn, x.
  int GetPixelCoordCenterX() const;
  /// The stored pixel at which the world centre is drawn, y.
  int GetPixelCoordCenterY() const;

  /// True when |ratio X| < 1e-5 or |ratio Y| < 1e-5 (false for NaN ratios).
  bool IsWorld2PixelRatioTooSmall() const;

 protected:
  /// Calculate the ratios (and the pixel centre) from the world rectangle, canvas, margins and corner;
  /// false when no usable mapping results.
  virtual bool CalculateRatio() = 0;

  /// The steps both kinds share: false (nothing changed) for an empty world extent, an empty canvas or a
  /// usable width or height of 0; otherwise stores the pixel centre, writes the usable size and gives true.
  bool CalculateUsableSizeAndCentre(double& usableWidth, double& usableHeight);

  // Small helpers of the ratio calculation; their two-underscore names are part of the interface. Clang's
  // -Wreserved-identifier (in -Weverything) flags every name that starts with two underscores, so it is
  // switched off around these three declarations only.
#if defined(__clang__)
#if __has_warning("-Wreserved-identifier")
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreserved-identifier"
#endif
#endif
  /// `value` negated when it is below zero, else `value` (NaN and -0.0 come back unchanged).
  static double __DoubleAbs(double value);
  /// `a` when a > b, else `b` (so `b` when either is NaN).
  static double __DoubleMax(double a, double b);
  /// `value` negated when it is below zero; the int minimum, whose magnitude does not fit, gives the maximum.
  static int __IntAbs(int value);
#if defined(__clang__)
#if __has_warning("-Wreserved-identifier")
#pragma clang diagnostic pop
#endif
#endif

  // Fields, in this order.
  std::int32_t m_refCorner;     ///< 0 bottom-left, 1 bottom-right, 2 top-left, 3 top-right.
  std::int32_t m_canvasLeft;    ///< Canvas rectangle in pixels (bottom is the larger y on a screen).
  std::int32_t m_canvasRight;   ///< See m_canvasLeft.
  std::int32_t m_canvasBottom;  ///< See m_canvasLeft.
  std::int32_t m_canvasTop;     ///< See m_canvasLeft.
  std::int32_t m_marginLeft;    ///< Pixels kept free at the left canvas edge.
  std::int32_t m_marginRight;   ///< Pixels kept free at the right canvas edge.
  std::int32_t m_marginBottom;  ///< Pixels kept free at the bottom canvas edge.
  std::int32_t m_marginTop;     ///< Pixels kept free at the top canvas edge.
  double m_worldXmin;           ///< The world rectangle to be shown.
  double m_worldXmax;           ///< See m_worldXmin.
  double m_worldYmin;           ///< See m_worldXmin.
  double m_worldYmax;           ///< See m_worldXmin.
  double m_ratioX;              ///< World units per pixel, applied to world x.
  double m_ratioY;              ///< World units per pixel, applied to world y.
  std::int32_t m_pixelCenterX;  ///< The pixel at which the world centre is drawn.
  std::int32_t m_pixelCenterY;  ///< See m_pixelCenterX.
};
