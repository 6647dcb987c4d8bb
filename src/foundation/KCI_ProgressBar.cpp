// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCI_ProgressBar.h"

KCI_ProgressBar::~KCI_ProgressBar() = default;

void KCI_ProgressBar::SetKccMessage(const KCString& header, const KCStringList& lines) {
  ShowMessage(header, lines);
}
