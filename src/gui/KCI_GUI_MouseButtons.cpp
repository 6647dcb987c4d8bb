// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCI_GUI_MouseButtons.h"

KCI_GUI_MouseButtons::~KCI_GUI_MouseButtons() = default;
