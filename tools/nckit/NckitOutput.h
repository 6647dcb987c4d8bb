// SPDX-License-Identifier: MIT
// Checks on the files and directories nckit writes, made before anything is loaded or written.
//
//   if (const auto stop = CheckOutputFileName(cl, target, err)) return *stop;
//   WarnLinesTooLongToReadBack(cl, target, KCC_NcFile::GetProgramsText(programs, "\n"), err);
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

class NckitCommandLine;

/// The output file named with -o: an empty name or a directory is a wrong command line (message on `err`).
/// Returns the exit code when the command stops here; nothing when the name can be tried.
std::optional<int> CheckOutputFileName(const NckitCommandLine& cl, const std::string& target,
                                       std::ostream& err);

/// When a line of `text` (lines ended by "\n") is longer than the file reader takes
/// (KCC_NcFile::kMaxLineLength), one warning on `err` naming `target`, the first such line and how many
/// there are: nckit reads such a file back only with --no-line-limit. Nothing when every line fits.
void WarnLinesTooLongToReadBack(const NckitCommandLine& cl, const std::string& target,
                                const std::string& text, std::ostream& err);

/// True when the two paths name the same existing file.
bool SameFile(const std::string& a, const std::string& b);
