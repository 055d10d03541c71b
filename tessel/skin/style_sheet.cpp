#include "tessel/skin/style_sheet.h"

#include <array>
#include <tuple>
#include <type_traits>
#include <utility>

#include "tessel/skin/style_builders.h"
#include "tessel/skin/style_record.h"
#include "tessel/skin/surface_parser.h"

namespace tessel {

namespace {

// The first non-empty value among the base keys, normalized as ids are.
std::wstring baseKey(const PropertyTable& properties) {
  for (const wchar_t* key :
       {L"base", L"baseid", L"basedon", L"extends", L"inherit", L"inherits", L"from"}) {
    const auto found = properties.find(key);
    if (found != properties.end() && !found->second.empty()) return normalizeKey(found->second);
  }
  return std::wstring();
}

template <typename Record>
void parseRecord(const StyleReader& reader, Record& record) {
  parseStyle(reader, record);
}

void parseRecord(const StyleReader& reader, TextStyle& text) {
  parseTextStyle(reader, text);
}

template <typename Record, typename Fresh>
void overrideIn(StyleMap<Record>& map, const StyleOverride& entry, const StyleContext& context,
                Fresh fresh) {
  Record record;
  const std::wstring base = baseKey(entry.properties);
  if (const Record* named = base.empty() ? nullptr : map.find(base)) {
    record = *named;
  } else if (const Record* own = map.find(entry.id)) {
    record = *own;
  } else {
    record = fresh();
  }
  parseRecord(StyleReader(entry.properties, L"", context), record);
  map.set(entry.id, std::move(record));
}

// One control kind of the sheet: its map, the type words a skin's `styles` give it, and the
// record an id starts from when neither a base nor an earlier record of its own is found.
template <typename Record>
struct SheetKind {
  StyleMap<Record> StyleSheet::*map;
  std::array<const wchar_t*, 8> types;
  Record (*fresh)(const Theme& theme, SurfaceMode mode);
};

// Every kind but the window, whose one record reads only its "default" override.
constexpr auto kKinds = std::make_tuple(
    SheetKind<TextStyle>{
        &StyleSheet::text,
        {L"text", L"textstyle"},
        [](const Theme& t, SurfaceMode) { return buildTextStyle(t, TextTone::Default); }},
    SheetKind<ButtonStyle>{
        &StyleSheet::buttons,
        {L"button", L"buttons", L"buttonstyle"},
        [](const Theme& t, SurfaceMode m) { return buildButtonStyle(t, m, ButtonTone::Default); }},
    SheetKind<BitmapButtonStyle>{
        &StyleSheet::bitmapButtons,
        {L"bitmapbutton", L"bitmapbuttons", L"bitmap", L"imagebutton", L"glyphbutton"},
        [](const Theme& t, SurfaceMode) { return buildBitmapButtonStyle(t); }},
    SheetKind<PanelStyle>{
        &StyleSheet::panels,
        {L"panel", L"panelstyle"},
        [](const Theme& t, SurfaceMode m) { return buildPanelStyle(t, m, PanelTone::Default); }},
    SheetKind<CardStyle>{
        &StyleSheet::cards,
        {L"card", L"cardstyle"},
        [](const Theme& t, SurfaceMode m) { return buildCardStyle(t, m, CardTone::Default); }},
    SheetKind<ChromeTitleBarStyle>{&StyleSheet::chromeTitleBars,
                                   {L"chrometitlebar", L"titlebar", L"chrome"},
                                   buildChromeTitleBarStyle},
    SheetKind<StatusChipStyle>{
        &StyleSheet::statusChips, {L"statuschip", L"status"}, buildStatusChipStyle},
    SheetKind<ProgressBarStyle>{
        &StyleSheet::progressBars, {L"progressbar", L"progress"}, buildProgressBarStyle},
    SheetKind<ScrollBarStyle>{
        &StyleSheet::scrollBars, {L"scrollbar", L"scroll"}, buildScrollBarStyle},
    SheetKind<CheckBoxStyle>{&StyleSheet::checkBoxes, {L"checkbox", L"check"}, buildCheckBoxStyle},
    SheetKind<SelectBoxStyle>{&StyleSheet::selectBoxes,
                              {L"selectbox", L"select", L"combobox", L"combo"},
                              buildSelectBoxStyle},
    SheetKind<HierarchicalListBoxStyle>{
        &StyleSheet::listBoxes,
        {L"listbox", L"hierarchicallistbox", L"treelistbox", L"treelist", L"diskviewer",
         L"fileviewer", L"filelist", L"selectionlist"},
        buildHierarchicalListBoxStyle},
    SheetKind<DateInputStyle>{
        &StyleSheet::dateInputs, {L"dateinput", L"date", L"calendarinput"}, buildDateInputStyle},
    SheetKind<TabStripStyle>{
        &StyleSheet::tabStrips, {L"tabstrip", L"tabs", L"tab"}, buildTabStripStyle},
    SheetKind<MenuBarStyle>{&StyleSheet::menuBars,
                            {L"menubar", L"menu", L"windowmenu", L"windowsmenu"},
                            buildMenuBarStyle},
    SheetKind<TableListStyle>{
        &StyleSheet::tableLists, {L"tablelist", L"table", L"list"}, buildTableListStyle},
    SheetKind<RichTextStyle>{
        &StyleSheet::richTexts, {L"richtext", L"helptext"}, buildRichTextStyle},
    SheetKind<TextInputStyle>{
        &StyleSheet::textInputs, {L"textinput", L"input", L"edit"}, buildTextInputStyle},
    SheetKind<SelectableTextStyle>{
        &StyleSheet::selectableTexts, {L"selectabletext"}, buildSelectableTextStyle},
    SheetKind<PopupStyle>{&StyleSheet::popups, {L"popup", L"dialog"}, buildPopupStyle},
    SheetKind<TooltipStyle>{&StyleSheet::tooltips, {L"tooltip", L"tooltips"}, buildTooltipStyle});

template <typename F>
void eachKind(F&& f) {
  std::apply([&](const auto&... kind) { (f(kind), ...); }, kKinds);
}

// Calls `f` with every record of the kinds that have field rows (all but texts).
template <typename F>
void eachRecord(StyleSheet& sheet, F&& f) {
  eachKind([&](const auto& kind) {
    for (auto& [id, record] : (sheet.*kind.map).all()) {
      if constexpr (StyleRecord<std::remove_reference_t<decltype(record)>>) f(record);
    }
  });
}

bool typeIs(const std::wstring& type, const std::array<const wchar_t*, 8>& spellings) {
  for (const wchar_t* spelling : spellings)
    if (spelling != nullptr && type == normalizeKey(spelling)) return true;
  return false;
}

// The button ids that wear the accent: their role is `button.primary`, their material the
// accent slot.
bool accentButton(const std::wstring& id) {
  return id == L"primary" || id == L"primaryaction" || id == L"success" || id == L"warning" ||
         id == L"danger";
}

}  // namespace

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
  eachKind([&](const auto& kind) { (this->*kind.map).set(L"default", kind.fresh(t, m)); });
  // The tones a theme offers beyond "default" under their own ids.
  for (auto [id, tone] : {std::pair{L"title", TextTone::Title},
                          {L"muted", TextTone::Muted},
                          {L"mono", TextTone::Mono},
                          {L"secondary", TextTone::Secondary},
                          {L"danger", TextTone::Danger}})
    text.set(id, buildTextStyle(t, tone));
  for (auto [id, tone] : {std::pair{L"secondary", ButtonTone::Secondary},
                          {L"primary", ButtonTone::Primary},
                          {L"primary-action", ButtonTone::Primary},
                          {L"quiet", ButtonTone::Quiet},
                          {L"success", ButtonTone::Success},
                          {L"warning", ButtonTone::Warning},
                          {L"danger", ButtonTone::Danger}})
    buttons.set(id, buildButtonStyle(t, m, tone));
  for (auto [id, tone] : {std::pair{L"glass", PanelTone::Glass},
                          {L"raised", PanelTone::Raised},
                          {L"dashboard", PanelTone::Dashboard}})
    panels.set(id, buildPanelStyle(t, m, tone));
  for (auto [id, tone] : {std::pair{L"info", CardTone::Info},
                          {L"success", CardTone::Success},
                          {L"warning", CardTone::Warning},
                          {L"danger", CardTone::Danger}})
    cards.set(id, buildCardStyle(t, m, tone));
  window_ = buildWindowStyle(t, m);
}

