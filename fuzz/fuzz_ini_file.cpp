// SPDX-License-Identifier: MIT
// Fuzz target: INI files. Arbitrary bytes are read as an INI file; every key a read finds is written into a
// fresh file, and that file must read back with the same sections, keys and values. The original is then
// rewritten in place by setting one key to the value it has, and must also read back unchanged.
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "ncappkit/foundation/KCIniFile.h"

namespace {

struct Entry {
  KCString section;
  KCString key;
  KCString value;
};

// Every (section, key, value) a read finds, in listing order.
std::vector<Entry> Snapshot(KCIniFile& ini) {
  std::vector<Entry> entries;
  for (const KCString& section : ini.GetSectionNames()) {
    for (const KCString& key : ini.GetKeyNames(section))
      entries.push_back({section, key, ini.ReadString(section, key, "", false)});
  }
  return entries;
}

std::string Folded(const KCString& name) {
  std::string text = name.str();
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

// The same entries, whatever their order: a rewrite may list the sections in another order (keys before the
// first header come first in a new file, wherever their "[]" header stood).
bool Same(std::vector<Entry> a, std::vector<Entry> b) {
  const auto byName = [](const Entry& x, const Entry& y) {
    return std::make_pair(Folded(x.section), Folded(x.key)) <
           std::make_pair(Folded(y.section), Folded(y.key));
  };
  std::sort(a.begin(), a.end(), byName);
  std::sort(b.begin(), b.end(), byName);
  if (a.size() != b.size())
    return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (!a[i].section.EqualsNoCase(b[i].section) || !a[i].key.EqualsNoCase(b[i].key) ||
        a[i].value != b[i].value)
      return false;
  }
  return true;
}

const std::filesystem::path& WorkDir() {
  static const std::filesystem::path dir = [] {
    std::filesystem::path d =
        std::filesystem::temp_directory_path() / ("ncappkit-fuzz-ini-" + std::to_string(getpid()));
    std::filesystem::create_directories(d);
    return d;
  }();
  return dir;
}

void WriteBytes(const std::string& path, const std::uint8_t* data, std::size_t size) {
  std::FILE* f = std::fopen(path.c_str(), "wb");
  if (f == nullptr)
    __builtin_trap();
  if (size > 0 && std::fwrite(data, 1, size, f) != size)
    __builtin_trap();
  std::fclose(f);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string original = (WorkDir() / "original.ini").string();
  const std::string copy = (WorkDir() / "copy.ini").string();
  WriteBytes(original, data, size);
  std::remove(copy.c_str());

  KCIniFile source(original);
  const std::vector<Entry> before = Snapshot(source);

  KCIniFile target(copy);
  for (const Entry& e : before) {
    if (!target.WriteString(e.section, e.key, e.value))
      __builtin_trap();  // whatever a read found can be written
  }
  if (!Same(Snapshot(target), before))
    __builtin_trap();

  if (!before.empty()) {
    if (!source.WriteString(before.front().section, before.front().key, before.front().value))
      __builtin_trap();
    if (!Same(Snapshot(source), before))
      __builtin_trap();
  }
  return 0;
}
