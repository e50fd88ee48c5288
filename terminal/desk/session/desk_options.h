#pragma once

// What the desktop is started with.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "terminal/desk/appearance/skins.h"
#include "terminal/desk/appearance/texts.h"
#include "terminal/host/host_data.h"

namespace algo::terminal::desk {

struct TDeskOptions {
  std::string dataFolder;    ///< where orders, settings and workspaces are stored; made when it is not there
  std::string marketFolder;  ///< the tables of the paper market
  std::string moduleFile;
  std::string replayFile;  ///< a recording that the market plays; empty to have prices made up
  double speed = 1;        ///< of the recording; 2 plays it in half the time
  std::uint64_t seed = 1;  ///< of the prices that are made up
  std::optional<appearance::TLanguage> language;  ///< else the one of the workspace
  const appearance::TSkin* skin = nullptr;        ///< else the one of the workspace
  /// Changes the host's data before the module is loaded; may be empty.
  std::function<void(THostData&)> prepare;
};

}  // namespace algo::terminal::desk
