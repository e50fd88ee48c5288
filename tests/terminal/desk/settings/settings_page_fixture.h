#pragma once

// The settings page of a host without a module, and what a trader does in it.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <stdexcept>
#include <string>
#include <vector>

#include "plugin/host_contract/config_manager.h"
#include "terminal/desk/settings/settings_page.h"
#include "tests/terminal/host/event_notes.h"

namespace algo::terminal::desk::tests {

struct TSettingsPageTest : testing::Test {
  TSettingsPageTest() {
    host::TCustomConfigManager::GetInstance().AddListener(
        [this] { told.push_back(host.Data().Setting("USER", "ClearOrd")); }, this);
  }
  ~TSettingsPageTest() override { host::TCustomConfigManager::GetInstance().RemoveListener(this); }

  TTextTable& User() { return host.Data().config["USER"]; }
  TTextTable& Platform() { return host.Data().config["VANTORIX_PLATFORM"]; }

  void Show() {
    page.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&page));
  }
  template <class TWidget>
  TWidget& Find(const char* name) {
    auto* widget = page.findChild<TWidget*>(QLatin1String(name));
    if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *widget;
  }
  QCheckBox& Box(const char* key) { return Find<QCheckBox>(key); }
  QComboBox& List(const char* key) { return Find<QComboBox>(key); }
  QPushButton& Button(const char* name) { return Find<QPushButton>(name); }

  void Click(QAbstractButton& button) {
    const QPoint sign(10, button.height() / 2);
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, sign);
  }

  terminal::tests::TEventNotes notes;
  TMemoryHost host{notes};
  std::vector<std::string> told;
  settings::TSettingsPage page{host, appearance::TTexts(appearance::TLanguage::English)};
};

}  // namespace algo::terminal::desk::tests
