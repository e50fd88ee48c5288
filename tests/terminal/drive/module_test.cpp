// The driver with the real module.

#include "tests/terminal/drive/session_fixture.h"

namespace algo::terminal::drive {
namespace {

class Module : public TSessionTest {
 protected:
  Module() : TSessionTest(ModuleBesideProgram()) {
    Play(
        R"({"do":"host","accounts":["A"],"instruments":{"S":{"lot":"100"}},"lists":{"ALGO/Exchange":["X"],)"
        R"("ALGO/ALGOType/X":["TVOL","TWAP"],"ALGO/OrderType/X":["LO"]},"config":{"USER":{"ConfirmationPlaceOrd":"Y"}}})"
        "\n"
        R"({"do":"load"})");
  }

  /// Fills in the form of the open view, up to the submit.
  void FillIn() {
    Play(R"({"do":"market","symbol":"S","state":1,"fields":{"3":"10.5"}})"
         "\n"
         R"({"do":"type","frame":"e1","control":"edtAccount","text":" A "})"
         "\n"
         R"({"do":"type","frame":"e1","control":"edtSymbol","text":"S"})"
         "\n"
         R"({"do":"type","frame":"e1","control":"edtQty","text":"5,000"})"
         "\n"
         R"({"do":"click","frame":"e1","control":"btnSell"})");
  }

  /// The events of that name in an answer.
  static std::vector<TAnswerJson> Events(const TAnswerJson& answer, const std::string& name) {
    std::vector<TAnswerJson> events;
    for (const auto& event : answer.value("events", TAnswerJson::array())) {
      if (event["event"] == name) events.push_back(event);
    }
    return events;
  }

