// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/KCI_d2DVerLine.h"

KCI_d2DVerLine::~KCI_d2DVerLine() = default;
