// SPDX-License-Identifier: MIT
// KCC_NcToolPath: the modal interpreter that turns an NC program into motion segments.
#include "ncappkit/nc/KCC_NcToolPath.h"

#include <algorithm>
#include <cmath>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <string>
#include <thread>
#include <type_traits>
#include <unordered_map>
#include <utility>

#include "foundation/KCPlatformDetail.h"
#include "nc/NcWordScan.h"
#include "ncappkit/foundation/KCC_MessageReporter.h"
#include "ncappkit/mathexpr/CExpressionItem.h"
#include "ncappkit/mathexpr/KCC_MathExpression.h"
#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_NcFileProgram.h"
#include "ncappkit/nc/KCC_NcFileProgramList.h"

using ncappkit_detail::NcWord;
using ncappkit_detail::NcWordScanner;

namespace {

// Arc radius check: the start and end radius of an I/J/K arc, and half the chord of an R arc against R, may
// differ by at most this many millimetres before the arc is reported and marked inconsistent.
constexpr double kArcRadiusTolerance = 0.01;
// Full-circle detection: an I/J/K arc whose end lies within this many millimetres of its start (in the
// arc's plane) is a whole turn; an R arc that short is no move.
constexpr double kFullCircleTolerance = 1e-4;
// Zero-length move: a straight move shorter than this many millimetres makes no segment.
constexpr double kZeroMoveTolerance = 1e-9;
// Arc sweep: an angle within this many radians of a quadrant direction counts as reaching it (extents).
constexpr double kAngleTolerance = 1e-12;

constexpr double kPi = 3.14159265358979323846;
constexpr double kMmPerInch = 25.4;
// A program of at least this many lines is read ahead on a second thread when that is switched on; below it
// starting the thread would cost more than it saves.
constexpr std::size_t kReadAheadMinLines = 20000;
// The word count of a line whose words were not read ahead: it is read where it runs.
constexpr int kNotRead = -2;
// Deepest bracket nesting an expression may have (keeps the recursive reader's stack small).
constexpr int kMaxExpressionDepth = 64;

// The axes of a plane: first, second (the arc turns from first to second for G3) and third.
constexpr int kPlaneAxes[3][3] = {{0, 1, 2}, {2, 0, 1}, {1, 2, 0}};

bool IsDigitChar(char c) {
  return c >= '0' && c <= '9';
}
bool IsLetterChar(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
char Upper(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string UpperText(const char* p, std::size_t n) {
  std::string s(p, n);
  for (char& c : s)
    c = Upper(c);
  return s;
}

// A word of the program in a message: at most kMaxQuoted characters, longer ones cut with "...".
constexpr std::size_t kMaxQuoted = 60;
std::string Quoted(const char* text, std::size_t length) {
  return length <= kMaxQuoted ? std::string(text, length) : std::string(text, kMaxQuoted) + "...";
}

// A number in a message: at most four decimals, trailing zeros dropped.
std::string Number(double v) {
  KCString text(v, 4, false);
  return text.CleanDoubleString().str();
}

// Parameter values: Fanuc #n and Siemens R<n>.
using ParamTable = std::unordered_map<long, double>;

// Reads an NC expression with the usual precedence (* and / before + and -, each left to right, unary
// signs, brackets [ ] or ( ), SIN COS TAN in degrees, SQRT) into a tree, with parameter values put in, and
// hands it to KCC_MathExpression fully bracketed: that evaluator's own text reader gives '*' priority over
// '/' and '+' over '-', so the bracketing makes it compute what the NC programmer wrote.
class ExpressionReader {
 public:
  ExpressionReader(const char* text, std::size_t length, const ParamTable& hash, const ParamTable& r)
      : m_p(text), m_n(length), m_hash(hash), m_r(r) {}
  // A reader is made for one value and refers to the run's parameter tables: it is not copied.
  ExpressionReader(const ExpressionReader&) = delete;
  ExpressionReader& operator=(const ExpressionReader&) = delete;

  bool Evaluate(double& result, std::string& error) {
    const int root = ParseSum(0);
    if (root < 0) {
      error = m_error;
      return false;
    }
    SkipBlanks();
    if (m_i < m_n) {
      error = "unexpected '" + std::string(1, m_p[m_i]) + "'";
      return false;
    }
    const Node& top = m_nodes[static_cast<std::size_t>(root)];
    if (top.type == 'n') {
      result = top.value;
      return true;
    }
    KCC_MessageNone quiet;
    KCC_MathExpression expression(quiet);
    Emit(root, expression);
    double value = 0.0;
    if (expression.HasEndlessEvaluation() || !expression.DoMathExpression(value)) {
      error = "cannot be evaluated";
      return false;
    }
    if (!std::isfinite(value)) {
      error = "gives no finite number";
      return false;
    }
    result = value;
    return true;
  }

 private:
  struct Node {
    char type = 'n';  // 'n' number, 'b' binary, 'u' unary minus, 'f' function
    char op = 0;
    CExpressionItem::eFunctionName function = CExpressionItem::eFuncNone;
    double value = 0.0;
    int left = -1;
    int right = -1;
  };

  void SkipBlanks() {
    while (m_i < m_n && (m_p[m_i] == ' ' || m_p[m_i] == '\t'))
      ++m_i;
  }
  int Fail(const std::string& error) {
    if (m_error.empty())
      m_error = error;
    return -1;
  }
  int Add(const Node& node, long items) {
    if (m_items + items > static_cast<long>(CExpressionItemList::kMaxItems))
      return Fail("too long");
    m_nodes.push_back(node);
    m_items += items;
    return static_cast<int>(m_nodes.size()) - 1;
  }
  int ParseSum(int depth) {
    int left = ParseProduct(depth);
    while (left >= 0) {
      SkipBlanks();
      if (m_i >= m_n || (m_p[m_i] != '+' && m_p[m_i] != '-'))
        break;
      Node n;
      n.type = 'b';
      n.op = m_p[m_i++];
      n.left = left;
      n.right = ParseProduct(depth);
      if (n.right < 0)
        return -1;
      left = Add(n, 3);
    }
    return left;
  }
  int ParseProduct(int depth) {
    int left = ParseUnary(depth);
    while (left >= 0) {
      SkipBlanks();
      if (m_i >= m_n || (m_p[m_i] != '*' && m_p[m_i] != '/'))
        break;
      Node n;
      n.type = 'b';
      n.op = m_p[m_i++];
      n.left = left;
      n.right = ParseUnary(depth);
      if (n.right < 0)
        return -1;
      left = Add(n, 3);
    }
    return left;
  }
  int ParseUnary(int depth) {
    if (depth > kMaxExpressionDepth)
      return Fail("nested too deeply");
    SkipBlanks();
    if (m_i < m_n && (m_p[m_i] == '-' || m_p[m_i] == '+')) {
      const bool minus = m_p[m_i++] == '-';
      const int operand = ParseUnary(depth + 1);
      if (operand < 0 || !minus)
        return operand;
      const Node& inner = m_nodes[static_cast<std::size_t>(operand)];
      if (inner.type == 'n') {
        Node n = inner;
        n.value = -n.value;
        m_nodes[static_cast<std::size_t>(operand)] = n;
        return operand;
      }
      Node n;
      n.type = 'u';
      n.left = operand;
      return Add(n, 3);
    }
    return ParsePrimary(depth);
  }
  // The bracket at m_i, read as an expression; -1 when there is none.
  int ParseBracket(int depth) {
    SkipBlanks();
    if (m_i >= m_n || (m_p[m_i] != '[' && m_p[m_i] != '('))
      return Fail("a bracket is missing");
    ++m_i;
    const int inner = ParseSum(depth + 1);
    if (inner < 0)
      return -1;
    SkipBlanks();
    if (m_i >= m_n || (m_p[m_i] != ']' && m_p[m_i] != ')'))
      return Fail("a closing bracket is missing");
    ++m_i;
    return inner;
  }
  int Parameter(const ParamTable& table, const char* prefix, double number) {
    if (!(number >= 0.0 && number < 1e9))
      return Fail(std::string(prefix) + Number(number) + " is no parameter");
    const long key = std::lround(number);
    const auto it = table.find(key);
    if (it == table.end())
      return Fail(std::string(prefix) + std::to_string(key) + " has no value");
    Node n;
    n.value = it->second;
    return Add(n, 1);
  }
  int ParsePrimary(int depth) {
    SkipBlanks();
    if (m_i >= m_n)
      return Fail("a value is missing");
    const char c = m_p[m_i];
    if (c == '[' || c == '(')
      return ParseBracket(depth);
    if (c == '#') {
      ++m_i;
      SkipBlanks();
      double number = 0.0;
      if (m_i < m_n && m_p[m_i] == '[') {
        const int index = ParseBracket(depth);
        if (index < 0)
          return -1;
        std::string error;
        if (!ValueOf(index, number, error))
          return Fail(error);
      } else {
        std::size_t k = m_i;
        while (k < m_n && IsDigitChar(m_p[k]))
          ++k;
        if (k == m_i)
          return Fail("'#' without a number");
        std::size_t used = 0;
        NcWordScanner::ReadNumber(m_p + m_i, k - m_i, number, used);
        m_i = k;
      }
      return Parameter(m_hash, "#", number);
    }
    if ((c == 'R' || c == 'r') && m_i + 1 < m_n && IsDigitChar(m_p[m_i + 1])) {
      std::size_t k = m_i + 1;
      while (k < m_n && IsDigitChar(m_p[k]))
        ++k;
      double number = 0.0;
      std::size_t used = 0;
      NcWordScanner::ReadNumber(m_p + m_i + 1, k - m_i - 1, number, used);
      m_i = k;
      return Parameter(m_r, "R", number);
    }
    if (IsLetterChar(c)) {
      std::size_t k = m_i;
      while (k < m_n && IsLetterChar(m_p[k]))
        ++k;
      const std::string name = UpperText(m_p + m_i, k - m_i);
      m_i = k;
      CExpressionItem::eFunctionName function = CExpressionItem::eFuncNone;
      if (name == "SQRT")
        function = CExpressionItem::eFuncSqrt;
      else if (name == "SIN")
        function = CExpressionItem::eFuncSin;
      else if (name == "COS")
        function = CExpressionItem::eFuncCos;
      else if (name == "TAN")
        function = CExpressionItem::eFuncTan;
      else
        return Fail(name + " is not evaluated");
      const int argument = ParseBracket(depth);
      if (argument < 0)
        return -1;
      Node n;
      n.type = 'f';
      n.function = function;
      n.left = argument;
      return Add(n, function == CExpressionItem::eFuncSqrt ? 3 : 7);
    }
    double value = 0.0;
    std::size_t used = 0;
    if (!NcWordScanner::ReadNumber(m_p + m_i, m_n - m_i, value, used) || m_p[m_i] == '+' || m_p[m_i] == '-')
      return Fail("unexpected '" + std::string(1, c) + "'");
    m_i += used;
    Node n;
    n.value = value;
    return Add(n, 1);
  }
  // The value of the subtree `index` (used for #[...]).
  bool ValueOf(int index, double& value, std::string& error) {
    const Node& node = m_nodes[static_cast<std::size_t>(index)];
    if (node.type == 'n') {
      value = node.value;
      return true;
    }
    KCC_MessageNone quiet;
    KCC_MathExpression expression(quiet);
    Emit(index, expression);
    if (expression.HasEndlessEvaluation() || !expression.DoMathExpression(value) || !std::isfinite(value)) {
      error = "cannot be evaluated";
      return false;
    }
    return true;
  }
  void Emit(int index, KCC_MathExpression& e) const {
    const Node& n = m_nodes[static_cast<std::size_t>(index)];
    switch (n.type) {
      case 'n':
        e.AddOperand(n.value);
        break;
      case 'b':
        e.SetOpenBracket();
        Emit(n.left, e);
        e.AddOperator(n.op);
        Emit(n.right, e);
        e.SetCloseBracket();
        break;
      case 'u':
        e.SetOpenBracket();
        e.AddOperator('-');
        Emit(n.left, e);
        e.SetCloseBracket();
        break;
      default:  // 'f': trigonometric functions take degrees, the evaluator radians
        e.SetFunction(n.function);
        e.SetOpenBracket();
        if (n.function != CExpressionItem::eFuncSqrt) {
          e.SetOpenBracket();
          e.AddOperand(kPi / 180.0);
          e.AddOperator('*');
          Emit(n.left, e);
          e.SetCloseBracket();
        } else {
          Emit(n.left, e);
        }
        e.SetCloseBracket();
        break;
    }
  }

  const char* m_p;
  std::size_t m_n;
  std::size_t m_i = 0;
  const ParamTable& m_hash;
  const ParamTable& m_r;
  std::vector<Node> m_nodes;
  long m_items = 0;
  std::string m_error;
};

// The words of one block that the interpreter acts on.
struct Block {
  static constexpr int kMaxCodes = 16;
  bool has[26];
  double value[26];
  double g[kMaxCodes];
  int gCount;
  double m[kMaxCodes];
  int mCount;
  bool hasCR;
  double cr;
  bool ret;
  bool skip;  // the block holds a statement that is not interpreted: none of it runs
  std::string callName;
  const KCC_NcFileProgram* called;

  void Reset() {
    std::memset(has, 0, sizeof has);
    gCount = 0;
    mCount = 0;
    hasCR = false;
    cr = 0.0;
    ret = false;
    skip = false;
    callName.clear();
    called = nullptr;
  }
  bool Has(char letter) const { return has[letter - 'A']; }
  double Value(char letter) const { return value[letter - 'A']; }
};

// The flow-control names: they skip the rest of their block.
bool IsFlowName(const std::string& name) {
  static const char* const kNames[] = {"IF",  "WHILE",  "GOTO",   "GOTOF", "GOTOB",   "GOTOC",
                                       "DO",  "END",    "ELSE",   "ENDIF", "LOOP",    "ENDLOOP",
                                       "FOR", "ENDFOR", "REPEAT", "UNTIL", "ENDWHILE"};
  for (const char* n : kNames) {
    if (name == n)
      return true;
  }
  return false;
}

std::string GName(long tenths) {
  const long whole = tenths / 10;
  const long fraction = tenths % 10;
  return "G" + std::to_string(whole) + (fraction != 0 ? "." + std::to_string(std::labs(fraction)) : "");
}

std::string ProgramName(int number) {
  if (number < 0)
    return "(no number)";
  char text[24];
  std::snprintf(text, sizeof text, "O%04d", number);
  return text;
}

// Angle normalised to [0, 2 pi).
double Normalise(double angle) {
  angle = std::fmod(angle, 2.0 * kPi);
  if (angle < 0.0)
    angle += 2.0 * kPi;
  return angle;
}

}  // namespace

// Reads the plain blocks of one program's lines (NcWordScanner::ReadPlainBlock) on a second thread, a chunk
// of lines at a time, ahead of the interpreter, which then takes each line's words instead of reading the
// line itself: reading the text is about half of interpreting a generated program, and the two halves run
// side by side. The lines are taken in increasing order; the reader stays at most kChunks chunks ahead.
class PlainReadAhead {
 public:
  using PlainWord = NcWordScanner::PlainWord;
  static constexpr std::size_t kChunkLines = 4096;
  static constexpr std::size_t kChunks = 4;

  // Starts the reader over `lines`, which must stay unchanged while the object lives; throws what
  // std::thread and the allocation throw when they fail (the caller then reads the lines itself).
  explicit PlainReadAhead(const KCStringList& lines) : m_lines(lines), m_chunks(kChunks) {
    for (Chunk& chunk : m_chunks) {
      chunk.counts.resize(kChunkLines);
      chunk.offsets.resize(kChunkLines);
      chunk.words.resize(kChunkLines * kWordsPerLine);
    }
    m_thread = std::thread([this] { ReadAll(); });
  }
  ~PlainReadAhead() {
    {
      std::lock_guard<std::mutex> lock(m_mutex);
      m_stop = true;
    }
    m_changed.notify_all();
    m_thread.join();
  }
  PlainReadAhead(const PlainReadAhead&) = delete;
  PlainReadAhead& operator=(const PlainReadAhead&) = delete;

  // The words of line `index` as ReadPlainBlock gives them: their number (`words` set), or -1 when the block
  // is not plain. kNotRead when the reader does not have the line (an index before the chunk taken last, or a
  // line the reader had no room for): the caller reads it itself.
  int Take(std::size_t index, const PlainWord*& words) {
    const std::size_t chunk = index / kChunkLines;
    if (chunk != m_taken) {
      if (m_taken != kNone && chunk < m_taken)
        return kNotRead;
      std::unique_lock<std::mutex> lock(m_mutex);
      m_taken = chunk;
      m_released = chunk;  // the chunks before it are not needed any more
      m_changed.notify_all();
      m_changed.wait(lock, [&] { return m_read > chunk; });
    }
    const Chunk& c = m_chunks[chunk % kChunks];
    const std::size_t line = index % kChunkLines;
    words = c.words.data() + c.offsets[line];
    return c.counts[line];
  }

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  static constexpr std::size_t kWordsPerLine = 8;  // room per line on average; a full chunk leaves the rest

  struct Chunk {
    std::vector<int> counts;
    std::vector<std::size_t> offsets;
    std::vector<PlainWord> words;
  };

  void ReadAll() {
    const std::size_t chunks = (m_lines.size() + kChunkLines - 1) / kChunkLines;
    for (std::size_t k = 0; k < chunks; ++k) {
      {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [&] { return m_stop || k < m_released + kChunks; });
        if (m_stop)
          return;
      }
      Fill(m_chunks[k % kChunks], k * kChunkLines);
      {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_read = k + 1;
      }
      m_changed.notify_all();
    }
  }

  void Fill(Chunk& chunk, std::size_t first) {
    const std::size_t end = std::min(m_lines.size(), first + kChunkLines);
    std::size_t used = 0;
    for (std::size_t i = first; i < end; ++i) {
      const std::size_t line = i - first;
      chunk.offsets[line] = used;
      if (chunk.words.size() - used < NcWordScanner::kMaxPlainWords) {
        chunk.counts[line] = kNotRead;
        continue;
      }
      const KCString& text = m_lines[i];
      const int count = NcWordScanner::ReadPlainBlock(text.c_str(), text.size(), chunk.words.data() + used);
      chunk.counts[line] = count;
      if (count > 0)
        used += static_cast<std::size_t>(count);
    }
  }

  const KCStringList& m_lines;
  std::vector<Chunk> m_chunks;
  std::size_t m_taken = kNone;  // the chunk the interpreter takes lines from (its thread only)
  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::size_t m_read = 0;      // chunks read so far
  std::size_t m_released = 0;  // chunks before this one may be overwritten
  bool m_stop = false;
  std::thread m_thread;
};

// One run of the interpreter: the modal state, the call stack and the caches, alive during Interpret.
class KCC_NcToolPath::Run {
 public:
  Run(KCC_NcToolPath& out, KCC_NcFile& file) : m_out(out), m_file(file) {
    for (int i = 0; i < 3; ++i)
      m_pos[i] = out.m_startPoint[i];
  }

