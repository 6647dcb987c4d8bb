// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "ncappkit/foundation/KCParagraph.h"
#include "support/TempDir.h"
#include "support/TestData.h"

#if !defined(_WIN32)
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

// ---------------------------------------------------------------------------------------------------------
// A small, strict XML 1.0 reader for checking ToXml: it accepts only well-formed documents of elements,
// attributes and text (what ToXml produces) and gives the tree back with references resolved.

struct XmlElement {
  std::string name;
  std::vector<std::pair<std::string, std::string>> attributes;
  std::string text;  // character data directly inside the element, references resolved
  std::vector<XmlElement> children;
};

class StrictXmlReader {
 public:
  explicit StrictXmlReader(const std::string& xml) : m_xml(xml) {}

  // True when the text is a well-formed document; `root` gets its root element.
  bool Read(XmlElement& root, std::string& error) {
    const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    if (m_xml.compare(0, declaration.size(), declaration) != 0)
      return Fail("no XML declaration", error);
    if (!ValidUtf8())
      return Fail("not UTF-8", error);
    m_pos = declaration.size();
    SkipBlanks();
    if (!Element(root))
      return Fail(m_error, error);
    SkipBlanks();
    if (m_pos != m_xml.size())
      return Fail("text after the root element", error);
    return true;
  }

