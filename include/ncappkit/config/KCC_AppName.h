// SPDX-License-Identifier: MIT
// KCC_AppName: the application's display name, built from its executable's file name and version.
//
// The name is the executable's base name (no directory, no extension), a blank, the letter V and the file's
// version ("millcam V0.1.0"). It never exceeds 30 characters: a long base name is cut so that the version
// suffix stays whole.
//
//   KCString title;
//   if (KCC_AppName::PrepareAppName(title))
//     window.SetTitle(title);
//
// Choice: an executable path of 260 characters or more (longer than the platform's module-name buffer
// holds) counts as a path that cannot be obtained.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// The application's display name, built from its executable's base name and version.
class NCAPPKIT_EXPORT KCC_AppName {
 public:
  /// Longest display name.
  static constexpr int kMaxNameLength = 30;
  /// Longest executable path taken.
  static constexpr int kMaxPathLength = 259;

  /// Set `name` to the display name of the running executable and return true; false (name unchanged) when
  /// the executable's path cannot be obtained.
  static bool PrepareAppName(KCString& name);
  /// Set `name` to the display name of the executable at `path` and return true; false (name unchanged)
  /// for an empty path or one of 260 characters or more.
  static bool MakeAppName(const KCString& path, KCString& name);
};
