// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCString.h"

#include "foundation/KCCharClass.h"
#include "foundation/KCPlatformDetail.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <ostream>

const std::uint64_t KCString::npos = ~std::uint64_t{0};

namespace {

using ncappkit_detail::IsBlank;
using ncappkit_detail::IsDigit;
bool IsSeparator(char c) noexcept {
  return c == '/' || c == '\\';
}

// Number text is built in a stack buffer. Every double's exact decimal expansion ends within 1074 decimals
// (the smallest positive double is 2^-1074), so more decimals would only add zeros; the longest text, a sign,
// the 309 integer digits of 1.8e308, the point and 1074 decimals, fits.
constexpr int kMaxDecimals = 1074;
using NumberBuffer = std::array<char, 1400>;

// Position just past a leading number "[sign]digits[.digits][(e|E)[sign]digits]" starting at `first`, or
// `first` when there is none. Only the shapes our readers accept count: no "inf", "nan" or hex.
const char* ScanRealNumber(const char* first, const char* last) noexcept {
  const char* p = first;
  if (p != last && (*p == '+' || *p == '-'))
    ++p;
  const char* digitsStart = p;
  while (p != last && IsDigit(*p))
    ++p;
  bool anyDigit = p != digitsStart;
  if (p != last && *p == '.') {
    const char* fracStart = ++p;
    while (p != last && IsDigit(*p))
      ++p;
    anyDigit = anyDigit || p != fracStart;
  }
  if (!anyDigit)
    return first;
  if (p != last && (*p == 'e' || *p == 'E')) {
    const char* q = p + 1;
    if (q != last && (*q == '+' || *q == '-'))
      ++q;
    const char* expStart = q;
    while (q != last && IsDigit(*q))
      ++q;
    if (q != expStart)
      p = q;
  }
  return p;
}

// Rough decimal exponent of a scanned number (digits of the integer part, or minus the zeros that open the
// fraction, plus the written exponent): positive means the value is at least 1.
std::int64_t DecimalMagnitude(const char* first, const char* last) noexcept {
  const char* p = first;
  if (p != last && (*p == '+' || *p == '-'))
    ++p;
  while (p != last && *p == '0')
    ++p;
  std::int64_t magnitude = 0;
  while (p != last && IsDigit(*p)) {
    ++magnitude;
    ++p;
  }
  if (magnitude == 0 && p != last && *p == '.') {
    ++p;
    while (p != last && *p == '0') {
      --magnitude;
      ++p;
    }
  }
  while (p != last && *p != 'e' && *p != 'E')
    ++p;
  if (p != last) {
    ++p;
    bool negative = false;
    if (p != last && (*p == '+' || *p == '-'))
      negative = *p++ == '-';
    // The exponent stops growing once it outweighs any digit count a string can hold, but all its digits
    // are read, so a long exponent is never cut short to a small one.
    constexpr std::int64_t kExponentCap = 100000000000000000;  // 1e17: times ten plus a digit still fits
    std::int64_t exponent = 0;
    for (; p != last && IsDigit(*p); ++p) {
      if (exponent < kExponentCap)
        exponent = exponent * 10 + (*p - '0');
    }
    magnitude += negative ? -exponent : exponent;
  }
  return magnitude;
}

// Reads the leading real number of [first, last) after blanks; sets `end` past it. False when there is none.
bool ParseLeadingDouble(const char* first, const char* last, double& value, const char*& end) noexcept {
  while (first != last && IsBlank(*first))
    ++first;
  const char* numEnd = ScanRealNumber(first, last);
  if (numEnd == first)
    return false;
  // from_chars takes no leading '+'.
  const char* parseStart = (*first == '+') ? first + 1 : first;
  double result = 0.0;
  auto [ptr, ec] = std::from_chars(parseStart, numEnd, result, std::chars_format::general);
  if (ec == std::errc::result_out_of_range) {
    // Beyond the range of a double: saturate like strtod does (infinity or zero) instead of "no number".
    result = DecimalMagnitude(parseStart, numEnd) > 0 ? std::numeric_limits<double>::infinity() : 0.0;
    if (*first == '-')
      result = -result;
    ptr = numEnd;
  } else if (ec != std::errc()) {
    return false;
  }
  value = result;
  end = ptr;
  return true;
}

bool OnlyBlanks(const char* first, const char* last) noexcept {
  return std::all_of(first, last, IsBlank);
}

}  // namespace

