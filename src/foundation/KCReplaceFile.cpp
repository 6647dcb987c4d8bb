#include "foundation/KCReplaceFile.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <random>

#if defined(_WIN32)
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#endif

namespace ncappkit_detail {

namespace {

// A name for the temporary file in the same directory as `path`, so that the final rename never crosses a
// file system.
std::string TemporaryName(const std::string& path) {
  static std::atomic<unsigned> counter{0};
  static const unsigned seed = std::random_device()();
  return path + ".tmp" + std::to_string(seed) + "-" + std::to_string(counter.fetch_add(1));
}

enum class Created { Ok, NameTaken, Failed };

#if defined(_WIN32)

// Creates `temporary` (never reusing an existing file), writes `content` and flushes it to the disk.
Created WriteNewFile(const std::string& temporary, const std::string& content, const std::string& /*path*/) {
  const HANDLE file =
      CreateFileA(temporary.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    return GetLastError() == ERROR_FILE_EXISTS ? Created::NameTaken : Created::Failed;
  }
  bool ok = true;
  std::size_t done = 0;
  while (ok && done < content.size()) {
    const std::size_t chunk = std::min<std::size_t>(content.size() - done, 1u << 30);
    DWORD written = 0;
    ok = WriteFile(file, content.data() + done, static_cast<DWORD>(chunk), &written, nullptr) != 0 &&
         written > 0;
    done += written;
  }
  ok = FlushFileBuffers(file) != 0 && ok;
  ok = CloseHandle(file) != 0 && ok;
  return ok ? Created::Ok : Created::Failed;
}

bool MoveOver(const std::string& from, const std::string& to) {
  // Windows does not replace a file with the read-only attribute. Asked for directly, because where the
  // attribute only mirrors file permissions (wine run by an administrator) the move would still succeed.
  const DWORD attributes = GetFileAttributesA(to.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    SetLastError(ERROR_ACCESS_DENIED);
    return false;
  }
  return MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

#else

// Creates `temporary` (never reusing an existing file) with the permissions of the file it will replace,
// writes `content` and flushes it to the disk, so that the rename can only ever expose complete contents.
Created WriteNewFile(const std::string& temporary, const std::string& content, const std::string& path) {
  const int fd = open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (fd < 0)
    return errno == EEXIST ? Created::NameTaken : Created::Failed;
  bool ok = true;
  struct stat old {};
  if (stat(path.c_str(), &old) == 0)
    ok = fchmod(fd, old.st_mode & 07777) == 0;
  std::size_t done = 0;
  while (ok && done < content.size()) {
    const ssize_t written = write(fd, content.data() + done, content.size() - done);
    if (written < 0 && errno == EINTR)
      continue;
    ok = written > 0;
    if (ok)
      done += static_cast<std::size_t>(written);
  }
  ok = fsync(fd) == 0 && ok;
  ok = close(fd) == 0 && ok;
  return ok ? Created::Ok : Created::Failed;
}

bool MoveOver(const std::string& from, const std::string& to) {
  return std::rename(from.c_str(), to.c_str()) == 0;
}

#endif

}  // namespace

bool ReplaceFileContents(const std::string& path, const std::string& content) {
  constexpr int kAttempts = 8;  // only a name already taken by someone else is worth another try
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    const std::string temporary = TemporaryName(path);
    const Created created = WriteNewFile(temporary, content, path);
    if (created == Created::NameTaken)
      continue;
    if (created == Created::Ok && MoveOver(temporary, path))
      return true;
    std::remove(temporary.c_str());  // a partly written or unrenamed temporary file
    return false;
  }
  return false;
}

}  // namespace ncappkit_detail
