// SPDX-License-Identifier: MIT
// JSON text for nckit's --json output.
//
//   out << "{\"file\": " << JsonString(path) << "}\n";
#pragma once

#include <string>

/// `text` as a JSON string literal (quotes included), ASCII only: well-formed UTF-8 characters are written
/// as \u escapes of their code points, any other byte outside ASCII as the Latin-1 character \u00XX.
std::string JsonString(const std::string& text);
