// SPDX-License-Identifier: MIT
#include "ncappkit/config/KCC_CfgObject.h"

KCC_CfgObject::~KCC_CfgObject() = default;

KCC_CfgObjectIniFile::KCC_CfgObjectIniFile(const KCString& fileName, const KCString& section)
    : KCC_CfgObject(section), m_iniFile(fileName) {}

KCC_CfgObjectIniFile::~KCC_CfgObjectIniFile() = default;

KCString KCC_CfgObjectIniFile::ReadCfgString(const KCString& key, const KCString& defaultValue) {
  return m_iniFile.ReadString(m_section, key, defaultValue, false);
}

void KCC_CfgObjectIniFile::WriteCfgString(const KCString& key, const KCString& value) const {
  m_iniFile.WriteString(m_section, key, value);
}

KCString KCC_CfgObjectIniFile::ReadCfgStringCreate(const KCString& key, const KCString& defaultValue) {
  return m_iniFile.ReadString(m_section, key, defaultValue, true);
}

int KCC_CfgObjectIniFile::ReadCfgInteger(const KCString& key, int defaultValue) const {
  return m_iniFile.ReadInteger(m_section, key, defaultValue, false);
}

void KCC_CfgObjectIniFile::WriteCfgInteger(const KCString& key, int value) const {
  m_iniFile.WriteInteger(m_section, key, value);
}

int KCC_CfgObjectIniFile::ReadCfgIntegerCreate(const KCString& key, int defaultValue) const {
  return m_iniFile.ReadInteger(m_section, key, defaultValue, true);
}

double KCC_CfgObjectIniFile::ReadCfgDouble(const KCString& key, double defaultValue) const {
  return m_iniFile.ReadDouble(m_section, key, defaultValue, false, -1);
}

void KCC_CfgObjectIniFile::WriteCfgDouble(const KCString& key, double value, int digits) const {
  m_iniFile.WriteDouble(m_section, key, value, digits);
}

double KCC_CfgObjectIniFile::ReadCfgDoubleCreate(const KCString& key, double defaultValue, int digits) const {
  return m_iniFile.ReadDouble(m_section, key, defaultValue, true, digits);
}

bool KCC_CfgObjectIniFile::ReadCfgOption(const KCString& key, bool defaultValue) const {
  // An integer value decides by itself (1 is true); -1 means "no integer there", and then the texts
  // "On" / "Off" are read, the default standing in for a missing key.
  const int number = m_iniFile.ReadInteger(m_section, key, -1, false);
  if (number != -1)
    return number == 1;
  const KCString text = m_iniFile.ReadString(m_section, key, KCString(defaultValue ? "On" : "Off"), false);
  return text == "On";
}

void KCC_CfgObjectIniFile::WriteCfgOption(const KCString& key, bool value) const {
  m_iniFile.WriteBool(m_section, key, value);
}

bool KCC_CfgObjectIniFile::ReadCfgOptionCreate(const KCString& key, bool defaultValue) const {
  const KCString text = m_iniFile.ReadString(m_section, key, KCString(), false);
  if (text.empty())
    WriteCfgOption(key, defaultValue);
  return ReadCfgOption(key, defaultValue);
}