  // A run owns the sub-program files it loaded and refers to its result and file: it is not copied.
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

  void Execute(const KCC_NcFileProgram& program) {
    const std::uint32_t index =
        IndexOf(&program, program.GetProgramNumber(), ProgramName(program.GetProgramNumber()));
    m_out.m_segments.Reserve(std::min(program.GetStringList().size(), m_out.m_maxSegments));
    m_stack.push_back(Frame{&program, index, 0, 1});
    std::unique_ptr<PlainReadAhead> readAhead;
    if (m_out.m_readAhead && program.GetStringList().size() >= kReadAheadMinLines) {
      try {
        readAhead = std::make_unique<PlainReadAhead>(program.GetStringList());
      } catch (const std::exception&) {
        readAhead.reset();  // no second thread: the lines are read here
      }
    }
    while (!m_stack.empty() && !m_stopped) {
      Frame& frame = m_stack.back();
      const KCStringList& lines = frame.program->GetStringList();
      m_program = frame.index;
      if (frame.next >= lines.size()) {
        m_line = static_cast<std::int32_t>(std::min<std::size_t>(lines.size(), 0x7FFFFFFF));
        Return();
        continue;
      }
      const std::size_t at = frame.next++;
      m_line = static_cast<std::int32_t>(std::min<std::size_t>(at + 1, 0x7FFFFFFF));
      const NcWordScanner::PlainWord* words = nullptr;
      const int count = readAhead && m_stack.size() == 1 ? readAhead->Take(at, words) : kNotRead;
      ExecuteLine(&lines[at], count, words);
    }
    readAhead.reset();
    Finish();
  }

