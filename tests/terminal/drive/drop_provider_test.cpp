// A provider that is destroyed while its views, dialogs and forms are there.

#include "tests/terminal/drive/session_fixture.h"

namespace algo::terminal::drive {
namespace {

class DroppedProvider : public TSessionTest {
 protected:
  DroppedProvider() : TSessionTest(ModuleBesideProgram()) {
    Play(
        R"({"do":"host","accounts":["A"],"instruments":{"S":{"lot":"100"}},"lists":{"ALGO/Exchange":["X"],)"
        R"("ALGO/ALGOType/X":["TVOL","TWAP"],"ALGO/OrderType/X":["LO"]},"config":{"USER":{"ConfirmationPlaceOrd":"Y"}}})"
        "\n"
        R"({"do":"order","key":"K1","original":"AlgoEntry","symbol":"S","exchange":"X","quantity":100,)"
        R"("flags":268435457,"algo_text":"TMLO:AlgoId=TVOL;"})");
  }

  void Load() { Play("{\"do\":\"load\"}\n{\"do\":\"open\",\"frame\":\"e1\"}"); }

  void ExpectNothingLeft() {
    const auto answer = Ask(R"({"do":"unload"})");
    EXPECT_EQ(answer["ok"], true) << answer;
    for (const auto& [what, count] : answer["left"].items()) EXPECT_EQ(count, 0) << what;
    EXPECT_EQ(Ask(R"({"do":"load"})")["ok"], true);
    EXPECT_EQ(Ask(R"({"do":"open","frame":"e1"})")["ok"], true);
  }
};

TEST_F(DroppedProvider, LeavesItsEntryViewsAtWork) {
  Load();
  EXPECT_EQ(Ask(R"({"do":"drop_provider"})").dump(), R"({"ok":true})");
  Play(R"({"do":"host","config":{"USER":{"ConfirmationPlaceOrd":"N"}}})"
       "\n{\"do\":\"config_changed\"}\n"
       R"({"do":"type","frame":"e1","control":"edtAccount","text":"A"})"
       "\n"
       R"({"do":"type","frame":"e1","control":"edtSymbol","text":"S"})"
       "\n"
       R"({"do":"type","frame":"e1","control":"edtQty","text":"300"})"
       "\n"
       R"({"do":"type","frame":"e1","control":"edtPrice","text":"10"})"
       "\n"
       R"({"do":"click","frame":"e1","control":"btnBuy"})");
  EXPECT_EQ(Ask(R"({"do":"read","frame":"e1","controls":["edtQty"]})")["controls"]["edtQty"]["value"], 300);
  EXPECT_EQ(Ask(R"({"do":"compose","frame":"e1"})")["text"], "TMLO:AlgoId=TVOL,Closing=0;");
  EXPECT_EQ(Ask(R"({"do":"group","frame":"e1","id":"G1"})")["group"], "G1");
  EXPECT_EQ(Ask(R"({"do":"size","frame":"e1"})")["ok"], true);
  // With nobody there who could ask for a confirmation, the order is not sent.
  const auto submitted = Ask(R"({"do":"click","frame":"e1","control":"btnSubmit"})");
  EXPECT_EQ(submitted["ok"], true);
  EXPECT_EQ(Ask(R"({"do":"close","frame":"e1"})")["events"].back()["event"], "unsubscribe");
  EXPECT_EQ(Refusal(R"({"do":"read","frame":"e1"})"), "there is no frame 'e1'");
  ExpectNothingLeft();
}

TEST_F(DroppedProvider, AnswersNothingAnyMore) {
  Load();
  Ask(R"({"do":"drop_provider"})");
  for (const char* command :
       {R"({"do":"provider"})", R"({"do":"open","frame":"e2"})",
        R"({"do":"language","frame":"e1","language":1})", R"({"do":"skin","frame":"e1","name":"dark"})",
        R"({"do":"layout","frame":"e1"})", R"({"do":"layout","frame":"e1","text":"edtAccount=A"})",
        R"({"do":"drop_provider"})"}) {
    EXPECT_EQ(Refusal(command), "the provider has been destroyed") << command;
  }
  EXPECT_EQ(Refusal(R"({"do":"load"})"), "a module is loaded already");
  EXPECT_EQ(Ask(R"({"do":"post","channel":18011,"order":"K1","action":2})").dump(),
            R"({"ok":true,"result":false})");
  ExpectNothingLeft();
}

TEST_F(DroppedProvider, EndsItsDialogsAsCancelled) {
  Load();
  const auto answer =
      Ask(R"({"do":"post","channel":18011,"order":"K1","action":42,"modal":[[{"do":"drop_provider"},)"
          R"({"do":"read","frame":"work"},{"do":"dismiss","result":1},{"do":"unload"},)"
          R"({"do":"type","frame":"e1","control":"edtQty","text":"7"}]]})");
  const auto& dialog = answer["modal"][0];
  EXPECT_EQ(dialog["result"], 2);
  EXPECT_EQ(dialog["answers"][0]["ok"], true);
  EXPECT_EQ(dialog["answers"][1]["error"], "there is no frame 'work'");
  EXPECT_EQ(dialog["answers"][2]["error"], "no modal dialog is showing");
  EXPECT_EQ(dialog["answers"][3]["error"], "a modal dialog is showing");
  EXPECT_EQ(dialog["answers"][4]["ok"], true);
  EXPECT_EQ(answer["result"], false);
  ExpectNothingLeft();
}

TEST_F(DroppedProvider, EndsADialogThatWasSaidOkToAsCancelledToo) {
  Load();
  const auto answer = Ask(
      R"({"do":"post","channel":18011,"order":"K1","action":42,"modal":[[{"do":"dismiss","result":1},{"do":"drop_provider"}]]})");
  EXPECT_EQ(answer["modal"][0]["result"], 2);
  EXPECT_EQ(Ask(R"({"do":"orders"})")["orders"].size(), 1U);
  ExpectNothingLeft();
}

TEST_F(DroppedProvider, TakesItsOtherFormsAlong) {
  Ask(R"({"do":"host","config":{"USER":{"ChangeOrderShowModel":"N"}}})");
  Load();
  Ask(R"({"do":"post","channel":18011,"order":"K1","action":2})");
  EXPECT_EQ(Ask(R"({"do":"drop_provider"})")["events"][0].dump(),
            R"({"event":"close_form","frame":"change:K1"})");
  EXPECT_EQ(Refusal(R"({"do":"read","frame":"change:K1"})"), "there is no frame 'change:K1'");
  ExpectNothingLeft();
}

TEST_F(DroppedProvider, TakesAFormAlongThatFailsToClose) {
  Ask(R"({"do":"host","config":{"USER":{"ChangeOrderShowModel":"N"}}})");
  Load();
  Ask(R"({"do":"post","channel":18011,"order":"K1","action":2})");
  Ask(R"({"do":"host","throw":[{"call":"form.close","times":1}]})");
  EXPECT_EQ(Ask(R"({"do":"drop_provider"})")["ok"], true);
  EXPECT_EQ(Refusal(R"({"do":"read","frame":"change:K1"})"), "there is no frame 'change:K1'");
  ExpectNothingLeft();
}

TEST_F(DroppedProvider, MayGoInTheMiddleOfACall) {
  Load();
  const auto answer = Ask(
      R"({"do":"provider","inside":[{"call":"profile.right","after":true,"commands":[{"do":"drop_provider"}]}]})");
  EXPECT_EQ(answer["error"], "the provider has been destroyed");
  EXPECT_EQ(Ask(R"({"do":"read","frame":"e1","controls":["edtQty"]})")["ok"], true);
  ExpectNothingLeft();
}

TEST_F(DroppedProvider, HasToBeThere) {
  EXPECT_EQ(Refusal(R"({"do":"drop_provider"})"), "no module is loaded");
}

TEST_F(DroppedProvider, MayBeFollowedByTheEndOfTheScript) {
  Load();
  Ask(R"({"do":"drop_provider"})");
}

TEST_F(DroppedProvider, AViewMayBeClosedByItsOwnCommand) {
  Load();
  const auto answer = Ask(
      R"({"do":"pick","frame":"e1","control":"cmbOrderType","index":1,"inside":[{"call":"view.notify","nth":1,)"
      R"("commands":[{"do":"close","frame":"e1"},{"do":"open","frame":"e1"}]}]})");
  EXPECT_EQ(answer["ok"], true) << answer;
  ASSERT_EQ(answer["inside"].size(), 1U) << answer;
  EXPECT_EQ(answer["inside"][0]["answers"][1]["ok"], true);
  ExpectNothingLeft();
}

}  // namespace
}  // namespace algo::terminal::drive
