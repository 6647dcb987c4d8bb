// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCI_FrmGUIActionList.h"

KCI_FrmGUIActionList::~KCI_FrmGUIActionList() = default;
