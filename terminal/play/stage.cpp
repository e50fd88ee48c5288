#include "terminal/play/stage.h"

namespace algo::terminal {

TStage::~TStage() = default;

}  // namespace algo::terminal
