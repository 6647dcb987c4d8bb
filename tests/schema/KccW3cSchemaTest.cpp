// SPDX-License-Identifier: MIT
// KCC_W3C_Schema: which section every Add operation makes, with which attributes in which order, and what
// happens without a root, with a null parent and when a section cannot be made.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "ncappkit/foundation/KCParagraph.h"
#include "ncappkit/schema/KCC_W3C_Schema.h"
#include "support/TestData.h"

namespace {

using Attributes = std::vector<std::pair<std::string, std::string>>;

// The keys of `node` with their texts, in write order.
Attributes AttributesOf(const KCParagraph& node) {
  Attributes result;
  for (const KCParagraph::Entry& entry : node.GetEntries())
    result.emplace_back(entry.first.str(), entry.second.str());
  return result;
}

// A section whose NewParagraph fails, as a section of a client's own tree may.
class NoChildParagraph : public KCParagraph {
 public:
  explicit NoChildParagraph(const KCString& name = KCString()) : KCParagraph(name) {}
  KCParagraph* NewParagraph(const KCString& /*name*/) override { return nullptr; }
};

// A section whose new children are NoChildParagraph sections, so the second level cannot be made.
class OneLevelParagraph : public KCParagraph {
 public:
  KCParagraph* NewParagraph(const KCString& name) override {
    made.push_back(std::make_unique<NoChildParagraph>(name));
    return made.back().get();
  }
  std::vector<std::unique_ptr<NoChildParagraph>> made;
};

// A section that logs its text and integer writes, and whose children log into the same list.
class RecordingParagraph : public KCParagraph {
 public:
  explicit RecordingParagraph(std::vector<std::string>& log) : m_log(log) {}
  KCParagraph* NewParagraph(const KCString& /*name*/) override {
    m_made.push_back(std::make_unique<RecordingParagraph>(m_log));
    return m_made.back().get();
  }
  // Only logged, not stored: the base class's integer write goes through its text write.
  bool WriteString(const KCString& key, const KCString& value) override {
    m_log.push_back("text " + key.str() + "=" + value.str());
    return true;
  }
  bool WriteInteger(const KCString& key, int value) override {
    m_log.push_back("integer " + key.str() + "=" + std::to_string(value));
    return true;
  }

