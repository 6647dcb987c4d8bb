// SPDX-License-Identifier: MIT
// ncappkit: every public header of the library in one include.
//
//   #include <ncappkit/ncappkit.h>
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/version.h"

// foundation
#include "ncappkit/foundation/KCBrushStyle.h"
#include "ncappkit/foundation/KCColor.h"
#include "ncappkit/foundation/KCFileMan.h"
#include "ncappkit/foundation/KCFontStyle.h"
#include "ncappkit/foundation/KCIniFile.h"
#include "ncappkit/foundation/KCIntList.h"
#include "ncappkit/foundation/KCMath.h"
#include "ncappkit/foundation/KCParagraph.h"
#include "ncappkit/foundation/KCPenMode.h"
#include "ncappkit/foundation/KCPenStyle.h"
#include "ncappkit/foundation/KCPlatform.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/foundation/KCStringList.h"
#include "ncappkit/foundation/KCUnitMan.h"
// foundation: messages
#include "ncappkit/foundation/KCC_MessageBox.h"
#include "ncappkit/foundation/KCC_MessageKeeper.h"
#include "ncappkit/foundation/KCC_MessageReporter.h"
#include "ncappkit/foundation/KCI_FrmMessageBox.h"
#include "ncappkit/foundation/KCI_MessagesFile.h"
#include "ncappkit/foundation/KCI_ProgressBar.h"

// foundation: 2D elements
#include "ncappkit/foundation/KC2DArea.h"
#include "ncappkit/foundation/KC2DElement.h"
#include "ncappkit/foundation/KC2DElmList.h"
#include "ncappkit/foundation/KCGeometry.h"
#include "ncappkit/foundation/KCVector.h"

// nc
#include "ncappkit/nc/CNcParameter.h"
#include "ncappkit/nc/KCC_NcFile.h"
#include "ncappkit/nc/KCC_NcFileProgram.h"
#include "ncappkit/nc/KCC_NcFileProgramCreator.h"
#include "ncappkit/nc/KCC_NcFileProgramList.h"
#include "ncappkit/nc/KCC_NcFileProgramVisitor.h"
#include "ncappkit/nc/KCC_NcProgramParametersCreator.h"
#include "ncappkit/nc/KCC_NcToolPath.h"
#include "ncappkit/nc/KCC_ParseNc.h"

// units
#include "ncappkit/units/KCC_MmInch.h"

// mathexpr
#include "ncappkit/mathexpr/CExpressionItem.h"
#include "ncappkit/mathexpr/KCC_MathExpression.h"

// objects
#include "ncappkit/objects/KCC_ObjectData.h"
#include "ncappkit/objects/KCC_ObjectList.h"
#include "ncappkit/objects/KCC_ObjectPattern.h"
#include "ncappkit/objects/KCC_ObjectPatternFactory.h"
#include "ncappkit/objects/KCC_ObjectState.h"

// config
#include "ncappkit/config/KCC_AppName.h"
#include "ncappkit/config/KCC_CfgApplication.h"
#include "ncappkit/config/KCC_CfgInitSection.h"
#include "ncappkit/config/KCC_CfgObject.h"

// geometry
#include "ncappkit/geometry/CMath2D.h"
#include "ncappkit/geometry/CMathAuxShapes.h"
#include "ncappkit/geometry/KCI_AuxCircle.h"
#include "ncappkit/geometry/KCI_AuxHorLine.h"
#include "ncappkit/geometry/KCI_AuxLine.h"
#include "ncappkit/geometry/KCI_AuxVerLine.h"
#include "ncappkit/geometry/KCI_d2DArc.h"
#include "ncappkit/geometry/KCI_d2DHorLine.h"
#include "ncappkit/geometry/KCI_d2DLine.h"
#include "ncappkit/geometry/KCI_d2DPoint.h"
#include "ncappkit/geometry/KCI_d2DVerLine.h"
#include "ncappkit/geometry/KCI_i2DArc.h"
#include "ncappkit/geometry/KCI_i2DLine.h"
#include "ncappkit/geometry/KCI_i2DPoint.h"

// schema
#include "ncappkit/schema/KCC_W3C_Schema.h"

// draw
#include "ncappkit/draw/KCC_Draw.h"
#include "ncappkit/draw/KCC_FillAttributes.h"
#include "ncappkit/draw/KCC_FontAttributes.h"
#include "ncappkit/draw/KCC_LineAttributes.h"
#include "ncappkit/draw/KCC_SvgCanvas.h"
#include "ncappkit/draw/KCC_ViewPort.h"
#include "ncappkit/draw/KCC_ViewPortDraw.h"
#include "ncappkit/draw/KCC_ViewPortPlot.h"
#include "ncappkit/draw/KCCanvas.h"
#include "ncappkit/draw/KCI_Draw.h"
#include "ncappkit/draw/KCI_ViewPort.h"

// gui
#include "ncappkit/gui/KCC_GUI_Action.h"
#include "ncappkit/gui/KCC_GUI_ActionList.h"
#include "ncappkit/gui/KCC_GUI_ActionManager.h"
#include "ncappkit/gui/KCC_GUI_ActionVisitor.h"
#include "ncappkit/gui/KCC_GUI_Editor.h"
#include "ncappkit/gui/KCC_GUI_Keys.h"
#include "ncappkit/gui/KCC_GUI_ZoomAction.h"
#include "ncappkit/gui/KCC_GUI_ZoomArea.h"
#include "ncappkit/gui/KCC_GUI_ZoomAreaCreator.h"
#include "ncappkit/gui/KCC_GUI_ZoomAreaList.h"
#include "ncappkit/gui/KCC_GUI_ZoomAreaVisitor.h"
#include "ncappkit/gui/KCC_GUI_ZoomData.h"
#include "ncappkit/gui/KCI_FrmGUIActionList.h"
#include "ncappkit/gui/KCI_GUI_GetDoubleNumber.h"
#include "ncappkit/gui/KCI_GUI_GetIntegerNumber.h"
#include "ncappkit/gui/KCI_GUI_GetString.h"
#include "ncappkit/gui/KCI_GUI_Keys.h"
#include "ncappkit/gui/KCI_GUI_MouseButtons.h"
#include "ncappkit/gui/KCI_GUI_StatusLine.h"
