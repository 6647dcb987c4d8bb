// SPDX-License-Identifier: MIT
// The job-file schema of the schema example, built with KCC_W3C_Schema and saved with KCDocument, is a real
// XSD: xmllint compiles it, accepts good job files and rejects bad ones. Needs xmllint (Debian:
// libxml2-utils) on the PATH; on Windows these tests are skipped.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <string>
#include <system_error>
#include <vector>

#include "../../examples/schema/JobSchema.h"
#include "ncappkit/foundation/KCParagraph.h"
#include "ncappkit/schema/KCC_W3C_Schema.h"
#include "support/ChildProcess.h"
#include "support/TempDir.h"
#include "support/TestData.h"

namespace {

// xmllint's exit codes: 0 valid, 3 the instance does not validate, 5 the schema does not compile.
constexpr int kValid = 0;
constexpr int kInvalid = 3;
constexpr int kSchemaDoesNotCompile = 5;

#ifndef _WIN32
// The full path of xmllint found on the PATH, or "" when there is none.
std::string FindXmllint() {
  const char* path = std::getenv("PATH");
  if (!path)
    return std::string();
  const std::string dirs(path);
  std::size_t start = 0;
  while (start <= dirs.size()) {
    std::size_t end = dirs.find(':', start);
    if (end == std::string::npos)
      end = dirs.size();
    if (end > start) {
      const std::filesystem::path candidate =
          std::filesystem::path(dirs.substr(start, end - start)) / "xmllint";
      std::error_code error;
      if (std::filesystem::is_regular_file(candidate, error))
        return candidate.string();
    }
    start = end + 1;
  }
  return std::string();
}
#endif

TEST(JobSchemaFile, SavedSchemaHasNoBlankInItsElementNames) {
  TempDir dir;
  KCDocument document;
  ASSERT_TRUE(BuildJobSchema(document));
  ASSERT_TRUE(document.SaveToFile(dir.Path("job.xsd")));

  const std::string xsd = dir.ReadFile("job.xsd");

  EXPECT_NE(xsd.find("  <xsd:complexType name=\"PartType\">\n"), std::string::npos) << xsd;
  EXPECT_NE(xsd.find("      <xsd:simpleContent>\n"), std::string::npos) << xsd;
  EXPECT_NE(xsd.find("        <xsd:extension base=\"xsd:string\">\n"), std::string::npos) << xsd;
  EXPECT_NE(xsd.find("            <xsd:complexContent>\n"), std::string::npos) << xsd;
  EXPECT_NE(xsd.find("              <xsd:extension base=\"PartType\">\n"), std::string::npos) << xsd;
  EXPECT_EQ(xsd.find(" >"), std::string::npos) << xsd;
  EXPECT_EQ(xsd.find(" />"), std::string::npos) << xsd;
}

// Runs xmllint in a temporary directory holding the job schema, saved as job.xsd by KCDocument.
class JobSchemaXmllint : public ::testing::Test {
 protected:
  void SetUp() override {
#ifdef _WIN32
    GTEST_SKIP() << "xmllint is not available where the Windows build runs its tests";
#else
    m_xmllint = FindXmllint();
    ASSERT_FALSE(m_xmllint.empty())
        << "xmllint was not found on the PATH; install it (Debian: apt-get install "
           "libxml2-utils) to run the schema validation tests";
    ASSERT_TRUE(BuildJobSchema(m_document));
    ASSERT_TRUE(m_document.SaveToFile(SchemaPath()));
#endif
  }

  std::string SchemaPath() const {
    return m_dir.Path("job.xsd");
  }

  ChildResult Validate(const std::string& instance) const {
    return RunChild({m_xmllint, "--noout", "--schema", SchemaPath(), instance});
  }

  TempDir m_dir;
  KCDocument m_document;
  std::string m_xmllint;
};

TEST_F(JobSchemaXmllint, SchemaCompiles) {
  const std::string instance = m_dir.WriteFile("job.xml", "<Job machine=\"Laser 3\"/>\n");

  const ChildResult result = Validate(instance);

  EXPECT_NE(result.exitCode, kSchemaDoesNotCompile) << result.err;
  EXPECT_EQ(result.err.find("failed to compile"), std::string::npos) << result.err;
}

TEST_F(JobSchemaXmllint, ExtensionOfAnUnknownTypeDoesNotCompile) {
  KCDocument broken;
  KCC_W3C_Schema schema(broken);
  schema.AddExtentionWithBase(schema.AddComplexContent(schema.AddComplexType(schema.AddSchemaElement("Job"))),
                              "NoSuchType");
  ASSERT_TRUE(broken.SaveToFile(m_dir.Path("broken.xsd")));
  const std::string instance = m_dir.WriteFile("job.xml", "<Job/>\n");

  const ChildResult result = RunChild({m_xmllint, "--noout", "--schema", m_dir.Path("broken.xsd"), instance});

  EXPECT_EQ(result.exitCode, kSchemaDoesNotCompile) << result.err;
}

// One job file (a path below the source tree), the exit code xmllint gives for it and a text its message
// must hold.
struct InstanceRow {
  std::string name;
  std::string file;
  int exitCode;
  std::string message;
};

void PrintTo(const InstanceRow& row, std::ostream* out) {
  *out << row.file;
}

const std::vector<InstanceRow> kInstances = {
    {"ShippedExampleJobIsValid", "examples/schema/job.xml", kValid, "validates"},
    {"JobWithOnlyRequiredPartsIsValid", "tests/data/schema/minimal_job.xml", kValid, "validates"},
    {"ProgramThatIsNoIntIsRejected", "tests/data/schema/program_not_int.xml", kInvalid, "'program'"},
    {"PriorityOutsideShortIsRejected", "tests/data/schema/priority_outside_short.xml", kInvalid,
     "'priority'"},
    {"PartWithoutNameIsRejected", "tests/data/schema/part_without_name.xml", kInvalid, "'name'"},
    {"JobWithoutMachineIsRejected", "tests/data/schema/job_without_machine.xml", kInvalid, "'machine'"},
    {"MaterialOutsideEnumerationIsRejected", "tests/data/schema/material_wood.xml", kInvalid, "'wood'"},
    {"UnitsOutsideEnumerationIsRejected", "tests/data/schema/units_cm.xml", kInvalid, "'cm'"},
    {"ThicknessThatIsNoDecimalIsRejected", "tests/data/schema/thickness_not_decimal.xml", kInvalid, "'thin'"},
    {"ToolWithoutDiameterIsRejected", "tests/data/schema/tool_without_diameter.xml", kInvalid, "'diameter'"},
};

class JobSchemaInstance : public JobSchemaXmllint, public ::testing::WithParamInterface<InstanceRow> {};

TEST_P(JobSchemaInstance, XmllintGivesTheExpectedExitCode) {
  const InstanceRow& row = GetParam();
  const std::string instance = (std::filesystem::path(NCAPPKIT_SOURCE_DIR) / row.file).string();

  const ChildResult result = Validate(instance);

  EXPECT_EQ(result.exitCode, row.exitCode) << result.err;
  EXPECT_NE(result.err.find(row.message), std::string::npos) << result.err;
}

INSTANTIATE_TEST_SUITE_P(Instances, JobSchemaInstance, ::testing::ValuesIn(kInstances), RowName());

}  // namespace
