// SPDX-License-Identifier: MIT
// KCDocument: whatever ToXml writes, LoadFromText reads back to an equal tree. Named examples first, then a
// property test over random trees.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "ncappkit/foundation/KCParagraph.h"
#include "support/ParagraphTree.h"

namespace {

// Writes `doc` with ToXml, reads that back and expects the same tree, and the same XML once more.
void ExpectRoundTrip(const KCDocument& doc) {
  const std::string xml = doc.ToXml();
  KCDocument loaded;
  ASSERT_TRUE(loaded.LoadFromText(xml)) << loaded.GetLoadError() << "\n" << xml;
  EXPECT_EQ(loaded.GetLoadError(), "");
  EXPECT_EQ(FirstDocumentDifference(doc, loaded), "") << xml;
  EXPECT_EQ(loaded.ToXml(), xml);
}

// ---------------------------------------------------------------------------------------------------------
// Named examples

TEST(KcDocumentRoundTrip, EscapedCharactersInValuesAndDocumentation) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("Root");
  root->WriteString("Amp", "a & b && &amp;");
  root->WriteString("Angles", "<tag> a<b>c </end>");
  root->WriteString("Quotes", "\"double\" 'single' \"'\"");
  root->WriteString("CdataEnd", "]]> ]] >");
  root->WriteString("References", "&#65; &lt; &#x20;");
  root->WriteDocumentation("xsd:documentation", "& < > \" ' ]]> &#13; <![CDATA[x]]>");
  ExpectRoundTrip(doc);
}

TEST(KcDocumentRoundTrip, NonAsciiNamesAndValues) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("Größe");
  root->WriteString("Maß", "äöüß €");
  root->WriteString("Ωμέγα", "日本語 😀 \xEF\xBF\xBD \xEE\x80\x80 \xF4\x8F\xBF\xBF");
  root->WriteDocumentation("Beschreibung", "Übergröße – „Anführung“ ✓");
  KCParagraph* greek = root->NewParagraph("Ελληνικά");
  greek->WriteString("Τιμή", "π≈3.14");
  greek->NewParagraph("Жук")->WriteString("x·y", "Привет");
  ExpectRoundTrip(doc);
}

TEST(KcDocumentRoundTrip, EmptyValues) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("Root");
  root->WriteString("Empty", "");
  root->WriteString("Next", "x");
  root->WriteString("AlsoEmpty", "");
  root->NewParagraph("Child")->WriteString("Empty", "");
  ExpectRoundTrip(doc);
}

TEST(KcDocumentRoundTrip, TabLineFeedAndCarriageReturnInValuesAndDocumentation) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("Root");
  root->WriteString("Tab", "\t");
  root->WriteString("Lf", "\n");
  root->WriteString("Cr", "\r");
  root->WriteString("CrLf", "\r\n");
  root->WriteString("LfCr", "\n\r");
  root->WriteString("Mixed", " a\tb\nc\r\nd\re ");
  root->WriteString("Blanks", "  leading and trailing  ");
  root->WriteDocumentation("doc", "\r\n\tindented\r\nlines\rand\n\n blanks \n");
  root->NewParagraph("Only")->WriteDocumentation("blank", " ");
  ExpectRoundTrip(doc);
}

TEST(KcDocumentRoundTrip, DocumentationEntries) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("Schema");
  root->WriteDocumentation("xsd:documentation", "the root's text");
  KCParagraph* withKeys = root->NewParagraph("xsd:element");
  withKeys->WriteString("name", "Job");
  withKeys->WriteDocumentation("xsd:documentation", "an element");
  withKeys->NewParagraph("xsd:complexType");
  root->NewParagraph("EmptyText")->WriteDocumentation("note", "");
  KCParagraph* emptyTextWithChildren = root->NewParagraph("EmptyTextWithChildren");
  emptyTextWithChildren->WriteDocumentation("note", "");
  emptyTextWithChildren->NewParagraph("note");  // a child section of the documentation's name
  root->NewParagraph("OnlyDocumentation")->WriteDocumentation("d", "text");
  KCParagraph* firstChildLikeADocumentation = root->NewParagraph("FirstChildIsAnEmptySection");
  firstChildLikeADocumentation->NewParagraph("d");
  firstChildLikeADocumentation->NewParagraph("e");
  ExpectRoundTrip(doc);
}

TEST(KcDocumentRoundTrip, DeepNestingUpToTheLimit) {
  KCDocument doc;
  KCParagraph* section = doc.CreateRoot("Level");
  for (int depth = 2; depth <= KCDocument::kMaxXmlDepth; ++depth) {
    section->WriteInteger("Depth", depth - 1);
    section = section->NewParagraph("Level");
  }
  section->WriteString("Deepest", "yes");
  ExpectRoundTrip(doc);

  // A documentation entry is one element more.
  section->WriteDocumentation("doc", "too deep");
  KCDocument loaded;
  EXPECT_FALSE(loaded.LoadFromText(doc.ToXml()));
  EXPECT_NE(loaded.GetLoadError().find("deeper than 256 levels"), std::string::npos) << loaded.GetLoadError();
}

TEST(KcDocumentRoundTrip, ManySameNamedChildrenKeepTheirOrder) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("List");
  for (int i = 0; i < 1000; ++i) {
    KCParagraph* item = root->NewParagraph("Item");
    item->WriteInteger("Nr", i % 7);
    if (i % 3 == 0)
      item->NewParagraph("Item")->WriteInteger("Inner", i);
  }
  ExpectRoundTrip(doc);
}

