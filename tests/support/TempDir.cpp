// SPDX-License-Identifier: MIT
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <system_error>

namespace fs = std::filesystem;

namespace {

// Keeps letters, digits and '-' of the test name so it is safe as a path component.
std::string SafeName(const std::string& name) {
  std::string safe;
  for (char c : name) {
    const bool keep = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-';
    safe += keep ? c : '-';
  }
  return safe.substr(0, 60);
}

// Paths are handed out and taken as UTF-8, like every 8-bit text of the library (Windows programs of the
// library run with UTF-8 as their code page); std::filesystem's plain narrow form is not UTF-8 on Windows.
fs::path FromUtf8(const std::string& text) {
  return fs::u8path(text);
}
std::string ToUtf8(const fs::path& path) {
  return path.u8string();
}

std::string CurrentTestName() {
  const ::testing::TestInfo* info = ::testing::UnitTest::GetInstance()->current_test_info();
  if (info == nullptr)
    return "none";
  return std::string(info->test_suite_name()) + "-" + info->name();
}

}  // namespace

TempDir::TempDir() {
  static std::atomic<unsigned> counter{0};
  std::random_device device;
  std::error_code error;
  const fs::path base = fs::temp_directory_path(error);
  if (error) {
    ADD_FAILURE() << "no temporary directory: " << error.message();
    throw std::runtime_error("no temporary directory");
  }
  const std::string stem = "ncappkit-" + SafeName(CurrentTestName()) + "-";
  for (int attempt = 0; attempt < 100; ++attempt) {
    const fs::path candidate =
        base / (stem + std::to_string(device()) + "-" + std::to_string(counter.fetch_add(1)));
    if (fs::create_directory(candidate, error)) {
      m_path = ToUtf8(candidate);
      return;
    }
  }
  ADD_FAILURE() << "cannot create a temporary directory under " << ToUtf8(base);
  throw std::runtime_error("cannot create a temporary directory");
}

TempDir::~TempDir() {
  std::error_code error;
  fs::remove_all(FromUtf8(m_path), error);
}

std::string TempDir::Path(const std::string& name) const {
  return ToUtf8(FromUtf8(m_path) / FromUtf8(name));
}

std::string TempDir::WriteFile(const std::string& name, const std::string& content) const {
  const fs::path path = FromUtf8(m_path) / FromUtf8(name);
  std::error_code error;
  fs::create_directories(path.parent_path(), error);
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(content.data(), static_cast<std::streamsize>(content.size()));
  out.close();
  if (!out)
    ADD_FAILURE() << "cannot write " << ToUtf8(path);
  return ToUtf8(path);
}

std::string TempDir::ReadFile(const std::string& name) const {
  return ReadFileAt(Path(name));
}

bool TempDir::Exists(const std::string& name) const {
  std::error_code error;
  return fs::exists(FromUtf8(m_path) / FromUtf8(name), error);
}

int TempDir::EntryCount(const std::string& name) const {
  int count = 0;
  std::error_code error;
  for (fs::directory_iterator it(FromUtf8(m_path) / FromUtf8(name), error), end; !error && it != end;
       it.increment(error))
    ++count;
  return count;
}

std::string TempDir::ReadFileAt(const std::string& path) {
  std::ifstream in(FromUtf8(path), std::ios::binary);
  if (!in)
    return std::string();
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}
