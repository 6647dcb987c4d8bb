// SPDX-License-Identifier: MIT
// KCC_NcFileProgramVisitor: out-of-line destructor, so the interface's type information lives in the library.
#include "ncappkit/nc/KCC_NcFileProgramVisitor.h"

KCC_NcFileProgramVisitor::~KCC_NcFileProgramVisitor() = default;
