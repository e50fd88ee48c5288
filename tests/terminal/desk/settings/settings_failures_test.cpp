// The settings page where settings cannot be read or stored.

#include "tests/terminal/desk/settings/settings_page_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

TEST_F(TSettingsPageTest, ASettingThatCannotBeStoredIsToldAndStaysToBeApplied) {
  Show();
  Click(Box("ClearOrd"));
  host.Data().faults.Set({"config.store"});
  Click(Button("OK"));
  ASSERT_EQ(notes.lines.size(), 1U);
  EXPECT_TRUE(notes.lines[0].starts_with("message ")) << notes.lines[0];
  EXPECT_TRUE(told.empty());
  EXPECT_TRUE(page.isVisible());
  EXPECT_TRUE(Button("Apply").isEnabled());
  host.Data().faults.Set({});
  Click(Button("OK"));
  EXPECT_EQ(notes.lines.back(), "store USER ClearOrd Y at once");
  EXPECT_EQ(told, (std::vector<std::string>{"Y"}));
  EXPECT_FALSE(page.isVisible());
}

TEST_F(TSettingsPageTest, SettingsThatCannotBeReadAreToldAndNothingIsStored) {
  host.Data().faults.Set({"config.read"});
  Show();
  ASSERT_FALSE(notes.lines.empty());
  EXPECT_TRUE(notes.lines[0].starts_with("message ")) << notes.lines[0];
  EXPECT_FALSE(Button("Apply").isEnabled());
}

TEST_F(TSettingsPageTest, AFailureThatCannotEvenBeToldClosesNothing) {
  Show();
  Click(Box("ClearOrd"));
  host.Data().faults.Set({"config.store", "message.text"});
  Click(Button("OK"));
  EXPECT_TRUE(notes.lines.empty());
  EXPECT_TRUE(page.isVisible());
  EXPECT_TRUE(Button("Apply").isEnabled());
}

// Stores settings but for one key.
class TStorageWithout final : public TOrderStorage {
 public:
  explicit TStorageWithout(std::string_view key) : FKey(key) {}
  void StoreSetting(std::string_view /*section*/, std::string_view key, std::string_view /*value*/) override {
    if (key == FKey) throw EError("The disk is full. Free some space and try again.");
  }

 private:
  std::string FKey;
};

TEST(SettingsPageOfAFullDisk, TellsTheFormsOfWhatWasStoredBeforeTheFailure) {
  terminal::tests::TEventNotes notes;
  TStorageWithout storage("ForceConfirmBox");
  TMemoryHost host(notes, storage);
  int told = 0;
  host::TCustomConfigManager::GetInstance().AddListener([&] { ++told; }, &told);
  settings::TSettingsPage page(host, appearance::TTexts(appearance::TLanguage::English));
  page.show();
  for (const char* key : {"ConfirmationPlaceOrd", "ForceConfirmBox", "ClearOrd"})
    QTest::keyClick(page.findChild<QCheckBox*>(QLatin1String(key)), Qt::Key_Space);
  QTest::keyClick(page.findChild<QPushButton*>(QStringLiteral("Apply")), Qt::Key_Space);
  EXPECT_EQ(notes.lines,
            (terminal::tests::TNotes{"store USER ConfirmationPlaceOrd Y at once",
                                     "message The disk is full. Free some space and try again."}));
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(page.findChild<QPushButton*>(QStringLiteral("Apply"))->isEnabled());
  host::TCustomConfigManager::GetInstance().RemoveListener(&told);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
