#include "ncappkit/foundation/KCPenMode.h"

KCPenMode::~KCPenMode() = default;
