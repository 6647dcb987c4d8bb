// SPDX-License-Identifier: MIT
// The XML reader of KCDocument (LoadFromText, LoadFromFile).
//
// Reading rules:
// - The input is UTF-8, with or without a byte-order mark. An XML declaration may open it (version 1.x,
//   read as 1.0; encoding UTF-8 or UTF8 in any case; standalone yes or no). Any other declared encoding,
//   a UTF-16 byte-order mark and a DOCTYPE declaration are refused with a reason.
// - Line ends are normalised first (CR LF and a lone CR become LF), as XML 1.0 demands. Attribute values are
//   normalised as XML 1.0 does without a DTD: a literal tab, line feed or carriage return becomes a blank,
//   while a character reference keeps its character. References are the five predefined entities and
//   decimal and hexadecimal character references; CDATA sections give their text as it stands; comments and
//   processing instructions are skipped.
// - Every element is a section named by its tag, its attributes the keys in document order, except the one
//   element that is its parent's documentation entry: the first child element, when it has no attributes,
//   is written as a start tag and an end tag (not as an empty-element tag) and holds no child elements. Its
//   text, byte for byte, is the documentation text. White space between elements is ignored; any other text
//   directly inside a section is refused, as it has no place in the tree.
// - Element depth is bounded by KCDocument::kMaxXmlDepth, so that neither the reader nor the recursive copy,
//   ToXml and destructor of KCParagraph can run out of stack on a loaded tree.
//
// Implementation: one pass over the bytes with an explicit stack of open elements, no recursion. Text is
// appended in runs, so the time is linear in the size of the input. Line and column of an error are found
// only when there is one, by a second scan up to its position.
#include "foundation/KCXmlReader.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <unordered_set>
#include <utility>
#include <vector>

#include "foundation/KCXmlChars.h"
#include "ncappkit/foundation/KCParagraph.h"

namespace ncappkit_detail {

/// The reader's access to KCParagraph: keys are appended without the search for an earlier key that
/// WriteString makes (the reader has refused repeated attributes already), so a start tag with many
/// attributes is read in linear time.
struct KCParagraphBuilder {
  static void AppendEntry(KCParagraph& section, std::string_view key, std::string_view value) {
    section.m_entries.emplace_back(KCString(std::string(key)), KCString(std::string(value)));
  }
};

namespace {

constexpr std::size_t kNoPosition = static_cast<std::size_t>(-1);

// Up to this many attributes a repeated name is looked for by comparing with each earlier one; beyond it a
// hash set of the names is used.
constexpr std::size_t kLinearAttributeCheck = 8;

std::string Hex2(unsigned char b) {
  static const char kHex[] = "0123456789ABCDEF";
  return std::string{'0', 'x', kHex[b >> 4], kHex[b & 0x0F]};
}

// "U+0001" for a code point.
std::string CodePointText(std::uint32_t c) {
  static const char kHex[] = "0123456789ABCDEF";
  std::string digits;
  for (int shift = c > 0xFFFF ? 20 : 12; shift >= 0; shift -= 4)
    digits += kHex[(c >> shift) & 0xF];
  return "U+" + digits;
}

bool EqualsNoCaseAscii(std::string_view a, std::string_view b) {
  if (a.size() != b.size())
    return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    char x = a[i];
    char y = b[i];
    if (x >= 'A' && x <= 'Z')
      x = static_cast<char>(x - 'A' + 'a');
    if (y >= 'A' && y <= 'Z')
      y = static_cast<char>(y - 'A' + 'a');
    if (x != y)
      return false;
  }
  return true;
}

class XmlReader {
 public:
  explicit XmlReader(std::string_view xml) : m_xml(xml) {}

  bool Read(std::unique_ptr<KCParagraph>& root, std::string& error) {
    const bool ok = Prolog() && StartTag() && Content() && Epilog();
    if (!ok) {
      error = Position(m_errorAt) + ": " + m_reason;
      m_root.reset();
      return false;
    }
    root = std::move(m_root);
    return true;
  }

