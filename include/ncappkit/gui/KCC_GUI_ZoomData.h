// SPDX-License-Identifier: MIT
// KCC_GUI_ZoomData: the world rectangle a client wants to see (the current data) beside the extent of the
// whole drawing (the fit data). Zoom in and out, the pan steps, dragging, centring and zooming towards the
// mouse change the current data; the client then shows it with the view port's SetWorldCoord.
//
//   KCC_GUI_ZoomData zoom;                          // both areas invalid, action offset 10 %
//   zoom.SetFitData(KCC_GUI_ZoomArea(0.0, 0.0, 100.0, 50.0), true);
//   zoom.ZoomIn();                                  // current data (10, 5, 90, 45)
//   port.SetWorldCoord(zoom.GetCurrenData());       // show it; a too-deep zoom is refused there
//   zoom.ZoomInToMouse(px, py, port);               // the world point under (px, py) stays under it
//   port.SetWorldCoord(zoom.GetCurrenData());
//   zoom.RestoreFitData();                          // back to the whole drawing
//
// Rules worth knowing:
// - Every operation that changes the current data does nothing at all while the current data is not
//   Valid: a new object, or SetFitData(area, false), leaves every zoom and pan a no-op until current data is
//   set. NaN values make an area invalid, infinite ones do not.
// - No operation touches a view port: the client applies the result with SetWorldCoord(GetCurrenData()),
//   which may refuse a zoom that goes too deep and restore the current data's previous values.
// - A step is (max - min) * offset / 100, multiplied first and divided then, so a width near the top of the
//   double range overflows to infinity instead of giving a tenth of it.
// - ZoomIn then ZoomOut does not come back: with the default 10 % the rectangle shrinks to 80 % and then
//   grows by 20 % of that, to 96 % of where it started.
// - ZoomIn, ZoomOut, Sweep and RepositionZoomAreaCenter save all four previous values; the pans save only
//   the pair they move (PanLeft and PanRight x, PanUp and PanDown y).
// - RepositionZoomAreaCenter and ZoomInToMouse measure from the centre of the world rectangle stored in the
//   view port, not from the current data; they expect the view port to show the current data.
// - After ZoomInToMouse the previous values hold the zoomed rectangle before its last shift, not the state
//   before the call. When the zoom would go too deep the rectangle ends up where it was (not zoomed).
// - An offset of 0 leaves the rectangle as it is (but still saves the previous values); a negative offset
//   turns ZoomIn into a zoom out and the pans the other way; 50 collapses ZoomIn to the centre point and
//   more turns the rectangle inside out.
// - SetFitData from a KC2DArea reads its bounds as GetMinX, GetMinY, GetMaxX, GetMaxY; an empty KC2DArea
//   reads as (0, 0, 0, 0), which is Valid but has no extent, so the view port refuses to show it.
// See docs/behaviours.md#zoom.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/gui/KCC_GUI_ZoomArea.h"

class KC2DArea;
class KCC_ViewPortDraw;

/// The current world rectangle of a view and the extent of the whole drawing, with zoom and pan steps.
class NCAPPKIT_EXPORT KCC_GUI_ZoomData {
 public:
  /// Fit data and current data invalid (default-constructed areas), action offset 10.0 %.
  KCC_GUI_ZoomData();
  /// Copies both areas (all eight values each) and the action offset.
  KCC_GUI_ZoomData(const KCC_GUI_ZoomData& other);
  /// Copies both areas (all eight values each) and the action offset; returns *this.
  KCC_GUI_ZoomData& operator=(const KCC_GUI_ZoomData& other);
  virtual ~KCC_GUI_ZoomData();

  /// The fit data: the extent of the whole drawing.
  KCC_GUI_ZoomArea& GetFitData();
  /// The fit data, read only.
  const KCC_GUI_ZoomArea& GetFitData() const;
  /// The current data: the rectangle to show (the name lacks its final "t"; that is its name).
  KCC_GUI_ZoomArea& GetCurrenData();
  /// The current data, read only.
  const KCC_GUI_ZoomArea& GetCurrenData() const;

  /// The percentage of the width or height by which zoom and pan steps move an edge.
  double GetActionOffset() const;
  /// Set the percentage used by zoom and pan steps; any value is taken as it is.
  void SetActionOffset(double offset);

  /// Fit data = `area` (all eight values); when `alsoCurrent`, current data = `area` as well.
  void SetFitData(const KCC_GUI_ZoomArea& area, bool alsoCurrent);
  /// Fit data = the bounds of `area` (min x, min y, max x, max y) as a new zoom area; when `alsoCurrent`,
  /// current data = the same zoom area.
  void SetFitData(const KC2DArea& area, bool alsoCurrent);
  /// Current data = `area` (all eight values).
  void SetCurrentData(const KCC_GUI_ZoomArea& area);
  /// Current data = fit data, previous values included.
  void RestoreFitData();
  /// Make both areas invalid; their previous values stay.
  void MakeInvalid();

  /// Move each edge inwards by offset % of the width (x) or height (y); saves all four previous values.
  void ZoomIn();
  /// Move each edge outwards by offset % of the width (x) or height (y); saves all four previous values.
  void ZoomOut();
  /// Move the rectangle left by offset % of its width; saves the previous Xmin and Xmax only.
  void PanLeft();
  /// Move the rectangle right by offset % of its width; saves the previous Xmin and Xmax only.
  void PanRight();
  /// Move the rectangle up by offset % of its height; saves the previous Ymin and Ymax only.
  void PanUp();
  /// Move the rectangle down by offset % of its height; saves the previous Ymin and Ymax only.
  void PanDown();
  /// Shift the rectangle by world(x1, y1) - world(x2, y2) through `viewPort`, so the picture follows a drag
  /// from pixel (x1, y1) to (x2, y2); saves all four previous values.
  void Sweep(int x1, int y1, int x2, int y2, KCC_ViewPortDraw& viewPort);
  /// Shift the rectangle by world(x, y) - the view port's world centre, so the clicked point becomes the
  /// centre; saves all four previous values.
  void RepositionZoomAreaCenter(int x, int y, KCC_ViewPortDraw& viewPort);
  /// Centre on world(x, y), ZoomIn, then shift back so that the same world point lies under pixel (x, y) in
  /// the zoomed view; previous values = the rectangle before that last shift.
  void ZoomInToMouse(int x, int y, KCC_ViewPortDraw& viewPort);

 private:
  KCC_GUI_ZoomArea m_fitData;
  KCC_GUI_ZoomArea m_currentData;
  double m_actionOffset;
};
