// SPDX-License-Identifier: MIT
// Block decoding and line tests of KCC_ParseNc.
#include "ncappkit/nc/KCC_ParseNc.h"

#include "foundation/KCCharClass.h"
#include "nc/NcTextScan.h"

#include <cstring>

namespace {

constexpr int kNoSlot = -1;
constexpr int kGLetter = -2;  // G: primary or secondary slot, chosen at run time
constexpr int kMLetter = -3;  // M: likewise

using ncappkit_detail::IsBlank;
using ncappkit_detail::IsDigit;

// Integer arithmetic that wraps at 32 bits instead of overflowing.
inline std::int32_t WrapMulAdd(std::int32_t value, std::int32_t factor, std::int32_t add) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(value) * static_cast<std::uint32_t>(factor) +
                                   static_cast<std::uint32_t>(add));
}
inline std::int32_t WrapNeg(std::int32_t value) {
  return static_cast<std::int32_t>(0u - static_cast<std::uint32_t>(value));
}

// The value part of a parameter line: digits with at most one point and an optional leading '-'. A
// character outside that set ends the value (a trailing comment is allowed).
bool ScanParameterValue(const char* text, std::size_t length, int& intValue, double& doubleValue,
                        bool resultOnError, bool& error) {
  intValue = 0;
  doubleValue = 0.0;
  bool integerPart = true;
  bool negative = false;
  double divisor = 10.0;
  auto at = [&](std::size_t i) { return i < length ? text[i] : '\0'; };

  const char first = at(0);
  if (!IsDigit(first) && first != '.' && first != '-') {
    error = true;
    return resultOnError;
  }
  for (std::size_t i = 0; i < length; ++i) {
    const char c = text[i];
    if (c == '-') {
      if (i != 0 || !(IsDigit(at(1)) || at(1) == '.')) {
        error = true;
        return resultOnError;
      }
      negative = true;
    } else if (c == '.') {
      if (!IsDigit(at(i + 1)))
        return false;
      if (!integerPart) {
        error = true;
        return resultOnError;
      }
      integerPart = false;
      doubleValue = intValue;
    } else if (IsDigit(c)) {
      const int digit = c - '0';
      if (integerPart) {
        intValue = WrapMulAdd(intValue, 10, digit);
      } else {
        doubleValue += digit / divisor;
        divisor *= 10.0;
      }
    } else {
      break;
    }
  }
  if (integerPart)
    doubleValue = intValue;
  if (negative) {
    doubleValue = 0.0 - doubleValue;
    intValue = WrapNeg(intValue);
  }
  return true;
}

// The program-end tests on a NUL-terminated line: the codes of `accepted` (EndCode bits) outside round
// brackets. `foundM30` / `foundM99` tell which code ended the scan; when none did they become false, unless
// no position was compared (then they keep their values).
bool ScanLineEndCodes(const char* line, unsigned accepted, bool& foundM30, bool& foundM99) {
  if (line == nullptr)
    return false;
  return ncappkit_detail::ReportEndCode(ncappkit_detail::ScanEndCode(line, std::strlen(line), accepted),
                                        foundM30, foundM99);
}

}  // namespace

KCC_ParseNc::KCC_ParseNc() = default;
KCC_ParseNc::KCC_ParseNc(const KCC_ParseNc& other) = default;
KCC_ParseNc& KCC_ParseNc::operator=(const KCC_ParseNc& other) = default;
KCC_ParseNc::~KCC_ParseNc() = default;

bool KCC_ParseNc::IsCharNumeric(char c) const {
  return c == '-' || c == '.' || IsDigit(c);
}

