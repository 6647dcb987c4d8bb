// SPDX-License-Identifier: MIT
#include "ncappkit/geometry/KCI_d2DArc.h"

KCI_d2DArc::~KCI_d2DArc() = default;
