// SPDX-License-Identifier: MIT
// KCC_FontAttributes: a font with its text and back colours, size and styles, and KCC_TextAttributes, the
// same font plus the angle a text is written at. Both are small copyable values; the font saves itself to and
// reads itself from a KCParagraph section, and the text attributes save and read through it.
//
//   KCC_TextAttributes label;                  // "Times New Roman", 16, black on white, angle 0
//   label.SetFontArial();
//   label.SetFontSize(24);
//   label.EnableBold();
//   label.SetRedText();                         // text colour KCColorRed(255)
//   label.SetAngleRad(std::atan(1.0) * 2);      // GetAngleDeg() is 90 (within rounding)
//   label.WriteToParagraph("Label", root);      // root's child "Label": the eight font keys, no angle
//
// Rules worth knowing (deliberate behaviours):
// - KCC_TextAttributes lives in this header because it is a KCC_FontAttributes with one more field.
// - GetTextColor/SetTextColor are other names for GetFontColor/SetFontColor: one field, two names.
// - The named colour setters store the class-library colour with the value 255 (opaque), and some words
//   name a different class: Green stores KCColorLime (0,255,0) and DarkGreen KCColorGreen (0,128,0); Cyan is
//   KCColorAqua, Magenta KCColorFuchsia, DarkGray KCColorGray, LightGray KCColorSilver, DarkBlue KCColorNavy,
//   DarkCyan KCColorTeal, DarkMagenta KCColorPurple, DarkRed KCColorMaroon, DarkYellow KCColorOlive.
// - Setters store without any check: an empty font name or a size of 0 or below is kept as given.
// - WriteToParagraph writes into the child section of the given name (added when missing, reused when it
//   exists); an empty name writes into the given paragraph itself. Keys in this order: "TextColor",
//   "BackColor" (colour text "r,g,b,a"), "FontName" (text), "FontSize" (the decimal text of the size, stored
//   as text), "Bold", "Italic", "Underline", "Strike" (bools, 1 or 0).
// - ReadFromParagraph always looks the section up with KCParagraph::FindParagraph, also for an empty name,
//   which gives the paragraph itself; so an empty name reads back what an empty name wrote. A missing section
//   gives false and changes nothing. "FontSize" is read with the integer read, so "18pt" reads as 18. A
//   missing key, or a value the paragraph cannot read as its kind ("big" as a size, "maybe" as a bool), keeps
//   the field's current value (the current value is the read's default), and the result is still true.
// - KCC_TextAttributes neither writes nor reads its angle: reading keeps the angle it has.
// - A null paragraph gives false from both, and nothing is written or changed.
// See docs/behaviours.md#graphic-attributes.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCColor.h"
#include "ncappkit/foundation/KCString.h"

class KCParagraph;

/// A font: name, size, bold/italic/underline/strike, text colour and back colour.
class NCAPPKIT_EXPORT KCC_FontAttributes {
 public:
  /// The named font, size 16, KCColorBlack(255) text on KCColorWhite(255), no style.
  explicit KCC_FontAttributes(const KCString& fontName = KCString("Times New Roman"));
  /// Copies all fields.
  KCC_FontAttributes(const KCC_FontAttributes& other);
  /// Copies all fields; returns *this.
  KCC_FontAttributes& operator=(const KCC_FontAttributes& other);
  /// Nothing to release: the attributes own no resources.
  virtual ~KCC_FontAttributes();

  /// The text colour.
  const KCColor& GetFontColor() const noexcept { return m_textColor; }
  /// Store the text colour; never fails.
  void SetFontColor(const KCColor& color) { m_textColor = color; }
  /// The text colour (same field as GetFontColor).
  const KCColor& GetTextColor() const noexcept { return m_textColor; }
  /// Store the text colour (same field as SetFontColor); never fails.
  void SetTextColor(const KCColor& color) { m_textColor = color; }
  /// The back colour behind the text.
  const KCColor& GetBackColor() const noexcept { return m_backColor; }
  /// Store the back colour; never fails.
  void SetBackColor(const KCColor& color) { m_backColor = color; }
  /// Store the text colour and then the back colour; never fails.
  void SetColors(const KCColor& textColor, const KCColor& backColor);

