// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCI_MessagesFile.h"

KCI_MessagesFile::~KCI_MessagesFile() = default;
