// SPDX-License-Identifier: MIT
// Fuzz target: block decoding of arbitrary text, then every getter.
#include <cstddef>
#include <cstdint>

#include "ncappkit/nc/KCC_ParseNc.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  KCC_ParseNc parser;
  const KCString line(reinterpret_cast<const char*>(data), size);
  parser.DecodeISOLine(line);
  int i = 0;
  double d = 0.0;
  parser.GetACommand(i);
  parser.GetACommand(d);
  parser.GetBCommand(i);
  parser.GetBCommand(d);
  parser.GetCCommand(i);
  parser.GetCCommand(d);
  parser.GetDCommand(d);
  parser.GetECommand(i);
  parser.GetFCommand(i);
  parser.GetGprimCommand(i);
  parser.GetGprimCommand(d);
  parser.GetGsecundCommand(d);
  parser.GetICommand(d);
  parser.GetJCommand(d);
  parser.GetKCommand(i);
  parser.GetLCommand(i);
  parser.GetMprimCommand(i);
  parser.GetMsecCommand(i);
  parser.GetNCommand(i);
  parser.GetPCommand(i);
  parser.GetSCommand(i);
  parser.GetSCommand(d);
  parser.GetRCommand(d);
  parser.GetTCommand(i);
  parser.GetVCommand(d);
  parser.GetXCommand(d);
  parser.GetYCommand(d);
  KCC_ParseNc copy(parser);
  parser = copy;
  return 0;
}
