// SPDX-License-Identifier: MIT
// KCC_ObjectPattern and its kinds: single, row, grid and circular placement of copies.
#include "ncappkit/objects/KCC_ObjectPattern.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "ncappkit/foundation/KCParagraph.h"

namespace {

constexpr int kMaxCounter = std::numeric_limits<int>::max();
// Below this radius or increment a circular pattern gives no copy.
constexpr double kCircularMinimum = 0.0001;
// Pushes an increment that divides 360 past the full turn, so the copy at exactly 360 is not made twice.
constexpr double kFullTurnNudge = 1e-7;
constexpr double kFullTurn = 360.0;

double ToRadians(double degrees) {
  return degrees * std::atan(1.0) / 45.0;
}

// A real number in the texts of ToString: shortest exact text, tidied.
KCString RealText(double value) {
  KCString text(value, -1, false);
  text.CleanDoubleString();
  return text;
}

KCString IntText(int value) {
  return KCString(value, false);
}

const char kTypeKey[] = "Type";

}  // namespace

// --- KCC_ObjectPattern -----------------------------------------------------------------------------------

KCC_ObjectPattern::KCC_ObjectPattern(const KCString& typeName)
    : m_className("ObjectPattern"), m_typeName(typeName), m_positionCounter(0) {}
KCC_ObjectPattern::KCC_ObjectPattern(const KCC_ObjectPattern& other) = default;
KCC_ObjectPattern& KCC_ObjectPattern::operator=(const KCC_ObjectPattern& other) = default;
KCC_ObjectPattern::~KCC_ObjectPattern() = default;

// --- KCC_ObjectPattern_Singleton -------------------------------------------------------------------------

KCC_ObjectPattern_Singleton::KCC_ObjectPattern_Singleton() : KCC_ObjectPattern("Singleton") {}
KCC_ObjectPattern_Singleton::KCC_ObjectPattern_Singleton(const KCC_ObjectPattern_Singleton& other) = default;
KCC_ObjectPattern_Singleton& KCC_ObjectPattern_Singleton::operator=(
    const KCC_ObjectPattern_Singleton& other) = default;
KCC_ObjectPattern_Singleton::~KCC_ObjectPattern_Singleton() = default;

KCC_ObjectPattern* KCC_ObjectPattern_Singleton::Clone() const {
  return new KCC_ObjectPattern_Singleton(*this);
}

bool KCC_ObjectPattern_Singleton::ReadValuesFromParagraph(KCParagraph* /*paragraph*/) {
  return false;
}

bool KCC_ObjectPattern_Singleton::WriteValuesToParagraph(KCParagraph* /*paragraph*/) const {
  return false;
}

bool KCC_ObjectPattern_Singleton::GetFirstPosition(double& x, double& y) {
  SetPositionCounter(1);
  x = 0.0;
  y = 0.0;
  return true;
}

bool KCC_ObjectPattern_Singleton::GetNextPosition(double& /*x*/, double& /*y*/) {
  return false;
}

KCString KCC_ObjectPattern_Singleton::ToString() const {
  return KCString("KCC_ObjectPattern_Singleton");
}

// --- KCC_ObjectPattern_LinearAngle -----------------------------------------------------------------------

KCC_ObjectPattern_LinearAngle::KCC_ObjectPattern_LinearAngle() : KCC_ObjectPattern_LinearAngle(0.0, 0.0, 1) {}
KCC_ObjectPattern_LinearAngle::KCC_ObjectPattern_LinearAngle(double angle, double distance, int nmbShapes)
    : KCC_ObjectPattern("LinearAngle"), m_angle(angle), m_distance(distance), m_nmbShapes(nmbShapes) {}
KCC_ObjectPattern_LinearAngle::KCC_ObjectPattern_LinearAngle(const KCC_ObjectPattern_LinearAngle& other) =
    default;
KCC_ObjectPattern_LinearAngle& KCC_ObjectPattern_LinearAngle::operator=(
    const KCC_ObjectPattern_LinearAngle& other) = default;
KCC_ObjectPattern_LinearAngle::~KCC_ObjectPattern_LinearAngle() = default;

KCC_ObjectPattern* KCC_ObjectPattern_LinearAngle::Clone() const {
  return new KCC_ObjectPattern_LinearAngle(*this);
}

bool KCC_ObjectPattern_LinearAngle::ReadValuesFromParagraph(KCParagraph* paragraph) {
  if (paragraph == nullptr)
    return false;
  m_angle = paragraph->ReadDouble("Angle", m_angle);
  m_distance = paragraph->ReadDouble("Distance", m_distance);
  m_nmbShapes = paragraph->ReadInteger("NmbShapes", m_nmbShapes);
  return true;
}

