// SPDX-License-Identifier: MIT
// KCC_W3C_Schema: builds a W3C XML Schema (XSD) as a tree of KCParagraph sections inside a KCDocument.
//
// Each schema node is a child section named after its XSD element ("xsd:element", "xsd:sequence", ...) whose
// keys are the node's attributes; KCDocument::ToXml or SaveToFile then writes the schema as XSD text.
//
//   KCDocument doc;
//   KCC_W3C_Schema schema(doc);                               // root "xsd:schema"
//   KCParagraph* job = schema.AddSchemaElement("Job");        // <xsd:element name="Job">
//   KCParagraph* type = schema.AddComplexType(job);
//   KCParagraph* seq = schema.AddSequenceToComplexType(type, false, false);
//   schema.AddElementWithName_Int(seq, "Count", false, true); // type="xsd:int" minOccurs="0"
//   schema.AddAttributeWithName_String(type, "machine", true);
//   doc.SaveToFile("job.xsd");
//
// Rules worth knowing (they are deliberate):
// - The constructor writes the namespace "http://www.w3.org/2001/XMLSchema", while AddSchemaRoot writes the
//   older "http://www.w3.org/2000/10/XMLSchema" and does not store the root it makes.
// - The sections "xsd:complexType " (only the by-name form), "xsd:complexContent ", "xsd:simpleContent " and
//   "xsd:extension " carry a trailing blank in their names; the written XML trims it, so the elements are
//   valid.
// - Every Add operation appends a new child, also when the parent already has one of that name.
// - Attributes are written in a fixed order: "name" (or "ref"), then "type" for elements, then "maxOccurs"
//   = "unbounded" when unbounded is set, then "minOccurs" = 0 when optional is set; attributes of
//   "xsd:attribute" are "name", "use" ("required" or "optional"), then "type".
// - AddAttributeWithName_Decimal with a double accepts the number and does not use it.
// - A null parent section gives null and changes nothing; so does a schema without a root (default
//   constructor) for AddComplexTypeByName and AddSchemaElement. Nothing is reported and nothing throws.
// - The object does not own its root: the document does. Copies share the root pointer, and it is valid only
//   as long as the document keeps that root.
// - The results of the paragraph's value writes are not checked: a section that was made is returned.
// See docs/behaviours.md#xsd-schema-builder.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCParagraph.h"
#include "ncappkit/foundation/KCString.h"

/// Builds an XSD document as a tree of KCParagraph sections inside a KCDocument.
class NCAPPKIT_EXPORT KCC_W3C_Schema {
 public:
  /// A schema without a root: GetSchemaRoot is null, AddComplexTypeByName and AddSchemaElement give null.
  KCC_W3C_Schema();
  /// Creates the root "xsd:schema" of `document` (replacing an earlier root) with "xmlns:xsd" =
  /// "http://www.w3.org/2001/XMLSchema" and "elementFormDefault" = "qualified", and keeps it as the schema
  /// root; when the document makes no root the schema has none.
  explicit KCC_W3C_Schema(KCDocument& document);
  /// Copies the root pointer; both objects then build into the same tree.
  KCC_W3C_Schema(const KCC_W3C_Schema& other);
  /// Copies the root pointer; both objects then build into the same tree.
  KCC_W3C_Schema& operator=(const KCC_W3C_Schema& other);
  virtual ~KCC_W3C_Schema();

  /// Creates the root "xsd:schema" of `document` (replacing an earlier root) with "xmlns:xsd" =
  /// "http://www.w3.org/2000/10/XMLSchema" and "elementFormDefault" = "qualified"; returns it without storing
  /// it, or null when the document makes no root.
  static KCParagraph* AddSchemaRoot(KCDocument& document);
  /// The root stored by the constructor, or null after the default constructor.
  KCParagraph* GetSchemaRoot() const noexcept { return m_root; }

  /// A new "xsd:complexType " (trailing blank) in the schema root with "name" = `name`; null when there is no
  /// root or the section cannot be made.
  KCParagraph* AddComplexTypeByName(const KCString& name);
  /// A new "xsd:element" in the schema root with only "name" = `name`; null when there is no root or the
  /// section cannot be made.
  KCParagraph* AddSchemaElement(const KCString& name);

