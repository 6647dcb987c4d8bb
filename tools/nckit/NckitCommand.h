// SPDX-License-Identifier: MIT
// Subcommand registry of the nckit tool.
//
// Each subcommand lives in its own file and registers itself:
//
//   static int RunBlock(const NckitArgs& args, std::ostream& out, std::ostream& err) { ... }
//   NCKIT_COMMAND(block, "decode one NC block into its words", RunBlock);
//
// Exit codes: 0 success, 1 the job found a problem (load error, failed check, bad expression), 2 the command
// line was wrong (unknown option, missing argument, missing input file).
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

/// The arguments after the subcommand name, unchanged.
using NckitArgs = std::vector<std::string>;

/// Exit codes shared by all subcommands.
enum NckitExit { kNckitOk = 0, kNckitProblem = 1, kNckitUsage = 2 };

struct NckitCommand {
  const char* name;
  const char* summary;
  int (*run)(const NckitArgs& args, std::ostream& out, std::ostream& err);
};

/// All registered subcommands, in registration order.
std::vector<NckitCommand>& NckitCommands();

struct NckitRegistrar {
  explicit NckitRegistrar(const NckitCommand& command) { NckitCommands().push_back(command); }
};

// clang-format off
#define NCKIT_COMMAND(name, summary, fn) \
  static const NckitRegistrar nckitRegistrar_##name{NckitCommand{#name, summary, fn}}
// clang-format on
