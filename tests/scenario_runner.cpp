// algo-scenario DRIVE FILE [PEER]: plays a scenario and checks what comes of it. A second driver, PEER, plays
// the same commands, and each of its answers has to be the first one's to the letter.
//
// A scenario is a text file with one JSON object or one comment a line:
//
//   # comment                              a line that starts with "#", and a blank line, are passed over
//   {"do":"open","frame":"e1"}             a command, sent to the driver DRIVE as it stands
//   {"expect":{"width":300}}               what the answer to the command before has to hold
//   {"expect_events":[{"event":"store"}]}  events that have to be in that answer, in this order, others
//   between them
//   {"expect_no_event":"take_action"}      an event that must not be in it, by name
//   {"expect_error":true}                  the command has to be refused; with a text, the error has to hold
//   that text
//   {"include":"common/open.jsonl"}        the lines of another file, named from this file's folder
//
// An expected object is held by an answer that has each of its keys with a value that holds the expected one;
// an expected list by a list of the same length, element by element; other values have to be equal (numbers
// as numbers). A command without "expect_error" has to be answered with "ok":true, unless an "expect" names
// "ok" itself. At the end of the scenario the driver has to end with status 0.
//
// The exit status is 0 when all of that is so, 1 at the first thing that is not, 2 for unusable arguments.

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

using nlohmann::json;

/// The scenario or the driver failed; the text says where and how.
class EScenario : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The driver as a child process at the other end of two pipes.
class TDriver {
 public:
  explicit TDriver(const char* program) {
    std::array<int, 2> commands{};
    std::array<int, 2> answers{};
    // Not for other children: who holds an end of a pipe keeps its reader waiting.
    if (pipe2(commands.data(), O_CLOEXEC) != 0 || pipe2(answers.data(), O_CLOEXEC) != 0)
      throw EScenario("no pipes to be had");
    FChild = fork();
    if (FChild < 0) throw EScenario("no process to be had");
    if (FChild == 0) {
      dup2(commands[0], STDIN_FILENO);
      dup2(answers[1], STDOUT_FILENO);
      execl(program, program, static_cast<char*>(nullptr));
      std::perror(program);
      _exit(127);
    }
    close(commands[0]);
    close(answers[1]);
    FCommands = fdopen(commands[1], "w");
    FAnswers = fdopen(answers[0], "r");
  }

  ~TDriver() {
    Finish();
    std::fclose(FAnswers);
  }
  TDriver(const TDriver&) = delete;
  TDriver& operator=(const TDriver&) = delete;

  void Send(const std::string& line) {
    std::fwrite(line.data(), 1, line.size(), FCommands);
    std::fputc('\n', FCommands);
    std::fflush(FCommands);
  }

  /// The next line of answers; nothing when the driver has ended.
  std::optional<std::string> Receive() {
    std::string line;
    for (int character = std::fgetc(FAnswers); character != EOF; character = std::fgetc(FAnswers)) {
      if (character == '\n') return line;
      line += static_cast<char>(character);
    }
    return std::nullopt;
  }

  /// Ends the input and returns how the driver ended, as the system reports it.
  int Finish() {
    if (FCommands != nullptr) {
      std::fclose(FCommands);
      FCommands = nullptr;
      waitpid(FChild, &FStatus, 0);
    }
    return FStatus;
  }

 private:
  pid_t FChild = -1;
  std::FILE* FCommands = nullptr;
  std::FILE* FAnswers = nullptr;
  int FStatus = 0;
};

bool Holds(const json& got, const json& expected) {
  if (expected.is_object()) {
    if (!got.is_object()) return false;
    for (const auto& [key, value] : expected.items()) {
      const auto found = got.find(key);
      if (found == got.end() || !Holds(*found, value)) return false;
    }
    return true;
  }
  if (expected.is_array()) {
    if (!got.is_array() || got.size() != expected.size()) return false;
    for (std::size_t i = 0; i < expected.size(); ++i) {
      if (!Holds(got[i], expected[i])) return false;
    }
    return true;
  }
  return got == expected;
}

json EventsOf(const json& answer) { return answer.value("events", json::array()); }

bool HoldsEvents(const json& answer, const json& expected) {
  std::size_t next = 0;
  for (const auto& event : EventsOf(answer)) {
    if (next < expected.size() && Holds(event, expected[next])) ++next;
  }
  return next == expected.size();
}

