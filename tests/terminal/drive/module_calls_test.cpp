// What a module may do while it is called. The tests' own handlers subscribe to a channel in place of a
// module.

#include <functional>
#include <memory>

#include "forms/dialog_form.h"
#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/message_box.h"
#include "plugin/host_contract/view_functions.h"
#include "tests/terminal/drive/session_fixture.h"
#include "tests/terminal/host/sample_view.h"

namespace algo::terminal::drive {
namespace {

class ModuleCalls : public TSessionTest {
 protected:
  ~ModuleCalls() override {
    auto& channels = host::TCustomGlobalChannelManager::GetInstance();
    if (subscribed) channels.Unsubscribe(host::OrderActionChannel, this);
  }

  /// Runs `handler` for each post on the order action channel.
  void OnPost(std::function<void(host::TOrderTakeActionRecord&)> handler) {
    host::TCustomGlobalChannelManager::GetInstance().Subscribe(
        host::OrderActionChannel,
        [handler = std::move(handler)](const void*, host::TChannelRecord* record) {
          handler(dynamic_cast<host::TOrderTakeActionRecord&>(*record));
        },
        this);
    subscribed = true;
  }

  /// A dialog form with a frame of that class, holding one edit.
  std::shared_ptr<forms::TDialogForm> MakeDialog(const std::string& className) {
    auto form = host::GetDialogForm(provider);
    const auto frame = std::make_shared<host::TViewFrame>(className, "lcTest");
    auto& group = frame->Layout().AddGroup("lgTest", nullptr, forms::TDirection::Vertical);
    frame->Layout().AddItem("liText", group, frame->Add<forms::TTextEdit>("edtText"));
    form->SetFrame(frame);
    form->SetCaption("Sure?");
    form->SetClientSize({300, 200.5});
    return form;
  }

  static constexpr const char* Post = R"({"do":"post","channel":18011,"order":null,"action":1})";

