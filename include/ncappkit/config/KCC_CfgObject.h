// SPDX-License-Identifier: MIT
// KCC_CfgObject and KCC_CfgObjectIniFile: access to one configuration section by key.
//
// KCC_CfgObject is the abstract access that KCC_CfgApplication (KCC_CfgApplication.h) reads and writes
// through; KCC_CfgObjectIniFile implements it on one section of an INI file. The "Create" reads write the
// default into the section when the key is missing. Options (bools) read back both the stored integer (1 is
// true, any other integer false) and the texts "On" / "Off"; they are written as 1 or 0.
//
//   KCC_CfgObjectIniFile cfg("millcam.ini", "MillCam");
//   KCString lang = cfg.ReadCfgStringCreate("Lang", "Eng");    // writes Lang=Eng when missing
//   cfg.WriteCfgOption("ShowGrid", true);
//   bool grid = cfg.ReadCfgOption("ShowGrid", false);           // true
//
// See docs/behaviours.md#configuration.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCIniFile.h"
#include "ncappkit/foundation/KCString.h"

/// Abstract access to one configuration section.
class NCAPPKIT_EXPORT KCC_CfgObject {
 public:
  /// Access to `section`.
  explicit KCC_CfgObject(const KCString& section) : m_section(section) {}
  /// Access to the same section name.
  KCC_CfgObject(const KCC_CfgObject&) = default;
  /// Take the other object's section name; returns *this.
  KCC_CfgObject& operator=(const KCC_CfgObject&) = default;
  virtual ~KCC_CfgObject();

  /// The text of `key`, or `defaultValue` when the key is missing.
  virtual KCString ReadCfgString(const KCString& key, const KCString& defaultValue) = 0;
  /// Write the text of `key`.
  virtual void WriteCfgString(const KCString& key, const KCString& value) const = 0;
  /// The text of `key`; when missing, `defaultValue`, which is written first.
  virtual KCString ReadCfgStringCreate(const KCString& key, const KCString& defaultValue) = 0;
  /// The integer of `key`, or `defaultValue` when the key is missing or holds no integer.
  virtual int ReadCfgInteger(const KCString& key, int defaultValue) const = 0;
  /// Write the integer of `key`.
  virtual void WriteCfgInteger(const KCString& key, int value) const = 0;
  /// The integer of `key`; when missing, `defaultValue`, which is written first.
  virtual int ReadCfgIntegerCreate(const KCString& key, int defaultValue) const = 0;
  /// The real of `key`, or `defaultValue` when the key is missing or holds no number.
  virtual double ReadCfgDouble(const KCString& key, double defaultValue) const = 0;
  /// Write the real of `key` with `digits` decimals (negative: shortest exact text).
  virtual void WriteCfgDouble(const KCString& key, double value, int digits) const = 0;
  /// The real of `key`; when missing, `defaultValue`, which is written first with `digits` decimals.
  virtual double ReadCfgDoubleCreate(const KCString& key, double defaultValue, int digits) const = 0;
  /// The option of `key`: an integer value is true when it is 1; otherwise true when the text is "On"; the
  /// default when the key is missing.
  virtual bool ReadCfgOption(const KCString& key, bool defaultValue) const = 0;
  /// Write the option of `key`.
  virtual void WriteCfgOption(const KCString& key, bool value) const = 0;
  /// The option of `key`; when missing or empty, `defaultValue`, which is written first.
  virtual bool ReadCfgOptionCreate(const KCString& key, bool defaultValue) const = 0;

  /// The section name.
  const KCString& GetSection() const noexcept { return m_section; }

 protected:
  /// The section name given at construction.
  KCString m_section;
};

/// Configuration section in an INI file.
class NCAPPKIT_EXPORT KCC_CfgObjectIniFile : public KCC_CfgObject {
 public:
  /// Access to `section` of the INI file `fileName` (nothing is read yet; a missing file reads as empty and
  /// is created by the first write).
  KCC_CfgObjectIniFile(const KCString& fileName, const KCString& section);
  /// Access to the same section of the same INI file.
  KCC_CfgObjectIniFile(const KCC_CfgObjectIniFile&) = default;
  /// Take the other object's file and section; returns *this.
  KCC_CfgObjectIniFile& operator=(const KCC_CfgObjectIniFile&) = default;
  ~KCC_CfgObjectIniFile() override;

  /// The text of `key`, or `defaultValue` when the key is missing.
  KCString ReadCfgString(const KCString& key, const KCString& defaultValue) override;
  /// Write the text of `key` (a failed write leaves the file as it was).
  void WriteCfgString(const KCString& key, const KCString& value) const override;
  /// The text of `key`; when missing, `defaultValue`, which is written first.
  KCString ReadCfgStringCreate(const KCString& key, const KCString& defaultValue) override;
  /// The integer of `key`, or `defaultValue` when the key is missing or holds no integer.
  int ReadCfgInteger(const KCString& key, int defaultValue) const override;
  /// Write the integer of `key`.
  void WriteCfgInteger(const KCString& key, int value) const override;
  /// The integer of `key`; when missing, `defaultValue`, which is written first.
  int ReadCfgIntegerCreate(const KCString& key, int defaultValue) const override;
  /// The real of `key`, or `defaultValue` when the key is missing or holds no number.
  double ReadCfgDouble(const KCString& key, double defaultValue) const override;
  /// Write the real of `key` with `digits` decimals (negative: shortest exact text).
  void WriteCfgDouble(const KCString& key, double value, int digits) const override;
  /// The real of `key`; when missing, `defaultValue`, which is written first with `digits` decimals.
  double ReadCfgDoubleCreate(const KCString& key, double defaultValue, int digits) const override;
  /// The option of `key`: an integer value is true when it is 1; otherwise true when the text is "On"; the
  /// default when the key is missing.
  bool ReadCfgOption(const KCString& key, bool defaultValue) const override;
  /// Write the option of `key` as 1 or 0.
  void WriteCfgOption(const KCString& key, bool value) const override;
  /// The option of `key`; when missing or empty, `defaultValue`, which is written first.
  bool ReadCfgOptionCreate(const KCString& key, bool defaultValue) const override;

  /// The INI file name.
  const KCString& GetFileName() const noexcept { return m_iniFile.GetFileName(); }

 private:
  // The INI file reads through non-const calls (it caches nothing, but its interface is not const).
  mutable KCIniFile m_iniFile;
};
