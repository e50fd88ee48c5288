#include "terminal/paper/price_source.h"

namespace algo::terminal {

TPriceSource::~TPriceSource() = default;

}  // namespace algo::terminal
