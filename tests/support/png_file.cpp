#include "tests/support/png_file.h"

#include <zlib.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

constexpr char kSignature[] = "\x89PNG\r\n\x1A\n";

void PutBig32(std::vector<uint8_t>& out, uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8)
    out.push_back(static_cast<uint8_t>(value >> shift));
}

uint32_t Big32(const uint8_t* bytes) {
  return uint32_t(bytes[0]) << 24 | uint32_t(bytes[1]) << 16 | uint32_t(bytes[2]) << 8 | bytes[3];
}

void Chunk(std::vector<uint8_t>& file, const char* type, const std::vector<uint8_t>& data) {
  PutBig32(file, static_cast<uint32_t>(data.size()));
  const size_t typeStart = file.size();
  file.insert(file.end(), type, type + 4);
  file.insert(file.end(), data.begin(), data.end());
  PutBig32(file, static_cast<uint32_t>(crc32(0, file.data() + typeStart,
                                             static_cast<uInt>(file.size() - typeStart))));
}

// The neighbour nearest to left + up - upLeft, ties in that order.
int Paeth(int a, int b, int c) {
  const int pa = std::abs(b - c), pb = std::abs(a - c), pc = std::abs(a + b - 2 * c);
  return pa <= pb && pa <= pc ? a : pb <= pc ? b : c;
}

// Filter `type` of one row; `prior` is the row above (zeros for the first).
uint8_t Predict(int type, const uint8_t* row, const uint8_t* prior, size_t i, size_t step) {
  const int left = i >= step ? row[i - step] : 0;
  const int up = prior[i];
  const int predictions[] = {0, left, up, (left + up) / 2,
                             Paeth(left, up, i >= step ? prior[i - step] : 0)};
  return uint8_t(predictions[type]);
}

}  // namespace

bool WritePngImage(const std::filesystem::path& path, const tessel::Image& image) {
  if (image.empty()) return false;
  bool opaque = true;
  for (size_t i = 3; i < image.pixels->size() && opaque; i += 4)
    opaque = (*image.pixels)[i] == 255;
  const size_t step = opaque ? 3 : 4;
  const size_t stride = size_t(image.width) * step;

  std::vector<uint8_t> raw;
  std::vector<uint8_t> prior(stride, 0), row(stride);
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      const uint8_t* p = image.pixel(x, y);
      const int a = p[3];
      const auto straight = [a](int c) {
        return a == 0 ? uint8_t(0) : static_cast<uint8_t>(std::min(255, (c * 255 + a / 2) / a));
      };
      uint8_t* out = row.data() + size_t(x) * step;
      for (int c = 0; c < 3; ++c)
        out[c] = straight(p[2 - c]);
      if (!opaque) out[3] = uint8_t(a);
    }
    // Paeth on every row: on the golden images as small, within 2 %, as a choice per row.
    raw.push_back(4);
    for (size_t i = 0; i < stride; ++i)
      raw.push_back(uint8_t(row[i] - Predict(4, row.data(), prior.data(), i, step)));
    prior.swap(row);
  }

  uLongf packedSize = compressBound(static_cast<uLong>(raw.size()));
  std::vector<uint8_t> packed(packedSize);
  if (compress2(packed.data(), &packedSize, raw.data(), static_cast<uLong>(raw.size()), 9) != Z_OK)
    return false;
  packed.resize(packedSize);

  std::vector<uint8_t> file(kSignature, kSignature + 8), header;
  PutBig32(header, static_cast<uint32_t>(image.width));
  PutBig32(header, static_cast<uint32_t>(image.height));
  header.insert(header.end(), {8, uint8_t(opaque ? 2 : 6), 0, 0, 0});
  Chunk(file, "IHDR", header);
  Chunk(file, "IDAT", packed);
  Chunk(file, "IEND", {});
  std::error_code ignored;
  std::filesystem::create_directories(path.parent_path(), ignored);
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(file.data()), std::streamsize(file.size()));
  return static_cast<bool>(out);
}

bool ReadPngImage(const std::filesystem::path& path, tessel::Image& image) {
  std::ifstream in(path, std::ios::binary);
  const std::vector<uint8_t> file((std::istreambuf_iterator<char>(in)),
                                  std::istreambuf_iterator<char>());
  if (file.size() < 8 || std::memcmp(file.data(), kSignature, 8) != 0) return false;
  uint32_t width = 0, height = 0;
  size_t step = 0;
  std::vector<uint8_t> packed;
  for (size_t at = 8; at + 12 <= file.size();) {
    const uint32_t length = Big32(&file[at]);
    if (length > file.size() - at - 12) return false;
    const std::string type(reinterpret_cast<const char*>(&file[at + 4]), 4);
    const uint8_t* data = &file[at + 8];
    if (Big32(data + length) != crc32(0, &file[at + 4], length + 4)) return false;
    if (type == "IHDR") {
      if (length != 13 || data[8] != 8 || (data[9] != 2 && data[9] != 6) ||
          (data[10] | data[11] | data[12]) != 0)
        return false;
      width = Big32(data);
      height = Big32(data + 4);
      step = data[9] == 2 ? 3 : 4;
    } else if (type == "IDAT") {
      packed.insert(packed.end(), data, data + length);
    }
    at += 12 + size_t(length);
  }
  if (step == 0 || width < 1 || height < 1 || width > (1 << 14) || height > (1 << 14)) return false;
  const size_t stride = size_t(width) * step;
  std::vector<uint8_t> raw(size_t(height) * (stride + 1));
  uLongf rawSize = static_cast<uLongf>(raw.size());
  if (uncompress(raw.data(), &rawSize, packed.data(), static_cast<uLong>(packed.size())) != Z_OK ||
      rawSize != raw.size())
    return false;

  tessel::Image read = tessel::Image::blank(int32_t(width), int32_t(height));
  std::vector<uint8_t> prior(stride, 0), row(stride);
  for (uint32_t y = 0; y < height; ++y) {
    const uint8_t* line = &raw[size_t(y) * (stride + 1)];
    const int type = line[0];
    if (type > 4) return false;
    for (size_t i = 0; i < stride; ++i)
      row[i] = uint8_t(line[1 + i] + Predict(type, row.data(), prior.data(), i, step));
    for (uint32_t x = 0; x < width; ++x) {
      const uint8_t* in = row.data() + size_t(x) * step;
      const int a = step == 4 ? in[3] : 255;
      uint8_t* p = read.pixel(int32_t(x), int32_t(y));
      for (int c = 0; c < 3; ++c)
        p[c] = uint8_t((in[2 - c] * a + 127) / 255);
      p[3] = uint8_t(a);
    }
    prior.swap(row);
  }
  image = read;
  return true;
}
