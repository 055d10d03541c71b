// Source-over of premultiplied BGRA pixels with a constant opacity, as AlphaBlend computes it:
// the source is first scaled by the opacity, s' = round(s * opacity / 255) in every channel,
// then each channel becomes min(255, s' + round(d * (255 - alpha') / 255)). Rows are blended
// four pixels at a time where the processor allows; the results are the same bytes.
#pragma once

#include <cstdint>

namespace tessel {

// One pixel, the definition.
void blendPixel(uint8_t* target, const uint8_t* source, uint32_t opacity);

// `count` pixels of one row. Fully transparent source pixels leave the target as it is, and
// opaque ones under full opacity replace it.
void blendRow(uint8_t* target, const uint8_t* source, int32_t count, uint8_t opacity);

// Writes the BGRA word `value` into `count` pixels.
void fillRow(uint8_t* target, uint32_t value, int32_t count);

}  // namespace tessel
