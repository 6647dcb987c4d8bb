// SPDX-License-Identifier: MIT
// The one-program NC file of the tool-path and plot benchmarks: 999,000 lines (about 22 MB), a number line,
// then mostly straight moves in two or three axes, some rapids, arcs by radius and full circles by centre
// (all consistent), comments, parameter lines and M codes, and M30. It is written into a fresh temporary
// directory at construction and removed with it.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "bench_nc_temp_file.h"

namespace bench_nc {

constexpr int kProgramFileLines = 999000;

struct ProgramFile : TempNcFile {
  ProgramFile() : TempNcFile("ncappkit-bench-toolpath-") {
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
    out << "%\nO1000 (BIG PART)\nN10 G90 G17 G21 T1 M6\n";
    int written = 4;
    for (int n = 2; written < kProgramFileLines - 2; ++n, ++written) {
      const int k = kind(random);
      const std::string block = "N" + std::to_string(n * 10);
      std::string line;
      if (k < 50) {
        line = block + " G01 X" + num(coord(random)) + " Y" + num(coord(random)) + (k < 5 ? " F1200" : "");
      } else if (k < 62) {
        line = block + " G01 X" + num(coord(random)) + " Y" + num(coord(random)) + " Z" +
               num(coord(random) / 10);
      } else if (k < 67) {
        line = block + " G00 X" + num(coord(random)) + " Y" + num(coord(random));
      } else if (k < 75) {
        // Radius 200: every chord of the +-100 square is shorter than 2R.
        line = block + (k < 71 ? " G02" : " G03") + " X" + num(coord(random)) + " Y" + num(coord(random)) +
               " R200.";
      } else if (k < 80) {
        line = block + " G03 I" + num(coord(random) / 10) + " J" + num(coord(random) / 10);  // a full circle
      } else if (k < 88) {
        line = "(CONTOUR " + std::to_string(n) + " FINISH)";
      } else if (k < 94) {
        line = "#" + std::to_string(100 + k) + " = " + num(coord(random)) + " (P)";
      } else {
        line = block + " M08";
      }
      out << line << '\n';
    }
    out << "M30\n%\n";
  }
};

}  // namespace bench_nc
