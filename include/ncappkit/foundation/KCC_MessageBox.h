// SPDX-License-Identifier: MIT
// KCI_MessageBox and KCC_MessageBox: a reporter that shows its text in the system's modal message box and
// keeps the button the user pressed.
//
// Button set, icon and default button use the Windows message-box codes and are or-ed into the box's style;
// the answer is the Windows button code (1 OK, 2 Cancel, 3 Abort, 4 Retry, 5 Ignore, 6 Yes, 7 No), or
// 0xFFFFFFFF while the box has not been shown. The box is shown through KCC_ShowMessageBox (KCPlatform.h),
// so a client or a test can install its own handler. A box can be reused: its settings and last answer stay
// after DoModal; ClearMessage empties only the texts.
//
//   KCC_MessageBox box;
//   box.SetHeader("Save");
//   box.SetMessage("Overwrite the file?");
//   box.SetTypeYesNo();
//   box.SetIconQuestion();
//   box.DoModal();
//   if (box.IsYes()) ...
//
// Windows' <windows.h> defines GetMessage as a macro; include it after this header or #undef GetMessage
// before calling KCC_MessageBox::GetMessage.
// See docs/behaviours.md#message-reporters.
#pragma once

#include <cstdint>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCC_MessageReporter.h"
#include "ncappkit/foundation/KCPlatform.h"
#include "ncappkit/foundation/KCString.h"

/// Abstract message box. Its operations follow the reporter's five in this order: SetTypeAbortRetryIgnore,
/// SetTypeOk, SetTypeOkCancel, SetTypeRetryCancel, SetTypeYesNo, SetTypeYesNoCancel, SetIconExclamation,
/// SetIconInformation, SetIconQuestion, SetIconStop, SetDefaultButton, IsAbort, IsCancel, IsIgnore, IsNo,
/// IsOk, IsRetry, IsYes, DoModal.
class NCAPPKIT_EXPORT KCI_MessageBox : public KCC_MessageReporter {
 public:
  /// Nothing to set up: the class holds no data.
  KCI_MessageBox() = default;
  /// Nothing to copy: the class holds no data.
  KCI_MessageBox(const KCI_MessageBox&) = default;
  /// Nothing to assign: the class holds no data; returns *this.
  KCI_MessageBox& operator=(const KCI_MessageBox&) = default;
  ~KCI_MessageBox() override;

  /// Set the caption of the box.
  void SetHeader(const KCString& header) override = 0;
  /// Replace the body text.
  void SetMessage(const KCString& message) override = 0;
  /// Append a line feed and `text` to the body text.
  void AddMessage(const KCString& text) override = 0;
  /// Show the text as an error report.
  void DoReport() override = 0;
  /// Empty body text and caption.
  void ClearMessage() override = 0;

  /// Buttons Abort, Retry, Ignore.
  virtual void SetTypeAbortRetryIgnore() = 0;
  /// Button OK only.
  virtual void SetTypeOk() = 0;
  /// Buttons OK, Cancel.
  virtual void SetTypeOkCancel() = 0;
  /// Buttons Retry, Cancel.
  virtual void SetTypeRetryCancel() = 0;
  /// Buttons Yes, No.
  virtual void SetTypeYesNo() = 0;
  /// Buttons Yes, No, Cancel.
  virtual void SetTypeYesNoCancel() = 0;
  /// Exclamation-mark icon.
  virtual void SetIconExclamation() = 0;
  /// Information icon.
  virtual void SetIconInformation() = 0;
  /// Question-mark icon.
  virtual void SetIconQuestion() = 0;
  /// Stop (error) icon.
  virtual void SetIconStop() = 0;
  /// Default button by its position, 1, 2 or 3; any other number selects the first.
  virtual void SetDefaultButton(int button) = 0;
  /// True when the box was closed with Abort.
  virtual bool IsAbort() const = 0;
  /// True when the box was closed with Cancel.
  virtual bool IsCancel() const = 0;
  /// True when the box was closed with Ignore.
  virtual bool IsIgnore() const = 0;
  /// True when the box was closed with No.
  virtual bool IsNo() const = 0;
  /// True when the box was closed with OK.
  virtual bool IsOk() const = 0;
  /// True when the box was closed with Retry.
  virtual bool IsRetry() const = 0;
  /// True when the box was closed with Yes.
  virtual bool IsYes() const = 0;
  /// Show the box modally and keep the answer.
  virtual void DoModal() = 0;
};

