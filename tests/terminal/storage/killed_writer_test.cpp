// An order whose action was answered as accepted is on record, however the terminal ends.
//
// ALGO_KILL_ROUNDS sets how often the terminal is killed, ALGO_KILL_SEED when.

#include <chrono>
#include <cstdlib>
#include <map>
#include <random>
#include <thread>

#include "terminal/storage/connection.h"
#include "terminal/storage/statement.h"
#include "tests/terminal/storage/killed_program.h"
#include "tests/terminal/storage/storage_fixture.h"

namespace algo::terminal::storage::tests {
namespace {

std::uint32_t FromEnvironment(const char* name, std::uint32_t otherwise) {
  const char* const text = std::getenv(name);
  return text == nullptr ? otherwise : static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10));
}

constexpr std::uint32_t RoundsOfADatabase = 5;

struct TKilledWriter : TStorageTest {
  /// Lets the writer work until a random moment, sometimes before it has opened the database, and adds what
  /// it reported.
  void WriteUntilKilled() {
    TKilledProgram writer("algo-killed-writer", file);
    const bool opening = random() % 3 == 0;
    auto linesToWaitFor = opening ? 0 : 1 + random() % 24;
    const auto microseconds = random() % (opening ? 30000 : 3000);
    while (linesToWaitFor-- > 0) {
      const auto line = writer.Line();
      ASSERT_TRUE(line) << "the writer ended by itself";
      Report(*line);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
    ASSERT_TRUE(writer.Kill()) << "the writer ended by itself";
    while (const auto line = writer.Line()) Report(*line);
  }

  void Report(const std::string& line) {
    const auto blank = line.find(' ');
    const int count = std::stoi(line.substr(blank));
    const auto [known, isNew] = reported.insert({line.substr(0, blank), count});
    ASSERT_EQ(known->second + (isNew ? 0 : 1), count) << "a key came twice: " << line;
    known->second = count;
  }

  /// The database holds everything that was reported, and all or nothing of an action that was not reported.
  void ExpectEverythingReported() {
    // Opened by the storage first, which has to cope with what the writer left behind before SQLite cleans
    // up.
    auto storage = Open();
    TOrderStore stored;
    storage->LoadInto(data, stored);
    for (const auto& [key, count] : reported) ASSERT_NE(stored.Find(key), nullptr) << key;

    int unreported = 0;
    for (const auto& order : stored.All()) {
      const int count = static_cast<int>(order->quantity);
      int& known = reported[order->key];
      ASSERT_GE(count, known) << order->key;
      unreported += count - known;
      known = count;
      ASSERT_EQ(storage->EventsOf(order->key).size(), static_cast<std::size_t>(count)) << order->key;
      ASSERT_EQ(order->NumberedTexts().size(), static_cast<std::size_t>(count)) << order->key;
    }
    ASSERT_LE(unreported, 1);
    surplus += unreported;

    storage.reset();
    TConnection connection(file);
    ASSERT_EQ(First<std::string>(connection, "PRAGMA integrity_check"), "ok");
  }

  std::mt19937 random;
  std::map<std::string, int> reported;
  int surplus = 0;
};

TEST_F(TKilledWriter, HasEveryAcceptedOrderOnRecord) {
  const std::uint32_t rounds = FromEnvironment("ALGO_KILL_ROUNDS", 100);
  const std::uint32_t seed = FromEnvironment("ALGO_KILL_SEED", std::random_device()());
  std::cout << "ALGO_KILL_SEED=" << seed << " ALGO_KILL_ROUNDS=" << rounds << "\n";
  random.seed(seed);

  std::size_t orderCount = 0;
  for (std::uint32_t round = 0; round < rounds; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    if (round % RoundsOfADatabase == 0) {
      file = folder.Path("terminal" + std::to_string(round) + ".db");
      orderCount += reported.size();
      reported.clear();
    }
    WriteUntilKilled();
    if (!HasFatalFailure()) ExpectEverythingReported();
    if (HasFatalFailure()) return;
  }
  orderCount += reported.size();
  std::cout << orderCount << " orders on record, " << surplus << " actions stored but not yet reported\n";
  EXPECT_GT(orderCount, rounds / 2) << "the writer hardly came to write";
}

}  // namespace
}  // namespace algo::terminal::storage::tests
