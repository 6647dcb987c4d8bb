// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/KCI_AuxVerLine.h"

KCI_AuxVerLine::~KCI_AuxVerLine() = default;
