// SPDX-License-Identifier: MIT
// The block decoder against a plain reference: a character-by-character reading of the decoding rules
// (KCC_ParseNc.h), written for clarity rather than speed. Seeded random blocks built from the characters that
// matter (address letters, digits, '-', '.', blanks, brackets, letters the decoder does not read, lower case)
// must give the same result, the same presence and the same values for every getter.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <string>

#include "ncappkit/nc/KCC_ParseNc.h"

namespace {

// One address of the reference: present, integer value, real value.
struct RefSlot {
  bool present = false;
  std::int32_t intValue = 0;
  double doubleValue = 0.0;
};

std::int32_t Wrap(std::int64_t value) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(value)));
}

// Slots: A B C D E F Gprim Gsec I J K L Mprim Msec N P S R T V X Y; -1 for letters not decoded.
constexpr int kGPrim = 6, kGSec = 7, kMPrim = 12, kMSec = 13;
int SlotOf(char c) {
  switch (c) {
    case 'A':
      return 0;
    case 'B':
      return 1;
    case 'C':
      return 2;
    case 'D':
      return 3;
    case 'E':
      return 4;
    case 'F':
      return 5;
    case 'I':
      return 8;
    case 'J':
      return 9;
    case 'K':
      return 10;
    case 'L':
      return 11;
    case 'N':
      return 14;
    case 'P':
      return 15;
    case 'S':
      return 16;
    case 'R':
      return 17;
    case 'T':
      return 18;
    case 'V':
      return 19;
    case 'X':
      return 20;
    case 'Y':
      return 21;
    default:
      return -1;
  }
}
// Letters whose real value is kept while digits arrive (the others keep only the integer).
bool KeepsDouble(int slot) {
  return slot != 4 && slot != 5 && slot != 11 && slot != kMPrim && slot != kMSec && slot != 14 &&
         slot != 15 && slot != 18;
}

struct Reference {
  RefSlot slots[22];
  bool result = true;

  explicit Reference(const std::string& text) {
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t'))
      ++i;
    if (text.size() - i < 2) {
      result = false;
      return;
    }
    RefSlot* current = nullptr;
    bool keeps = false, integerPart = true, minusPending = false;
    std::int32_t divisor = 10;
    for (; i < text.size(); ++i) {
      const char c = text[i];
      if (c == '(') {
        current = nullptr;
        const std::size_t close = text.find(')', i + 1);
        if (close == std::string::npos)
          return;
        i = close;
        continue;
      }
      int slot = -1;
      if (c == 'G')
        slot = slots[kGPrim].present ? kGSec : kGPrim;
      else if (c == 'M')
        slot = slots[kMPrim].present ? kMSec : kMPrim;
      else
        slot = SlotOf(c);
      if (slot >= 0) {
        current = &slots[slot];
        keeps = KeepsDouble(slot);
        integerPart = true;
        minusPending = false;
        divisor = 10;
        continue;
      }
      if (current == nullptr)
        continue;
      if (c != '-' && c != '.' && (c < '0' || c > '9')) {
        current = nullptr;
        continue;
      }
      current->present = true;
      if (c == '-') {
        if (minusPending) {
          result = false;
          return;
        }
        minusPending = true;
        continue;
      }
      if (c == '.') {
        if (!integerPart) {
          result = false;
          return;
        }
        integerPart = false;
        continue;
      }
      const int digit = c - '0';
      if (integerPart) {
        current->intValue = current->intValue >= 0 ? Wrap(std::int64_t{current->intValue} * 10 + digit)
                                                   : Wrap(std::int64_t{current->intValue} * 10 - digit);
        if (keeps)
          current->doubleValue = current->intValue;
      } else {
        const double fraction = static_cast<double>(digit) / static_cast<double>(divisor);
        current->doubleValue =
            current->doubleValue >= 0.0 ? current->doubleValue + fraction : current->doubleValue - fraction;
        divisor = Wrap(std::int64_t{divisor} * 10);
      }
      if (minusPending && digit != 0) {
        current->intValue = Wrap(-std::int64_t{current->intValue});
        if (keeps)
          current->doubleValue = 0.0 - current->doubleValue;
        minusPending = false;
      }
    }
  }
};

