// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCColor.h"

#include <algorithm>
#include <vector>

#include "foundation/KCTextSplit.h"

namespace {

int ClampChannel(int value) noexcept {
  return std::clamp(value, 0, 255);
}

}  // namespace

KCColor::KCColor(int red, int green, int blue, int alpha)
    : m_red(ClampChannel(red)),
      m_green(ClampChannel(green)),
      m_blue(ClampChannel(blue)),
      m_alpha(ClampChannel(alpha)) {}

KCColor::~KCColor() = default;

KCString KCColor::ToString(const KCColor& color) {
  return KCString(color.m_red, false) + "," + KCString(color.m_green, false) + "," +
         KCString(color.m_blue, false) + "," + KCString(color.m_alpha, false);
}

bool KCColor::FromString(const KCString& text, KCColor& color) {
  // Every comma-separated part must be a whole integer 0..255 (blanks around it allowed).
  std::vector<int> channels;
  for (const KCString& part : ncappkit_detail::SplitAt(text, ',')) {
    const int value = part.AsInt(-1, true);
    if (value < 0 || value > 255)
      return false;
    channels.push_back(value);
  }
  if (channels.size() != 3 && channels.size() != 4)
    return false;
  color = KCColor(channels[0], channels[1], channels[2], channels.size() == 4 ? channels[3] : 255);
  return true;
}

#define NCAPPKIT_NAMED_COLOR_VALUE(Name, r, g, b) \
  Name::Name(int alpha) : KCColor(r, g, b, alpha) {}

NCAPPKIT_NAMED_COLOR_VALUE(KCColorAqua, 0, 255, 255)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorBlack, 0, 0, 0)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorBlue, 0, 0, 255)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorDeepSkyBlue, 0, 191, 255)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorFuchsia, 255, 0, 255)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorGray, 128, 128, 128)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorGreen, 0, 128, 0)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorLime, 0, 255, 0)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorMaroon, 128, 0, 0)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorNavy, 0, 0, 128)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorOlive, 128, 128, 0)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorOrange, 255, 165, 0)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorPink, 255, 192, 203)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorPurple, 128, 0, 128)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorRed, 255, 0, 0)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorSilver, 192, 192, 192)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorTeal, 0, 128, 128)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorWhite, 255, 255, 255)
NCAPPKIT_NAMED_COLOR_VALUE(KCColorYellow, 255, 255, 0)

#undef NCAPPKIT_NAMED_COLOR_VALUE
