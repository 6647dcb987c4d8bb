// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCI_GUI_StatusLine.h"

KCI_GUI_StatusLine::~KCI_GUI_StatusLine() = default;