namespace {

// Index of the lowest set bit of a non-zero value.
inline int LowestSetBit(std::uint32_t value) noexcept {
#if defined(__GNUC__)
  return __builtin_ctz(value);
#else
  int index = 0;
  while ((value & 1u) == 0) {
    value >>= 1;
    ++index;
  }
  return index;
#endif
}

// What a character is to the block decoder.
enum DecodeKind : std::uint8_t {
  kOtherChar,   // ends the current word (also an upper-case letter the decoder does not read)
  kDigitChar,   // 0-9
  kMinusChar,   // '-'
  kPointChar,   // '.'
  kOpenChar,    // '(' starts a comment
  kLetterChar,  // an upper-case letter with a slot: starts a word
};

// Fraction digits at the first nine places after the point, digit / 10^(place + 1), computed once by the same
// division the decoder does beyond them, so a looked-up value is the very double the division gives.
constexpr int kTabledFractionPlaces = 9;

struct DecodeTables {
  std::uint8_t kind[256] = {};
  std::int8_t slot[256] = {};
  double fraction[kTabledFractionPlaces][10] = {};
};

constexpr DecodeTables MakeDecodeTables(const int (&letterSlot)[26]) {
  DecodeTables t;
  for (int c = 0; c < 256; ++c) {
    t.kind[c] = kOtherChar;
    t.slot[c] = static_cast<std::int8_t>(kNoSlot);
  }
  for (int c = '0'; c <= '9'; ++c)
    t.kind[c] = kDigitChar;
  t.kind[static_cast<unsigned char>('-')] = kMinusChar;
  t.kind[static_cast<unsigned char>('.')] = kPointChar;
  t.kind[static_cast<unsigned char>('(')] = kOpenChar;
  for (int letter = 0; letter < 26; ++letter) {
    if (letterSlot[letter] != kNoSlot) {
      t.kind['A' + letter] = kLetterChar;
      t.slot['A' + letter] = static_cast<std::int8_t>(letterSlot[letter]);
    }
  }
  std::int32_t divisor = 10;
  for (int place = 0; place < kTabledFractionPlaces; ++place) {
    for (int digit = 0; digit < 10; ++digit)
      t.fraction[place][digit] = static_cast<double>(digit) / static_cast<double>(divisor);
    if (place + 1 < kTabledFractionPlaces)
      divisor *= 10;
  }
  return t;
}

}  // namespace

bool KCC_ParseNc::DecodeISOLine(const KCString& line) {
  // Slot selected by each upper-case letter A..Z; letters the parser does not decode map to kNoSlot.
  static constexpr int kLetterSlot[26] = {kA, kB, kC,      kD,       kE,      kF,      kGLetter, kNoSlot, kI,
                                          kJ, kK, kL,      kMLetter, kN,      kNoSlot, kP,       kNoSlot, kR,
                                          kS, kT, kNoSlot, kV,       kNoSlot, kX,      kY,       kNoSlot};
  // Slots whose double value is maintained while digits arrive.
  static constexpr bool kKeepsDouble[kSlotCount] = {true,  true, true, true,  false, false, true,  true,
                                                    true,  true, true, false, false, false, false, false,
                                                    false, true, true, false, true,  true,  true};
  static constexpr DecodeTables kTables = MakeDecodeTables(kLetterSlot);

  // The slots the last decode used go back to "not present, 0, 0.0"; the others are still in that state.
  for (std::uint32_t used = m_usedSlots; used != 0; used &= used - 1)
    m_slots[LowestSetBit(used)] = NcAddressSlot{};
  m_usedSlots = 0;

  const std::string& text = line.str();
  const char* p = text.data();
  const char* const end = p + text.size();
  while (p != end && IsBlank(*p))
    ++p;
  if (end - p < 2)
    return false;
  const char* const begin = text.data();
  const std::size_t size = text.size();

  for (;;) {
    // Up to the next letter that starts a word: other characters end no word here (none is open), and a
    // comment is skipped up to its ')', which is read as an ordinary character.
    while (p != end) {
      const std::uint8_t kind = kTables.kind[static_cast<unsigned char>(*p)];
      if (kind == kLetterChar)
        break;
      if (kind == kOpenChar) {
        p = begin + ncappkit_detail::CommentEnd(begin, static_cast<std::size_t>(p - begin) + 1, size);
        if (p == end)
          return true;
      }
      ++p;
    }
    if (p == end)
      return true;

    // One word: the letter, then '-', '.' and digits up to any other character. A letter seen before goes on
    // with the value it has (X10 X20 gives 1020); G and M fill their primary slot first.
    int slot = kTables.slot[static_cast<unsigned char>(*p)];
    if (slot == kGLetter)
      slot = m_slots[kGPrim].present ? kGSec : kGPrim;
    else if (slot == kMLetter)
      slot = m_slots[kMPrim].present ? kMSec : kMPrim;
    NcAddressSlot& word = m_slots[slot];
    m_usedSlots |= std::uint32_t{1} << slot;
    const bool keepsDouble = kKeepsDouble[slot];
    bool present = word.present;
    std::int32_t intValue = word.intValue;
    double doubleValue = word.doubleValue;
    bool integerPart = true;
    bool minusPending = false;
    std::int32_t divisor = 10;
    int fractionPlace = 0;
    bool ok = true;
    for (++p; p != end; ++p) {
      const unsigned char c = static_cast<unsigned char>(*p);
      const std::uint8_t kind = kTables.kind[c];
      if (kind == kDigitChar) {
        present = true;
        const int digit = c - '0';
        if (integerPart) {
          intValue = intValue >= 0 ? WrapMulAdd(intValue, 10, digit) : WrapMulAdd(intValue, 10, -digit);
          if (keepsDouble)
            doubleValue = intValue;
        } else {
          double fraction = 0.0;
          if (fractionPlace < kTabledFractionPlaces)
            fraction = kTables.fraction[fractionPlace++][digit];
          else
            fraction = static_cast<double>(digit) / static_cast<double>(divisor);
          doubleValue = doubleValue >= 0.0 ? doubleValue + fraction : doubleValue - fraction;
          divisor = WrapMulAdd(divisor, 10, 0);
        }
        // The sign waits for the first non-zero digit after the '-'.
        if (minusPending && digit != 0) {
          intValue = WrapNeg(intValue);
          if (keepsDouble)
            doubleValue = 0.0 - doubleValue;
          minusPending = false;
        }
      } else if (kind == kMinusChar) {
        present = true;
        if (minusPending) {
          ok = false;  // a second '-' before the sign was applied
          break;
        }
        minusPending = true;
      } else if (kind == kPointChar) {
        present = true;
        if (!integerPart) {
          ok = false;  // a second point
          break;
        }
        integerPart = false;
      } else {
        break;
      }
    }
    word.present = present;
    word.intValue = intValue;
    word.doubleValue = doubleValue;
    if (!ok)
      return false;
  }
}

