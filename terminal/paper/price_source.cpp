#include "terminal/paper/price_source.h"

namespace algo::terminal::paper {

TPriceSource::~TPriceSource() = default;

}  // namespace algo::terminal::paper
