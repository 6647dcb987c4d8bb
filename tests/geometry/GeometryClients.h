// SPDX-License-Identifier: MIT
// Client-side implementations of the geometry interfaces, as a drawing program would write them on its own
// entities: they keep their data in their own layout and record the order in which the library calls their
// setters.
#pragma once

#include <cmath>
#include <string>

#include "ncappkit/geometry/CMathAuxShapes.h"

namespace geometry_test {

class ClientPoint : public KCI_d2DPoint {
 public:
  ClientPoint() = default;
  ClientPoint(double x, double y) : m_xy{x, y} {}
  double GetX() const override { return m_xy[0]; }
  double GetY() const override { return m_xy[1]; }
  void SetX(double x) override {
    m_xy[0] = x;
    calls += "x";
  }
  void SetY(double y) override {
    m_xy[1] = y;
    calls += "y";
  }
  std::string calls;

 private:
  double m_xy[2] = {0, 0};
};

class ClientIntPoint : public KCI_i2DPoint {
 public:
  int GetX() const override { return m_x; }
  int GetY() const override { return m_y; }
  void SetX(int x) override { m_x = x; }
  void SetY(int y) override { m_y = y; }

 private:
  int m_x = 0;
  int m_y = 0;
};

class ClientLine : public KCI_d2DLine {
 public:
  ClientLine() = default;
  ClientLine(double sx, double sy, double ex, double ey) : m_c{sx, sy, ex, ey} {}
  double GetStartX() const override { return m_c[0]; }
  double GetStartY() const override { return m_c[1]; }
  void SetStartX(double v) override { Set(0, v, "sx "); }
  void SetStartY(double v) override { Set(1, v, "sy "); }
  double GetEndX() const override { return m_c[2]; }
  double GetEndY() const override { return m_c[3]; }
  void SetEndX(double v) override { Set(2, v, "ex "); }
  void SetEndY(double v) override { Set(3, v, "ey "); }
  std::string calls;

 private:
  void Set(int i, double v, const char* name) {
    m_c[i] = v;
    calls += name;
  }
  double m_c[4] = {0, 0, 0, 0};
};

class ClientArc : public KCI_d2DArc {
 public:
  ClientArc(int type, double sx, double sy, double ex, double ey, double cx, double cy)
      : m_type(type), m_c{sx, sy, ex, ey, cx, cy} {}
  eArcType GetArcType() const override { return static_cast<eArcType>(m_type); }
  void SetArcType(eArcType type) override { m_type = type; }
  void SetArcCW() override { m_type = 1; }
  void SetArcCCW() override { m_type = 2; }
  bool IsArcCW() const override { return m_type == 1; }
  bool IsArcCCW() const override { return m_type == 2; }
  double GetStartX() const override { return m_c[0]; }
  double GetStartY() const override { return m_c[1]; }
  void SetStartX(double v) override { m_c[0] = v; }
  void SetStartY(double v) override { m_c[1] = v; }
  double GetEndX() const override { return m_c[2]; }
  double GetEndY() const override { return m_c[3]; }
  void SetEndX(double v) override { m_c[2] = v; }
  void SetEndY(double v) override { m_c[3] = v; }
  double GetCenterX() const override { return m_c[4]; }
  double GetCenterY() const override { return m_c[5]; }
  void SetCenterX(double v) override { m_c[4] = v; }
  void SetCenterY(double v) override { m_c[5] = v; }

