// SPDX-License-Identifier: MIT
// KCC_NcFileProgramCreator: makes new, empty NC programs at the end of one program list.
//
//   KCC_NcFileProgramList list;
//   KCC_NcFileProgramCreator creator(list);
//   KCC_NcFileProgram* p = creator.Create();      // owned by `list`
//   p->SetProgramNumber(8010);
#pragma once

#include "ncappkit/export.h"

class KCC_NcFileProgram;
class KCC_NcFileProgramList;

/// Makes new, empty NC programs at the end of one program list.
class NCAPPKIT_EXPORT KCC_NcFileProgramCreator {
 public:
  /// A creator that appends to `target`; the list must outlive the creator.
  explicit KCC_NcFileProgramCreator(KCC_NcFileProgramList& target);
  /// Refers to the same list.
  KCC_NcFileProgramCreator(const KCC_NcFileProgramCreator& other);
  /// Refers to the other creator's list from now on.
  KCC_NcFileProgramCreator& operator=(const KCC_NcFileProgramCreator& other);
  virtual ~KCC_NcFileProgramCreator();

  /// A new empty program, appended to the end of the list (which owns it).
  KCC_NcFileProgram* Create();

 private:
  KCC_NcFileProgramList* m_target;
};
