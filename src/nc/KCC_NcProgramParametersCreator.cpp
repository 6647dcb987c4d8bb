// SPDX-License-Identifier: MIT
// KCC_NcProgramParametersCreator: new parameter and ISO command lines.
#include "ncappkit/nc/KCC_NcProgramParametersCreator.h"

namespace {

// A non-empty comment in bracket form: ')' appended and '(' put in front where missing.
KCString BracketComment(const KCString& comment) {
  if (comment.IsEmpty())
    return comment;
  KCString text(comment);
  if (text.GetAt(text.GetLength() - 1) != ')')
    text += ')';
  if (text.GetAt(0) != '(')
    text = KCString('(') + text;
  return text;
}

KCString ValueText(double value) {
  KCString text(value, -1, false);
  text.CleanDoubleString();
  return text;
}

}  // namespace

KCC_NcProgramParametersCreator::KCC_NcProgramParametersCreator(KCI_MessagesFile& messagesFile)
    : m_messagesFile(messagesFile) {}
KCC_NcProgramParametersCreator::KCC_NcProgramParametersCreator(const KCC_NcProgramParametersCreator& other) =
    default;
KCC_NcProgramParametersCreator& KCC_NcProgramParametersCreator::operator=(
    const KCC_NcProgramParametersCreator&) {
  return *this;
}
KCC_NcProgramParametersCreator::~KCC_NcProgramParametersCreator() = default;

KCString KCC_NcProgramParametersCreator::DumpParameter(const KCString& name, const KCString& value,
                                                       const KCString& comment) {
  return name + KCString('=') + value + BracketComment(comment);
}

KCString KCC_NcProgramParametersCreator::DumpParameter(const KCString& name, int value,
                                                       const KCString& comment) {
  return DumpParameter(name, KCString(value, false), comment);
}

KCString KCC_NcProgramParametersCreator::DumpIsoCommand(const KCString& command, char address, double value,
                                                        const KCString& comment) {
  return DumpIsoCommand(command, address, value, '\0', 0.0, comment);
}

KCString KCC_NcProgramParametersCreator::DumpIsoCommand(const KCString& command, char address, double value,
                                                        char address2, double value2,
                                                        const KCString& comment) {
  KCString line = command + KCString(address) + ValueText(value);
  if (address2 != '\0')
    line += KCString(address2) + ValueText(value2);
  return line + BracketComment(comment);
}

KCString KCC_NcProgramParametersCreator::GetKccMessage(const KCString& key1, const KCString& key2) {
  return m_messagesFile.GetMessage(key1, key2);
}
