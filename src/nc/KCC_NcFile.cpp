// SPDX-License-Identifier: MIT
// KCC_NcFile: splitting NC text into programs, reading NC files line by line and saving them.
#include "ncappkit/nc/KCC_NcFile.h"

#include "foundation/KCCharClass.h"
#include "nc/NcTextScan.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "foundation/KCPlatformDetail.h"
#include "foundation/KCReplaceFile.h"
#include "ncappkit/foundation/KCFileMan.h"
#include "ncappkit/foundation/KCPlatform.h"

namespace {

constexpr int kFanucStructure = 0;
constexpr int kSiemensStructure = 1;

// Lines a load may consume: the budget is decremented before each line and reading stops when it drops
// below 1, so at most kLineBudget - 1 = KCC_NcFile::kMaxLines lines are processed.
constexpr int kLineBudget = KCC_NcFile::kMaxLines + 1;

// The file reader's line buffer holds kMaxLineLength characters and the terminating NUL.
constexpr std::size_t kMaxLineLength = static_cast<std::size_t>(KCC_NcFile::kMaxLineLength);

using ncappkit_detail::EndCodeScan;
using ncappkit_detail::FindLineFeed;
using ncappkit_detail::IsBlank;
using ncappkit_detail::IsDigit;
using ncappkit_detail::kLineFeedScanPadding;
using ncappkit_detail::ScanEndCode;

// Length of the text as a C string would see it (up to the first NUL).
inline std::size_t CLength(const char* p, std::size_t n) {
  const void* nul = std::memchr(p, '\0', n);
  return nul == nullptr ? n : static_cast<std::size_t>(static_cast<const char*>(nul) - p);
}

// Program-number line on a text of known length: ':' or 'O' (after leading blanks), optional blanks, then
// digits. When the text holds both '(' and ')', [refBegin, refBegin + refLength) is set to the text between
// the first of each and hasRef becomes true.
bool ParseNumberLine(const char* p, std::size_t n, int& number, std::size_t& refBegin, std::size_t& refLength,
                     bool& hasRef) {
  std::size_t i = 0;
  while (i < n && IsBlank(p[i]))
    ++i;
  if (n - i < 2)
    return false;
  if (p[i] != ':' && p[i] != 'O')
    return false;
  ++i;
  while (i < n && IsBlank(p[i]))
    ++i;
  if (i >= n || !IsDigit(p[i]))
    return false;
  std::uint32_t value = 0;
  for (; i < n && IsDigit(p[i]); ++i)
    value = value * 10u + static_cast<std::uint32_t>(p[i] - '0');
  number = static_cast<int>(value);

  const void* open = std::memchr(p, '(', n);
  const void* close = std::memchr(p, ')', n);
  hasRef = open != nullptr && close != nullptr;
  if (hasRef) {
    const std::size_t o = static_cast<std::size_t>(static_cast<const char*>(open) - p);
    const std::size_t c = static_cast<std::size_t>(static_cast<const char*>(close) - p);
    refBegin = o + 1;
    refLength = c > o ? c - o - 1 : 0;
  }
  return true;
}

// First-block test on a C-string text of length n: -1 none, else the structure it marks. M98 and P8010 are
// looked for outside round brackets at positions that leave room for five characters (i + 5 <= n).
// `mayHoldM` false says the text holds no 'M', so no M98 either.
int FirstBlockKind(const char* p, std::size_t n, bool mayHoldM = true) {
  if (n < 8)
    return -1;
  const std::size_t limit = n - 4;
  auto holds = [&](const char* code, std::size_t length) {
    return ncappkit_detail::ForEachOutsideComments(
        p, n, limit, code[0], [&](std::size_t k) { return std::memcmp(p + k, code, length) == 0; });
  };
  if (mayHoldM && holds("M98", 3) && holds("P8010", 5))
    return kFanucStructure;
  if (n < 14)
    return -1;
  if (std::memcmp(p, "N50FIRST_BLOCK", 14) == 0)
    return kSiemensStructure;
  if (n >= 15 && std::memcmp(p, "N50 FIRST_BLOCK", 15) == 0)
    return kSiemensStructure;
  return -1;
}

// The codes that end a program in a file: M30, M99 and RET at the start of a line.
constexpr unsigned kFileEndCodes =
    ncappkit_detail::kEndM30 | ncappkit_detail::kEndM99 | ncappkit_detail::kEndRET;

// End-of-program test on a C-string text of length n. The flags tell which code ended the scan; when none
// did they describe the last position compared (all false, but RET found there, after the line start),
// and stay as they were when no position was compared.
bool EndCommand(const char* p, std::size_t n, bool& isM30, bool& isM99, bool& isRET) {
  return ncappkit_detail::ReportEndCode(ScanEndCode(p, n, kFileEndCodes), isM30, isM99, &isRET);
}

// Reads a file through a large block buffer and hands out its lines as a reader with a 128-character line
// buffer would see them: a line ends at LF (a CR right before it is part of the line end); a line longer
// than 127 characters gives its first 127 characters and puts the reader into a failed state, after which
// every read gives an empty line and the end is never reached. The line handed out ends at its first NUL.
// Without the line limit the buffer grows to hold a line of any length and the reader never fails.
//
// A line handed out points into the buffer and stays valid until the buffer is refilled; Next calls
// `beforeRefill()` first, so that the caller can copy what it still holds.
class BufferedLineReader {
 public:
  BufferedLineReader(std::FILE* file, bool lineLimit)
      : m_file(file), m_lineLimit(lineLimit), m_buffer(kBlockSize + kLineFeedScanPadding) {}

