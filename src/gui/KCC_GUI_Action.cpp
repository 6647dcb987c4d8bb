// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCC_GUI_Action.h"

#include "ncappkit/draw/KCI_ViewPort.h"
#include "ncappkit/gui/KCC_GUI_ActionVisitor.h"

namespace {
// Values of the finished state: still being created, finished with result false, finished with result true.
constexpr std::int32_t kInCreation = 0;
constexpr std::int32_t kFinishedWithTrue = 2;
}  // namespace

KCC_GUI_Action::KCC_GUI_Action() : m_finishedState(kInCreation) {}
KCC_GUI_Action::KCC_GUI_Action(const KCC_GUI_Action& other) = default;
KCC_GUI_Action& KCC_GUI_Action::operator=(const KCC_GUI_Action& other) = default;
KCC_GUI_Action::~KCC_GUI_Action() = default;

void KCC_GUI_Action::DoAction(int /*x*/, int /*y*/, const KCI_GUI_Keys& /*keys*/) {}
void KCC_GUI_Action::MouseLeftDown(int /*x*/, int /*y*/, const KCI_GUI_Keys& /*keys*/) {}
void KCC_GUI_Action::MouseLeftUp(int /*x*/, int /*y*/, const KCI_GUI_Keys& /*keys*/) {}
void KCC_GUI_Action::MouseRightDown(int /*x*/, int /*y*/, const KCI_GUI_Keys& /*keys*/) {}
void KCC_GUI_Action::MouseRightUp(int /*x*/, int /*y*/, const KCI_GUI_Keys& /*keys*/) {}
void KCC_GUI_Action::MouseMove(int /*x*/, int /*y*/, const KCI_GUI_Keys& /*keys*/,
                               const KCI_GUI_MouseButtons& /*buttons*/) {}
void KCC_GUI_Action::Undo() {}
void KCC_GUI_Action::Redo() {}
void KCC_GUI_Action::Terminate() {}
void KCC_GUI_Action::Destroy() {}

KCString KCC_GUI_Action::ToString() {
  return KCString("???");
}

bool KCC_GUI_Action::Accept(KCC_GUI_ActionVisitor& visitor) {
  return visitor.Visit(*this);
}

bool KCC_GUI_Action::HasFinishedState(bool& result) const {
  if (m_finishedState == kInCreation)
    return false;
  result = m_finishedState == kFinishedWithTrue;
  return true;
}

void KCC_GUI_Action::SetFinishedState(bool result) {
  // 1 + result: 1 for a finished action without result, 2 for one with a result.
  m_finishedState = 1 + (result ? 1 : 0);
}

void KCC_GUI_Action::GetWcPoint(KCI_ViewPort& viewPort, int x, int y, double& wx, double& wy) {
  viewPort.Screen2WorldPoint(x, y, wx, wy);
}
