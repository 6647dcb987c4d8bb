// SPDX-License-Identifier: MIT
// KCC_NcFileProgram: number, reference text, lines, size and download action of one NC program.
#include "ncappkit/nc/KCC_NcFileProgram.h"

#include "ncappkit/nc/KCC_NcFile.h"

#include <limits>

#include "ncappkit/nc/KCC_NcFileProgramVisitor.h"

namespace {
constexpr int kNoAction = 0;
constexpr int kDelete = 1;
constexpr int kKeepInMemory = 2;
constexpr int kDownLoad = 3;
}  // namespace

KCC_NcFileProgram::KCC_NcFileProgram() = default;
KCC_NcFileProgram::KCC_NcFileProgram(const KCC_NcFileProgram& other) = default;
KCC_NcFileProgram& KCC_NcFileProgram::operator=(const KCC_NcFileProgram& other) = default;
KCC_NcFileProgram::~KCC_NcFileProgram() = default;

int KCC_NcFileProgram::GetProgramNumber() const {
  return m_programNumber;
}
void KCC_NcFileProgram::SetProgramNumber(int number) {
  m_programNumber = number;
}
KCString KCC_NcFileProgram::GetProgramRef() const {
  return m_programRef;
}
void KCC_NcFileProgram::SetProgramRef(const KCString& ref) {
  m_programRef = ref;
}
KCStringList& KCC_NcFileProgram::GetStringList() {
  return m_lines;
}
const KCStringList& KCC_NcFileProgram::GetStringList() const {
  return m_lines;
}
int KCC_NcFileProgram::GetProgramSize() const {
  return m_programSize;
}

void KCC_NcFileProgram::AddLine(const KCString& line) {
  m_lines.push_back(line);
}
void KCC_NcFileProgram::AddLine(char* line) {
  m_lines.emplace_back(static_cast<const char*>(line));
}
void KCC_NcFileProgram::AddLine(const char* line) {
  m_lines.emplace_back(line);
}
void KCC_NcFileProgram::ClearStringList() {
  m_lines.ReInitList();
}

int KCC_NcFileProgram::CalculateProgramSize() {
  // Summed in 64 bits and clamped, so a huge program cannot overflow the int result.
  long long total = 0;
  for (const KCString& line : m_lines)
    total += static_cast<long long>(line.size());
  const long long maxInt = std::numeric_limits<int>::max();
  m_programSize = static_cast<int>(total > maxInt ? maxInt : total);
  return m_programSize;
}

void KCC_NcFileProgram::SetDownLoadNoAction() {
  m_downLoadAction = kNoAction;
}
void KCC_NcFileProgram::SetDownLoadActionDoDelete() {
  m_downLoadAction = kDelete;
}
void KCC_NcFileProgram::SetDownLoadActionKeepInMemory() {
  m_downLoadAction = kKeepInMemory;
}
void KCC_NcFileProgram::SetDownLoadDoDownLoad() {
  m_downLoadAction = kDownLoad;
}
bool KCC_NcFileProgram::HasDownLoadNoAction() const {
  return m_downLoadAction == kNoAction;
}
bool KCC_NcFileProgram::HasDownLoadActionDoDelete() const {
  return m_downLoadAction == kDelete;
}
bool KCC_NcFileProgram::HasDownLoadActionKeepInMemory() const {
  return m_downLoadAction == kKeepInMemory;
}
bool KCC_NcFileProgram::HasDownLoadDoDownLoad() const {
  return m_downLoadAction == kDownLoad;
}
void KCC_NcFileProgram::SetSelectedForDownLoading(bool selected) {
  m_downLoadAction = selected ? kDownLoad : kNoAction;
}
bool KCC_NcFileProgram::IsSelectedForDownLoading() const {
  return m_downLoadAction == kDownLoad;
}

bool KCC_NcFileProgram::Accept(KCC_NcFileProgramVisitor& visitor) {
  return visitor.Visit(*this);
}

bool KCC_NcFileProgram::SaveToFile(const KCString& fileName) const {
  return KCC_NcFile::SaveProgramsToFile(fileName, {this});
}