  /// The font name.
  const KCString& GetFontName() const noexcept { return m_fontName; }
  /// Store the font name as given; never fails.
  void SetFontName(const KCString& fontName) { m_fontName = fontName; }
  /// The font size.
  int GetFontSize() const noexcept { return m_fontSize; }
  /// Store the font size as given (no range check); never fails.
  void SetFontSize(int size) noexcept { m_fontSize = size; }

  /// True when the font is bold.
  bool IsBold() const noexcept { return m_bold; }
  /// Store the bold flag; never fails.
  void SetBold(bool bold) noexcept { m_bold = bold; }
  /// Make the font bold; never fails.
  void EnableBold() noexcept { m_bold = true; }
  /// Make the font not bold; never fails.
  void DisableBold() noexcept { m_bold = false; }
  /// True when the font is italic.
  bool IsItalic() const noexcept { return m_italic; }
  /// Store the italic flag; never fails.
  void SetItalic(bool italic) noexcept { m_italic = italic; }
  /// Make the font italic; never fails.
  void EnableItalic() noexcept { m_italic = true; }
  /// Make the font not italic; never fails.
  void DisableItalic() noexcept { m_italic = false; }
  /// True when the font is underlined.
  bool IsUnderline() const noexcept { return m_underline; }
  /// Store the underline flag; never fails.
  void SetUnderline(bool underline) noexcept { m_underline = underline; }
  /// Make the font underlined; never fails.
  void EnableUnderline() noexcept { m_underline = true; }
  /// Make the font not underlined; never fails.
  void DisableUnderline() noexcept { m_underline = false; }
  /// True when the font is struck out.
  bool IsStrike() const noexcept { return m_strike; }
  /// Store the strike-out flag; never fails.
  void SetStrike(bool strike) noexcept { m_strike = strike; }
  /// Make the font struck out; never fails.
  void EnableStrike() noexcept { m_strike = true; }
  /// Make the font not struck out; never fails.
  void DisableStrike() noexcept { m_strike = false; }

  /// Font name "Arial"; never fails.
  void SetFontArial() { m_fontName = "Arial"; }
  /// Font name "Bookman Old Style"; never fails.
  void SetFontBookmanOldStyle() { m_fontName = "Bookman Old Style"; }
  /// Font name "Comic Sans MS"; never fails.
  void SetFontComicSansMS() { m_fontName = "Comic Sans MS"; }
  /// Font name "Courier New"; never fails.
  void SetFontCourierNew() { m_fontName = "Courier New"; }
  /// Font name "Georgia"; never fails.
  void SetFontGeorgia() { m_fontName = "Georgia"; }
  /// Font name "Impact"; never fails.
  void SetFontImpact() { m_fontName = "Impact"; }
  /// Font name "Tahoma"; never fails.
  void SetFontTahoma() { m_fontName = "Tahoma"; }
  /// Font name "Times New Roman"; never fails.
  void SetFontTimesNewRoman() { m_fontName = "Times New Roman"; }
  /// Font name "Verdana"; never fails.
  void SetFontVerdana() { m_fontName = "Verdana"; }

