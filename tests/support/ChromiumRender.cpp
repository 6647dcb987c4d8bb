// SPDX-License-Identifier: MIT
#include "support/ChromiumRender.h"

#include <filesystem>
#include <system_error>

#include "support/ChildProcess.h"
#include "support/TestData.h"

namespace {

// A cold start of Chromium under a sanitizer build on a busy machine takes tens of seconds.
constexpr double kRenderTimeoutSeconds = 120.0;

}  // namespace

std::string FindChromium() {
  for (const char* name : {"chromium", "chromium-browser"}) {
    const std::string path = FindProgramOnPath(name);
    if (!path.empty())
      return path;
  }
  return std::string();
}

bool RenderWithChromium(const std::string& chromium, const std::string& path, int width, int height,
                        const std::string& workFolder, PngImage& image, std::string& error) {
  std::error_code ec;
  std::filesystem::create_directories(workFolder, ec);
  const std::string png = workFolder + "/screenshot.png";
  const ChildResult result =
      RunChild({chromium, "--headless", "--no-sandbox", "--disable-gpu", "--no-first-run",
                "--disable-background-networking", "--hide-scrollbars", "--force-device-scale-factor=1",
                "--user-data-dir=" + workFolder + "/profile", "--screenshot=" + png,
                "--window-size=" + std::to_string(width) + "," + std::to_string(height), "file://" + path},
               kRenderTimeoutSeconds);
  std::string bytes;
  if (!ReadFileBytes(png, bytes)) {
    error = "chromium wrote no screenshot (exit code " + std::to_string(result.exitCode) +
            (result.timedOut ? ", timed out" : "") + "): " + result.err;
    return false;
  }
  return ReadPng(bytes, image, error);
}
