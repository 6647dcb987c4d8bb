// SPDX-License-Identifier: MIT
// KCC_W3C_Schema: every node is a new child section (KCParagraph::NewParagraph, which appends even when a
// child of that name exists) whose keys are written in the order the XSD text shows them.
#include "ncappkit/schema/KCC_W3C_Schema.h"

namespace {

// The namespace of the current XML Schema recommendation, written by the constructor.
const char* const kNamespace2001 = "http://www.w3.org/2001/XMLSchema";
// The namespace of the October 2000 working draft, written by AddSchemaRoot; the two differ on purpose.
const char* const kNamespace2000 = "http://www.w3.org/2000/10/XMLSchema";

KCParagraph* NewChild(KCParagraph* parent, const char* name) {
  return parent ? parent->NewParagraph(name) : nullptr;
}

KCParagraph* CreateSchemaRoot(KCDocument& document, const char* xsdNamespace) {
  KCParagraph* root = document.CreateRoot("xsd:schema");
  if (root) {
    root->WriteString("xmlns:xsd", xsdNamespace);
    root->WriteString("elementFormDefault", "qualified");
  }
  return root;
}

// "maxOccurs" = "unbounded" when unbounded, then "minOccurs" = 0 when optional.
void WriteOccurs(KCParagraph& node, bool unbounded, bool optional) {
  if (unbounded)
    node.WriteString("maxOccurs", "unbounded");
  if (optional)
    node.WriteInteger("minOccurs", 0);
}

KCParagraph* AddOccursNode(KCParagraph* parent, const char* name, bool unbounded, bool optional) {
  KCParagraph* node = NewChild(parent, name);
  if (node)
    WriteOccurs(*node, unbounded, optional);
  return node;
}

KCParagraph* AddNodeWithKey(KCParagraph* parent, const char* name, const char* key, const KCString& value) {
  KCParagraph* node = NewChild(parent, name);
  if (node)
    node->WriteString(key, value);
  return node;
}

// An "xsd:attribute" with "name", "use", then "type" unless `type` is null.
KCParagraph* AddAttribute(KCParagraph* parent, const KCString& name, bool required, const char* type) {
  KCParagraph* attribute = NewChild(parent, "xsd:attribute");
  if (!attribute)
    return nullptr;
  attribute->WriteString("name", name);
  attribute->WriteString("use", required ? "required" : "optional");
  if (type)
    attribute->WriteString("type", type);
  return attribute;
}

}  // namespace

KCC_W3C_Schema::KCC_W3C_Schema() = default;

KCC_W3C_Schema::KCC_W3C_Schema(KCDocument& document) : m_root(CreateSchemaRoot(document, kNamespace2001)) {}

KCC_W3C_Schema::KCC_W3C_Schema(const KCC_W3C_Schema& other) = default;

KCC_W3C_Schema& KCC_W3C_Schema::operator=(const KCC_W3C_Schema& other) = default;

KCC_W3C_Schema::~KCC_W3C_Schema() = default;

KCParagraph* KCC_W3C_Schema::AddSchemaRoot(KCDocument& document) {
  return CreateSchemaRoot(document, kNamespace2000);
}

KCParagraph* KCC_W3C_Schema::AddComplexTypeByName(const KCString& name) {
  return AddNodeWithKey(m_root, "xsd:complexType ", "name", name);
}

KCParagraph* KCC_W3C_Schema::AddSchemaElement(const KCString& name) {
  return AddElementWithName(m_root, name, false, false);
}

KCParagraph* KCC_W3C_Schema::AddComplexType(KCParagraph* parent) {
  return NewChild(parent, "xsd:complexType");
}

KCParagraph* KCC_W3C_Schema::AddComplexContent(KCParagraph* parent) {
  return NewChild(parent, "xsd:complexContent ");
}

KCParagraph* KCC_W3C_Schema::AddSimpleContent(KCParagraph* parent) {
  return NewChild(parent, "xsd:simpleContent ");
}

KCParagraph* KCC_W3C_Schema::AddSimpleType(KCParagraph* parent) {
  return NewChild(parent, "xsd:simpleType");
}

KCParagraph* KCC_W3C_Schema::AddSimpleTypeWithRestrictionBaseToken(KCParagraph* parent) {
  return AddNodeWithKey(AddSimpleType(parent), "xsd:restriction", "base", "xsd:token");
}

KCParagraph* KCC_W3C_Schema::AddRestriction(KCParagraph* parent) {
  return AddNodeWithKey(parent, "xsd:restriction", "base", "xsd:NMTOKEN");
}