/// The working message box.
class NCAPPKIT_EXPORT KCC_MessageBox : public KCI_MessageBox {
 public:
  // The codes are enumerators rather than static data members, so that using them never needs a symbol
  // from the shared library.
  /// Button-set codes of the box's style (Windows MB_OK ... MB_RETRYCANCEL).
  enum ButtonType : std::int32_t {
    kTypeOk = 0,                ///< OK
    kTypeOkCancel = 1,          ///< OK, Cancel
    kTypeAbortRetryIgnore = 2,  ///< Abort, Retry, Ignore
    kTypeYesNoCancel = 3,       ///< Yes, No, Cancel
    kTypeYesNo = 4,             ///< Yes, No
    kTypeRetryCancel = 5        ///< Retry, Cancel
  };
  /// Icon codes of the box's style (Windows MB_ICONSTOP ... MB_ICONINFORMATION).
  enum IconType : std::int32_t {
    kIconStop = 0x10,         ///< stop (error) icon
    kIconQuestion = 0x20,     ///< question-mark icon
    kIconExclamation = 0x30,  ///< exclamation-mark icon
    kIconInformation = 0x40   ///< information icon
  };
  /// Default-button codes of the box's style (Windows MB_DEFBUTTON1 ... MB_DEFBUTTON3).
  enum DefaultButton : std::int32_t {
    kDefaultButton1 = 0,      ///< the first button
    kDefaultButton2 = 0x100,  ///< the second button
    kDefaultButton3 = 0x200   ///< the third button
  };
  /// Answer codes (Windows IDOK ... IDNO), and the code of a box that has not been answered yet.
  enum ReturnCode : std::uint32_t {
    kReturnOk = 1,             ///< OK
    kReturnCancel = 2,         ///< Cancel
    kReturnAbort = 3,          ///< Abort
    kReturnRetry = 4,          ///< Retry
    kReturnIgnore = 5,         ///< Ignore
    kReturnYes = 6,            ///< Yes
    kReturnNo = 7,             ///< No
    kReturnNone = 0xFFFFFFFFu  ///< not answered yet
  };

  /// A box without owner window, empty texts, OK button, information icon, first button as default.
  KCC_MessageBox();
  /// As the default box, owned by the window in `owner` (the handle is copied now).
  explicit KCC_MessageBox(HWND& owner);
  /// As the default box, owned by the window in `owner`, with the given caption and text.
  KCC_MessageBox(HWND& owner, const KCString& header, const KCString& message);
  /// A copy with the same texts, settings, owner and last answer.
  KCC_MessageBox(const KCC_MessageBox&) = default;
  /// Take over texts, settings, owner and last answer of the other box; returns *this.
  KCC_MessageBox& operator=(const KCC_MessageBox&) = default;
  ~KCC_MessageBox() override;

  /// Caption = `header`.
  void SetHeader(const KCString& header) override;
  /// Text = `message`.
  void SetMessage(const KCString& message) override;
  /// Text = text + line feed + `text`. The line feed is added also to an empty text, so a text built only
  /// with AddMessage begins with an empty line.
  void AddMessage(const KCString& text) override;
  /// The standard error report: SetTypeOk, SetIconExclamation, SetDefaultButton(1), DoModal, each called
  /// virtually so that a subclass can change a step.
  void DoReport() override;
  /// Empty text and caption; button set, icon, default button and the last answer stay.
  void ClearMessage() override;

  /// Buttons Abort, Retry, Ignore (code 2).
  void SetTypeAbortRetryIgnore() override;
  /// Button OK only (code 0).
  void SetTypeOk() override;
  /// Buttons OK, Cancel (code 1).
  void SetTypeOkCancel() override;
  /// Buttons Retry, Cancel (code 5).
  void SetTypeRetryCancel() override;
  /// Buttons Yes, No (code 4).
  void SetTypeYesNo() override;
  /// Buttons Yes, No, Cancel (code 3).
  void SetTypeYesNoCancel() override;
  /// Exclamation-mark icon (code 0x30).
  void SetIconExclamation() override;
  /// Information icon (code 0x40).
  void SetIconInformation() override;
  /// Question-mark icon (code 0x20).
  void SetIconQuestion() override;
  /// Stop icon (code 0x10).
  void SetIconStop() override;
  /// 2 selects the second button (0x100), 3 the third (0x200), any other number the first (0).
  void SetDefaultButton(int button) override;
  /// True when the answer is Abort (3).
  bool IsAbort() const override;
  /// True when the answer is Cancel (2).
  bool IsCancel() const override;
  /// True when the answer is Ignore (5).
  bool IsIgnore() const override;
  /// True when the answer is No (7).
  bool IsNo() const override;
  /// True when the answer is OK (1).
  bool IsOk() const override;
  /// True when the answer is Retry (4).
  bool IsRetry() const override;
  /// True when the answer is Yes (6).
  bool IsYes() const override;
  /// Show the box through KCC_ShowMessageBox(owner, text, caption, default button | icon | button set) and
  /// keep its answer.
  void DoModal() override;

  /// The caption, modifiable.
  KCString& GetHeader() noexcept { return m_header; }
  /// The body text, modifiable.
  KCString& GetMessage() noexcept { return m_message; }
  /// The last answer, 0xFFFFFFFF before the first DoModal.
  std::uint32_t GetReturn() const noexcept { return m_returnCode; }
  /// The button-set code.
  std::int32_t GetButtonType() const noexcept { return m_buttonType; }
  /// The icon code.
  std::int32_t GetIconType() const noexcept { return m_iconType; }
  /// The default-button code.
  std::int32_t GetDefaultButtonCode() const noexcept { return m_defaultButton; }
  /// The style DoModal passes: default button | icon | button set.
  std::uint32_t GetStyle() const noexcept;
  /// The owner window handle (null for none).
  HWND GetOwner() const noexcept { return m_owner; }

 private:
  KCString m_header;
  KCString m_message;
  std::uint32_t m_returnCode = kReturnNone;
  std::int32_t m_buttonType = kTypeOk;
  std::int32_t m_iconType = kIconInformation;
  std::int32_t m_defaultButton = kDefaultButton1;
  HWND m_owner = nullptr;
};
