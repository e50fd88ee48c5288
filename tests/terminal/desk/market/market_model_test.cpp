// The market watch's model, on a host without a module.

#include "terminal/desk/market/market_model.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <memory>

#include "terminal/desk/panels/price_drag.h"
#include "terminal/desk/session/desk_events.h"
#include "terminal/host/memory_host.h"
#include "tests/terminal/desk/sample_tables.h"

namespace algo::terminal::desk::tests {
namespace {

struct TMarketModelTest : testing::Test {
  void Publish(const char* symbol, TFieldChanges changes) {
    host.SetMarket(symbol, 1, changes, TMarketNotice::Item);
  }
  QString Cell(int row, int column) { return model.index(row, column).data().toString(); }

  paper::TMarketTables tables = SampleTables();
  TDeskEvents events;
  TMemoryHost host{events.Receiver()};
  appearance::TTexts texts{appearance::TLanguage::English};
  market::TMarketModel model{tables, texts};
};

TEST_F(TMarketModelTest, AnInstrumentWithoutDataShowsItsNamesAlone) {
  EXPECT_EQ(model.rowCount({}), 2);
  EXPECT_EQ(Cell(0, 0), "0005");
  EXPECT_EQ(Cell(0, 1), "Harbour Bank");
  EXPECT_EQ(Cell(0, 2), "HKG");
  EXPECT_EQ(Cell(0, 3), "");
}

TEST_F(TMarketModelTest, PricesAreShownTimesTheMultiplier) {
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

TEST_F(TMarketModelTest, ManyUpdatesAreShownAtOnceAndOnlyTheCellsThatChanged) {
  // However long a busy machine takes for it.
  const auto shows = [this](const char* price) {
    return QTest::qWaitFor([this, price] { return Cell(0, 5) == price; });
  };
  Publish("0005", {{3, "60"}, {31, "60"}, {2001, "60"}});
  ASSERT_TRUE(shows("60.000"));
  QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
  for (int i = 0; i < 1000; ++i) Publish("0005", {{2001, std::to_string(50 + i % 10)}});
  EXPECT_EQ(changed.count(), 0);
  ASSERT_TRUE(shows("59.000"));
  ASSERT_EQ(changed.count(), 1);
  EXPECT_EQ(changed[0][0].toModelIndex(), model.index(0, 5));
  EXPECT_EQ(changed[0][1].toModelIndex(), model.index(0, 5));
  EXPECT_EQ(Cell(0, 5), "59.000");
}

TEST_F(TMarketModelTest, NamesFollowTheLanguage) {
  texts = appearance::TTexts(appearance::TLanguage::TraditionalChinese);
  QSignalSpy header(&model, &QAbstractItemModel::headerDataChanged);
  model.Retranslate();
  EXPECT_EQ(header.count(), 1);
  EXPECT_EQ(Cell(0, 1), "海港銀行");
}

TEST_F(TMarketModelTest, PickingACellPicksItsPriceAsTheMarketKnowsIt) {
  Publish("1050", {{3, "12500"}, {2001, "12490"}, {2002, "12510"}});
  EXPECT_EQ(model.PriceAt(model.index(1, 5))->price, 12490);
  EXPECT_EQ(model.PriceAt(model.index(1, 6))->price, 12510);
  EXPECT_EQ(model.PriceAt(model.index(1, 0))->price, 12500);
  EXPECT_EQ(model.PriceAt(model.index(1, 0))->symbol, "1050");
  EXPECT_FALSE(model.PriceAt({}).has_value());
}

TEST_F(TMarketModelTest, ADraggedRowCarriesSymbolAndPrice) {
  Publish("0005", {{3, "60.45"}});
  const std::unique_ptr<QMimeData> data(model.mimeData({model.index(0, 0), model.index(0, 1)}));
  const auto dragged = panels::ReadPriceData(*data);
  ASSERT_TRUE(dragged.has_value());
  EXPECT_EQ(dragged->symbol, "0005");
  EXPECT_EQ(dragged->price, 60.45);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
