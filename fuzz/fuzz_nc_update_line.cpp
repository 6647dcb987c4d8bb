// SPDX-License-Identifier: MIT
// Fuzz target: rewriting a line through every NC parameter kind. The first bytes choose the values; the
// rest is the line, which each kind rewrites in turn.
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "ncappkit/nc/CNcParameter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 12)
    return 0;
  std::int32_t intValue = 0;
  double doubleValue = 0.0;
  std::memcpy(&intValue, data, sizeof intValue);
  std::memcpy(&doubleValue, data + 4, sizeof doubleValue);
  const char address = static_cast<char>(data[4]);
  const int digits = static_cast<int>(data[5] % 12) - 1;
  const KCString original(reinterpret_cast<const char*>(data + 12), size - 12);
  // The command searched for by the ISO kind: the first three characters of the line, when it has them.
  const KCString command = original.Left(3);

  KCString line(original);
  CNcParamInteger integer;
  integer.SetParam(intValue, &line);
  integer.UpdateNcLine();

  line = original;
  CNcParamDouble real;
  real.SetDigitsAfter(digits);
  real.SetParam(doubleValue, &line);
  real.UpdateNcLine();

  line = original;
  CNcParamString text;
  text.SetParam(command, &line);
  text.UpdateNcLine();

  line = original;
  CNcParamSubProgId sub;
  sub.SetParam(intValue, &line);
  sub.UpdateNcLine();

  line = original;
  CNcParamIsoCommand iso;
  iso.SetParam(command, address, doubleValue, &line);
  iso.UpdateNcLine();
  return 0;
}
