// SPDX-License-Identifier: MIT
// KCC_ViewPortPlot: one world-to-pixel ratio per axis.
#include "ncappkit/draw/KCC_ViewPortPlot.h"

namespace {
// Ratio X below this fails the calculation; ratio Y is not checked.
constexpr double kSmallestRatioX = 1e-5;
}  // namespace

KCC_ViewPortPlot::KCC_ViewPortPlot() {
  SetCanvasPixels(0, 0, 0, 0);
  m_marginLeft = 10;
  m_marginRight = 10;
  m_marginBottom = 10;
  m_marginTop = 30;
}

KCC_ViewPortPlot::KCC_ViewPortPlot(int width, int height) {
  Init(width, height);
}

KCC_ViewPortPlot::KCC_ViewPortPlot(const KCC_ViewPortPlot& other) = default;
KCC_ViewPortPlot& KCC_ViewPortPlot::operator=(const KCC_ViewPortPlot& other) = default;
KCC_ViewPortPlot::~KCC_ViewPortPlot() = default;

bool KCC_ViewPortPlot::CalculateRatio() {
  double usableWidth = 0.0;
  double usableHeight = 0.0;
  if (!CalculateUsableSizeAndCentre(usableWidth, usableHeight))
    return false;
  const double worldWidth = m_worldXmax - m_worldXmin;
  const double worldHeight = m_worldYmax - m_worldYmin;
  switch (m_refCorner) {
    case 0:
    case 3:
      m_ratioX = worldWidth / usableWidth;
      m_ratioY = worldHeight / usableHeight;
      break;
    case 1:
    case 2:
      // Paired as for the draw port, while the mapping still applies ratio X to world x: in these corners
      // the picture does not exactly fill the canvas, which is intended.
      m_ratioX = worldHeight / usableWidth;
      m_ratioY = worldWidth / usableHeight;
      break;
    default:
      m_ratioX = 0.0;
      m_ratioY = 0.0;
      return false;
  }
  // Signed on purpose (a negative ratio X fails), and ratio Y is left unchecked.
  return !(m_ratioX < kSmallestRatioX);
}
