// SPDX-License-Identifier: MIT
// KCC_GUI_ActionManager: keeps the history of finished GUI actions in a KCC_GUI_ActionList and walks it for
// undo and redo. It takes every finished action over, and limits the history to a maximum number of actions.
//
//   KCC_GUI_ActionList history;
//   KCC_GUI_ActionManager manager(history, 3);     // keep at most 3 actions (0: no limit)
//   manager.AddActionInCreation(*new MoveAction);   // the manager owns it now
//   manager.UndoAction();                           // MoveAction::Undo; GetCurrentAction() gives it
//   manager.RedoAction();                           // MoveAction::Redo; GetCurrentAction() gives null
//
// The cursor is a position in the list: actions in front of it are done, the action at the cursor and all
// behind it are undone and can be redone; at the list's end nothing can be redone.
//
// Rules worth knowing:
// - Adding an action while some are undone first discards the undone tail, last first: Destroy, then delete
//   for each. The new action then goes to the end, and nothing can be redone.
// - When a maximum is set and the list then holds more actions than that, the oldest one is dropped:
//   Terminate, then delete. At most one action is dropped per call, so a list that was already longer
//   (filled before the manager, or shared) shrinks by one per added action only.
// - Undo and redo at the ends of the history do nothing. An undo or redo that reaches a null entry takes
//   its step like any other and calls nothing.
// - A pointer the client kept to an added action dangles once the manager has deleted the action (on
//   Destroy or Terminate above); so does GetCurrentAction's result after the next AddActionInCreation.
// - Emptying or replacing the list's contents while a manager works on it (ClearWithContents, Detach, an
//   assignment to the list, moving it away) puts the manager's cursor at the list's end: nothing can be
//   redone, and what is appended later counts as done. The manager needs no notice for this.
// - KCC_GUI_ActionList::Append adds behind the undone actions and leaves the cursor alone; use
//   AddActionInCreation to add to a history.
// - The manager deletes nothing when it is destroyed; the list owns the actions.
// - A copy (and an assignment) keeps working on the list of the manager it was copied from, with the same
//   cursor and maximum. The two cursors then move independently over one list, and an add through one can
//   delete the action the other's cursor is on; so go on with one of them only. KCC_GUI_Editor rebinds its
//   manager to its own list when the editor is copied or moved.
// See docs/behaviours.md#gui-actions.
#pragma once

#include <cstddef>
#include <cstdint>

#include "ncappkit/export.h"
#include "ncappkit/gui/KCC_GUI_ActionList.h"

class KCC_GUI_Action;

/// The undo/redo history of finished GUI actions over a KCC_GUI_ActionList.
class NCAPPKIT_EXPORT KCC_GUI_ActionManager {
 public:
  /// A manager over `list` with the cursor at the list's end; `maxActions` limits the number of kept actions
  /// (0: no limit). The list must outlive the manager.
  KCC_GUI_ActionManager(KCC_GUI_ActionList& list, unsigned int maxActions);
  /// Works on the same list as `other`, with its cursor and maximum (see the rules above).
  KCC_GUI_ActionManager(const KCC_GUI_ActionManager& other);
  /// From now on works on the list of `other`, with its cursor and maximum; returns *this.
  KCC_GUI_ActionManager& operator=(const KCC_GUI_ActionManager& other);
  /// Deletes nothing: the list owns the actions.
  virtual ~KCC_GUI_ActionManager();

  /// Take ownership of the finished heap action `action` and make it the newest done action: first Destroy
  /// and delete the undone actions (last first), then append it, then, when the list holds more than the
  /// maximum, Terminate and delete the oldest action. `action` must not be in any list yet.
  void AddActionInCreation(KCC_GUI_Action& action);
  /// Step the cursor one entry back and call Undo on the action there; does nothing when the list is empty
  /// or everything is undone already.
  void UndoAction();
  /// Call Redo on the action at the cursor and step the cursor one entry forward; does nothing when nothing
  /// is undone.
  void RedoAction();
  /// The action at the cursor, the one RedoAction would redo next; null when nothing can be redone.
  KCC_GUI_Action* GetCurrentAction() const;

 private:
  friend class KCC_GUI_Editor;

  using Position = std::list<KCC_GUI_Action*>::const_iterator;

  // The cursor counted from the list's front (the list's size when it is at the end).
  std::size_t GetCursorIndex() const;
  // Work on `list` from now on, with the cursor at entry `index` (at the end when index >= size).
  void Rebind(KCC_GUI_ActionList& list, std::size_t index);

  // True when the cursor still refers to the list's current contents (see KCC_GUI_ActionList::m_generation).
  bool IsCursorValid() const;
  // Put the cursor at the list's end when the list's contents were emptied or replaced since it was set.
  void SyncCursor();

  // A pointer rather than a reference so that assignment can rebind it; never null.
  KCC_GUI_ActionList* m_list;
  Position m_cursor;
  unsigned int m_maxActions;
  // The list's generation at the time the cursor was set.
  std::uint64_t m_generation;
};