bool KCC_ParseNc::GetInt(int slot, int& value) const {
  if (!m_slots[slot].present)
    return false;
  value = m_slots[slot].intValue;
  return true;
}

bool KCC_ParseNc::GetDouble(int slot, double& value) const {
  if (!m_slots[slot].present)
    return false;
  value = m_slots[slot].doubleValue;
  return true;
}

bool KCC_ParseNc::GetACommand(int& value) const {
  return GetInt(kA, value);
}
bool KCC_ParseNc::GetACommand(double& value) const {
  return GetDouble(kA, value);
}
bool KCC_ParseNc::GetBCommand(int& value) const {
  return GetInt(kB, value);
}
bool KCC_ParseNc::GetBCommand(double& value) const {
  return GetDouble(kB, value);
}
bool KCC_ParseNc::GetCCommand(int& value) const {
  return GetInt(kC, value);
}
bool KCC_ParseNc::GetCCommand(double& value) const {
  return GetDouble(kC, value);
}
bool KCC_ParseNc::GetDCommand(double& value) const {
  return GetDouble(kD, value);
}
bool KCC_ParseNc::GetECommand(int& value) const {
  return GetInt(kE, value);
}
bool KCC_ParseNc::GetFCommand(int& value) const {
  return GetInt(kF, value);
}
bool KCC_ParseNc::GetGprimCommand(int& value) const {
  return GetInt(kGPrim, value);
}
bool KCC_ParseNc::GetGprimCommand(double& value) const {
  return GetDouble(kGPrim, value);
}
bool KCC_ParseNc::GetGsecundCommand(double& value) const {
  return GetDouble(kGSec, value);
}
bool KCC_ParseNc::GetICommand(double& value) const {
  return GetDouble(kI, value);
}
bool KCC_ParseNc::GetJCommand(double& value) const {
  return GetDouble(kJ, value);
}
bool KCC_ParseNc::GetKCommand(int& value) const {
  return GetInt(kK, value);
}
bool KCC_ParseNc::GetLCommand(int& value) const {
  return GetInt(kL, value);
}
bool KCC_ParseNc::GetMprimCommand(int& value) const {
  return GetInt(kMPrim, value);
}
bool KCC_ParseNc::GetMsecCommand(int& value) const {
  return GetInt(kMSec, value);
}
bool KCC_ParseNc::GetNCommand(int& value) const {
  return GetInt(kN, value);
}
bool KCC_ParseNc::GetPCommand(int& value) const {
  return GetInt(kP, value);
}
bool KCC_ParseNc::GetSCommand(int& value) const {
  return GetInt(kS, value);
}
bool KCC_ParseNc::GetSCommand(double& value) const {
  return GetDouble(kS, value);
}
bool KCC_ParseNc::GetRCommand(double& value) const {
  return GetDouble(kR, value);
}
bool KCC_ParseNc::GetTCommand(int& value) const {
  return GetInt(kT, value);
}
bool KCC_ParseNc::GetXCommand(double& value) const {
  return GetDouble(kX, value);
}
bool KCC_ParseNc::GetYCommand(double& value) const {
  return GetDouble(kY, value);
}

// The V getter tests the X slot's flag and hands out the V value; existing callers depend on that pairing.
bool KCC_ParseNc::GetVCommand(double& value) const {
  if (!m_slots[kX].present)
    return false;
  value = m_slots[kV].doubleValue;
  return true;
}

bool KCC_ParseNc::Check_M30_Command(char* line) {
  return Check_M30_Command(static_cast<const char*>(line));
}

