// SPDX-License-Identifier: MIT
// The application settings in an INI section: defaults, loading, setters and the write-enable probe.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "ncappkit/config/KCC_CfgApplication.h"
#include "ncappkit/config/KCC_CfgObject.h"
#include "ncappkit/foundation/KCIniFile.h"
#include "support/TempDir.h"
#include "support/TestData.h"

namespace {

const char* const kSection = "MillCam";

// A configuration kept in memory that can be told to refuse writes, to show that the application works
// through any KCC_CfgObject.
class MemoryCfg : public KCC_CfgObject {
 public:
  explicit MemoryCfg(bool writable) : KCC_CfgObject("Mem"), m_writable(writable) {}
  KCString ReadCfgString(const KCString& key, const KCString& defaultValue) override {
    auto it = m_values.find(key.str());
    return it == m_values.end() ? defaultValue : KCString(it->second);
  }
  void WriteCfgString(const KCString& key, const KCString& value) const override {
    if (m_writable)
      m_values[key.str()] = value.str();
  }
  KCString ReadCfgStringCreate(const KCString& key, const KCString& defaultValue) override {
    if (m_values.count(key.str()) == 0)
      WriteCfgString(key, defaultValue);
    return ReadCfgString(key, defaultValue);
  }
  int ReadCfgInteger(const KCString& key, int defaultValue) const override {
    auto it = m_values.find(key.str());
    return it == m_values.end() ? defaultValue : KCString(it->second).AsInt(defaultValue, true);
  }
  void WriteCfgInteger(const KCString& key, int value) const override {
    WriteCfgString(key, KCString(value, false));
  }
  int ReadCfgIntegerCreate(const KCString& key, int defaultValue) const override {
    if (m_values.count(key.str()) == 0)
      WriteCfgInteger(key, defaultValue);
    return ReadCfgInteger(key, defaultValue);
  }
  double ReadCfgDouble(const KCString& key, double defaultValue) const override {
    auto it = m_values.find(key.str());
    return it == m_values.end() ? defaultValue : KCString(it->second).AsDouble(defaultValue);
  }
  void WriteCfgDouble(const KCString& key, double value, int digits) const override {
    WriteCfgString(key, KCString(value, digits, false));
  }
  double ReadCfgDoubleCreate(const KCString& key, double defaultValue, int digits) const override {
    if (m_values.count(key.str()) == 0)
      WriteCfgDouble(key, defaultValue, digits);
    return ReadCfgDouble(key, defaultValue);
  }
  bool ReadCfgOption(const KCString& key, bool defaultValue) const override {
    return ReadCfgInteger(key, defaultValue ? 1 : 0) == 1;
  }
  void WriteCfgOption(const KCString& key, bool value) const override { WriteCfgInteger(key, value ? 1 : 0); }
  bool ReadCfgOptionCreate(const KCString& key, bool defaultValue) const override {
    return ReadCfgIntegerCreate(key, defaultValue ? 1 : 0) == 1;
  }
  bool Has(const std::string& key) const { return m_values.count(key) != 0; }

 private:
  bool m_writable;
  mutable std::map<std::string, std::string> m_values;
};

std::string Value(const std::string& ini, const char* key) {
  KCIniFile file(ini);
  return file.ReadString(kSection, key, "<missing>", false).str();
}

bool HasKey(const std::string& ini, const char* key) {
  KCIniFile file(ini);
  return file.HasKey(kSection, key);
}

}  // namespace

TEST(KccCfgApplication, StartsEnglishMmEmptyAndNotWriteEnabled) {
  const KCC_CfgApplication app;
  EXPECT_TRUE(app.IsEng());
  EXPECT_FALSE(app.IsNed() || app.IsFra() || app.IsDts() || app.IsIta());
  EXPECT_TRUE(app.IsMmMode());
  EXPECT_FALSE(app.IsInchMode());
  EXPECT_TRUE(app.GetMmInchMode().IsMmMode());
  EXPECT_EQ(app.GetApplicCfgDir(), "");
  EXPECT_EQ(app.GetApplicDataDir(), "");
  EXPECT_EQ(app.GetApplicTmpDir(), "");
  EXPECT_EQ(app.GetApplicShareDir(), "");
  EXPECT_EQ(app.GetSystemTextEditor(), "");
  EXPECT_FALSE(app.IsConfigurationWriteEnable());
}

