#include "tessel/skin/style_sheet.h"

#include <algorithm>

#include "tessel/skin/control_style_parsers.h"
#include "tessel/skin/material_preset.h"
#include "tessel/skin/style_builders.h"
#include "tessel/skin/surface_parser.h"

namespace tessel {

namespace {

template <typename F>
void eachState(ControlStates& states, F&& f) {
  states.each(std::forward<F>(f));
}

void shapeStates(ControlStates& states, ShapeKind kind) {
  states.each([&](SurfaceStyle& state) { state.shape = kind; });
}

// The first non-empty value among the base keys, normalized as ids are.
std::wstring baseKey(const PropertyTable& properties) {
  for (const wchar_t* key :
       {L"base", L"baseid", L"basedon", L"extends", L"inherit", L"inherits", L"from"}) {
    const auto found = properties.find(key);
    if (found != properties.end() && !found->second.empty()) return normalizeKey(found->second);
  }
  return std::wstring();
}

template <typename Record, typename Fresh, typename Parse>
void overrideIn(StyleMap<Record>& map, const StyleOverride& entry, const StyleContext& context,
                Fresh fresh, Parse parse) {
  Record record;
  const std::wstring base = baseKey(entry.properties);
  if (const Record* named = base.empty() ? nullptr : map.find(base)) {
    record = *named;
  } else if (const Record* own = map.find(entry.id)) {
    record = *own;
  } else {
    record = fresh();
  }
  parse(StyleReader(entry.properties, L"", context), record);
  map.set(entry.id, std::move(record));
}

bool typeIs(const std::wstring& type, std::initializer_list<const wchar_t*> spellings) {
  for (const wchar_t* spelling : spellings)
    if (type == normalizeKey(spelling)) return true;
  return false;
}

struct Deltas {
  int32_t normal, hot, pressed, active, disabled;
};

void materialStates(ControlStates& states, const MaterialProfile& profile, MaterialKind kind,
                    Deltas d) {
  applyMaterial(states.normal, profile, kind, d.normal);
  applyMaterial(states.hot, profile, kind, d.hot);
  applyMaterial(states.pressed, profile, kind, d.pressed);
  applyMaterial(states.active, profile, kind, d.active);
  applyMaterial(states.disabled, profile, kind, d.disabled);
}

constexpr Deltas kControlDeltas{-10, -2, -16, 0, -24};
constexpr Deltas kQuietDeltas{-14, -6, -20, -4, -26};
constexpr Deltas kAccentDeltas{8, 16, 2, 18, -18};
constexpr Deltas kThumbDeltas{-8, 0, -14, 2, -20};

void materialScrollBar(ScrollBarStyle& bar, const MaterialProfile& profile) {
  applyMaterial(bar.track, profile, profile.surface, -14);
  materialStates(bar.thumb, profile, profile.control, kThumbDeltas);
  materialStates(bar.decrementButton, profile, profile.control, kQuietDeltas);
  materialStates(bar.incrementButton, profile, profile.control, kQuietDeltas);
}

}  // namespace

void applyMaterial(SurfaceStyle& surface, const MaterialProfile& profile, MaterialKind kind,
                   int32_t delta) {
  if (!profile.enabled) return;
  const auto byte = [](int32_t value) { return static_cast<uint8_t>(std::clamp(value, 0, 255)); };
  surface.material = kind;
  surface.materialTint = profile.tint;
  surface.backlightColor = profile.backlight;
  surface.materialStrength = kind != MaterialKind::None ? byte(profile.strength + delta) : 0;
  surface.highlightOpacity = byte(profile.highlightOpacity);
  surface.reflectionOpacity = byte(profile.reflectionOpacity);
  surface.grainOpacity = byte(profile.grainOpacity);
  surface.materialDepth = byte(profile.depth);
  surface.backlightOpacity = byte(profile.backlightOpacity);
  surface.innerGlow = byte(profile.innerGlow);
  surface.rimLight = byte(profile.rimLight);
  surface.materialLightElevation = byte(profile.lightElevation);
  surface.roughness = byte(profile.roughness);
  surface.specular = byte(profile.specular);
  surface.ambientOcclusion = byte(profile.ambientOcclusion);
  surface.edgeWear = byte(profile.edgeWear);
  surface.textureOpacity = byte(profile.textureOpacity);
  surface.materialScale = profile.scale;
  surface.materialAngle = profile.angle;
  surface.materialLightAngle = profile.lightAngle;
  surface.lightBlobScale = profile.lightBlobScale;
  surface.lightBlobAngle = profile.lightBlobAngle;
  surface.animationSpeed = profile.animationSpeed;
  surface.noiseSeed = profile.noiseSeed;
  applyFinish(surface, profile.finish);
  surface.uvMapping = profile.uvMapping;
  surface.uvScale = profile.uvScale;
  surface.uvOffsetX = profile.uvOffsetX;
  surface.uvOffsetY = profile.uvOffsetY;
  surface.gradientKind = profile.gradientKind;
  surface.gradientDirection = profile.gradientDirection;
  surface.useGradient = surface.drawFill;
}

StyleSheet::StyleSheet(const Theme& theme) : theme_(theme) {
  buildFromTheme();
}

StyleSheet::StyleSheet(const SkinDefinition& skin) : theme_(skin.theme), mode_(skin.surfaceMode) {
  buildFromTheme();
  applyShapes(skin.shapes);
  applyMaterials(skin.materials);
  const StyleContext context{&theme_, skin.sourceDirectory};
  for (const StyleOverride& entry : skin.overrides)
    applyOverride(entry, context);
  applyAliases();
}

void StyleSheet::buildFromTheme() {
  const Theme& t = theme_;
  const SurfaceMode m = mode_;
  text.set(L"default", buildTextStyle(t, TextTone::Default));
  text.set(L"title", buildTextStyle(t, TextTone::Title));
  text.set(L"muted", buildTextStyle(t, TextTone::Muted));
  text.set(L"mono", buildTextStyle(t, TextTone::Mono));
  text.set(L"secondary", buildTextStyle(t, TextTone::Secondary));
  text.set(L"danger", buildTextStyle(t, TextTone::Danger));
  buttons.set(L"default", buildButtonStyle(t, m, ButtonTone::Default));
  buttons.set(L"secondary", buildButtonStyle(t, m, ButtonTone::Secondary));
  buttons.set(L"primary", buildButtonStyle(t, m, ButtonTone::Primary));
  buttons.set(L"primary-action", buildButtonStyle(t, m, ButtonTone::Primary));
  buttons.set(L"quiet", buildButtonStyle(t, m, ButtonTone::Quiet));
  buttons.set(L"success", buildButtonStyle(t, m, ButtonTone::Success));
  buttons.set(L"warning", buildButtonStyle(t, m, ButtonTone::Warning));
  buttons.set(L"danger", buildButtonStyle(t, m, ButtonTone::Danger));
  bitmapButtons.set(L"default", buildBitmapButtonStyle(t));
  panels.set(L"default", buildPanelStyle(t, m, PanelTone::Default));
  panels.set(L"glass", buildPanelStyle(t, m, PanelTone::Glass));
  panels.set(L"raised", buildPanelStyle(t, m, PanelTone::Raised));
  panels.set(L"dashboard", buildPanelStyle(t, m, PanelTone::Dashboard));
  cards.set(L"default", buildCardStyle(t, m, CardTone::Default));
  cards.set(L"info", buildCardStyle(t, m, CardTone::Info));
  cards.set(L"success", buildCardStyle(t, m, CardTone::Success));
  cards.set(L"warning", buildCardStyle(t, m, CardTone::Warning));
  cards.set(L"danger", buildCardStyle(t, m, CardTone::Danger));
  chromeTitleBars.set(L"default", buildChromeTitleBarStyle(t, m));
  statusChips.set(L"default", buildStatusChipStyle(t, m));
  progressBars.set(L"default", buildProgressBarStyle(t, m));
  scrollBars.set(L"default", buildScrollBarStyle(t, m));
  checkBoxes.set(L"default", buildCheckBoxStyle(t, m));
  selectBoxes.set(L"default", buildSelectBoxStyle(t, m));
  listBoxes.set(L"default", buildHierarchicalListBoxStyle(t, m));
  dateInputs.set(L"default", buildDateInputStyle(t, m));
  tabStrips.set(L"default", buildTabStripStyle(t, m));
  menuBars.set(L"default", buildMenuBarStyle(t, m));
  tableLists.set(L"default", buildTableListStyle(t, m));
  richTexts.set(L"default", buildRichTextStyle(t, m));
  textInputs.set(L"default", buildTextInputStyle(t, m));
  selectableTexts.set(L"default", buildSelectableTextStyle(t, m));
  popups.set(L"default", buildPopupStyle(t, m));
  tooltips.set(L"default", buildTooltipStyle(t, m));
  window_ = buildWindowStyle(t, m);
}

void StyleSheet::applyShapes(const ShapeSet& set) {
  const auto with = [&](const wchar_t* role, auto&& apply) {
    if (const ShapeKind* kind = set.find(role)) apply(*kind);
  };
  with(L"window", [&](ShapeKind k) { window_.surface.shape = k; });
  with(L"panel", [&](ShapeKind k) {
    for (auto& [id, panel] : panels.all())
      panel.surface.shape = k;
  });
  with(L"chrome", [&](ShapeKind k) {
    for (auto& [id, chrome] : chromeTitleBars.all())
      chrome.surface.shape = k;
  });
  with(L"statuschip", [&](ShapeKind k) {
    for (auto& [id, chip] : statusChips.all())
      chip.surface.shape = k;
  });
  with(L"statusbadge", [&](ShapeKind k) {
    for (auto& [id, chip] : statusChips.all())
      chip.badge.shape = k;
  });
  with(L"checkbox", [&](ShapeKind k) {
    for (auto& entry : checkBoxes.all()) {
      const std::wstring& id = entry.first;
      auto& c = entry.second;
      (void)id;
      for (SurfaceStyle* box :
           {&c.unchecked.normal, &c.unchecked.hot, &c.unchecked.pressed, &c.unchecked.disabled,
            &c.checked.normal, &c.checked.hot, &c.checked.pressed, &c.checked.disabled}) {
        box->shape = k;
      }
    }
  });
  for (auto& entry : selectBoxes.all()) {
    const std::wstring& id = entry.first;
    auto& s = entry.second;
    (void)id;
    with(L"selectbox", [&](ShapeKind k) {
      s.surface.normal.shape = s.surface.hot.shape = s.surface.pressed.shape =
          s.surface.disabled.shape = k;
    });
    with(L"selectarrow", [&](ShapeKind k) {
      s.arrowSurface.normal.shape = s.arrowSurface.hot.shape = s.arrowSurface.pressed.shape =
          s.arrowSurface.disabled.shape = k;
    });
    with(L"selectdropdown", [&](ShapeKind k) { s.dropdownSurface.shape = k; });
  }
  for (auto& entry : listBoxes.all()) {
    const std::wstring& id = entry.first;
    auto& l = entry.second;
    (void)id;
    with(L"list", [&](ShapeKind k) {
      l.surface.shape = l.row.normal.shape = l.row.hot.shape = l.row.pressed.shape = k;
      l.selectedRow.normal.shape = l.selectedRow.hot.shape = l.selectedRail.shape = k;
    });
    with(L"list.surface", [&](ShapeKind k) { l.surface.shape = k; });
    for (const wchar_t* role : {L"list.row", L"listrow"}) {
      with(role,
           [&](ShapeKind k) { l.row.normal.shape = l.row.hot.shape = l.row.pressed.shape = k; });
    }
    for (const wchar_t* role : {L"list.selectedrow", L"listselectedrow"}) {
      with(role, [&](ShapeKind k) { l.selectedRow.normal.shape = l.selectedRow.hot.shape = k; });
    }
    for (const wchar_t* role : {L"list.selectedrail", L"listselectedrail"}) {
      with(role, [&](ShapeKind k) { l.selectedRail.shape = k; });
    }
  }
  with(L"tab", [&](ShapeKind k) {
    for (auto& [id, tabs] : tabStrips.all())
      shapeStates(tabs.itemButton.surface, k);
  });
  for (auto& entry : menuBars.all()) {
    const std::wstring& id = entry.first;
    auto& menu = entry.second;
    (void)id;
    with(L"menubar", [&](ShapeKind k) { menu.surface.shape = k; });
    with(L"menuitem", [&](ShapeKind k) {
      menu.itemSurface.normal.shape = menu.itemSurface.hot.shape = menu.itemSurface.pressed.shape =
          menu.itemSurface.active.shape = k;
    });
    with(L"menupopup", [&](ShapeKind k) { menu.popupSurface.shape = k; });
    with(L"menupopupitem", [&](ShapeKind k) {
      menu.popupItemSurface.hot.shape = menu.popupItemSurface.pressed.shape = k;
    });
  }
  for (auto& entry : richTexts.all()) {
    const std::wstring& id = entry.first;
    auto& rich = entry.second;
    (void)id;
    with(L"richtext", [&](ShapeKind k) { rich.surface.shape = k; });
    with(L"richtexticon", [&](ShapeKind k) { rich.icon.shape = k; });
  }
  for (auto& entry : textInputs.all()) {
    const std::wstring& id = entry.first;
    auto& input = entry.second;
    (void)id;
    with(L"textinput", [&](ShapeKind k) {
      input.surface.normal.shape = input.surface.hot.shape = input.surface.pressed.shape =
          input.surface.disabled.shape = input.surface.active.shape = k;
    });
    with(L"textinputattachment", [&](ShapeKind k) { input.attachmentSurface.shape = k; });
  }
  with(L"selectabletext", [&](ShapeKind k) {
    for (auto& [id, s] : selectableTexts.all())
      s.surface.shape = k;
  });
  for (auto& entry : tooltips.all()) {
    const std::wstring& id = entry.first;
    auto& tip = entry.second;
    (void)id;
    with(L"tooltip", [&](ShapeKind k) { tip.surface.shape = k; });
    with(L"tooltiprail", [&](ShapeKind k) { tip.accentRail.shape = k; });
    with(L"tooltipicon", [&](ShapeKind k) { tip.icon.shape = k; });
  }
  for (auto& entry : buttons.all()) {
    const std::wstring& id = entry.first;
    auto& button = entry.second;
    (void)id;
    with(L"button", [&](ShapeKind k) { shapeStates(button.surface, k); });
    const bool primary = id == L"primary" || id == L"primaryaction" || id == L"success" ||
                         id == L"warning" || id == L"danger";
    with(primary ? L"button.primary" : L"button.secondary",
         [&](ShapeKind k) { shapeStates(button.surface, k); });
  }
  for (auto& entry : cards.all()) {
    const std::wstring& id = entry.first;
    auto& card = entry.second;
    (void)id;
    for (const wchar_t* role : {L"card", L"card.shape"}) {
      with(role, [&](ShapeKind k) { card.surface.shape = card.header.shape = k; });
    }
    with(L"card.surface", [&](ShapeKind k) { card.surface.shape = k; });
    for (const wchar_t* role : {L"card.header", L"card.title"}) {
      with(role, [&](ShapeKind k) { card.header.shape = k; });
    }
  }
  for (auto& entry : progressBars.all()) {
    const std::wstring& id = entry.first;
    auto& bar = entry.second;
    (void)id;
    with(L"progress", [&](ShapeKind k) { bar.frame.shape = bar.track.shape = bar.fill.shape = k; });
    with(L"progress.frame", [&](ShapeKind k) { bar.frame.shape = k; });
    with(L"progress.track", [&](ShapeKind k) { bar.track.shape = k; });
    with(L"progress.fill", [&](ShapeKind k) { bar.fill.shape = k; });
  }
  for (auto& entry : tableLists.all()) {
    const std::wstring& id = entry.first;
    auto& table = entry.second;
    (void)id;
    with(L"table", [&](ShapeKind k) {
      table.surface.shape = table.header.shape = table.row.shape = k;
      table.selectedRow.shape = table.selectedRail.shape = k;
    });
    with(L"table.surface", [&](ShapeKind k) { table.surface.shape = k; });
    with(L"table.header", [&](ShapeKind k) { table.header.shape = k; });
    with(L"table.row", [&](ShapeKind k) { table.row.shape = k; });
    with(L"table.selectedrow", [&](ShapeKind k) { table.selectedRow.shape = k; });
    with(L"table.selectedrail", [&](ShapeKind k) { table.selectedRail.shape = k; });
  }
  for (auto& entry : popups.all()) {
    const std::wstring& id = entry.first;
    auto& popup = entry.second;
    (void)id;
    with(L"popup", [&](ShapeKind k) { popup.surface.shape = k; });
    with(L"popup.surface", [&](ShapeKind k) { popup.surface.shape = k; });
    with(L"popup.header", [&](ShapeKind k) { popup.header.shape = k; });
    with(L"popup.icon", [&](ShapeKind k) { popup.icon.shape = k; });
  }
  const auto scrollShapes = [&](ScrollBarStyle& bar) {
    with(L"scroll", [&](ShapeKind k) {
      bar.track.shape = k;
      shapeStates(bar.thumb, k);
      shapeStates(bar.decrementButton, k);
      shapeStates(bar.incrementButton, k);
    });
    with(L"scroll.track", [&](ShapeKind k) { bar.track.shape = k; });
    with(L"scroll.thumb", [&](ShapeKind k) { shapeStates(bar.thumb, k); });
    with(L"scroll.button", [&](ShapeKind k) {
      shapeStates(bar.decrementButton, k);
      shapeStates(bar.incrementButton, k);
    });
    const auto metric = [](int32_t value, int32_t& field) {
      if (value >= 0) field = value;
    };
    metric(set.scrollButtonExtent, bar.buttonExtent);
    metric(set.scrollMinThumbExtent, bar.minThumbExtent);
    metric(set.scrollTrackPadding, bar.trackPadding);
    metric(set.scrollTrackThickness, bar.trackThickness);
    metric(set.scrollThumbThickness, bar.thumbThickness);
    if (set.scrollShowButtons >= 0) bar.showButtons = set.scrollShowButtons == 1;
  };
  for (auto& [id, bar] : scrollBars.all())
    scrollShapes(bar);
  for (auto& [id, select] : selectBoxes.all())
    scrollShapes(select.scrollBar);
  for (auto& [id, list] : listBoxes.all())
    scrollShapes(list.scrollBar);
}

void StyleSheet::applyMaterials(const MaterialProfile& p) {
  if (!p.enabled) return;
  // A glass panel over paper would look like paper; it frosts instead.
  const MaterialKind glass =
      p.surface == MaterialKind::Paper ? MaterialKind::FrostedGlass : MaterialKind::Glass;
  for (auto& [id, panel] : panels.all())
    applyMaterial(panel.surface, p, id == L"glass" ? glass : p.surface, id == L"glass" ? 4 : -8);
  for (auto& entry : buttons.all()) {
    const std::wstring& id = entry.first;
    auto& button = entry.second;
    (void)id;
    const bool accent = id == L"primary" || id == L"primaryaction" || id == L"success" ||
                        id == L"warning" || id == L"danger";
    if (accent) {
      materialStates(button.surface, p, p.accent, kAccentDeltas);
    } else {
      materialStates(button.surface, p, p.control, id == L"quiet" ? kQuietDeltas : kControlDeltas);
    }
  }
  for (auto& entry : cards.all()) {
    const std::wstring& id = entry.first;
    auto& card = entry.second;
    (void)id;
    applyMaterial(card.surface, p, p.surface, -6);
    applyMaterial(card.header, p, p.surface, -2);
  }
  for (auto& entry : chromeTitleBars.all()) {
    const std::wstring& id = entry.first;
    auto& chrome = entry.second;
    (void)id;
    applyMaterial(chrome.surface, p, p.surface, -4);
    materialStates(chrome.titleButton.surface, p, p.control, kQuietDeltas);
  }
  for (auto& entry : statusChips.all()) {
    const std::wstring& id = entry.first;
    auto& chip = entry.second;
    (void)id;
    applyMaterial(chip.surface, p, p.control, -10);
    applyMaterial(chip.badge, p, p.accent, 8);
  }
  for (auto& entry : progressBars.all()) {
    const std::wstring& id = entry.first;
    auto& bar = entry.second;
    (void)id;
    applyMaterial(bar.frame, p, p.surface, -10);
    applyMaterial(bar.track, p, p.control, -16);
    applyMaterial(bar.fill, p, p.accent, 8);
  }
  for (auto& [id, bar] : scrollBars.all())
    materialScrollBar(bar, p);
  for (auto& entry : checkBoxes.all()) {
    const std::wstring& id = entry.first;
    auto& c = entry.second;
    (void)id;
    applyMaterial(c.unchecked.normal, p, p.control, -16);
    applyMaterial(c.unchecked.hot, p, p.control, -8);
    applyMaterial(c.unchecked.pressed, p, p.control, -22);
    applyMaterial(c.unchecked.disabled, p, p.control, -28);
    applyMaterial(c.checked.normal, p, p.accent, 8);
    applyMaterial(c.checked.hot, p, p.accent, 16);
    applyMaterial(c.checked.pressed, p, p.accent, 2);
    applyMaterial(c.checked.disabled, p, p.accent, -18);
  }
  for (auto& entry : selectBoxes.all()) {
    const std::wstring& id = entry.first;
    auto& s = entry.second;
    (void)id;
    applyMaterial(s.surface.normal, p, p.control, -12);
    applyMaterial(s.surface.hot, p, p.control, -4);
    applyMaterial(s.surface.pressed, p, p.control, -18);
    applyMaterial(s.surface.disabled, p, p.control, -26);
    applyMaterial(s.dropdownSurface, p, p.surface, -6);
    materialScrollBar(s.scrollBar, p);
  }
  for (auto& entry : listBoxes.all()) {
    const std::wstring& id = entry.first;
    auto& l = entry.second;
    (void)id;
    applyMaterial(l.surface, p, p.surface, -12);
    applyMaterial(l.selectedRow.normal, p, p.accent, -10);
    applyMaterial(l.selectedRow.hot, p, p.accent, -4);
    materialScrollBar(l.scrollBar, p);
  }
  for (auto& entry : dateInputs.all()) {
    const std::wstring& id = entry.first;
    auto& d = entry.second;
    (void)id;
    applyMaterial(d.surface.normal, p, p.control, -12);
    applyMaterial(d.surface.hot, p, p.control, -4);
    applyMaterial(d.surface.pressed, p, p.control, -18);
    applyMaterial(d.popupSurface, p, p.surface, -6);
  }
  for (auto& [id, tabs] : tabStrips.all())
    materialStates(tabs.itemButton.surface, p, p.control, kQuietDeltas);
  for (auto& entry : menuBars.all()) {
    const std::wstring& id = entry.first;
    auto& menu = entry.second;
    (void)id;
    applyMaterial(menu.surface, p, p.surface, -8);
    applyMaterial(menu.popupSurface, p, p.surface, -6);
  }
  for (auto& entry : tableLists.all()) {
    const std::wstring& id = entry.first;
    auto& table = entry.second;
    (void)id;
    applyMaterial(table.surface, p, p.surface, -12);
    applyMaterial(table.header, p, p.surface, -4);
    applyMaterial(table.selectedRow, p, p.accent, -10);
  }
  for (auto& [id, rich] : richTexts.all())
    applyMaterial(rich.surface, p, p.surface, -10);
  for (auto& entry : textInputs.all()) {
    const std::wstring& id = entry.first;
    auto& input = entry.second;
    (void)id;
    applyMaterial(input.surface.normal, p, p.control, -14);
    applyMaterial(input.surface.hot, p, p.control, -6);
    applyMaterial(input.surface.active, p, p.control, -4);
  }
  for (auto& [id, s] : selectableTexts.all())
    applyMaterial(s.surface, p, p.surface, -14);
  for (auto& entry : popups.all()) {
    const std::wstring& id = entry.first;
    auto& popup = entry.second;
    (void)id;
    applyMaterial(popup.surface, p, p.surface, -6);
    applyMaterial(popup.header, p, p.surface, -2);
    materialStates(popup.primaryAction.surface, p, p.accent, kAccentDeltas);
    materialStates(popup.secondaryAction.surface, p, p.control, kControlDeltas);
    materialStates(popup.closeButton.surface, p, p.control, kQuietDeltas);
  }
  for (auto& [id, tip] : tooltips.all())
    applyMaterial(tip.surface, p, p.surface, -8);
  applyMaterial(window_.surface, p, p.surface, -14);
}

void StyleSheet::applyOverride(const StyleOverride& entry, const StyleContext& context) {
  const std::wstring& type = entry.type;
  const Theme& t = theme_;
  const SurfaceMode m = mode_;
  if (typeIs(type, {L"window", L"windowstyle"})) {
    // A window reads only its "default" override; other ids have nothing to style.
    if (entry.id == L"default") {
      parseWindowStyle(StyleReader(entry.properties, L"", context), window_);
    }
  } else if (typeIs(type, {L"text", L"textstyle"})) {
    overrideIn(
        text, entry, context, [&] { return buildTextStyle(t, TextTone::Default); }, parseTextStyle);
  } else if (typeIs(type, {L"button", L"buttons", L"buttonstyle"})) {
    overrideIn(
        buttons, entry, context, [&] { return buildButtonStyle(t, m, ButtonTone::Default); },
        parseButtonStyle);
  } else if (typeIs(type, {L"bitmapbutton", L"bitmapbuttons", L"bitmap", L"imagebutton",
                           L"glyphbutton"})) {
    overrideIn(
        bitmapButtons, entry, context, [&] { return buildBitmapButtonStyle(t); },
        parseBitmapButtonStyle);
  } else if (typeIs(type, {L"panel", L"panelstyle"})) {
    overrideIn(
        panels, entry, context, [&] { return buildPanelStyle(t, m, PanelTone::Default); },
        parsePanelStyle);
  } else if (typeIs(type, {L"card", L"cardstyle"})) {
    overrideIn(
        cards, entry, context, [&] { return buildCardStyle(t, m, CardTone::Default); },
        parseCardStyle);
  } else if (typeIs(type, {L"chrometitlebar", L"titlebar", L"chrome"})) {
    overrideIn(
        chromeTitleBars, entry, context, [&] { return buildChromeTitleBarStyle(t, m); },
        parseChromeTitleBarStyle);
  } else if (typeIs(type, {L"statuschip", L"status"})) {
    overrideIn(
        statusChips, entry, context, [&] { return buildStatusChipStyle(t, m); },
        parseStatusChipStyle);
  } else if (typeIs(type, {L"progressbar", L"progress"})) {
    overrideIn(
        progressBars, entry, context, [&] { return buildProgressBarStyle(t, m); },
        parseProgressBarStyle);
  } else if (typeIs(type, {L"scrollbar", L"scroll"})) {
    overrideIn(
        scrollBars, entry, context, [&] { return buildScrollBarStyle(t, m); }, parseScrollBarStyle);
  } else if (typeIs(type, {L"checkbox", L"check"})) {
    overrideIn(
        checkBoxes, entry, context, [&] { return buildCheckBoxStyle(t, m); }, parseCheckBoxStyle);
  } else if (typeIs(type, {L"selectbox", L"select", L"combobox", L"combo"})) {
    overrideIn(
        selectBoxes, entry, context, [&] { return buildSelectBoxStyle(t, m); },
        parseSelectBoxStyle);
  } else if (typeIs(type, {L"listbox", L"hierarchicallistbox", L"treelistbox", L"treelist",
                           L"diskviewer", L"fileviewer", L"filelist", L"selectionlist"})) {
    overrideIn(
        listBoxes, entry, context, [&] { return buildHierarchicalListBoxStyle(t, m); },
        parseHierarchicalListBoxStyle);
  } else if (typeIs(type, {L"dateinput", L"date", L"calendarinput"})) {
    overrideIn(
        dateInputs, entry, context, [&] { return buildDateInputStyle(t, m); }, parseDateInputStyle);
  } else if (typeIs(type, {L"tabstrip", L"tabs", L"tab"})) {
    overrideIn(
        tabStrips, entry, context, [&] { return buildTabStripStyle(t, m); }, parseTabStripStyle);
  } else if (typeIs(type, {L"menubar", L"menu", L"windowmenu", L"windowsmenu"})) {
    overrideIn(
        menuBars, entry, context, [&] { return buildMenuBarStyle(t, m); }, parseMenuBarStyle);
  } else if (typeIs(type, {L"tablelist", L"table", L"list"})) {
    overrideIn(
        tableLists, entry, context, [&] { return buildTableListStyle(t, m); }, parseTableListStyle);
  } else if (typeIs(type, {L"richtext", L"helptext"})) {
    overrideIn(
        richTexts, entry, context, [&] { return buildRichTextStyle(t, m); }, parseRichTextStyle);
  } else if (typeIs(type, {L"textinput", L"input", L"edit"})) {
    overrideIn(
        textInputs, entry, context, [&] { return buildTextInputStyle(t, m); }, parseTextInputStyle);
  } else if (typeIs(type, {L"selectabletext"})) {
    overrideIn(
        selectableTexts, entry, context, [&] { return buildSelectableTextStyle(t, m); },
        parseSelectableTextStyle);
  } else if (typeIs(type, {L"popup", L"dialog"})) {
    overrideIn(
        popups, entry, context, [&] { return buildPopupStyle(t, m); }, parsePopupStyle);
  } else if (typeIs(type, {L"tooltip", L"tooltips"})) {
    overrideIn(
        tooltips, entry, context, [&] { return buildTooltipStyle(t, m); }, parseTooltipStyle);
  }
}

void StyleSheet::applyAliases() {
  const auto alias = [&](const wchar_t* name, std::initializer_list<const wchar_t*> sources) {
    if (buttons.contains(name)) return;  // a skin's own style of that id stands
    for (const wchar_t* source : sources) {
      if (const ButtonStyle* style = buttons.find(source)) {
        buttons.set(name, *style);
        return;
      }
    }
  };
  alias(L"success-action", {L"success"});
  alias(L"warning-action", {L"warning"});
  alias(L"danger-action", {L"danger"});
  alias(L"action", {L"primary-action", L"primary"});
  alias(L"designed-help", {L"quiet", L"secondary"});
}

}  // namespace tessel