 private:
  struct Frame {
    const KCC_NcFileProgram* program;
    std::uint32_t index;
    std::size_t next;      // index of the next line to run
    std::int64_t repeats;  // runs left, this one included
  };

  // --- notes -----------------------------------------------------------------------------------------------

  void Warn(const std::string& text) {
    ++m_out.m_warningCount;
    if (m_out.m_warnings.size() < kMaxKeptNotes)
      m_out.m_warnings.push_back(Note{m_program, m_line, KCString(text)});
  }
  template <class MakeText>
  void WarnLazy(MakeText make) {
    if (m_out.m_warnings.size() < kMaxKeptNotes) {
      Warn(make());
    } else {
      ++m_out.m_warningCount;
    }
  }
  void NotInterpreted(const std::string& fullKind) {
    const std::string kind = Quoted(fullKind.data(), fullKind.size());
    for (const std::string& seen : m_blockKinds) {
      if (seen == kind)
        return;  // once per block
    }
    m_blockKinds.push_back(kind);
    ++m_kinds[kind];
    ++m_out.m_notInterpretedCount;
    if (m_out.m_notInterpreted.size() < kMaxKeptNotes)
      m_out.m_notInterpreted.push_back(Note{m_program, m_line, KCString(kind)});
  }
  void Stop(const std::string& reason) {
    if (m_stopped)
      return;
    m_stopped = true;
    m_out.m_complete = false;
    m_out.m_stopReason = reason;
    Warn(reason);
  }

  // --- programs --------------------------------------------------------------------------------------------

  std::uint32_t IndexOf(const KCC_NcFileProgram* program, int number, const std::string& name) {
    const auto it = m_programIndex.find(program);
    if (it != m_programIndex.end())
      return it->second;
    const std::uint32_t index = static_cast<std::uint32_t>(m_out.m_programNumbers.size());
    m_out.m_programNumbers.push_back(number);
    m_out.m_programNames.push_back(KCString(name));
    m_programIndex.emplace(program, index);
    return index;
  }

  const KCC_NcFileProgram* FindByNumber(int number) {
    const KCC_NcFileProgram* found = m_file.GetSubProgList().FindProgramFromList(number);
    if (found == nullptr)
      found = m_file.GetMainProgList().FindProgramFromList(number);
    return found;
  }

