// SPDX-License-Identifier: MIT
// Fuzz target: splitting text into programs. The first byte chooses the two load flags, the rest is split
// into lines at LF; the loaded programs are then walked, counted and checked for duplicate numbers.
#include <cstddef>
#include <cstdint>

#include "ncappkit/nc/KCC_NcFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0)
    return 0;
  const bool checkFirstBlock = (data[0] & 1) != 0;
  const bool keepUnfinished = (data[0] & 2) != 0;
  const char* text = reinterpret_cast<const char*>(data + 1);
  const std::size_t length = size - 1;
  KCStringList lines;
  std::size_t start = 0;
  for (std::size_t i = 0; i < length; ++i) {
    if (text[i] == '\n') {
      lines.push_back(KCString(text + start, i - start));
      start = i + 1;
    }
  }
  if (start < length)
    lines.push_back(KCString(text + start, length - start));

  KCC_NcFile file;
  KCC_NcFileProgram* last = file.LoadFromStringList(lines, checkFirstBlock, keepUnfinished);
  if (last != nullptr && !file.HasNoError())
    __builtin_trap();  // a result always comes with success
  for (KCC_NcFileProgramList* list : {&file.GetMainProgList(), &file.GetSubProgList()}) {
    for (KCC_NcFileProgram* p = list->GetFirstProg(); p != nullptr; p = list->GetNextProg()) {
      p->CalculateProgramSize();
    }
  }
  file.CheckMultipleProgramNumbers();
  return 0;
}
