// The texts of the form: where each one comes from, and what a change of language does.

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;
using views::entry::TField;

struct TTextRow {
  std::string_view name;
  std::string_view id;
};

// clang-format off
constexpr std::array GroupCaptions{
    TTextRow{"lgTrading", "Res_Algo_Trading"}, TTextRow{"lgVol", "Res_Volume"},
    TTextRow{"lgSNIPER", "Res_Algo_SNIPER"}, TTextRow{"lgPEG", "Res_Algo_PEG"},
    TTextRow{"lgICEBERG", "Res_Algo_Iceberg"}, TTextRow{"lgMinOrder", "Res_Algo_MinOrder"},
    TTextRow{"lgWOrder", "Res_Algo_WOrder"}, TTextRow{"lgAuc", "Res_Algo_Auc"},
    TTextRow{"lgTVOLth", "Res_Algo_TVOLTH"}, TTextRow{"lgSlices", "Res_Algo_Waves"},
    TTextRow{"lgVWAP", "Res_Algo_VWAP"}, TTextRow{"lgSTOP", "Res_Algo_STOP"},
    TTextRow{"lgStyle", "Res_Algo_Style"}, TTextRow{"lgTime", "Res_Algo_Delay"},
    TTextRow{"lgRef", "Res_Algo_Ref"},
};

constexpr std::array ItemCaptions{
    TTextRow{"liMOrder", "Res_Ticket_OrderType"}, TTextRow{"liAccount", "Res_Account"},
    TTextRow{"liAccuVol", "Res_Algo_AccuVol"}, TTextRow{"liAllInAuc", "Res_Algo_AllInAuc"},
    TTextRow{"liClosePct", "Res_Algo_ClosePct"}, TTextRow{"liCloseSim", "Res_Algo_CloseSim"},
    TTextRow{"liClosing", "Res_Algo_Closing"}, TTextRow{"liDiffPct", "Res_Algo_DiffPct"},
    TTextRow{"liETime", "Res_Algo_ETime"}, TTextRow{"liExch", "Res_Market"},
    TTextRow{"liFunc", "Res_Algo_Func"}, TTextRow{"liIceberg", "Res_Algo_Iceberg"},
    TTextRow{"liJoin", "Res_Algo_Join"}, TTextRow{"liJoinQty", "Res_Algo_JoinQty"},
    TTextRow{"liJoinThr", "Res_Algo_JoinThr"}, TTextRow{"liMaxShowQty", "Res_Algo_MaxShowQty"},
    TTextRow{"liMaxVolPct", "Res_Algo_MaxVolPct"}, TTextRow{"liMinOrdAmt", "Res_Algo_MinOrdAmt"},
    TTextRow{"liMinQty", "Res_Algo_MinQty"}, TTextRow{"liOpening", "Res_Algo_Opening"},
    TTextRow{"liOpenPct", "Res_Algo_OpenPct"}, TTextRow{"liOrderType", "Res_AlgoOrderType"},
    TTextRow{"liPrice", "Res_Ticket_Limit_Price_Hint"}, TTextRow{"liQuantity", "Res_OrderQty"},
    TTextRow{"liRandTimeOut", "Res_Algo_RandTimeout"}, TTextRow{"liRef", "Res_Algo_Ref"},
    TTextRow{"liServePct", "Res_Algo_ServePct"}, TTextRow{"liShowQty", "Res_Algo_ShowQty"},
    TTextRow{"liSlices", "Res_Algo_Waves"}, TTextRow{"liSTime", "Res_Algo_STime"},
    TTextRow{"liStopLossPx", "Res_Algo_StopLossPx"}, TTextRow{"liStopQty", "Res_Algo_StopQty"},
    TTextRow{"liStyle", "Res_Algo_Style"}, TTextRow{"liSymbol", "Res_Symbol"},
    TTextRow{"liThrPx1", "Res_Algo_ThrPx1"}, TTextRow{"liThrPx2", "Res_Algo_ThrPx2"},
    TTextRow{"liThrVolPct1", "Res_Algo_ThrVolPct1"}, TTextRow{"liThrVolPct2", "Res_Algo_ThrVolPct2"},
    TTextRow{"liTickDiff", "Res_Algo_TickDiff"}, TTextRow{"liTimeOut", "Res_Algo_Timeout"},
    TTextRow{"liVolPct", "Res_Algo_VolPct"}, TTextRow{"liWPx", "Res_Algo_Wpx"},
    TTextRow{"liRandPct", "Res_Algo_RandPct"}, TTextRow{"liReloadPct", "Res_Algo_ReloadPct"},
};

