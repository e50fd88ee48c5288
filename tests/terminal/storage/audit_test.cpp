// What was done to orders stays on record, in the order in which it happened.

#include "terminal/storage/connection.h"
#include "tests/terminal/storage/storage_fixture.h"
#include "text/date_text.h"
#include "text/number_text.h"

namespace algo::terminal::storage::tests {
namespace {

struct TAudit : TStorageTest {
  /// An event in words.
  static std::string Line(const TStoredEvent& kept) {
    return std::to_string(kept.sequence) + " " + kept.event.who + " " + kept.event.what + " " +
           kept.event.answer + " " + kept.orderKey;
  }
  static std::vector<std::string> Lines(const std::vector<TStoredEvent>& events) {
    std::vector<std::string> lines;
    lines.reserve(events.size());
    for (const TStoredEvent& kept : events) lines.push_back(Line(kept));
    return lines;
  }
};

TEST_F(TAudit, AnEventHoldsWhatTheOrderWasThen) {
  auto order = OrderWithKey("K", 400);
  order.filled = 100.5;
  order.price = 60.55;
  order.status = 2;
  const auto keeper = Open();
  keeper->KeepOrder({"market", "fill", "100.5 at 60.55"}, order);
  order.filled = 400;
  order.status = 3;
  keeper->KeepOrder({"market", "fill", "299.5 at 60.55"}, order);

  const auto kept = keeper->EventsOf("K");
  ASSERT_EQ(kept.size(), 2U);
  EXPECT_EQ(kept[0].sequence, 1);
  EXPECT_EQ(kept[0].time, "2024-02-29 23:59:59.007");
  EXPECT_EQ(kept[0].event.who, "market");
  EXPECT_EQ(kept[0].event.what, "fill");
  EXPECT_EQ(kept[0].event.answer, "100.5 at 60.55");
  EXPECT_EQ(kept[0].orderKey, "K");
  EXPECT_EQ(kept[0].quantity, 400);
  EXPECT_EQ(kept[0].filled, 100.5);
  EXPECT_EQ(kept[0].price, 60.55);
  EXPECT_EQ(kept[0].status, 2);
  EXPECT_EQ(kept[1].filled, 400);
  EXPECT_EQ(kept[1].status, 3);
}

TEST_F(TAudit, EventsOfAllOrdersAreInOneSequenceThatGoesOnAfterAReopening) {
  {
    const auto keeper = Open();
    keeper->KeepOrder({"me", "new", "accepted"}, OrderWithKey("N1"));
    keeper->KeepEvent({"me", "new", "refused"}, OrderWithKey(""));
    keeper->KeepOrder({"you", "new", "accepted"}, OrderWithKey("N2"));
  }
  const auto keeper = Open();
  keeper->KeepOrder({"me", "change", "accepted"}, OrderWithKey("N1"));
  EXPECT_EQ(Lines(keeper->AllEvents()),
            (std::vector<std::string>{"1 me new accepted N1", "2 me new refused ", "3 you new accepted N2",
                                      "4 me change accepted N1"}));
  EXPECT_EQ(Lines(keeper->EventsOf("N1")),
            (std::vector<std::string>{"1 me new accepted N1", "4 me change accepted N1"}));
  EXPECT_EQ(Lines(keeper->EventsOf("")), (std::vector<std::string>{"2 me new refused "}));
  EXPECT_TRUE(keeper->EventsOf("n1").empty());
}

TEST_F(TAudit, TheDatabaseItselfRefusesToAlterTheTrail) {
  Open()->KeepOrder({"me", "new", "accepted"}, OrderWithKey("N1"));
  {
    TConnection connection(file);
    EXPECT_THROW(connection.Execute("UPDATE events SET who = 'nobody'"), EStorageError);
    EXPECT_THROW(connection.Execute("DELETE FROM events"), EStorageError);
  }
  EXPECT_EQ(Lines(Open()->AllEvents()), (std::vector<std::string>{"1 me new accepted N1"}));
}

TEST_F(TAudit, TheTimeIsUtcToTheMillisecond) {
  const std::string before = UtcNow();
  TSqliteStorage(file).KeepEvent({"me", "new", "refused"}, OrderWithKey("K"));
  const std::string after = UtcNow();
  const auto kept = Open()->AllEvents();
  ASSERT_EQ(kept.size(), 1U);
  ASSERT_EQ(kept[0].time.size(), 23U);
  EXPECT_TRUE(text::ParseDateTime(kept[0].time.substr(0, 19))) << kept[0].time;
  EXPECT_EQ(kept[0].time[19], '.');
  EXPECT_TRUE(text::ParseWhole(kept[0].time.substr(20))) << kept[0].time;
  EXPECT_LE(before, kept[0].time);
  EXPECT_LE(kept[0].time, after);
}

}  // namespace
}  // namespace algo::terminal::storage::tests
