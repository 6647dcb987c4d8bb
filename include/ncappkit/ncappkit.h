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

// foundation: 2D elements

// nc

// units

// mathexpr

// config

// geometry