KCParagraph* KCC_W3C_Schema::AddExtentionWithBase(KCParagraph* parent, const KCString& base) {
  return AddNodeWithKey(parent, "xsd:extension ", "base", base);
}

KCParagraph* KCC_W3C_Schema::AddExtentionWithBase_String(KCParagraph* parent) {
  return AddExtentionWithBase(parent, "xsd:string");
}

KCParagraph* KCC_W3C_Schema::AddEnumerationValue(KCParagraph* parent, const KCString& value) {
  return AddNodeWithKey(parent, "xsd:enumeration", "value", value);
}

KCParagraph* KCC_W3C_Schema::AddAnnotation(KCParagraph* parent, const KCString& text) {
  KCParagraph* annotation = NewChild(parent, "xsd:annotation");
  if (annotation)
    annotation->WriteDocumentation("xsd:documentation", text);
  return annotation;
}

KCParagraph* KCC_W3C_Schema::AddSequenceToComplexType(KCParagraph* parent, bool unbounded, bool optional) {
  return AddOccursNode(parent, "xsd:sequence", unbounded, optional);
}

KCParagraph* KCC_W3C_Schema::AddChoiceToComplexType(KCParagraph* parent, bool unbounded, bool optional) {
  return AddOccursNode(parent, "xsd:choice", unbounded, optional);
}

KCParagraph* KCC_W3C_Schema::AddChoiceToParagraph(KCParagraph* parent, bool unbounded, bool optional) {
  return AddOccursNode(parent, "xsd:choice", unbounded, optional);
}

KCParagraph* KCC_W3C_Schema::AddAllToComplexType(KCParagraph* parent, bool optional) {
  return AddOccursNode(parent, "xsd:all", false, optional);
}

KCParagraph* KCC_W3C_Schema::AddElementWithName(KCParagraph* parent, const KCString& name, bool unbounded,
                                                bool optional) {
  return AddElementWithName_Type(parent, name, KCString(), unbounded, optional);
}

KCParagraph* KCC_W3C_Schema::AddElementWithName_Decimal(KCParagraph* parent, const KCString& name,
                                                        bool unbounded, bool optional) {
  return AddElementWithName_Type(parent, name, "xsd:decimal", unbounded, optional);
}

KCParagraph* KCC_W3C_Schema::AddElementWithName_Int(KCParagraph* parent, const KCString& name, bool unbounded,
                                                    bool optional) {
  return AddElementWithName_Type(parent, name, "xsd:int", unbounded, optional);
}

KCParagraph* KCC_W3C_Schema::AddElementAsReference(KCParagraph* parent, const KCString& reference,
                                                   bool unbounded, bool optional) {
  KCParagraph* element = AddNodeWithKey(parent, "xsd:element", "ref", reference);
  if (element)
    WriteOccurs(*element, unbounded, optional);
  return element;
}

KCParagraph* KCC_W3C_Schema::AddAttributeWithName(KCParagraph* parent, const KCString& name, bool required) {
  return AddAttribute(parent, name, required, nullptr);
}

KCParagraph* KCC_W3C_Schema::AddAttributeWithName_String(KCParagraph* parent, const KCString& name,
                                                         bool required) {
  return AddAttribute(parent, name, required, "xsd:string");
}

KCParagraph* KCC_W3C_Schema::AddAttributeWithName_Int(KCParagraph* parent, const KCString& name,
                                                      bool required) {
  return AddAttribute(parent, name, required, "xsd:int");
}

KCParagraph* KCC_W3C_Schema::AddAttributeWithName_Short(KCParagraph* parent, const KCString& name,
                                                        bool required) {
  return AddAttribute(parent, name, required, "xsd:short");
}

KCParagraph* KCC_W3C_Schema::AddAttributeWithName_Decimal(KCParagraph* parent, const KCString& name,
                                                          bool required) {
  return AddAttribute(parent, name, required, "xsd:decimal");
}

KCParagraph* KCC_W3C_Schema::AddAttributeWithName_Decimal(KCParagraph* parent, const KCString& name,
                                                          double /*value*/, bool required) {
  return AddAttribute(parent, name, required, "xsd:decimal");
}

KCParagraph* KCC_W3C_Schema::AddElementWithName_Type(KCParagraph* parent, const KCString& name,
                                                     const KCString& type, bool unbounded, bool optional) {
  KCParagraph* element = AddNodeWithKey(parent, "xsd:element", "name", name);
  if (!element)
    return nullptr;
  if (!type.IsEmpty())
    element->WriteString("type", type);
  WriteOccurs(*element, unbounded, optional);
  return element;
}
