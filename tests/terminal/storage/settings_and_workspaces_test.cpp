#include <string>

#include "tests/terminal/storage/storage_fixture.h"

namespace algo::terminal::storage::tests {
namespace {

using namespace std::string_literals;

using TTexts = std::vector<std::string>;

struct TSettings : TStorageTest {};
struct TWorkspaces : TStorageTest {};

TEST_F(TSettings, TheLastValueStoredUnderAKeyComesBack) {
  {
    const auto storage = Open();
    storage->StoreSetting("USER", "ClearOrd", "Y");
    storage->StoreSetting("USER", "ClearOrd", "N");
    storage->StoreSetting("user", "ClearOrd", "other section");
    storage->StoreSetting("USER", "a\0b"s, "c\0d"s);
    storage->StoreSetting("", "", "");
    storage->StoreSetting("USER", "Nothing", std::string_view());
  }
  Load();
  EXPECT_EQ(data.config, (TTextTables{{"USER", {{"ClearOrd", "N"}, {"a\0b"s, "c\0d"s}, {"Nothing", ""}}},
                                      {"user", {{"ClearOrd", "other section"}}},
                                      {"", {{"", ""}}}}));
}

TEST_F(TSettings, GoOverTheOnesThatAreThereAndLeaveTheOthers) {
  Open()->StoreSetting("USER", "a", "stored");
  data.config["USER"] = {{"a", "given"}, {"b", "given"}};
  Load();
  EXPECT_EQ(data.config, (TTextTables{{"USER", {{"a", "stored"}, {"b", "given"}}}}));
}

TEST_F(TWorkspaces, AreStoredByName) {
  const auto storage = Open();
  EXPECT_EQ(storage->Workspace("day"), std::nullopt);
  EXPECT_EQ(storage->WorkspaceNames(), TTexts{});
  storage->StoreWorkspace("night", "dark");
  storage->StoreWorkspace("day", "one");
  storage->StoreWorkspace("day", "two\0three"s);
  storage->StoreWorkspace("empty", std::string_view());
  EXPECT_EQ(storage->Workspace("day"), "two\0three"s);
  EXPECT_EQ(storage->Workspace("empty"), "");
  EXPECT_EQ(storage->Workspace("Day"), std::nullopt);
  EXPECT_EQ(storage->WorkspaceNames(), (TTexts{"day", "empty", "night"}));
}

TEST_F(TWorkspaces, SurviveAReopening) {
  Open()->StoreWorkspace("day", "one");
  EXPECT_EQ(Open()->Workspace("day"), "one");
}

}  // namespace
}  // namespace algo::terminal::storage::tests
