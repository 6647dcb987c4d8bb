// SPDX-License-Identifier: MIT
// KCC_LineAttributes: the pen a line is drawn with, that is its colour, its dash style and its width.
// It is a small copyable value that the configuration keeps and drawing calls take, and it saves itself to
// and reads itself from a KCParagraph section.
//
//   KCC_LineAttributes pen;                    // default colour, solid, width 1
//   pen.SetDarkBlueLine();                      // KCColorNavy(255)
//   pen.SetDashLine();
//   pen.SetLineWidth(2);
//   pen.WriteToParagraph("Contour", root);      // root's child "Contour": LineColor, LineStyle, LineWidth
//   KCC_LineAttributes loaded;
//   loaded.ReadFromParagraph("Contour", root);  // true: Navy, dashed, width 2
//
// Rules worth knowing (deliberate behaviours):
// - The named colour setters store the class-library colour with the value 255 (opaque), and some words
//   name a different class: Green stores KCColorLime (0,255,0) and DarkGreen KCColorGreen (0,128,0); Cyan is
//   KCColorAqua, Magenta KCColorFuchsia, DarkGray KCColorGray, LightGray KCColorSilver, DarkBlue KCColorNavy,
//   DarkCyan KCColorTeal, DarkMagenta KCColorPurple, DarkRed KCColorMaroon, DarkYellow KCColorOlive.
// - Setters store without any check: a width of 0 or below is kept as given.
// - WriteToParagraph writes into the child section of the given name (added when missing, reused when it
//   exists); an empty name writes into the given paragraph itself. Keys in this order: "LineColor" (colour
//   text "r,g,b,a"), "LineStyle" (pen style text), "LineWidth" (decimal).
// - ReadFromParagraph always looks the section up with KCParagraph::FindParagraph, also for an empty name,
//   which gives the paragraph itself; so an empty name reads back what an empty name wrote. A missing section
//   gives false and changes nothing. A missing key, or a value the paragraph cannot read as its kind, keeps
//   the field's current value (the current value is the read's default), and the result is still true.
// - A null paragraph gives false from both, and nothing is written or changed.
// See docs/behaviours.md#graphic-attributes.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCColor.h"
#include "ncappkit/foundation/KCPenStyle.h"
#include "ncappkit/foundation/KCString.h"

class KCParagraph;

/// The pen of a line: colour, dash style and width.
class NCAPPKIT_EXPORT KCC_LineAttributes {
 public:
  /// The default colour (KCColor()), the default pen style (KCPenStyle(), solid) and width 1.
  KCC_LineAttributes();
  /// The given colour, pen style and width, stored as given.
  KCC_LineAttributes(const KCColor& color, const KCPenStyle& style, int width);
  /// Copies colour, style and width.
  KCC_LineAttributes(const KCC_LineAttributes& other);
  /// Copies colour, style and width; returns *this.
  KCC_LineAttributes& operator=(const KCC_LineAttributes& other);
  /// Nothing to release: the attributes own no resources.
  virtual ~KCC_LineAttributes();

  /// The line colour.
  const KCColor& GetLineColor() const noexcept { return m_lineColor; }
  /// Store the line colour; never fails.
  void SetLineColor(const KCColor& color) { m_lineColor = color; }
  /// The line's pen style.
  const KCPenStyle& GetLineStyle() const noexcept { return m_lineStyle; }
  /// Store the pen style; never fails.
  void SetLineStyle(const KCPenStyle& style) { m_lineStyle = style; }
  /// The line width.
  int GetLineWidth() const noexcept { return m_lineWidth; }
  /// Store the line width as given (no range check); never fails.
  void SetLineWidth(int width) noexcept { m_lineWidth = width; }

