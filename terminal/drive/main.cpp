// algo-drive: a terminal without a screen, driven by a script.

#include <CLI/CLI.hpp>
#include <csignal>
#include <exception>
#include <iostream>
#include <string>

#include "terminal/drive/driver.h"
#include "terminal/drive/module_library.h"
#include "terminal/drive/session.h"

int main(int argc, char** argv) {
  constexpr int UnusableArguments = 2;

  CLI::App app{
      "Plays a trading terminal without a screen: loads the algo order entry module, offers it every\n"
      "service in memory, and plays the trader too. Reads commands from standard input, one JSON\n"
      "object a line, and writes an answer to each to standard output."};
  app.name("algo-drive");
  app.footer("Use: algo-drive [--module FILE] < script.jsonl > answers.jsonl");
  std::string module = algo::terminal::drive::ModuleBesideProgram();
  app.add_option("--module", module, "The module to load; the one built with this program unless given")
      ->type_name("FILE")
      ->take_last();
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& help) {
    return app.exit(help);
  } catch (const CLI::ParseError& error) {
    std::cerr << "algo-drive: " << error.what() << '\n';
    return UnusableArguments;
  }

#ifdef SIGPIPE
  // If the reader of the answers goes away, the run ends in order and not in the middle of a call.
  std::signal(SIGPIPE, SIG_IGN);
#endif
  std::ios::sync_with_stdio(false);
  try {
    algo::terminal::drive::TInputPlayer input;
    algo::terminal::drive::TSession session(module, input);
    algo::terminal::drive::Drive(session, std::cin, std::cout);
  } catch (const std::exception& error) {
    std::cerr << "algo-drive: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
