// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/KCI_AuxHorLine.h"

KCI_AuxHorLine::~KCI_AuxHorLine() = default;
