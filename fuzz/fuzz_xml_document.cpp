// SPDX-License-Identifier: MIT
// Fuzz target: XML documents. Arbitrary bytes are read with KCDocument::LoadFromText. A refused text must
// leave the document as it was and give a "line L, column C: reason" error. An accepted text is written
// with ToXml; a second document must accept that XML and write exactly the same XML again.
#include <cstddef>
#include <cstdint>
#include <string>

#include "ncappkit/foundation/KCParagraph.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);

  KCDocument doc;
  doc.CreateRoot("Before");
  const std::string before = doc.ToXml();
  if (!doc.LoadFromText(text)) {
    if (doc.ToXml() != before)
      __builtin_trap();  // a failed load keeps the tree
    if (doc.GetLoadError().rfind("line ", 0) != 0 ||
        doc.GetLoadError().find(", column ") == std::string::npos)
      __builtin_trap();  // every refusal says where
    return 0;
  }
  if (!doc.GetLoadError().empty() || doc.GetRoot() == nullptr)
    __builtin_trap();

  const std::string x1 = doc.ToXml();
  KCDocument second;
  if (!second.LoadFromText(x1))
    __builtin_trap();  // what ToXml writes reads back
  if (second.ToXml() != x1)
    __builtin_trap();  // ... to a tree that writes the same XML
  return 0;
}