  // NAME.SPF or NAME.spf in the sub-program folder; loaded once per run.
  const KCC_NcFileProgram* FindInFolder(const std::string& name) {
    if (m_out.m_folder.empty())
      return nullptr;
    const auto cached = m_folderFiles.find(name);
    if (cached != m_folderFiles.end())
      return cached->second.second;
    std::string folder = m_out.m_folder.str();
    if (folder.back() != '/' && folder.back() != '\\')
      folder += '/';
    std::unique_ptr<KCC_NcFile> loaded;
    const KCC_NcFileProgram* program = nullptr;
    for (const char* extension : {".SPF", ".spf"}) {
      auto file = std::make_unique<KCC_NcFile>();
      file->LoadFromFileWithoutLineLimit(KCString(folder + name + extension), false, true);
      if (file->HasFileNotFoundError() || file->HasFileOpenError() || file->HasNoFileNameError())
        continue;
      for (KCC_NcFileProgramList* list : {&file->GetMainProgList(), &file->GetSubProgList()}) {
        for (KCC_NcFileProgram* p : *list) {
          if (program == nullptr && p != nullptr && !p->GetStringList().empty())
            program = p;
        }
      }
      loaded = std::move(file);
      break;
    }
    m_folderFiles.emplace(name, std::make_pair(std::move(loaded), program));
    return program;
  }

  void Call(const KCC_NcFileProgram* target, const std::string& name, std::int64_t repeats) {
    if (target == nullptr) {
      WarnLazy([&] { return "sub-program " + name + " not found: call not followed"; });
      return;
    }
    if (repeats <= 0)
      return;
    for (const Frame& f : m_stack) {
      if (f.program == target) {
        WarnLazy([&] { return "call of " + name + ", which is already running: not followed"; });
        return;
      }
    }
    if (static_cast<long>(m_stack.size()) > m_out.m_maxCallDepth) {
      WarnLazy([&] {
        return "call of " + name + " deeper than the call-depth limit (" +
               std::to_string(m_out.m_maxCallDepth) + "): not followed";
      });
      return;
    }
    const std::uint32_t index = IndexOf(target, target->GetProgramNumber(), name);
    m_stack.push_back(Frame{target, index, 0, repeats});
    CountBlock();
  }

  // The running program ends: again for a repeat, else back to its caller (or the run ends).
  void Return() {
    Frame& frame = m_stack.back();
    if (--frame.repeats > 0) {
      frame.next = 0;
      CountBlock();
      return;
    }
    m_stack.pop_back();
  }

  void CountBlock() {
    if (++m_out.m_blocks > m_out.m_maxBlocks)
      Stop("stopped after " + std::to_string(m_out.m_maxBlocks) + " blocks (the block limit)");
  }

  // --- one block -------------------------------------------------------------------------------------------

  bool ValueOf(const NcWord& word, double& value) {
    if (word.hasNumber) {
      value = word.number;
      return true;
    }
    ExpressionReader reader(word.value, word.valueLength, m_hash, m_r);
    std::string error;
    if (reader.Evaluate(value, error))
      return true;
    WarnLazy([&] {
      return "cannot evaluate " + Quoted(word.text, word.length) + ": " + error + "; the word is ignored";
    });
    return false;
  }

  // Runs one line. `plainCount` and `plainWords` are the line's plain words read ahead (a count of -1: the
  // line is not plain), or kNotRead. The line's text is only looked at when it was not read ahead or is not
  // plain: the interpreter then leaves the text to the thread that read it.
  void ExecuteLine(const KCString* lineText, int plainCount, const NcWordScanner::PlainWord* plainWords) {
    CountBlock();
    if (m_stopped)
      return;
    m_blockKinds.clear();
    m_block.Reset();
    Block& b = m_block;
    NcWordScanner::PlainWord words[NcWordScanner::kMaxPlainWords];
    if (plainCount == kNotRead) {
      plainCount = NcWordScanner::ReadPlainBlock(lineText->c_str(), lineText->size(), words);
      plainWords = words;
    }
    if (plainCount >= 0) {
      if (ExecutePlainBlock(plainCount, plainWords))
        return;
      m_block.Reset();  // a plain block that needs a warning: read again word by word
    }
    const KCString& line = *lineText;
    NcWordScanner scan(line.c_str(), line.size());
    NcWord w;
    bool first = true;
    bool any = false;
    while (scan.Next(w)) {
      if (first) {
        first = false;
        if (scan.IsDeletable() && m_out.m_skipDeletable)
          return;
      }
      any = true;
      switch (w.kind) {
        case NcWord::kParamSet:
          SetHashParameter(w);
          break;
        case NcWord::kRParamSet: {
          double v = 0.0;
          if (!w.hasValue)
            WarnLazy([&] { return Quoted(w.text, w.length) + " = without a value"; });
          else if (ValueOf(w, v))
            m_r[w.param] = v;
          break;
        }
        case NcWord::kStray: {
          const unsigned char c = static_cast<unsigned char>(w.text[0]);
          char text[8];
          if (c >= 0x20 && c < 0x7F)
            std::snprintf(text, sizeof text, "'%c'", c);
          else
            std::snprintf(text, sizeof text, "'\\x%02X'", c);
          NotInterpreted(text);
          break;
        }
        case NcWord::kName: {
          const std::string name = UpperText(w.text, w.length);
          std::string stem = name;
          while (!stem.empty() && IsDigitChar(stem.back()))
            stem.pop_back();
          if (name == "FIRST_BLOCK") {
            // The marker of a Siemens main program; nothing to do.
          } else if (name == "RET") {
            b.ret = true;
          } else if (name == "CR" && w.hasValue) {
            double v = 0.0;
            if (ValueOf(w, v)) {
              b.hasCR = true;
              b.cr = v;
            }
          } else if (IsFlowName(stem)) {
            NotInterpreted(stem);
            scan.Stop();
          } else if (w.hasValue) {
            NotInterpreted(name);
          } else if (b.callName.empty() && (b.called = FindInFolder(name)) != nullptr) {
            b.callName = name;
          } else {
            // A statement of its own (TRANS X10, DPRNT[...], CYCLE81(...)): its words are its arguments.
            NotInterpreted(name);
            b.skip = true;
            scan.Stop();
          }
          break;
        }
        case NcWord::kAddress: {
          if (!w.hasValue) {
            WarnLazy([&] { return std::string(1, w.letter) + " without a value is ignored"; });
            break;
          }
          double v = 0.0;
          if (!ValueOf(w, v))
            break;
          if (w.letter == 'G' || w.letter == 'M') {
            int& count = w.letter == 'G' ? b.gCount : b.mCount;
            double* codes = w.letter == 'G' ? b.g : b.m;
            if (count < Block::kMaxCodes)
              codes[count++] = v;
            else
              WarnLazy([&] { return std::string("more than 16 ") + w.letter + " words in one block"; });
            break;
          }
          const int slot = w.letter - 'A';
          if (b.has[slot])
            WarnLazy([&] {
              return std::string(1, w.letter) + " given twice in one block: the last value is used";
            });
          b.has[slot] = true;
          b.value[slot] = v;
          break;
        }
      }
    }
    if (any && !b.skip)
      ExecuteBlock(b);
  }

  // A block of plain address words only (nearly every block of a generated program), read by the scanner's
  // short way, goes straight into the block. False, with the block to be reset, for a plain block that would
  // need a warning (a letter given twice, too many G or M words): the full reading then takes it.
  bool ExecutePlainBlock(int count, const NcWordScanner::PlainWord* words) {
    Block& b = m_block;
    for (int i = 0; i < count; ++i) {
      const char letter = words[i].letter;
      if (letter == 'G' || letter == 'M') {
        int& n = letter == 'G' ? b.gCount : b.mCount;
        if (n == Block::kMaxCodes)
          return false;
        (letter == 'G' ? b.g : b.m)[n++] = words[i].number;
        continue;
      }
      const int slot = letter - 'A';
      if (b.has[slot])
        return false;
      b.has[slot] = true;
      b.value[slot] = words[i].number;
    }
    if (count > 0)
      ExecuteBlock(b);
    return true;
  }

