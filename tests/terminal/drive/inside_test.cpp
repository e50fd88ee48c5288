// Commands in the middle of service calls. The tests' own handler subscribes to a channel in place of a
// module.

#include <functional>

#include "forms/dialog_form.h"
#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/market_data.h"
#include "plugin/host_contract/message_box.h"
#include "plugin/host_contract/order_adapter.h"
#include "plugin/host_contract/view_functions.h"
#include "tests/terminal/drive/session_fixture.h"
#include "tests/terminal/host/sample_view.h"

namespace algo::terminal::drive {
namespace {

std::string ReadSetting() { return host::TCustomConfigManager::GetInstance().ReadText("USER", "k"); }
void Say(const std::string& text) { host::TCustomMessageBoxCtrl::GetInstance().ShowText(text); }

class Inside : public TSessionTest {
 protected:
  Inside() {
    host::TCustomGlobalChannelManager::GetInstance().Subscribe(
        host::OrderActionChannel,
        [this](const void*, host::TChannelRecord* record) {
          if (handler) handler(dynamic_cast<host::TOrderTakeActionRecord&>(*record));
        },
        this);
  }
  ~Inside() override {
    session.Host().Data().faults.Set({});
    host::TCustomGlobalChannelManager::GetInstance().Unsubscribe(host::OrderActionChannel, this);
  }

  /// Posts with these entries, and calls `act` meanwhile.
  TAnswerJson Post(const std::string& inside, std::function<void()> act, const std::string& more = {}) {
    handler = [act = std::move(act)](host::TOrderTakeActionRecord&) { act(); };
    return Ask(R"({"do":"post","channel":18011,"order":null,"action":1,"inside":)" + inside + more + "}");
  }

  /// A command that sets the text that ReadSetting gives.
  static std::string Set(const std::string& text) {
    return R"({"do":"host","config":{"USER":{"k":")" + text + R"("}}})";
  }

