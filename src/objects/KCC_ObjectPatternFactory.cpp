// SPDX-License-Identifier: MIT
// KCC_ObjectPatternFactory: placement patterns by type name.
#include "ncappkit/objects/KCC_ObjectPatternFactory.h"

#include "ncappkit/objects/KCC_ObjectPattern.h"

KCC_ObjectPatternFactory::~KCC_ObjectPatternFactory() = default;

KCC_ObjectPattern* KCC_ObjectPatternFactory::CreateByName(const KCString& name) const {
  if (name == "LinearAngle")
    return new KCC_ObjectPattern_LinearAngle();
  if (name == "Grid")
    return new KCC_ObjectPattern_Grid();
  if (name == "Circular")
    return new KCC_ObjectPattern_Circular();
  return nullptr;
}
