// SPDX-License-Identifier: MIT
// KCI_Draw: the interface's one out-of-line member, so that its type information lives in the library.
#include "ncappkit/draw/KCI_Draw.h"

KCI_Draw::~KCI_Draw() = default;
