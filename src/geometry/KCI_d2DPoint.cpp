// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/KCI_d2DPoint.h"

KCI_d2DPoint::~KCI_d2DPoint() = default;
