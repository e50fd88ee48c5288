// The order actions: which orders the provider answers, in which form, and what becomes of the answer.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "plugin/host_contract/orders.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;
using host::TOrderAction;

class OrderActionTest : public TTerminalTest {
 protected:
  /// An order as this module makes them, stored in the host.
  host::TCustomClientOrder& Made(const std::string& key, std::uint32_t flags = 0) {
    host::TCustomClientOrder order;
    order.key = key;
    order.orderNo = key;
    order.account = "A1";
    order.symbol = "0005";
    order.exchange = "HK";
    order.quantity = 800;
    order.price = 60.5;
    order.flags = flags;
    order.SetTextProperty(host::AlgoTextProperty, "TMLO:AlgoId=TVOL,VolPct=20;");
    order.SetNamedText("Original", "AlgoEntry");
    return Store(order);
  }

  /// Posts the action with a result that was there before; gives the result afterwards.
  bool PostWith(host::TCustomOrder* order, std::int32_t action, bool before) {
    host::TOrderTakeActionRecord record;
    record.order = order;
    record.action = action;
    record.result = before;
    Host().PostAsHost(host::OrderActionChannel, record);
    return record.result;
  }

  /// The trader says OK in the next `count` modal dialogs.
  void SayOk(std::size_t count) {
    InDialogs({count, [](forms::TDialogForm& form) { form.SetModalResult(forms::ModalOk); }});
  }

  void ChangeNonModally() { Data().config["USER"]["ChangeOrderShowModel"] = "N"; }

  TTexts Captions(std::string_view event) const {
    TTexts captions;
    for (const TSeen& seen : Seen(event)) captions.push_back(seen.text);
    return captions;
  }

  void ExpectNothingHappened(std::string_view when) {
    for (const std::string_view event : {"show_modal", "show", "take_action", "message", "to_front"}) {
      EXPECT_TRUE(Seen(event).empty()) << event << " " << when;
    }
  }
};

constexpr std::uint32_t WorkParent = 0x10000000;

TEST_F(OrderActionTest, EachActionHasItsFormItsCaptionAndItsHostAction) {
  struct TRow {
    std::int32_t action;
    std::string caption;
  };
  const std::array<TRow, 3> rows{{{1, "Confirm!"}, {2, "Change!"}, {42, "Work!"}}};
  Data().texts["Res"] = {
      {"Res_Conf_Caption", "Confirm!"}, {"Res_Conf_ChangeOrder", "Change!"}, {"Res_Conf_WorkOrder", "Work!"}};
  Provider();
  auto& order = Made("K1", WorkParent);
  for (const TRow& row : rows) {
    Forget();
    SayOk(1);
    PostWith(&order, row.action, false);
    EXPECT_EQ(Captions("show_modal"), TTexts{row.caption});
    const auto taken = Seen("take_action");
    ASSERT_EQ(taken.size(), 1U) << row.action;
    EXPECT_EQ(taken[0].number, row.action);
    EXPECT_EQ(taken[0].more, "1");
    EXPECT_EQ(taken[0].order.account, "A1");
  }
}

TEST_F(OrderActionTest, OnlyTheAnswerToANewOrderReachesTheRecord) {
  struct TRow {
    std::int32_t action;
    bool ok;
    bool accept;
    bool before;
    bool after;
  };
  const std::array<TRow, 14> rows{{
      {1, true, true, false, true},
      {1, true, false, true, false},
      {1, true, true, true, true},
      {1, true, false, false, false},
      {1, false, true, false, false},
      {1, false, true, true, true},
      {2, true, true, false, false},
      {2, true, false, true, true},
      {2, false, true, false, false},
      {2, false, true, true, true},
      {42, true, true, false, false},
      {42, true, false, true, true},
      {42, false, true, false, false},
      {42, false, true, true, true},
  }};
  Provider();
  auto& order = Made("K1", WorkParent);
  for (const TRow& row : rows) {
    Forget();
    Data().accept = row.accept;
    SayOk(row.ok ? 1 : 0);
    EXPECT_EQ(PostWith(&order, row.action, row.before), row.after)
        << row.action << row.ok << row.accept << row.before;
    EXPECT_EQ(Seen("take_action").size(), row.ok ? 1U : 0U) << row.action;
    EXPECT_EQ(Seen("show_modal").size(), 1U) << row.action;
  }
}

TEST_F(OrderActionTest, OtherActionCodesAreLeftAlone) {
  Provider();
  auto& order = Made("K1", WorkParent);
  for (const std::int32_t action : {0, -1, 3, 4, 10, 41, 43, 2147483647}) {
    EXPECT_FALSE(PostWith(&order, action, false));
    EXPECT_TRUE(PostWith(&order, action, true));
    ExpectNothingHappened(std::to_string(action));
  }
}

TEST_F(OrderActionTest, OrdersOfAnotherOriginAreLeftAlone) {
  Provider();
  auto& order = Made("K1", WorkParent);
  for (const std::string origin : {"", "algoentry", "ALGOENTRY", "AlgoEntry ", " AlgoEntry", "Algo", "X"}) {
    order.SetNamedText("Original", origin);
    for (const std::int32_t action : {1, 2, 42}) {
      EXPECT_TRUE(PostWith(&order, action, true));
      ExpectNothingHappened(origin);
    }
  }
}

