// SPDX-License-Identifier: MIT
// Helpers of the tool-path tests: interpret NC text given as lines, and write a result in the readable form
// of tests/data/toolpath/<case>/expected.txt (described in tests/data/toolpath/README.md).
#pragma once

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_NcToolPath.h"

namespace toolpath_test {

/// Loads `lines` as one NC text (first-block check on, unfinished rest kept) and interprets its first main
/// program, or without one its first sub-program, with the options of `path`.
inline KCC_NcToolPath& InterpretLines(const std::vector<std::string>& lines, KCC_NcToolPath& path) {
  KCStringList text;
  for (const std::string& line : lines)
    text.push_back(line);
  KCC_NcFile file;
  file.LoadFromStringList(text, true, true);
  KCC_NcFileProgram* program = file.GetMainProgList().GetProgram(0);
  if (program == nullptr)
    program = file.GetSubProgList().GetProgram(0);
  if (program != nullptr)
    path.Interpret(file, *program);
  else
    path.Clear();
  return path;
}

/// InterpretLines with the default options.
inline KCC_NcToolPath Interpret(const std::vector<std::string>& lines) {
  KCC_NcToolPath path;
  InterpretLines(lines, path);
  return path;
}

/// A number with at most three decimals, trailing zeros dropped ("12.5", "-3", "0").
inline std::string Num(double v) {
  char text[64];
  std::snprintf(text, sizeof text, "%.3f", v);
  std::string s = text;
  while (s.back() == '0')
    s.pop_back();
  if (s.back() == '.')
    s.pop_back();
  if (s == "-0")
    s = "0";
  return s;
}

inline std::string Point(const float p[3]) {
  return Num(static_cast<double>(p[0])) + " " + Num(static_cast<double>(p[1])) + " " +
         Num(static_cast<double>(p[2]));
}

/// "cw 0 0 0 > 10 0 0 c 5 0 0 XY F100 T1 O0001:3 inconsistent": kind, start, end, for arcs the centre and
/// plane, feed, tool, program name and line, flags.
inline std::string SegmentText(const KCC_NcToolPath& path, const KCC_NcToolPath::Segment& s) {
  static const char* const kPlanes[] = {"XY", "ZX", "YZ"};
  std::string text =
      std::string(KCC_NcToolPath::GetKindName(s.kind)) + " " + Point(s.start) + " > " + Point(s.end);
  if (s.kind == KCC_NcToolPath::kArcCW || s.kind == KCC_NcToolPath::kArcCCW)
    text += " c " + Point(s.centre) + " " + kPlanes[s.plane % 3];
  text += " F" + Num(static_cast<double>(s.feed)) + " T" + std::to_string(s.tool) + " " +
          path.GetProgramName(s.program).str() + ":" + std::to_string(s.line);
  if ((s.flags & KCC_NcToolPath::kFlagFullCircle) != 0)
    text += " full";
  if ((s.flags & KCC_NcToolPath::kFlagInconsistent) != 0)
    text += " inconsistent";
  return text;
}

/// The whole result: segments, warnings, not-interpreted entries and kinds, extents, lengths, time, state.
inline std::string Describe(const KCC_NcToolPath& path) {
  std::string text;
  for (const KCC_NcToolPath::Segment& s : path.GetSegments())
    text += SegmentText(path, s) + "\n";
  for (const KCC_NcToolPath::Note& n : path.GetWarnings())
    text += "warning " + path.GetProgramName(n.program).str() + ":" + std::to_string(n.line) + " " +
            n.text.str() + "\n";
  for (const KCC_NcToolPath::Note& n : path.GetNotInterpreted())
    text += "not-interpreted " + path.GetProgramName(n.program).str() + ":" + std::to_string(n.line) + " " +
            n.text.str() + "\n";
  for (const KCC_NcToolPath::KindCount& k : path.GetNotInterpretedKinds())
    text += "kind " + k.kind.str() + " " + std::to_string(k.count) + "\n";
  KCC_NcToolPath::Extents box;
  if (path.GetExtents(box)) {
    text += "extents " + Num(box.min[0]) + " " + Num(box.min[1]) + " " + Num(box.min[2]) + " / " +
            Num(box.max[0]) + " " + Num(box.max[1]) + " " + Num(box.max[2]) + "\n";
  }
  text += "rapid-length " + Num(path.GetRapidLength()) + "\n";
  text += "feed-length " + Num(path.GetFeedLength()) + "\n";
  text += "run-time " + Num(path.GetRunTime()) + "\n";
  text += path.IsComplete() ? "complete\n" : "stopped " + path.GetStopReason().str() + "\n";
  return text;
}

}  // namespace toolpath_test
