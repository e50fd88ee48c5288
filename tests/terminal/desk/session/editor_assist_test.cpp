// How typing is helped, on a host without a module.

#include "terminal/desk/session/editor_assist.h"

#include <gtest/gtest.h>

#include "forms/frame.h"
#include "plugin/host_contract/editor_manager.h"
#include "tests/terminal/desk/sample_tables.h"

namespace algo::terminal::desk::tests {
namespace {

struct TEditorAssistTest : testing::Test {
  TEditorAssistTest() {
    host.Data().accounts = {"ALPHA-1", "BETA-1", "GAMMA-ALPHA"};
    auto& manager = host::TEditorManager::GetInstance();
    manager.RegisterAccountEditor(account, "", 0, 1);
    manager.RegisterSymbolEditor(symbol, "", 0, 1);
  }
  std::vector<std::string> Offered(const forms::TTextEdit& editor, const char* typed) {
    std::vector<std::string> offered;
    for (const auto& completion : assist.Completions(editor, typed)) offered.push_back(completion.text);
    return offered;
  }
  using TList = std::vector<std::string>;

  paper::TMarketTables tables = SampleTables();
  TDeskEvents events;
  TMemoryHost host{events.Receiver()};
  appearance::TTexts texts{appearance::TLanguage::English};
  TDeskEditorAssist assist{events, host, tables, texts};
  forms::TFrame frame{"TFrame", "layout"};
  forms::TTextEdit& account = frame.Add<forms::TTextEdit>("account");
  forms::TTextEdit& symbol = frame.Add<forms::TTextEdit>("symbol");
  forms::TTextEdit& note = frame.Add<forms::TTextEdit>("note");
};

TEST_F(TEditorAssistTest, AccountsThatBeginWithTheTextComeFirst) {
  EXPECT_EQ(Offered(account, "alpha"), (TList{"ALPHA-1", "GAMMA-ALPHA"}));
  EXPECT_EQ(Offered(account, " be "), TList{"BETA-1"});
  EXPECT_TRUE(Offered(account, "").empty());
  EXPECT_TRUE(Offered(account, "zeta").empty());
}

TEST_F(TEditorAssistTest, SymbolsAreFoundByCodeAndByName) {
  EXPECT_EQ(Offered(symbol, "05"), (TList{"0005", "1050"}));
  EXPECT_EQ(Offered(symbol, "10"), TList{"1050"});
  EXPECT_EQ(Offered(symbol, "harbour"), TList{"0005"});
  EXPECT_EQ(assist.Completions(symbol, "0005").front().note, "Harbour Bank");
}

TEST_F(TEditorAssistTest, AnEditorThatNobodyRegisteredOffersNothing) {
  EXPECT_TRUE(Offered(note, "a").empty());
}

}  // namespace
}  // namespace algo::terminal::desk::tests
