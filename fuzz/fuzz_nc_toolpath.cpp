// SPDX-License-Identifier: MIT
// Fuzz target: interpreting arbitrary program text. The text is split into lines at LF, loaded (first-block
// check on, unfinished rest kept) and the first programs of both lists are interpreted with small limits,
// so that every input runs in bounded time and memory; the result must stay within those limits.
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_NcToolPath.h"

namespace {

constexpr std::size_t kMaxSegments = 20000;
constexpr std::uint64_t kMaxBlocks = 200000;
constexpr int kMaxProgramsPerList = 4;

void Check(const KCC_NcToolPath& path) {
  if (path.GetSegmentCount() > kMaxSegments || path.GetBlockCount() > kMaxBlocks + 1 ||
      path.GetWarnings().size() > KCC_NcToolPath::kMaxKeptNotes ||
      path.GetNotInterpreted().size() > KCC_NcToolPath::kMaxKeptNotes)
    __builtin_trap();
  if (path.IsComplete() != path.GetStopReason().empty())
    __builtin_trap();
  for (const KCC_NcToolPath::Segment& s : path.GetSegments()) {
    if (s.program >= path.GetProgramCount() || s.line < 1 || s.kind > KCC_NcToolPath::kHole || s.plane > 2)
      __builtin_trap();
  }
  KCC_NcToolPath::Extents box;
  if (path.GetExtents(box) != (path.GetSegmentCount() > 0))
    __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const char* text = reinterpret_cast<const char*>(data);
  KCStringList lines;
  std::size_t start = 0;
  for (std::size_t i = 0; i < size; ++i) {
    if (text[i] == '\n') {
      lines.push_back(KCString(text + start, i - start));
      start = i + 1;
    }
  }
  if (start < size)
    lines.push_back(KCString(text + start, size - start));

  KCC_NcFile file;
  file.LoadFromStringList(lines, true, true);
  for (KCC_NcFileProgramList* list : {&file.GetMainProgList(), &file.GetSubProgList()}) {
    for (int i = 0; i < kMaxProgramsPerList && i < list->GetNumberOfPrograms(); ++i) {
      const KCC_NcFileProgram* program = list->GetProgram(i);
      if (program == nullptr)
        continue;
      KCC_NcToolPath path;
      path.SetMaxSegments(kMaxSegments);
      path.SetMaxBlocks(kMaxBlocks);
      path.Interpret(file, *program);
      Check(path);
    }
  }
  return 0;
}
