// The market watch's model, and how typing is helped, on a host without a module.

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include "plugin/host_contract/editor_manager.h"
#include "terminal/desk/desk_aids.h"
#include "terminal/desk/market_model.h"
#include "terminal/desk/price_drag.h"

namespace algo::terminal::tests {
namespace {

TMarketTables SampleTables() {
  TMarketTables tables;
  tables.spreads["01"] = {{0, 0.001}, {0.25, 0.005}, {20, 0.05}, {100, 0.1}};
  auto& bank = tables.instruments.emplace_back();
  bank.symbol = "0005";
  bank.exchange = "HKG";
  bank.name = {"Harbour Bank", "海港銀行", "海港银行"};
  bank.lot = 400;
  bank.spreadCode = "01";
  auto& unit = tables.instruments.emplace_back(bank);
  unit.symbol = "1050";
  unit.name = {"Thousandths", "千分", "千分"};
  unit.lot = 10;
  unit.multiplier = 0.001;
  return tables;
}

struct TMarketTest : testing::Test {
  void Publish(const char* symbol, TFieldChanges changes) {
    host.SetMarket(symbol, 1, changes, TMarketNotice::Item);
  }
  QString Cell(int row, int column) { return model.index(row, column).data().toString(); }

  TMarketTables tables = SampleTables();
  TDeskEvents events;
  TMemoryHost host{events};
  TTexts texts{TLanguage::English};
  TMarketModel model{tables, texts};
};

TEST_F(TMarketTest, AnInstrumentWithoutDataShowsItsNamesAlone) {
  EXPECT_EQ(model.rowCount({}), 2);
  EXPECT_EQ(Cell(0, 0), "0005");
  EXPECT_EQ(Cell(0, 1), "Harbour Bank");
  EXPECT_EQ(Cell(0, 2), "HKG");
  EXPECT_EQ(Cell(0, 3), "");
}

TEST_F(TMarketTest, PricesAreShownTimesTheMultiplier) {
  Publish("0005", {{3, "60.5"},
                   {31, "60"},
                   {2001, "60.45"},
                   {2002, "60.5"},
                   {2003, "12000"},
                   {2004, "800"},
                   {2005, "1234567"}});
  Publish("1050", {{3, "12500"}, {31, "12500"}});
  QTest::qWait(80);
  const QStringList expected{"60.500", "+0.83%", "60.450", "60.500", "12,000", "800", "1,234,567"};
  for (int column = 0; column < expected.size(); ++column) EXPECT_EQ(Cell(0, column + 3), expected[column]);
  EXPECT_EQ(Cell(1, 3), "12.500");
  EXPECT_EQ(Cell(1, 4), "0.00%");
}

TEST_F(TMarketTest, ManyUpdatesAreShownAtOnceAndOnlyTheCellsThatChanged) {
  Publish("0005", {{3, "60"}, {31, "60"}, {2001, "60"}});
  QTest::qWait(80);
  QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
  for (int i = 0; i < 1000; ++i) Publish("0005", {{2001, std::to_string(50 + i % 10)}});
  EXPECT_EQ(changed.count(), 0);
  QTest::qWait(80);
  ASSERT_EQ(changed.count(), 1);
  EXPECT_EQ(changed[0][0].toModelIndex(), model.index(0, 5));
  EXPECT_EQ(changed[0][1].toModelIndex(), model.index(0, 5));
  EXPECT_EQ(Cell(0, 5), "59.000");
}

TEST_F(TMarketTest, NamesFollowTheLanguage) {
  texts = TTexts(TLanguage::TraditionalChinese);
  QSignalSpy header(&model, &QAbstractItemModel::headerDataChanged);
  model.Retranslate();
  EXPECT_EQ(header.count(), 1);
  EXPECT_EQ(Cell(0, 1), "海港銀行");
}

TEST_F(TMarketTest, PickingACellPicksItsPriceAsTheMarketKnowsIt) {
  Publish("1050", {{3, "12500"}, {2001, "12490"}, {2002, "12510"}});
  EXPECT_EQ(model.PickedAt(model.index(1, 5))->price, 12490);
  EXPECT_EQ(model.PickedAt(model.index(1, 6))->price, 12510);
  EXPECT_EQ(model.PickedAt(model.index(1, 0))->price, 12500);
  EXPECT_EQ(model.PickedAt(model.index(1, 0))->symbol, "1050");
  EXPECT_FALSE(model.PickedAt({}).has_value());
}

TEST_F(TMarketTest, ADraggedRowCarriesSymbolAndPrice) {
  Publish("0005", {{3, "60.45"}});
  const std::unique_ptr<QMimeData> data(model.mimeData({model.index(0, 0), model.index(0, 1)}));
  const auto dragged = DraggedPrice(*data);
  ASSERT_TRUE(dragged.has_value());
  EXPECT_EQ(dragged->symbol, "0005");
  EXPECT_EQ(dragged->price, 60.45);
}

TEST_F(TMarketTest, OtherDataIsNoPrice) {
  QMimeData data;
  data.setText("0005");
  EXPECT_FALSE(DraggedPrice(data).has_value());
  data.setData("application/x-algo-price", "much 0005");
  EXPECT_FALSE(DraggedPrice(data).has_value());
  data.setData("application/x-algo-price", "60");
  EXPECT_FALSE(DraggedPrice(data).has_value());
}

struct TAidsTest : TMarketTest {
  TAidsTest() {
    host.Data().accounts = {"ALPHA-1", "BETA-1", "GAMMA-ALPHA"};
    auto& manager = host::TEditorManager::GetInstance();
    manager.RegisterAccountEditor(account, "", 0, 1);
    manager.RegisterSymbolEditor(symbol, "", 0, 1);
  }
  std::vector<std::string> Offered(const forms::TTextEdit& editor, const char* typed) {
    std::vector<std::string> offered;
    for (const auto& completion : aids.Completions(editor, typed)) offered.push_back(completion.text);
    return offered;
  }
  using TList = std::vector<std::string>;

  TDeskAids aids{events, host, tables, texts};
  forms::TFrame frame{"TFrame", "layout"};
  forms::TTextEdit& account = frame.Add<forms::TTextEdit>("account");
  forms::TTextEdit& symbol = frame.Add<forms::TTextEdit>("symbol");
  forms::TTextEdit& note = frame.Add<forms::TTextEdit>("note");
};

TEST_F(TAidsTest, AccountsThatBeginWithTheTextComeFirst) {
  EXPECT_EQ(Offered(account, "alpha"), (TList{"ALPHA-1", "GAMMA-ALPHA"}));
  EXPECT_EQ(Offered(account, " be "), TList{"BETA-1"});
  EXPECT_TRUE(Offered(account, "").empty());
  EXPECT_TRUE(Offered(account, "zeta").empty());
}

TEST_F(TAidsTest, SymbolsAreFoundByCodeAndByName) {
  EXPECT_EQ(Offered(symbol, "05"), (TList{"0005", "1050"}));
  EXPECT_EQ(Offered(symbol, "10"), TList{"1050"});
  EXPECT_EQ(Offered(symbol, "harbour"), TList{"0005"});
  EXPECT_EQ(aids.Completions(symbol, "0005").front().note, "Harbour Bank");
}

TEST_F(TAidsTest, AnEditorThatNobodyRegisteredOffersNothing) { EXPECT_TRUE(Offered(note, "a").empty()); }

}  // namespace
}  // namespace algo::terminal::tests
