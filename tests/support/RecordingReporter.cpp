// SPDX-License-Identifier: MIT
#include "support/RecordingReporter.h"

void RecordingReporter::SetHeader(const KCString& header) {
  m_calls.push_back({Op::SetHeader, header});
  m_header = header;
}

void RecordingReporter::SetMessage(const KCString& message) {
  m_calls.push_back({Op::SetMessage, message});
  m_message = message;
}

void RecordingReporter::AddMessage(const KCString& text) {
  m_calls.push_back({Op::AddMessage, text});
  m_message += '\n';
  m_message += text;
}

void RecordingReporter::DoReport() {
  m_calls.push_back({Op::DoReport, KCString()});
  m_reports.push_back({m_header, m_message});
}

void RecordingReporter::ClearMessage() {
  m_calls.push_back({Op::ClearMessage, KCString()});
  m_header = KCString();
  m_message = KCString();
}

std::string RecordingReporter::Log() const {
  std::string log;
  for (const Call& call : m_calls) {
    if (!log.empty())
      log += '|';
    log += OpName(call.op);
    log += '(';
    log += call.text.str();
    log += ')';
  }
  return log;
}

void RecordingReporter::Reset() {
  m_calls.clear();
  m_reports.clear();
  m_header = KCString();
  m_message = KCString();
}

const char* RecordingReporter::OpName(Op op) noexcept {
  switch (op) {
    case Op::SetHeader:
      return "SetHeader";
    case Op::SetMessage:
      return "SetMessage";
    case Op::AddMessage:
      return "AddMessage";
    case Op::DoReport:
      return "DoReport";
    case Op::ClearMessage:
      return "ClearMessage";
  }
  return "?";
}
