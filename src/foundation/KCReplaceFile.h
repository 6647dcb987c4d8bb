// SPDX-License-Identifier: MIT
// Internal helper of the foundation sources: replacing a file's contents without ever leaving it half
// written.
#pragma once

#include <string>

namespace ncappkit_detail {

/// Write `content` byte for byte to a new temporary file beside `path` and rename it over `path` (on Windows
/// with MoveFileExA and MOVEFILE_REPLACE_EXISTING). True on success; on failure the temporary file is removed
/// and whatever was at `path` before is untouched.
bool ReplaceFileContents(const std::string& path, const std::string& content);

}  // namespace ncappkit_detail
