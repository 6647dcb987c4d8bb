// SPDX-License-Identifier: MIT
// example_patterns: place copies of a drilled hole with each kind of placement pattern.
//
//   example_patterns
//
// A pattern hands out offsets relative to the first copy; the program adds them to the position of the
// part it copies. Every copy becomes an object in an owning KCC_ObjectList, and the patterns are saved in a
// KCDocument section and restored from it through the factory. Numbers are printed with KCString's
// locale-free conversion and 3 decimals, so the output is the same on every machine.
#include <iostream>
#include <memory>

#include "ncappkit/foundation/KCParagraph.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/objects/KCC_ObjectData.h"
#include "ncappkit/objects/KCC_ObjectList.h"
#include "ncappkit/objects/KCC_ObjectPattern.h"
#include "ncappkit/objects/KCC_ObjectPatternFactory.h"

namespace {

// A number with at most 3 decimals, trailing zeros dropped ("10", "-7.5", and "0" for -0.0000001).
std::string Num(double value) {
  KCString text(value, 3, false);
  text.CleanDoubleString();
  return text.str();
}

// One placed copy of the part: a hole at a position.
class Hole : public KCC_ObjectData {
 public:
  Hole(double x, double y) : m_x(x), m_y(y) {}
  KCString GetObjectString() const override {
    return KCString("hole at (" + Num(m_x) + ", " + Num(m_y) + ")");
  }

 private:
  double m_x;
  double m_y;
};

// Places one copy per position of `pattern` around the part's position (px, py) into `holes`, and prints
// them; returns the number of copies.
int Place(KCC_ObjectPattern& pattern, double px, double py, KCC_ObjectList& holes) {
  std::cout << pattern.ToString().str() << "\n";
  int copies = 0;
  double dx = 0.0;
  double dy = 0.0;
  for (bool more = pattern.GetFirstPosition(dx, dy); more; more = pattern.GetNextPosition(dx, dy)) {
    auto* hole = new Hole(px + dx, py + dy);
    holes.InsertTail(hole);  // the list owns the hole from here on
    std::cout << "  " << hole->GetObjectString().str() << "\n";
    ++copies;
  }
  return copies;
}

}  // namespace

int main() {
  KCC_ObjectList holes(true);  // owner: deletes the holes at the end

  // The part sits at (100, 50); each pattern puts copies of it around that point.
  KCC_ObjectPattern_Singleton single;
  KCC_ObjectPattern_LinearAngle row(30.0, 20.0, 3);     // 3 copies, 20 apart, at 30 degrees
  KCC_ObjectPattern_Grid grid(15.0, 10.0, 3, 2);        // 3 columns 15 apart, 2 rows 10 apart
  KCC_ObjectPattern_Circular circle(25.0, 45.0, 90.0);  // on a circle of radius 25 around the part
  Place(single, 100.0, 50.0, holes);
  Place(row, 100.0, 50.0, holes);
  Place(grid, 100.0, 50.0, holes);
  Place(circle, 100.0, 50.0, holes);
  std::cout << "holes in the list: " << holes.Count() << "\n";

  // The full-turn test is not symmetric: a clockwise step of 90 degrees also makes the copy at -360, on
  // top of the first one. Callers that want 4 copies either way use a positive increment.
  KCC_ObjectList scratch(true);
  KCC_ObjectPattern_Circular ccw(10.0, 0.0, 90.0);
  KCC_ObjectPattern_Circular cw(10.0, 0.0, -90.0);
  const int ccwCopies = Place(ccw, 0.0, 0.0, scratch);
  std::cout << "  increment 90: " << ccwCopies << " copies\n";
  const int cwCopies = Place(cw, 0.0, 0.0, scratch);
  std::cout << "  increment -90: " << cwCopies << " copies\n";

  // Save the patterns in a document section: each writes itself into the child "ObjectPattern" of the
  // section it is given. Reading takes the child itself, after the factory made a pattern of the saved type.
  KCDocument document;
  KCParagraph* root = document.CreateRoot("Job");
  row.WriteValuesToParagraph(root->AddParagraph("Row"));
  grid.WriteValuesToParagraph(root->AddParagraph("Grid"));
  circle.WriteValuesToParagraph(root->AddParagraph("Circle"));

  const KCC_ObjectPatternFactory factory;
  for (KCParagraph* section : root->GetParagraphs()) {
    KCParagraph* saved = section->FindParagraph("ObjectPattern");
    std::unique_ptr<KCC_ObjectPattern> restored(factory.CreateByName(saved->ReadString("Type", "")));
    restored->ReadValuesFromParagraph(saved);
    std::cout << section->GetName().str() << " restored as " << restored->ToString().str() << "\n";
  }
  return 0;
}
