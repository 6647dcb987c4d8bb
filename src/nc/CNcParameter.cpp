// SPDX-License-Identifier: MIT
// CNcParameter family: rewriting parameter lines, sub-program calls and ISO command values.
#include "ncappkit/nc/CNcParameter.h"

#include "foundation/KCCharClass.h"

#include <cstdint>

namespace {

using ncappkit_detail::IsDigit;

// Text of a value as the creator and the ISO command write it: shortest exact form, tidied.
KCString CleanValueText(double value) {
  KCString text(value, -1, false);
  text.CleanDoubleString();
  return text;
}

}  // namespace

// ---- CNcParameter ----

CNcParameter::CNcParameter() = default;
CNcParameter::CNcParameter(const CNcParameter& other) = default;
CNcParameter& CNcParameter::operator=(const CNcParameter& other) = default;
CNcParameter::~CNcParameter() = default;

bool CNcParameter::HasNcLine() const {
  return m_ncLine != nullptr;
}
KCString* CNcParameter::GetNcLine() const {
  return m_ncLine;
}

void CNcParameter::SetNcLine(KCString* line) {
  if (line != nullptr)
    m_ncLine = line;
}

KCString CNcParameter::ExtractParamNumber() const {
  if (m_ncLine == nullptr)
    return KCString();
  const std::uint64_t equals = m_ncLine->Find('=');
  if (equals == KCString::npos || equals == 0)
    return KCString();
  KCString name = m_ncLine->Left(static_cast<int>(equals));
  name.TrimRight();
  if (!name.IsEmpty())
    name += '=';
  return name;
}

KCString CNcParameter::ExtractComment() const {
  if (m_ncLine == nullptr)
    return KCString();
  const std::uint64_t equals = m_ncLine->Find('=');
  const std::uint64_t open = m_ncLine->Find('(');
  if (open == KCString::npos)
    return KCString();
  if (equals != KCString::npos && open < equals)
    return KCString();
  KCString comment = m_ncLine->Mid(static_cast<int>(open));
  comment.Trim();
  if (!comment.IsEmpty() && comment.GetAt(comment.GetLength() - 1) != ')')
    comment += ')';
  return comment;
}

// ---- CNcParamInteger ----

CNcParamInteger::CNcParamInteger() = default;
CNcParamInteger::CNcParamInteger(const CNcParamInteger& other) = default;
CNcParamInteger& CNcParamInteger::operator=(const CNcParamInteger& other) = default;
CNcParamInteger::~CNcParamInteger() = default;

void CNcParamInteger::SetParam(int value, KCString* line) {
  m_value = value;
  SetNcLine(line);
}
int CNcParamInteger::GetValue() const {
  return m_value;
}

bool CNcParamInteger::UpdateNcLine() {
  const KCString name = ExtractParamNumber();
  if (name.IsEmpty())
    return false;
  *GetNcLine() = name + KCString(m_value, false) + ExtractComment();
  return true;
}

// ---- CNcParamDouble ----

CNcParamDouble::CNcParamDouble() = default;
CNcParamDouble::CNcParamDouble(const CNcParamDouble& other) = default;
CNcParamDouble& CNcParamDouble::operator=(const CNcParamDouble& other) = default;
CNcParamDouble::~CNcParamDouble() = default;

void CNcParamDouble::SetParam(double value, KCString* line) {
  m_value = value;
  m_hasValue = true;
  SetNcLine(line);
}
double CNcParamDouble::GetValue() const {
  return m_value;
}
void CNcParamDouble::SetValue(double value) {
  m_value = value;
  m_hasValue = true;
}
bool CNcParamDouble::HasValue() const {
  return m_hasValue;
}
void CNcParamDouble::HasValueNone() {
  m_hasValue = false;
}
void CNcParamDouble::SetDigitsAfter(int digits) {
  m_digitsAfter = digits;
}
int CNcParamDouble::GetDigitsAfter() const {
  return m_digitsAfter;
}

bool CNcParamDouble::UpdateNcLine() {
  const KCString name = ExtractParamNumber();
  if (name.IsEmpty())
    return false;
  KCString text(m_value, m_digitsAfter, false);
  // Trailing zeros of the fraction go, then a bare point: "12.500" -> "12.5", "3.000" -> "3". Only a point
  // strictly inside the text counts, so "5." and ".5" keep their form.
  const std::uint64_t point = text.Find('.');
  if (point != KCString::npos && point > 0 && point + 1 < text.size()) {
    text.TrimRight('0');
    if (text.GetAt(text.GetLength() - 1) == '.')
      text = text.Left(text.GetLength() - 1);
  }
  *GetNcLine() = name + text + ExtractComment();
  return true;
}

