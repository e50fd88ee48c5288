// Which files are opened, and the messages for the others. A refused file stays unchanged.

#include <algorithm>
#include <array>
#include <barrier>
#include <memory>
#include <thread>
#include <vector>

#include "terminal/storage/connection.h"
#include "tests/terminal/storage/opening_fixture.h"

namespace algo::terminal::storage::tests {
namespace {

namespace fs = std::filesystem;

TEST_F(TOpening, AFileThatIsNotThereIsMade) {
  EXPECT_EQ(Refusal(), "");
  EXPECT_TRUE(FileBytes(file).starts_with("SQLite format 3"));
  EXPECT_EQ(FileNames(), (std::vector<std::string>{"terminal.db"}));
}

TEST_F(TOpening, AnEmptyFileBecomesADatabase) {
  WriteFileBytes(file, "");
  Open()->StoreOrder({"me", "new", "accepted"}, OrderWithKey("K"));
  Load();
  EXPECT_EQ(LoadedKeys(), (std::vector<std::string>{"K"}));
}

TEST_F(TOpening, NamesThatSqliteGivesAMeaningOfItsOwnAreFilesAllTheSame) {
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  { const TSqliteStorage storage(":memory:"); }
  fs::current_path(before);
  EXPECT_EQ(FileNames(), (std::vector<std::string>{":memory:"}));
  EXPECT_EQ(MessageOf([] { TSqliteStorage(""); }),
            "The database '' has no name that a file can have. Choose another file.");
}

TEST_F(TOpening, AFolderThatDoesNotExistIsNotMade) {
  file = folder.Path("no/terminal.db");
  EXPECT_EQ(Refusal(), FullMessage("cannot be made, because its folder does not exist. Make the folder, or "
                                   "choose another file."));
  EXPECT_EQ(FileNames(), (std::vector<std::string>{}));
}

TEST_F(TOpening, AFolderIsNotADatabase) {
  fs::create_directory(file);
  EXPECT_EQ(Refusal(), FullMessage("is not a file. Choose another file."));
}

TEST_F(TOpening, AFileThatIsNotADatabaseIsRefused) {
  for (const std::string& bytes :
       {std::string("x"), std::string("{\"my\":\"notes\"}"), std::string(8192, '\0')}) {
    WriteFileBytes(file, bytes);
    EXPECT_EQ(Refusal(),
              FullMessage("is not a database. Choose another file, or put a copy of the database back."));
    EXPECT_EQ(FileBytes(file), bytes);
  }
}

TEST_F(TOpening, ADatabaseOfAnotherProgramIsRefused) {
  for (const char* sql : {"CREATE TABLE notes (text)", "PRAGMA journal_mode=WAL; CREATE TABLE more (text)",
                          "PRAGMA application_id=1; PRAGMA user_version=1"}) {
    TConnection(file).Execute(sql);
    const std::string bytes = FileBytes(file);
    EXPECT_EQ(Refusal(), FullMessage("belongs to another program. Choose another file.")) << sql;
    EXPECT_EQ(FileBytes(file), bytes);
    EXPECT_EQ(FileNames(), (std::vector<std::string>{"terminal.db"}));
  }
}

TEST_F(TOpening, ADatabaseOfANewerTerminalIsRefused) {
  Open()->StoreOrder({"me", "new", "accepted"}, OrderWithKey("K"));
  for (const char* sql : {"PRAGMA user_version=2", "PRAGMA user_version=-1"}) {
    TConnection(file).Execute(sql);
    const std::string bytes = FileBytes(file);
    EXPECT_EQ(Refusal(),
              FullMessage("was last used by a newer version of the terminal. Start that version, or "
                          "choose another file."));
    EXPECT_EQ(FileBytes(file), bytes);
  }
}

TEST_F(TOpening, ADamagedDatabaseIsRefused) {
  {
    const auto storage = Open();
    for (int i = 0; i < 50; ++i) {
      auto order = OrderWithKey("K" + std::to_string(i));
      order.SetTextProperty(440, std::string(2000, 'x'));
      storage->StoreOrder({"me", "new", "accepted"}, order);
    }
  }
  const std::string whole = FileBytes(file);
  ASSERT_GT(whole.size(), 100000U);
  const std::string message = FullMessage(
      "is damaged. Put a copy of it back, or move it away to begin with an "
      "empty one.");

  std::string torn = whole;
  torn.replace(4096, whole.size() - 4096, whole.size() - 4096, '\x55');
  const std::string cut = whole.substr(0, whole.size() / 2);
  const std::string head = whole.substr(0, 100);
  for (const std::string& bytes : {torn, cut, head}) {
    WriteFileBytes(file, bytes);
    EXPECT_TRUE(Refusal().starts_with(message)) << Refusal();
    EXPECT_EQ(FileBytes(file), bytes);
  }
  WriteFileBytes(file, whole);
  EXPECT_EQ(Refusal(), "");
}

TEST_F(TOpening, ASecondTerminalIsLockedOutUntilTheFirstIsGone) {
  auto first = Open();
  first->StoreOrder({"me", "new", "accepted"}, OrderWithKey("K"));
  EXPECT_TRUE(Refusal().starts_with(
      FullMessage("is in use by another program. Close that program, then try again.")));
  first->StoreOrder({"me", "new", "accepted"}, OrderWithKey("L"));
  first.reset();
  Load();
  EXPECT_EQ(LoadedKeys(), (std::vector<std::string>{"K", "L"}));
}

TEST_F(TOpening, OneOfSeveralTerminalsThatStartAtOnceGetsTheNewFile) {
  constexpr int Rounds = 10;
  constexpr int Terminals = 6;
  for (int round = 0; round < Rounds; ++round) {
    SCOPED_TRACE(round);
    fs::remove(file);
    std::array<std::unique_ptr<TSqliteStorage>, Terminals> storages;
    std::array<std::string, Terminals> refusals;
    std::barrier start(Terminals);
    {
      std::vector<std::jthread> terminals;
      for (std::size_t i = 0; i < Terminals; ++i) {
        terminals.emplace_back([&, i] {
          start.arrive_and_wait();
          try {
            storages[i] = std::make_unique<TSqliteStorage>(file);
          } catch (const std::exception& error) {
            refusals[i] = error.what();
          }
        });
      }
    }
    EXPECT_EQ(std::ranges::count_if(storages, [](const auto& storage) { return storage != nullptr; }), 1);
    for (const std::string& refusal : refusals) {
      EXPECT_TRUE(refusal.empty() || refusal.find("is in use by another program") != std::string::npos)
          << refusal;
    }
    EXPECT_GT(fs::file_size(file), 0U);
  }
}

}  // namespace
}  // namespace algo::terminal::storage::tests