  static constexpr const char* NothingLeft =
      R"({"channels":0,"config_listeners":0,"market_listeners":0,"subscriptions":0,"editors":0,"skin_listeners":0,)"
      R"("orders":0,"forms":0})";
};

TEST_F(Module, TellsWhereItsViewStands) {
  EXPECT_EQ(Ask(R"({"do":"provider"})").dump(),
            R"({"ok":true,"name":"AlgoOrderEntry_426","view_id":426,"menu_level":2,"menu":[)"
            R"({"id":101,"index":1100,"group":0,"caption":"Res_Order"},)"
            R"({"id":426,"index":1750,"group":0,"caption":"Res_AlgoOrderEntry"},)"
            R"({"id":-1,"index":0,"group":0,"caption":""}],"visible":true,)"
            R"("default_caption":{"result":true,"caption":"Res_AlgoOrderEntry"},)"
            R"("default_size":{"result":true,"width":640,"height":480}})");
}

TEST_F(Module, IsLoadedOnce) { EXPECT_EQ(Refusal(R"({"do":"load"})"), "a module is loaded already"); }

TEST_F(Module, MakesFramesWhoseEventsCarryTheirLabelFromTheFirst) {
  const auto registered = Events(Ask(R"({"do":"open","frame":"e1"})"), "register_editor");
  ASSERT_FALSE(registered.empty());
  for (const auto& event : registered) EXPECT_EQ(event["frame"], "e1");
  EXPECT_EQ(registered[0].dump(),
            R"({"event":"register_editor","frame":"e1","kind":"account","control":"edtAccount","group":""})");
}

TEST_F(Module, IsOpenedUnderLabelsThatAreFree) {
  Ask(R"({"do":"open","frame":"e1"})");
  EXPECT_EQ(Refusal(R"({"do":"open","frame":"e1"})"), "'e1' is open already");
  for (const std::string label : {"", "change", "work", "change:K1"}) {
    EXPECT_EQ(Refusal("{\"do\":\"open\",\"frame\":\"" + label + "\"}"),
              "no view can be opened under '" + label + "'");
  }
  EXPECT_EQ(Ask(R"({"do":"close","frame":"e1"})")["ok"], true);
  EXPECT_EQ(Refusal(R"({"do":"size","frame":"e1"})"), "there is no frame 'e1'");
  EXPECT_EQ(Ask(R"({"do":"open","frame":"e1"})")["ok"], true);
}

TEST_F(Module, LeavesNothingOfAViewThatCouldNotBeOpened) {
  Ask(R"({"do":"host","throw":["market.listen"]})");
  const auto answer = Ask(R"({"do":"open","frame":"e1"})");
  EXPECT_EQ(answer["ok"], false);
  ASSERT_FALSE(Events(answer, "remove_editor").empty());
  for (const auto& event : Events(answer, "remove_editor")) EXPECT_EQ(event["frame"], "e1");
  EXPECT_EQ(Events(answer, "message").size(), 1U);
  Ask(R"({"do":"host","throw":[]})");
  const auto registered = Events(Ask(R"({"do":"open","frame":"e2"})"), "register_editor");
  ASSERT_FALSE(registered.empty());
  EXPECT_EQ(registered[0]["frame"], "e2");
}

TEST_F(Module, SubmitsThroughItsDialog) {
  Ask(R"({"do":"open","frame":"e1"})");
  FillIn();
  EXPECT_EQ(Refusal(R"({"do":"read","frame":"change"})"), "there is no frame 'change'");
  const auto answer =
      Ask(R"({"do":"click","frame":"e1","control":"btnSubmit","modal":[[)"
          R"({"do":"close","frame":"e1"},{"do":"click","frame":"change","control":"btnSell"}]]})");
  EXPECT_EQ(answer["modal"][0]["frame"], "change");
  EXPECT_EQ(answer["modal"][0]["result"], 1);
  const auto actions = Events(answer, "take_action");
  ASSERT_EQ(actions.size(), 1U);
  EXPECT_EQ(actions[0]["order"]["account"], "A");
  EXPECT_EQ(actions[0]["order"]["quantity"], 5000);
  EXPECT_EQ(actions[0]["order"]["side"], 1);
  EXPECT_EQ(actions[0]["order"]["algo_text"], "TMLO:AlgoId=TVOL,Closing=0;");
  EXPECT_EQ(actions[0]["answer"], true);
  EXPECT_EQ(Ask(R"({"do":"orders"})")["orders"][0]["key"], "N1");
  // The dialog's frame stays known, and answers what does not need a view of its own.
  EXPECT_EQ(Ask(R"({"do":"size","frame":"change"})")["ok"], true);
  EXPECT_EQ(Ask(R"({"do":"group","frame":"change","id":"G"})")["group"], "G");
  EXPECT_EQ(Refusal(R"({"do":"layout","frame":"change"})"), "'change' is not a view that was opened");
}

TEST_F(Module, ShowsChangesBesideOthersWhenSetSo) {
  Play(R"({"do":"unload"})"
       "\n"
       R"({"do":"host","config":{"USER":{"ChangeOrderShowModel":"No"}}})"
       "\n"
       R"({"do":"load"})"
       "\n"
       R"({"do":"order","key":"K1","original":"AlgoEntry","symbol":"S","algo_text":"TMLO:AlgoId=TVOL;"})");
  const auto shown = Ask(R"({"do":"post","channel":18011,"order":"K1","action":2})");
  EXPECT_EQ(shown["result"], false);
  for (const auto& event : shown["events"]) {
    EXPECT_EQ(event.value("frame", "change:K1"), "change:K1");
  }
  ASSERT_EQ(Events(shown, "show").size(), 1U);
  EXPECT_EQ(Ask(R"({"do":"post","channel":18011,"order":"K1","action":2})")["events"].dump(),
            R"([{"event":"to_front","frame":"change:K1"}])");
  EXPECT_EQ(Events(Ask(R"({"do":"close_form","frame":"change:K1"})"), "close_form").size(), 1U);
  EXPECT_EQ(Refusal(R"({"do":"close_form","frame":"change:K1"})"), "there is no frame 'change:K1'");
}

TEST_F(Module, LeavesNothingBehindAndCanBeLoadedAgain) {
  Play(R"({"do":"open","frame":"e1"})"
       "\n"
       R"({"do":"order","key":"K1","original":"AlgoEntry","symbol":"S","quantity":100,"flags":268435457})"
       "\n"
       R"({"do":"post","channel":18011,"order":"K1","action":2})"
       "\n"
       R"({"do":"post","channel":18011,"order":"K1","action":42})");
  EXPECT_EQ(Ask(R"({"do":"size","frame":"work"})")["ok"], true);
  EXPECT_EQ(Ask(R"({"do":"unload"})")["left"].dump(), NothingLeft);
  EXPECT_EQ(Refusal(R"({"do":"size","frame":"work"})"), "there is no frame 'work'");
  EXPECT_EQ(Refusal(R"({"do":"unload"})"), "no module is loaded");
  EXPECT_EQ(Ask(R"({"do":"load"})")["ok"], true);
  EXPECT_EQ(Ask(R"({"do":"open","frame":"e1"})")["ok"], true);
  EXPECT_EQ(Ask(R"({"do":"unload"})")["left"].dump(), NothingLeft);
}

TEST_F(Module, TellsWhatItCouldNotGiveBack) {
  Ask(R"({"do":"open","frame":"e1"})");
  FillIn();
  Ask(R"({"do":"host","throw":["subscribe.remove"]})");
  EXPECT_EQ(Ask(R"({"do":"unload"})")["left"]["subscriptions"], 1);
  // The handler that the host still has does nothing any more.
  EXPECT_EQ(Ask(R"({"do":"market","symbol":"S","state":1})").dump(), R"({"ok":true})");
}

TEST_F(Module, TakesTheTradersInputOnlyWhereItMay) {
  Ask(R"({"do":"open","frame":"e1"})");
  Ask(R"({"do":"set","frame":"e1","control":"edtQty","enabled":false})");
  Ask(R"({"do":"set","frame":"e1","control":"lgPrice","visible":false})");
  EXPECT_EQ(Refusal(R"({"do":"type","frame":"e1","control":"edtQty","text":"1"})"), "edtQty is disabled");
  EXPECT_EQ(Refusal(R"({"do":"click","frame":"e1","control":"edtQty"})"), "edtQty is disabled");
  EXPECT_EQ(Refusal(R"({"do":"enter","frame":"e1","control":"edtPrice"})"), "edtPrice is not showing");
  EXPECT_EQ(Refusal(R"({"do":"type","frame":"e1","control":"cmbExch","text":"1"})"),
            "cmbExch takes no such input");
  EXPECT_EQ(Refusal(R"({"do":"pick","frame":"e1","control":"cmbOrderType","index":2})"),
            "cmbOrderType has no such item");
  EXPECT_EQ(Refusal(R"({"do":"pick","frame":"e1","control":"cmbOrderType","item":"?"})"),
            "cmbOrderType has no item '?'");
  EXPECT_EQ(Refusal(R"({"do":"pick","frame":"e1","control":"cmbOrderType"})"),
            "either 'index' or 'item' must be given");
  EXPECT_EQ(Refusal(R"({"do":"enter","frame":"e1"})"), "no control has the focus");
}

TEST_F(Module, IsSetByTheProgramsOwnHandWholeOrNotAtAll) {
  Ask(R"({"do":"open","frame":"e1"})");
  EXPECT_EQ(Refusal(R"({"do":"set","frame":"e1","control":"edtQty","value":7,"visible":"no"})"),
            "'visible' must be true or false");
  EXPECT_EQ(Refusal(R"({"do":"set","frame":"e1","control":"edtQty","value":7,"index":0})"),
            "edtQty has no 'index' to set");
  EXPECT_EQ(Refusal(R"({"do":"set","frame":"e1","control":"cmbExch","index":1})"),
            "cmbExch has no such item");
  EXPECT_EQ(Refusal(R"({"do":"set","frame":"e1","control":"lgVol","value":7})"),
            "lgVol has no 'value' to set");
  EXPECT_EQ(Refusal(R"({"do":"set","frame":"e1","control":"edtQty"})"), "nothing to set was given");
  EXPECT_EQ(Refusal(R"({"do":"set","frame":"e1","control":"deSTime","date":"soon"})"),
            "'date' must be a date as YYYY-MM-DD HH:MM:SS");
  const std::string read = R"({"do":"read","frame":"e1","controls":["edtQty","deSTime"]})";
  EXPECT_EQ(Ask(read)["controls"]["edtQty"]["value"], nullptr);
  Ask(R"({"do":"set","frame":"e1","control":"edtQty","value":1234.5,"hint":"h"})");
  Ask(R"({"do":"set","frame":"e1","control":"deSTime","date":"2024-01-15"})");
  auto states = Ask(read)["controls"];
  EXPECT_EQ(states["edtQty"]["value"], 1234.5);
  EXPECT_EQ(states["edtQty"]["hint"], "h");
  EXPECT_EQ(states["deSTime"]["date"], "2024-01-15 00:00:00");
  Ask(R"({"do":"set","frame":"e1","control":"edtQty","value":null})");
  Ask(R"({"do":"set","frame":"e1","control":"deSTime","date":null})");
  states = Ask(read)["controls"];
  EXPECT_EQ(states["edtQty"]["value"], nullptr);
  EXPECT_EQ(states["deSTime"]["date"], nullptr);
}

TEST_F(Module, ShowsTheStateOfEveryKindOfThing) {
  Ask(R"({"do":"host","colors":{"7":"#00fF01"}})");
  Ask(R"({"do":"open","frame":"e1"})");
  auto states = Ask(R"({"do":"read","frame":"e1"})")["controls"];
  const auto keys = [&states](const std::string& name) {
    std::string names;
    for (const auto& [key, value] : states[name].items()) names += key + " ";
    return names;
  };
  EXPECT_EQ(
      keys("edtAccount"),
      "kind visible enabled showing parent text placeholder hint readonly bold font_size focused position ");
  EXPECT_EQ(
      keys("edtQty"),
      "kind visible enabled showing parent text value min max step placeholder hint readonly bold font_size "
      "focused position ");
  EXPECT_EQ(keys("deSTime"),
            "kind visible enabled showing parent text date placeholder hint readonly bold font_size focused "
            "position ");
  EXPECT_EQ(
      keys("cmbExch"),
      "kind visible enabled showing parent text items index hint readonly bold font_size focused position ");
  EXPECT_EQ(
      keys("cbPopup"),
      "kind visible enabled showing parent checked caption hint readonly bold font_size focused position ");
  EXPECT_EQ(keys("btnSubmit"),
            "kind visible enabled showing parent caption hint bold font_size focused position ");
  EXPECT_EQ(
      keys("btnBuy"),
      "kind visible enabled showing parent pressed color caption hint bold font_size focused position ");
  EXPECT_EQ(keys("lgVol"), "kind visible enabled showing parent caption bold font_size position ");
  EXPECT_EQ(keys("liVolPct"), "kind visible enabled showing parent caption bold font_size position ");
  EXPECT_EQ(states["btnBuy"]["color"], "#00ff01");
  EXPECT_EQ(states["edtVolPct"]["parent"], "liVolPct");
  EXPECT_EQ(states["liVolPct"]["parent"], "lgVol");
  EXPECT_EQ(states["lgVol"]["parent"], "lgAlgo");
  EXPECT_EQ(states["lgAlgo"]["parent"], "");
  EXPECT_EQ(states["lgAlgo"]["position"], 1);
  EXPECT_EQ(states["edtMinOrdAmt"]["kind"], "spin");
}

}  // namespace
}  // namespace algo::terminal::drive
