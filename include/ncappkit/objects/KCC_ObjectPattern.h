// SPDX-License-Identifier: MIT
// KCC_ObjectPattern and its kinds: where the copies of one object are placed (a single copy, a row along a
// direction, a rectangular grid, or copies on a circle). A pattern hands out the offsets of the copies one at
// a time, relative to the first copy, saves itself to a KCParagraph section and shows itself as a short text.
//
//   KCC_ObjectPattern_Grid grid(5.0, 7.0, 3, 2);   // distances 5 and 7, 3 columns by 2 rows
//   double x = 0.0;
//   double y = 0.0;
//   for (bool more = grid.GetFirstPosition(x, y); more; more = grid.GetNextPosition(x, y))
//     PlaceCopyAt(x, y);                            // (0,0) (5,0) (10,0) (0,7) (5,7) (10,7)
//   grid.WriteValuesToParagraph(section);           // into section's child "ObjectPattern"
//
// Rules worth knowing (deliberate behaviours):
// - GetFirstPosition restarts the sequence at any time. Singleton, LinearAngle and Grid start at (0, 0); the
//   circular pattern starts on the circle (its centre is the origin), at the start angle.
// - Circular: GetFirstPosition and GetNextPosition give false when |radius| <= 0.0001 or |increment| <=
//   0.0001. The full turn is over unless |a + 1e-7 - start| <= 360, with a = counter * increment + start: an
//   increment of 90 gives 4 copies, -90 gives 5 (the fifth at -360, on top of the first), 100 gives 4, 45
//   gives 8, 360 gives 1 and -360 gives 2. A NaN passes the near-zero tests but fails the turn test, so a
//   NaN increment gives exactly one position (at the start angle) and a NaN or infinite start angle or an
//   infinite increment never gives an endless sequence.
// - Grid: one of the two numbers above 0 is enough for the first position, so 0 by 3 gives (0, 0) only;
//   H x V is computed in 64 bits, so large numbers do not overflow. The position counter is an int: every
//   sequence ends when it reaches INT_MAX, whatever is left of H x V (and for a circular pattern whose start
//   angle is so large that adding the increment changes nothing).
// - ReadValuesFromParagraph reads from the section it is given, not from its "ObjectPattern" child that
//   WriteValuesToParagraph creates: pass that child to read a saved pattern back. "Type" is not read, and a
//   missing key keeps the field's current value.
// - Real values are read leniently by LinearAngle and Grid (the number at the start of the text: "12abc"
//   reads as 12) and strictly by Circular (the whole text must be one number: "12abc" keeps the current
//   value). A NaN or infinity is written as "nan" / "inf", which neither read takes as a number, so reading
//   it back keeps the current value.
// - Setters store without any check; Clone, the copy constructor and the assignment take the position
//   counter along, so a clone continues the sequence where the original stands.
// - Singleton writes and reads nothing and gives false from both; its text is "KCC_ObjectPattern_Singleton".
// See docs/behaviours.md#placement-patterns.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

class KCParagraph;

/// A placement pattern: hands out the offsets of the copies of an object through a first/next protocol.
class NCAPPKIT_EXPORT KCC_ObjectPattern {
 public:
  /// Destroys the pattern; deleting a derived pattern through this base is safe.
  virtual ~KCC_ObjectPattern();

  /// A new pattern of the same concrete class with all fields and the position counter, owned by the
  /// caller. Never null.
  virtual KCC_ObjectPattern* Clone() const = 0;
  /// Read the values from `paragraph` itself (missing keys keep the current values); false, reading
  /// nothing, for a singleton or a null paragraph.
  virtual bool ReadValuesFromParagraph(KCParagraph* paragraph) = 0;
  /// Write "Type" and the values into the child section "ObjectPattern" of `paragraph` (added when
  /// missing); false, writing nothing, for a singleton or a null paragraph.
  virtual bool WriteValuesToParagraph(KCParagraph* paragraph) const = 0;
  /// Restart the sequence and give the first offset in `x`, `y`; false (x and y untouched) when the pattern
  /// gives no copy at all.
  virtual bool GetFirstPosition(double& x, double& y) = 0;
  /// Give the next offset in `x`, `y`; false (x and y untouched) when the sequence is over.
  virtual bool GetNextPosition(double& x, double& y) = 0;
  /// The pattern as a short text, such as "[Grid](5,7,3,2)". Never fails.
  virtual KCString ToString() const = 0;

  // Not GetClassName / GetTypeName: windows.h defines GetClassName as a macro.
  /// The class name under which the pattern is saved: always "ObjectPattern".
  const KCString& GetPatternClassName() const noexcept { return m_className; }
  /// The type name: "Singleton", "LinearAngle", "Grid" or "Circular".
  const KCString& GetPatternTypeName() const noexcept { return m_typeName; }
  /// How many positions were handed out since the last first position (0 after construction).
  int GetPositionCounter() const noexcept { return m_positionCounter; }