 private:
  // An element whose end tag has not come yet.
  struct Open {
    std::string_view name;
    std::size_t at;        // offset of its '<'
    KCParagraph* section;  // null while it may still be its parent's documentation entry
    bool hasChild;         // a child element has been seen
  };

  // --- errors and positions ------------------------------------------------------------------------------

  bool Fail(std::size_t at, std::string reason) {
    m_failed = true;
    m_errorAt = at;
    m_reason = std::move(reason);
    return false;
  }

  bool InvalidUtf8(std::size_t at) {
    return Fail(at,
                "invalid UTF-8: the byte " + Hex2(Byte(at)) + " does not start a valid UTF-8 sequence here");
  }

  // "line L, column C" of the byte offset `at`: both from 1, the column in characters (a byte that is not
  // part of valid UTF-8 counts as one character), CR LF, CR and LF each ending a line.
  std::string Position(std::size_t at) const {
    std::size_t line = 1;
    std::size_t column = 1;
    std::size_t i = m_bodyStart;
    if (at > m_xml.size())
      at = m_xml.size();
    while (i < at) {
      const char c = m_xml[i];
      if (c == '\n' || c == '\r') {
        ++line;
        column = 1;
        ++i;
        if (c == '\r' && i < at && m_xml[i] == '\n')
          ++i;
        continue;
      }
      std::uint32_t cp = 0;
      if (!DecodeUtf8(m_xml, i, cp))
        ++i;
      ++column;
    }
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
  }

  // --- characters ----------------------------------------------------------------------------------------

  bool At(std::string_view text) const { return m_xml.compare(m_pos, text.size(), text) == 0; }
  bool AtEnd() const { return m_pos >= m_xml.size(); }
  unsigned char Byte(std::size_t i) const { return static_cast<unsigned char>(m_xml[i]); }

  bool SkipSpace() {
    const std::size_t start = m_pos;
    while (m_pos < m_xml.size() && IsXmlSpace(m_xml[m_pos]))
      ++m_pos;
    return m_pos != start;
  }

  // The character at m_pos, which must not be the end: checks that it is valid UTF-8 and allowed in XML,
  // gives it in `cp` and advances past it.
  bool Char(std::uint32_t& cp) {
    const std::size_t start = m_pos;
    const unsigned char b = Byte(m_pos);
    if (b < 0x80) {
      cp = b;
      ++m_pos;
    } else if (!DecodeUtf8(m_xml, m_pos, cp)) {
      return InvalidUtf8(start);
    }
    if (!IsXmlChar(cp))
      return Fail(start, "the character " + CodePointText(cp) + " is not allowed in XML");
    return true;
  }

  // A name at m_pos. False when none starts there; then the reason is set only when the bytes are not valid
  // UTF-8 (m_failed), so that the caller can say what it expected.
  bool TryName(std::string_view& name) {
    const std::size_t start = m_pos;
    if (AtEnd())
      return false;
    std::uint32_t cp = 0;
    std::size_t i = m_pos;
    if (!DecodeUtf8(m_xml, i, cp))
      return InvalidUtf8(m_pos);
    if (!IsXmlNameStartChar(cp))
      return false;
    m_pos = i;
    while (m_pos < m_xml.size()) {
      const unsigned char b = Byte(m_pos);
      if (b < 0x80) {
        if (!IsXmlNameChar(b))
          break;
        ++m_pos;
        continue;
      }
      i = m_pos;
      if (!DecodeUtf8(m_xml, i, cp))
        return InvalidUtf8(m_pos);
      if (!IsXmlNameChar(cp))
        break;
      m_pos = i;
    }
    name = m_xml.substr(start, m_pos - start);
    return true;
  }

