#include "terminal/desk/window/desk_program.h"

#include <QApplication>
#include <QMessageBox>
#include <algorithm>
#include <exception>
#include <iostream>

namespace algo::terminal::desk::window {

namespace {

constexpr int CannotStart = 1;

/// Whether windows can be shown. Asked before there is an application, which would end the program without a
/// word.
bool HasWindowSystem() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
  return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY") ||
         !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
  return true;
#endif
}

/// Whether anybody can see, and so answer, what the application shows.
bool HasVisibleScreen() {
  const QString platform = QGuiApplication::platformName();
  return platform != "offscreen" && platform != "minimal";
}

void ReportFailure(const std::string& program, const std::exception& failure) {
  std::string line = failure.what();
  std::replace(line.begin(), line.end(), '\n', ' ');
  std::cerr << program << ": " << line << '\n';
  if (HasVisibleScreen()) {
    QMessageBox::critical(nullptr, "Algo Desk", QString::fromUtf8(failure.what()));
  }
}

}  // namespace

int RunDeskProgram(const TDeskProgram& program, int argc, char** argv) {
  // Names the folder in which the platform stores the data of the desktop, whichever of its programs runs.
  QCoreApplication::setApplicationName("algo-desk");
  const TDeskArguments arguments = ReadDeskArguments(program.name, argc, argv, program.addOptions);
  if (!arguments.options) return arguments.status;
  if (!HasWindowSystem()) {
    std::cerr << program.name << ": there is no display to show windows on; start it in a desktop session\n";
    return CannotStart;
  }
  const QApplication application(argc, argv);
  try {
    return program.run(*arguments.options);
  } catch (const std::exception& failure) {
    ReportFailure(program.name, failure);
    return CannotStart;
  }
}

}  // namespace algo::terminal::desk::window
