// The programs as a shell sees them: arguments, streams and exit statuses.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace algo::terminal::drive {
namespace {

namespace fs = std::filesystem;

struct TOutcome {
  int status = -1;
  std::string out;
  std::string error;
};

class Programs : public testing::Test {
 protected:
  Programs() { fs::create_directories(folder); }
  ~Programs() override { fs::remove_all(folder); }

  /// The text of a file of the test's own folder.
  std::string Text(const std::string& name) const {
    std::ostringstream text;
    text << std::ifstream(folder / name, std::ios::binary).rdbuf();
    return text.str();
  }

  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(folder / name, std::ios::binary) << text;
  }

  std::string Path(const std::string& name) const { return (folder / name).string(); }

  /// Runs the program that was built beside the tests.
  TOutcome Run(const std::string& program, const std::string& arguments,
               const std::string& input = {}) const {
    Write("in", input);
    const fs::path bin = fs::read_symlink("/proc/self/exe").parent_path();
    const std::string command = (bin / program).string() + " " + arguments + " <" + Path("in") + " >" +
                                Path("out") + " 2>" + Path("err");
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Text("out"), Text("err")};
  }

  TOutcome PlayScenario(const std::string& text) const {
    Write("scenario.jsonl", text);
    const fs::path bin = fs::read_symlink("/proc/self/exe").parent_path();
    return Run("algo-scenario", (bin / "algo-drive").string() + " " + Path("scenario.jsonl"));
  }

  fs::path folder = fs::temp_directory_path() / ("algo-programs-" + std::to_string(getpid()));
};

TEST_F(Programs, DriveAnswersAndEndsWithStatusZero) {
  const auto outcome = Run("algo-drive", "", "{\"do\":\"orders\"}\nrubbish\n{\"do\":\"orders\"}");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), 3);
  EXPECT_TRUE(outcome.out.starts_with("{\"ok\":true,\"orders\":[]}\n{\"ok\":false,\"error\":"));
  EXPECT_EQ(outcome.error, "");
  EXPECT_EQ(Run("algo-drive", "").status, 0);
}

TEST_F(Programs, DriveExplainsItself) {
  const auto outcome = Run("algo-drive", "--help");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.out.find("--module FILE"), std::string::npos);
  EXPECT_NE(outcome.out.find("standard input"), std::string::npos);
}

TEST_F(Programs, DriveRefusesArgumentsThatItCannotUse) {
  for (const char* arguments : {"--nonsense", "script.jsonl", "--module"}) {
    const auto outcome = Run("algo-drive", arguments, "{\"do\":\"orders\"}\n");
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_EQ(std::count(outcome.error.begin(), outcome.error.end(), '\n'), 1) << outcome.error;
  }
}

TEST_F(Programs, DriveTellsOfAModuleThatIsNoneWhenItIsLoaded) {
  Write("module.so", "no library");
  for (const std::string& file : {Path("missing.so"), Path("module.so"), folder.string()}) {
    const auto outcome = Run("algo-drive", "--module " + file, "{\"do\":\"load\"}\n{\"do\":\"orders\"}\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.out.starts_with("{\"ok\":false,\"error\":\"the module cannot be loaded: "))
        << outcome.out;
    EXPECT_TRUE(outcome.out.ends_with("{\"ok\":true,\"orders\":[]}\n"));
  }
}

TEST_F(Programs, DriveEndsQuietlyWhenItsReaderGoesAway) {
  const fs::path bin = fs::read_symlink("/proc/self/exe").parent_path();
  std::string script;
  for (int i = 0; i < 20000; ++i) script += "{\"do\":\"orders\"}\n";
  Write("script", script);
  const std::string drive = "{ " + (bin / "algo-drive").string() + " <" + Path("script") + "; echo $? >" +
                            Path("status") + "; } 2>" + Path("err") + " | head -n 1 >" + Path("out");
  ASSERT_EQ(std::system(drive.c_str()), 0);
  EXPECT_EQ(Text("status"), "0\n");
  EXPECT_EQ(Text("err"), "");
}

TEST_F(Programs, AScenarioThatComesTruePasses) {
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

TEST_F(Programs, AScenarioThatDoesNotComeTrueFails) {
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

TEST_F(Programs, AScenarioChecksItsLastCommandToo) {
  EXPECT_EQ(PlayScenario("{\"do\":\"fly\"}").status, 1);
  EXPECT_EQ(PlayScenario("{\"expect\":{}}").status, 1);
}

TEST_F(Programs, AScenarioNeedsAFileAndADriver) {
  EXPECT_EQ(Run("algo-scenario", "").status, 2);
  EXPECT_EQ(Run("algo-scenario", "/bin/true " + Path("missing.jsonl")).status, 1);
  Write("scenario.jsonl", "{\"do\":\"orders\"}\n");
  EXPECT_EQ(Run("algo-scenario", "/bin/true " + Path("scenario.jsonl")).status, 1);
  EXPECT_EQ(Run("algo-scenario", Path("missing") + " " + Path("scenario.jsonl")).status, 1);
  Write("scenario.jsonl", "");
  EXPECT_EQ(Run("algo-scenario", "/bin/false " + Path("scenario.jsonl")).status, 1);
}

TEST_F(Programs, AccountTellsOfAnOrderFieldByField) {
  const auto outcome = Run(
      "algo-report", "",
      R"({"ok":true,"modal":[{"frame":"change","caption":"Sure?","answers":[{"ok":true,"events":[)"
      R"({"event":"error_code","code":"DC1"}]}],"result":1}],"events":[{"event":"message","text":"Look\nout"},)"
      R"({"event":"take_action","order":{"key":"","account":"A1","side":1,"quantity":1234567,"price":10.5,)"
      R"("algo_flags":32768,"filled":0,"algo_text":"TMLO:AlgoId=TVOL,VolPct=20;"},"action":1,"argument":1,)"
      R"("answer":true}]})"
      "\n");
  EXPECT_EQ(outcome.status, 0) << outcome.error;
  EXPECT_EQ(outcome.out,
            "Message: error DC1\n"
            "Dialog: Sure? was confirmed\n"
            "Message: Look out\n"
            "Order 1: new order, accepted\n"
            "  account         A1\n"
            "  side            sell\n"
            "  quantity        1,234,567\n"
            "  price           10.5\n"
            "  algo flags      0x8000\n"
            "  parameter text  TMLO:AlgoId=TVOL,VolPct=20;\n"
            "    AlgoId          TVOL\n"
            "    VolPct          20\n"
            "In all: 1 order, 1 answer, 0 refused\n");
}

TEST_F(Programs, AccountFailsWhenACommandWasRefused) {
  const auto refused = Run("algo-report", "", "{\"ok\":true}\n{\"ok\":false,\"error\":\"no\"}\n");
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.out, "Refused: line 2: no\nIn all: 0 orders, 2 answers, 1 refused\n");
  EXPECT_EQ(Run("algo-report", "", "{\"ok\":true,\"modal\":[{\"answers\":[{\"ok\":false}]}]}\n").status, 1);
  EXPECT_EQ(Run("algo-report", "", "rubbish\n").status, 1);
  EXPECT_EQ(Run("algo-report", "", "{\"events\":{},\"modal\":3,\"ok\":\"yes\"}\n").status, 1);
  EXPECT_EQ(Run("algo-report", "--nonsense").status, 2);
}

}  // namespace
}  // namespace algo::terminal::drive
