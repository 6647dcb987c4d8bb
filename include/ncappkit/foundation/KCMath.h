// SPDX-License-Identifier: MIT
// KCMath: small numeric helpers of the class library.
//
//   if (KCMath::AlmostEq(a, b, 1e-6)) ...
#pragma once

#include "ncappkit/export.h"

/// Small numeric helpers, and the one definition of pi in the library.
class NCAPPKIT_EXPORT KCMath {
 public:
  /// True when |a - b| <= tolerance (a difference equal to the tolerance counts as equal). NaN is never
  /// almost equal to anything; equal infinities are.
  static bool AlmostEq(double a, double b, double tolerance) noexcept;
  /// Pi.
  static constexpr double Pi = 3.14159265358979323846;
  /// Degrees to radians.
  static double DegToRad(double degrees) noexcept { return degrees * (Pi / 180.0); }
  /// Radians to degrees.
  static double RadToDeg(double radians) noexcept { return radians * (180.0 / Pi); }
};
