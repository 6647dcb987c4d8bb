// SPDX-License-Identifier: MIT
// KCC_ViewPortDraw: one world-to-pixel ratio for both axes.
#include "ncappkit/draw/KCC_ViewPortDraw.h"

#include "ncappkit/foundation/KCMath.h"

namespace {
// How close two ratios must be for two draw view ports to count as equal.
constexpr double kRatioEqualTolerance = 1e-5;
}  // namespace

KCC_ViewPortDraw::KCC_ViewPortDraw() {
  SetCanvasPixels(0, 0, 0, 0);
  m_marginLeft = 10;
  m_marginRight = 10;
  m_marginBottom = 10;
  m_marginTop = 30;
}

KCC_ViewPortDraw::KCC_ViewPortDraw(int width, int height) {
  Init(width, height);
}

KCC_ViewPortDraw::KCC_ViewPortDraw(const KCC_ViewPortDraw& other) = default;
KCC_ViewPortDraw& KCC_ViewPortDraw::operator=(const KCC_ViewPortDraw& other) = default;
KCC_ViewPortDraw::~KCC_ViewPortDraw() = default;

bool KCC_ViewPortDraw::operator==(const KCC_ViewPortDraw& other) const {
  return m_marginLeft == other.m_marginLeft && m_marginRight == other.m_marginRight &&
         m_marginBottom == other.m_marginBottom && m_marginTop == other.m_marginTop &&
         KCMath::AlmostEq(m_ratioX, other.GetWorld2PixelRatioX(), kRatioEqualTolerance) &&
         KCMath::AlmostEq(m_ratioY, other.GetWorld2PixelRatioY(), kRatioEqualTolerance);
}

bool KCC_ViewPortDraw::CalculateRatio() {
  double usableWidth = 0.0;
  double usableHeight = 0.0;
  if (!CalculateUsableSizeAndCentre(usableWidth, usableHeight))
    return false;
  const double worldWidth = m_worldXmax - m_worldXmin;
  const double worldHeight = m_worldYmax - m_worldYmin;
  double ratio = 0.0;
  switch (m_refCorner) {
    case 0:
    case 3:
      ratio = __DoubleMax(worldWidth / usableWidth, worldHeight / usableHeight);
      break;
    case 1:
    case 2:
      // World x lies on the vertical screen axis here, so the world height meets the usable width.
      ratio = __DoubleMax(worldHeight / usableWidth, worldWidth / usableHeight);
      break;
    default:
      m_ratioX = 0.0;
      m_ratioY = 0.0;
      return false;
  }
  m_ratioX = ratio;
  m_ratioY = ratio;
  return !IsWorld2PixelRatioTooSmall();
}
