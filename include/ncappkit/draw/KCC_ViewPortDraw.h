// SPDX-License-Identifier: MIT
// KCC_ViewPortDraw: the view port for the screen, with one world-to-pixel ratio for both axes so that shapes
// keep their proportions. The drawing API and the zoom work through it; everything but the ratio rule is
// KCC_ViewPort's (KCC_ViewPort.h).
//
//   KCC_ViewPortDraw port(800, 600);
//   port.SetWorldCoord(0.0, 0.0, 100.0, 50.0);     // ratio max(100 / 800, 50 / 600) = 0.125 for x and y
//   KCC_GUI_ZoomArea area(0.0, 0.0, 100.0, 50.0);
//   area.SetXmax(0.001);                           // too deep a zoom ...
//   area.SetYmax(0.001);
//   port.SetWorldCoord(area);                      // ... is refused: area back at (0, 0, 100, 50), true
//
// Rules worth knowing:
// - The ratio is the larger of w / W and h / H for the corners bottom-left and top-right, and of h / W and
//   w / H for the turned corners bottom-right and top-left (w, h the world size, W, H the usable pixels).
//   The calculation fails when that ratio is below 1e-5 in magnitude.
// - The default constructor keeps an empty canvas and margins left 10, right 10, bottom 10, top 30; the
//   (width, height) constructor applies Init, so all margins are 0. Neither calculates the ratios.
// - operator== compares the four margins exactly and the ratios within 1e-5, nothing else: two ports
//   on different canvases, corners or world rectangles can be equal.
// See docs/behaviours.md#view-port.
#pragma once

#include "ncappkit/draw/KCC_ViewPort.h"
#include "ncappkit/export.h"

/// The view port with one ratio for both axes (shapes keep their proportions).
class NCAPPKIT_EXPORT KCC_ViewPortDraw : public KCC_ViewPort {
 public:
  /// Canvas (0, 0, 0, 0), margins left 10, right 10, bottom 10, top 30; otherwise KCC_ViewPort's defaults.
  KCC_ViewPortDraw();
  /// Init(width, height): canvas width x height from pixel (0, 0), all margins 0; ratios not calculated.
  KCC_ViewPortDraw(int width, int height);
  /// Copies every field.
  KCC_ViewPortDraw(const KCC_ViewPortDraw& other);
  /// Copies every field; returns *this.
  KCC_ViewPortDraw& operator=(const KCC_ViewPortDraw& other);
  /// Releases nothing.
  ~KCC_ViewPortDraw() override;

  /// True when the four margins are equal and both ratios agree within 1e-5 (the other's read through its
  /// getters); the canvas, corner, world rectangle and pixel centre are not compared.
  bool operator==(const KCC_ViewPortDraw& other) const;

 protected:
  /// One ratio for both axes (see the rules above); false when it is too small or the corner is unknown.
  bool CalculateRatio() override;
};
