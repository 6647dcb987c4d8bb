// SPDX-License-Identifier: MIT
// Internal part of the platform layer: the operating-system calls that library sources need beyond the public
// KCPlatform.h. Each has its Windows call and a portable substitute elsewhere, both in KCPlatform.cpp, so
// that no other source needs a platform branch of its own.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace ncappkit_detail {

/// The separator the system's paths use between folder names: '\\' on Windows, '/' elsewhere.
char PathSeparator() noexcept;

/// Length of a drive prefix such as "C:" at the start of `path` (2), or 0: only Windows paths have one.
std::size_t DrivePrefixLength(const std::string& path) noexcept;

/// The four numbers of the file version a program file carries (major, minor, patch, build), read from its
/// version resource on Windows. Elsewhere, where programs carry no such resource, any existing file reports
/// the library's own version with build 0. False when the file has no (readable, undamaged) version.
bool ReadFileVersion(const std::string& path, std::array<int, 4>& version);

/// True when `path` names a file marked read-only by a file attribute that permissions do not show (the
/// Windows read-only attribute). Elsewhere always false: there permissions decide, and opening tells.
bool HasReadOnlyAttribute(const std::string& path);

/// Ask the system to back the memory [`data`, `data` + `bytes`) with large pages where it can (the whole
/// 2 MB pages inside it, as transparent huge pages on Linux): an array of tens of megabytes that is filled
/// once then costs one page fault per 2 MB instead of one per 4 KB. Elsewhere, and when the system declines,
/// nothing happens; the memory is the same either way.
void AdviseLargePages(void* data, std::size_t bytes) noexcept;

}  // namespace ncappkit_detail
