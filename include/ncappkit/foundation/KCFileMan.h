// SPDX-License-Identifier: MIT
// KCFileMan: static file helpers: existence, file-name parts, safe replacement of a file's contents and the
// version text of an executable.
//
//   if (KCFileMan::FileExists("C:\\nc\\part.nc")) ...
//   KCString base = KCFileMan::ExtractFileNameNoExt("/opt/app/bin/mill.exe");   // "mill"
#pragma once

#include <string>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// Static file helpers: existence, file-name parts and the version text of an executable.
class NCAPPKIT_EXPORT KCFileMan {
 public:
  /// True when `path` names an existing regular file (a directory is not a file); false for a path with a
  /// NUL byte.
  static bool FileExists(const KCString& path);
  /// True when `path` names an existing directory; false for a path with a NUL byte.
  static bool DirectoryExists(const KCString& path);
  /// The file name without directories and without its last extension: "/a/b/mill.tar.gz" gives "mill.tar",
  /// "C:\\x\\run.exe" gives "run", ".profile" gives ".profile".
  static KCString ExtractFileNameNoExt(const KCString& path);
  /// The file name without directories: "/a/b/mill.exe" gives "mill.exe". Both '/' and '\\' separate.
  static KCString ExtractFileName(const KCString& path);
  /// The directory part of `path` without the trailing separator: "/a/b/mill.exe" gives "/a/b"; "" when the
  /// path has no directory.
  static KCString ExtractFilePath(const KCString& path);
  /// The last extension with its point: "part.nc" gives ".nc"; "" when there is none.
  static KCString ExtractFileExt(const KCString& path);

  /// Write `content` byte for byte to `path` through a new temporary file beside it that is then renamed over
  /// it, so an existing file is replaced only by a complete new one; a symbolic link is followed and stays a
  /// link. True on success; false, with whatever was at `path` left as it was, when the file cannot be written
  /// or the path holds a NUL byte. Every saver of the library (documents, SVG pictures) writes through it.
  static bool ReplaceFileContents(const KCString& path, const std::string& content);

  /// Version text of the executable file `path` as "major.minor.release.build".
  /// On Windows it is read from the file's version resource ("" when the file has none); `withBuild` false
  /// leaves out the build number ("1.2.3"). Elsewhere executables carry no version resource, so the version
  /// of this library is returned for any existing file ("0.1.0.0", or "0.1.0" without the build number) and
  /// "" for a path that does not exist.
  static KCString GetFullFileVersion(const KCString& path, bool withBuild);
};
