// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCC_GUI_ActionManager.h"

#include <algorithm>
#include <iterator>

#include "ncappkit/gui/KCC_GUI_Action.h"

KCC_GUI_ActionManager::KCC_GUI_ActionManager(KCC_GUI_ActionList& list, unsigned int maxActions)
    : m_list(&list),
      m_cursor(list.m_actions.end()),
      m_maxActions(maxActions),
      m_generation(list.m_generation) {}

KCC_GUI_ActionManager::KCC_GUI_ActionManager(const KCC_GUI_ActionManager& other) = default;
KCC_GUI_ActionManager& KCC_GUI_ActionManager::operator=(const KCC_GUI_ActionManager& other) = default;
KCC_GUI_ActionManager::~KCC_GUI_ActionManager() = default;

bool KCC_GUI_ActionManager::IsCursorValid() const {
  return m_generation == m_list->m_generation;
}

void KCC_GUI_ActionManager::SyncCursor() {
  if (IsCursorValid())
    return;
  m_cursor = m_list->m_actions.end();
  m_generation = m_list->m_generation;
}

void KCC_GUI_ActionManager::AddActionInCreation(KCC_GUI_Action& action) {
  SyncCursor();
  std::list<KCC_GUI_Action*>& actions = m_list->m_actions;

  // Discard the undone tail, newest first, down to and including the action at the cursor.
  while (m_cursor != actions.end()) {
    const Position last = std::prev(actions.end());
    const bool lastIsCursor = last == m_cursor;
    KCC_GUI_Action* undone = *last;
    if (undone != nullptr) {
      undone->Destroy();
      delete undone;
    }
    actions.erase(last);
    if (lastIsCursor)
      m_cursor = actions.end();
  }

  actions.push_back(&action);
  m_cursor = actions.end();

  // Drop the oldest action when the history has grown past the maximum; one per call only.
  if (m_maxActions != 0U && actions.size() > m_maxActions) {
    KCC_GUI_Action* oldest = actions.front();
    if (oldest != nullptr) {
      oldest->Terminate();
      delete oldest;
    }
    actions.pop_front();
  }
}

void KCC_GUI_ActionManager::UndoAction() {
  SyncCursor();
  if (m_list->m_actions.empty())
    return;
  if (m_cursor == m_list->m_actions.begin())
    return;
  --m_cursor;
  if (*m_cursor != nullptr)
    (*m_cursor)->Undo();
}

void KCC_GUI_ActionManager::RedoAction() {
  SyncCursor();
  if (m_cursor == m_list->m_actions.end())
    return;
  KCC_GUI_Action* action = *m_cursor;
  if (action != nullptr)
    action->Redo();
  ++m_cursor;
}

KCC_GUI_Action* KCC_GUI_ActionManager::GetCurrentAction() const {
  if (!IsCursorValid() || m_cursor == m_list->m_actions.end())
    return nullptr;
  return *m_cursor;
}

std::size_t KCC_GUI_ActionManager::GetCursorIndex() const {
  if (!IsCursorValid())
    return m_list->m_actions.size();
  return static_cast<std::size_t>(std::distance(m_list->m_actions.cbegin(), m_cursor));
}

void KCC_GUI_ActionManager::Rebind(KCC_GUI_ActionList& list, std::size_t index) {
  m_list = &list;
  m_generation = list.m_generation;
  m_cursor = list.m_actions.begin();
  std::advance(m_cursor, static_cast<std::ptrdiff_t>(std::min(index, list.m_actions.size())));
}
