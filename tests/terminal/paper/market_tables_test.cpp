#include "terminal/paper/market_tables.h"

#include <gtest/gtest.h>

#include <fstream>

#include "terminal/paper/paper_error.h"
#include "terminal/paper/recorded_prices.h"
#include "tests/terminal/paper/sample_market.h"
#include "tests/terminal/temporary_folder.h"

namespace algo::terminal::paper {
namespace {

namespace fs = std::filesystem;

const std::string ExchangeHead = "code,name,name_hant,name_hans,algo_types,order_types,open,close\n";
const std::string SpreadHead = "spread,from,tick\n";
const std::string InstrumentHead =
    "symbol,exchange,name,name_hant,name_hans,lot,spread,previous_close,daily_volatility,daily_volume,"
    "multiplier\n";
const std::string RecordingHead = "seconds,symbol,bid,ask,last,volume\n";

class TTableFolder : public testing::Test {
 protected:
  TTableFolder() {
    Write("exchanges.csv", ExchangeHead + "HKG,Hong Kong,A,B,TVOL;TVOL Threshold,LO;MO,09:30:00,16:00:00\n");
    Write("spreads.csv", SpreadHead + "S,0,0.01\nS,10,0.02\n");
    Write("instruments.csv", InstrumentHead + "AAA,HKG,Sample,A,B,100,S,10.5,0,0,0.001\n");
  }

  void Write(const std::string& name, const std::string& text) const { std::ofstream(folder / name) << text; }

  /// The error of loading, without the folder's name; "none" if there is none.
  std::string Problem() const {
    try {
      const TMarketTables tables = LoadMarketTables(folder);
      if (fs::exists(folder / "recording.csv")) LoadRecording(folder / "recording.csv", tables);
      return "none";
    } catch (const EPaperError& error) {
      return std::string(error.what()).substr(folder.string().size() + 1);
    }
  }
  std::string ProblemWith(const std::string& name, const std::string& text) const {
    Write(name, text);
    return Problem();
  }

