// SPDX-License-Identifier: MIT
// ChromiumRender: a picture rendered by headless Chromium, for the tests that check where an SVG's strokes
// and fills land on screen.
//
//   const std::string chromium = FindChromium();
//   if (chromium.empty()) GTEST_SKIP() << "no chromium";
//   PngImage image;
//   std::string error;
//   ASSERT_TRUE(RenderWithChromium(chromium, svgPath, 1000, 700, dir.Path("render"), image, error)) << error;
#pragma once

#include <string>

#include "support/PngImage.h"

/// The full path of "chromium" or "chromium-browser" on PATH, or "" when neither is installed.
std::string FindChromium();

/// Render the file `path` (an SVG picture) with `chromium` in a window of `width` x `height` pixels at
/// scale 1, using `workFolder` (created when missing) for its profile and the screenshot, and decode the
/// screenshot into `image`. False with `error` (Chromium's exit and output, or the PNG reader's reason)
/// when no screenshot was written or it cannot be read. Waits at most two minutes.
bool RenderWithChromium(const std::string& chromium, const std::string& path, int width, int height,
                        const std::string& workFolder, PngImage& image, std::string& error);
