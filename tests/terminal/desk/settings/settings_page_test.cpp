// The settings page, worked with mouse and keys: what it shows, stores and tells.

#include <QApplication>
#include <QGroupBox>

#include "forms/choices.h"
#include "terminal/drive/loaded_module.h"
#include "tests/terminal/desk/settings/settings_page_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

TEST_F(TSettingsPageTest, ShowsWhatTheModuleDoesWhereNothingIsSet) {
  Show();
  EXPECT_FALSE(Box("ConfirmationPlaceOrd").isChecked());
  EXPECT_FALSE(Box("ForceConfirmBox").isChecked());
  EXPECT_FALSE(Box("ClearOrd").isChecked());
  EXPECT_TRUE(Box("ChangeOrderShowModel").isChecked());
  EXPECT_TRUE(Box("WorkOrderQtyOut").isChecked());
  EXPECT_FALSE(Box("ConfirmationWorkOrdPri").isChecked());
  EXPECT_EQ(List("DefaultGroupDataMode").currentData().toString(), QStringLiteral("-1"));
  EXPECT_EQ(List("ScaleSize").currentData().toString(), QStringLiteral("100"));
  EXPECT_FALSE(Button("Apply").isEnabled());
}

TEST_F(TSettingsPageTest, ReadsStoredTextsAsTheModuleDoes) {
  User() = {{"ConfirmationPlaceOrd", "true"}, {"ForceConfirmBox", "1"}, {"ClearOrd", "y"},
            {"ChangeOrderShowModel", "no"},   {"WorkOrderQtyOut", "0"}, {"ConfirmationWorkOrdPri", "Y"}};
  Platform() = {{"DefaultGroupDataMode", "0"}, {"ScaleSize", "125"}};
  Show();
  EXPECT_TRUE(Box("ConfirmationPlaceOrd").isChecked());
  EXPECT_TRUE(Box("ForceConfirmBox").isChecked());
  EXPECT_TRUE(Box("ClearOrd").isChecked());
  EXPECT_FALSE(Box("ChangeOrderShowModel").isChecked());
  EXPECT_FALSE(Box("WorkOrderQtyOut").isChecked());
  EXPECT_TRUE(Box("ConfirmationWorkOrdPri").isChecked());
  EXPECT_EQ(List("DefaultGroupDataMode").currentText(), QStringLiteral("From its own link group only"));
  EXPECT_EQ(List("ScaleSize").currentText(), QStringLiteral("125 %"));
  EXPECT_FALSE(Button("Apply").isEnabled());
}

TEST_F(TSettingsPageTest, OnlyAFirstLetterNMeansNoToTheDialogOfChangesAndOnlyAZeroMeansEmpty) {
  User() = {{"ChangeOrderShowModel", "0"}, {"WorkOrderQtyOut", "N"}};
  Show();
  EXPECT_TRUE(Box("ChangeOrderShowModel").isChecked());
  EXPECT_TRUE(Box("WorkOrderQtyOut").isChecked());
}

TEST_F(TSettingsPageTest, ApplyStoresEachChangedSettingAndTellsOnce) {
  Show();
  Click(Box("ConfirmationPlaceOrd"));
  Click(Box("WorkOrderQtyOut"));
  QTest::keyClick(&Box("ClearOrd"), Qt::Key_Space);
  QTest::keyClick(&List("ScaleSize"), Qt::Key_End);
  QTest::keyClick(&List("DefaultGroupDataMode"), Qt::Key_Down);
  EXPECT_TRUE(notes.lines.empty());
  ASSERT_TRUE(Button("Apply").isEnabled());
  Click(Button("Apply"));
  EXPECT_EQ(notes.lines,
            (terminal::tests::TNotes{"store USER ConfirmationPlaceOrd Y at once",
                                     "store USER ClearOrd Y at once", "store USER WorkOrderQtyOut 0 at once",
                                     "store VANTORIX_PLATFORM DefaultGroupDataMode 0 at once",
                                     "store VANTORIX_PLATFORM ScaleSize 150 at once"}));
  EXPECT_EQ(told, (std::vector<std::string>{"Y"})) << "once, when all is stored";
  EXPECT_FALSE(Button("Apply").isEnabled());
  EXPECT_TRUE(page.isVisible());
}

TEST_F(TSettingsPageTest, TheUsersOwnSettingsGoToTheSectionOfTheUserAtWork) {
  host.Data().section = "TRADER7";
  Show();
  Click(Box("ForceConfirmBox"));
  Click(Button("OK"));
  EXPECT_EQ(notes.lines, (terminal::tests::TNotes{"store TRADER7 ForceConfirmBox Y at once"}));
}

TEST_F(TSettingsPageTest, WhatIsChangedBackIsNotStored) {
  Show();
  Click(Box("ClearOrd"));
  EXPECT_TRUE(Button("Apply").isEnabled());
  Click(Box("ClearOrd"));
  EXPECT_FALSE(Button("Apply").isEnabled());
  Click(Button("OK"));
  EXPECT_TRUE(notes.lines.empty());
  EXPECT_TRUE(told.empty());
  EXPECT_FALSE(page.isVisible());
  EXPECT_EQ(page.result(), QDialog::Accepted);
}

