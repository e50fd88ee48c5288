#include "terminal/ui_driver/script_windows.h"

namespace algo::terminal::ui_driver {

TScriptWindows::~TScriptWindows() = default;

}  // namespace algo::terminal::ui_driver