 private:
  std::vector<std::string>& m_log;
  std::vector<std::unique_ptr<RecordingParagraph>> m_made;
};

// A document that makes no root section.
class NoRootDocument : public KCDocument {
 public:
  KCParagraph* CreateRoot(const KCString& /*name*/) override { return nullptr; }
};

// A document whose root section cannot hold children.
class ChildlessRootDocument : public KCDocument {
 public:
  KCParagraph* CreateRoot(const KCString& name) override {
    root = std::make_unique<NoChildParagraph>(name);
    return root.get();
  }
  std::unique_ptr<NoChildParagraph> root;
};

// ---------------------------------------------------------------------------------------------------------
// Every Add operation: the section it makes in its parent and the attributes it writes, in order.

struct AddRow {
  std::string name;
  std::function<KCParagraph*(KCC_W3C_Schema&, KCParagraph*)> add;
  std::string section;
  Attributes attributes;
  bool intoRoot = false;  // the operation takes no parent and adds to the schema root
  bool nested = false;    // the operation returns a section inside the child it adds
};

void PrintTo(const AddRow& row, std::ostream* out) {
  *out << row.name;
}

const std::vector<AddRow>& AddRows() {
  using S = KCC_W3C_Schema;
  using P = KCParagraph*;
  static const std::vector<AddRow> rows = {
      {"ComplexTypeByName",
       [](S& s, P) { return s.AddComplexTypeByName("PartType"); },
       "xsd:complexType ",
       {{"name", "PartType"}},
       true},
      {"SchemaElement",
       [](S& s, P) { return s.AddSchemaElement("Job"); },
       "xsd:element",
       {{"name", "Job"}},
       true},
      {"ComplexType", [](S& s, P p) { return s.AddComplexType(p); }, "xsd:complexType", {}},
      {"ComplexContent", [](S& s, P p) { return s.AddComplexContent(p); }, "xsd:complexContent ", {}},
      {"SimpleContent", [](S& s, P p) { return s.AddSimpleContent(p); }, "xsd:simpleContent ", {}},
      {"SimpleType", [](S& s, P p) { return s.AddSimpleType(p); }, "xsd:simpleType", {}},
      {"SimpleTypeWithRestrictionBaseToken",
       [](S& s, P p) { return s.AddSimpleTypeWithRestrictionBaseToken(p); },
       "xsd:restriction",
       {{"base", "xsd:token"}},
       false,
       true},
      {"Restriction",
       [](S& s, P p) { return s.AddRestriction(p); },
       "xsd:restriction",
       {{"base", "xsd:NMTOKEN"}}},
      {"ExtentionWithBase",
       [](S& s, P p) { return s.AddExtentionWithBase(p, "PartType"); },
       "xsd:extension ",
       {{"base", "PartType"}}},
      {"ExtentionWithBaseString",
       [](S& s, P p) { return s.AddExtentionWithBase_String(p); },
       "xsd:extension ",
       {{"base", "xsd:string"}}},
      {"EnumerationValue",
       [](S& s, P p) { return s.AddEnumerationValue(p, "steel"); },
       "xsd:enumeration",
       {{"value", "steel"}}},
      {"Annotation", [](S& s, P p) { return s.AddAnnotation(p, "Parts of a job"); }, "xsd:annotation", {}},
      {"SequenceWithoutFlags",
       [](S& s, P p) { return s.AddSequenceToComplexType(p, false, false); },
       "xsd:sequence",
       {}},
      {"SequenceUnboundedOptional",
       [](S& s, P p) { return s.AddSequenceToComplexType(p, true, true); },
       "xsd:sequence",
       {{"maxOccurs", "unbounded"}, {"minOccurs", "0"}}},
      {"SequenceOptional",
       [](S& s, P p) { return s.AddSequenceToComplexType(p, false, true); },
       "xsd:sequence",
       {{"minOccurs", "0"}}},
      {"ChoiceToComplexTypeUnbounded",
       [](S& s, P p) { return s.AddChoiceToComplexType(p, true, false); },
       "xsd:choice",
       {{"maxOccurs", "unbounded"}}},
      {"ChoiceToComplexTypeUnboundedOptional",
       [](S& s, P p) { return s.AddChoiceToComplexType(p, true, true); },
       "xsd:choice",
       {{"maxOccurs", "unbounded"}, {"minOccurs", "0"}}},
      {"ChoiceToParagraphWithoutFlags",
       [](S& s, P p) { return s.AddChoiceToParagraph(p, false, false); },
       "xsd:choice",
       {}},
      {"ChoiceToParagraphUnboundedOptional",
       [](S& s, P p) { return s.AddChoiceToParagraph(p, true, true); },
       "xsd:choice",
       {{"maxOccurs", "unbounded"}, {"minOccurs", "0"}}},
      {"AllWithoutFlag", [](S& s, P p) { return s.AddAllToComplexType(p, false); }, "xsd:all", {}},
      {"AllOptional",
       [](S& s, P p) { return s.AddAllToComplexType(p, true); },
       "xsd:all",
       {{"minOccurs", "0"}}},
      {"ElementWithNameUnbounded",
       [](S& s, P p) { return s.AddElementWithName(p, "Part", true, false); },
       "xsd:element",
       {{"name", "Part"}, {"maxOccurs", "unbounded"}}},
      {"ElementWithNameDecimalOptional",
       [](S& s, P p) { return s.AddElementWithName_Decimal(p, "Thickness", false, true); },
       "xsd:element",
       {{"name", "Thickness"}, {"type", "xsd:decimal"}, {"minOccurs", "0"}}},
      {"ElementWithNameDecimalWithoutFlags",
       [](S& s, P p) { return s.AddElementWithName_Decimal(p, "Thickness", false, false); },
       "xsd:element",
       {{"name", "Thickness"}, {"type", "xsd:decimal"}}},
      {"ElementWithNameIntUnboundedOptional",
       [](S& s, P p) { return s.AddElementWithName_Int(p, "Count", true, true); },
       "xsd:element",
       {{"name", "Count"}, {"type", "xsd:int"}, {"maxOccurs", "unbounded"}, {"minOccurs", "0"}}},
      {"ElementAsReferenceUnboundedOptional",
       [](S& s, P p) { return s.AddElementAsReference(p, "Tool", true, true); },
       "xsd:element",
       {{"ref", "Tool"}, {"maxOccurs", "unbounded"}, {"minOccurs", "0"}}},
      {"ElementAsReferenceWithoutFlags",
       [](S& s, P p) { return s.AddElementAsReference(p, "Tool", false, false); },
       "xsd:element",
       {{"ref", "Tool"}}},
      {"AttributeWithNameRequired",
       [](S& s, P p) { return s.AddAttributeWithName(p, "material", true); },
       "xsd:attribute",
       {{"name", "material"}, {"use", "required"}}},
      {"AttributeWithNameOptional",
       [](S& s, P p) { return s.AddAttributeWithName(p, "units", false); },
       "xsd:attribute",
       {{"name", "units"}, {"use", "optional"}}},
      {"AttributeStringRequired",
       [](S& s, P p) { return s.AddAttributeWithName_String(p, "machine", true); },
       "xsd:attribute",
       {{"name", "machine"}, {"use", "required"}, {"type", "xsd:string"}}},
      {"AttributeIntRequired",
       [](S& s, P p) { return s.AddAttributeWithName_Int(p, "program", true); },
       "xsd:attribute",
       {{"name", "program"}, {"use", "required"}, {"type", "xsd:int"}}},
      {"AttributeShortOptional",
       [](S& s, P p) { return s.AddAttributeWithName_Short(p, "priority", false); },
       "xsd:attribute",
       {{"name", "priority"}, {"use", "optional"}, {"type", "xsd:short"}}},
      {"AttributeDecimalRequired",
       [](S& s, P p) { return s.AddAttributeWithName_Decimal(p, "diameter", true); },
       "xsd:attribute",
       {{"name", "diameter"}, {"use", "required"}, {"type", "xsd:decimal"}}},
      {"AttributeDecimalWithValueOptional",
       [](S& s, P p) { return s.AddAttributeWithName_Decimal(p, "weight", 12.5, false); },
       "xsd:attribute",
       {{"name", "weight"}, {"use", "optional"}, {"type", "xsd:decimal"}}},
  };
  return rows;
}

std::vector<AddRow> RowsOfDirectChildren() {
  std::vector<AddRow> rows;
  for (const AddRow& row : AddRows()) {
    if (!row.nested)
      rows.push_back(row);
  }
  return rows;
}

std::vector<AddRow> RowsWithParent() {
  std::vector<AddRow> rows;
  for (const AddRow& row : AddRows()) {
    if (!row.intoRoot)
      rows.push_back(row);
  }
  return rows;
}

class KccW3cSchemaAdd : public ::testing::TestWithParam<AddRow> {};

TEST_P(KccW3cSchemaAdd, MakesOneChildSectionWithItsAttributesInOrder) {
  const AddRow& row = GetParam();
  KCDocument document;
  KCC_W3C_Schema schema(document);
  KCParagraph* parent = schema.GetSchemaRoot();

  KCParagraph* node = row.add(schema, parent);

  ASSERT_NE(node, nullptr);
  ASSERT_EQ(parent->GetParagraphs().size(), 1u);
  EXPECT_EQ(parent->GetParagraphs()[0], node);
  EXPECT_EQ(node->GetName().str(), row.section);
  EXPECT_EQ(AttributesOf(*node), row.attributes);
}

// AddSimpleTypeWithRestrictionBaseToken, which returns a grandchild, has a test of its own below.
INSTANTIATE_TEST_SUITE_P(Table, KccW3cSchemaAdd, ::testing::ValuesIn(RowsOfDirectChildren()), RowName());

class KccW3cSchemaNullParent : public ::testing::TestWithParam<AddRow> {};

TEST_P(KccW3cSchemaNullParent, GivesNull) {
  KCDocument document;
  KCC_W3C_Schema schema(document);

  KCParagraph* node = GetParam().add(schema, nullptr);

  EXPECT_EQ(node, nullptr);
  EXPECT_TRUE(schema.GetSchemaRoot()->GetParagraphs().empty());
}

INSTANTIATE_TEST_SUITE_P(Table, KccW3cSchemaNullParent, ::testing::ValuesIn(RowsWithParent()), RowName());

class KccW3cSchemaChildNotMade : public ::testing::TestWithParam<AddRow> {};

TEST_P(KccW3cSchemaChildNotMade, GivesNull) {
  KCC_W3C_Schema schema;
  NoChildParagraph parent("xsd:complexType");

  KCParagraph* node = GetParam().add(schema, &parent);

  EXPECT_EQ(node, nullptr);
  EXPECT_TRUE(parent.GetEntries().empty());
}

INSTANTIATE_TEST_SUITE_P(Table, KccW3cSchemaChildNotMade, ::testing::ValuesIn(RowsWithParent()), RowName());

// ---------------------------------------------------------------------------------------------------------
// The edge cases of the element and attribute operations.

TEST(KccW3cSchema, ElementWithoutFlagsWritesOnlyName) {
  KCC_W3C_Schema schema;
  KCParagraph sequence("xsd:sequence");

  KCParagraph* element = schema.AddElementWithName(&sequence, "Part", false, false);

  ASSERT_NE(element, nullptr);
  EXPECT_EQ(AttributesOf(*element), (Attributes{{"name", "Part"}}));
}

TEST(KccW3cSchema, ElementUnboundedAndOptionalWritesNameThenMaxOccursThenMinOccurs) {
  KCC_W3C_Schema schema;
  KCParagraph sequence("xsd:sequence");

  KCParagraph* element = schema.AddElementWithName(&sequence, "Part", true, true);

  ASSERT_NE(element, nullptr);
  EXPECT_EQ(AttributesOf(*element),
            (Attributes{{"name", "Part"}, {"maxOccurs", "unbounded"}, {"minOccurs", "0"}}));
}

TEST(KccW3cSchema, OptionalIntAttributeWritesNameThenUseOptionalThenType) {
  KCC_W3C_Schema schema;
  KCParagraph type("xsd:complexType");

  KCParagraph* attribute = schema.AddAttributeWithName_Int(&type, "count", false);

  ASSERT_NE(attribute, nullptr);
  EXPECT_EQ(AttributesOf(*attribute),
            (Attributes{{"name", "count"}, {"use", "optional"}, {"type", "xsd:int"}}));
}

TEST(KccW3cSchema, MaxOccursIsATextWriteAndMinOccursAnIntegerWrite) {
  std::vector<std::string> log;
  RecordingParagraph sequence(log);
  KCC_W3C_Schema schema;

  schema.AddElementWithName_Int(&sequence, "Count", true, true);

  EXPECT_EQ(log, (std::vector<std::string>{"text name=Count", "text type=xsd:int", "text maxOccurs=unbounded",
                                           "integer minOccurs=0"}));
}

TEST(KccW3cSchema, RepeatedAddAppendsANewChildEachTime) {
  KCC_W3C_Schema schema;
  KCParagraph sequence("xsd:sequence");

  KCParagraph* first = schema.AddElementWithName(&sequence, "Part", false, false);
  KCParagraph* second = schema.AddElementWithName(&sequence, "Part", false, false);

  EXPECT_NE(first, second);
  EXPECT_EQ(sequence.GetParagraphs(), (std::vector<KCParagraph*>{first, second}));
}

TEST(KccW3cSchema, SimpleTypeWithRestrictionBaseTokenReturnsTheRestrictionInsideANewSimpleType) {
  KCC_W3C_Schema schema;
  KCParagraph attribute("xsd:attribute");

  KCParagraph* restriction = schema.AddSimpleTypeWithRestrictionBaseToken(&attribute);

  ASSERT_EQ(attribute.GetParagraphs().size(), 1u);
  const KCParagraph* simpleType = attribute.GetParagraphs()[0];
  EXPECT_EQ(simpleType->GetName().str(), "xsd:simpleType");
  EXPECT_EQ(simpleType->GetParagraphs(), (std::vector<KCParagraph*>{restriction}));
  ASSERT_NE(restriction, nullptr);
  EXPECT_EQ(restriction->GetName().str(), "xsd:restriction");
  EXPECT_EQ(AttributesOf(*restriction), (Attributes{{"base", "xsd:token"}}));
}

TEST(KccW3cSchema, RestrictionThatCannotBeMadeGivesNullAndLeavesTheSimpleTypeEmpty) {
  KCC_W3C_Schema schema;
  OneLevelParagraph attribute;

  KCParagraph* restriction = schema.AddSimpleTypeWithRestrictionBaseToken(&attribute);

  EXPECT_EQ(restriction, nullptr);
  ASSERT_EQ(attribute.made.size(), 1u);
  EXPECT_EQ(attribute.made[0]->GetName().str(), "xsd:simpleType");
  EXPECT_TRUE(attribute.made[0]->GetEntries().empty());
}

TEST(KccW3cSchema, AnnotationHoldsItsTextAsTheDocumentationEntry) {
  KCC_W3C_Schema schema;
  KCParagraph element("xsd:element");

  KCParagraph* annotation = schema.AddAnnotation(&element, "One part of a job");

  ASSERT_NE(annotation, nullptr);
  EXPECT_EQ(annotation->GetDocumentationName().str(), "xsd:documentation");
  EXPECT_EQ(annotation->GetDocumentation().str(), "One part of a job");
}

// ---------------------------------------------------------------------------------------------------------
// The schema root.

TEST(KccW3cSchema, ConstructorMakesTheDocumentRootWith2001Namespace) {
  KCDocument document;

  KCC_W3C_Schema schema(document);

  ASSERT_NE(schema.GetSchemaRoot(), nullptr);
  EXPECT_EQ(schema.GetSchemaRoot(), document.GetRoot());
  EXPECT_EQ(schema.GetSchemaRoot()->GetName().str(), "xsd:schema");
  EXPECT_EQ(
      AttributesOf(*schema.GetSchemaRoot()),
      (Attributes{{"xmlns:xsd", "http://www.w3.org/2001/XMLSchema"}, {"elementFormDefault", "qualified"}}));
}

TEST(KccW3cSchema, AddSchemaRootWrites200010Namespace) {
  KCDocument document;

  KCParagraph* root = KCC_W3C_Schema::AddSchemaRoot(document);

  ASSERT_NE(root, nullptr);
  EXPECT_EQ(root, document.GetRoot());
  EXPECT_EQ(root->GetName().str(), "xsd:schema");
  EXPECT_EQ(AttributesOf(*root), (Attributes{{"xmlns:xsd", "http://www.w3.org/2000/10/XMLSchema"},
                                             {"elementFormDefault", "qualified"}}));
}

TEST(KccW3cSchema, AddSchemaRootDoesNotStoreTheRoot) {
  KCC_W3C_Schema schema;
  KCDocument document;

  schema.AddSchemaRoot(document);

  EXPECT_EQ(schema.GetSchemaRoot(), nullptr);
  EXPECT_EQ(schema.AddComplexTypeByName("PartType"), nullptr);
}

TEST(KccW3cSchema, DefaultConstructedSchemaHasNoRoot) {
  KCC_W3C_Schema schema;

  EXPECT_EQ(schema.GetSchemaRoot(), nullptr);
}

TEST(KccW3cSchema, ComplexTypeByNameWithoutRootGivesNull) {
  KCC_W3C_Schema schema;

  EXPECT_EQ(schema.AddComplexTypeByName("PartType"), nullptr);
}

TEST(KccW3cSchema, SchemaElementWithoutRootGivesNull) {
  KCC_W3C_Schema schema;

  EXPECT_EQ(schema.AddSchemaElement("Job"), nullptr);
}

TEST(KccW3cSchema, DocumentThatMakesNoRootGivesASchemaWithoutRoot) {
  NoRootDocument document;

  KCC_W3C_Schema schema(document);

  EXPECT_EQ(schema.GetSchemaRoot(), nullptr);
  EXPECT_EQ(KCC_W3C_Schema::AddSchemaRoot(document), nullptr);
}

TEST(KccW3cSchema, SchemaElementGivesNullWhenTheRootCannotHoldIt) {
  ChildlessRootDocument document;
  KCC_W3C_Schema schema(document);

  KCParagraph* element = schema.AddSchemaElement("Job");

  EXPECT_EQ(element, nullptr);
  EXPECT_EQ(AttributesOf(*document.root), (Attributes{{"xmlns:xsd", "http://www.w3.org/2001/XMLSchema"},
                                                      {"elementFormDefault", "qualified"}}));
}

TEST(KccW3cSchema, CopyBuildsIntoTheSameRoot) {
  KCDocument document;
  const KCC_W3C_Schema original(document);

  KCC_W3C_Schema copy(original);
  KCParagraph* type = copy.AddComplexTypeByName("PartType");

  EXPECT_EQ(copy.GetSchemaRoot(), original.GetSchemaRoot());
  EXPECT_EQ(document.GetRoot()->GetParagraphs(), (std::vector<KCParagraph*>{type}));
}

TEST(KccW3cSchema, AssignmentCopiesTheRootPointer) {
  KCDocument document;
  const KCC_W3C_Schema original(document);
  KCC_W3C_Schema target;

  target = original;

  EXPECT_EQ(target.GetSchemaRoot(), document.GetRoot());
}

// ---------------------------------------------------------------------------------------------------------
// The XML written from a schema tree.

TEST(KccW3cSchema, SectionNamesWithTrailingBlankAreWrittenAsPlainElementNames) {
  KCDocument document;
  KCC_W3C_Schema schema(document);
  KCParagraph* note = schema.AddComplexTypeByName("Note");
  schema.AddExtentionWithBase_String(schema.AddSimpleContent(note));
  KCParagraph* part = schema.AddComplexTypeByName("Part");
  schema.AddExtentionWithBase(schema.AddComplexContent(part), "Note");

  const std::string xml = document.ToXml();

  EXPECT_EQ(xml,
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<xsd:schema xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\" elementFormDefault=\"qualified\">\n"
            "  <xsd:complexType name=\"Note\">\n"
            "    <xsd:simpleContent>\n"
            "      <xsd:extension base=\"xsd:string\"/>\n"
            "    </xsd:simpleContent>\n"
            "  </xsd:complexType>\n"
            "  <xsd:complexType name=\"Part\">\n"
            "    <xsd:complexContent>\n"
            "      <xsd:extension base=\"Note\"/>\n"
            "    </xsd:complexContent>\n"
            "  </xsd:complexType>\n"
            "</xsd:schema>\n");
}

TEST(KccW3cSchema, AnnotationIsWrittenWithADocumentationElement) {
  KCDocument document;
  KCC_W3C_Schema schema(document);
  schema.AddAnnotation(schema.GetSchemaRoot(), "Parts & tools");

  const std::string xml = document.ToXml();

  EXPECT_EQ(xml,
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<xsd:schema xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\" elementFormDefault=\"qualified\">\n"
            "  <xsd:annotation>\n"
            "    <xsd:documentation>Parts &amp; tools</xsd:documentation>\n"
            "  </xsd:annotation>\n"
            "</xsd:schema>\n");
}

}  // namespace