 private:
  bool Fail(const std::string& why, std::string& error) {
    error = why + " at " + std::to_string(m_pos);
    return false;
  }
  bool Error(const std::string& why) {
    m_error = why;
    return false;
  }
  bool ValidUtf8() const {
    std::size_t i = 0;
    while (i < m_xml.size()) {
      const auto b = static_cast<unsigned char>(m_xml[i]);
      std::size_t n = b < 0x80             ? 1
                      : (b & 0xE0) == 0xC0 ? 2
                      : (b & 0xF0) == 0xE0 ? 3
                      : (b & 0xF8) == 0xF0 ? 4
                                           : 0;
      if (n == 0 || i + n > m_xml.size())
        return false;
      if (b < 0x20 && b != '\t' && b != '\n' && b != '\r')
        return false;  // not an XML character
      for (std::size_t k = 1; k < n; ++k) {
        if ((static_cast<unsigned char>(m_xml[i + k]) & 0xC0) != 0x80)
          return false;
      }
      if (n == 2 && b < 0xC2)
        return false;
      i += n;
    }
    return true;
  }
  static bool NameStart(unsigned char c) {
    return c == ':' || c == '_' || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c >= 0x80;
  }
  static bool NameChar(unsigned char c) {
    return NameStart(c) || c == '-' || c == '.' || (c >= '0' && c <= '9');
  }
  void SkipBlanks() {
    while (m_pos < m_xml.size() &&
           (m_xml[m_pos] == ' ' || m_xml[m_pos] == '\n' || m_xml[m_pos] == '\t' || m_xml[m_pos] == '\r')) {
      ++m_pos;
    }
  }
  bool Name(std::string& name) {
    if (m_pos >= m_xml.size() || !NameStart(static_cast<unsigned char>(m_xml[m_pos])))
      return Error("bad name");
    const std::size_t start = m_pos;
    while (m_pos < m_xml.size() && NameChar(static_cast<unsigned char>(m_xml[m_pos])))
      ++m_pos;
    name = m_xml.substr(start, m_pos - start);
    return true;
  }
  // A reference after '&'; appends the character it stands for.
  bool Reference(std::string& out) {
    const std::size_t end = m_xml.find(';', m_pos);
    if (end == std::string::npos)
      return Error("unterminated reference");
    const std::string ref = m_xml.substr(m_pos, end - m_pos);
    m_pos = end + 1;
    if (ref == "amp")
      return out += '&', true;
    if (ref == "lt")
      return out += '<', true;
    if (ref == "gt")
      return out += '>', true;
    if (ref == "quot")
      return out += '"', true;
    if (ref == "apos")
      return out += '\'', true;
    if (ref.size() < 2 || ref[0] != '#')
      return Error("unknown reference " + ref);
    const bool hex = ref[1] == 'x';
    const std::string digits = ref.substr(hex ? 2 : 1);
    if (digits.empty() ||
        digits.find_first_not_of(hex ? "0123456789ABCDEFabcdef" : "0123456789") != std::string::npos)
      return Error("bad character reference");
    const unsigned long code = std::stoul(digits, nullptr, hex ? 16 : 10);
    const bool isChar = code == 0x9 || code == 0xA || code == 0xD || (code >= 0x20 && code <= 0xD7FF) ||
                        (code >= 0xE000 && code <= 0xFFFD) || (code >= 0x10000 && code <= 0x10FFFF);
    if (!isChar)
      return Error("reference to a non-character");
    // The tests only need characters below U+0800 written back.
    if (code < 0x80) {
      out += static_cast<char>(code);
    } else if (code < 0x800) {
      out += static_cast<char>(0xC0 | (code >> 6));
      out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
      out += '?';
    }
    return true;
  }
  bool Element(XmlElement& element) {
    if (m_pos >= m_xml.size() || m_xml[m_pos] != '<')
      return Error("element expected");
    ++m_pos;
    if (!Name(element.name))
      return false;
    std::set<std::string> seen;
    for (;;) {
      const std::size_t before = m_pos;
      SkipBlanks();
      if (m_pos >= m_xml.size())
        return Error("unterminated start tag");
      if (m_xml.compare(m_pos, 2, "/>") == 0) {
        m_pos += 2;
        return true;
      }
      if (m_xml[m_pos] == '>') {
        ++m_pos;
        break;
      }
      if (before == m_pos)
        return Error("blank expected before attribute");
      std::string name;
      if (!Name(name))
        return false;
      if (!seen.insert(name).second)
        return Error("duplicate attribute " + name);
      SkipBlanks();
      if (m_pos >= m_xml.size() || m_xml[m_pos] != '=')
        return Error("'=' expected");
      ++m_pos;
      SkipBlanks();
      if (m_pos >= m_xml.size() || (m_xml[m_pos] != '"' && m_xml[m_pos] != '\''))
        return Error("quote expected");
      const char quote = m_xml[m_pos++];
      std::string value;
      for (;;) {
        if (m_pos >= m_xml.size())
          return Error("unterminated attribute value");
        const char c = m_xml[m_pos++];
        if (c == quote)
          break;
        if (c == '<')
          return Error("'<' in attribute value");
        if (c == '&') {
          if (!Reference(value))
            return false;
        } else {
          value += (c == '\t' || c == '\n' || c == '\r') ? ' ' : c;  // attribute-value normalisation
        }
      }
      element.attributes.emplace_back(name, value);
    }
    for (;;) {
      if (m_pos >= m_xml.size())
        return Error("unterminated element " + element.name);
      const char c = m_xml[m_pos];
      if (m_xml.compare(m_pos, 2, "</") == 0) {
        m_pos += 2;
        std::string name;
        if (!Name(name))
          return false;
        if (name != element.name)
          return Error("end tag " + name + " does not match " + element.name);
        SkipBlanks();
        if (m_pos >= m_xml.size() || m_xml[m_pos] != '>')
          return Error("'>' expected");
        ++m_pos;
        return true;
      }
      if (c == '<') {
        element.children.emplace_back();
        if (!Element(element.children.back()))
          return false;
      } else if (c == '&') {
        ++m_pos;
        if (!Reference(element.text))
          return false;
      } else {
        if (m_xml.compare(m_pos, 3, "]]>") == 0)
          return Error("']]>' in text");
        element.text += c;
        ++m_pos;
      }
    }
  }

  const std::string& m_xml;
  std::size_t m_pos = 0;
  std::string m_error;
};

XmlElement ParseOrFail(const std::string& xml) {
  XmlElement root;
  std::string error;
  EXPECT_TRUE(StrictXmlReader(xml).Read(root, error)) << error << "\n" << xml;
  return root;
}

bool IsWellFormed(const std::string& xml) {
  XmlElement root;
  std::string error;
  return StrictXmlReader(xml).Read(root, error);
}

// ---------------------------------------------------------------------------------------------------------
// Sections and values

TEST(KcParagraph, ReadOfMissingKeyGivesTheDefault) {
  const KCParagraph section("Pen");

  EXPECT_EQ(section.ReadString("Name", "none"), "none");
  EXPECT_EQ(section.ReadInteger("Width", 7), 7);
  EXPECT_DOUBLE_EQ(section.ReadDouble("Angle", 1.5), 1.5);
  EXPECT_DOUBLE_EQ(section.ReadDoubleStrict("Angle", 2.5), 2.5);
  EXPECT_TRUE(section.ReadBool("Visible", true));
  EXPECT_EQ(section.ReadColor("Color", KCColorRed()), KCColorRed());
  EXPECT_EQ(section.ReadPenStyle("Style", KCPenStyleDot()), KCPenStyleDot());
  EXPECT_FALSE(section.HasKey("Name"));
  EXPECT_EQ(section.GetValue("Name"), "");
}

