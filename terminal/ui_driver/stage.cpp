#include "terminal/ui_driver/stage.h"

namespace algo::terminal {

TStage::~TStage() = default;

}  // namespace algo::terminal
