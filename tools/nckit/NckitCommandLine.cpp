// SPDX-License-Identifier: MIT
// The command line of nckit and its subcommands, parsed with CLI11.
#include "NckitCommandLine.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <ostream>
#include <system_error>
#include <utility>

#include <CLI/CLI.hpp>

#include "ncappkit/foundation/KCString.h"
#include "ncappkit/nc/KCC_NcFile.h"

namespace {

bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// An option is '-' with a letter ("-o", "-ofile") or "--" with a name ("--json"). Any other argument that
// starts with '-' ("-5", "-.5", "-(1+2)", "-") is an operand: a negative value or an expression.
bool LooksLikeOption(const std::string& arg) {
  return arg.size() >= 2 && arg[0] == '-' && (IsLetter(arg[1]) || (arg[1] == '-' && arg.size() > 2));
}

// One help line: the option's names (and value) and what it does.
struct HelpEntry {
  std::string names;
  std::string help;
};

// "-f,--force" with value name "DIR" -> "-f, --force DIR".
std::string HelpNames(const std::string& names, const std::string& valueName) {
  std::string text;
  for (char c : names)
    text += c == ',' ? std::string(", ") : std::string(1, c);
  if (!valueName.empty())
    text += ' ' + valueName;
  return text;
}

}  // namespace

struct NckitCommandLine::Impl {
  std::string program;
  std::string usage;
  std::string description;
  CLI::App app;
  std::vector<HelpEntry> help;
  // Every name ("-o", "--output") of an option that takes a value.
  std::set<std::string> valueNames;
  std::vector<std::string>* operands = nullptr;
  bool stopAtFirstOperand = false;
  // LoadOptions: the options to fill, and the two first-block flags until the parse is done.
  NcLoadOptions* load = nullptr;
  bool firstBlock = false;
  bool noFirstBlock = false;

  Impl(const std::string& command, std::string usageText, std::string descriptionText)
      : program(command.empty() ? "nckit" : "nckit " + command),
        usage(std::move(usageText)),
        description(std::move(descriptionText)),
        app(description, program) {}

  void AddNames(const std::string& names, bool takesValue) {
    std::size_t start = 0;
    while (start <= names.size()) {
      const std::size_t comma = std::min(names.find(',', start), names.size());
      if (takesValue)
        valueNames.insert(names.substr(start, comma - start));
      start = comma + 1;
    }
  }

  // What CLI11 gets to parse: the options, each with its value as a separate argument, then "--" and the
  // operands in their order. CLI11 2.1 would take "-.5" or "-(1+2)" for an unknown short option; after
  // "--" they are operands. `rest` gets the arguments left unparsed (StopAtFirstOperand); `missingValue` the
  // option that ends the line without its value.
  struct Arranged {
    std::vector<std::string> options;
    std::vector<std::string> operands;
    std::vector<std::string> rest;
    std::string missingValue;
  };

  Arranged Arrange(const NckitArgs& args) const {
    Arranged a;
    for (std::size_t i = 0; i < args.size(); ++i) {
      const std::string& arg = args[i];
      if (arg == "--" || !LooksLikeOption(arg)) {
        const std::size_t first = arg == "--" ? i + 1 : i;
        std::vector<std::string>& into = stopAtFirstOperand ? a.rest : a.operands;
        if (arg == "--" || stopAtFirstOperand) {
          into.insert(into.end(), args.begin() + static_cast<std::ptrdiff_t>(first), args.end());
          break;
        }
        into.push_back(arg);
        continue;
      }
      const bool isLong = arg[1] == '-';
      const std::size_t equals = isLong ? arg.find('=') : std::string::npos;
      const std::string name = isLong ? arg.substr(0, equals) : arg.substr(0, 2);
      if (valueNames.count(name) == 0) {
        a.options.push_back(arg);  // a flag, or an unknown option for CLI11 to find
        continue;
      }
      a.options.push_back(name);
      if (isLong && equals != std::string::npos) {
        a.options.push_back(arg.substr(equals + 1));
      } else if (!isLong && arg.size() > 2) {
        a.options.push_back(arg.substr(arg[2] == '=' ? 3 : 2));  // "-oDIR" and "-o=DIR"
      } else if (i + 1 < args.size()) {
        a.options.push_back(args[++i]);
      } else {
        a.missingValue = arg;
        break;
      }
    }
    return a;
  }
};

NckitCommandLine::NckitCommandLine(const std::string& command, const std::string& usage,
                                   const std::string& description)
    : m_impl(std::make_unique<Impl>(command, usage, description)) {
  m_impl->app.allow_extras();
  m_impl->app.set_help_flag("-h,--help", "show this help");
  m_impl->help.push_back({"-h, --help", "show this help"});
}

NckitCommandLine::~NckitCommandLine() = default;

void NckitCommandLine::Flag(const std::string& names, bool& value, const std::string& help) {
  m_impl->app.add_flag(names, value, help);
  m_impl->help.push_back({HelpNames(names, ""), help});
}

void NckitCommandLine::Option(const std::string& names, std::string& value, const std::string& valueName,
                              const std::string& help) {
  m_impl->app.add_option(names, value, help)->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  m_impl->AddNames(names, true);
  m_impl->help.push_back({HelpNames(names, valueName), help});
}

