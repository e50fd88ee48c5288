#pragma once

// A session that tests drive line by line, without starting a program.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "terminal/drive/driver.h"
#include "terminal/drive/session.h"

namespace algo::terminal::drive {

class TSessionTest : public testing::Test {
 protected:
  explicit TSessionTest(const std::string& moduleFile = "/nowhere/module.so") : session(moduleFile, input) {}

  /// The answers to the lines of the script.
  std::vector<TAnswerJson> Play(const std::string& script) {
    std::istringstream in(script);
    std::ostringstream out;
    Drive(session, in, out);
    std::vector<TAnswerJson> answers;
    std::istringstream lines(out.str());
    for (std::string line; std::getline(lines, line);) answers.push_back(TAnswerJson::parse(line));
    return answers;
  }

  /// The answer to one line.
  TAnswerJson Ask(const std::string& line) {
    const auto answers = Play(line + "\n");
    return answers.size() == 1 ? answers[0]
                               : TAnswerJson("not one answer but " + std::to_string(answers.size()));
  }

  /// The error of a line that has to be refused; another text if it was not.
  std::string Refusal(const std::string& line) {
    const auto answer = Ask(line);
    return answer["ok"] == false ? answer["error"].get<std::string>() : "it was not refused";
  }

  TInputPlayer input;
  TSession session;
};

}  // namespace algo::terminal::drive
