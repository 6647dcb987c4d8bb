// SPDX-License-Identifier: MIT
// example_nc_programs: list the programs of an NC file, then extract one sub-program into a file of its own.
//
//   example_nc_programs [file.nc [program-number]]
//
// Loads the bundled Fanuc sample by default. The first block (M98 P8010) is looked for, so the JOB program
// that calls it counts as a main program although it ends with M99. A KCC_NcFile can be returned from a
// function or kept in a std::vector: moves hand its programs over (copies would share them; Clone duplicates
// them).
#include <iostream>
#include <string>
#include <vector>

#include "ncappkit/nc/KCC_NcFile.h"

#ifndef EXAMPLE_NC_SAMPLE
#define EXAMPLE_NC_SAMPLE "fanuc_programs.nc"
#endif

namespace {

void List(const char* title, const KCC_NcFileProgramList& programs) {
  std::cout << title << ":\n";
  // Range-for walks the list without its shared cursor (GetFirstProg / GetNextProg), so loops can nest.
  for (const KCC_NcFileProgram* program : programs) {
    std::cout << "  O" << program->GetProgramNumber() << "  " << program->GetProgramRef() << "  ("
              << program->GetStringList().size() << " lines)\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::string path = argc > 1 ? argv[1] : EXAMPLE_NC_SAMPLE;
  const int wanted = argc > 2 ? std::stoi(argv[2]) : 8030;

  KCC_NcFile file;
  if (file.LoadFromFile(path, /*checkFirstBlock=*/true, /*keepUnfinished=*/false) == nullptr) {
    // A line longer than KCC_NcFile::kMaxLineLength ends the load; LoadFromFileWithoutLineLimit reads those.
    std::cerr << path << ": " << KCC_NcFile::GetErrorName(file.GetErrorCode()) << '\n';
    return 1;
  }
  std::cout << "structure: " << (file.IsSiemensNcFileStructure() ? "Siemens" : "Fanuc") << '\n';
  List("main programs", file.GetMainProgList());
  List("sub-programs", file.GetSubProgList());

  const KCC_NcFileProgram* chosen = file.GetSubProgList().FindProgramFromList(wanted);
  if (chosen == nullptr)
    chosen = file.GetMainProgList().FindProgramFromList(wanted);
  if (chosen == nullptr) {
    std::cerr << "no program O" << wanted << '\n';
    return 1;
  }
  // Saving goes through a temporary file that replaces the target once complete, framed by '%' lines.
  const std::string target = "O" + std::to_string(wanted) + ".nc";
  if (!chosen->SaveToFile(target)) {
    std::cerr << "cannot write " << target << '\n';
    return 1;
  }
  std::cout << "wrote " << target << ":\n" << KCC_NcFile::GetProgramsText({chosen}, "\n");
  return 0;
}