 private:
  int m_type;
  double m_c[6];
};

class ClientIntArc : public KCI_i2DArc {
 public:
  ClientIntArc(int type, int sx, int sy, int ex, int ey, int cx, int cy)
      : m_type(type), m_c{sx, sy, ex, ey, cx, cy} {}
  eArcType GetArcType() const override { return static_cast<eArcType>(m_type); }
  void SetArcType(eArcType type) override { m_type = type; }
  void SetArcCW() override { m_type = 1; }
  void SetArcCCW() override { m_type = 2; }
  bool IsArcCW() const override { return m_type == 1; }
  bool IsArcCCW() const override { return m_type == 2; }
  int GetStartX() const override { return m_c[0]; }
  int GetStartY() const override { return m_c[1]; }
  void SetStartX(int v) override { m_c[0] = v; }
  void SetStartY(int v) override { m_c[1] = v; }
  int GetEndX() const override { return m_c[2]; }
  int GetEndY() const override { return m_c[3]; }
  void SetEndX(int v) override { m_c[2] = v; }
  void SetEndY(int v) override { m_c[3] = v; }
  int GetCenterX() const override { return m_c[4]; }
  int GetCenterY() const override { return m_c[5]; }
  void SetCenterX(int v) override { m_c[4] = v; }
  void SetCenterY(int v) override { m_c[5] = v; }

 private:
  int m_type;
  int m_c[6];
};

// A horizontal segment whose third operation reports the y position; the end abscissae are never read by
// the library, which the counters show.
class ClientHorLine : public KCI_d2DHorLine {
 public:
  explicit ClientHorLine(double y) : m_y(y) {}
  double GetStartX() const override { return ++otherReads, -1; }
  double GetEndX() const override { return ++otherReads, 1; }
  double GetPosY() const override { return m_y; }
  void SetStartX(double) override { ++otherReads; }
  void SetEndX(double) override { ++otherReads; }
  void SetPosY(double y) override { m_y = y; }
  mutable int otherReads = 0;

 private:
  double m_y;
};

class ClientVerLine : public KCI_d2DVerLine {
 public:
  explicit ClientVerLine(double x) : m_x(x) {}
  double GetStartY() const override { return ++otherReads, -1; }
  double GetEndY() const override { return ++otherReads, 1; }
  double GetPosX() const override { return m_x; }
  void SetStartY(double) override { ++otherReads; }
  void SetEndY(double) override { ++otherReads; }
  void SetPosX(double x) override { m_x = x; }
  mutable int otherReads = 0;

 private:
  double m_x;
};

class ClientAuxHorLine : public KCI_AuxHorLine {
 public:
  explicit ClientAuxHorLine(double y) : m_y(y) {}
  double GetPos() const override { return m_y; }
  void SetPos(double y) override { m_y = y; }

 private:
  double m_y;
};

class ClientAuxVerLine : public KCI_AuxVerLine {
 public:
  explicit ClientAuxVerLine(double x) : m_x(x) {}
  double GetPos() const override { return m_x; }
  void SetPos(double x) override { m_x = x; }

 private:
  double m_x;
};

class ClientAuxLine : public KCI_AuxLine {
 public:
  ClientAuxLine(double x, double y, double deg) : m_x(x), m_y(y), m_deg(deg) {}
  double GetXPos() const override { return m_x; }
  void SetXPos(double x) override { m_x = x; }
  double GetYPos() const override { return m_y; }
  void SetYPos(double y) override { m_y = y; }
  double GetAngleDeg() const override { return m_deg; }
  double GetAngleRad() const override { return std::atan(1.0) * m_deg / 45.0; }
  void SetAngleDeg(double d) override { m_deg = d; }
  void SetAngleRad(double r) override { m_deg = r * 45.0 / std::atan(1.0); }

 private:
  double m_x, m_y, m_deg;
};

// A circle deriving from the library's abstract CAuxCircle, supplying the centre operations itself.
class ClientAuxCircle : public CMathAuxShapes::CAuxCircle {
 public:
  ClientAuxCircle(double x, double y, double r) : CAuxCircle(x, y, r) {}
  double GetCenterX() const override { return GetXPos(); }
  void SetCenterX(double x) override { SetXPos(x); }
  double GetCenterY() const override { return GetYPos(); }
  void SetCenterY(double y) override { SetYPos(y); }
};

}  // namespace geometry_test
