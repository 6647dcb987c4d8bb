// SPDX-License-Identifier: MIT
// KCI_ViewPort: the world-to-pixel mapping as the GUI actions and client code see it. KCC_ViewPortDraw
// (one ratio for both axes) and KCC_ViewPortPlot (one ratio per axis) implement it.
//
//   void OnMouseDown(KCI_ViewPort& viewPort, int px, int py) {
//     double x = 0, y = 0;
//     viewPort.Screen2WorldPoint(px, py, x, y);   // pixel -> world
//   }
//
// World coordinates are doubles in the drawing's length unit; pixels are ints with y growing downwards.
#pragma once

#include "ncappkit/export.h"

class KCC_GUI_ZoomArea;

/// The world-to-pixel mapping of a canvas.
class NCAPPKIT_EXPORT KCI_ViewPort {
 public:
  /// Nothing to set up: the interface holds no data.
  KCI_ViewPort() = default;
  /// Nothing to copy: the interface holds no data.
  KCI_ViewPort(const KCI_ViewPort&) = default;
  /// Nothing to assign: the interface holds no data; returns *this.
  KCI_ViewPort& operator=(const KCI_ViewPort&) = default;
  virtual ~KCI_ViewPort();

  /// Show the area's current rectangle; false when no mapping can be made (a refused too-deep zoom may
  /// restore the area's previous values, see KCC_ViewPort).
  virtual bool SetWorldCoord(KCC_GUI_ZoomArea& area) = 0;
  /// Show the world rectangle (both minima first); false when no mapping can be made from it.
  virtual bool SetWorldCoord(double xMin, double yMin, double xMax, double yMax) = 0;
  /// The world point (wx, wy) under pixel (sx, sy).
  virtual void Screen2WorldPoint(int sx, int sy, double& wx, double& wy) const = 0;
  /// The pixel (sx, sy) of world point (wx, wy), truncated towards zero; (0, 0) while no mapping exists.
  virtual void World2ScreenPoint(double wx, double wy, int& sx, int& sy) const = 0;
  /// World units per pixel applied to world x.
  virtual double GetWorld2PixelRatioX() const = 0;
  /// World units per pixel applied to world y.
  virtual double GetWorld2PixelRatioY() const = 0;
  /// The canvas width in pixels (right - left, signed).
  virtual int GetCanvasHorPixels() const = 0;
  /// The canvas height in pixels (bottom - top, signed).
  virtual int GetCanvasVerPixels() const = 0;
};
