// SPDX-License-Identifier: MIT
// KCColor: an RGBA colour value, and the named colours of the class library.
//
// Channels are 0..255. Named colours carry the usual web colour values; their one int argument is the alpha
// (255 = opaque), so `KCColorRed(255)` is opaque red and `KCColorRed(128)` half-transparent red.
//
//   KCColor c(255, 165, 0);            // orange, opaque
//   bool same = (c == KCColorOrange(255));
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// An RGBA colour value, channels 0..255.
class NCAPPKIT_EXPORT KCColor {
 public:
  /// Opaque black.
  KCColor() = default;
  /// Colour from its channels; each is clamped to 0..255.
  KCColor(int red, int green, int blue, int alpha = 255);
  /// The same four channels.
  KCColor(const KCColor&) = default;
  /// Take the other colour's four channels; returns *this.
  KCColor& operator=(const KCColor&) = default;
  virtual ~KCColor();

  /// Red channel, 0..255.
  int GetRed() const noexcept { return m_red; }
  /// Green channel, 0..255.
  int GetGreen() const noexcept { return m_green; }
  /// Blue channel, 0..255.
  int GetBlue() const noexcept { return m_blue; }
  /// Alpha channel, 0 (transparent) .. 255 (opaque).
  int GetAlpha() const noexcept { return m_alpha; }

  /// Text form "r,g,b,a" in decimal, e.g. "255,165,0,255".
  static KCString ToString(const KCColor& color);
  /// Reads the text form of ToString; gives false and leaves `color` unchanged when the text is not
  /// three or four comma-separated integers 0..255.
  static bool FromString(const KCString& text, KCColor& color);

  /// True when all four channels are equal.
  friend bool operator==(const KCColor& a, const KCColor& b) noexcept {
    return a.m_red == b.m_red && a.m_green == b.m_green && a.m_blue == b.m_blue && a.m_alpha == b.m_alpha;
  }
  /// True when any channel differs.
  friend bool operator!=(const KCColor& a, const KCColor& b) noexcept { return !(a == b); }

 private:
  int m_red = 0;
  int m_green = 0;
  int m_blue = 0;
  int m_alpha = 255;
};

#define NCAPPKIT_NAMED_COLOR(Name)                                                                        \
  /** A named KCColor with the usual web colour value (red, green, blue beside its line in KCColor.h). */ \
  class NCAPPKIT_EXPORT Name : public KCColor {                                                           \
   public:                                                                                                \
    /** The named colour with the given alpha. */                                                         \
    explicit Name(int alpha = 255);                                                                       \
  };

NCAPPKIT_NAMED_COLOR(KCColorAqua)         // 0, 255, 255
NCAPPKIT_NAMED_COLOR(KCColorBlack)        // 0, 0, 0
NCAPPKIT_NAMED_COLOR(KCColorBlue)         // 0, 0, 255
NCAPPKIT_NAMED_COLOR(KCColorDeepSkyBlue)  // 0, 191, 255
NCAPPKIT_NAMED_COLOR(KCColorFuchsia)      // 255, 0, 255
NCAPPKIT_NAMED_COLOR(KCColorGray)         // 128, 128, 128
NCAPPKIT_NAMED_COLOR(KCColorGreen)        // 0, 128, 0
NCAPPKIT_NAMED_COLOR(KCColorLime)         // 0, 255, 0
NCAPPKIT_NAMED_COLOR(KCColorMaroon)       // 128, 0, 0
NCAPPKIT_NAMED_COLOR(KCColorNavy)         // 0, 0, 128
NCAPPKIT_NAMED_COLOR(KCColorOlive)        // 128, 128, 0
NCAPPKIT_NAMED_COLOR(KCColorOrange)       // 255, 165, 0
NCAPPKIT_NAMED_COLOR(KCColorPink)         // 255, 192, 203
NCAPPKIT_NAMED_COLOR(KCColorPurple)       // 128, 0, 128
NCAPPKIT_NAMED_COLOR(KCColorRed)          // 255, 0, 0
NCAPPKIT_NAMED_COLOR(KCColorSilver)       // 192, 192, 192
NCAPPKIT_NAMED_COLOR(KCColorTeal)         // 0, 128, 128
NCAPPKIT_NAMED_COLOR(KCColorWhite)        // 255, 255, 255
NCAPPKIT_NAMED_COLOR(KCColorYellow)       // 255, 255, 0

#undef NCAPPKIT_NAMED_COLOR
