// SPDX-License-Identifier: MIT
// KCC_ObjectData: base of the listed objects.
#include "ncappkit/objects/KCC_ObjectData.h"

KCC_ObjectData::~KCC_ObjectData() = default;

KCString KCC_ObjectData::GetObjectString() const {
  return KCString();
}
