// SPDX-License-Identifier: MIT
#include "support/TestData.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <system_error>

namespace fs = std::filesystem;

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9')
    return c - '0';
  if (c >= 'a' && c <= 'f')
    return c - 'a' + 10;
  if (c >= 'A' && c <= 'F')
    return c - 'A' + 10;
  return -1;
}

bool IsCommentOrBlank(const std::string& line) {
  const std::size_t first = line.find_first_not_of(" \t");
  return first == std::string::npos || line[first] == '#';
}

}  // namespace

fs::path TestDataPath(const std::string& relative) {
  return fs::path(NCAPPKIT_TEST_DATA_DIR) / fs::u8path(relative);
}

bool ReadFileBytes(const fs::path& path, std::string& bytes) {
  bytes.clear();
  std::error_code error;
  if (!fs::is_regular_file(path, error))
    return false;
  std::ifstream in(path, std::ios::binary);
  if (!in)
    return false;
  bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  return !in.bad();
}

std::string ReadFileBytes(const fs::path& path) {
  std::string bytes;
  ReadFileBytes(path, bytes);
  return bytes;
}

std::vector<std::string> ListCaseFolders(const fs::path& root) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator it(root, error), end; !error && it != end; it.increment(error)) {
    if (it->is_directory(error))
      names.push_back(it->path().filename().u8string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

void PrintTo(const CorpusFile& file, std::ostream* out) {
  *out << file.path.u8string();
}

std::vector<CorpusFile> CorpusFiles(const std::function<bool(const fs::path&)>& keep) {
  std::vector<CorpusFile> files;
  std::error_code ec;
  const fs::path root(NCAPPKIT_CORPUS_DIR);
  if (fs::is_directory(root, ec)) {
    for (auto it = fs::recursive_directory_iterator(root, ec);
         !ec && it != fs::recursive_directory_iterator(); it.increment(ec)) {
      if (it->is_regular_file(ec) && keep(it->path()))
        files.push_back({"", it->path()});
    }
  }
  std::sort(files.begin(), files.end(),
            [](const CorpusFile& a, const CorpusFile& b) { return a.path < b.path; });
  for (CorpusFile& file : files)
    file.name = ToTestName(file.path.lexically_relative(root).u8string());
  MakeRowNamesUnique(files);
  if (files.empty())
    files.push_back({"no_corpus", fs::path()});
  return files;
}

std::vector<std::string> ListFilesWithSuffix(const fs::path& root, const std::string& suffix) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator it(root, error), end; !error && it != end; it.increment(error)) {
    const std::string name = it->path().filename().u8string();
    if (it->is_regular_file(error) && name.size() >= suffix.size() &&
        name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0)
      names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = text.find('\n', start);
    const std::size_t next = end == std::string::npos ? text.size() : end + 1;
    if (end == std::string::npos)
      end = text.size();
    else if (end > start && text[end - 1] == '\r')
      --end;
    lines.push_back(text.substr(start, end - start));
    start = next;
  }
  return lines;
}

std::vector<TableLine> TableLines(const std::string& text) {
  std::vector<TableLine> table;
  const std::vector<std::string> lines = SplitLines(text);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!IsCommentOrBlank(lines[i]))
      table.push_back({static_cast<int>(i) + 1, lines[i]});
  }
  return table;
}

bool ReadTableLines(const fs::path& path, std::vector<TableLine>& lines, std::string& error) {
  std::string bytes;
  if (!ReadFileBytes(path, bytes)) {
    lines.clear();
    error = path.u8string() + ": cannot be read";
    return false;
  }
  lines = TableLines(bytes);
  return true;
}

bool ReadTableSections(const fs::path& path, std::vector<TableSection>& sections, std::string& error) {
  sections.clear();
  std::vector<TableLine> lines;
  if (!ReadTableLines(path, lines, error))
    return false;
  for (const TableLine& line : lines) {
    if (line.text[0] == '[') {
      const std::size_t close = line.text.find(']');
      if (close == std::string::npos) {
        error = Where(path, line.number) + "section name without ']'";
        return false;
      }
      const std::string name = line.text.substr(1, close - 1);
      if (name.empty()) {
        error = Where(path, line.number) + "section without a name";
        return false;
      }
      for (const TableSection& earlier : sections) {
        if (earlier.name == name) {
          error = Where(path, line.number) + "[" + name + "] stands at line " +
                  std::to_string(earlier.number) + " already";
          return false;
        }
      }
      sections.push_back({name, line.number, {}});
    } else if (sections.empty()) {
      error = Where(path, line.number) + "line before the first [section]";
      return false;
    } else {
      sections.back().lines.push_back(line);
    }
  }
  return true;
}

