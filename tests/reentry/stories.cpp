#include "tests/reentry/stories.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace algo::reentry {

namespace {

void ReadLines(const std::filesystem::path& file, std::vector<TCommandJson>& commands) {
  std::ifstream in(file);
  if (!in) throw std::runtime_error("cannot read " + file.string());
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line.front() == '#') continue;
    TCommandJson command = TCommandJson::parse(line);
    if (command.contains("include")) {
      ReadLines(file.parent_path() / command["include"].get<std::string>(), commands);
    } else if (command.contains("do")) {
      commands.push_back(std::move(command));
    }
  }
}

bool LetsTheHostFail(const TCommandJson& command) {
  const std::string text = command.dump();
  return text.find("\"throw\"") != std::string::npos || text.find("\"inside\"") != std::string::npos ||
         text.find("drop_provider") != std::string::npos;
}

void AddPaths(const TCommandJson& command, const TPath& path, std::vector<TPath>& paths) {
  paths.push_back(path);
  if (!command.contains("modal")) return;
  const auto& dialogs = command["modal"];
  for (std::size_t dialog = 0; dialog < dialogs.size(); ++dialog) {
    for (std::size_t i = 0; i < dialogs[dialog].size(); ++i) {
      TPath inner = path;
      inner.insert(inner.end(), {dialog, i});
      AddPaths(dialogs[dialog][i], inner, paths);
    }
  }
}

}  // namespace

std::vector<TStory> ReadStories(const std::filesystem::path& folder) {
  std::vector<TStory> stories;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".jsonl") continue;
    TStory story{entry.path().stem().string(), {}};
    ReadLines(entry.path(), story.commands);
    if (std::ranges::none_of(story.commands, LetsTheHostFail)) stories.push_back(std::move(story));
  }
  std::ranges::sort(stories, {}, &TStory::name);
  return stories;
}

std::vector<TPath> PathsOf(const TStory& story) {
  std::vector<TPath> paths;
  for (std::size_t i = 0; i < story.commands.size(); ++i) AddPaths(story.commands[i], {i}, paths);
  return paths;
}

TCommandJson& CommandAt(TStory& story, const TPath& path) {
  TCommandJson* command = &story.commands[path.front()];
  for (std::size_t i = 1; i + 1 < path.size(); i += 2) {
    command = &(*command)["modal"][path[i]][path[i + 1]];
  }
  return *command;
}

}  // namespace algo::reentry
