// SPDX-License-Identifier: MIT
#include "support/PngImage.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

// Reads the bits of a deflate stream, least significant bit first.
class BitReader {
 public:
  BitReader(const std::vector<std::uint8_t>& data, std::size_t start) : m_data(data), m_pos(start) {}

  // The next `count` bits as a number; false at the end of the data.
  bool Bits(int count, int& value) {
    value = 0;
    for (int k = 0; k < count; ++k) {
      if (m_bit == 8) {
        if (++m_pos >= m_data.size())
          return false;
        m_bit = 0;
      }
      if (m_pos >= m_data.size())
        return false;
      value |= ((m_data[m_pos] >> m_bit) & 1) << k;
      ++m_bit;
    }
    return true;
  }
  // Skip to the next byte boundary; the position of that byte.
  std::size_t AlignedPosition() {
    if (m_bit != 0) {
      m_bit = 0;
      ++m_pos;
    }
    return m_pos;
  }
  void SetPosition(std::size_t pos) {
    m_pos = pos;
    m_bit = 0;
  }

 private:
  const std::vector<std::uint8_t>& m_data;
  std::size_t m_pos;
  int m_bit = 0;
};

constexpr int kMaxBits = 15;

// A canonical Huffman code: the number of codes of each length and the symbols in code order.
struct Huffman {
  std::array<int, kMaxBits + 1> counts{};
  std::vector<int> symbols;
};

// Build the code for the code lengths `lengths`; false for an over-subscribed set of lengths.
bool Build(Huffman& h, const std::vector<int>& lengths) {
  h.counts.fill(0);
  for (const int length : lengths)
    ++h.counts[static_cast<std::size_t>(length)];
  int left = 1;
  for (int len = 1; len <= kMaxBits; ++len) {
    left = left * 2 - h.counts[static_cast<std::size_t>(len)];
    if (left < 0)
      return false;
  }
  std::array<int, kMaxBits + 2> offsets{};
  for (std::size_t len = 1; len <= kMaxBits; ++len)
    offsets[len + 1] = offsets[len] + h.counts[len];
  h.symbols.assign(lengths.size(), 0);
  for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol)
    if (lengths[symbol] != 0)
      h.symbols[static_cast<std::size_t>(offsets[static_cast<std::size_t>(lengths[symbol])]++)] =
          static_cast<int>(symbol);
  return true;
}

bool Decode(BitReader& in, const Huffman& h, int& symbol) {
  int code = 0;
  int first = 0;
  int index = 0;
  for (std::size_t len = 1; len <= kMaxBits; ++len) {
    int bit = 0;
    if (!in.Bits(1, bit))
      return false;
    code |= bit;
    const int count = h.counts[len];
    if (code - count < first) {
      symbol = h.symbols[static_cast<std::size_t>(index + (code - first))];
      return true;
    }
    index += count;
    first += count;
    first <<= 1;
    code <<= 1;
  }
  return false;
}

constexpr int kLengthBase[29] = {3,  4,  5,  6,  7,  8,  9,  10, 11,  13,  15,  17,  19,  23, 27,
                                 31, 35, 43, 51, 59, 67, 83, 99, 115, 131, 163, 195, 227, 258};