  // The next line in [p, p + n); false at the end of the file. `mayHoldM` tells whether the line may hold an
  // 'M' (false: it certainly holds none).
  template <class BeforeRefill>
  bool Next(const char*& p, std::size_t& n, bool& mayHoldM, BeforeRefill&& beforeRefill) {
    if (m_failed) {
      p = m_buffer.data();
      n = 0;
      mayHoldM = false;
      return true;
    }
    ++m_lineNumber;
    for (;;) {
      const char* begin = m_buffer.data() + m_pos;
      const std::size_t available = m_end - m_pos;
      const std::size_t lf = FindLineFeed(begin, m_scanned, available, m_sawM);
      if (lf < available) {
        std::size_t length = lf;
        m_pos += length + 1;
        m_scanned = 0;
        if (length > 0 && begin[length - 1] == '\r')
          --length;
        mayHoldM = m_sawM;
        m_sawM = false;
        return Hand(begin, length, p, n);
      }
      // No line end yet. The bytes scanned so far stay scanned, and m_sawM keeps what they held, across
      // a refill; a line handed out without a line end (the rest of the file, or a line cut short) is
      // taken as holding an 'M': not worth a closer look.
      m_scanned = available;
      if (m_atEof) {
        if (available == 0)
          return false;
        m_pos = m_end;
        m_scanned = 0;
        mayHoldM = true;
        m_sawM = false;
        return Hand(begin, available, p, n);
      }
      if (m_lineLimit && available > kMaxLineLength + 1) {
        // No line end within reach: this line is too long whatever follows.
        mayHoldM = true;
        m_sawM = false;
        return Hand(begin, available, p, n);
      }
      beforeRefill();
      Refill();
    }
  }

  // 1-based number of the line that put the reader into its failed state; 0 while it has not failed.
  int FailedLine() const { return m_failed ? m_lineNumber : 0; }

 private:
  static constexpr std::size_t kBlockSize = std::size_t{1} << 20;

  bool Hand(const char* begin, std::size_t length, const char*& p, std::size_t& n) {
    if (m_lineLimit && length > kMaxLineLength) {
      m_failed = true;
      length = kMaxLineLength;
    }
    p = begin;
    // Most blocks hold no NUL at all: the line is only searched for one when the block's next NUL lies
    // within it.
    const std::size_t offset = static_cast<std::size_t>(begin - m_buffer.data());
    if (m_nextNul < offset)
      FindNextNul(offset);
    n = m_nextNul < offset + length ? m_nextNul - offset : length;
    return true;
  }

