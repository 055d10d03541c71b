// The looks of every control kind for one skin: per kind, a map from a style id to that kind's
// record. Built in a fixed order (theme, surface mode and shapes, material profile, the skin's
// overrides, aliases), so that a key in `variants` beats `styles`, which beats the material,
// which beats shapes and mode, which beat the theme. Ids are compared after key normalization;
// an id the sheet doesn't hold gives the kind's "default".
#pragma once

#include <map>
#include <string>

#include "tessel/style/bitmap_button_style.h"
#include "tessel/style/button_style.h"
#include "tessel/style/card_style.h"
#include "tessel/style/check_box_style.h"
#include "tessel/style/chrome_title_bar_style.h"
#include "tessel/style/date_input_style.h"
#include "tessel/style/hierarchical_list_box_style.h"
#include "tessel/style/menu_bar_style.h"
#include "tessel/style/panel_style.h"
#include "tessel/style/popup_style.h"
#include "tessel/style/progress_bar_style.h"
#include "tessel/style/rich_text_style.h"
#include "tessel/style/scroll_bar_style.h"
#include "tessel/style/select_box_style.h"
#include "tessel/style/selectable_text_style.h"
#include "tessel/style/status_chip_style.h"
#include "tessel/style/tab_strip_style.h"
#include "tessel/style/table_list_style.h"
#include "tessel/style/text_input_style.h"
#include "tessel/style/tooltip_style.h"
#include "tessel/style/window_style.h"
#include "tessel/skin/skin_definition.h"
#include "tessel/skin/style_reader.h"

namespace tessel {

template <typename Record>
class StyleMap {
 public:
  // The record of `id`, or of "default" when the sheet has no such id.
  const Record& get(const std::wstring& id) const {
    const auto found = records_.find(normalizeKey(id));
    if (found != records_.end()) return found->second;
    return records_.at(L"default");
  }
  const Record* find(const std::wstring& id) const {
    const auto found = records_.find(normalizeKey(id));
    return found == records_.end() ? nullptr : &found->second;
  }
  bool contains(const std::wstring& id) const { return find(id) != nullptr; }
  void set(const std::wstring& id, Record record) {
    records_[normalizeKey(id)] = std::move(record);
  }
  Record* edit(const std::wstring& id) {
    const auto found = records_.find(normalizeKey(id));
    return found == records_.end() ? nullptr : &found->second;
  }
  const std::map<std::wstring, Record>& all() const { return records_; }
  std::map<std::wstring, Record>& all() { return records_; }

 private:
  std::map<std::wstring, Record> records_;
};

class StyleSheet {
 public:
  // The sheet of a bare theme: theme-derived defaults in the default surface mode.
  explicit StyleSheet(const Theme& theme);
  // The full build for a skin.
  explicit StyleSheet(const SkinDefinition& skin);

  const Theme& theme() const { return theme_; }
  SurfaceMode surfaceMode() const { return mode_; }
  // The window's record: theme, mode and material, then only the window overrides with the id
  // "default".
  const WindowStyle& window() const { return window_; }

  StyleMap<TextStyle> text;
  StyleMap<ButtonStyle> buttons;
  StyleMap<BitmapButtonStyle> bitmapButtons;
  StyleMap<PanelStyle> panels;
  StyleMap<CardStyle> cards;
  StyleMap<ChromeTitleBarStyle> chromeTitleBars;
  StyleMap<StatusChipStyle> statusChips;
  StyleMap<ProgressBarStyle> progressBars;
  StyleMap<ScrollBarStyle> scrollBars;
  StyleMap<CheckBoxStyle> checkBoxes;
  StyleMap<SelectBoxStyle> selectBoxes;
  StyleMap<HierarchicalListBoxStyle> listBoxes;
  StyleMap<DateInputStyle> dateInputs;
  StyleMap<TabStripStyle> tabStrips;
  StyleMap<MenuBarStyle> menuBars;
  StyleMap<TableListStyle> tableLists;
  StyleMap<RichTextStyle> richTexts;
  StyleMap<TextInputStyle> textInputs;
  StyleMap<SelectableTextStyle> selectableTexts;
  StyleMap<PopupStyle> popups;
  StyleMap<TooltipStyle> tooltips;

 private:
  void buildFromTheme();
  void applyShapes(const ShapeSet& shapes);
  void applyMaterials(const MaterialProfile& profile);
  void applyOverride(const StyleOverride& entry, const StyleContext& context);
  void applyAliases();

  Theme theme_;
  SurfaceMode mode_ = SurfaceMode::Sculpted3d;
  WindowStyle window_;
};

}  // namespace tessel
