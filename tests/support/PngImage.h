// SPDX-License-Identifier: MIT
// PngImage: a small PNG reader for tests that look at screenshots (8-bit RGB or RGBA, grey or grey with
// alpha, not interlaced), with its own inflate so that the tests need no image or compression library.
//
//   PngImage image;
//   std::string error;
//   if (!ReadPng(ReadFileBytes(path), image, error)) ADD_FAILURE() << error;
//   const PngImage::Pixel p = image.At(10, 20);             // p.r, p.g, p.b, p.a
//   int reds = image.CountInBox(0, 0, 50, 50, [](const PngImage::Pixel& q) { return q.r > 200; });
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

struct PngImage {
  /// One pixel, 0..255 per channel (alpha 255 for images without alpha).
  struct Pixel {
    int r = 0;
    int g = 0;
    int b = 0;
    int a = 255;
  };

  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> rgba;  // 4 bytes per pixel, rows top to bottom

  /// The pixel at (x, y); (0, 0) is the top-left corner. Outside the image: a transparent black pixel.
  Pixel At(int x, int y) const;
  /// The number of pixels with x0 <= x < x1 and y0 <= y < y1 (clipped to the image) for which `test` holds.
  int CountInBox(int x0, int y0, int x1, int y1, const std::function<bool(const Pixel&)>& test) const;
};

/// Decode the PNG file `bytes` into `image`. False with `error` (the reason) for a damaged file or one of a
/// kind this reader does not handle (16-bit channels, palettes, interlacing).
bool ReadPng(const std::string& bytes, PngImage& image, std::string& error);

/// The zlib stream `data` inflated into `out`. False with `error` for a damaged stream.
bool Inflate(const std::vector<std::uint8_t>& data, std::vector<std::uint8_t>& out, std::string& error);
