#include "terminal/desk/settings/setting_line.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <utility>

#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::settings {

namespace {

class TCheckLine final : public TSettingLine {
 public:
  TCheckLine(const TSettingRow& row, QGroupBox& group, std::function<void()> changed)
      : TSettingLine(row, group), FBox(new QCheckBox(&group)) {
    group.layout()->addWidget(FBox);
    AddExplanation(*FBox);
    QObject::connect(FBox, &QCheckBox::toggled, FBox, std::move(changed));
  }

  std::string Value() const override { return std::string(FRow.choices[FBox->isChecked() ? 1 : 0].value); }

 private:
  void ShowText(std::string_view text) override { FBox->setChecked(FRow.isYes(text)); }
  void ShowName(const QString& name, const appearance::TTexts& /*texts*/) override { FBox->setText(name); }

  QCheckBox* FBox;
};

class TListLine final : public TSettingLine {
 public:
  TListLine(const TSettingRow& row, QGroupBox& group, std::function<void()> changed)
      : TSettingLine(row, group), FName(new QLabel(&group)), FList(new QComboBox(&group)) {
    for (const TSettingChoice& choice : row.choices) FList->addItem(QString(), render::ToQt(choice.value));
    FName->setBuddy(FList);
    auto* line = new QHBoxLayout();
    line->setSpacing(8);
    line->addWidget(FName);
    line->addWidget(FList, 1);
    static_cast<QVBoxLayout*>(group.layout())->addLayout(line);
    AddExplanation(*FList);
    QObject::connect(FList, &QComboBox::currentIndexChanged, FList, std::move(changed));
  }

  std::string Value() const override { return render::FromQt(FList->currentData().toString()); }

 private:
  // A text that is none of the choices is offered as it is, so that opening the page changes nothing.
  void ShowText(std::string_view text) override {
    if (!text.empty() && FList->findData(render::ToQt(text)) < 0)
      FList->addItem(render::ToQt(text), render::ToQt(text));
    FList->setCurrentIndex(text.empty() ? 0 : FList->findData(render::ToQt(text)));
  }

  void ShowName(const QString& name, const appearance::TTexts& texts) override {
    FName->setText(name);
    for (std::size_t i = 0; i < FRow.choices.size(); ++i)
      FList->setItemText(static_cast<int>(i), texts.Desk(FRow.choices[i].textKey));
  }

  QLabel* FName;
  QComboBox* FList;
};

}  // namespace

TSettingLine::TSettingLine(const TSettingRow& row, QGroupBox& group) : FRow(row), FGroup(group) {
  constexpr int BetweenSettings = 8;
  auto* column = static_cast<QVBoxLayout*>(group.layout());
  if (column->count() > 0) column->addSpacing(BetweenSettings);
}

TSettingLine::~TSettingLine() = default;

void TSettingLine::Show(std::string_view text) {
  ShowText(text);
  MarkStored();
}

void TSettingLine::AddExplanation(QWidget& widget) {
  FWidget = &widget;
  FWidget->setObjectName(render::ToQt(FRow.key));
  FExplanation = new QLabel(&FGroup);
  FExplanation->setObjectName(render::ToQt(FRow.key) + QStringLiteral(".Why"));
  FExplanation->setForegroundRole(QPalette::PlaceholderText);
  FGroup.layout()->addWidget(FExplanation);
}

void TSettingLine::SetTexts(const appearance::TTexts& texts) {
  const std::string key = "Setting." + std::string(FRow.key);
  ShowName(texts.Desk(key), texts);
  FWidget->setAccessibleName(texts.Desk(key));
  FExplanation->setText(texts.Desk(key + ".Why"));
  FWidget->setAccessibleDescription(FExplanation->text());
}

std::unique_ptr<TSettingLine> MakeSettingLine(const TSettingRow& row, QGroupBox& group,
                                              std::function<void()> changed) {
  if (row.isYes != nullptr) return std::make_unique<TCheckLine>(row, group, std::move(changed));
  return std::make_unique<TListLine>(row, group, std::move(changed));
}

}  // namespace algo::terminal::desk::settings
