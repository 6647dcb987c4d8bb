// SPDX-License-Identifier: MIT
// KCFontStyle and KCFontStyles: one font style (bold, italic, underline, strike-out) and a set of them.
//
//   KCFontStyles styles;
//   styles.Add(KCFontStyleBold());
//   styles.Add(KCFontStyleItalic());
//   KCString text = KCFontStyles::ToString(styles);     // "Bold,Italic"
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// One font style: bold, italic, underline or strike-out.
class NCAPPKIT_EXPORT KCFontStyle {
 public:
  /// The styles; the values are bit positions in a KCFontStyles set.
  enum class Kind {
    Bold = 0,       ///< bold ("Bold")
    Italic = 1,     ///< italic ("Italic")
    Underline = 2,  ///< underlined ("Underline")
    StrikeOut = 3   ///< struck out ("StrikeOut")
  };

  /// A style of the given kind.
  explicit KCFontStyle(Kind kind) : m_kind(kind) {}
  /// The same style.
  KCFontStyle(const KCFontStyle&) = default;
  /// Take the other's style; returns *this.
  KCFontStyle& operator=(const KCFontStyle&) = default;
  virtual ~KCFontStyle();

  /// The style.
  Kind GetKind() const noexcept { return m_kind; }

  /// True when both have the same style.
  friend bool operator==(const KCFontStyle& a, const KCFontStyle& b) noexcept { return a.m_kind == b.m_kind; }
  /// True when the styles differ.
  friend bool operator!=(const KCFontStyle& a, const KCFontStyle& b) noexcept { return a.m_kind != b.m_kind; }

 private:
  Kind m_kind;
};

/// Bold.
class NCAPPKIT_EXPORT KCFontStyleBold : public KCFontStyle {
 public:
  /// The bold style.
  KCFontStyleBold() : KCFontStyle(Kind::Bold) {}
};
/// Italic.
class NCAPPKIT_EXPORT KCFontStyleItalic : public KCFontStyle {
 public:
  /// The italic style.
  KCFontStyleItalic() : KCFontStyle(Kind::Italic) {}
};
/// Underlined.
class NCAPPKIT_EXPORT KCFontStyleUnderline : public KCFontStyle {
 public:
  /// The underline style.
  KCFontStyleUnderline() : KCFontStyle(Kind::Underline) {}
};
/// Struck out.
class NCAPPKIT_EXPORT KCFontStyleStrikeOut : public KCFontStyle {
 public:
  /// The strike-out style.
  KCFontStyleStrikeOut() : KCFontStyle(Kind::StrikeOut) {}
};

/// A set of font styles (empty = regular).
class NCAPPKIT_EXPORT KCFontStyles {
 public:
  /// The empty set (regular font).
  KCFontStyles() = default;
  /// The same set.
  KCFontStyles(const KCFontStyles&) = default;
  /// Take the other set's styles; returns *this.
  KCFontStyles& operator=(const KCFontStyles&) = default;
  virtual ~KCFontStyles();

  /// Add a style to the set (adding it twice keeps it once).
  void Add(const KCFontStyle& style) noexcept;
  /// Remove a style from the set.
  void Remove(const KCFontStyle& style) noexcept;
  /// True when the style is in the set.
  bool Has(const KCFontStyle& style) const noexcept;
  /// True when the set is empty.
  bool IsEmpty() const noexcept { return m_bits == 0; }
  /// Empty the set.
  void Clear() noexcept { m_bits = 0; }

  /// Text form: the style names "Bold", "Italic", "Underline", "StrikeOut" in that order, joined with ",";
  /// the empty set gives "".
  static KCString ToString(const KCFontStyles& styles);
  /// Set named by a text of ToString's form (case-insensitive, blanks ignored); unknown names are skipped.
  static KCFontStyles FromString(const KCString& text);

  /// True when both sets hold the same styles.
  friend bool operator==(const KCFontStyles& a, const KCFontStyles& b) noexcept {
    return a.m_bits == b.m_bits;
  }
  /// True when the sets differ in any style.
  friend bool operator!=(const KCFontStyles& a, const KCFontStyles& b) noexcept {
    return a.m_bits != b.m_bits;
  }

 private:
  unsigned m_bits = 0;
};
