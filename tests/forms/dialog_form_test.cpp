#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>

#include "tests/forms/sample_form.h"

namespace algo::forms::tests {
namespace {

// A form that is played by a function and notes what the toolkit would have to do.
struct TPlayedForm final : TDialogForm {
  void RunModal() override { play(*this); }
  void Shown() override { notes->push_back("shown"); }
  void Hidden() override { notes->push_back("hidden"); }
  void BroughtToFront() override { notes->push_back("front"); }
  void Freed() override { notes->push_back("freed"); }

  std::function<void(TPlayedForm&)> play = [](TPlayedForm& form) { form.SetModalResult(ModalOk); };
  std::shared_ptr<TNotes> notes = std::make_shared<TNotes>();
};

// A frame that tells when it goes and when it gives everything back.
struct TMortalFrame final : TSampleFrame {
  explicit TMortalFrame(TNotes& noteTo) : notes(noteTo) {}
  ~TMortalFrame() override { notes.push_back("frame gone"); }
  void Detach() override { notes.push_back("frame detached"); }

  TNotes& notes;
};

struct TDialogFormTest : testing::Test {
  std::shared_ptr<TPlayedForm> form = std::make_shared<TPlayedForm>();
  std::shared_ptr<TNotes> formNotes = form->notes;
  TNotes frameNotes;
};

TEST_F(TDialogFormTest, AModalFormGivesTheResultThatItWasPlayedTo) {
  form->play = [](TPlayedForm& playing) {
    EXPECT_TRUE(playing.Modal());
    EXPECT_TRUE(playing.Showing());
    EXPECT_EQ(playing.ModalResult(), ModalNone);
    playing.SetModalResult(ModalOk);
  };
  EXPECT_EQ(form->ShowModal(), ModalOk);
  EXPECT_FALSE(form->Modal());
}

TEST_F(TDialogFormTest, EachShowingStartsWithoutAResult) {
  EXPECT_EQ(form->ShowModal(), ModalOk);
  form->Hide();
  form->play = [](TPlayedForm& playing) {
    EXPECT_EQ(playing.ModalResult(), ModalNone);
    playing.SetModalResult(ModalCancel);
  };
  EXPECT_EQ(form->ShowModal(), ModalCancel);
}

TEST_F(TDialogFormTest, ClosingAModalFormCancelsItUnlessItHasAResult) {
  form->play = [](TPlayedForm& playing) { playing.Close(); };
  EXPECT_EQ(form->ShowModal(), ModalCancel);
  form->Hide();
  form->play = [](TPlayedForm& playing) {
    playing.SetModalResult(ModalOk);
    playing.Close();
  };
  EXPECT_EQ(form->ShowModal(), ModalOk);
}

TEST_F(TDialogFormTest, AFormShownBesideTheOthersTakesNoModalResult) {
  form->Show();
  form->SetModalResult(ModalOk);
  EXPECT_EQ(form->ModalResult(), ModalNone);
  EXPECT_TRUE(form->Showing());
  EXPECT_FALSE(form->Modal());
}

TEST_F(TDialogFormTest, AFormWithoutACloseHandlerHides) {
  form->Show();
  form->Close();
  EXPECT_FALSE(form->Showing());
  EXPECT_EQ(*formNotes, (TNotes{"shown", "hidden"}));
}

TEST_F(TDialogFormTest, TheCloseHandlerMayKeepTheFormOpen) {
  form->OnClose = [](TDialogForm& /*sender*/, TCloseAction& action) { action = TCloseAction::None; };
  form->Show();
  form->Close();
  EXPECT_TRUE(form->Showing());
  EXPECT_EQ(*formNotes, (TNotes{"shown"}));
}

TEST_F(TDialogFormTest, AFreedFormIsHiddenAndDetachesItsFrame) {
  form->SetFrame(std::make_shared<TMortalFrame>(frameNotes));
  form->OnClose = [](TDialogForm& /*sender*/, TCloseAction& action) { action = TCloseAction::Free; };
  form->Show();
  form->Close();
  EXPECT_EQ(*formNotes, (TNotes{"shown", "hidden", "freed"}));
  EXPECT_EQ(frameNotes, (TNotes{"frame detached"}));
  form.reset();
  EXPECT_EQ(frameNotes, (TNotes{"frame detached", "frame gone"}));
}

TEST_F(TDialogFormTest, HidingTwiceTellsOnce) {
  form->Show();
  form->Hide();
  form->Hide();
  form->BringToFront();
  EXPECT_EQ(*formNotes, (TNotes{"shown", "hidden", "front"}));
}

TEST_F(TDialogFormTest, AFormMayBeFreedFromInsideAHandlerOfItsFrame) {
  auto frame = std::make_shared<TMortalFrame>(frameNotes);
  auto& button = frame->Place<TButton>("button");
  form->SetFrame(frame);
  form->OnClose = [this](TDialogForm& /*sender*/, TCloseAction& action) {
    action = TCloseAction::Free;
    form.reset();
  };
  button.OnClick = [this, &button] {
    button.Frame().Form()->Close();
    EXPECT_EQ(frameNotes, (TNotes{"frame detached"}));
    EXPECT_EQ(button.Frame().Form(), nullptr);
    frameNotes.push_back("handler over");
  };
  form->Show();
  TFrame& input = *frame;
  frame.reset();
  input.InputClick(button);
  EXPECT_EQ(frameNotes, (TNotes{"frame detached", "handler over", "frame gone"}));
}

TEST_F(TDialogFormTest, AFrameIsKeptWhileAHandlerThatTheProgramSetOffRuns) {
  auto frame = std::make_shared<TMortalFrame>(frameNotes);
  auto& check = frame->Place<TCheckBox>("check");
  check.OnChange = [&] {
    frame.reset();
    EXPECT_EQ(frameNotes, TNotes{});
  };
  check.SetChecked(true);
  EXPECT_EQ(frameNotes, (TNotes{"frame gone"}));
}

TEST_F(TDialogFormTest, AFrameKnowsTheFormThatItSitsIn) {
  auto frame = std::make_shared<TSampleFrame>();
  EXPECT_EQ(frame->Form(), nullptr);
  form->SetFrame(frame);
  EXPECT_EQ(frame->Form(), form.get());
  form.reset();
  EXPECT_EQ(frame->Form(), nullptr);
}

/// A form whose window fails at one of its steps.
struct TFailingForm final : TDialogForm {
  explicit TFailingForm(std::string failsAt) : step(std::move(failsAt)) {}
  void RunModal() override {}
  void Hidden() override { Pass("hidden"); }
  void Freed() override { Pass("freed"); }
  void Pass(const std::string& name) {
    notes.push_back(name);
    if (step == name) throw std::runtime_error(name);
  }

