// SPDX-License-Identifier: MIT
// KCC_ViewPort: world <-> pixel mapping shared by the draw and plot view ports.
#include "ncappkit/draw/KCC_ViewPort.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "ncappkit/gui/KCC_GUI_ZoomArea.h"

namespace {

constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();

// Below this magnitude a ratio gives pixel offsets too large to be useful.
constexpr double kSmallestRatio = 1e-5;

int ClampToInt(std::int64_t value) {
  if (value > kIntMax)
    return kIntMax;
  if (value < kIntMin)
    return kIntMin;
  return static_cast<int>(value);
}

// Truncation towards zero, as a cast does, but defined for every double: NaN gives 0 and values beyond the
// int range give its ends (a plain cast would be undefined there).
int TruncateToInt(double value) {
  if (std::isnan(value))
    return 0;
  if (value >= 2147483648.0)
    return kIntMax;
  if (value <= -2147483649.0)
    return kIntMin;
  return static_cast<int>(value);
}

}  // namespace

KCC_ViewPort::KCC_ViewPort()
    : m_refCorner(0),
      m_canvasLeft(0),
      m_canvasRight(0),
      m_canvasBottom(0),
      m_canvasTop(0),
      m_marginLeft(50),
      m_marginRight(50),
      m_marginBottom(50),
      m_marginTop(50),
      m_worldXmin(0.0),
      m_worldXmax(100.0),
      m_worldYmin(0.0),
      m_worldYmax(100.0),
      m_ratioX(1.0),
      m_ratioY(1.0),
      m_pixelCenterX(0),
      m_pixelCenterY(0) {}

KCC_ViewPort::KCC_ViewPort(const KCC_ViewPort& other) = default;
KCC_ViewPort& KCC_ViewPort::operator=(const KCC_ViewPort& other) = default;
KCC_ViewPort::~KCC_ViewPort() = default;

bool KCC_ViewPort::SetWorldCoord(KCC_GUI_ZoomArea& area) {
  m_worldXmin = area.GetXmin();
  m_worldXmax = area.GetXmax();
  m_worldYmin = area.GetYmin();
  m_worldYmax = area.GetYmax();
  if (CalculateRatio())
    return true;
  if (!IsWorld2PixelRatioTooSmall())
    return false;
  // The zoom went too deep: take the area back to what it was and show that instead.
  area.RestorePreviousValues();
  m_worldXmin = area.GetXmin();
  m_worldXmax = area.GetXmax();
  m_worldYmin = area.GetYmin();
  m_worldYmax = area.GetYmax();
  return CalculateRatio();
}

bool KCC_ViewPort::SetWorldCoord(double xMin, double yMin, double xMax, double yMax) {
  m_worldXmin = xMin;
  m_worldXmax = xMax;
  m_worldYmin = yMin;
  m_worldYmax = yMax;
  return CalculateRatio();
}

void KCC_ViewPort::Screen2WorldPoint(int sx, int sy, double& wx, double& wy) const {
  // Differences in 64 bits: two ints far apart do not fit into an int.
  const auto ex = static_cast<double>(static_cast<std::int64_t>(sx) - m_pixelCenterX);
  const auto ey = static_cast<double>(static_cast<std::int64_t>(sy) - m_pixelCenterY);
  const double wcx = GetWorldCoordCenterX();
  const double wcy = GetWorldCoordCenterY();
  switch (m_refCorner) {
    case 1:
      wx = wcx - ey * m_ratioX;
      wy = wcy - ex * m_ratioY;
      break;
    case 2:
      wx = wcx + ey * m_ratioX;
      wy = wcy + ex * m_ratioY;
      break;
    case 3:
      wx = wcx - ex * m_ratioX;
      wy = wcy + ey * m_ratioY;
      break;
    default:
      wx = wcx + ex * m_ratioX;
      wy = wcy - ey * m_ratioY;
      break;
  }
}

void KCC_ViewPort::World2ScreenPoint(double wx, double wy, int& sx, int& sy) const {
  sx = 0;
  sy = 0;
  if (IsWorld2PixelRatioTooSmall())
    return;
  const std::int64_t dx = TruncateToInt((wx - GetWorldCoordCenterX()) / m_ratioX);
  const std::int64_t dy = TruncateToInt((wy - GetWorldCoordCenterY()) / m_ratioY);
  const std::int64_t cx = m_pixelCenterX;
  const std::int64_t cy = m_pixelCenterY;
  switch (m_refCorner) {
    case 1:
      sx = ClampToInt(cx - dy);
      sy = ClampToInt(cy - dx);
      break;
    case 2:
      sx = ClampToInt(cx + dy);
      sy = ClampToInt(cy + dx);
      break;
    case 3:
      sx = ClampToInt(cx - dx);
      sy = ClampToInt(cy + dy);
      break;
    default:
      sx = ClampToInt(cx + dx);
      sy = ClampToInt(cy - dy);
      break;
  }
}

void KCC_ViewPort::World2ScreenPoint(double wx, double wy, double& sx, double& sy) const {
  sx = 0.0;
  sy = 0.0;
  if (IsWorld2PixelRatioTooSmall())
    return;
  const double dx = (wx - GetWorldCoordCenterX()) / m_ratioX;
  const double dy = (wy - GetWorldCoordCenterY()) / m_ratioY;
  const auto cx = static_cast<double>(m_pixelCenterX);
  const auto cy = static_cast<double>(m_pixelCenterY);
  switch (m_refCorner) {
    case 1:
      sx = cx - dy;
      sy = cy - dx;
      break;
    case 2:
      sx = cx + dy;
      sy = cy + dx;
      break;
    case 3:
      sx = cx - dx;
      sy = cy + dy;
      break;
    default:
      sx = cx + dx;
      sy = cy - dy;
      break;
  }
}

