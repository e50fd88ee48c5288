// A host that fails, at any call of any story and in every way that it can: nothing breaks, nothing is left
// behind, and no order goes out that did not go out without it, and none twice.
//
// ALGO_REENTRY_RUNS says how many runs are drawn, ALGO_REENTRY_SEED which.

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "terminal/host/service_operations.h"
#include "tests/reentry/prepared_story.h"

namespace algo::reentry {
namespace {

/// What takes something back: where that fails, it is left with the host.
const std::set<std::string> GivesBack{"config.unlisten", "orders.free",      "channel.unsubscribe",
                                      "market.unlisten", "subscribe.remove", "skin.unlisten",
                                      "editor.remove"};

constexpr const char* Kinds[] = {"exception", "int", "empty", "wild", "false", "null"};

struct TFailure {
  std::string operation;
  int from;
  std::optional<int> times;
  std::string kind;
};

/// Whether the story went as before up to its end, as far as the one who plays it can see.
bool WentAsBefore(const std::vector<TAnswerJson>& before, const std::vector<TAnswerJson>& now) {
  return std::ranges::equal(before, now, [](const TAnswerJson& left, const TAnswerJson& right) {
    return left["ok"] == right["ok"];
  });
}

void RunFailing(const TPrepared& prepared, std::size_t command, const TFailure& failure) {
  TStory story = prepared.story;
  TCommandJson entry{{"call", failure.operation}, {"from", failure.from}, {"as", failure.kind}};
  if (failure.times) entry["times"] = *failure.times;
  const auto place = story.commands.begin() + static_cast<std::ptrdiff_t>(command);
  story.commands.insert(place, {{"do", "host"}, {"throw", TCommandJson::array({entry})}});
  story.commands.push_back({{"do", "host"}, {"throw", TCommandJson::array()}});
  SCOPED_TRACE(story.name + ": " + entry.dump() + " from " + prepared.story.commands[command].dump());
  TPlayed played = Play(story);
  EXPECT_EQ(played.broken, std::vector<std::string>());
  if (!GivesBack.contains(failure.operation)) {
    EXPECT_EQ(played.left, "");
  }
  EXPECT_LE(played.sent.size(), prepared.clicks);
  played.answers.erase(played.answers.begin() + static_cast<std::ptrdiff_t>(command));
  played.answers.pop_back();
  if (!WentAsBefore(prepared.answers, played.answers)) return;
  auto clean = prepared.sent;
  for (const auto& sent : played.sent) {
    const auto found = std::ranges::find(clean, Content(sent));
    if (found == clean.end()) {
      ADD_FAILURE() << "went out only so: " << sent.dump();
    } else {
      clean.erase(found);
    }
  }
}

TEST(FailingHost, BreaksNothingLeavesNothingAndHasNothingElseSent) {
  std::mt19937 random(static_cast<unsigned>(Setting("ALGO_REENTRY_SEED", 1)));
  const std::vector<TPrepared> prepared = Sample(random);
  const auto draw = [&random](std::size_t count) { return random() % count; };
  const std::optional<int> times[] = {1, 5, std::nullopt};
  for (int run = Setting("ALGO_REENTRY_RUNS", 1000); run > 0;) {
    const TPrepared& drawn = prepared[draw(prepared.size())];
    const TCall& call = drawn.calls[draw(drawn.calls.size())];
    const char* kind = Kinds[draw(std::size(Kinds))];
    const auto* row = terminal::FindServiceOperation(call.operation);
    if (call.command.size() > 1 || !row->CanFailAs(*terminal::FindFaultKind(kind))) continue;
    RunFailing(drawn, call.command.front(), {call.operation, call.nth, times[draw(std::size(times))], kind});
    --run;
  }
}

}  // namespace
}  // namespace algo::reentry
