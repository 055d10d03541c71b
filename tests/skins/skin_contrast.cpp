#include "skin_contrast.h"

#include <algorithm>
#include <cmath>

using namespace tessel;

namespace {

double Linear(uint32_t channel) {
  const double c = channel / 255.0;
  return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double Luminance(Color c) {
  return 0.2126 * Linear(redOf(c)) + 0.7152 * Linear(greenOf(c)) + 0.0722 * Linear(blueOf(c));
}

// The colours text may sit on: the fill and, with a gradient, its stops.
std::vector<Color> Backdrop(const SurfaceStyle& surface, const SurfaceStyle& parent) {
  if (!surface.drawFill) return Backdrop(parent, parent);
  std::vector<Color> colors{surface.fill};
  if (surface.useGradient) {
    colors.push_back(surface.gradientStart);
    colors.push_back(surface.gradientEnd);
    if (surface.useGradientMid) colors.push_back(surface.gradientMid);
  }
  return colors;
}

constexpr double kBody = 4.5;
constexpr double kSecondary = 3.0;
constexpr double kDisabled = 2.0;

}  // namespace

double ContrastRatio(Color a, Color b) {
  const double la = Luminance(a);
  const double lb = Luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

std::vector<ContrastProblem> FindContrastProblems(const StyleSheet& sheet) {
  std::vector<ContrastProblem> problems;
  const auto text = [&](const std::wstring& where, Color color, const SurfaceStyle& surface,
                        double minimum, const SurfaceStyle* parent = nullptr) {
    for (Color backdrop : Backdrop(surface, parent ? *parent : sheet.window().surface)) {
      const double ratio = ContrastRatio(color, backdrop);
      if (ratio + 1e-9 < minimum) return problems.push_back({where, ratio, minimum});
    }
  };
  const auto buttonText = [&](const std::wstring& where, const ButtonStyle& b) {
    text(where + L" normal", b.text.color, b.surface.normal, kBody);
    text(where + L" hot", b.text.color, b.surface.hot, kBody);
    text(where + L" pressed", b.text.color, b.surface.pressed, kBody);
    text(where + L" active", b.text.color, b.surface.active, kBody);
    text(where + L" disabled", b.text.disabledColor, b.surface.disabled, kDisabled);
  };
  const TextStyle& body = sheet.text.get(L"default");
  const TextStyle& muted = sheet.text.get(L"muted");
  text(L"window text", body.color, sheet.window().surface, kBody);
  for (const auto& [id, panel] : sheet.panels.all()) {
    text(L"panel " + id + L" text", body.color, panel.surface, kBody);
    text(L"panel " + id + L" muted text", muted.color, panel.surface, kSecondary);
  }
  for (const auto& [id, card] : sheet.cards.all()) {
    text(L"card " + id + L" title", card.titleText.color, card.header, kBody, &card.surface);
    text(L"card " + id + L" body", body.color, card.surface, kBody);
    text(L"card " + id + L" subtitle", card.subtitleText.color, card.surface, kSecondary);
  }
  for (const auto& [id, button] : sheet.buttons.all())
    buttonText(L"button " + id, button);
  for (const auto& [id, chrome] : sheet.chromeTitleBars.all())
    text(L"chrome " + id + L" title", chrome.titleText.color, chrome.surface, kBody);
  for (const auto& [id, chip] : sheet.statusChips.all())
    text(L"status chip " + id, chip.text.color, chip.surface, kBody);
  for (const auto& [id, box] : sheet.checkBoxes.all()) {
    text(L"check box " + id + L" on the window", box.text.color, sheet.window().surface, kBody);
    text(L"check box " + id + L" on a panel", box.text.color, sheet.panels.get(L"default").surface,
         kBody);
  }
  for (const auto& [id, select] : sheet.selectBoxes.all()) {
    text(L"select " + id, select.text.color, select.surface.normal, kBody);
    text(L"select " + id + L" hot", select.text.color, select.surface.hot, kBody);
    text(L"select " + id + L" dropdown", select.text.color, select.dropdownSurface, kBody);
    text(L"select " + id + L" option hot", select.text.color, select.optionSurface.hot, kBody,
         &select.dropdownSurface);
    text(L"select " + id + L" option selected", select.text.color, select.optionSurface.active,
         kBody, &select.dropdownSurface);
  }
  for (const auto& [id, list] : sheet.listBoxes.all()) {
    text(L"list " + id, list.text.color, list.surface, kBody);
    text(L"list " + id + L" selected", list.selectedText.color, list.selectedRow.normal, kBody,
         &list.surface);
  }
  for (const auto& [id, table] : sheet.tableLists.all()) {
    text(L"table " + id + L" header", table.headerText.color, table.header, kBody, &table.surface);
    text(L"table " + id + L" row", table.rowText.color, table.row, kBody, &table.surface);
    text(L"table " + id + L" selected", table.selectedText.color, table.selectedRow, kBody,
         &table.surface);
  }
  for (const auto& [id, input] : sheet.textInputs.all()) {
    text(L"input " + id, input.text.color, input.surface.normal, kBody);
    text(L"input " + id + L" focused", input.text.color, input.surface.active, kBody);
    text(L"input " + id + L" placeholder", input.placeholderText.color, input.surface.normal,
         kSecondary);
  }
  for (const auto& [id, selectable] : sheet.selectableTexts.all())
    text(L"selectable text " + id, selectable.text.color, selectable.surface, kBody);
  for (const auto& [id, rich] : sheet.richTexts.all()) {
    text(L"rich text " + id, rich.text.color, rich.surface, kBody);
    text(L"rich text " + id + L" link", rich.linkText.color, rich.surface, kBody);
  }
  for (const auto& [id, popup] : sheet.popups.all()) {
    text(L"popup " + id + L" title", popup.titleText.color, popup.header, kBody, &popup.surface);
    text(L"popup " + id + L" message", popup.messageText.color, popup.surface, kBody);
    buttonText(L"popup " + id + L" primary", popup.primaryAction);
    buttonText(L"popup " + id + L" secondary", popup.secondaryAction);
  }
  for (const auto& [id, tip] : sheet.tooltips.all())
    text(L"tooltip " + id, tip.textStyle.color, tip.surface, kBody);
  for (const auto& [id, menu] : sheet.menuBars.all()) {
    text(L"menu " + id, menu.itemText.color, menu.surface, kBody);
    text(L"menu " + id + L" popup", menu.itemText.color, menu.popupSurface, kBody);
    text(L"menu " + id + L" hot item", menu.itemText.color, menu.popupItemSurface.hot, kBody,
         &menu.popupSurface);
  }
  for (const auto& [id, tabs] : sheet.tabStrips.all())
    buttonText(L"tab " + id, tabs.itemButton);
  for (const auto& [id, date] : sheet.dateInputs.all())
    text(L"date input " + id, date.text.color, date.surface.normal, kBody);
  return problems;
}

std::vector<std::wstring> FindIndistinctButtonStates(const StyleSheet& sheet) {
  std::vector<std::wstring> ids;
  for (const auto& [id, button] : sheet.buttons.all()) {
    const SurfaceStyle* states[] = {&button.surface.normal, &button.surface.hot,
                                    &button.surface.pressed, &button.surface.disabled};
    bool distinct = true;
    for (int i = 0; i < 4; ++i) {
      for (int j = i + 1; j < 4; ++j) {
        const SurfaceStyle& a = *states[i];
        const SurfaceStyle& b = *states[j];
        // Colours only: a material's strength alone is too subtle to tell states apart.
        const bool same = a.fill == b.fill && a.border == b.border &&
                          a.gradientEnd == b.gradientEnd && a.drawFill == b.drawFill;
        if (same) distinct = false;
      }
    }
    if (!distinct) ids.push_back(id);
  }
  return ids;
}
