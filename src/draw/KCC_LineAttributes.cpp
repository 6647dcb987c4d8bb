// SPDX-License-Identifier: MIT
// KCC_LineAttributes: construction, copying and the paragraph form of a line's pen.
#include "ncappkit/draw/KCC_LineAttributes.h"

#include "ncappkit/foundation/KCParagraph.h"

KCC_LineAttributes::KCC_LineAttributes() = default;

KCC_LineAttributes::KCC_LineAttributes(const KCColor& color, const KCPenStyle& style, int width)
    : m_lineColor(color), m_lineStyle(style), m_lineWidth(width) {}

KCC_LineAttributes::KCC_LineAttributes(const KCC_LineAttributes& other) = default;

KCC_LineAttributes& KCC_LineAttributes::operator=(const KCC_LineAttributes& other) = default;

KCC_LineAttributes::~KCC_LineAttributes() = default;

bool KCC_LineAttributes::WriteToParagraph(const KCString& name, KCParagraph* paragraph) const {
  if (paragraph == nullptr)
    return false;
  KCParagraph* section = name.IsEmpty() ? paragraph : paragraph->AddParagraph(name);
  section->WriteColor("LineColor", m_lineColor);
  section->WritePenStyle("LineStyle", m_lineStyle);
  section->WriteInteger("LineWidth", m_lineWidth);
  return true;
}

bool KCC_LineAttributes::ReadFromParagraph(const KCString& name, KCParagraph* paragraph) {
  if (paragraph == nullptr)
    return false;
  // The look-up runs for an empty name too; KCParagraph answers it with the paragraph itself.
  const KCParagraph* section = paragraph->FindParagraph(name);
  if (section == nullptr)
    return false;
  m_lineColor = section->ReadColor("LineColor", m_lineColor);
  m_lineStyle = section->ReadPenStyle("LineStyle", m_lineStyle);
  m_lineWidth = section->ReadInteger("LineWidth", m_lineWidth);
  return true;
}
