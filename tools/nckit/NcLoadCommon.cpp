// SPDX-License-Identifier: MIT
// Shared pieces of the nckit subcommands that read NC files.
#include "NcLoadCommon.h"

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <system_error>

namespace fs = std::filesystem;

namespace {

// The file reader of KCC_NcFile keeps at most this many characters per line.
constexpr std::size_t kReaderLineLimit = 127;
// ... and reads at most this many lines.
constexpr long long kReaderLineBudget = 999998;

const std::set<std::string> kLoadFlags = {"--first-block", "--keep-unfinished", "--no-line-limit"};

// The file's lines without a length limit: LF ends a line, a CR right before it belongs to the line end.
// Like the file reader's lines, a line ends at its first NUL character (the rest up to the LF is dropped).
KCStringList ReadAllLines(std::FILE* file) {
  KCStringList lines;
  std::string line;
  std::vector<char> buffer(1 << 16);
  bool pending = false;
  bool afterNul = false;
  std::size_t got = 0;
  while ((got = std::fread(buffer.data(), 1, buffer.size(), file)) > 0) {
    for (std::size_t i = 0; i < got; ++i) {
      const char c = buffer[i];
      if (c == '\n') {
        if (!afterNul && !line.empty() && line.back() == '\r')
          line.pop_back();
        lines.push_back(KCString(std::move(line)));
        line.clear();
        pending = false;
        afterNul = false;
      } else {
        afterNul = afterNul || c == '\0';
        if (!afterNul)
          line.push_back(c);
        pending = true;
      }
    }
  }
  if (pending)
    lines.push_back(KCString(std::move(line)));
  return lines;
}

}  // namespace

const char* const kNcLoadOptionsHelp =
    "  --first-block      recognise the first block (M98 P8010 / N50 FIRST_BLOCK): its program is a main\n"
    "                     program and it tells the structure (Fanuc / Siemens)\n"
    "  --keep-unfinished  keep the lines after the last program end as a program of the sub-program list\n"
    "  --no-line-limit    read lines of any length (the file reader keeps at most 127 characters a line)\n";

NcLoadOptions NcCommandLine::LoadOptions() const {
  NcLoadOptions options;
  options.checkFirstBlock = Has("--first-block");
  options.keepUnfinished = Has("--keep-unfinished");
  options.noLineLimit = Has("--no-line-limit");
  return options;
}

int NcUsageError(const char* command, const std::string& problem, std::ostream& err) {
  err << "nckit " << command << ": " << problem << " (try 'nckit " << command << " --help')\n";
  return kNckitUsage;
}

int ParseNcCommandLine(const char* command, const std::vector<std::string>& args,
                       const std::set<std::string>& extraFlags, const std::set<std::string>& valueOptions,
                       NcCommandLine& result, std::ostream& err) {
  bool optionsEnded = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (optionsEnded || arg.size() < 2 || arg[0] != '-') {
      result.positionals.push_back(arg);
      continue;
    }
    if (arg == "--") {
      optionsEnded = true;
      continue;
    }
    if (arg == "--help" || arg == "-h") {
      result.help = true;
      continue;
    }
    if (kLoadFlags.count(arg) != 0 || extraFlags.count(arg) != 0) {
      result.flags.insert(arg);
      continue;
    }
    const std::size_t equals = arg.find('=');
    const std::string name = arg.substr(0, equals);
    // "--output" is the long spelling of "-o" and is stored under "-o".
    const std::string key = name == "--output" ? "-o" : name;
    if (valueOptions.count(key) != 0) {
      if (equals != std::string::npos) {
        result.values[key] = arg.substr(equals + 1);
      } else if (i + 1 < args.size()) {
        result.values[key] = args[++i];
      } else {
        return NcUsageError(command, "option '" + name + "' needs a value", err);
      }
      continue;
    }
    // A negative number is a positional argument (block text such as "-5" is unlikely, but allowed).
    if (arg[1] >= '0' && arg[1] <= '9') {
      result.positionals.push_back(arg);
      continue;
    }
    return NcUsageError(command, "unknown option '" + arg + "'", err);
  }
  return -1;
}

