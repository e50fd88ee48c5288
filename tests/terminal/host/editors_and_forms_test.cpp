#include <gtest/gtest.h>

#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/view_functions.h"
#include "terminal/host/memory_host.h"
#include "tests/terminal/host/event_notes.h"
#include "tests/terminal/host/sample_view.h"

namespace algo::terminal::tests {
namespace {

struct TEditorsTest : testing::Test {
  TEventNotes events;
  TMemoryHost host{events};
  host::tests::TSampleView view;
  forms::TTextEdit& edit = view.Add<forms::TTextEdit>("edit");
  forms::TSpinEdit& spin = view.Add<forms::TSpinEdit>("spin");
  host::TEditorManager& editors = host::TEditorManager::GetInstance();
};

TEST_F(TEditorsTest, TheAccountEditorTrimsItsTextWhenItIsLeft) {
  editors.RegisterAccountEditor(edit, "G1", 0, 1);
  edit.SetText("  A1\t");
  edit.Commit();
  EXPECT_EQ(edit.Text(), "A1");
  editors.RemoveAccountEditor(edit);
  edit.SetText(" A2 ");
  edit.Commit();
  EXPECT_EQ(edit.Text(), " A2 ");
  EXPECT_EQ(events.lines, (TNotes{"register account edit G1", "remove account edit"}));
}

TEST_F(TEditorsTest, AKnownSymbolBecomesTextAndHint) {
  host.Data().instruments["S"] = {"S", ""};
  editors.RegisterSymbolEditor(edit, "", 0, 1);
  edit.SetText(" S ");
  edit.Commit();
  EXPECT_EQ(edit.Text(), "S");
  EXPECT_EQ(edit.Hint(), "S");
}

TEST_F(TEditorsTest, AnyOtherTextEmptiesTheHintAndStays) {
  editors.RegisterSymbolEditor(edit, "", 0, 1);
  for (const char* text : {" s ", ""}) {
    edit.SetHint("S");
    edit.SetText(text);
    edit.Commit();
    EXPECT_EQ(edit.Text(), text);
    EXPECT_EQ(edit.Hint(), "");
  }
}

TEST_F(TEditorsTest, PriceAndQuantityEditorsAreToldTheirSymbol) {
  editors.RegisterPriceEditor(spin, "G1");
  editors.SetPriceSymbol(spin, "S");
  editors.RemovePriceEditor(spin);
  editors.RegisterQuantityEditor(spin, "G1");
  editors.SetQuantitySymbol(spin, "");
  editors.RemoveQuantityEditor(spin);
  EXPECT_EQ(events.lines,
            (TNotes{"register price spin G1", "symbol price spin S", "remove price spin",
                    "register quantity spin G1", "symbol quantity spin ", "remove quantity spin"}));
}

TEST_F(TEditorsTest, AnAccountFromALayoutIsPutInAndTakenUp) {
  editors.RegisterAccountEditor(edit, "", 0, 1);
  events.lines.clear();
  edit.OnExit = [this] { events.lines.push_back("left with " + edit.Text()); };
  editors.SetAccountLayoutAccount(edit, " A1");
  EXPECT_EQ(events.lines, (TNotes{"layout account edit  A1", "left with A1"}));
}

TEST_F(TEditorsTest, AFailingRegistrationAttachesNothing) {
  host.Data().faults.Set({"editor.register", "editor.symbol"});
  EXPECT_THROW(editors.RegisterAccountEditor(edit, "", 0, 1), EHostFault);
  EXPECT_THROW(editors.SetPriceSymbol(spin, "S"), EHostFault);
  edit.SetText(" A ");
  edit.Commit();
  EXPECT_EQ(edit.Text(), " A ");
  EXPECT_EQ(events.lines, TNotes{});
}

struct TFormsTest : testing::Test {
  std::shared_ptr<forms::TDialogForm> Make(const char* caption) {
    auto form = host::GetDialogForm(provider);
    form->SetCaption(caption);
    return form;
  }

  TEventNotes events;
  std::unique_ptr<TMemoryHost> host = std::make_unique<TMemoryHost>(events);
  host::tests::TSampleProvider provider;
};

TEST_F(TFormsTest, AFormThatShowsIsHeldUntilItCloses) {
  auto form = Make("form");
  const std::weak_ptr<forms::TDialogForm> watched = form;
  form->Show();
  form.reset();
  ASSERT_FALSE(watched.expired());
  watched.lock()->BringToFront();
  watched.lock()->Close();
  EXPECT_TRUE(watched.expired());
  EXPECT_EQ(events.lines, (TNotes{"show form", "front form", "close form"}));
}

TEST_F(TFormsTest, AModalFormIsPlayedAndTellsOfNoShowing) {
  const auto form = Make("form");
  EXPECT_EQ(form->ShowModal(), forms::ModalOk);
  form->Hide();
  EXPECT_EQ(events.lines, TNotes{});
}

TEST_F(TFormsTest, AFormThatShowsAtTheEndGoesWithTheHost) {
  auto form = Make("form");
  const std::weak_ptr<forms::TDialogForm> watched = form;
  form->SetFrame(std::make_shared<host::tests::TSampleView>());
  form->Show();
  form.reset();
  host.reset();
  EXPECT_TRUE(watched.expired());
}

TEST_F(TFormsTest, AFormMayFailToBeMade) {
  host->Data().faults.Set({"form.make", "view.notify"});
  EXPECT_THROW(Make("form"), EHostFault);
  host::tests::TSampleView view;
  EXPECT_THROW(host::SendViewNotify(view, 1025), EHostFault);
  EXPECT_EQ(events.lines, TNotes{});
}

}  // namespace
}  // namespace algo::terminal::tests
