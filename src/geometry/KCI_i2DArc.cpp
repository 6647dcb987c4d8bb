// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/KCI_i2DArc.h"

KCI_i2DArc::~KCI_i2DArc() = default;
