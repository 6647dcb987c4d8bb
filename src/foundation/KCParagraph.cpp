// SPDX-License-Identifier: MIT
// KCParagraph and KCDocument.
//
// XML output rules (ToXml):
// - The declaration is <?xml version="1.0" encoding="UTF-8"?>; the tree follows, one element per line,
//   indented by two blanks per level.
// - Element and attribute names are the section and key names trimmed of blanks. A character that may not
//   stand in an XML name becomes '_'. Beyond ASCII only what the older XML 1.0 name rules (still applied by
//   expat, MSXML and .NET) accept as well is kept: the letters of Latin-1, Latin Extended-A, Greek and
//   Cyrillic, the middle dot and combining marks U+0300..U+0345 after the first character. A name whose
//   first character may not start an XML name (a digit, '-', '.') gets a leading '_'; an empty name
//   becomes "_". ':' is kept, so "xsd:element" stays as it is. When two keys of a section give the same
//   attribute name, the later ones get "_2", "_3", ... appended.
// - Text (attribute values, documentation) is taken as UTF-8: `& < > " '` become entity references; in
//   attribute values tab, line feed and carriage return become character references so that they survive
//   attribute-value normalisation, in documentation text only the carriage return does. A byte that is not
//   part of a valid UTF-8 sequence is taken as the Latin-1 character of that value and written as a
//   character reference; characters that XML 1.0 does not allow at all (most control characters) become '?'.
// So whatever the sections hold, the result is well-formed XML.
// The UTF-8 and name scans live in KCXmlChars.h, shared with the reader (LoadFromText, KCXmlReader.cpp),
// which reads all of this back.
#include "ncappkit/foundation/KCParagraph.h"

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "foundation/KCXmlChars.h"
#include "foundation/KCXmlReader.h"
#include "ncappkit/foundation/KCFileMan.h"

namespace {

using ncappkit_detail::DecodeUtf8;
using ncappkit_detail::IsPortableNameChar;
using ncappkit_detail::IsPortableNameStartChar;
using ncappkit_detail::IsXmlChar;

// The XML name for a section, key or documentation name (see the rules at the top of this file).
std::string XmlName(const KCString& name) {
  KCString trimmed(name);
  trimmed.Trim();
  const std::string& text = trimmed.str();
  std::string result;
  std::size_t i = 0;
  while (i < text.size()) {
    const std::size_t start = i;
    std::uint32_t c = 0;
    const bool valid = DecodeUtf8(text, i, c);
    if (!valid)
      ++i;
    if (valid && result.empty() && !IsPortableNameStartChar(c) && IsPortableNameChar(c))
      result += '_';
    if (valid && IsPortableNameChar(c)) {
      result.append(text, start, i - start);
    } else {
      result += '_';
    }
  }
  if (result.empty())
    result = "_";
  return result;
}

// Escaped text for an attribute value (`attribute` true) or element content.
std::string XmlText(const KCString& value, bool attribute) {
  static const char kHex[] = "0123456789ABCDEF";
  const std::string& text = value.str();
  std::string result;
  result.reserve(text.size());
  std::size_t i = 0;
  while (i < text.size()) {
    const std::size_t start = i;
    std::uint32_t c = 0;
    if (!DecodeUtf8(text, i, c)) {
      const auto b = static_cast<unsigned char>(text[i]);
      result += "&#x";
      result += kHex[b >> 4];
      result += kHex[b & 0x0F];
      result += ';';
      ++i;
      continue;
    }
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '"':
        result += "&quot;";
        break;
      case '\'':
        result += "&apos;";
        break;
      case '\t':
        result += attribute ? "&#9;" : "\t";
        break;
      case '\n':
        result += attribute ? "&#10;" : "\n";
        break;
      case '\r':
        result += "&#13;";
        break;
      default:
        if (IsXmlChar(c)) {
          result.append(text, start, i - start);
        } else {
          result += '?';
        }
        break;
    }
  }
  return result;
}