KCString::KCString(const char* text) : m_text(text ? text : "") {}

KCString::KCString(const char* text, std::size_t length)
    : m_text(text ? std::string(text, length) : std::string()) {}

KCString::KCString(char c) : m_text(1, c) {}

KCString::KCString(const std::string& text) : m_text(text) {}

KCString::KCString(std::string&& text) noexcept : m_text(std::move(text)) {}

KCString::KCString(int value, bool forceSign) {
  std::array<char, 16> buffer{};
  char* first = buffer.data();
  if (forceSign && value > 0)
    *first++ = '+';
  auto result = std::to_chars(first, buffer.data() + buffer.size(), value);
  m_text.assign(buffer.data(), result.ptr);
}

KCString::KCString(double value, int digits, bool forceSign) {
  if (std::isnan(value)) {
    m_text = "nan";
    return;
  }
  if (std::isinf(value)) {
    m_text = value < 0 ? "-inf" : (forceSign ? "+inf" : "inf");
    return;
  }
  NumberBuffer buffer{};
  char* first = buffer.data();
  if (forceSign && value > 0)
    *first++ = '+';
  char* last = buffer.data() + buffer.size();
  std::to_chars_result result{};
  if (digits < 0) {
    result = std::to_chars(first, last, value, std::chars_format::fixed);
  } else {
    result = std::to_chars(first, last, value, std::chars_format::fixed, std::min(digits, kMaxDecimals));
  }
  m_text.assign(buffer.data(), result.ptr);
}

KCString::~KCString() = default;

char& KCString::Scratch() noexcept {
  thread_local char scratch = '\0';
  scratch = '\0';
  return scratch;
}

void KCString::SetAt(int index, char c) noexcept {
  if (InRange(index))
    m_text[static_cast<std::size_t>(index)] = c;
}

KCString& KCString::TrimLeft() {
  const auto it = std::find_if_not(m_text.begin(), m_text.end(), IsBlank);
  m_text.erase(m_text.begin(), it);
  return *this;
}

KCString& KCString::TrimLeft(char c) {
  const auto it = std::find_if(m_text.begin(), m_text.end(), [c](char x) { return x != c; });
  m_text.erase(m_text.begin(), it);
  return *this;
}

KCString& KCString::TrimRight() {
  const auto it = std::find_if_not(m_text.rbegin(), m_text.rend(), IsBlank);
  m_text.erase(it.base(), m_text.end());
  return *this;
}

KCString& KCString::TrimRight(char c) {
  const auto it = std::find_if(m_text.rbegin(), m_text.rend(), [c](char x) { return x != c; });
  m_text.erase(it.base(), m_text.end());
  return *this;
}

KCString& KCString::Trim() {
  TrimRight();
  return TrimLeft();
}

KCString KCString::Left(int n) const {
  if (n <= 0)
    return KCString();
  return KCString(m_text.substr(0, static_cast<std::size_t>(n)));
}

KCString KCString::Right(int n) const {
  if (n <= 0)
    return KCString();
  const std::size_t count = std::min(m_text.size(), static_cast<std::size_t>(n));
  return KCString(m_text.substr(m_text.size() - count));
}

KCString KCString::Mid(int first, int count) const {
  if (first < 0 || count <= 0 || static_cast<std::size_t>(first) >= m_text.size())
    return KCString();
  return KCString(m_text.substr(static_cast<std::size_t>(first), static_cast<std::size_t>(count)));
}

KCString KCString::Mid(int first) const {
  if (first < 0 || static_cast<std::size_t>(first) >= m_text.size())
    return KCString();
  return KCString(m_text.substr(static_cast<std::size_t>(first)));
}

KCString KCString::substr(unsigned int first, unsigned int count) const {
  if (first >= m_text.size())
    return KCString();
  return KCString(m_text.substr(first, count));
}

std::uint64_t KCString::Find(const KCString& what, std::uint64_t from) const noexcept {
  if (from > m_text.size())
    return npos;
  const std::size_t pos = m_text.find(what.m_text, static_cast<std::size_t>(from));
  return pos == std::string::npos ? npos : static_cast<std::uint64_t>(pos);
}

std::uint64_t KCString::Find(char c) const noexcept {
  return Find(c, 0);
}

