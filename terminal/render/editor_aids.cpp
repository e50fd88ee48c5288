#include "terminal/render/editor_aids.h"

namespace algo::terminal::render {

TEditorAids::~TEditorAids() = default;

std::vector<TCompletion> TEditorAids::Completions(const forms::TTextEdit& /*editor*/,
                                                  std::string_view /*typed*/) const {
  return {};
}

double TEditorAids::Stepped(const forms::TSpinEdit& editor, double value, std::int32_t steps) const {
  return value + steps * editor.Step();
}

}  // namespace algo::terminal::render
