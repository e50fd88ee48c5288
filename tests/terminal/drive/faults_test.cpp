// Failing services as scripts set them.

#include <map>
#include <set>

#include "tests/terminal/drive/session_fixture.h"

namespace algo::terminal::drive {
namespace {

/// Each operation with the ways in which it can fail beside "exception" and "int".
const std::map<std::string, std::set<std::string>> Kinds{
    {"config.read", {"empty", "wild"}},
    {"language.text", {"empty", "wild"}},
    {"profile.data", {"empty", "wild"}},
    {"profile.right", {"false"}},
    {"account.known", {"false"}},
    {"action.take", {"false"}},
    {"orders.list", {"null", "empty", "wild"}},
    {"orders.new", {"null"}},
    {"orders.at", {"null"}},
    {"market.item", {"null"}},
    {"market.instrument", {"null"}},
    {"subscribe.add", {"null"}},
    {"form.make", {"null"}},
    {"orders.count", {"wild"}},
    {"skin.color", {"wild"}},
    {"config.store", {}},
    {"config.listen", {}},
    {"config.unlisten", {}},
    {"orders.free", {}},
    {"channel.post", {}},
    {"channel.subscribe", {}},
    {"channel.unsubscribe", {}},
    {"market.listen", {}},
    {"market.unlisten", {}},
    {"subscribe.listen", {}},
    {"subscribe.remove", {}},
    {"skin.listen", {}},
    {"skin.unlisten", {}},
    {"message.text", {}},
    {"message.code", {}},
    {"editor.register", {}},
    {"editor.remove", {}},
    {"editor.symbol", {}},
    {"editor.account", {}},
    {"form.show", {}},
    {"form.hide", {}},
    {"form.close", {}},
    {"form.caption", {}},
    {"form.front", {}},
    {"view.notify", {}},
};

class ScriptedFaults : public TSessionTest {
 protected:
  std::string Throw(const std::string& list) {
    const auto answer = Ask(R"({"do":"host","throw":)" + list + "}");
    return answer["ok"] == true ? "" : answer["error"].get<std::string>();
  }
  TFaults& Faults() { return session.Host().Data().faults; }
};

TEST_F(ScriptedFaults, AreOfTheKindsThatTheOperationHas) {
  EXPECT_EQ(Kinds.size(), ServiceOperationCount);
  for (const auto& [name, kinds] : Kinds) {
    for (const std::string kind : {"exception", "int", "empty", "wild", "false", "null"}) {
      const bool possible = kind == "exception" || kind == "int" || kinds.contains(kind);
      EXPECT_EQ(Throw(R"([{"call":")" + name + R"(","as":")" + kind + R"("}])"),
                possible ? "" : "'" + name + "' cannot fail as '" + kind + "'");
    }
  }
}

TEST_F(ScriptedFaults, AreNamesOrTables) {
  EXPECT_EQ(Throw(R"(["config.read",{"call":"form.make","from":2,"times":3,"as":"null"}])"), "");
  EXPECT_THROW(Faults().Strike(TServiceOperation::ConfigRead), EHostFault);
  std::string struck;
  for (int i = 0; i < 6; ++i) struck += Faults().Strike(TServiceOperation::FormMake) ? '!' : '.';
  EXPECT_EQ(struck, ".!!!..");
}

TEST_F(ScriptedFaults, CountAnewWhenTheyAreSetAnewAndOnlyThen) {
  const std::string second = R"([{"call":"config.read","from":2,"as":"empty"}])";
  Throw(second);
  EXPECT_FALSE(Faults().Strike(TServiceOperation::ConfigRead));
  Ask(R"({"do":"host","accept":false})");
  EXPECT_TRUE(Faults().Strike(TServiceOperation::ConfigRead));
  Throw(second);
  EXPECT_FALSE(Faults().Strike(TServiceOperation::ConfigRead));
  EXPECT_TRUE(Faults().Strike(TServiceOperation::ConfigRead));
  Throw("[]");
  EXPECT_FALSE(Faults().Any());
}

TEST_F(ScriptedFaults, ThatAreWrittenWronglyChangeNothing) {
  Throw(R"(["form.make"])");
  for (const auto& [list, error] : std::map<std::string, std::string>{
           {R"("config.read")", "'throw' must list names and tables"},
           {R"({"call":"config.read"})", "'throw' must list names and tables"},
           {R"([7])", "'throw' must list names and tables"},
           {R"(["config.write"])", "no service has an operation 'config.write'"},
           {R"([{}])", "'call' is missing"},
           {R"([{"call":7}])", "'call' must be a text"},
           {R"([{"call":"config.write"}])", "no service has an operation 'config.write'"},
           {R"([{"call":"config.read","as":"null"}])", "'config.read' cannot fail as 'null'"},
           {R"([{"call":"config.read","as":"slowly"}])", "'config.read' cannot fail as 'slowly'"},
           {R"([{"call":"config.read","as":1}])", "'as' must be a text"},
           {R"([{"call":"config.read","from":0}])", "'from' must be at least 1"},
           {R"([{"call":"config.read","from":-1}])", "'from' must be a number that fits 32 bits"},
           {R"([{"call":"config.read","from":"1"}])", "'from' must be a whole number"},
           {R"([{"call":"config.read","times":0}])", "'times' must be at least 1"},
           {R"([{"call":"config.read","times":1.5}])", "'times' must be a whole number"},
           {R"([{"call":"config.read","to":1}])", "a failure has no 'to'"},
           {R"(["config.read",{"call":"config.read","as":"null"}])", "'config.read' cannot fail as 'null'"},
       }) {
    EXPECT_EQ(Throw(list), error) << list;
    EXPECT_FALSE(Faults().Strike(TServiceOperation::ConfigRead)) << list;
    EXPECT_THROW(Faults().Strike(TServiceOperation::FormMake), EHostFault) << list;
  }
}

class ModuleAtFaults : public TSessionTest {
 protected:
  ModuleAtFaults() : TSessionTest(ModuleBesideProgram()) {
    Play(
        R"({"do":"host","accounts":["A"],"instruments":{"S":{"lot":"100"}},"lists":{"ALGO/Exchange":["X"],)"
        R"("ALGO/ALGOType/X":["TVOL","TWAP"],"ALGO/OrderType/X":["LO"]},"config":{"USER":{"ConfirmationPlaceOrd":"N"}}})"
        "\n"
        R"({"do":"order","key":"K1","original":"AlgoEntry","symbol":"S","exchange":"X","quantity":100,)"
        R"("flags":268435457,"algo_text":"TMLO:AlgoId=TVOL;"})"
        "\n"
        R"({"do":"load"})"
        "\n"
        R"({"do":"open","frame":"e1"})");
  }

