#include "terminal/render/editor_assist.h"

namespace algo::terminal::render {

TEditorAssist::~TEditorAssist() = default;

std::vector<TCompletion> TEditorAssist::Completions(const forms::TTextEdit& /*editor*/,
                                                    std::string_view /*typed*/) const {
  return {};
}

double TEditorAssist::Stepped(const forms::TSpinEdit& editor, double value, std::int32_t steps) const {
  return value + steps * editor.Step();
}

}  // namespace algo::terminal::render
