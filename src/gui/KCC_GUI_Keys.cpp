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

// The class constants have definitions in the library as well, so that a client of the Windows DLL that binds
// them to a reference finds them there.
constexpr unsigned int KCC_GUI_Keys::kShiftFlag;
constexpr unsigned int KCC_GUI_Keys::kControlFlag;
constexpr unsigned int KCC_GUI_Keys::kAltFlag;
