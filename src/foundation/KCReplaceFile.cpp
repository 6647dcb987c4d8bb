// SPDX-License-Identifier: MIT
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

// The attributes of a replaced file that the new file takes over: how the user or the system marked the file
// (hidden, system file, kept out of the search index, a temporary file). The archive attribute is not carried
// over: the contents have changed, so the new file is marked for the next backup like any file just written.
// Read-only targets never get this far (MoveOver refuses them).
constexpr DWORD kCarriedAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                                     FILE_ATTRIBUTE_NOT_CONTENT_INDEXED | FILE_ATTRIBUTE_TEMPORARY;

// Creates `temporary` (never reusing an existing file) with the carried attributes of the file at `path` it
// will replace, writes `content` and flushes it to the disk, so that the rename can only ever expose complete
// contents.
Created WriteNewFile(const std::string& temporary, const std::string& content, const std::string& path) {
  DWORD attributes = FILE_ATTRIBUTE_NORMAL;
  const DWORD old = GetFileAttributesA(path.c_str());
  if (old != INVALID_FILE_ATTRIBUTES && (old & kCarriedAttributes) != 0)
    attributes = old & kCarriedAttributes;
  const HANDLE file =
      CreateFileA(temporary.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, attributes, nullptr);
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

// The file that new contents for `path` replace: `path` itself, or, when `path` is a symbolic link, the file
// the link finally names, so that the link stays a link and the file it names gets the contents (renaming
// over the link would replace the link itself). Other reparse points (deduplicated or cloud files) are the
// file itself. A link whose target cannot be opened is replaced like a file.
std::string ReplacedFile(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
    return path;
  WIN32_FIND_DATAA found{};
  const HANDLE find = FindFirstFileA(path.c_str(), &found);
  if (find == INVALID_HANDLE_VALUE)
    return path;
  FindClose(find);
  if (found.dwReserved0 != IO_REPARSE_TAG_SYMLINK)  // the reparse tag of a reparse point
    return path;
  // Opening without FILE_FLAG_OPEN_REPARSE_POINT follows the whole chain of links.
  const HANDLE target = CreateFileA(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (target == INVALID_HANDLE_VALUE)
    return path;
  std::string name(MAX_PATH, '\0');
  DWORD length =
      GetFinalPathNameByHandleA(target, &name[0], static_cast<DWORD>(name.size()), VOLUME_NAME_DOS);
  if (length >= name.size()) {  // too small: the length asked for includes the terminating zero
    name.assign(length, '\0');
    length = GetFinalPathNameByHandleA(target, &name[0], static_cast<DWORD>(name.size()), VOLUME_NAME_DOS);
  }
  CloseHandle(target);
  if (length == 0 || length >= name.size())
    return path;
  name.resize(length);
  // The name comes as "\\?\C:\dir\file" or "\\?\UNC\server\share\file"; a short one is given back in its
  // ordinary form, which every file function takes.
  if (name.size() < MAX_PATH) {
    if (name.compare(0, 8, "\\\\?\\UNC\\") == 0)
      name = "\\" + name.substr(7);
    else if (name.compare(0, 4, "\\\\?\\") == 0)
      name = name.substr(4);
  }
  return name;
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

// On POSIX systems the caller resolves symbolic links where it wants them followed.
std::string ReplacedFile(const std::string& path) {
  return path;
}

#endif

}  // namespace

bool ReplaceFileContents(const std::string& requested, const std::string& content) {
  const std::string path = ReplacedFile(requested);
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
