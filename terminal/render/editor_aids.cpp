#include "terminal/render/editor_aids.h"

namespace algo::terminal {

TEditorAids::~TEditorAids() = default;

std::vector<TCompletion> TEditorAids::Completions(const forms::TTextEdit& /*editor*/,
                                                  std::string_view /*typed*/) const {
  return {};
}

}  // namespace algo::terminal
