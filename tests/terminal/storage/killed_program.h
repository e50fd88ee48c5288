#pragma once

// A program that is started, listened to and killed.

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

namespace algo::terminal::storage::tests {

class TKilledProgram {
 public:
  /// Starts the program that was built beside the tests.
  TKilledProgram(const std::string& name, std::string argument) {
    const auto bin = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    std::string program = (bin / name).string();
    int ends[2] = {};
    if (pipe(ends) != 0) throw std::runtime_error("pipe");
    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    posix_spawn_file_actions_addclose(&actions, ends[1]);
    char* const arguments[] = {program.data(), argument.data(), nullptr};
    const int failure = posix_spawn(&FProcess, program.c_str(), &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    FOutput = fdopen(ends[0], "r");
    if (failure != 0 || FOutput == nullptr) throw std::runtime_error("no program " + program);
  }
  ~TKilledProgram() {
    Kill();
    std::fclose(FOutput);
  }
  TKilledProgram(const TKilledProgram&) = delete;
  TKilledProgram& operator=(const TKilledProgram&) = delete;

  /// The next whole line of its output, without the line end; nothing after the last one.
  std::optional<std::string> Line() {
    std::string line;
    for (int c = std::fgetc(FOutput); c != EOF; c = std::fgetc(FOutput)) {
      if (c == '\n') return line;
      line.push_back(static_cast<char>(c));
    }
    return std::nullopt;
  }

  /// Kills it; its output can still be read. Returns whether it was running until then.
  bool Kill() {
    if (FProcess == 0) return false;
    kill(FProcess, SIGKILL);
    int status = 0;
    waitpid(FProcess, &status, 0);
    FProcess = 0;
    return WIFSIGNALED(status);
  }

 private:
  pid_t FProcess = 0;
  std::FILE* FOutput = nullptr;
};

}  // namespace algo::terminal::storage::tests
