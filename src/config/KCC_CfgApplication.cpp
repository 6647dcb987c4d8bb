// SPDX-License-Identifier: MIT
#include "ncappkit/config/KCC_CfgApplication.h"

namespace {

// Keys of the application section.
const char* const kKeyLang = "Lang";
const char* const kKeyUnits = "Units";
const char* const kKeyCfgDir = "CfgDir";
const char* const kKeyDataDir = "DataDir";
const char* const kKeyTmpDir = "TmpDir";
const char* const kKeyShareDir = "ShareDir";
const char* const kKeyTextEditor = "TextEditor";
const char* const kKeyWriteEnable = "WriteEnable";

// Language texts, indexed by the language number.
const char* const kLanguageTexts[] = {"Ned", "Fra", "Eng", "Dts", "Ita"};

// Stored unit texts: only "Inch" selects inch.
const char* const kUnitsMm = "MM";
const char* const kUnitsInch = "Inch";

// The write-enable counter runs from 1 to this value and then starts again at 1.
constexpr int kWriteEnableMax = 99999;

}  // namespace

KCC_CfgApplication::KCC_CfgApplication() {
  m_units.SetMmMode();
}

KCC_CfgApplication::~KCC_CfgApplication() = default;

void KCC_CfgApplication::Load(KCC_CfgObject& cfg, bool cfgDir, bool dataDir, bool tmpDir, bool shareDir) {
  LoadLanguage(cfg);
  LoadUnits(cfg);
  if (cfgDir)
    LoadApplicCfgDir(cfg);
  if (dataDir)
    LoadApplicDataDir(cfg);
  if (tmpDir)
    LoadApplicTmpDir(cfg);
  if (shareDir)
    LoadApplicShareDir(cfg);
  LoadSystemTextEditor(cfg);
  DoConfigurationWriteEnableCheck(cfg);
}

void KCC_CfgApplication::LoadLanguage(KCC_CfgObject& cfg) {
  const KCString lang = cfg.ReadCfgStringCreate(kKeyLang, kLanguageTexts[kEng]);
  for (std::int32_t i = kNed; i <= kIta; ++i) {
    if (lang == kLanguageTexts[i]) {
      m_language = i;
      return;
    }
  }
  // an unknown value keeps the current language
}

void KCC_CfgApplication::LoadUnits(KCC_CfgObject& cfg) {
  const KCString units = cfg.ReadCfgString(kKeyUnits, kUnitsMm);
  if (units == kUnitsInch)
    m_units.SetInchMode();
  else
    m_units.SetMmMode();
}

void KCC_CfgApplication::LoadApplicCfgDir(KCC_CfgObject& cfg) {
  m_cfgDir = cfg.ReadCfgStringCreate(kKeyCfgDir, KCString());
}

void KCC_CfgApplication::LoadApplicDataDir(KCC_CfgObject& cfg) {
  m_dataDir = cfg.ReadCfgStringCreate(kKeyDataDir, KCString());
}

void KCC_CfgApplication::LoadApplicTmpDir(KCC_CfgObject& cfg) {
  m_tmpDir = cfg.ReadCfgStringCreate(kKeyTmpDir, KCString());
}

void KCC_CfgApplication::LoadApplicShareDir(KCC_CfgObject& cfg) {
  m_shareDir = cfg.ReadCfgStringCreate(kKeyShareDir, KCString());
}

void KCC_CfgApplication::LoadSystemTextEditor(KCC_CfgObject& cfg) {
  m_textEditor = cfg.ReadCfgStringCreate(kKeyTextEditor, KCString());
}

void KCC_CfgApplication::SetApplicCfgDir(const KCString& dir, KCC_CfgObject& cfg, bool reload) {
  cfg.WriteCfgString(kKeyCfgDir, dir);
  if (reload)
    LoadApplicCfgDir(cfg);
}

void KCC_CfgApplication::SetApplicDataDir(const KCString& dir, KCC_CfgObject& cfg, bool reload) {
  cfg.WriteCfgString(kKeyDataDir, dir);
  if (reload)
    LoadApplicDataDir(cfg);
}

void KCC_CfgApplication::SetApplicTmpDir(const KCString& dir, KCC_CfgObject& cfg, bool reload) {
  cfg.WriteCfgString(kKeyTmpDir, dir);
  if (reload)
    LoadApplicTmpDir(cfg);
}

void KCC_CfgApplication::SetApplicShareDir(const KCString& dir, KCC_CfgObject& cfg, bool reload) {
  cfg.WriteCfgString(kKeyShareDir, dir);
  if (reload)
    LoadApplicShareDir(cfg);
}

void KCC_CfgApplication::SetSystemTextEditor(const KCString& editor, KCC_CfgObject& cfg) {
  cfg.WriteCfgString(kKeyTextEditor, editor);
  LoadSystemTextEditor(cfg);
}

void KCC_CfgApplication::SetNed(KCC_CfgObject& cfg) const {
  cfg.WriteCfgString(kKeyLang, kLanguageTexts[kNed]);
}
void KCC_CfgApplication::SetFra(KCC_CfgObject& cfg) const {
  cfg.WriteCfgString(kKeyLang, kLanguageTexts[kFra]);
}
void KCC_CfgApplication::SetEng(KCC_CfgObject& cfg) const {
  cfg.WriteCfgString(kKeyLang, kLanguageTexts[kEng]);
}
void KCC_CfgApplication::SetDts(KCC_CfgObject& cfg) const {
  cfg.WriteCfgString(kKeyLang, kLanguageTexts[kDts]);
}
void KCC_CfgApplication::SetIta(KCC_CfgObject& cfg) const {
  cfg.WriteCfgString(kKeyLang, kLanguageTexts[kIta]);
}
void KCC_CfgApplication::SetMmMode(KCC_CfgObject& cfg) const {
  cfg.WriteCfgString(kKeyUnits, kUnitsMm);
}
void KCC_CfgApplication::SetInchMode(KCC_CfgObject& cfg) const {
  cfg.WriteCfgString(kKeyUnits, kUnitsInch);
}

bool KCC_CfgApplication::GetSystemTextEditor(KCString& editor) const {
  editor = m_textEditor;
  return !editor.empty();
}

bool KCC_CfgApplication::DoConfigurationWriteEnableCheck(KCC_CfgObject& cfg) {
  m_writeEnable = false;
  const int current = cfg.ReadCfgIntegerCreate(kKeyWriteEnable, -1);
  int next = 1;
  if (current >= 0)
    next = (current >= kWriteEnableMax) ? 1 : current + 1;
  cfg.WriteCfgInteger(kKeyWriteEnable, next);
  // A value that could not be read back at all gives this, which no written counter equals.
  constexpr int kUnreadable = -999;
  m_writeEnable = cfg.ReadCfgInteger(kKeyWriteEnable, kUnreadable) == next;
  return m_writeEnable;
}

// Definitions of the class's constants. With them the Windows DLL exports the constants, so that a program
// that takes one by reference or address links against the DLL's copy.
constexpr std::int32_t KCC_CfgApplication::kNed;
constexpr std::int32_t KCC_CfgApplication::kFra;
constexpr std::int32_t KCC_CfgApplication::kEng;
constexpr std::int32_t KCC_CfgApplication::kDts;
constexpr std::int32_t KCC_CfgApplication::kIta;
