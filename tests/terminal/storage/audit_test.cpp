// What was done to orders stays on record, in the order in which it happened.

#include "terminal/storage/connection.h"
#include "tests/terminal/storage/storage_fixture.h"
#include "text/date_text.h"
#include "text/number_text.h"

namespace algo::terminal::storage::tests {
namespace {

struct TAudit : TStorageTest {
  /// An event in words.
  static std::string Line(const TStoredEvent& stored) {
    return std::to_string(stored.sequence) + " " + stored.event.who + " " + stored.event.what + " " +
           stored.event.answer + " " + stored.orderKey;
  }
  static std::vector<std::string> Lines(const std::vector<TStoredEvent>& events) {
    std::vector<std::string> lines;
    lines.reserve(events.size());
    for (const TStoredEvent& stored : events) lines.push_back(Line(stored));
    return lines;
  }
};

TEST_F(TAudit, AnEventHoldsWhatTheOrderWasThen) {
  auto order = OrderWithKey("K", 400);
  order.filled = 100.5;
  order.price = 60.55;
  order.status = 2;
  const auto storage = Open();
  storage->StoreOrder({"market", "fill", "100.5 at 60.55"}, order);
  order.filled = 400;
  order.status = 3;
  storage->StoreOrder({"market", "fill", "299.5 at 60.55"}, order);

  const auto stored = storage->EventsOf("K");
  ASSERT_EQ(stored.size(), 2U);
  EXPECT_EQ(stored[0].sequence, 1);
  EXPECT_EQ(stored[0].time, "2024-02-29 23:59:59.007");
  EXPECT_EQ(stored[0].event.who, "market");
  EXPECT_EQ(stored[0].event.what, "fill");
  EXPECT_EQ(stored[0].event.answer, "100.5 at 60.55");
  EXPECT_EQ(stored[0].orderKey, "K");
  EXPECT_EQ(stored[0].quantity, 400);
  EXPECT_EQ(stored[0].filled, 100.5);
  EXPECT_EQ(stored[0].price, 60.55);
  EXPECT_EQ(stored[0].status, 2);
  EXPECT_EQ(stored[1].filled, 400);
  EXPECT_EQ(stored[1].status, 3);
}

TEST_F(TAudit, EventsOfAllOrdersAreInOneSequenceThatGoesOnAfterAReopening) {
  {
    const auto storage = Open();
    storage->StoreOrder({"me", "new", "accepted"}, OrderWithKey("N1"));
    storage->StoreEvent({"me", "new", "refused"}, OrderWithKey(""));
    storage->StoreOrder({"you", "new", "accepted"}, OrderWithKey("N2"));
  }
  const auto storage = Open();
  storage->StoreOrder({"me", "change", "accepted"}, OrderWithKey("N1"));
  EXPECT_EQ(Lines(storage->AllEvents()),
            (std::vector<std::string>{"1 me new accepted N1", "2 me new refused ", "3 you new accepted N2",
                                      "4 me change accepted N1"}));
  EXPECT_EQ(Lines(storage->EventsOf("N1")),
            (std::vector<std::string>{"1 me new accepted N1", "4 me change accepted N1"}));
  EXPECT_EQ(Lines(storage->EventsOf("")), (std::vector<std::string>{"2 me new refused "}));
  EXPECT_TRUE(storage->EventsOf("n1").empty());
}

TEST_F(TAudit, TheDatabaseItselfRefusesToAlterTheTrail) {
  Open()->StoreOrder({"me", "new", "accepted"}, OrderWithKey("N1"));
  {
    TConnection connection(file);
    EXPECT_THROW(connection.Execute("UPDATE events SET who = 'nobody'"), EStorageError);
    EXPECT_THROW(connection.Execute("DELETE FROM events"), EStorageError);
  }
  EXPECT_EQ(Lines(Open()->AllEvents()), (std::vector<std::string>{"1 me new accepted N1"}));
}

TEST_F(TAudit, TheTimeIsUtcToTheMillisecond) {
  const std::string before = UtcNow();
  TSqliteStorage(file).StoreEvent({"me", "new", "refused"}, OrderWithKey("K"));
  const std::string after = UtcNow();
  const auto stored = Open()->AllEvents();
  ASSERT_EQ(stored.size(), 1U);
  ASSERT_EQ(stored[0].time.size(), 23U);
  EXPECT_TRUE(text::ParseDateTime(stored[0].time.substr(0, 19))) << stored[0].time;
  EXPECT_EQ(stored[0].time[19], '.');
  EXPECT_TRUE(text::ParseWhole(stored[0].time.substr(20))) << stored[0].time;
  EXPECT_LE(before, stored[0].time);
  EXPECT_LE(stored[0].time, after);
}

}  // namespace
}  // namespace algo::terminal::storage::tests