constexpr int kLengthExtra[29] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                  2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
constexpr int kDistBase[30] = {1,    2,    3,    4,    5,    7,    9,    13,    17,    25,
                               33,   49,   65,   97,   129,  193,  257,  385,   513,   769,
                               1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
constexpr int kDistExtra[30] = {0, 0, 0, 0, 1, 1, 2, 2,  3,  3,  4,  4,  5,  5,  6,
                                6, 7, 7, 8, 8, 9, 9, 10, 10, 11, 11, 12, 12, 13, 13};

bool InflateCodes(BitReader& in, const Huffman& lit, const Huffman& dist, std::vector<std::uint8_t>& out,
                  std::string& error) {
  for (;;) {
    int symbol = 0;
    if (!Decode(in, lit, symbol))
      return error = "bad literal/length code", false;
    if (symbol < 256) {
      out.push_back(static_cast<std::uint8_t>(symbol));
      continue;
    }
    if (symbol == 256)
      return true;
    symbol -= 257;
    int extra = 0;
    if (symbol >= 29 || !in.Bits(kLengthExtra[symbol], extra))
      return error = "bad length", false;
    const int length = kLengthBase[symbol] + extra;
    if (!Decode(in, dist, symbol) || symbol >= 30 || !in.Bits(kDistExtra[symbol], extra))
      return error = "bad distance", false;
    const std::size_t distance = static_cast<std::size_t>(kDistBase[symbol] + extra);
    if (distance > out.size())
      return error = "distance before the start", false;
    for (int k = 0; k < length; ++k)
      out.push_back(out[out.size() - distance]);
  }
}

bool InflateDynamic(BitReader& in, std::vector<std::uint8_t>& out, std::string& error) {
  static constexpr int kOrder[19] = {16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};
  int nlen = 0, ndist = 0, ncode = 0;
  if (!in.Bits(5, nlen) || !in.Bits(5, ndist) || !in.Bits(4, ncode))
    return error = "truncated block header", false;
  nlen += 257, ndist += 1, ncode += 4;
  std::vector<int> lengths(19, 0);
  for (int k = 0; k < ncode; ++k)
    if (!in.Bits(3, lengths[static_cast<std::size_t>(kOrder[k])]))
      return error = "truncated code lengths", false;
  Huffman codeLengths;
  if (!Build(codeLengths, lengths))
    return error = "bad code-length code", false;
  lengths.assign(static_cast<std::size_t>(nlen + ndist), 0);
  for (std::size_t k = 0; k < lengths.size();) {
    int symbol = 0;
    if (!Decode(in, codeLengths, symbol))
      return error = "bad code length", false;
    if (symbol < 16) {
      lengths[k++] = symbol;
      continue;
    }
    int repeat = 0, value = 0;
    if (symbol == 16) {
      if (k == 0 || !in.Bits(2, repeat))
        return error = "bad repeat", false;
      value = lengths[k - 1], repeat += 3;
    } else if (symbol == 17) {
      if (!in.Bits(3, repeat))
        return error = "bad repeat", false;
      repeat += 3;
    } else {
      if (!in.Bits(7, repeat))
        return error = "bad repeat", false;
      repeat += 11;
    }
    if (k + static_cast<std::size_t>(repeat) > lengths.size())
      return error = "too many code lengths", false;
    while (repeat-- > 0)
      lengths[k++] = value;
  }
  Huffman lit, dist;
  const auto split = lengths.begin() + nlen;
  if (!Build(lit, std::vector<int>(lengths.begin(), split)) ||
      !Build(dist, std::vector<int>(split, lengths.end())))
    return error = "bad literal or distance code", false;
  return InflateCodes(in, lit, dist, out, error);
}

bool InflateFixed(BitReader& in, std::vector<std::uint8_t>& out, std::string& error) {
  std::vector<int> lengths(288, 8);
  std::fill(lengths.begin() + 144, lengths.begin() + 256, 9);
  std::fill(lengths.begin() + 256, lengths.begin() + 280, 7);
  Huffman lit, dist;
  Build(lit, lengths);
  Build(dist, std::vector<int>(30, 5));
  return InflateCodes(in, lit, dist, out, error);
}

std::uint32_t BigEndian32(const std::string& bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t k = 0; k < 4; ++k)
    value = (value << 8) | static_cast<unsigned char>(bytes[at + k]);
  return value;
}

int Paeth(int a, int b, int c) {
  const int p = a + b - c;
  const int pa = std::abs(p - a), pb = std::abs(p - b), pc = std::abs(p - c);
  if (pa <= pb && pa <= pc)
    return a;
  return pb <= pc ? b : c;
}

}  // namespace

bool Inflate(const std::vector<std::uint8_t>& data, std::vector<std::uint8_t>& out, std::string& error) {
  if (data.size() < 2 || (data[0] & 0x0F) != 8 || ((data[0] << 8) | data[1]) % 31 != 0)
    return error = "not a zlib stream", false;
  BitReader in(data, 2);
  for (;;) {
    int last = 0, type = 0;
    if (!in.Bits(1, last) || !in.Bits(2, type))
      return error = "truncated stream", false;
    if (type == 0) {
      const std::size_t pos = in.AlignedPosition();
      if (pos + 4 > data.size())
        return error = "truncated stored block", false;
      const std::size_t length = data[pos] | (static_cast<std::size_t>(data[pos + 1]) << 8);
      if (pos + 4 + length > data.size())
        return error = "truncated stored block", false;
      out.insert(out.end(), data.begin() + static_cast<std::ptrdiff_t>(pos + 4),
                 data.begin() + static_cast<std::ptrdiff_t>(pos + 4 + length));
      in.SetPosition(pos + 4 + length);
    } else if (type == 1) {
      if (!InflateFixed(in, out, error))
        return false;
    } else if (type == 2) {
      if (!InflateDynamic(in, out, error))
        return false;
    } else {
      return error = "bad block type", false;
    }
    if (last)
      return true;
  }
}

