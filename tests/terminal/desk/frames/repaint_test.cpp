// What a change of algorithm costs on the screen.

#include "forms/choices.h"
#include "tests/terminal/desk/desk_fixture.h"
#include "tests/terminal/render/paint_count.h"

namespace algo::terminal::desk::tests {
namespace {

struct TRepaintTest : TDeskTest {
  /// How often the view is painted for a change to the algorithm, until nothing is left to do.
  int PaintsFor(const char* algorithm) {
    render::TFrameView& view = Entry().View();
    auto& kinds = static_cast<forms::TComboBox&>(*view.Frame()->FindControl("cmbOrderType"));
    const auto found = std::find(kinds.Items().begin(), kinds.Items().end(), algorithm);
    if (found == kinds.Items().end()) throw EError(std::string("there is no ") + algorithm);
    Settle();
    terminal::tests::TPaintCount paints;
    view.installEventFilter(&paints);
    view.Frame()->InputPick(kinds, static_cast<std::int32_t>(found - kinds.Items().begin()));
    Settle();
    return paints.count;
  }

  static void Settle() {
    constexpr int Rounds = 20;
    for (int round = 0; round < Rounds; ++round) QApplication::processEvents();
  }
};

TEST_F(TRepaintTest, AChangeOfAlgorithmRepaintsTheFormOnce) {
  Open();
  // Shown once before, so that the panel has the room of the widest.
  for (const char* algorithm : {"Peg", "TWAP", "VWAP", "Iceberg"}) PaintsFor(algorithm);
  for (const char* algorithm : {"TWAP", "VWAP", "Iceberg", "VWAP", "TWAP"}) {
    SCOPED_TRACE(algorithm);
    EXPECT_EQ(PaintsFor(algorithm), 1);
  }
}

}  // namespace
}  // namespace algo::terminal::desk::tests
