// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/KCI_i2DPoint.h"

KCI_i2DPoint::~KCI_i2DPoint() = default;
