// SPDX-License-Identifier: MIT
// Fuzz target: numbered (#100 = value) and named (NAME = value) parameter lines.
#include <cstddef>
#include <cstdint>

#include "ncappkit/nc/KCC_ParseNc.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const KCString line(reinterpret_cast<const char*>(data), size);
  KCC_ParseNc parser;
  int number = 0;
  int intValue = 0;
  double doubleValue = 0.0;
  KCString text;
  KCString name;
  bool error = false;
  parser.GetNcParameter(line, number, intValue, doubleValue, text, true, error);
  parser.GetNcParameter(line, number, intValue, doubleValue);
  parser.GetNcTextParameter(line, name, intValue, doubleValue, text, true, error);
  parser.GetNcTextParameter(line, name, intValue, doubleValue);
  return 0;
}