constexpr std::array ControlCaptions{
    TTextRow{"btnBuy", "Res_Side_Buy"}, TTextRow{"btnSell", "Res_Side_Sell"},
    TTextRow{"btnSubmit", "Res_Submit"}, TTextRow{"btnClear", "Res_Clear"},
    TTextRow{"btnWork", "Res_Work"}, TTextRow{"cbPopup", "Res_Ticket_Conf_Off"},
    TTextRow{"cbClear", "Res_OrderClear"},
};

constexpr std::array Hints{
    TTextRow{"edtPrice", "Res_Ticket_Limit_Price_Hint"}, TTextRow{"cbLockAcct", "Res_Account_Lock"},
    TTextRow{"cbLockSymbol", "Res_Symbol_Lock"}, TTextRow{"cbLockQty", "Res_Qty_Lock"},
    TTextRow{"cbLockPrice", "Res_Price_Lock"}, TTextRow{"cbLockExch", "Res_Market_Lock"},
};

constexpr std::array Placeholders{
    TTextRow{"edtAccount", "Res_Account"}, TTextRow{"edtSymbol", "Res_Symbol"},
};
// clang-format on

class CaptionsTest : public TTerminalTest {
 protected:
  /// Gives every id that the form may ask for a text that is not the id.
  void SpeakAnotherLanguage(const std::string& mark) {
    auto& texts = Data().texts["Res"];
    for (const auto& rows :
         {std::vector(GroupCaptions.begin(), GroupCaptions.end()),
          std::vector(ItemCaptions.begin(), ItemCaptions.end()),
          std::vector(ControlCaptions.begin(), ControlCaptions.end()),
          std::vector(Hints.begin(), Hints.end()), std::vector(Placeholders.begin(), Placeholders.end())}) {
      for (const TTextRow& row : rows)
        texts.insert_or_assign(std::string(row.id), mark + std::string(row.id));
    }
  }

  void ExpectTexts(views::entry::TAlgoOrderEntryFrame& frame, const std::string& mark) {
    for (const TTextRow& row : GroupCaptions) {
      EXPECT_EQ(Element(frame, row.name).Caption(), mark + std::string(row.id)) << row.name;
    }
    for (const TTextRow& row : ItemCaptions) {
      EXPECT_EQ(Element(frame, row.name).Caption(), mark + std::string(row.id)) << row.name;
    }
    for (const TTextRow& row : ControlCaptions) {
      EXPECT_EQ(Named(frame, row.name).Caption(), mark + std::string(row.id)) << row.name;
    }
    for (const TTextRow& row : Hints) {
      EXPECT_EQ(Named(frame, row.name).Hint(), mark + std::string(row.id)) << row.name;
    }
    for (const TTextRow& row : Placeholders) {
      const auto& editor = dynamic_cast<forms::TTextEdit&>(Named(frame, row.name));
      EXPECT_EQ(editor.Placeholder(), mark + std::string(row.id)) << row.name;
    }
  }
};

template <class TRows>
bool Names(const TRows& rows, const std::string& name) {
  return std::any_of(rows.begin(), rows.end(), [&name](const TTextRow& row) { return row.name == name; });
}

TEST_F(CaptionsTest, EveryCaptionHintAndPlaceholderIsTheTextOfItsId) {
  SpeakAnotherLanguage("1:");
  auto& frame = Open();
  ExpectTexts(frame, "1:");
}

TEST_F(CaptionsTest, NothingElseOnTheFormHasACaption) {
  auto& frame = Open();
  for (const auto& element : frame.Layout().Elements()) {
    const bool named = Names(GroupCaptions, element->Name()) || Names(ItemCaptions, element->Name());
    EXPECT_EQ(!element->Caption().empty(), named) << element->Name();
  }
  for (const auto& control : frame.Controls()) {
    EXPECT_EQ(!control->Caption().empty(), Names(ControlCaptions, control->Name())) << control->Name();
    EXPECT_EQ(!control->Hint().empty(), Names(Hints, control->Name())) << control->Name();
  }
}

TEST_F(CaptionsTest, AChangeOfLanguageFetchesEveryTextAnew) {
  auto& frame = Open();
  ExpectTexts(frame, "");
  SpeakAnotherLanguage("2:");
  EXPECT_TRUE(frame.SetLanguage(1));
  ExpectTexts(frame, "2:");
}

