// SPDX-License-Identifier: MIT
// The temporary NC file of the benchmarks that generate their input: "big.nc" in a fresh folder of the
// system's temporary directory, removed with the object, and the number text the generators write.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace bench_nc {

/// A file path in a fresh temporary folder; a generator derived from it writes the file in its constructor
/// and then calls Written(). The folder and everything in it is removed by the destructor.
class TempNcFile {
 public:
  std::filesystem::path directory;
  std::string path;
  std::uintmax_t bytes = 0;  // the file's size, known after Written()

  explicit TempNcFile(const std::string& prefix) {
    directory = std::filesystem::temp_directory_path() / (prefix + std::to_string(std::random_device{}()));
    std::filesystem::create_directories(directory);
    path = (directory / "big.nc").string();
  }
  ~TempNcFile() {
    std::error_code ec;
    std::filesystem::remove_all(directory, ec);
  }
  TempNcFile(const TempNcFile&) = delete;
  TempNcFile& operator=(const TempNcFile&) = delete;

 protected:
  void Written() { bytes = std::filesystem::file_size(path); }
};

/// `v` thousandths as the generators write a coordinate: whole part, '.', then the thousandths without their
/// leading zeros (12345 gives "12.345", 12005 gives "12.5", -500 gives "-0.500"). The files keep this form
/// so that their figures stay comparable with those measured before.
inline std::string CoordinateText(int v) {
  std::string s = std::to_string(v / 1000) + "." + std::to_string(std::abs(v % 1000));
  return (v < 0 && v / 1000 == 0 ? "-" : "") + s;
}

}  // namespace bench_nc
