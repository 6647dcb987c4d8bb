// SPDX-License-Identifier: MIT
// KCGeometry: static helpers on KC2DLine and KC2DPoint: perpendicular distance, perpendicular foot, and
// whether a point lies on a closed segment.
//
//   KC2DLine line(0, 0, 10, 0);
//   KC2DPoint foot;
//   KCGeometry::ProjectPointOnLine(foot, line, KC2DPoint(3, 4));             // foot (3, 0)
//   double d = 0;
//   KCGeometry::GetDistanceLinePoint(line, KC2DPoint(3, 4), d);             // d = 4
//   int where = KCGeometry::Point2DOnClosedLine(line, foot);                 // KCGeometry::kInside
//
// A zero-length line (start and end exactly equal) stands for its start point: the distance is the
// distance to that point and the foot is that point; both operations then return false.
// See docs/behaviours.md#2d-geometry.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KC2DElement.h"

/// Static helpers on KC2DLine and KC2DPoint: perpendicular distance, foot, and point on a closed segment.
class NCAPPKIT_EXPORT KCGeometry {
 public:
  /// Point2DOnClosedLine: the point is not on the closed segment.
  static constexpr int kOff = 0;
  /// Point2DOnClosedLine: the point is at the start point.
  static constexpr int kAtStart = 1;
  /// Point2DOnClosedLine: the point is at the end point (and not at the start point).
  static constexpr int kAtEnd = 2;
  /// Point2DOnClosedLine: the point is on the segment between its ends.
  static constexpr int kInside = 3;
  /// Distance within which a point counts as lying on a segment or at its end.
  static constexpr double kOnLineTolerance = 1e-9;
  /// Point2DOnClosedLine: units in the last place of the line's largest coordinate that a point may lie off
  /// the line and still count as on it (where that is more than kOnLineTolerance).
  static constexpr double kOnLineRoundingUnits = 8.0;

  /// Nothing to set up: the class holds no data.
  KCGeometry() = default;
  /// Nothing to copy: the class holds no data.
  KCGeometry(const KCGeometry&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCGeometry& operator=(const KCGeometry&) = default;
  virtual ~KCGeometry();

  /// Perpendicular distance from `point` to the infinite line through `line` into `distance`; true. For a
  /// zero-length line the distance to its start point, and false.
  static bool GetDistanceLinePoint(const KC2DLine& line, const KC2DPoint& point, double& distance) noexcept;
  /// Foot of the perpendicular from `point` on the infinite line through `line` into `result`; true. For a
  /// zero-length line `result` is its start point, and false.
  static bool ProjectPointOnLine(KC2DPoint& result, const KC2DLine& line, const KC2DPoint& point) noexcept;
  /// Where `point` lies relative to the closed segment `line`, within kOnLineTolerance (for kInside widened
  /// to kOnLineRoundingUnits units in the last place of the line's largest coordinate, see
  /// src/foundation/KCGeometry.cpp): kAtStart, kAtEnd, kInside (all > 0), or kOff (0). NaN coordinates give
  /// kOff.
  static int Point2DOnClosedLine(const KC2DLine& line, const KC2DPoint& point) noexcept;
};
