// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCVector.h"

#include <cmath>

KC3DPoint::~KC3DPoint() = default;

KCVector::~KCVector() = default;

double KCVector::Len() const noexcept {
  return std::sqrt(m_x * m_x + m_y * m_y + m_z * m_z);
}
