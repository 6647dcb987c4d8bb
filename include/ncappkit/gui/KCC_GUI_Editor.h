// SPDX-License-Identifier: MIT
// KCC_GUI_Editor: an editing history ready to use, that is a KCC_GUI_ActionList together with a
// KCC_GUI_ActionManager bound to it. A client window keeps one editor per document and sends every finished
// action, every undo and every redo through its manager.
//
//   KCC_GUI_Editor editor(100);                     // keep the last 100 actions
//   editor.GetGUIActionManager().AddActionInCreation(*new MoveAction);
//   editor.GetGUIActionManager().UndoAction();
//   for (KCC_GUI_Action* action : editor.GetGUIActionList()) { ... }
//
// Ownership, in three rules:
// - Copies share. Copying an editor copies the list's pointers: both editors then refer to the same actions
//   and both would delete them. Keep one copy alive only, or call GetGUIActionList().Detach() on all copies
//   but one. The copy's manager works on the copy's own list, with the same cursor position and maximum.
// - Moves transfer. A moved-to editor takes the actions over, and its manager works on its own list with the
//   cursor position and maximum of the source. The moved-from editor is empty and usable: its manager keeps
//   its maximum and has nothing to undo or redo. So an editor can be returned from a function or kept in a
//   std::vector safely.
// - Destroying deletes. The destructor, and a move assignment onto the editor, delete the actions held
//   (without Terminate or Destroy, as KCC_GUI_ActionList::ClearWithContents).
//
// Rules worth knowing:
// - Unlike a plain KCC_GUI_ActionManager copy, which keeps working on the source's list, an editor's manager
//   always works on the list of the same editor.
// - A reference obtained from GetGUIActionList or GetGUIActionManager belongs to that editor object; after a
//   move it refers to the now empty moved-from editor.
// See docs/behaviours.md#gui-actions.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/gui/KCC_GUI_ActionList.h"
#include "ncappkit/gui/KCC_GUI_ActionManager.h"

/// An action list and the undo/redo manager bound to it; a copy shares the actions (see the ownership note).
class NCAPPKIT_EXPORT KCC_GUI_Editor {
 public:
  /// An empty history whose manager keeps at most `maxActions` actions (0: no limit).
  explicit KCC_GUI_Editor(unsigned int maxActions);
  /// Shares the actions of `other` (see the ownership note); the manager works on this editor's own list,
  /// with the cursor position and maximum of `other`'s manager.
  KCC_GUI_Editor(const KCC_GUI_Editor& other);
  /// Shares the actions of `other` (the actions held before are not deleted); the manager keeps working on
  /// this editor's own list, with the cursor position and maximum of `other`'s manager. Returns *this.
  KCC_GUI_Editor& operator=(const KCC_GUI_Editor& other);
  /// Takes over the actions, cursor position and maximum of `other`, which is left empty.
  KCC_GUI_Editor(KCC_GUI_Editor&& other) noexcept;
  /// Deletes the actions held before, then takes over the actions, cursor position and maximum of `other`,
  /// which is left empty. Moving an editor onto itself changes nothing. Returns *this.
  KCC_GUI_Editor& operator=(KCC_GUI_Editor&& other) noexcept;
  /// Deletes every action still held (no Terminate, no Destroy).
  ~KCC_GUI_Editor();

  /// The history list of this editor, front = oldest.
  KCC_GUI_ActionList& GetGUIActionList();
  /// The manager of this editor, bound to GetGUIActionList().
  KCC_GUI_ActionManager& GetGUIActionManager();

 private:
  KCC_GUI_ActionList m_list;
  KCC_GUI_ActionManager m_manager;
};
