// SPDX-License-Identifier: MIT
// Internal helper of the library sources: the character classes that string and NC-text code test, without
// the process locale (std::isdigit and std::isblank depend on it).
#pragma once

namespace ncappkit_detail {

/// True for '0' to '9'.
constexpr bool IsDigit(char c) noexcept {
  return c >= '0' && c <= '9';
}

/// True for a space or a tab: the blanks that trimming removes.
constexpr bool IsBlank(char c) noexcept {
  return c == ' ' || c == '\t';
}

}  // namespace ncappkit_detail
