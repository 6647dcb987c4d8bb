// SPDX-License-Identifier: MIT
// example_config: how a client program reads and changes its settings with KCC_CfgApplication.
//
//   example_config [sample.ini [new-data-directory]]
//
// Copies the sample (millcam.ini beside this file by default) into the current directory, loads the "MillCam"
// section of the copy, prints the settings, then moves the data directory and shows that the file now holds
// the new value. The sample itself is never changed.
#include <filesystem>
#include <iostream>
#include <string>

#include "ncappkit/config/KCC_AppName.h"
#include "ncappkit/config/KCC_CfgApplication.h"
#include "ncappkit/config/KCC_CfgObject.h"
#include "ncappkit/units/KCC_MmInch.h"

#ifndef EXAMPLE_CONFIG_INI
#define EXAMPLE_CONFIG_INI "millcam.ini"
#endif

namespace {

const char* LanguageName(const KCC_CfgApplication& app) {
  if (app.IsNed())
    return "Dutch";
  if (app.IsFra())
    return "French";
  if (app.IsDts())
    return "German";
  if (app.IsIta())
    return "Italian";
  return "English";
}

void Print(const KCC_CfgApplication& app) {
  const KCC_MmInch units = app.GetMmInchMode();
  const KCC_MmInch_Format format(units);
  std::cout << "  language      " << LanguageName(app) << '\n'
            << "  units         " << (app.IsInchMode() ? "inch" : "mm") << " (25.4 mm shows as "
            << format.FormatAxisPos(units.Dim_MmInchConvert(25.4)) << ")\n"
            << "  config dir    " << app.GetApplicCfgDir() << '\n'
            << "  data dir      " << app.GetApplicDataDir() << '\n'
            << "  temp dir      " << app.GetApplicTmpDir() << '\n'
            << "  shared dir    " << app.GetApplicShareDir() << '\n';
  KCString editor;
  if (app.GetSystemTextEditor(editor))
    std::cout << "  text editor   " << editor << '\n';
  else
    std::cout << "  text editor   (none)\n";
  std::cout << "  writable      " << (app.IsConfigurationWriteEnable() ? "yes" : "no") << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  const std::string samplePath = argc > 1 ? argv[1] : EXAMPLE_CONFIG_INI;
  const std::string newDataDir = argc > 2 ? argv[2] : "/srv/nc/archive";
  const std::string iniPath = "millcam.ini";
  std::error_code error;
  std::filesystem::copy_file(samplePath, iniPath, std::filesystem::copy_options::overwrite_existing, error);
  if (error) {
    std::cerr << "cannot copy " << samplePath << ": " << error.message() << '\n';
    return 1;
  }

  KCString appName;
  if (KCC_AppName::PrepareAppName(appName))
    std::cout << appName << '\n';

  // The client chooses the file and the section; the library fixes the keys inside it.
  KCC_CfgObjectIniFile cfg(iniPath, "MillCam");
  KCC_CfgApplication app;
  app.Load(cfg, true, true, true, true);
  std::cout << "Settings in " << iniPath << ":\n";
  Print(app);

  if (!app.IsConfigurationWriteEnable()) {
    std::cout << "The configuration cannot be written; nothing changed.\n";
    return 1;
  }
  app.SetApplicDataDir(newDataDir, cfg, true);
  std::cout << "Data directory changed; the file now says: " << cfg.ReadCfgString("DataDir", "") << '\n';
  return 0;
}
