// SPDX-License-Identifier: MIT
// KCParagraph and KCDocument: a tree of named sections holding key/value pairs, and the document that owns
// the tree, writes it as XML and reads it back.
//
// Values are kept as text in write order; typed reads convert on the way out and give the caller's default
// for a missing key (or, for the strict reads, for text that is not wholly of the asked type). Attributes,
// placement patterns and schema nodes write themselves into sections; a document turns the tree into XML,
// an element per section and an attribute per key.
//
//   KCDocument doc;
//   KCParagraph* root = doc.CreateRoot("Settings");
//   KCParagraph* pen = root->AddParagraph("Pen");        // add or get the child "Pen"
//   pen->WriteInteger("Width", 2);
//   int width = pen->ReadInteger("Width", 1);            // 2
//   std::string xml = doc.ToXml();
//
//   KCDocument loaded;
//   if (!loaded.LoadFromText(xml))                      // or LoadFromFile(path)
//     std::cerr << loaded.GetLoadError() << "\n";      // "line 3, column 7: undefined entity &nbsp; ..."
//
// What the XML round trip keeps and where it reads differently from other XML tools (documentation
// entries, DOCTYPE, encodings, the depth limit) is listed in docs/behaviours.md#xml-documents.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCColor.h"
#include "ncappkit/foundation/KCPenStyle.h"
#include "ncappkit/foundation/KCString.h"

namespace ncappkit_detail {
struct KCParagraphBuilder;  // the XML reader of KCDocument (private to the library)
}

/// A named section of key/value texts with child sections, written as an XML element by KCDocument.
class NCAPPKIT_EXPORT KCParagraph {
 public:
  /// One key with its value text.
  using Entry = std::pair<KCString, KCString>;

  /// A section with the given name and no keys or children.
  explicit KCParagraph(const KCString& name = KCString());
  /// Deep copy: keys, documentation and all child sections.
  KCParagraph(const KCParagraph& other);
  /// Deep copy: keys, documentation and all child sections.
  KCParagraph& operator=(const KCParagraph& other);
  virtual ~KCParagraph();

  /// The section's name.
  const KCString& GetName() const noexcept { return m_name; }

  /// The child section called `name`, created at the end when there is none; an empty name gives this
  /// section itself. Never null.
  virtual KCParagraph* AddParagraph(const KCString& name);
  /// A new child section called `name`, appended even when a child of that name exists (schema trees hold
  /// many "xsd:element" children). An empty name also gives a new child. Never null.
  virtual KCParagraph* NewParagraph(const KCString& name);
  /// The first child section called `name`, or null when there is none; an empty name gives this section.
  virtual KCParagraph* FindParagraph(const KCString& name);
  /// The first child section called `name`, or null when there is none; an empty name gives this section.
  const KCParagraph* FindParagraph(const KCString& name) const;
  /// The child sections in the order they were added.
  std::vector<KCParagraph*> GetParagraphs() const;

  /// Store `value` under `key` (replacing an earlier value, keeping the key's first position). True.
  virtual bool WriteString(const KCString& key, const KCString& value);
  /// Store the decimal text of `value`. True.
  virtual bool WriteInteger(const KCString& key, int value);
  /// Store `value` with `digits` decimals (digits < 0: shortest exact text). True.
  virtual bool WriteDouble(const KCString& key, double value, int digits);
  /// Store 1 for true, 0 for false. True.
  virtual bool WriteBool(const KCString& key, bool value);
  /// Store the colour in KCColor::ToString form ("r,g,b,a"). True.
  virtual bool WriteColor(const KCString& key, const KCColor& value);
  /// Store the pen style in KCPenStyle::ToString form. True.
  virtual bool WritePenStyle(const KCString& key, const KCPenStyle& value);

