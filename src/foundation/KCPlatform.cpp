// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCPlatform.h"

#include "foundation/KCPlatformDetail.h"

#include <sys/stat.h>
#include <atomic>
#include <cstdio>
#include <string>

#include "ncappkit/version.h"

#if defined(_WIN32)
#include <io.h>
#include <windows.h>

#include <cerrno>
#elif defined(__APPLE__)
#include <mach-o/dyld.h>
#else
#include <unistd.h>
#endif
#if defined(__linux__)
#include <sys/mman.h>

#include <cstdint>
#endif

namespace {

// Button sets of the message-box style (low four bits) and their buttons in order, as answer codes.
constexpr unsigned int kIdOk = 1, kIdCancel = 2, kIdAbort = 3, kIdRetry = 4, kIdIgnore = 5, kIdYes = 6,
                       kIdNo = 7;

unsigned int DefaultHandler(HWND owner, const char* text, const char* caption, unsigned int style) {
#if defined(_WIN32)
  return static_cast<unsigned int>(MessageBoxA(owner, text, caption, style));
#else
  (void)owner;
  std::fprintf(stderr, "[%s] %s\n", caption ? caption : "", text ? text : "");
  return KCC_DefaultMessageBoxAnswer(style);
#endif
}

std::atomic<KCC_MessageBoxHandler> g_handler{&DefaultHandler};

}  // namespace

KCC_MessageBoxHandler KCC_SetMessageBoxHandler(KCC_MessageBoxHandler handler) {
  return g_handler.exchange(handler ? handler : &DefaultHandler);
}

unsigned int KCC_ShowMessageBox(HWND owner, const char* text, const char* caption, unsigned int style) {
  return g_handler.load()(owner, text ? text : "", caption ? caption : "", style);
}

unsigned int KCC_DefaultMessageBoxAnswer(unsigned int style) noexcept {
  static constexpr unsigned int kButtons[6][3] = {
      {kIdOk, 0, 0},                    // OK
      {kIdOk, kIdCancel, 0},            // OK, Cancel
      {kIdAbort, kIdRetry, kIdIgnore},  // Abort, Retry, Ignore
      {kIdYes, kIdNo, kIdCancel},       // Yes, No, Cancel
      {kIdYes, kIdNo, 0},               // Yes, No
      {kIdRetry, kIdCancel, 0},         // Retry, Cancel
  };
  const unsigned int set = style & 0x0Fu;
  if (set > 5)
    return kIdOk;
  const unsigned int defaultBits = style & 0xF00u;
  unsigned int index = 0;
  if (defaultBits == 0x100u)
    index = 1;
  if (defaultBits == 0x200u)
    index = 2;
  const unsigned int answer = kButtons[set][index];
  return answer != 0 ? answer : kButtons[set][0];
}

KCString KCC_GetExecutablePath() {
#if defined(_WIN32)
  std::string buffer(MAX_PATH, '\0');
  for (;;) {
    const DWORD n = GetModuleFileNameA(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
    if (n == 0)
      return KCString();
    if (n < buffer.size())
      return KCString(buffer.substr(0, n));
    buffer.resize(buffer.size() * 2);
  }
#elif defined(__APPLE__)
  uint32_t size = 0;
  _NSGetExecutablePath(nullptr, &size);
  std::string buffer(size, '\0');
  if (_NSGetExecutablePath(buffer.data(), &size) != 0)
    return KCString();
  return KCString(buffer.c_str());
#else
  std::string buffer(256, '\0');
  for (;;) {
    const ssize_t n = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
    if (n < 0)
      return KCString();
    if (static_cast<std::size_t>(n) < buffer.size())
      return KCString(buffer.substr(0, static_cast<std::size_t>(n)));
    buffer.resize(buffer.size() * 2);
  }
#endif
}

const char* KCC_GetTextLineEnd() noexcept {
#if defined(_WIN32)
  return "\r\n";
#else
  return "\n";
#endif
}

bool ncappkit_detail::HasReadOnlyAttribute(const std::string& path) {
#if defined(_WIN32)
  return _access(path.c_str(), 2) != 0 && errno == EACCES;
#else
  (void)path;
  return false;
#endif
}

char ncappkit_detail::PathSeparator() noexcept {
#if defined(_WIN32)
  return '\\';
#else
  return '/';
#endif
}

std::size_t ncappkit_detail::DrivePrefixLength(const std::string& path) noexcept {
#if defined(_WIN32)
  return path.size() >= 2 && path[1] == ':' ? 2 : 0;
#else
  (void)path;
  return 0;
#endif
}

bool ncappkit_detail::ReadFileVersion(const std::string& path, std::array<int, 4>& version) {
  if (path.empty() || path.find('\0') != std::string::npos)
    return false;
#if defined(_WIN32)
  DWORD handle = 0;
  const DWORD size = GetFileVersionInfoSizeA(path.c_str(), &handle);
  if (size == 0)
    return false;
  std::string data(size, '\0');
  if (!GetFileVersionInfoA(path.c_str(), 0, size, data.data()))
    return false;
  VS_FIXEDFILEINFO* info = nullptr;
  UINT infoLength = 0;
  // The root block is the fixed part with the numeric file version; a block of another size or without the
  // fixed part's signature is a damaged resource, which gives no version like a missing one.
  constexpr DWORD kFixedFileInfoSignature = 0xFEEF04BD;
  if (!VerQueryValueA(data.data(), "\\", reinterpret_cast<LPVOID*>(&info), &infoLength) || info == nullptr ||
      infoLength < sizeof(VS_FIXEDFILEINFO) || info->dwSignature != kFixedFileInfoSignature) {
    return false;
  }
  version = {static_cast<int>(HIWORD(info->dwFileVersionMS)), static_cast<int>(LOWORD(info->dwFileVersionMS)),
             static_cast<int>(HIWORD(info->dwFileVersionLS)),
             static_cast<int>(LOWORD(info->dwFileVersionLS))};
  return true;
#else
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0 || (info.st_mode & S_IFMT) != S_IFREG)
    return false;
  version = {NCAPPKIT_VERSION_MAJOR, NCAPPKIT_VERSION_MINOR, NCAPPKIT_VERSION_PATCH, 0};
  return true;
#endif
}

void ncappkit_detail::AdviseLargePages(void* data, std::size_t bytes) noexcept {
#if defined(__linux__) && defined(MADV_HUGEPAGE)
  constexpr std::uintptr_t kLargePage = std::uintptr_t{2} << 20;
  const auto begin = reinterpret_cast<std::uintptr_t>(data);
  const std::uintptr_t first = (begin + kLargePage - 1) & ~(kLargePage - 1);
  const std::uintptr_t last = (begin + bytes) & ~(kLargePage - 1);
  if (data != nullptr && last > first)
    ::madvise(reinterpret_cast<void*>(first), last - first,
              MADV_HUGEPAGE);  // only a hint: its result is not needed
#else
  static_cast<void>(data);
  static_cast<void>(bytes);
#endif
}
