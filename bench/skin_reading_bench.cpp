// Reading skins happens at start and on every skin change: the JSON reader's throughput on a
// 1 MB skin-like document, and one full set of control style records laid over from flattened
// keys, as a window does when it applies a skin.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "base/wide_text.h"
#include "tessel/skin/style_record.h"
#include "tessel/skin/json_value.h"
#include "tessel/skin/skin_catalogue.h"
#include "tessel/skin/style_sheet.h"
#include "tessel/skin/style_builders.h"

namespace {

using namespace tessel;

// One skin in the shape the shipped files have: theme, materials, shapes, styles, variants.
std::wstring SkinText(int index) {
  const std::wstring id = DecimalText(static_cast<unsigned>(index));
  return L"{\n  \"id\": \"bench-skin-" + id + L"\",\n  \"name\": \"Bench skin " + id +
         L"\",\n  \"description\": \"A skin-like document for measuring the reader.\",\n"
         L"  \"tags\": [\"dark\", \"glass\", \"bench\"],\n"
         L"  \"theme\": {\"frame\": \"#A47A45\", \"shell\": \"#050A0F\", \"panel\": \"#07161D\", "
         L"\"header\": \"#0C3A36\", \"control\": \"#08161C\", \"control_hot\": \"#1F5252\", "
         L"\"text\": \"#D3E4DD\", \"ui_font_family\": \"Segoe UI Variable\", \"ui_point_size\": "
         L"10},\n"
         L"  \"materials\": {\"surface\": \"slate\", \"strength\": 140, \"finish\": \"satin\"},\n"
         L"  \"shapes\": {\"button\": {\"primary\": \"capsule\", \"secondary\": \"rounded-rect\"}, "
         L"\"card\": \"bevel\"},\n"
         L"  \"styles\": {\n"
         L"    \"button\": {\"primary\": {\"surface\": {\"fill\": \"#2A6FDB\", \"gradient_end\": "
         L"[30, 80, 200], \"shadow_offset_y\": 4, \"hot\": {\"fill\": \"#3A7FEB\"}, \"pressed\": "
         L"{\"fill\": \"#1A5FCB\"}}, \"text\": {\"weight\": \"bold\", \"pointSize\": 9.5}}},\n"
         L"    \"panel\": {\"default\": {\"surface\": {\"material\": \"granite\", \"nine_slice\": "
         L"{\"left\": 8, \"top\": 8, \"right\": 8, \"bottom\": 8}, \"textInsets\": [6, 4]}}},\n"
         L"    \"table\": {\"default\": {\"row_height\": 28, \"header\": {\"fill\": \"#0C3A36\"}, "
         L"\"selected_row\": {\"fill\": \"#1F5252\", \"opacity\": 0.9e3}}}\n"
         L"  },\n"
         L"  \"variants\": {\"button\": {\"stayhold-primary\": {\"base\": \"primary\", \"shape\": "
         L"\"pill\", \"description\": \"Escapes \\\" \\\\ \\n \\u00e9 stay in.\"}}}\n}";
}

std::wstring Document(size_t bytes) {
  std::wstring text = L"[\n";
  for (int i = 0; Utf8FromWide(text).size() < bytes; ++i) {
    if (i > 0) text += L",\n";
    text += SkinText(i);
  }
  return text + L"\n]";
}

void ParseSkinDocument(benchmark::State& state) {
  const std::wstring text = Document(1 << 20);
  const size_t bytes = Utf8FromWide(text).size();
  for (auto _ : state) {
    JsonValue value;
    benchmark::DoNotOptimize(parseJsonText(text, value));
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
  state.counters["document_bytes"] = static_cast<double>(bytes);
}
BENCHMARK(ParseSkinDocument)->Unit(benchmark::kMillisecond);

// Every control kind's record: built from the theme, then keys laid over from a flattened
// style object that touches surfaces, states, text and metrics of each.
void FlattenAndParseStyleSet(benchmark::State& state) {
  const std::wstring kinds[] = {L"button",   L"panel",      L"card",  L"chrome",  L"chip",
                                L"progress", L"scroll",     L"check", L"select",  L"list",
                                L"date",     L"tabs",       L"menu",  L"table",   L"rich",
                                L"input",    L"selectable", L"popup", L"tooltip", L"window"};
  std::wstring json = L"{";
  for (const std::wstring& kind : kinds) {
    if (json.size() > 1) json += L",";
    json += L"\"" + kind +
            L"\": {\"shape\": \"capsule\", \"surface\": {\"fill\": \"#203040\", \"border\": "
            L"\"10,20,30\", \"material\": \"marble\", \"hot\": {\"fill\": \"#304050\"}}, "
            L"\"header\": {\"fill\": \"#405060\"}, \"text\": {\"weight\": \"semibold\"}, "
            L"\"row_height\": 30, \"padding\": 10, \"thumb\": {\"opacity\": 200}}";
  }
  json += L"}";
  JsonValue value;
  if (!parseJsonText(json, value)) {
    state.SkipWithError("style document does not parse");
    return;
  }
  const Theme theme;
  const StyleContext context{&theme, L""};
  for (auto _ : state) {
    PropertyTable table;
    flattenProperties(value, L"", table);
    ButtonStyle button = buildButtonStyle(theme, SurfaceMode::Sculpted3d, ButtonTone::Primary);
    parseStyle(StyleReader(table, L"button", context), button);
    PanelStyle panel = buildPanelStyle(theme, SurfaceMode::Sculpted3d, PanelTone::Default);
    parseStyle(StyleReader(table, L"panel", context), panel);
    CardStyle card = buildCardStyle(theme, SurfaceMode::Sculpted3d, CardTone::Default);
    parseStyle(StyleReader(table, L"card", context), card);
    ChromeTitleBarStyle chrome = buildChromeTitleBarStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"chrome", context), chrome);
    StatusChipStyle chip = buildStatusChipStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"chip", context), chip);
    ProgressBarStyle progress = buildProgressBarStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"progress", context), progress);
    ScrollBarStyle scroll = buildScrollBarStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"scroll", context), scroll);
    CheckBoxStyle check = buildCheckBoxStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"check", context), check);
    SelectBoxStyle select = buildSelectBoxStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"select", context), select);
    HierarchicalListBoxStyle list = buildHierarchicalListBoxStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"list", context), list);
    DateInputStyle date = buildDateInputStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"date", context), date);
    TabStripStyle tabs = buildTabStripStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"tabs", context), tabs);
    MenuBarStyle menu = buildMenuBarStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"menu", context), menu);
    TableListStyle tableList = buildTableListStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"table", context), tableList);
    RichTextStyle rich = buildRichTextStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"rich", context), rich);
    TextInputStyle input = buildTextInputStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"input", context), input);
    SelectableTextStyle selectable = buildSelectableTextStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"selectable", context), selectable);
    PopupStyle popup = buildPopupStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"popup", context), popup);
    TooltipStyle tooltip = buildTooltipStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"tooltip", context), tooltip);
    WindowStyle window = buildWindowStyle(theme, SurfaceMode::Sculpted3d);
    parseStyle(StyleReader(table, L"window", context), window);
    benchmark::DoNotOptimize(button);
    benchmark::DoNotOptimize(date);
    benchmark::DoNotOptimize(window);
    if (button.surface.hot.fill != rgbColor(0x30, 0x40, 0x50)) {
      state.SkipWithError("the keys were not applied");
      break;
    }
  }
}
BENCHMARK(FlattenAndParseStyleSet)->Unit(benchmark::kMicrosecond);

}  // namespace

namespace {

// What a process does once at start: the four shipped files parsed into the catalogue, and the
// sheet of one skin built, as the first window applies it.
void ShippedCatalogueAndOneSheet(benchmark::State& state) {
  const std::wstring folder = std::filesystem::path(STAYHOLD_SOURCE_DIR "/skins").wstring();
  size_t skins = 0;
  for (auto _ : state) {
    const std::vector<SkinDefinition> catalogue = loadSkinFolder(folder);
    skins = catalogue.size();
    if (catalogue.empty()) {
      state.SkipWithError("no shipped skins found");
      break;
    }
    const StyleSheet sheet(*findSkinOrDefault(catalogue, L"stayhold-tactical-3d"));
    benchmark::DoNotOptimize(sheet.buttons.get(L"stayhold-primary"));
  }
  state.counters["skins"] = static_cast<double>(skins);
}
BENCHMARK(ShippedCatalogueAndOneSheet)->Unit(benchmark::kMillisecond);

}  // namespace
