// SPDX-License-Identifier: MIT
// Fuzz target: the program-number line tests of the block parser and of the file loader.
#include <cstddef>
#include <cstdint>

#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_ParseNc.h"

namespace {
class NcFileLineTests : public KCC_NcFile {
 public:
  using KCC_NcFile::ParseProgramNumberLine;
};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const KCString line(reinterpret_cast<const char*>(data), size);
  KCC_ParseNc parser;
  int number = 0;
  KCString comment;
  parser.GetProgramNumber(line, number);
  parser.GetProgramNumberWithComment(line, number, comment);
  NcFileLineTests file;
  KCString ref;
  file.ParseProgramNumberLine(line, number, ref);
  return 0;
}