TEST(KcParagraph, ValuesAreKeptAsTextInWriteOrder) {
  KCParagraph section("Line");

  section.WriteString("Name", "border");
  section.WriteInteger("Width", -3);
  section.WriteDouble("Angle", 12.5, 3);
  section.WriteBool("Visible", true);
  section.WriteColor("Color", KCColorOrange());
  section.WritePenStyle("Style", KCPenStyleDashDot());

  const std::vector<KCParagraph::Entry> expected = {{"Name", "border"},         {"Width", "-3"},
                                                    {"Angle", "12.500"},        {"Visible", "1"},
                                                    {"Color", "255,165,0,255"}, {"Style", "DashDot"}};
  EXPECT_EQ(section.GetEntries(), expected);
}

TEST(KcParagraph, RewritingAKeyReplacesTheValueAndKeepsItsPosition) {
  KCParagraph section;
  section.WriteString("a", "1");
  section.WriteString("b", "2");

  section.WriteInteger("a", 10);

  const std::vector<KCParagraph::Entry> expected = {{"a", "10"}, {"b", "2"}};
  EXPECT_EQ(section.GetEntries(), expected);
}

TEST(KcParagraph, KeysAreCaseSensitive) {
  KCParagraph section;
  section.WriteString("Width", "1");

  EXPECT_TRUE(section.HasKey("Width"));
  EXPECT_FALSE(section.HasKey("width"));
}

TEST(KcParagraph, TypedReadsConvertTheText) {
  KCParagraph section;
  section.WriteString("Count", "  42 pieces");
  section.WriteString("Depth", "-0.25mm");
  section.WriteString("Name", "abc");

  EXPECT_EQ(section.ReadInteger("Count", 0), 42);
  EXPECT_DOUBLE_EQ(section.ReadDouble("Depth", 0.0), -0.25);
  EXPECT_EQ(section.ReadInteger("Name", -1), -1);
  EXPECT_DOUBLE_EQ(section.ReadDouble("Name", 9.0), 9.0);
}

TEST(KcParagraph, ReadIntegerOfRealTextGivesItsLeadingInteger) {
  KCParagraph section;
  section.WriteString("Width", "12.7");

  EXPECT_EQ(section.ReadInteger("Width", 0), 12);
}

TEST(KcParagraph, ReadDoubleStrictAcceptsOnlyAWholeNumber) {
  KCParagraph section;
  section.WriteString("Whole", " 3.25 ");
  section.WriteString("Trailing", "3.25mm");
  section.WriteString("Exponent", "1e3");
  section.WriteString("Empty", "");

  EXPECT_DOUBLE_EQ(section.ReadDoubleStrict("Whole", 0.0), 3.25);
  EXPECT_DOUBLE_EQ(section.ReadDoubleStrict("Trailing", -1.0), -1.0);
  EXPECT_DOUBLE_EQ(section.ReadDouble("Trailing", -1.0), 3.25);
  EXPECT_DOUBLE_EQ(section.ReadDoubleStrict("Exponent", 0.0), 1000.0);
  EXPECT_DOUBLE_EQ(section.ReadDoubleStrict("Empty", 4.0), 4.0);
}

TEST(KcParagraph, WriteDoubleWithNegativeDigitsWritesShortestText) {
  KCParagraph section;

  section.WriteDouble("Step", 0.1, -1);
  section.WriteDouble("Round", 2.0, 2);

  EXPECT_EQ(section.GetValue("Step"), "0.1");
  EXPECT_EQ(section.GetValue("Round"), "2.00");
  EXPECT_DOUBLE_EQ(section.ReadDouble("Step", 0.0), 0.1);
}

// A word ReadBool knows and the value it stands for.
struct BoolWord {
  const char* name;
  const char* word;
  bool value;
};

const BoolWord kBoolWords[] = {
    {"one", "1", true},
    {"true_lower_case", "true", true},
    {"yes_upper_case", "YES", true},
    {"on_with_blanks", " On ", true},
    {"zero", "0", false},
    {"false_capitalised", "False", false},
    {"no_lower_case", "no", false},
    {"off_upper_case", "OFF", false},
};

