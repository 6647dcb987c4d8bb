// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/KCI_AuxLine.h"

KCI_AuxLine::~KCI_AuxLine() = default;