TEST_F(TSettingsPageTest, CancelAndEscapeStoreNothingAndForgetWhatWasChanged) {
  for (const bool byKey : {false, true}) {
    Show();
    Click(Box("ClearOrd"));
    if (byKey)
      QTest::keyClick(&page, Qt::Key_Escape);
    else
      Click(Button("Cancel"));
    EXPECT_FALSE(page.isVisible());
    Show();
    EXPECT_FALSE(Box("ClearOrd").isChecked());
    EXPECT_FALSE(Button("Apply").isEnabled());
    page.hide();
  }
  EXPECT_TRUE(notes.lines.empty());
}

TEST_F(TSettingsPageTest, ShowsWhatAFormStoredWhileItWasClosed) {
  Show();
  page.hide();
  User()["ConfirmationPlaceOrd"] = "Y";
  Show();
  EXPECT_TRUE(Box("ConfirmationPlaceOrd").isChecked());
  EXPECT_FALSE(Button("Apply").isEnabled());
}

TEST_F(TSettingsPageTest, ATextThatIsNoChoiceIsShownAndKept) {
  Platform() = {{"ScaleSize", "110"}};
  Show();
  EXPECT_EQ(List("ScaleSize").currentText(), QStringLiteral("110"));
  Click(Box("ClearOrd"));
  Click(Button("OK"));
  EXPECT_EQ(notes.lines, (terminal::tests::TNotes{"store USER ClearOrd Y at once"}));
}

TEST(SettingsPageBesideAForm, ChangesTheOpenForm) {
  terminal::tests::TEventNotes notes;
  TMemoryHost host(notes);
  host.Data().lists["ALGO/Exchange"] = {"HKG"};
  const drive::TLoadedModule module(drive::ModuleBesideProgram(), nullptr);
  const auto frame = module.Provider().FindView(module.Provider().OpenNewInstance());
  ASSERT_NE(frame, nullptr);
  const auto& noConfirmation = dynamic_cast<const forms::TCheckBox&>(*frame->FindControl("cbPopup"));
  ASSERT_TRUE(noConfirmation.Checked());
  settings::TSettingsPage page(host, appearance::TTexts(appearance::TLanguage::English));
  page.show();
  QTest::keyClick(page.findChild<QCheckBox*>(QStringLiteral("ConfirmationPlaceOrd")), Qt::Key_Space);
  QTest::keyClick(page.findChild<QPushButton*>(QStringLiteral("Apply")), Qt::Key_Space);
  EXPECT_FALSE(noConfirmation.Checked());
}

TEST_F(TSettingsPageTest, ChangesLanguageWhileOpenAndKeepsWhatWasChanged) {
  Show();
  Click(Box("ClearOrd"));
  QTest::keyClick(&List("DefaultGroupDataMode"), Qt::Key_Down);
  page.SetTexts(appearance::TTexts(appearance::TLanguage::TraditionalChinese));
  EXPECT_EQ(page.windowTitle(), QStringLiteral("設定"));
  EXPECT_EQ(Box("ClearOrd").text(), QStringLiteral("送出後清除表單"));
  EXPECT_EQ(Box("ClearOrd").accessibleName(), QStringLiteral("送出後清除表單"));
  EXPECT_EQ(List("DefaultGroupDataMode").accessibleName(), QStringLiteral("接收複製內容"));
  EXPECT_EQ(List("DefaultGroupDataMode").currentText(), QStringLiteral("只來自本身的連動組"));
  EXPECT_EQ(Button("Apply").text(), QStringLiteral("套用"));
  EXPECT_TRUE(Box("ClearOrd").isChecked());
  EXPECT_TRUE(Button("Apply").isEnabled());
}

TEST_F(TSettingsPageTest, EveryWidgetThatTakesInputHasANameAndAnAccessibleName) {
  Show();
  int count = 0;
  for (const QWidget* widget : page.findChildren<QWidget*>()) {
    const bool takesInput = qobject_cast<const QAbstractButton*>(widget) ||
                            qobject_cast<const QComboBox*>(widget) || qobject_cast<const QGroupBox*>(widget);
    if (!takesInput) continue;
    ++count;
    EXPECT_FALSE(widget->objectName().isEmpty()) << widget->metaObject()->className();
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
  }
  EXPECT_EQ(count, 8 + 3 + 3);  // settings, headings, buttons
  EXPECT_EQ(page.objectName(), QStringLiteral("Settings"));
  EXPECT_EQ(page.accessibleName(), QStringLiteral("Settings"));
}

TEST_F(TSettingsPageTest, IsWalkedThroughByTheTabKeyFromTopToBottom) {
  Show();
  page.activateWindow();
  Box("ConfirmationPlaceOrd").setFocus();
  std::vector<std::string> visited;
  for (int i = 0; i < 8; ++i) {
    visited.push_back(QApplication::focusWidget()->objectName().toStdString());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(visited, (std::vector<std::string>{
                         "ConfirmationPlaceOrd", "ForceConfirmBox", "ClearOrd", "ChangeOrderShowModel",
                         "WorkOrderQtyOut", "ConfirmationWorkOrdPri", "DefaultGroupDataMode", "ScaleSize"}));
}

}  // namespace
}  // namespace algo::terminal::desk::tests
