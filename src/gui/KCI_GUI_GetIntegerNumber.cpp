// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCI_GUI_GetIntegerNumber.h"

KCI_GUI_GetIntegerNumber::~KCI_GUI_GetIntegerNumber() = default;
