// SPDX-License-Identifier: MIT
// The expressions of tests/data/mathexpr/expressions.txt with their results, one test per expression, run
// once in the process's locale and once in a German one (decimal comma).
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/foundation/KCString.h"
#include "ncappkit/mathexpr/KCC_MathExpression.h"
#include "support/RecordingReporter.h"
#include "support/TestData.h"

namespace {

struct Row {
  std::string name;
  std::string where;  // "PATH:LINE: "
  std::string expression;
  std::string kind;
  std::string expected;
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.where << row.expression;
}

std::string Trim(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos)
    return std::string();
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// The rows of the table, each named after its expression; "cannot be read" when the file is missing.
std::vector<Row> ReadRows() {
  const std::filesystem::path path = TestDataPath("mathexpr/expressions.txt");
  std::vector<TableLine> lines;
  std::string error;
  if (!ReadTableLines(path, lines, error))
    return {Row{"expressions_txt", "", "", "unreadable", error}};
  std::vector<Row> rows;
  for (const TableLine& line : lines) {
    Row row;
    row.where = Where(path, line.number);
    const std::size_t a = line.text.find(" | ");
    const std::size_t b = a == std::string::npos ? std::string::npos : line.text.find(" | ", a + 3);
    row.expression = Trim(line.text.substr(0, a));
    row.kind = Trim(a == std::string::npos ? std::string()
                                           : line.text.substr(a + 3, b == std::string::npos ? b : b - a - 3));
    row.expected = b == std::string::npos ? std::string() : Trim(line.text.substr(b + 3));
    row.name = SpelledTestName(row.expression);
    rows.push_back(row);
  }
  MakeRowNamesUnique(rows);
  return rows;
}

void CheckRow(const Row& row) {
  ASSERT_NE(row.kind, "unreadable") << row.expected;
  RecordingReporter reporter;
  KCC_MathExpression expr(reporter);
  const bool parsed = expr.ParseMathExpression(row.expression);
  if (row.kind == "noparse") {
    EXPECT_FALSE(parsed);
    return;
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

class KccMathExpressionTable : public ::testing::TestWithParam<Row> {};

}  // namespace

TEST_P(KccMathExpressionTable, GivesItsResult) {
  CheckRow(GetParam());
}

TEST_P(KccMathExpressionTable, GivesItsResultInAGermanLocale) {
  const GermanLocale german;
  if (!german.Active())
    GTEST_SKIP() << "de_DE locale not installed";
  CheckRow(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Expressions, KccMathExpressionTable, ::testing::ValuesIn(ReadRows()), RowName());

TEST(KccMathExpressionTableFile, HoldsTheListedExpressions) {
  EXPECT_GE(ReadRows().size(), 30u);
}

TEST(KccMathExpressionTableFile, ReportedNumbersDoNotDependOnTheLocale) {
  const GermanLocale german;
  if (!german.Active())
    GTEST_SKIP() << "de_DE locale not installed";
  RecordingReporter reporter;
  KCC_MathExpression expr(reporter);
  ASSERT_TRUE(expr.ParseMathExpression("2.5*1"));
  double value = 0.0;
  ASSERT_TRUE(expr.DoMathExpression(value));
  EXPECT_EQ(reporter.Message(), "Result SubList\n\n[Operand]  : 2.5\n");
}
