// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCFontStyle.h"

#include "foundation/KCTextSplit.h"

namespace {

struct FontStyleName {
  KCFontStyle::Kind kind;
  const char* name;
};

// In the order ToString writes them.
constexpr FontStyleName kFontStyleNames[] = {
    {KCFontStyle::Kind::Bold, "Bold"},
    {KCFontStyle::Kind::Italic, "Italic"},
    {KCFontStyle::Kind::Underline, "Underline"},
    {KCFontStyle::Kind::StrikeOut, "StrikeOut"},
};

unsigned Bit(KCFontStyle::Kind kind) noexcept {
  return 1u << static_cast<unsigned>(kind);
}

}  // namespace

KCFontStyle::~KCFontStyle() = default;

KCFontStyles::~KCFontStyles() = default;

void KCFontStyles::Add(const KCFontStyle& style) noexcept {
  m_bits |= Bit(style.GetKind());
}

void KCFontStyles::Remove(const KCFontStyle& style) noexcept {
  m_bits &= ~Bit(style.GetKind());
}

bool KCFontStyles::Has(const KCFontStyle& style) const noexcept {
  return (m_bits & Bit(style.GetKind())) != 0;
}

KCString KCFontStyles::ToString(const KCFontStyles& styles) {
  KCString text;
  for (const FontStyleName& entry : kFontStyleNames) {
    if (!styles.Has(KCFontStyle(entry.kind)))
      continue;
    if (!text.IsEmpty())
      text += ',';
    text += entry.name;
  }
  return text;
}

KCFontStyles KCFontStyles::FromString(const KCString& text) {
  KCFontStyles styles;
  for (KCString name : ncappkit_detail::SplitAt(text, ',')) {
    name.Trim();
    for (const FontStyleName& entry : kFontStyleNames) {
      if (name.EqualsNoCase(entry.name))
        styles.Add(KCFontStyle(entry.kind));
    }
  }
  return styles;
}
