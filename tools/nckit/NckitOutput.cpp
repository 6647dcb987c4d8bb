// SPDX-License-Identifier: MIT
// Checks on the files and directories nckit writes.
#include "NckitOutput.h"

#include <filesystem>
#include <ostream>
#include <system_error>

#include "NckitCommandLine.h"

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

bool SameFile(const std::string& a, const std::string& b) {
  std::error_code ec;
  return fs::exists(a, ec) && fs::exists(b, ec) && fs::equivalent(a, b, ec) && !ec;
}
