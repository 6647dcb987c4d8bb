// SPDX-License-Identifier: MIT
// PlatformText: the bytes of a text file that the library or nckit writes, given as "\n"-separated text.
// Files are written with the system's text line end, which is "\r\n" on Windows and "\n" elsewhere, so one
// expectation serves every system:
//
//   EXPECT_EQ(dir.ReadFile("out.nc"), PlatformText("%\nO1\nM30\n%\n"));
#pragma once

#include <string>

/// `text` with every "\n" turned into the system's text line end.
inline std::string PlatformText(std::string text) {
#if defined(_WIN32)
  for (std::size_t i = 0; (i = text.find('\n', i)) != std::string::npos; i += 2)
    text.insert(i, 1, '\r');
#endif
  return text;
}