bool HasEvent(const json& answer, const json& name) {
  for (const auto& event : EventsOf(answer)) {
    if (event.value("event", json()) == name) return true;
  }
  return false;
}

bool IsRefused(const json& answer, const json& wanted) {
  if (answer.value("ok", true)) return false;
  if (!wanted.is_string()) return true;
  return answer.value("error", std::string()).find(wanted.get<std::string>()) != std::string::npos;
}

class TScenario {
 public:
  /// `peer` is nullptr for none.
  TScenario(const char* driver, const char* peer) : FDriver(driver) {
    if (peer != nullptr) FPeer.emplace(peer);
  }

  void Play(const std::filesystem::path& file) {
    PlayFile(file, 0);
    CheckOk();
    CheckEnd(FDriver);
    if (FPeer) CheckEnd(*FPeer);
  }

 private:
  /// One command with its answer, while its expectations are read.
  struct TAnswered {
    std::string place;
    json answer;
    bool okWasJudged = false;
  };

  // Files that include each other in a ring would go on for ever.
  static constexpr int DeepestInclude = 10;

  void PlayFile(const std::filesystem::path& file, int depth) {
    std::ifstream lines(file);
    if (!lines || depth > DeepestInclude) throw EScenario(FPlace + ": cannot include " + file.string());
    int number = 0;
    for (std::string text; std::getline(lines, text);) {
      FPlace = file.string() + ":" + std::to_string(++number);
      if (text.find_first_not_of(" \t\r") == std::string::npos || text.front() == '#') continue;
      const json line = json::parse(text, nullptr, false);
      const std::string first = line.is_object() && !line.empty() ? line.begin().key() : std::string();
      if (first == "include") {
        PlayFile(file.parent_path() / line.at("include").get<std::string>(), depth + 1);
      } else if (first.starts_with("expect")) {
        Check(line);
      } else {
        CheckOk();
        Send(text);
      }
    }
  }

  void Send(const std::string& command) {
    FDriver.Send(command);
    const auto text = FDriver.Receive();
    if (!text) Fail("an answer", "the driver has ended");
    if (FPeer) {
      FPeer->Send(command);
      const auto same = FPeer->Receive();
      if (same != text) Fail(*text, same.value_or("the peer has ended"));
    }
    FAnswered = TAnswered{FPlace, json::parse(*text, nullptr, false), false};
    if (!FAnswered->answer.is_object()) Fail("an answer", *text);
  }

  void CheckEnd(TDriver& driver) const {
    const int status = driver.Finish();
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) Fail("the driver ends with status 0", "it does not");
  }

  /// Fails when the command before was refused and nothing expected that.
  void CheckOk() {
    if (!FAnswered || FAnswered->okWasJudged) return;
    if (FAnswered->answer.value("ok", false)) return;
    FPlace = FAnswered->place;
    Fail("\"ok\":true", FAnswered->answer.dump());
  }

  void Check(const json& line) {
    if (!FAnswered) Fail("a command before the first expectation", line.dump());
    const json& answer = FAnswered->answer;
    for (const auto& [kind, expected] : line.items()) {
      bool met = false;
      if (kind == "expect") {
        met = Holds(answer, expected);
        if (expected.is_object() && expected.contains("ok")) FAnswered->okWasJudged = true;
      } else if (kind == "expect_events" && expected.is_array()) {
        met = HoldsEvents(answer, expected);
      } else if (kind == "expect_no_event" && expected.is_string()) {
        met = !HasEvent(answer, expected);
      } else if (kind == "expect_error" && expected != false) {
        met = IsRefused(answer, expected);
        FAnswered->okWasJudged = true;
      } else {
        Fail("an expectation of a known kind", line.dump());
      }
      if (!met) Fail(line.dump(), answer.dump());
    }
  }

  [[noreturn]] void Fail(const std::string& expected, const std::string& got) const {
    throw EScenario(FPlace + "\n  expected: " + expected + "\n  got:      " + got);
  }

  TDriver FDriver;
  std::optional<TDriver> FPeer;
  std::string FPlace;  ///< file and line that is played
  std::optional<TAnswered> FAnswered;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3 && argc != 4) {
    std::cerr << "usage: algo-scenario DRIVE FILE [PEER]\n";
    return 2;
  }
  // A driver that ends early is told of as such.
  std::signal(SIGPIPE, SIG_IGN);
  try {
    TScenario(argv[1], argc == 4 ? argv[3] : nullptr).Play(argv[2]);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
