// SPDX-License-Identifier: MIT
#include "ncappkit/foundation/KCC_MessageKeeper.h"

KCC_MessageKeeper::~KCC_MessageKeeper() = default;

void KCC_MessageKeeper::SetHeader(const KCString& header) {
  m_header = header;
}

void KCC_MessageKeeper::SetMessage(const KCString& message) {
  m_text = message;
  Keep(message);
}

void KCC_MessageKeeper::AddMessage(const KCString& text) {
  m_text += "\n";
  m_text += text;
  Keep(text);
}

void KCC_MessageKeeper::DoReport() {
  if (m_reports.size() == kMaxKept)
    m_reports.pop_front();
  m_reports.push_back(Report{m_header, m_text});
}

void KCC_MessageKeeper::ClearMessage() {
  m_header = KCString();
  m_text = KCString();
}

KCString KCC_MessageKeeper::GetLastMessage() const {
  return m_messages.empty() ? KCString() : m_messages.back();
}

KCStringList KCC_MessageKeeper::GetMessages() const {
  KCStringList messages;
  for (const KCString& message : m_messages)
    messages.push_back(message);
  return messages;
}

KCC_MessageKeeper::Report KCC_MessageKeeper::GetLastReport() const {
  return m_reports.empty() ? Report{} : m_reports.back();
}

void KCC_MessageKeeper::ClearKept() {
  ClearMessage();
  m_messages.clear();
  m_reports.clear();
}

void KCC_MessageKeeper::Keep(const KCString& message) {
  if (m_messages.size() == kMaxKept)
    m_messages.pop_front();
  m_messages.push_back(message);
}

// Out-of-line definition for clients that bind it to a reference through a DLL import (MinGW).
constexpr std::size_t KCC_MessageKeeper::kMaxKept;
