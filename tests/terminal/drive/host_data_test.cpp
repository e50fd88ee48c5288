#include "tests/terminal/drive/session_fixture.h"

namespace algo::terminal::drive {
namespace {

class HostData : public TSessionTest {
 protected:
  THostData& Data() { return session.Host().Data(); }
};

TEST_F(HostData, StartsAsANewHost) {
  EXPECT_EQ(Data().section, "USER");
  EXPECT_EQ(Data().rights.size(), 1U);
  EXPECT_TRUE(Data().rights.contains("AlgoTabOrderEntry"));
  EXPECT_EQ(Data().profile.kind, 0);
  EXPECT_TRUE(Data().accept);
  EXPECT_TRUE(Data().config.empty());
}

TEST_F(HostData, TakesEveryKeyOfTheTable) {
  const auto answer =
      Ask(R"({"do":"host","id":3,"modal":[],"section":"S","config":{"S":{"k":"v"}},)"
          R"("texts":{"Res":{"a":"A"}},"rights":["R"],)"
          R"("profile":{"kind":2,"flag":true,"account":"A1","user":"U"},)"
          R"("accounts":["A1","A2"],"lists":{"L":["x","y"]},"instruments":{"I":{"lot":"100"}},)"
          R"("colors":{"7":"#0a0B0c"},"accept":false,"throw":["config.read"]})");
  EXPECT_EQ(answer.dump(), R"({"ok":true,"id":3})");
  EXPECT_EQ(Data().section, "S");
  EXPECT_EQ(Data().config["S"]["k"], "v");
  EXPECT_EQ(Data().texts["Res"]["a"], "A");
  EXPECT_TRUE(Data().rights.contains("R") && Data().rights.size() == 1);
  EXPECT_EQ(Data().profile.kind, 2);
  EXPECT_TRUE(Data().profile.flag);
  EXPECT_EQ(Data().profile.account, "A1");
  EXPECT_EQ(Data().profile.user, "U");
  EXPECT_EQ(Data().accounts.size(), 2U);
  EXPECT_EQ(Data().lists["L"], (std::vector<std::string>{"x", "y"}));
  EXPECT_EQ(Data().instruments["I"].symbol, "I");
  EXPECT_EQ(Data().instruments["I"].lotText, "100");
  EXPECT_EQ(Data().colors[7], 0x0A0B0CU);
  EXPECT_FALSE(Data().accept);
  EXPECT_THROW(Data().faults.Strike(TServiceOperation::ConfigRead), EHostFault);
}

TEST_F(HostData, MergesTablesKeyByKey) {
  Ask(R"({"do":"host","config":{"A":{"x":"1","y":"2"},"B":{"z":"3"}},"profile":{"kind":2,"user":"U"}})");
  Ask(R"({"do":"host","config":{"A":{"x":"9","w":"4"}},"profile":{"flag":true}})");
  EXPECT_EQ(Data().config["A"], (TTextTable{{"w", "4"}, {"x", "9"}, {"y", "2"}}));
  EXPECT_EQ(Data().config["B"]["z"], "3");
  EXPECT_EQ(Data().profile.kind, 2);
  EXPECT_EQ(Data().profile.user, "U");
  EXPECT_TRUE(Data().profile.flag);
}

TEST_F(HostData, TakesKeysOutForNull) {
  Ask(R"({"do":"host","config":{"A":{"x":"1","y":"2"},"B":{"z":"3"}},"lists":{"L":["x"]},"colors":{"7":"#000001"}})");
  Ask(R"({"do":"host","config":{"A":{"x":null},"B":null,"C":null},"lists":{"L":null},"colors":{"7":null}})");
  EXPECT_EQ(Data().config, (TTextTables{{"A", {{"y", "2"}}}}));
  EXPECT_TRUE(Data().lists.empty());
  EXPECT_TRUE(Data().colors.empty());
}

TEST_F(HostData, ReplacesListsAsAWhole) {
  Ask(R"({"do":"host","accounts":["A","B"],"lists":{"L":["x","y"]},"rights":["R"]})");
  Ask(R"({"do":"host","accounts":["C"],"lists":{"L":[]},"rights":[]})");
  EXPECT_TRUE(Data().accounts.contains("C") && Data().accounts.size() == 1);
  ASSERT_TRUE(Data().lists.contains("L"));
  EXPECT_TRUE(Data().lists["L"].empty());
  EXPECT_TRUE(Data().rights.empty());
}

TEST_F(HostData, GoesBackToItsFirstStateForNull) {
  Ask(R"({"do":"host","section":"S","accept":false,"rights":[],"profile":{"kind":2},"throw":["form.make"]})");
  Ask(R"({"do":"host","section":null,"accept":null,"rights":null,"profile":{"kind":null},"throw":null})");
  EXPECT_EQ(Data().section, "USER");
  EXPECT_TRUE(Data().accept);
  EXPECT_TRUE(Data().rights.contains("AlgoTabOrderEntry"));
  EXPECT_EQ(Data().profile.kind, 0);
  EXPECT_FALSE(Data().faults.Any());
}

TEST_F(HostData, IsAsItWasAfterARefusedCommand) {
  const std::vector<std::string> refused{
      R"("acounts":["A"])",
      R"("accounts":"A")",
      R"("accounts":["A",1])",
      R"("config":{"A":{"x":"2"},"B":7})",
      R"("config":{"A":{"x":2}})",
      R"("config":[])",
      R"("profile":{"kind":1.5})",
      R"("profile":{"kind":3000000000})",
      R"("profile":{"kind":1,"name":"N"})",
      R"("instruments":{"I":{"lot":100}})",
      R"("instruments":{"I":"100"})",
      R"("colors":{"seven":"#000000"})",
      R"("colors":{"7":"red"})",
      R"("colors":{"7":"#0000-1"})",
      R"("accept":"true")",
      R"("throw":["config.write"])",
      R"("section":1)",
  };
  Ask(R"({"do":"host","config":{"A":{"x":"1"}}})");
  for (const auto& part : refused) {
    // The valid part in front must not be applied either.
    EXPECT_EQ(Ask(R"({"do":"host","accept":false,)" + part + "}")["ok"], false) << part;
    EXPECT_TRUE(Data().accept) << part;
    EXPECT_EQ(Data().config, (TTextTables{{"A", {{"x", "1"}}}})) << part;
    EXPECT_EQ(Data().profile.kind, 0) << part;
    EXPECT_TRUE(Data().accounts.empty() && Data().instruments.empty() && Data().colors.empty()) << part;
  }
}

}  // namespace
}  // namespace algo::terminal::drive
