// SPDX-License-Identifier: MIT
// Checks on the files and directories nckit writes.
#include "NckitOutput.h"

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <system_error>

#include "NckitCommandLine.h"
#include "ncappkit/nc/KCC_NcFile.h"

namespace fs = std::filesystem;

std::optional<int> CheckOutputFileName(const NckitCommandLine& cl, const std::string& target,
                                       std::ostream& err) {
  if (target.empty())
    return cl.UsageError("-o needs a file name", err);
  std::error_code ec;
  if (fs::is_directory(target, ec)) {
    err << cl.Program() << ": " << target << ": is a directory; -o names the file to write\n";
    return kNckitUsage;
  }
  return std::nullopt;
}

void WarnLinesTooLongToReadBack(const NckitCommandLine& cl, const std::string& target,
                                const std::string& text, std::ostream& err) {
  const auto limit = static_cast<std::size_t>(KCC_NcFile::kMaxLineLength);
  std::size_t firstLine = 0;
  std::size_t firstLength = 0;
  std::size_t count = 0;
  std::size_t line = 1;
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    const std::size_t length = end - start;
    if (length > limit) {
      if (count == 0) {
        firstLine = line;
        firstLength = length;
      }
      ++count;
    }
    start = end + 1;
    ++line;
  }
  if (count == 0)
    return;
  err << cl.Program() << ": " << target << ": warning: line " << firstLine << " has " << firstLength
      << " characters, more than the reader's " << limit;
  if (count > 1)
    err << " (" << count - 1 << " more such line" << (count > 2 ? "s" : "") << ")";
  err << "; read the file back with --no-line-limit\n";
}

bool SameFile(const std::string& a, const std::string& b) {
  std::error_code ec;
  return fs::exists(a, ec) && fs::exists(b, ec) && fs::equivalent(a, b, ec) && !ec;
}
