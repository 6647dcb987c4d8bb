// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCC_GUI_ActionVisitor.h"

KCC_GUI_ActionVisitor::~KCC_GUI_ActionVisitor() = default;
