// SPDX-License-Identifier: MIT
// A client program of the installed library: decodes a number, joins a path, and reports through the silent
// reporter. It exits non-zero when any result is off, so a broken install or package cannot pass.
#include <ncappkit/ncappkit.h>

#include <cstdio>

int main() {
  KCString text("  -12.50mm");
  const double value = text.AsDouble(0.0);
  KCString shown(value, -1, false);
  KCC_MessageNone silent;
  KCC_MessageReporter& reporter = silent;
  reporter.SetMessage(shown);
  reporter.DoReport();
  std::printf("ncappkit %s: %s\n", NCAPPKIT_VERSION_STRING, shown.c_str());
  return shown == "-12.5" ? 0 : 1;
}