  /// The text stored under `key`, or `defaultValue` when the key is missing.
  virtual KCString ReadString(const KCString& key, const KCString& defaultValue) const;
  /// The integer stored under `key` (leading number of the text), or `defaultValue` when the key is missing
  /// or its text does not begin with an integer.
  virtual int ReadInteger(const KCString& key, int defaultValue) const;
  /// The real number at the start of the text under `key` (trailing text ignored), or `defaultValue`.
  virtual double ReadDouble(const KCString& key, double defaultValue) const;
  /// The real number under `key` when the whole text (blanks aside) is one number, otherwise `defaultValue`.
  virtual double ReadDoubleStrict(const KCString& key, double defaultValue) const;
  /// The bool under `key`: "1", "true", "yes", "on" are true, "0", "false", "no", "off" false (any case);
  /// anything else, or a missing key, gives `defaultValue`.
  virtual bool ReadBool(const KCString& key, bool defaultValue) const;
  /// The colour under `key`, or `defaultValue` when missing or not a colour text.
  virtual KCColor ReadColor(const KCString& key, const KCColor& defaultValue) const;
  /// The pen style under `key`, or `defaultValue` when missing.
  virtual KCPenStyle ReadPenStyle(const KCString& key, const KCPenStyle& defaultValue) const;

  /// True when `key` is stored in this section.
  bool HasKey(const KCString& key) const noexcept;
  /// The text under `key`, or the empty string.
  KCString GetValue(const KCString& key) const;
  /// All keys with their texts, in the order they were first written.
  const std::vector<Entry>& GetEntries() const noexcept { return m_entries; }

  /// Set the section's documentation entry: a child text element called `name` holding `text` (XSD
  /// annotations use "xsd:documentation"). A second call replaces the first. True.
  virtual bool WriteDocumentation(const KCString& name, const KCString& text);
  /// The documentation text, or "" when none was written.
  const KCString& GetDocumentation() const noexcept { return m_docText; }
  /// The documentation element name, or "" when none was written.
  const KCString& GetDocumentationName() const noexcept { return m_docName; }

 private:
  friend struct ncappkit_detail::KCParagraphBuilder;

  Entry* FindEntry(const KCString& key) noexcept;
  const Entry* FindEntry(const KCString& key) const noexcept;

  KCString m_name;
  std::vector<Entry> m_entries;
  std::vector<std::unique_ptr<KCParagraph>> m_children;
  KCString m_docName;
  KCString m_docText;
};

/// The owner of a KCParagraph tree, which it writes as XML and reads back from XML.
class NCAPPKIT_EXPORT KCDocument {
 public:
  /// The deepest nesting of elements that LoadFromText and LoadFromFile read: the root element is at depth
  /// 1, and a document with an element at depth kMaxXmlDepth + 1 is refused (the default limit of libxml2 as
  /// well). It bounds the recursion of the copy, ToXml and the destructor of a loaded tree. A documentation
  /// entry is an element too, so a tree whose deepest section holds one reads back when its sections nest at
  /// most kMaxXmlDepth - 1 deep.
  static constexpr int kMaxXmlDepth = 256;

  /// A document without a root section.
  KCDocument() = default;
  /// Deep copy of the tree (and of the last load error).
  KCDocument(const KCDocument& other);
  /// Deep copy of the tree (and of the last load error).
  KCDocument& operator=(const KCDocument& other);
  virtual ~KCDocument();

  /// Create (or replace) the root section called `name` and return it; null when the name is empty or
  /// only blanks.
  virtual KCParagraph* CreateRoot(const KCString& name);
  /// The root section, or null before CreateRoot.
  KCParagraph* GetRoot() const noexcept { return m_root.get(); }

  /// The tree as XML 1.0 text: an XML declaration, then an element per section (names trimmed of blanks),
  /// its keys as attributes in write order, its documentation entry as the first child element, then its
  /// child sections. `& < > " '` are escaped. An empty document gives only the declaration.
  std::string ToXml() const;
  /// Write ToXml() to `path` (through a temporary file beside it, so an existing file is replaced only by a
  /// complete new one; a symbolic link is followed and stays). True on success; false, writing nothing, for a
  /// path with a NUL byte.
  bool SaveToFile(const KCString& path) const;