  std::function<void(host::TOrderTakeActionRecord&)> handler;
  host::tests::TSampleProvider provider;
};

TEST_F(Inside, CommandsAreCarriedOutBeforeTheWorkOfTheCallThatTheyName) {
  std::string read;
  const auto answer =
      Post(R"([{"call":"config.read","nth":2,"commands":[)" + Set("new") + R"(,{"do":"fly","id":7}]}])", [&] {
        for (int i = 0; i < 3; ++i) read += ReadSetting() + ",";
      });
  EXPECT_EQ(read, ",new,new,");
  EXPECT_EQ(answer.dump(),
            R"({"ok":true,"result":false,"inside":[{"call":"config.read","nth":2,"answers":[{"ok":true},)"
            R"({"ok":false,"id":7,"error":"there is no command 'fly'"}]}]})");
}

TEST_F(Inside, CommandsMayWaitUntilTheWorkIsDone) {
  std::string read;
  Post(R"([{"call":"config.read","nth":1,"after":true,"commands":[)" + Set("new") + "]}]", [&] {
    for (int i = 0; i < 2; ++i) read += ReadSetting() + ",";
  });
  EXPECT_EQ(read, ",new,");
}

TEST_F(Inside, EntriesAreToldOfInTheOrderInWhichTheyAreReached) {
  const auto answer =
      Post(R"([{"call":"message.text","nth":2,"commands":[]},{"call":"message.text","nth":9,"commands":[]},)"
           R"({"call":"config.read","after":true,"commands":[]},{"call":"message.text","commands":[]}])",
           [] {
             Say("a");
             ReadSetting();
             Say("b");
           });
  EXPECT_EQ(answer["inside"].dump(),
            R"([{"call":"message.text","nth":1,"answers":[]},{"call":"config.read","nth":1,"answers":[]},)"
            R"({"call":"message.text","nth":2,"answers":[]}])");
}

TEST_F(Inside, AnAnswerSaysSoWhenNoEntryWasReached) {
  EXPECT_EQ(Post(R"([{"call":"message.text","commands":[]}])", [] {}).dump(),
            R"({"ok":true,"result":false,"inside":[]})");
}

TEST_F(Inside, CallsThatTheCommandsCauseDoNotCount) {
  int posts = 0;
  handler = [&](host::TOrderTakeActionRecord&) {
    const int mine = ++posts;
    Say("post " + std::to_string(mine));
    if (mine == 1) Say("second");
  };
  const auto answer = Ask(
      R"({"do":"post","channel":18011,"order":null,"action":1,"inside":[)"
      R"({"call":"message.text","nth":1,"commands":[{"do":"post","channel":18011,"order":null,"action":1}]},)"
      R"({"call":"message.text","nth":2,"commands":[{"do":"orders"}]}]})");
  ASSERT_EQ(answer["inside"].size(), 2U);
  EXPECT_EQ(answer["inside"][0]["answers"][0]["events"].dump(), R"([{"event":"message","text":"post 2"}])");
  EXPECT_EQ(answer["inside"][1]["answers"][0].dump(), R"({"ok":true,"orders":[]})");
  EXPECT_EQ(answer["events"].size(), 2U);
  EXPECT_EQ(answer["events"][1]["text"], "second");
}

TEST_F(Inside, CommandsMayHaveCommandsInsideThemselves) {
  handler = [](host::TOrderTakeActionRecord& record) { Say(std::to_string(record.action)); };
  const auto answer = Ask(
      R"({"do":"post","channel":18011,"order":null,"action":1,"inside":[{"call":"message.text","commands":[)"
      R"({"do":"post","channel":18011,"order":null,"action":2,"inside":[{"call":"message.text","commands":[)"
      R"({"do":"post","channel":18011,"order":null,"action":3}]}]}]}]})");
  EXPECT_EQ(answer["events"][0]["text"], "1");
  const auto& second = answer["inside"][0]["answers"][0];
  EXPECT_EQ(second["events"][0]["text"], "2");
  EXPECT_EQ(second["inside"][0]["answers"][0]["events"][0]["text"], "3");
}

TEST_F(Inside, AFailureStrikesWhenTheCommandsAreThrough) {
  std::string told;
  const auto act = [&] {
    try {
      Say("said");
      told = "nothing";
    } catch (const EHostFault& fault) {
      told = fault.what();
    }
  };
  const std::string fail = R"({"do":"host","throw":["message.text"]})";
  Ask(fail);
  const auto answer = Post(
      R"([{"call":"message.text","commands":[{"do":"orders"}]},{"call":"message.text","after":true,"commands":[]}])",
      act);
  EXPECT_EQ(told, "The host fails at message.text");
  EXPECT_EQ(answer["inside"].size(), 1U);
  EXPECT_FALSE(answer.contains("events"));
  // What the commands set is what strikes.
  Post(R"([{"call":"message.text","commands":[{"do":"host","throw":[]}]}])", act);
  EXPECT_EQ(told, "nothing");
  Post(R"([{"call":"message.text","commands":[)" + fail + "]}]", act);
  EXPECT_EQ(told, "The host fails at message.text");
}

TEST_F(Inside, NothingIsLoadedOrUnloadedThere) {
  const auto answer = Post(R"([{"call":"message.text","commands":[{"do":"load"},{"do":"unload"},)"
                           R"({"do":"drop_provider"}]}])",
                           [] { Say("said"); });
  const auto& answers = answer["inside"][0]["answers"];
  EXPECT_EQ(answers[0]["error"], "this cannot be done in the middle of a service call");
  EXPECT_EQ(answers[1]["error"], "this cannot be done in the middle of a service call");
  EXPECT_EQ(answers[2]["error"], "no module is loaded");
}

TEST_F(Inside, ADialogMayOpenInTheMiddleOfACallAndACallBeMadeInTheMiddleOfADialog) {
  const auto show = [this](const std::string& className) {
    const auto form = host::GetDialogForm(provider);
    form->SetFrame(std::make_shared<host::TViewFrame>(className, "lcTest"));
    form->ShowModal();
  };
  handler = [&](host::TOrderTakeActionRecord& record) {
    Say(std::to_string(record.action));
    if (record.action == 2) show("TAlgoWorkOrderFrame");
  };
  const auto answer = Ask(
      R"({"do":"post","channel":18011,"order":null,"action":1,"inside":[{"call":"message.text","commands":[)"
      R"({"do":"post","channel":18011,"order":null,"action":2,"modal":[[)"
      R"({"do":"post","channel":18011,"order":null,"action":3,"inside":[{"call":"message.text","commands":[)"
      R"({"do":"dismiss","result":7}]}]}]]}]}]})");
  const auto& dialog = answer["inside"][0]["answers"][0]["modal"][0];
  EXPECT_EQ(dialog["frame"], "work");
  EXPECT_EQ(dialog["result"], 7);
  EXPECT_EQ(dialog["answers"][0]["events"][0]["text"], "3");
  EXPECT_FALSE(answer.contains("modal"));
}

TEST_F(Inside, AFormIsAsItWasBeforeTheCallWhileCommandsAreCarriedOut) {
  std::shared_ptr<forms::TDialogForm> form;
  const auto answer = Post(
      R"([{"call":"form.caption","commands":[{"do":"orders"}]},{"call":"form.show","commands":[{"do":"read","frame":"change"}]},)"
      R"({"call":"form.show","after":true,"commands":[{"do":"read","frame":"change"}]}])",
      [&] {
        form = host::GetDialogForm(provider);
        form->SetFrame(std::make_shared<host::TViewFrame>("TAlgoOrderChangeFrame", "lcTest"));
        form->SetCaption("Sure?");
        form->Show();
      });
  ASSERT_EQ(answer["inside"].size(), 3U);
  EXPECT_EQ(answer["inside"][1]["answers"][0]["ok"], false);
  EXPECT_EQ(answer["inside"][2]["answers"][0]["form"]["showing"], true);
  form->Close();
}

TEST_F(Inside, AnInstrumentThatWasHandedOutStaysWhenTheHostChangesItsOwn) {
  Ask(R"({"do":"host","instruments":{"S":{"lot":"100"}}})");
  std::string lot;
  Post(R"([{"call":"market.instrument","after":true,"commands":[{"do":"host","instruments":{"S":null}}]}])",
       [&] {
         lot = host::TCustomMarketAdapter::GetInstance().FindInstrument("S")->lotText;
         if (host::TCustomMarketAdapter::GetInstance().FindInstrument("S") == nullptr) lot += ", then none";
       });
  EXPECT_EQ(lot, "100, then none");
}

TEST_F(Inside, EntriesThatAreWrittenWronglyAreRefusedBeforeAnythingIsDone) {
  bool posted = false;
  handler = [&](host::TOrderTakeActionRecord&) { posted = true; };
  for (const auto& [inside, error] : std::vector<std::pair<std::string, std::string>>{
           {"{}", "'inside' must be a list of tables"},
           {"[7]", "'inside' must be a list of tables"},
           {R"([{"commands":[]}])", "'call' is missing"},
           {R"([{"call":"fly","commands":[]}])", "no service has an operation 'fly'"},
           {R"([{"call":"form.make"}])", "'commands' is missing"},
           {R"([{"call":"form.make","commands":{}}])", "'commands' must be a list of commands"},
           {R"([{"call":"form.make","nth":0,"commands":[]}])", "'nth' must be at least 1"},
           {R"([{"call":"form.make","nth":"1","commands":[]}])", "'nth' must be a whole number"},
           {R"([{"call":"form.make","after":1,"commands":[]}])", "'after' must be true or false"},
       }) {
    EXPECT_EQ(Refusal(R"({"do":"post","channel":18011,"order":null,"action":1,"inside":)" + inside + "}"),
              error);
  }
  EXPECT_FALSE(posted);
}

}  // namespace
}  // namespace algo::terminal::drive
