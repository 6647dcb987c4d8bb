// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/KCI_d2DHorLine.h"

KCI_d2DHorLine::~KCI_d2DHorLine() = default;
