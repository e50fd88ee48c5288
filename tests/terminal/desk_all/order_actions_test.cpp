// What a trader does to orders in the blotter.

#include <QMenu>
#include <QTreeView>

#include "plugin/host_contract/view_functions.h"
#include "tests/terminal/desk_all/desk_fixture.h"

namespace algo::terminal::tests {
namespace {

struct TOrderActionsTest : TDeskTest {
  /// Puts an order of the module into the host, as if it had been submitted before.
  void Put(const std::string& key, std::uint32_t flags = 0) {
    host::TCustomClientOrder order;
    order.key = key;
    order.orderNo = key;
    order.account = "SAMPLE-01";
    order.symbol = "0005";
    order.exchange = "HKG";
    order.quantity = 4000;
    order.price = 60.5;
    order.flags = flags;
    order.algoFlags = 0x8000;
    order.SetNamedText("Original", "AlgoEntry");
    order.SetTextProperty(440, "TMLO:AlgoId=TVOL,VolPct=20,Closing=0;");
    desk->Host().Journal().Record({"test", "new", "accepted"}, order);
  }

  host::TCustomClientOrder& Order(const char* key) { return *desk->Host().Orders().Find(key); }
  QTreeView& Tree() { return The<QTreeView>("orderTree"); }

  /// Opens the context menu on the row and chooses an entry of it by mouse. False when it is not offered.
  bool Choose(int row, const char* action) {
    const QRect place = Tree().visualRect(Tree().model()->index(row, 0));
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, place.center());
    QContextMenuEvent asked(QContextMenuEvent::Mouse, place.center(),
                            Tree().viewport()->mapToGlobal(place.center()));
    QApplication::sendEvent(Tree().viewport(), &asked);
    auto& menu = The<QMenu>("orderMenu");
    const auto* entry = menu.findChild<QAction*>(action);
    const bool offered = entry != nullptr && entry->isEnabled();
    if (offered) {
      QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(const_cast<QAction*>(entry)).center());
    } else {
      menu.close();
    }
    QTest::qWait(1);
    return offered;
  }

  TFrameView& FrameIn(QWidget& dialog) { return The<TFrameView>("frame", &dialog); }
};

TEST_F(TOrderActionsTest, AnOrderIsChangedInADialog) {
  Open();
  Put("N1");
  QString caption;
  WhenModal([&](QWidget& dialog) {
    caption = dialog.windowTitle();
    Type(FrameIn(dialog), "edtQty", "2000");
    Click(Input(FrameIn(dialog), "btnBuy"));
  });
  EXPECT_TRUE(Choose(0, "changeOrder"));
  EXPECT_EQ(caption, "Change order");
  EXPECT_EQ(Order("N1").quantity, 2000);
  EXPECT_EQ(desk->Keeper().EventsOf("N1").back().event.what, "change");
}

TEST_F(TOrderActionsTest, WhatIsFilledWhileADialogShowsIsNotLost) {
  Open();
  Put("N1");
  WhenModal([&](QWidget& dialog) {
    auto filled = Order("N1");
    filled.filled = 800;
    filled.status = 2;
    desk->Host().Journal().Record({"test", "fill", "800"}, filled);
    Type(FrameIn(dialog), "edtQty", "2000");
    Click(Input(FrameIn(dialog), "btnBuy"));
  });
  EXPECT_TRUE(Choose(0, "changeOrder"));
  EXPECT_EQ(Order("N1").quantity, 2000);
  EXPECT_EQ(Order("N1").filled, 800);
  EXPECT_EQ(Order("N1").status, 2);
}

