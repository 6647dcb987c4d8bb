// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "ncappkit/foundation/KCIntList.h"
#include "ncappkit/foundation/KCStringList.h"

TEST(KcStringList, KeepsLinesInOrder) {
  KCStringList lines;
  lines.push_back("O1000");
  lines.push_back("G00 X0");
  lines.push_back("M30");
  std::string joined;
  for (const KCString& line : lines)
    joined += line.str() + ";";
  EXPECT_EQ(joined, "O1000;G00 X0;M30;");
  EXPECT_EQ(lines.front(), "O1000");
  EXPECT_EQ(lines.back(), "M30");
  EXPECT_EQ(lines.size(), 3u);
}

TEST(KcStringList, IteratesFromTheBack) {
  KCStringList lines{"a", "b", "c"};
  std::string joined;
  for (auto it = lines.rbegin(); it != lines.rend(); ++it)
    joined += it->str();
  EXPECT_EQ(joined, "cba");
}

TEST(KcStringList, ReInitListEmptiesTheList) {
  KCStringList lines{"a", "b"};
  lines.ReInitList();
  EXPECT_TRUE(lines.empty());
  EXPECT_EQ(lines.size(), 0u);
}

TEST(KcStringList, CopyIsIndependent) {
  KCStringList a{"x"};
  KCStringList b = a;
  b.push_back("y");
  EXPECT_EQ(a.size(), 1u);
  EXPECT_EQ(b.size(), 2u);
  EXPECT_NE(a, b);
}

TEST(KcStringList, PopBackOnEmptyListDoesNothing) {
  KCStringList lines;
  lines.pop_back();
  EXPECT_TRUE(lines.empty());
}

TEST(KcIntList, KeepsNumbersInOrder) {
  KCIntList numbers;
  numbers.push_back(1000);
  numbers.push_back(2000);
  int sum = 0;
  for (int n : numbers)
    sum += n;
  EXPECT_EQ(sum, 3000);
  EXPECT_EQ(numbers.front(), 1000);
  EXPECT_EQ(numbers.back(), 2000);
  EXPECT_TRUE(numbers.Contains(2000));
  EXPECT_FALSE(numbers.Contains(3000));
}

TEST(KcIntList, ReInitListEmptiesTheList) {
  KCIntList numbers{1, 2, 3};
  numbers.ReInitList();
  EXPECT_TRUE(numbers.empty());
}

TEST(KcStringList, InsertEraseAndIndexEditTheLinesInPlace) {
  KCStringList lines{"a", "c"};

  lines.insert(lines.begin() + 1, "b");
  lines.erase(lines.begin());
  lines[1] = "z";
  lines.emplace_back("end");

  EXPECT_EQ(lines, (KCStringList{"b", "z", "end"}));
}

TEST(KcStringList, ClearEmptiesTheListLikeReInitList) {
  KCStringList lines{"a"};

  lines.clear();

  EXPECT_TRUE(lines.empty());
  EXPECT_EQ(lines.begin(), lines.end());
}

TEST(KcIntList, CopyIsIndependentAndComparesByContents) {
  KCIntList a{1, 2};
  KCIntList b(a);

  EXPECT_EQ(a, b);
  b[1] = 5;
  b.push_back(7);

  EXPECT_EQ(a, (KCIntList{1, 2}));
  EXPECT_EQ(b, (KCIntList{1, 5, 7}));
  EXPECT_NE(a, b);
}
