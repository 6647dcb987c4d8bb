// SPDX-License-Identifier: MIT
// KCI_MessagesFile: a source of message texts by key, implemented by the client (typically a language file
// of the user-interface language, with sections of keys).
//
// The library calls only GetMessage; the other operations let client code manage the source through the
// same interface.
//
//   class MyMessages : public KCI_MessagesFile { ... };
//   MyMessages messages;
//   messages.LoadFromFile("messages_eng.ini");
//   KCString text = messages.GetMessage("NcParams", "ValueTooLarge");
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// A source of message texts by section and key, implemented by the client.
class NCAPPKIT_EXPORT KCI_MessagesFile {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_MessagesFile() = default;
  /// Nothing to copy: the class holds no data.
  KCI_MessagesFile(const KCI_MessagesFile&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_MessagesFile& operator=(const KCI_MessagesFile&) = default;
  virtual ~KCI_MessagesFile();

  /// The message text stored under `key` in `section`; the implementation chooses what a missing message
  /// gives (typically a text naming the two keys, so that the gap shows).
  virtual KCString GetMessage(const KCString& section, const KCString& key) = 0;
  /// The message text under `key` in `section`, or `defaultText` when there is none.
  virtual KCString GetMessageDefault(const KCString& section, const KCString& key,
                                     const KCString& defaultText) = 0;
  /// True when a message is stored under `key` in `section`.
  virtual bool HasMessage(const KCString& section, const KCString& key) = 0;
  /// Load the messages from `fileName`, replacing those held. True on success.
  virtual bool LoadFromFile(const KCString& fileName) = 0;
  /// The file the messages were loaded from, or "" when none.
  virtual KCString GetFileName() const = 0;
  /// Select the language of the texts (for example "Eng", "Deu"). True when the language is available.
  virtual bool SetLanguage(const KCString& language) = 0;
  /// The selected language.
  virtual KCString GetLanguage() const = 0;
  /// Forget all messages held.
  virtual void Clear() = 0;
};
