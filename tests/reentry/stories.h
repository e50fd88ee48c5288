#pragma once

// The scenarios as lists of commands, to be played again with something else happening in the middle.

#include <filesystem>
#include <string>
#include <vector>

#include "terminal/drive/json.h"

namespace algo::reentry {

using terminal::drive::TAnswerJson;
using terminal::drive::TCommandJson;

struct TStory {
  std::string name;
  std::vector<TCommandJson> commands;
};

/// Every scenario below the folder but for those that let the host fail, in the order of their names: what
/// they include put in place, what they expect left out. Throws std::runtime_error at a file that cannot be
/// read.
std::vector<TStory> ReadStories(const std::filesystem::path& folder);

/// Where a command stands in a story: the place of a top command, then in turn the dialog and the command of
/// its script.
using TPath = std::vector<std::size_t>;

/// The paths of all commands, those inside of others behind them.
std::vector<TPath> PathsOf(const TStory& story);

TCommandJson& CommandAt(TStory& story, const TPath& path);

}  // namespace algo::reentry
