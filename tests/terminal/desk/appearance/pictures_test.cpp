// Pictures of the desktop in its skins and languages. Where ALGO_PICTURES names a folder, they are saved
// there for people to look at.

#include <QImage>
#include <QScrollBar>
#include <vector>

#include "tests/terminal/desk/desk_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

struct TPicturesTest : TDeskTest {
  QImage Picture(const QString& name, QWidget& widget) {
    QTest::qWait(60);
    QImage picture = widget.grab().toImage();
    const QString folderOfPictures = qEnvironmentVariable("ALGO_PICTURES");
    EXPECT_TRUE(folderOfPictures.isEmpty() || picture.save(folderOfPictures + "/" + name + ".png"));
    return picture;
  }

  void Trade() {
    window->resize(1400, 860);
    Entry().Fit();
    for (int i = 0; i < 200; ++i) desk->Step(1);
    for (const char* quantity : {"400", "4000", "800"}) {
      FillEntry(Entry().View(), quantity);
      WhenModal([this](QWidget& dialog) { Click(Input(FrameIn(dialog), "btnBuy")); });
      Click(Input(Entry().View(), "btnSubmit"));
      for (int i = 0; i < 60; ++i) desk->Step(1);
    }
  }
};

TEST_F(TPicturesTest, EachSkinAndEachLanguageLooksDifferent) {
  Open();
  Trade();
  std::vector<QImage> pictures;
  for (const appearance::TSkin& skin : appearance::Skins) {
    desk->SetSkin(skin);
    pictures.push_back(Picture(render::ToQt(skin.name), *window));
  }
  desk->SetSkin(appearance::Skins[0]);
  for (const appearance::TLanguage language :
       {appearance::TLanguage::TraditionalChinese, appearance::TLanguage::SimplifiedChinese}) {
    desk->SetLanguage(language);
    pictures.push_back(Picture(render::ToQt(appearance::LanguageCode(language)), *window));
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
    const auto& pane = The<frames::TFramePane>("pane", &dialog);
    EXPECT_FALSE(pane.horizontalScrollBar()->isVisible());
    EXPECT_FALSE(pane.verticalScrollBar()->isVisible());
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Click(Input(Entry().View(), "btnSubmit"));
}

}  // namespace
}  // namespace algo::terminal::desk::tests
