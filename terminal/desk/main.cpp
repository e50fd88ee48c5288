// algo-desk: a desktop trading terminal around the algo order entry module, trading on paper.

#include <QApplication>
#include <QMessageBox>
#include <algorithm>
#include <exception>
#include <iostream>
#include <string>

#include "terminal/desk/day_player.h"
#include "terminal/desk/desk_arguments.h"
#include "terminal/desk/display.h"
#include "terminal/desk/main_window.h"
#include "terminal/render/qt_text.h"

namespace {

constexpr int CannotStart = 1;

int Run(const algo::terminal::TDeskOptions& options) {
  if (!options.playFile.empty()) {
    algo::terminal::TDayPlayer(options, std::cout).Play(options.playFile);
    return 0;
  }
  algo::terminal::TDesk desk(options);
  algo::terminal::TMainWindow window(desk);
  window.RestoreWorkspace(options);
  window.show();
  window.Entries().FocusFirst();
  desk.Start();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  namespace terminal = algo::terminal;
  // Names the folder in which the platform keeps data of this program.
  QCoreApplication::setApplicationName("algo-desk");
  const terminal::TDeskArguments arguments = terminal::ReadDeskArguments(argc, argv);
  if (!arguments.options) return arguments.status;
  if (!terminal::HasWindowSystem()) {
    std::cerr << "algo-desk: there is no display to show windows on; start it in a desktop session\n";
    return CannotStart;
  }
  QApplication application(argc, argv);
  try {
    return Run(*arguments.options);
  } catch (const std::exception& error) {
    std::string line = error.what();
    std::replace(line.begin(), line.end(), '\n', ' ');
    std::cerr << "algo-desk: " << line << '\n';
    if (terminal::SomebodyLooks()) QMessageBox::critical(nullptr, "Algo Desk", terminal::ToQt(error.what()));
    return CannotStart;
  }
}
