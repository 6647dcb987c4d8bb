// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCI_FrmMessageBox.h"

KCI_FrmMessageBox::~KCI_FrmMessageBox() = default;