  void FindNextNul(std::size_t from) {
    const void* nul = std::memchr(m_buffer.data() + from, '\0', m_end - from);
    m_nextNul =
        nul == nullptr ? m_end : static_cast<std::size_t>(static_cast<const char*>(nul) - m_buffer.data());
  }

  // Moves the unread rest to the front and reads more behind it; a buffer that the rest fills completely
  // (a line longer than the buffer, read without the line limit) is doubled first.
  void Refill() {
    const std::size_t keep = m_end - m_pos;
    if (keep > 0 && m_pos > 0)
      std::memmove(m_buffer.data(), m_buffer.data() + m_pos, keep);
    m_pos = 0;
    m_end = keep;
    // The text may fill all but the padding that FindLineFeed reads past its end.
    if (m_end + kLineFeedScanPadding == m_buffer.size())
      m_buffer.resize(m_buffer.size() * 2);
    const std::size_t room = m_buffer.size() - kLineFeedScanPadding - m_end;
    const std::size_t got = std::fread(m_buffer.data() + m_end, 1, room, m_file);
    m_end += got;
    if (got == 0)
      m_atEof = true;  // end of file or read error: either way nothing more comes
    FindNextNul(0);
  }

  std::FILE* m_file;
  const bool m_lineLimit;
  std::vector<char> m_buffer;
  std::size_t m_pos = 0;
  std::size_t m_end = 0;
  std::size_t m_scanned = 0;  // bytes after m_pos already known to hold no LF
  bool m_sawM = false;        // those bytes hold an 'M'
  std::size_t m_nextNul = 0;  // offset of the first NUL at or after the last line handed out; m_end if none
  int m_lineNumber = 0;
  bool m_atEof = false;
  bool m_failed = false;
};

struct FileCloser {
  void operator()(std::FILE* f) const {
    if (f != nullptr)
      std::fclose(f);
  }
};
using FilePtr = std::unique_ptr<std::FILE, FileCloser>;

}  // namespace

// The splitting state of one load. Lines are fed in order; Finish files the last program and sets the
// error code.
class KCC_NcFile::Loader {
 public:
  Loader(KCC_NcFile& file, bool checkFirstBlock, bool keepUnfinished)
      : m_file(file), m_checkFirstBlock(checkFirstBlock), m_keepUnfinished(keepUnfinished) {
    m_file.m_errorCode = kNoError;
    m_file.m_mainPrograms.ClearWithContents();
    m_file.m_subPrograms.ClearWithContents();
    m_current.reset(new KCC_NcFileProgram());
  }

  // Process one line; false when the line budget ran out (the line was not processed and reading must stop).
  // The line's text must stay valid until Flush (file lines: until the reader refills its buffer).
  // `mayHoldNul`: the text may hold a NUL, at which the scans stop (the stored line keeps all of it).
  // `mayHoldM`: the text may hold an 'M'; a line without one holds no M30, M99 or M98, so its program-end and
  // Fanuc first-block scans are skipped.
  bool Line(const char* p, std::size_t n, bool mayHoldNul, bool mayHoldM) {
    if (--m_budget < 1) {
      m_budgetRanOut = true;
      return false;
    }
    // Line ends at the very start of the line count as blanks; then the leading blanks go.
    std::size_t skip = 0;
    while (skip < n && (p[skip] == '\r' || p[skip] == '\n'))
      ++skip;
    while (skip < n && IsBlank(p[skip]))
      ++skip;
    p += skip;
    n -= skip;

    int number = 0;
    std::size_t refBegin = 0;
    std::size_t refLength = 0;
    bool hasRef = false;
    if (n >= 2 && (p[0] == ':' || p[0] == 'O') &&
        ParseNumberLine(p, n, number, refBegin, refLength, hasRef)) {
      if (m_pendingSub) {
        Store(m_file.m_subPrograms);
        StartNewProgram();
        m_pendingSub = false;
      }
      m_current->SetProgramNumber(number);
      if (hasRef)
        m_current->SetProgramRef(KCString(p + refBegin, refLength));
    }

    if (n == 0 || p[0] != '%') {
      // Two plain stores: a push_back of the pair went through the stack and stalled on it.
      Span& span = m_lines[m_lineCount++];
      span.p = p;
      span.n = n;
      if (m_lineCount == kMaxPendingLines)
        Flush();
    }

    const std::size_t cLength = mayHoldNul ? CLength(p, n) : n;
    if (m_checkFirstBlock && !m_firstBlockFound) {
      const int kind = FirstBlockKind(p, cLength, mayHoldM);
      if (kind >= 0) {
        m_file.m_structure = kind;
        m_firstBlockFound = true;
      }
    }

    if (!mayHoldM && (cLength < 3 || std::memcmp(p, "RET", 3) != 0))
      return true;
    const EndCodeScan scan = ScanEndCode(p, cLength, kFileEndCodes);
    if (scan.code == ncappkit_detail::kEndNone)
      return true;
    if (scan.code == ncappkit_detail::kEndM30 || (m_checkFirstBlock && m_firstBlockFound)) {
      Store(m_file.m_mainPrograms);
      StartNewProgram();
    } else {
      m_pendingSub = true;
    }
    return true;
  }

