#pragma once

// What a renderer asks of the terminal to help the trader type: matching accounts and symbols. What the
// terminal knows of a control it knows from its editor service; the renderer knows none of it.

#include <string>
#include <string_view>
#include <vector>

#include "forms/text_edit.h"

namespace algo::terminal {

/// One entry of a completing list: what is put into the editor, and what is shown beside it.
struct TCompletion {
  std::string text;
  std::string note;
};

class TEditorAids {
 public:
  virtual ~TEditorAids();

  /// What may be meant by `typed` in that editor, best first; empty for an editor that offers nothing.
  virtual std::vector<TCompletion> Completions(const forms::TTextEdit& editor, std::string_view typed) const;
};

}  // namespace algo::terminal