void NckitCommandLine::Operands(const std::string& name, std::vector<std::string>& operands) {
  m_impl->app.add_option(name, operands);
  m_impl->operands = &operands;
}

void NckitCommandLine::LoadOptions(NcLoadOptions& options) {
  m_impl->load = &options;
  Flag("--no-first-block", m_impl->noFirstBlock,
       "do not look for the first block (M98 P8010 / N50 FIRST_BLOCK), whose program is\n"
       "otherwise a main program and which tells the structure (Fanuc / Siemens)");
  Flag("--first-block", m_impl->firstBlock,
       "look for the first block: the default, so this does nothing; accepted so that\n"
       "existing scripts keep working (--no-first-block wins over it)");
  Flag("--keep-unfinished", options.keepUnfinished,
       "keep the lines after the last program end as a program of the sub-program list");
  Flag("--no-line-limit", options.noLineLimit,
       "read lines of any length (the file reader keeps at most " +
           std::to_string(KCC_NcFile::kMaxLineLength) + " characters a line)");
}

void NckitCommandLine::StopAtFirstOperand() {
  m_impl->stopAtFirstOperand = true;
}

std::optional<int> NckitCommandLine::Parse(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  Impl::Arranged arranged = m_impl->Arrange(args);
  if (!arranged.missingValue.empty() &&
      std::find_if(arranged.options.begin(), arranged.options.end(), [](const std::string& a) {
        return a == "-h" || a == "--help";
      }) == arranged.options.end()) {
    return UsageError("option '" + arranged.missingValue + "' needs a value", err);
  }
  // CLI11 takes the arguments last first.
  std::vector<std::string> reversed = arranged.options;
  if (!arranged.operands.empty()) {
    reversed.push_back("--");
    reversed.insert(reversed.end(), arranged.operands.begin(), arranged.operands.end());
  }
  std::reverse(reversed.begin(), reversed.end());
  try {
    m_impl->app.parse(reversed);
  } catch (const CLI::CallForHelp&) {
    WriteHelp(out);
    return kNckitOk;
  } catch (const CLI::ParseError& error) {
    return UsageError(error.what(), err);
  }
  for (const std::string& extra : m_impl->app.remaining()) {
    if (extra == "--")
      continue;
    if (LooksLikeOption(extra))
      return UsageError("unknown option '" + extra + "'", err);
    return UsageError("unexpected argument '" + extra + "'", err);
  }
  if (m_impl->stopAtFirstOperand && m_impl->operands != nullptr)
    *m_impl->operands = std::move(arranged.rest);
  if (m_impl->load != nullptr && m_impl->noFirstBlock)
    m_impl->load->checkFirstBlock = false;
  return std::nullopt;
}

bool NckitCommandLine::Given(const std::string& name) const {
  return m_impl->app.count(name) > 0;
}

const std::string& NckitCommandLine::Program() const noexcept {
  return m_impl->program;
}

int NckitCommandLine::UsageError(const std::string& problem, std::ostream& err) const {
  err << m_impl->program << ": " << problem << " (try '" << m_impl->program << " --help')\n";
  return kNckitUsage;
}

void NckitCommandLine::WriteHelp(std::ostream& out) const {
  constexpr std::size_t kNameColumn = 21;
  out << "usage: " << m_impl->usage << '\n' << m_impl->description;
  if (!m_impl->description.empty() && m_impl->description.back() != '\n')
    out << '\n';
  out << "\noptions:\n";
  for (const HelpEntry& entry : m_impl->help) {
    std::string names = "  " + entry.names;
    names.resize(std::max(names.size() + 1, kNameColumn), ' ');
    out << names;
    // Continuation lines of a long description start under its first line.
    for (char c : entry.help)
      out << (c == '\n' ? "\n" + std::string(names.size(), ' ') : std::string(1, c));
    out << '\n';
  }
}

std::optional<double> ParseRealArgument(const std::string& text) {
  const double value = KCString(text).AsDoubleStrict(std::numeric_limits<double>::quiet_NaN());
  if (!std::isfinite(value))
    return std::nullopt;
  return value;
}

bool ParseProgramNumberArgument(const std::string& text, int& number) {
  std::size_t start = 0;
  if (!text.empty() && (text[0] == 'O' || text[0] == 'o' || text[0] == ':'))
    start = 1;
  if (start >= text.size())
    return false;
  const char* first = text.data() + start;
  const char* last = text.data() + text.size();
  for (const char* p = first; p != last; ++p) {
    if (*p < '0' || *p > '9')
      return false;
  }
  const auto parsed = std::from_chars(first, last, number);
  return parsed.ec == std::errc() && parsed.ptr == last;
}

std::optional<int> ParseProgramNumberArguments(const NckitCommandLine& cl,
                                               const std::vector<std::string>& texts, std::set<int>& numbers,
                                               std::ostream& err) {
  for (const std::string& text : texts) {
    int number = 0;
    if (!ParseProgramNumberArgument(text, number))
      return cl.UsageError("'" + text + "' is no program number", err);
    numbers.insert(number);
  }
  return std::nullopt;
}
