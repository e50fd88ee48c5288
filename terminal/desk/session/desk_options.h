#pragma once

// What the desktop is started with.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "plugin/host_contract/base_view.h"
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
  /// Puts a layer around the module's view provider, say one that watches its calls; may be empty.
  std::function<std::unique_ptr<host::TIBaseView>(std::unique_ptr<host::TIBaseView>)> layer;
};

}  // namespace algo::terminal::desk
