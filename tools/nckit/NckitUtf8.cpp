// SPDX-License-Identifier: MIT
// UTF-8 characters in nckit's output.
#include "NckitUtf8.h"

std::size_t Utf8Sequence(const std::string& text, std::size_t i, unsigned& codePoint) {
  const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[k]); };
  const unsigned lead = byte(i);
  std::size_t length = 0;
  unsigned min = 0;
  if (lead < 0x80) {
    codePoint = lead;
    return 1;
  }
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
    codePoint = lead & 0x1F;
    min = 0x80;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    codePoint = lead & 0x0F;
    min = 0x800;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    codePoint = lead & 0x07;
    min = 0x10000;
  } else {
    return 0;
  }
  if (i + length > text.size())
    return 0;
  for (std::size_t k = 1; k < length; ++k) {
    if ((byte(i + k) & 0xC0) != 0x80)
      return 0;
    codePoint = (codePoint << 6) | (byte(i + k) & 0x3F);
  }
  if (codePoint < min || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF))
    return 0;
  return length;
}

std::size_t CharacterLength(const std::string& text, std::size_t i) {
  unsigned codePoint = 0;
  const std::size_t length = Utf8Sequence(text, i, codePoint);
  return length == 0 ? 1 : length;
}

std::size_t DisplayedLength(const std::string& text) {
  std::size_t characters = 0;
  for (std::size_t i = 0; i < text.size(); i += CharacterLength(text, i))
    ++characters;
  return characters;
}
