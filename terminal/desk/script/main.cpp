// algo-desk-script: the desktop with a script in the trader's place, and a picture of each step.

#include <CLI/CLI.hpp>
#include <iostream>
#include <string>

#include "terminal/desk/script/script_player.h"
#include "terminal/desk/window/desk_program.h"

int main(int argc, char** argv) {
  namespace desk = algo::terminal::desk;
  std::string script;
  std::string screens;
  const auto addOptions = [&](CLI::App& app) {
    app.add_option("--play", script, "A script of algo-drive to play with keys and mouse; ends after it")
        ->type_name("FILE")
        ->required();
    app.add_option("--screens", screens, "Where a picture of each step goes; else none are taken")
        ->type_name("FOLDER");
  };
  const auto run = [&](const desk::TDeskOptions& options) {
    desk::script::TScriptPlayer(options, screens, std::cout).Play(script);
    return 0;
  };
  return desk::window::RunDeskProgram({"algo-desk-script", addOptions, run}, argc, argv);
}