  // A name at m_pos; `missing` is the reason when none starts there, given for `missingAt` (m_pos when
  // kNoPosition).
  bool Name(std::string_view& name, const char* missing, std::size_t missingAt = kNoPosition) {
    if (TryName(name))
      return true;
    if (m_failed)
      return false;
    return Fail(missingAt == kNoPosition ? m_pos : missingAt, missing);
  }

  // A description of the character at m_pos for an error message: 'x', or U+XXXX, or "the end".
  std::string Described() const {
    if (AtEnd())
      return "the end of the document";
    const unsigned char b = Byte(m_pos);
    if (b >= 0x21 && b < 0x7F)
      return std::string("'") + static_cast<char>(b) + "'";
    if (b == ' ' || b == '\t')
      return b == ' ' ? "a blank" : "a tab";
    if (b == '\n' || b == '\r')
      return "a line end";
    std::size_t i = m_pos;
    std::uint32_t cp = 0;
    if (!DecodeUtf8(m_xml, i, cp))
      return "the byte " + Hex2(b);
    return CodePointText(cp);
  }

  // A reference at m_pos ('&'): gives the character it stands for.
  bool Reference(std::uint32_t& cp) {
    const std::size_t at = m_pos;
    ++m_pos;
    if (!AtEnd() && m_xml[m_pos] == '#') {
      ++m_pos;
      const bool hex = !AtEnd() && m_xml[m_pos] == 'x';
      if (hex)
        ++m_pos;
      std::uint32_t value = 0;
      bool tooLarge = false;
      const std::size_t digitsStart = m_pos;
      while (!AtEnd()) {
        const char c = m_xml[m_pos];
        std::uint32_t digit = 0;
        if (c >= '0' && c <= '9') {
          digit = static_cast<std::uint32_t>(c - '0');
        } else if (hex && c >= 'a' && c <= 'f') {
          digit = static_cast<std::uint32_t>(c - 'a' + 10);
        } else if (hex && c >= 'A' && c <= 'F') {
          digit = static_cast<std::uint32_t>(c - 'A' + 10);
        } else {
          break;
        }
        value = value * (hex ? 16u : 10u) + digit;
        if (value > 0x10FFFF) {
          tooLarge = true;
          value = 0x110000;  // keeps the product from overflowing
        }
        ++m_pos;
      }
      if (m_pos == digitsStart)
        return Fail(at,
                    hex ? "malformed character reference: '&#x' must be followed by hexadecimal digits"
                        : "malformed character reference: '&#' must be followed by decimal digits or 'x'");
      if (AtEnd() || m_xml[m_pos] != ';')
        return Fail(at, "malformed character reference: it must end with ';'");
      ++m_pos;
      if (tooLarge || !IsXmlChar(value)) {
        return Fail(at, "the character reference " + std::string(m_xml.substr(at, m_pos - at)) +
                            " names a character that XML does not allow");
      }
      cp = value;
      return true;
    }
    std::string_view name;
    if (!Name(name, "'&' must start a reference; write a plain '&' as &amp;", at))
      return false;
    if (AtEnd() || m_xml[m_pos] != ';')
      return Fail(at, "the entity reference &" + std::string(name) + " must end with ';'");
    ++m_pos;
    if (name == "lt") {
      cp = '<';
    } else if (name == "gt") {
      cp = '>';
    } else if (name == "amp") {
      cp = '&';
    } else if (name == "quot") {
      cp = '"';
    } else if (name == "apos") {
      cp = '\'';
    } else {
      return Fail(at, "undefined entity &" + std::string(name) +
                          "; (only &lt; &gt; &amp; &quot; &apos; and character references are known)");
    }
    return true;
  }

  // --- markup that holds no data -------------------------------------------------------------------------

