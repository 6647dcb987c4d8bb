// SPDX-License-Identifier: MIT
// Data-driven: each line of tests/data/geometry/arc_sweep/cases.txt is an arc with its sweep and length
// worked out by hand; one test per arc, named after its kind and points.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/geometry/CMath2D.h"
#include "support/TestData.h"

namespace {

// One line of the table: type, start, end and centre, sweep in degrees, length.
struct ArcRow {
  std::string name;
  std::string where;  // "PATH:LINE: "
  std::string text;
  std::vector<double> v;
  std::string error;  // why the line cannot be used
};

void PrintTo(const ArcRow& row, std::ostream* out) {
  *out << row.where << row.text;
}

std::string ArcName(const std::vector<std::string>& f) {
  const char* kinds[] = {"none", "cw", "ccw"};
  const std::string kind = f[0] == "0" || f[0] == "1" || f[0] == "2" ? kinds[f[0][0] - '0'] : f[0];
  return SpelledTestName(kind + " from " + f[1] + " " + f[2] + " to " + f[3] + " " + f[4] + " around " +
                         f[5] + " " + f[6]);
}

std::vector<ArcRow> ReadArcRows() {
  const std::filesystem::path path = TestDataPath("geometry/arc_sweep/cases.txt");
  std::vector<TableLine> lines;
  std::string error;
  if (!ReadTableLines(path, lines, error))
    return {ArcRow{"cases_txt", "", "", {}, error}};
  std::vector<ArcRow> rows;
  for (const TableLine& line : lines) {
    ArcRow row;
    row.where = Where(path, line.number);
    row.text = line.text;
    std::vector<std::string> fields;
    SplitWords(line.text, fields, row.error);
    for (const std::string& field : fields) {
      double value = 0.0;
      if (!ParseNumber(field, value))
        row.error = row.where + "'" + field + "' is no number";
      row.v.push_back(value);
    }
    if (row.v.size() != 9 && row.error.empty())
      row.error = row.where + "a line has 9 numbers";
    row.name = row.error.empty() ? ArcName(fields) : "line_" + std::to_string(line.number);
    rows.push_back(row);
  }
  MakeRowNamesUnique(rows);
  return rows;
}

class ArcSweepData : public ::testing::TestWithParam<ArcRow> {};

}  // namespace

TEST_P(ArcSweepData, SweepAndLengthMatchTheHandWorkedCase) {
  ASSERT_TRUE(GetParam().error.empty()) << GetParam().error;
  const std::vector<double>& v = GetParam().v;
  const CMath2D::Cd2DArc arc(static_cast<CMath2D::Cd2DArc::eArcType>(static_cast<int>(v[0])), v[1], v[2],
                             v[3], v[4], v[5], v[6]);
  EXPECT_NEAR(CMath2D::GetArcAngleDeg(arc), v[7], 1e-12);
  EXPECT_NEAR(CMath2D::GetArcLength(arc), v[8], 1e-12);
}

INSTANTIATE_TEST_SUITE_P(Arcs, ArcSweepData, ::testing::ValuesIn(ReadArcRows()), RowName());

TEST(ArcSweepDataFile, HoldsTheTenHandWorkedCases) {
  EXPECT_EQ(ReadArcRows().size(), 10u);
}
