// SPDX-License-Identifier: MIT
// JSON text for nckit's --json output.
#include "NckitJson.h"

#include "NckitUtf8.h"

namespace {

void AppendJsonEscape(std::string& out, unsigned unit) {
  static const char kHex[] = "0123456789abcdef";
  out += "\\u";
  for (int shift = 12; shift >= 0; shift -= 4)
    out += kHex[(unit >> shift) & 0xF];
}

}  // namespace

std::string JsonString(const std::string& text) {
  std::string out = "\"";
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char ch = text[i];
    const auto c = static_cast<unsigned char>(ch);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += ch;
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\r') {
      out += "\\r";
    } else if (c == '\t') {
      out += "\\t";
    } else if (c < 0x20 || c == 0x7F) {
      AppendJsonEscape(out, c);
    } else if (c < 0x80) {
      out += ch;
    } else {
      // UTF-8 text keeps its characters; any other byte is taken as a Latin-1 character.
      unsigned codePoint = c;
      const std::size_t length = Utf8Sequence(text, i, codePoint);
      if (length == 0) {
        AppendJsonEscape(out, c);
      } else if (codePoint < 0x10000) {
        AppendJsonEscape(out, codePoint);
        i += length - 1;
      } else {
        AppendJsonEscape(out, 0xD800 + ((codePoint - 0x10000) >> 10));
        AppendJsonEscape(out, 0xDC00 + ((codePoint - 0x10000) & 0x3FF));
        i += length - 1;
      }
    }
  }
  out += '"';
  return out;
}
