// SPDX-License-Identifier: MIT
// KCC_ViewPortPlot: the view port for plots, which stretches each axis on its own so that the world
// rectangle fills the usable canvas. Everything but the ratio rule is KCC_ViewPort's (KCC_ViewPort.h).
//
//   KCC_ViewPortPlot port(800, 600);
//   port.SetWorldCoord(0.0, 0.0, 100.0, 50.0);     // ratio X 100 / 800 = 0.125, ratio Y 50 / 600
//   int sx = 0, sy = 0;
//   port.World2ScreenPoint(0.0, 0.0, sx, sy);      // (0, 600)
//
// Rules worth knowing:
// - For the corners bottom-left and top-right, ratio X = w / W and ratio Y = h / H. For the turned corners
//   bottom-right and top-left, ratio X = h / W and ratio Y = w / H while the mapping still applies ratio X
//   to world x, which then lies on the vertical screen axis: in those corners the picture does not exactly
//   fill the canvas. This pairing is intended.
// - Only ratio X is tested: the calculation fails when ratio X < 1e-5 (signed, so a negative ratio X
//   fails too). A tiny or negative ratio Y passes; with |ratio Y| < 1e-5 the port then
//   reports IsWorld2PixelRatioTooSmall and World2ScreenPoint gives (0, 0), and SetWorldCoord(area) does not
//   restore the area because the calculation succeeded.
// - The default constructor keeps an empty canvas and margins left 10, right 10, bottom 10, top 30; the
//   (width, height) constructor applies Init, so all margins are 0. Neither calculates the ratios.
// - There is no operator==.
// See docs/behaviours.md#view-port.
#pragma once

#include "ncappkit/draw/KCC_ViewPort.h"
#include "ncappkit/export.h"

/// The view port with one ratio per axis (the world rectangle fills the canvas).
class NCAPPKIT_EXPORT KCC_ViewPortPlot : public KCC_ViewPort {
 public:
  /// Canvas (0, 0, 0, 0), margins left 10, right 10, bottom 10, top 30; otherwise KCC_ViewPort's defaults.
  KCC_ViewPortPlot();
  /// Init(width, height): canvas width x height from pixel (0, 0), all margins 0; ratios not calculated.
  KCC_ViewPortPlot(int width, int height);
  /// Copies every field.
  KCC_ViewPortPlot(const KCC_ViewPortPlot& other);
  /// Copies every field; returns *this.
  KCC_ViewPortPlot& operator=(const KCC_ViewPortPlot& other);
  /// Releases nothing.
  ~KCC_ViewPortPlot() override;

 protected:
  /// One ratio per axis (see the rules above); false when ratio X < 1e-5 or the corner is unknown.
  bool CalculateRatio() override;
};
