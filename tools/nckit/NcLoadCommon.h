// SPDX-License-Identifier: MIT
// Shared pieces of the nckit subcommands that read NC files: option parsing, loading with clear error
// reports, and the text of programs.
//
//   NcCommandLine cl;
//   if (int rc = ParseNcCommandLine("info", args, {"--json"}, {}, cl, err); rc >= 0) return rc;
//   NcLoadResult loaded;
//   if (int rc = LoadNcFile("info", cl.positionals[0], cl.LoadOptions(), loaded, err); rc >= 0) return rc;
#pragma once

#include <iosfwd>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "NckitCommand.h"
#include "ncappkit/nc/KCC_NcFile.h"

/// The options every file-reading subcommand accepts.
struct NcLoadOptions {
  bool checkFirstBlock = false;
  bool keepUnfinished = false;
  bool noLineLimit = false;
};

/// A parsed command line: flags that were given, options with their value, and the positional arguments.
struct NcCommandLine {
  std::set<std::string> flags;
  std::map<std::string, std::string> values;
  std::vector<std::string> positionals;
  bool help = false;

  bool Has(const std::string& flag) const { return flags.count(flag) != 0; }
  NcLoadOptions LoadOptions() const;
};

/// Help text lines for the load options, for the subcommands' --help.
extern const char* const kNcLoadOptionsHelp;

/// Parse `args`: the load options (--first-block, --keep-unfinished, --no-line-limit), --help/-h, the given
/// extra flags and the options that take a value (as "-o DIR" or "-o=DIR"; "--output" is accepted as the
/// long spelling of "-o" and stored under "-o"). Returns -1 when parsing succeeded, else the exit code after
/// writing a message to `err`. "--" ends the options.
int ParseNcCommandLine(const char* command, const std::vector<std::string>& args,
                       const std::set<std::string>& extraFlags, const std::set<std::string>& valueOptions,
                       NcCommandLine& result, std::ostream& err);

/// Write "nckit COMMAND: PROBLEM (try 'nckit COMMAND --help')" and return the usage exit code.
int NcUsageError(const char* command, const std::string& problem, std::ostream& err);

/// The outcome of loading a file.
struct NcLoadResult {
  std::unique_ptr<KCC_NcFile> file;
  int errorCode = 0;
  /// 1-based number of the first line that is too long for the file reader (0: none).
  long long longLine = 0;
  /// Length of that line.
  std::size_t longLineLength = 0;
};

/// Name of a load error code ("file not found", "too many lines", ...).
std::string NcLoadErrorName(int errorCode);

/// Check that `path` names a readable regular file (message and usage exit code otherwise), then load it
/// with `options`. Returns -1 when the file was read (result.errorCode tells how the load went), else the
/// exit code. With noLineLimit the lines are read first and loaded from the string list. A file with lines
/// ended by a carriage return alone gets a warning on `err`, since the reader sees them as one line.
int LoadNcFile(const char* command, const std::string& path, const NcLoadOptions& options,
               NcLoadResult& result, std::ostream& err);

/// LoadNcFile, and for a load that ends with an error code also ReportLoadError. Returns -1 when the file
/// loaded without error, else the exit code (kNckitProblem for a load error).
int LoadNcFileWithoutError(const char* command, const std::string& path, const NcLoadOptions& options,
                           NcLoadResult& result, std::ostream& err);

/// One line per problem of a failed load (the error name; for a too-long line which line it was and the
/// --no-line-limit hint), each starting with "nckit COMMAND: ".
void ReportLoadError(const char* command, const std::string& path, const NcLoadResult& result,
                     std::ostream& err);

/// First line (1-based) of the file that holds more than 127 characters, with its length; 0 when none.
long long FindFirstLongLine(const std::string& path, std::size_t& length);

/// First line (1-based, lines ended by a line feed) where a carriage return after the line's text is followed
/// by more text, as in files whose lines end with a carriage return alone; 0 when none. Carriage returns at
/// the start of a line (the loader turns them into blanks) or before the line feed are not counted.
long long FindLoneCarriageReturn(const std::string& path);

/// All programs of both lists, main programs first, without null entries.
std::vector<KCC_NcFileProgram*> AllPrograms(KCC_NcFile& file);

/// The text SaveToFile writes for these programs: each line with a line end, framed by '%' lines.
std::string ProgramsText(const std::vector<const KCC_NcFileProgram*>& programs);

/// `text` as a JSON string literal (quotes included), ASCII only: well-formed UTF-8 characters are written
/// as \u escapes of their code points, any other byte outside ASCII as the Latin-1 character \u00XX.
std::string JsonString(const std::string& text);

/// Parse a program number argument ("1000", "O1000", "O0012"); false when it is none.
bool ParseProgramNumberArgument(const std::string& text, int& number);

/// Read the program numbers given after FILE (the second and later positional arguments) into `numbers`.
/// Returns -1 when every one is a program number, else the usage exit code after a message to `err`.
int ParseProgramNumberArguments(const char* command, const NcCommandLine& cl, std::set<int>& numbers,
                                std::ostream& err);

/// A program number as written in file names and tables: at least four digits ("0012"); "-" for none.
std::string ProgramNumberText(int number);

/// Check the output file named with -o before anything is loaded: an empty name or a directory is a usage
/// error (message on `err`, usage exit code); -1 when the name can be tried.
int CheckOutputFileName(const char* command, const std::string& target, std::ostream& err);

/// True when the two paths name the same existing file.
bool SameFile(const std::string& a, const std::string& b);
