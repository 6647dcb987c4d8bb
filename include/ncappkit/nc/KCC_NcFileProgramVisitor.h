// SPDX-License-Identifier: MIT
// KCC_NcFileProgramVisitor: the visitor interface over NC file programs.
//
// Implement Visit and hand the visitor to KCC_NcFileProgram::Accept or KCC_NcFileProgramList::Accept:
//
//   class CountLines : public KCC_NcFileProgramVisitor {
//    public:
//     bool Visit(KCC_NcFileProgram& p) override { total += p.GetStringList().size(); return true; }
//     std::size_t total = 0;
//   };
#pragma once

#include "ncappkit/export.h"

class KCC_NcFileProgram;

/// Visitor over the programs of an NC file.
class NCAPPKIT_EXPORT KCC_NcFileProgramVisitor {
 public:
  /// Nothing to set up: the class holds no data.
  KCC_NcFileProgramVisitor() = default;
  /// Nothing to copy: the class holds no data.
  KCC_NcFileProgramVisitor(const KCC_NcFileProgramVisitor&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCC_NcFileProgramVisitor& operator=(const KCC_NcFileProgramVisitor&) = default;
  virtual ~KCC_NcFileProgramVisitor();

  /// Called with one program; the result is handed back to the caller of Accept.
  virtual bool Visit(KCC_NcFileProgram& program) = 0;
};