  /// Replace the tree by the one the XML document `xml` describes. True on success, and GetLoadError() is
  /// then empty. False when `xml` is not a well-formed XML 1.0 document or is one this reader refuses (see
  /// below); GetLoadError() then says where and why, and the tree stays exactly as it was (the text is read
  /// into a new tree, which replaces the old one only when the whole text has been read). Time is linear in
  /// the size of the text.
  ///
  /// How XML becomes a tree:
  /// - The root element is the root section; every element is a section with its tag as name and its
  ///   attributes as keys, in document order, their values as the text they stand for (references resolved,
  ///   nothing trimmed). Child elements are child sections in document order; same-named children stay
  ///   separate sections.
  /// - The documentation entry of a section is its first child element when that element has no attributes,
  ///   is written as a start tag and an end tag (`<d>text</d>` or `<d></d>`, not `<d/>`) and has no child
  ///   elements; its name is the element's name and its text the element's text, byte for byte (white space
  ///   kept; comments and processing instructions in it skipped; CDATA sections as they stand). Two cases are
  ///   ambiguous, both about empty elements: an empty documentation entry that another tool rewrote from
  ///   `<d></d>` to `<d/>` (as `xmllint --format` does) reads as an empty child section `d`; and an empty
  ///   first child section without attributes that a tool wrote as `<c></c>` reads as an empty
  ///   documentation entry. ToXml itself writes neither.
  /// - White space between elements is ignored. Other text directly inside a section (the root, an element
  ///   with attributes or child elements, any element after the first) has no place in the tree and is
  ///   refused with a reason, so that nothing is silently lost; so is an element holding both text and
  ///   child elements.
  /// - Comments and processing instructions are skipped anywhere.
  ///
  /// Round trip: LoadFromText(ToXml()) gives back the tree that ToXml describes, equal in section names,
  /// keys and their order, values byte for byte, documentation names and texts, and nesting (up to
  /// kMaxXmlDepth). Where ToXml itself changes the tree, the loaded tree is the changed one: names trimmed
  /// of blanks and with characters an XML name may not hold replaced by '_' (or prefixed by '_', an empty
  /// name written "_"), repeated attribute names suffixed "_2", "_3", ..., bytes that are not UTF-8 read back
  /// as the Latin-1 characters ToXml wrote for them, characters that XML forbids read back as '?', a
  /// documentation entry with text but no name read back with the name "_".
  ///
  /// What is read besides ToXml's own output (text that a person or another tool may have touched): a UTF-8
  /// byte-order mark; an XML declaration with version 1.x (read as 1.0), encoding UTF-8 (any case, also
  /// "UTF8") and standalone; CR LF and lone CR line ends (read as LF, XML end-of-line handling); comments;
  /// processing instructions; CDATA sections; decimal and hexadecimal character references and the five
  /// predefined entities; both quote styles; blanks around '='; any indentation. Attribute values are
  /// normalised as XML 1.0 demands: a literal tab, line feed or carriage return (CR LF counting as one)
  /// becomes a blank, while a character reference (`&#9;`, `&#10;`, `&#13;`) keeps its character. Names
  /// follow the XML 1.0 (fifth edition) rules. Namespaces are not processed: "xsd:element" is just a name,
  /// and an undeclared prefix is no error.
  ///
  /// Refused, each with a reason: a document that is not UTF-8 (a UTF-16 byte-order mark, a declared
  /// encoding other than UTF-8, bytes that are not valid UTF-8 anywhere), a DOCTYPE declaration (its
  /// entities and default attributes would change the tree; not read), characters XML does not allow (also
  /// as character references), an undefined entity, '<' in an attribute value, a repeated attribute,
  /// mismatched or missing end tags, a truncated document, a missing root, a second root or text after the
  /// root, and elements nested deeper than kMaxXmlDepth.
  bool LoadFromText(const std::string& xml);
  /// LoadFromText with the bytes of the file at `path`. When the file cannot be opened or read, false, the
  /// tree unchanged, and GetLoadError() names the file and the system's reason ("cannot open the file
  /// \"PATH\": No such file or directory").
  bool LoadFromFile(const KCString& path);
  /// Why the last load failed: "line L, column C: reason", L and C counted from 1, C in characters (Unicode
  /// code points of the UTF-8 text; a tab is one character, and so is a byte that is not valid UTF-8),
  /// lines ended by LF, CR LF or CR; the position is where the problem shows (for a document that ends too
  /// early, the end of the text, or the start of the comment, CDATA section, processing instruction or
  /// attribute value left open). For a file that could not be read, the reason alone. Empty after a
  /// successful load and before any load.
  std::string GetLoadError() const { return m_loadError; }

 private:
  std::unique_ptr<KCParagraph> m_root;
  std::string m_loadError;
};
