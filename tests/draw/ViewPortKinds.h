// SPDX-License-Identifier: MIT
// Helpers of the view port tests: both kinds behind one factory, and a draw view port that opens the
// protected members the tests need to reach (a corner code outside 0 to 3, the small helpers).
#pragma once

#include <memory>

#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/draw/KCC_ViewPortPlot.h"

enum class ViewPortKind { Draw, Plot };

/// A view port of `kind` made with its default constructor.
inline std::unique_ptr<KCC_ViewPort> MakeViewPort(ViewPortKind kind) {
  if (kind == ViewPortKind::Draw)
    return std::make_unique<KCC_ViewPortDraw>();
  return std::make_unique<KCC_ViewPortPlot>();
}

/// A view port of `kind` made with its (width, height) constructor.
inline std::unique_ptr<KCC_ViewPort> MakeViewPort(ViewPortKind kind, int width, int height) {
  if (kind == ViewPortKind::Draw)
    return std::make_unique<KCC_ViewPortDraw>(width, height);
  return std::make_unique<KCC_ViewPortPlot>(width, height);
}

/// A draw view port whose corner code can be set to any value, with the protected helpers made public.
class OpenViewPortDraw : public KCC_ViewPortDraw {
 public:
  using KCC_ViewPortDraw::KCC_ViewPortDraw;
  void ForceCorner(int corner) { m_refCorner = corner; }
  using KCC_ViewPort::__DoubleAbs;
  using KCC_ViewPort::__DoubleMax;
  using KCC_ViewPort::__IntAbs;
};
