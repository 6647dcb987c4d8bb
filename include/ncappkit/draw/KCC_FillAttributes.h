// SPDX-License-Identifier: MIT
// KCC_FillAttributes: how the inside of a closed shape is drawn, that is a fill colour and whether the shape
// is filled at all. It is a small copyable value that saves itself to and reads itself from a KCParagraph.
//
//   KCC_FillAttributes fill;                   // default colour, hollow
//   fill.SetOrangePaint();                      // KCColorOrange(255)
//   fill.SetFilledShape();
//   fill.WriteToParagraph("Pocket", root);      // root's child "Pocket": FillColor, Filled
//   KCC_FillAttributes loaded;
//   loaded.ReadFromParagraph("Pocket", root);   // true, loaded is filled orange
//
// Rules worth knowing (deliberate behaviours):
// - GetPaintColor/SetPaintColor are other names for GetFillColor/SetFillColor: one field, two names.
// - The named colour setters store the class-library colour with the value 255 (opaque), and some words
//   name a different class: Green stores KCColorLime (0,255,0) and DarkGreen KCColorGreen (0,128,0); Cyan is
//   KCColorAqua, Magenta KCColorFuchsia, DarkGray KCColorGray, LightGray KCColorSilver, DarkBlue KCColorNavy,
//   DarkCyan KCColorTeal, DarkMagenta KCColorPurple, DarkRed KCColorMaroon, DarkYellow KCColorOlive.
// - WriteToParagraph writes into the child section of the given name (added when missing, reused when it
//   exists); an empty name writes into the given paragraph itself. Keys in this order: "FillColor" (colour
//   text "r,g,b,a"), "Filled" (bool, 1 or 0).
// - ReadFromParagraph always looks the section up with KCParagraph::FindParagraph, also for an empty name,
//   which gives the paragraph itself; so an empty name reads back what an empty name wrote. A missing section
//   gives false and changes nothing. A missing key, or a value the paragraph cannot read as its kind, keeps
//   the field's current value (the current value is the read's default), and the result is still true.
// - A null paragraph gives false from both, and nothing is written or changed.
// See docs/behaviours.md#graphic-attributes.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCColor.h"
#include "ncappkit/foundation/KCString.h"

class KCParagraph;

/// The filling of a closed shape: fill colour and whether it is filled.
class NCAPPKIT_EXPORT KCC_FillAttributes {
 public:
  /// The default colour (KCColor()), hollow.
  KCC_FillAttributes();
  /// The given fill colour and filled flag.
  KCC_FillAttributes(const KCColor& color, bool filled);
  /// Copies colour and filled flag.
  KCC_FillAttributes(const KCC_FillAttributes& other);
  /// Copies colour and filled flag; returns *this.
  KCC_FillAttributes& operator=(const KCC_FillAttributes& other);
  /// Nothing to release: the attributes own no resources.
  virtual ~KCC_FillAttributes();

  /// The fill colour.
  const KCColor& GetFillColor() const noexcept { return m_fillColor; }
  /// Store the fill colour; never fails.
  void SetFillColor(const KCColor& color) { m_fillColor = color; }
  /// The fill colour (same field as GetFillColor).
  const KCColor& GetPaintColor() const noexcept { return m_fillColor; }
  /// Store the fill colour (same field as SetFillColor); never fails.
  void SetPaintColor(const KCColor& color) { m_fillColor = color; }

  /// True when the shape is filled.
  bool IsFilledShape() const noexcept { return m_filled; }
  /// True when the shape is not filled (only its outline is drawn).
  bool IsHollowShape() const noexcept { return !m_filled; }
  /// Mark the shape filled; never fails.
  void SetFilledShape() noexcept { m_filled = true; }
  /// Mark the shape hollow; never fails.
  void SetHollowShape() noexcept { m_filled = false; }

  /// Fill colour KCColorBlack(255); never fails.
  void SetBlackPaint() { m_fillColor = KCColorBlack(255); }
  /// Fill colour KCColorBlue(255); never fails.
  void SetBluePaint() { m_fillColor = KCColorBlue(255); }
  /// Fill colour KCColorAqua(255); never fails.
  void SetCyanPaint() { m_fillColor = KCColorAqua(255); }
  /// Fill colour KCColorNavy(255); never fails.
  void SetDarkBluePaint() { m_fillColor = KCColorNavy(255); }
  /// Fill colour KCColorTeal(255); never fails.
  void SetDarkCyanPaint() { m_fillColor = KCColorTeal(255); }
  /// Fill colour KCColorGray(255); never fails.
  void SetDarkGrayPaint() { m_fillColor = KCColorGray(255); }
  /// Fill colour KCColorGreen(255) (0,128,0); never fails.
  void SetDarkGreenPaint() { m_fillColor = KCColorGreen(255); }
  /// Fill colour KCColorPurple(255); never fails.
  void SetDarkMagentaPaint() { m_fillColor = KCColorPurple(255); }
  /// Fill colour KCColorMaroon(255); never fails.
  void SetDarkRedPaint() { m_fillColor = KCColorMaroon(255); }
  /// Fill colour KCColorOlive(255); never fails.
  void SetDarkYellowPaint() { m_fillColor = KCColorOlive(255); }
  /// Fill colour KCColorDeepSkyBlue(255); never fails.
  void SetDeepSkyBluePaint() { m_fillColor = KCColorDeepSkyBlue(255); }
  /// Fill colour KCColorLime(255) (0,255,0), not KCColorGreen; never fails.
  void SetGreenPaint() { m_fillColor = KCColorLime(255); }
  /// Fill colour KCColorSilver(255); never fails.
  void SetLightGrayPaint() { m_fillColor = KCColorSilver(255); }
  /// Fill colour KCColorFuchsia(255); never fails.
  void SetMagentaPaint() { m_fillColor = KCColorFuchsia(255); }
  /// Fill colour KCColorOrange(255); never fails.
  void SetOrangePaint() { m_fillColor = KCColorOrange(255); }
  /// Fill colour KCColorPink(255); never fails.
  void SetPinkPaint() { m_fillColor = KCColorPink(255); }
  /// Fill colour KCColorRed(255); never fails.
  void SetRedPaint() { m_fillColor = KCColorRed(255); }
  /// Fill colour KCColorWhite(255); never fails.
  void SetWhitePaint() { m_fillColor = KCColorWhite(255); }
  /// Fill colour KCColorYellow(255); never fails.
  void SetYellowPaint() { m_fillColor = KCColorYellow(255); }

  /// Write "FillColor" and "Filled" into the child `name` of `paragraph` (added when missing), or into
  /// `paragraph` itself when `name` is empty. True; false only for a null paragraph.
  bool WriteToParagraph(const KCString& name, KCParagraph* paragraph) const;
  /// Read the two keys from the section that `paragraph->FindParagraph(name)` gives (the paragraph itself for
  /// an empty name); a missing key keeps its field. True; false, changing nothing, when the paragraph is null
  /// or has no such section.
  bool ReadFromParagraph(const KCString& name, KCParagraph* paragraph);

 private:
  KCColor m_fillColor;
  bool m_filled = false;
};
