// SPDX-License-Identifier: MIT
// KCC_ParseNc: decodes single blocks of an ISO/Fanuc-style NC program into address words.
//
// One DecodeISOLine call splits a block into letter/number words and keeps, for every address letter the
// parser knows, whether the word was present and its value; the getters then hand out single values. The
// class also offers line tests that do not touch the decoded state: program end (M30, M99), program-number
// lines (O1234 / :1234) and parameter assignment lines (#100 = 12.5 (text), NAME = 12.5 ; text).
//
//   KCC_ParseNc parser;
//   parser.DecodeISOLine("N10 G01 Y0.25 F300 M03");
//   double x = 0.0;
//   if (parser.GetXCommand(x)) { ... }               // x == -12.5
//
// Decoding rules worth knowing (they are deliberate and relied on by existing callers):
// - A repeated letter continues the earlier word of the block: X10 X20 gives X = 1020. The first G and the
//   first M of a block go to the "primary" slot, every later one accumulates in the "secondary" slot.
// - A word ends at any character other than '-', '.' or a digit; a blank after the letter gives no word.
// - The sign is applied at the first non-zero digit after a '-', wherever the '-' stands in the word.
// - GetVCommand tests whether X was present and then returns the V value.
// - The letters H, O, Q, U, W, Z and all lower-case letters are not decoded.
// Decoding never allocates memory.
// See docs/behaviours.md#nc-block-decoder.
#pragma once

#include <cstdint>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// Decodes single blocks of an ISO/Fanuc-style NC program into address words.
class NCAPPKIT_EXPORT KCC_ParseNc {
 public:
  /// All address slots cleared (not present, 0, 0.0).
  KCC_ParseNc();
  /// Copies all address slots.
  KCC_ParseNc(const KCC_ParseNc& other);
  /// Copies all address slots.
  KCC_ParseNc& operator=(const KCC_ParseNc& other);
  virtual ~KCC_ParseNc();

  /// Decode one block into the address slots (all slots are cleared first). True when the whole line was
  /// scanned; false when the left-trimmed line has fewer than 2 characters, or a word holds a second '-'
  /// before its sign was applied, or a second '.'. Words decoded before a fault keep their values.
  bool DecodeISOLine(const KCString& line);

  // Getters: each reports a word of the last decoded block. When the letter was present it writes the
  // value and returns true; otherwise it returns false and leaves `value` untouched.
  /// The A word: its integer part; false when the block had no A.
  bool GetACommand(int& value) const;
  /// The A word: its value with its fraction; false when the block had no A.
  bool GetACommand(double& value) const;
  /// The B word: its integer part; false when the block had no B.
  bool GetBCommand(int& value) const;
  /// The B word: its value with its fraction; false when the block had no B.
  bool GetBCommand(double& value) const;
  /// The C word: its integer part; false when the block had no C.
  bool GetCCommand(int& value) const;
  /// The C word: its value with its fraction; false when the block had no C.
  bool GetCCommand(double& value) const;
  /// The D word: its value with its fraction; false when the block had no D.
  bool GetDCommand(double& value) const;
  /// The E word: its integer part; false when the block had no E.
  bool GetECommand(int& value) const;
  /// The F word: its integer part; false when the block had no F.
  bool GetFCommand(int& value) const;
  /// The first G word, its integer part; false when there was none.
  bool GetGprimCommand(int& value) const;
  /// The first G word; false when there was none.
  bool GetGprimCommand(double& value) const;
  /// The later G words, accumulated into one value (G90 G01 G02: 102); false when there was none.
  bool GetGsecundCommand(double& value) const;
  /// The I word: its value with its fraction; false when the block had no I.
  bool GetICommand(double& value) const;
  /// The J word: its value with its fraction; false when the block had no J.
  bool GetJCommand(double& value) const;
  /// The K word: its integer part; false when the block had no K.
  bool GetKCommand(int& value) const;
  /// The L word: its integer part; false when the block had no L.
  bool GetLCommand(int& value) const;
  /// The first M word; false when there was none.
  bool GetMprimCommand(int& value) const;
  /// The later M words, accumulated into one value; false when there was none.
  bool GetMsecCommand(int& value) const;
  /// The N word: its integer part; false when the block had no N.
  bool GetNCommand(int& value) const;
  /// The P word: its integer part; false when the block had no P.
  bool GetPCommand(int& value) const;
  /// The S word: its integer part; false when the block had no S.
  bool GetSCommand(int& value) const;
  /// The S word: its value with its fraction; false when the block had no S.
  bool GetSCommand(double& value) const;
  /// The R word: its value with its fraction; false when the block had no R.
  bool GetRCommand(double& value) const;
  /// The T word: its integer part; false when the block had no T.
  bool GetTCommand(int& value) const;
  /// True when the block had an X word; then `value` is the V value (0.0 when the block had no V).
  bool GetVCommand(double& value) const;
  /// The X word: its value with its fraction; false when the block had no X.
  bool GetXCommand(double& value) const;
  /// The Y word: its value with its fraction; false when the block had no Y.
  bool GetYCommand(double& value) const;

