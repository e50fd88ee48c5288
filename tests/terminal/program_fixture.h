#pragma once

// Runs the project's programs as a shell does: with arguments, streams and an exit status.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "tests/terminal/temporary_folder.h"

namespace algo::terminal::tests {

/// What came of running a program; the status is -1 if it did not exit by itself.
struct TProgramOutcome {
  int status = -1;
  std::string out;
  std::string error;
};

class TProgramTest : public testing::Test {
 protected:
  /// The path of a program that was built beside the tests.
  static std::string Program(const std::string& name) {
    return (std::filesystem::read_symlink("/proc/self/exe").parent_path() / name).string();
  }

  /// The path of a file in the test's own folder.
  std::string Path(const std::string& name) const { return folder.Path(name); }

  /// Runs a program that was built beside the tests.
  TProgramOutcome Run(const std::string& program, const std::string& arguments,
                      const std::string& input = {}) const {
    WriteFileBytes(Path("in"), input);
    const std::string command =
        Program(program) + " " + arguments + " <" + Path("in") + " >" + Path("out") + " 2>" + Path("err");
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, FileBytes(Path("out")), FileBytes(Path("err"))};
  }

  TTemporaryFolder folder;
};

}  // namespace algo::terminal::tests
