// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomAction: the rubber-band zoom, an action that follows a drag with the left mouse button and
// draws the dragged rectangle as a selection mark. When the button goes up, GetZoomArea gives the two drag
// corners in world coordinates for the client to normalise and show.
//
//   KCC_GUI_ZoomAction band(port, draw);            // port shows the drawing, draw paints on its canvas
//   band.MouseLeftDown(100, 80, keys);              // start corner, nothing drawn yet
//   band.MouseMove(300, 200, keys, buttons);        // erase the old rectangle, draw the new one
//   band.MouseLeftUp(300, 200, keys);
//   if (band.Done()) {
//     KCC_GUI_ZoomArea area = band.GetZoomArea();   // corners as dragged, not sorted
//     area.Normalize();
//     zoom.SetCurrentData(area);                    // KCC_GUI_ZoomData
//     port.SetWorldCoord(zoom.GetCurrenData());
//   }
//
// Rules worth knowing:
// - The drag state goes 0 (idle) -> 1 (dragging, at MouseLeftDown) -> 2 (done, at MouseLeftUp) and never
//   back: a MouseLeftDown after the first one is ignored, and a new rubber band needs a new action.
// - Every MouseMove while dragging draws DrawSelectHollowRectangle twice: first the previous rectangle again
//   (which erases it, the mark being drawn in NOT-XOR), then the new one. On the first move the "previous"
//   rectangle is the start pixel alone. MouseMove before MouseLeftDown or after MouseLeftUp draws nothing.
// - MouseLeftUp does not use its position and does not erase the last rectangle: the client redraws after
//   applying the zoom. The current corner is the world point of the last MouseMove; a click without a move
//   leaves it at the constructor's (0, 0).
// - GetZoomArea's current values are (start x, start y, current x, current y) as dragged, so Xmin may be
//   larger than Xmax; its previous values are the invalid markers.
// - The action never calls SetFinishedState: Done tells that the drag is over, while HasFinishedState stays
//   false unless the client sets it (before handing the action to a KCC_GUI_ActionManager, for example).
//   Undo, Redo, ToString ("???") and the other slots keep KCC_GUI_Action's behaviour.
// - Keys and mouse buttons are ignored.
// - The action keeps the view port and drawing interface it was given; both must outlive it. A copy
//   shares them, and assignment makes this action a full copy of the other, rebound to the other's view
//   port and drawing interface (as KCC_Draw does): the corners and pixels only make sense with the view they
//   were taken on.
// See docs/behaviours.md#zoom.
#pragma once

#include <cstdint>

#include "ncappkit/export.h"
#include "ncappkit/gui/KCC_GUI_Action.h"
#include "ncappkit/gui/KCC_GUI_ZoomArea.h"

class KCI_Draw;
class KCI_ViewPort;

/// The rubber-band zoom: a left-button drag that marks a world rectangle to zoom into.
class NCAPPKIT_EXPORT KCC_GUI_ZoomAction : public KCC_GUI_Action {
 public:
  /// An idle action working through `viewPort` and drawing on `draw`; corners and pixels all zero.
  KCC_GUI_ZoomAction(KCI_ViewPort& viewPort, KCI_Draw& draw);
  /// Copies every field; the copy uses the same view port and drawing interface.
  KCC_GUI_ZoomAction(const KCC_GUI_ZoomAction& other);
  /// Copies every field and from now on uses `other`'s view port and drawing interface; returns *this.
  KCC_GUI_ZoomAction& operator=(const KCC_GUI_ZoomAction& other);
  /// Releases nothing; the view port and drawing interface belong to the client.
  ~KCC_GUI_ZoomAction() override;

  /// When idle: start corner = the world point under (x, y), start and current pixel = (x, y), dragging.
  void MouseLeftDown(int x, int y, const KCI_GUI_Keys& keys) override;
  /// When dragging: the drag is done; (x, y) is not used.
  void MouseLeftUp(int x, int y, const KCI_GUI_Keys& keys) override;
  /// When dragging: redraw the previous rectangle (erasing it), take (x, y) as the current corner, draw the
  /// rectangle from the start pixel to (x, y).
  void MouseMove(int x, int y, const KCI_GUI_Keys& keys, const KCI_GUI_MouseButtons& buttons) override;

  /// True once the drag is done (MouseLeftUp after MouseLeftDown).
  bool Done() const;
  /// A new area with current values (start x, start y, current x, current y), not sorted, and the invalid
  /// markers as previous values.
  KCC_GUI_ZoomArea GetZoomArea() const;

 private:
  double m_startWorldX;
  double m_startWorldY;
  double m_currentWorldX;
  double m_currentWorldY;
  std::int32_t m_dragState;
  std::int32_t m_startPixelX;
  std::int32_t m_startPixelY;
  std::int32_t m_currentPixelX;
  std::int32_t m_currentPixelY;
  KCI_ViewPort* m_viewPort;  // never null: set from the constructor's reference
  KCI_Draw* m_draw;          // never null: set from the constructor's reference
};