  // Copies the lines gathered since the last flush into the current program. The first flush of a program
  // reserves exactly their number (most programs end before a refill, so their list holds no spare room);
  // a program that spans several flushes grows its list geometrically, not by an exact reservation each
  // time, which would copy the whole list again at every refill.
  void Flush() {
    if (m_lineCount == 0)
      return;
    KCStringList& list = m_current->GetStringList();
    if (list.empty())
      list.reserve(m_lineCount);
    for (std::size_t i = 0; i < m_lineCount; ++i)
      list.emplace_back(std::string(m_lines[i].p, m_lines[i].n));
    m_lineCount = 0;
  }

  KCC_NcFileProgram* Finish() {
    if (m_pendingSub || m_keepUnfinished) {
      Store(m_file.m_subPrograms);
    } else {
      m_lineCount = 0;
      m_current.reset();
    }
    if (m_budgetRanOut) {
      m_file.m_errorCode = kTooManyLinesError;
      return nullptr;
    }
    if (m_lastStored == nullptr) {
      m_file.m_errorCode = kNoNcStructureError;
      return nullptr;
    }
    return m_lastStored;
  }

  bool BudgetRanOut() const { return m_budgetRanOut; }

 private:
  void Store(KCC_NcFileProgramList& list) {
    Flush();
    m_lastStored = m_current.release();
    list.AddProgram(m_lastStored);
  }

  // A new current program starts without a first block. The pending state is left alone: only a
  // program-number line ends it, so after "M99 ... M30" the fresh program is filed as a sub-program.
  void StartNewProgram() {
    m_current.reset(new KCC_NcFileProgram());
    m_firstBlockFound = false;
  }

  // A line of the current program not yet copied into its list.
  struct Span {
    const char* p;
    std::size_t n;
  };
  // Lines gathered before a flush at the latest: bounds the gathering list when a text holds no program end.
  static constexpr std::size_t kMaxPendingLines = std::size_t{1} << 16;

  KCC_NcFile& m_file;
  const bool m_checkFirstBlock;
  const bool m_keepUnfinished;
  std::unique_ptr<KCC_NcFileProgram> m_current;
  KCC_NcFileProgram* m_lastStored = nullptr;
  int m_budget = kLineBudget;
  bool m_budgetRanOut = false;
  bool m_firstBlockFound = false;
  bool m_pendingSub = false;
  // Room for kMaxPendingLines spans, left uninitialised: only the pages that a load fills are touched.
  std::unique_ptr<Span[]> m_lines{new Span[kMaxPendingLines]};
  std::size_t m_lineCount = 0;
};

KCC_NcFile::KCC_NcFile() = default;
KCC_NcFile::KCC_NcFile(const KCC_NcFile& other) = default;
KCC_NcFile& KCC_NcFile::operator=(const KCC_NcFile& other) = default;

KCC_NcFile::KCC_NcFile(KCC_NcFile&& other) noexcept
    : m_mainPrograms(std::move(other.m_mainPrograms)),
      m_subPrograms(std::move(other.m_subPrograms)),
      m_loadedFromFileId(std::move(other.m_loadedFromFileId)),
      m_errorCode(other.m_errorCode),
      m_structure(other.m_structure),
      m_tooLongLine(other.m_tooLongLine) {
  other.ResetToNew();
}