  /// Text colour KCColorBlack(255); never fails.
  void SetBlackText() { m_textColor = KCColorBlack(255); }
  /// Text colour KCColorBlue(255); never fails.
  void SetBlueText() { m_textColor = KCColorBlue(255); }
  /// Text colour KCColorAqua(255); never fails.
  void SetCyanText() { m_textColor = KCColorAqua(255); }
  /// Text colour KCColorNavy(255); never fails.
  void SetDarkBlueText() { m_textColor = KCColorNavy(255); }
  /// Text colour KCColorTeal(255); never fails.
  void SetDarkCyanText() { m_textColor = KCColorTeal(255); }
  /// Text colour KCColorGray(255); never fails.
  void SetDarkGrayText() { m_textColor = KCColorGray(255); }
  /// Text colour KCColorGreen(255) (0,128,0); never fails.
  void SetDarkGreenText() { m_textColor = KCColorGreen(255); }
  /// Text colour KCColorPurple(255); never fails.
  void SetDarkMagentaText() { m_textColor = KCColorPurple(255); }
  /// Text colour KCColorMaroon(255); never fails.
  void SetDarkRedText() { m_textColor = KCColorMaroon(255); }
  /// Text colour KCColorOlive(255); never fails.
  void SetDarkYellowText() { m_textColor = KCColorOlive(255); }
  /// Text colour KCColorDeepSkyBlue(255); never fails.
  void SetDeepSkyBlueText() { m_textColor = KCColorDeepSkyBlue(255); }
  /// Text colour KCColorLime(255) (0,255,0), not KCColorGreen; never fails.
  void SetGreenText() { m_textColor = KCColorLime(255); }
  /// Text colour KCColorSilver(255); never fails.
  void SetLightGrayText() { m_textColor = KCColorSilver(255); }
  /// Text colour KCColorFuchsia(255); never fails.
  void SetMagentaText() { m_textColor = KCColorFuchsia(255); }
  /// Text colour KCColorOrange(255); never fails.
  void SetOrangeText() { m_textColor = KCColorOrange(255); }
  /// Text colour KCColorPink(255); never fails.
  void SetPinkText() { m_textColor = KCColorPink(255); }
  /// Text colour KCColorRed(255); never fails.
  void SetRedText() { m_textColor = KCColorRed(255); }
  /// Text colour KCColorWhite(255); never fails.
  void SetWhiteText() { m_textColor = KCColorWhite(255); }
  /// Text colour KCColorYellow(255); never fails.
  void SetYellowText() { m_textColor = KCColorYellow(255); }

  /// Write the eight font keys into the child `name` of `paragraph` (added when missing), or into
  /// `paragraph` itself when `name` is empty. True; false only for a null paragraph.
  bool WriteToParagraph(const KCString& name, KCParagraph* paragraph) const;
  /// Read the eight font keys from the section that `paragraph->FindParagraph(name)` gives (the paragraph
  /// itself for an empty name); a missing key keeps its field. True; false, changing nothing, when the
  /// paragraph is null or has no such section.
  bool ReadFromParagraph(const KCString& name, KCParagraph* paragraph);

 private:
  KCColor m_textColor;
  KCColor m_backColor;
  KCString m_fontName;
  int m_fontSize = 16;
  bool m_bold = false;
  bool m_italic = false;
  bool m_underline = false;
  bool m_strike = false;
};

/// A font (KCC_FontAttributes) plus the angle in degrees at which a text is written.
class NCAPPKIT_EXPORT KCC_TextAttributes : public KCC_FontAttributes {
 public:
  /// The font defaults of KCC_FontAttributes with the given font name, and angle 0.
  explicit KCC_TextAttributes(const KCString& fontName = KCString("Times New Roman"));
  /// Copies the font fields and the angle.
  KCC_TextAttributes(const KCC_TextAttributes& other);
  /// Copies the font fields and the angle; returns *this.
  KCC_TextAttributes& operator=(const KCC_TextAttributes& other);
  /// Nothing to release: the attributes own no resources.
  ~KCC_TextAttributes() override;

  /// The angle in degrees, counter-clockwise from +x.
  double GetAngleDeg() const noexcept { return m_angleDeg; }
  /// Store the angle in degrees as given; never fails.
  void SetAngleDeg(double degrees) noexcept { m_angleDeg = degrees; }
  /// The angle in radians: degrees * atan(1) / 45.
  double GetAngleRad() const noexcept;
  /// Store radians * 45 / atan(1) as the angle in degrees; never fails.
  void SetAngleRad(double radians) noexcept;

 private:
  double m_angleDeg = 0.0;
};
