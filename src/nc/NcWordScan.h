// SPDX-License-Identifier: MIT
// Internal helper of the tool-path interpreter: cuts one NC block into the words that motion needs.
//
// It differs from the block decoder KCC_ParseNc on purpose, because a motion interpreter needs every axis and
// must not merge words: every letter A-Z is an address (Z, Q, H, O, U and W included), a repeated letter is
// a second word (the caller decides what that means), a value may be a number, a parameter (#100, -#100), a
// bracketed expression ([#101 + 2*3]) or, after '=', a Siemens expression (Z=-R10, X=(R1+R2)/2), blanks
// between a letter and its value are allowed, names of two or more letters (IF, GOTO, CYCLE81, POCKET) are
// words of their own, ';' ends the block and parameter assignments (#100 = 5, R10 = 4.5) are recognised.
// Lower-case letters read as upper case. The scanner never allocates: word texts point into the line.
#pragma once

#include <cstddef>

namespace ncappkit_detail {

/// One word of a block, as NcWordScanner::Next gives it.
struct NcWord {
  enum Kind : unsigned char {
    kAddress,    ///< letter + value
    kName,       ///< a name of two or more characters ("IF", "CYCLE81"), with a value when '=' followed it
    kParamSet,   ///< #n = value (target in `target`)
    kRParamSet,  ///< R<n> = value (Siemens; target number in `param`)
    kStray,      ///< a character that starts no word (in `text`)
  };
  Kind kind = kAddress;
  char letter = 0;              ///< kAddress: the upper-case letter
  bool hasValue = false;        ///< a value follows (kAddress, kName with '=', assignments)
  bool hasNumber = false;       ///< the value is a plain number, in `number`
  bool equalsForm = false;      ///< the value followed '=' (Siemens form: '(' brackets, R<n> parameters)
  double number = 0.0;          ///< the plain number
  const char* text = nullptr;   ///< kName: the name; kStray: the character; kParamSet: the target "#..."
  std::size_t length = 0;       ///< length of `text`
  const char* value = nullptr;  ///< the value text when it is no plain number
  std::size_t valueLength = 0;  ///< length of `value`
  long param = 0;               ///< kRParamSet: the parameter number
};

/// Cuts one block into words, left to right; see the head of this file for what it reads.
class NcWordScanner {
 public:
  /// A scanner over `length` characters at `text` (need not be NUL-terminated).
  NcWordScanner(const char* text, std::size_t length) noexcept : m_p(text), m_n(length) {}

  /// The next word; false at the end of the block (end of text, ';', a program-number or '%' line).
  bool Next(NcWord& word) noexcept;
  /// True when the block starts with '/' (block delete), known once the first word was read.
  bool IsDeletable() const noexcept { return m_deletable; }
  /// Skip the rest of the block.
  void Stop() noexcept { m_i = m_n; }

  /// A word of a plain block (see ReadPlainBlock).
  struct PlainWord {
    char letter;    ///< the upper-case address letter
    double number;  ///< its value
  };
  /// Most words ReadPlainBlock takes from one block.
  static constexpr int kMaxPlainWords = 32;
  /// Reads a block made only of plain address words and comments, the form nearly every block of a generated
  /// program has ("N20 G01 Y3 (ROUGH)": a letter directly followed by a plain number, words apart or
  /// separated by blanks, comments in round brackets or after ';'), straight into `words` (block numbers left
  /// out) and returns how many there are: the same words, with the same values, that Next would give, but
  /// without its work per word. Returns -1 as soon as the block holds anything else (a name, a parameter, an
  /// expression, '=', a letter without a number, a program-number or '%' line, block delete, more than
  /// kMaxPlainWords words): such a block is to be read with Next.
  static int ReadPlainBlock(const char* text, std::size_t length, PlainWord* words) noexcept;

  /// Reads a plain number ([+-] digits [. digits], or [+-] . digits) at `text`; true and `value` and `used`
  /// (characters read) set when there is one.
  static bool ReadNumber(const char* text, std::size_t length, double& value, std::size_t& used) noexcept;

 private:
  void SkipBlanks() noexcept;
  std::size_t BracketEnd(std::size_t from, char open, char close) const noexcept;
  void ScanEqualsValue(bool fanucForm, NcWord& word) noexcept;
  void ScanAddressValue(NcWord& word) noexcept;

  const char* m_p;
  std::size_t m_n;
  std::size_t m_i = 0;
  bool m_started = false;  // a word (or the block-delete slash) was read
  bool m_deletable = false;
};

}  // namespace ncappkit_detail
