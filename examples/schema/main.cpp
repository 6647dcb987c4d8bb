// SPDX-License-Identifier: MIT
// example_schema: build the XML schema (XSD) of a small job file and print it.
//
//   example_schema > job.xsd
//   xmllint --noout --schema job.xsd job.xml
//
// The schema is a tree of KCParagraph sections in a KCDocument, one section per XSD node; KCC_W3C_Schema
// makes the nodes (see JobSchema.h) and the document writes them as XML. The output is the schema and
// nothing else, so it can be saved as it stands; job.xml beside this file is an instance that validates.
#include <iostream>

#include "JobSchema.h"
#include "ncappkit/foundation/KCParagraph.h"

int main() {
  KCDocument document;
  if (!BuildJobSchema(document)) {
    std::cerr << "example_schema: the schema could not be built\n";
    return 1;
  }
  std::cout << document.ToXml();
  return 0;
}
