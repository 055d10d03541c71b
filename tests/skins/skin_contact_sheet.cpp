// Draws one row per skin: its palette as swatches, then its main surfaces with text samples in
// their own colours (window, panel, card, buttons in four states, primary button, status chip,
// input). Surfaces are painted flat with their gradient and border only; the full painter with
// materials draws the skin galleries.
// Usage: skin_contact_sheet OUTPUT.png [SKINS_FOLDER [FIRST COUNT]]
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "base/wide_text.h"
#include "tessel/paint/shape_fill.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/stand_in_font.h"
#include "tessel/skin/skin_catalogue.h"
#include "tessel/skin/style_sheet.h"
#include "tests/support/png_file.h"
#include "tests/support/source_files.h"

using namespace tessel;

namespace {

constexpr int kRowHeight = 74;
constexpr int kWidth = 1240;

void Paint(Image& image, const Rect& rect, const SurfaceStyle& style) {
  if (style.drawFill) {
    for (int y = 0; y < rect.height; ++y) {
      const double t = rect.height > 1 ? double(y) / (rect.height - 1) : 0.0;
      Color color = style.fill;
      if (style.useGradient) {
        color = style.useGradientMid
                    ? (t <= 0.5 ? mixColor(style.gradientStart, style.gradientMid, 2 * t)
                                : mixColor(style.gradientMid, style.gradientEnd, 2 * (t - 0.5)))
                    : mixColor(style.gradientStart, style.gradientEnd, t);
      }
      for (int x = 0; x < rect.width; ++x) {
        if (!isInsideShape(style.shape, rect.width, rect.height, x, y)) continue;
        const int px = rect.x + x, py = rect.y + y;
        if (px < 0 || py < 0 || px >= image.width || py >= image.height) continue;
        uint8_t* p = image.pixel(px, py);
        p[0] = uint8_t(blueOf(color));
        p[1] = uint8_t(greenOf(color));
        p[2] = uint8_t(redOf(color));
        p[3] = 255;
      }
    }
  }
  if (style.drawBorder) strokeShape(image, rect, style.shape, style.border, 1);
}

void Label(Image& image, const Rect& rect, const std::string& text, Color color) {
  const int x = rect.x + (rect.width - BitmapTextWidth(text, 1)) / 2;
  const int y = rect.y + (rect.height - BitmapTextHeight(1)) / 2;
  DrawBitmapText(image, x, y, text, color, 1);
}

void DrawSkin(Image& image, int top, const SkinDefinition& skin) {
  const StyleSheet sheet(skin);
  const Theme& t = skin.theme;
  const WindowStyle& window = sheet.window();
  // The row's window backdrop.
  Paint(image, Rect{0, top, kWidth, kRowHeight - 2}, window.surface);
  DrawBitmapText(image, 8, top + 8, Utf8FromWide(skin.id), t.textHot, 1);
  const char* modes[] = {"FLAT", "SCULPTED", "TEXTURED", "PLATES", "CLEAN"};
  DrawBitmapText(image, 8, top + 20, modes[static_cast<int>(skin.surfaceMode)], t.mutedText, 1);
  if (skin.materials.enabled) DrawBitmapText(image, 70, top + 20, "MATERIAL", t.mutedText, 1);
  const Color roles[] = {t.frame,     t.shell,        t.panel,          t.header,
                         t.control,   t.controlHot,   t.controlPressed, t.border,
                         t.accent,    t.accentHot,    t.text,           t.textHot,
                         t.mutedText, t.disabledText, t.disabledFill};
  for (int i = 0; i < 15; ++i) {
    const Rect swatch{8 + (i % 8) * 20, top + 34 + (i / 8) * 18, 18, 16};
    fillShape(image, swatch, ShapeKind::Rectangle, roles[i]);
    strokeShape(image, swatch, ShapeKind::Rectangle, rgbColor(128, 128, 128), 1);
  }
  int x = 180;
  const PanelStyle& panel = sheet.panels.get(L"default");
  const Rect panelRect{x, top + 6, 130, 60};
  Paint(image, panelRect, panel.surface);
  DrawBitmapText(image, x + 8, top + 16, "BODY TEXT", sheet.text.get(L"default").color, 1);
  DrawBitmapText(image, x + 8, top + 30, "MUTED TEXT", sheet.text.get(L"muted").color, 1);
  DrawBitmapText(image, x + 8, top + 44, "TITLE", sheet.text.get(L"title").color, 1);
  x += 140;
  const CardStyle& card = sheet.cards.get(L"stayhold-card");
  Paint(image, Rect{x, top + 6, 150, 60}, card.surface);
  Paint(image, Rect{x, top + 6, 150, 22}, card.header);
  DrawBitmapText(image, x + 8, top + 14, "CARD TITLE", card.titleText.color, 1);
  DrawBitmapText(image, x + 8, top + 40, "SUBTITLE", card.subtitleText.color, 1);
  x += 160;
  const ButtonStyle& button = sheet.buttons.get(L"stayhold-secondary");
  const SurfaceStyle* states[] = {&button.surface.normal, &button.surface.hot,
                                  &button.surface.pressed, &button.surface.disabled};
  const char* names[] = {"NORMAL", "HOT", "PRESSED", "OFF"};
  for (int i = 0; i < 4; ++i) {
    const Rect r{x + i * 78, top + 8, 72, 26};
    Paint(image, r, *states[i]);
    Label(image, r, names[i], i == 3 ? button.text.disabledColor : button.text.color);
  }
  const ButtonStyle& primary = sheet.buttons.get(L"stayhold-primary");
  const SurfaceStyle* primaryStates[] = {&primary.surface.normal, &primary.surface.hot,
                                         &primary.surface.pressed, &primary.surface.disabled};
  for (int i = 0; i < 4; ++i) {
    const Rect r{x + i * 78, top + 40, 72, 26};
    Paint(image, r, *primaryStates[i]);
    Label(image, r, i == 3 ? "OFF" : "SAVE",
          i == 3 ? primary.text.disabledColor : primary.text.color);
  }
  x += 320;
  for (int i = 0; i < 2; ++i) {
    const StatusChipStyle& chip =
        sheet.statusChips.get(i == 0 ? L"stayhold-active" : L"stayhold-idle");
    const Rect r{x, top + 8 + i * 32, 120, 26};
    Paint(image, r, chip.surface);
    Paint(image, Rect{r.x + 8, r.y + 8, 10, 10}, chip.badge);
    DrawBitmapText(image, r.x + 26, r.y + 10, i == 0 ? "ACTIVE" : "IDLE", chip.text.color, 1);
  }
  x += 130;
  const TextInputStyle& input = sheet.textInputs.get(L"stayhold-input");
  const Rect inputRect{x, top + 8, 140, 26};
  Paint(image, inputRect, input.surface.normal);
  DrawBitmapText(image, x + 8, top + 18, "WORK WEEK", input.text.color, 1);
  const Rect placeholderRect{x, top + 40, 140, 26};
  Paint(image, placeholderRect, input.surface.active);
  DrawBitmapText(image, x + 8, top + 50, "PLACEHOLDER", input.placeholderText.color, 1);
  x += 150;
  const CheckBoxStyle& check = sheet.checkBoxes.get(L"stayhold-option");
  Paint(image, Rect{x, top + 10, 16, 16}, check.checked.normal);
  Paint(image, Rect{x, top + 42, 16, 16}, check.unchecked.normal);
  DrawBitmapText(image, x + 22, top + 15, "ON", check.text.color, 1);
  DrawBitmapText(image, x + 22, top + 47, "OFF", check.text.color, 1);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || std::string(argv[1]) == "--help") {
    std::printf("usage: skin_contact_sheet OUTPUT.png [SKINS_FOLDER [FIRST COUNT]]\n");
    return argc < 2 ? 2 : 0;
  }
  const std::filesystem::path folder =
      argc > 2 ? std::filesystem::path(argv[2]) : SourceFile("skins");
  std::vector<SkinDefinition> skins = loadSkinFolder(folder.wstring());
  if (argc > 4) {
    const size_t first = std::min(skins.size(), static_cast<size_t>(std::atoi(argv[3])));
    const size_t count = std::min(skins.size() - first, static_cast<size_t>(std::atoi(argv[4])));
    skins = std::vector<SkinDefinition>(skins.begin() + first, skins.begin() + first + count);
  }
  if (skins.empty()) {
    std::fprintf(stderr, "no skins in %s\n", folder.string().c_str());
    return 1;
  }
  Image image = Image::blank(kWidth, int(skins.size()) * kRowHeight);
  for (size_t i = 0; i < skins.size(); ++i)
    DrawSkin(image, int(i) * kRowHeight, skins[i]);
  if (!WritePngImage(argv[1], image)) {
    std::fprintf(stderr, "cannot write %s\n", argv[1]);
    return 1;
  }
  std::printf("%zu skins drawn into %s\n", skins.size(), argv[1]);
  return 0;
}
