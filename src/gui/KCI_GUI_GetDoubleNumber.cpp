// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCI_GUI_GetDoubleNumber.h"

KCI_GUI_GetDoubleNumber::~KCI_GUI_GetDoubleNumber() = default;