class KcParagraphBoolWords : public ::testing::TestWithParam<BoolWord> {};

TEST_P(KcParagraphBoolWords, ReadBoolKnowsTheWordInAnyCase) {
  KCParagraph section;
  section.WriteString("b", GetParam().word);
  // The default is the other value, so only the word can give the expected one.
  EXPECT_EQ(section.ReadBool("b", !GetParam().value), GetParam().value) << GetParam().word;
}

INSTANTIATE_TEST_SUITE_P(Words, KcParagraphBoolWords, ::testing::ValuesIn(kBoolWords), RowName());

TEST(KcParagraph, ReadBoolGivesTheDefaultForAnyOtherWord) {
  KCParagraph section;
  section.WriteString("b", "maybe");
  EXPECT_TRUE(section.ReadBool("b", true));
  EXPECT_FALSE(section.ReadBool("b", false));
}

TEST(KcParagraph, WriteBoolStoresOneAndZero) {
  KCParagraph section;

  section.WriteBool("yes", true);
  section.WriteBool("no", false);

  EXPECT_EQ(section.GetValue("yes"), "1");
  EXPECT_EQ(section.GetValue("no"), "0");
  EXPECT_TRUE(section.ReadBool("yes", false));
  EXPECT_FALSE(section.ReadBool("no", true));
}

TEST(KcParagraph, ColorAndPenStyleRoundTrip) {
  KCParagraph section;
  section.WriteColor("Color", KCColor(1, 2, 3, 4));
  section.WritePenStyle("Style", KCPenStyleDashDotDot());

  EXPECT_EQ(section.ReadColor("Color", KCColorWhite()), KCColor(1, 2, 3, 4));
  EXPECT_EQ(section.ReadPenStyle("Style", KCPenStyleSolid()), KCPenStyleDashDotDot());
}

TEST(KcParagraph, ColorOrPenStyleThatCannotBeReadGivesTheDefault) {
  KCParagraph section;
  section.WriteString("Color", "red");
  section.WriteString("Style", "Wavy");

  EXPECT_EQ(section.ReadColor("Color", KCColorBlue()), KCColorBlue());
  EXPECT_EQ(section.ReadPenStyle("Style", KCPenStyleDot()), KCPenStyleDot());
}

TEST(KcParagraph, AddParagraphCreatesOnceAndThenGivesTheSameChild) {
  KCParagraph root("Root");

  KCParagraph* first = root.AddParagraph("Pen");
  KCParagraph* second = root.AddParagraph("Pen");

  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first, second);
  EXPECT_EQ(first->GetName(), "Pen");
  EXPECT_EQ(root.GetParagraphs().size(), 1u);
}

TEST(KcParagraph, EmptyNameMeansTheSectionItself) {
  KCParagraph root("Root");

  EXPECT_EQ(root.AddParagraph(""), &root);
  EXPECT_EQ(root.FindParagraph(""), &root);
  EXPECT_TRUE(root.GetParagraphs().empty());
}

TEST(KcParagraph, NewParagraphAlwaysAppends) {
  KCParagraph root("xsd:sequence");

  KCParagraph* a = root.NewParagraph("xsd:element");
  KCParagraph* b = root.NewParagraph("xsd:element");

  EXPECT_NE(a, b);
  EXPECT_EQ(root.GetParagraphs(), (std::vector<KCParagraph*>{a, b}));
  EXPECT_EQ(root.FindParagraph("xsd:element"), a);
}

TEST(KcParagraph, FindParagraphGivesNullForAMissingChild) {
  KCParagraph root("Root");
  root.AddParagraph("Pen");
  const KCParagraph& constRoot = root;

  EXPECT_EQ(root.FindParagraph("Brush"), nullptr);
  EXPECT_EQ(constRoot.FindParagraph("Brush"), nullptr);
  EXPECT_NE(constRoot.FindParagraph("Pen"), nullptr);
}

TEST(KcParagraph, ChildrenKeepTheOrderTheyWereAdded) {
  KCParagraph root;
  root.AddParagraph("c");
  root.AddParagraph("a");
  root.AddParagraph("b");

  std::vector<std::string> names;
  for (const KCParagraph* child : root.GetParagraphs())
    names.push_back(child->GetName().str());

  EXPECT_EQ(names, (std::vector<std::string>{"c", "a", "b"}));
}

