#include "foundation/KCReplaceFile.h"

#include <atomic>
#include <cstdio>
#include <random>

#if defined(_WIN32)
#include <windows.h>
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

bool MoveOver(const std::string& from, const std::string& to) {
#if defined(_WIN32)
  return MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
#else
  return std::rename(from.c_str(), to.c_str()) == 0;
#endif
}

}  // namespace

bool ReplaceFileContents(const std::string& path, const std::string& content) {
  constexpr int kAttempts = 8;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    const std::string temporary = TemporaryName(path);
    // "x": never reuse a file someone else created under the same name.
    std::FILE* file = std::fopen(temporary.c_str(), "wbx");
    if (file == nullptr)
      continue;
    const bool written = std::fwrite(content.data(), 1, content.size(), file) == content.size();
    const bool closed = std::fclose(file) == 0;
    if (written && closed && MoveOver(temporary, path))
      return true;
    std::remove(temporary.c_str());
    return false;
  }
  return false;
}

}  // namespace ncappkit_detail
