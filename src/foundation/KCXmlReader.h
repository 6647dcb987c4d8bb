// SPDX-License-Identifier: MIT
// Internal part of KCDocument: the XML reader behind LoadFromText and LoadFromFile. The rules it follows
// (what it accepts, what it refuses, how elements become sections) are those documented at
// KCDocument::LoadFromText in KCParagraph.h and at the top of KCXmlReader.cpp.
#pragma once

#include <memory>
#include <string>
#include <string_view>

class KCParagraph;

namespace ncappkit_detail {

/// Read the XML document `xml` into a new paragraph tree. True with `root` set to it; false with `root`
/// null and `error` set to "line L, column C: reason". Runs in time linear in the size of `xml`.
bool ReadXmlDocument(std::string_view xml, std::unique_ptr<KCParagraph>& root, std::string& error);

/// The bytes of the file at `path`. False with `error` set to a reason that names the file when it cannot
/// be opened or read.
bool ReadWholeFile(const std::string& path, std::string& bytes, std::string& error);

}  // namespace ncappkit_detail