  bool subscribed = false;
  host::tests::TSampleProvider provider;
};

TEST_F(ModuleCalls, AnExceptionThatComesOutIsTold) {
  OnPost([](host::TOrderTakeActionRecord&) { throw EError("lost my way"); });
  EXPECT_EQ(Refusal(Post), "exception crossed the boundary: lost my way");
  EXPECT_EQ(Ask(R"({"do":"orders"})")["ok"], true);
}

TEST_F(ModuleCalls, AThingThatIsNoExceptionIsToldToo) {
  OnPost([](host::TOrderTakeActionRecord&) { throw 17; });
  EXPECT_TRUE(Refusal(Post).starts_with("exception crossed the boundary: "));
}

TEST_F(ModuleCalls, ABreachOfTheContractIsToldEvenWhenTheModuleHidesIt) {
  OnPost([this](host::TOrderTakeActionRecord&) {
    try {
      host::TCustomGlobalChannelManager::GetInstance().Unsubscribe(host::CopyOrderChannel, this);
    } catch (const std::exception&) {
      host::TCustomMessageBoxCtrl::GetInstance().ShowText("all is well");
    }
  });
  const auto answer = Ask(Post);
  EXPECT_EQ(answer["ok"], false);
  EXPECT_TRUE(answer.value("error", std::string()).starts_with("contract violated: ")) << answer;
  EXPECT_EQ(answer["events"].dump(), R"([{"event":"message","text":"all is well"}])");
}

TEST_F(ModuleCalls, ThePostsRecordIsHandedOverAndItsResultTold) {
  Ask(R"({"do":"order","key":"K1"})");
  std::vector<std::string> seen;
  OnPost([&](host::TOrderTakeActionRecord& record) {
    const bool stored = record.order == session.Host().Orders().Find("K1");
    const bool client = dynamic_cast<host::TCustomClientOrder*>(record.order) != nullptr;
    seen.push_back(std::to_string(record.action) +
                   (stored         ? " stored"
                    : client       ? " copy"
                    : record.order ? " foreign"
                                   : " none") +
                   " view " + std::to_string(record.viewId));
    record.result = record.action == 2;
  });
  EXPECT_EQ(Ask(R"({"do":"post","channel":18011,"order":"K1","action":2,"view":7})").dump(),
            R"({"ok":true,"result":true})");
  EXPECT_EQ(Ask(R"({"do":"post","channel":18011,"order":"K1","action":1})").dump(),
            R"({"ok":true,"result":false})");
  Ask(R"({"do":"post","channel":18011,"order":"K1","action":42})");
  Ask(R"({"do":"post","channel":18011,"order":"K1","action":42,"foreign":true})");
  Ask(R"({"do":"post","channel":18011,"order":null,"action":9})");
  EXPECT_EQ(seen, (std::vector<std::string>{"2 stored view 7", "1 stored view 0", "42 copy view 0",
                                            "42 foreign view 0", "9 none view 0"}));
}

TEST_F(ModuleCalls, ADialogIsDismissedWhenNobodySaysOtherwise) {
  OnPost([this](host::TOrderTakeActionRecord& record) {
    record.result = MakeDialog("TAlgoOrderChangeFrame")->ShowModal() == forms::ModalCancel;
  });
  EXPECT_EQ(
      Ask(Post).dump(),
      R"({"ok":true,"result":true,"modal":[{"frame":"change","caption":"Sure?","width":300,"height":200.5,)"
      R"("answers":[],"result":2}]})");
}

TEST_F(ModuleCalls, ADialogCarriesOutItsCommandsAlsoAfterItsResult) {
  OnPost([this](host::TOrderTakeActionRecord&) { MakeDialog("TAlgoWorkOrderFrame")->ShowModal(); });
  const auto answer = Ask(
      R"({"do":"post","channel":18011,"order":null,"action":1,"modal":[[)"
      R"({"do":"type","frame":"work","control":"edtText","text":"a","id":1},{"do":"dismiss","result":1},17,)"
      R"({"do":"unload"},{"do":"read","frame":"work","controls":["edtText"]},{"do":"fly"}]]})");
  const auto& dialog = answer["modal"][0];
  EXPECT_EQ(answer["ok"], true);
  EXPECT_EQ(dialog["frame"], "work");
  EXPECT_EQ(dialog["result"], 1);
  ASSERT_EQ(dialog["answers"].size(), 6U);
  EXPECT_EQ(dialog["answers"][0].dump(), R"({"ok":true,"id":1})");
  EXPECT_EQ(dialog["answers"][1].dump(), R"({"ok":true})");
  EXPECT_EQ(dialog["answers"][2]["ok"], false);
  EXPECT_EQ(dialog["answers"][3]["ok"], false);
  EXPECT_EQ(dialog["answers"][4]["controls"]["edtText"]["text"], "a");
  EXPECT_EQ(dialog["answers"][4]["form"].dump(),
            R"({"caption":"Sure?","width":300,"height":200.5,"on_top":false,"showing":true})");
  EXPECT_EQ(dialog["answers"][5]["ok"], false);
}

TEST_F(ModuleCalls, EachDialogTakesTheNextListOfCommands) {
  OnPost([this](host::TOrderTakeActionRecord&) {
    for (int i = 0; i < 3; ++i) MakeDialog("TAlgoOrderChangeFrame")->ShowModal();
  });
  const auto answer = Ask(R"({"do":"post","channel":18011,"order":null,"action":1,)"
                          R"("modal":[[{"do":"dismiss","result":5}],[{"do":"dismiss","result":6}]]})");
  ASSERT_EQ(answer["modal"].size(), 3U);
  EXPECT_EQ(answer["modal"][0]["result"], 5);
  EXPECT_EQ(answer["modal"][1]["result"], 6);
  EXPECT_EQ(answer["modal"][2]["result"], 2);
}

TEST_F(ModuleCalls, ADialogInADialogTakesTheCommandsOfTheCommandThatLedToIt) {
  OnPost([this](host::TOrderTakeActionRecord& record) {
    host::TCustomMessageBoxCtrl::GetInstance().ShowText("posted " + std::to_string(record.action));
    MakeDialog(record.action == 1 ? "TAlgoOrderChangeFrame" : "TAlgoWorkOrderFrame")->ShowModal();
  });
  const auto answer = Ask(R"({"do":"post","channel":18011,"order":null,"action":1,"modal":[[)"
                          R"({"do":"post","channel":18011,"order":null,"action":42,)"
                          R"("modal":[[{"do":"dismiss","result":8}]]},{"do":"dismiss","result":9}]]})");
  const auto& outer = answer["modal"][0];
  EXPECT_EQ(answer["events"].dump(), R"([{"event":"message","text":"posted 1"}])");
  EXPECT_EQ(outer["frame"], "change");
  EXPECT_EQ(outer["result"], 9);
  EXPECT_EQ(outer["answers"][0]["modal"][0]["frame"], "work");
  EXPECT_EQ(outer["answers"][0]["modal"][0]["result"], 8);
  EXPECT_EQ(outer["answers"][0]["events"].dump(), R"([{"event":"message","text":"posted 42"}])");
}

TEST_F(ModuleCalls, CommandsForDialogsHaveToBeListsOfLists) {
  bool posted = false;
  OnPost([&posted](host::TOrderTakeActionRecord&) { posted = true; });
  for (const char* modal : {"{}", "1", "[1]", "[{\"do\":\"dismiss\",\"result\":1}]"}) {
    EXPECT_EQ(Refusal(R"({"do":"post","channel":18011,"order":null,"action":1,"modal":)" +
                      std::string(modal) + "}"),
              "'modal' must be a list of lists of commands");
  }
  EXPECT_FALSE(posted);
}

TEST_F(ModuleCalls, DismissNeedsADialogAndAResult) {
  EXPECT_EQ(Refusal(R"({"do":"dismiss","result":1})"), "no modal dialog is showing");
  EXPECT_EQ(Refusal(R"({"do":"dismiss"})"), "'result' is missing");
}

TEST_F(ModuleCalls, AFormBesideOthersIsKnownUntilItCloses) {
  std::shared_ptr<forms::TDialogForm> form;
  OnPost([&](host::TOrderTakeActionRecord&) {
    form = MakeDialog("TAlgoOrderChangeFrame");
    form->SetStaysOnTop(true);
    form->Show();
  });
  Play(R"({"do":"host","config":{"USER":{"ChangeOrderShowModel":"No"}}})"
       "\n"
       R"({"do":"order","key":"K1"})");
  // How changes are shown is decided when the module is loaded, even if loading fails.
  Ask(R"({"do":"load"})");
  const auto answer = Ask(R"({"do":"post","channel":18011,"order":"K1","action":2})");
  EXPECT_EQ(
      answer["events"].dump(),
      R"([{"event":"show","frame":"change:K1","caption":"Sure?","on_top":true,"width":300,"height":200.5}])");
  EXPECT_EQ(Ask(R"({"do":"read","frame":"change:K1"})")["form"]["on_top"], true);
  EXPECT_EQ(Refusal(R"({"do":"read","frame":"change"})"), "there is no frame 'change'");
  EXPECT_EQ(Ask(R"({"do":"close_form","frame":"change:K1"})")["events"].dump(),
            R"([{"event":"close_form","frame":"change:K1"}])");
  EXPECT_EQ(Refusal(R"({"do":"read","frame":"change:K1"})"), "there is no frame 'change:K1'");
}

}  // namespace
}  // namespace algo::terminal::drive
