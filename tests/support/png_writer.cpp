#include "tests/support/png_writer.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace {

uint32_t Crc32(const uint8_t* data, size_t size, uint32_t crc = 0) {
  static const std::array<uint32_t, 256> table = [] {
    std::array<uint32_t, 256> t{};
    for (uint32_t n = 0; n < 256; ++n) {
      uint32_t c = n;
      for (int k = 0; k < 8; ++k)
        c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
      t[n] = c;
    }
    return t;
  }();
  crc = ~crc;
  for (size_t i = 0; i < size; ++i)
    crc = table[(crc ^ data[i]) & 0xFF] ^ (crc >> 8);
  return ~crc;
}

void PutBig32(std::vector<uint8_t>& out, uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8)
    out.push_back(static_cast<uint8_t>(value >> shift));
}

void Chunk(std::ofstream& file, const char* type, const std::vector<uint8_t>& data) {
  std::vector<uint8_t> bytes;
  bytes.reserve(12 + data.size());
  PutBig32(bytes, static_cast<uint32_t>(data.size()));
  const size_t typeStart = bytes.size();
  for (int i = 0; i < 4; ++i)
    bytes.push_back(static_cast<uint8_t>(type[i]));
  for (const uint8_t byte : data)
    bytes.push_back(byte);
  PutBig32(bytes, Crc32(bytes.data() + typeStart, bytes.size() - typeStart));
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
}

}  // namespace

bool WritePngImage(const std::filesystem::path& path, const tessel::Image& image) {
  if (image.empty()) return false;
  std::vector<uint8_t> raw;
  raw.reserve(size_t(image.height) * (image.width * 4 + 1));
  for (int y = 0; y < image.height; ++y) {
    raw.push_back(0);  // filter: none
    for (int x = 0; x < image.width; ++x) {
      const uint8_t* p = image.pixel(x, y);
      const uint8_t a = p[3];
      const auto straight = [a](uint8_t c) {
        return a == 0 ? uint8_t(0) : static_cast<uint8_t>(std::min(255, (c * 255 + a / 2) / a));
      };
      raw.push_back(straight(p[2]));
      raw.push_back(straight(p[1]));
      raw.push_back(straight(p[0]));
      raw.push_back(a);
    }
  }
  // A zlib stream of stored blocks.
  std::vector<uint8_t> zlib = {0x78, 0x01};
  for (size_t offset = 0; offset < raw.size() || offset == 0;) {
    const size_t length = std::min<size_t>(65535, raw.size() - offset);
    const bool last = offset + length >= raw.size();
    zlib.push_back(last ? 1 : 0);
    zlib.push_back(static_cast<uint8_t>(length & 0xFF));
    zlib.push_back(static_cast<uint8_t>(length >> 8));
    zlib.push_back(static_cast<uint8_t>(~length & 0xFF));
    zlib.push_back(static_cast<uint8_t>((~length >> 8) & 0xFF));
    zlib.insert(zlib.end(), raw.begin() + offset, raw.begin() + offset + length);
    offset += length;
    if (last) break;
  }
  uint32_t a = 1, b = 0;
  for (uint8_t byte : raw) {
    a = (a + byte) % 65521;
    b = (b + a) % 65521;
  }
  PutBig32(zlib, (b << 16) | a);

  std::ofstream file(path, std::ios::binary);
  if (!file) return false;
  file.write("\x89PNG\r\n\x1A\n", 8);
  std::vector<uint8_t> header;
  PutBig32(header, static_cast<uint32_t>(image.width));
  PutBig32(header, static_cast<uint32_t>(image.height));
  header.insert(header.end(), {8, 6, 0, 0, 0});
  Chunk(file, "IHDR", header);
  Chunk(file, "IDAT", zlib);
  Chunk(file, "IEND", {});
  return static_cast<bool>(file);
}
