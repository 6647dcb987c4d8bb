// SPDX-License-Identifier: MIT
#include "support/NcBlockWords.h"

#include "NckitBlockWords.h"

std::string NcBlockWords(const KCC_ParseNc& p, const std::string& block) {
  std::string text;
  for (const NckitWord& word : NckitBlockWords(p, block))
    text += word.address + " " + word.value + "\n";
  return text;
}
