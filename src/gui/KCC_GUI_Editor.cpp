// SPDX-License-Identifier: MIT
#include "ncappkit/gui/KCC_GUI_Editor.h"

#include <utility>

KCC_GUI_Editor::KCC_GUI_Editor(unsigned int maxActions) : m_list(), m_manager(m_list, maxActions) {}

// A member-wise copy would leave the new manager on the source's list; rebind it to this editor's own
// list, at the same cursor position.
KCC_GUI_Editor::KCC_GUI_Editor(const KCC_GUI_Editor& other)
    : m_list(other.m_list), m_manager(m_list, other.m_manager.m_maxActions) {
  m_manager.Rebind(m_list, other.m_manager.GetCursorIndex());
}

KCC_GUI_Editor& KCC_GUI_Editor::operator=(const KCC_GUI_Editor& other) {
  if (this == &other)
    return *this;
  const std::size_t cursor = other.m_manager.GetCursorIndex();
  m_list = other.m_list;
  m_manager.m_maxActions = other.m_manager.m_maxActions;
  m_manager.Rebind(m_list, cursor);
  return *this;
}

// The cursor position is read before the list moves: afterwards the source's manager sees an empty list.
KCC_GUI_Editor::KCC_GUI_Editor(KCC_GUI_Editor&& other) noexcept
    : m_list(), m_manager(m_list, other.m_manager.m_maxActions) {
  const std::size_t cursor = other.m_manager.GetCursorIndex();
  m_list = std::move(other.m_list);
  m_manager.Rebind(m_list, cursor);
  other.m_manager.Rebind(other.m_list, 0);
}

KCC_GUI_Editor& KCC_GUI_Editor::operator=(KCC_GUI_Editor&& other) noexcept {
  if (this == &other)
    return *this;
  const std::size_t cursor = other.m_manager.GetCursorIndex();
  m_list = std::move(other.m_list);
  m_manager.m_maxActions = other.m_manager.m_maxActions;
  m_manager.Rebind(m_list, cursor);
  other.m_manager.Rebind(other.m_list, 0);
  return *this;
}

KCC_GUI_Editor::~KCC_GUI_Editor() = default;

KCC_GUI_ActionList& KCC_GUI_Editor::GetGUIActionList() {
  return m_list;
}
KCC_GUI_ActionManager& KCC_GUI_Editor::GetGUIActionManager() {
  return m_manager;
}