KCC_NcFile& KCC_NcFile::operator=(KCC_NcFile&& other) noexcept {
  if (this == &other)
    return *this;
  m_mainPrograms = std::move(other.m_mainPrograms);
  m_subPrograms = std::move(other.m_subPrograms);
  m_loadedFromFileId = std::move(other.m_loadedFromFileId);
  m_errorCode = other.m_errorCode;
  m_structure = other.m_structure;
  m_tooLongLine = other.m_tooLongLine;
  other.ResetToNew();
  return *this;
}

// The state of a new file, for a moved-from one (its lists are already empty).
void KCC_NcFile::ResetToNew() noexcept {
  m_loadedFromFileId = KCString();
  m_errorCode = kNoError;
  m_structure = kFanucStructure;
  m_tooLongLine = 0;
}

KCC_NcFile KCC_NcFile::Clone() const {
  KCC_NcFile copy;
  copy.m_mainPrograms = m_mainPrograms.Clone();
  copy.m_subPrograms = m_subPrograms.Clone();
  copy.m_loadedFromFileId = m_loadedFromFileId;
  copy.m_errorCode = m_errorCode;
  copy.m_structure = m_structure;
  copy.m_tooLongLine = m_tooLongLine;
  return copy;
}
KCC_NcFile::~KCC_NcFile() = default;

KCC_NcFileProgram* KCC_NcFile::LoadFromStringList(const KCStringList& text, bool checkFirstBlock,
                                                  bool keepUnfinished) {
  m_tooLongLine = 0;
  Loader loader(*this, checkFirstBlock, keepUnfinished);
  for (const KCString& line : text) {
    if (!loader.Line(line.str().data(), line.size(), true, true))
      break;
  }
  return loader.Finish();
}

KCC_NcFileProgram* KCC_NcFile::LoadFromFile(const KCString& fileName, bool checkFirstBlock,
                                            bool keepUnfinished) {
  return LoadFile(fileName, checkFirstBlock, keepUnfinished, true);
}

KCC_NcFileProgram* KCC_NcFile::LoadFromFileWithoutLineLimit(const KCString& fileName, bool checkFirstBlock,
                                                            bool keepUnfinished) {
  return LoadFile(fileName, checkFirstBlock, keepUnfinished, false);
}

KCC_NcFileProgram* KCC_NcFile::LoadFile(const KCString& fileName, bool checkFirstBlock, bool keepUnfinished,
                                        bool lineLimit) {
  m_tooLongLine = 0;
  if (fileName.IsEmpty()) {
    m_errorCode = kNoFileNameError;
    return nullptr;
  }
  if (!KCFileMan::FileExists(fileName)) {
    m_errorCode = kFileNotFoundError;
    return nullptr;
  }
  FilePtr file(std::fopen(fileName.c_str(), "rb"));
  if (!file) {
    m_errorCode = kFileOpenError;
    return nullptr;
  }
  Loader loader(*this, checkFirstBlock, keepUnfinished);
  BufferedLineReader reader(file.get(), lineLimit);
  const char* p = nullptr;
  std::size_t n = 0;
  bool mayHoldM = true;
  while (reader.Next(p, n, mayHoldM, [&loader] { loader.Flush(); })) {
    if (!loader.Line(p, n, false, mayHoldM))
      break;
  }
  file.reset();
  KCC_NcFileProgram* result = loader.Finish();
  // A too-long line that comes after the line budget ran out is not what ended the load.
  const int failedLine = reader.FailedLine();
  m_tooLongLine = failedLine <= kMaxLines ? failedLine : 0;
  if (!loader.BudgetRanOut())
    m_loadedFromFileId = fileName;
  return result;
}

int KCC_NcFile::GetTooLongLineNumber() const {
  return m_tooLongLine;
}

