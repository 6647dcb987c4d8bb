// SPDX-License-Identifier: MIT
// KCPenStyle: the dash pattern of a pen, with one subclass per kind (KCPenStyleSolid, KCPenStyleDash, ...).
//
// A pen style is a small value; the subclasses only choose the kind, so they copy and compare freely as
// KCPenStyle. The text forms are "Solid", "Dash", "Dot", "DashDot" and "DashDotDot".
//
//   KCPenStyle style = KCPenStyleDot();
//   KCString text = KCPenStyle::ToString(style);        // "Dot"
//   KCPenStyle back = KCPenStyle::FromString("DashDot");
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// The dash pattern of a pen (solid, dash, dot, dash-dot, dash-dot-dot), a small copyable value.
class NCAPPKIT_EXPORT KCPenStyle {
 public:
  /// The dash patterns a pen can have.
  enum class Kind {
    Solid = 0,      ///< an unbroken line ("Solid")
    Dash = 1,       ///< dashes ("Dash")
    Dot = 2,        ///< dots ("Dot")
    DashDot = 3,    ///< dash, dot ("DashDot")
    DashDotDot = 4  ///< dash, dot, dot ("DashDotDot")
  };

  /// A solid pen.
  KCPenStyle() = default;
  /// A pen of the given kind.
  explicit KCPenStyle(Kind kind) : m_kind(kind) {}
  /// The same dash pattern.
  KCPenStyle(const KCPenStyle&) = default;
  /// Take the other's dash pattern; returns *this.
  KCPenStyle& operator=(const KCPenStyle&) = default;
  virtual ~KCPenStyle();

  /// The dash pattern.
  Kind GetKind() const noexcept { return m_kind; }

  /// Text form of the style: "Solid", "Dash", "Dot", "DashDot" or "DashDotDot".
  static KCString ToString(const KCPenStyle& style);
  /// Style named by `text` (case-insensitive, blanks around ignored); an unknown text gives a solid pen.
  static KCPenStyle FromString(const KCString& text);

  /// True when both have the same dash pattern.
  friend bool operator==(const KCPenStyle& a, const KCPenStyle& b) noexcept { return a.m_kind == b.m_kind; }
  /// True when the dash patterns differ.
  friend bool operator!=(const KCPenStyle& a, const KCPenStyle& b) noexcept { return a.m_kind != b.m_kind; }

 private:
  Kind m_kind = Kind::Solid;
};

/// Solid pen.
class NCAPPKIT_EXPORT KCPenStyleSolid : public KCPenStyle {
 public:
  /// A solid pen style.
  KCPenStyleSolid() : KCPenStyle(Kind::Solid) {}
};
/// Dashed pen.
class NCAPPKIT_EXPORT KCPenStyleDash : public KCPenStyle {
 public:
  /// A dashed pen style.
  KCPenStyleDash() : KCPenStyle(Kind::Dash) {}
};
/// Dotted pen.
class NCAPPKIT_EXPORT KCPenStyleDot : public KCPenStyle {
 public:
  /// A dotted pen style.
  KCPenStyleDot() : KCPenStyle(Kind::Dot) {}
};
/// Dash-dot pen.
class NCAPPKIT_EXPORT KCPenStyleDashDot : public KCPenStyle {
 public:
  /// A dash-dot pen style.
  KCPenStyleDashDot() : KCPenStyle(Kind::DashDot) {}
};
/// Dash-dot-dot pen.
class NCAPPKIT_EXPORT KCPenStyleDashDotDot : public KCPenStyle {
 public:
  /// A dash-dot-dot pen style.
  KCPenStyleDashDotDot() : KCPenStyle(Kind::DashDotDot) {}
};