TEST(KcParagraph, DocumentationEntryIsKeptAndASecondCallReplacesIt) {
  KCParagraph section("xsd:annotation");

  section.WriteDocumentation("xsd:documentation", "first");
  section.WriteDocumentation("xsd:documentation", "second");

  EXPECT_EQ(section.GetDocumentationName(), "xsd:documentation");
  EXPECT_EQ(section.GetDocumentation(), "second");
  EXPECT_TRUE(section.GetEntries().empty());
}

TEST(KcParagraph, CopyIsDeep) {
  KCParagraph original("Root");
  original.WriteInteger("n", 1);
  original.AddParagraph("Child")->WriteString("k", "v");
  original.WriteDocumentation("doc", "text");

  KCParagraph copy(original);
  original.AddParagraph("Child")->WriteString("k", "changed");
  original.WriteInteger("n", 2);

  EXPECT_EQ(copy.GetName(), "Root");
  EXPECT_EQ(copy.ReadInteger("n", 0), 1);
  ASSERT_NE(copy.FindParagraph("Child"), nullptr);
  EXPECT_NE(copy.FindParagraph("Child"), original.FindParagraph("Child"));
  EXPECT_EQ(copy.FindParagraph("Child")->GetValue("k"), "v");
  EXPECT_EQ(copy.GetDocumentation(), "text");
}

TEST(KcParagraph, AssignmentIsDeepAndReplacesEverything) {
  KCParagraph source("Source");
  source.AddParagraph("A")->WriteInteger("x", 5);
  KCParagraph target("Target");
  target.WriteString("old", "gone");
  target.AddParagraph("B");

  target = source;
  source.FindParagraph("A")->WriteInteger("x", 6);

  EXPECT_EQ(target.GetName(), "Source");
  EXPECT_FALSE(target.HasKey("old"));
  EXPECT_EQ(target.FindParagraph("B"), nullptr);
  ASSERT_NE(target.FindParagraph("A"), nullptr);
  EXPECT_EQ(target.FindParagraph("A")->ReadInteger("x", 0), 5);
}

TEST(KcParagraph, AssignmentFromItsOwnChildWorks) {
  KCParagraph root("Root");
  KCParagraph* child = root.AddParagraph("Child");
  child->WriteString("k", "v");
  child->AddParagraph("Grandchild");

  root = *child;

  EXPECT_EQ(root.GetName(), "Child");
  EXPECT_EQ(root.GetValue("k"), "v");
  EXPECT_NE(root.FindParagraph("Grandchild"), nullptr);
}

TEST(KcParagraph, WriteOperationsAreReachedThroughTheVirtualTable) {
  class CountingParagraph : public KCParagraph {
   public:
    int writes = 0;
    bool WriteString(const KCString& key, const KCString& value) override {
      ++writes;
      return KCParagraph::WriteString(key, value);
    }
  };
  CountingParagraph section;
  KCParagraph& base = section;

  base.WriteString("a", "1");

  EXPECT_EQ(section.writes, 1);
  EXPECT_EQ(section.GetValue("a"), "1");
}

// ---------------------------------------------------------------------------------------------------------
// Documents and XML