std::string KCC_NcFile::GetProgramsText(const std::vector<const KCC_NcFileProgram*>& programs,
                                        const KCString& lineEnd) {
  std::size_t total = 2 * (1 + lineEnd.size());
  for (const KCC_NcFileProgram* program : programs) {
    if (program != nullptr) {
      for (const KCString& line : program->GetStringList())
        total += line.size() + lineEnd.size();
    }
  }
  std::string text;
  text.reserve(total);
  auto writeLine = [&](const std::string& line) {
    text.append(line);
    text.append(lineEnd.str());
  };
  bool wroteAny = false;
  bool lastWasPercent = false;
  for (const KCC_NcFileProgram* program : programs) {
    if (program == nullptr)
      continue;
    const KCStringList& lines = program->GetStringList();
    if (!wroteAny && (lines.empty() || lines.front() != "%")) {
      writeLine("%");
      lastWasPercent = true;
    }
    wroteAny = true;
    for (const KCString& line : lines) {
      writeLine(line.str());
      lastWasPercent = line == "%";
    }
  }
  if (wroteAny && !lastWasPercent)
    writeLine("%");
  return text;
}

bool KCC_NcFile::SaveToFile(const KCString& fileName) {
  std::vector<const KCC_NcFileProgram*> programs;
  programs.reserve(static_cast<std::size_t>(GetNumberOfMainPrograms() + GetNumberOfSubPrograms()));
  for (const KCC_NcFileProgramList* list : {&m_mainPrograms, &m_subPrograms}) {
    for (int i = 0; i < list->GetNumberOfPrograms(); ++i)
      programs.push_back(list->GetProgram(i));
  }
  return SaveProgramsToFile(fileName, programs);
}

bool KCC_NcFile::SaveProgramsToFile(const KCString& fileName,
                                    const std::vector<const KCC_NcFileProgram*>& programs) {
  if (fileName.IsEmpty())
    return false;
  // A file marked read-only is never written, even where opening it for writing would succeed (on Windows
  // the attribute may only mirror permissions that an administrator overrides).
  if (ncappkit_detail::HasReadOnlyAttribute(fileName.str()))
    return false;
  // The target must be open for writing, as a plain truncating save needs it: a read-only file, a directory
  // or a missing folder fails here, before anything is written. Opening for appending tests that without
  // cutting the old text short (a missing file is created, as the save would create it).
  {
    FilePtr probe(std::fopen(fileName.c_str(), "ab"));
    if (!probe)
      return false;
  }
  const std::string text = GetProgramsText(programs, KCC_GetTextLineEnd());

  // The new text goes to a file beside the target that then replaces it, so a save that fails half way
  // (disk full, lost network share) leaves the old program file as it was. A symbolic link is followed, so
  // the file it names is replaced and the link stays.
  std::string target = fileName.str();
  std::error_code ec;
  if (std::filesystem::is_symlink(target, ec)) {
    const std::filesystem::path resolved = std::filesystem::canonical(target, ec);
    if (!ec)
      target = resolved.string();
  }
  if (ncappkit_detail::ReplaceFileContents(target, text))
    return true;

  // No file can be made beside the target (a folder where only the target itself is writable): write the
  // target in place.
  FilePtr out(std::fopen(fileName.c_str(), "wb"));
  if (!out)
    return false;
  bool ok = std::fwrite(text.data(), 1, text.size(), out.get()) == text.size();
  if (std::fclose(out.release()) != 0)
    ok = false;
  return ok;
}

KCString KCC_NcFile::GetErrorName(int errorCode) {
  switch (errorCode) {
    case kNoError:
      return "no error";
    case kNoFileNameError:
      return "no file name";
    case kFileNotFoundError:
      return "file not found";
    case kFileOpenError:
      return "file cannot be opened";
    case kTooManyLinesError:
      return "too many lines";
    case kNoNcStructureError:
      return "no NC structure";
    default:
      return "unknown error " + std::to_string(errorCode);
  }
}

bool KCC_NcFile::SaveToFile(const KCString& directory, const KCString& fileName) {
  return SaveToFile(directory & fileName);
}

