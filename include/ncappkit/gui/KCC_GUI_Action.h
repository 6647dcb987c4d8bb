// SPDX-License-Identifier: MIT
// KCC_GUI_Action: the base of every interactive edit (drawing a rectangle, moving an object, zooming into an
// area). The client's window code feeds mouse events to the action being created; once it is finished the
// action goes to a KCC_GUI_ActionManager, which keeps it for undo and redo.
//
//   class MoveAction : public KCC_GUI_Action {
//    public:
//     void MouseLeftUp(int x, int y, const KCI_GUI_Keys&) override { ...; SetFinishedState(true); }
//     void Undo() override { ... }                 // move back
//     void Redo() override { ... }                 // move again
//     KCString ToString() override { return "Move"; }
//   };
//
//   auto* action = new MoveAction;                 // on the heap: the manager deletes it
//   action->MouseLeftUp(px, py, KCC_GUI_Keys(flags));
//   bool result = false;
//   if (action->HasFinishedState(result))          // finished, with or without a result
//     editor.GetGUIActionManager().AddActionInCreation(*action);
//
// Rules worth knowing:
// - Every virtual operation of the base does nothing, and ToString gives "???": a derived action overrides
//   only what it needs.
// - The finished state is 0 while the action is being created; SetFinishedState(result) stores 1 + result
//   (1 for false, 2 for true). Nothing in the library sets it back to 0.
// - HasFinishedState leaves `result` untouched while the state is 0.
// - An action ends in one of three ways, all followed by delete: Destroy when it was undone and a new action
//   overtook it, Terminate when it dropped out of a limited history, nothing at all when its list is cleared
//   or destroyed (ClearWithContents). Release resources in the destructor, not in Destroy or Terminate.
// - Mouse coordinates are canvas pixels; GetWcPoint turns one into world coordinates through a view port.
// See docs/behaviours.md#gui-actions.
#pragma once

#include <cstdint>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

class KCI_GUI_Keys;
class KCI_GUI_MouseButtons;
class KCI_ViewPort;
class KCC_GUI_ActionVisitor;

/// The base of every interactive edit; all its virtual operations do nothing.
class NCAPPKIT_EXPORT KCC_GUI_Action {
 public:
  /// A new action, still being created (finished state 0).
  KCC_GUI_Action();
  /// Copies the finished state.
  KCC_GUI_Action(const KCC_GUI_Action& other);
  /// Copies the finished state; returns *this.
  KCC_GUI_Action& operator=(const KCC_GUI_Action& other);
  virtual ~KCC_GUI_Action();

  /// Carry out the action at pixel (x, y); the base does nothing.
  virtual void DoAction(int x, int y, const KCI_GUI_Keys& keys);
  /// The left mouse button went down at pixel (x, y); the base does nothing.
  virtual void MouseLeftDown(int x, int y, const KCI_GUI_Keys& keys);
  /// The left mouse button went up at pixel (x, y); the base does nothing.
  virtual void MouseLeftUp(int x, int y, const KCI_GUI_Keys& keys);
  /// The right mouse button went down at pixel (x, y); the base does nothing.
  virtual void MouseRightDown(int x, int y, const KCI_GUI_Keys& keys);
  /// The right mouse button went up at pixel (x, y); the base does nothing.
  virtual void MouseRightUp(int x, int y, const KCI_GUI_Keys& keys);
  /// The mouse moved to pixel (x, y) with `buttons` held; the base does nothing.
  virtual void MouseMove(int x, int y, const KCI_GUI_Keys& keys, const KCI_GUI_MouseButtons& buttons);
  /// Take the action's effect back (called by KCC_GUI_ActionManager::UndoAction); the base does nothing.
  virtual void Undo();
  /// Apply the undone effect again (called by KCC_GUI_ActionManager::RedoAction); the base does nothing.
  virtual void Redo();
  /// Called just before the manager deletes the action because it dropped out of a limited history; the
  /// base does nothing.
  virtual void Terminate();
  /// Called just before the manager deletes the action because it was undone and a new action overtook it;
  /// the base does nothing.
  virtual void Destroy();
  /// A short text naming the action for the client's history display; the base gives "???".
  virtual KCString ToString();

  /// Hand this action to `visitor`; returns what its Visit returns.
  bool Accept(KCC_GUI_ActionVisitor& visitor);
  /// False (result untouched) while the action is being created; otherwise true, with `result` set to the
  /// result given to SetFinishedState.
  bool HasFinishedState(bool& result) const;
  /// Mark the action as finished, with `result`: stores 1 for false and 2 for true.
  void SetFinishedState(bool result);

 protected:
  /// Write to (wx, wy) the world point under pixel (x, y), as viewPort.Screen2WorldPoint gives it.
  void GetWcPoint(KCI_ViewPort& viewPort, int x, int y, double& wx, double& wy);

 private:
  std::int32_t m_finishedState;
};
