// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/KCI_d2DLine.h"

KCI_d2DLine::~KCI_d2DLine() = default;
