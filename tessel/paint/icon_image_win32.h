// A Windows icon as a premultiplied toolkit image, for title bars that show the program's icon.
#pragma once

#include <windows.h>

#include "tessel/style/image.h"

namespace tessel {

// The icon's colour bitmap with its alpha; an icon without alpha takes its mask. Empty on
// failure.
Image imageFromIcon(HICON icon);

}  // namespace tessel
