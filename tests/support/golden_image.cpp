#include "tests/support/golden_image.h"

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

#include "tests/support/source_files.h"
#ifndef _WIN32
#include "tests/support/png_file.h"
#endif

namespace {

// Red and blue trade places; the same swap maps either way.
void swapRedBlue(std::vector<uint8_t>& bytes) {
  for (size_t i = 0; i + 3 < bytes.size(); i += 4)
    std::swap(bytes[i], bytes[i + 2]);
}

std::string describePixel(const uint8_t* bgra) {
  std::ostringstream text;
  text << "rgba(" << int(bgra[2]) << "," << int(bgra[1]) << "," << int(bgra[0]) << ","
       << int(bgra[3]) << ")";
  return text.str();
}

::testing::AssertionResult MatchesGoldenFile(
    const tessel::Image& image, const std::string& relative, int tolerance,
    bool (*write)(const std::filesystem::path&, const tessel::Image&),
    bool (*read)(const std::filesystem::path&, tessel::Image&)) {
  const std::filesystem::path path = SourceFile(relative);
  if (RegeneratingGoldenImages()) {
    if (write(path, image)) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "cannot write " << path.string();
  }
  tessel::Image expected;
  if (!read(path, expected))
    return ::testing::AssertionFailure()
           << "cannot read " << path.string() << " (regenerate with STAYHOLD_REGENERATE_GOLDEN=1)";
  return CompareImages(image, expected, relative, tolerance);
}

}  // namespace

bool WritePamImage(const std::filesystem::path& path, const tessel::Image& image) {
  if (image.empty()) return false;
  std::error_code ignored;
  std::filesystem::create_directories(path.parent_path(), ignored);
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << "P7\nWIDTH " << image.width << "\nHEIGHT " << image.height
       << "\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n";
  std::vector<uint8_t> bytes = *image.pixels;
  swapRedBlue(bytes);
  file.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
  return bool(file);
}

bool ReadPamImage(const std::filesystem::path& path, tessel::Image& image) {
  std::ifstream file(path, std::ios::binary);
  std::string line;
  if (!std::getline(file, line) || line != "P7") return false;
  std::map<std::string, long> header;  // the numeric fields
  while (std::getline(file, line) && line != "ENDHDR") {
    std::istringstream fields(line);
    std::string key;
    long value = 0;
    if (fields >> key >> value) header[key] = value;
  }
  const long width = header["WIDTH"], height = header["HEIGHT"];
  if (line != "ENDHDR" || header["DEPTH"] != 4 || header["MAXVAL"] != 255 || width < 1 ||
      height < 1 || width > 1 << 14 || height > 1 << 14)
    return false;
  tessel::Image read = tessel::Image::blank(int32_t(width), int32_t(height));
  std::vector<uint8_t>& bytes = *read.pixels;
  file.read(reinterpret_cast<char*>(bytes.data()), std::streamsize(bytes.size()));
  swapRedBlue(bytes);
  if (file) image = read;
  return bool(file);
}

::testing::AssertionResult MatchesGoldenImage(const tessel::Image& image,
                                              const std::string& relative, int tolerance) {
  return MatchesGoldenFile(image, relative, tolerance, WritePamImage, ReadPamImage);
}

#ifndef _WIN32
::testing::AssertionResult MatchesGoldenPng(const tessel::Image& image, const std::string& relative,
                                            int tolerance) {
  return MatchesGoldenFile(image, relative, tolerance, WritePngImage, ReadPngImage);
}
#endif

::testing::AssertionResult CompareImages(const tessel::Image& image, const tessel::Image& expected,
                                         const std::string& label, int tolerance) {
  if (image.empty() || expected.width != image.width || expected.height != image.height)
    return ::testing::AssertionFailure()
           << label << ": size " << image.width << "x" << image.height << ", expected "
           << expected.width << "x" << expected.height;
  int64_t differing = 0;
  std::ostringstream first;
  for (int32_t y = 0; y < image.height; ++y) {
    for (int32_t x = 0; x < image.width; ++x) {
      const uint8_t *got = image.pixel(x, y), *want = expected.pixel(x, y);
      bool same = true;
      for (int channel = 0; channel < 4; ++channel)
        same = same && std::abs(got[channel] - want[channel]) <= tolerance;
      if (same || differing++ > 0) continue;
      first << "(" << x << ", " << y << ") is " << describePixel(got) << ", expected "
            << describePixel(want);
    }
  }
  if (differing == 0) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << label << ": " << differing << " pixel(s) differ beyond "
                                       << tolerance << "; first " << first.str();
}
