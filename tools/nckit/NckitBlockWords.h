// SPDX-License-Identifier: MIT
// The address words of the last block a KCC_ParseNc decoded, as `nckit block` shows them: one word per
// address the getters answer for, in the parser's address order A B C D E F G G(2nd) I J K L M M(2nd) N P S
// R T V X Y. Letters with a real value show it with its fraction (shortest exact text, no trailing zeros),
// the others their integer. V is shown only when the block holds a V word itself, since the parser's V getter
// answers for X. The tests build their expected words with the same code.
//
//   KCC_ParseNc parser;
//   parser.DecodeISOLine("G17 G90 G00");
//   NckitBlockWords(parser, "G17 G90 G00");   // {"G", "17"}, {"G(2nd)", "9000"}
#pragma once

#include <string>
#include <vector>

#include "ncappkit/nc/KCC_ParseNc.h"

/// One decoded word: its address ("X", "G(2nd)") and its value as text.
struct NckitWord {
  std::string address;
  std::string value;
};

/// Equal address and value.
bool operator==(const NckitWord& a, const NckitWord& b);
/// Not equal.
bool operator!=(const NckitWord& a, const NckitWord& b);

/// Every getter's answer for the block `parser` last decoded, V as GetVCommand gives it (whenever the block
/// had an X word).
std::vector<NckitWord> NckitGetterWords(const KCC_ParseNc& parser);

/// The words of `block`, which `parser` last decoded, as shown: NckitGetterWords, V only when the block
/// holds a V word (a V outside round brackets directly followed by '-', '.' or a digit).
std::vector<NckitWord> NckitBlockWords(const KCC_ParseNc& parser, const std::string& block);
