// The overlay painter for the x86-64 baseline (SSE2).
#include "tessel/paint/material_layers.h"

#define MATERIAL_LAYERS_NS baseline
#include "tessel/paint/material_overlay.inc"
