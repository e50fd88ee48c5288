#pragma once

// A workspace: what the trader has open, where it stands and what is typed in it, as a value and as a text to
// keep.

#include <QByteArray>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "terminal/desk/texts.h"

namespace algo::terminal {

/// One entry view.
struct TKeptEntry {
  std::string name;    ///< of its panel
  std::string group;   ///< its link group
  std::string layout;  ///< what the module gave as its layout text

  bool operator==(const TKeptEntry&) const = default;
};

struct TWorkspace {
  TLanguage language = TLanguage::English;
  std::string skin;  ///< its name
  QByteArray geometry;
  QByteArray panels;  ///< where the panels stand
  std::string watchGroup;
  std::string ordersGroup;
  std::vector<TKeptEntry> entries;

  bool operator==(const TWorkspace&) const = default;
};

/// The workspace as a text of JSON.
std::string WorkspaceText(const TWorkspace& workspace);

/// The workspace that the text shows; nothing for a text that is none, or of another version.
std::optional<TWorkspace> ParseWorkspace(std::string_view text);

}  // namespace algo::terminal
