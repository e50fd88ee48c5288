#include "terminal/desk/setting_line.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <utility>

#include "terminal/render/qt_text.h"

namespace algo::terminal {

namespace {

class TCheckLine final : public TSettingLine {
 public:
  TCheckLine(const TSettingRow& row, QGroupBox& group, std::function<void()> changed)
      : TSettingLine(row, group), FBox(new QCheckBox(&group)) {
    group.layout()->addWidget(FBox);
    Explain(*FBox);
    QObject::connect(FBox, &QCheckBox::toggled, FBox, std::move(changed));
  }

  std::string Value() const override { return std::string(FRow.choices[FBox->isChecked() ? 1 : 0].value); }

 private:
  void ShowText(std::string_view text) override { FBox->setChecked(FRow.isYes(text)); }
  void ShowName(const QString& name, const TTexts& /*texts*/) override { FBox->setText(name); }

  QCheckBox* FBox;
};

class TListLine final : public TSettingLine {
 public:
  TListLine(const TSettingRow& row, QGroupBox& group, std::function<void()> changed)
      : TSettingLine(row, group), FName(new QLabel(&group)), FList(new QComboBox(&group)) {
    for (const TSettingChoice& choice : row.choices) FList->addItem(QString(), ToQt(choice.value));
    FName->setBuddy(FList);
    auto* line = new QHBoxLayout();
    line->setSpacing(8);
    line->addWidget(FName);
    line->addWidget(FList, 1);
    static_cast<QVBoxLayout*>(group.layout())->addLayout(line);
    Explain(*FList);
    QObject::connect(FList, &QComboBox::currentIndexChanged, FList, std::move(changed));
  }

  std::string Value() const override { return FromQt(FList->currentData().toString()); }

 private:
  // A text that is none of the choices is offered as it is, so that a look at the page changes nothing.
  void ShowText(std::string_view text) override {
    if (!text.empty() && FList->findData(ToQt(text)) < 0) FList->addItem(ToQt(text), ToQt(text));
    FList->setCurrentIndex(text.empty() ? 0 : FList->findData(ToQt(text)));
  }

  void ShowName(const QString& name, const TTexts& texts) override {
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
  KeepValue();
}

void TSettingLine::Explain(QWidget& widget) {
  FWidget = &widget;
  FWidget->setObjectName(ToQt(FRow.key));
  FWhy = new QLabel(&FGroup);
  FWhy->setObjectName(ToQt(FRow.key) + QStringLiteral(".Why"));
  FWhy->setForegroundRole(QPalette::PlaceholderText);
  FGroup.layout()->addWidget(FWhy);
}

void TSettingLine::SetTexts(const TTexts& texts) {
  const std::string key = "Setting." + std::string(FRow.key);
  ShowName(texts.Desk(key), texts);
  FWidget->setAccessibleName(texts.Desk(key));
  FWhy->setText(texts.Desk(key + ".Why"));
  FWidget->setAccessibleDescription(FWhy->text());
}

std::unique_ptr<TSettingLine> MakeSettingLine(const TSettingRow& row, QGroupBox& group,
                                              std::function<void()> changed) {
  if (row.isYes != nullptr) return std::make_unique<TCheckLine>(row, group, std::move(changed));
  return std::make_unique<TListLine>(row, group, std::move(changed));
}

}  // namespace algo::terminal
