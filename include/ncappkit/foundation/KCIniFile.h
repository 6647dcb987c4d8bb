// SPDX-License-Identifier: MIT
// KCIniFile: reading and writing one INI file by section and key.
//
// Section and key names match case-insensitively, values are trimmed, comment lines (';' or '#') and lines
// the reader does not understand are kept, and the file's order is kept when it is rewritten. CRLF and LF
// files both read; a rewrite keeps the line end the file had. Every write goes to a temporary file beside the
// original that is then renamed over it, so a failed write never loses the old file; the result tells
// whether it worked. A missing file reads as empty and is created by the first write.
//
//   KCIniFile ini("app.ini");
//   KCString lang = ini.ReadString("MyApp", "Lang", "Eng", true);   // creates Lang=Eng when missing
//   ini.WriteInteger("MyApp", "Units", 1);
//
// See docs/behaviours.md#ini-files.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/foundation/KCStringList.h"

/// Reading and writing one INI file by section and key; every write replaces the file whole.
class NCAPPKIT_EXPORT KCIniFile {
 public:
  /// Bind the file; nothing is read until the first call.
  explicit KCIniFile(const KCString& fileName);
  /// Binds the same file name (nothing is cached, so both objects see the same file).
  KCIniFile(const KCIniFile&) = default;
  /// Bind the other object's file name; returns *this.
  KCIniFile& operator=(const KCIniFile&) = default;
  virtual ~KCIniFile();

  /// The bound file name.
  const KCString& GetFileName() const noexcept { return m_fileName; }

  /// The value of `key` in `section`; when the key is missing, `defaultValue`, written to the file first
  /// when `create` is true.
  KCString ReadString(const KCString& section, const KCString& key, const KCString& defaultValue,
                      bool create);
  /// The integer value of `key` (its leading integer); the default when the key is missing or holds no
  /// integer. A missing key is created with the default when `create` is true.
  int ReadInteger(const KCString& section, const KCString& key, int defaultValue, bool create);
  /// The real value of `key`; the default when missing or not a number. A missing key is created with the
  /// default written with `digits` decimals when `create` is true (digits < 0: shortest exact text).
  double ReadDouble(const KCString& section, const KCString& key, double defaultValue, bool create,
                    int digits);

  /// Write one key (creating section and key as needed). True on success.
  bool WriteString(const KCString& section, const KCString& key, const KCString& value);
  /// Write one integer key. True on success.
  bool WriteInteger(const KCString& section, const KCString& key, int value);
  /// Write one bool key as "1" or "0". True on success.
  bool WriteBool(const KCString& section, const KCString& key, bool value);
  /// Write one real key with `digits` decimals (digits < 0: shortest exact text). True on success.
  bool WriteDouble(const KCString& section, const KCString& key, double value, int digits);

  /// True when `section` has `key`.
  bool HasKey(const KCString& section, const KCString& key);
  /// Remove `key` from `section`. True when the file was rewritten (or the key was not there).
  bool DeleteKey(const KCString& section, const KCString& key);

  /// The names of the sections that hold at least one key, in file order, each once (in the spelling of its
  /// first header; names differing only in ASCII case are one section). "" stands for the keys before the
  /// first header (and under "[]"). Empty for a missing or unreadable file.
  KCStringList GetSectionNames();
  /// The names of the keys a read of `section` finds, in file order, each once (in its first spelling).
  /// Empty when the section has no keys, or the file is missing or unreadable.
  KCStringList GetKeyNames(const KCString& section);

 private:
  KCString m_fileName;
};