void AppendElement(const KCParagraph& section, int depth, std::string& out) {
  const std::string indent(static_cast<std::size_t>(depth) * 2, ' ');
  const std::string name = XmlName(section.GetName());
  out += indent;
  out += '<';
  out += name;
  std::set<std::string> used;
  for (const KCParagraph::Entry& entry : section.GetEntries()) {
    std::string attribute = XmlName(entry.first);
    if (!used.insert(attribute).second) {
      for (int n = 2;; ++n) {
        const std::string candidate = attribute + "_" + std::to_string(n);
        if (used.insert(candidate).second) {
          attribute = candidate;
          break;
        }
      }
    }
    out += ' ';
    out += attribute;
    out += "=\"";
    out += XmlText(entry.second, true);
    out += '"';
  }
  const std::vector<KCParagraph*> children = section.GetParagraphs();
  const bool hasDocumentation =
      !section.GetDocumentationName().IsEmpty() || !section.GetDocumentation().IsEmpty();
  if (children.empty() && !hasDocumentation) {
    out += "/>\n";
    return;
  }
  out += ">\n";
  if (hasDocumentation) {
    const std::string docName = XmlName(section.GetDocumentationName());
    out +=
        indent + "  <" + docName + ">" + XmlText(section.GetDocumentation(), false) + "</" + docName + ">\n";
  }
  for (const KCParagraph* child : children)
    AppendElement(*child, depth + 1, out);
  out += indent + "</" + name + ">\n";
}

}  // namespace

// ---------------------------------------------------------------------------------------------------------
// KCParagraph

KCParagraph::KCParagraph(const KCString& name) : m_name(name) {}

KCParagraph::KCParagraph(const KCParagraph& other)
    : m_name(other.m_name),
      m_entries(other.m_entries),
      m_docName(other.m_docName),
      m_docText(other.m_docText) {
  m_children.reserve(other.m_children.size());
  for (const auto& child : other.m_children)
    m_children.push_back(std::make_unique<KCParagraph>(*child));
}

KCParagraph& KCParagraph::operator=(const KCParagraph& other) {
  if (this != &other) {
    KCParagraph copy(other);  // copied first, so a section assigned from its own descendant stays intact
    m_name = std::move(copy.m_name);
    m_entries = std::move(copy.m_entries);
    m_children = std::move(copy.m_children);
    m_docName = std::move(copy.m_docName);
    m_docText = std::move(copy.m_docText);
  }
  return *this;
}

KCParagraph::~KCParagraph() = default;

KCParagraph* KCParagraph::AddParagraph(const KCString& name) {
  if (name.IsEmpty())
    return this;
  if (KCParagraph* existing = FindParagraph(name))
    return existing;
  return NewParagraph(name);
}

KCParagraph* KCParagraph::NewParagraph(const KCString& name) {
  m_children.push_back(std::make_unique<KCParagraph>(name));
  return m_children.back().get();
}

KCParagraph* KCParagraph::FindParagraph(const KCString& name) {
  return const_cast<KCParagraph*>(static_cast<const KCParagraph*>(this)->FindParagraph(name));
}

const KCParagraph* KCParagraph::FindParagraph(const KCString& name) const {
  if (name.IsEmpty())
    return this;
  for (const auto& child : m_children) {
    if (child->m_name == name)
      return child.get();
  }
  return nullptr;
}

std::vector<KCParagraph*> KCParagraph::GetParagraphs() const {
  std::vector<KCParagraph*> children;
  children.reserve(m_children.size());
  for (const auto& child : m_children)
    children.push_back(child.get());
  return children;
}

bool KCParagraph::WriteString(const KCString& key, const KCString& value) {
  if (Entry* entry = FindEntry(key)) {
    entry->second = value;
  } else {
    m_entries.emplace_back(key, value);
  }
  return true;
}

bool KCParagraph::WriteInteger(const KCString& key, int value) {
  return WriteString(key, KCString(value, false));
}

bool KCParagraph::WriteDouble(const KCString& key, double value, int digits) {
  return WriteString(key, KCString(value, digits, false));
}

bool KCParagraph::WriteBool(const KCString& key, bool value) {
  return WriteString(key, value ? "1" : "0");
}

bool KCParagraph::WriteColor(const KCString& key, const KCColor& value) {
  return WriteString(key, KCColor::ToString(value));
}

bool KCParagraph::WritePenStyle(const KCString& key, const KCPenStyle& value) {
  return WriteString(key, KCPenStyle::ToString(value));
}

KCString KCParagraph::ReadString(const KCString& key, const KCString& defaultValue) const {
  const Entry* entry = FindEntry(key);
  return entry != nullptr ? entry->second : defaultValue;
}

int KCParagraph::ReadInteger(const KCString& key, int defaultValue) const {
  const Entry* entry = FindEntry(key);
  return entry != nullptr ? entry->second.AsInt(defaultValue, false) : defaultValue;
}

