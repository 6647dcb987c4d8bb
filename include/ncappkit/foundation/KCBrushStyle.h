// SPDX-License-Identifier: MIT
// KCBrushStyle: how closed shapes are filled: solid, or clear (not filled).
//
//   canvas.SetBrushStyle(KCBrushStyleClear());
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// How closed shapes are filled: solid, or clear (not filled).
class NCAPPKIT_EXPORT KCBrushStyle {
 public:
  /// The fill kinds.
  enum class Kind {
    Solid = 0,  ///< filled ("Solid")
    Clear = 1   ///< not filled ("Clear")
  };

  /// Solid fill.
  KCBrushStyle() = default;
  /// The given fill.
  explicit KCBrushStyle(Kind kind) : m_kind(kind) {}
  /// The same fill kind.
  KCBrushStyle(const KCBrushStyle&) = default;
  /// Take the other's fill kind; returns *this.
  KCBrushStyle& operator=(const KCBrushStyle&) = default;
  virtual ~KCBrushStyle();

  /// The fill kind.
  Kind GetKind() const noexcept { return m_kind; }

  /// Text form: "Solid" or "Clear".
  static KCString ToString(const KCBrushStyle& style);
  /// Style named by `text` (case-insensitive); an unknown text gives a solid brush.
  static KCBrushStyle FromString(const KCString& text);

  /// True when both have the same fill kind.
  friend bool operator==(const KCBrushStyle& a, const KCBrushStyle& b) noexcept {
    return a.m_kind == b.m_kind;
  }
  /// True when the fill kinds differ.
  friend bool operator!=(const KCBrushStyle& a, const KCBrushStyle& b) noexcept {
    return a.m_kind != b.m_kind;
  }

 private:
  Kind m_kind = Kind::Solid;
};

/// Solid fill.
class NCAPPKIT_EXPORT KCBrushStyleSolid : public KCBrushStyle {
 public:
  /// A solid fill.
  KCBrushStyleSolid() : KCBrushStyle(Kind::Solid) {}
};
/// No fill.
class NCAPPKIT_EXPORT KCBrushStyleClear : public KCBrushStyle {
 public:
  /// No fill.
  KCBrushStyleClear() : KCBrushStyle(Kind::Clear) {}
};
