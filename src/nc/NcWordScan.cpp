// SPDX-License-Identifier: MIT
// NcWordScanner: the word scanner of the tool-path interpreter.
#include "nc/NcWordScan.h"

#include <cstdint>

namespace ncappkit_detail {

namespace {

bool IsDigitChar(char c) noexcept {
  return c >= '0' && c <= '9';
}
bool IsLetterChar(char c) noexcept {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
bool IsNameChar(char c) noexcept {
  return IsLetterChar(c) || IsDigitChar(c) || c == '_';
}
// Blanks, and the control characters a line may carry (CR, form feed, ...).
bool IsSpaceChar(char c) noexcept {
  return c == ' ' || (static_cast<unsigned char>(c) < 0x20 && c != '\0');
}
char Upper(char c) noexcept {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}
bool IsOperatorChar(char c) noexcept {
  return c == '+' || c == '-' || c == '*' || c == '/' || c == '=';
}

// Index just past the comment that starts with the '(' at `open`: a comment ends at its first ')' (no
// nesting), as the file splitter reads it, or runs to the end of the block.
std::size_t CommentEnd(const char* text, std::size_t length, std::size_t open) noexcept {
  std::size_t k = open + 1;
  while (k < length && text[k] != ')')
    ++k;
  return k < length ? k + 1 : length;
}

// Powers of ten that a double holds exactly.
constexpr double kPow10[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                             1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

}  // namespace

bool NcWordScanner::ReadNumber(const char* text, std::size_t length, double& value,
                               std::size_t& used) noexcept {
  std::size_t i = 0;
  bool negative = false;
  if (i < length && (text[i] == '+' || text[i] == '-')) {
    negative = text[i] == '-';
    ++i;
  }
  // Up to 19 significant digits are kept in an integer and divided by an exact power of ten once, so that
  // the usual NC numbers (a few digits and decimals) read exactly as a correctly rounded double.
  std::uint64_t mantissa = 0;
  int digits = 0;
  int scale = 0;  // decimals kept in the mantissa, negative when integer digits were dropped
  bool any = false;
  for (; i < length && IsDigitChar(text[i]); ++i) {
    any = true;
    if (digits < 19) {
      mantissa = mantissa * 10 + static_cast<std::uint64_t>(text[i] - '0');
      if (mantissa != 0)
        ++digits;
    } else {
      --scale;
    }
  }
  if (i < length && text[i] == '.') {
    ++i;
    for (; i < length && IsDigitChar(text[i]); ++i) {
      any = true;
      if (digits < 19) {
        mantissa = mantissa * 10 + static_cast<std::uint64_t>(text[i] - '0');
        if (mantissa != 0)
          ++digits;
        ++scale;
      }
    }
  }
  if (!any)
    return false;
  double v = static_cast<double>(mantissa);
  if (scale > 0)
    v = scale <= 22 ? v / kPow10[scale] : 0.0;
  else if (scale < 0)
    v = -scale <= 22 ? v * kPow10[-scale] : 1e308;
  value = negative ? -v : v;
  used = i;
  return true;
}

int NcWordScanner::ReadPlainBlock(const char* text, std::size_t length, PlainWord* words) noexcept {
  int count = 0;
  bool started = false;  // a word was read: an O from now on is an address, not a program number
  std::size_t i = 0;
  while (i < length) {
    const char c = text[i];
    if (c == ' ' || c == '\t') {
      ++i;
      continue;
    }
    if (c == '(') {
      i = CommentEnd(text, length, i);
      continue;
    }
    if (c == ';')
      break;  // the rest is a comment
    // A word: a letter, then a number at once; a second letter would make a name. A program-number line
    // ("O1000") makes no words.
    if (!IsLetterChar(c) || i + 1 >= length || (!started && (c == 'O' || c == 'o')))
      return -1;
    started = true;
    const char letter = Upper(c);
    ++i;
    if (letter == 'N' && IsDigitChar(text[i])) {
      while (i < length && IsDigitChar(text[i]))
        ++i;  // the block number
    } else {
      double number = 0.0;
      std::size_t used = 0;
      if (count == kMaxPlainWords || !ReadNumber(text + i, length - i, number, used))
        return -1;
      i += used;
      words[count++] = PlainWord{letter, number};
    }
    // The word ends at a blank, the next letter, a comment or the end of the block; "R10 = 5" fails at '='.
    if (i < length && text[i] != ' ' && text[i] != '\t' && text[i] != '(' && text[i] != ';' &&
        !IsLetterChar(text[i]))
      return -1;
  }
  return count;
}

void NcWordScanner::SkipBlanks() noexcept {
  while (m_i < m_n && IsSpaceChar(m_p[m_i]))
    ++m_i;
}

// Index just past the `close` that matches the `open` at `from` (nesting counted); m_n when unmatched.
std::size_t NcWordScanner::BracketEnd(std::size_t from, char open, char close) const noexcept {
  int depth = 0;
  for (std::size_t i = from; i < m_n; ++i) {
    if (m_p[i] == open) {
      ++depth;
    } else if (m_p[i] == close) {
      if (--depth == 0)
        return i + 1;
    }
  }
  return m_n;
}

// The value after '=' (m_i stands just after it). It runs to the end of the block or to ';', and stops
// before a blank outside brackets that is followed by a letter, unless an operator stands before that blank
// ("R1 = R2 + R3" is one value, "X=5 Y=6" two words). In the Fanuc form (#n = ...) '(' starts a comment and
// ends the value; in the Siemens form '(' and ')' are brackets.
void NcWordScanner::ScanEqualsValue(bool fanucForm, NcWord& word) noexcept {
  SkipBlanks();
  const std::size_t start = m_i;
  int depth = 0;
  std::size_t end = m_i;
  char lastNonBlank = '=';
  while (m_i < m_n) {
    const char c = m_p[m_i];
    if (c == ';' || c == '\0')
      break;
    if (c == '(' && fanucForm)
      break;
    if (c == '(' || c == '[') {
      ++depth;
    } else if ((c == ')' || c == ']') && depth > 0) {
      --depth;
    } else if (IsSpaceChar(c) && depth == 0) {
      std::size_t k = m_i;
      while (k < m_n && IsSpaceChar(m_p[k]))
        ++k;
      if (k < m_n && IsLetterChar(m_p[k]) && !IsOperatorChar(lastNonBlank))
        break;
      m_i = k;
      continue;
    }
    if (!IsSpaceChar(c))
      lastNonBlank = c;
    ++m_i;
    end = m_i;
  }
  word.hasValue = end > start;
  word.equalsForm = !fanucForm;
  std::size_t used = 0;
  if (word.hasValue && ReadNumber(m_p + start, end - start, word.number, used) && used == end - start) {
    word.hasNumber = true;
  } else {
    word.value = m_p + start;
    word.valueLength = end - start;
  }
}

// The value of an address letter (m_i stands just after the letter).
void NcWordScanner::ScanAddressValue(NcWord& word) noexcept {
  SkipBlanks();
  if (m_i >= m_n)
    return;
  const char c = m_p[m_i];
  if (c == '=') {
    ++m_i;
    ScanEqualsValue(false, word);
    return;
  }
  std::size_t used = 0;
  if (ReadNumber(m_p + m_i, m_n - m_i, word.number, used)) {
    word.hasValue = true;
    word.hasNumber = true;
    m_i += used;
    return;
  }
  // A parameter or a bracketed expression, with an optional sign in front.
  std::size_t k = m_i;
  if (c == '+' || c == '-')
    ++k;
  while (k < m_n && IsSpaceChar(m_p[k]))
    ++k;
  std::size_t end = 0;
  if (k < m_n && m_p[k] == '[') {
    end = BracketEnd(k, '[', ']');
  } else if (k < m_n && m_p[k] == '#') {
    ++k;
    while (k < m_n && IsSpaceChar(m_p[k]))
      ++k;
    if (k < m_n && m_p[k] == '[') {
      end = BracketEnd(k, '[', ']');
    } else {
      end = k;
      while (end < m_n && IsDigitChar(m_p[end]))
        ++end;
    }
  } else {
    return;  // no value: the letter stands alone
  }
  word.hasValue = true;
  word.value = m_p + m_i;
  word.valueLength = end - m_i;
  m_i = end;
}

bool NcWordScanner::Next(NcWord& word) noexcept {
  word = NcWord();
  for (;;) {
    SkipBlanks();
    if (m_i >= m_n)
      return false;
    const char c = m_p[m_i];
    if (c == ';' || c == '\0') {
      m_i = m_n;
      return false;
    }
    if (c == '(') {
      m_i = CommentEnd(m_p, m_n, m_i);
      continue;
    }
    if (!m_started) {
      if (c == '\xEF' && m_i + 2 < m_n && m_p[m_i + 1] == '\xBB' && m_p[m_i + 2] == '\xBF') {
        m_i += 3;  // the UTF-8 byte order mark at the start of a file
        continue;
      }
      if (c == '/') {
        m_started = true;
        m_deletable = true;
        ++m_i;
        while (m_i < m_n && IsDigitChar(m_p[m_i]))
          ++m_i;  // "/2": a block-delete level
        continue;
      }
      if (c == '%' || (c == ':' && m_i + 1 < m_n && IsDigitChar(m_p[m_i + 1])) ||
          ((c == 'O' || c == 'o') && m_i + 1 < m_n && IsDigitChar(m_p[m_i + 1]))) {
        m_i = m_n;  // '%' line or program-number line
        return false;
      }
    }
    m_started = true;
    if (c == '#') {
      // #n = value, or #[expression] = value.
      const std::size_t start = m_i;
      std::size_t k = m_i + 1;
      while (k < m_n && IsSpaceChar(m_p[k]))
        ++k;
      if (k < m_n && m_p[k] == '[') {
        k = BracketEnd(k, '[', ']');
      } else {
        while (k < m_n && IsDigitChar(m_p[k]))
          ++k;
      }
      const std::size_t targetEnd = k;
      while (k < m_n && IsSpaceChar(m_p[k]))
        ++k;
      if (targetEnd > start + 1 && k < m_n && m_p[k] == '=') {
        word.kind = NcWord::kParamSet;
        word.text = m_p + start;
        word.length = targetEnd - start;
        m_i = k + 1;
        ScanEqualsValue(true, word);
        return true;
      }
      word.kind = NcWord::kStray;
      word.text = m_p + m_i;
      word.length = 1;
      ++m_i;
      return true;
    }
    if (!IsLetterChar(c)) {
      word.kind = NcWord::kStray;
      word.text = m_p + m_i;
      word.length = 1;
      ++m_i;
      return true;
    }
    const char letter = Upper(c);
    if (m_i + 1 < m_n && (IsLetterChar(m_p[m_i + 1]) || m_p[m_i + 1] == '_')) {
      const std::size_t start = m_i;
      while (m_i < m_n && IsNameChar(m_p[m_i]))
        ++m_i;
      word.kind = NcWord::kName;
      word.text = m_p + start;
      word.length = m_i - start;
      std::size_t k = m_i;
      while (k < m_n && IsSpaceChar(m_p[k]))
        ++k;
      if (k < m_n && m_p[k] == '=') {
        m_i = k + 1;
        ScanEqualsValue(false, word);
      }
      return true;
    }
    if (letter == 'N' && m_i + 1 < m_n && IsDigitChar(m_p[m_i + 1])) {
      ++m_i;  // block number
      while (m_i < m_n && IsDigitChar(m_p[m_i]))
        ++m_i;
      continue;
    }
    if (letter == 'R' && m_i + 1 < m_n && IsDigitChar(m_p[m_i + 1])) {
      // R<n> = value assigns a Siemens parameter; otherwise R is an address.
      std::size_t k = m_i + 1;
      long number = 0;
      while (k < m_n && IsDigitChar(m_p[k])) {
        if (number < 100000000)
          number = number * 10 + (m_p[k] - '0');
        ++k;
      }
      std::size_t e = k;
      while (e < m_n && IsSpaceChar(m_p[e]))
        ++e;
      if (e < m_n && m_p[e] == '=') {
        word.kind = NcWord::kRParamSet;
        word.param = number;
        word.text = m_p + m_i;
        word.length = k - m_i;
        m_i = e + 1;
        ScanEqualsValue(false, word);
        return true;
      }
    }
    word.kind = NcWord::kAddress;
    word.letter = letter;
    word.text = m_p + m_i;
    ++m_i;
    ScanAddressValue(word);
    word.length = static_cast<std::size_t>(m_p + m_i - word.text);
    return true;
  }
}

}  // namespace ncappkit_detail
