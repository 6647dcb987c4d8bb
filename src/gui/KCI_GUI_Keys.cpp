// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCI_GUI_Keys.h"

KCI_GUI_Keys::~KCI_GUI_Keys() = default;
