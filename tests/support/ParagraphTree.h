// SPDX-License-Identifier: MIT
// ParagraphTree: comparing KCParagraph trees for the XML read and round-trip tests. The first difference is
// named by its path, so that a failing comparison of two large trees says where they part.
//
//   EXPECT_EQ(FirstTreeDifference(expected, *doc.GetRoot()), "");
//   // on a difference: "Root/Tool[2]/Pen: value of key \"Width\": expected \"2\", got \"3\""
#pragma once

#include <string>

#include "ncappkit/foundation/KCParagraph.h"

/// "" when the two trees are equal: the same section names, the same keys in the same order with values
/// equal byte for byte, the same documentation names and texts, and the same children in the same order,
/// all the way down. Otherwise the first difference (depth first, in document order) as "PATH: what",
/// where PATH names the sections from the root, a child as "Name[i]" with i its position among its
/// siblings (from 1). Texts are shown with EscapeText.
std::string FirstTreeDifference(const KCParagraph& expected, const KCParagraph& actual);

/// FirstTreeDifference of the documents' roots; also tells when only one of them has a root.
std::string FirstDocumentDifference(const KCDocument& expected, const KCDocument& actual);

/// The tree as indented text, one line per section, key and documentation entry (for failure messages).
std::string DescribeTree(const KCParagraph& root);
