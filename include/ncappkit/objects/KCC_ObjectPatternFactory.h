// SPDX-License-Identifier: MIT
// KCC_ObjectPatternFactory: creates a placement pattern from its type name, as saved under "Type" by
// KCC_ObjectPattern::WriteValuesToParagraph. Derive from it to add pattern kinds of your own.
//
//   KCC_ObjectPatternFactory factory;
//   std::unique_ptr<KCC_ObjectPattern> pattern(factory.CreateByName("Grid"));   // a default grid
//   if (pattern) pattern->ReadValuesFromParagraph(section);
//
// Rules worth knowing:
// - Names compare exactly, case-sensitive: "grid" gives null.
// - The factory cannot make a singleton pattern: "Singleton" gives null (construct
//   KCC_ObjectPattern_Singleton directly).
// - The pattern returned is new and owned by the caller.
// See docs/behaviours.md#placement-patterns.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

class KCC_ObjectPattern;

/// Creates default placement patterns from their type names "LinearAngle", "Grid" and "Circular".
class NCAPPKIT_EXPORT KCC_ObjectPatternFactory {
 public:
  /// A factory; it has no state.
  KCC_ObjectPatternFactory() = default;
  /// Copies the factory (there is nothing to copy).
  KCC_ObjectPatternFactory(const KCC_ObjectPatternFactory& other) = default;
  /// Copies the factory (there is nothing to copy); returns *this.
  KCC_ObjectPatternFactory& operator=(const KCC_ObjectPatternFactory& other) = default;
  /// Destroys the factory.
  virtual ~KCC_ObjectPatternFactory();

  /// A new default pattern for "LinearAngle", "Grid" or "Circular" (exact, case-sensitive), owned by the
  /// caller; null for any other name, "Singleton" included.
  virtual KCC_ObjectPattern* CreateByName(const KCString& name) const;
};
