// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomAreaVisitor: the interface's one out-of-line member, so that its type information lives in the
// library.
#include "ncappkit/gui/KCC_GUI_ZoomAreaVisitor.h"

KCC_GUI_ZoomAreaVisitor::~KCC_GUI_ZoomAreaVisitor() = default;
