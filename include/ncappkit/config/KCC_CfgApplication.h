// SPDX-License-Identifier: MIT
// KCC_CfgApplication: the application's basic settings, kept in one configuration section.
//
// The section holds the user-interface language ("Lang": Ned, Fra, Eng, Dts or Ita), the unit system
// ("Units": "Inch" means inch, anything else mm), four working directories ("CfgDir", "DataDir", "TmpDir",
// "ShareDir"), the external text editor ("TextEditor") and a write-enable counter ("WriteEnable", 1 to
// 99999). The object starts as English, mm and empty directories and takes the file's values only through the
// Load calls. The language and unit setters only write the section; the fields follow at the next Load.
//
//   KCC_CfgObjectIniFile cfg("millcam.ini", "MillCam");
//   KCC_CfgApplication app;
//   app.Load(cfg, true, true, true, true);            // creates the missing keys, probes writability
//   if (app.IsInchMode()) ...
//   app.SetApplicDataDir("/srv/nc", cfg, true);        // writes DataDir and reads it back
//   app.SetInchMode(cfg);                              // takes effect at the next LoadUnits / Load
//
// The write-enable probe advances the counter in the file on every call, so that a read-only or locked file
// is noticed: IsConfigurationWriteEnable() is then false.
// See docs/behaviours.md#configuration.
#pragma once

#include <cstdint>

#include "ncappkit/config/KCC_CfgObject.h"
#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/units/KCC_MmInch.h"

/// The application's basic settings (language, units, directories, editor, write-enable probe) in one
/// section.
class NCAPPKIT_EXPORT KCC_CfgApplication {
 public:
  /// English, mm, empty directories and editor, not write-enabled.
  KCC_CfgApplication();
  /// A copy of every setting, the probe result included.
  KCC_CfgApplication(const KCC_CfgApplication&) = default;
  /// Take every setting of the other object; returns *this.
  KCC_CfgApplication& operator=(const KCC_CfgApplication&) = default;
  virtual ~KCC_CfgApplication();

  /// Load language and units, the directories whose flag is set, the text editor, and run the write-enable
  /// probe.
  void Load(KCC_CfgObject& cfg, bool cfgDir, bool dataDir, bool tmpDir, bool shareDir);
  /// Read "Lang" (default "Eng", created when missing); an unknown value keeps the current language.
  void LoadLanguage(KCC_CfgObject& cfg);
  /// Read "Units" (default "MM", not created): inch when it is exactly "Inch", else mm.
  void LoadUnits(KCC_CfgObject& cfg);
  /// Read "CfgDir" (default empty, created when missing).
  void LoadApplicCfgDir(KCC_CfgObject& cfg);
  /// Read "DataDir" (default empty, created when missing).
  void LoadApplicDataDir(KCC_CfgObject& cfg);
  /// Read "TmpDir" (default empty, created when missing).
  void LoadApplicTmpDir(KCC_CfgObject& cfg);
  /// Read "ShareDir" (default empty, created when missing).
  void LoadApplicShareDir(KCC_CfgObject& cfg);
  /// Read "TextEditor" (default empty, created when missing).
  void LoadSystemTextEditor(KCC_CfgObject& cfg);

  /// Write "CfgDir"; with `reload` read it back into this object.
  void SetApplicCfgDir(const KCString& dir, KCC_CfgObject& cfg, bool reload);
  /// Write "DataDir"; with `reload` read it back into this object.
  void SetApplicDataDir(const KCString& dir, KCC_CfgObject& cfg, bool reload);
  /// Write "TmpDir"; with `reload` read it back into this object.
  void SetApplicTmpDir(const KCString& dir, KCC_CfgObject& cfg, bool reload);
  /// Write "ShareDir"; with `reload` read it back into this object.
  void SetApplicShareDir(const KCString& dir, KCC_CfgObject& cfg, bool reload);
  /// Write "TextEditor" and read it back into this object.
  void SetSystemTextEditor(const KCString& editor, KCC_CfgObject& cfg);

  /// Write "Lang" = "Ned" (the language field changes at the next load).
  void SetNed(KCC_CfgObject& cfg) const;
  /// Write "Lang" = "Fra" (the language field changes at the next load).
  void SetFra(KCC_CfgObject& cfg) const;
  /// Write "Lang" = "Eng" (the language field changes at the next load).
  void SetEng(KCC_CfgObject& cfg) const;
  /// Write "Lang" = "Dts" (the language field changes at the next load).
  void SetDts(KCC_CfgObject& cfg) const;
  /// Write "Lang" = "Ita" (the language field changes at the next load).
  void SetIta(KCC_CfgObject& cfg) const;
  /// Write "Units" = "MM" (the unit field changes at the next load).
  void SetMmMode(KCC_CfgObject& cfg) const;
  /// Write "Units" = "Inch" (the unit field changes at the next load).
  void SetInchMode(KCC_CfgObject& cfg) const;

  /// True when the language is Dutch (0).
  bool IsNed() const noexcept { return m_language == kNed; }
  /// True when the language is French (1).
  bool IsFra() const noexcept { return m_language == kFra; }
  /// True when the language is English (2).
  bool IsEng() const noexcept { return m_language == kEng; }
  /// True when the language is German (3).
  bool IsDts() const noexcept { return m_language == kDts; }
  /// True when the language is Italian (4).
  bool IsIta() const noexcept { return m_language == kIta; }
  /// True when the units are millimetres.
  bool IsMmMode() const noexcept { return m_units.IsMmMode(); }
  /// True when the units are inches.
  bool IsInchMode() const noexcept { return m_units.IsInchMode(); }
  /// A copy of the unit selection.
  KCC_MmInch GetMmInchMode() const noexcept { return m_units; }
  /// The configuration directory.
  KCString GetApplicCfgDir() const { return m_cfgDir; }
  /// The data directory.
  KCString GetApplicDataDir() const { return m_dataDir; }
  /// The temporary directory.
  KCString GetApplicTmpDir() const { return m_tmpDir; }
  /// The shared directory.
  KCString GetApplicShareDir() const { return m_shareDir; }
  /// The text editor command.
  KCString GetSystemTextEditor() const { return m_textEditor; }
  /// Copy the text editor command into `editor`; true when it is not empty.
  bool GetSystemTextEditor(KCString& editor) const;
  /// The result of the last write-enable probe (false before the first).
  bool IsConfigurationWriteEnable() const noexcept { return m_writeEnable; }

  /// The write-enable probe: advance the "WriteEnable" counter (1 after 99999 or when missing or negative),
  /// read it back and return (and keep) whether the value read is the value written.
  bool DoConfigurationWriteEnableCheck(KCC_CfgObject& cfg);

 private:
  static constexpr std::int32_t kNed = 0;
  static constexpr std::int32_t kFra = 1;
  static constexpr std::int32_t kEng = 2;
  static constexpr std::int32_t kDts = 3;
  static constexpr std::int32_t kIta = 4;

  std::int32_t m_language = kEng;
  KCC_MmInch m_units;
  KCString m_cfgDir;
  KCString m_dataDir;
  KCString m_tmpDir;
  KCString m_shareDir;
  KCString m_textEditor;
  bool m_writeEnable = false;
};