  void SetHashParameter(const NcWord& w) {
    // The target: #n or #[expression].
    double target = 0.0;
    const char* t = w.text + 1;
    std::size_t tn = w.length - 1;
    while (tn > 0 && (*t == ' ' || *t == '\t')) {
      ++t;
      --tn;
    }
    if (tn > 0 && *t == '[') {
      ExpressionReader reader(t, tn, m_hash, m_r);
      std::string error;
      if (!reader.Evaluate(target, error)) {
        WarnLazy([&] { return "cannot evaluate " + Quoted(w.text, w.length) + ": " + error; });
        return;
      }
    } else {
      std::size_t used = 0;
      NcWordScanner::ReadNumber(t, tn, target, used);
    }
    const long key = std::lround(target);
    if (!(target >= 1.0 && target < 1e9)) {
      WarnLazy([&] { return "#" + Number(target) + " cannot be set"; });
      return;
    }
    if (!w.hasValue) {
      WarnLazy([&] { return "#" + std::to_string(key) + " = without a value"; });
      return;
    }
    // #0 is the vacant value: assigning it makes the parameter empty.
    if (!w.hasNumber && w.valueLength == 2 && w.value[0] == '#' && w.value[1] == '0') {
      m_hash.erase(key);
      return;
    }
    double v = 0.0;
    if (ValueOf(w, v))
      m_hash[key] = v;
  }

  void ExecuteBlock(const Block& b) {
    const KCC_NcFileProgram* named = b.called;
    bool axesTaken = false;
    bool dwell = false;
    bool cycleInBlock = false;
    for (int i = 0; i < b.gCount; ++i) {
      const long code = std::lround(b.g[i] * 10.0);
      switch (code) {
        case 0:
        case 10:
        case 20:
        case 30:
          m_motion = static_cast<int>(code / 10);
          m_cycle = 0;
          break;
        case 40:
          dwell = true;
          axesTaken = true;
          break;
        case 150:
          m_polar = false;
          break;
        case 160:
          if (m_plane == 0) {
            if (!m_polar) {
              m_polarRadius = std::hypot(m_pos[0], m_pos[1]);
              m_polarAngle = std::atan2(m_pos[1], m_pos[0]) * 180.0 / kPi;
            }
            m_polar = true;
          } else {
            NotInterpreted("G16 outside G17");
          }
          break;
        case 170:
        case 180:
        case 190:
          m_plane = static_cast<int>(code / 10 - 17);
          break;
        case 200:
        case 700:
        case 7000:
          m_inch = true;
          break;
        case 210:
        case 710:
        case 7100:
          m_inch = false;
          break;
        case 90:
        case 400:
        case 490:
        case 610:
        case 640:
        case 690:
        case 940:
          break;  // no effect on the path
        case 800:
          m_cycle = 0;
          break;
        case 730:
        case 740:
        case 760:
        case 810:
        case 820:
        case 830:
        case 840:
        case 850:
        case 860:
        case 870:
        case 880:
        case 890:
          if (m_cycle == 0)
            m_initialLevel = m_pos[kPlaneAxes[m_plane][2]];
          m_cycle = static_cast<int>(code / 10);
          cycleInBlock = true;
          break;
        case 900:
          m_absolute = true;
          break;
        case 910:
          m_absolute = false;
          break;
        case 901:
          m_centreAbsolute = true;
          break;
        case 911:
          m_centreAbsolute = false;
          break;
        case 980:
          m_returnInitial = true;
          break;
        case 990:
          m_returnInitial = false;
          break;
        case 100:
        case 110:
        case 280:
        case 290:
        case 300:
        case 520:
        case 530:
        case 510:
        case 511:
        case 501:
        case 650:
        case 660:
        case 670:
        case 680:
        case 920:
          NotInterpreted(GName(code));
          axesTaken = true;
          break;
        default:
          NotInterpreted(GName(code));
          break;
      }
    }
    const double unit = m_inch ? kMmPerInch : 1.0;
    for (char letter : {'A', 'B', 'C', 'E', 'O', 'U', 'V', 'W'}) {
      if (b.Has(letter) && !(dwell && letter == 'U'))
        NotInterpreted(std::string(1, letter));
    }
    if (dwell) {
      if (b.Has('X'))
        m_out.m_runTime += std::max(0.0, b.Value('X'));
      else if (b.Has('U'))
        m_out.m_runTime += std::max(0.0, b.Value('U'));
      else if (b.Has('P'))
        m_out.m_runTime += std::max(0.0, b.Value('P')) / 1000.0;
      else if (b.Has('F'))
        m_out.m_runTime += std::max(0.0, b.Value('F'));
    } else if (b.Has('F')) {
      m_feed = std::max(0.0, b.Value('F') * unit);
    }
    if (b.Has('T')) {
      const double t = b.Value('T');
      m_pendingTool = t >= 0.0 && t < 4e9 ? static_cast<std::uint32_t>(t) : 0u;
      if (!m_sawToolChange)
        m_tool = m_pendingTool;
    }
    bool m98 = false;
    for (int i = 0; i < b.mCount; ++i) {
      const long code = std::lround(b.m[i]);
      if (code == 6) {
        m_sawToolChange = true;
        m_tool = m_pendingTool;
      } else if (code == 98) {
        m98 = true;
      } else if (code == 97 || code == 198) {
        NotInterpreted("M" + std::to_string(code));
      }
    }

    if (!axesTaken) {
      const bool anyAxis = b.Has('X') || b.Has('Y') || b.Has('Z');
      if (m_cycle != 0) {
        if (anyAxis || b.Has('R') || cycleInBlock)
          Cycle(b, unit);
      } else if (anyAxis || ((m_motion == 2 || m_motion == 3) && HasCentreWord(b))) {
        Move(b, unit);
      }
    }
    if (m_stopped)
      return;

    // Calls and ends, after the motion of the block.
    if (m98) {
      if (!b.Has('P')) {
        Warn("M98 without P: no call");
      } else {
        const double p = b.Value('P');
        long number = p >= 0.0 && p < 1e9 ? std::lround(p) : -1;
        std::int64_t repeats = 1;
        if (number > 9999) {  // eight-digit form: repeats, then a four-digit program number
          repeats = number / 10000;
          number %= 10000;
        }
        if (b.Has('L'))
          repeats = std::llround(std::max(-1.0, std::min(b.Value('L'), 1e15)));
        Call(number >= 0 ? FindByNumber(static_cast<int>(number)) : nullptr,
             ProgramName(static_cast<int>(number)), repeats);
      }
    } else if (b.Has('L') && m_cycle == 0 && !axesTaken) {
      // Siemens call L<n>, P repeats.
      const double l = b.Value('L');
      const long number = l >= 0.0 && l < 1e9 ? std::lround(l) : -1;
      std::string name = "L" + std::to_string(number);
      const KCC_NcFileProgram* target = number >= 0 ? FindByNumber(static_cast<int>(number)) : nullptr;
      if (target != nullptr)
        name = ProgramName(static_cast<int>(number));
      else if (number >= 0)
        target = FindInFolder(name);
      Call(target, name, b.Has('P') ? std::llround(std::max(-1.0, std::min(b.Value('P'), 1e15))) : 1);
    } else if (named != nullptr) {
      Call(named, b.callName, b.Has('P') ? std::llround(std::max(-1.0, std::min(b.Value('P'), 1e15))) : 1);
    }
    bool returns = b.ret;
    bool ends = false;
    for (int i = 0; i < b.mCount; ++i) {
      const long code = std::lround(b.m[i]);
      if (code == 99 || code == 17)
        returns = true;
      else if (code == 2 || code == 30)
        ends = true;
    }
    if (ends || returns) {
      // The program that holds the end is the one the block came from: a call in the same block has pushed
      // its frame on top, which runs first.
      if (m_stack.size() == 1) {
        m_stack.clear();
      } else if (m_stack.back().index == m_program) {
        Return();
      }
    }
  }

