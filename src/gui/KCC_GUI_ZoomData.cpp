// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomData: zoom and pan steps on the current world rectangle.
#include "ncappkit/gui/KCC_GUI_ZoomData.h"

#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/foundation/KC2DArea.h"

namespace {

constexpr double kDefaultActionOffset = 10.0;

// offset % of `extent`, multiplied first and divided then.
double Step(double extent, double offset) {
  return extent * offset / 100.0;
}

// Moves all four values of `area` by (dx, dy). Each setter first copies its coordinate's current value into
// the previous one, so setting all four is "save all, then shift".
void ShiftSavingAll(KCC_GUI_ZoomArea& area, double dx, double dy) {
  area.SetXmin(area.GetXmin() + dx);
  area.SetYmin(area.GetYmin() + dy);
  area.SetXmax(area.GetXmax() + dx);
  area.SetYmax(area.GetYmax() + dy);
}

}  // namespace

KCC_GUI_ZoomData::KCC_GUI_ZoomData() : m_fitData(), m_currentData(), m_actionOffset(kDefaultActionOffset) {}
KCC_GUI_ZoomData::KCC_GUI_ZoomData(const KCC_GUI_ZoomData& other) = default;
KCC_GUI_ZoomData& KCC_GUI_ZoomData::operator=(const KCC_GUI_ZoomData& other) = default;
KCC_GUI_ZoomData::~KCC_GUI_ZoomData() = default;

KCC_GUI_ZoomArea& KCC_GUI_ZoomData::GetFitData() {
  return m_fitData;
}
const KCC_GUI_ZoomArea& KCC_GUI_ZoomData::GetFitData() const {
  return m_fitData;
}
KCC_GUI_ZoomArea& KCC_GUI_ZoomData::GetCurrenData() {
  return m_currentData;
}
const KCC_GUI_ZoomArea& KCC_GUI_ZoomData::GetCurrenData() const {
  return m_currentData;
}

double KCC_GUI_ZoomData::GetActionOffset() const {
  return m_actionOffset;
}
void KCC_GUI_ZoomData::SetActionOffset(double offset) {
  m_actionOffset = offset;
}

void KCC_GUI_ZoomData::SetFitData(const KCC_GUI_ZoomArea& area, bool alsoCurrent) {
  m_fitData = area;
  if (alsoCurrent)
    m_currentData = area;
}

void KCC_GUI_ZoomData::SetFitData(const KC2DArea& area, bool alsoCurrent) {
  SetFitData(KCC_GUI_ZoomArea(area.GetMinX(), area.GetMinY(), area.GetMaxX(), area.GetMaxY()), alsoCurrent);
}

void KCC_GUI_ZoomData::SetCurrentData(const KCC_GUI_ZoomArea& area) {
  m_currentData = area;
}

void KCC_GUI_ZoomData::RestoreFitData() {
  m_currentData = m_fitData;
}

void KCC_GUI_ZoomData::MakeInvalid() {
  m_fitData.MakeInvalid();
  m_currentData.MakeInvalid();
}

void KCC_GUI_ZoomData::ZoomIn() {
  if (!m_currentData.Valid())
    return;
  const double dx = Step(m_currentData.GetXmax() - m_currentData.GetXmin(), m_actionOffset);
  const double dy = Step(m_currentData.GetYmax() - m_currentData.GetYmin(), m_actionOffset);
  m_currentData.SetXmin(m_currentData.GetXmin() + dx);
  m_currentData.SetYmin(m_currentData.GetYmin() + dy);
  m_currentData.SetXmax(m_currentData.GetXmax() - dx);
  m_currentData.SetYmax(m_currentData.GetYmax() - dy);
}

void KCC_GUI_ZoomData::ZoomOut() {
  if (!m_currentData.Valid())
    return;
  const double dx = Step(m_currentData.GetXmax() - m_currentData.GetXmin(), m_actionOffset);
  const double dy = Step(m_currentData.GetYmax() - m_currentData.GetYmin(), m_actionOffset);
  m_currentData.SetXmin(m_currentData.GetXmin() - dx);
  m_currentData.SetYmin(m_currentData.GetYmin() - dy);
  m_currentData.SetXmax(m_currentData.GetXmax() + dx);
  m_currentData.SetYmax(m_currentData.GetYmax() + dy);
}

