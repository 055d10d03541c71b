// The painter against its targets: a 900 x 700 window's worth of surfaces laid out like the
// settings dialog, cold (empty layer cache) and warm, under balanced and best graphics; and the
// gradient layer of one 900 x 700 rounded rectangle beside a reference 2D library's fills of
// the same shape in the same run (that library is used here only, never by the product).
#include <benchmark/benchmark.h>
#include <cairo.h>

#include <cmath>

#include "tessel/paint/image_canvas.h"
#include "tessel/paint/layer_cache.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/skin_catalogue.h"
#include "tessel/skin/style_sheet.h"

namespace {

using namespace tessel;

const SkinDefinition& Skin() {
  static const std::vector<SkinDefinition> skins =
      loadSkinFolder(std::filesystem::path(STAYHOLD_SOURCE_DIR "/skins").wstring());
  static const SkinDefinition* skin = findSkinOrDefault(skins, L"stayhold-tactical-3d");
  return *skin;
}

// The settings dialog's surfaces: window, title bar, cards, chip, inputs, table, buttons.
void PaintDialog(Canvas& canvas, const StyleSheet& sheet, UiPerformanceProfile profile) {
  drawSurface(canvas, Rect{0, 0, 900, 700}, sheet.window().surface, profile);
  drawSurface(canvas, Rect{0, 0, 900, 42}, sheet.chromeTitleBars.get(L"stayhold-chrome").surface,
              profile);
  const CardStyle& card = sheet.cards.get(L"stayhold-card");
  for (const Rect& r : {Rect{20, 60, 860, 150}, Rect{20, 230, 860, 390}}) {
    drawSurface(canvas, r, card.surface, profile);
    drawSurface(canvas, Rect{r.x, r.y, r.width, 34}, card.header, profile);
  }
  drawSurface(canvas, Rect{40, 110, 300, 26}, sheet.statusChips.get(L"stayhold-active").surface,
              profile);
  const SelectBoxStyle& select = sheet.selectBoxes.get(L"stayhold-select");
  drawSurface(canvas, Rect{40, 150, 260, 32}, select.surface.normal, profile);
  const TextInputStyle& input = sheet.textInputs.get(L"stayhold-input");
  drawSurface(canvas, Rect{320, 150, 260, 32}, input.surface.normal, profile);
  const TableListStyle& table = sheet.tableLists.get(L"stayhold-table");
  drawSurface(canvas, Rect{40, 280, 820, 280}, table.surface, profile);
  drawSurface(canvas, Rect{40, 280, 820, 30}, table.header, profile);
  drawSurface(canvas, Rect{40, 366, 820, 56}, table.selectedRow, profile);
  for (int i = 0; i < 3; ++i) {
    drawSurface(canvas, Rect{600 + i * 96, 150, 88, 32},
                sheet.buttons.get(L"stayhold-secondary").surface.normal, profile);
  }
  drawSurface(canvas, Rect{760, 640, 120, 36},
              sheet.buttons.get(L"stayhold-primary").surface.normal, profile);
}

void Dialog(benchmark::State& state, UiPerformanceProfile profile, bool warm) {
  const StyleSheet sheet(Skin());
  Image target = Image::blank(900, 700);
  ImageCanvas canvas(target);
  if (warm) PaintDialog(canvas, sheet, profile);
  for (auto _ : state) {
    if (!warm) {
      state.PauseTiming();
      clearPaintCaches();
      state.ResumeTiming();
    }
    PaintDialog(canvas, sheet, profile);
  }
  clearLayerCache();
}
void DialogBalancedCold(benchmark::State& s) {
  Dialog(s, UiPerformanceProfile::Balanced, false);
}
void DialogBalancedWarm(benchmark::State& s) {
  Dialog(s, UiPerformanceProfile::Balanced, true);
}
void DialogBestCold(benchmark::State& s) {
  Dialog(s, UiPerformanceProfile::BestGraphics, false);
}
void DialogBestWarm(benchmark::State& s) {
  Dialog(s, UiPerformanceProfile::BestGraphics, true);
}
BENCHMARK(DialogBalancedCold)->Unit(benchmark::kMillisecond);
BENCHMARK(DialogBalancedWarm)->Unit(benchmark::kMillisecond);
BENCHMARK(DialogBestCold)->Unit(benchmark::kMillisecond);
BENCHMARK(DialogBestWarm)->Unit(benchmark::kMillisecond);

SurfaceStyle GradientStyle() {
  SurfaceStyle s;
  s.shape = ShapeKind::RoundedRect;
  s.useGradient = true;
  s.drawBorder = false;
  s.gradientStart = rgbColor(20, 40, 60);
  s.gradientEnd = rgbColor(120, 160, 200);
  return s;
}

// Producing the gradient layer, as on a cold cache.
void GradientLayerCold(benchmark::State& state) {
  const SurfaceStyle s = GradientStyle();
  Image layer = Image::blank(900, 700);
  for (auto _ : state) {
    produceGradientLayer(layer, s, Rect{0, 0, 900, 700});
    benchmark::DoNotOptimize(layer.pixels->data());
  }
  state.counters["ns_per_px"] = benchmark::Counter(
      900.0 * 700.0, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(GradientLayerCold)->Unit(benchmark::kMillisecond);

// Blending the kept layer, as on every warm paint.
void GradientLayerWarm(benchmark::State& state) {
  const SurfaceStyle s = GradientStyle();
  Image target = Image::blank(900, 700);
  ImageCanvas canvas(target);
  clearPaintCaches();
  drawSurface(canvas, Rect{0, 0, 900, 700}, s, UiPerformanceProfile::BestGraphics);
  for (auto _ : state)
    drawSurface(canvas, Rect{0, 0, 900, 700}, s, UiPerformanceProfile::BestGraphics);
  clearLayerCache();
}
BENCHMARK(GradientLayerWarm)->Unit(benchmark::kMillisecond);

void RoundedPath(cairo_t* cr, double w, double h) {
  const double r = cornerDiameter(int32_t(w), int32_t(h)) / 2.0;
  cairo_new_sub_path(cr);
  cairo_arc(cr, w - r, r, r, -M_PI / 2, 0);
  cairo_arc(cr, w - r, h - r, r, 0, M_PI / 2);
  cairo_arc(cr, r, h - r, r, M_PI / 2, M_PI);
  cairo_arc(cr, r, r, r, M_PI, 3 * M_PI / 2);
  cairo_close_path(cr);
}

void ReferenceLinearGradientFill(benchmark::State& state) {
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 900, 700);
  cairo_t* cr = cairo_create(surface);
  cairo_pattern_t* gradient = cairo_pattern_create_linear(0, 0, 0, 699);
  cairo_pattern_add_color_stop_rgb(gradient, 0, 20 / 255.0, 40 / 255.0, 60 / 255.0);
  cairo_pattern_add_color_stop_rgb(gradient, 1, 120 / 255.0, 160 / 255.0, 200 / 255.0);
  for (auto _ : state) {
    RoundedPath(cr, 900, 700);
    cairo_set_source(cr, gradient);
    cairo_fill(cr);
    cairo_surface_flush(surface);
  }
  cairo_pattern_destroy(gradient);
  cairo_destroy(cr);
  cairo_surface_destroy(surface);
}
BENCHMARK(ReferenceLinearGradientFill)->Unit(benchmark::kMillisecond);

void ReferenceSolidFill(benchmark::State& state) {
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 900, 700);
  cairo_t* cr = cairo_create(surface);
  for (auto _ : state) {
    RoundedPath(cr, 900, 700);
    cairo_set_source_rgb(cr, 0.2, 0.3, 0.4);
    cairo_fill(cr);
    cairo_surface_flush(surface);
  }
  cairo_destroy(cr);
  cairo_surface_destroy(surface);
}
BENCHMARK(ReferenceSolidFill)->Unit(benchmark::kMillisecond);

}  // namespace