  // A comment at m_pos ("<!--").
  bool Comment() {
    const std::size_t at = m_pos;
    m_pos += 4;
    std::uint32_t cp = 0;
    while (!AtEnd()) {
      if (m_xml[m_pos] == '-' && m_pos + 1 < m_xml.size() && m_xml[m_pos + 1] == '-') {
        if (m_pos + 2 < m_xml.size() && m_xml[m_pos + 2] == '>') {
          m_pos += 3;
          return true;
        }
        return Fail(m_pos, "'--' is not allowed inside a comment");
      }
      if (!Char(cp))
        return false;
    }
    return Fail(at, "the comment is not closed (no '-->' follows)");
  }

  // A processing instruction at m_pos ("<?"), which is not the XML declaration.
  bool ProcessingInstruction() {
    const std::size_t at = m_pos;
    m_pos += 2;
    std::string_view target;
    if (!Name(target, "'<?' must be followed by the name of a processing-instruction target"))
      return false;
    if (target == "xml")
      return Fail(at, "an XML declaration is allowed only at the very start of the document");
    if (EqualsNoCaseAscii(target, "xml"))
      return Fail(at + 2, "the processing-instruction target '" + std::string(target) + "' is reserved");
    if (At("?>")) {
      m_pos += 2;
      return true;
    }
    if (!SkipSpace())
      return Fail(m_pos,
                  "expected a blank or '?>' after the processing-instruction target, found " + Described());
    std::uint32_t cp = 0;
    while (!AtEnd()) {
      if (At("?>")) {
        m_pos += 2;
        return true;
      }
      if (!Char(cp))
        return false;
    }
    return Fail(at, "the processing instruction is not closed (no '?>' follows)");
  }

  // '=' with optional blanks around it, after the name `name`.
  bool Equals(std::string_view name) {
    SkipSpace();
    if (AtEnd() || m_xml[m_pos] != '=')
      return Fail(m_pos, "expected '=' after '" + std::string(name) + "', found " + Described());
    ++m_pos;
    SkipSpace();
    return true;
  }

  // A quoted value of the XML declaration (no references, no '<').
  bool DeclarationValue(std::string_view& value, std::size_t& valueAt, std::string_view name) {
    if (AtEnd() || (m_xml[m_pos] != '"' && m_xml[m_pos] != '\''))
      return Fail(m_pos, "expected the quoted value of '" + std::string(name) + "', found " + Described());
    const char quote = m_xml[m_pos];
    ++m_pos;
    valueAt = m_pos;
    while (!AtEnd() && m_xml[m_pos] != quote) {
      if (m_xml[m_pos] == '<' || m_xml[m_pos] == '>' || m_xml[m_pos] == '?')
        break;
      ++m_pos;
    }
    if (AtEnd() || m_xml[m_pos] != quote)
      return Fail(valueAt - 1, "the value of '" + std::string(name) + "' is not closed");
    value = m_xml.substr(valueAt, m_pos - valueAt);
    ++m_pos;
    return true;
  }

  // The XML declaration at m_pos ("<?xml" and a blank).
  bool XmlDeclaration() {
    m_pos += 5;
    SkipSpace();
    std::string_view value;
    std::size_t valueAt = 0;
    if (!At("version"))
      return Fail(m_pos, "the XML declaration must start with the version (version=\"1.0\")");
    m_pos += 7;
    if (!Equals("version") || !DeclarationValue(value, valueAt, "version"))
      return false;
    bool versionOk = value.size() >= 3 && value[0] == '1' && value[1] == '.';
    for (std::size_t i = 2; versionOk && i < value.size(); ++i)
      versionOk = value[i] >= '0' && value[i] <= '9';
    if (!versionOk)
      return Fail(valueAt,
                  "XML version \"" + std::string(value) + "\" is not supported (only 1.x, read as 1.0)");
    bool blank = SkipSpace();
    if (blank && At("encoding")) {
      m_pos += 8;
      if (!Equals("encoding") || !DeclarationValue(value, valueAt, "encoding"))
        return false;
      if (!EqualsNoCaseAscii(value, "UTF-8") && !EqualsNoCaseAscii(value, "UTF8")) {
        return Fail(valueAt, "the encoding \"" + std::string(value) +
                                 "\" is not supported: only UTF-8 documents are read (convert the file to "
                                 "UTF-8 first)");
      }
      blank = SkipSpace();
    }
    if (blank && At("standalone")) {
      m_pos += 10;
      if (!Equals("standalone") || !DeclarationValue(value, valueAt, "standalone"))
        return false;
      if (value != "yes" && value != "no")
        return Fail(valueAt, "'standalone' must be \"yes\" or \"no\"");
      SkipSpace();
    }
    if (!At("?>")) {
      return Fail(m_pos, "expected '?>' to end the XML declaration, found " + Described() +
                             " (version, encoding and standalone come in this order, separated by blanks)");
    }
    m_pos += 2;
    return true;
  }

