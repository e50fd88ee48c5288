// Pictures of the desktop, for people to look at: written where ALGO_PICTURES says, else nothing is done.

#include <QPixmap>

#include "tests/desk/desk_fixture.h"

namespace algo::terminal::tests {
namespace {

struct TPictures : TDeskTest {
  void Take(const QString& name, QWidget& widget) {
    QApplication::processEvents();
    QTest::qWait(60);
    EXPECT_TRUE(widget.grab().save(QString(qgetenv("ALGO_PICTURES")) + "/" + name + ".png"));
  }
};

TEST_F(TPictures, OfTheMainWindow) {
  if (!qEnvironmentVariableIsSet("ALGO_PICTURES")) GTEST_SKIP() << "ALGO_PICTURES names no folder";
  Open();
  for (int i = 0; i < 200; ++i) desk->Step(1);
  window->resize(1400, 860);
  Entry().Fit();
  FillEntry(Entry().View());
  for (const TSkin& skin : Skins) {
    desk->SetSkin(skin);
    Take(ToQt(skin.name), *window);
  }
  desk->SetSkin(Skins[0]);
  desk->SetLanguage(TLanguage::TraditionalChinese);
  Take("zh_Hant", *window);
  desk->SetLanguage(TLanguage::SimplifiedChinese);
  Take("zh_Hans", *window);
}

}  // namespace
}  // namespace algo::terminal::tests