void StyleSheet::applyShapes(const ShapeSet& set) {
  applyShapeRoles(window_, set);
  eachRecord(*this, [&](auto& record) { applyShapeRoles(record, set); });
  for (auto& [id, button] : buttons.all()) {
    for (const wchar_t* role :
         {L"button", accentButton(id) ? L"button.primary" : L"button.secondary"})
      if (const ShapeKind* kind = set.find(role)) shapeStyle(button, *kind);
  }
}

void StyleSheet::applyMaterials(const MaterialProfile& p) {
  if (!p.enabled) return;
  applyMaterialSlots(window_, p);
  eachRecord(*this, [&](auto& record) { applyMaterialSlots(record, p); });
  // A glass panel over paper would look like paper; it frosts instead.
  const MaterialKind glass =
      p.surface == MaterialKind::Paper ? MaterialKind::FrostedGlass : MaterialKind::Glass;
  for (auto& [id, panel] : panels.all()) {
    const bool glassy = id == L"glass";
    applyMainMaterial(panel, p, glassy ? glass : p.surface, {glassy ? 4 : -8});
  }
  for (auto& [id, button] : buttons.all()) {
    if (accentButton(id)) {
      applyMainMaterial(button, p, p.accent, kAccentStateDeltas);
    } else {
      applyMainMaterial(button, p, p.control,
                        id == L"quiet" ? kQuietStateDeltas : kControlStateDeltas);
    }
  }
}

void StyleSheet::applyOverride(const StyleOverride& entry, const StyleContext& context) {
  if (entry.type == L"window" || entry.type == L"windowstyle") {
    // A window reads only its "default" override; other ids have nothing to style.
    if (entry.id == L"default") parseStyle(StyleReader(entry.properties, L"", context), window_);
    return;
  }
  bool done = false;
  eachKind([&](const auto& kind) {
    if (done || !typeIs(entry.type, kind.types)) return;
    overrideIn(this->*kind.map, entry, context, [&] { return kind.fresh(theme_, mode_); });
    done = true;
  });
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
