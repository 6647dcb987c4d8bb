// SPDX-License-Identifier: MIT
// Rewriting NC lines through the CNcParameter kinds, and building lines with the parameters creator.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>

#include "ncappkit/nc/CNcParameter.h"
#include "ncappkit/nc/KCC_NcProgramParametersCreator.h"

namespace {

// Opens the protected line parts for the tests.
class ParamProbe : public CNcParamInteger {
 public:
  using CNcParameter::ExtractComment;
  using CNcParameter::ExtractParamNumber;
};

KCString CommentOf(const char* text) {
  KCString line(text);
  ParamProbe probe;
  probe.SetParam(0, &line);
  return probe.ExtractComment();
}

KCString NameOf(const char* text) {
  KCString line(text);
  ParamProbe probe;
  probe.SetParam(0, &line);
  return probe.ExtractParamNumber();
}

// A messages file that answers from a fixed table.
class TableMessages : public KCI_MessagesFile {
 public:
  KCString GetMessage(const KCString& section, const KCString& key) override {
    auto it = texts.find({section.str(), key.str()});
    return it == texts.end() ? KCString("?" + section.str() + "/" + key.str()) : KCString(it->second);
  }
  KCString GetMessageDefault(const KCString& section, const KCString& key, const KCString& d) override {
    return HasMessage(section, key) ? GetMessage(section, key) : d;
  }
  bool HasMessage(const KCString& section, const KCString& key) override {
    return texts.count({section.str(), key.str()}) != 0;
  }
  bool LoadFromFile(const KCString&) override { return false; }
  KCString GetFileName() const override { return KCString(); }
  bool SetLanguage(const KCString&) override { return false; }
  KCString GetLanguage() const override { return KCString("Eng"); }
  void Clear() override { texts.clear(); }
  std::map<std::pair<std::string, std::string>, std::string> texts;
};

class CreatorProbe : public KCC_NcProgramParametersCreator {
 public:
  using KCC_NcProgramParametersCreator::GetKccMessage;
  using KCC_NcProgramParametersCreator::KCC_NcProgramParametersCreator;
};

}  // namespace

TEST(CNcParameter, NewParameterHasNoLine) {
  CNcParamInteger p;
  EXPECT_FALSE(p.HasNcLine());
  EXPECT_EQ(p.GetNcLine(), nullptr);
  EXPECT_FALSE(p.UpdateNcLine());
}

TEST(CNcParameter, NullLineKeepsTheLineBoundBefore) {
  KCString line("#100=1");
  CNcParamInteger p;
  p.SetParam(1, &line);
  p.SetParam(2, nullptr);
  EXPECT_EQ(p.GetNcLine(), &line);
  EXPECT_EQ(p.GetValue(), 2);
}

TEST(CNcParameter, NamePartEndsWithEqualsAndLosesTrailingBlanks) {
  EXPECT_EQ(NameOf("#100 = 12.5 (FEED)"), "#100=");
  EXPECT_EQ(NameOf("R10=4"), "R10=");
  EXPECT_EQ(NameOf("=4"), "");
  EXPECT_EQ(NameOf("G01 X5"), "");
}

TEST(CNcParameter, CommentAfterTheEqualsSignIsKept) {
  EXPECT_EQ(CommentOf("#1=5 (A)"), "(A)");
}

TEST(CNcParameter, BracketBeforeTheEqualsSignIsNoComment) {
  EXPECT_EQ(CommentOf("(A) #1=5"), "");
}

TEST(CNcParameter, LineWithoutEqualsKeepsItsBracketedText) {
  EXPECT_EQ(CommentOf("G01 (CUT)"), "(CUT)");
}

TEST(CNcParameter, MissingClosingBracketIsAdded) {
  EXPECT_EQ(CommentOf("#1=5 (OPEN  "), "(OPEN)");
}

TEST(CNcParamInteger, RewritesTheValueKeepingNameAndComment) {
  KCString line("#110 = 4 (COUNT)");
  CNcParamInteger p;
  p.SetParam(12, &line);
  EXPECT_TRUE(p.UpdateNcLine());
  EXPECT_EQ(line, "#110=12(COUNT)");
}

TEST(CNcParamInteger, LineWithoutNameIsLeftAlone) {
  KCString line("G01 X5");
  CNcParamInteger p;
  p.SetParam(12, &line);
  EXPECT_FALSE(p.UpdateNcLine());
  EXPECT_EQ(line, "G01 X5");
}

