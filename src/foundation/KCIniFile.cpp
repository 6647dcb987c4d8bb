// SPDX-License-Identifier: MIT
// KCIniFile.
//
// File syntax and rewrite rules:
// - A line "[name]" (blanks around the name and text after ']' allowed) starts a section; "key = value"
//   lines belong to the section above them, lines before the first section to the section "". Section and
//   key names compare without regard to ASCII case; names and values are trimmed of blanks. A ';' or '#'
//   inside a value is part of the value (there are no end-of-line comments).
// - Lines starting with ';' or '#', blank lines, a key line without '=' or with nothing before it, and any
//   other line are kept as they are.
// - A key that appears twice, or a section whose name appears twice: reads take the first match in file
//   order (searching all occurrences of the section); a write changes that first match. A key that is not
//   there yet goes after the last key of the first occurrence of its section (right after the header when it
//   has no keys); a missing section is appended at the end of the file, after a blank line.
// - A line that starts with '[' but has no ']' is kept as it is and ends the section above it: the key lines
//   after it belong to no section until the next header, so they are never read or changed, and a new key of
//   the section above goes before it.
// - Updating a key keeps its line up to and including '=' and the blanks after '=' as they were.
// - Lines end with LF, CRLF or a lone CR. The file's first line end (CRLF, LF or CR) is used for every line
//   of the rewrite, and the last line gets one too. A new file gets CRLF on Windows and LF elsewhere. A UTF-8
//   byte-order mark at the start is kept; a file whose first line starts with the mark's bytes gets a mark
//   written in front of it, so that the line reads back whole.
// - Every call reads the file afresh, so changes by other programs are seen. A file that exists but cannot
//   be read, or is no regular file (a directory, fifo or device), reads as empty and is never overwritten:
//   writes to it fail. Writes through a symbolic link
//   replace the file the link names; the link stays. A file name with a NUL byte names no
//   file (the system would see only the part before it): it reads as empty and writes fail.
// - Writes that could not be read back as written fail without touching the file: a section name with ']'
//   or a line break, an empty key, a key with '=' or a line break or starting with '[', ';' or '#', and a
//   value with a line break.
#include "ncappkit/foundation/KCIniFile.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

#include "foundation/KCReplaceFile.h"
#include "ncappkit/foundation/KCPlatform.h"

namespace {

constexpr const char* kBom = "\xEF\xBB\xBF";

struct IniLine {
  enum class Kind { Other, Section, UnclosedSection, Key };
  Kind kind = Kind::Other;
  std::string text;  // the line as it stands in the file, without line end
  KCString name;     // trimmed section name or key
  KCString value;    // trimmed value of a key line
};

IniLine ParseLine(const std::string& text) {
  IniLine line;
  line.text = text;
  KCString trimmed(text);
  trimmed.Trim();
  const char first = trimmed.GetAt(0);
  if (trimmed.IsEmpty() || first == ';' || first == '#')
    return line;
  if (first == '[') {
    const std::uint64_t close = trimmed.Find(']');
    if (close != KCString::npos) {
      line.kind = IniLine::Kind::Section;
      line.name = trimmed.Mid(1, static_cast<int>(close) - 1);
      line.name.Trim();
    } else {
      line.kind = IniLine::Kind::UnclosedSection;  // names no section, but ends the one above
    }
    return line;
  }
  const std::uint64_t equals = trimmed.Find('=');
  if (equals == KCString::npos || equals == 0)
    return line;
  line.kind = IniLine::Kind::Key;
  line.name = trimmed.Left(static_cast<int>(equals));
  line.name.Trim();
  line.value = trimmed.Mid(static_cast<int>(equals) + 1);
  line.value.Trim();
  return line;
}

KCString Trimmed(const KCString& text) {
  KCString copy(text);
  copy.Trim();
  return copy;
}

// Appends `name` unless the list holds it already, compared without regard to ASCII case.
void AppendOnce(KCStringList& names, const KCString& name) {
  for (const KCString& known : names) {
    if (known.EqualsNoCase(name))
      return;
  }
  names.push_back(name);
}

bool HasLineBreak(const KCString& text) {
  return text.Find('\n') != KCString::npos || text.Find('\r') != KCString::npos;
}

// The whole file as lines, with what is needed to write it back the same way.
class IniText {
 public:
  enum class State { Missing, Loaded, Unreadable };

  explicit IniText(const KCString& fileName) : m_fileName(fileName.str()) { Load(); }

  State GetState() const noexcept { return m_state; }

  // Index of the first key line `key` in any occurrence of `section`, or -1. Both names are trimmed.
  int FindKey(const KCString& section, const KCString& key) const {
    const KCString sectionName = Trimmed(section);
    const KCString keyName = Trimmed(key);
    bool inSection = sectionName.IsEmpty();  // lines before the first header belong to ""
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
      const IniLine& line = m_lines[i];
      if (line.kind == IniLine::Kind::Section) {
        inSection = line.name.EqualsNoCase(sectionName);
      } else if (line.kind == IniLine::Kind::UnclosedSection) {
        inSection = false;
      } else if (inSection && line.kind == IniLine::Kind::Key && line.name.EqualsNoCase(keyName)) {
        return static_cast<int>(i);
      }
    }
    return -1;
  }

