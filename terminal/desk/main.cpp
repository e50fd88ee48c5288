// algo-desk: a desktop trading terminal around the algo order entry module, trading on paper.

#include <QApplication>

#include "terminal/desk/session/desk.h"
#include "terminal/desk/window/desk_program.h"
#include "terminal/desk/window/main_window.h"

namespace {

namespace desk = algo::terminal::desk;

int Run(const desk::TDeskOptions& options) {
  desk::TDesk session(options);
  desk::window::TMainWindow window(session);
  window.RestoreWorkspace(options);
  window.show();
  window.Entries().FocusFirst();
  session.Start();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  return desk::window::RunDeskProgram({.name = "algo-desk", .addOptions = {}, .run = Run}, argc, argv);
}
