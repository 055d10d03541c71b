// Draws one row per skin, for people to look at: its id, surface mode and palette as swatches,
// then its gallery as the gallery goldens show it (tests/skins/gallery).
// Usage: skin_contact_sheet OUTPUT.png [SKINS_FOLDER [FIRST COUNT]]
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "base/wide_text.h"
#include "tessel/paint/shape_fill.h"
#include "tessel/paint/stand_in_font.h"
#include "tessel/skin/skin_catalogue.h"
#include "tests/skins/skin_gallery.h"
#include "tests/support/png_file.h"
#include "tests/support/source_files.h"

using namespace tessel;

int main(int argc, char** argv) {
  if (argc < 2 || std::string(argv[1]) == "--help") {
    std::printf("usage: skin_contact_sheet OUTPUT.png [SKINS_FOLDER [FIRST COUNT]]\n");
    return argc < 2 ? 2 : 0;
  }
  const std::filesystem::path folder = argc > 2 ? argv[2] : SourceFile("skins");
  std::vector<SkinDefinition> skins = loadSkinFolder(folder.wstring());
  if (argc > 4) {
    const size_t first = std::min(skins.size(), size_t(std::atoi(argv[3])));
    const size_t count = std::min(skins.size() - first, size_t(std::atoi(argv[4])));
    skins = std::vector<SkinDefinition>(skins.begin() + first, skins.begin() + first + count);
  }
  if (skins.empty()) return std::fprintf(stderr, "no skins in %s\n", folder.string().c_str()), 1;
  // A 180 pixel label, then the 320x200 gallery; rows 204 pixels apart.
  Image sheet = Image::blank(180 + 320, int(skins.size()) * 204);
  const char* modes[] = {"FLAT", "SCULPTED", "TEXTURED", "PLATES", "CLEAN"};
  for (size_t i = 0; i < skins.size(); ++i) {
    const Theme& t = skins[i].theme;
    const int top = int(i) * 204;
    fillShape(sheet, Rect{0, top, 180, 200}, ShapeKind::Rectangle, t.shell);
    DrawBitmapText(sheet, 8, top + 8, Utf8FromWide(skins[i].id), t.textHot, 1);
    DrawBitmapText(sheet, 8, top + 20, modes[int(skins[i].surfaceMode)], t.mutedText, 1);
    if (skins[i].materials.enabled) DrawBitmapText(sheet, 70, top + 20, "MATERIAL", t.mutedText, 1);
    const Color roles[] = {t.frame,     t.shell,        t.panel,          t.header,
                           t.control,   t.controlHot,   t.controlPressed, t.border,
                           t.accent,    t.accentHot,    t.text,           t.textHot,
                           t.mutedText, t.disabledText, t.disabledFill};
    for (int r = 0; r < 15; ++r) {
      const Rect swatch{8 + (r % 8) * 20, top + 34 + (r / 8) * 18, 18, 16};
      fillShape(sheet, swatch, ShapeKind::Rectangle, roles[r]);
      strokeShape(sheet, swatch, ShapeKind::Rectangle, rgbColor(128, 128, 128), 1);
    }
    const Image gallery = DrawSkinGallery(skins[i]);
    for (int y = 0; y < gallery.height; ++y)
      std::memcpy(sheet.pixel(180, top + y), gallery.pixel(0, y), size_t(gallery.width) * 4);
  }
  if (!WritePngImage(argv[1], sheet)) return std::fprintf(stderr, "cannot write %s\n", argv[1]), 1;
  std::printf("%zu skins drawn into %s\n", skins.size(), argv[1]);
  return 0;
}
