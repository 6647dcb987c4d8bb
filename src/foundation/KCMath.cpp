// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCMath.h"

#include <cmath>

bool KCMath::AlmostEq(double a, double b, double tolerance) noexcept {
  if (a == b)
    return true;  // also equal infinities
  return std::fabs(a - b) <= tolerance;
}

// Definitions of the class's constants. With them the Windows DLL exports the constants, so that a program
// that takes one by reference or address links against the DLL's copy.
constexpr double KCMath::Pi;
