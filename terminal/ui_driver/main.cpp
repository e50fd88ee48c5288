// algo-widget-drive: algo-drive's commands, executed at the desktop's widgets with key and mouse events. Made
// for tests: the answers have to equal those of algo-drive, line by line.

#include <CLI/CLI.hpp>
#include <QApplication>
#include <exception>
#include <iostream>
#include <string>

#include "terminal/drive/driver.h"
#include "terminal/drive/module_library.h"
#include "terminal/drive/session.h"
#include "terminal/ui_driver/separate_windows.h"
#include "terminal/ui_driver/widget_input_player.h"

int main(int argc, char** argv) {
  constexpr int UnusableArguments = 2;

  CLI::App app{"Plays a script of algo-drive at the desktop's widgets, off screen."};
  app.name("algo-widget-drive");
  std::string module = algo::terminal::drive::ModuleBesideProgram();
  app.add_option("--module", module, "The module to load; the one built with this program unless given")
      ->type_name("FILE");
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& help) {
    return app.exit(help);
  } catch (const CLI::ParseError& error) {
    std::cerr << "algo-widget-drive: " << error.what() << '\n';
    return UnusableArguments;
  }

  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  try {
    algo::terminal::ui_driver::TSeparateWindows windows;
    algo::terminal::ui_driver::TWidgetInputPlayer input(windows);
    algo::terminal::drive::TSession session(module, input);
    algo::terminal::drive::Drive(session, std::cin, std::cout);
  } catch (const std::exception& error) {
    std::cerr << "algo-widget-drive: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
