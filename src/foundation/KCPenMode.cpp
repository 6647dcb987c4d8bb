// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCPenMode.h"

KCPenMode::~KCPenMode() = default;
