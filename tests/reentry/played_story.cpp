#include "tests/reentry/played_story.h"

#include "terminal/drive/input_player.h"
#include "terminal/drive/module_library.h"
#include "terminal/drive/session.h"

namespace algo::reentry {

namespace {

// Errors and orders stand anywhere: in the answers to what was done in dialogs and inside of calls.
void Collect(const TAnswerJson& answer, TPlayed& played) {
  if (answer.is_object()) {
    if (answer.contains("error") && answer["error"].is_string()) {
      const auto error = answer["error"].get<std::string>();
      for (const char* broken : {"exception crossed the boundary", "contract violated"}) {
        if (error.find(broken) != std::string::npos) played.broken.push_back(error);
      }
    }
    if (answer.contains("event") && answer["event"] == "take_action") played.sent.push_back(answer);
  }
  if (answer.is_structured()) {
    for (const auto& part : answer) Collect(part, played);
  }
}

}  // namespace

TPlayed Play(const TStory& story) {
  TPlayed played;
  terminal::drive::TInputPlayer input;
  terminal::drive::TSession session(terminal::drive::ModuleBesideProgram(), input);
  for (const TCommandJson& command : story.commands) {
    played.answers.push_back(session.Execute(command));
    Collect(played.answers.back(), played);
  }
  const TAnswerJson unloaded = session.Execute({{"do", "unload"}});
  Collect(unloaded, played);
  // A story that has unloaded the module itself gets an error here.
  for (const auto& answer : {unloaded, played.answers.back()}) {
    if (!answer.contains("left")) continue;
    for (const auto& [what, count] : answer["left"].items()) {
      if (count != 0) played.left += what + " ";
    }
  }
  return played;
}

}  // namespace algo::reentry
