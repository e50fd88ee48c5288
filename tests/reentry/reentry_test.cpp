// Whatever a host does in the middle of a call, at any call of any story: nothing breaks, nothing is left
// behind, and nothing goes out that did not go out without it.
//
// ALGO_REENTRY_RUNS says how many runs are drawn, ALGO_REENTRY_SEED which; ALGO_REENTRY_ALL plays all of
// them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "terminal/host/service_operations.h"
#include "tests/reentry/played_story.h"

namespace algo::reentry {
namespace {

using terminal::TServiceOperation;

// No command makes more calls of one operation, but for the texts, which all come anew with a language.
constexpr int MostCalls = 40;
constexpr int MostTexts = 250;

/// One thing that a host does in the middle of a call.
struct TDeed {
  const char* name;
  std::vector<TCommandJson> commands;
  bool changesForms = false;  ///< clicks that came to nothing may send something now, and something else
};

/// A call of a service during a command.
struct TCall {
  TPath command;
  std::string operation;
  int nth;
};

TCommandJson Without(TCommandJson command) {
  command.erase("modal");
  command.erase("inside");
  return command;
}

std::vector<TDeed> DeedsAt(const TStory& story, const TCommandJson& running) {
  std::vector<TCommandJson> posts;
  std::vector<TCommandJson> closeAll{{{"do", "dismiss"}, {"result", 2}}};
  std::vector<TCommandJson> closeForms{{{"do", "dismiss"}, {"result", 2}}};
  const std::string frame = running.value("frame", "e1");
  for (const TCommandJson& command : story.commands) {
    if (command["do"] == "post" && command["channel"] == 18011) posts.push_back(Without(command));
    if (command["do"] == "open") closeAll.push_back({{"do", "close"}, {"frame", command["frame"]}});
    if (command["do"] == "order") {
      const TCommandJson close{{"do", "close_form"},
                               {"frame", "change:" + command["key"].get<std::string>()}};
      closeAll.push_back(close);
      closeForms.push_back(close);
    }
  }
  const TCommandJson copied{
      {"do", "order"},    {"key", "COPIED"}, {"account", "A2"}, {"symbol", "0700"},
      {"exchange", "HK"}, {"quantity", 300}, {"price", 7},      {"algo_text", "TMLO:AlgoId=PEG,Join=1;"}};
  const auto language = [](const std::string& of) {
    return TCommandJson{{"do", "language"}, {"frame", of}, {"language", 1}};
  };
  return {
      {"closes the frame", {{{"do", "close"}, {"frame", frame}}}, true},
      {"closes all", closeAll, true},
      {"closes the forms", closeForms, true},
      {"posts the same actions again", posts},
      {"presses the same again", {Without(running)}},
      {"copies an order", {copied, {{"do", "post"}, {"channel", 18010}, {"order", "COPIED"}}}, true},
      {"copies a price", {copied, {{"do", "post"}, {"channel", 18016}, {"order", "COPIED"}}}, true},
      {"changes the language", {language(frame), language("e1")}},
      {"restores a layout",
       {{{"do", "layout"},
         {"frame", frame},
         {"text", "Symbol=0700,Exchange=US,OrderType=Res_Algo_OrderType_TWAP"}}},
       true},
      {"changes the settings", {{{"do", "config_changed"}}}},
      {"destroys the provider", {{{"do", "drop_provider"}}}},
  };
}

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

/// What an order is apart from the keys that the host gives it.
std::string Content(TAnswerJson sent) {
  for (const char* given : {"key", "order_no"}) sent["order"].erase(given);
  sent.erase("answer");
  return sent.dump();
}

int Setting(const char* name, int otherwise) {
  const char* text = std::getenv(name);
  return text != nullptr ? std::atoi(text) : otherwise;
}

class Reentry : public testing::Test {
 protected:
  struct TPrepared {
    TStory story;
    std::vector<TCall> calls;
    std::vector<std::string> sent;
    std::size_t clicks;  ///< on buttons that may send an order
  };

  static TPrepared Prepared(const TStory& story) {
    TPrepared prepared{story, CallsOf(story), {}, ClicksThatSend(story)};
    for (const auto& sent : Play(story).sent) prepared.sent.push_back(Content(sent));
    return prepared;
  }

  static void Run(const TPrepared& prepared, const TCall& call, const TDeed& deed, bool after) {
    TStory story = prepared.story;
    const TCommandJson entry{
        {"call", call.operation}, {"nth", call.nth}, {"after", after}, {"commands", deed.commands}};
    CommandAt(story, call.command)["inside"] = TCommandJson::array({entry});
    SCOPED_TRACE(story.name + ": a host that " + deed.name + (after ? " after " : " before ") +
                 std::to_string(call.nth) + ". " + call.operation + " of " +
                 CommandAt(story, call.command).dump());
    const TPlayed played = Play(story);
    EXPECT_EQ(played.broken, std::vector<std::string>());
    EXPECT_EQ(played.left, "");
    EXPECT_LE(played.sent.size(), deed.changesForms ? prepared.clicks : prepared.sent.size());
    if (deed.changesForms) return;
    auto clean = prepared.sent;
    for (const auto& sent : played.sent) {
      const auto found = std::find(clean.begin(), clean.end(), Content(sent));
      if (found == clean.end()) {
        ADD_FAILURE() << "went out only so: " << sent.dump();
      } else {
        clean.erase(found);
      }
    }
  }
};

TEST_F(Reentry, BreaksNothingLeavesNothingAndSendsNothingMore) {
  std::vector<TStory> stories = ReadStories(ALGO_SCENARIOS);
  ASSERT_GE(stories.size(), 100U);
  if (Setting("ALGO_REENTRY_ALL", 0) != 0) {
    for (TStory& story : stories) {
      const TPrepared prepared = Prepared(story);
      for (const TCall& call : prepared.calls) {
        for (const TDeed& deed : DeedsAt(story, CommandAt(story, call.command))) {
          for (const bool after : {false, true}) Run(prepared, call, deed, after);
        }
      }
    }
    return;
  }
  // Finding the calls of a story takes as long as fifty runs of it, so a sample is of some of the stories.
  constexpr std::size_t SampledStories = 30;
  std::mt19937 random(static_cast<unsigned>(Setting("ALGO_REENTRY_SEED", 1)));
  std::shuffle(stories.begin(), stories.end(), random);
  std::vector<TPrepared> prepared;
  for (std::size_t i = 0; i < SampledStories; ++i) prepared.push_back(Prepared(stories[i]));
  const auto draw = [&random](std::size_t count) { return random() % count; };
  for (int run = Setting("ALGO_REENTRY_RUNS", 1000); run > 0; --run) {
    TPrepared& drawn = prepared[draw(prepared.size())];
    ASSERT_GT(drawn.calls.size(), 10U) << drawn.story.name;
    const TCall& call = drawn.calls[draw(drawn.calls.size())];
    const auto deeds = DeedsAt(drawn.story, CommandAt(drawn.story, call.command));
    Run(drawn, call, deeds[draw(deeds.size())], draw(2) == 1);
  }
}

}  // namespace
}  // namespace algo::reentry