  // --- document structure --------------------------------------------------------------------------------

  // Everything before the root element; leaves m_pos at its '<'.
  bool Prolog() {
    if (At("\xEF\xBB\xBF")) {
      m_pos = 3;
      m_bodyStart = 3;
    } else if (At("\xFE\xFF") || At("\xFF\xFE")) {
      return Fail(0,
                  "the document is UTF-16 (it starts with a UTF-16 byte-order mark): only UTF-8 documents "
                  "are read");
    }
    if (At("<?xml") &&
        (m_pos + 5 == m_xml.size() || IsXmlSpace(m_xml[m_pos + 5]) || m_xml[m_pos + 5] == '?') &&
        !XmlDeclaration())
      return false;
    while (true) {
      SkipSpace();
      if (AtEnd())
        return Fail(m_pos, "the document has no root element");
      if (At("<!--")) {
        if (!Comment())
          return false;
      } else if (At("<?")) {
        if (!ProcessingInstruction())
          return false;
      } else if (At("<!DOCTYPE")) {
        return Fail(m_pos,
                    "a DOCTYPE declaration is not supported (its entities and default attributes would "
                    "change the document; remove it)");
      } else if (At("</")) {
        return Fail(m_pos, "an end tag before the root element");
      } else if (At("<!")) {
        return Fail(m_pos, "expected a comment or the root element after '<!'");
      } else if (m_xml[m_pos] == '<') {
        return true;
      } else {
        std::uint32_t cp = 0;
        const std::size_t at = m_pos;
        if (!Char(cp))
          return false;
        return Fail(at, "text before the root element: expected '<'");
      }
    }
  }

  // Everything after the root element.
  bool Epilog() {
    while (true) {
      SkipSpace();
      if (AtEnd())
        return true;
      if (At("<!--")) {
        if (!Comment())
          return false;
      } else if (At("<?")) {
        if (!ProcessingInstruction())
          return false;
      } else if (At("</")) {
        return Fail(m_pos, "an end tag after the root element was closed");
      } else if (m_xml[m_pos] == '<') {
        return Fail(m_pos, "a second root element: a document has exactly one root element");
      } else {
        std::uint32_t cp = 0;
        const std::size_t at = m_pos;
        if (!Char(cp))
          return false;
        return Fail(at, "text after the root element");
      }
    }
  }

  // The open element at the top of the stack, a documentation candidate, gets a child element: it becomes a
  // section, added to its parent now.
  bool MakeSection(Open& element) {
    if (m_docTextAt != kNoPosition) {
      return Fail(m_docTextAt, "element <" + std::string(element.name) +
                                   "> holds both text and child elements; a section holds no text");
    }
    Open& parent = m_stack[m_stack.size() - 2];
    element.section = parent.section->NewParagraph(KCString(std::string(element.name)));
    return true;
  }

