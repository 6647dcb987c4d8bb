// SPDX-License-Identifier: MIT
// CNcParameter and its kinds: one adjustable value bound to one line of NC program text. When the value
// changes, UpdateNcLine rewrites the line, keeping its name part and its comment.
//
//   KCString line("#105 = 1.250 (LEN)");
//   CNcParamDouble length;
//   length.SetDigitsAfter(3);
//   length.SetParam(2.0, &line);
//   length.UpdateNcLine();                        // line is now "#105=2(LEN)"
//
// Kinds:
// - CNcParamInteger, CNcParamDouble, CNcParamString: assignment lines "NAME = value (comment)"; the line is
//   rewritten as name part + value + comment with no blanks in between. A line without a name part (no '='
//   after a non-blank name) is not rewritten.
// - CNcParamSubProgId: the number of the P word after M98 ("N10 M98 P8010 L2").
// - CNcParamIsoCommand: the number of one address after a command text ("G01 X10. Y5": command G01,
//   address X).
// The parameter does not own its line; the line must outlive the parameter's use of it.
// See docs/behaviours.md#nc-parameter-lines.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// Abstract adjustable value bound to one line of NC program text, which UpdateNcLine rewrites.
class NCAPPKIT_EXPORT CNcParameter {
 public:
  /// No line bound.
  CNcParameter();
  /// Binds the same line.
  CNcParameter(const CNcParameter& other);
  /// Binds the same line.
  CNcParameter& operator=(const CNcParameter& other);
  virtual ~CNcParameter();

  /// Rewrite the bound line from the value. False (line unchanged) when no line is bound or the line does
  /// not have the expected form.
  virtual bool UpdateNcLine() = 0;

  /// True when a line is bound.
  bool HasNcLine() const;
  /// The bound line, or null.
  KCString* GetNcLine() const;

 protected:
  /// The name part of the line with '=' ("#100 = 12.5 (FEED)" gives "#100="), or "" when the line has no
  /// '=', starts with it, or has only blanks before it; "" also without a line.
  KCString ExtractParamNumber() const;
  /// The bracketed comment after the '=' ("#1=5 (A)" gives "(A)", a missing ')' is added); "" when there is
  /// none, when the '(' comes before the '=', or without a line. A line without '=' keeps its bracketed text.
  KCString ExtractComment() const;
  /// Bind `line` when it is not null (a null keeps the line bound before).
  void SetNcLine(KCString* line);

 private:
  KCString* m_ncLine = nullptr;
};

/// An integer value ("#110 = 4 (COUNT)").
class NCAPPKIT_EXPORT CNcParamInteger : public CNcParameter {
 public:
  /// Value 0, no line.
  CNcParamInteger();
  /// Copies the value fields and binds the same line.
  CNcParamInteger(const CNcParamInteger& other);
  /// Copies the value fields and binds the same line.
  CNcParamInteger& operator=(const CNcParamInteger& other);
  ~CNcParamInteger() override;

  /// Store the value and bind `line` when it is not null.
  void SetParam(int value, KCString* line);
  /// The value.
  int GetValue() const;
  /// Line becomes name part + decimal value + comment. False without a line or a name part.
  bool UpdateNcLine() override;

 private:
  int m_value = 0;
};

/// A real value written with a chosen number of decimals, trailing zeros removed ("#105=2(LEN)").
class NCAPPKIT_EXPORT CNcParamDouble : public CNcParameter {
 public:
  /// No value (0.0), 0 decimals, no line.
  CNcParamDouble();
  /// Copies the value fields and binds the same line.
  CNcParamDouble(const CNcParamDouble& other);
  /// Copies the value fields and binds the same line.
  CNcParamDouble& operator=(const CNcParamDouble& other);
  ~CNcParamDouble() override;