  /// A new "xsd:complexType" without attributes in `parent`; null for a null parent or a failed section.
  KCParagraph* AddComplexType(KCParagraph* parent);
  /// A new "xsd:complexContent " (trailing blank) in `parent`; null for a null parent or a failed section.
  KCParagraph* AddComplexContent(KCParagraph* parent);
  /// A new "xsd:simpleContent " (trailing blank) in `parent`; null for a null parent or a failed section.
  KCParagraph* AddSimpleContent(KCParagraph* parent);
  /// A new "xsd:simpleType" without attributes in `parent`; null for a null parent or a failed section.
  KCParagraph* AddSimpleType(KCParagraph* parent);
  /// A new "xsd:simpleType" in `parent` holding an "xsd:restriction" with "base" = "xsd:token"; returns the
  /// restriction, or null for a null parent or when either section cannot be made.
  KCParagraph* AddSimpleTypeWithRestrictionBaseToken(KCParagraph* parent);
  /// A new "xsd:restriction" with "base" = "xsd:NMTOKEN" in `parent`; null for a null parent or a failed
  /// section.
  KCParagraph* AddRestriction(KCParagraph* parent);
  /// A new "xsd:extension " (trailing blank) with "base" = `base` in `parent`; null for a null parent or a
  /// failed section.
  KCParagraph* AddExtentionWithBase(KCParagraph* parent, const KCString& base);
  /// A new "xsd:extension " (trailing blank) with "base" = "xsd:string" in `parent`; null for a null parent
  /// or a failed section.
  KCParagraph* AddExtentionWithBase_String(KCParagraph* parent);
  /// A new "xsd:enumeration" with "value" = `value` in `parent`; null for a null parent or a failed section.
  KCParagraph* AddEnumerationValue(KCParagraph* parent, const KCString& value);
  /// A new "xsd:annotation" in `parent` whose documentation entry "xsd:documentation" holds `text`; null for
  /// a null parent or a failed section.
  KCParagraph* AddAnnotation(KCParagraph* parent, const KCString& text);

  /// A new "xsd:sequence" in `parent` with "maxOccurs" = "unbounded" when `unbounded`, then "minOccurs" = 0
  /// when `optional`; null for a null parent or a failed section.
  KCParagraph* AddSequenceToComplexType(KCParagraph* parent, bool unbounded, bool optional);
  /// A new "xsd:choice" in `parent` with "maxOccurs" = "unbounded" when `unbounded`, then "minOccurs" = 0
  /// when `optional`; null for a null parent or a failed section.
  KCParagraph* AddChoiceToComplexType(KCParagraph* parent, bool unbounded, bool optional);
  /// The same as AddChoiceToComplexType: a new "xsd:choice" in `parent`; null for a null parent or a failed
  /// section.
  KCParagraph* AddChoiceToParagraph(KCParagraph* parent, bool unbounded, bool optional);
  /// A new "xsd:all" in `parent` with "minOccurs" = 0 when `optional`; null for a null parent or a failed
  /// section.
  KCParagraph* AddAllToComplexType(KCParagraph* parent, bool optional);

  /// A new "xsd:element" in `parent` with "name" = `name`, then "maxOccurs" = "unbounded" when `unbounded`,
  /// then "minOccurs" = 0 when `optional`; null for a null parent or a failed section.
  KCParagraph* AddElementWithName(KCParagraph* parent, const KCString& name, bool unbounded, bool optional);
  /// As AddElementWithName with "type" = "xsd:decimal" after "name"; null for a null parent or a failed
  /// section.
  KCParagraph* AddElementWithName_Decimal(KCParagraph* parent, const KCString& name, bool unbounded,
                                          bool optional);
  /// As AddElementWithName with "type" = "xsd:int" after "name"; null for a null parent or a failed section.
  KCParagraph* AddElementWithName_Int(KCParagraph* parent, const KCString& name, bool unbounded,
                                      bool optional);
  /// A new "xsd:element" in `parent` with "ref" = `reference`, then "maxOccurs" = "unbounded" when
  /// `unbounded`, then "minOccurs" = 0 when `optional`; null for a null parent or a failed section.
  KCParagraph* AddElementAsReference(KCParagraph* parent, const KCString& reference, bool unbounded,
                                     bool optional);

  /// A new "xsd:attribute" in `parent` with "name" = `name` and "use" = "required" when `required`, else
  /// "optional"; null for a null parent or a failed section.
  KCParagraph* AddAttributeWithName(KCParagraph* parent, const KCString& name, bool required);
  /// As AddAttributeWithName, then "type" = "xsd:string"; null for a null parent or a failed section.
  KCParagraph* AddAttributeWithName_String(KCParagraph* parent, const KCString& name, bool required);
  /// As AddAttributeWithName, then "type" = "xsd:int"; null for a null parent or a failed section.
  KCParagraph* AddAttributeWithName_Int(KCParagraph* parent, const KCString& name, bool required);
  /// As AddAttributeWithName, then "type" = "xsd:short"; null for a null parent or a failed section.
  KCParagraph* AddAttributeWithName_Short(KCParagraph* parent, const KCString& name, bool required);
  /// As AddAttributeWithName, then "type" = "xsd:decimal"; null for a null parent or a failed section.
  KCParagraph* AddAttributeWithName_Decimal(KCParagraph* parent, const KCString& name, bool required);
  /// As AddAttributeWithName, then "type" = "xsd:decimal"; `value` is accepted and not written. Null for a
  /// null parent or a failed section.
  KCParagraph* AddAttributeWithName_Decimal(KCParagraph* parent, const KCString& name, double value,
                                            bool required);

 private:
  // The shared step of the element operations: "name", "type" unless `type` is empty, then max and min.
  KCParagraph* AddElementWithName_Type(KCParagraph* parent, const KCString& name, const KCString& type,
                                       bool unbounded, bool optional);

  KCParagraph* m_root = nullptr;  // lives in the document; not owned
};
