// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCI_GUI_GetString.h"

KCI_GUI_GetString::~KCI_GUI_GetString() = default;
