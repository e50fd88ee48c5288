// Workspaces: as texts, and stored from one start to the next.

#include <QComboBox>
#include <QTableView>

#include "tests/terminal/desk/desk_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

window::TWorkspace Sample() {
  return {.language = appearance::TLanguage::TraditionalChinese,
          .skin = "dark",
          .geometry = QByteArray("\0\xFFgeometry", 10),
          .panels = QByteArray("panels"),
          .watchGroup = "Red",
          .ordersGroup = "",
          .entries = {{"entry1", "Blue", "cmbOrderType:\"TVOL\"\n", "its data"}, {"entry3", "", "", ""}}};
}

TEST(Workspace, ComesBackFromItsText) {
  const auto back = window::ParseWorkspace(window::WorkspaceText(Sample()));
  ASSERT_TRUE(back.has_value());
  EXPECT_EQ(*back, Sample());
}

TEST(Workspace, IsNotReadFromABrokenText) {
  const std::string good = window::WorkspaceText(Sample());
  const auto with = [&good](const char* what, const char* instead) {
    std::string text = good;
    return window::ParseWorkspace(text.replace(text.find(what), std::string_view(what).size(), instead))
        .has_value();
  };
  EXPECT_TRUE(with("dark", "light"));
  EXPECT_FALSE(with("dark", "pink"));
  EXPECT_FALSE(with("zh_Hant", "fr"));
  EXPECT_FALSE(with("\"version\":1", "\"version\":2"));
  EXPECT_FALSE(with("\"entries\"", "\"entry\""));
  EXPECT_FALSE(with("\"Blue\"", "7"));
  EXPECT_FALSE(with("\"its data\"", "7"));
  EXPECT_FALSE(window::ParseWorkspace(good.substr(0, good.size() - 1)).has_value());
  EXPECT_FALSE(window::ParseWorkspace("").has_value());
  EXPECT_FALSE(window::ParseWorkspace("[]").has_value());
}

TEST(Workspace, ViewsWithoutDataOfTheirOwnAreStoredWithoutIt) {
  window::TWorkspace workspace = Sample();
  workspace.entries[0].data.clear();
  const std::string text = window::WorkspaceText(workspace);
  EXPECT_EQ(text.find("\"data\""), std::string::npos);
  EXPECT_EQ(window::ParseWorkspace(text), workspace);
}

struct TWorkspaceTest : TDeskTest {
  void StoreText(const char* text) {
    storage::TSqliteStorage(options.dataFolder + "/algo-desk.db").StoreWorkspace("default", text);
  }
};

TEST_F(TWorkspaceTest, EverythingIsThereAgainAfterARestart) {
  Open();
  Choose("AlgoOrderEntry_426");
  Type(Entry("entry2").View(), "edtQty", "700");
  QTest::keyClick(&The("linkGroup", &Entry("entry2")), Qt::Key_End);
  QTest::keyClick(&The("linkGroup", &The("marketWatch")), Qt::Key_Down);
  The<panels::TPanel>("messages").close();
  window->resize(777, 555);
  Choose("dark");
  Choose("zh_Hans");
  Close();

  Open();
  EXPECT_EQ(desk->Texts().Language(), appearance::TLanguage::SimplifiedChinese);
  EXPECT_EQ(desk->Skin().name, "dark");
  EXPECT_EQ(window->size(), QSize(777, 555));
  EXPECT_EQ(window->findChildren<frames::TEntryPanel*>().size(), 2);
  EXPECT_EQ(Text(Entry("entry2").View(), "edtQty"), "700");
  EXPECT_EQ(desk->Provider().GetGroupID(Entry("entry2").Instance()), "Yellow");
  EXPECT_EQ(Entry("entry2").Title().Group(), "Yellow");
  EXPECT_EQ(The<panels::TPanel>("marketWatch").Title().Group(), "Red");
  EXPECT_FALSE(The("messages").isVisible());
  EXPECT_TRUE(The("orders").isVisible());
}

TEST_F(TWorkspaceTest, AFloatingPanelFloatsAgain) {
  Open();
  Entry().setFloating(true);
  Close();
  Open();
  EXPECT_TRUE(Entry().isFloating());
  EXPECT_TRUE(Entry().isVisible());
}

TEST_F(TWorkspaceTest, NothingOpenIsAWorkspaceToo) {
  Open();
  Entry().close();
  QTest::qWait(1);
  Close();
  Open();
  EXPECT_TRUE(window->findChildren<frames::TEntryPanel*>().isEmpty());
}

TEST_F(TWorkspaceTest, ItIsStoredOnDemandToo) {
  Open();
  Choose("AlgoOrderEntry_426");
  Choose("saveWorkspace");
  const auto stored = window::ParseWorkspace(*desk->Storage().Workspace("default"));
  ASSERT_TRUE(stored.has_value());
  EXPECT_EQ(stored->entries.size(), 2U);
}

TEST_F(TWorkspaceTest, WhatWasAskedForAtTheStartGoesFirst) {
  Open();
  Choose("dark");
  Choose("zh_Hans");
  Close();
  options.language = appearance::TLanguage::English;
  options.skin = appearance::SkinNamed("high-contrast");
  Open();
  EXPECT_EQ(desk->Texts().Language(), appearance::TLanguage::English);
  EXPECT_EQ(desk->Skin().name, "high-contrast");
}

TEST_F(TWorkspaceTest, ABrokenOneIsToldAndNotLost) {
  StoreText("{ broken");
  Open();
  EXPECT_EQ(window->findChildren<frames::TEntryPanel*>().size(), 1);
  EXPECT_EQ(The<QTableView>("messageTable").model()->rowCount(), 1);
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->text(), desk->Texts().Desk("Workspace.Unreadable"));
  EXPECT_NE(box->text(), "Workspace.Unreadable");
  EXPECT_EQ(desk->Storage().Workspace("default (unreadable)"), "{ broken");
}

TEST_F(TWorkspaceTest, PanelsThatCannotBePlacedStandWhereTheyDoAtFirst) {
  window::TWorkspace workspace = Sample();
  workspace.entries.resize(1);
  workspace.entries[0].layout = "nonsense";
  StoreText(window::WorkspaceText(workspace).c_str());
  Open();
  EXPECT_TRUE(Entry().isVisible());
  EXPECT_TRUE(The("orders").isVisible());
  EXPECT_EQ(desk->Provider().GetGroupID(Entry().Instance()), "Blue");
}

}  // namespace
}  // namespace algo::terminal::desk::tests
