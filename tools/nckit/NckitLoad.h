// SPDX-License-Identifier: MIT
// Loading the NC file of a subcommand and reporting how the load went, in words a user can act on.
//
//   NcLoadResult loaded;
//   if (const auto stop = LoadNcFileWithoutError(cl, path, loadOptions, loaded, err)) return *stop;
//   for (KCC_NcFileProgram* p : AllPrograms(*loaded.file)) ...
#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "NckitCommandLine.h"
#include "ncappkit/nc/KCC_NcFile.h"

/// The outcome of loading a file.
struct NcLoadResult {
  std::unique_ptr<KCC_NcFile> file;
  /// KCC_NcFile::LoadError of the load.
  int errorCode = KCC_NcFile::kNoError;
  /// 1-based number of the line that was too long for the file reader (0: none).
  int longLine = 0;
};

/// Check that `path` names a readable regular file (message and usage exit code otherwise), then load it
/// with `options`. Returns the exit code when the command stops here; nothing when the file was read
/// (result.errorCode tells how the load went). A file with lines ended by a carriage return alone gets a
/// warning on `err`, since the reader sees them as one line.
std::optional<int> LoadNcFile(const NckitCommandLine& cl, const std::string& path,
                              const NcLoadOptions& options, NcLoadResult& result, std::ostream& err);

/// LoadNcFile, and for a load that ends with an error code also ReportLoadError and the exit code
/// kNckitProblem. Returns nothing when the file loaded without error.
std::optional<int> LoadNcFileWithoutError(const NckitCommandLine& cl, const std::string& path,
                                          const NcLoadOptions& options, NcLoadResult& result,
                                          std::ostream& err);

/// One line per problem of a failed load, starting with "nckit COMMAND: PATH: ": the error's name and what
/// to do about it (which line is too long; which program ends the file has that the loader does not take).
void ReportLoadError(const NckitCommandLine& cl, const std::string& path, const NcLoadResult& result,
                     std::ostream& err);

/// First line (1-based, lines ended by a line feed) where a carriage return after the line's text is followed
/// by more text, as in files whose lines end with a carriage return alone; 0 when none. Carriage returns at
/// the start of a line (the loader turns them into blanks) or before the line feed are not counted.
long long FindLoneCarriageReturn(const std::string& path);

/// An M word in a file that ends programs on some controls, as written there ("M02", "m30"), and the line
/// (1-based) where it first occurs.
struct NcEndWord {
  std::string word;
  long long line = 0;
};

/// The M words of the file at `path` (outside brackets) that commonly end programs: M2 (program end), M17
/// (sub-program end), M30 and M99, however written (M02, m30, M0099); each distinct spelling once, in the
/// order of their first occurrence.
std::vector<NcEndWord> FindEndWords(const std::string& path);

/// All programs of both lists, main programs first, without null entries.
std::vector<KCC_NcFileProgram*> AllPrograms(KCC_NcFile& file);

/// A program number as written in file names and tables: at least four digits ("0012"); "-" for none.
std::string ProgramNumberText(int number);