int LoadNcFileWithoutError(const char* command, const std::string& path, const NcLoadOptions& options,
                           NcLoadResult& result, std::ostream& err) {
  if (int rc = LoadNcFile(command, path, options, result, err); rc >= 0)
    return rc;
  if (result.errorCode != 0) {
    ReportLoadError(command, path, result, err);
    return kNckitProblem;
  }
  return -1;
}

std::string NcLoadErrorName(int errorCode) {
  switch (errorCode) {
    case 0:
      return "no error";
    case 1:
      return "no file name";
    case 2:
      return "file not found";
    case 3:
      return "file cannot be opened";
    case 4:
      return "too many lines";
    case 5:
      return "no NC structure";
    default:
      return "unknown error " + std::to_string(errorCode);
  }
}

long long FindFirstLongLine(const std::string& path, std::size_t& length) {
  std::ifstream in(path, std::ios::binary);
  std::string line;
  long long number = 0;
  // The reader stops after this many lines whatever their length, so a long line further down is not the
  // reason for a too-many-lines result.
  while (number < kReaderLineBudget && std::getline(in, line)) {
    ++number;
    if (!in.eof() && !line.empty() && line.back() == '\r')
      line.pop_back();
    if (line.size() > kReaderLineLimit) {
      length = line.size();
      return number;
    }
  }
  return 0;
}

int LoadNcFile(const char* command, const std::string& path, const NcLoadOptions& options,
               NcLoadResult& result, std::ostream& err) {
  std::error_code ec;
  const fs::file_status status = fs::status(path, ec);
  if (path.empty())
    return NcUsageError(command, "no file name given", err);
  if (ec || !fs::exists(status)) {
    err << "nckit " << command << ": " << path << ": no such file\n";
    return kNckitUsage;
  }
  if (fs::is_directory(status)) {
    err << "nckit " << command << ": " << path << ": is a directory, not an NC file\n";
    return kNckitUsage;
  }
  // A device or a pipe may never end (/dev/zero) or block the reader, so only regular files are read.
  if (!fs::is_regular_file(status)) {
    err << "nckit " << command << ": " << path << ": not a regular file (a device, pipe or socket)\n";
    return kNckitUsage;
  }

  result.file.reset(new KCC_NcFile());
  if (options.noLineLimit) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) {
      result.errorCode = 3;
      return -1;
    }
    const KCStringList lines = ReadAllLines(file);
    std::fclose(file);
    result.file->LoadFromStringList(lines, options.checkFirstBlock, options.keepUnfinished);
  } else {
    result.file->LoadFromFile(path, options.checkFirstBlock, options.keepUnfinished);
    if (result.file->HasTooManyLinesError())
      result.longLine = FindFirstLongLine(path, result.longLineLength);
  }
  result.errorCode = result.file->GetErrorCode();
  if (const long long line = FindLoneCarriageReturn(path); line > 0) {
    err << "nckit " << command << ": " << path << ": warning: line " << line
        << " has a carriage return inside it; lines ended by a carriage return alone are read as one line\n";
  }
  return -1;
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

void ReportLoadError(const char* command, const std::string& path, const NcLoadResult& result,
                     std::ostream& err) {
  err << "nckit " << command << ": " << path << ": " << NcLoadErrorName(result.errorCode);
  if (result.errorCode == 4) {
    if (result.longLine > 0) {
      err << ": line " << result.longLine << " has " << result.longLineLength
          << " characters, more than the reader's 127; use --no-line-limit to read long lines";
    } else {
      err << ": more than 999998 lines";
    }
  } else if (result.errorCode == 5) {
    err << ": no program ends with M30, M99 or RET";
  } else if (result.errorCode == 3) {
    err << ": permission denied or not readable";
  }
  err << '\n';
}

std::vector<KCC_NcFileProgram*> AllPrograms(KCC_NcFile& file) {
  std::vector<KCC_NcFileProgram*> programs;
  for (KCC_NcFileProgramList* list : {&file.GetMainProgList(), &file.GetSubProgList()}) {
    for (int i = 0; i < list->GetNumberOfPrograms(); ++i) {
      if (KCC_NcFileProgram* p = list->GetProgram(i))
        programs.push_back(p);
    }
  }
  return programs;
}

