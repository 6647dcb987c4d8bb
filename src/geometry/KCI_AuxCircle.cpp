// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/KCI_AuxCircle.h"

KCI_AuxCircle::~KCI_AuxCircle() = default;
