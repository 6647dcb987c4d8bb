// SPDX-License-Identifier: MIT
// KCUnitMan: the class library's unit enumerations.
//
// tevDistUnit is the distance unit: 0 millimetre, 1 inch, 2 inch shown in thousandths (mil).
//
//   KCUnitMan::tevDistUnit unit = KCUnitMan::evDistMM;
#pragma once

#include "ncappkit/export.h"

/// Holder of the class library's unit enumerations.
class NCAPPKIT_EXPORT KCUnitMan {
 public:
  /// Distance units.
  enum tevDistUnit {
    evDistMM = 0,    ///< millimetre
    evDistInch = 1,  ///< inch
    evDistMil = 2    ///< inch, shown in thousandths (mil)
  };
};