TEST(KcDocumentRoundTrip, WhatToXmlChangesReadsBackAsChanged) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot(" Job ");
  root->WriteString("Key", "1");
  root->WriteString(" Key", "2");            // the same attribute name once trimmed: "Key_2"
  root->WriteString("1st", "3");             // cannot start a name: "_1st"
  root->WriteString("a b", "4");             // a blank inside: "a_b"
  root->WriteString("Bytes", "\xFF\xC3");    // not UTF-8: read back as the Latin-1 characters
  root->WriteString("Control", "a\x01z");    // not allowed in XML: '?'
  root->WriteString("名", "5");              // not a portable name character: '_'
  root->WriteDocumentation("", "nameless");  // documentation without a name: "_"
  root->NewParagraph("");                    // an empty section name: "_"

  KCDocument expected;
  KCParagraph* e = expected.CreateRoot("Job");
  e->WriteString("Key", "1");
  e->WriteString("Key_2", "2");
  e->WriteString("_1st", "3");
  e->WriteString("a_b", "4");
  e->WriteString("Bytes", "\xC3\xBF\xC3\x83");
  e->WriteString("Control", "a?z");
  e->WriteString("_", "5");
  e->WriteDocumentation("_", "nameless");
  e->NewParagraph("_");

  KCDocument loaded;
  ASSERT_TRUE(loaded.LoadFromText(doc.ToXml())) << loaded.GetLoadError() << "\n" << doc.ToXml();
  EXPECT_EQ(FirstDocumentDifference(expected, loaded), "") << doc.ToXml();
  KCDocument again;  // the changed tree is the fixed point: it reads back unchanged
  ASSERT_TRUE(again.LoadFromText(loaded.ToXml())) << again.GetLoadError();
  EXPECT_EQ(FirstDocumentDifference(expected, again), "") << loaded.ToXml();
}

// ---------------------------------------------------------------------------------------------------------
// Property: random trees

class RandomTrees {
 public:
  explicit RandomTrees(std::uint32_t seed) : m_random(seed) {}

  void Fill(KCParagraph& section, int depth) {
    const int keys = Below(depth == 0 ? 6 : 5);
    for (int i = 0; i < keys; ++i)
      section.WriteString(Name(), Value());
    if (Below(10) < 4)
      section.WriteDocumentation(Name(), Value());
    const int children = depth >= 5 ? 0 : Below(depth == 0 ? 6 : 4);
    for (int i = 0; i < children; ++i) {
      // Names from a small pool half of the time, so that same-named children are frequent.
      const std::string name = Below(2) == 0 ? std::string(kPool[Below(kPoolSize)]) : Name();
      Fill(*section.NewParagraph(name), depth + 1);
    }
  }

  std::string Name() {
    std::string name = kStarts[Below(kStartCount)];
    const int more = Below(8);
    for (int i = 0; i < more; ++i)
      name += Below(3) == 0 ? kFollows[Below(kFollowCount)] : kStarts[Below(kStartCount)];
    return name;
  }

  // Random UTF-8 text of XML characters: every character ToXml escapes, blanks, line ends, and characters
  // of 1 to 4 bytes; a fifth of the values are empty.
  std::string Value() {
    if (Below(5) == 0)
      return "";
    std::string value;
    const int length = 1 + Below(Below(4) == 0 ? 40 : 8);
    for (int i = 0; i < length; ++i)
      value += kPieces[Below(kPieceCount)];
    return value;
  }

 private:
  int Below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(m_random); }

  static constexpr const char* kStarts[] = {"A", "b", "Z", "x", "_", ":", "Tool", "xsd:", "À", "Ö",
                                            "é", "ø", "ÿ", "Ā", "ž", "Α", "ω",    "ά",    "Ж", "я"};
  static constexpr int kStartCount = sizeof kStarts / sizeof kStarts[0];
  static constexpr const char* kFollows[] = {"0", "9", "-", ".", "\xC2\xB7", "e\xCC\x81", "_", ":"};
  static constexpr int kFollowCount = sizeof kFollows / sizeof kFollows[0];
  static constexpr const char* kPool[] = {"Item", "xsd:element", "Größe", "Ω"};
  static constexpr int kPoolSize = sizeof kPool / sizeof kPool[0];
  static constexpr const char* kPieces[] = {"&",
                                            "<",
                                            ">",
                                            "\"",
                                            "'",
                                            "\t",
                                            "\n",
                                            "\r",
                                            "\r\n",
                                            " ",
                                            "  ",
                                            "]]>",
                                            "]",
                                            "&amp;",
                                            "&#10;",
                                            "a",
                                            "Z",
                                            "0",
                                            "-",
                                            "=",
                                            "/",
                                            "?",
                                            "!",
                                            ";",
                                            "#",
                                            "é",
                                            "€",
                                            "😀",
                                            "\xEF\xBF\xBD",
                                            "\xEE\x80\x80",
                                            "\xF4\x8F\xBF\xBF",
                                            "<!--",
                                            "-->",
                                            "<![CDATA[",
                                            "<?pi?>"};
  static constexpr int kPieceCount = sizeof kPieces / sizeof kPieces[0];

  std::mt19937 m_random;
};

TEST(KcDocumentRoundTripProperty, RandomTreesReadBackEqual) {
  RandomTrees random(20240611u);
  for (int n = 0; n < 400; ++n) {
    KCDocument doc;
    KCParagraph* root = doc.CreateRoot(random.Name());
    random.Fill(*root, 0);
    const std::string xml = doc.ToXml();

    KCDocument loaded;
    ASSERT_TRUE(loaded.LoadFromText(xml)) << "tree " << n << ": " << loaded.GetLoadError() << "\n" << xml;
    const std::string difference = FirstDocumentDifference(doc, loaded);
    ASSERT_EQ(difference, "") << "tree " << n << "\n" << xml;
    ASSERT_EQ(loaded.ToXml(), xml) << "tree " << n;
  }
}

}  // namespace
