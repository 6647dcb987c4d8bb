// SPDX-License-Identifier: MIT
// KCC_GUI_Keys: the modifier keys (shift, control, alt) decoded from the key flags of a mouse message. The
// client builds one per mouse event and hands it to the action being created.
//
//   void OnLButtonDown(unsigned int flags, int px, int py) {   // window code of the client
//     KCC_GUI_Keys keys(flags);                                 // e.g. flags 0x0C: shift and control
//     action->MouseLeftDown(px, py, keys);
//   }
//
// Rules worth knowing:
// - Only three bits count: 4 is shift, 8 is control, 32 is alt (KCC_GUI_Keys::kShiftFlag, kControlFlag,
//   kAltFlag); every other bit is ignored, so 0x2C gives all three keys and 0x10 gives none.
// - The flags are decoded once, in the constructor; the object keeps three bools and nothing else.
// See docs/behaviours.md#gui-actions.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/gui/KCI_GUI_Keys.h"

/// The modifier keys decoded from the key flags of a mouse message.
class NCAPPKIT_EXPORT KCC_GUI_Keys : public KCI_GUI_Keys {
 public:
  /// The bit of the key flags that stands for shift (4).
  static constexpr unsigned int kShiftFlag = 4U;
  /// The bit of the key flags that stands for control (8).
  static constexpr unsigned int kControlFlag = 8U;
  /// The bit of the key flags that stands for alt (32).
  static constexpr unsigned int kAltFlag = 32U;

  /// Decode `keyFlags`: shift when bit 4 is set, control for bit 8, alt for bit 32; other bits are ignored.
  explicit KCC_GUI_Keys(unsigned int keyFlags);
  /// Copies the three key states.
  KCC_GUI_Keys(const KCC_GUI_Keys& other);
  /// Copies the three key states; returns *this.
  KCC_GUI_Keys& operator=(const KCC_GUI_Keys& other);
  ~KCC_GUI_Keys() override;

  /// True when the flags had bit 4 (shift) set.
  bool ShiftKeyPressed() const override;
  /// True when the flags had bit 8 (control) set.
  bool ControlPressed() const override;
  /// True when the flags had bit 32 (alt) set.
  bool AltKeyPressed() const override;

 private:
  bool m_shift;
  bool m_control;
  bool m_alt;
};