TEST(CNcParamDouble, TrailingZerosAndPointAreRemoved) {
  KCString line("#105 = 1.250 (LEN)");
  CNcParamDouble p;
  p.SetDigitsAfter(3);
  p.SetParam(2.0, &line);
  EXPECT_TRUE(p.UpdateNcLine());
  EXPECT_EQ(line, "#105=2(LEN)");
}

TEST(CNcParamDouble, FractionIsKeptUpToItsLastNonZeroDigit) {
  KCString line("R1=0");
  CNcParamDouble p;
  p.SetDigitsAfter(3);
  p.SetParam(12.5, &line);
  EXPECT_TRUE(p.UpdateNcLine());
  EXPECT_EQ(line, "R1=12.5");
}

TEST(CNcParamDouble, ZeroDigitsWritesAWholeNumber) {
  KCString line("R1=0");
  CNcParamDouble p;
  p.SetDigitsAfter(0);
  p.SetParam(120.0, &line);
  EXPECT_TRUE(p.UpdateNcLine());
  EXPECT_EQ(line, "R1=120");
}

TEST(CNcParamDouble, ValueNoneClearsTheFlagButTheValueIsStillWritten) {
  KCString line("#1=0");
  CNcParamDouble p;
  p.SetDigitsAfter(2);
  p.SetParam(1.5, &line);
  EXPECT_TRUE(p.HasValue());
  p.HasValueNone();
  EXPECT_FALSE(p.HasValue());
  EXPECT_TRUE(p.UpdateNcLine());
  EXPECT_EQ(line, "#1=1.5");
}

TEST(CNcParamDouble, SetValueMarksTheValueSet) {
  CNcParamDouble p;
  EXPECT_FALSE(p.HasValue());
  p.SetValue(3.0);
  EXPECT_TRUE(p.HasValue());
  EXPECT_DOUBLE_EQ(p.GetValue(), 3.0);
  p.SetDigitsAfter(4);
  EXPECT_EQ(p.GetDigitsAfter(), 4);
}

TEST(CNcParamString, RewritesTheText) {
  KCString line("TOOL = OLD ; note");
  CNcParamString p;
  p.SetParam("NEW", &line);
  EXPECT_TRUE(p.UpdateNcLine());
  EXPECT_EQ(line, "TOOL=NEW");
  EXPECT_EQ(p.GetValue(), "NEW");
}

TEST(CNcParamSubProgId, ReplacesTheCalledNumber) {
  KCString line("N10 M98 P8010 L2");
  CNcParamSubProgId p;
  p.SetParam(1234, &line);
  EXPECT_TRUE(p.UpdateNcLine());
  EXPECT_EQ(line, "N10 M98 P1234 L2");
}

TEST(CNcParamSubProgId, PWithoutBlankGetsOne) {
  KCString line("M98P8010");
  CNcParamSubProgId p;
  p.SetParam(7, &line);
  EXPECT_TRUE(p.UpdateNcLine());
  EXPECT_EQ(line, "M98 P7");
}

TEST(CNcParamSubProgId, LineWithoutM98IsLeftAlone) {
  KCString line("N10 M97 P8010");
  CNcParamSubProgId p;
  p.SetParam(1, &line);
  EXPECT_FALSE(p.UpdateNcLine());
  EXPECT_EQ(line, "N10 M97 P8010");
}

TEST(CNcParamSubProgId, M98WithoutPIsLeftAlone) {
  KCString line("N10 M98 L2");
  CNcParamSubProgId p;
  p.SetParam(1, &line);
  EXPECT_FALSE(p.UpdateNcLine());
  EXPECT_EQ(line, "N10 M98 L2");
}

TEST(CNcParamIsoCommand, ReplacesTheAddressValue) {
  KCString line("G01 X10. Y5");
  CNcParamIsoCommand p;
  p.SetParam("G01", 'X', -3.5, &line);
  EXPECT_TRUE(p.UpdateNcLine());
  EXPECT_EQ(line, "G01 X-3.5 Y5");
}

TEST(CNcParamIsoCommand, AddressGluedToTheCommandGetsABlank) {
  KCString line("G00Z100");
  CNcParamIsoCommand p;
  p.SetCommand("G00");
  p.SetAddress('Z');
  p.SetParam(5.0, &line);
  EXPECT_TRUE(p.UpdateNcLine());
  EXPECT_EQ(line, "G00 Z5");
}

TEST(CNcParamIsoCommand, MissingCommandOrAddressLeavesTheLineAlone) {
  KCString line("G01 X10");
  CNcParamIsoCommand p;
  p.SetParam("G02", 'X', 1.0, &line);
  EXPECT_FALSE(p.UpdateNcLine());
  p.SetParam("G01", 'Y', 1.0, nullptr);
  EXPECT_FALSE(p.UpdateNcLine());
  EXPECT_EQ(line, "G01 X10");
}