TEST_F(CaptionsTest, EveryPickListIsFilledAnew) {
  auto& frame = Open();
  Data().texts["Res"] = {{"Res_No", "Non"},
                         {"Res_Yes", "Oui"},
                         {"Res_NA", "Rien"},
                         {"Res_Algo_Func_Config", "Réglage"},
                         {"Res_Algo_Func_Native", "Natif"},
                         {"Res_Algo_Func_Simualted", "Simulé"},
                         {"Res_Algo_Normal", "Normal"},
                         {"Res_Algo_Aggressive", "Agressif"},
                         {"Res_Algo_Passive", "Passif"},
                         {"Res_Algo_OrderType_TVOL", "Volume"},
                         {"Res_Algo_OrderType_SHORTSELL", "Découvert"},
                         {"Res_OrderType_Limit", "Limite"},
                         {"Res_OrderType_LOC", "Fermeture"}};
  Data().texts["Exchange"] = {{"HK", "Hong-Kong"}};
  EXPECT_TRUE(frame.SetLanguage(3));
  for (const std::string_view combo :
       {"cmbAccuVol", "cmbOpening", "cmbClosing", "cmbCloseSim", "cmbAllInAuc", "cmbJoin", "cmbIceberg"}) {
    EXPECT_EQ(Combo(frame, combo).Items(), (TTexts{"Non", "Oui", "Rien"})) << combo;
  }
  EXPECT_EQ(Combo(frame, "cmbFunc").Items(), (TTexts{"Réglage", "Natif", "Simulé", "Rien"}));
  EXPECT_EQ(Combo(frame, "cmbStyle").Items(), (TTexts{"Normal", "Agressif", "Passif", "Rien"}));
  EXPECT_EQ(Combo(frame, "cmbExch").Items(), (TTexts{"HK(Hong-Kong)", "US"}));
  EXPECT_EQ(Combo(frame, "cmbOrderType").Items().front(), "Volume");
  EXPECT_EQ(std::ranges::count(Combo(frame, "cmbOrderType").Items(), "Découvert"), 1);
  EXPECT_EQ(Combo(frame, "cmbMType").Items().front(), "Limite");
  EXPECT_EQ(Combo(frame, "cmbMType").Items().back(), "Fermeture");
}

TEST_F(CaptionsTest, EachReferencePriceHasItsTextAndTheDeeperLevelsTheirNumber) {
  auto& texts = Data().texts["Res"];
  texts = {{"Res_OrderSide", "own side"},
           {"Res_Opposite", "other side"},
           {"Res_Last", "last"},
           {"Res_Bid", "bid"},
           {"Res_Ask", "ask"},
           {"Res_LowPrice", "low"},
           {"Res_HighPrice", "high"},
           {"Res_Algo_VWAP", "average"},
           {"Res_Mid", "mid"},
           {"Res_Num2", " two"},
           {"Res_Num3", " three"},
           {"Res_Num4", " four"},
           {"Res_Num5", " five"},
           {"Res_NA", "none"}};
  const TTexts expected{"own side", "other side", "last",      "bid",      "ask",       "low",
                        "high",     "average",    "mid",       "bid two",  "bid three", "bid four",
                        "bid five", "ask two",    "ask three", "ask four", "ask five",  "none"};
  auto& frame = Open();
  EXPECT_EQ(Combo(frame, "cmbRef").Items(), expected);
  EXPECT_EQ(Combo(frame, "cmbRef").Text(), "none");
}

TEST_F(CaptionsTest, AReferencePriceStaysChosenAndNoneBecomesTheLast) {
  auto& frame = Open();
  ChooseAlgo(frame, "PEG");
  frame.Combo(TField::cmbRef).SetIndex(10);
  frame.SetLanguage(3);
  EXPECT_EQ(frame.Combo(TField::cmbRef).Index(), 10);
  frame.Combo(TField::cmbRef).SetIndex(-1);
  frame.SetLanguage(3);
  EXPECT_EQ(frame.Combo(TField::cmbRef).Index(), 17);
}

TEST_F(CaptionsTest, AnAccountOrSymbolThatIsNotEnteredShowsItsPlaceholderOnly) {
  auto& frame = Open();
  EXPECT_EQ(frame.Edit(TField::edtAccount).Text(), "");
  EXPECT_EQ(frame.Edit(TField::edtSymbol).Text(), "");
}

TEST_F(CaptionsTest, ALanguageServiceThatFailsIsToldOnceAndAnsweredWithFalse) {
  auto& frame = Open();
  Data().faults.Set({"language.text"});
  EXPECT_FALSE(frame.SetLanguage(3));
  EXPECT_EQ(Told(), TTexts{"The host fails at language.text"});
  Data().faults.Set({});
  EXPECT_TRUE(frame.SetLanguage(3));
  ExpectTexts(frame, "");
}

}  // namespace
}  // namespace algo::tests
