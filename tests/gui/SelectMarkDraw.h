// SPDX-License-Identifier: MIT
// Test helper of the zoom action tests: a KCI_Draw that draws nothing and logs every call, so that a test can
// check which selection rectangles were drawn, in which order, and that nothing else was called.
#pragma once

#include <string>
#include <vector>

#include "ncappkit/draw/KCI_Draw.h"

namespace zoomtest {

class SelectMarkDraw : public KCI_Draw {
 public:
  // Every call so far, oldest first: "SelectRect(x1,y1,x2,y2)" for DrawSelectHollowRectangle, the bare
  // operation name for everything else.
  // Mutable because the const mapping operations log too.
  mutable std::vector<std::string> calls;

  double GetWorld2PixelRatioX() const override {
    Log("GetWorld2PixelRatioX");
    return 1.0;
  }
  double GetWorld2PixelRatioY() const override {
    Log("GetWorld2PixelRatioY");
    return 1.0;
  }
  bool SetWorldCoord(double, double, double, double) override {
    Log("SetWorldCoord");
    return true;
  }
  void Screen2WorldPoint(int, int, double&, double&) const override { Log("Screen2WorldPoint"); }
  void World2ScreenPoint(double, double, double&, double&) const override { Log("World2ScreenPoint"); }
  void World2ScreenPoint(double, double, int&, int&) const override { Log("World2ScreenPoint"); }
  void World2Screen(const KC2DElmList&, KC2DElmList&) const override { Log("World2Screen"); }
  void DrawPointSquare(int, int, int, const KCC_LineAttributes&) override { Log("DrawPointSquare"); }
  void DrawPointDiamond(int, int, int, const KCC_LineAttributes&) override { Log("DrawPointDiamond"); }
  void DrawLine(double, double, double, double) override { Log("DrawLine"); }
  void DrawLine(int, int, int, int) override { Log("DrawLine"); }
  void DrawAttrLine(double, double, double, double, const KCC_LineAttributes&) override {
    Log("DrawAttrLine");
  }
  void DrawAttrLine(int, int, int, int, const KCC_LineAttributes&) override { Log("DrawAttrLine"); }
  void DrawArrowLine(double, double, double, double, int, const KCC_LineAttributes&) override {
    Log("DrawArrowLine");
  }
  void DrawArrowLine(int, int, int, int, int, const KCC_LineAttributes&) override { Log("DrawArrowLine"); }
  void DrawDoubleArrowLine(int, int, int, int, int, const KCC_LineAttributes&) override {
    Log("DrawDoubleArrowLine");
  }
  void DrawArc(double, double, double, double, double, double, bool, bool) override { Log("DrawArc"); }
  void DrawArc(int, int, int, int, int, int, bool, bool) override { Log("DrawArc"); }
  void DrawAttrCircle(int, int, int, const KCC_LineAttributes&, const KCC_FillAttributes&) override {
    Log("DrawAttrCircle");
  }
  void DrawAttrCircle(int, int, int, const KCC_LineAttributes&) override { Log("DrawAttrCircle"); }
  void DrawAttrArc(int, int, int, int, int, int, bool, bool, const KCC_LineAttributes&) override {
    Log("DrawAttrArc");
  }
  void DrawArrowArc_CW(double, double, double, double, double, double, bool, int,
                       const KCC_LineAttributes&) override {
    Log("DrawArrowArc_CW");
  }
  void DrawArrowArc_CW(int, int, int, int, int, int, bool, int, const KCC_LineAttributes&) override {
    Log("DrawArrowArc_CW");
  }
  void DrawArrowArc_CCW(double, double, double, double, double, double, bool, int,
                        const KCC_LineAttributes&) override {
    Log("DrawArrowArc_CCW");
  }
  void DrawArrowArc_CCW(int, int, int, int, int, int, bool, int, const KCC_LineAttributes&) override {
    Log("DrawArrowArc_CCW");
  }
  void DrawRectangle(int, int, int, int) override { Log("DrawRectangle"); }
  void DrawHollowRectangle(double, double, double, double, const KCC_LineAttributes&) override {
    Log("DrawHollowRectangle");
  }
  void DrawHollowRectangle(int, int, int, int, const KCC_LineAttributes&) override {
    Log("DrawHollowRectangle");
  }
  void DrawFilledRectangle(double, double, double, double, const KCC_LineAttributes&,
                           const KCC_FillAttributes&) override {
    Log("DrawFilledRectangle");
  }
  void DrawFilledRectangle(int, int, int, int, const KCC_LineAttributes&,
                           const KCC_FillAttributes&) override {
    Log("DrawFilledRectangle");
  }
  void DisplayText(const KCString&, double, double, const KCC_FillAttributes&,
                   const KCC_TextAttributes&) override {
    Log("DisplayText");
  }
  void DisplayText(const KCString&, int, int, const KCC_FillAttributes&, const KCC_TextAttributes&) override {
    Log("DisplayText");
  }
  void DisplayTextBox(const KCString&, int, int, int, int, const KCC_FillAttributes&,
                      const KCC_TextAttributes&) override {
    Log("DisplayTextBox");
  }
  void DrawSelectHollowRectangle(int x1, int y1, int x2, int y2) override {
    Log("SelectRect(" + std::to_string(x1) + "," + std::to_string(y1) + "," + std::to_string(x2) + "," +
        std::to_string(y2) + ")");
  }
  void DrawSelectLine(int, int, int, int) override { Log("DrawSelectLine"); }
  void DrawSelectCircle(int, int, int) override { Log("DrawSelectCircle"); }
  void PaintBackGround(KCColor&) override { Log("PaintBackGround"); }
  void DrawFilledElmList(KC2DElmList&, const KCC_LineAttributes&, const KCC_FillAttributes&) override {
    Log("DrawFilledElmList");
  }
  void DrawHollowElmList(KC2DElmList&, const KCC_LineAttributes&) override { Log("DrawHollowElmList"); }

 private:
  void Log(const std::string& call) const { calls.push_back(call); }
};

}  // namespace zoomtest