  /// Store the value (it then counts as set) and bind `line` when it is not null.
  void SetParam(double value, KCString* line);
  /// The value.
  double GetValue() const;
  /// Store the value; it then counts as set.
  void SetValue(double value);
  /// True when a value was set.
  bool HasValue() const;
  /// Mark the value as not set (the stored number is kept). Despite its name this clears the flag.
  void HasValueNone();
  /// Number of decimals written by UpdateNcLine (negative: the shortest exact form).
  void SetDigitsAfter(int digits);
  /// Number of decimals written by UpdateNcLine.
  int GetDigitsAfter() const;
  /// Line becomes name part + value text + comment; the value is written whether it counts as set or not.
  /// False without a line or a name part.
  bool UpdateNcLine() override;

 private:
  bool m_hasValue = false;
  double m_value = 0.0;
  int m_digitsAfter = 0;
};

/// A text value ("NAME=TEXT").
class NCAPPKIT_EXPORT CNcParamString : public CNcParameter {
 public:
  /// Empty value, no line.
  CNcParamString();
  /// Copies the value fields and binds the same line.
  CNcParamString(const CNcParamString& other);
  /// Copies the value fields and binds the same line.
  CNcParamString& operator=(const CNcParamString& other);
  ~CNcParamString() override;

  /// Store the value and bind `line` when it is not null.
  void SetParam(const KCString& value, KCString* line);
  /// A copy of the value.
  KCString GetValue() const;
  /// Line becomes name part + value + comment. False without a line or a name part.
  bool UpdateNcLine() override;

 private:
  KCString m_value;
};

/// The sub-program number of an M98 call ("N10 M98 P8010 L2").
class NCAPPKIT_EXPORT CNcParamSubProgId : public CNcParameter {
 public:
  /// Number 0, no line.
  CNcParamSubProgId();
  /// Copies the value fields and binds the same line.
  CNcParamSubProgId(const CNcParamSubProgId& other);
  /// Copies the value fields and binds the same line.
  CNcParamSubProgId& operator=(const CNcParamSubProgId& other);
  ~CNcParamSubProgId() override;

  /// Store the sub-program number and bind `line` when it is not null.
  void SetParam(int value, KCString* line);
  /// The sub-program number.
  int GetValue() const;
  /// Replace the digits after the first P following M98: text before the P (trailing blanks removed) + " P"
  /// + number + the rest. False without a line, without M98 or P after it, or with nothing before the P.
  bool UpdateNcLine() override;

 private:
  int m_value = 0;
};

/// The number of one address of an ISO command ("G01 X10. Y5": command "G01", address 'X').
class NCAPPKIT_EXPORT CNcParamIsoCommand : public CNcParameter {
 public:
  /// Empty command, address '-', value 0.0, no line.
  CNcParamIsoCommand();
  /// Copies the value fields and binds the same line.
  CNcParamIsoCommand(const CNcParamIsoCommand& other);
  /// Copies the value fields and binds the same line.
  CNcParamIsoCommand& operator=(const CNcParamIsoCommand& other);
  ~CNcParamIsoCommand() override;

  /// Store the value and bind `line` when it is not null.
  void SetParam(double value, KCString* line);
  /// Store command text, address letter and value, and bind `line` when it is not null.
  void SetParam(const KCString& command, char address, double value, KCString* line);
  /// The value.
  double GetValue() const;
  /// Set the command text searched for in the line.
  void SetCommand(const KCString& command);
  /// The command text.
  KCString GetCommand() const;
  /// Set the address letter whose number is replaced.
  void SetAddress(char address);
  /// The address letter.
  char GetAddress() const;
  /// A decimals count kept with the parameter for the client (3 at construction); UpdateNcLine ignores it.
  void SetDecimals(int decimals);
  /// The decimals count kept for the client.
  int GetDecimals() const;
  /// After the command, replace the number (digits, '-', '.') of the first address letter: text before the
  /// letter (trailing blanks removed) + blank + letter + value (shortest form) + the rest. False without a
  /// line, when the command or the letter is missing, or with nothing before the letter.
  bool UpdateNcLine() override;

 private:
  KCString m_command;
  char m_address = '-';
  double m_value = 0.0;
  int m_decimals = 3;
};