  const IniLine& Line(int index) const { return m_lines[static_cast<std::size_t>(index)]; }

  // Calls visit(sectionName, keyLine) for every key line a read can find, in file order: key lines after an
  // unclosed header belong to no section and are skipped.
  template <class Visit>
  void ForEachKey(Visit visit) const {
    const KCString* section = &m_noSection;
    bool reachable = true;
    for (const IniLine& line : m_lines) {
      if (line.kind == IniLine::Kind::Section) {
        section = &line.name;
        reachable = true;
      } else if (line.kind == IniLine::Kind::UnclosedSection) {
        reachable = false;
      } else if (reachable && line.kind == IniLine::Kind::Key) {
        visit(*section, line);
      }
    }
  }

  // Set `key` in `section` to `value` (see the rules at the top of the file).
  void Set(const KCString& section, const KCString& key, const KCString& value) {
    const int existing = FindKey(section, key);
    if (existing >= 0) {
      IniLine& line = m_lines[static_cast<std::size_t>(existing)];
      std::size_t keep = line.text.find('=') + 1;
      while (keep < line.text.size() && (line.text[keep] == ' ' || line.text[keep] == '\t'))
        ++keep;
      line = ParseLine(line.text.substr(0, keep) + value.str());
      return;
    }
    const std::string text = key.str() + "=" + value.str();
    const int at = InsertionPoint(section);
    if (at >= 0) {
      m_lines.insert(m_lines.begin() + at, ParseLine(text));
      return;
    }
    if (!m_lines.empty() && !KCString(m_lines.back().text).Trim().IsEmpty())
      m_lines.push_back(ParseLine(""));
    m_lines.push_back(ParseLine("[" + section.str() + "]"));
    m_lines.push_back(ParseLine(text));
  }

  // Remove every key line `key` of `section`; true when one was removed.
  bool Remove(const KCString& section, const KCString& key) {
    bool removed = false;
    for (int i = FindKey(section, key); i >= 0; i = FindKey(section, key)) {
      m_lines.erase(m_lines.begin() + i);
      removed = true;
    }
    return removed;
  }

  bool Save() const {
    if (m_state == State::Unreadable)
      return false;
    std::string content = m_bom ? kBom : "";
    for (const IniLine& line : m_lines) {
      content += line.text;
      content += m_lineEnd;
    }
    // A first line that itself starts with the byte-order mark's bytes would lose them on the next read,
    // which takes them for the mark: such a file gets a mark of its own in front.
    if (!m_bom && content.compare(0, 3, kBom) == 0)
      content.insert(0, kBom);
    // A symbolic link is followed, so the file it names gets the new contents and the link stays a link.
    std::string target = m_fileName;
    std::error_code error;
    if (std::filesystem::is_symlink(target, error)) {
      const std::filesystem::path resolved = std::filesystem::canonical(target, error);
      if (!error)
        target = resolved.string();
    }
    return ncappkit_detail::ReplaceFileContents(target, content);
  }

 private:
  void Load() {
    if (m_fileName.find('\0') != std::string::npos) {
      m_state = State::Unreadable;
      return;
    }
    std::error_code error;
    const std::filesystem::path path(m_fileName);
    if (!std::filesystem::exists(path, error)) {
      m_state = State::Missing;
      return;
    }
    // Only a regular file is opened: opening a fifo or a device could wait for a writer without end.
    if (!std::filesystem::is_regular_file(path, error)) {
      m_state = State::Unreadable;
      return;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
      m_state = State::Unreadable;
      return;
    }
    std::string content((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) {
      m_state = State::Unreadable;
      return;
    }
    m_state = State::Loaded;
    if (content.compare(0, 3, kBom) == 0) {
      m_bom = true;
      content.erase(0, 3);
    }
    // A line ends at LF, at CRLF or at a lone CR; the first line end found is the file's style.
    const auto lineEndAt = [&content](std::size_t at) -> std::size_t {
      if (at >= content.size())
        return 0;
      return (content[at] == '\r' && at + 1 < content.size() && content[at + 1] == '\n') ? 2 : 1;
    };
    const std::size_t firstBreak = content.find_first_of("\r\n");
    if (firstBreak != std::string::npos)
      m_lineEnd = content.substr(firstBreak, lineEndAt(firstBreak));
    std::size_t start = 0;
    while (start < content.size()) {
      std::size_t end = content.find_first_of("\r\n", start);
      if (end == std::string::npos)
        end = content.size();
      m_lines.push_back(ParseLine(content.substr(start, end - start)));
      start = end + lineEndAt(end);
      if (end == content.size())
        break;
    }
  }

  // True for a header line, closed or not: either ends the section above it.
  static bool StartsSection(IniLine::Kind kind) noexcept {
    return kind == IniLine::Kind::Section || kind == IniLine::Kind::UnclosedSection;
  }

  // Where a new key of `section` goes, or -1 when the section is not in the file.
  int InsertionPoint(const KCString& section) const {
    int header = -1;
    int lastKey = -1;
    if (section.IsEmpty()) {
      // The nameless section: the lines before the first header.
      for (std::size_t i = 0; i < m_lines.size() && !StartsSection(m_lines[i].kind); ++i) {
        if (m_lines[i].kind == IniLine::Kind::Key)
          lastKey = static_cast<int>(i);
      }
      return lastKey >= 0 ? lastKey + 1 : 0;
    }
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
      const IniLine& line = m_lines[i];
      if (StartsSection(line.kind)) {
        if (header >= 0)
          break;  // end of the first occurrence
        if (line.kind == IniLine::Kind::Section && line.name.EqualsNoCase(section))
          header = static_cast<int>(i);
      } else if (header >= 0 && line.kind == IniLine::Kind::Key) {
        lastKey = static_cast<int>(i);
      }
    }
    if (header < 0)
      return -1;
    return (lastKey >= 0 ? lastKey : header) + 1;
  }

