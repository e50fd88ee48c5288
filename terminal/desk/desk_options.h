#pragma once

// What the desktop is started with.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "terminal/desk/skins.h"
#include "terminal/desk/texts.h"
#include "terminal/host/host_data.h"

namespace algo::terminal {

struct TDeskOptions {
  std::string dataFolder;    ///< where orders, settings and workspaces are kept; made when it is not there
  std::string marketFolder;  ///< the tables of the paper market
  std::string moduleFile;
  std::string replayFile;             ///< a recording that the market plays; empty to have prices made up
  double speed = 1;                   ///< of the recording; 2 plays it in half the time
  std::uint64_t seed = 1;             ///< of the prices that are made up
  std::optional<TLanguage> language;  ///< else the one of the workspace
  const TSkin* skin = nullptr;        ///< else the one of the workspace
  std::function<void(THostData&)>
      prepare;                ///< changes the host's data before the module is loaded; may be empty
  std::string playFile;       ///< a script to play instead of waiting for a trader; empty for none
  std::string screensFolder;  ///< where pictures of the play go; empty for none
};

}  // namespace algo::terminal
