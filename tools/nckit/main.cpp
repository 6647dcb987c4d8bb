// SPDX-License-Identifier: MIT
// nckit: command-line access to ncappkit (NC files, blocks, units, expressions).
#include <algorithm>
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

#include "NckitCommand.h"
#include "ncappkit/version.h"

std::vector<NckitCommand>& NckitCommands() {
  static std::vector<NckitCommand> commands;
  return commands;
}

namespace {

void PrintUsage(std::ostream& out) {
  std::vector<NckitCommand> commands = NckitCommands();
  std::sort(commands.begin(), commands.end(),
            [](const NckitCommand& a, const NckitCommand& b) { return std::strcmp(a.name, b.name) < 0; });
  out << "usage: nckit <command> [arguments]\n"
         "       nckit <command> --help\n"
         "       nckit help <command>\n"
         "       nckit --version\n\n"
         "commands:\n";
  for (const NckitCommand& c : commands) {
    std::string name = c.name;
    name.resize(std::max<std::size_t>(name.size(), 10), ' ');
    out << "  " << name << "  " << c.summary << '\n';
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    PrintUsage(std::cerr);
    return kNckitUsage;
  }
  std::string first = argv[1];
  // "nckit help COMMAND" is "nckit COMMAND --help".
  const bool helpOnCommand = first == "help" && argc > 2;
  if (helpOnCommand)
    first = argv[2];
  if (!helpOnCommand && (first == "--help" || first == "-h" || first == "help")) {
    PrintUsage(std::cout);
    return kNckitOk;
  }
  if (first == "--version") {
    std::cout << "nckit " << NCAPPKIT_VERSION_STRING << '\n';
    return kNckitOk;
  }
  for (const NckitCommand& c : NckitCommands()) {
    if (first == c.name) {
      const NckitArgs args = helpOnCommand ? NckitArgs{"--help"} : NckitArgs(argv + 2, argv + argc);
      return c.run(args, std::cout, std::cerr);
    }
  }
  std::cerr << "nckit: unknown command '" << first << "' (try 'nckit --help')\n";
  return kNckitUsage;
}