  /// True when the pen style is KCPenStyleSolid.
  bool IsSolidLine() const noexcept { return m_lineStyle == KCPenStyleSolid(); }
  /// True when the pen style is KCPenStyleDash.
  bool IsDashLine() const noexcept { return m_lineStyle == KCPenStyleDash(); }
  /// True when the pen style is KCPenStyleDot.
  bool IsDotLine() const noexcept { return m_lineStyle == KCPenStyleDot(); }
  /// True when the pen style is KCPenStyleDashDot.
  bool IsDashDotLine() const noexcept { return m_lineStyle == KCPenStyleDashDot(); }
  /// True when the pen style is KCPenStyleDashDotDot.
  bool IsDashDotDotLine() const noexcept { return m_lineStyle == KCPenStyleDashDotDot(); }
  /// Store KCPenStyleSolid; never fails.
  void SetSolidLine() { m_lineStyle = KCPenStyleSolid(); }
  /// Store KCPenStyleDash; never fails.
  void SetDashLine() { m_lineStyle = KCPenStyleDash(); }
  /// Store KCPenStyleDot; never fails.
  void SetDotLine() { m_lineStyle = KCPenStyleDot(); }
  /// Store KCPenStyleDashDot; never fails.
  void SetDashDotLine() { m_lineStyle = KCPenStyleDashDot(); }
  /// Store KCPenStyleDashDotDot; never fails.
  void SetDashDotDotLine() { m_lineStyle = KCPenStyleDashDotDot(); }

  /// Line colour KCColorBlack(255); never fails.
  void SetBlackLine() { m_lineColor = KCColorBlack(255); }
  /// Line colour KCColorBlue(255); never fails.
  void SetBlueLine() { m_lineColor = KCColorBlue(255); }
  /// Line colour KCColorAqua(255); never fails.
  void SetCyanLine() { m_lineColor = KCColorAqua(255); }
  /// Line colour KCColorNavy(255); never fails.
  void SetDarkBlueLine() { m_lineColor = KCColorNavy(255); }
  /// Line colour KCColorTeal(255); never fails.
  void SetDarkCyanLine() { m_lineColor = KCColorTeal(255); }
  /// Line colour KCColorGray(255); never fails.
  void SetDarkGrayLine() { m_lineColor = KCColorGray(255); }
  /// Line colour KCColorGreen(255) (0,128,0); never fails.
  void SetDarkGreenLine() { m_lineColor = KCColorGreen(255); }
  /// Line colour KCColorPurple(255); never fails.
  void SetDarkMagentaLine() { m_lineColor = KCColorPurple(255); }
  /// Line colour KCColorMaroon(255); never fails.
  void SetDarkRedLine() { m_lineColor = KCColorMaroon(255); }
  /// Line colour KCColorOlive(255); never fails.
  void SetDarkYellowLine() { m_lineColor = KCColorOlive(255); }
  /// Line colour KCColorDeepSkyBlue(255); never fails.
  void SetDeepSkyBlueLine() { m_lineColor = KCColorDeepSkyBlue(255); }
  /// Line colour KCColorLime(255) (0,255,0), not KCColorGreen; never fails.
  void SetGreenLine() { m_lineColor = KCColorLime(255); }
  /// Line colour KCColorSilver(255); never fails.
  void SetLightGrayLine() { m_lineColor = KCColorSilver(255); }
  /// Line colour KCColorFuchsia(255); never fails.
  void SetMagentaLine() { m_lineColor = KCColorFuchsia(255); }
  /// Line colour KCColorOrange(255); never fails.
  void SetOrangeLine() { m_lineColor = KCColorOrange(255); }
  /// Line colour KCColorPink(255); never fails.
  void SetPinkLine() { m_lineColor = KCColorPink(255); }
  /// Line colour KCColorRed(255); never fails.
  void SetRedLine() { m_lineColor = KCColorRed(255); }
  /// Line colour KCColorWhite(255); never fails.
  void SetWhiteLine() { m_lineColor = KCColorWhite(255); }
  /// Line colour KCColorYellow(255); never fails.
  void SetYellowLine() { m_lineColor = KCColorYellow(255); }

  /// Write "LineColor", "LineStyle", "LineWidth" into the child `name` of `paragraph` (added when missing),
  /// or into `paragraph` itself when `name` is empty. True; false only for a null paragraph.
  bool WriteToParagraph(const KCString& name, KCParagraph* paragraph) const;
  /// Read the three keys from the section that `paragraph->FindParagraph(name)` gives (the paragraph itself
  /// for an empty name); a missing key keeps its field. True; false, changing nothing, when the paragraph is
  /// null or has no such section.
  bool ReadFromParagraph(const KCString& name, KCParagraph* paragraph);

 private:
  KCColor m_lineColor;
  KCPenStyle m_lineStyle;
  int m_lineWidth = 1;
};
