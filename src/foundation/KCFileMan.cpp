// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCFileMan.h"

#include <sys/stat.h>

#include <array>
#include <filesystem>
#include <string>

#include "foundation/KCPlatformDetail.h"
#include "foundation/KCReplaceFile.h"

namespace {

bool IsSeparator(char c) noexcept {
  return c == '/' || c == '\\';
}

// Index of the first character of the file-name part.
std::size_t FileNameStart(const std::string& path) noexcept {
  std::size_t i = path.size();
  while (i > 0 && !IsSeparator(path[i - 1]))
    --i;
  if (i == 0)
    i = ncappkit_detail::DrivePrefixLength(path);  // "C:name" on Windows
  return i;
}

bool StatPath(const KCString& path, struct stat& info) {
  // A NUL byte cannot stand in a file name; the system would look up only the part before it.
  if (path.empty() || path.str().find('\0') != std::string::npos)
    return false;
  return ::stat(path.c_str(), &info) == 0;
}

}  // namespace

bool KCFileMan::FileExists(const KCString& path) {
  struct stat info {};
  return StatPath(path, info) && (info.st_mode & S_IFMT) == S_IFREG;
}

bool KCFileMan::DirectoryExists(const KCString& path) {
  struct stat info {};
  return StatPath(path, info) && (info.st_mode & S_IFMT) == S_IFDIR;
}

KCString KCFileMan::ExtractFileName(const KCString& path) {
  return KCString(path.str().substr(FileNameStart(path.str())));
}

KCString KCFileMan::ExtractFilePath(const KCString& path) {
  std::size_t end = FileNameStart(path.str());
  const std::size_t nameStart = end;
  while (end > 1 && IsSeparator(path.str()[end - 1]))
    --end;
  if (nameStart == 0)
    return KCString();
  return KCString(path.str().substr(0, end));
}

KCString KCFileMan::ExtractFileExt(const KCString& path) {
  const std::string name = ExtractFileName(path).str();
  const std::size_t dot = name.rfind('.');
  if (dot == std::string::npos || dot == 0)
    return KCString();
  return KCString(name.substr(dot));
}

KCString KCFileMan::ExtractFileNameNoExt(const KCString& path) {
  const std::string name = ExtractFileName(path).str();
  const std::size_t dot = name.rfind('.');
  if (dot == std::string::npos || dot == 0)
    return KCString(name);
  return KCString(name.substr(0, dot));
}

KCString KCFileMan::GetFullFileVersion(const KCString& path, bool withBuild) {
  std::array<int, 4> version{};
  if (!ncappkit_detail::ReadFileVersion(path.str(), version))
    return KCString();
  KCString text =
      KCString(version[0], false) + "." + KCString(version[1], false) + "." + KCString(version[2], false);
  if (withBuild)
    text += KCString(".") + KCString(version[3], false);
  return text;
}

bool KCFileMan::ReplaceFileContents(const KCString& path, const std::string& content) {
  // A NUL byte cannot stand in a file name; the system would write to the part before it.
  if (path.str().find('\0') != std::string::npos)
    return false;
  // A symbolic link is followed, so the file it names gets the new contents and the link stays a link.
  std::string target = path.str();
  std::error_code error;
  if (std::filesystem::is_symlink(target, error)) {
    const std::filesystem::path resolved = std::filesystem::canonical(target, error);
    if (!error)
      target = resolved.string();
  }
  return ncappkit_detail::ReplaceFileContents(target, content);
}
