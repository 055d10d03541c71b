#include "tests/skins/skin_gallery.h"

#include <algorithm>

#include "tessel/paint/image_canvas.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"

using namespace tessel;

namespace {

constexpr int kWidth = 320;
constexpr int kHeight = 200;

}  // namespace

Image DrawSkinGallery(const SkinDefinition& skin) {
  const StyleSheet sheet(skin);
  Image image = Image::blank(kWidth, kHeight);
  ImageCanvas canvas(image);
  const auto surface = [&](const Rect& rect, const SurfaceStyle& style) {
    drawSurface(canvas, rect, style, UiPerformanceProfile::BestGraphics);
  };
  const auto text = [&](const char* words, const Rect& rect, const TextStyle& style, Color color,
                        uint32_t flags = kTextLeft | kTextMiddle) {
    canvas.drawText(std::wstring(words, words + std::char_traits<char>::length(words)), rect, style,
                    color, flags);
  };
  // An opaque ground first, so that a translucent window surface still gives whole pixels.
  canvas.fillRect(Rect{0, 0, kWidth, kHeight}, skin.theme.frame);
  surface(Rect{0, 0, kWidth, kHeight}, sheet.window().surface);

  const PanelStyle& panel = sheet.panels.get(L"default");
  const Rect panelRect{8, 8, 148, 76};
  surface(panelRect, panel.surface);
  text("BODY TEXT", Rect{18, 14, 130, 20}, sheet.text.get(L"default"),
       sheet.text.get(L"default").color);
  text("MUTED TEXT", Rect{18, 36, 130, 20}, sheet.text.get(L"muted"),
       sheet.text.get(L"muted").color);
  text("TITLE", Rect{18, 58, 130, 20}, sheet.text.get(L"title"), sheet.text.get(L"title").color);

  const CardStyle& card = sheet.cards.get(L"stayhold-card");
  const Rect cardRect{164, 8, 148, 76};
  surface(cardRect, card.surface);
  const int headerHeight = std::clamp(card.headerHeight, 16, 28);
  surface(Rect{cardRect.x, cardRect.y, cardRect.width, headerHeight}, card.header);
  text("CARD TITLE", Rect{cardRect.x + 10, cardRect.y, 130, headerHeight}, card.titleText,
       card.titleText.color);
  text("SUBTITLE", Rect{cardRect.x + 10, cardRect.y + headerHeight + 8, 130, 20}, card.subtitleText,
       card.subtitleText.color);

  const ButtonStyle& button = sheet.buttons.get(L"stayhold-secondary");
  const SurfaceStyle* states[] = {&button.surface.normal, &button.surface.hot,
                                  &button.surface.pressed, &button.surface.disabled};
  const char* names[] = {"NORMAL", "HOT", "PRESSED", "OFF"};
  for (int i = 0; i < 4; ++i) {
    const Rect rect{8 + i * 77, 92, 72, 24};
    surface(rect, *states[i]);
    text(names[i], rect, button.text, i == 3 ? button.text.disabledColor : button.text.color,
         kTextCenter | kTextMiddle);
  }

  const CheckBoxStyle& check = sheet.checkBoxes.get(L"stayhold-option");
  const int box = std::clamp(check.boxSize, 12, 18);
  surface(Rect{8, 125, box, box}, check.checked.normal);
  text("ON", Rect{8 + box + 6, 122, 30, 24}, check.text, check.text.color);
  surface(Rect{56, 125, box, box}, check.unchecked.normal);
  text("OFF", Rect{56 + box + 6, 122, 30, 24}, check.text, check.text.color);

  const StatusChipStyle& chip = sheet.statusChips.get(L"stayhold-active");
  const Rect chipRect{110, 122, 96, 24};
  surface(chipRect, chip.surface);
  const int badge = std::clamp(chip.badgeSize, 6, 12);
  surface(Rect{chipRect.x + 8, chipRect.y + (chipRect.height - badge) / 2, badge, badge},
          chip.badge);
  text("ACTIVE", Rect{chipRect.x + 24, chipRect.y, 70, chipRect.height}, chip.text,
       chip.text.color);

  const ButtonStyle& primary = sheet.buttons.get(L"stayhold-primary");
  const Rect primaryRect{214, 122, 98, 24};
  surface(primaryRect, primary.surface.normal);
  text("SAVE", primaryRect, primary.text, primary.text.color, kTextCenter | kTextMiddle);

  const TextInputStyle& input = sheet.textInputs.get(L"stayhold-input");
  const Rect inputRect{8, 156, 148, 24};
  surface(inputRect, input.surface.normal);
  text("WORK WEEK", Rect{inputRect.x + 8, inputRect.y, 130, inputRect.height}, input.text,
       input.text.color);

  const TableListStyle& table = sheet.tableLists.get(L"stayhold-table");
  const Rect tableRect{164, 152, 148, 44};
  surface(tableRect, table.surface);
  surface(Rect{tableRect.x, tableRect.y, tableRect.width, 20}, table.header);
  text("DAY", Rect{tableRect.x + 8, tableRect.y, 60, 20}, table.headerText, table.headerText.color);
  text("FROM", Rect{tableRect.x + 76, tableRect.y, 60, 20}, table.headerText,
       table.headerText.color);
  surface(Rect{tableRect.x, tableRect.y + 22, tableRect.width, 20}, table.selectedRow);
  text("MON", Rect{tableRect.x + 8, tableRect.y + 22, 60, 20}, table.selectedText,
       table.selectedText.color);
  text("08:00", Rect{tableRect.x + 76, tableRect.y + 22, 60, 20}, table.selectedText,
       table.selectedText.color);
  return image;
}
