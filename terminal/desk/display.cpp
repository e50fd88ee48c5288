#include "terminal/desk/display.h"

#include <QGuiApplication>
#include <QtGlobal>

namespace algo::terminal {

bool HasWindowSystem() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
  return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY") ||
         !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
  return true;
#endif
}

bool SomebodyLooks() {
  const QString platform = QGuiApplication::platformName();
  return platform != "offscreen" && platform != "minimal";
}

}  // namespace algo::terminal
