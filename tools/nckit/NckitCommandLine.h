// SPDX-License-Identifier: MIT
// The command line of nckit and its subcommands: one parser (CLI11) with one style of help, messages and
// exit codes for all of them.
//
//   bool json = false;
//   std::vector<std::string> operands;
//   NcLoadOptions load;
//   NckitCommandLine cl("info", "nckit info FILE [options]", "Loads FILE and shows ...");
//   cl.Operands("FILE", operands);
//   cl.LoadOptions(load);
//   cl.Flag("--json", json, "write the result as one JSON object");
//   if (const auto stop = cl.Parse(args, out, err)) return *stop;   // help shown, or a wrong command line
//
// Accepted forms: "--name value", "--name=value", "-o value", "-ovalue", "-o=value", "--" (everything after
// it is an operand), -h/--help. An argument that starts with '-' and a character other than a letter or a
// second '-' ("-5", "-.5", "-(1+2)") is an operand, never an option. Options and operands may come in any
// order. Messages name the unknown option or the option without its value, end with "(try '... --help')"
// and give exit code 2.
#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "NckitCommand.h"

/// The options every file-reading subcommand accepts. The first block is looked for unless
/// --no-first-block is given.
struct NcLoadOptions {
  bool checkFirstBlock = true;
  bool keepUnfinished = false;
  bool noLineLimit = false;
};

class NckitCommandLine {
 public:
  /// `command`: the subcommand's name ("info"), or "" for nckit itself. `usage`: the usage line(s) without
  /// "usage: ". `description`: the text between the usage and the option list.
  NckitCommandLine(const std::string& command, const std::string& usage, const std::string& description);
  ~NckitCommandLine();
  NckitCommandLine(const NckitCommandLine&) = delete;
  NckitCommandLine& operator=(const NckitCommandLine&) = delete;

  /// An option without a value; `names` as "--json" or "-f,--force".
  void Flag(const std::string& names, bool& value, const std::string& help);
  /// An option with a value (named `valueName` in the help); a later one replaces an earlier one.
  void Option(const std::string& names, std::string& value, const std::string& valueName,
              const std::string& help);
  /// The operands (arguments that are no options), in the order given.
  void Operands(const std::string& name, std::vector<std::string>& operands);
  /// --no-first-block, --first-block (the default, accepted for existing scripts), --keep-unfinished and
  /// --no-line-limit. --no-first-block wins over --first-block wherever the two stand.
  void LoadOptions(NcLoadOptions& options);
  /// The first operand and every argument after it are left unparsed and become the operands: nckit's own
  /// options come before the subcommand's name, the subcommand parses the rest.
  void StopAtFirstOperand();

  /// Parse `args` (the arguments after the command name). Returns the exit code when the command stops here:
  /// 0 after writing the help to `out` for -h/--help, 2 after a message on `err` for a wrong command line.
  /// Returns nothing when the command goes on with the values parsed.
  std::optional<int> Parse(const NckitArgs& args, std::ostream& out, std::ostream& err);

  /// True when the option (any of its names, e.g. "-o") was given.
  bool Given(const std::string& name) const;
  /// "nckit info" (or "nckit"): the start of every message.
  const std::string& Program() const noexcept;
  /// Write "nckit COMMAND: PROBLEM (try 'nckit COMMAND --help')" to `err` and return the usage exit code.
  int UsageError(const std::string& problem, std::ostream& err) const;
  /// The help: usage, description and one line per option.
  void WriteHelp(std::ostream& out) const;

 private:
  struct Impl;
  std::unique_ptr<Impl> m_impl;
};

/// A finite real number written in `text` (locale-free, the whole text), or nothing.
std::optional<double> ParseRealArgument(const std::string& text);

/// Parse a program number argument ("1000", "O1000", ":0012"); false when it is none.
bool ParseProgramNumberArgument(const std::string& text, int& number);

/// The program numbers `texts` stand for, into `numbers`. Returns the exit code after a message when one of
/// them is no program number; nothing when all are.
std::optional<int> ParseProgramNumberArguments(const NckitCommandLine& cl,
                                               const std::vector<std::string>& texts, std::set<int>& numbers,
                                               std::ostream& err);
