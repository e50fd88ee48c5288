#include "tests/reentry/prepared_story.h"

#include <algorithm>
#include <cstdlib>

#include "terminal/host/service_operations.h"

namespace algo::reentry {

namespace {

using terminal::TServiceOperation;

// No command makes more calls of one operation, but for the texts, which all come anew with a language.
constexpr int MostCalls = 40;
constexpr int MostTexts = 250;

/// The calls that the story makes, by playing it once with an entry for each that may come.
std::vector<TCall> CallsOf(const TStory& story) {
  TStory watched = story;
  TCommandJson entries = TCommandJson::array();
  for (std::size_t i = 0; i < terminal::ServiceOperationCount; ++i) {
    const auto operation = static_cast<TServiceOperation>(i);
    const auto name = std::string(terminal::RowOf(operation).name);
    const int most = operation == TServiceOperation::LanguageText ? MostTexts : MostCalls;
    for (int nth = 1; nth <= most; ++nth) {
      entries.push_back({{"call", name}, {"nth", nth}, {"commands", TCommandJson::array()}});
    }
  }
  auto paths = PathsOf(story);
  for (auto path = paths.rbegin(); path != paths.rend(); ++path)
    CommandAt(watched, *path)["inside"] = entries;
  const TPlayed played = Play(watched);
  std::vector<TCall> calls;
  for (const TPath& path : paths) {
    const TAnswerJson* answer = &played.answers[path.front()];
    for (std::size_t i = 1; i + 1 < path.size() && answer != nullptr; i += 2) {
      const bool there = answer->contains("modal") && path[i] < (*answer)["modal"].size() &&
                         path[i + 1] < (*answer)["modal"][path[i]]["answers"].size();
      answer = there ? &(*answer)["modal"][path[i]]["answers"][path[i + 1]] : nullptr;
    }
    if (answer == nullptr || !answer->contains("inside")) continue;
    for (const auto& reached : (*answer)["inside"]) {
      calls.push_back({path, reached["call"].get<std::string>(), reached["nth"].get<int>()});
    }
  }
  return calls;
}

std::size_t ClicksThatSend(TStory story) {
  const auto paths = PathsOf(story);
  return static_cast<std::size_t>(std::ranges::count_if(paths, [&story](const TPath& path) {
    const std::string control = CommandAt(story, path).value("control", "");
    return control == "btnSubmit" || control == "btnWork" || control == "btnBuy" || control == "btnSell";
  }));
}

}  // namespace

TPrepared Prepared(const TStory& story) {
  TPlayed clean = Play(story);
  TPrepared prepared{story, CallsOf(story), std::move(clean.answers), {}, ClicksThatSend(story)};
  for (const auto& sent : clean.sent) prepared.sent.push_back(Content(sent));
  return prepared;
}

std::string Content(TAnswerJson sent) {
  for (const char* given : {"key", "order_no"}) sent["order"].erase(given);
  sent.erase("answer");
  return sent.dump();
}

int Setting(const char* name, int otherwise) {
  const char* text = std::getenv(name);
  return text != nullptr ? std::atoi(text) : otherwise;
}

std::vector<TPrepared> Sample(std::mt19937& random) {
  constexpr std::size_t Size = 30;
  std::vector<TStory> stories = ReadStories(ALGO_SCENARIOS);
  std::shuffle(stories.begin(), stories.end(), random);
  std::vector<TPrepared> sample;
  for (std::size_t i = 0; i < Size && i < stories.size(); ++i) sample.push_back(Prepared(stories[i]));
  return sample;
}

}  // namespace algo::reentry