  /// True when the NUL-terminated `line` holds M30 outside round brackets, not followed by a digit.
  bool Check_M30_Command(char* line);
  /// As above, for a read-only text.
  bool Check_M30_Command(const char* line);
  /// True when `line` holds M30 or M99 outside round brackets, not followed by a digit. The flags tell which
  /// code ended the scan; on false they are false, unless no position outside brackets was examined (then
  /// they keep the caller's values).
  bool Check_M30_M99_Command(char* line, bool& foundM30, bool& foundM99);
  /// As above, for a read-only text.
  bool Check_M30_M99_Command(const char* line, bool& foundM30, bool& foundM99);

  /// Parse a program-number line (O1234, :1234, :O1234, leading blanks allowed) into `number`. False when the
  /// line is not one.
  bool GetProgramNumber(const KCString& line, int& number);
  /// As GetProgramNumber; on success also appends "(text)" to `comment` (not cleared first), the text between
  /// the last '(' and the first ')', or "()" when the line has no such pair.
  bool GetProgramNumberWithComment(const KCString& line, int& number, KCString& comment);

  /// Parse a numbered parameter line "#nnn = value (comment)". The parameter number is read from the three
  /// characters after '#', and the first four characters are then dropped whatever they are, so a shorter
  /// number does not parse ("#1 = 5" gives false). `valueText` gets the text after '=' up to the first '('.
  /// A malformed value sets `error` and returns `resultOnError`.
  bool GetNcParameter(const KCString& line, int& paramNumber, int& intValue, double& doubleValue,
                      KCString& valueText, bool resultOnError, bool& error);
  /// Short form: a malformed value gives false.
  bool GetNcParameter(const KCString& line, int& paramNumber, int& intValue, double& doubleValue);
  /// Parse a named parameter line "NAME = value ; comment". `name` is the trimmed text before '=';
  /// `valueText` the text after '=' up to the first ';'. A malformed value sets `error` and returns
  /// `resultOnError`. A line starting with ';' is a comment and gives false.
  bool GetNcTextParameter(const KCString& line, KCString& name, int& intValue, double& doubleValue,
                          KCString& valueText, bool resultOnError, bool& error);
  /// Short form: a malformed value gives false.
  bool GetNcTextParameter(const KCString& line, KCString& name, int& intValue, double& doubleValue);

 protected:
  /// True for '-', '.' and the digits; false for everything else ('+', ',', blanks, 'E', ...).
  bool IsCharNumeric(char c) const;

 private:
  /// One address letter of the block.
  struct NcAddressSlot {
    bool present = false;
    std::int32_t intValue = 0;
    double doubleValue = 0.0;
  };

  // The slots in their fixed order; kSpare is never filled or read, it only keeps the layout.
  enum Slot : int {
    kA,
    kB,
    kC,
    kD,
    kE,
    kF,
    kGPrim,
    kGSec,
    kI,
    kJ,
    kK,
    kL,
    kMPrim,
    kMSec,
    kN,
    kSpare,
    kP,
    kS,
    kR,
    kT,
    kV,
    kX,
    kY,
    kSlotCount
  };

  bool GetInt(int slot, int& value) const;
  bool GetDouble(int slot, double& value) const;

  NcAddressSlot m_slots[kSlotCount];
  // Bit s set: slot s may differ from its cleared state, so the next decode clears it (the others are clear).
  std::uint32_t m_usedSlots = 0;
};
