// SPDX-License-Identifier: MIT
// BuildJobSchema: the XSD of a small job file, built with KCC_W3C_Schema. The example prints it, and the
// schema tests validate instances against it with xmllint, so both use this one function.
//
// The schema describes files like this one (examples/schema/job.xml):
//
//   <Job machine="Laser 3" units="mm">
//     <Tool diameter="0.2">nozzle</Tool>
//     <Part name="Bracket" program="1001" priority="2" weight="0.75" material="steel">
//       <Thickness>2.5</Thickness>
//       <Count>12</Count>
//     </Part>
//   </Job>
#pragma once

#include <initializer_list>

#include "ncappkit/foundation/KCParagraph.h"
#include "ncappkit/schema/KCC_W3C_Schema.h"

/// Builds the job-file schema as the root of `document` (replacing an earlier root). True when every node
/// was made.
inline bool BuildJobSchema(KCDocument& document) {
  KCC_W3C_Schema schema(document);
  KCParagraph* root = schema.GetSchemaRoot();
  if (!root || !schema.AddAnnotation(root, "Job file: the tools and parts of one run on one machine."))
    return false;

  // PartType: what every part has; <Part> extends it by its material.
  KCParagraph* partType = schema.AddComplexTypeByName("PartType");
  KCParagraph* partItems = schema.AddSequenceToComplexType(partType, false, false);
  const bool partOk = partItems && schema.AddElementWithName_Decimal(partItems, "Thickness", false, false) &&
                      schema.AddElementWithName_Int(partItems, "Count", false, true) &&
                      schema.AddAttributeWithName_String(partType, "name", true) &&
                      schema.AddAttributeWithName_Int(partType, "program", true) &&
                      schema.AddAttributeWithName_Short(partType, "priority", false) &&
                      schema.AddAttributeWithName_Decimal(partType, "weight", 0.0, false);
  if (!partOk)
    return false;

  // <Tool diameter="...">text</Tool>: a string with an attribute, referenced from <Job>.
  KCParagraph* toolContent = schema.AddSimpleContent(schema.AddComplexType(schema.AddSchemaElement("Tool")));
  KCParagraph* toolText = schema.AddExtentionWithBase_String(toolContent);
  if (!schema.AddAttributeWithName_Decimal(toolText, "diameter", true))
    return false;

  // <Job>: any number of tools, then at least one part, and the machine and unit attributes.
  KCParagraph* jobType = schema.AddComplexType(schema.AddSchemaElement("Job"));
  KCParagraph* jobItems = schema.AddSequenceToComplexType(jobType, false, false);
  if (!schema.AddElementAsReference(jobItems, "Tool", true, true))
    return false;
  KCParagraph* part = schema.AddElementWithName(jobItems, "Part", true, false);
  KCParagraph* partBase =
      schema.AddExtentionWithBase(schema.AddComplexContent(schema.AddComplexType(part)), "PartType");
  KCParagraph* materials =
      schema.AddSimpleTypeWithRestrictionBaseToken(schema.AddAttributeWithName(partBase, "material", true));
  for (const char* material : {"steel", "aluminium", "brass"}) {
    if (!schema.AddEnumerationValue(materials, material))
      return false;
  }
  if (!schema.AddAttributeWithName_String(jobType, "machine", true))
    return false;
  KCParagraph* units =
      schema.AddRestriction(schema.AddSimpleType(schema.AddAttributeWithName(jobType, "units", false)));
  return schema.AddEnumerationValue(units, "mm") && schema.AddEnumerationValue(units, "inch");
}
