// The skins as they ship: every skin builds a sheet with readable text on every surface, and the
// application's own style ids resolve in the tactical skin. People copy the skin guide's example:
// it must load, and the guide must tell every top-level key of the format.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <sstream>

#include "base/wide_text.h"
#include "tessel/skin/style_sheet.h"
#include "tests/support/shipped_skins.h"

namespace tessel {
namespace {

double Luminance(Color c) {
  const auto linear = [](uint32_t channel) {
    const double v = channel / 255.0;
    return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(redOf(c)) + 0.7152 * linear(greenOf(c)) + 0.0722 * linear(blueOf(c));
}

double ContrastRatio(Color a, Color b) {
  const double la = Luminance(a), lb = Luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

constexpr double kBody = 4.5, kSecondary = 3.0, kDisabled = 2.0;

// Readability: every text colour against every colour it may sit on (the fill and, with a
// gradient, its stops; without a fill, the surface beneath), by the relative-luminance contrast
// ratio: body text 4.5:1, secondary text 3:1, disabled text 2:1. Then button states that look
// alike. Empty when all is well.
std::string Problems(const StyleSheet& sheet) {
  std::ostringstream report;
  const auto text = [&](const std::wstring& where, Color color, const SurfaceStyle& surface,
                        double minimum = kBody, const SurfaceStyle* parent = nullptr) {
    const SurfaceStyle& s = surface.drawFill ? surface : parent ? *parent : sheet.window().surface;
    std::vector<Color> backdrop{s.fill};
    if (s.useGradient) backdrop.insert(backdrop.end(), {s.gradientStart, s.gradientEnd});
    if (s.useGradient && s.useGradientMid) backdrop.push_back(s.gradientMid);
    for (Color under : backdrop) {
      const double ratio = ContrastRatio(color, under);
      if (ratio + 1e-9 < minimum) {
        report << "\n  " << Utf8FromWide(where) << ": " << ratio << " < " << minimum;
        return;
      }
    }
  };
  const auto buttonText = [&](const std::wstring& where, const ButtonStyle& b) {
    text(where + L" normal", b.text.color, b.surface.normal);
    text(where + L" hot", b.text.color, b.surface.hot);
    text(where + L" pressed", b.text.color, b.surface.pressed);
    text(where + L" active", b.text.color, b.surface.active);
    text(where + L" disabled", b.text.disabledColor, b.surface.disabled, kDisabled);
  };
  const Color body = sheet.text.get(L"default").color, muted = sheet.text.get(L"muted").color;
  text(L"window text", body, sheet.window().surface);
  for (const auto& [id, panel] : sheet.panels.all()) {
    text(L"panel " + id + L" text", body, panel.surface);
    text(L"panel " + id + L" muted text", muted, panel.surface, kSecondary);
  }
  for (const auto& [id, card] : sheet.cards.all()) {
    text(L"card " + id + L" title", card.titleText.color, card.header, kBody, &card.surface);
    text(L"card " + id + L" body", body, card.surface);
    text(L"card " + id + L" subtitle", card.subtitleText.color, card.surface, kSecondary);
  }
  for (const auto& [id, button] : sheet.buttons.all()) {
    buttonText(L"button " + id, button);
    const ControlStates& b = button.surface;
    const SurfaceStyle* s[] = {&b.normal, &b.hot, &b.pressed, &b.disabled};
    // Colours only: a material's strength alone is too subtle to tell states apart.
    for (int i = 0; i < 4; ++i)
      for (int j = i + 1; j < 4; ++j)
        if (s[i]->fill == s[j]->fill && s[i]->border == s[j]->border &&
            s[i]->gradientEnd == s[j]->gradientEnd && s[i]->drawFill == s[j]->drawFill)
          report << "\n  button " << Utf8FromWide(id) << ": states " << i << j << " look alike";
  }
  for (const auto& [id, chrome] : sheet.chromeTitleBars.all())
    text(L"chrome " + id + L" title", chrome.titleText.color, chrome.surface);
  for (const auto& [id, chip] : sheet.statusChips.all())
    text(L"status chip " + id, chip.text.color, chip.surface);
  for (const auto& [id, box] : sheet.checkBoxes.all()) {
    text(L"check box " + id + L" on the window", box.text.color, sheet.window().surface);
    text(L"check box " + id + L" on a panel", box.text.color, sheet.panels.get(L"default").surface);
  }
  for (const auto& [id, select] : sheet.selectBoxes.all()) {
    const Color color = select.text.color;
    text(L"select " + id, color, select.surface.normal);
    text(L"select " + id + L" hot", color, select.surface.hot);
    text(L"select " + id + L" dropdown", color, select.dropdownSurface);
    const SurfaceStyle* under = &select.dropdownSurface;
    text(L"select " + id + L" option hot", color, select.optionSurface.hot, kBody, under);
    text(L"select " + id + L" option selected", color, select.optionSurface.active, kBody, under);
  }
  for (const auto& [id, list] : sheet.listBoxes.all()) {
    text(L"list " + id, list.text.color, list.surface);
    text(L"list " + id + L" selected", list.selectedText.color, list.selectedRow.normal, kBody,
         &list.surface);
  }
  for (const auto& [id, t] : sheet.tableLists.all()) {
    text(L"table " + id + L" header", t.headerText.color, t.header, kBody, &t.surface);
    text(L"table " + id + L" row", t.rowText.color, t.row, kBody, &t.surface);
    text(L"table " + id + L" selected", t.selectedText.color, t.selectedRow, kBody, &t.surface);
  }
  for (const auto& [id, input] : sheet.textInputs.all()) {
    text(L"input " + id, input.text.color, input.surface.normal);
    text(L"input " + id + L" focused", input.text.color, input.surface.active);
    text(L"input " + id + L" placeholder", input.placeholderText.color, input.surface.normal,
         kSecondary);
  }
  for (const auto& [id, selectable] : sheet.selectableTexts.all())
    text(L"selectable text " + id, selectable.text.color, selectable.surface);
  for (const auto& [id, rich] : sheet.richTexts.all()) {
    text(L"rich text " + id, rich.text.color, rich.surface);
    text(L"rich text " + id + L" link", rich.linkText.color, rich.surface);
  }
  for (const auto& [id, popup] : sheet.popups.all()) {
    text(L"popup " + id + L" title", popup.titleText.color, popup.header, kBody, &popup.surface);
    text(L"popup " + id + L" message", popup.messageText.color, popup.surface);
    buttonText(L"popup " + id + L" primary", popup.primaryAction);
    buttonText(L"popup " + id + L" secondary", popup.secondaryAction);
  }
  for (const auto& [id, tip] : sheet.tooltips.all())
    text(L"tooltip " + id, tip.textStyle.color, tip.surface);
  for (const auto& [id, menu] : sheet.menuBars.all()) {
    text(L"menu " + id, menu.itemText.color, menu.surface);
    text(L"menu " + id + L" popup", menu.itemText.color, menu.popupSurface);
    text(L"menu " + id + L" hot item", menu.itemText.color, menu.popupItemSurface.hot, kBody,
         &menu.popupSurface);
  }
  for (const auto& [id, tabs] : sheet.tabStrips.all())
    buttonText(L"tab " + id, tabs.itemButton);
  for (const auto& [id, date] : sheet.dateInputs.all())
    text(L"date input " + id, date.text.color, date.surface.normal);
  return report.str();
}

// Every style id the application asks for, with the kind that asks; active and idle chips
// must tell protection apart at a glance.
TEST(ShippedSkins, ApplicationVariantsResolveInTheTacticalSkin) {
  const SkinDefinition& skin = *ShippedSkin(L"stayhold-tactical-3d");
  for (const std::wstring variant :
       {L"statuschip:stayhold-active", L"statuschip:stayhold-idle", L"checkbox:stayhold-option",
        L"button:stayhold-tray-action", L"button:stayhold-primary", L"button:stayhold-secondary",
        L"popup:stayhold-notice", L"popup:stayhold-error", L"popup:stayhold-setup",
        L"popup:stayhold-setup-installed", L"chrometitlebar:stayhold-chrome", L"card:stayhold-card",
        L"selectbox:stayhold-select", L"textinput:stayhold-input", L"tablelist:stayhold-table",
        L"scrollbar:stayhold-scroll"}) {
    const size_t colon = variant.find(':');
    EXPECT_TRUE(std::any_of(skin.overrides.begin(), skin.overrides.end(), [&](const auto& o) {
      return o.type == variant.substr(0, colon) && o.id == normalizeKey(variant.substr(colon + 1));
    })) << Utf8FromWide(variant);
  }
  const StyleSheet sheet(skin);
  EXPECT_NE(sheet.statusChips.get(L"stayhold-active").badge.fill,
            sheet.statusChips.get(L"stayhold-idle").badge.fill);
}

// Every shipped skin, and the builders alone with the default and the fallback theme.
TEST(ShippedSkins, EverySkinIsReadableWithDistinctStates) {
  for (const SkinDefinition& skin : ShippedSkins())
    EXPECT_EQ(Problems(StyleSheet(skin)), "") << Utf8FromWide(skin.id);
  for (const Theme& theme : {Theme(), fallbackTheme()})
    EXPECT_EQ(Problems(StyleSheet(theme)), "");
  EXPECT_NEAR(ContrastRatio(rgbColor(0, 0, 0), rgbColor(255, 255, 255)), 21.0, 1e-9);
  EXPECT_NEAR(ContrastRatio(rgbColor(0x76, 0x76, 0x76), rgbColor(255, 255, 255)), 4.54, 0.01);
}

TEST(SkinGuide, TheExampleLoadsIsReadableAndEveryTopLevelKeyIsTold) {
  std::ifstream file(SourceFile("skins/HOW_TO_CREATE_CUSTOM_SKIN.txt"), std::ios::binary);
  const std::string guide((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  const std::string begin = "----- BEGIN EXAMPLE SKIN -----";
  const size_t start = guide.find(begin), stop = guide.find("----- END EXAMPLE SKIN -----");
  ASSERT_TRUE(start != std::string::npos && stop != std::string::npos && start < stop);
  std::wstring text;
  JsonValue root;
  ASSERT_TRUE(
      WideFromUtf8Strict(guide.substr(start + begin.size(), stop - start - begin.size()), text) &&
      parseJsonText(text, root))
      << "the example is not a valid skin document";
  const std::vector<SkinDefinition> skins = parseSkinDocuments(root);
  ASSERT_EQ(skins.size(), 1u);
  EXPECT_EQ(skins.front().id, L"my-skin");
  const StyleSheet sheet(skins.front());
  EXPECT_EQ(sheet.buttons.get(L"stayhold-primary").surface.normal.shape, ShapeKind::Capsule);
  EXPECT_EQ(Problems(sheet), "");
  std::istringstream keys(
      "id name description category harmony tags surface_mode surfaceMode theme materials "
      "material_profile materialProfile shapes styles style_overrides styleOverrides variants "
      "style_variants styleVariants control_variants controlVariants base 90-my-skin.json");
  for (std::string key; keys >> key;)
    EXPECT_NE(guide.find(key.ends_with(".json") ? key : '"' + key + '"'), std::string::npos) << key;
}

}  // namespace
}  // namespace tessel
