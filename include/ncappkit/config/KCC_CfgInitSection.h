// SPDX-License-Identifier: MIT
// KCC_CfgInitSection: a scope guard for a configuration object, deleting it at the end of the scope when it
// was handed over as owned.
//
//   {
//     KCC_CfgInitSection guard(*new KCC_CfgObjectIniFile("millcam.ini", "MillCam"), true);
//     app.Load(guard.GetCfgObject(), true, true, true, true);
//   }   // the configuration object is deleted here
//
// A copy refers to the same object but never owns it, so the object is deleted exactly once (by the guard
// that was given ownership).
#pragma once

#include "ncappkit/config/KCC_CfgObject.h"
#include "ncappkit/export.h"

/// A scope guard for a configuration object that deletes it at the end of the scope when it owns it.
class NCAPPKIT_EXPORT KCC_CfgInitSection {
 public:
  /// Guard `cfg`; when `owns` is true it must come from new, and the guard deletes it.
  KCC_CfgInitSection(KCC_CfgObject& cfg, bool owns) noexcept : m_cfg(&cfg), m_owns(owns) {}
  /// Refers to the same object without owning it.
  KCC_CfgInitSection(const KCC_CfgInitSection& other) noexcept : m_cfg(other.m_cfg), m_owns(false) {}
  /// Releases an owned object first, then refers to the other guard's object without owning it.
  KCC_CfgInitSection& operator=(const KCC_CfgInitSection& other);
  /// Deletes the object when it is owned.
  virtual ~KCC_CfgInitSection();

  /// The guarded configuration object.
  KCC_CfgObject& GetCfgObject() const noexcept { return *m_cfg; }
  /// True when this guard deletes the object.
  bool IsOwner() const noexcept { return m_owns; }

 private:
  KCC_CfgObject* m_cfg;
  bool m_owns;
};