  std::string step;
  TNotes notes;
};

TEST_F(TDialogFormTest, AFormWhoseOwnerFailsBeforeItAnswersStays) {
  form->OnClose = [](TDialogForm& /*sender*/, TCloseAction& /*action*/) { throw std::runtime_error("no"); };
  form->Show();
  EXPECT_THROW(form->Close(), std::runtime_error);
  EXPECT_TRUE(form->Showing());
  form->OnClose = nullptr;
  form->Close();
  EXPECT_FALSE(form->Showing());
}

TEST_F(TDialogFormTest, AFormThatFailsWhileItClosesClosesWholeAndReportsTheFirstFailure) {
  for (const std::string failing : {"answer", "hidden", "freed"}) {
    SCOPED_TRACE(failing);
    frameNotes.clear();
    const auto closed = std::make_shared<TFailingForm>(failing);
    closed->SetFrame(std::make_shared<TMortalFrame>(frameNotes));
    closed->OnClose = [&](TDialogForm& /*sender*/, TCloseAction& action) {
      action = TCloseAction::Free;
      closed->Pass("answer");
    };
    closed->Show();
    EXPECT_THROW(closed->Close(), std::runtime_error);
    EXPECT_EQ(closed->notes, (TNotes{"answer", "hidden", "freed"}));
    EXPECT_EQ(frameNotes, TNotes{"frame detached"});
    EXPECT_EQ(closed->OnClose, nullptr);
    EXPECT_FALSE(closed->Showing());
  }
}

}  // namespace
}  // namespace algo::forms::tests
