#include "terminal/desk/settings/settings_page.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>

#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/message_box.h"
#include "terminal/desk/settings/setting_line.h"
#include "terminal/desk/settings/settings_table.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::settings {

namespace {

struct TButtonRow {
  QDialogButtonBox::StandardButton button;
  const char* textKey;
};
constexpr TButtonRow ButtonTable[] = {
    {QDialogButtonBox::Ok, "OK"}, {QDialogButtonBox::Cancel, "Cancel"}, {QDialogButtonBox::Apply, "Apply"}};

host::TCustomConfigManager& Config() { return host::TCustomConfigManager::GetInstance(); }

std::string SectionOf(const TSettingRow& row) {
  return row.section == TSettingSection::User ? Config().CurrentSection() : std::string(PlatformSection);
}

void ShowFailure(const std::exception& failure) {
  try {
    host::TCustomMessageBoxCtrl::GetInstance().ShowText(failure.what());
  } catch (const std::exception&) {  // a host that cannot even show a message is left alone
  }
}

// Runs what may fail; answers false, with the failure shown to the trader, when it does. Qt lets no exception
// through.
template <class TWork>
bool Guarded(const TWork& work) {
  try {
    work();
    return true;
  } catch (const std::exception& failure) {
    ShowFailure(failure);
    return false;
  }
}

}  // namespace

TSettingsPage::TSettingsPage(TMemoryHost& host, const appearance::TTexts& texts, QWidget* parent)
    : QDialog(parent), FHost(host), FButtons(new QDialogButtonBox(this)) {
  setObjectName(QStringLiteral("Settings"));
  auto* column = new QVBoxLayout(this);
  for (const TSettingRow& row : SettingsTable) {
    if (FGroups.empty() || FGroups.back()->objectName() != render::ToQt(row.group)) {
      FGroups.push_back(new QGroupBox(this));
      FGroups.back()->setObjectName(render::ToQt(row.group));
      column->addWidget(FGroups.back());
      (new QVBoxLayout(FGroups.back()))->setSpacing(2);
    }
    FLines.push_back(MakeSettingLine(row, *FGroups.back(), [this] { UpdateApplyButton(); }));
  }
  for (const TButtonRow& row : ButtonTable)
    FButtons->addButton(row.button)->setObjectName(QLatin1String(row.textKey));
  FButtons->setObjectName(QStringLiteral("Buttons"));
  column->addStretch();
  column->addWidget(FButtons);
  connect(FButtons, &QDialogButtonBox::accepted, this, &TSettingsPage::accept);
  connect(FButtons, &QDialogButtonBox::rejected, this, &TSettingsPage::reject);
  connect(FButtons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &TSettingsPage::Apply);
  SetTexts(texts);
  Reload();
}

TSettingsPage::~TSettingsPage() = default;

void TSettingsPage::SetTexts(const appearance::TTexts& texts) {
  setWindowTitle(texts.Desk("Settings"));
  setAccessibleName(windowTitle());
  for (QGroupBox* group : FGroups) {
    group->setTitle(texts.Desk(render::FromQt(group->objectName())));
    group->setAccessibleName(group->title());
  }
  for (const auto& line : FLines) line->SetTexts(texts);
  for (const TButtonRow& row : ButtonTable) {
    FButtons->button(row.button)->setText(texts.Desk(row.textKey));
    FButtons->button(row.button)->setAccessibleName(texts.Desk(row.textKey));
  }
}

bool TSettingsPage::Apply() {
  bool anyStored = false;
  const bool stored = Guarded([&] {
    for (const auto& line : FLines) {
      if (!line->IsChanged()) continue;
      Config().Store(SectionOf(line->Row()), line->Row().key, line->Value(), true);
      line->MarkStored();
      anyStored = true;
    }
  });
  const bool notified = !anyStored || Guarded([&] { FHost.NotifyConfigChanged(); });
  UpdateApplyButton();
  return stored && notified;
}

void TSettingsPage::accept() {
  if (Apply()) QDialog::accept();
}

void TSettingsPage::showEvent(QShowEvent* event) {
  Reload();
  QDialog::showEvent(event);
}

void TSettingsPage::Reload() {
  Guarded([&] {
    for (const auto& line : FLines) line->Show(Config().ReadText(SectionOf(line->Row()), line->Row().key));
  });
  UpdateApplyButton();
}

void TSettingsPage::UpdateApplyButton() {
  const bool changed = std::ranges::any_of(FLines, [](const auto& line) { return line->IsChanged(); });
  FButtons->button(QDialogButtonBox::Apply)->setEnabled(changed);
}

}  // namespace algo::terminal::desk::settings
