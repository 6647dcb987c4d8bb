// SPDX-License-Identifier: MIT
// Fuzz target: the end-of-program tests (M30, M99, RET) and the first-block test on NUL-terminated text.
#include <cstddef>
#include <cstdint>
#include <string>

#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_ParseNc.h"

namespace {
class NcFileLineTests : public KCC_NcFile {
 public:
  using KCC_NcFile::Check_FirstBlock_Command;
  using KCC_NcFile::Check_M30_M99_RET_Command;
};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The tests read C strings: the copy ends at the input's first NUL at the latest.
  std::string text(reinterpret_cast<const char*>(data), size);
  KCC_ParseNc parser;
  bool m30 = false;
  bool m99 = false;
  bool ret = false;
  parser.Check_M30_Command(text.c_str());
  parser.Check_M30_Command(&text[0]);
  parser.Check_M30_M99_Command(&text[0], m30, m99);
  NcFileLineTests file;
  file.Check_M30_M99_RET_Command(text.c_str(), m30, m99, ret);
  file.Check_FirstBlock_Command(text.c_str());
  return 0;
}
