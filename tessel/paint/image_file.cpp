// The parts of image_file.h shared by both builds: skin paths and straight-colour images.
#include "base/wide_text.h"
#include "tessel/paint/image_file.h"

namespace tessel {

namespace {

#ifdef _WIN32
constexpr wchar_t kSeparator = L'\\';
#else
constexpr wchar_t kSeparator = L'/';
#endif

bool isSlash(wchar_t c) {
  return c == L'\\' || c == L'/';
}

bool isDriveLetter(wchar_t c) {
  return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z');
}

}  // namespace

std::wstring resolveSkinPath(const std::wstring& sourceDirectory, const std::wstring& text) {
  const std::wstring path = TrimWhiteSpace(text);
  if (path.empty()) return path;
  const bool rooted = isSlash(path[0]) || (path.size() >= 3 && isDriveLetter(path[0]) &&
                                           path[1] == L':' && isSlash(path[2]));
  if (rooted || sourceDirectory.empty()) return path;
  if (isSlash(sourceDirectory.back())) return sourceDirectory + path;
  return sourceDirectory + kSeparator + path;
}

Image imageFromStraightRgba(int32_t width, int32_t height, const std::vector<uint8_t>& rgba) {
  if (width < 1 || height < 1 || rgba.size() / 4 / size_t(width) < size_t(height)) return Image{};
  Image image = Image::blank(width, height);
  const size_t count = size_t(width) * height;
  for (size_t i = 0; i < count; ++i) {
    const uint8_t* s = rgba.data() + i * 4;
    uint8_t* d = image.pixels->data() + i * 4;
    const uint32_t a = s[3];
    d[0] = uint8_t((s[2] * a + 127) / 255);
    d[1] = uint8_t((s[1] * a + 127) / 255);
    d[2] = uint8_t((s[0] * a + 127) / 255);
    d[3] = uint8_t(a);
  }
  return image;
}

}  // namespace tessel
