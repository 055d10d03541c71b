// A skin's main surfaces painted by the full surface painter under `best-graphics` on a
// 320x200 opaque image: panel, card, buttons in their four states, check boxes, status chip,
// primary button, text input and table header with a selected row, each with text samples in
// the skin's own colours (stand-in font).
#pragma once

#include "tessel/style/image.h"
#include "tessel/skin/skin_definition.h"

tessel::Image DrawSkinGallery(const tessel::SkinDefinition& skin);
