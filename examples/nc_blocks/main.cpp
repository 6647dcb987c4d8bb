// SPDX-License-Identifier: MIT
// example_nc_blocks: decode NC blocks into their address words, then rewrite a '#' parameter line.
//
//   example_nc_blocks
//
// Decoding takes a block apart; the getters hand out one word each and say whether the block had it.
// A parameter object binds one program line and rewrites it when its value changes.
#include <iostream>

#include "ncappkit/nc/CNcParameter.h"
#include "ncappkit/nc/KCC_ParseNc.h"

namespace {

void Decode(KCC_ParseNc& parser, const char* block) {
  std::cout << block << '\n';
  if (!parser.DecodeISOLine(block))
    std::cout << "  (decoding stopped early; the words before the fault are kept)\n";
  int n = 0;
  int g = 0;
  int m = 0;
  double x = 0.0;
  double y = 0.0;
  int f = 0;
  if (parser.GetNCommand(n))
    std::cout << "  N " << n << '\n';
  if (parser.GetGprimCommand(g))
    std::cout << "  G " << g << '\n';
  if (parser.GetXCommand(x))
    std::cout << "  X " << x << '\n';
  if (parser.GetYCommand(y))
    std::cout << "  Y " << y << '\n';
  if (parser.GetFCommand(f))
    std::cout << "  F " << f << "   (F is read as a whole number)\n";
  if (parser.GetMprimCommand(m))
    std::cout << "  M " << m << '\n';
}

}  // namespace

int main() {
  KCC_ParseNc parser;
  Decode(parser, "N10 G01 X-12.5 Y0.25 F300.5 M03");
  // A repeated letter continues the earlier word, also across a ';' comment: X5 ; X99 reads as X 599.
  Decode(parser, "N20 X5 ; X99");
  // Z is one of the letters the decoder does not read: the block decodes, but there is no getter for Z.
  Decode(parser, "N30 G00 Z50.");

  // A numbered parameter line: read it, then change its value. The rewritten line keeps its name part and
  // comment, without blanks in between.
  KCString line("#101 = -5.5 (DEPTH)");
  int number = 0;
  int whole = 0;
  double value = 0.0;
  if (parser.GetNcParameter(line, number, whole, value))
    std::cout << "parameter #" << number << " holds " << value << '\n';
  CNcParamDouble depth;
  depth.SetDigitsAfter(3);
  depth.SetParam(-7.25, &line);
  if (!depth.UpdateNcLine()) {
    std::cerr << "the line has no parameter form\n";
    return 1;
  }
  std::cout << "rewritten: " << line << '\n';
  return 0;
}