  bool HasCentreWord(const Block& b) const {
    static const char kCentre[3] = {'I', 'J', 'K'};
    const int a = kPlaneAxes[m_plane][0];
    const int c = kPlaneAxes[m_plane][1];
    return b.Has(kCentre[a]) || b.Has(kCentre[c]);
  }

  // --- motion ----------------------------------------------------------------------------------------------

  void Include(const double p[3]) {
    for (int i = 0; i < 3; ++i) {
      m_min[i] = std::min(m_min[i], p[i]);
      m_max[i] = std::max(m_max[i], p[i]);
    }
    m_any = true;
  }

  bool Emit(std::uint8_t kind, const double start[3], const double end[3], const double centre[3],
            std::uint8_t flags) {
    if (m_out.m_segments.size() >= m_out.m_maxSegments) {
      Stop("stopped after " + std::to_string(m_out.m_maxSegments) + " segments (the segment limit)");
      return false;
    }
    Segment s;
    for (int i = 0; i < 3; ++i) {
      s.start[i] = static_cast<float>(start[i]);
      s.end[i] = static_cast<float>(end[i]);
      s.centre[i] = centre != nullptr ? static_cast<float>(centre[i]) : 0.0f;
    }
    s.feed = kind == kRapid ? 0.0f : static_cast<float>(m_feed);
    s.line = m_line;
    s.program = m_program;
    s.tool = m_tool;
    s.kind = kind;
    s.plane = static_cast<std::uint8_t>(kind == kArcCW || kind == kArcCCW ? m_plane : 0);
    s.flags = flags;
    s.reserved = 0;
    m_out.m_segments.Append(s);
    Include(start);
    Include(end);
    return true;
  }

  void AddFeedTime(double length) {
    if (m_feed > 0.0) {
      m_out.m_runTime += length / m_feed * 60.0;
    } else if (!m_warnedNoFeed && length > 0.0) {
      m_warnedNoFeed = true;
      Warn("move at feed without a feed rate (F): its time is not counted");
    }
  }

  bool Straight(std::uint8_t kind, const double target[3], std::uint8_t flags) {
    const double d = std::sqrt((target[0] - m_pos[0]) * (target[0] - m_pos[0]) +
                               (target[1] - m_pos[1]) * (target[1] - m_pos[1]) +
                               (target[2] - m_pos[2]) * (target[2] - m_pos[2]));
    if (d <= kZeroMoveTolerance && flags == 0) {
      std::copy(target, target + 3, m_pos);
      return true;
    }
    if (!Emit(kind, m_pos, target, nullptr, flags))
      return false;
    if (kind == kRapid) {
      m_out.m_rapidLength += d;
      m_out.m_runTime += d / m_out.m_rapidRate * 60.0;
    } else {
      m_out.m_feedLength += d;
      AddFeedTime(d);
    }
    std::copy(target, target + 3, m_pos);
    return true;
  }

  // X and Y of a block in polar coordinates (G16): X the radius, Y the angle in degrees.
  void PolarPoint(const Block& b, double unit, double target[3]) {
    if (b.Has('X'))
      m_polarRadius = m_absolute ? b.Value('X') * unit : m_polarRadius + b.Value('X') * unit;
    if (b.Has('Y'))
      m_polarAngle = m_absolute ? b.Value('Y') : m_polarAngle + b.Value('Y');
    const double a = m_polarAngle * kPi / 180.0;
    target[0] = m_polarRadius * std::cos(a);
    target[1] = m_polarRadius * std::sin(a);
  }

  void Target(const Block& b, double unit, double target[3]) {
    static const char kAxis[3] = {'X', 'Y', 'Z'};
    for (int i = 0; i < 3; ++i) {
      target[i] = m_pos[i];
      if (b.Has(kAxis[i]))
        target[i] = m_absolute ? b.Value(kAxis[i]) * unit : m_pos[i] + b.Value(kAxis[i]) * unit;
    }
    if (m_polar && (b.Has('X') || b.Has('Y')))
      PolarPoint(b, unit, target);
  }

  void Move(const Block& b, double unit) {
    double target[3];
    Target(b, unit, target);
    if (m_motion == 0 || m_motion == 1) {
      Straight(m_motion == 0 ? kRapid : kFeed, target, 0);
      return;
    }
    Arc(b, unit, target);
  }

  void Arc(const Block& b, double unit, const double target[3]) {
    static const char kCentre[3] = {'I', 'J', 'K'};
    const int ia = kPlaneAxes[m_plane][0];
    const int ib = kPlaneAxes[m_plane][1];
    const int ic = kPlaneAxes[m_plane][2];
    const bool clockwise = m_motion == 2;
    const double sa = m_pos[ia], sb = m_pos[ib];
    const double ea = target[ia], eb = target[ib];
    double ca = 0.0, cb = 0.0;
    std::uint8_t flags = 0;
    bool fullCircle = false;
    const double chord = std::hypot(ea - sa, eb - sb);
    const bool hasRadius = b.hasCR || b.Has('R');
    if (hasRadius) {
      const double programmed = (b.hasCR ? b.cr : b.Value('R')) * unit;
      const double r = std::fabs(programmed);
      if (chord <= kFullCircleTolerance) {
        Warn("arc by radius that ends where it starts: no move");
        std::copy(target, target + 3, m_pos);
        return;
      }
      double h = 0.0;
      const double half = chord / 2.0;
      if (half > r + kArcRadiusTolerance) {
        WarnLazy([&] {
          return "arc radius " + Number(r) + " is shorter than half the chord " + Number(half) +
                 ": run as the half circle over the chord";
        });
        flags |= kFlagInconsistent;
      } else if (r > half) {
        h = std::sqrt(r * r - half * half);
      }
      // The centre lies left of the chord (seen from start to end) for a counter-clockwise arc up to 180
      // degrees, right of it for a clockwise one; a negative radius takes the other side.
      const double leftA = -(eb - sb) / chord;
      const double leftB = (ea - sa) / chord;
      const double side = (clockwise ? -1.0 : 1.0) * (programmed < 0.0 ? -1.0 : 1.0);
      ca = (sa + ea) / 2.0 + side * h * leftA;
      cb = (sb + eb) / 2.0 + side * h * leftB;
    } else if (HasCentreWord(b)) {
      const double oa = b.Has(kCentre[ia]) ? b.Value(kCentre[ia]) * unit : 0.0;
      const double ob = b.Has(kCentre[ib]) ? b.Value(kCentre[ib]) * unit : 0.0;
      ca = m_centreAbsolute && b.Has(kCentre[ia]) ? oa : sa + oa;
      cb = m_centreAbsolute && b.Has(kCentre[ib]) ? ob : sb + ob;
      fullCircle = chord <= kFullCircleTolerance;
      const double rs = std::hypot(sa - ca, sb - cb);
      const double re = std::hypot(ea - ca, eb - cb);
      if (std::fabs(rs - re) > kArcRadiusTolerance) {
        WarnLazy([&] {
          return "arc radius at the start " + Number(rs) + " and at the end " + Number(re) + " differ";
        });
        flags |= kFlagInconsistent;
      }
    } else {
      Warn("arc without centre (I, J, K) or radius (R): run as a straight move");
      Straight(kFeed, target, kFlagInconsistent);
      return;
    }
    if (fullCircle)
      flags |= kFlagFullCircle;

    const double rs = std::hypot(sa - ca, sb - cb);
    const double re = std::hypot(ea - ca, eb - cb);
    const double as = std::atan2(sb - cb, sa - ca);
    const double ae = std::atan2(eb - cb, ea - ca);
    double sweep = fullCircle ? 2.0 * kPi : Normalise(clockwise ? as - ae : ae - as);
    if (!fullCircle && sweep == 0.0)
      sweep = 2.0 * kPi;
    double centre[3];
    centre[ia] = ca;
    centre[ib] = cb;
    centre[ic] = m_pos[ic];
    const double start[3] = {m_pos[0], m_pos[1], m_pos[2]};
    if (!Emit(clockwise ? kArcCW : kArcCCW, start, target, centre, flags))
      return;
    // Bulges: the quadrant points the arc passes (radius taken as changing evenly along the sweep).
    static const double kQuadrantCos[4] = {1.0, 0.0, -1.0, 0.0};
    static const double kQuadrantSin[4] = {0.0, 1.0, 0.0, -1.0};
    for (int q = 0; q < 4; ++q) {
      const double angle = q * kPi / 2.0;
      const double delta = Normalise(clockwise ? as - angle : angle - as);
      if (delta < sweep - kAngleTolerance || (fullCircle && delta <= sweep)) {
        const double r = rs + (re - rs) * (delta / sweep);
        double p[3];
        p[ia] = ca + r * kQuadrantCos[q];
        p[ib] = cb + r * kQuadrantSin[q];
        p[ic] = start[ic];
        Include(p);
      }
    }
    const double planar = (rs + re) / 2.0 * sweep;
    const double rise = target[ic] - start[ic];
    const double length = std::sqrt(planar * planar + rise * rise);
    m_out.m_feedLength += length;
    AddFeedTime(length);
    std::copy(target, target + 3, m_pos);
  }

