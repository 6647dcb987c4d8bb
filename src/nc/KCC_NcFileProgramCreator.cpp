// SPDX-License-Identifier: MIT
// KCC_NcFileProgramCreator: appends new programs to its list.
#include "ncappkit/nc/KCC_NcFileProgramCreator.h"

#include "ncappkit/nc/KCC_NcFileProgram.h"
#include "ncappkit/nc/KCC_NcFileProgramList.h"

KCC_NcFileProgramCreator::KCC_NcFileProgramCreator(KCC_NcFileProgramList& target) : m_target(&target) {}
KCC_NcFileProgramCreator::KCC_NcFileProgramCreator(const KCC_NcFileProgramCreator& other) = default;
KCC_NcFileProgramCreator& KCC_NcFileProgramCreator::operator=(const KCC_NcFileProgramCreator& other) =
    default;
KCC_NcFileProgramCreator::~KCC_NcFileProgramCreator() = default;

KCC_NcFileProgram* KCC_NcFileProgramCreator::Create() {
  auto* program = new KCC_NcFileProgram();
  m_target->AddProgram(program);
  return program;
}
