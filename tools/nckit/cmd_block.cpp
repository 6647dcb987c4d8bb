// SPDX-License-Identifier: MIT
// nckit block: the address words the block parser decodes from one NC block.
//
//   nckit block 'N10 G01 X-12.5 Y0.25 F300 M03'
//   nckit block 'G17 G90 G00' --json
#include <ostream>
#include <string>
#include <vector>

#include "NckitCommand.h"
#include "NckitCommandLine.h"
#include "NckitJson.h"
#include "ncappkit/nc/KCC_ParseNc.h"

namespace {

struct Word {
  std::string address;
  std::string value;
};

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

std::vector<Word> DecodedWords(const KCC_ParseNc& p, const std::string& block) {
  std::vector<Word> words;
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
  real("V", p.GetVCommand(d) && HasVWord(block));
  real("X", p.GetXCommand(d));
  real("Y", p.GetYCommand(d));
  return words;
}

// A decoded value as a JSON number; a value that overflowed to infinity (or NaN) has no JSON form.
std::string JsonNumber(const std::string& text) {
  return text.find_first_of("ni") != std::string::npos ? "null" : text;
}

int RunBlock(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> parts;
  bool json = false;
  NckitCommandLine cl(
      "block", "nckit block 'BLOCK' [--json]",
      "Decodes one NC block and writes its words, one per line, in the parser's address order:\n"
      "A B C D E F G G(2nd) I J K L M M(2nd) N P S R T V X Y. The first G and M of a block are "
      "the\nprimary words; every later G or M accumulates into the (2nd) word (G90 G01 G02: 102), "
      "as does a\nrepeated letter (X10 X20: 1020). Letters with a real value show it with its "
      "fraction; the others\nshow the integer. V is shown only when the block holds both X and V "
      "(the parser pairs them).\nSeveral arguments are joined with blanks into one block.\n"
      "Exit code 1 when the block is malformed (a second '-' or '.' in a word, or under 2 "
      "characters).\n");
  cl.Operands("BLOCK", parts);
  cl.Flag("--json", json, "write {\"complete\": bool, \"words\": [{\"address\": ..., \"value\": ...}]}");
  if (const auto stop = cl.Parse(args, out, err))
    return *stop;
  if (parts.empty())
    return cl.UsageError("expects a BLOCK", err);
  std::string block;
  for (const std::string& part : parts)
    block += (block.empty() ? "" : " ") + part;

  KCC_ParseNc parser;
  const bool complete = parser.DecodeISOLine(block);
  const std::vector<Word> words = DecodedWords(parser, block);
  if (json) {
    out << "{\"block\": " << JsonString(block) << ", \"complete\": " << (complete ? "true" : "false")
        << ", \"words\": [";
    for (std::size_t k = 0; k < words.size(); ++k) {
      out << (k == 0 ? "" : ", ") << "{\"address\": " << JsonString(words[k].address)
          << ", \"value\": " << JsonNumber(words[k].value) << "}";
    }
    out << "]}\n";
  } else {
    for (const Word& w : words)
      out << w.address << ' ' << w.value << '\n';
  }
  if (complete && words.empty()) {
    err << "nckit block: no address words found (addresses are the upper-case letters A to Y except H, O, Q, "
           "U and W, each followed directly by its number)\n";
  }
  if (!complete) {
    err << "nckit block: malformed block (a word with a second '-' or '.', or fewer than 2 characters)\n";
    return kNckitProblem;
  }
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(block, "decode one NC block into its address words", RunBlock);
