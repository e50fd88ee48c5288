// Menus, languages and skins of the main window, and that every widget has its names.

#include <QMenu>
#include <QStatusBar>
#include <QTableView>
#include <QTreeView>

#include "plugin/host_contract/look_and_feel_service.h"
#include "terminal/desk/provider_menu.h"
#include "tests/terminal/desk_all/desk_fixture.h"

namespace algo::terminal::tests {
namespace {

QStringList Captions(const QWidget& menu) {
  QStringList captions;
  for (const QAction* action : menu.actions()) captions.append(action->text());
  return captions;
}

struct TLooksTest : TDeskTest {
  QStringList Menu(int place) { return Captions(*window->menuBar()->actions()[place]->menu()); }
};

TEST_F(TLooksTest, TheModulesMenuStandsAfterFile) {
  Open();
  EXPECT_EQ(Captions(*window->menuBar()),
            (QStringList{"&File", "Order", "&View", "Language", "Skin", "&Help"}));
  EXPECT_EQ(Menu(1), QStringList{"Algo order entry"});
  EXPECT_EQ(Menu(2), (QStringList{"Market watch", "Orders", "Messages"}));
  EXPECT_EQ(Menu(3), (QStringList{"English", "繁體中文", "简体中文"}));
  EXPECT_EQ(Menu(4), (QStringList{"Light", "Dark", "High contrast"}));
}

TEST_F(TLooksTest, WithoutTheRightThereIsNoEntry) {
  Open();
  desk->Host().Data().rights.erase("AlgoTabOrderEntry");
  desk->SetLanguage(TLanguage::English);
  EXPECT_EQ(Captions(*window->menuBar()), (QStringList{"&File", "&View", "Language", "Skin", "&Help"}));
}

TEST_F(TLooksTest, ThePanelsAreShownAndHiddenByTheirMenu) {
  Open();
  EXPECT_TRUE(The("marketWatch").isVisible());
  Choose("show_marketWatch");
  EXPECT_FALSE(The("marketWatch").isVisible());
  Choose("show_marketWatch");
  EXPECT_TRUE(The("marketWatch").isVisible());
}

TEST_F(TLooksTest, ALanguageIsTakenUpAtOnceEverywhere) {
  Open();
  Type(Entry().View(), "edtQty", "400");
  Choose("zh_Hant");
  EXPECT_EQ(Entry().windowTitle(), ToQt(desk->Texts().Resource("Res_AlgoOrderEntry")));
  EXPECT_EQ(The("orders").windowTitle(), "委託列表");
  EXPECT_EQ(The<QTableView>("marketTable").model()->index(0, 1).data().toString(), "樣本海港銀行");
  EXPECT_EQ(The<QLabel>("paperNote").text(), "模擬交易：委託不會離開本機");
  EXPECT_EQ(ToQt(Entry().View().Frame()->FindControl("btnSubmit")->Caption()),
            ToQt(desk->Texts().Resource("Res_Submit")));
  EXPECT_EQ(Text(Entry().View(), "edtQty"), "400");
  EXPECT_TRUE(The<QAction>("zh_Hant").isChecked());
  EXPECT_FALSE(The<QAction>("en").isChecked());
  Choose("en");
  EXPECT_EQ(Entry().windowTitle(), "Algo order entry");
}

TEST_F(TLooksTest, ASkinIsTakenUpAtOnceByTheModuleToo) {
  Open();
  Choose("dark");
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(0x20, 0x23, 0x27));
  EXPECT_EQ(host::TCustomLookAndFeelService::GetInstance().ColorOf(7, 0), 0x6CB6FFU);
  const auto& buy = dynamic_cast<const forms::TButton&>(*Entry().View().Frame()->FindControl("btnBuy"));
  EXPECT_EQ(buy.Colors().at(7), 0x6CB6FFU);
  EXPECT_TRUE(The<QAction>("dark").isChecked());
}

TEST_F(TLooksTest, AboutSaysThatItIsPaperTrading) {
  Open();
  Choose("about");
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  ASSERT_NE(box, nullptr);
  EXPECT_TRUE(box->text().contains("Paper trading: no order leaves this machine"));
  Click(*box->button(QMessageBox::Ok));
}

TEST_F(TLooksTest, TheSettingsPageFollowsTheLanguageAndIsOpenOnce) {
  Open();
  Choose("settings");
  Choose("settings");
  EXPECT_EQ(window->findChildren<TSettingsPage*>().size(), 1);
  desk->SetLanguage(TLanguage::SimplifiedChinese);
  EXPECT_EQ(The<TSettingsPage>("Settings").windowTitle(), desk->Texts().Desk("Settings"));
  The<TSettingsPage>("Settings").reject();
  QTest::qWait(1);
  EXPECT_EQ(window->findChildren<TSettingsPage*>().size(), 0);
}

// What is Qt's own, parts inside of a widget for one, has names of Qt's making.
bool IsOurs(const QWidget& widget) {
  const QString name = widget.objectName();
  if (name.startsWith("qt_") || widget.metaObject()->className() == std::string_view("QWidget")) return false;
  for (const char* kind :
       {"QLabel", "QScrollBar", "QHeaderView", "QTabBar", "QSizeGrip", "QRubberBand", "QMenu"}) {
    if (widget.inherits(kind)) return false;
  }
  return widget.focusPolicy() != Qt::NoFocus && widget.isVisible();
}

TEST_F(TLooksTest, WhatTakesTheFocusHasAnObjectNameAndAnAccessibleName) {
  Open();
  int seen = 0;
  for (const QWidget* widget : window->findChildren<QWidget*>()) {
    if (!IsOurs(*widget)) continue;
    ++seen;
    const std::string kind = widget->metaObject()->className();
    EXPECT_FALSE(widget->objectName().isEmpty())
        << kind << " in " << widget->parent()->objectName().toStdString();
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << kind << " " << widget->objectName().toStdString();
  }
  EXPECT_GT(seen, 30);
}

TEST_F(TLooksTest, TheMarketRunsByTheClock) {
  Open();
  const auto volume = [this] {
    return desk->Host().Data().instruments.size()
               ? The<QTableView>("marketTable").model()->index(0, 9).data().toString()
               : QString();
  };
  const QString before = volume();
  desk->Start();
  for (int i = 0; i < 100 && volume() == before; ++i) QTest::qWait(100);
  EXPECT_NE(volume(), before);
}

struct TSampleView : host::TIBaseView {
  TSampleView(std::int32_t id, std::int32_t index) : TIBaseView(nullptr), FId(id), FIndex(index) {}
  std::string GetName() override { return "view" + std::to_string(FId); }
  std::int32_t GetViewID() override { return FId; }
  std::int32_t GetMenuLevel() override { return 3; }
  std::int32_t GetMenuIndex(std::int32_t level) override { return level == 2 ? FIndex : 10; }
  std::int32_t GetMenuID(std::int32_t level) override { return level == 2 ? FId : 50 + level; }
  std::string GetMenuCaption(std::int32_t level) override {
    return "Level " + std::to_string(level) + (level == 2 ? " view " + std::to_string(FId) : "");
  }
  std::int32_t GetMenuGroupIndex(std::int32_t) override { return 0; }
  bool GetIsVisible() override { return true; }
  bool GetDefaultCaption(std::string&) override { return false; }
  bool GetDefaultSize(std::int32_t&, std::int32_t&) override { return false; }
  host::TInstanceHandle OpenNewInstance() override { return 0; }
  std::int32_t FId;
  std::int32_t FIndex;
};

TEST(ProviderMenu, ViewsShareTheMenusOnTheirWayAndStandByTheirIndexes) {
  QMenuBar bar;
  MenuIn(bar, {1, 20}, "Last");
  TSampleView late(7, 300);
  TSampleView early(8, 200);
  ASSERT_NE(PlaceView(bar, late), nullptr);
  ASSERT_NE(PlaceView(bar, early), nullptr);
  EXPECT_EQ(Captions(bar), (QStringList{"Level 0", "Last"}));
  const QMenu& first = *bar.actions()[0]->menu();
  EXPECT_EQ(Captions(first), QStringList{"Level 1"});
  EXPECT_EQ(Captions(*first.actions()[0]->menu()), (QStringList{"Level 2 view 8", "Level 2 view 7"}));
}

}  // namespace
}  // namespace algo::terminal::tests
