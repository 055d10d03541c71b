// The spatial shading painter for processors with AVX2: twice the lanes of the baseline.
#include "tessel/paint/material_layers.h"

#if TESSEL_MATERIAL_AVX2
#pragma GCC push_options
#pragma GCC target("avx2")
#define MATERIAL_LAYERS_NS avx2
#include "tessel/paint/material_spatial_shading.inc"
#pragma GCC pop_options
#endif