TEST_F(TOrderActionsTest, AChangeThatIsGivenUpLeavesTheOrder) {
  Open();
  Put("N1");
  WhenModal([&](QWidget& dialog) {
    Type(FrameIn(dialog), "edtQty", "2000");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_TRUE(Choose(0, "changeOrder"));
  EXPECT_EQ(Order("N1").quantity, 4000);
}

struct TBesideTest : TOrderActionsTest {
  TBesideTest() {
    // The module goes by the setting that it finds when it is loaded.
    TSqliteStorage(options.dataFolder + "/algo-desk.db").StoreSetting("USER", "ChangeOrderShowModel", "N");
    Open();
    Put("N1");
    Put("N2");
  }
  std::vector<TFormWindow*> Forms() {
    std::vector<TFormWindow*> shown;
    for (auto* form : window->findChildren<TFormWindow*>("form")) {
      if (form->isVisible()) shown.push_back(form);
    }
    return shown;
  }
};

TEST_F(TBesideTest, ChangeFormsShowBesideEachOtherOneForEachOrder) {
  Choose(0, "changeOrder");
  Choose(1, "changeOrder");
  Choose(0, "changeOrder");
  ASSERT_EQ(Forms().size(), 2U);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(Forms()[0]->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(Forms()[0]->windowTitle(), "Change order");
}

TEST_F(TBesideTest, AChangeFormSubmitsAndGoes) {
  Choose(0, "changeOrder");
  ASSERT_EQ(Forms().size(), 1U);
  Type(FrameIn(*Forms()[0]), "edtQty", "2000");
  Click(Input(FrameIn(*Forms()[0]), "btnBuy"));
  EXPECT_TRUE(Forms().empty());
  EXPECT_EQ(Order("N2").quantity, 2000);
}

TEST_F(TBesideTest, TheCloseBoxClosesTheFormForGood) {
  Choose(0, "changeOrder");
  const TFrameView& view = FrameIn(*Forms()[0]);
  Forms()[0]->close();
  EXPECT_TRUE(Forms().empty());
  EXPECT_EQ(view.Frame(), nullptr);
  Choose(0, "changeOrder");
  EXPECT_EQ(Forms().size(), 1U);
}

TEST_F(TBesideTest, FormsTakeUpALanguageWhileTheyShow) {
  Choose(0, "changeOrder");
  // Also when it is the only thing of the module that shows.
  Entry().close();
  QTest::qWait(1);
  desk->SetLanguage(TLanguage::TraditionalChinese);
  EXPECT_EQ(FromQt(Forms()[0]->windowTitle()), desk->Texts().Resource("Res_Conf_ChangeOrder"));
}

TEST_F(TBesideTest, AFormTakesTheSizeThatItsFrameWants) {
  Choose(0, "changeOrder");
  TFormWindow& form = *Forms()[0];
  const QSize before = form.size();
  auto& frame = dynamic_cast<host::TViewFrame&>(*FrameIn(form).Frame());
  form.resize(before + QSize(100, 100));
  frame.Layout().Find("lgAlgo")->SetVisible(false);
  host::SendViewNotify(frame, 1025);
  EXPECT_LT(form.width(), before.width());
}

TEST_F(TBesideTest, TheProgramEndsWithFormsOpen) {
  Choose(0, "changeOrder");
  Choose(1, "changeOrder");
  window->close();
  EXPECT_FALSE(window->isVisible());
  EXPECT_TRUE(Forms().empty());
}

TEST_F(TOrderActionsTest, AChildIsCutFromAWorkParentAndStandsBelowIt) {
  Open();
  Put("N1", 0x10000001);
  WhenModal([&](QWidget& dialog) {
    Type(FrameIn(dialog), "edtQty", "800");
    Click(Input(FrameIn(dialog), "btnSubmit"));
  });
  EXPECT_TRUE(Choose(0, "workOrder"));
  ASSERT_EQ(desk->Host().Orders().All().size(), 2U);
  const auto& child = *desk->Host().Orders().All()[1];
  EXPECT_EQ(child.parentNo, "N1");
  EXPECT_EQ(child.quantity, 800);
  EXPECT_EQ(child.user, "trader1");
  const QModelIndex parent = Tree().model()->index(0, 0);
  EXPECT_EQ(Tree().model()->rowCount(parent), 1);
  EXPECT_TRUE(Tree().isExpanded(parent));
}

TEST_F(TOrderActionsTest, OnlyAWorkParentOffersWork) {
  Open();
  Put("N1");
  EXPECT_FALSE(Choose(0, "workOrder"));
}

TEST_F(TOrderActionsTest, CancelTakesAnOrderOutOfTheMarket) {
  Open();
  Put("N1");
  EXPECT_TRUE(Choose(0, "cancelOrder"));
  EXPECT_EQ(Order("N1").status, 4);
  const auto last = desk->Keeper().EventsOf("N1").back().event;
  EXPECT_EQ(last.who, "trader1");
  EXPECT_EQ(last.what, "cancel");
  EXPECT_FALSE(Choose(0, "cancelOrder"));
  EXPECT_FALSE(Choose(0, "changeOrder"));
}

TEST_F(TOrderActionsTest, AnOrderIsCopiedIntoAnEntryView) {
  Open();
  Put("N1");
  EXPECT_TRUE(Choose(0, "copyOrder"));
  EXPECT_EQ(Text(Entry().View(), "edtSymbol"), "0005");
  EXPECT_EQ(Text(Entry().View(), "edtQty"), "4,000");
  EXPECT_EQ(Text(Entry().View(), "edtVolPct"), "20");
}

TEST_F(TOrderActionsTest, ByKeyTheMenuIsForTheCurrentRow) {
  Open();
  Put("N1");
  Put("N2");
  Tree().setCurrentIndex(Tree().model()->index(1, 0));
  QContextMenuEvent asked(QContextMenuEvent::Keyboard, {0, 0}, {0, 0});
  QApplication::sendEvent(&Tree(), &asked);
  auto& menu = The<QMenu>("orderMenu");
  QTest::keyClick(&menu, Qt::Key_Up);
  QTest::keyClick(&menu, Qt::Key_Return);
  EXPECT_EQ(Order("N1").status, 4);
  EXPECT_EQ(Order("N2").status, 0);
}

TEST_F(TOrderActionsTest, AMenuIsForItsRowAndNotForTheCurrentOne) {
  Open();
  Put("N1");
  Put("N2");
  Tree().setCurrentIndex(Tree().model()->index(1, 0));
  const QPoint first = Tree().visualRect(Tree().model()->index(0, 0)).center();
  QContextMenuEvent asked(QContextMenuEvent::Mouse, first, Tree().viewport()->mapToGlobal(first));
  QApplication::sendEvent(Tree().viewport(), &asked);
  The<QAction>("cancelOrder").trigger();
  EXPECT_EQ(Order("N2").status, 4);
  EXPECT_EQ(Order("N1").status, 0);
  The<QMenu>("orderMenu").close();
}

TEST_F(TOrderActionsTest, AnOrderThatLeftTheListWhileItsMenuWasOpenIsLeftAlone) {
  Open();
  Put("N1");
  QTest::keyClick(&The("ordersShown"), Qt::Key_Down);
  Tree().setCurrentIndex(Tree().model()->index(0, 0));
  QContextMenuEvent asked(QContextMenuEvent::Keyboard, {0, 0}, {0, 0});
  QApplication::sendEvent(&Tree(), &asked);
  auto filled = Order("N1");
  filled.filled = 4000;
  filled.status = 3;
  desk->Host().Journal().Record({"test", "fill", "4000"}, filled);
  The<QAction>("cancelOrder").trigger();
  EXPECT_EQ(Order("N1").status, 3);
  EXPECT_EQ(desk->Keeper().EventsOf("N1").back().event.what, "fill");
  The<QMenu>("orderMenu").close();
}

TEST_F(TOrderActionsTest, BelowTheLastRowThereIsNoMenu) {
  Open();
  Put("N1");
  Tree().setCurrentIndex(Tree().model()->index(0, 0));
  const QPoint below(20, Tree().viewport()->height() - 3);
  QContextMenuEvent asked(QContextMenuEvent::Mouse, below, Tree().viewport()->mapToGlobal(below));
  QApplication::sendEvent(Tree().viewport(), &asked);
  EXPECT_EQ(window->findChild<QMenu*>("orderMenu"), nullptr);
}

TEST_F(TOrderActionsTest, FiltersWorkByKeys) {
  Open();
  Put("N1");
  Put("N2");
  Choose(0, "cancelOrder");
  auto& shown = The("ordersShown");
  QTest::keyClick(&shown, Qt::Key_Down);
  EXPECT_EQ(Tree().model()->rowCount(), 1);
  QTest::keyClick(&shown, Qt::Key_Down);
  ASSERT_EQ(Tree().model()->rowCount(), 1);
  EXPECT_EQ(Tree().model()->index(0, 0).data().toString(), "N2");
  QTest::keyClick(&shown, Qt::Key_Home);
  EXPECT_EQ(Tree().model()->rowCount(), 2);
  QTest::keyClicks(&The("orderFilter"), "cancelled");
  EXPECT_EQ(Tree().model()->rowCount(), 1);
}

TEST_F(TOrderActionsTest, TheMarketFillsAnOrderStepByStep) {
  Open();
  Put("N1");
  for (int i = 0; i < 3000 && Order("N1").filled == 0; ++i) desk->Step(1);
  EXPECT_GT(Order("N1").filled, 0);
  EXPECT_NE(Tree().model()->index(0, 7).data().toString(), "0%");
}

TEST_F(TOrderActionsTest, OrdersAreThereAgainAfterARestart) {
  Open();
  Put("N1");
  Put("N2");
  Close();
  Open();
  EXPECT_EQ(Tree().model()->rowCount(), 2);
  EXPECT_EQ(Order("N2").quantity, 4000);
}

}  // namespace
}  // namespace algo::terminal::tests
