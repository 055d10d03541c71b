#include "tests/skins/skin_gallery.h"

#include <algorithm>

#include "tessel/paint/image_canvas.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"

using namespace tessel;

Image DrawSkinGallery(const SkinDefinition& skin) {
  const StyleSheet sheet(skin);
  Image image = Image::blank(320, 200);
  ImageCanvas canvas(image);
  const auto surface = [&](const Rect& rect, const SurfaceStyle& style) {
    drawSurface(canvas, rect, style, UiPerformanceProfile::BestGraphics);
  };
  // Text in the style's own colour unless another is given.
  const auto text = [&](const char* words, const Rect& rect, const TextStyle& style,
                        uint32_t flags = kTextLeft | kTextMiddle, const Color* color = nullptr) {
    canvas.drawText(std::wstring(words, words + std::char_traits<char>::length(words)), rect, style,
                    color ? *color : style.color, flags);
  };
  // An opaque ground first, so that a translucent window surface still gives whole pixels.
  canvas.fillRect(Rect{0, 0, 320, 200}, skin.theme.frame);
  surface(Rect{0, 0, 320, 200}, sheet.window().surface);

  surface(Rect{8, 8, 148, 76}, sheet.panels.get(L"default").surface);
  text("BODY TEXT", Rect{18, 14, 130, 20}, sheet.text.get(L"default"));
  text("MUTED TEXT", Rect{18, 36, 130, 20}, sheet.text.get(L"muted"));
  text("TITLE", Rect{18, 58, 130, 20}, sheet.text.get(L"title"));

  const CardStyle& card = sheet.cards.get(L"stayhold-card");
  const int header = std::clamp(card.headerHeight, 16, 28);
  surface(Rect{164, 8, 148, 76}, card.surface);
  surface(Rect{164, 8, 148, header}, card.header);
  text("CARD TITLE", Rect{174, 8, 130, header}, card.titleText);
  text("SUBTITLE", Rect{174, 16 + header, 130, 20}, card.subtitleText);

  const ButtonStyle& button = sheet.buttons.get(L"stayhold-secondary");
  const SurfaceStyle* states[] = {&button.surface.normal, &button.surface.hot,
                                  &button.surface.pressed, &button.surface.disabled};
  const char* names[] = {"NORMAL", "HOT", "PRESSED", "OFF"};
  for (int i = 0; i < 4; ++i) {
    surface(Rect{8 + i * 77, 92, 72, 24}, *states[i]);
    text(names[i], Rect{8 + i * 77, 92, 72, 24}, button.text, kTextCenter | kTextMiddle,
         i == 3 ? &button.text.disabledColor : nullptr);
  }

  const CheckBoxStyle& check = sheet.checkBoxes.get(L"stayhold-option");
  const int box = std::clamp(check.boxSize, 12, 18);
  surface(Rect{8, 125, box, box}, check.checked.normal);
  text("ON", Rect{8 + box + 6, 122, 30, 24}, check.text);
  surface(Rect{56, 125, box, box}, check.unchecked.normal);
  text("OFF", Rect{56 + box + 6, 122, 30, 24}, check.text);

  const StatusChipStyle& chip = sheet.statusChips.get(L"stayhold-active");
  const int badge = std::clamp(chip.badgeSize, 6, 12);
  surface(Rect{110, 122, 96, 24}, chip.surface);
  surface(Rect{118, 122 + (24 - badge) / 2, badge, badge}, chip.badge);
  text("ACTIVE", Rect{134, 122, 70, 24}, chip.text);

  const ButtonStyle& primary = sheet.buttons.get(L"stayhold-primary");
  surface(Rect{214, 122, 98, 24}, primary.surface.normal);
  text("SAVE", Rect{214, 122, 98, 24}, primary.text, kTextCenter | kTextMiddle);

  const TextInputStyle& input = sheet.textInputs.get(L"stayhold-input");
  surface(Rect{8, 156, 148, 24}, input.surface.normal);
  text("WORK WEEK", Rect{16, 156, 130, 24}, input.text);

  const TableListStyle& table = sheet.tableLists.get(L"stayhold-table");
  surface(Rect{164, 152, 148, 44}, table.surface);
  surface(Rect{164, 152, 148, 20}, table.header);
  text("DAY", Rect{172, 152, 60, 20}, table.headerText);
  text("FROM", Rect{240, 152, 60, 20}, table.headerText);
  surface(Rect{164, 174, 148, 20}, table.selectedRow);
  text("MON", Rect{172, 174, 60, 20}, table.selectedText);
  text("08:00", Rect{240, 174, 60, 20}, table.selectedText);
  return image;
}
