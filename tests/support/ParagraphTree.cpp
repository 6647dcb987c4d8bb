// SPDX-License-Identifier: MIT
#include "support/ParagraphTree.h"

#include <cstddef>
#include <vector>

#include "support/TestData.h"

namespace {

std::string Quoted(const KCString& text) {
  return "\"" + EscapeText(text.str()) + "\"";
}

std::string Difference(const KCParagraph& expected, const KCParagraph& actual, const std::string& path) {
  if (expected.GetName() != actual.GetName())
    return path + ": section name: expected " + Quoted(expected.GetName()) + ", got " +
           Quoted(actual.GetName());
  const std::vector<KCParagraph::Entry>& e = expected.GetEntries();
  const std::vector<KCParagraph::Entry>& a = actual.GetEntries();
  for (std::size_t i = 0; i < e.size() && i < a.size(); ++i) {
    if (e[i].first != a[i].first) {
      return path + ": key " + std::to_string(i + 1) + ": expected " + Quoted(e[i].first) + ", got " +
             Quoted(a[i].first);
    }
    if (e[i].second != a[i].second) {
      return path + ": value of key " + Quoted(e[i].first) + ": expected " + Quoted(e[i].second) + ", got " +
             Quoted(a[i].second);
    }
  }
  if (e.size() != a.size()) {
    return path + ": expected " + std::to_string(e.size()) + " keys, got " + std::to_string(a.size()) +
           (e.size() > a.size() ? " (missing " + Quoted(e[a.size()].first) + ")"
                                : " (extra " + Quoted(a[e.size()].first) + ")");
  }
  if (expected.GetDocumentationName() != actual.GetDocumentationName()) {
    return path + ": documentation name: expected " + Quoted(expected.GetDocumentationName()) + ", got " +
           Quoted(actual.GetDocumentationName());
  }
  if (expected.GetDocumentation() != actual.GetDocumentation()) {
    return path + ": documentation text: expected " + Quoted(expected.GetDocumentation()) + ", got " +
           Quoted(actual.GetDocumentation());
  }
  const std::vector<KCParagraph*> ec = expected.GetParagraphs();
  const std::vector<KCParagraph*> ac = actual.GetParagraphs();
  for (std::size_t i = 0; i < ec.size() && i < ac.size(); ++i) {
    const std::string childPath = path + "/" + ec[i]->GetName().str() + "[" + std::to_string(i + 1) + "]";
    std::string difference = Difference(*ec[i], *ac[i], childPath);
    if (!difference.empty())
      return difference;
  }
  if (ec.size() != ac.size()) {
    return path + ": expected " + std::to_string(ec.size()) + " child sections, got " +
           std::to_string(ac.size()) +
           (ec.size() > ac.size() ? " (missing " + Quoted(ec[ac.size()]->GetName()) + ")"
                                  : " (extra " + Quoted(ac[ec.size()]->GetName()) + ")");
  }
  return "";
}

void Describe(const KCParagraph& section, int depth, std::string& out) {
  const std::string indent(static_cast<std::size_t>(depth) * 2, ' ');
  out += indent + "[" + Quoted(section.GetName()) + "]\n";
  for (const KCParagraph::Entry& entry : section.GetEntries())
    out += indent + "  " + Quoted(entry.first) + " = " + Quoted(entry.second) + "\n";
  if (!section.GetDocumentationName().IsEmpty() || !section.GetDocumentation().IsEmpty())
    out += indent + "  doc " + Quoted(section.GetDocumentationName()) + ": " +
           Quoted(section.GetDocumentation()) + "\n";
  for (const KCParagraph* child : section.GetParagraphs())
    Describe(*child, depth + 1, out);
}

}  // namespace

std::string FirstTreeDifference(const KCParagraph& expected, const KCParagraph& actual) {
  return Difference(expected, actual, expected.GetName().str());
}

std::string FirstDocumentDifference(const KCDocument& expected, const KCDocument& actual) {
  if (expected.GetRoot() == nullptr && actual.GetRoot() == nullptr)
    return "";
  if (expected.GetRoot() == nullptr)
    return "expected no root, got the root " + Quoted(actual.GetRoot()->GetName());
  if (actual.GetRoot() == nullptr)
    return "expected the root " + Quoted(expected.GetRoot()->GetName()) + ", got no root";
  return FirstTreeDifference(*expected.GetRoot(), *actual.GetRoot());
}

std::string DescribeTree(const KCParagraph& root) {
  std::string out;
  Describe(root, 0, out);
  return out;
}
