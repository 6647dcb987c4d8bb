// SPDX-License-Identifier: MIT
// KCC_FillAttributes: construction, copying and the paragraph form of a shape's filling.
#include "ncappkit/draw/KCC_FillAttributes.h"

#include "ncappkit/foundation/KCParagraph.h"

KCC_FillAttributes::KCC_FillAttributes() = default;

KCC_FillAttributes::KCC_FillAttributes(const KCColor& color, bool filled)
    : m_fillColor(color), m_filled(filled) {}

KCC_FillAttributes::KCC_FillAttributes(const KCC_FillAttributes& other) = default;

KCC_FillAttributes& KCC_FillAttributes::operator=(const KCC_FillAttributes& other) = default;

KCC_FillAttributes::~KCC_FillAttributes() = default;

bool KCC_FillAttributes::WriteToParagraph(const KCString& name, KCParagraph* paragraph) const {
  if (paragraph == nullptr)
    return false;
  KCParagraph* section = name.IsEmpty() ? paragraph : paragraph->AddParagraph(name);
  section->WriteColor("FillColor", m_fillColor);
  section->WriteBool("Filled", m_filled);
  return true;
}

bool KCC_FillAttributes::ReadFromParagraph(const KCString& name, KCParagraph* paragraph) {
  if (paragraph == nullptr)
    return false;
  // The look-up runs for an empty name too; KCParagraph answers it with the paragraph itself.
  const KCParagraph* section = paragraph->FindParagraph(name);
  if (section == nullptr)
    return false;
  m_fillColor = section->ReadColor("FillColor", m_fillColor);
  m_filled = section->ReadBool("Filled", m_filled);
  return true;
}