bool KCC_ObjectPattern_LinearAngle::WriteValuesToParagraph(KCParagraph* paragraph) const {
  if (paragraph == nullptr)
    return false;
  KCParagraph* section = paragraph->AddParagraph(GetPatternClassName());
  section->WriteString(kTypeKey, GetPatternTypeName());
  section->WriteDouble("Angle", m_angle, -1);
  section->WriteDouble("Distance", m_distance, -1);
  section->WriteInteger("NmbShapes", m_nmbShapes);
  return true;
}

bool KCC_ObjectPattern_LinearAngle::GetFirstPosition(double& x, double& y) {
  if (m_nmbShapes <= 0)
    return false;
  SetPositionCounter(1);
  x = 0.0;
  y = 0.0;
  return true;
}

bool KCC_ObjectPattern_LinearAngle::GetNextPosition(double& x, double& y) {
  const int i = GetPositionCounter();
  // The counter never passes the number of shapes, an int, so raising it cannot overflow.
  if (m_nmbShapes < 2 || i >= m_nmbShapes)
    return false;
  const double along = i * m_distance;
  const double radians = ToRadians(m_angle);
  x = std::cos(radians) * along;
  y = std::sin(radians) * along;
  SetPositionCounter(i + 1);
  return true;
}

KCString KCC_ObjectPattern_LinearAngle::ToString() const {
  return KCString("[Angle](") + RealText(m_angle) + "," + RealText(m_distance) + "," + IntText(m_nmbShapes) +
         ")";
}

// --- KCC_ObjectPattern_Grid ------------------------------------------------------------------------------

KCC_ObjectPattern_Grid::KCC_ObjectPattern_Grid() : KCC_ObjectPattern_Grid(0.0, 0.0, 1, 1) {}
KCC_ObjectPattern_Grid::KCC_ObjectPattern_Grid(double horDistance, double verDistance, int nmbHorShapes,
                                               int nmbVerShapes)
    : KCC_ObjectPattern("Grid"),
      m_horDistance(horDistance),
      m_verDistance(verDistance),
      m_nmbHorShapes(nmbHorShapes),
      m_nmbVerShapes(nmbVerShapes) {}
KCC_ObjectPattern_Grid::KCC_ObjectPattern_Grid(const KCC_ObjectPattern_Grid& other) = default;
KCC_ObjectPattern_Grid& KCC_ObjectPattern_Grid::operator=(const KCC_ObjectPattern_Grid& other) = default;
KCC_ObjectPattern_Grid::~KCC_ObjectPattern_Grid() = default;

KCC_ObjectPattern* KCC_ObjectPattern_Grid::Clone() const {
  return new KCC_ObjectPattern_Grid(*this);
}

bool KCC_ObjectPattern_Grid::ReadValuesFromParagraph(KCParagraph* paragraph) {
  if (paragraph == nullptr)
    return false;
  m_horDistance = paragraph->ReadDouble("HorDistance", m_horDistance);
  m_verDistance = paragraph->ReadDouble("VerDistance", m_verDistance);
  m_nmbHorShapes = paragraph->ReadInteger("NmbHorShapes", m_nmbHorShapes);
  m_nmbVerShapes = paragraph->ReadInteger("NmbVerShapes", m_nmbVerShapes);
  return true;
}

bool KCC_ObjectPattern_Grid::WriteValuesToParagraph(KCParagraph* paragraph) const {
  if (paragraph == nullptr)
    return false;
  KCParagraph* section = paragraph->AddParagraph(GetPatternClassName());
  section->WriteString(kTypeKey, GetPatternTypeName());
  section->WriteDouble("HorDistance", m_horDistance, -1);
  section->WriteDouble("VerDistance", m_verDistance, -1);
  section->WriteInteger("NmbHorShapes", m_nmbHorShapes);
  section->WriteInteger("NmbVerShapes", m_nmbVerShapes);
  return true;
}

bool KCC_ObjectPattern_Grid::GetFirstPosition(double& x, double& y) {
  if (m_nmbHorShapes <= 0 && m_nmbVerShapes <= 0)
    return false;
  SetPositionCounter(1);
  x = 0.0;
  y = 0.0;
  return true;
}

