// SPDX-License-Identifier: MIT
// Data-driven: each line of tests/data/geometry/arc_sweep/cases.txt is an arc with its sweep and length
// worked out by hand.
#include <gtest/gtest.h>

#include <charconv>
#include <fstream>
#include <string>
#include <vector>

#include "ncappkit/geometry/CMath2D.h"

namespace {

// Splits a line at blanks and reads each field as a double (locale-free); false when a field is not a number.
bool ReadNumbers(const std::string& line, std::vector<double>& numbers) {
  numbers.clear();
  std::size_t pos = 0;
  while (pos < line.size()) {
    while (pos < line.size() && (line[pos] == ' ' || line[pos] == '\t')) {
      ++pos;
    }
    if (pos >= line.size()) {
      break;
    }
    double value = 0;
    const auto [end, ec] = std::from_chars(line.data() + pos, line.data() + line.size(), value);
    if (ec != std::errc()) {
      return false;
    }
    numbers.push_back(value);
    pos = static_cast<std::size_t>(end - line.data());
  }
  return true;
}

}  // namespace

TEST(ArcSweepData, SweepAndLengthMatchTheHandWorkedCases) {
  std::ifstream in(std::string(NCAPPKIT_TEST_DATA_DIR) + "/geometry/arc_sweep/cases.txt");
  ASSERT_TRUE(in.good());
  std::string line;
  std::vector<double> v;
  int cases = 0;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') {
      continue;
    }
    ASSERT_TRUE(ReadNumbers(line, v)) << line;
    ASSERT_EQ(v.size(), 9u) << line;
    const CMath2D::Cd2DArc arc(static_cast<CMath2D::Cd2DArc::eArcType>(static_cast<int>(v[0])), v[1], v[2],
                               v[3], v[4], v[5], v[6]);
    EXPECT_NEAR(CMath2D::GetArcAngleDeg(arc), v[7], 1e-12) << line;
    EXPECT_NEAR(CMath2D::GetArcLength(arc), v[8], 1e-12) << line;
    ++cases;
  }
  EXPECT_EQ(cases, 10);
}
