// SPDX-License-Identifier: MIT
// nckit calc: evaluate a typed-in arithmetic expression with the library's evaluator.
//
//   nckit calc '2*(3+(4-1))'        -> 12
//   nckit calc '-3*2'               -> -6   (a leading '-' belongs to the expression)
//   nckit calc -- '-3*2'            -> -6
//
// The value is printed in its shortest exact form. A failed parse or evaluation prints the evaluator's last
// message (or "unknown function ...") on stderr and exits 1. Lists on which the evaluator would never finish
// (an operator missing between two items, as in "2 3") are refused before evaluating.
#include <ostream>
#include <stdexcept>
#include <string>

#include "NckitCommand.h"
#include "ncappkit/foundation/KCC_MessageReporter.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/mathexpr/KCC_MathExpression.h"

namespace {

// Keeps the last message the evaluator sent.
class LastMessageReporter : public KCC_MessageReporter {
 public:
  void SetHeader(const KCString& /*header*/) override {}
  void SetMessage(const KCString& message) override { m_message = message; }
  void AddMessage(const KCString& text) override {
    m_message += '\n';
    m_message += text;
  }
  void DoReport() override {}
  void ClearMessage() override { m_message = KCString(); }
  const KCString& Message() const noexcept { return m_message; }

 private:
  KCString m_message;
};

bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// The first run of letters that is no function name, or "" when every name is known.
std::string FirstUnknownName(const std::string& text) {
  std::size_t i = 0;
  while (i < text.size()) {
    if (!IsLetter(text[i])) {
      ++i;
      continue;
    }
    std::size_t end = i;
    while (end < text.size() && IsLetter(text[end]))
      ++end;
    const std::string name = text.substr(i, end - i);
    CExpressionItem probe;
    if (!CExpressionItem::SetFunctionFromName(KCString(name), probe))
      return name;
    i = end;
  }
  return std::string();
}

void PrintHelp(std::ostream& out) {
  out << "usage: nckit calc [--] EXPRESSION...\n"
         "       nckit calc --help | -h\n"
         "Evaluates EXPRESSION (several arguments are joined with blanks) and prints its value.\n"
         "Numbers, * / + -, round or square brackets and SQRT, SIN, COS, TAN (radians, before a bracket).\n"
         "Operators go by a fixed priority of the characters: all '*', then '/', then '+', then '-'.\n"
         "An expression may start with '-'; '--' ends the options.\n";
}

int RunCalc(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  std::size_t first = 0;
  if (!args.empty() && args[0] == "--") {
    first = 1;
  } else {
    // A single '-' starts an expression ("-3*2"), but "--" followed by a letter can only be an option:
    // as an expression it would be a unary minus followed by an operator, which cannot be evaluated.
    for (const std::string& arg : args) {
      if (arg == "--help" || arg == "-h") {
        PrintHelp(out);
        return kNckitOk;
      }
      if (arg.size() > 2 && arg[0] == '-' && arg[1] == '-' && IsLetter(arg[2])) {
        err << "nckit calc: unknown option '" << arg << "' (try 'nckit calc --help')\n";
        return kNckitUsage;
      }
    }
  }
  if (first >= args.size()) {
    err << "nckit calc: missing expression (try 'nckit calc --help')\n";
    return kNckitUsage;
  }
  std::string text;
  for (std::size_t i = first; i < args.size(); ++i) {
    if (i > first)
      text += ' ';
    text += args[i];
  }

  LastMessageReporter reporter;
  KCC_MathExpression expr(reporter);
  try {
    if (!expr.ParseMathExpression(text)) {
      const std::string unknown = FirstUnknownName(text);
      if (!unknown.empty())
        err << "nckit calc: unknown function '" << unknown << "'\n";
      else
        err << "nckit calc: empty expression\n";
      return kNckitProblem;
    }
  } catch (const std::length_error& error) {
    err << "nckit calc: " << error.what() << " (at most " << CExpressionItemList::kMaxItems << " items)\n";
    return kNckitProblem;
  }
  if (expr.HasEndlessEvaluation()) {
    err << "nckit calc: an operator is missing between two items; the expression would never finish "
           "evaluating\n";
    return kNckitProblem;
  }
  double value = 0.0;
  if (!expr.DoMathExpression(value)) {
    // The last message is a fault text, or the last list shown when the list itself could not be reduced.
    const std::string message = reporter.Message().str();
    if (message.empty())
      err << "nckit calc: cannot evaluate the expression\n";
    else if (message.find("\n\n") != std::string::npos)
      err << "nckit calc: cannot evaluate the expression; last list:\n" << message;
    else
      err << message << '\n';
    return kNckitProblem;
  }
  out << KCString(value, -1, false) << '\n';
  return kNckitOk;
}

}  // namespace

NCKIT_COMMAND(calc, "evaluate an arithmetic expression", RunCalc);
