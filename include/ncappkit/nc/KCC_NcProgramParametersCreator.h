// SPDX-License-Identifier: MIT
// KCC_NcProgramParametersCreator: builds new NC lines (parameter assignments and ISO commands) and fetches
// message texts from the client's KCI_MessagesFile.
//
//   MyMessages messages;                          // the client's KCI_MessagesFile
//   KCC_NcProgramParametersCreator creator(messages);
//   KCString a = creator.DumpParameter("#100", "12.5", "FEED");       // "#100=12.5(FEED)"
//   KCString b = creator.DumpIsoCommand("G01", 'X', 10.0, 'Y', 2.5, ""); // "G01X10Y2.5"
//
// A non-empty comment is completed to bracket form ("FEED" -> "(FEED)", "(A" -> "(A)"); no blanks are put
// between the parts. Numbers are written in their shortest exact form, locale-free.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCI_MessagesFile.h"
#include "ncappkit/foundation/KCString.h"

/// Builds new NC lines (parameter assignments, ISO commands) and fetches message texts.
class NCAPPKIT_EXPORT KCC_NcProgramParametersCreator {
 public:
  /// A creator that reads message texts from `messagesFile`, which must outlive it.
  explicit KCC_NcProgramParametersCreator(KCI_MessagesFile& messagesFile);
  /// Refers to the same messages file.
  KCC_NcProgramParametersCreator(const KCC_NcProgramParametersCreator& other);
  /// Keeps its own messages file (a reference cannot be re-seated); there is nothing else to copy.
  KCC_NcProgramParametersCreator& operator=(const KCC_NcProgramParametersCreator& other);
  virtual ~KCC_NcProgramParametersCreator();

  /// name + "=" + value + comment ("#100", "12.5", "FEED" gives "#100=12.5(FEED)").
  KCString DumpParameter(const KCString& name, const KCString& value, const KCString& comment);
  /// name + "=" + decimal value + comment.
  KCString DumpParameter(const KCString& name, int value, const KCString& comment);
  /// command + address + value + comment ("G00", 'Z', 5.0, "" gives "G00Z5").
  KCString DumpIsoCommand(const KCString& command, char address, double value, const KCString& comment);
  /// command + address + value + address2 + value2 + comment; with address2 NUL the second word is left out.
  KCString DumpIsoCommand(const KCString& command, char address, double value, char address2, double value2,
                          const KCString& comment);

 protected:
  /// The text that the messages file gives for the two keys.
  KCString GetKccMessage(const KCString& key1, const KCString& key2);

 private:
  KCI_MessagesFile& m_messagesFile;
};