  // One block in canned-cycle mode: the holes it makes.
  void Cycle(const Block& b, double unit) {
    static const char kAxis[3] = {'X', 'Y', 'Z'};
    const int ia = kPlaneAxes[m_plane][0];
    const int ib = kPlaneAxes[m_plane][1];
    const int ic = kPlaneAxes[m_plane][2];
    if (b.Has('R')) {
      m_cycleR = b.Value('R') * unit;
      m_cycleRIncremental = !m_absolute;
      m_hasCycleR = true;
    }
    if (b.Has(kAxis[ic])) {
      m_cycleDepth = b.Value(kAxis[ic]) * unit;
      m_cycleDepthIncremental = !m_absolute;
      m_hasCycleDepth = true;
    }
    if (b.Has('P'))
      m_cycleDwell = std::max(0.0, b.Value('P')) / 1000.0;
    std::int64_t repeats = 1;
    if (b.Has('K'))
      repeats = std::llround(std::max(0.0, std::min(b.Value('K'), 1e15)));
    else if (b.Has('L'))
      repeats = std::llround(std::max(0.0, std::min(b.Value('L'), 1e15)));
    if (!m_hasCycleDepth) {
      Warn("canned cycle without depth: no hole");
      return;
    }
    const bool feedOut = m_cycle == 74 || m_cycle == 84 || m_cycle == 85 || m_cycle == 89;
    const bool dwells = m_cycle == 82 || m_cycle == 89 || m_cycle == 88;
    for (std::int64_t k = 0; k < repeats && !m_stopped; ++k) {
      double hole[3] = {m_pos[0], m_pos[1], m_pos[2]};
      if (m_polar) {
        PolarPoint(b, unit, hole);
      } else {
        for (const int axis : {ia, ib}) {
          if (b.Has(kAxis[axis]))
            hole[axis] = m_absolute ? b.Value(kAxis[axis]) * unit : m_pos[axis] + b.Value(kAxis[axis]) * unit;
        }
      }
      const double level = m_pos[ic];
      const double rLevel = !m_hasCycleR ? level : m_cycleRIncremental ? m_initialLevel + m_cycleR : m_cycleR;
      const double depth = m_cycleDepthIncremental ? rLevel + m_cycleDepth : m_cycleDepth;
      hole[ic] = level;
      if (!Straight(kRapid, hole, 0))
        return;
      hole[ic] = rLevel;
      if (!Straight(kRapid, hole, 0))
        return;
      double bottom[3] = {hole[0], hole[1], hole[2]};
      bottom[ic] = depth;
      if (!Emit(kHole, hole, bottom, nullptr, 0))
        return;
      const double d = std::fabs(rLevel - depth);
      m_out.m_feedLength += d;
      AddFeedTime(d);
      if (feedOut) {
        m_out.m_feedLength += d;
        AddFeedTime(d);
      } else {
        m_out.m_rapidLength += d;
        m_out.m_runTime += d / m_out.m_rapidRate * 60.0;
      }
      if (dwells)
        m_out.m_runTime += m_cycleDwell;
      if (m_returnInitial) {
        double up[3] = {hole[0], hole[1], hole[2]};
        up[ic] = m_initialLevel;
        if (!Straight(kRapid, up, 0))
          return;
      }
    }
  }

  void Finish() {
    // The list was reserved for one segment per line; give back what a program with fewer moves left over.
    m_out.m_segments.Trim();
    m_out.m_hasExtents = m_any;
    if (m_any) {
      for (int i = 0; i < 3; ++i) {
        m_out.m_extents.min[i] = m_min[i];
        m_out.m_extents.max[i] = m_max[i];
      }
    }
    m_out.m_kinds.clear();
    for (const auto& kind : m_kinds)
      m_out.m_kinds.push_back(KindCount{KCString(kind.first), kind.second});
  }

  KCC_NcToolPath& m_out;
  KCC_NcFile& m_file;
  std::vector<Frame> m_stack;
  bool m_stopped = false;
  std::uint32_t m_program = 0;
  std::int32_t m_line = 0;
  Block m_block;
  std::vector<std::string> m_blockKinds;

  double m_pos[3] = {0.0, 0.0, 0.0};
  int m_motion = 0;
  bool m_absolute = true;
  bool m_inch = false;
  int m_plane = 0;
  bool m_returnInitial = true;
  bool m_centreAbsolute = false;
  bool m_polar = false;
  double m_polarRadius = 0.0;
  double m_polarAngle = 0.0;
  double m_feed = 0.0;
  std::uint32_t m_tool = 0;
  std::uint32_t m_pendingTool = 0;
  bool m_sawToolChange = false;
  bool m_warnedNoFeed = false;
  int m_cycle = 0;
  double m_initialLevel = 0.0;
  bool m_hasCycleR = false;
  double m_cycleR = 0.0;
  bool m_cycleRIncremental = false;
  bool m_hasCycleDepth = false;
  double m_cycleDepth = 0.0;
  bool m_cycleDepthIncremental = false;
  double m_cycleDwell = 0.0;

  ParamTable m_hash;
  ParamTable m_r;
  std::map<std::string, std::uint64_t> m_kinds;
  std::unordered_map<const KCC_NcFileProgram*, std::uint32_t> m_programIndex;
  std::map<std::string, std::pair<std::unique_ptr<KCC_NcFile>, const KCC_NcFileProgram*>> m_folderFiles;

