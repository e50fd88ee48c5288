// The program that plays the scenarios: which scripts pass, and what it reports of those that fail.

#include "tests/terminal/program_fixture.h"

namespace algo::terminal::drive {
namespace {

using terminal::tests::WriteFileBytes;

class ScenarioRunner : public terminal::tests::TProgramTest {
 protected:
  terminal::tests::TProgramOutcome PlayScenario(const std::string& text) const {
    WriteFileBytes(Path("scenario.jsonl"), text);
    return Run("algo-scenario", Program("algo-drive") + " " + Path("scenario.jsonl"));
  }
};

TEST_F(ScenarioRunner, AScenarioThatComesTruePasses) {
  const auto outcome = PlayScenario(
      "# orders can be put into the store\n\n"
      "{\"do\":\"order\",\"key\":\"K1\",\"quantity\":5}\n"
      "{\"do\":\"orders\"}\n"
      "{\"expect\":{\"orders\":[{\"key\":\"K1\",\"quantity\":5.0}]}}\n"
      "{\"expect_no_event\":\"message\"}\n"
      "{\"do\":\"orders\",\"key\":\"K9\"}\n"
      "{\"expect_error\":\"K9\"}\n"
      "{\"do\":\"fly\"}\n"
      "{\"expect\":{\"ok\":false}}\n");
  EXPECT_EQ(outcome.status, 0) << outcome.error;
}

TEST_F(ScenarioRunner, AScenarioThatDoesNotComeTrueFails) {
  const std::string orders = "{\"do\":\"order\",\"key\":\"K1\"}\n{\"do\":\"orders\"}\n";
  for (const char* line :
       {"{\"expect\":{\"orders\":[]}}", "{\"expect\":{\"orders\":[{\"key\":\"K2\"}]}}",
        "{\"expect\":{\"missing\":null}}", "{\"expect\":{\"orders\":[{},{}]}}", "{\"expect\":{\"ok\":1}}",
        "{\"expect_events\":[{\"event\":\"message\"}]}", "{\"expect_error\":true}", "{\"do\":\"fly\"}",
        "{\"expect_nonsense\":1}", "{\"expect_error\":false}"}) {
    const auto outcome = PlayScenario(orders + line + "\n{\"do\":\"orders\"}\n");
    EXPECT_EQ(outcome.status, 1) << line;
    EXPECT_NE(outcome.error.find("scenario.jsonl:3\n"), std::string::npos) << outcome.error;
    EXPECT_NE(outcome.error.find("got: "), std::string::npos) << outcome.error;
  }
}

TEST_F(ScenarioRunner, AScenarioChecksItsLastCommandToo) {
  EXPECT_EQ(PlayScenario("{\"do\":\"fly\"}").status, 1);
  EXPECT_EQ(PlayScenario("{\"expect\":{}}").status, 1);
}

TEST_F(ScenarioRunner, AScenarioNeedsAFileAndADriver) {
  EXPECT_EQ(Run("algo-scenario", "").status, 2);
  EXPECT_EQ(Run("algo-scenario", "/bin/true " + Path("missing.jsonl")).status, 1);
  WriteFileBytes(Path("scenario.jsonl"), "{\"do\":\"orders\"}\n");
  EXPECT_EQ(Run("algo-scenario", "/bin/true " + Path("scenario.jsonl")).status, 1);
  EXPECT_EQ(Run("algo-scenario", Path("missing") + " " + Path("scenario.jsonl")).status, 1);
  WriteFileBytes(Path("scenario.jsonl"), "");
  EXPECT_EQ(Run("algo-scenario", "/bin/false " + Path("scenario.jsonl")).status, 1);
}

}  // namespace
}  // namespace algo::terminal::drive
