// SPDX-License-Identifier: MIT
// nckit calc: evaluate a typed-in arithmetic expression with the library's evaluator.
//
//   nckit calc '2*(3+(4-1))'        -> 12
//   nckit calc '-3*2'               -> -6   (a leading '-' belongs to the expression)
//   nckit calc -- '-3*2'            -> -6
//   nckit calc '2$+3'               -> 5, and "nckit calc: skipped '$' at column 2" on stderr
//
// Characters the evaluator skips without a word are named on stderr, one line each.
// The value is printed in its shortest exact form. A failed parse or evaluation prints the evaluator's last
// message (or "unknown function ...") on stderr and exits 1. Lists on which the evaluator would never finish
// (an operator missing between two items, as in "2 3") are refused before evaluating.
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "NckitCommand.h"
#include "NckitCommandLine.h"
#include "NckitUtf8.h"
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

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

// True when the evaluator's tokenizer makes an item of `c` on its own: an operator, a bracket, a digit or a
// point. The evaluator is asked with the character alone, so this follows its tokenizer without a copy of it.
bool TokenizerTakes(char c) {
  LastMessageReporter quiet;
  KCC_MathExpression probe(quiet);
  return probe.ParseMathExpression(KCString(std::string(1, c)));
}

// The character at text[i] (a whole UTF-8 character) as shown in a message: control bytes as \xNN.
std::string ShownCharacter(const std::string& text, std::size_t i, std::size_t length) {
  const auto byte = static_cast<unsigned char>(text[i]);
  if (length == 1 && (byte < 0x20 || byte == 0x7F)) {
    static const char kHex[] = "0123456789abcdef";
    return std::string("\\x") + kHex[byte >> 4] + kHex[byte & 0xF];
  }
  return text.substr(i, length);
}

// One line on `err` for each character the evaluator skips without a word: not a blank (blanks separate
// items), not a letter (letters make function names, and an unknown name is reported as such) and nothing
// the tokenizer takes. Columns count characters from 1, UTF-8 characters as one.
void ReportSkippedCharacters(const NckitCommandLine& cl, const std::string& text, std::ostream& err) {
  std::size_t column = 0;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = CharacterLength(text, i);
    ++column;
    const char c = text[i];
    if (!IsBlank(c) && !IsLetter(c) && !TokenizerTakes(c))
      err << cl.Program() << ": skipped '" << ShownCharacter(text, i, length) << "' at column " << column
          << '\n';
    i += length;
  }
}

int RunCalc(const NckitArgs& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> parts;
  NckitCommandLine cl(
      "calc", "nckit calc [--] EXPRESSION...",
      "Evaluates EXPRESSION (several arguments are joined with blanks) and prints its value.\n"
      "Numbers, * / + -, round or square brackets and SQRT, SIN, COS, TAN (radians, before a "
      "bracket).\nOperators go by a fixed priority of the characters: all '*', then '/', then "
      "'+', then '-'.\nAn expression may start with '-' and a digit, point or bracket (-3*2, "
      "-(1+2)); one that starts\nwith '-' and a letter goes after '--' (nckit calc -- -SQRT(4)). "
      "Any other character is skipped\nby the evaluator; each one skipped is named on stderr.\n");
  cl.Operands("EXPRESSION", parts);
  if (const auto stop = cl.Parse(args, out, err))
    return *stop;
  if (parts.empty())
    return cl.UsageError("missing expression", err);
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0)
      text += ' ';
    text += parts[i];
  }
  ReportSkippedCharacters(cl, text, err);

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
