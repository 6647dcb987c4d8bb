// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCC_GUI_ActionList.h"

#include <utility>

#include "ncappkit/gui/KCC_GUI_Action.h"
#include "ncappkit/gui/KCC_GUI_ActionVisitor.h"

KCC_GUI_ActionList::KCC_GUI_ActionList() : m_generation(0) {}
KCC_GUI_ActionList::KCC_GUI_ActionList(const KCC_GUI_ActionList& other)
    : m_actions(other.m_actions), m_generation(0) {}

KCC_GUI_ActionList& KCC_GUI_ActionList::operator=(const KCC_GUI_ActionList& other) {
  if (this == &other)
    return *this;
  m_actions = other.m_actions;
  NewGeneration();
  return *this;
}

KCC_GUI_ActionList::KCC_GUI_ActionList(KCC_GUI_ActionList&& other) noexcept
    : m_actions(std::move(other.m_actions)), m_generation(0) {
  other.m_actions.clear();
  other.NewGeneration();
}

KCC_GUI_ActionList& KCC_GUI_ActionList::operator=(KCC_GUI_ActionList&& other) noexcept {
  if (this == &other)
    return *this;
  ClearWithContents();
  m_actions = std::move(other.m_actions);
  other.m_actions.clear();
  other.NewGeneration();
  return *this;
}

KCC_GUI_ActionList::~KCC_GUI_ActionList() {
  ClearWithContents();
}

void KCC_GUI_ActionList::Append(KCC_GUI_Action* action) {
  m_actions.push_back(action);
}
int KCC_GUI_ActionList::GetNumberOfActions() const {
  return static_cast<int>(m_actions.size());
}
bool KCC_GUI_ActionList::IsEmpty() const {
  return m_actions.empty();
}

bool KCC_GUI_ActionList::Accept(KCC_GUI_ActionVisitor& visitor) {
  for (KCC_GUI_Action* action : m_actions) {
    if (action != nullptr && !action->Accept(visitor))
      return false;
  }
  return true;
}

void KCC_GUI_ActionList::ClearWithContents() {
  for (KCC_GUI_Action* action : m_actions)
    delete action;
  m_actions.clear();
  NewGeneration();
}

void KCC_GUI_ActionList::Detach() {
  m_actions.clear();
  NewGeneration();
}

void KCC_GUI_ActionList::NewGeneration() noexcept {
  ++m_generation;
}
