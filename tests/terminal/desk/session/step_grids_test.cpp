// Prices and quantities stepped by what the market's tables say, and on a desktop with the arrow keys.

#include "terminal/desk/session/step_grids.h"

#include "plugin/host_contract/editor_manager.h"
#include "terminal/desk/session/desk_events.h"
#include "terminal/host/memory_host.h"
#include "tests/terminal/desk/desk_fixture.h"
#include "tests/terminal/desk/sample_tables.h"

namespace algo::terminal::desk::tests {
namespace {

struct TStepGridsTest : testing::Test {
  TStepGridsTest() {
    FillStepGrids(host.Data(), tables);
    auto& group = frame.Layout().AddGroup("lgTop", nullptr, forms::TDirection::Vertical);
    frame.Layout().AddItem("liPrice", group, price);
    frame.Layout().AddItem("liQuantity", group, quantity);
    Manager().RegisterPriceEditor(price, "");
    Manager().RegisterQuantityEditor(quantity, "");
  }

  static host::TEditorManager& Manager() { return host::TEditorManager::GetInstance(); }
  void Serve(const char* code) {
    Manager().SetPriceSymbol(price, code);
    Manager().SetQuantitySymbol(quantity, code);
  }
  std::string Stepped(forms::TSpinEdit& editor, double value, std::int32_t steps) {
    editor.SetValue(value);
    frame.InputStep(editor, steps);
    return editor.Text();
  }

  paper::TMarketTables tables = SampleTables();
  TDeskEvents events;
  TMemoryHost host{events.Receiver()};
  forms::TFrame frame{"TFrame", "layout"};
  forms::TSpinEdit& price = frame.Add<forms::TSpinEdit>("price");
  forms::TSpinEdit& quantity = frame.Add<forms::TSpinEdit>("quantity");
};

TEST_F(TStepGridsTest, PricesStepByTheTicksOfTheirPlace) {
  Serve("0005");
  EXPECT_EQ(Stepped(price, 60.5, 1), "60.55");
  EXPECT_EQ(Stepped(price, 60.5, -2), "60.4");
  EXPECT_EQ(Stepped(price, 99.95, 2), "100.1");
  EXPECT_EQ(Stepped(price, 60.52, 1), "60.55");
  EXPECT_EQ(Stepped(price, 60.52, -1), "60.5");
  EXPECT_EQ(Stepped(price, 0, 1), "0.001");
  EXPECT_EQ(Stepped(price, 0.001, -1), "0.001");
}

TEST_F(TStepGridsTest, AShownPriceStepsByTheTickTimesTheMultiplier) {
  Serve("1050");
  EXPECT_EQ(Stepped(price, 0.0605, 1), "0.06055");
  EXPECT_EQ(Stepped(price, 0.0605, -1), "0.06045");
}

TEST_F(TStepGridsTest, QuantitiesStepByTheLot) {
  Serve("0005");
  EXPECT_EQ(Stepped(quantity, 0, 1), "400");
  EXPECT_EQ(Stepped(quantity, 500, 1), "800");
  EXPECT_EQ(Stepped(quantity, 500, -1), "400");
  EXPECT_EQ(Stepped(quantity, 800, -1), "400");
}

TEST_F(TStepGridsTest, WithoutAnInstrumentTheEditorsOwnStepHolds) {
  price.SetStep(0.5);
  Serve("0005");
  Serve("");
  EXPECT_EQ(Stepped(price, 60.1, 1), "60.6");
  EXPECT_EQ(Stepped(quantity, 7, 2), "9");
}

TEST_F(TStepGridsTest, AnEditorThatIsTakenBackGoesByItsOwnStep) {
  Serve("0005");
  Manager().RemovePriceEditor(price);
  Manager().RemoveQuantityEditor(quantity);
  EXPECT_EQ(Stepped(price, 60.5, 1), "61.5");
  EXPECT_EQ(Stepped(quantity, 400, 1), "401");
}

TEST_F(TDeskTest, ArrowKeysStepAnOrdersPriceByTicksAndItsQuantityByLots) {
  Open();
  render::TFrameView& view = Entry().View();
  Type(view, "edtSymbol", "0005");
  Type(view, "edtPrice", "60.52");
  Type(view, "edtQty", "500");
  QTest::keyClick(&Input(view, "edtPrice"), Qt::Key_Up);
  QTest::keyClick(&Input(view, "edtQty"), Qt::Key_Down);
  EXPECT_EQ(Text(view, "edtPrice"), "60.55");
  EXPECT_EQ(Text(view, "edtQty"), "400");
}

}  // namespace
}  // namespace algo::terminal::desk::tests
