// SPDX-License-Identifier: MIT
// KCDocument against libxml2: LoadFromFile accepts exactly the documents of tests/data/xml/agree/ that
// `xmllint --noout` accepts, and a document that `xmllint --format` pretty-printed reads back to the tree it
// was written from. xmllint (Debian: libxml2-utils) is needed; a missing xmllint fails these tests, except on
// Windows, whose lane runs the tests under wine without it.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/foundation/KCParagraph.h"
#include "support/ChildProcess.h"
#include "support/ParagraphTree.h"
#include "support/TempDir.h"
#include "support/TestData.h"

namespace {

#if defined(_WIN32)
#define SKIP_WITHOUT_XMLLINT() \
  GTEST_SKIP() << "the Windows lane runs the tests under wine, where xmllint is missing"
#else
#define SKIP_WITHOUT_XMLLINT() (void)0
#endif

// The full path of xmllint; fails the test when there is none.
std::string Xmllint() {
  const std::string path = FindProgramOnPath("xmllint");
  EXPECT_FALSE(path.empty())
      << "xmllint was not found on PATH; these tests compare KCDocument with libxml2 and "
         "need it (Debian: apt-get install libxml2-utils)";
  return path;
}

struct AgreeCase {
  std::string name;
  std::string file;  // path relative to tests/data/
};

void PrintTo(const AgreeCase& c, std::ostream* out) {
  *out << c.file;
}

std::vector<AgreeCase> ListAgreeCases() {
  std::vector<AgreeCase> cases;
  for (const std::string& file : ListFilesWithSuffix(TestDataPath("xml/agree"), ".xml"))
    cases.push_back({file.substr(0, file.size() - 4), "xml/agree/" + file});
  return cases;
}

class KcDocumentXmllintAgreement : public ::testing::TestWithParam<AgreeCase> {};

TEST_P(KcDocumentXmllintAgreement, AcceptsWhatXmllintAccepts) {
  SKIP_WITHOUT_XMLLINT();
  const AgreeCase& c = GetParam();
  const std::string xmllint = Xmllint();
  ASSERT_FALSE(xmllint.empty());
  const std::string path = TestDataPath(c.file).string();
  const bool shouldAccept = c.name.rfind("accept_", 0) == 0;
  ASSERT_TRUE(shouldAccept || c.name.rfind("reject_", 0) == 0)
      << c.file << ": the name must start with accept_ or reject_";

  const ChildResult lint = RunChild({xmllint, "--noout", path});
  ASSERT_FALSE(lint.timedOut) << c.file;
  ASSERT_GE(lint.exitCode, 0) << c.file << ": xmllint did not run: " << lint.err;
  KCDocument doc;
  const bool accepted = doc.LoadFromFile(path);

  EXPECT_EQ(accepted, lint.exitCode == 0)
      << c.file << "\nxmllint (exit code " << lint.exitCode << "): " << lint.err
      << "\nKCDocument: " << (accepted ? "accepted" : doc.GetLoadError());
  EXPECT_EQ(accepted, shouldAccept) << c.file << ": " << doc.GetLoadError();
}

INSTANTIATE_TEST_SUITE_P(Files, KcDocumentXmllintAgreement, ::testing::ValuesIn(ListAgreeCases()), RowName());

TEST(KcDocumentXmllintAgreement, TheFolderHoldsEnoughCases) {
  EXPECT_GE(ListAgreeCases().size(), 25u);
}

// ---------------------------------------------------------------------------------------------------------
// xmllint --format

// A tree with everything ToXml writes: escapes, line ends in values and documentation, non-ASCII text,
// documentation entries, empty sections, nesting, same-named children.
KCDocument SampleDocument() {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("xsd:schema");
  root->WriteString("xmlns:xsd", "http://www.w3.org/2001/XMLSchema");
  root->WriteString("Text", "a & b <c> \"q\" 's' ]]>");
  root->WriteString("Ws", "tab\tlf\ncr\rcrlf\r\nend");
  root->WriteString("Empty", "");
  root->WriteString("Maß", "äöü € 😀");
  root->WriteDocumentation("xsd:documentation", "first line\n\tsecond & <third>\r\n  'fourth' ");
  KCParagraph* element = root->NewParagraph("xsd:element");
  element->WriteString("name", "Job");
  element->NewParagraph("xsd:complexType")->NewParagraph("xsd:sequence");
  for (int i = 0; i < 3; ++i)
    root->NewParagraph("Tool")->WriteInteger("Nr", i);
  KCParagraph* group = root->NewParagraph("Group");
  group->NewParagraph("Inner")->WriteDocumentation("Note", "inner text");
  group->NewParagraph("Empty");
  return doc;
}

TEST(KcDocumentXmllintFormat, PrettyPrintedOutputReadsBackToTheSameTree) {
  SKIP_WITHOUT_XMLLINT();
  const std::string xmllint = Xmllint();
  ASSERT_FALSE(xmllint.empty());
  TempDir dir;
  const KCDocument doc = SampleDocument();
  const std::string path = dir.Path("sample.xml");
  ASSERT_TRUE(doc.SaveToFile(path));

  const ChildResult formatted = RunChild({xmllint, "--format", path});
  ASSERT_EQ(formatted.exitCode, 0) << formatted.err;
  ASSERT_NE(formatted.out, doc.ToXml()) << "xmllint --format is expected to rewrite something ('s' at least)";

  KCDocument loaded;
  ASSERT_TRUE(loaded.LoadFromText(formatted.out)) << loaded.GetLoadError() << "\n" << formatted.out;
  EXPECT_EQ(FirstDocumentDifference(doc, loaded), "") << formatted.out;
}

TEST(KcDocumentXmllintFormat, AnEmptyDocumentationEntryComesBackAsAnEmptySectionAsDocumented) {
  SKIP_WITHOUT_XMLLINT();
  const std::string xmllint = Xmllint();
  ASSERT_FALSE(xmllint.empty());
  TempDir dir;
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("Root");
  root->WriteDocumentation("note", "");
  root->NewParagraph("Child");
  const std::string path = dir.Path("empty-doc.xml");
  ASSERT_TRUE(doc.SaveToFile(path));

  const ChildResult formatted = RunChild({xmllint, "--format", path});
  ASSERT_EQ(formatted.exitCode, 0) << formatted.err;
  KCDocument loaded;
  ASSERT_TRUE(loaded.LoadFromText(formatted.out)) << loaded.GetLoadError() << "\n" << formatted.out;

  // xmllint wrote <note/> for <note></note>: an empty child section, not a documentation entry.
  KCDocument expected;
  KCParagraph* e = expected.CreateRoot("Root");
  e->NewParagraph("note");
  e->NewParagraph("Child");
  EXPECT_EQ(FirstDocumentDifference(expected, loaded), "") << formatted.out;
}

}  // namespace