 protected:
  /// A pattern of the type `typeName` with the position counter at 0.
  explicit KCC_ObjectPattern(const KCString& typeName);
  /// Copies the class name, the type name and the position counter.
  KCC_ObjectPattern(const KCC_ObjectPattern& other);
  /// Copies the class name, the type name and the position counter; returns *this.
  KCC_ObjectPattern& operator=(const KCC_ObjectPattern& other);

  /// Store the position counter (the derived sequences keep it here).
  void SetPositionCounter(int counter) noexcept { m_positionCounter = counter; }

 private:
  KCString m_className;
  KCString m_typeName;
  int m_positionCounter;
};

/// One copy at the origin: the first position is (0, 0) and there is no next one.
class NCAPPKIT_EXPORT KCC_ObjectPattern_Singleton : public KCC_ObjectPattern {
 public:
  /// A singleton pattern.
  KCC_ObjectPattern_Singleton();
  /// Copies the pattern, position counter included.
  KCC_ObjectPattern_Singleton(const KCC_ObjectPattern_Singleton& other);
  /// Copies the pattern, position counter included; returns *this.
  KCC_ObjectPattern_Singleton& operator=(const KCC_ObjectPattern_Singleton& other);
  /// Destroys the pattern.
  ~KCC_ObjectPattern_Singleton() override;

  /// A new singleton owned by the caller.
  KCC_ObjectPattern* Clone() const override;
  /// Reads nothing; always false.
  bool ReadValuesFromParagraph(KCParagraph* paragraph) override;
  /// Writes nothing; always false.
  bool WriteValuesToParagraph(KCParagraph* paragraph) const override;
  /// (0, 0) and true; the counter becomes 1.
  bool GetFirstPosition(double& x, double& y) override;
  /// Always false.
  bool GetNextPosition(double& x, double& y) override;
  /// "KCC_ObjectPattern_Singleton".
  KCString ToString() const override;
};

/// A row of copies along a direction: n copies at 0, d, 2d, ... (n - 1)d.
class NCAPPKIT_EXPORT KCC_ObjectPattern_LinearAngle : public KCC_ObjectPattern {
 public:
  /// Angle 0, distance 0, one shape.
  KCC_ObjectPattern_LinearAngle();
  /// The row at `angle` degrees (counter-clockwise from +x) with `distance` between copies and `nmbShapes`
  /// copies.
  KCC_ObjectPattern_LinearAngle(double angle, double distance, int nmbShapes);
  /// Copies the pattern, position counter included.
  KCC_ObjectPattern_LinearAngle(const KCC_ObjectPattern_LinearAngle& other);
  /// Copies the pattern, position counter included; returns *this.
  KCC_ObjectPattern_LinearAngle& operator=(const KCC_ObjectPattern_LinearAngle& other);
  /// Destroys the pattern.
  ~KCC_ObjectPattern_LinearAngle() override;

  /// A new copy owned by the caller, position counter included.
  KCC_ObjectPattern* Clone() const override;
  /// Reads "Angle", "Distance" (number at the start of the text) and "NmbShapes"; false for a null
  /// paragraph.
  bool ReadValuesFromParagraph(KCParagraph* paragraph) override;
  /// Writes "Type" = "LinearAngle", "Angle", "Distance", "NmbShapes"; false for a null paragraph.
  bool WriteValuesToParagraph(KCParagraph* paragraph) const override;
  /// (0, 0) and true, counter 1; false when the number of shapes is not above 0.
  bool GetFirstPosition(double& x, double& y) override;
  /// The copy at counter x distance along the angle; false for fewer than 2 shapes or when the counter has
  /// reached the number of shapes.
  bool GetNextPosition(double& x, double& y) override;
  /// "[Angle](angle,distance,number)", for example "[Angle](90,10,3)".
  KCString ToString() const override;

  /// The direction in degrees.
  double GetAngle() const noexcept { return m_angle; }
  /// Store the direction in degrees, unchecked.
  void SetAngle(double angle) noexcept { m_angle = angle; }
  /// The distance between neighbouring copies.
  double GetDistance() const noexcept { return m_distance; }
  /// Store the distance between neighbouring copies, unchecked.
  void SetDistance(double distance) noexcept { m_distance = distance; }
  /// The number of copies.
  int GetNmbShapes() const noexcept { return m_nmbShapes; }
  /// Store the number of copies, unchecked.
  void SetNmbShapes(int nmbShapes) noexcept { m_nmbShapes = nmbShapes; }

 private:
  double m_angle;
  double m_distance;
  int m_nmbShapes;
};

/// A rectangular grid of copies, handed out row by row: H columns by V rows.
class NCAPPKIT_EXPORT KCC_ObjectPattern_Grid : public KCC_ObjectPattern {
 public:
  /// Distances 0 and 0, one by one.
  KCC_ObjectPattern_Grid();
  /// A grid with `horDistance` between columns, `verDistance` between rows, `nmbHorShapes` columns and
  /// `nmbVerShapes` rows.
  KCC_ObjectPattern_Grid(double horDistance, double verDistance, int nmbHorShapes, int nmbVerShapes);
  /// Copies the pattern, position counter included.
  KCC_ObjectPattern_Grid(const KCC_ObjectPattern_Grid& other);
  /// Copies the pattern, position counter included; returns *this.
  KCC_ObjectPattern_Grid& operator=(const KCC_ObjectPattern_Grid& other);
  /// Destroys the pattern.
  ~KCC_ObjectPattern_Grid() override;

