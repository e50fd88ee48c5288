#include "terminal/render/editor_assist.h"

namespace algo::terminal::render {

TEditorAssist::~TEditorAssist() = default;

std::vector<TCompletion> TEditorAssist::Completions(const forms::TTextEdit& /*editor*/,
                                                    std::string_view /*typed*/) const {
  return {};
}

}  // namespace algo::terminal::render