std::string RandomBlock(std::mt19937& random) {
  static const char kAlphabet[] = "ABCDEFGIJKLMNPRSTVXY0123456789-.  ()HOQUWZgx;";
  std::uniform_int_distribution<int> length(0, 40);
  std::uniform_int_distribution<std::size_t> pick(0, sizeof(kAlphabet) - 2);
  std::uniform_int_distribution<int> digitsHeavy(0, 2);
  std::string text;
  const int n = length(random);
  for (int k = 0; k < n; ++k) {
    // Two thirds digits, so that long numbers and fractions past nine places occur.
    text += digitsHeavy(random) != 0 ? static_cast<char>('0' + static_cast<int>(pick(random) % 10))
                                     : kAlphabet[pick(random)];
  }
  return text;
}

bool SameDouble(double a, double b) {
  return std::memcmp(&a, &b, sizeof a) == 0 || (a != a && b != b);
}

// Compares every getter of the parser with the reference; returns "" or the first difference.
std::string Difference(const KCC_ParseNc& parser, const Reference& ref) {
  struct IntGetter {
    const char* name;
    bool (KCC_ParseNc::*get)(int&) const;
    int slot;
  };
  struct DoubleGetter {
    const char* name;
    bool (KCC_ParseNc::*get)(double&) const;
    int slot;
  };
  const IntGetter ints[] = {
      {"A", &KCC_ParseNc::GetACommand, 0},      {"B", &KCC_ParseNc::GetBCommand, 1},
      {"C", &KCC_ParseNc::GetCCommand, 2},      {"E", &KCC_ParseNc::GetECommand, 4},
      {"F", &KCC_ParseNc::GetFCommand, 5},      {"G", &KCC_ParseNc::GetGprimCommand, 6},
      {"K", &KCC_ParseNc::GetKCommand, 10},     {"L", &KCC_ParseNc::GetLCommand, 11},
      {"M", &KCC_ParseNc::GetMprimCommand, 12}, {"Msec", &KCC_ParseNc::GetMsecCommand, 13},
      {"N", &KCC_ParseNc::GetNCommand, 14},     {"P", &KCC_ParseNc::GetPCommand, 15},
      {"S", &KCC_ParseNc::GetSCommand, 16},     {"T", &KCC_ParseNc::GetTCommand, 18}};
  const DoubleGetter doubles[] = {
      {"A", &KCC_ParseNc::GetACommand, 0},     {"B", &KCC_ParseNc::GetBCommand, 1},
      {"C", &KCC_ParseNc::GetCCommand, 2},     {"D", &KCC_ParseNc::GetDCommand, 3},
      {"G", &KCC_ParseNc::GetGprimCommand, 6}, {"Gsec", &KCC_ParseNc::GetGsecundCommand, 7},
      {"I", &KCC_ParseNc::GetICommand, 8},     {"J", &KCC_ParseNc::GetJCommand, 9},
      {"S", &KCC_ParseNc::GetSCommand, 16},    {"R", &KCC_ParseNc::GetRCommand, 17},
      {"X", &KCC_ParseNc::GetXCommand, 20},    {"Y", &KCC_ParseNc::GetYCommand, 21}};
  for (const IntGetter& g : ints) {
    int value = -12345;
    const bool has = (parser.*g.get)(value);
    const RefSlot& r = ref.slots[g.slot];
    if (has != r.present || (has && value != r.intValue))
      return std::string(g.name) + " (int) " + std::to_string(value) + " vs " + std::to_string(r.intValue);
  }
  for (const DoubleGetter& g : doubles) {
    double value = -12345.0;
    const bool has = (parser.*g.get)(value);
    const RefSlot& r = ref.slots[g.slot];
    if (has != r.present || (has && !SameDouble(value, r.doubleValue)))
      return std::string(g.name) + " (double) " + std::to_string(value) + " vs " +
             std::to_string(r.doubleValue);
  }
  double v = -12345.0;
  const bool hasV = parser.GetVCommand(v);
  if (hasV != ref.slots[20].present || (hasV && !SameDouble(v, ref.slots[19].doubleValue)))
    return "V";
  return "";
}

}  // namespace

TEST(KccParseNcReference, RandomBlocksDecodeAsTheCharacterRulesSay) {
  std::mt19937 random(20261123);
  KCC_ParseNc parser;  // one parser for all blocks, as callers reuse it: nothing may leak between blocks
  for (int k = 0; k < 50000; ++k) {
    const std::string block = RandomBlock(random);
    const Reference ref(block);
    const bool result = parser.DecodeISOLine(KCString(block));
    ASSERT_EQ(result, ref.result) << "block '" << block << "'";
    const std::string difference = Difference(parser, ref);
    ASSERT_EQ(difference, "") << "block '" << block << "'";
  }
}
