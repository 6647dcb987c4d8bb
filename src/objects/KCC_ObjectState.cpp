// SPDX-License-Identifier: MIT
// KCC_ObjectState: editing state of an object.
#include "ncappkit/objects/KCC_ObjectState.h"

KCC_ObjectState::~KCC_ObjectState() = default;
