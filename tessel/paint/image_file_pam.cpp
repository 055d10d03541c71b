// The native build's image loader: binary PAM files, so that tests can load skin images
// without a PNG decoder. Windows uses image_file_win32.cpp instead.
#include "tessel/paint/image_file.h"

#include <cstdio>
#include <sstream>

#include "base/wide_text.h"

namespace tessel {

namespace {

constexpr long kMaxSide = 1 << 14;

// The header's fields up to ENDHDR; `offset` ends after its line.
bool readPamHeader(const std::string& bytes, size_t& offset, long& width, long& height, long& depth,
                   long& maxval, std::string& tupleType) {
  for (size_t lineNumber = 0; offset < bytes.size(); ++lineNumber) {
    const size_t end = bytes.find('\n', offset);
    if (end == std::string::npos) return false;
    const std::string text = bytes.substr(offset, end - offset);
    offset = end + 1;
    if (lineNumber == 0) {
      if (text != "P7") return false;
      continue;
    }
    if (text.empty() || text[0] == '#') continue;
    std::istringstream fields(text);
    std::string key;
    fields >> key;
    if (key == "ENDHDR") return true;
    if (key == "WIDTH") {
      fields >> width;
    } else if (key == "HEIGHT") {
      fields >> height;
    } else if (key == "DEPTH") {
      fields >> depth;
    } else if (key == "MAXVAL") {
      fields >> maxval;
    } else if (key == "TUPLTYPE") {
      fields >> tupleType;
    }
    if (fields.fail()) return false;
  }
  return false;
}

// The C library's reads, because a stream's read of a directory throws instead of failing.
bool readWholeFile(const std::string& path, std::string& bytes) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) return false;
  char buffer[1 << 16];
  size_t count = 0;
  while ((count = std::fread(buffer, 1, sizeof buffer, file)) > 0)
    bytes.append(buffer, count);
  const bool failed = std::ferror(file) != 0;
  std::fclose(file);
  return !failed;
}

}  // namespace

bool loadImageFile(const std::wstring& path, Image& image) {
  image = Image{};
  std::string bytes;
  if (!readWholeFile(Utf8FromWide(path), bytes)) return false;
  size_t offset = 0;
  long width = 0, height = 0, depth = 0, maxval = 0;
  std::string tupleType;
  if (!readPamHeader(bytes, offset, width, height, depth, maxval, tupleType)) return false;
  const bool rgba = depth == 4 && (tupleType.empty() || tupleType == "RGB_ALPHA");
  const bool rgb = depth == 3 && (tupleType.empty() || tupleType == "RGB");
  if (!(rgba || rgb) || maxval != 255 || width < 1 || height < 1 || width > kMaxSide ||
      height > kMaxSide) {
    return false;
  }
  const size_t count = size_t(width) * size_t(height);
  if (bytes.size() - offset < count * size_t(depth)) return false;
  std::vector<uint8_t> straight(count * 4, 255);
  for (size_t i = 0; i < count; ++i)
    for (long c = 0; c < depth; ++c)
      straight[i * 4 + c] = uint8_t(bytes[offset + i * depth + c]);
  image = imageFromStraightRgba(int32_t(width), int32_t(height), straight);
  return !image.empty();
}

}  // namespace tessel