double KCC_ViewPort::GetWorld2PixelRatioX() const {
  return m_ratioX;
}
double KCC_ViewPort::GetWorld2PixelRatioY() const {
  return m_ratioY;
}
int KCC_ViewPort::GetCanvasHorPixels() const {
  return ClampToInt(static_cast<std::int64_t>(m_canvasRight) - m_canvasLeft);
}
int KCC_ViewPort::GetCanvasVerPixels() const {
  return ClampToInt(static_cast<std::int64_t>(m_canvasBottom) - m_canvasTop);
}

void KCC_ViewPort::Init(int width, int height) {
  m_canvasLeft = 0;
  m_canvasRight = width;
  m_canvasBottom = height;
  m_canvasTop = 0;
  SetPixelMargins(0);
}

void KCC_ViewPort::SetCanvasPixels(int left, int right, int bottom, int top) {
  m_canvasLeft = left;
  m_canvasRight = right;
  m_canvasBottom = bottom;
  m_canvasTop = top;
}

void KCC_ViewPort::SetPixelMargins(int margin) {
  m_marginLeft = margin;
  m_marginRight = margin;
  m_marginBottom = margin;
  m_marginTop = margin;
}
void KCC_ViewPort::SetPixelMarginLeft(int margin) {
  m_marginLeft = margin;
}
void KCC_ViewPort::SetPixelMarginRight(int margin) {
  m_marginRight = margin;
}
void KCC_ViewPort::SetPixelMarginBottom(int margin) {
  m_marginBottom = margin;
}
void KCC_ViewPort::SetPixelMarginTop(int margin) {
  m_marginTop = margin;
}
int KCC_ViewPort::GetPixelMarginLeft() const {
  return m_marginLeft;
}
int KCC_ViewPort::GetPixelMarginRight() const {
  return m_marginRight;
}
int KCC_ViewPort::GetPixelMarginBottom() const {
  return m_marginBottom;
}
int KCC_ViewPort::GetPixelMarginTop() const {
  return m_marginTop;
}

void KCC_ViewPort::SetRefCornorBottomLeft() {
  m_refCorner = 0;
}
void KCC_ViewPort::SetRefCornorBottomRight() {
  m_refCorner = 1;
}
void KCC_ViewPort::SetRefCornorTopLeft() {
  m_refCorner = 2;
}
void KCC_ViewPort::SetRefCornorTopRight() {
  m_refCorner = 3;
}
bool KCC_ViewPort::IsRefCornorBottomLeft() const {
  return m_refCorner == 0;
}
bool KCC_ViewPort::IsRefCornorBottomRight() const {
  return m_refCorner == 1;
}
bool KCC_ViewPort::IsRefCornorTopLeft() const {
  return m_refCorner == 2;
}
bool KCC_ViewPort::IsRefCornorTopRight() const {
  return m_refCorner == 3;
}

double KCC_ViewPort::GetWorldCoordCenterX() const {
  return (m_worldXmax + m_worldXmin) * 0.5;
}
double KCC_ViewPort::GetWorldCoordCenterY() const {
  return (m_worldYmax + m_worldYmin) * 0.5;
}
int KCC_ViewPort::GetPixelCoordCenterX() const {
  return m_pixelCenterX;
}
int KCC_ViewPort::GetPixelCoordCenterY() const {
  return m_pixelCenterY;
}

bool KCC_ViewPort::IsWorld2PixelRatioTooSmall() const {
  return __DoubleAbs(m_ratioX) < kSmallestRatio || __DoubleAbs(m_ratioY) < kSmallestRatio;
}

bool KCC_ViewPort::CalculateUsableSizeAndCentre(double& usableWidth, double& usableHeight) {
  if (m_worldXmin == m_worldXmax || m_worldYmin == m_worldYmax)
    return false;
  if (m_canvasRight == m_canvasLeft || m_canvasBottom == m_canvasTop)
    return false;
  // 64 bits: canvas coordinates and margins near the int limits must not overflow.
  const std::int64_t width =
      std::abs(static_cast<std::int64_t>(m_canvasRight) - m_canvasLeft) - m_marginRight - m_marginLeft;
  if (width == 0)
    return false;
  const std::int64_t height =
      std::abs(static_cast<std::int64_t>(m_canvasBottom) - m_canvasTop) - m_marginBottom - m_marginTop;
  if (height == 0)
    return false;
  // The centre counts from pixel 0, not from the canvas left/top; integer division truncates towards zero.
  m_pixelCenterX = ClampToInt(width / 2 + m_marginLeft);
  m_pixelCenterY = ClampToInt(height / 2 + m_marginTop);
  usableWidth = static_cast<double>(width);
  usableHeight = static_cast<double>(height);
  return true;
}

// The two-underscore names are the interface; see the header for why clang's warning is off here.
#if defined(__clang__)
#if __has_warning("-Wreserved-identifier")
#pragma clang diagnostic ignored "-Wreserved-identifier"
#endif
#endif
double KCC_ViewPort::__DoubleAbs(double value) {
  return value < 0.0 ? -value : value;
}
double KCC_ViewPort::__DoubleMax(double a, double b) {
  return a > b ? a : b;
}
int KCC_ViewPort::__IntAbs(int value) {
  if (value == kIntMin)
    return kIntMax;
  return value < 0 ? -value : value;
}