  /// The errors in an answer and in the answers inside it that the module is to blame for.
  static void Blame(const TAnswerJson& answer, std::vector<std::string>& errors) {
    if (answer.is_object() && answer.contains("error")) {
      const auto error = answer["error"].get<std::string>();
      if (error.starts_with("exception crossed") || error.starts_with("contract")) errors.push_back(error);
    }
    if (answer.is_structured()) {
      for (const auto& part : answer) Blame(part, errors);
    }
  }
};

TEST_F(ModuleAtFaults, ANumberThatIsThrownIsToldLikeAnyError) {
  Ask(R"({"do":"host","throw":[{"call":"market.listen","as":"int"}]})");
  const auto answer = Ask(R"({"do":"open","frame":"e2"})");
  EXPECT_EQ(answer["error"], "the view could not be opened");
  EXPECT_EQ(answer["events"].back().dump(), R"({"event":"message","text":"Unknown error"})");
}

TEST_F(ModuleAtFaults, AnOrderThatIsNotTakenBackIsLeft) {
  const std::string fail = R"({"do":"host","throw":[{"call":"orders.free","times":1}]})";
  Ask(fail);
  Play(R"({"do":"type","frame":"e1","control":"edtAccount","text":"A"})"
       "\n"
       R"({"do":"type","frame":"e1","control":"edtSymbol","text":"S"})"
       "\n"
       R"({"do":"type","frame":"e1","control":"edtQty","text":"100"})"
       "\n"
       R"({"do":"type","frame":"e1","control":"edtPrice","text":"10"})"
       "\n"
       R"({"do":"click","frame":"e1","control":"btnBuy"})");
  const auto submitted = Ask(
      R"({"do":"click","frame":"e1","control":"btnSubmit","inside":[{"call":"orders.free","nth":1,"commands":[]}]})");
  EXPECT_EQ(submitted["inside"].size(), 1U);
  EXPECT_EQ(Ask(R"({"do":"unload"})")["left"]["orders"], 1);
}

TEST_F(ModuleAtFaults, TheFormOperationsFailWithoutHarm) {
  const std::string post =
      R"({"do":"post","channel":18011,"order":"K1","action":42,"modal":[[{"do":"dismiss","result":2}]]})";
  for (const std::string name : {"form.make", "form.caption", "form.show", "form.hide"}) {
    for (const std::string kind : {"exception", "int"}) {
      Ask(R"({"do":"host","throw":[{"call":")" + name + R"(","times":1,"as":")" + kind + R"("}]})");
      std::vector<std::string> errors;
      Blame(Ask(post), errors);
      const auto again = Ask(post);
      Blame(again, errors);
      EXPECT_EQ(errors, std::vector<std::string>()) << name << kind;
      EXPECT_EQ(again["modal"].size(), 1U) << name << kind;
      // The next ones make the dialog anew.
      if (name == "form.make") Play("{\"do\":\"unload\"}\n{\"do\":\"host\",\"throw\":[]}\n{\"do\":\"load\"}");
    }
  }
  const auto left = Ask(R"({"do":"unload"})")["left"];
  for (const auto& [what, count] : left.items()) EXPECT_EQ(count, 0) << what;
}

TEST_F(ModuleAtFaults, AFormThatDoesNotCloseStaysAsItIs) {
  Play(
      "{\"do\":\"unload\"}\n"
      R"({"do":"host","config":{"USER":{"ChangeOrderShowModel":"N"}}})"
      "\n{\"do\":\"load\"}\n"
      R"({"do":"post","channel":18011,"order":"K1","action":2})");
  for (const std::string kind : {"exception", "int"}) {
    Ask(R"({"do":"host","throw":[{"call":"form.close","as":")" + kind + R"("}]})");
    EXPECT_EQ(Refusal(R"({"do":"close_form","frame":"change:K1"})"), "the form did not close");
    EXPECT_EQ(Ask(R"({"do":"read","frame":"change:K1","controls":[]})")["form"]["showing"], true);
  }
  Ask(R"({"do":"host","throw":[]})");
  EXPECT_EQ(Ask(R"({"do":"close_form","frame":"change:K1"})")["events"].back().dump(),
            R"({"event":"close_form","frame":"change:K1"})");
}

}  // namespace
}  // namespace algo::terminal::drive