bool KCC_ObjectPattern_Grid::GetNextPosition(double& x, double& y) {
  const int i = GetPositionCounter();
  if (m_nmbHorShapes < 2 && m_nmbVerShapes < 2)
    return false;
  // 64 bits: two int counts multiply without overflow.
  const std::int64_t total = static_cast<std::int64_t>(m_nmbHorShapes) * m_nmbVerShapes;
  if (i >= total || i == kMaxCounter)
    return false;
  // Here 0 <= i < H x V with V >= 2 or H >= 2, which leaves H >= 1: the division is safe.
  const int row = i / m_nmbHorShapes;
  const int column = i - m_nmbHorShapes * row;
  x = column * m_horDistance;
  y = row * m_verDistance;
  SetPositionCounter(i + 1);
  return true;
}

KCString KCC_ObjectPattern_Grid::ToString() const {
  return KCString("[Grid](") + RealText(m_horDistance) + "," + RealText(m_verDistance) + "," +
         IntText(m_nmbHorShapes) + "," + IntText(m_nmbVerShapes) + ")";
}

// --- KCC_ObjectPattern_Circular --------------------------------------------------------------------------

KCC_ObjectPattern_Circular::KCC_ObjectPattern_Circular() : KCC_ObjectPattern_Circular(0.0, 0.0, 0.0) {}
KCC_ObjectPattern_Circular::KCC_ObjectPattern_Circular(double radius, double startAngle,
                                                       double incrementAngle)
    : KCC_ObjectPattern("Circular"),
      m_radius(radius),
      m_startAngle(startAngle),
      m_incrementAngle(incrementAngle) {}
KCC_ObjectPattern_Circular::KCC_ObjectPattern_Circular(const KCC_ObjectPattern_Circular& other) = default;
KCC_ObjectPattern_Circular& KCC_ObjectPattern_Circular::operator=(const KCC_ObjectPattern_Circular& other) =
    default;
KCC_ObjectPattern_Circular::~KCC_ObjectPattern_Circular() = default;

KCC_ObjectPattern* KCC_ObjectPattern_Circular::Clone() const {
  return new KCC_ObjectPattern_Circular(*this);
}

bool KCC_ObjectPattern_Circular::ReadValuesFromParagraph(KCParagraph* paragraph) {
  if (paragraph == nullptr)
    return false;
  // The strict read: a value with anything behind its number is not taken.
  m_radius = paragraph->ReadDoubleStrict("Radius", m_radius);
  m_startAngle = paragraph->ReadDoubleStrict("StartAngle", m_startAngle);
  m_incrementAngle = paragraph->ReadDoubleStrict("IncrementAngle", m_incrementAngle);
  return true;
}

bool KCC_ObjectPattern_Circular::WriteValuesToParagraph(KCParagraph* paragraph) const {
  if (paragraph == nullptr)
    return false;
  KCParagraph* section = paragraph->AddParagraph(GetPatternClassName());
  section->WriteString(kTypeKey, GetPatternTypeName());
  section->WriteDouble("Radius", m_radius, -1);
  section->WriteDouble("StartAngle", m_startAngle, -1);
  section->WriteDouble("IncrementAngle", m_incrementAngle, -1);
  return true;
}

bool KCC_ObjectPattern_Circular::GetFirstPosition(double& x, double& y) {
  // Written as "<=" on purpose: a NaN is not caught here (see GetNextPosition).
  if (std::fabs(m_radius) <= kCircularMinimum || std::fabs(m_incrementAngle) <= kCircularMinimum)
    return false;
  const double radians = ToRadians(m_startAngle);
  x = std::cos(radians) * m_radius;
  y = std::sin(radians) * m_radius;
  SetPositionCounter(1);
  return true;
}

bool KCC_ObjectPattern_Circular::GetNextPosition(double& x, double& y) {
  if (std::fabs(m_radius) <= kCircularMinimum || std::fabs(m_incrementAngle) <= kCircularMinimum)
    return false;
  const int i = GetPositionCounter();
  if (i == kMaxCounter)
    return false;
  const double angle = i * m_incrementAngle + m_startAngle;
  // "Go on while within the turn" rather than "stop beyond it": the same for finite values, and a NaN (from a
  // NaN or infinite increment or start angle) ends the sequence instead of running forever.
  if (!(std::fabs(angle + kFullTurnNudge - m_startAngle) <= kFullTurn))
    return false;
  const double radians = ToRadians(angle);
  x = std::cos(radians) * m_radius;
  y = std::sin(radians) * m_radius;
  SetPositionCounter(i + 1);
  return true;
}

KCString KCC_ObjectPattern_Circular::ToString() const {
  return KCString("[Circular](") + RealText(m_radius) + "," + RealText(m_startAngle) + "," +
         RealText(m_incrementAngle) + ")";
}