std::uint64_t KCString::Find(char c, std::uint64_t from) const noexcept {
  if (from >= m_text.size())
    return npos;
  const std::size_t pos = m_text.find(c, static_cast<std::size_t>(from));
  return pos == std::string::npos ? npos : static_cast<std::uint64_t>(pos);
}

std::uint64_t KCString::ReverseFind(char c) const noexcept {
  const std::size_t pos = m_text.rfind(c);
  return pos == std::string::npos ? npos : static_cast<std::uint64_t>(pos);
}

KCString KCString::UpperCase() const {
  std::string result = m_text;
  for (char& c : result) {
    if (c >= 'a' && c <= 'z')
      c = static_cast<char>(c - 'a' + 'A');
  }
  return KCString(std::move(result));
}

KCString KCString::LowerCase() const {
  std::string result = m_text;
  for (char& c : result) {
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c - 'A' + 'a');
  }
  return KCString(std::move(result));
}

bool KCString::EqualsNoCase(const KCString& other) const noexcept {
  if (m_text.size() != other.m_text.size())
    return false;
  for (std::size_t i = 0; i < m_text.size(); ++i) {
    char a = m_text[i];
    char b = other.m_text[i];
    if (a >= 'a' && a <= 'z')
      a = static_cast<char>(a - 'a' + 'A');
    if (b >= 'a' && b <= 'z')
      b = static_cast<char>(b - 'a' + 'A');
    if (a != b)
      return false;
  }
  return true;
}

int KCString::AsInt(int defaultValue, bool wholeText) const noexcept {
  const char* p = m_text.data();
  const char* last = p + m_text.size();
  while (p != last && IsBlank(*p))
    ++p;
  const char* numStart = p;
  if (p != last && *p == '+') {
    ++numStart;
    if (numStart != last && *numStart == '-')
      return defaultValue;
  }
  int value = 0;
  auto [ptr, ec] = std::from_chars(numStart, last, value, 10);
  if (ec != std::errc())
    return defaultValue;
  if (wholeText && !OnlyBlanks(ptr, last))
    return defaultValue;
  return value;
}

double KCString::AsDouble(double defaultValue) const noexcept {
  double value = 0.0;
  const char* end = nullptr;
  if (!ParseLeadingDouble(m_text.data(), m_text.data() + m_text.size(), value, end))
    return defaultValue;
  return value;
}

double KCString::AsDoubleStrict(double defaultValue) const noexcept {
  double value = 0.0;
  const char* end = nullptr;
  const char* last = m_text.data() + m_text.size();
  if (!ParseLeadingDouble(m_text.data(), last, value, end))
    return defaultValue;
  return OnlyBlanks(end, last) ? value : defaultValue;
}

KCString& KCString::CleanDoubleString() {
  const std::size_t point = m_text.find('.');
  if (point != std::string::npos && m_text.find_first_of("eE", point) == std::string::npos) {
    std::size_t end = m_text.size();
    while (end > point + 1 && m_text[end - 1] == '0')
      --end;
    if (end == point + 1)
      --end;  // nothing left behind the point
    m_text.erase(end);
  }
  if (m_text == "-0" || m_text == "+0")
    m_text = "0";
  return *this;
}

KCString& KCString::operator+=(const KCString& other) {
  m_text += other.m_text;
  return *this;
}

KCString& KCString::operator+=(char c) {
  m_text += c;
  return *this;
}

KCString KCString::operator&(const KCString& fileName) const {
  if (m_text.empty())
    return fileName;
  if (fileName.m_text.empty())
    return *this;
  std::size_t dirEnd = m_text.size();
  while (dirEnd > 0 && IsSeparator(m_text[dirEnd - 1]))
    --dirEnd;
  std::size_t nameStart = 0;
  while (nameStart < fileName.m_text.size() && IsSeparator(fileName.m_text[nameStart]))
    ++nameStart;
  std::string joined;
  joined.reserve(dirEnd + 1 + fileName.m_text.size() - nameStart);
  joined.append(m_text, 0, dirEnd);
  joined += ncappkit_detail::PathSeparator();
  joined.append(fileName.m_text, nameStart, std::string::npos);
  return KCString(std::move(joined));
}

KCString operator+(const KCString& a, const KCString& b) {
  std::string joined;
  joined.reserve(a.size() + b.size());
  joined += a.str();
  joined += b.str();
  return KCString(std::move(joined));
}

std::ostream& operator<<(std::ostream& out, const KCString& s) {
  return out << s.str();
}
