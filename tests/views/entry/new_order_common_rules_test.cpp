// What every new order needs, whatever its algorithm: side, account, symbol, quantity, algorithm, and times
// in order. Told in that order, one at a time.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;

class CommonRules : public TTerminalTest {
 protected:
  CommonRules() { Data().config["USER"]["ConfirmationPlaceOrd"] = "N"; }

  /// Presses Submit; what it told, each as "event text".
  TTexts Submit(forms::TFrame& frame) {
    Forget();
    Click(frame, "btnSubmit");
    TTexts told;
    for (const TSeen& seen : Seen("message")) told.push_back("message " + seen.text);
    for (const TSeen& seen : Seen("error_code")) told.push_back("code " + seen.text);
    return told;
  }

  bool Sent() const { return !Seen("take_action").empty() || !Seen("post").empty(); }

  void EnterSymbol(forms::TFrame& frame, std::string_view symbol) {
    Type(frame, "edtSymbol", symbol);
    Leave(frame);
  }
};

TEST_F(CommonRules, AreToldOneAfterTheOtherInTheirOrder) {
  auto& frame = Open();
  Combo(frame, "cmbOrderType").SetIndex(-1);
  dynamic_cast<forms::TDateEdit&>(Named(frame, "deSTime")).SetText("2024-01-15 09:30:01");
  dynamic_cast<forms::TDateEdit&>(Named(frame, "deETime")).SetText("2024-01-15 09:30:00");

  struct TStep {
    const char* told;
    std::function<void()> mend;
  };
  const std::vector<TStep> steps{
      {"message Res_BuySellMiss", [&] { Click(frame, "btnSell"); }},
      {"code DC10013001", [&] { Type(frame, "edtAccount", "A9"); }},
      {"code DC10013002", [&] { Type(frame, "edtAccount", "A1"); }},
      {"code DC1000001", [&] { EnterSymbol(frame, "0700"); }},  // its item is not loaded: no lot size
      {"code DC1004001", [&] { Type(frame, "edtQty", "100"); }},
      {"message Res_MarketMiss",
       [&] {
         ChooseAlgo(frame, "CLOSE");
         dynamic_cast<forms::TDateEdit&>(Named(frame, "deSTime")).SetText("2024-01-15 09:30:01");
         dynamic_cast<forms::TDateEdit&>(Named(frame, "deETime")).SetText("2024-01-15 09:30:00");
       }},
      {"message Res_DateFalse",
       [&] { dynamic_cast<forms::TDateEdit&>(Named(frame, "deETime")).SetText("2024-01-15 09:30:01"); }},
  };
  for (const TStep& step : steps) {
    EXPECT_EQ(Submit(frame), TTexts{step.told});
    EXPECT_FALSE(Sent()) << step.told;
    step.mend();
  }
  EXPECT_EQ(Submit(frame), TTexts{});
  EXPECT_EQ(TakenOrder().side, 1);
}

TEST_F(CommonRules, AskForASideOnAFormThatHoldsNothingElse) {
  auto& frame = Open();
  EXPECT_EQ(Submit(frame), TTexts{"message Res_BuySellMiss"});
}

TEST_F(CommonRules, TellResourcesInTheUsersLanguage) {
  Data().texts["Res"]["Res_BuySellMiss"] = "Buy or sell?";
  auto& frame = Open();
  EXPECT_EQ(Submit(frame), TTexts{"message Buy or sell?"});
}

TEST_F(CommonRules, CompareAccountsAsTheHostDoes) {
  auto& frame = OpenFilled();
  Type(frame, "edtAccount", "a1");
  EXPECT_EQ(Submit(frame), TTexts{"code DC10013002"});
  Type(frame, "edtAccount", " A1 ");
  EXPECT_EQ(Submit(frame), TTexts{});
  EXPECT_EQ(TakenOrder().account, "A1");
}

TEST_F(CommonRules, RefuseASymbolThatWasNotResolved) {
  auto& frame = OpenFilled();
  EnterSymbol(frame, "9999");
  EXPECT_EQ(Named(frame, "edtSymbol").Text(), "9999");
  EXPECT_EQ(Submit(frame), TTexts{"code DC1000001"});
  EXPECT_FALSE(Sent());
}

TEST_F(CommonRules, RefuseAHintWithoutAnInstrument) {
  auto& frame = OpenFilled();
  EnterSymbol(frame, "");
  Named(frame, "edtSymbol").SetHint("0005");
  EXPECT_EQ(Submit(frame), TTexts{"code DC1000001"});
}

