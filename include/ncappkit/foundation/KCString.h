// SPDX-License-Identifier: MIT
// KCString: the library's 8-bit character string with value semantics.
//
// A thin, copyable wrapper around std::string with the trimming, slicing, searching and number conversions
// that NC-program code needs. Indices are zero-based ints; reading at or past the end (or before the start)
// gives '\0' instead of touching memory that is not there. Numbers are written and read locale-free.
//
//   KCString line("  N10 G01 X12.5");
//   line.TrimLeft();                       // "N10 G01 X12.5"
//   KCString x = line.Mid(9, 4);           // "12.5"
//   double v = x.AsDouble(0.0);            // 12.5
//   KCString text(2.50, -1, false);        // "2.5" (shortest text that reads back to the same double)
//
// See docs/behaviours.md#strings.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <type_traits>

#include "ncappkit/export.h"

/// The library's 8-bit character string with value semantics; indices outside the string read as '\0'.
class NCAPPKIT_EXPORT KCString {
 public:
  /// Position that stands for "no match" (all bits set).
  static const std::uint64_t npos;

  /// Empty string.
  KCString() = default;
  /// Copy of a NUL-terminated text; a null pointer gives the empty string.
  KCString(const char* text);  // NOLINT(google-explicit-constructor): strings convert freely
  /// Copy of `length` bytes at `text` (may hold NUL bytes).
  KCString(const char* text, std::size_t length);
  /// One-character string.
  KCString(char c);  // NOLINT(google-explicit-constructor)
  /// Copy of a standard string.
  KCString(const std::string& text);  // NOLINT(google-explicit-constructor)
  /// Takes over a standard string.
  KCString(std::string&& text) noexcept;  // NOLINT(google-explicit-constructor)
  /// Decimal text of `value`. When `forceSign` is true a positive value gets a leading '+'
  /// ("+12"); false gives the plain form ("12", "-3").
  KCString(int value, bool forceSign);
  /// Decimal text of `value`, locale-free. `digits` >= 0 writes fixed notation with exactly that many
  /// decimals (1.005 with 2 digits gives "1.00" or "1.01" as the binary value rounds), at most 1074, where
  /// the exact expansion of every double has ended (a larger count writes 1074); `digits` < 0 writes
  /// the shortest fixed-notation text that reads back to the same double ("2.5", "10", "0.1", "0.0001", never
  /// an exponent). `forceSign` as for the integer constructor. NaN gives "nan", infinities "inf" and "-inf".
  KCString(double value, int digits, bool forceSign);

  /// A copy of the same text.
  KCString(const KCString&) = default;
  /// Takes over the text; the moved-from string is left valid but unspecified.
  KCString(KCString&&) noexcept = default;
  /// Copy the other text; returns *this.
  KCString& operator=(const KCString&) = default;
  /// Take over the other text; returns *this.
  KCString& operator=(KCString&&) noexcept = default;
  virtual ~KCString();

  /// Read access to the underlying standard string.
  const std::string& str() const noexcept { return m_text; }
  /// NUL-terminated view, valid until the next change of this string.
  const char* c_str() const noexcept { return m_text.c_str(); }

  /// Length in characters.
  int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
  /// Length in characters.
  std::size_t size() const noexcept { return m_text.size(); }
  /// Length in characters.
  std::size_t length() const noexcept { return m_text.size(); }
  /// True when the string has no characters.
  bool empty() const noexcept { return m_text.empty(); }
  /// True when the string has no characters.
  bool IsEmpty() const noexcept { return m_text.empty(); }

  /// Character at `index`, or '\0' when the index is negative or at/past the end.
  char GetAt(int index) const noexcept {
    return (index >= 0 && static_cast<std::size_t>(index) < m_text.size())
               ? m_text[static_cast<std::size_t>(index)]
               : '\0';
  }
  /// Character at `index`, or '\0' when the index is negative or at/past the end.
  template <class I, std::enable_if_t<std::is_integral_v<I>, int> = 0>
  char operator[](I index) const noexcept {
    return InRange(index) ? m_text[static_cast<std::size_t>(index)] : '\0';
  }
  /// Writable character at `index`. Outside the string a scratch character is returned: it reads '\0' and
  /// whatever is written to it is discarded, so a bad index never corrupts memory.
  template <class I, std::enable_if_t<std::is_integral_v<I>, int> = 0>
  char& operator[](I index) noexcept {
    return InRange(index) ? m_text[static_cast<std::size_t>(index)] : Scratch();
  }
  /// Overwrite the character at `index`; an index outside the string is ignored.
  void SetAt(int index, char c) noexcept;

