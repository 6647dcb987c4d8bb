#include "ncappkit/foundation/KCStringList.h"

KCStringList::~KCStringList() = default;
