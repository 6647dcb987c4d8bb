// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomArea: a world rectangle with its previous values.
#include "ncappkit/gui/KCC_GUI_ZoomArea.h"

#include <limits>
#include <utility>

#include "ncappkit/gui/KCC_GUI_ZoomAreaVisitor.h"

namespace {
// The marker of an invalid pair: min at the top of the double range, max at the bottom.
constexpr double kLargest = std::numeric_limits<double>::max();
}  // namespace

KCC_GUI_ZoomArea::KCC_GUI_ZoomArea() : KCC_GUI_ZoomArea(kLargest, kLargest, -kLargest, -kLargest) {}

KCC_GUI_ZoomArea::KCC_GUI_ZoomArea(double xMin, double yMin, double xMax, double yMax)
    : m_xMin(xMin),
      m_yMin(yMin),
      m_xMax(xMax),
      m_yMax(yMax),
      m_prevXmin(xMin),
      m_prevYmin(yMin),
      m_prevXmax(xMax),
      m_prevYmax(yMax) {}

KCC_GUI_ZoomArea::KCC_GUI_ZoomArea(const KCC_GUI_ZoomArea& other) = default;
KCC_GUI_ZoomArea& KCC_GUI_ZoomArea::operator=(const KCC_GUI_ZoomArea& other) = default;
KCC_GUI_ZoomArea::~KCC_GUI_ZoomArea() = default;

double KCC_GUI_ZoomArea::GetXmin() const {
  return m_xMin;
}
double KCC_GUI_ZoomArea::GetYmin() const {
  return m_yMin;
}
double KCC_GUI_ZoomArea::GetXmax() const {
  return m_xMax;
}
double KCC_GUI_ZoomArea::GetYmax() const {
  return m_yMax;
}

void KCC_GUI_ZoomArea::SetXmin(double value) {
  m_prevXmin = m_xMin;
  m_xMin = value;
}
void KCC_GUI_ZoomArea::SetYmin(double value) {
  m_prevYmin = m_yMin;
  m_yMin = value;
}
void KCC_GUI_ZoomArea::SetXmax(double value) {
  m_prevXmax = m_xMax;
  m_xMax = value;
}
void KCC_GUI_ZoomArea::SetYmax(double value) {
  m_prevYmax = m_yMax;
  m_yMax = value;
}

void KCC_GUI_ZoomArea::MakeInvalid() {
  m_xMin = kLargest;
  m_yMin = kLargest;
  m_xMax = -kLargest;
  m_yMax = -kLargest;
}

bool KCC_GUI_ZoomArea::ValidX() const {
  return m_xMin < kLargest && m_xMax > -kLargest;
}
bool KCC_GUI_ZoomArea::ValidY() const {
  return m_yMin < kLargest && m_yMax > -kLargest;
}
bool KCC_GUI_ZoomArea::Valid() const {
  return m_xMin < kLargest && m_xMax > -kLargest && m_yMin < kLargest && m_yMax > -kLargest;
}

void KCC_GUI_ZoomArea::Normalize() {
  if (ValidX() && m_xMin > m_xMax)
    std::swap(m_xMin, m_xMax);
  if (ValidY() && m_yMin > m_yMax)
    std::swap(m_yMin, m_yMax);
}

void KCC_GUI_ZoomArea::RestorePreviousValues() {
  m_xMin = m_prevXmin;
  m_yMin = m_prevYmin;
  m_xMax = m_prevXmax;
  m_yMax = m_prevYmax;
}

bool KCC_GUI_ZoomArea::Accept(KCC_GUI_ZoomAreaVisitor& visitor) {
  return visitor.Visit(*this);
}
