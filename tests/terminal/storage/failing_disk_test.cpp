// What happens to orders when the disk is full.

#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/order_action_manager.h"
#include "terminal/host/memory_host.h"
#include "terminal/storage/connection.h"
#include "terminal/storage/order_rows.h"
#include "terminal/storage/schema.h"
#include "tests/terminal/file_size_limit.h"
#include "tests/terminal/host/event_notes.h"
#include "tests/terminal/storage/storage_fixture.h"

namespace algo::terminal::storage::tests {
namespace {

struct TFailingDisk : TStorageTest {
  TFailingDisk() {
    order.key = "K1";
    order.quantity = 500;
    order.SetTextProperty(440, std::string(10000, 'x'));
  }
  bool Take(host::TOrderAction action) {
    return host::TCustomOrderActionManager::GetInstance().TakeAction(nullptr, &order, action, 1);
  }
  std::string Failure(host::TOrderAction action) {
    const terminal::tests::TFileSizeLimit limit(std::filesystem::file_size(file + "-wal") + 100);
    return MessageOf([&] { Take(action); });
  }

  std::string expected = "The database '" + file +
                         "' could not be read or written. Check the disk that it is on, then try again.";
  std::unique_ptr<TSqliteStorage> storage = Open();
  terminal::tests::TEventNotes notes;
  TMemoryHost host{notes, *storage};
  host::TCustomClientOrder order;
};

TEST_F(TFailingDisk, ANewOrderThatCannotBeStoredIsNotAccepted) {
  ASSERT_TRUE(Take(host::TOrderAction::New));
  notes.lines.clear();
  EXPECT_TRUE(Failure(host::TOrderAction::New).starts_with(expected));
  EXPECT_TRUE(Failure(host::TOrderAction::Work).starts_with(expected));
  EXPECT_EQ(host.Orders().All().size(), 1U);
  EXPECT_EQ(notes.lines, terminal::tests::TNotes{});
  EXPECT_EQ(storage->AllEvents().size(), 1U);

  EXPECT_TRUE(Take(host::TOrderAction::New));
  EXPECT_EQ(host.Orders().All().size(), 2U);
  EXPECT_EQ(storage->AllEvents().size(), 2U);
  storage->LoadInto(data, orders);
  EXPECT_EQ(orders.All().size(), 2U);
}

TEST_F(TFailingDisk, AChangeThatCannotBeStoredLeavesTheOrderAsItWas) {
  ASSERT_TRUE(Take(host::TOrderAction::New));
  order.key = "N1";
  order.quantity = 900;
  order.SetTextProperty(441, "more");
  EXPECT_TRUE(Failure(host::TOrderAction::Change).starts_with(expected));
  EXPECT_EQ(host.Orders().Find("N1")->quantity, 500);
  storage->LoadInto(data, orders);
  EXPECT_EQ(orders.Find("N1")->quantity, 500);
  EXPECT_EQ(orders.Find("N1")->NumberedTexts().size(), 1U);
  EXPECT_EQ(storage->EventsOf("N1").size(), 1U);
}

TEST_F(TFailingDisk, ARefusalThatCannotBeStoredStopsTheActionToo) {
  ASSERT_TRUE(Take(host::TOrderAction::New));
  host.Data().accept = false;
  EXPECT_TRUE(Failure(host::TOrderAction::New).starts_with(expected));
  EXPECT_EQ(storage->AllEvents().size(), 1U);
}

TEST_F(TFailingDisk, ASettingThatCannotBeStoredIsNotSet) {
  auto& config = host::TCustomConfigManager::GetInstance();
  config.Store("USER", "ClearOrd", "Y", true);
  {
    const terminal::tests::TFileSizeLimit limit(std::filesystem::file_size(file + "-wal"));
    EXPECT_TRUE(MessageOf([&] { config.Store("USER", "ClearOrd", "N", true); }).starts_with(expected));
    EXPECT_TRUE(MessageOf([&] { storage->StoreWorkspace("day", "one"); }).starts_with(expected));
  }
  EXPECT_EQ(config.ReadText("USER", "ClearOrd"), "Y");
  EXPECT_EQ(storage->Workspace("day"), std::nullopt);
  config.Store("USER", "ClearOrd", "N", true);
  storage->LoadInto(data, orders);
  EXPECT_EQ(data.config, (TTextTables{{"USER", {{"ClearOrd", "N"}}}}));
}

TEST_F(TFailingDisk, ATransactionThatFindsNoRoomStoresNothing) {
  TConnection connection(folder.Path("small.db"));
  Migrate(connection, Migrations());
  connection.Execute("PRAGMA max_page_count=20");
  TOrderRows rows(connection);
  {
    TTransaction transaction(connection);
    rows.Store(OrderWithKey("small"));
    transaction.Commit();
  }
  order.SetTextProperty(440, std::string(100000, 'x'));
  const std::string message = MessageOf([&] {
    TTransaction transaction(connection);
    rows.Store(OrderWithKey("small", 7));
    rows.Store(order);
    transaction.Commit();
  });
  EXPECT_TRUE(message.starts_with("The database '" + folder.Path("small.db") +
                                  "' has no room left on its disk. Make room on that disk, then try again."))
      << message;
  const auto stored = rows.All();
  ASSERT_EQ(stored.size(), 1U);
  EXPECT_EQ(stored[0]->key, "small");
  EXPECT_EQ(stored[0]->quantity, 0);
}

}  // namespace
}  // namespace algo::terminal::storage::tests
