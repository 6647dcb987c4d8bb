// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/KCI_i2DLine.h"

KCI_i2DLine::~KCI_i2DLine() = default;
