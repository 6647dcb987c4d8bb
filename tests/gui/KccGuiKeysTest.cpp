// SPDX-License-Identifier: MIT
// KCC_GUI_Keys: decoding the key flags of a mouse message into shift, control and alt.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "ncappkit/gui/KCC_GUI_Keys.h"

namespace {

struct KeyFlagsRow {
  const char* name;
  unsigned int flags;
  bool shift;
  bool control;
  bool alt;
};

void PrintTo(const KeyFlagsRow& row, std::ostream* out) {
  *out << row.name;
}

struct RowName {
  std::string operator()(const ::testing::TestParamInfo<KeyFlagsRow>& info) const { return info.param.name; }
};

const KeyFlagsRow kKeyFlagsRows[] = {
    {"NoFlagsGiveNoKey", 0x00U, false, false, false},
    {"Bit4IsShift", 0x04U, true, false, false},
    {"Bit8IsControl", 0x08U, false, true, false},
    {"Bit32IsAlt", 0x20U, false, false, true},
    {"Flags2CGiveAllThreeKeys", 0x2CU, true, true, true},
    {"Flags10GiveNoKey", 0x10U, false, false, false},
    {"MouseButtonBitsAreIgnored", 0x01U | 0x02U | 0x10U, false, false, false},
    {"ShiftWithMouseButtonBits", 0x01U | 0x04U | 0x10U, true, false, false},
    {"AllBitsGiveAllThreeKeys", 0xFFFFFFFFU, true, true, true},
    {"AllOtherBitsGiveNoKey", ~0x2CU, false, false, false},
};

class KccGuiKeysFlags : public ::testing::TestWithParam<KeyFlagsRow> {};

TEST_P(KccGuiKeysFlags, DecodeShiftControlAndAlt) {
  const KeyFlagsRow& row = GetParam();

  const KCC_GUI_Keys keys(row.flags);

  EXPECT_EQ(keys.ShiftKeyPressed(), row.shift);
  EXPECT_EQ(keys.ControlPressed(), row.control);
  EXPECT_EQ(keys.AltKeyPressed(), row.alt);
}

INSTANTIATE_TEST_SUITE_P(Table, KccGuiKeysFlags, ::testing::ValuesIn(kKeyFlagsRows), RowName());

// The client hands the keys on as the interface; the queries answer through it.
bool ShiftThroughInterface(const KCI_GUI_Keys& keys) {
  return keys.ShiftKeyPressed();
}

}  // namespace

TEST(KccGuiKeys, NamedFlagsAreTheBitsOfAMouseMessage) {
  EXPECT_EQ(KCC_GUI_Keys::kShiftFlag, 4U);
  EXPECT_EQ(KCC_GUI_Keys::kControlFlag, 8U);
  EXPECT_EQ(KCC_GUI_Keys::kAltFlag, 32U);
}

TEST(KccGuiKeys, QueriesAnswerThroughTheInterface) {
  const KCC_GUI_Keys keys(KCC_GUI_Keys::kShiftFlag);

  EXPECT_TRUE(ShiftThroughInterface(keys));
}

TEST(KccGuiKeys, CopyHasTheSameKeys) {
  const KCC_GUI_Keys source(0x0CU);

  const KCC_GUI_Keys copy(source);

  EXPECT_TRUE(copy.ShiftKeyPressed());
  EXPECT_TRUE(copy.ControlPressed());
  EXPECT_FALSE(copy.AltKeyPressed());
}

TEST(KccGuiKeys, AssignmentReplacesAllThreeKeys) {
  KCC_GUI_Keys keys(0x2CU);

  keys = KCC_GUI_Keys(0x20U);

  EXPECT_FALSE(keys.ShiftKeyPressed());
  EXPECT_FALSE(keys.ControlPressed());
  EXPECT_TRUE(keys.AltKeyPressed());
}
