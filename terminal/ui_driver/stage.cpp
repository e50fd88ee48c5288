#include "terminal/ui_driver/stage.h"

namespace algo::terminal::ui_driver {

TStage::~TStage() = default;

}  // namespace algo::terminal::ui_driver
