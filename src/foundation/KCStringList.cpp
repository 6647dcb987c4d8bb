// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCStringList.h"

KCStringList::~KCStringList() = default;
