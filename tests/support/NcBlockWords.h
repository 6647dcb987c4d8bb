// SPDX-License-Identifier: MIT
// NcBlockWords: the words of the last block a KCC_ParseNc decoded, in the text form `nckit block` prints:
// one "ADDRESS VALUE" line per word, in the parser's address order A B C D E F G G(2nd) I J K L M M(2nd) N P
// S R T V X Y. Letters with a real value show it with its fraction (shortest exact text, no trailing zeros,
// "-0" as "0"), the others their integer. V is shown only when the block holds a V word itself, since the
// parser's V getter answers for X. The words come from the tool's own NckitBlockWords
// (tools/nckit/NckitBlockWords.h), so the tests compare against this form without running the tool.
//
//   KCC_ParseNc parser;
//   parser.DecodeISOLine("G17 G90 G00");
//   NcBlockWords(parser, "G17 G90 G00");   // "G 17\nG(2nd) 9000\n"
#pragma once

#include <string>

#include "ncappkit/nc/KCC_ParseNc.h"

/// The decoded words of `parser`, which last decoded `block`, one "ADDRESS VALUE\n" line each.
std::string NcBlockWords(const KCC_ParseNc& parser, const std::string& block);
