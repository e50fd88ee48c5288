// The windows of change forms that show beside each other.

#include "plugin/host_contract/view_functions.h"
#include "tests/terminal/desk/orders/blotter_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

struct TBesideTest : TBlotterTest {
  TBesideTest() {
    // The module goes by the setting that it finds when it is loaded.
    storage::TSqliteStorage(options.dataFolder + "/algo-desk.db")
        .StoreSetting("USER", "ChangeOrderShowModel", "N");
    Open();
    Put("N1");
    Put("N2");
  }
  std::vector<frames::TFormWindow*> Forms() {
    std::vector<frames::TFormWindow*> shown;
    for (auto* form : window->findChildren<frames::TFormWindow*>("form")) {
      if (form->isVisible()) shown.push_back(form);
    }
    return shown;
  }
};

TEST_F(TBesideTest, ChangeFormsShowBesideEachOtherOneForEachOrder) {
  Choose(0, "changeOrder");
  Choose(1, "changeOrder");
  Choose(0, "changeOrder");
  ASSERT_EQ(Forms().size(), 2U);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(Forms()[0]->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(Forms()[0]->windowTitle(), "Change order");
}

TEST_F(TBesideTest, AChangeFormSubmitsAndGoes) {
  Choose(0, "changeOrder");
  ASSERT_EQ(Forms().size(), 1U);
  Type(FrameIn(*Forms()[0]), "edtQty", "2000");
  Click(Input(FrameIn(*Forms()[0]), "btnBuy"));
  EXPECT_TRUE(Forms().empty());
  EXPECT_EQ(Order("N2").quantity, 2000);
}

TEST_F(TBesideTest, TheCloseBoxClosesTheFormForGood) {
  Choose(0, "changeOrder");
  const render::TFrameView& view = FrameIn(*Forms()[0]);
  Forms()[0]->close();
  EXPECT_TRUE(Forms().empty());
  EXPECT_EQ(view.Frame(), nullptr);
  Choose(0, "changeOrder");
  EXPECT_EQ(Forms().size(), 1U);
}

TEST_F(TBesideTest, FormsTakeUpALanguageWhileTheyShow) {
  Choose(0, "changeOrder");
  // Also when it is the only thing of the module that shows.
  Entry().close();
  QTest::qWait(1);
  desk->SetLanguage(appearance::TLanguage::TraditionalChinese);
  EXPECT_EQ(render::FromQt(Forms()[0]->windowTitle()), desk->Texts().Resource("Res_Conf_ChangeOrder"));
}

TEST_F(TBesideTest, AFormTakesTheSizeThatItsFrameWants) {
  Choose(0, "changeOrder");
  frames::TFormWindow& form = *Forms()[0];
  const QSize before = form.size();
  auto& frame = dynamic_cast<host::TViewFrame&>(*FrameIn(form).Frame());
  form.resize(before + QSize(100, 100));
  frame.Layout().Find("lgAlgo")->SetVisible(false);
  host::SendViewNotify(frame, 1025);
  EXPECT_LT(form.width(), before.width());
}

TEST_F(TBesideTest, TheProgramEndsWithFormsOpen) {
  Choose(0, "changeOrder");
  Choose(1, "changeOrder");
  window->close();
  EXPECT_FALSE(window->isVisible());
  EXPECT_TRUE(Forms().empty());
}

}  // namespace
}  // namespace algo::terminal::desk::tests