  /// A new copy owned by the caller, position counter included.
  KCC_ObjectPattern* Clone() const override;
  /// Reads "HorDistance", "VerDistance" (number at the start of the text), "NmbHorShapes" and
  /// "NmbVerShapes"; false for a null paragraph.
  bool ReadValuesFromParagraph(KCParagraph* paragraph) override;
  /// Writes "Type" = "Grid", "HorDistance", "VerDistance", "NmbHorShapes", "NmbVerShapes"; false for a
  /// null paragraph.
  bool WriteValuesToParagraph(KCParagraph* paragraph) const override;
  /// (0, 0) and true, counter 1; false when neither number is above 0.
  bool GetFirstPosition(double& x, double& y) override;
  /// The copy at column counter % H, row counter / H; false when both numbers are below 2, or the counter
  /// has reached H x V or INT_MAX.
  bool GetNextPosition(double& x, double& y) override;
  /// "[Grid](horDistance,verDistance,H,V)", for example "[Grid](5,7,3,2)".
  KCString ToString() const override;

  /// The distance between columns.
  double GetHorDistance() const noexcept { return m_horDistance; }
  /// Store the distance between columns, unchecked.
  void SetHorDistance(double distance) noexcept { m_horDistance = distance; }
  /// The distance between rows.
  double GetVerDistance() const noexcept { return m_verDistance; }
  /// Store the distance between rows, unchecked.
  void SetVerDistance(double distance) noexcept { m_verDistance = distance; }
  /// The number of columns (copies per row).
  int GetNmbHorShapes() const noexcept { return m_nmbHorShapes; }
  /// Store the number of columns, unchecked.
  void SetNmbHorShapes(int number) noexcept { m_nmbHorShapes = number; }
  /// The number of rows.
  int GetNmbVerShapes() const noexcept { return m_nmbVerShapes; }
  /// Store the number of rows, unchecked.
  void SetNmbVerShapes(int number) noexcept { m_nmbVerShapes = number; }

 private:
  double m_horDistance;
  double m_verDistance;
  int m_nmbHorShapes;
  int m_nmbVerShapes;
};

/// Copies on a circle around the origin, from the start angle on in steps of the increment angle.
class NCAPPKIT_EXPORT KCC_ObjectPattern_Circular : public KCC_ObjectPattern {
 public:
  /// Radius 0, start angle 0, increment 0 (gives no position until radius and increment are set).
  KCC_ObjectPattern_Circular();
  /// A circle of `radius` with the first copy at `startAngle` degrees and `incrementAngle` degrees between
  /// copies (negative: clockwise).
  KCC_ObjectPattern_Circular(double radius, double startAngle, double incrementAngle);
  /// Copies the pattern, position counter included.
  KCC_ObjectPattern_Circular(const KCC_ObjectPattern_Circular& other);
  /// Copies the pattern, position counter included; returns *this.
  KCC_ObjectPattern_Circular& operator=(const KCC_ObjectPattern_Circular& other);
  /// Destroys the pattern.
  ~KCC_ObjectPattern_Circular() override;

  /// A new copy owned by the caller, position counter included.
  KCC_ObjectPattern* Clone() const override;
  /// Reads "Radius", "StartAngle", "IncrementAngle", each only when its whole text is one number; false for
  /// a null paragraph.
  bool ReadValuesFromParagraph(KCParagraph* paragraph) override;
  /// Writes "Type" = "Circular", "Radius", "StartAngle", "IncrementAngle"; false for a null paragraph.
  bool WriteValuesToParagraph(KCParagraph* paragraph) const override;
  /// The point at the start angle on the circle, counter 1; false when |radius| or |increment| <= 0.0001.
  bool GetFirstPosition(double& x, double& y) override;
  /// The point at counter x increment + start angle; false when |radius| or |increment| <= 0.0001, when
  /// the full turn is over (see the rules above) or the counter is at INT_MAX.
  bool GetNextPosition(double& x, double& y) override;
  /// "[Circular](radius,startAngle,incrementAngle)", for example "[Circular](10,0,90)".
  KCString ToString() const override;

  /// The radius of the circle.
  double GetRadius() const noexcept { return m_radius; }
  /// Store the radius, unchecked.
  void SetRadius(double radius) noexcept { m_radius = radius; }
  /// The angle of the first copy in degrees.
  double GetStartAngle() const noexcept { return m_startAngle; }
  /// Store the angle of the first copy in degrees, unchecked.
  void SetStartAngle(double angle) noexcept { m_startAngle = angle; }
  /// The angle between neighbouring copies in degrees.
  double GetIncrementAngle() const noexcept { return m_incrementAngle; }
  /// Store the angle between neighbouring copies in degrees, unchecked.
  void SetIncrementAngle(double angle) noexcept { m_incrementAngle = angle; }

 private:
  double m_radius;
  double m_startAngle;
  double m_incrementAngle;
};