TEST(CNcParamIsoCommand, ConstructorDefaults) {
  CNcParamIsoCommand p;
  EXPECT_EQ(p.GetCommand(), "");
  EXPECT_EQ(p.GetAddress(), '-');
  EXPECT_DOUBLE_EQ(p.GetValue(), 0.0);
  EXPECT_EQ(p.GetDecimals(), 3);
}

TEST(KccNcProgramParametersCreator, ParameterWithCommentInBrackets) {
  TableMessages messages;
  KCC_NcProgramParametersCreator creator(messages);
  EXPECT_EQ(creator.DumpParameter("#100", "12.5", "FEED"), "#100=12.5(FEED)");
}

TEST(KccNcProgramParametersCreator, HalfBracketedCommentIsCompleted) {
  TableMessages messages;
  KCC_NcProgramParametersCreator creator(messages);
  EXPECT_EQ(creator.DumpParameter("R1", 4, "(A"), "R1=4(A)");
  EXPECT_EQ(creator.DumpParameter("R1", 4, "A)"), "R1=4(A)");
}

TEST(KccNcProgramParametersCreator, EmptyCommentStaysEmpty) {
  TableMessages messages;
  KCC_NcProgramParametersCreator creator(messages);
  EXPECT_EQ(creator.DumpParameter("R1", -4, ""), "R1=-4");
}

TEST(KccNcProgramParametersCreator, IsoCommandWithTwoAddresses) {
  TableMessages messages;
  KCC_NcProgramParametersCreator creator(messages);
  EXPECT_EQ(creator.DumpIsoCommand("G01", 'X', 10.0, 'Y', 2.5, ""), "G01X10Y2.5");
}

TEST(KccNcProgramParametersCreator, IsoCommandWithOneAddressAndComment) {
  TableMessages messages;
  KCC_NcProgramParametersCreator creator(messages);
  EXPECT_EQ(creator.DumpIsoCommand("G00", 'Z', 0.1, "SAFE"), "G00Z0.1(SAFE)");
}

TEST(KccNcProgramParametersCreator, MessagesComeFromTheClientsFile) {
  TableMessages messages;
  messages.texts[{"NcParams", "TooLarge"}] = "Value too large";
  CreatorProbe creator(messages);
  EXPECT_EQ(creator.GetKccMessage("NcParams", "TooLarge"), "Value too large");
}

TEST(CNcParamDouble, NegativeZeroKeepsItsSignWhenTheZerosAreRemoved) {
  // Only trailing zeros and the point go; the text is not cleaned further.
  KCString line("#1=5");
  CNcParamDouble param;
  param.SetDigitsAfter(3);
  param.SetParam(-0.0001, &line);
  ASSERT_TRUE(param.UpdateNcLine());
  EXPECT_EQ(line, "#1=-0");
}

TEST(CNcParamDouble, NegativeDigitsWriteTheShortestForm) {
  KCString line("R10 = 4 (DEPTH");
  CNcParamDouble param;
  param.SetDigitsAfter(-1);
  param.SetParam(0.125, &line);
  ASSERT_TRUE(param.UpdateNcLine());
  EXPECT_EQ(line, "R10=0.125(DEPTH)");
}

TEST(CNcParamIsoCommand, AddressIsSearchedOnlyAfterTheCommand) {
  KCString line("X1 G01 Y5 X10");
  CNcParamIsoCommand param;
  param.SetParam("G01", 'X', 2.0, &line);
  ASSERT_TRUE(param.UpdateNcLine());
  EXPECT_EQ(line, "X1 G01 Y5 X2");
}

TEST(CNcParamIsoCommand, ValueTextIsCleanedOfANegativeZero) {
  KCString line("G00 Z5.");
  CNcParamIsoCommand param;
  param.SetParam("G00", 'Z', -0.0, &line);
  ASSERT_TRUE(param.UpdateNcLine());
  EXPECT_EQ(line, "G00 Z0");
}

TEST(KccNcProgramParametersCreator, IntegerParameterWritesItsDecimalText) {
  TableMessages messages;
  KCC_NcProgramParametersCreator creator(messages);
  EXPECT_EQ(creator.DumpParameter("#110", -4, "(COUNT)"), "#110=-4(COUNT)");
}

TEST(KccNcProgramParametersCreator, CommentWithOnlyAClosingBracketGetsTheOpeningOne) {
  TableMessages messages;
  KCC_NcProgramParametersCreator creator(messages);
  EXPECT_EQ(creator.DumpParameter("R1", "2", "NOTE)"), "R1=2(NOTE)");
}