TEST(KccCfgApplication, LoadOfAnEmptyFileCreatesTheKeys) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.Load(cfg, true, true, true, true);
  EXPECT_EQ(Value(ini, "Lang"), "Eng");
  for (const char* key : {"CfgDir", "DataDir", "TmpDir", "ShareDir", "TextEditor"}) {
    SCOPED_TRACE(key);
    EXPECT_TRUE(HasKey(ini, key));
    EXPECT_EQ(Value(ini, key), "");
  }
  EXPECT_EQ(Value(ini, "WriteEnable"), "1");
  EXPECT_FALSE(HasKey(ini, "Units"));
  EXPECT_TRUE(app.IsConfigurationWriteEnable());
  EXPECT_TRUE(app.IsEng());
  EXPECT_TRUE(app.IsMmMode());
}

TEST(KccCfgApplication, LoadOfAMissingFileCreatesIt) {
  TempDir dir;
  const std::string ini = dir.Path("new.ini");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.Load(cfg, true, true, true, true);
  EXPECT_TRUE(dir.Exists("new.ini"));
  EXPECT_EQ(Value(ini, "Lang"), "Eng");
  EXPECT_EQ(Value(ini, "WriteEnable"), "1");
  EXPECT_TRUE(app.IsConfigurationWriteEnable());
}

TEST(KccCfgApplication, LoadCreatesOnlyTheChosenDirectories) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.Load(cfg, false, true, false, false);
  EXPECT_FALSE(HasKey(ini, "CfgDir"));
  EXPECT_TRUE(HasKey(ini, "DataDir"));
  EXPECT_FALSE(HasKey(ini, "TmpDir"));
  EXPECT_FALSE(HasKey(ini, "ShareDir"));
  EXPECT_TRUE(HasKey(ini, "TextEditor"));
}

TEST(KccCfgApplication, LoadReadsEverySetting) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini",
                                        "[MillCam]\nLang=Dts\nUnits=Inch\nCfgDir=/etc/mc\nDataDir=/srv/nc\n"
                                        "TmpDir=/tmp/mc\nShareDir=/usr/share/mc\nTextEditor=vi -n\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.Load(cfg, true, true, true, true);
  EXPECT_TRUE(app.IsDts());
  EXPECT_TRUE(app.IsInchMode());
  EXPECT_EQ(app.GetApplicCfgDir(), "/etc/mc");
  EXPECT_EQ(app.GetApplicDataDir(), "/srv/nc");
  EXPECT_EQ(app.GetApplicTmpDir(), "/tmp/mc");
  EXPECT_EQ(app.GetApplicShareDir(), "/usr/share/mc");
  EXPECT_EQ(app.GetSystemTextEditor(), "vi -n");
}

namespace {

// A language code of the INI file and the predicate that is true for it.
struct LanguageRow {
  const char* name;
  const char* text;
  bool (KCC_CfgApplication::*is)() const;
};

const LanguageRow kLanguages[] = {
    {"dutch", "Ned", &KCC_CfgApplication::IsNed},   {"french", "Fra", &KCC_CfgApplication::IsFra},
    {"english", "Eng", &KCC_CfgApplication::IsEng}, {"german", "Dts", &KCC_CfgApplication::IsDts},
    {"italian", "Ita", &KCC_CfgApplication::IsIta},
};

class KccCfgApplicationLanguages : public ::testing::TestWithParam<LanguageRow> {};

}  // namespace

TEST_P(KccCfgApplicationLanguages, LanguageMapsToItsNumber) {
  const LanguageRow& c = GetParam();
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", std::string("[MillCam]\nLang=") + c.text + "\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.LoadLanguage(cfg);
  EXPECT_TRUE((app.*c.is)());
}

INSTANTIATE_TEST_SUITE_P(Languages, KccCfgApplicationLanguages, ::testing::ValuesIn(kLanguages), RowName());

