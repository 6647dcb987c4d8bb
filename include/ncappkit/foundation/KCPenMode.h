// SPDX-License-Identifier: MIT
// KCPenMode: how a pen combines with what is already drawn (plain copy, or NOT-XOR for rubber bands that a
// second drawing erases).
//
//   canvas.SetPenMode(KCPenModeNotXor());
#pragma once

#include "ncappkit/export.h"

/// How a pen combines with what is already drawn: plain copy or NOT-XOR.
class NCAPPKIT_EXPORT KCPenMode {
 public:
  /// The combination modes.
  enum class Kind {
    Copy = 0,   ///< the pen's colour replaces what is drawn
    NotXor = 1  ///< NOT-XOR with what is drawn: drawing the same thing twice restores it
  };

  /// Plain copy mode.
  KCPenMode() = default;
  /// The given mode.
  explicit KCPenMode(Kind kind) : m_kind(kind) {}
  /// The same mode.
  KCPenMode(const KCPenMode&) = default;
  /// Take the other's mode; returns *this.
  KCPenMode& operator=(const KCPenMode&) = default;
  virtual ~KCPenMode();

  /// The mode.
  Kind GetKind() const noexcept { return m_kind; }

  /// True when both have the same mode.
  friend bool operator==(const KCPenMode& a, const KCPenMode& b) noexcept { return a.m_kind == b.m_kind; }
  /// True when the modes differ.
  friend bool operator!=(const KCPenMode& a, const KCPenMode& b) noexcept { return a.m_kind != b.m_kind; }

 private:
  Kind m_kind = Kind::Copy;
};

/// NOT-XOR pen mode: drawing the same thing twice restores the background.
class NCAPPKIT_EXPORT KCPenModeNotXor : public KCPenMode {
 public:
  /// The NOT-XOR mode.
  KCPenModeNotXor() : KCPenMode(Kind::NotXor) {}
};
