#include "terminal/desk/panels/dock_title.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <cstddef>

#include "terminal/desk/panels/link_groups.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::panels {

namespace {

static_assert(LinkGroups.size() == std::tuple_size_v<decltype(appearance::TSkin::links)> + 1);

constexpr int SwatchSize = 12;

/// A square of the colour with a border.
QIcon Swatch(const QColor& color, const QColor& border) {
  QPixmap picture(SwatchSize, SwatchSize);
  picture.fill(color);
  QPainter painter(&picture);
  painter.setPen(border);
  painter.drawRect(0, 0, SwatchSize - 1, SwatchSize - 1);
  return picture;
}

QToolButton& MakeButton(QWidget& parent, const char* name, QStyle::StandardPixmap icon) {
  auto& button = *new QToolButton(&parent);
  button.setObjectName(name);
  button.setAutoRaise(true);
  button.setIcon(parent.style()->standardIcon(icon));
  button.setFocusPolicy(Qt::TabFocus);
  return button;
}

}  // namespace

TDockTitle::TDockTitle(QDockWidget& dock, bool linked)
    : QWidget(&dock),
      FDock(dock),
      FIcon(*new QLabel(this)),
      FCaption(*new QLabel(this)),
      FViewButtons(*new TTitleButtons(*this)),
      FGroup(*new QComboBox(this)),
      FFloat(MakeButton(*this, "float", QStyle::SP_TitleBarNormalButton)),
      FClose(MakeButton(*this, "close", QStyle::SP_TitleBarCloseButton)) {
  setObjectName("dockTitle");
  FIcon.setObjectName("viewIcon");
  FIcon.hide();
  FCaption.setObjectName("caption");
  QFont bold = FCaption.font();
  bold.setBold(true);
  FCaption.setFont(bold);
  FGroup.setObjectName("linkGroup");
  FGroup.setFocusPolicy(Qt::TabFocus);
  FGroup.setVisible(linked);
  for (const TLinkGroup& group : LinkGroups) {
    FGroup.addItem(group.textKey, render::ToQt(group.id));
  }

  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 2, 2, 2);
  row->setSpacing(2);
  row->addWidget(&FIcon);
  row->addWidget(&FCaption, 1);
  row->addWidget(&FViewButtons);
  row->addWidget(&FGroup);
  row->addWidget(&FFloat);
  row->addWidget(&FClose);

  connect(&FGroup, &QComboBox::activated, this, &TDockTitle::GroupChosen);
  connect(&FFloat, &QToolButton::clicked, &dock, [&dock] { dock.setFloating(!dock.isFloating()); });
  connect(&FClose, &QToolButton::clicked, &dock, &QDockWidget::close);
  connect(&dock, &QDockWidget::windowTitleChanged, this, &TDockTitle::ShowCaption);
  ShowCaption();
}

std::string TDockTitle::Group() const { return render::FromQt(FGroup.currentData().toString()); }

bool TDockTitle::SetGroup(std::string_view id) {
  const int place = FGroup.findData(render::ToQt(id));
  if (place < 0) return false;
  FGroup.setCurrentIndex(place);
  return true;
}

void TDockTitle::SetIcon(const QIcon& icon) {
  const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
  FIcon.setPixmap(icon.pixmap(size));
  FIcon.setVisible(!icon.isNull());
}

void TDockTitle::Retranslate(const appearance::TTexts& texts) {
  for (std::size_t i = 0; i < LinkGroups.size(); ++i) {
    FGroup.setItemText(static_cast<int>(i), texts.Desk(LinkGroups[i].textKey));
  }
  const auto name = [](QWidget& widget, const QString& text) {
    widget.setToolTip(text);
    widget.setAccessibleName(text);
  };
  name(FGroup, texts.Desk("Link group"));
  name(FFloat, texts.Desk("Float"));
  name(FClose, texts.Desk("Close"));
}

void TDockTitle::ShowSkin(const appearance::TSkin& skin) {
  FGroup.setItemIcon(0, Swatch(Qt::transparent, QColor::fromRgb(skin.border)));
  for (std::size_t i = 0; i < skin.links.size(); ++i) {
    FGroup.setItemIcon(static_cast<int>(i) + 1,
                       Swatch(QColor::fromRgb(skin.links[i]), QColor::fromRgb(skin.border)));
  }
}

void TDockTitle::ShowCaption() {
  FCaption.setText(FDock.windowTitle());
  setAccessibleName(FDock.windowTitle());
}

}  // namespace algo::terminal::desk::panels