TEST_F(CommonRules, WantAQuantityOfAtLeastOneWholeShare) {
  struct TRow {
    std::optional<double> quantity;
    bool passes;
  };
  const std::vector<TRow> rows{{std::nullopt, false}, {0, false}, {0.999, false}, {-1, false}, {-100, false},
                               {1e19, false},         {1, true},  {1.999, true},  {800, true}};
  auto& frame = OpenFilled();
  for (const TRow& row : rows) {
    Spin(frame, "edtQty").SetValue(row.quantity);
    const TTexts expected = row.passes ? TTexts{} : TTexts{"code DC1004001"};
    EXPECT_EQ(Submit(frame), expected) << row.quantity.value_or(-999);
    EXPECT_EQ(Sent(), row.passes) << row.quantity.value_or(-999);
  }
}

TEST_F(CommonRules, LetEqualTimesAndMissingTimesPass) {
  struct TRow {
    const char* start;
    const char* end;
    bool passes;
  };
  const std::vector<TRow> rows{{"2024-01-15 09:30:00", "2024-01-15 09:30:00", true},
                               {"2024-01-15 09:30:01", "2024-01-15 09:30:00", false},
                               {"2024-01-16 00:00:00", "2024-01-15 23:59:59", false},
                               {"2024-01-15 09:30:00", "2024-01-15 15:00:00", true},
                               {"2024-01-16", "2024-01-15 23:59:59", false},
                               {"2024-01-15 09:30:01", "", true},
                               {"", "2024-01-15 09:30:00", true},
                               {"", "", true}};
  auto& frame = OpenFilled();
  for (const char* algo : {"TVOL", "STOP", "SNIPER"}) {
    ChooseAlgo(frame, algo);
    for (const TRow& row : rows) {
      Type(frame, "deSTime", row.start);
      Type(frame, "deETime", row.end);
      const TTexts expected = row.passes ? TTexts{} : TTexts{"message Res_DateFalse"};
      EXPECT_EQ(Submit(frame), expected) << algo << " " << row.start << " to " << row.end;
      EXPECT_EQ(Sent(), row.passes) << algo << " " << row.start << " to " << row.end;
    }
  }
}

TEST_F(CommonRules, ComeBeforeThoseOfTheAlgorithm) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "TVOL");
  Spin(frame, "edtVolPct").SetValue(80);
  Type(frame, "deSTime", "2024-01-15 09:30:01");
  Type(frame, "deETime", "2024-01-15 09:30:00");
  Type(frame, "edtQty", "0");
  EXPECT_EQ(Submit(frame), TTexts{"code DC1004001"});
  Type(frame, "edtQty", "1");
  EXPECT_EQ(Submit(frame), TTexts{"message Res_DateFalse"});
  Type(frame, "deETime", "");
  EXPECT_EQ(Submit(frame), TTexts{"message Res_VolumePctFalse"});
}

TEST_F(CommonRules, KeepTheFocusWhereItWas) {
  auto& frame = OpenFilled();
  Type(frame, "edtQty", "0");
  host::TCustomClientOrder order;
  Leave(frame);
  frame.SetFocus(&Named(frame, "edtPrice"));
  EXPECT_FALSE(frame.GetOrder(order));
  EXPECT_EQ(frame.Focused(), &Named(frame, "edtPrice"));
  EXPECT_EQ(Submit(frame), TTexts{"code DC1004001"});
  EXPECT_EQ(frame.Focused(), &Named(frame, "btnSubmit"));
}

TEST_F(CommonRules, RefuseWhatIsTypedBeyondABoundInsteadOfSendingNoLimit) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "TVOL");
  for (const char* typed : {"80.5", "99", "101", "800"}) {
    Type(frame, "edtVolPct", typed);
    EXPECT_EQ(Submit(frame), TTexts{"message Res_VolumePctFalse"}) << typed;
    EXPECT_FALSE(Sent()) << typed;
    EXPECT_EQ(Named(frame, "edtVolPct").Text(), typed) << "the slip stays to be seen";
  }
}

TEST_F(CommonRules, LetWhatIsTypedAtABoundCountAsNotGiven) {
  // A percentage typed at its bounds is emptied on leaving, so that no rule sees it.
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "TVOL");
  for (const char* typed : {"0", "80", "79"}) {
    Type(frame, "edtVolPct", typed);
    EXPECT_EQ(Submit(frame), TTexts{}) << typed;
    EXPECT_EQ(TakenOrder().TextProperty(440), typed == std::string("79")
                                                  ? "TMLO:AlgoId=TVOL,VolPct=79,Closing=0;"
                                                  : "TMLO:AlgoId=TVOL,Closing=0;")
        << typed;
  }
}

}  // namespace
}  // namespace algo::tests
