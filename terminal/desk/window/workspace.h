#pragma once

// A workspace: what the trader has open, where it stands and what is typed in it; as a value, and as the text
// that is stored.

#include <QByteArray>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "terminal/desk/appearance/texts.h"
#include "terminal/desk/frames/stored_entry.h"

namespace algo::terminal::desk::window {

struct TWorkspace {
  appearance::TLanguage language = appearance::TLanguage::English;
  std::string skin;  ///< its name
  QByteArray geometry;
  QByteArray panels;  ///< where the panels stand
  std::string watchGroup;
  std::string ordersGroup;
  std::vector<frames::TStoredEntry> entries;

  bool operator==(const TWorkspace&) const = default;
};

/// The workspace as a text of JSON.
std::string WorkspaceText(const TWorkspace& workspace);

/// The workspace that the text shows; nothing for a text that is none, or of another version.
std::optional<TWorkspace> ParseWorkspace(std::string_view text);

}  // namespace algo::terminal::desk::window
