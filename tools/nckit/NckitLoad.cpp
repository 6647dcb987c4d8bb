// SPDX-License-Identifier: MIT
// Loading the NC file of a subcommand and reporting how the load went.
#include "NckitLoad.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <system_error>

namespace fs = std::filesystem;

namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// M2 ends a program (ISO, Siemens), M17 a Siemens sub-program; M30 and M99 are the ends the loader takes
// when written exactly so, which a file without any end may hold in another spelling (m30, M030).
bool IsEndWordNumber(long number) {
  return number == 2 || number == 17 || number == 30 || number == 99;
}

// "A", "A and B", "A, B and C".
std::string JoinEndWords(const std::vector<NcEndWord>& words) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0)
      text += i + 1 == words.size() ? " and " : ", ";
    text += words[i].word + " (line " + std::to_string(words[i].line) + ")";
  }
  return text;
}

}  // namespace

std::optional<int> LoadNcFile(const NckitCommandLine& cl, const std::string& path,
                              const NcLoadOptions& options, NcLoadResult& result, std::ostream& err) {
  if (path.empty())
    return cl.UsageError("no file name given", err);
  std::error_code ec;
  const fs::file_status status = fs::status(path, ec);
  if (ec || !fs::exists(status)) {
    err << cl.Program() << ": " << path << ": no such file\n";
    return kNckitUsage;
  }
  if (fs::is_directory(status)) {
    err << cl.Program() << ": " << path << ": is a directory, not an NC file\n";
    return kNckitUsage;
  }
  // A device or a pipe may never end (/dev/zero) or block the reader, so only regular files are read.
  if (!fs::is_regular_file(status)) {
    err << cl.Program() << ": " << path << ": not a regular file (a device, pipe or socket)\n";
    return kNckitUsage;
  }

  result.file = std::make_unique<KCC_NcFile>();
  if (options.noLineLimit)
    result.file->LoadFromFileWithoutLineLimit(path, options.checkFirstBlock, options.keepUnfinished);
  else
    result.file->LoadFromFile(path, options.checkFirstBlock, options.keepUnfinished);
  result.errorCode = result.file->GetErrorCode();
  result.longLine = result.file->GetTooLongLineNumber();
  if (const long long line = FindLoneCarriageReturn(path); line > 0) {
    err << cl.Program() << ": " << path << ": warning: line " << line
        << " has a carriage return inside it; lines ended by a carriage return alone are read as one line\n";
  }
  return std::nullopt;
}

std::optional<int> LoadNcFileWithoutError(const NckitCommandLine& cl, const std::string& path,
                                          const NcLoadOptions& options, NcLoadResult& result,
                                          std::ostream& err) {
  if (const auto stop = LoadNcFile(cl, path, options, result, err))
    return stop;
  if (result.errorCode != KCC_NcFile::kNoError) {
    ReportLoadError(cl, path, result, err);
    return kNckitProblem;
  }
  return std::nullopt;
}

void ReportLoadError(const NckitCommandLine& cl, const std::string& path, const NcLoadResult& result,
                     std::ostream& err) {
  err << cl.Program() << ": " << path << ": " << KCC_NcFile::GetErrorName(result.errorCode);
  switch (result.errorCode) {
    case KCC_NcFile::kTooManyLinesError:
      if (result.longLine > 0) {
        err << ": line " << result.longLine << " is longer than the reader's " << KCC_NcFile::kMaxLineLength
            << " characters; use --no-line-limit to read long lines";
      } else {
        err << ": more than " << KCC_NcFile::kMaxLines << " lines";
      }
      break;
    case KCC_NcFile::kNoNcStructureError: {
      err << ": no program ends with M30, M99 or RET";
      const std::vector<NcEndWord> words = FindEndWords(path);
      if (!words.empty())
        err << "; the file has " << JoinEndWords(words)
            << ", which the loader does not take for a program end";
      err << "; --keep-unfinished loads the text as a sub-program";
      break;
    }
    case KCC_NcFile::kFileOpenError:
      err << ": permission denied or not readable";
      break;
    default:
      break;
  }
  err << '\n';
}

long long FindLoneCarriageReturn(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr)
    return 0;
  std::vector<char> buffer(1 << 16);
  long long line = 1;
  bool text = false;            // the line has a character other than a carriage return so far
  bool carriageReturn = false;  // the last byte was a carriage return that follows such a character
  long long found = 0;
  std::size_t got = 0;
  while (found == 0 && (got = std::fread(buffer.data(), 1, buffer.size(), file)) > 0) {
    for (std::size_t i = 0; i < got && found == 0; ++i) {
      const char c = buffer[i];
      if (carriageReturn && c != '\n' && c != '\r')
        found = line;
      if (c == '\n') {
        ++line;
        text = false;
        carriageReturn = false;
      } else if (c == '\r') {
        carriageReturn = carriageReturn || text;
      } else {
        text = true;
        carriageReturn = false;
      }
    }
  }
  std::fclose(file);
  return found;
}

std::vector<NcEndWord> FindEndWords(const std::string& path) {
  std::vector<NcEndWord> words;
  std::ifstream in(path, std::ios::binary);
  std::string line;
  long long number = 0;
  while (std::getline(in, line)) {
    ++number;
    bool comment = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
      const char c = line[i];
      if (c == '(' || c == ')') {
        comment = c == '(';
        continue;
      }
      // An M word starts a word: "PROGRAM17" holds none.
      if (comment || (c != 'M' && c != 'm') || (i > 0 && IsLetter(line[i - 1])))
        continue;
      std::size_t end = i + 1;
      long value = 0;
      while (end < line.size() && IsDigit(line[end]) && value < 1000) {
        value = value * 10 + (line[end] - '0');
        ++end;
      }
      if (end == i + 1 || (end < line.size() && IsDigit(line[end])) || !IsEndWordNumber(value))
        continue;
      const std::string word = line.substr(i, end - i);
      bool known = false;
      for (const NcEndWord& w : words)
        known = known || w.word == word;
      if (!known)
        words.push_back({word, number});
      i = end - 1;
    }
  }
  return words;
}

std::vector<KCC_NcFileProgram*> AllPrograms(KCC_NcFile& file) {
  std::vector<KCC_NcFileProgram*> programs;
  for (const KCC_NcFileProgramList* list : {&file.GetMainProgList(), &file.GetSubProgList()}) {
    for (KCC_NcFileProgram* p : *list) {
      if (p != nullptr)
        programs.push_back(p);
    }
  }
  return programs;
}

std::string ProgramNumberText(int number) {
  if (number < 0)
    return "-";
  std::string digits = std::to_string(number);
  if (digits.size() < 4)
    digits.insert(0, 4 - digits.size(), '0');
  return digits;
}
