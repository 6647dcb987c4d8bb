// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCC_MessageReporter.h"

KCI_MessageReporter::~KCI_MessageReporter() = default;

KCC_MessageReporter::~KCC_MessageReporter() = default;

KCC_MessageNone::~KCC_MessageNone() = default;

void KCC_MessageNone::SetHeader(const KCString& /*header*/) {}

void KCC_MessageNone::SetMessage(const KCString& /*message*/) {}

void KCC_MessageNone::AddMessage(const KCString& /*text*/) {}

void KCC_MessageNone::DoReport() {}

void KCC_MessageNone::ClearMessage() {}