  const KCString m_noSection;
  std::string m_fileName;
  State m_state = State::Missing;
  std::vector<IniLine> m_lines;
  std::string m_lineEnd = KCC_GetTextLineEnd();
  bool m_bom = false;
};

// True when a key written with these (trimmed) names and value reads back as written.
bool IsWritable(const KCString& section, const KCString& key, const KCString& value) {
  const char first = key.GetAt(0);
  if (key.IsEmpty() || first == '[' || first == ';' || first == '#')
    return false;
  if (key.Find('=') != KCString::npos || HasLineBreak(key))
    return false;
  if (section.Find(']') != KCString::npos || HasLineBreak(section))
    return false;
  return !HasLineBreak(value);
}

}  // namespace

KCIniFile::KCIniFile(const KCString& fileName) : m_fileName(fileName) {}

KCIniFile::~KCIniFile() = default;

KCString KCIniFile::ReadString(const KCString& section, const KCString& key, const KCString& defaultValue,
                               bool create) {
  const IniText ini(m_fileName);
  const int index = ini.FindKey(section, key);
  if (index >= 0)
    return ini.Line(index).value;
  if (create)
    WriteString(section, key, defaultValue);
  return defaultValue;
}

int KCIniFile::ReadInteger(const KCString& section, const KCString& key, int defaultValue, bool create) {
  const IniText ini(m_fileName);
  const int index = ini.FindKey(section, key);
  if (index >= 0)
    return ini.Line(index).value.AsInt(defaultValue, false);
  if (create)
    WriteInteger(section, key, defaultValue);
  return defaultValue;
}

double KCIniFile::ReadDouble(const KCString& section, const KCString& key, double defaultValue, bool create,
                             int digits) {
  const IniText ini(m_fileName);
  const int index = ini.FindKey(section, key);
  if (index >= 0)
    return ini.Line(index).value.AsDouble(defaultValue);
  if (create)
    WriteDouble(section, key, defaultValue, digits);
  return defaultValue;
}

bool KCIniFile::WriteString(const KCString& section, const KCString& key, const KCString& value) {
  const KCString sectionName = Trimmed(section);
  const KCString keyName = Trimmed(key);
  const KCString text = Trimmed(value);
  if (!IsWritable(sectionName, keyName, text))
    return false;
  IniText ini(m_fileName);
  if (ini.GetState() == IniText::State::Unreadable)
    return false;
  ini.Set(sectionName, keyName, text);
  return ini.Save();
}

bool KCIniFile::WriteInteger(const KCString& section, const KCString& key, int value) {
  return WriteString(section, key, KCString(value, false));
}

bool KCIniFile::WriteBool(const KCString& section, const KCString& key, bool value) {
  return WriteString(section, key, value ? "1" : "0");
}

bool KCIniFile::WriteDouble(const KCString& section, const KCString& key, double value, int digits) {
  return WriteString(section, key, KCString(value, digits, false));
}

bool KCIniFile::HasKey(const KCString& section, const KCString& key) {
  return IniText(m_fileName).FindKey(section, key) >= 0;
}

bool KCIniFile::DeleteKey(const KCString& section, const KCString& key) {
  IniText ini(m_fileName);
  if (!ini.Remove(section, key))
    return true;
  return ini.Save();
}

KCStringList KCIniFile::GetSectionNames() {
  KCStringList names;
  IniText(m_fileName).ForEachKey([&](const KCString& section, const IniLine&) {
    AppendOnce(names, section);
  });
  return names;
}

KCStringList KCIniFile::GetKeyNames(const KCString& section) {
  const KCString sectionName = Trimmed(section);
  KCStringList names;
  IniText(m_fileName).ForEachKey([&](const KCString& name, const IniLine& line) {
    if (name.EqualsNoCase(sectionName))
      AppendOnce(names, line.name);
  });
  return names;
}
