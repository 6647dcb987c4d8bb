// SPDX-License-Identifier: MIT
// KCC_FontAttributes and KCC_TextAttributes: construction, copying, the angle conversions and the paragraph
// form of a font.
#include "ncappkit/draw/KCC_FontAttributes.h"

#include <cmath>

#include "ncappkit/foundation/KCParagraph.h"

KCC_FontAttributes::KCC_FontAttributes(const KCString& fontName)
    : m_textColor(KCColorBlack(255)), m_backColor(KCColorWhite(255)), m_fontName(fontName) {}

KCC_FontAttributes::KCC_FontAttributes(const KCC_FontAttributes& other) = default;

KCC_FontAttributes& KCC_FontAttributes::operator=(const KCC_FontAttributes& other) = default;

KCC_FontAttributes::~KCC_FontAttributes() = default;

void KCC_FontAttributes::SetColors(const KCColor& textColor, const KCColor& backColor) {
  m_textColor = textColor;
  m_backColor = backColor;
}

bool KCC_FontAttributes::WriteToParagraph(const KCString& name, KCParagraph* paragraph) const {
  if (paragraph == nullptr)
    return false;
  KCParagraph* section = name.IsEmpty() ? paragraph : paragraph->AddParagraph(name);
  section->WriteColor("TextColor", m_textColor);
  section->WriteColor("BackColor", m_backColor);
  section->WriteString("FontName", m_fontName);
  // The size goes in as text; ReadFromParagraph takes it back with the integer read.
  section->WriteString("FontSize", KCString(m_fontSize, false));
  section->WriteBool("Bold", m_bold);
  section->WriteBool("Italic", m_italic);
  section->WriteBool("Underline", m_underline);
  section->WriteBool("Strike", m_strike);
  return true;
}

bool KCC_FontAttributes::ReadFromParagraph(const KCString& name, KCParagraph* paragraph) {
  if (paragraph == nullptr)
    return false;
  // The look-up runs for an empty name too; KCParagraph answers it with the paragraph itself.
  const KCParagraph* section = paragraph->FindParagraph(name);
  if (section == nullptr)
    return false;
  m_textColor = section->ReadColor("TextColor", m_textColor);
  m_backColor = section->ReadColor("BackColor", m_backColor);
  m_fontName = section->ReadString("FontName", m_fontName);
  m_fontSize = section->ReadInteger("FontSize", m_fontSize);
  m_bold = section->ReadBool("Bold", m_bold);
  m_italic = section->ReadBool("Italic", m_italic);
  m_underline = section->ReadBool("Underline", m_underline);
  m_strike = section->ReadBool("Strike", m_strike);
  return true;
}

KCC_TextAttributes::KCC_TextAttributes(const KCString& fontName) : KCC_FontAttributes(fontName) {}

KCC_TextAttributes::KCC_TextAttributes(const KCC_TextAttributes& other) = default;

KCC_TextAttributes& KCC_TextAttributes::operator=(const KCC_TextAttributes& other) = default;

KCC_TextAttributes::~KCC_TextAttributes() = default;

double KCC_TextAttributes::GetAngleRad() const noexcept {
  return m_angleDeg * std::atan(1.0) / 45.0;
}

void KCC_TextAttributes::SetAngleRad(double radians) noexcept {
  m_angleDeg = radians * 45.0 / std::atan(1.0);
}
