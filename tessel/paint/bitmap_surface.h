// Surfaces painted from an image: stretched whole or as a nine-slice plate, optionally
// recoloured first. A recoloured copy is made once per image and tint and kept with the image,
// so repeated paints cost one blend each.
#pragma once

#include <cstdint>
#include <vector>

#include "tessel/style/geometry.h"
#include "tessel/style/bitmap_tint.h"
#include "tessel/paint/canvas.h"
#include "tessel/style/image.h"
#include "tessel/style/surface_style.h"

namespace tessel {

// A 64-bit hash of every field of the tint that changes its result: mode, mask channel, both
// colours, the used palette entries, amount, threshold and the two flags.
uint64_t tintKey(const BitmapTint& tint);

// `image` recoloured by `tint`, of the same size, with every alpha kept except below the
// coverage threshold, where the pixel becomes transparent black. An inactive tint (mode None or
// amount 0) or an empty image gives `image` itself. The result is cached in the image's variant
// list under tintKey.
Image tintedImage(const Image& image, const BitmapTint& tint);

// One blend of a nine-slice plate: a part of the image and where it lands.
struct SlicePiece {
  Rect source;
  Rect target;
};

// The blends of a nine-slice plate of an image of `imageSize` drawn onto `target`: margins are
// clamped to the image, then again to the target, so that corners stay unscaled while there is
// room and shrink when there isn't. Pieces with a side below 1 are left out, in source or target.
std::vector<SlicePiece> nineSlicePieces(Size imageSize, const Rect& target, const NineSlice& slice);

// The whole image stretched onto `rect` with the constant alpha `opacity`, tinted first when
// the tint is active.
// Blends `image` centred in `room` at `opacity`, shrunk with its proportions kept when it is
// larger (glyphs and icons on buttons).
void blendImageFitted(Canvas& canvas, const Image& image, const Rect& room, uint8_t opacity = 255);

void drawImage(Canvas& canvas, const Image& image, const Rect& rect, const BitmapTint& tint,
               uint8_t opacity);

// The image as a nine-slice plate onto `rect` (see nineSlicePieces), tinted first when the
// tint is active.
void drawImageNineSlice(Canvas& canvas, const Image& image, const Rect& rect,
                        const NineSlice& slice, const BitmapTint& tint, uint8_t opacity);

}  // namespace tessel
