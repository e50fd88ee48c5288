// algo-report: reads the answers of algo-drive and writes a report for people.

#include <CLI/CLI.hpp>
#include <iostream>
#include <string>

#include "terminal/report/run_report.h"

int main(int argc, char** argv) {
  constexpr int UnusableArguments = 2;

  CLI::App app{
      "Reads answers of algo-drive from standard input and prints the orders that came of them, field by\n"
      "field, with the messages that the trader was shown. The exit status is 1 when a command was refused."};
  app.name("algo-report");
  app.footer("Use: algo-drive < script.jsonl | algo-report");
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& help) {
    return app.exit(help);
  } catch (const CLI::ParseError& error) {
    std::cerr << "algo-report: " << error.what() << '\n';
    return UnusableArguments;
  }

  std::ios::sync_with_stdio(false);
  algo::terminal::report::TRunReport report(std::cout);
  std::string line;
  while (std::getline(std::cin, line)) report.AddLine(line);
  report.Finish();
  return report.AllOk() ? 0 : 1;
}
