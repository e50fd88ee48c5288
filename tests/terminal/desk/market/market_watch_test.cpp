// The market watch while the market runs.

#include <QTableView>

#include "tests/terminal/desk/desk_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

struct TMarketWatchTest : TDeskTest {};

TEST_F(TMarketWatchTest, TheMarketRunsByTheClock) {
  Open();
  const auto volume = [this] {
    return desk->Host().Data().instruments.size()
               ? The<QTableView>("marketTable").model()->index(0, 9).data().toString()
               : QString();
  };
  const QString before = volume();
  desk->Start();
  for (int i = 0; i < 100 && volume() == before; ++i) QTest::qWait(100);
  EXPECT_NE(volume(), before);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