double KCParagraph::ReadDouble(const KCString& key, double defaultValue) const {
  const Entry* entry = FindEntry(key);
  return entry != nullptr ? entry->second.AsDouble(defaultValue) : defaultValue;
}

double KCParagraph::ReadDoubleStrict(const KCString& key, double defaultValue) const {
  const Entry* entry = FindEntry(key);
  return entry != nullptr ? entry->second.AsDoubleStrict(defaultValue) : defaultValue;
}

bool KCParagraph::ReadBool(const KCString& key, bool defaultValue) const {
  const Entry* entry = FindEntry(key);
  if (entry == nullptr)
    return defaultValue;
  KCString text(entry->second);
  text.Trim();
  for (const char* word : {"1", "true", "yes", "on"}) {
    if (text.EqualsNoCase(word))
      return true;
  }
  for (const char* word : {"0", "false", "no", "off"}) {
    if (text.EqualsNoCase(word))
      return false;
  }
  return defaultValue;
}

KCColor KCParagraph::ReadColor(const KCString& key, const KCColor& defaultValue) const {
  KCColor color(defaultValue);
  const Entry* entry = FindEntry(key);
  if (entry == nullptr || !KCColor::FromString(entry->second, color))
    return defaultValue;
  return color;
}

KCPenStyle KCParagraph::ReadPenStyle(const KCString& key, const KCPenStyle& defaultValue) const {
  const Entry* entry = FindEntry(key);
  if (entry == nullptr)
    return defaultValue;
  // A text that names no pen style gives the default rather than FromString's solid pen.
  const KCPenStyle style = KCPenStyle::FromString(entry->second);
  KCString text(entry->second);
  text.Trim();
  return KCPenStyle::ToString(style).EqualsNoCase(text) ? style : defaultValue;
}

bool KCParagraph::HasKey(const KCString& key) const noexcept {
  return FindEntry(key) != nullptr;
}

KCString KCParagraph::GetValue(const KCString& key) const {
  return ReadString(key, KCString());
}

bool KCParagraph::WriteDocumentation(const KCString& name, const KCString& text) {
  m_docName = name;
  m_docText = text;
  return true;
}

KCParagraph::Entry* KCParagraph::FindEntry(const KCString& key) noexcept {
  return const_cast<Entry*>(static_cast<const KCParagraph*>(this)->FindEntry(key));
}

const KCParagraph::Entry* KCParagraph::FindEntry(const KCString& key) const noexcept {
  for (const Entry& entry : m_entries) {
    if (entry.first == key)
      return &entry;
  }
  return nullptr;
}

// ---------------------------------------------------------------------------------------------------------
// KCDocument

KCDocument::KCDocument(const KCDocument& other)
    : m_root(other.m_root ? std::make_unique<KCParagraph>(*other.m_root) : nullptr),
      m_loadError(other.m_loadError) {}

KCDocument& KCDocument::operator=(const KCDocument& other) {
  if (this != &other) {
    m_root = other.m_root ? std::make_unique<KCParagraph>(*other.m_root) : nullptr;
    m_loadError = other.m_loadError;
  }
  return *this;
}

KCDocument::~KCDocument() = default;

KCParagraph* KCDocument::CreateRoot(const KCString& name) {
  KCString trimmed(name);
  trimmed.Trim();
  if (trimmed.IsEmpty())
    return nullptr;
  m_root = std::make_unique<KCParagraph>(name);
  return m_root.get();
}

std::string KCDocument::ToXml() const {
  std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  if (m_root)
    AppendElement(*m_root, 0, xml);
  return xml;
}

bool KCDocument::SaveToFile(const KCString& path) const {
  return KCFileMan::ReplaceFileContents(path, ToXml());
}

bool KCDocument::LoadFromText(const std::string& xml) {
  std::unique_ptr<KCParagraph> root;
  std::string error;
  if (!ncappkit_detail::ReadXmlDocument(xml, root, error)) {
    m_loadError = std::move(error);
    return false;
  }
  m_root = std::move(root);
  m_loadError.clear();
  return true;
}

bool KCDocument::LoadFromFile(const KCString& path) {
  std::string bytes;
  std::string error;
  if (!ncappkit_detail::ReadWholeFile(path.str(), bytes, error)) {
    m_loadError = std::move(error);
    return false;
  }
  return LoadFromText(bytes);
}

// The class constant has a definition in the library as well, so that a client of the Windows DLL that binds
// it to a reference finds it there.
constexpr int KCDocument::kMaxXmlDepth;