bool SplitWords(const std::string& line, std::vector<std::string>& words, std::string& error) {
  words.clear();
  std::size_t i = 0;
  while (true) {
    while (i < line.size() && IsBlank(line[i]))
      ++i;
    if (i == line.size())
      return true;
    std::string word;
    if (line[i] != '"') {
      while (i < line.size() && !IsBlank(line[i]))
        word += line[i++];
      words.push_back(word);
      continue;
    }
    const std::size_t open = i++;
    while (true) {
      if (i == line.size()) {
        error = "quote opened at column " + std::to_string(open + 1) + " is not closed";
        return false;
      }
      const char c = line[i++];
      if (c == '"')
        break;
      if (c != '\\') {
        word += c;
        continue;
      }
      const char e = i < line.size() ? line[i++] : '\0';
      if (e == 't') {
        word += '\t';
      } else if (e == 'n') {
        word += '\n';
      } else if (e == 'r') {
        word += '\r';
      } else if (e == '\\' || e == '"') {
        word += e;
      } else if (e == 'x' && i + 1 < line.size() && HexDigit(line[i]) >= 0 && HexDigit(line[i + 1]) >= 0) {
        word += static_cast<char>(HexDigit(line[i]) * 16 + HexDigit(line[i + 1]));
        i += 2;
      } else {
        error = "unknown escape at column " + std::to_string(i - 1);
        return false;
      }
    }
    words.push_back(word);
  }
}

namespace {

template <typename Number>
bool ParseWholeNumber(const std::string& text, Number& value) {
  const char* end = text.data() + text.size();
  const std::from_chars_result result = std::from_chars(text.data(), end, value);
  return !text.empty() && result.ec == std::errc() && result.ptr == end;
}

}  // namespace

bool ParseNumber(const std::string& text, int& value) {
  return ParseWholeNumber(text, value);
}

bool ParseNumber(const std::string& text, double& value) {
  return ParseWholeNumber(text, value);
}

std::string EscapeText(const std::string& text) {
  static const char kHex[] = "0123456789ABCDEF";
  std::string out;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\\' || c == '"') {
      out += '\\';
      out += c;
    } else if (c == '\t') {
      out += "\\t";
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\r') {
      out += "\\r";
    } else if (byte < 0x20 || byte == 0x7F) {
      out += "\\x";
      out += kHex[byte >> 4];
      out += kHex[byte & 0x0F];
    } else {
      out += c;
    }
  }
  return out;
}

std::string ToTestName(const std::string& text) {
  std::string name = text;
  for (char& c : name) {
    const bool keep = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
    if (!keep)
      c = '_';
  }
  return name;
}

std::string SpelledTestName(const std::string& text) {
  static const struct {
    char c;
    const char* word;
  } kWords[] = {{'+', "plus"},  {'-', "minus"},  {'*', "times"},   {'/', "over"},     {'^', "pow"},
                {'(', "open"},  {')', "close"},  {'[', "sq_open"}, {']', "sq_close"}, {'.', "point"},
                {',', "comma"}, {'=', "equals"}, {'%', "percent"}, {'#', "hash"},     {'"', "quote"}};
  static const char kHex[] = "0123456789ABCDEF";
  std::string name;
  auto separate = [&name] {
    if (!name.empty() && name.back() != '_')
      name += '_';
  };
  for (const char c : text) {
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_') {
      name += c;
      continue;
    }
    separate();
    if (IsBlank(c))
      continue;
    std::string word;
    for (const auto& w : kWords) {
      if (w.c == c)
        word = w.word;
    }
    if (word.empty()) {
      const auto byte = static_cast<unsigned char>(c);
      word = std::string("x") + kHex[byte >> 4] + kHex[byte & 0x0F];
    }
    name += word + "_";
  }
  while (!name.empty() && name.back() == '_')
    name.pop_back();
  return name.empty() ? "empty" : name;
}

std::string Where(const fs::path& path, int line) {
  return path.u8string() + ":" + std::to_string(line) + ": ";
}
