// The words a skin uses for the kinds of the style values: shapes, geometry modes, gradient
// directions and kinds, surface modes. The numbers behind them are stored in style records and
// cache keys, so they never change. An unknown word leaves the value as it was.
#pragma once

#include <cstdint>
#include <string>

#include "tessel/style/shape_kind.h"
#include "tessel/style/surface_mode.h"

namespace tessel {

// A skin's spelling ("pill", "cut-corner", ...) after trimming and lower-casing.
bool parseShapeKind(const std::wstring& text, ShapeKind& kind);
// A geometry mode word, compared after key normalization ("skin_alpha_hit_test").
bool parseGeometryMode(const std::wstring& text, GeometryMode& mode);
// "vertical" 0 ... "diagonalupreverse" 7, compared after key normalization; also the digits.
bool parseGradientDirection(const std::wstring& text, int32_t& direction);
// "linear" 0, "reflected" 1, "radial" 2, "diamond" 3, "conic" 4; also the digits.
bool parseGradientKind(const std::wstring& text, int32_t& kind);
// Trimmed and lower-cased; any word that isn't known gives Sculpted3d.
SurfaceMode parseSurfaceMode(const std::wstring& text);

}  // namespace tessel
