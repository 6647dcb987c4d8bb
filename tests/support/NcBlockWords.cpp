// SPDX-License-Identifier: MIT
#include "support/NcBlockWords.h"

namespace {

std::string Real(double value) {
  KCString text(value, -1, false);
  text.CleanDoubleString();
  return text.str();
}

// True when `block` holds a V word as the parser reads one: a V outside round brackets followed directly by
// a '-', a '.' or a digit.
bool HasVWord(const std::string& block) {
  bool comment = false;
  for (std::size_t i = 0; i < block.size(); ++i) {
    const char c = block[i];
    if (comment) {
      comment = c != ')';
    } else if (c == '(') {
      comment = true;
    } else if (c == 'V' && i + 1 < block.size()) {
      const char next = block[i + 1];
      if (next == '-' || next == '.' || (next >= '0' && next <= '9'))
        return true;
    }
  }
  return false;
}

}  // namespace

std::string NcBlockWords(const KCC_ParseNc& p, const std::string& block) {
  std::string text;
  int i = 0;
  double d = 0.0;
  auto real = [&](const char* address, bool present) {
    if (present)
      text += std::string(address) + " " + Real(d) + "\n";
  };
  auto integer = [&](const char* address, bool present) {
    if (present)
      text += std::string(address) + " " + std::to_string(i) + "\n";
  };
  real("A", p.GetACommand(d));
  real("B", p.GetBCommand(d));
  real("C", p.GetCCommand(d));
  real("D", p.GetDCommand(d));
  integer("E", p.GetECommand(i));
  integer("F", p.GetFCommand(i));
  real("G", p.GetGprimCommand(d));
  real("G(2nd)", p.GetGsecundCommand(d));
  real("I", p.GetICommand(d));
  real("J", p.GetJCommand(d));
  integer("K", p.GetKCommand(i));
  integer("L", p.GetLCommand(i));
  integer("M", p.GetMprimCommand(i));
  integer("M(2nd)", p.GetMsecCommand(i));
  integer("N", p.GetNCommand(i));
  integer("P", p.GetPCommand(i));
  real("S", p.GetSCommand(d));
  real("R", p.GetRCommand(d));
  integer("T", p.GetTCommand(i));
  real("V", p.GetVCommand(d) && HasVWord(block));
  real("X", p.GetXCommand(d));
  real("Y", p.GetYCommand(d));
  return text;
}
