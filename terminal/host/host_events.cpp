#include "terminal/host/host_events.h"

#include <array>

namespace algo::terminal {

std::string_view NameOf(TEditorKind kind) {
  constexpr std::array<std::string_view, 4> Names{"account", "symbol", "price", "quantity"};
  return Names[static_cast<std::size_t>(kind)];
}

THostEvents::~THostEvents() = default;

std::uint32_t THostEvents::CallBegins(TServiceOperation /*operation*/) { return 0; }

void THostEvents::CallEnds(TServiceOperation /*operation*/, std::uint32_t /*number*/) {}

void THostEvents::FormAppearanceChanged(forms::TDialogForm& /*form*/) {}

}  // namespace algo::terminal