TEST(KccCfgApplication, UnknownLanguageKeepsTheCurrentOne) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[MillCam]\nLang=Ita\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.LoadLanguage(cfg);
  ASSERT_TRUE(app.IsIta());
  dir.WriteFile("app.ini", "[MillCam]\nLang=Deu\n");
  app.LoadLanguage(cfg);
  EXPECT_TRUE(app.IsIta());
  dir.WriteFile("app.ini", "[MillCam]\nLang=eng\n");
  app.LoadLanguage(cfg);
  EXPECT_TRUE(app.IsIta());
}

TEST(KccCfgApplication, UnitsInLowerCaseMeanMm) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[MillCam]\nUnits=inch\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.LoadUnits(cfg);
  EXPECT_TRUE(app.IsMmMode());
}

TEST(KccCfgApplication, UnitsInchMeansInch) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[MillCam]\nUnits=Inch\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.LoadUnits(cfg);
  EXPECT_TRUE(app.IsInchMode());
  EXPECT_TRUE(app.GetMmInchMode().IsInchMode());
}

TEST(KccCfgApplication, UnitsReadIsNotCreated) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[MillCam]\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.LoadUnits(cfg);
  EXPECT_TRUE(app.IsMmMode());
  EXPECT_EQ(dir.ReadFile("app.ini"), "[MillCam]\n");
}

TEST(KccCfgApplication, LanguageSettersWriteButDoNotChangeTheField) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[MillCam]\nLang=Eng\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.LoadLanguage(cfg);
  app.SetFra(cfg);
  EXPECT_EQ(Value(ini, "Lang"), "Fra");
  EXPECT_TRUE(app.IsEng());
  app.LoadLanguage(cfg);
  EXPECT_TRUE(app.IsFra());
  app.SetNed(cfg);
  EXPECT_EQ(Value(ini, "Lang"), "Ned");
  app.SetDts(cfg);
  EXPECT_EQ(Value(ini, "Lang"), "Dts");
  app.SetIta(cfg);
  EXPECT_EQ(Value(ini, "Lang"), "Ita");
  app.SetEng(cfg);
  EXPECT_EQ(Value(ini, "Lang"), "Eng");
}

TEST(KccCfgApplication, UnitSettersWriteButDoNotChangeTheField) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.SetInchMode(cfg);
  EXPECT_EQ(Value(ini, "Units"), "Inch");
  EXPECT_TRUE(app.IsMmMode());
  app.LoadUnits(cfg);
  EXPECT_TRUE(app.IsInchMode());
  app.SetMmMode(cfg);
  EXPECT_EQ(Value(ini, "Units"), "MM");
  EXPECT_TRUE(app.IsInchMode());
  app.LoadUnits(cfg);
  EXPECT_TRUE(app.IsMmMode());
}

TEST(KccCfgApplication, DirectorySettersReloadOnRequest) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.SetApplicDataDir("/srv/nc", cfg, false);
  EXPECT_EQ(Value(ini, "DataDir"), "/srv/nc");
  EXPECT_EQ(app.GetApplicDataDir(), "");
  app.SetApplicDataDir("/srv/nc2", cfg, true);
  EXPECT_EQ(app.GetApplicDataDir(), "/srv/nc2");
  app.SetApplicCfgDir("/etc/mc", cfg, true);
  app.SetApplicTmpDir("/tmp/mc", cfg, true);
  app.SetApplicShareDir("/usr/share/mc", cfg, true);
  EXPECT_EQ(app.GetApplicCfgDir(), "/etc/mc");
  EXPECT_EQ(app.GetApplicTmpDir(), "/tmp/mc");
  EXPECT_EQ(app.GetApplicShareDir(), "/usr/share/mc");
  EXPECT_EQ(Value(ini, "ShareDir"), "/usr/share/mc");
}

TEST(KccCfgApplication, TextEditorSetterWritesAndLoadsBack) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  KCString editor = "unchanged";
  EXPECT_FALSE(app.GetSystemTextEditor(editor));
  EXPECT_EQ(editor, "");
  app.SetSystemTextEditor("notepad.exe", cfg);
  EXPECT_EQ(Value(ini, "TextEditor"), "notepad.exe");
  EXPECT_TRUE(app.GetSystemTextEditor(editor));
  EXPECT_EQ(editor, "notepad.exe");
}

