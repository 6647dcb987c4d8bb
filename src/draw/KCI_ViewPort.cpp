// SPDX-License-Identifier: MIT
// KCI_ViewPort: the interface's one out-of-line member, so that its type information lives in the library.
#include "ncappkit/draw/KCI_ViewPort.h"

KCI_ViewPort::~KCI_ViewPort() = default;