  // A start tag or empty-element tag at m_pos ('<' followed by something other than '/', '!', '?').
  bool StartTag() {
    const std::size_t at = m_pos;
    ++m_pos;
    std::string_view name;
    if (!Name(name, "'<' must be followed by an element name; write a plain '<' as &lt;"))
      return false;
    if (m_stack.size() >= static_cast<std::size_t>(KCDocument::kMaxXmlDepth)) {
      return Fail(at, "elements are nested deeper than " + std::to_string(KCDocument::kMaxXmlDepth) +
                          " levels (KCDocument::kMaxXmlDepth)");
    }
    KCParagraph* parent = nullptr;
    KCParagraph* section = nullptr;
    if (m_stack.empty()) {
      m_root = std::make_unique<KCParagraph>(KCString(std::string(name)));
      section = m_root.get();
    } else {
      if (m_stack.back().section == nullptr && !MakeSection(m_stack.back()))
        return false;
      parent = m_stack.back().section;
    }
    m_attributeNames.clear();
    if (m_attributeSetUsed) {
      m_attributeSet.clear();
      m_attributeSetUsed = false;
    }
    bool empty = false;
    while (true) {
      const bool blank = SkipSpace();
      if (AtEnd())
        return Fail(m_pos, "the document ends inside the start tag of <" + std::string(name) + ">");
      const char c = m_xml[m_pos];
      if (c == '>') {
        ++m_pos;
        break;
      }
      if (c == '/') {
        if (m_pos + 1 < m_xml.size() && m_xml[m_pos + 1] == '>') {
          m_pos += 2;
          empty = true;
          break;
        }
        ++m_pos;
        return Fail(m_pos, "expected '>' after '/' in the start tag of <" + std::string(name) + ">, found " +
                               Described());
      }
      const std::size_t attributeAt = m_pos;
      std::string_view attribute;
      if (!TryName(attribute)) {
        if (m_failed)
          return false;
        return Fail(m_pos, "unexpected " + Described() + " in the start tag of <" + std::string(name) + ">");
      }
      if (!blank) {
        return Fail(attributeAt, "a blank must separate the attribute '" + std::string(attribute) +
                                     "' from what stands before it");
      }
      if (!Equals(attribute))
        return false;
      if (AtEnd() || (m_xml[m_pos] != '"' && m_xml[m_pos] != '\''))
        return Fail(m_pos, "expected the quoted value of attribute '" + std::string(attribute) + "', found " +
                               Described());
      if (!AttributeValue(attribute))
        return false;
      if (IsRepeatedAttribute(attribute))
        return Fail(attributeAt, "the attribute '" + std::string(attribute) + "' is repeated in <" +
                                     std::string(name) + ">");
      if (section == nullptr)
        section = parent->NewParagraph(KCString(std::string(name)));
      KCParagraphBuilder::AppendEntry(*section, attribute, m_value);
    }
    bool candidate = false;
    if (section == nullptr) {
      candidate = !empty && !m_stack.back().hasChild;
      if (!candidate)
        section = parent->NewParagraph(KCString(std::string(name)));
    }
    if (!m_stack.empty())
      m_stack.back().hasChild = true;
    if (!empty) {
      m_stack.push_back(Open{name, at, section, false});
      if (candidate) {
        m_docText.clear();
        m_docTextAt = kNoPosition;
      }
    }
    return true;
  }

  bool IsRepeatedAttribute(std::string_view attribute) {
    if (m_attributeNames.size() < kLinearAttributeCheck) {
      for (const std::string_view& earlier : m_attributeNames) {
        if (earlier == attribute)
          return true;
      }
      m_attributeNames.push_back(attribute);
      return false;
    }
    if (!m_attributeSetUsed) {
      m_attributeSet.insert(m_attributeNames.begin(), m_attributeNames.end());
      m_attributeSetUsed = true;
    }
    return !m_attributeSet.insert(attribute).second;
  }