TEST(KcDocument, NewDocumentHasNoRootAndWritesOnlyTheDeclaration) {
  const KCDocument doc;

  EXPECT_EQ(doc.GetRoot(), nullptr);
  EXPECT_EQ(doc.ToXml(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
}

TEST(KcDocument, CreateRootRefusesAnEmptyOrBlankName) {
  KCDocument doc;

  EXPECT_EQ(doc.CreateRoot(""), nullptr);
  EXPECT_EQ(doc.CreateRoot("  \t "), nullptr);
  EXPECT_EQ(doc.GetRoot(), nullptr);
}

TEST(KcDocument, CreateRootReplacesAnEarlierRoot) {
  KCDocument doc;
  doc.CreateRoot("First")->WriteInteger("a", 1);

  KCParagraph* root = doc.CreateRoot("Second");

  EXPECT_EQ(doc.GetRoot(), root);
  EXPECT_EQ(root->GetName(), "Second");
  EXPECT_TRUE(root->GetEntries().empty());
}

TEST(KcDocument, ToXmlWritesElementsAttributesInWriteOrderAndDocumentation) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("Settings");
  KCParagraph* pen = root->AddParagraph("Pen");
  pen->WriteInteger("Width", 2);
  pen->WriteString("Color", "0,0,0,255");
  root->AddParagraph("Brush");
  root->WriteDocumentation("Doc", "All settings");

  EXPECT_EQ(doc.ToXml(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<Settings>\n"
            "  <Doc>All settings</Doc>\n"
            "  <Pen Width=\"2\" Color=\"0,0,0,255\"/>\n"
            "  <Brush/>\n"
            "</Settings>\n");
}

TEST(KcDocument, ToXmlEscapesSpecialCharactersInValuesAndDocumentation) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("R");
  root->WriteString("v", "a&b<c>d\"e'f");
  root->WriteDocumentation("d", "x<y & 'z' > \"w\"");

  const std::string xml = doc.ToXml();

  EXPECT_NE(xml.find("v=\"a&amp;b&lt;c&gt;d&quot;e&apos;f\""), std::string::npos) << xml;
  EXPECT_NE(xml.find("<d>x&lt;y &amp; &apos;z&apos; &gt; &quot;w&quot;</d>"), std::string::npos) << xml;
  const XmlElement parsed = ParseOrFail(xml);
  ASSERT_EQ(parsed.attributes.size(), 1u);
  EXPECT_EQ(parsed.attributes[0].second, "a&b<c>d\"e'f");
  ASSERT_EQ(parsed.children.size(), 1u);
  EXPECT_EQ(parsed.children[0].text, "x<y & 'z' > \"w\"");
}

TEST(KcDocument, ToXmlTrimsBlanksFromNames) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("  Root ");
  root->WriteString(" key\t", "value");
  root->AddParagraph(" Child ");

  const XmlElement parsed = ParseOrFail(doc.ToXml());

  EXPECT_EQ(parsed.name, "Root");
  ASSERT_EQ(parsed.attributes.size(), 1u);
  EXPECT_EQ(parsed.attributes[0].first, "key");
  ASSERT_EQ(parsed.children.size(), 1u);
  EXPECT_EQ(parsed.children[0].name, "Child");
}

TEST(KcDocument, ToXmlReplacesCharactersThatCannotStandInANameByUnderscore) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("my section");
  root->WriteInteger("a=b", 1);
  root->WriteInteger("3D", 2);
  root->WriteInteger("", 3);
  root->AddParagraph("<bad>");
  root->AddParagraph("-dash");

  const XmlElement parsed = ParseOrFail(doc.ToXml());

  EXPECT_EQ(parsed.name, "my_section");
  ASSERT_EQ(parsed.attributes.size(), 3u);
  EXPECT_EQ(parsed.attributes[0].first, "a_b");
  EXPECT_EQ(parsed.attributes[1].first, "_3D");
  EXPECT_EQ(parsed.attributes[2].first, "_");
  ASSERT_EQ(parsed.children.size(), 2u);
  EXPECT_EQ(parsed.children[0].name, "_bad_");
  EXPECT_EQ(parsed.children[1].name, "_-dash");
}

TEST(KcDocument, ToXmlKeepsNamespacePrefixes) {
  KCDocument doc;
  KCParagraph* schema = doc.CreateRoot("xsd:schema");
  schema->WriteString("xmlns:xsd", "http://www.w3.org/2001/XMLSchema");
  schema->NewParagraph("xsd:element")->WriteString("name", "a");
  schema->NewParagraph("xsd:element")->WriteString("name", "b");

  const XmlElement parsed = ParseOrFail(doc.ToXml());

  EXPECT_EQ(parsed.name, "xsd:schema");
  EXPECT_EQ(parsed.attributes[0].first, "xmlns:xsd");
  ASSERT_EQ(parsed.children.size(), 2u);
  EXPECT_EQ(parsed.children[1].name, "xsd:element");
  EXPECT_EQ(parsed.children[1].attributes[0].second, "b");
}

TEST(KcDocument, KeysThatGiveTheSameAttributeNameAreNumbered) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("R");
  root->WriteInteger("a b", 1);
  root->WriteInteger("a_b", 2);
  root->WriteInteger(" a b ", 3);

  const XmlElement parsed = ParseOrFail(doc.ToXml());

  ASSERT_EQ(parsed.attributes.size(), 3u);
  EXPECT_EQ(parsed.attributes[0], (std::pair<std::string, std::string>{"a_b", "1"}));
  EXPECT_EQ(parsed.attributes[1], (std::pair<std::string, std::string>{"a_b_2", "2"}));
  EXPECT_EQ(parsed.attributes[2], (std::pair<std::string, std::string>{"a_b_3", "3"}));
}

