// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCFileMan.h"

#include <sys/stat.h>

#include <string>

#include "ncappkit/version.h"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace {

bool IsSeparator(char c) noexcept {
  return c == '/' || c == '\\';
}

// Index of the first character of the file-name part.
std::size_t FileNameStart(const std::string& path) noexcept {
  std::size_t i = path.size();
  while (i > 0 && !IsSeparator(path[i - 1]))
    --i;
#if defined(_WIN32)
  if (i == 0 && path.size() >= 2 && path[1] == ':')
    i = 2;  // "C:name"
#endif
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
#if defined(_WIN32)
  DWORD handle = 0;
  const DWORD size = GetFileVersionInfoSizeA(path.c_str(), &handle);
  if (size == 0)
    return KCString();
  std::string data(size, '\0');
  if (!GetFileVersionInfoA(path.c_str(), 0, size, data.data()))
    return KCString();
  VS_FIXEDFILEINFO* info = nullptr;
  UINT infoLength = 0;
  // The root block is the fixed part with the numeric file version; a block of another size or without the
  // fixed part's signature is a damaged resource, which gives no version like a missing one.
  constexpr DWORD kFixedFileInfoSignature = 0xFEEF04BD;
  if (!VerQueryValueA(data.data(), "\\", reinterpret_cast<LPVOID*>(&info), &infoLength) || info == nullptr ||
      infoLength < sizeof(VS_FIXEDFILEINFO) || info->dwSignature != kFixedFileInfoSignature) {
    return KCString();
  }
  KCString text = KCString(static_cast<int>(HIWORD(info->dwFileVersionMS)), false) + "." +
                  KCString(static_cast<int>(LOWORD(info->dwFileVersionMS)), false) + "." +
                  KCString(static_cast<int>(HIWORD(info->dwFileVersionLS)), false);
  if (withBuild)
    text += KCString(".") + KCString(static_cast<int>(LOWORD(info->dwFileVersionLS)), false);
  return text;
#else
  if (!FileExists(path))
    return KCString();
  KCString text(NCAPPKIT_VERSION_STRING);
  if (withBuild)
    text += ".0";
  return text;
#endif
}
