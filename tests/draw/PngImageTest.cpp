// SPDX-License-Identifier: MIT
// PngImage, the screenshot reader of the rendering tests: its inflate and its refusal of what it cannot read.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/PngImage.h"
#include "support/TestData.h"

namespace {

struct InflateRow {
  std::string name;
  std::vector<std::uint8_t> stream;  // made by Python's zlib.compress(b"abcabcabcabc hello hello", level)
};

void PrintTo(const InflateRow& row, std::ostream* out) {
  *out << row.name;
}

class PngImageInflate : public ::testing::TestWithParam<InflateRow> {};

TEST_P(PngImageInflate, GivesBackTheCompressedBytes) {
  std::vector<std::uint8_t> out;
  std::string error;
  const bool inflated = Inflate(GetParam().stream, out, error);
  EXPECT_TRUE(inflated) << error;
  EXPECT_EQ(std::string(out.begin(), out.end()), "abcabcabcabc hello hello");
}

const InflateRow kInflateRows[] = {
    {"StoredBlock", {0x78, 0x01, 0x01, 0x18, 0x00, 0xe7, 0xff, 0x61, 0x62, 0x63, 0x61, 0x62,
                     0x63, 0x61, 0x62, 0x63, 0x61, 0x62, 0x63, 0x20, 0x68, 0x65, 0x6c, 0x6c,
                     0x6f, 0x20, 0x68, 0x65, 0x6c, 0x6c, 0x6f, 0x70, 0x12, 0x09, 0x01}},
    {"FixedCodesWithBackReferences", {0x78, 0x01, 0x4b, 0x4c, 0x4a, 0x4e, 0x84, 0x21, 0x85, 0x8c, 0xd4,
                                      0x9c, 0x9c, 0x7c, 0x08, 0x09, 0x00, 0x70, 0x12, 0x09, 0x01}},
};

INSTANTIATE_TEST_SUITE_P(Table, PngImageInflate, ::testing::ValuesIn(kInflateRows), RowName());

TEST(PngImage, TruncatedStreamIsRefused) {
  const std::vector<std::uint8_t> stream = {0x78, 0x01, 0x4b, 0x4c, 0x4a};
  std::vector<std::uint8_t> out;
  std::string error;
  EXPECT_FALSE(Inflate(stream, out, error));
}

TEST(PngImage, TextThatIsNoPngIsRefused) {
  PngImage image;
  std::string error;
  EXPECT_FALSE(ReadPng("GIF89a", image, error));
  EXPECT_EQ(error, "not a PNG file");
}

}  // namespace