TEST(KcDocument, LineBreaksAndTabsInValuesSurviveAsCharacterReferences) {
  KCDocument doc;
  doc.CreateRoot("R")->WriteString("v", "a\tb\nc\rd");

  const std::string xml = doc.ToXml();

  EXPECT_NE(xml.find("v=\"a&#9;b&#10;c&#13;d\""), std::string::npos) << xml;
}

TEST(KcDocument, AnyBytesInNamesAndValuesStillGiveWellFormedXml) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot(std::string("R\xff\x01x", 4));
  root->WriteString(std::string("k\x80", 2), std::string("v\x01\xe9\xc3\xa9\0z", 7));
  root->AddParagraph("]]>")->WriteDocumentation(std::string("\xc3\xa9t\xc3\xa9", 5), "a]]>b\x02");
  root->AddParagraph(std::string("\xc3\xa9l\xc3\xa8ve", 7));

  const std::string xml = doc.ToXml();

  const XmlElement parsed = ParseOrFail(xml);
  EXPECT_EQ(parsed.name, "R__x");
  ASSERT_EQ(parsed.attributes.size(), 1u);
  EXPECT_EQ(parsed.attributes[0].first, "k_");
  // \x01 and NUL are no XML characters; the lone \xe9 is read as Latin-1 e-acute, the valid UTF-8 kept.
  EXPECT_EQ(parsed.attributes[0].second, "v?\xc3\xa9\xc3\xa9?z");
  ASSERT_EQ(parsed.children.size(), 2u);
  EXPECT_EQ(parsed.children[0].name, "___");
  ASSERT_EQ(parsed.children[0].children.size(), 1u);
  EXPECT_EQ(parsed.children[0].children[0].name, "\xc3\xa9t\xc3\xa9");
  EXPECT_EQ(parsed.children[0].children[0].text, "a]]>b?");
  EXPECT_EQ(parsed.children[1].name, "\xc3\xa9l\xc3\xa8ve");
}

TEST(KcDocument, ToXmlNamesUseOnlyLettersThatParsersOfTheOlderXmlNameRulesAlsoAccept) {
  // U+02CD (modifier letter low macron) and U+079E (a Thaana letter) may start a name under the current
  // XML 1.0 rules but not under the older ones that expat, MSXML and .NET apply; Latin-1, Latin
  // Extended-A, Greek and Cyrillic letters are names under both.
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot(
      "Gr\xc3\xb6\xc3\x9f"
      "e");
  root->WriteInteger("a\xcb\x8d", 1);
  root->WriteInteger("\xde\x9e", 2);
  root->AddParagraph(
      "\xc5\x81\xc3\xb3"
      "d\xc5\xba");
  root->AddParagraph("\xce\xa9\xd0\x96");

  const std::string xml = doc.ToXml();

  EXPECT_EQ(xml,
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<Gr\xc3\xb6\xc3\x9f"
            "e a_=\"1\" _=\"2\">\n"
            "  <\xc5\x81\xc3\xb3"
            "d\xc5\xba/>\n"
            "  <\xce\xa9\xd0\x96/>\n"
            "</Gr\xc3\xb6\xc3\x9f"
            "e>\n");
}

TEST(KcDocument, NestedTreeParsesBackToTheSameStructure) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("a");
  KCParagraph* b = root->AddParagraph("b");
  b->AddParagraph("c")->WriteDouble("x", 1.25, -1);
  b->WriteDocumentation("note", "about b");
  root->AddParagraph("d");

  const XmlElement parsed = ParseOrFail(doc.ToXml());

  ASSERT_EQ(parsed.children.size(), 2u);
  const XmlElement& pb = parsed.children[0];
  EXPECT_EQ(pb.name, "b");
  ASSERT_EQ(pb.children.size(), 2u);
  EXPECT_EQ(pb.children[0].name, "note");
  EXPECT_EQ(pb.children[0].text, "about b");
  EXPECT_EQ(pb.children[1].name, "c");
  EXPECT_EQ(pb.children[1].attributes[0].second, "1.25");
  EXPECT_EQ(parsed.children[1].name, "d");
}

