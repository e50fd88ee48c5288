// algo-drive as a shell sees it: arguments, streams and exit statuses.

#include <algorithm>

#include "tests/terminal/program_fixture.h"

namespace algo::terminal::drive {
namespace {

using terminal::tests::FileBytes;
using terminal::tests::WriteFileBytes;
using DriveProgram = terminal::tests::TProgramTest;

TEST_F(DriveProgram, AnswersAndEndsWithStatusZero) {
  const auto outcome = Run("algo-drive", "", "{\"do\":\"orders\"}\nrubbish\n{\"do\":\"orders\"}");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), 3);
  EXPECT_TRUE(outcome.out.starts_with("{\"ok\":true,\"orders\":[]}\n{\"ok\":false,\"error\":"));
  EXPECT_EQ(outcome.error, "");
  EXPECT_EQ(Run("algo-drive", "").status, 0);
}

TEST_F(DriveProgram, ExplainsItself) {
  const auto outcome = Run("algo-drive", "--help");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.out.find("--module FILE"), std::string::npos);
  EXPECT_NE(outcome.out.find("standard input"), std::string::npos);
}

TEST_F(DriveProgram, RefusesArgumentsThatItCannotUse) {
  for (const char* arguments : {"--nonsense", "script.jsonl", "--module"}) {
    const auto outcome = Run("algo-drive", arguments, "{\"do\":\"orders\"}\n");
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_EQ(std::count(outcome.error.begin(), outcome.error.end(), '\n'), 1) << outcome.error;
  }
}

TEST_F(DriveProgram, TellsOfAModuleThatIsNoneWhenItIsLoaded) {
  WriteFileBytes(Path("module.so"), "no library");
  for (const std::string& file : {Path("missing.so"), Path("module.so"), folder.Path()}) {
    const auto outcome = Run("algo-drive", "--module " + file, "{\"do\":\"load\"}\n{\"do\":\"orders\"}\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.out.starts_with("{\"ok\":false,\"error\":\"the module cannot be loaded: "))
        << outcome.out;
    EXPECT_TRUE(outcome.out.ends_with("{\"ok\":true,\"orders\":[]}\n"));
  }
}

TEST_F(DriveProgram, EndsQuietlyWhenItsReaderGoesAway) {
  std::string script;
  for (int i = 0; i < 20000; ++i) script += "{\"do\":\"orders\"}\n";
  WriteFileBytes(Path("script"), script);
  const std::string drive = "{ " + Program("algo-drive") + " <" + Path("script") + "; echo $? >" +
                            Path("status") + "; } 2>" + Path("err") + " | head -n 1 >" + Path("out");
  ASSERT_EQ(std::system(drive.c_str()), 0);
  EXPECT_EQ(FileBytes(Path("status")), "0\n");
  EXPECT_EQ(FileBytes(Path("err")), "");
}

}  // namespace
}  // namespace algo::terminal::drive
