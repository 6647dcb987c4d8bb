// SPDX-License-Identifier: MIT
// UTF-8 in nckit's output: JSON escapes, table columns and calc's column numbers read a text as UTF-8
// characters where the bytes are well-formed UTF-8 and as one character per byte elsewhere.
//
//   unsigned codePoint = 0;
//   std::size_t n = Utf8Sequence("\xC3\x89", 0, codePoint);  // 2, codePoint 0xC9
//   DisplayedLength("CAF\xC3\x89");                            // 4
#pragma once

#include <cstddef>
#include <string>

/// Length of the well-formed UTF-8 sequence that starts at text[i] (1 to 4 bytes; ASCII is 1) with its code
/// point; 0 when the bytes there are none (a stray continuation byte, an overlong form, a surrogate, a
/// sequence cut short).
std::size_t Utf8Sequence(const std::string& text, std::size_t i, unsigned& codePoint);

/// Number of bytes of the character at text[i]: its UTF-8 sequence, or 1 for a byte that starts none.
std::size_t CharacterLength(const std::string& text, std::size_t i);

/// Number of characters a terminal shows for `text`: one per UTF-8 character, one per other byte.
std::size_t DisplayedLength(const std::string& text);
