#include "terminal/desk/panels/panel.h"

namespace algo::terminal::desk::panels {

TPanel::TPanel(const QString& name, bool linked) : FTitle(*new TDockTitle(*this, linked)) {
  setObjectName(name);
  setTitleBarWidget(&FTitle);
  setAllowedAreas(Qt::AllDockWidgetAreas);
  toggleViewAction()->setObjectName("show_" + name);
}

void TPanel::SetCaption(const QString& caption) {
  setWindowTitle(caption);
  setAccessibleName(caption);
}

}  // namespace algo::terminal::desk::panels
