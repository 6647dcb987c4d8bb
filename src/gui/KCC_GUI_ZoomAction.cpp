// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomAction: the rubber-band zoom.
#include "ncappkit/gui/KCC_GUI_ZoomAction.h"

#include "ncappkit/draw/KCI_Draw.h"
#include "ncappkit/draw/KCI_ViewPort.h"

namespace {
// Drag states: waiting for the button, following the mouse, finished (never left again).
constexpr std::int32_t kIdle = 0;
constexpr std::int32_t kDragging = 1;
constexpr std::int32_t kDone = 2;
}  // namespace

KCC_GUI_ZoomAction::KCC_GUI_ZoomAction(KCI_ViewPort& viewPort, KCI_Draw& draw)
    : KCC_GUI_Action(),
      m_startWorldX(0.0),
      m_startWorldY(0.0),
      m_currentWorldX(0.0),
      m_currentWorldY(0.0),
      m_dragState(kIdle),
      m_startPixelX(0),
      m_startPixelY(0),
      m_currentPixelX(0),
      m_currentPixelY(0),
      m_viewPort(&viewPort),
      m_draw(&draw) {}

KCC_GUI_ZoomAction::KCC_GUI_ZoomAction(const KCC_GUI_ZoomAction& other) = default;

// Pointers rather than reference members, so that assignment can take over the other action's view port
// and drawing interface together with the corners measured on them.
KCC_GUI_ZoomAction& KCC_GUI_ZoomAction::operator=(const KCC_GUI_ZoomAction& other) = default;
KCC_GUI_ZoomAction::~KCC_GUI_ZoomAction() = default;

void KCC_GUI_ZoomAction::MouseLeftDown(int x, int y, const KCI_GUI_Keys& /*keys*/) {
  if (m_dragState != kIdle)
    return;
  GetWcPoint(*m_viewPort, x, y, m_startWorldX, m_startWorldY);
  m_startPixelX = x;
  m_startPixelY = y;
  m_currentPixelX = x;
  m_currentPixelY = y;
  m_dragState = kDragging;
}

void KCC_GUI_ZoomAction::MouseLeftUp(int /*x*/, int /*y*/, const KCI_GUI_Keys& /*keys*/) {
  if (m_dragState == kDragging)
    m_dragState = kDone;
}

void KCC_GUI_ZoomAction::MouseMove(int x, int y, const KCI_GUI_Keys& /*keys*/,
                                   const KCI_GUI_MouseButtons& /*buttons*/) {
  if (m_dragState != kDragging)
    return;
  // The select mark is drawn in NOT-XOR: drawing the previous rectangle again erases it.
  m_draw->DrawSelectHollowRectangle(m_startPixelX, m_startPixelY, m_currentPixelX, m_currentPixelY);
  GetWcPoint(*m_viewPort, x, y, m_currentWorldX, m_currentWorldY);
  m_currentPixelX = x;
  m_currentPixelY = y;
  m_draw->DrawSelectHollowRectangle(m_startPixelX, m_startPixelY, x, y);
}

bool KCC_GUI_ZoomAction::Done() const {
  return m_dragState == kDone;
}

KCC_GUI_ZoomArea KCC_GUI_ZoomAction::GetZoomArea() const {
  // Each setter moves the invalid marker into the previous value, so the previous values stay invalid.
  KCC_GUI_ZoomArea area;
  area.SetXmin(m_startWorldX);
  area.SetYmin(m_startWorldY);
  area.SetXmax(m_currentWorldX);
  area.SetYmax(m_currentWorldY);
  return area;
}