  // The quoted attribute value at m_pos, normalised, into m_value.
  bool AttributeValue(std::string_view attribute) {
    const std::size_t at = m_pos;
    const char quote = m_xml[m_pos];
    ++m_pos;
    m_value.clear();
    std::size_t run = m_pos;
    std::uint32_t cp = 0;
    while (true) {
      if (AtEnd())
        return Fail(at, "the value of attribute '" + std::string(attribute) + "' is not closed");
      const char c = m_xml[m_pos];
      if (c == quote) {
        m_value.append(m_xml, run, m_pos - run);
        ++m_pos;
        return true;
      }
      switch (c) {
        case '<':
          return Fail(m_pos, "'<' is not allowed in an attribute value; write it as &lt;");
        case '&':
          m_value.append(m_xml, run, m_pos - run);
          if (!Reference(cp))
            return false;
          AppendUtf8(m_value, cp);
          run = m_pos;
          break;
        case '\t':
        case '\n':
        case '\r':
          m_value.append(m_xml, run, m_pos - run);
          m_value += ' ';
          ++m_pos;
          if (c == '\r' && !AtEnd() && m_xml[m_pos] == '\n')
            ++m_pos;
          run = m_pos;
          break;
        default:
          if (!Char(cp))
            return false;
          break;
      }
    }
  }

  // Text other than white space at `at`, inside the element at the top of the stack. A section refuses it;
  // a documentation candidate notes where its first such character stands.
  bool NoteText(std::size_t at) {
    Open& top = m_stack.back();
    if (top.section != nullptr) {
      return Fail(at, "text is not allowed directly inside section <" + std::string(top.name) +
                          "> (only a documentation element, its first child without attributes, holds text)");
    }
    if (m_docTextAt == kNoPosition)
      m_docTextAt = at;
    return true;
  }

  // Character data at m_pos, up to the next '<' or '&'.
  bool CharData() {
    const bool keep = m_stack.back().section == nullptr;
    std::size_t run = m_pos;
    std::uint32_t cp = 0;
    while (!AtEnd()) {
      const char c = m_xml[m_pos];
      if (c == '<' || c == '&')
        break;
      if (c == '\r') {
        if (keep) {
          m_docText.append(m_xml, run, m_pos - run);
          m_docText += '\n';
        }
        ++m_pos;
        if (!AtEnd() && m_xml[m_pos] == '\n')
          ++m_pos;
        run = m_pos;
        continue;
      }
      if (c == ' ' || c == '\t' || c == '\n') {
        ++m_pos;
        continue;
      }
      if (c == ']' && At("]]>"))
        return Fail(m_pos, "']]>' is not allowed in text; write it as ]]&gt;");
      const std::size_t at = m_pos;
      if (!Char(cp) || !NoteText(at))
        return false;
    }
    if (keep)
      m_docText.append(m_xml, run, m_pos - run);
    return true;
  }

  // A CDATA section at m_pos ("<![CDATA[").
  bool CData() {
    const std::size_t at = m_pos;
    m_pos += 9;
    const bool keep = m_stack.back().section == nullptr;
    std::size_t run = m_pos;
    std::uint32_t cp = 0;
    while (!AtEnd()) {
      const char c = m_xml[m_pos];
      if (c == ']' && At("]]>")) {
        if (keep)
          m_docText.append(m_xml, run, m_pos - run);
        m_pos += 3;
        return true;
      }
      if (c == '\r') {
        if (keep) {
          m_docText.append(m_xml, run, m_pos - run);
          m_docText += '\n';
        }
        ++m_pos;
        if (!AtEnd() && m_xml[m_pos] == '\n')
          ++m_pos;
        run = m_pos;
        continue;
      }
      const std::size_t charAt = m_pos;
      if (!Char(cp))
        return false;
      if (!IsXmlSpace(static_cast<char>(c)) && !NoteText(charAt))
        return false;
    }
    return Fail(at, "the CDATA section is not closed (no ']]>' follows)");
  }

