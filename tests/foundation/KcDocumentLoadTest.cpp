// SPDX-License-Identifier: MIT
// KCDocument::LoadFromText and LoadFromFile: real-world documents (tests/data/xml/read/), refused documents
// with their exact reasons (tests/data/xml/bad/), and what a load does to the document around it.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "ncappkit/foundation/KCParagraph.h"
#include "support/ParagraphTree.h"
#include "support/TempDir.h"
#include "support/TestData.h"

namespace {

// One data file of a folder under tests/data/xml/, named after it without ".xml".
struct XmlCase {
  std::string name;
  std::string file;  // the path relative to tests/data/
};

void PrintTo(const XmlCase& c, std::ostream* out) {
  *out << c.file;
}

std::vector<XmlCase> ListXmlCases(const std::string& folder) {
  std::vector<XmlCase> cases;
  for (const std::string& file : ListFilesWithSuffix(TestDataPath(folder), ".xml"))
    cases.push_back({file.substr(0, file.size() - 4), folder + "/" + file});
  return cases;
}

// The text of a file beside `xmlFile` with its ".xml" replaced by `extension`.
std::string Beside(const std::string& xmlFile, const std::string& extension) {
  return ReadFileBytes(TestDataPath(xmlFile.substr(0, xmlFile.size() - 4) + extension));
}

// ---------------------------------------------------------------------------------------------------------
// Real-world documents: each read/<case>.xml loads, and the tree it gives, written as DescribeTree does, is
// read/<case>.tree.

class KcDocumentReadCases : public ::testing::TestWithParam<XmlCase> {};

TEST_P(KcDocumentReadCases, LoadsToTheExpectedTree) {
  const XmlCase& c = GetParam();
  const std::string expected = Beside(c.file, ".tree");
  ASSERT_FALSE(expected.empty()) << c.file << ": the expected tree (.tree beside it) is missing";

  KCDocument doc;
  ASSERT_TRUE(doc.LoadFromFile(TestDataPath(c.file).string())) << c.file << ": " << doc.GetLoadError();
  EXPECT_EQ(doc.GetLoadError(), "");
  ASSERT_NE(doc.GetRoot(), nullptr);
  EXPECT_EQ(DescribeTree(*doc.GetRoot()), expected) << c.file;

  // ToXml of the tree reads back and writes the same XML again (the tree itself may differ where ToXml
  // changes names, as for the CJK name of non_ascii.xml).
  KCDocument again;
  ASSERT_TRUE(again.LoadFromText(doc.ToXml())) << again.GetLoadError() << "\n" << doc.ToXml();
  EXPECT_EQ(again.ToXml(), doc.ToXml());
}

INSTANTIATE_TEST_SUITE_P(Files, KcDocumentReadCases, ::testing::ValuesIn(ListXmlCases("xml/read")),
                         RowName());

TEST(KcDocumentReadCases, TheFolderHoldsCases) {
  EXPECT_GE(ListXmlCases("xml/read").size(), 15u);
}

// ---------------------------------------------------------------------------------------------------------
// Refused documents: each bad/<case>.xml fails to load with exactly the text of bad/<case>.error (its
// first line) as GetLoadError, and leaves the tree that was loaded before alone.

class KcDocumentBadCases : public ::testing::TestWithParam<XmlCase> {};

TEST_P(KcDocumentBadCases, IsRefusedWithItsReasonAndKeepsTheTree) {
  const XmlCase& c = GetParam();
  std::string expected = Beside(c.file, ".error");
  ASSERT_FALSE(expected.empty()) << c.file << ": the expected error (.error beside it) is missing";
  expected = SplitLines(expected).front();

  KCDocument doc;
  ASSERT_TRUE(doc.LoadFromText("<Before Key=\"value\"><doc>text</doc><Child/></Before>"));
  const KCDocument before(doc);

  EXPECT_FALSE(doc.LoadFromFile(TestDataPath(c.file).string())) << c.file;
  EXPECT_EQ(doc.GetLoadError(), expected) << c.file;
  EXPECT_EQ(FirstDocumentDifference(before, doc), "") << c.file;

  KCDocument fresh;
  EXPECT_FALSE(fresh.LoadFromText(ReadFileBytes(TestDataPath(c.file))));
  EXPECT_EQ(fresh.GetRoot(), nullptr);
  EXPECT_EQ(fresh.GetLoadError(), expected);
}

INSTANTIATE_TEST_SUITE_P(Files, KcDocumentBadCases, ::testing::ValuesIn(ListXmlCases("xml/bad")), RowName());

TEST(KcDocumentBadCases, TheFolderHoldsCases) {
  EXPECT_GE(ListXmlCases("xml/bad").size(), 40u);
}

// ---------------------------------------------------------------------------------------------------------
// The document around a load

TEST(KcDocumentLoad, AFailedLoadKeepsThePreviousTreeExactly) {
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("Job");
  root->WriteString("Name", "plate");
  root->WriteDocumentation("doc", "the job");
  root->NewParagraph("Tool")->WriteInteger("Nr", 4);
  const KCDocument before(doc);
  const KCParagraph* rootBefore = doc.GetRoot();

  EXPECT_FALSE(doc.LoadFromText("<Other A=\"1\"><Child></Other>"));

  EXPECT_EQ(doc.GetRoot(), rootBefore);  // not even replaced by a copy
  EXPECT_EQ(FirstDocumentDifference(before, doc), "");
  EXPECT_EQ(doc.GetLoadError(),
            "line 1, column 21: the end tag </Other> does not match the start tag <Child> at "
            "line 1, column 14");
}

TEST(KcDocumentLoad, AFailedLoadOfADocumentWithoutRootLeavesItWithoutRoot) {
  KCDocument doc;
  EXPECT_FALSE(doc.LoadFromText("<a>"));
  EXPECT_EQ(doc.GetRoot(), nullptr);
  EXPECT_EQ(doc.ToXml(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
}

TEST(KcDocumentLoad, LoadErrorIsEmptyBeforeAnyLoadAndAfterAGoodOne) {
  KCDocument doc;
  EXPECT_EQ(doc.GetLoadError(), "");
  ASSERT_FALSE(doc.LoadFromText("no xml"));
  EXPECT_NE(doc.GetLoadError(), "");

  EXPECT_TRUE(doc.LoadFromText("<Root/>"));

  EXPECT_EQ(doc.GetLoadError(), "");
  ASSERT_NE(doc.GetRoot(), nullptr);
  EXPECT_EQ(doc.GetRoot()->GetName(), "Root");
}

TEST(KcDocumentLoad, AGoodLoadReplacesTheWholeTree) {
  KCDocument doc;
  doc.CreateRoot("Old")->NewParagraph("Child");

  ASSERT_TRUE(doc.LoadFromText("<New A=\"1\"/>"));

  EXPECT_EQ(doc.GetRoot()->GetName(), "New");
  EXPECT_TRUE(doc.GetRoot()->GetParagraphs().empty());
  EXPECT_EQ(doc.GetRoot()->GetValue("A"), "1");
}

TEST(KcDocumentLoad, CopiesTakeTheLoadErrorAlong) {
  KCDocument doc;
  ASSERT_FALSE(doc.LoadFromText(""));
  const KCDocument copy(doc);
  KCDocument assigned;
  assigned = doc;
  EXPECT_EQ(copy.GetLoadError(), "line 1, column 1: the document has no root element");
  EXPECT_EQ(assigned.GetLoadError(), copy.GetLoadError());
}

TEST(KcDocumentLoad, FileThatDoesNotExistGivesFalseAndAReasonNamingTheFile) {
  TempDir dir;
  const std::string path = dir.Path("missing.xml");
  KCDocument doc;
  doc.CreateRoot("Kept");

  EXPECT_FALSE(doc.LoadFromFile(path));

  EXPECT_EQ(doc.GetLoadError().rfind("cannot open the file \"" + path + "\"", 0), 0u) << doc.GetLoadError();
  EXPECT_NE(doc.GetLoadError().find("o such file"), std::string::npos) << doc.GetLoadError();
  ASSERT_NE(doc.GetRoot(), nullptr);
  EXPECT_EQ(doc.GetRoot()->GetName(), "Kept");
}

TEST(KcDocumentLoad, AFolderIsNoFileToLoad) {
  TempDir dir;
  KCDocument doc;

  EXPECT_FALSE(doc.LoadFromFile(dir.Path()));

  EXPECT_NE(doc.GetLoadError().find("\"" + dir.Path() + "\""), std::string::npos) << doc.GetLoadError();
  EXPECT_EQ(doc.GetRoot(), nullptr);
}

TEST(KcDocumentLoad, LoadFromFileReadsWhatSaveToFileWrote) {
  TempDir dir;
  KCDocument doc;
  KCParagraph* root = doc.CreateRoot("Job");
  root->WriteString("Path", "C:\\nc\\O1000 & \"plate\"\r\n");
  root->NewParagraph("Tool")->WriteDocumentation("Note", "ü\tline\nnext");
  const std::string path = dir.Path("job.xml");
  ASSERT_TRUE(doc.SaveToFile(path));

  KCDocument loaded;
  ASSERT_TRUE(loaded.LoadFromFile(path)) << loaded.GetLoadError();

  EXPECT_EQ(FirstDocumentDifference(doc, loaded), "");
}

// ---------------------------------------------------------------------------------------------------------
// Depth

std::string Nested(int depth, const std::string& innermost = "") {
  std::string xml;
  xml.reserve(static_cast<std::size_t>(depth) * 7 + innermost.size());
  for (int i = 0; i < depth; ++i)
    xml += "<a>";
  xml += innermost;
  for (int i = 0; i < depth; ++i)
    xml += "</a>";
  return xml;
}

TEST(KcDocumentDepth, ElementsUpToTheLimitAreRead) {
  KCDocument doc;
  ASSERT_TRUE(doc.LoadFromText(Nested(KCDocument::kMaxXmlDepth - 1, "<leaf/>"))) << doc.GetLoadError();

  int depth = 0;
  for (const KCParagraph* p = doc.GetRoot(); p != nullptr;
       p = p->GetParagraphs().empty() ? nullptr : p->GetParagraphs().front())
    ++depth;
  EXPECT_EQ(depth, KCDocument::kMaxXmlDepth);
}

TEST(KcDocumentDepth, OneLevelMoreIsRefusedWhereItStarts) {
  KCDocument doc;
  EXPECT_FALSE(doc.LoadFromText(Nested(KCDocument::kMaxXmlDepth, "<leaf/>")));
  EXPECT_EQ(doc.GetLoadError(),
            "line 1, column 769: elements are nested deeper than 256 levels "
            "(KCDocument::kMaxXmlDepth)");
}

TEST(KcDocumentDepth, AMillionLevelsAreRefusedWithoutCrashing) {
  KCDocument doc;
  doc.CreateRoot("Kept");

  EXPECT_FALSE(doc.LoadFromText(Nested(1000000)));

  EXPECT_EQ(doc.GetLoadError(),
            "line 1, column 769: elements are nested deeper than 256 levels "
            "(KCDocument::kMaxXmlDepth)");
  EXPECT_EQ(doc.GetRoot()->GetName(), "Kept");
}

TEST(KcDocumentDepth, AMillionUnclosedLevelsAreRefusedToo) {
  std::string xml;
  for (int i = 0; i < 1000000; ++i)
    xml += "<b x='1'>";
  KCDocument doc;
  EXPECT_FALSE(doc.LoadFromText(xml));
  EXPECT_NE(doc.GetLoadError().find("deeper than 256 levels"), std::string::npos) << doc.GetLoadError();
}

// ---------------------------------------------------------------------------------------------------------
// Positions

TEST(KcDocumentLoadPosition, ColumnsCountCharactersNotBytes) {
  KCDocument doc;
  // "ä€😀" are 2, 3 and 4 bytes long but one character each: the '&' stands at column 11 (byte 17).
  EXPECT_FALSE(doc.LoadFromText("<r><d>ä€😀 & x</d></r>"));
  EXPECT_EQ(doc.GetLoadError(), "line 1, column 11: '&' must start a reference; write a plain '&' as &amp;");
}

TEST(KcDocumentLoadPosition, CrLfCrAndLfEachEndOneLine) {
  KCDocument doc;
  EXPECT_FALSE(doc.LoadFromText("<r>\r\n<a/>\r<b/>\n\r\n  <c x='<'/></r>"));
  EXPECT_EQ(doc.GetLoadError(),
            "line 5, column 9: '<' is not allowed in an attribute value; write it as &lt;");
}

TEST(KcDocumentLoadPosition, TheByteOrderMarkIsNoColumn) {
  KCDocument doc;
  EXPECT_FALSE(doc.LoadFromText("\xEF\xBB\xBFx"));
  EXPECT_EQ(doc.GetLoadError(), "line 1, column 1: text before the root element: expected '<'");
}

TEST(KcDocumentLoadPosition, ABadByteCountsAsOneCharacter) {
  KCDocument doc;
  EXPECT_FALSE(doc.LoadFromText("<r a='\xFF\xFE'/>"));
  EXPECT_EQ(doc.GetLoadError(),
            "line 1, column 7: invalid UTF-8: the byte 0xFF does not start a valid UTF-8 sequence here");
}

// ---------------------------------------------------------------------------------------------------------
// Size: the reader is linear, so inputs of several MB with long values, many attributes or many siblings
// take a fraction of a second (a quadratic reader would take minutes here).

TEST(KcDocumentLoadSize, LargeInputsReadInLinearTime) {
  std::string manyAttributes = "<r";
  for (int i = 0; i < 100000; ++i)
    manyAttributes += " a" + std::to_string(i) + "=\"" + std::to_string(i) + "\"";
  manyAttributes += "/>";
  std::string manySiblings = "<r>";
  for (int i = 0; i < 100000; ++i)
    manySiblings += "\n  <Tool Nr=\"" + std::to_string(i) + "\" Name=\"drill &amp; tap\"/>";
  manySiblings += "\n</r>";
  const std::string longValue =
      "<r v=\"" + std::string(4000000, 'x') + "&amp;\"><d>" + std::string(4000000, 'y') + "&lt;</d></r>";
  const std::string repeatedLate =
      manyAttributes.substr(0, manyAttributes.size() - 2) + " a99999=\"again\"/>";

  const auto start = std::chrono::steady_clock::now();
  KCDocument doc;
  ASSERT_TRUE(doc.LoadFromText(manyAttributes)) << doc.GetLoadError();
  EXPECT_EQ(doc.GetRoot()->GetEntries().size(), 100000u);
  EXPECT_EQ(doc.GetRoot()->GetValue("a99999"), "99999");
  ASSERT_TRUE(doc.LoadFromText(manySiblings)) << doc.GetLoadError();
  EXPECT_EQ(doc.GetRoot()->GetParagraphs().size(), 100000u);
  ASSERT_TRUE(doc.LoadFromText(longValue)) << doc.GetLoadError();
  EXPECT_EQ(doc.GetRoot()->GetValue("v").GetLength(), 4000001);
  EXPECT_EQ(doc.GetRoot()->GetDocumentation().GetLength(), 4000001);
  EXPECT_FALSE(doc.LoadFromText(repeatedLate));
  EXPECT_NE(doc.GetLoadError().find("the attribute 'a99999' is repeated in <r>"), std::string::npos);
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  EXPECT_LT(seconds, 30.0);  // generous for slow sanitizer and emulator lanes; about 1 s in a debug build
}

}  // namespace
