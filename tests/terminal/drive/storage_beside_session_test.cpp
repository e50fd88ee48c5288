// A scripted session and a storage in one program: each folder's classes are its own, also where two of them
// have the same name.

#include "terminal/storage/sqlite_storage.h"
#include "tests/terminal/drive/session_fixture.h"
#include "tests/terminal/temporary_folder.h"

namespace algo::terminal::drive {
namespace {

using StorageBesideSession = TSessionTest;

TEST_F(StorageBesideSession, ACommandAndAStoredOrderDoNotDisturbEachOther) {
  const terminal::tests::TTemporaryFolder folder;
  storage::TSqliteStorage stored(folder.Path("terminal.db"));
  Ask(R"({"do":"order","key":"K1","quantity":5})");
  const auto* order = session.Host().Orders().Find("K1");
  ASSERT_NE(order, nullptr);
  stored.StoreOrder({"me", "new", "accepted"}, *order);

  THostData data;
  TOrderStore loaded;
  stored.LoadInto(data, loaded);
  ASSERT_EQ(loaded.All().size(), 1U);
  EXPECT_EQ(loaded.All()[0]->quantity, 5);
  EXPECT_EQ(stored.AllEvents().size(), 1U);
  EXPECT_EQ(Ask(R"({"do":"fly"})")["ok"], false);
  EXPECT_EQ(Ask(R"({"do":"orders","key":"K1"})")["ok"], true);
}

}  // namespace
}  // namespace algo::terminal::drive
