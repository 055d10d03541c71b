// Handing a drag to the system's interactive window move: a caption or card header asks, and
// the window layer, which alone knows how, installs the way to do it. Without one, nothing
// happens.
#pragma once

#include <functional>

namespace tessel {

class Control;

using SystemMoveHook = std::function<void(Control& source)>;

// Installs (or, given an empty function, removes) the process's way to start a move.
void setSystemMoveHook(SystemMoveHook hook);

// Starts a system move of the window that holds `source`; false when no hook is installed.
bool startSystemMove(Control& source);

}  // namespace tessel
