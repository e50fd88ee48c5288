// The module's own view, which has nothing to say to most of what the desktop asks.

#include "plugin/host_contract/checks/strict_provider.h"
#include "tests/terminal/desk/desk_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

struct TNeutralViewTest : TDeskTest {
  TNeutralViewTest() {
    violations.SetHandler([](const std::string& what) {
      ADD_FAILURE() << what;
      throw EError(what);
    });
    options.layer = [this](auto provider) {
      return std::make_unique<host::checks::TStrictProvider>(std::move(provider), violations);
    };
  }
  ~TNeutralViewTest() override { Close(); }

  host::checks::TViolations violations;
};

TEST_F(TNeutralViewTest, ADayAtTheDeskKeepsToTheContract) {
  Open();
  Choose("AlgoOrderEntry_426");
  FillEntry(Entry("entry2").View());
  WhenModal([&](QWidget& dialog) { Click(Input(FrameIn(dialog), "btnBuy")); });
  Click(Input(Entry("entry2").View(), "btnSubmit"));
  EXPECT_EQ(Orders().size(), 1U);
  Choose("zh_Hant");
  Choose("dark");
  Choose("en");
  Click(The("close", &Entry("entry1")));
  QTest::qWait(1);
  EXPECT_EQ(Entry("entry2").windowTitle(), "Algo order entry");
  Close();
  Open();
  EXPECT_EQ(window->findChildren<frames::TEntryPanel*>().size(), 1);
}

TEST_F(TNeutralViewTest, ItsPanelIsOneAsAnyOther) {
  Open();
  EXPECT_FALSE(The("viewIcon", &Entry()).isVisible());
  EXPECT_FALSE(The("viewButtons", &Entry()).isVisible());
  EXPECT_TRUE(The("float", &Entry()).isVisible());
  EXPECT_EQ(Entry().allowedAreas(), Qt::AllDockWidgetAreas);
  EXPECT_EQ(window->dockWidgetArea(&Entry()), Qt::LeftDockWidgetArea);
  EXPECT_TRUE(window->actions().isEmpty());
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), Entry().mapToGlobal(QPoint(5, 5)));
  event.ignore();
  QApplication::sendEvent(&Entry(), &event);
  EXPECT_EQ(window->findChild<QMenu*>("panelMenu"), nullptr);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