bool KCC_ParseNc::Check_M30_Command(const char* line) {
  bool found30 = false;
  bool found99 = false;
  return ScanLineEndCodes(line, ncappkit_detail::kEndM30, found30, found99);
}

bool KCC_ParseNc::Check_M30_M99_Command(char* line, bool& foundM30, bool& foundM99) {
  return Check_M30_M99_Command(static_cast<const char*>(line), foundM30, foundM99);
}

bool KCC_ParseNc::Check_M30_M99_Command(const char* line, bool& foundM30, bool& foundM99) {
  return ScanLineEndCodes(line, ncappkit_detail::kEndM30 | ncappkit_detail::kEndM99, foundM30, foundM99);
}

bool KCC_ParseNc::GetProgramNumber(const KCString& line, int& number) {
  KCString text(line);
  text.TrimLeft();
  if (text.GetLength() < 2)
    return false;
  if (text.GetAt(0) != ':' && text.GetAt(0) != 'O')
    return false;
  text.TrimLeft(':');
  text.TrimLeft('O');
  if (!IsDigit(text.GetAt(0)))
    return false;
  std::int32_t value = 0;
  for (int i = 0; IsDigit(text.GetAt(i)); ++i)
    value = WrapMulAdd(value, 10, text.GetAt(i) - '0');
  number = value;
  return true;
}

bool KCC_ParseNc::GetProgramNumberWithComment(const KCString& line, int& number, KCString& comment) {
  if (!GetProgramNumber(line, number))
    return false;
  KCString text(line);
  text.TrimLeft();
  text.TrimLeft(':');
  text.TrimLeft('O');
  const std::uint64_t open = text.ReverseFind('(');
  const std::uint64_t close = text.Find(')', 1);
  comment += '(';
  if (open != KCString::npos && close != KCString::npos && open < close) {
    comment += text.Mid(static_cast<int>(open) + 1, static_cast<int>(close - open) - 1);
  }
  comment += ')';
  return true;
}

bool KCC_ParseNc::GetNcParameter(const KCString& line, int& paramNumber, int& intValue, double& doubleValue,
                                 KCString& valueText, bool resultOnError, bool& error) {
  valueText = KCString();
  error = false;
  KCString text(line);
  text.TrimLeft();
  if (text.GetLength() < 6 || text.GetAt(0) != '#')
    return false;

  std::int32_t number = 0;
  for (int i = 1; i <= 3 && IsDigit(text.GetAt(i)); ++i)
    number = number * 10 + (text.GetAt(i) - '0');
  paramNumber = number;

  // The layout assumes a three-digit number: "#nnn" is dropped as a whole.
  text = text.Mid(4);
  text.TrimLeft();
  if (text.IsEmpty() || text.GetAt(0) != '=')
    return false;
  text.TrimLeft('=');
  text.TrimLeft();
  if (text.IsEmpty())
    return false;

  const std::uint64_t bracket = text.Find('(');
  valueText = bracket == KCString::npos ? text : text.Left(static_cast<int>(bracket));
  return ScanParameterValue(text.c_str(), text.size(), intValue, doubleValue, resultOnError, error);
}

bool KCC_ParseNc::GetNcParameter(const KCString& line, int& paramNumber, int& intValue, double& doubleValue) {
  KCString valueText;
  bool error = false;
  return GetNcParameter(line, paramNumber, intValue, doubleValue, valueText, false, error);
}

bool KCC_ParseNc::GetNcTextParameter(const KCString& line, KCString& name, int& intValue, double& doubleValue,
                                     KCString& valueText, bool resultOnError, bool& error) {
  valueText = KCString();
  name = KCString();
  error = false;
  KCString text(line);
  text.TrimLeft();
  if (text.GetLength() < 6 || text.GetAt(0) == ';')
    return false;

  const std::uint64_t equals = text.Find('=');
  if (equals == KCString::npos)
    return false;
  name = text.Left(static_cast<int>(equals));
  name.Trim();

  text = text.Mid(static_cast<int>(equals));
  text.TrimLeft();
  if (text.IsEmpty() || text.GetAt(0) != '=')
    return false;
  text.TrimLeft('=');
  text.TrimLeft();
  if (text.IsEmpty())
    return false;

  const std::uint64_t semicolon = text.Find(';');
  valueText = semicolon == KCString::npos ? text : text.Left(static_cast<int>(semicolon));
  return ScanParameterValue(text.c_str(), text.size(), intValue, doubleValue, resultOnError, error);
}

bool KCC_ParseNc::GetNcTextParameter(const KCString& line, KCString& name, int& intValue,
                                     double& doubleValue) {
  KCString valueText;
  bool error = false;
  return GetNcTextParameter(line, name, intValue, doubleValue, valueText, false, error);
}