TEST(KcDocument, TheReaderOfTheseTestsRejectsBrokenXml) {
  const std::string head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  EXPECT_TRUE(IsWellFormed(head + "<a b=\"1\"><c/></a>\n"));
  EXPECT_FALSE(IsWellFormed(head + "<a b=\"1\" b=\"2\"/>"));
  EXPECT_FALSE(IsWellFormed(head + "<a><b></a></b>"));
  EXPECT_FALSE(IsWellFormed(head + "<a>x & y</a>"));
  EXPECT_FALSE(IsWellFormed(head + "<a b=\"<\"/>"));
  EXPECT_FALSE(IsWellFormed(head + "<1a/>"));
  EXPECT_FALSE(IsWellFormed(head + "<a/><b/>"));
  EXPECT_FALSE(IsWellFormed("<a/>"));
}

TEST(KcDocument, CopyIsDeep) {
  KCDocument doc;
  doc.CreateRoot("R")->WriteInteger("n", 1);

  KCDocument copy(doc);
  KCDocument assigned;
  assigned = doc;
  doc.GetRoot()->WriteInteger("n", 2);

  ASSERT_NE(copy.GetRoot(), nullptr);
  EXPECT_NE(copy.GetRoot(), doc.GetRoot());
  EXPECT_EQ(copy.GetRoot()->ReadInteger("n", 0), 1);
  ASSERT_NE(assigned.GetRoot(), nullptr);
  EXPECT_EQ(assigned.GetRoot()->ReadInteger("n", 0), 1);
}

TEST(KcDocument, SaveToFileWritesTheXml) {
  TempDir dir;
  KCDocument doc;
  doc.CreateRoot("Settings")->WriteString("Lang", "Eng");
  const std::string path = dir.Path("settings.xml");

  ASSERT_TRUE(doc.SaveToFile(path));

  EXPECT_EQ(dir.ReadFile("settings.xml"), doc.ToXml());
}

TEST(KcDocument, SaveToFileReplacesAnExistingFileAndLeavesNoTemporaryFile) {
  TempDir dir;
  const std::string path = dir.WriteFile("out.xml", "old contents that are longer than the new ones");
  KCDocument doc;
  doc.CreateRoot("R");

  ASSERT_TRUE(doc.SaveToFile(path));

  EXPECT_EQ(dir.ReadFile("out.xml"), doc.ToXml());
  EXPECT_EQ(dir.EntryCount(), 1);
}

TEST(KcDocument, SaveToFileFailsWhenTheDirectoryCannotHoldFilesAndKeepsNothingBroken) {
  TempDir dir;
  // The parent "path" is a regular file, so nothing can be created below it, even by root.
  const std::string blocker = dir.WriteFile("blocker", "I am a file");
  KCDocument doc;
  doc.CreateRoot("R");

  EXPECT_FALSE(doc.SaveToFile(blocker + "/out.xml"));

  EXPECT_EQ(dir.ReadFile("blocker"), "I am a file");
}

TEST(KcDocument, SaveToFileFailsForAPathWithANulByteAndWritesNoOtherFile) {
  TempDir dir;
  const std::string path = dir.Path("out.xml");
  KCDocument doc;
  doc.CreateRoot("R");

  EXPECT_FALSE(doc.SaveToFile(KCString(path + std::string(1, '\0') + ".bak")));

  EXPECT_EQ(dir.EntryCount(), 0);
}

#if !defined(_WIN32)
TEST(KcDocument, SaveToFileThroughASymbolicLinkReplacesTheFileItNamesAndKeepsTheLink) {
  TempDir dir;
  dir.WriteFile("real.xml", "old");
  const std::string link = dir.Path("link.xml");
  ASSERT_EQ(symlink(dir.Path("real.xml").c_str(), link.c_str()), 0);
  KCDocument doc;
  doc.CreateRoot("R");

  ASSERT_TRUE(doc.SaveToFile(link));

  struct stat info {};
  ASSERT_EQ(lstat(link.c_str(), &info), 0);
  EXPECT_TRUE(S_ISLNK(info.st_mode));
  EXPECT_EQ(dir.ReadFile("real.xml"), doc.ToXml());
  EXPECT_EQ(dir.EntryCount(), 2);
}
#endif

}  // namespace
