// SPDX-License-Identifier: MIT
#include "ncappkit/config/KCC_AppName.h"

#include "ncappkit/foundation/KCFileMan.h"
#include "ncappkit/foundation/KCPlatform.h"

bool KCC_AppName::PrepareAppName(KCString& name) {
  return MakeAppName(KCC_GetExecutablePath(), name);
}

bool KCC_AppName::MakeAppName(const KCString& path, KCString& name) {
  if (path.empty() || path.GetLength() > kMaxPathLength)
    return false;
  KCString base = KCFileMan::ExtractFileNameNoExt(path);
  const KCString suffix = KCString(" V") + KCFileMan::GetFullFileVersion(path, false);
  // The version suffix is kept whole; the base name gives way to it.
  const int baseRoom = kMaxNameLength - suffix.GetLength();
  if (base.GetLength() >= baseRoom)
    base = base.Left(baseRoom);
  KCString result = base + suffix;
  if (result.GetLength() >= kMaxNameLength)
    result = result.Left(kMaxNameLength);
  name = result;
  return true;
}

// Definitions of the class's constants. With them the Windows DLL exports the constants, so that a program
// that takes one by reference or address links against the DLL's copy.
constexpr int KCC_AppName::kMaxNameLength;
constexpr int KCC_AppName::kMaxPathLength;
