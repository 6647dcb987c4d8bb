#include "ncappkit/foundation/KCMath.h"

#include <cmath>

bool KCMath::AlmostEq(double a, double b, double tolerance) noexcept {
  if (a == b)
    return true;  // also equal infinities
  return std::fabs(a - b) <= tolerance;
}
