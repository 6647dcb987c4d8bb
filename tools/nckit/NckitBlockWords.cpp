// SPDX-License-Identifier: MIT
// The decoded words of a block, shared by `nckit block` and the decoder's table test.
#include "NckitBlockWords.h"

#include <algorithm>

namespace {

std::string Real(double v) {
  KCString text(v, -1, false);
  text.CleanDoubleString();
  return text.str();
}

// True when the block holds a V word as the parser reads one: a V outside a comment followed directly by a
// numeric character. The parser's V getter answers for the X word, so this tells whether V itself is there.
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

bool operator==(const NckitWord& a, const NckitWord& b) {
  return a.address == b.address && a.value == b.value;
}

bool operator!=(const NckitWord& a, const NckitWord& b) {
  return !(a == b);
}

std::vector<NckitWord> NckitGetterWords(const KCC_ParseNc& p) {
  std::vector<NckitWord> words;
  int i = 0;
  double d = 0.0;
  auto real = [&](const char* address, bool present) {
    if (present)
      words.push_back({address, Real(d)});
  };
  auto integer = [&](const char* address, bool present) {
    if (present)
      words.push_back({address, std::to_string(i)});
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
  real("V", p.GetVCommand(d));
  real("X", p.GetXCommand(d));
  real("Y", p.GetYCommand(d));
  return words;
}

std::vector<NckitWord> NckitBlockWords(const KCC_ParseNc& p, const std::string& block) {
  std::vector<NckitWord> words = NckitGetterWords(p);
  if (!HasVWord(block)) {
    words.erase(
        std::remove_if(words.begin(), words.end(), [](const NckitWord& w) { return w.address == "V"; }),
        words.end());
  }
  return words;
}
