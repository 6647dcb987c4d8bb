// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCPenStyle.h"

namespace {

struct PenStyleName {
  KCPenStyle::Kind kind;
  const char* name;
};

constexpr PenStyleName kPenStyleNames[] = {
    {KCPenStyle::Kind::Solid, "Solid"},
    {KCPenStyle::Kind::Dash, "Dash"},
    {KCPenStyle::Kind::Dot, "Dot"},
    {KCPenStyle::Kind::DashDot, "DashDot"},
    {KCPenStyle::Kind::DashDotDot, "DashDotDot"},
};

}  // namespace

KCPenStyle::~KCPenStyle() = default;

KCString KCPenStyle::ToString(const KCPenStyle& style) {
  for (const PenStyleName& entry : kPenStyleNames) {
    if (entry.kind == style.m_kind)
      return KCString(entry.name);
  }
  return KCString("Solid");
}

KCPenStyle KCPenStyle::FromString(const KCString& text) {
  KCString name(text);
  name.Trim();
  for (const PenStyleName& entry : kPenStyleNames) {
    if (name.EqualsNoCase(entry.name))
      return KCPenStyle(entry.kind);
  }
  return KCPenStyle();
}
