// SPDX-License-Identifier: MIT
// Internal helper of the foundation sources: cutting a text at a separator character.
#pragma once

#include <cstdint>
#include <vector>

#include "ncappkit/foundation/KCString.h"

namespace ncappkit_detail {

/// The pieces of `text` between the occurrences of `separator`, in order, blanks kept; a text without the
/// separator gives one piece (the empty text gives one empty piece).
inline std::vector<KCString> SplitAt(const KCString& text, char separator) {
  std::vector<KCString> pieces;
  int start = 0;
  for (;;) {
    const std::uint64_t found = text.Find(separator, static_cast<std::uint64_t>(start));
    const int end = found == KCString::npos ? text.GetLength() : static_cast<int>(found);
    pieces.push_back(text.Mid(start, end - start));
    if (found == KCString::npos)
      return pieces;
    start = end + 1;
  }
}

}  // namespace ncappkit_detail
