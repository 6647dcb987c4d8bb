// SPDX-License-Identifier: MIT
// KCCanvas: the interface's one out-of-line member, so that its type information lives in the library.
#include "ncappkit/draw/KCCanvas.h"

KCCanvas::~KCCanvas() = default;
