// algo-report as a shell sees it: streams and exit statuses.

#include "tests/terminal/program_fixture.h"

namespace algo::terminal::report {
namespace {

using ReportProgram = terminal::tests::TProgramTest;

TEST_F(ReportProgram, ReportsOnItsInput) {
  const auto outcome = Run("algo-report", "", "{\"ok\":true,\"text\":\"a layout\"}\n{\"ok\":true}\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "Text: a layout\nIn all: 0 orders, 2 answers, 0 refused\n");
  EXPECT_EQ(outcome.error, "");
}

TEST_F(ReportProgram, FailsWhenACommandWasRefused) {
  const auto outcome = Run("algo-report", "", "{\"ok\":true}\n{\"ok\":false,\"error\":\"no\"}\n");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "Refused: line 2: no\nIn all: 0 orders, 2 answers, 1 refused\n");
}

TEST_F(ReportProgram, ExplainsItselfAndRefusesArgumentsThatItCannotUse) {
  EXPECT_EQ(Run("algo-report", "--help").status, 0);
  const auto outcome = Run("algo-report", "--nonsense");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_TRUE(outcome.error.starts_with("algo-report: ")) << outcome.error;
}

}  // namespace
}  // namespace algo::terminal::report
