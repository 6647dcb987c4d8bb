// SPDX-License-Identifier: MIT
// Checks on the files and directories nckit writes, made before anything is loaded or written.
//
//   if (const auto stop = CheckOutputFileName(cl, target, err)) return *stop;
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

class NckitCommandLine;

/// The output file named with -o: an empty name or a directory is a wrong command line (message on `err`).
/// Returns the exit code when the command stops here; nothing when the name can be tried.
std::optional<int> CheckOutputFileName(const NckitCommandLine& cl, const std::string& target,
                                       std::ostream& err);

/// True when the two paths name the same existing file.
bool SameFile(const std::string& a, const std::string& b);
