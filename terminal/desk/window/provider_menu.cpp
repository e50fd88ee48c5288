#include "terminal/desk/window/provider_menu.h"

#include <QMenu>

#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::window {

namespace {

constexpr const char* IdProperty = "menuId";
constexpr const char* IndexProperty = "menuIndex";

/// A new entry of `parent`, a menu or a menu bar, before the first one with a larger index.
QAction& Insert(QWidget& parent, const TMenuPlace& place, const QString& caption) {
  QAction* before = nullptr;
  for (QAction* action : parent.actions()) {
    if (action->property(IndexProperty).toInt() <= place.index) continue;
    before = action;
    break;
  }
  auto& entry = *new QAction(caption, &parent);
  entry.setProperty(IdProperty, place.id);
  entry.setProperty(IndexProperty, place.index);
  parent.insertAction(before, &entry);
  return entry;
}

QMenu& MenuOf(QWidget& parent, const TMenuPlace& place, const QString& caption) {
  for (const QAction* action : parent.actions()) {
    if (action->menu() != nullptr && action->property(IdProperty).toInt() == place.id) return *action->menu();
  }
  auto& menu = *new QMenu(caption, &parent);
  menu.setObjectName("menu" + QString::number(place.id));
  menu.setAccessibleName(caption);
  Insert(parent, place, caption).setMenu(&menu);
  return menu;
}

}  // namespace

QMenu& MenuIn(QMenuBar& bar, const TMenuPlace& place, const QString& caption) {
  return MenuOf(bar, place, caption);
}

QAction* AddViewEntry(QMenuBar& bar, host::TIBaseView& view) {
  if (!view.GetIsVisible()) return nullptr;
  const auto placeAt = [&view](std::int32_t level) {
    return TMenuPlace{view.GetMenuID(level), view.GetMenuIndex(level)};
  };
  QWidget* parent = &bar;
  const std::int32_t last = view.GetMenuLevel() - 1;
  for (std::int32_t level = 0; level < last; ++level) {
    parent = &MenuOf(*parent, placeAt(level), render::ToQt(view.GetMenuCaption(level)));
  }
  QAction& entry = Insert(*parent, placeAt(last), render::ToQt(view.GetMenuCaption(last)));
  entry.setObjectName(render::ToQt(view.GetName()));
  return &entry;
}

}  // namespace algo::terminal::desk::window