  /// Remove leading blanks (spaces and tabs). Returns *this.
  KCString& TrimLeft();
  /// Remove every leading occurrence of `c` (and only of `c`). Returns *this.
  KCString& TrimLeft(char c);
  /// Remove trailing blanks (spaces and tabs). Returns *this.
  KCString& TrimRight();
  /// Remove every trailing occurrence of `c`. Returns *this.
  KCString& TrimRight(char c);
  /// Remove leading and trailing blanks. Returns *this.
  KCString& Trim();

  /// The first `n` characters (all when n exceeds the length, none when n <= 0).
  KCString Left(int n) const;
  /// The last `n` characters (all when n exceeds the length, none when n <= 0).
  KCString Right(int n) const;
  /// `count` characters from `first`; clipped to the string, empty when `first` is outside it or count <= 0.
  KCString Mid(int first, int count) const;
  /// The characters from `first` to the end; empty when `first` is outside the string.
  KCString Mid(int first) const;
  /// `count` characters from `first`, clipped like std::string::substr but never throwing.
  KCString substr(unsigned int first, unsigned int count = 0xFFFFFFFFu) const;

  /// Position of the first occurrence of `what` at or after `from`, or npos. An empty `what` is found at
  /// `from` when `from` is within the string (or at its end).
  std::uint64_t Find(const KCString& what, std::uint64_t from = 0) const noexcept;
  /// Position of the first occurrence of `c`, or npos.
  std::uint64_t Find(char c) const noexcept;
  /// Position of the first occurrence of `c` at or after `from`, or npos.
  std::uint64_t Find(char c, std::uint64_t from) const noexcept;
  /// Position of the last occurrence of `c`, or npos.
  std::uint64_t ReverseFind(char c) const noexcept;

  /// Upper-case copy (ASCII letters only; no locale).
  KCString UpperCase() const;
  /// Lower-case copy (ASCII letters only; no locale).
  KCString LowerCase() const;
  /// True when both strings are equal ignoring ASCII case.
  bool EqualsNoCase(const KCString& other) const noexcept;

  /// The integer written at the start of the string (leading blanks and one sign allowed), or `defaultValue`
  /// when there is none or it does not fit in an int. With `wholeText` false anything after the number is
  /// ignored ("12.7" gives 12, "42abc" gives 42); with `wholeText` true only trailing blanks may follow,
  /// otherwise the default is returned.
  int AsInt(int defaultValue, bool wholeText = false) const noexcept;
  /// The real number written at the start of the string (leading blanks, one sign, digits with an optional
  /// point and exponent: "12", "-.5", "1e3"), or `defaultValue` when there is none. Trailing text is ignored.
  /// "nan" and "inf" are not numbers here.
  double AsDouble(double defaultValue) const noexcept;
  /// As AsDouble, but the default is also returned when anything other than blanks follows the number.
  double AsDoubleStrict(double defaultValue) const noexcept;

  /// Tidy the text of a number: when it has a decimal point, drop trailing zeros of the fraction and then a
  /// trailing point ("12.500" -> "12.5", "3.000" -> "3"); then "-0" becomes "0". Returns *this.
  KCString& CleanDoubleString();

  /// Append a string.
  KCString& operator+=(const KCString& other);
  /// Append one character.
  KCString& operator+=(char c);

  /// Join a directory (this) and a file name with exactly one path separator. Either side may already carry
  /// separators ('/' or '\\'); the joint uses '\\' on Windows and '/' elsewhere. An empty side gives the
  /// other.
  KCString operator&(const KCString& fileName) const;

  /// True when both texts are equal byte for byte (case-sensitive).
  friend bool operator==(const KCString& a, const KCString& b) noexcept { return a.m_text == b.m_text; }
  /// True when the texts differ in any byte (case-sensitive).
  friend bool operator!=(const KCString& a, const KCString& b) noexcept { return a.m_text != b.m_text; }
  /// Byte-wise lexicographic order, as std::string compares (for sorting and ordered containers).
  friend bool operator<(const KCString& a, const KCString& b) noexcept { return a.m_text < b.m_text; }
  /// True when the text equals the NUL-terminated `b`; a null `b` counts as "".
  friend bool operator==(const KCString& a, const char* b) noexcept { return a.m_text == (b ? b : ""); }
  /// Negation of the comparison with a NUL-terminated text.
  friend bool operator!=(const KCString& a, const char* b) noexcept { return !(a == b); }

 private:
  template <class I>
  bool InRange(I index) const noexcept {
    if constexpr (std::is_signed_v<I>) {
      if (index < 0)
        return false;
    }
    return static_cast<std::uint64_t>(index) < m_text.size();
  }
  static char& Scratch() noexcept;

  std::string m_text;
};

/// Concatenation.
NCAPPKIT_EXPORT KCString operator+(const KCString& a, const KCString& b);
/// Writes the text unchanged.
NCAPPKIT_EXPORT std::ostream& operator<<(std::ostream& out, const KCString& s);
