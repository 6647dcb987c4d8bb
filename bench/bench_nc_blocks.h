// SPDX-License-Identifier: MIT
// The block mix that the decoder benchmarks decode: 4,096 seeded blocks of 15 shapes.
#pragma once

#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "ncappkit/foundation/KCString.h"

namespace bench_nc {

// Blocks as CAM output and hand-written programs have them: moves with two or three axes, arcs, tool and
// spindle words, comments, and a few odd ones (lower case, long fractions).
inline std::vector<KCString> MakeBlocks() {
  const std::vector<std::string> shapes = {
      "N{n} G01 X{c} Y{c} F{f}",
      "N{n} X{c} Y{c}",
      "N{n} G00 X{c} Y{c} Z{c}",
      "N{n} G02 X{c} Y{c} I{c} J{c}",
      "N{n} G03 X{c} Y{c} R{c}",
      "X{c} Y{c}",
      "N{n} T{t} M06 (TOOL CHANGE)",
      "N{n} S{f} M03",
      "N{n} G17 G90 G54 G00 X0 Y0",
      "(FINISHING PASS {n})",
      "N{n} G81 X{c} Y{c} Z{c} R2. F{f}",
      "N{n} M98 P8010 L2",
      "N{n} G01 Z-{f}.25 F{f} M08",
      "g01 x{c} y{c}",
      "N{n} A{c} B{c} C{c}",
  };
  std::mt19937 random(7);
  std::uniform_int_distribution<int> coord(-99999, 99999);
  std::uniform_int_distribution<int> small(1, 3000);
  std::vector<KCString> blocks;
  for (int i = 0; i < 4096; ++i) {
    std::string shape = shapes[static_cast<std::size_t>(i) % shapes.size()];
    std::string text;
    for (std::size_t k = 0; k < shape.size(); ++k) {
      if (shape[k] == '{') {
        const char what = shape[k + 1];
        k += 2;
        if (what == 'n') {
          text += std::to_string((i + 1) * 10);
        } else if (what == 'c') {
          const int v = coord(random);
          text += (v < 0 ? "-" : "") + std::to_string(std::abs(v) / 1000) + "." +
                  std::to_string(std::abs(v) % 1000);
        } else {
          text += std::to_string(small(random));
        }
      } else {
        text += shape[k];
      }
    }
    blocks.emplace_back(text);
  }
  return blocks;
}

}  // namespace bench_nc
