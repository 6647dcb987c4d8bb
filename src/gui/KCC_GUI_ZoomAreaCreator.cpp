// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomAreaCreator: appends new zoom areas to its list.
#include "ncappkit/gui/KCC_GUI_ZoomAreaCreator.h"

#include <memory>

#include "ncappkit/gui/KCC_GUI_ZoomArea.h"
#include "ncappkit/gui/KCC_GUI_ZoomAreaList.h"

KCC_GUI_ZoomAreaCreator::KCC_GUI_ZoomAreaCreator(KCC_GUI_ZoomAreaList& target) : m_target(&target) {}
KCC_GUI_ZoomAreaCreator::KCC_GUI_ZoomAreaCreator(const KCC_GUI_ZoomAreaCreator& other) = default;
KCC_GUI_ZoomAreaCreator& KCC_GUI_ZoomAreaCreator::operator=(const KCC_GUI_ZoomAreaCreator& other) = default;
KCC_GUI_ZoomAreaCreator::~KCC_GUI_ZoomAreaCreator() = default;

KCC_GUI_ZoomArea* KCC_GUI_ZoomAreaCreator::CreateZoomArea(double xMin, double yMin, double xMax,
                                                          double yMax) {
  // Held by a unique_ptr until the list has taken it, so a failed append does not leak the area.
  auto area = std::make_unique<KCC_GUI_ZoomArea>(xMin, yMin, xMax, yMax);
  m_target->AddZoomArea(area.get());
  return area.release();
}

KCC_GUI_ZoomArea* KCC_GUI_ZoomAreaCreator::CreateZoomArea(const KCC_GUI_ZoomArea& area) {
  if (!area.Valid())
    return nullptr;
  return CreateZoomArea(area.GetXmin(), area.GetYmin(), area.GetXmax(), area.GetYmax());
}