std::string ProgramsText(const std::vector<const KCC_NcFileProgram*>& programs) {
  std::string text;
  bool wroteAny = false;
  bool lastWasPercent = false;
  for (const KCC_NcFileProgram* program : programs) {
    const KCStringList& lines = program->GetStringList();
    if (!wroteAny && (lines.empty() || lines.front() != "%")) {
      text += "%\n";
      lastWasPercent = true;
    }
    wroteAny = true;
    for (const KCString& line : lines) {
      text += line.str();
      text += '\n';
      lastWasPercent = line == "%";
    }
  }
  if (wroteAny && !lastWasPercent)
    text += "%\n";
  return text;
}

namespace {

// Length of the well-formed UTF-8 sequence at text[i] and its code point; 0 when the bytes there are none.
std::size_t Utf8Sequence(const std::string& text, std::size_t i, unsigned& codePoint) {
  const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[k]); };
  const unsigned lead = byte(i);
  std::size_t length = 0;
  unsigned min = 0;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
    codePoint = lead & 0x1F;
    min = 0x80;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    codePoint = lead & 0x0F;
    min = 0x800;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    codePoint = lead & 0x07;
    min = 0x10000;
  } else {
    return 0;
  }
  if (i + length > text.size())
    return 0;
  for (std::size_t k = 1; k < length; ++k) {
    if ((byte(i + k) & 0xC0) != 0x80)
      return 0;
    codePoint = (codePoint << 6) | (byte(i + k) & 0x3F);
  }
  if (codePoint < min || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF))
    return 0;
  return length;
}

void AppendJsonEscape(std::string& out, unsigned unit) {
  static const char kHex[] = "0123456789abcdef";
  out += "\\u";
  for (int shift = 12; shift >= 0; shift -= 4)
    out += kHex[(unit >> shift) & 0xF];
}

}  // namespace

std::string JsonString(const std::string& text) {
  std::string out = "\"";
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char ch = text[i];
    const auto c = static_cast<unsigned char>(ch);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += ch;
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\r') {
      out += "\\r";
    } else if (c == '\t') {
      out += "\\t";
    } else if (c < 0x20 || c == 0x7F) {
      AppendJsonEscape(out, c);
    } else if (c < 0x80) {
      out += ch;
    } else {
      // UTF-8 text keeps its characters; any other byte is taken as a Latin-1 character.
      unsigned codePoint = c;
      const std::size_t length = Utf8Sequence(text, i, codePoint);
      if (length == 0) {
        AppendJsonEscape(out, c);
      } else if (codePoint < 0x10000) {
        AppendJsonEscape(out, codePoint);
        i += length - 1;
      } else {
        AppendJsonEscape(out, 0xD800 + ((codePoint - 0x10000) >> 10));
        AppendJsonEscape(out, 0xDC00 + ((codePoint - 0x10000) & 0x3FF));
        i += length - 1;
      }
    }
  }
  out += '"';
  return out;
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

std::string ProgramNumberText(int number) {
  if (number < 0)
    return "-";
  std::string digits = std::to_string(number);
  if (digits.size() < 4)
    digits.insert(0, 4 - digits.size(), '0');
  return digits;
}

bool SameFile(const std::string& a, const std::string& b) {
  std::error_code ec;
  return fs::exists(a, ec) && fs::exists(b, ec) && fs::equivalent(a, b, ec) && !ec;
}

int ParseProgramNumberArguments(const char* command, const NcCommandLine& cl, std::set<int>& numbers,
                                std::ostream& err) {
  for (std::size_t i = 1; i < cl.positionals.size(); ++i) {
    int number = 0;
    if (!ParseProgramNumberArgument(cl.positionals[i], number))
      return NcUsageError(command, "'" + cl.positionals[i] + "' is no program number", err);
    numbers.insert(number);
  }
  return -1;
}

int CheckOutputFileName(const char* command, const std::string& target, std::ostream& err) {
  if (target.empty())
    return NcUsageError(command, "-o needs a file name", err);
  std::error_code ec;
  if (fs::is_directory(target, ec)) {
    err << "nckit " << command << ": " << target << ": is a directory; -o names the file to write\n";
    return kNckitUsage;
  }
  return -1;
}
