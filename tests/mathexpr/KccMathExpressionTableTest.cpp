// SPDX-License-Identifier: MIT
// The expressions of tests/data/mathexpr/expressions.txt with their results, evaluated one by one.
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <fstream>
#include <string>
#include <vector>

#include "ncappkit/foundation/KCString.h"
#include "ncappkit/mathexpr/KCC_MathExpression.h"
#include "support/RecordingReporter.h"

namespace {

struct Row {
  int line = 0;
  std::string expression;
  std::string kind;
  std::string expected;
};

std::string Trim(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos)
    return std::string();
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<Row> ReadRows(const std::string& path) {
  std::vector<Row> rows;
  std::ifstream in(path);
  std::string line;
  int number = 0;
  while (std::getline(in, line)) {
    ++number;
    if (line.empty() || line[0] == '#')
      continue;
    Row row;
    row.line = number;
    const std::size_t a = line.find(" | ");
    const std::size_t b = a == std::string::npos ? std::string::npos : line.find(" | ", a + 3);
    row.expression = Trim(line.substr(0, a));
    row.kind = Trim(a == std::string::npos ? std::string()
                                           : line.substr(a + 3, b == std::string::npos ? b : b - a - 3));
    row.expected = b == std::string::npos ? std::string() : Trim(line.substr(b + 3));
    rows.push_back(row);
  }
  return rows;
}

void CheckEveryRow() {
  const std::vector<Row> rows = ReadRows(std::string(NCAPPKIT_TEST_DATA_DIR) + "/mathexpr/expressions.txt");
  ASSERT_GE(rows.size(), 30u);
  for (const Row& row : rows) {
    SCOPED_TRACE("line " + std::to_string(row.line) + ": " + row.expression);
    RecordingReporter reporter;
    KCC_MathExpression expr(reporter);
    const bool parsed = expr.ParseMathExpression(row.expression);
    if (row.kind == "noparse") {
      EXPECT_FALSE(parsed);
      continue;
    }
    ASSERT_TRUE(parsed);
    ASSERT_FALSE(expr.HasEndlessEvaluation());
    double value = -777.0;
    const bool ok = expr.DoMathExpression(value);
    if (row.kind == "value") {
      ASSERT_TRUE(ok) << reporter.Message();
      if (row.expected == "nan")
        EXPECT_TRUE(std::isnan(value));
      else if (row.expected == "inf")
        EXPECT_EQ(value, HUGE_VAL);
      else
        EXPECT_DOUBLE_EQ(value, KCString(row.expected).AsDouble(-777.0));
    } else {
      ASSERT_EQ(row.kind, "fail");
      EXPECT_FALSE(ok);
      EXPECT_EQ(value, -777.0);
      const std::string message = reporter.Message().str();
      if (row.expected == "-")
        EXPECT_TRUE(reporter.Calls().empty()) << message;
      else
        EXPECT_EQ(message.substr(0, row.expected.size()), row.expected);
    }
  }
}

// Switches the process to a German locale (decimal comma) for one test and back again.
class GermanLocale {
 public:
  GermanLocale() : m_old(std::setlocale(LC_ALL, nullptr)) {
    m_active = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr || std::setlocale(LC_ALL, "de_DE") != nullptr;
  }
  ~GermanLocale() { std::setlocale(LC_ALL, m_old.c_str()); }
  bool Active() const { return m_active; }

 private:
  std::string m_old;
  bool m_active = false;
};

}  // namespace

TEST(KccMathExpressionTable, EveryListedExpressionGivesItsResult) {
  CheckEveryRow();
}

TEST(KccMathExpressionTable, ResultsDoNotDependOnTheLocale) {
  const GermanLocale german;
  if (!german.Active())
    GTEST_SKIP() << "de_DE locale not installed";
  CheckEveryRow();
  RecordingReporter reporter;
  KCC_MathExpression expr(reporter);
  ASSERT_TRUE(expr.ParseMathExpression("2.5*1"));
  double value = 0.0;
  ASSERT_TRUE(expr.DoMathExpression(value));
  EXPECT_EQ(reporter.Message(), "Result SubList\n\n[Operand]  : 2.5\n");
}
