// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KC2DArea.h"

#include <cmath>

KC2DArea::~KC2DArea() = default;

void KC2DArea::ApplyPoint(double x, double y) noexcept {
  // A NaN would make every later comparison false and freeze the box in a meaningless state.
  if (std::isnan(x) || std::isnan(y)) {
    return;
  }
  if (m_empty) {
    m_empty = false;
    m_minX = m_maxX = x;
    m_minY = m_maxY = y;
    return;
  }
  if (x < m_minX)
    m_minX = x;
  if (x > m_maxX)
    m_maxX = x;
  if (y < m_minY)
    m_minY = y;
  if (y > m_maxY)
    m_maxY = y;
}