TEST(KccCfgApplication, ProbeAdvancesTheCounter) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[MillCam]\nWriteEnable=41\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  EXPECT_TRUE(app.DoConfigurationWriteEnableCheck(cfg));
  EXPECT_EQ(Value(ini, "WriteEnable"), "42");
  EXPECT_TRUE(app.DoConfigurationWriteEnableCheck(cfg));
  EXPECT_EQ(Value(ini, "WriteEnable"), "43");
  EXPECT_TRUE(app.IsConfigurationWriteEnable());
}

TEST(KccCfgApplication, ProbeWrapsAfter99999) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[MillCam]\nWriteEnable=99999\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  EXPECT_TRUE(app.DoConfigurationWriteEnableCheck(cfg));
  EXPECT_EQ(Value(ini, "WriteEnable"), "1");
}

TEST(KccCfgApplication, ProbeRestartsANegativeOrUnreadableCounter) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[MillCam]\nWriteEnable=-5\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  EXPECT_TRUE(app.DoConfigurationWriteEnableCheck(cfg));
  EXPECT_EQ(Value(ini, "WriteEnable"), "1");
  dir.WriteFile("app.ini", "[MillCam]\nWriteEnable=often\n");
  EXPECT_TRUE(app.DoConfigurationWriteEnableCheck(cfg));
  EXPECT_EQ(Value(ini, "WriteEnable"), "1");
}

TEST(KccCfgApplication, ProbeFailsWhereTheFileCannotBeWritten) {
  // The parent of the INI path is a regular file: no one, root included, can create a file below it.
  TempDir dir;
  dir.WriteFile("blocker", "not a directory\n");
  const std::string ini = dir.Path("blocker/app.ini");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.Load(cfg, true, true, true, true);
  EXPECT_FALSE(app.IsConfigurationWriteEnable());
  EXPECT_TRUE(app.IsEng());
  EXPECT_TRUE(app.IsMmMode());
  EXPECT_EQ(app.GetApplicDataDir(), "");
  EXPECT_EQ(dir.ReadFile("blocker"), "not a directory\n");
}

TEST(KccCfgApplication, ProbeTurnsFalseOnceWritesFail) {
  MemoryCfg writable(true);
  KCC_CfgApplication app;
  EXPECT_TRUE(app.DoConfigurationWriteEnableCheck(writable));
  EXPECT_TRUE(app.IsConfigurationWriteEnable());
  MemoryCfg readOnly(false);
  EXPECT_FALSE(app.DoConfigurationWriteEnableCheck(readOnly));
  EXPECT_FALSE(app.IsConfigurationWriteEnable());
}

TEST(KccCfgApplication, WorksThroughAnyConfigurationObject) {
  MemoryCfg cfg(true);
  cfg.WriteCfgString("Lang", "Ned");
  cfg.WriteCfgString("Units", "Inch");
  KCC_CfgApplication app;
  app.Load(cfg, true, false, false, false);
  EXPECT_TRUE(app.IsNed());
  EXPECT_TRUE(app.IsInchMode());
  EXPECT_TRUE(cfg.Has("CfgDir"));
  EXPECT_FALSE(cfg.Has("DataDir"));
  EXPECT_EQ(cfg.ReadCfgInteger("WriteEnable", 0), 1);
}

TEST(KccCfgApplication, CrlfFileReadsAndKeepsItsLineEnds) {
  TempDir dir;
  const std::string ini =
      dir.WriteFile("app.ini", "[MillCam]\r\nLang=Fra\r\nUnits=Inch\r\nDataDir=D:\\nc\r\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.Load(cfg, false, true, false, false);
  EXPECT_TRUE(app.IsFra());
  EXPECT_TRUE(app.IsInchMode());
  EXPECT_EQ(app.GetApplicDataDir(), "D:\\nc");
  EXPECT_EQ(dir.ReadFile("app.ini"),
            "[MillCam]\r\nLang=Fra\r\nUnits=Inch\r\nDataDir=D:\\nc\r\nTextEditor=\r\nWriteEnable=1\r\n");
}

TEST(KccCfgApplication, DuplicateKeyTakesTheFirstValue) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[MillCam]\nLang=Fra\nLang=Ita\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.LoadLanguage(cfg);
  EXPECT_TRUE(app.IsFra());
  app.SetDts(cfg);
  EXPECT_EQ(dir.ReadFile("app.ini"), "[MillCam]\nLang=Dts\nLang=Ita\n");
}

