// SPDX-License-Identifier: MIT
// Reading and writing one INI section through KCC_CfgObjectIniFile.
#include <gtest/gtest.h>

#include <string>

#include "ncappkit/config/KCC_CfgObject.h"
#include "support/PlatformText.h"
#include "support/TempDir.h"

TEST(KccCfgObjectIniFile, KeepsFileNameAndSection) {
  const KCC_CfgObjectIniFile cfg("/tmp/app.ini", "MillCam");
  EXPECT_EQ(cfg.GetFileName(), "/tmp/app.ini");
  EXPECT_EQ(cfg.GetSection(), "MillCam");
}

TEST(KccCfgObjectIniFile, ReadsStringsOfItsOwnSection) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[Other]\nName=wrong\n[App]\nName=right\n");
  KCC_CfgObjectIniFile cfg(ini, "App");
  EXPECT_EQ(cfg.ReadCfgString("Name", "none"), "right");
  EXPECT_EQ(cfg.ReadCfgString("Missing", "none"), "none");
}

TEST(KccCfgObjectIniFile, PlainReadDoesNotCreateTheKey) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[App]\n");
  KCC_CfgObjectIniFile cfg(ini, "App");
  EXPECT_EQ(cfg.ReadCfgString("Key", "d"), "d");
  EXPECT_EQ(cfg.ReadCfgInteger("Number", 5), 5);
  EXPECT_DOUBLE_EQ(cfg.ReadCfgDouble("Real", 1.5), 1.5);
  EXPECT_EQ(dir.ReadFile("app.ini"), "[App]\n");
}

TEST(KccCfgObjectIniFile, CreateReadsWriteTheDefault) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[App]\n");
  KCC_CfgObjectIniFile cfg(ini, "App");
  EXPECT_EQ(cfg.ReadCfgStringCreate("Key", "d"), "d");
  EXPECT_EQ(cfg.ReadCfgIntegerCreate("Number", 5), 5);
  EXPECT_DOUBLE_EQ(cfg.ReadCfgDoubleCreate("Real", 1.5, 2), 1.5);
  EXPECT_EQ(dir.ReadFile("app.ini"), "[App]\nKey=d\nNumber=5\nReal=1.50\n");
}

TEST(KccCfgObjectIniFile, CreateReadsKeepAnExistingValue) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[App]\nKey=x\nNumber=7\n");
  KCC_CfgObjectIniFile cfg(ini, "App");
  EXPECT_EQ(cfg.ReadCfgStringCreate("Key", "d"), "x");
  EXPECT_EQ(cfg.ReadCfgIntegerCreate("Number", 5), 7);
  EXPECT_EQ(dir.ReadFile("app.ini"), "[App]\nKey=x\nNumber=7\n");
}

TEST(KccCfgObjectIniFile, WritesReadBack) {
  TempDir dir;
  KCC_CfgObjectIniFile cfg(dir.Path("app.ini"), "App");
  cfg.WriteCfgString("Text", "hello world");
  cfg.WriteCfgInteger("Number", -12);
  cfg.WriteCfgDouble("Real", 2.25, 3);
  EXPECT_EQ(cfg.ReadCfgString("Text", ""), "hello world");
  EXPECT_EQ(cfg.ReadCfgInteger("Number", 0), -12);
  EXPECT_DOUBLE_EQ(cfg.ReadCfgDouble("Real", 0.0), 2.25);
  // A new file gets the system's text line ends.
  EXPECT_EQ(dir.ReadFile("app.ini"), PlatformText("[App]\nText=hello world\nNumber=-12\nReal=2.250\n"));
}

TEST(KccCfgObjectIniFile, IntegerReadOfTextGivesTheDefault) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[App]\nNumber=many\n");
  KCC_CfgObjectIniFile cfg(ini, "App");
  EXPECT_EQ(cfg.ReadCfgInteger("Number", 3), 3);
  EXPECT_EQ(cfg.ReadCfgIntegerCreate("Number", 3), 3);
  EXPECT_EQ(dir.ReadFile("app.ini"), "[App]\nNumber=many\n");
}

