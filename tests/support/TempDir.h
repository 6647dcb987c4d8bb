// SPDX-License-Identifier: MIT
// TempDir: a fresh, empty temporary directory for one test, removed with everything in it when the object
// goes out of scope.
//
//   TempDir dir;
//   std::string ini = dir.WriteFile("app.ini", "[App]\nLang=Eng\n");
//   KCIniFile file(ini);
//   EXPECT_EQ(dir.ReadFile("app.ini"), "[App]\nLang=Eng\n");
#pragma once

#include <string>

class TempDir {
 public:
  /// Create a new directory under the system's temporary directory; its name carries the running test's
  /// name so that a left-over directory can be traced. Fails the test (and throws) when none can be made.
  TempDir();
  /// Remove the directory and its contents (errors are ignored).
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  /// Full path of the directory.
  const std::string& Path() const noexcept { return m_path; }
  /// Full path of `name` inside the directory (`name` may contain '/'); nothing is created.
  std::string Path(const std::string& name) const;
  /// Write `content` byte for byte to `name` inside the directory (creating sub-directories and replacing an
  /// existing file); returns the file's full path.
  std::string WriteFile(const std::string& name, const std::string& content) const;
  /// The bytes of `name` inside the directory, or "" when it cannot be read.
  std::string ReadFile(const std::string& name) const;
  /// True when `name` exists inside the directory.
  bool Exists(const std::string& name) const;
  /// Number of files and directories directly inside the directory, or inside its sub-directory `name` (to
  /// check that nothing was left behind).
  int EntryCount(const std::string& name = std::string()) const;

  /// The bytes of the file at the full path `path`, or "" when it cannot be read.
  static std::string ReadFileAt(const std::string& path);

 private:
  std::string m_path;
};
