// SPDX-License-Identifier: MIT
// Internal helper of the foundation sources: UTF-8 decoding and the XML 1.0 character and name classes, the
// one home of these scans for the XML writer (KCDocument::ToXml in KCParagraph.cpp) and the XML reader
// (KCXmlReader.cpp).
//
// Two name classes exist on purpose. The writer keeps only the "portable" letters beyond ASCII (what the
// older XML 1.0 name rules, still applied by expat, MSXML and .NET, accept as well), so that every reader
// takes its names. The reader accepts what the current XML 1.0 (fifth edition) allows, as libxml2 does, so
// that a name a person or another tool wrote is not refused; the portable class is a subset of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ncappkit_detail {

/// Decodes the UTF-8 sequence at `i`. On success gives its code point and advances `i` past it; on an
/// invalid sequence (bad lead or continuation byte, overlong form, surrogate, beyond U+10FFFF, cut off at
/// the end) returns false and leaves `i` alone.
inline bool DecodeUtf8(std::string_view text, std::size_t& i, std::uint32_t& codePoint) noexcept {
  const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[k]); };
  const unsigned char lead = byte(i);
  if (lead < 0x80) {
    codePoint = lead;
    ++i;
    return true;
  }
  std::size_t length = 0;
  std::uint32_t value = 0;
  std::uint32_t minimum = 0;
  if ((lead & 0xE0) == 0xC0) {
    length = 2;
    value = lead & 0x1Fu;
    minimum = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    length = 3;
    value = lead & 0x0Fu;
    minimum = 0x800;
  } else if ((lead & 0xF8) == 0xF0) {
    length = 4;
    value = lead & 0x07u;
    minimum = 0x10000;
  } else {
    return false;
  }
  if (i + length > text.size())
    return false;
  for (std::size_t k = 1; k < length; ++k) {
    const unsigned char next = byte(i + k);
    if ((next & 0xC0) != 0x80)
      return false;
    value = (value << 6) | (next & 0x3Fu);
  }
  if (value < minimum || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
    return false;
  codePoint = value;
  i += length;
  return true;
}

/// Appends the UTF-8 form of `codePoint` (at most U+10FFFF, no surrogate) to `out`.
template <typename String>
void AppendUtf8(String& out, std::uint32_t codePoint) {
  if (codePoint < 0x80) {
    out += static_cast<char>(codePoint);
  } else if (codePoint < 0x800) {
    out += static_cast<char>(0xC0 | (codePoint >> 6));
    out += static_cast<char>(0x80 | (codePoint & 0x3F));
  } else if (codePoint < 0x10000) {
    out += static_cast<char>(0xE0 | (codePoint >> 12));
    out += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (codePoint & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (codePoint >> 18));
    out += static_cast<char>(0x80 | ((codePoint >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (codePoint & 0x3F));
  }
}

/// True for a character XML 1.0 allows in a document (the production Char).
constexpr bool IsXmlChar(std::uint32_t c) noexcept {
  return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFFFD) ||
         (c >= 0x10000 && c <= 0x10FFFF);
}

/// True for the XML white space characters: space, tab, line feed, carriage return.
constexpr bool IsXmlSpace(char c) noexcept {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// Letters beyond ASCII that both the current XML 1.0 name rules and the older ones accept anywhere in a
/// name: the letters of Latin-1, Latin Extended-A, Greek and Cyrillic.
constexpr bool IsPortableNonAsciiLetter(std::uint32_t c) noexcept {
  return (c >= 0xC0 && c <= 0xD6) || (c >= 0xD8 && c <= 0xF6) || (c >= 0xF8 && c <= 0x131) ||
         (c >= 0x134 && c <= 0x13E) || (c >= 0x141 && c <= 0x148) || (c >= 0x14A && c <= 0x17E) ||
         c == 0x386 || (c >= 0x388 && c <= 0x38A) || c == 0x38C || (c >= 0x38E && c <= 0x3A1) ||
         (c >= 0x3A3 && c <= 0x3CE) || (c >= 0x401 && c <= 0x40C) || (c >= 0x40E && c <= 0x44F) ||
         (c >= 0x451 && c <= 0x45C) || (c >= 0x45E && c <= 0x481);
}

/// The writer's first characters of a name: ':', ASCII letters, '_' and the portable letters.
constexpr bool IsPortableNameStartChar(std::uint32_t c) noexcept {
  return c == ':' || (c >= 'A' && c <= 'Z') || c == '_' || (c >= 'a' && c <= 'z') ||
         IsPortableNonAsciiLetter(c);
}

/// The writer's further characters of a name: also '-', '.', digits, the middle dot and the combining marks
/// U+0300..U+0345.
constexpr bool IsPortableNameChar(std::uint32_t c) noexcept {
  return IsPortableNameStartChar(c) || c == '-' || c == '.' || (c >= '0' && c <= '9') || c == 0xB7 ||
         (c >= 0x300 && c <= 0x345);
}

/// NameStartChar of XML 1.0 (fifth edition): what the reader accepts as the first character of a name.
constexpr bool IsXmlNameStartChar(std::uint32_t c) noexcept {
  return c == ':' || (c >= 'A' && c <= 'Z') || c == '_' || (c >= 'a' && c <= 'z') ||
         (c >= 0xC0 && c <= 0xD6) || (c >= 0xD8 && c <= 0xF6) || (c >= 0xF8 && c <= 0x2FF) ||
         (c >= 0x370 && c <= 0x37D) || (c >= 0x37F && c <= 0x1FFF) || (c >= 0x200C && c <= 0x200D) ||
         (c >= 0x2070 && c <= 0x218F) || (c >= 0x2C00 && c <= 0x2FEF) || (c >= 0x3001 && c <= 0xD7FF) ||
         (c >= 0xF900 && c <= 0xFDCF) || (c >= 0xFDF0 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0xEFFFF);
}

/// NameChar of XML 1.0 (fifth edition): what the reader accepts after the first character of a name.
constexpr bool IsXmlNameChar(std::uint32_t c) noexcept {
  return IsXmlNameStartChar(c) || c == '-' || c == '.' || (c >= '0' && c <= '9') || c == 0xB7 ||
         (c >= 0x300 && c <= 0x36F) || (c >= 0x203F && c <= 0x2040);
}

}  // namespace ncappkit_detail