class TOtherOrder : public host::TCustomOrder {};

TEST_F(OrderActionTest, ARecordWithoutAClientOrderIsLeftAlone) {
  Provider();
  TOtherOrder other;
  other.SetNamedText("Original", "AlgoEntry");
  for (const std::int32_t action : {1, 2, 42}) {
    EXPECT_FALSE(PostWith(nullptr, action, false));
    EXPECT_FALSE(PostWith(&other, action, false));
    ExpectNothingHappened("without an order");
  }
  host::TOrderCopyRecord copy;
  Host().PostAsHost(host::OrderActionChannel, copy);
  ExpectNothingHappened("with another record");
}

TEST_F(OrderActionTest, AWorkOrderNeedsTheParentMark) {
  Provider();
  for (const std::uint32_t flags : {0x00000000U, 0x00000001U, 0x20000000U, 0x20000001U, 0xEFFFFFFFU}) {
    auto& order = Made("K" + std::to_string(flags), flags);
    PostWith(&order, 42, false);
    ExpectNothingHappened(std::to_string(flags));
  }
  PostWith(&Made("P1", 0x10000000U), 42, false);
  EXPECT_EQ(Seen("show_modal").size(), 1U);
}

TEST_F(OrderActionTest, TheModalFormsAreMadeOnFirstUseAndUsedAgain) {
  Provider();
  auto& order = Made("K1", WorkParent);
  std::vector<forms::TDialogForm*> shown;
  struct TStep {
    std::int32_t action;
    std::size_t forms;  ///< how many there are afterwards
  };
  const std::array<TStep, 6> steps{{{1, 1}, {2, 1}, {42, 2}, {1, 2}, {42, 2}, {2, 2}}};
  EXPECT_EQ(LeftBehind().forms, 0U);
  for (const TStep& step : steps) {
    InDialogs({[&](forms::TDialogForm& form) {
      shown.push_back(&form);
      const auto& frame = dynamic_cast<host::TViewFrame&>(*form.Frame());
      EXPECT_TRUE(form.Modal());
      EXPECT_EQ(form.ClientSize(), (forms::TSize{static_cast<double>(frame.GetWidth()),
                                                 static_cast<double>(frame.GetHeight())}));
      EXPECT_EQ(frame.ClassName(), step.action == 42 ? "TAlgoWorkOrderFrame" : "TAlgoOrderChangeFrame");
      EXPECT_TRUE(Provider().ContainView(host::HandleOf(frame)));
    }});
    PostWith(&order, step.action, false);
    EXPECT_EQ(LeftBehind().forms, step.forms) << step.action;
    EXPECT_FALSE(shown.back()->Showing());
  }
  ASSERT_EQ(shown.size(), 6U);
  for (const std::size_t again : {1U, 3U, 5U}) EXPECT_EQ(shown[again], shown[0]);
  EXPECT_EQ(shown[4], shown[2]);
  EXPECT_NE(shown[2], shown[0]);
  DestroyProvider();
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind());
}

TEST_F(OrderActionTest, OnlyALeadingNMakesChangesNonModal) {
  struct TRow {
    std::string setting;
    bool modal;
  };
  const std::array<TRow, 12> rows{{{"N", false},
                                   {"n", false},
                                   {"No", false},
                                   {"never", false},
                                   {"Y", true},
                                   {"0", true},
                                   {"false", true},
                                   {"", true},
                                   {" N", true},
                                   {"YN", true},
                                   {"-n", true},
                                   {"True", true}}};
  auto& order = Made("K1");
  for (const TRow& row : rows) {
    Data().config["USER"]["ChangeOrderShowModel"] = row.setting;
    Forget();
    Provider();
    PostWith(&order, 2, false);
    EXPECT_EQ(Seen("show_modal").size(), row.modal ? 1U : 0U) << row.setting;
    EXPECT_EQ(Seen("show").size(), row.modal ? 0U : 1U) << row.setting;
    DestroyProvider();
    EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind()) << row.setting;
  }
  Data().config.clear();
  Forget();
  Provider();
  PostWith(&order, 2, false);
  EXPECT_EQ(Seen("show_modal").size(), 1U) << "without the setting";
}

TEST_F(OrderActionTest, TheSettingIsReadInTheUsersSectionWhenTheProviderIsMade) {
  Data().section = "DESK";
  Data().config["USER"]["ChangeOrderShowModel"] = "N";
  Provider();
  Data().config["DESK"]["ChangeOrderShowModel"] = "N";
  Host().NotifyConfigChanged();
  PostWith(&Made("K1"), 2, false);
  EXPECT_EQ(Seen("show_modal").size(), 1U);
}

TEST_F(OrderActionTest, NewOrdersAreConfirmedModallyWhateverTheSettingSays) {
  ChangeNonModally();
  Provider();
  PostWith(&Made("K1"), 1, false);
  EXPECT_EQ(Seen("show_modal").size(), 1U);
  EXPECT_TRUE(Seen("show").empty());
}

TEST_F(OrderActionTest, ALaterActionFindsTheProviderGone) {
  auto& order = Made("K1");
  Provider();
  DestroyProvider();
  EXPECT_TRUE(PostWith(&order, 1, true));
  ExpectNothingHappened("after the provider went");
}

}  // namespace
}  // namespace algo::tests
