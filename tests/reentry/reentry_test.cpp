// Whatever a host does in the middle of a call, at any call of any story: nothing breaks, nothing is left
// behind, and nothing goes out that did not go out without it.
//
// ALGO_REENTRY_RUNS says how many runs are drawn, ALGO_REENTRY_SEED which; ALGO_REENTRY_ALL plays all of
// them.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "tests/reentry/prepared_story.h"

namespace algo::reentry {
namespace {

/// One thing that a host does in the middle of a call.
struct TDeed {
  const char* name;
  std::vector<TCommandJson> commands;
  bool changesForms = false;  ///< clicks that came to nothing may send something now, and something else
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

class Reentry : public testing::Test {
 protected:
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
  std::mt19937 random(static_cast<unsigned>(Setting("ALGO_REENTRY_SEED", 1)));
  std::vector<TPrepared> prepared = Sample(random);
  const auto draw = [&random](std::size_t count) { return random() % count; };
  for (int run = Setting("ALGO_REENTRY_RUNS", 1000); run > 0; --run) {
    TPrepared& drawn = prepared[draw(prepared.size())];
    ASSERT_GT(drawn.calls.size(), 0U) << drawn.story.name;
    const TCall& call = drawn.calls[draw(drawn.calls.size())];
    const auto deeds = DeedsAt(drawn.story, CommandAt(drawn.story, call.command));
    Run(drawn, call, deeds[draw(deeds.size())], draw(2) == 1);
  }
}

}  // namespace
}  // namespace algo::reentry
