// SPDX-License-Identifier: MIT
// KCI_FrmGUIActionList: a window of the client that lists the actions of an editing history, for example
// with each action's ToString text and a mark on the next action that redo would bring back.
//
//   void MainWindow::AfterEdit() {
//     KCC_GUI_ActionManager& manager = m_editor.GetGUIActionManager();
//     m_historyWindow.ShowActionList(m_editor.GetGUIActionList(), manager.GetCurrentAction());
//   }
//
// Rules worth knowing:
// - The library itself never calls this operation; the client calls it after every change of the history.
// See docs/behaviours.md#gui-actions.
#pragma once

#include "ncappkit/export.h"

class KCC_GUI_Action;
class KCC_GUI_ActionList;

/// A window that lists the actions of an editing history, implemented by the client.
class NCAPPKIT_EXPORT KCI_FrmGUIActionList {
 public:
  /// Nothing to set up: the interface holds no data.
  KCI_FrmGUIActionList() = default;
  /// Nothing to copy: the interface holds no data.
  KCI_FrmGUIActionList(const KCI_FrmGUIActionList&) = default;
  /// Nothing to assign: the interface holds no data; returns *this.
  KCI_FrmGUIActionList& operator=(const KCI_FrmGUIActionList&) = default;
  virtual ~KCI_FrmGUIActionList();

  /// Show the entries of `actions` front to back; `currentAction` is the next one redo would bring back
  /// (the manager's GetCurrentAction), null when nothing can be redone.
  virtual void ShowActionList(const KCC_GUI_ActionList& actions, const KCC_GUI_Action* currentAction) = 0;
};
