// SPDX-License-Identifier: MIT
// Internal part of the platform layer: the operating-system calls that library sources need beyond the public
// KCPlatform.h. Each has its Windows call and a portable substitute elsewhere, both in KCPlatform.cpp, so that
// no other source needs a platform branch of its own.
#pragma once

#include <string>

namespace ncappkit_detail {

/// True when `path` names a file marked read-only by a file attribute that permissions do not show (the
/// Windows read-only attribute). Elsewhere always false: there permissions decide, and opening tells.
bool HasReadOnlyAttribute(const std::string& path);

}  // namespace ncappkit_detail