  // An end tag at m_pos ("</").
  bool EndTag() {
    const std::size_t at = m_pos;
    m_pos += 2;
    std::string_view name;
    if (!Name(name, "'</' must be followed by an element name"))
      return false;
    SkipSpace();
    if (AtEnd() || m_xml[m_pos] != '>')
      return Fail(m_pos,
                  "expected '>' to close the end tag </" + std::string(name) + ">, found " + Described());
    ++m_pos;
    Open& top = m_stack.back();
    if (name != top.name) {
      return Fail(at, "the end tag </" + std::string(name) + "> does not match the start tag <" +
                          std::string(top.name) + "> at " + Position(top.at));
    }
    if (top.section == nullptr) {
      KCParagraph* parent = m_stack[m_stack.size() - 2].section;
      parent->WriteDocumentation(KCString(std::string(name)), KCString(std::move(m_docText)));
      m_docText = std::string();
    }
    m_stack.pop_back();
    return true;
  }

  // The content of the root element, up to its end tag.
  bool Content() {
    std::uint32_t cp = 0;
    while (!m_stack.empty()) {
      if (AtEnd()) {
        const Open& top = m_stack.back();
        return Fail(m_pos, "the document ends before the element <" + std::string(top.name) + "> of " +
                               Position(top.at) + " is closed");
      }
      const char c = m_xml[m_pos];
      bool ok = true;
      if (c == '<') {
        if (At("</")) {
          ok = EndTag();
        } else if (At("<!--")) {
          ok = Comment();
        } else if (At("<![CDATA[")) {
          ok = CData();
        } else if (At("<?")) {
          ok = ProcessingInstruction();
        } else if (At("<!")) {
          ok = Fail(m_pos, "expected a comment or a CDATA section after '<!'");
        } else {
          ok = StartTag();
        }
      } else if (c == '&') {
        const std::size_t at = m_pos;
        ok = Reference(cp);
        if (ok && !(cp == ' ' || cp == '\t' || cp == '\n' || cp == '\r'))
          ok = NoteText(at);
        if (ok && m_stack.back().section == nullptr)
          AppendUtf8(m_docText, cp);
      } else {
        ok = CharData();
      }
      if (!ok)
        return false;
    }
    return true;
  }

  std::string_view m_xml;
  std::size_t m_pos = 0;
  std::size_t m_bodyStart = 0;  // after a byte-order mark

  std::unique_ptr<KCParagraph> m_root;
  std::vector<Open> m_stack;

  // The text of the documentation candidate at the top of the stack, and where its first character other
  // than white space stands.
  std::string m_docText;
  std::size_t m_docTextAt = kNoPosition;

  // The attributes of the start tag being read.
  std::vector<std::string_view> m_attributeNames;
  std::unordered_set<std::string_view> m_attributeSet;
  bool m_attributeSetUsed = false;
  std::string m_value;

  bool m_failed = false;
  std::size_t m_errorAt = 0;
  std::string m_reason;
};

}  // namespace

bool ReadXmlDocument(std::string_view xml, std::unique_ptr<KCParagraph>& root, std::string& error) {
  root.reset();
  XmlReader reader(xml);
  return reader.Read(root, error);
}

bool ReadWholeFile(const std::string& path, std::string& bytes, std::string& error) {
  bytes.clear();
  if (path.find('\0') != std::string::npos) {
    error = "cannot open the file \"" + path.substr(0, path.find('\0')) + "...\": its name holds a NUL byte";
    return false;
  }
  errno = 0;
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) {
    const int code = errno;
    error = "cannot open the file \"" + path + "\"";
    if (code != 0)
      error += ": " + std::generic_category().message(code);
    return false;
  }
  char buffer[65536];
  bool failed = false;
  while (true) {
    const std::size_t count = std::fread(buffer, 1, sizeof buffer, file);
    bytes.append(buffer, count);
    if (count < sizeof buffer) {
      failed = std::ferror(file) != 0;
      break;
    }
  }
  const int code = errno;
  std::fclose(file);
  if (failed) {
    bytes.clear();
    error = "cannot read the file \"" + path + "\"";
    if (code != 0)
      error += ": " + std::generic_category().message(code);
    return false;
  }
  return true;
}

}  // namespace ncappkit_detail
