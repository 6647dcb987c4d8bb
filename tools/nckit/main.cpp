// SPDX-License-Identifier: MIT
// nckit: command-line access to ncappkit (NC files, blocks, units, expressions).
#include <algorithm>
#include <cstring>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "NckitCommand.h"
#include "NckitCommandLine.h"
#include "ncappkit/version.h"

std::vector<NckitCommand>& NckitCommands() {
  static std::vector<NckitCommand> commands;
  return commands;
}

namespace {

// The commands, sorted by name, one a line: "  block       decode one NC block ...".
std::string CommandList() {
  std::vector<NckitCommand> commands = NckitCommands();
  std::sort(commands.begin(), commands.end(),
            [](const NckitCommand& a, const NckitCommand& b) { return std::strcmp(a.name, b.name) < 0; });
  std::ostringstream list;
  list << "commands:\n";
  for (const NckitCommand& c : commands) {
    std::string name = c.name;
    name.resize(std::max<std::size_t>(name.size(), 10), ' ');
    list << "  " << name << "  " << c.summary << '\n';
  }
  return list.str();
}

const NckitCommand* FindCommand(const std::string& name) {
  for (const NckitCommand& c : NckitCommands()) {
    if (name == c.name)
      return &c;
  }
  return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> rest;
  bool version = false;
  NckitCommandLine cl("",
                      "nckit <command> [arguments]\n"
                      "       nckit <command> --help\n"
                      "       nckit help <command>\n"
                      "       nckit --version",
                      "\n" + CommandList());
  cl.Operands("COMMAND", rest);
  cl.Flag("--version", version, "show the version of nckit");
  cl.StopAtFirstOperand();
  if (const auto stop = cl.Parse(NckitArgs(argv + 1, argv + argc), std::cout, std::cerr))
    return *stop;
  if (version) {
    std::cout << "nckit " << NCAPPKIT_VERSION_STRING << '\n';
    return kNckitOk;
  }
  if (rest.empty()) {
    cl.WriteHelp(std::cerr);
    return kNckitUsage;
  }
  std::string name = rest[0];
  NckitArgs args(rest.begin() + 1, rest.end());
  if (name == "help") {
    // "nckit help" is "nckit --help"; "nckit help COMMAND" is "nckit COMMAND --help".
    if (args.empty()) {
      cl.WriteHelp(std::cout);
      return kNckitOk;
    }
    name = args[0];
    args = {"--help"};
  }
  const NckitCommand* command = FindCommand(name);
  if (command == nullptr) {
    std::cerr << "nckit: unknown command '" << name << "' (try 'nckit --help')\n";
    return kNckitUsage;
  }
  return command->run(args, std::cout, std::cerr);
}
