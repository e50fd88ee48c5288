#include "terminal/drive/driver.h"

#include <istream>
#include <ostream>
#include <string>

#include "terminal/drive/session.h"

namespace algo::terminal::drive {

namespace {

// Commands nest only for dialogs inside dialogs. Deeper JSON could not be copied or written without running
// out of stack.
constexpr int DeepestNesting = 200;

// The parser's messages quote what it last read, which may be the whole line.
constexpr std::size_t LongestReason = 200;

}  // namespace

TCommandJson ParseCommand(std::string_view line) {
  const auto checkDepth = [](int depth, TCommandJson::parse_event_t /*event*/, TCommandJson& /*parsed*/) {
    if (depth > DeepestNesting) throw ECommandError("the line is nested too deeply");
    return true;
  };
  // The parser takes a zero byte for the end of what it is given.
  if (line.find('\0') != std::string_view::npos)
    throw ECommandError("the line is not JSON: it holds a zero byte");
  TCommandJson command;
  try {
    command = TCommandJson::parse(line, checkDepth);
  } catch (const TCommandJson::exception& error) {
    throw ECommandError("the line is not JSON: " + std::string(error.what()).substr(0, LongestReason));
  }
  if (!command.is_object()) throw ECommandError("the line is not a JSON object");
  return command;
}

void Drive(TSession& session, std::istream& script, std::ostream& answers) {
  std::string line;
  while (std::getline(script, line)) {
    // A line of anything but blanks gets an answer: whoever sent it waits for one.
    if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
    TAnswerJson answer;
    try {
      answer = session.Execute(ParseCommand(line));
    } catch (const ECommandError& error) {
      answer = {{"ok", false}, {"error", error.what()}};
    }
    // Texts come from module and script unchecked; invalid UTF-8 in them must not stop the run.
    answers << answer.dump(-1, ' ', false, TAnswerJson::error_handler_t::replace) << '\n' << std::flush;
    if (!answers) return;
  }
}

}  // namespace algo::terminal::drive
