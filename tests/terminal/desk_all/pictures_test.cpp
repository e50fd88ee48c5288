// Pictures of the desktop in its skins and languages. They are kept for people to look at where ALGO_PICTURES
// names a folder.

#include <QImage>
#include <QScrollBar>
#include <vector>

#include "tests/terminal/desk_all/desk_fixture.h"

namespace algo::terminal::tests {
namespace {

struct TPicturesTest : TDeskTest {
  QImage Picture(const QString& name, QWidget& widget) {
    QTest::qWait(60);
    QImage picture = widget.grab().toImage();
    const QString kept = qEnvironmentVariable("ALGO_PICTURES");
    EXPECT_TRUE(kept.isEmpty() || picture.save(kept + "/" + name + ".png"));
    return picture;
  }

  void Trade() {
    window->resize(1400, 860);
    Entry().Fit();
    for (int i = 0; i < 200; ++i) desk->Step(1);
    for (const char* quantity : {"400", "4000", "800"}) {
      FillEntry(Entry().View(), quantity);
      WhenModal([this](QWidget& dialog) { Click(Input(The<TFrameView>("frame", &dialog), "btnBuy")); });
      Click(Input(Entry().View(), "btnSubmit"));
      for (int i = 0; i < 60; ++i) desk->Step(1);
    }
  }
};

TEST_F(TPicturesTest, EachSkinAndEachLanguageLooksDifferent) {
  Open();
  Trade();
  std::vector<QImage> pictures;
  for (const TSkin& skin : Skins) {
    desk->SetSkin(skin);
    pictures.push_back(Picture(ToQt(skin.name), *window));
  }
  desk->SetSkin(Skins[0]);
  for (const TLanguage language : {TLanguage::TraditionalChinese, TLanguage::SimplifiedChinese}) {
    desk->SetLanguage(language);
    pictures.push_back(Picture(ToQt(LanguageCode(language)), *window));
  }
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(pictures[i], pictures[j]) << i << " and " << j;
  }
}

TEST_F(TPicturesTest, AConfirmationShowsTheWholeForm) {
  Open();
  FillEntry(Entry().View());
  WhenModal([this](QWidget& dialog) {
    Picture("confirmation", dialog);
    const auto& pane = The<TFramePane>("pane", &dialog);
    EXPECT_FALSE(pane.horizontalScrollBar()->isVisible());
    EXPECT_FALSE(pane.verticalScrollBar()->isVisible());
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Click(Input(Entry().View(), "btnSubmit"));
}

}  // namespace
}  // namespace algo::terminal::tests