  terminal::tests::TTemporaryFolder temporary;
  fs::path folder = temporary.Path();
};

TEST_F(TTableFolder, TablesAreReadAsTheyAreWritten) {
  const TMarketTables tables = LoadMarketTables(folder);
  ASSERT_EQ(tables.exchanges.size(), 1u);
  EXPECT_EQ(tables.exchanges[0].code, "HKG");
  EXPECT_EQ(tables.exchanges[0].name.traditional, "A");
  EXPECT_EQ(tables.exchanges[0].name.simplified, "B");
  EXPECT_EQ(tables.exchanges[0].algoTypes, (std::vector<std::string>{"TVOL", "TVOL Threshold"}));
  EXPECT_EQ(tables.exchanges[0].orderTypes, (std::vector<std::string>{"LO", "MO"}));
  EXPECT_EQ(tables.exchanges[0].open, std::chrono::seconds(34200));
  EXPECT_EQ(tables.exchanges[0].close, std::chrono::seconds(57600));
  ASSERT_EQ(tables.instruments.size(), 1u);
  EXPECT_EQ(tables.instruments[0].lot, 100);
  EXPECT_EQ(tables.instruments[0].previousClose, 10.5);
  EXPECT_EQ(tables.instruments[0].multiplier, 0.001);
  EXPECT_EQ(TickAt(tables.SpreadOf(tables.instruments[0]), 10), 0.02);
  EXPECT_EQ(tables.ExchangeOf(tables.instruments[0]).name.english, "Hong Kong");
  EXPECT_EQ(tables.IndexOf("AAA"), 0u);
  EXPECT_EQ(tables.IndexOf("aaa"), std::nullopt);
}

TEST_F(TTableFolder, AMissingFileIsNamed) {
  fs::remove(folder / "spreads.csv");
  EXPECT_EQ(Problem(), "spreads.csv:1: cannot be read; a file is expected");
}

TEST_F(TTableFolder, AMissingColumnIsNamed) {
  EXPECT_EQ(ProblemWith("spreads.csv", "spread,from\nS,0\n"),
            "spreads.csv:1: column 'tick' is missing; one is expected");
}

struct TBadRow {
  std::string row;
  std::string problem;
};

TEST_F(TTableFolder, AnExchangeThatCannotBeUsedIsRefused) {
  const TBadRow rows[]{
      {",N,A,B,T,L,09:30:00,16:00:00", "code is empty; a text is expected"},
      {"X,N,A,B,T;;U,L,09:30:00,16:00:00",
       "algo_types has an empty item; items with a semicolon between them are expected"},
      {"X,N,A,B,T,L,half past nine,16:00:00", "open is 'half past nine'; a time as 09:30:00 is expected"},
      {"X,N,A,B,T,L,,16:00:00", "open is ''; a time as 09:30:00 is expected"},
      {"X,N,A,B,T,L,09:30:00,09:30:00", "close is not after open; a later time is expected"},
      {"HKG,N,A,B,T,L,09:30:00,16:00:00", "exchange 'HKG' is there already; one is expected"},
  };
  const std::string good = ExchangeHead + "HKG,Hong Kong,A,B,TVOL,LO,09:30:00,16:00:00\n";
  for (const auto& [row, problem] : rows) {
    EXPECT_EQ(ProblemWith("exchanges.csv", good + row + "\n"), "exchanges.csv:3: " + problem);
  }
}

TEST_F(TTableFolder, ASpreadThatCannotBeUsedIsRefused) {
  const TBadRow rows[]{
      {"S,-1,0.01", "from is -1; 0 or more is expected"},
      {"S,20,0", "tick is 0; a number above 0 is expected"},
      {"S,20,0.0000001", "tick is 0.0000001; 0.000001 or more is expected"},
      {"T,1,0.01", "the first from of a spread code is not 0; 0 is expected"},
      {"S,10,0.05", "from is not above the one before; rising prices are expected"},
      {"S,20,a tick", "tick is 'a tick'; a number is expected"},
  };
  for (const auto& [row, problem] : rows) {
    EXPECT_EQ(ProblemWith("spreads.csv", SpreadHead + "S,0,0.01\nS,10,0.02\n" + row + "\n"),
              "spreads.csv:4: " + problem);
  }
}

TEST_F(TTableFolder, AnInstrumentThatCannotBeUsedIsRefused) {
  const TBadRow rows[]{
      {"BBB,HKG,N,A,B,-100,S,10,0,0,1", "lot is -100; a number above 0 is expected"},
      {"BBB,HKG,N,A,B,2.5,S,10,0,0,1", "lot is 2.5; a whole number is expected"},
      {"BBB,HKG,N,A,B,100,S,ten,0,0,1", "previous_close is 'ten'; a number is expected"},
      {"BBB,HKG,N,A,B,100,T,10,0,0,1", "spread 'T' is unknown; a code of spreads.csv is expected"},
      {"BBB,SHA,N,A,B,100,S,10,0,0,1", "exchange 'SHA' is unknown; a code of exchanges.csv is expected"},
      {"AAA,HKG,N,A,B,100,S,10,0,0,1", "symbol 'AAA' is there already; one is expected"},
      {"BBB,HKG,N,A,B,100,S,10.01,0,0,1",
       "previous_close 10.01 is off its tick; a price of spread 'S' is expected"},
      {"BBB,HKG,N,A,B,100,S,10,-0.1,0,1", "daily_volatility is -0.1; 0 or more is expected"},
      {"BBB,HKG,N,A,B,100,S,10,0,-5,1", "daily_volume is -5; 0 or more is expected"},
      {"BBB,HKG,N,A,B,100,S,10,0,0,0", "multiplier is 0; a number above 0 is expected"},
      {"BBB,HKG,,A,B,100,S,10,0,0,1", "name is empty; a text is expected"},
      {"BBB,HKG,N,A,B,100,S,10,0,0", "10 fields; 11 are expected, as in the first line"},
  };
  for (const auto& [row, problem] : rows) {
    EXPECT_EQ(ProblemWith("instruments.csv", InstrumentHead + "AAA,HKG,N,A,B,100,S,10,0,0,1\n" + row + "\n"),
              "instruments.csv:3: " + problem);
  }
}

TEST_F(TTableFolder, ARecordingThatCannotBeUsedIsRefused) {
  const TBadRow rows[]{
      {"5,ZZZ,10,10.02,10,0", "symbol 'ZZZ' is unknown; a symbol of instruments.csv is expected"},
      {"4,AAA,10,10.02,10,0", "seconds are below those of the line before; rising times are expected"},
      {"5,AAA,10,10,10,0", "ask is not above bid; a higher price is expected"},
      {"5,AAA,10,10.03,10,0", "ask 10.03 is off its tick; a price of its spread is expected"},
      {"5,AAA,0,10.02,10,0", "bid is 0; a number above 0 is expected"},
      {"5,AAA,10,10.02,10,-1", "volume is -1; 0 or more is expected"},
      {"soon,AAA,10,10.02,10,0", "seconds is 'soon'; a number is expected"},
  };
  for (const auto& [row, problem] : rows) {
    EXPECT_EQ(ProblemWith("recording.csv", RecordingHead + "5,AAA,10,10.02,10,0\n" + row + "\n"),
              "recording.csv:3: " + problem);
  }
}

TEST(ExampleTables, TheTablesThatComeWithTheProjectLoad) {
  const TMarketTables tables = LoadMarketTables(tests::ExampleFolder());
  ASSERT_EQ(tables.exchanges.size(), 3u);
  EXPECT_EQ(tables.exchanges[0].code, "HKG");
  EXPECT_EQ(tables.exchanges[1].code, "SHA");
  EXPECT_EQ(tables.exchanges[2].code, "SHE");
  EXPECT_EQ(tables.exchanges[0].algoTypes.size(), 12u);
  EXPECT_EQ(tables.instruments.size(), 13u);
  const auto thousandths = tables.IndexOf("9700");
  ASSERT_TRUE(thousandths);
  EXPECT_EQ(tables.instruments[*thousandths].multiplier, 0.001);
  EXPECT_FALSE(LoadRecording(tests::ExampleFolder() / "recording.csv", tables).empty());
}

TEST(ExampleTables, EverythingSaysThatItIsASample) {
  for (const TPaperInstrument& instrument : LoadMarketTables(tests::ExampleFolder()).instruments) {
    EXPECT_TRUE(instrument.name.english.starts_with("Sample ")) << instrument.symbol;
  }
}

}  // namespace
}  // namespace algo::terminal::paper
