// SPDX-License-Identifier: MIT
// KCC_NcFileProgramList: owning list of NC programs with a cursor.
#include "ncappkit/nc/KCC_NcFileProgramList.h"

#include <utility>

#include <limits>

#include "ncappkit/nc/KCC_NcFileProgram.h"
#include "ncappkit/nc/KCC_NcFileProgramVisitor.h"

namespace {
constexpr std::ptrdiff_t kCursorAtEnd = std::numeric_limits<std::ptrdiff_t>::max();
}

KCC_NcFileProgramList::KCC_NcFileProgramList() : m_cursor(kCursorAtEnd) {}
KCC_NcFileProgramList::KCC_NcFileProgramList(const KCC_NcFileProgramList& other) = default;
KCC_NcFileProgramList& KCC_NcFileProgramList::operator=(const KCC_NcFileProgramList& other) = default;

KCC_NcFileProgramList::KCC_NcFileProgramList(KCC_NcFileProgramList&& other) noexcept
    : m_programs(std::move(other.m_programs)), m_cursor(other.m_cursor) {
  other.m_programs.clear();
  other.m_cursor = kCursorAtEnd;
}

KCC_NcFileProgramList& KCC_NcFileProgramList::operator=(KCC_NcFileProgramList&& other) noexcept {
  if (this == &other)
    return *this;
  for (KCC_NcFileProgram* program : m_programs)
    delete program;
  m_programs = std::move(other.m_programs);
  m_cursor = other.m_cursor;
  other.m_programs.clear();
  other.m_cursor = kCursorAtEnd;
  return *this;
}

KCC_NcFileProgramList KCC_NcFileProgramList::Clone() const {
  KCC_NcFileProgramList copy;
  copy.m_programs.reserve(m_programs.size());
  for (const KCC_NcFileProgram* program : m_programs)
    copy.m_programs.push_back(program == nullptr ? nullptr : new KCC_NcFileProgram(*program));
  copy.m_cursor = m_cursor;
  return copy;
}
KCC_NcFileProgramList::~KCC_NcFileProgramList() {
  for (KCC_NcFileProgram* program : m_programs)
    delete program;
}

void KCC_NcFileProgramList::AddProgram(KCC_NcFileProgram* program) {
  m_programs.push_back(program);
}
int KCC_NcFileProgramList::GetNumberOfPrograms() const {
  return static_cast<int>(m_programs.size());
}
bool KCC_NcFileProgramList::IsEmpty() const {
  return m_programs.empty();
}

KCC_NcFileProgram* KCC_NcFileProgramList::GetProgram(int index) const {
  if (index < 0 || static_cast<std::size_t>(index) >= m_programs.size())
    return nullptr;
  return m_programs[static_cast<std::size_t>(index)];
}

KCC_NcFileProgram* KCC_NcFileProgramList::FindProgramFromList(int number) const {
  for (KCC_NcFileProgram* program : m_programs) {
    if (program != nullptr && program->GetProgramNumber() == number)
      return program;
  }
  return nullptr;
}

KCC_NcFileProgram* KCC_NcFileProgramList::GetFirstProg() {
  if (m_programs.empty()) {
    m_cursor = kCursorAtEnd;
    return nullptr;
  }
  m_cursor = 0;
  return m_programs.front();
}

KCC_NcFileProgram* KCC_NcFileProgramList::GetNextProg() {
  const auto size = static_cast<std::ptrdiff_t>(m_programs.size());
  if (m_cursor >= size)
    return nullptr;
  ++m_cursor;
  if (m_cursor >= size) {
    m_cursor = kCursorAtEnd;
    return nullptr;
  }
  return m_programs[static_cast<std::size_t>(m_cursor)];
}

bool KCC_NcFileProgramList::RemoveProgramFromList(int number) {
  for (std::size_t i = 0; i < m_programs.size(); ++i) {
    KCC_NcFileProgram* program = m_programs[i];
    if (program == nullptr || program->GetProgramNumber() != number)
      continue;
    delete program;
    m_programs.erase(m_programs.begin() + static_cast<std::ptrdiff_t>(i));
    const auto removed = static_cast<std::ptrdiff_t>(i);
    if (m_cursor != kCursorAtEnd && removed <= m_cursor)
      --m_cursor;
    return true;
  }
  return false;
}

void KCC_NcFileProgramList::ClearWithContents() {
  for (KCC_NcFileProgram* program : m_programs)
    delete program;
  m_programs.clear();
  m_cursor = kCursorAtEnd;
}

void KCC_NcFileProgramList::Detach() {
  m_programs.clear();
  m_cursor = kCursorAtEnd;
}

void KCC_NcFileProgramList::SelectDownLoadAllPrograms(bool selected) {
  for (KCC_NcFileProgram* program : m_programs) {
    if (program != nullptr)
      program->SetSelectedForDownLoading(selected);
  }
}

bool KCC_NcFileProgramList::SelectDownloadSingleProgram(int number, bool selected) {
  KCC_NcFileProgram* program = FindProgramFromList(number);
  if (program == nullptr)
    return false;
  program->SetSelectedForDownLoading(selected);
  return true;
}

bool KCC_NcFileProgramList::Accept(KCC_NcFileProgramVisitor& visitor) {
  for (KCC_NcFileProgram* program : m_programs) {
    if (program != nullptr)
      program->Accept(visitor);
  }
  return true;
}
