// SPDX-License-Identifier: MIT
// nckit block: the address words the block parser decodes from one NC block.
//
//   nckit block 'N10 G01 Y0.25 F300 M03'
//   nckit block 'G17 G90 G00' --json
//   nckit block 'X5 ; X99'       # X 599, and a warning that ';' does not end the block
#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "NckitBlockWords.h"
#include "NckitCommand.h"
#include "NckitCommandLine.h"
#include "NckitJson.h"
#include "ncappkit/nc/KCC_ParseNc.h"

namespace {

// True when the decoder reads `letter` as an address: the getters answer differently for "<letter>1 X0"
// than for "X0". The X word is there because GetVCommand answers only for a block with X.
bool DecoderReadsLetter(char letter) {
  KCC_ParseNc with;
  KCC_ParseNc without;
  with.DecodeISOLine(std::string(1, letter) + "1 X0");
  without.DecodeISOLine("X0");
  return NckitGetterWords(with) != NckitGetterWords(without);
}

bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool IsLowerCase(char c) {
  return c >= 'a' && c <= 'z';
}

// The letters A to Z and a to z that the decoder reads as addresses, asked of the decoder once.
const std::string& AddressLetters() {
  static const std::string letters = [] {
    std::string read;
    for (const char* range : {"AZ", "az"}) {
      for (char c = range[0]; c <= range[1]; ++c) {
        if (DecoderReadsLetter(c))
          read += c;
      }
    }
    return read;
  }();
  return letters;
}

bool IsAddressLetter(char c) {
  return AddressLetters().find(c) != std::string::npos;
}

// "Z, H".
std::string ListLetters(const std::string& letters) {
  std::string text;
  for (char c : letters)
    text += (text.empty() ? "" : ", ") + std::string(1, c);
  return text;
}

// One warning per kind of text that changes how the decoder reads the words of `block`: a ';' (no comment
// for the decoder), lower-case letters and upper-case letters it does not read. Text in round brackets is
// skipped, as the decoder skips it.
void WarnAboutMisreadText(const std::string& block, std::ostream& err) {
  bool semicolon = false;
  std::string lowerCase;
  std::string unread;
  for (std::size_t i = 0; i < block.size(); ++i) {
    const char c = block[i];
    if (c == '(') {
      i = block.find(')', i + 1);
      if (i == std::string::npos)
        break;
      continue;
    }
    semicolon = semicolon || c == ';';
    if (!IsLetter(c) || IsAddressLetter(c))
      continue;
    std::string& into = IsLowerCase(c) ? lowerCase : unread;
    if (into.find(c) == std::string::npos)
      into += c;
  }
  if (semicolon) {
    err << "nckit block: warning: ';' does not end the block: the decoder reads on past it, and a letter "
           "repeated after it continues its word (X5 ; X99 reads as X 599); put comments in round brackets\n";
  }
  if (!lowerCase.empty()) {
    err << "nckit block: warning: lower-case letters are not decoded: " << ListLetters(lowerCase)
        << " (each ends the word before it, and its number is skipped)\n";
  }
  if (!unread.empty()) {
    err << "nckit block: warning: letters the decoder does not read: " << ListLetters(unread)
        << " (each ends the word before it, and its number is skipped)\n";
  }
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
      "A warning on stderr names text that changes how the words are read: a ';' (no comment "
      "here:\nX5 ; X99 reads as X 599), lower-case letters and letters the decoder does not read "
      "(comments in\nround brackets are skipped).\nExit code 1 when the block is malformed (a "
      "second '-' or '.' in a word, or under 2 characters)\nor holds no address word.\n");
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
  const std::vector<NckitWord> words = NckitBlockWords(parser, block);
  if (json) {
    out << "{\"block\": " << JsonString(block) << ", \"complete\": " << (complete ? "true" : "false")
        << ", \"words\": [";
    for (std::size_t k = 0; k < words.size(); ++k) {
      out << (k == 0 ? "" : ", ") << "{\"address\": " << JsonString(words[k].address)
          << ", \"value\": " << JsonNumber(words[k].value) << "}";
    }
    out << "]}\n";
  } else {
    for (const NckitWord& w : words)
      out << w.address << ' ' << w.value << '\n';
  }
  WarnAboutMisreadText(block, err);
  if (!complete) {
    err << "nckit block: malformed block (a word with a second '-' or '.', or fewer than 2 characters)\n";
    return kNckitProblem;
  }
  if (words.empty()) {
    std::string upperCase;
    for (char c : AddressLetters())
      upperCase += IsLowerCase(c) ? "" : " " + std::string(1, c);
    err << "nckit block: no address words found (addresses are the letters" << upperCase
        << ", each followed directly by its number)\n";
    return kNckitProblem;
  }
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(block, "decode one NC block into its address words", RunBlock);
