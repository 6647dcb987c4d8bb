// SPDX-License-Identifier: MIT
// The NC file that the load benchmarks read: 999,000 lines (about 25 MB) in 700 programs of 1,427 lines and
// a short last one. Each program starts with a number line with a reference comment and ends with M30 or
// M99; in between are mostly linear moves with two or three axes, some arcs, comments and parameter lines.
// The file is written into a fresh temporary directory, removed with the object.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "bench_nc_temp_file.h"

namespace bench_nc {

constexpr int kFileLines = 999000;
constexpr int kLinesPerProgram = 1427;

struct TestFile : TempNcFile {
  int programs = 0;  // programs a load must find

  TestFile() : TempNcFile("ncappkit-bench-nc-load-") {
    Write();
    Written();
  }

 private:
  void Write() {
    std::ofstream out(path, std::ios::binary);
    std::mt19937 random(2026);
    std::uniform_int_distribution<int> coord(-99999, 99999);
    std::uniform_int_distribution<int> kind(0, 99);
    const auto num = CoordinateText;
    std::string line;
    out << "%\n";
    int written = 1;
    for (int program = 0; written < kFileLines; ++program) {
      out << "O" << (1000 + program) << " (PART " << program << ")\n";
      ++written;
      for (int n = 1; n < kLinesPerProgram - 1 && written < kFileLines - 1; ++n, ++written) {
        const int k = kind(random);
        const std::string block = "N" + std::to_string(n * 10);
        if (k < 60) {
          line = block + " G01 X" + num(coord(random)) + " Y" + num(coord(random));
        } else if (k < 75) {
          line =
              block + " X" + num(coord(random)) + " Y" + num(coord(random)) + " Z" + num(coord(random) / 10);
        } else if (k < 85) {
          line = block + " G02 X" + num(coord(random)) + " I" + num(coord(random) / 10);
        } else if (k < 92) {
          line = "(CONTOUR " + std::to_string(n) + " FINISH)";
        } else if (k < 97) {
          line = "#" + std::to_string(100 + k) + " = " + num(coord(random)) + " (P)";
        } else {
          line = block + " M08";
        }
        out << line << '\n';
      }
      out << (program % 3 == 2 ? "M99" : "M30") << '\n';
      ++written;
      ++programs;
    }
  }
};

}  // namespace bench_nc
