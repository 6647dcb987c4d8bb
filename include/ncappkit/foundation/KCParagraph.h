// SPDX-License-Identifier: MIT
// KCParagraph and KCDocument: a tree of named sections holding key/value pairs, and the document that owns
// the tree and writes it as XML.
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
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCColor.h"
#include "ncappkit/foundation/KCPenStyle.h"
#include "ncappkit/foundation/KCString.h"

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
  Entry* FindEntry(const KCString& key) noexcept;
  const Entry* FindEntry(const KCString& key) const noexcept;

  KCString m_name;
  std::vector<Entry> m_entries;
  std::vector<std::unique_ptr<KCParagraph>> m_children;
  KCString m_docName;
  KCString m_docText;
};

/// The owner of a KCParagraph tree, which it writes as XML.
class NCAPPKIT_EXPORT KCDocument {
 public:
  /// A document without a root section.
  KCDocument() = default;
  /// Deep copy of the tree.
  KCDocument(const KCDocument& other);
  /// Deep copy of the tree.
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

 private:
  std::unique_ptr<KCParagraph> m_root;
};
