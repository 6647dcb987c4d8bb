// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCBrushStyle.h"

KCBrushStyle::~KCBrushStyle() = default;

KCString KCBrushStyle::ToString(const KCBrushStyle& style) {
  return KCString(style.m_kind == Kind::Clear ? "Clear" : "Solid");
}

KCBrushStyle KCBrushStyle::FromString(const KCString& text) {
  KCString name(text);
  name.Trim();
  return KCBrushStyle(name.EqualsNoCase("Clear") ? Kind::Clear : Kind::Solid);
}