TEST(KccCfgObjectIniFile, OptionStoredAsOneIsTrue) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[App]\nGrid=1\n");
  const KCC_CfgObjectIniFile cfg(ini, "App");
  EXPECT_TRUE(cfg.ReadCfgOption("Grid", false));
}

TEST(KccCfgObjectIniFile, OptionStoredAsOtherIntegersIsFalse) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[App]\nA=0\nB=2\nC=-1\n");
  const KCC_CfgObjectIniFile cfg(ini, "App");
  EXPECT_FALSE(cfg.ReadCfgOption("A", true));
  EXPECT_FALSE(cfg.ReadCfgOption("B", true));
  EXPECT_FALSE(cfg.ReadCfgOption("C", true));  // -1 reads as text, and "-1" is not "On"
}

TEST(KccCfgObjectIniFile, OptionTextsOnAndOffAreCaseSensitive) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[App]\nA=On\nB=Off\nC=on\nD=ON\n");
  const KCC_CfgObjectIniFile cfg(ini, "App");
  EXPECT_TRUE(cfg.ReadCfgOption("A", false));
  EXPECT_FALSE(cfg.ReadCfgOption("B", true));
  EXPECT_FALSE(cfg.ReadCfgOption("C", true));
  EXPECT_FALSE(cfg.ReadCfgOption("D", true));
}

TEST(KccCfgObjectIniFile, MissingOptionGivesTheDefault) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[App]\n");
  const KCC_CfgObjectIniFile cfg(ini, "App");
  EXPECT_TRUE(cfg.ReadCfgOption("Grid", true));
  EXPECT_FALSE(cfg.ReadCfgOption("Grid", false));
  EXPECT_EQ(dir.ReadFile("app.ini"), "[App]\n");
}

TEST(KccCfgObjectIniFile, WrittenOptionsReadBack) {
  TempDir dir;
  const KCC_CfgObjectIniFile cfg(dir.Path("app.ini"), "App");
  cfg.WriteCfgOption("Yes", true);
  cfg.WriteCfgOption("No", false);
  EXPECT_TRUE(cfg.ReadCfgOption("Yes", false));
  EXPECT_FALSE(cfg.ReadCfgOption("No", true));
}

TEST(KccCfgObjectIniFile, OptionCreateWritesAMissingDefault) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[App]\nEmpty=\n");
  const KCC_CfgObjectIniFile cfg(ini, "App");
  EXPECT_TRUE(cfg.ReadCfgOptionCreate("Grid", true));
  EXPECT_FALSE(cfg.ReadCfgOptionCreate("Empty", false));
  EXPECT_TRUE(cfg.ReadCfgOption("Grid", false));
  EXPECT_FALSE(cfg.ReadCfgOption("Empty", true));
}

TEST(KccCfgObjectIniFile, OptionCreateKeepsAStoredValue) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[App]\nGrid=Off\n");
  const KCC_CfgObjectIniFile cfg(ini, "App");
  EXPECT_FALSE(cfg.ReadCfgOptionCreate("Grid", true));
  EXPECT_EQ(dir.ReadFile("app.ini"), "[App]\nGrid=Off\n");
}

TEST(KccCfgObjectIniFile, CopyReadsTheSameSection) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[App]\nKey=v\n");
  KCC_CfgObjectIniFile cfg(ini, "App");
  KCC_CfgObjectIniFile copy(cfg);
  EXPECT_EQ(copy.ReadCfgString("Key", ""), "v");
  KCC_CfgObjectIniFile other(dir.Path("other.ini"), "Other");
  other = cfg;
  EXPECT_EQ(other.GetSection(), "App");
  EXPECT_EQ(other.ReadCfgString("Key", ""), "v");
}
