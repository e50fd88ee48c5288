#include <string>

#include "tests/terminal/storage/storage_fixture.h"

namespace algo::terminal::storage::tests {
namespace {

using namespace std::string_literals;

using TTexts = std::vector<std::string>;

struct TSettings : TStorageTest {};
struct TWorkspaces : TStorageTest {};

TEST_F(TSettings, TheLastValueKeptUnderAKeyComesBack) {
  {
    const auto keeper = Open();
    keeper->KeepSetting("USER", "ClearOrd", "Y");
    keeper->KeepSetting("USER", "ClearOrd", "N");
    keeper->KeepSetting("user", "ClearOrd", "other section");
    keeper->KeepSetting("USER", "a\0b"s, "c\0d"s);
    keeper->KeepSetting("", "", "");
    keeper->KeepSetting("USER", "Nothing", std::string_view());
  }
  Load();
  EXPECT_EQ(data.config, (TTextTables{{"USER", {{"ClearOrd", "N"}, {"a\0b"s, "c\0d"s}, {"Nothing", ""}}},
                                      {"user", {{"ClearOrd", "other section"}}},
                                      {"", {{"", ""}}}}));
}

TEST_F(TSettings, GoOverTheOnesThatAreThereAndLeaveTheOthers) {
  Open()->KeepSetting("USER", "a", "kept");
  data.config["USER"] = {{"a", "given"}, {"b", "given"}};
  Load();
  EXPECT_EQ(data.config, (TTextTables{{"USER", {{"a", "kept"}, {"b", "given"}}}}));
}

TEST_F(TWorkspaces, AreKeptByName) {
  const auto keeper = Open();
  EXPECT_EQ(keeper->Workspace("day"), std::nullopt);
  EXPECT_EQ(keeper->WorkspaceNames(), TTexts{});
  keeper->KeepWorkspace("night", "dark");
  keeper->KeepWorkspace("day", "one");
  keeper->KeepWorkspace("day", "two\0three"s);
  keeper->KeepWorkspace("empty", std::string_view());
  EXPECT_EQ(keeper->Workspace("day"), "two\0three"s);
  EXPECT_EQ(keeper->Workspace("empty"), "");
  EXPECT_EQ(keeper->Workspace("Day"), std::nullopt);
  EXPECT_EQ(keeper->WorkspaceNames(), (TTexts{"day", "empty", "night"}));
}

TEST_F(TWorkspaces, SurviveAReopening) {
  Open()->KeepWorkspace("day", "one");
  EXPECT_EQ(Open()->Workspace("day"), "one");
}

}  // namespace
}  // namespace algo::terminal::storage::tests