// ---- CNcParamString ----

CNcParamString::CNcParamString() = default;
CNcParamString::CNcParamString(const CNcParamString& other) = default;
CNcParamString& CNcParamString::operator=(const CNcParamString& other) = default;
CNcParamString::~CNcParamString() = default;

void CNcParamString::SetParam(const KCString& value, KCString* line) {
  m_value = value;
  SetNcLine(line);
}
KCString CNcParamString::GetValue() const {
  return m_value;
}

bool CNcParamString::UpdateNcLine() {
  const KCString name = ExtractParamNumber();
  if (name.IsEmpty())
    return false;
  *GetNcLine() = name + m_value + ExtractComment();
  return true;
}

// ---- CNcParamSubProgId ----

CNcParamSubProgId::CNcParamSubProgId() = default;
CNcParamSubProgId::CNcParamSubProgId(const CNcParamSubProgId& other) = default;
CNcParamSubProgId& CNcParamSubProgId::operator=(const CNcParamSubProgId& other) = default;
CNcParamSubProgId::~CNcParamSubProgId() = default;

void CNcParamSubProgId::SetParam(int value, KCString* line) {
  m_value = value;
  SetNcLine(line);
}
int CNcParamSubProgId::GetValue() const {
  return m_value;
}

bool CNcParamSubProgId::UpdateNcLine() {
  KCString* line = GetNcLine();
  if (line == nullptr)
    return false;
  const std::uint64_t call = line->Find(KCString("M98"));
  if (call == KCString::npos)
    return false;
  const std::uint64_t p = line->Find('P', call + 3);
  if (p == KCString::npos)
    return false;
  int digitsEnd = static_cast<int>(p) + 1;
  while (IsDigit(line->GetAt(digitsEnd)))
    ++digitsEnd;
  KCString head = line->Left(static_cast<int>(p));
  head.TrimRight();
  if (head.IsEmpty())
    return false;
  *line = head + KCString(" P") + KCString(m_value, false) + line->Mid(digitsEnd);
  return true;
}

// ---- CNcParamIsoCommand ----

CNcParamIsoCommand::CNcParamIsoCommand() = default;
CNcParamIsoCommand::CNcParamIsoCommand(const CNcParamIsoCommand& other) = default;
CNcParamIsoCommand& CNcParamIsoCommand::operator=(const CNcParamIsoCommand& other) = default;
CNcParamIsoCommand::~CNcParamIsoCommand() = default;

void CNcParamIsoCommand::SetParam(double value, KCString* line) {
  m_value = value;
  SetNcLine(line);
}
void CNcParamIsoCommand::SetParam(const KCString& command, char address, double value, KCString* line) {
  m_command = command;
  m_address = address;
  SetParam(value, line);
}
double CNcParamIsoCommand::GetValue() const {
  return m_value;
}
void CNcParamIsoCommand::SetCommand(const KCString& command) {
  m_command = command;
}
KCString CNcParamIsoCommand::GetCommand() const {
  return m_command;
}
void CNcParamIsoCommand::SetAddress(char address) {
  m_address = address;
}
char CNcParamIsoCommand::GetAddress() const {
  return m_address;
}
void CNcParamIsoCommand::SetDecimals(int decimals) {
  m_decimals = decimals;
}
int CNcParamIsoCommand::GetDecimals() const {
  return m_decimals;
}

bool CNcParamIsoCommand::UpdateNcLine() {
  KCString* line = GetNcLine();
  if (line == nullptr)
    return false;
  const std::uint64_t command = line->Find(m_command);
  if (command == KCString::npos)
    return false;
  const std::uint64_t letter = line->Find(m_address, command + m_command.size());
  if (letter == KCString::npos)
    return false;
  int numberEnd = static_cast<int>(letter) + 1;
  for (char c = line->GetAt(numberEnd); IsDigit(c) || c == '-' || c == '.'; c = line->GetAt(numberEnd)) {
    ++numberEnd;
  }
  KCString head = line->Left(static_cast<int>(letter));
  head.TrimRight();
  if (head.IsEmpty())
    return false;
  *line = head + KCString(' ') + KCString(m_address) + CleanValueText(m_value) + line->Mid(numberEnd);
  return true;
}
