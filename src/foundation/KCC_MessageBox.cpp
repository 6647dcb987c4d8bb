// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCC_MessageBox.h"

KCI_MessageBox::~KCI_MessageBox() = default;

KCC_MessageBox::KCC_MessageBox() = default;

KCC_MessageBox::KCC_MessageBox(HWND& owner) : m_owner(owner) {}

KCC_MessageBox::KCC_MessageBox(HWND& owner, const KCString& header, const KCString& message)
    : m_header(header), m_message(message), m_owner(owner) {}

KCC_MessageBox::~KCC_MessageBox() = default;

void KCC_MessageBox::SetHeader(const KCString& header) {
  m_header = header;
}

void KCC_MessageBox::SetMessage(const KCString& message) {
  m_message = message;
}

void KCC_MessageBox::AddMessage(const KCString& text) {
  m_message += '\n';
  m_message += text;
}

void KCC_MessageBox::DoReport() {
  SetTypeOk();
  SetIconExclamation();
  SetDefaultButton(1);
  DoModal();
}

void KCC_MessageBox::ClearMessage() {
  m_message = KCString();
  m_header = KCString();
}

void KCC_MessageBox::SetTypeAbortRetryIgnore() {
  m_buttonType = kTypeAbortRetryIgnore;
}

void KCC_MessageBox::SetTypeOk() {
  m_buttonType = kTypeOk;
}

void KCC_MessageBox::SetTypeOkCancel() {
  m_buttonType = kTypeOkCancel;
}

void KCC_MessageBox::SetTypeRetryCancel() {
  m_buttonType = kTypeRetryCancel;
}

void KCC_MessageBox::SetTypeYesNo() {
  m_buttonType = kTypeYesNo;
}

void KCC_MessageBox::SetTypeYesNoCancel() {
  m_buttonType = kTypeYesNoCancel;
}

void KCC_MessageBox::SetIconExclamation() {
  m_iconType = kIconExclamation;
}

void KCC_MessageBox::SetIconInformation() {
  m_iconType = kIconInformation;
}

void KCC_MessageBox::SetIconQuestion() {
  m_iconType = kIconQuestion;
}

void KCC_MessageBox::SetIconStop() {
  m_iconType = kIconStop;
}

void KCC_MessageBox::SetDefaultButton(int button) {
  switch (button) {
    case 2:
      m_defaultButton = kDefaultButton2;
      break;
    case 3:
      m_defaultButton = kDefaultButton3;
      break;
    default:
      m_defaultButton = kDefaultButton1;
      break;
  }
}

bool KCC_MessageBox::IsAbort() const {
  return m_returnCode == kReturnAbort;
}

bool KCC_MessageBox::IsCancel() const {
  return m_returnCode == kReturnCancel;
}

bool KCC_MessageBox::IsIgnore() const {
  return m_returnCode == kReturnIgnore;
}

bool KCC_MessageBox::IsNo() const {
  return m_returnCode == kReturnNo;
}

bool KCC_MessageBox::IsOk() const {
  return m_returnCode == kReturnOk;
}

bool KCC_MessageBox::IsRetry() const {
  return m_returnCode == kReturnRetry;
}

bool KCC_MessageBox::IsYes() const {
  return m_returnCode == kReturnYes;
}

std::uint32_t KCC_MessageBox::GetStyle() const noexcept {
  return static_cast<std::uint32_t>(m_defaultButton | m_iconType | m_buttonType);
}

void KCC_MessageBox::DoModal() {
  m_returnCode = KCC_ShowMessageBox(m_owner, m_message.c_str(), m_header.c_str(), GetStyle());
}