TEST(KccCfgApplication, KeyWithoutEqualsSignIsNotAKey) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[MillCam]\nLang Fra\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.LoadLanguage(cfg);
  EXPECT_TRUE(app.IsEng());
  EXPECT_EQ(dir.ReadFile("app.ini"), "[MillCam]\nLang=Eng\nLang Fra\n");  // the line itself is kept
}

TEST(KccCfgApplication, SectionThatAppearsTwiceIsReadAsOne) {
  TempDir dir;
  const std::string ini =
      dir.WriteFile("app.ini", "[MillCam]\nLang=Fra\n[Other]\nLang=Ned\n[MillCam]\nUnits=Inch\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.LoadLanguage(cfg);
  app.LoadUnits(cfg);
  EXPECT_TRUE(app.IsFra());
  EXPECT_TRUE(app.IsInchMode());
}

TEST(KccCfgApplication, WritesKeepOtherSectionsKeysAndComments) {
  TempDir dir;
  const std::string before =
      "; settings of the shop floor\n"
      "[Machine]\n"
      "Name = Mill 3\n"
      "# spindle limits\n"
      "MaxRpm=12000\n"
      "\n"
      "[MillCam]\n"
      "; language of the menus\n"
      "Lang=Ned\n"
      "Custom=keep me\n"
      "\n"
      "[Post]\n"
      "Dialect=Fanuc\n";
  const std::string ini = dir.WriteFile("app.ini", before);
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.Load(cfg, true, true, true, true);
  app.SetApplicDataDir("/srv/nc", cfg, true);
  const std::string after = dir.ReadFile("app.ini");
  EXPECT_EQ(after,
            "; settings of the shop floor\n"
            "[Machine]\n"
            "Name = Mill 3\n"
            "# spindle limits\n"
            "MaxRpm=12000\n"
            "\n"
            "[MillCam]\n"
            "; language of the menus\n"
            "Lang=Ned\n"
            "Custom=keep me\n"
            "CfgDir=\n"
            "DataDir=/srv/nc\n"
            "TmpDir=\n"
            "ShareDir=\n"
            "TextEditor=\n"
            "WriteEnable=1\n"
            "\n"
            "[Post]\n"
            "Dialect=Fanuc\n");
  EXPECT_TRUE(app.IsNed());
}

namespace {

// A way to copy the settings.
struct CopyRow {
  const char* name;
  KCC_CfgApplication (*copy)(const KCC_CfgApplication&);
};

const CopyRow kCopies[] = {
    {"copy_constructor", [](const KCC_CfgApplication& app) { return KCC_CfgApplication(app); }},
    {"copy_assignment",
     [](const KCC_CfgApplication& app) {
       KCC_CfgApplication assigned;
       assigned = app;
       return assigned;
     }},
};

class KccCfgApplicationCopies : public ::testing::TestWithParam<CopyRow> {};

}  // namespace

TEST_P(KccCfgApplicationCopies, CopyKeepsEverySetting) {
  TempDir dir;
  const std::string ini = dir.WriteFile("app.ini", "[MillCam]\nLang=Ita\nUnits=Inch\nTmpDir=/t\n");
  KCC_CfgObjectIniFile cfg(ini, kSection);
  KCC_CfgApplication app;
  app.Load(cfg, false, false, true, false);
  const KCC_CfgApplication a = GetParam().copy(app);
  EXPECT_TRUE(a.IsIta());
  EXPECT_TRUE(a.IsInchMode());
  EXPECT_EQ(a.GetApplicTmpDir(), "/t");
  EXPECT_TRUE(a.IsConfigurationWriteEnable());
}

INSTANTIATE_TEST_SUITE_P(Copies, KccCfgApplicationCopies, ::testing::ValuesIn(kCopies), RowName());