bool ReadPng(const std::string& bytes, PngImage& image, std::string& error) {
  static const std::string kSignature = "\x89PNG\r\n\x1a\n";
  if (bytes.compare(0, kSignature.size(), kSignature) != 0)
    return error = "not a PNG file", false;
  std::size_t at = kSignature.size();
  std::vector<std::uint8_t> compressed;
  int width = 0, height = 0, depth = 0, colorType = 0, interlace = 0;
  bool ended = false;
  while (!ended) {
    if (at + 12 > bytes.size())
      return error = "truncated chunk", false;
    const std::size_t length = BigEndian32(bytes, at);
    const std::string type = bytes.substr(at + 4, 4);
    if (at + 12 + length > bytes.size())
      return error = "truncated chunk " + type, false;
    const std::size_t body = at + 8;
    if (type == "IHDR") {
      if (length < 13)
        return error = "short IHDR", false;
      width = static_cast<int>(BigEndian32(bytes, body));
      height = static_cast<int>(BigEndian32(bytes, body + 4));
      depth = static_cast<unsigned char>(bytes[body + 8]);
      colorType = static_cast<unsigned char>(bytes[body + 9]);
      interlace = static_cast<unsigned char>(bytes[body + 12]);
    } else if (type == "IDAT") {
      compressed.insert(compressed.end(), bytes.begin() + static_cast<std::ptrdiff_t>(body),
                        bytes.begin() + static_cast<std::ptrdiff_t>(body + length));
    } else if (type == "IEND") {
      ended = true;
    }
    at += 12 + length;
  }
  int channels = 0;
  switch (colorType) {
    case 0:
      channels = 1;
      break;
    case 2:
      channels = 3;
      break;
    case 4:
      channels = 2;
      break;
    case 6:
      channels = 4;
      break;
    default:
      return error = "colour type " + std::to_string(colorType) + " is not handled", false;
  }
  if (depth != 8 || interlace != 0 || width <= 0 || height <= 0)
    return error = "only 8-bit, non-interlaced images are handled", false;
  std::vector<std::uint8_t> raw;
  if (!Inflate(compressed, raw, error))
    return error = "image data: " + error, false;
  const std::size_t stride = static_cast<std::size_t>(width) * static_cast<std::size_t>(channels);
  const std::size_t rows = static_cast<std::size_t>(height);
  if (raw.size() < rows * (stride + 1))
    return error = "image data too short", false;
  std::vector<std::uint8_t> pixels(rows * stride);
  const std::size_t bpp = static_cast<std::size_t>(channels);
  for (std::size_t y = 0; y < rows; ++y) {
    const int filter = raw[y * (stride + 1)];
    const std::uint8_t* src = &raw[y * (stride + 1) + 1];
    std::uint8_t* row = &pixels[y * stride];
    const std::uint8_t* up = y > 0 ? &pixels[(y - 1) * stride] : nullptr;
    for (std::size_t x = 0; x < stride; ++x) {
      const int a = x >= bpp ? row[x - bpp] : 0;
      const int b = up ? up[x] : 0;
      const int c = (up && x >= bpp) ? up[x - bpp] : 0;
      int predicted = 0;
      switch (filter) {
        case 0:
          break;
        case 1:
          predicted = a;
          break;
        case 2:
          predicted = b;
          break;
        case 3:
          predicted = (a + b) / 2;
          break;
        case 4:
          predicted = Paeth(a, b, c);
          break;
        default:
          return error = "bad filter " + std::to_string(filter), false;
      }
      row[x] = static_cast<std::uint8_t>((src[x] + predicted) & 0xFF);
    }
  }
  image.width = width;
  image.height = height;
  image.rgba.assign(rows * static_cast<std::size_t>(width) * 4, 255);
  for (std::size_t i = 0; i < rows * static_cast<std::size_t>(width); ++i) {
    const std::uint8_t* p = &pixels[i * bpp];
    std::uint8_t* q = &image.rgba[i * 4];
    if (channels <= 2) {
      q[0] = q[1] = q[2] = p[0];
      if (channels == 2)
        q[3] = p[1];
    } else {
      q[0] = p[0], q[1] = p[1], q[2] = p[2];
      if (channels == 4)
        q[3] = p[3];
    }
  }
  return true;
}

PngImage::Pixel PngImage::At(int x, int y) const {
  if (x < 0 || y < 0 || x >= width || y >= height)
    return Pixel{0, 0, 0, 0};
  const std::uint8_t* p =
      &rgba[(static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)) *
            4];
  return Pixel{p[0], p[1], p[2], p[3]};
}

int PngImage::CountInBox(int x0, int y0, int x1, int y1,
                         const std::function<bool(const Pixel&)>& test) const {
  int count = 0;
  for (int y = std::max(y0, 0); y < std::min(y1, height); ++y)
    for (int x = std::max(x0, 0); x < std::min(x1, width); ++x)
      if (test(At(x, y)))
        ++count;
  return count;
}