// The pans set only the pair they move, so only that pair's previous values change.
void KCC_GUI_ZoomData::PanLeft() {
  if (!m_currentData.Valid())
    return;
  const double step = Step(m_currentData.GetXmax() - m_currentData.GetXmin(), m_actionOffset);
  m_currentData.SetXmin(m_currentData.GetXmin() - step);
  m_currentData.SetXmax(m_currentData.GetXmax() - step);
}

void KCC_GUI_ZoomData::PanRight() {
  if (!m_currentData.Valid())
    return;
  const double step = Step(m_currentData.GetXmax() - m_currentData.GetXmin(), m_actionOffset);
  m_currentData.SetXmin(m_currentData.GetXmin() + step);
  m_currentData.SetXmax(m_currentData.GetXmax() + step);
}

void KCC_GUI_ZoomData::PanUp() {
  if (!m_currentData.Valid())
    return;
  const double step = Step(m_currentData.GetYmax() - m_currentData.GetYmin(), m_actionOffset);
  m_currentData.SetYmin(m_currentData.GetYmin() + step);
  m_currentData.SetYmax(m_currentData.GetYmax() + step);
}

void KCC_GUI_ZoomData::PanDown() {
  if (!m_currentData.Valid())
    return;
  const double step = Step(m_currentData.GetYmax() - m_currentData.GetYmin(), m_actionOffset);
  m_currentData.SetYmin(m_currentData.GetYmin() - step);
  m_currentData.SetYmax(m_currentData.GetYmax() - step);
}

void KCC_GUI_ZoomData::Sweep(int x1, int y1, int x2, int y2, KCC_ViewPortDraw& viewPort) {
  if (!m_currentData.Valid())
    return;
  double ax = 0.0;
  double ay = 0.0;
  double bx = 0.0;
  double by = 0.0;
  viewPort.Screen2WorldPoint(x1, y1, ax, ay);
  viewPort.Screen2WorldPoint(x2, y2, bx, by);
  // Moving the visible area by A - B puts world point A under pixel (x2, y2): the picture follows the mouse.
  ShiftSavingAll(m_currentData, ax - bx, ay - by);
}

void KCC_GUI_ZoomData::RepositionZoomAreaCenter(int x, int y, KCC_ViewPortDraw& viewPort) {
  if (!m_currentData.Valid())
    return;
  double wx = 0.0;
  double wy = 0.0;
  viewPort.Screen2WorldPoint(x, y, wx, wy);
  ShiftSavingAll(m_currentData, wx - viewPort.GetWorldCoordCenterX(), wy - viewPort.GetWorldCoordCenterY());
}

void KCC_GUI_ZoomData::ZoomInToMouse(int x, int y, KCC_ViewPortDraw& viewPort) {
  if (!m_currentData.Valid())
    return;
  // Centre the rectangle on the world point P under the mouse and zoom in around it.
  double px = 0.0;
  double py = 0.0;
  viewPort.Screen2WorldPoint(x, y, px, py);
  ShiftSavingAll(m_currentData, px - viewPort.GetWorldCoordCenterX(), py - viewPort.GetWorldCoordCenterY());
  ZoomIn();
  // Show the zoomed rectangle on a scratch copy of the view port. A zoom that goes too deep is refused there
  // and the current data gets its previous values back, so Q below is measured on what will be shown.
  KCC_ViewPortDraw zoomed(viewPort);
  zoomed.SetWorldCoord(m_currentData);
  // P now sits at the centre; Q is the world point that the zoomed view puts under the mouse. Shifting by
  // P - Q brings P back under the mouse.
  double qx = 0.0;
  double qy = 0.0;
  zoomed.Screen2WorldPoint(x, y, qx, qy);
  ShiftSavingAll(m_currentData, -(qx - px), -(qy - py));
}
