// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCC_GUI_Keys.h"

KCC_GUI_Keys::KCC_GUI_Keys(unsigned int keyFlags)
    : m_shift((keyFlags & kShiftFlag) != 0U),
      m_control((keyFlags & kControlFlag) != 0U),
      m_alt((keyFlags & kAltFlag) != 0U) {}

KCC_GUI_Keys::KCC_GUI_Keys(const KCC_GUI_Keys& other) = default;
KCC_GUI_Keys& KCC_GUI_Keys::operator=(const KCC_GUI_Keys& other) = default;
KCC_GUI_Keys::~KCC_GUI_Keys() = default;

bool KCC_GUI_Keys::ShiftKeyPressed() const {
  return m_shift;
}
bool KCC_GUI_Keys::ControlPressed() const {
  return m_control;
}
bool KCC_GUI_Keys::AltKeyPressed() const {
  return m_alt;
}