  bool m_any = false;
  double m_min[3] = {0.0, 0.0, 0.0};
  double m_max[3] = {0.0, 0.0, 0.0};
};

static_assert(sizeof(KCC_NcToolPath::Segment) <= 64, "a segment must stay within 64 bytes");

// --- SegmentList -------------------------------------------------------------------------------------------

static_assert(std::is_trivially_copyable<KCC_NcToolPath::Segment>::value,
              "segments are moved by realloc and copied by memcpy");

KCC_NcToolPath::SegmentList::SegmentList(const SegmentList& other) {
  Reserve(other.m_size);
  if (other.m_size > 0)
    std::memcpy(m_data, other.m_data, other.m_size * sizeof(Segment));
  m_size = other.m_size;
}

KCC_NcToolPath::SegmentList& KCC_NcToolPath::SegmentList::operator=(const SegmentList& other) {
  if (this != &other) {
    SegmentList copy(other);
    std::swap(m_data, copy.m_data);
    std::swap(m_size, copy.m_size);
    std::swap(m_capacity, copy.m_capacity);
  }
  return *this;
}

KCC_NcToolPath::SegmentList::~SegmentList() {
  Release();
}

void KCC_NcToolPath::SegmentList::Reserve(std::size_t count) {
  if (count <= m_capacity)
    return;
  if (count > std::numeric_limits<std::size_t>::max() / sizeof(Segment))
    throw std::bad_alloc();
  void* grown = std::realloc(m_data, count * sizeof(Segment));
  if (grown == nullptr)
    throw std::bad_alloc();
  m_data = static_cast<Segment*>(grown);
  m_capacity = count;
  ncappkit_detail::AdviseLargePages(m_data, count * sizeof(Segment));
}

void KCC_NcToolPath::SegmentList::Grow() {
  Reserve(m_capacity < 64 ? 64 : m_capacity + m_capacity / 2);
}

void KCC_NcToolPath::SegmentList::Trim() noexcept {
  if (m_size == m_capacity)
    return;
  if (m_size == 0) {
    Release();
    return;
  }
  // Shrinking keeps the block where it is; should realloc still fail, the larger block is kept.
  void* trimmed = std::realloc(m_data, m_size * sizeof(Segment));
  if (trimmed != nullptr) {
    m_data = static_cast<Segment*>(trimmed);
    m_capacity = m_size;
  }
}

void KCC_NcToolPath::SegmentList::Release() noexcept {
  std::free(m_data);
  m_data = nullptr;
  m_size = 0;
  m_capacity = 0;
}

// --- KCC_NcToolPath ----------------------------------------------------------------------------------------

KCC_NcToolPath::KCC_NcToolPath() = default;
KCC_NcToolPath::KCC_NcToolPath(const KCC_NcToolPath& other) = default;
KCC_NcToolPath& KCC_NcToolPath::operator=(const KCC_NcToolPath& other) = default;
KCC_NcToolPath::~KCC_NcToolPath() = default;

void KCC_NcToolPath::SetSubProgramFolder(const KCString& folder) {
  m_folder = folder;
}
KCString KCC_NcToolPath::GetSubProgramFolder() const {
  return m_folder;
}
void KCC_NcToolPath::SetRapidRate(double mmPerMinute) {
  if (mmPerMinute > 0.0 && std::isfinite(mmPerMinute))
    m_rapidRate = mmPerMinute;
}
double KCC_NcToolPath::GetRapidRate() const {
  return m_rapidRate;
}
void KCC_NcToolPath::SetMaxSegments(std::size_t count) {
  m_maxSegments = std::max<std::size_t>(count, 1);
}
std::size_t KCC_NcToolPath::GetMaxSegments() const {
  return m_maxSegments;
}
void KCC_NcToolPath::SetMaxBlocks(std::uint64_t count) {
  m_maxBlocks = std::max<std::uint64_t>(count, 1);
}
std::uint64_t KCC_NcToolPath::GetMaxBlocks() const {
  return m_maxBlocks;
}
void KCC_NcToolPath::SetMaxCallDepth(int depth) {
  m_maxCallDepth = std::max(depth, 0);
}
int KCC_NcToolPath::GetMaxCallDepth() const {
  return m_maxCallDepth;
}
void KCC_NcToolPath::SetReadAhead(bool on) {
  m_readAhead = on;
}
bool KCC_NcToolPath::GetReadAhead() const {
  return m_readAhead;
}

void KCC_NcToolPath::SetSkipDeletableBlocks(bool skip) {
  m_skipDeletable = skip;
}
bool KCC_NcToolPath::GetSkipDeletableBlocks() const {
  return m_skipDeletable;
}
void KCC_NcToolPath::SetStartPoint(double x, double y, double z) {
  m_startPoint[0] = x;
  m_startPoint[1] = y;
  m_startPoint[2] = z;
}

bool KCC_NcToolPath::Interpret(KCC_NcFile& file, const KCC_NcFileProgram& program) {
  Clear();
  Run run(*this, file);
  run.Execute(program);
  return m_complete;
}

void KCC_NcToolPath::Clear() {
  m_segments.Release();
  m_programNumbers.clear();
  m_programNames.clear();
  m_hasExtents = false;
  m_extents = Extents();
  m_rapidLength = 0.0;
  m_feedLength = 0.0;
  m_runTime = 0.0;
  m_blocks = 0;
  m_complete = true;
  m_stopReason = KCString();
  m_warnings.clear();
  m_warningCount = 0;
  m_notInterpreted.clear();
  m_notInterpretedCount = 0;
  m_kinds.clear();
}

const KCC_NcToolPath::SegmentList& KCC_NcToolPath::GetSegments() const {
  return m_segments;
}
std::size_t KCC_NcToolPath::GetSegmentCount() const {
  return m_segments.size();
}
std::size_t KCC_NcToolPath::GetProgramCount() const {
  return m_programNumbers.size();
}
int KCC_NcToolPath::GetProgramNumber(std::size_t index) const {
  return index < m_programNumbers.size() ? m_programNumbers[index] : -1;
}
KCString KCC_NcToolPath::GetProgramName(std::size_t index) const {
  return index < m_programNames.size() ? m_programNames[index] : KCString();
}
bool KCC_NcToolPath::GetExtents(Extents& extents) const {
  if (!m_hasExtents)
    return false;
  extents = m_extents;
  return true;
}
double KCC_NcToolPath::GetRapidLength() const {
  return m_rapidLength;
}
double KCC_NcToolPath::GetFeedLength() const {
  return m_feedLength;
}
double KCC_NcToolPath::GetRunTime() const {
  return m_runTime;
}
std::uint64_t KCC_NcToolPath::GetBlockCount() const {
  return m_blocks;
}
bool KCC_NcToolPath::IsComplete() const {
  return m_complete;
}
KCString KCC_NcToolPath::GetStopReason() const {
  return m_stopReason;
}
const std::vector<KCC_NcToolPath::Note>& KCC_NcToolPath::GetWarnings() const {
  return m_warnings;
}
std::uint64_t KCC_NcToolPath::GetWarningCount() const {
  return m_warningCount;
}
const std::vector<KCC_NcToolPath::Note>& KCC_NcToolPath::GetNotInterpreted() const {
  return m_notInterpreted;
}
std::uint64_t KCC_NcToolPath::GetNotInterpretedCount() const {
  return m_notInterpretedCount;
}
const std::vector<KCC_NcToolPath::KindCount>& KCC_NcToolPath::GetNotInterpretedKinds() const {
  return m_kinds;
}

const char* KCC_NcToolPath::GetKindName(int kind) {
  switch (kind) {
    case kRapid:
      return "rapid";
    case kFeed:
      return "feed";
    case kArcCW:
      return "cw";
    case kArcCCW:
      return "ccw";
    case kHole:
      return "hole";
    default:
      return "?";
  }
}

// The class constants have definitions in the library as well, so that a client of the Windows DLL that binds
// them to a reference finds them there.
constexpr std::size_t KCC_NcToolPath::kDefaultMaxSegments;
constexpr std::uint64_t KCC_NcToolPath::kDefaultMaxBlocks;
constexpr int KCC_NcToolPath::kDefaultMaxCallDepth;
constexpr double KCC_NcToolPath::kDefaultRapidRate;
constexpr std::size_t KCC_NcToolPath::kMaxKeptNotes;
