// SPDX-License-Identifier: MIT
#include "ncappkit/mathexpr/KCC_MathExpression.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <string>
#include <system_error>

namespace {

// The message texts of the evaluator.
constexpr const char* kMsgNotAnOperator = "Apply operator : not an operator";
constexpr const char* kMsgRightNotOperand = "Apply operator : right item is not an operand";
constexpr const char* kMsgLeftNotOperand = "Apply operator : left item is not an operand";
constexpr const char* kMsgOperatorNotSupported = "Apply operator : operator not supported";
constexpr const char* kMsgBracketsMismatch = "Open/Close brackets mismatch !";
constexpr const char* kMsgNotAFunction = "Apply function : not a function";
constexpr const char* kMsgFunctionNoOperand = "Apply function : function not followed by an operand";
constexpr const char* kMsgFunctionNotSupported = "Apply function : function not supported";

// White space as C's isspace sees it in the "C" locale.
bool IsSpace(char c) noexcept {
  return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

// Reads a run of digits and points the way strtod does: the longest prefix of the form digits[.digits]
// counts; a run without a digit in that prefix ("." or "..5") gives 0.0. Beyond the range of a double the
// value saturates (infinity, or zero for a tiny fraction) as strtod's does.
double ReadNumberRun(const char* first, const char* last) noexcept {
  double value = 0.0;
  const std::from_chars_result read = std::from_chars(first, last, value, std::chars_format::fixed);
  if (read.ec == std::errc())
    return value;
  if (read.ec == std::errc::result_out_of_range) {
    for (const char* p = first; p != last && *p != '.'; ++p) {
      if (*p != '0')
        return std::numeric_limits<double>::infinity();
    }
    return 0.0;
  }
  return 0.0;
}

// Appends the class library's shortest real-to-text form (the text of KCString(value, -1, false)) without
// building a KCString: this runs for every operand of every reported list.
void AppendNumber(std::string& out, double value) {
  if (std::isnan(value)) {
    out += "nan";
    return;
  }
  if (std::isinf(value)) {
    out += value < 0 ? "-inf" : "inf";
    return;
  }
  char buffer[400];
  // Whole numbers of moderate size (the usual case in typed-in arithmetic) are written as integers, which
  // gives the same text much faster.
  constexpr double kExactIntegerLimit = 9007199254740992.0;  // 2^53
  if (value > -kExactIntegerLimit && value < kExactIntegerLimit) {
    const auto whole = static_cast<long long>(value);
    if (static_cast<double>(whole) == value && !(whole == 0 && std::signbit(value))) {
      const auto result = std::to_chars(buffer, buffer + sizeof buffer, whole);
      out.append(buffer, result.ptr);
      return;
    }
  }
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
  out.append(buffer, result.ptr);
}

const char* FunctionText(CExpressionItem::eFunctionName function) noexcept {
  switch (function) {
    case CExpressionItem::eFuncSqrt:
      return "SQRT";
    case CExpressionItem::eFuncSin:
      return "SIN";
    case CExpressionItem::eFuncCos:
      return "COS";
    case CExpressionItem::eFuncTan:
      return "TAN";
    default:
      return "";
  }
}

}  // namespace

KCC_MathExpression::~KCC_MathExpression() = default;

KCC_MathExpression& KCC_MathExpression::operator=(const KCC_MathExpression& other) {
  if (this != &other)
    m_list = other.m_list;
  return *this;
}

bool KCC_MathExpression::IsTokenNumeric(char c) noexcept {
  return (c >= '0' && c <= '9') || c == '.';
}

bool KCC_MathExpression::IsTokenAflaNonNumeric(char c) noexcept {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool KCC_MathExpression::ParseMathExpression(const KCString& text) {
  m_list.clear();
  if (text.empty())
    return false;
  const char* const begin = text.c_str();
  const char* const end = begin + text.size();
  const char* p = begin;
  while (p != end) {
    const char c = *p;
    // Every token is a new item, so the fields it does not set keep their initial values.
    CExpressionItem item;
    if (IsSpace(c)) {
      ++p;
      continue;
    }
    if (c == '*' || c == '+' || c == '-' || c == '/') {
      item.SetOperator(c);
      m_list.push_back(item);
      ++p;
      continue;
    }
    if (c == '(' || c == '[') {
      item.SetOpenBracket();
      m_list.push_back(item);
      ++p;
      continue;
    }
    if (c == ')' || c == ']') {
      item.SetCloseBracket();
      m_list.push_back(item);
      ++p;
      continue;
    }
    if (IsTokenNumeric(c)) {
      const char* runEnd = p;
      while (runEnd != end && IsTokenNumeric(*runEnd))
        ++runEnd;
      item.SetOperand(ReadNumberRun(p, runEnd));
      m_list.push_back(item);
      p = runEnd;
      continue;
    }
    if (IsTokenAflaNonNumeric(c)) {
      const char* runEnd = p;
      while (runEnd != end && IsTokenAflaNonNumeric(*runEnd))
        ++runEnd;
      CExpressionItem function;
      if (!CExpressionItem::SetFunctionFromName(KCString(p, static_cast<std::size_t>(runEnd - p)), function))
        return false;  // unknown name: stop here, the items so far stay
      m_list.push_back(function);
      p = runEnd;
      continue;
    }
    ++p;  // any other character is skipped
  }
  return !m_list.empty();
}

void KCC_MathExpression::AddOperand(double value) {
  CExpressionItem item;
  item.SetOperand(value);
  m_list.push_back(item);
}

void KCC_MathExpression::AddOperator(char op) {
  CExpressionItem item;
  item.SetOperator(op);
  m_list.push_back(item);
}

void KCC_MathExpression::SetOpenBracket() {
  CExpressionItem item;
  item.SetOpenBracket();
  m_list.push_back(item);
}

void KCC_MathExpression::SetCloseBracket() {
  CExpressionItem item;
  item.SetCloseBracket();
  m_list.push_back(item);
}

void KCC_MathExpression::SetFunction(CExpressionItem::eFunctionName function) {
  CExpressionItem item;
  item.SetFunction(function);
  m_list.push_back(item);
}

KCString KCC_MathExpression::ToString() const {
  KCString text;
  for (const CExpressionItem& item : m_list) {
    switch (item.GetItemType()) {
      case CExpressionItem::eItemOperand:
        text += KCString(item.GetOperand(), -1, false).CleanDoubleString();
        break;
      case CExpressionItem::eItemOperator:
        text += item.GetOperator();
        break;
      case CExpressionItem::eItemOpenBracket:
        text += '(';
        break;
      case CExpressionItem::eItemCloseBracket:
        text += ')';
        break;
      case CExpressionItem::eItemFunction:
        text += KCString(FunctionText(item.GetFunctionName()));
        break;
      default:
        break;
    }
  }
  return text;
}

void KCC_MathExpression::Fail(const char* message, bool probe) const {
  if (!probe)
    m_reporter.SetMessage(KCString(message));
}

void KCC_MathExpression::ShowList(const char* title, const CExpressionItemList& list) const {
  // Longest line: "[Operand]  : " plus a number; most numbers are short, so this rarely grows.
  constexpr std::size_t kTypicalLine = 24;
  std::string text;
  text.reserve(32 + list.size() * kTypicalLine);
  text += title;
  text += "\n\n";
  for (const CExpressionItem& item : list) {
    switch (item.GetItemType()) {
      case CExpressionItem::eItemOperand:
        text += "[Operand]  : ";
        AppendNumber(text, item.GetOperand());
        text += '\n';
        break;
      case CExpressionItem::eItemOperator:
        text += "[Operator] : ";
        text += item.GetOperator();
        text += '\n';
        break;
      case CExpressionItem::eItemOpenBracket:
        text += "[Open Bracket]\n";
        break;
      case CExpressionItem::eItemCloseBracket:
        text += "[Close Bracket]\n";
        break;
      default:
        break;  // functions (and undefined items) are not listed
    }
  }
  m_reporter.SetMessage(KCString(std::move(text)));
}

bool KCC_MathExpression::ApplyOperator(const CExpressionItemList& list, const_iterator op, double& value,
                                       bool& unary, bool probe) {
  if (op == list.end() || !op->IsOperator()) {
    Fail(kMsgNotAnOperator, probe);
    return false;
  }
  const const_iterator right = std::next(op);
  const bool rightIsOperand = right != list.end() && right->IsOperand();
  if (op == list.begin()) {
    if (!rightIsOperand) {
      Fail(kMsgRightNotOperand, probe);
      return false;
    }
    switch (op->GetOperator()) {
      case '+':
        value = right->GetOperand();
        break;
      case '-':
        value = -right->GetOperand();
        break;
      default:
        Fail(kMsgOperatorNotSupported, probe);
        return false;
    }
    unary = true;
    return true;
  }
  const const_iterator left = std::prev(op);
  if (!left->IsOperand()) {
    Fail(kMsgLeftNotOperand, probe);
    return false;
  }
  if (!rightIsOperand) {
    Fail(kMsgRightNotOperand, probe);
    return false;
  }
  const double l = left->GetOperand();
  const double r = right->GetOperand();
  switch (op->GetOperator()) {
    case '*':
      value = l * r;
      break;
    case '+':
      value = l + r;
      break;
    case '-':
      value = l - r;
      break;
    case '/':
      value = l / r;  // no check: dividing by zero gives an infinity or NaN
      break;
    default:
      Fail(kMsgOperatorNotSupported, probe);
      return false;
  }
  unary = false;
  return true;
}

bool KCC_MathExpression::ApplyFunction(const CExpressionItemList& list, const_iterator function,
                                       double& value, bool probe) {
  if (function == list.end() || !function->IsFunction()) {
    Fail(kMsgNotAFunction, probe);
    return false;
  }
  const const_iterator argument = std::next(function);
  if (argument == list.end() || !argument->IsOperand()) {
    Fail(kMsgFunctionNoOperand, probe);
    return false;
  }
  const double x = argument->GetOperand();
  switch (function->GetFunctionName()) {
    case CExpressionItem::eFuncSqrt:
      value = std::sqrt(x);  // NaN for a negative argument, without a message
      break;
    case CExpressionItem::eFuncSin:
      value = std::sin(x);
      break;
    case CExpressionItem::eFuncCos:
      value = std::cos(x);
      break;
    case CExpressionItem::eFuncTan:
      value = std::tan(x);
      break;
    default:
      Fail(kMsgFunctionNotSupported, probe);
      return false;
  }
  return true;
}

bool KCC_MathExpression::DoCalculateExpression(CExpressionItemList& list, double& result, bool probe,
                                               bool& endless) {
  // A single item of the evaluator's own list is its result as it stands (the given list is then that list).
  if (m_list.size() == 1) {
    if (list.empty() || !list.front().IsOperand())
      return false;
    result = list.front().GetOperand();
    return true;
  }
  while (list.size() > 1) {
    if (!probe)
      ShowList("SubList", list);
    const iterator op = list.FindOperator();
    if (op == list.end()) {
      // Without an operator nothing changes and the loop repeats for ever; the probe stops and says so.
      if (probe) {
        endless = true;
        return false;
      }
      continue;
    }
    double value = 0.0;
    bool unary = false;
    if (!ApplyOperator(list, op, value, unary, probe))
      return false;
    const iterator right = std::next(op);
    right->SetOperand(value);
    if (!unary)
      list.erase(std::prev(op));
    list.erase(op);
  }
  if (!probe)
    ShowList("Result SubList", list);
  if (list.empty() || !list.front().IsOperand())
    return false;  // also the value of an empty bracket pair
  result = list.front().GetOperand();
  return true;
}

bool KCC_MathExpression::DoMathExpression(double& result) {
  bool endless = false;
  return Evaluate(result, false, endless);
}

bool KCC_MathExpression::HasEndlessEvaluation() const {
  KCC_MathExpression probe(*this);
  double result = 0.0;
  bool endless = false;
  probe.Evaluate(result, true, endless);
  return endless;
}

bool KCC_MathExpression::Evaluate(double& result, bool probe, bool& endless) {
  if (m_list.empty())
    return false;
  for (;;) {
    // One scan: the bracket balance, the first close bracket and the last open bracket in front of it (the
    // innermost pair).
    int depth = 0;
    iterator close = m_list.end();
    iterator open = m_list.end();
    for (iterator it = m_list.begin(); it != m_list.end(); ++it) {
      if (it->IsOpenBracket()) {
        ++depth;
        if (close == m_list.end())
          open = it;
      } else if (it->IsCloseBracket()) {
        --depth;
        if (close == m_list.end())
          close = it;
      }
    }
    if (depth != 0) {
      Fail(kMsgBracketsMismatch, probe);
      return false;
    }
    if (close == m_list.end())
      return DoCalculateExpression(m_list, result, probe, endless);
    if (open == m_list.end())
      return false;  // a close bracket before any open one: no message

    CExpressionItemList inner;
    inner.insert(inner.end(), std::next(open), close);
    double value = 0.0;
    if (!DoCalculateExpression(inner, value, probe, endless))
      return false;

    const bool hasFunction = open != m_list.begin() && std::prev(open)->IsFunction();
    const iterator function = hasFunction ? std::prev(open) : m_list.end();

    if (!probe)
      ShowList("Before brackets removal", m_list);
    m_list.erase(open, close);
    close->SetOperand(value);
    if (!probe)
      ShowList("After brackets removal", m_list);

    if (hasFunction) {
      double functionValue = 0.0;
      if (!ApplyFunction(m_list, function, functionValue, probe))
        return false;
      close->SetOperand(functionValue);
      m_list.erase(function);
      if (!probe)
        ShowList("After Function", m_list);
    }
    if (m_list.empty())
      return false;
  }
}