KCC_NcFileProgramList& KCC_NcFile::GetMainProgList() {
  return m_mainPrograms;
}
KCC_NcFileProgramList& KCC_NcFile::GetSubProgList() {
  return m_subPrograms;
}
int KCC_NcFile::GetNumberOfMainPrograms() const {
  return m_mainPrograms.GetNumberOfPrograms();
}
int KCC_NcFile::GetNumberOfSubPrograms() const {
  return m_subPrograms.GetNumberOfPrograms();
}
bool KCC_NcFile::IsMainProgramsEmpty() const {
  return m_mainPrograms.IsEmpty();
}
bool KCC_NcFile::IsSubProgramsEmpty() const {
  return m_subPrograms.IsEmpty();
}

bool KCC_NcFile::RemoveProgramFromMainProgramList(int number) {
  return m_mainPrograms.RemoveProgramFromList(number);
}
bool KCC_NcFile::RemoveProgramFromSubProgramList(int number) {
  return m_subPrograms.RemoveProgramFromList(number);
}
void KCC_NcFile::ClearMainProgramsList() {
  m_mainPrograms.ClearWithContents();
}
void KCC_NcFile::ClearSubProgramsList() {
  m_subPrograms.ClearWithContents();
}
void KCC_NcFile::ClearAllPrograms() {
  m_mainPrograms.ClearWithContents();
  m_subPrograms.ClearWithContents();
}

void KCC_NcFile::ReInit() {
  m_loadedFromFileId = KCString();
  m_tooLongLine = 0;
  m_errorCode = kNoError;
  ClearAllPrograms();
}

KCString KCC_NcFile::GetLoadedFromFileId() const {
  return m_loadedFromFileId;
}

bool KCC_NcFile::CheckMultipleProgramNumbers() const {
  std::vector<int> numbers;
  for (const KCC_NcFileProgramList* list : {&m_mainPrograms, &m_subPrograms}) {
    for (int i = 0; i < list->GetNumberOfPrograms(); ++i) {
      if (const KCC_NcFileProgram* program = list->GetProgram(i))
        numbers.push_back(program->GetProgramNumber());
    }
  }
  std::sort(numbers.begin(), numbers.end());
  return std::adjacent_find(numbers.begin(), numbers.end()) != numbers.end();
}

bool KCC_NcFile::HasNoError() const {
  return m_errorCode == kNoError;
}
bool KCC_NcFile::HasNoFileNameError() const {
  return m_errorCode == kNoFileNameError;
}
bool KCC_NcFile::HasFileNotFoundError() const {
  return m_errorCode == kFileNotFoundError;
}
bool KCC_NcFile::HasFileOpenError() const {
  return m_errorCode == kFileOpenError;
}
bool KCC_NcFile::HasTooManyLinesError() const {
  return m_errorCode == kTooManyLinesError;
}
bool KCC_NcFile::HasFileWithoutNcStructureError() const {
  return m_errorCode == kNoNcStructureError;
}
int KCC_NcFile::GetErrorCode() const {
  return m_errorCode;
}

bool KCC_NcFile::IsFanucNcFileStructure() const {
  return m_structure == kFanucStructure;
}
bool KCC_NcFile::IsSiemensNcFileStructure() const {
  return m_structure == kSiemensStructure;
}

bool KCC_NcFile::ParseProgramNumberLine(const KCString& line, int& number, KCString& ref) {
  std::size_t refBegin = 0;
  std::size_t refLength = 0;
  bool hasRef = false;
  const std::string& text = line.str();
  if (!ParseNumberLine(text.data(), text.size(), number, refBegin, refLength, hasRef))
    return false;
  if (hasRef)
    ref = KCString(text.data() + refBegin, refLength);
  return true;
}

bool KCC_NcFile::Check_FirstBlock_Command(const char* line) {
  if (line == nullptr)
    return false;
  const int kind = FirstBlockKind(line, std::strlen(line));
  if (kind < 0)
    return false;
  m_structure = kind;
  return true;
}

bool KCC_NcFile::Check_M30_M99_RET_Command(const char* line, bool& isM30, bool& isM99, bool& isRET) {
  if (line == nullptr)
    return false;
  return EndCommand(line, std::strlen(line), isM30, isM99, isRET);
}

// Out-of-line definitions for clients that bind them to a reference through a DLL import (MinGW).
constexpr int KCC_NcFile::kMaxLineLength;
constexpr int KCC_NcFile::kMaxLines;
