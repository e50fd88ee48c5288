// Which order action brings up which dialog, and what the trader's answer in it leads to.

#include "tests/views/order_dialogs.h"
#include "views/work/work_order_frame.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;
using host::TOrderAction;

class OrderActions : public TOrderDialogTest {
 protected:
  /// Posts a record made by the test, with that result in it from the start, and returns the result after.
  bool PostRecord(host::TCustomOrder* order, std::int32_t action, bool result) {
    host::TOrderTakeActionRecord record;
    record.order = order;
    record.action = action;
    record.result = result;
    Host().PostAsHost(18011, record);
    return record.result;
  }
};

TEST_F(OrderActions, ConfirmANewOrderAndPassItsAnswerOn) {
  for (const bool accepted : {true, false}) {
    Data().accept = accepted;
    Forget();
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
    const bool result = Confirm(order, [&](forms::TDialogForm& form, TChangeFrame& frame) {
      EXPECT_EQ(form.Caption(), "Res_Conf_Caption");
      EXPECT_TRUE(form.Modal());
      Click(frame, "btnBuy");
      EXPECT_EQ(form.ModalResult(), 1);
    });
    EXPECT_EQ(result, accepted);
    ASSERT_EQ(Seen("take_action").size(), 1U);
    EXPECT_EQ(Seen("take_action").front().number, 1);
    EXPECT_EQ(Seen("take_action").front().more, "1");
  }
}

TEST_F(OrderActions, KeepAChangesAndAChildsAnswerToThemselves) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  EXPECT_FALSE(Change(order, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    EXPECT_EQ(form.Caption(), "Res_Conf_ChangeOrder");
    Click(frame, "btnBuy");
  }));
  TCustomClientOrder parent = ParentOrder();
  EXPECT_FALSE(Work(parent, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    EXPECT_EQ(form.Caption(), "Res_Conf_WorkOrder");
    Pick(frame, "cmbOrderType", "Res_Algo_OrderType_TVOL");
    Type(frame, "edtQty", "400");
    Click(frame, "btnSubmit");
  }));
  const auto taken = Seen("take_action");
  ASSERT_EQ(taken.size(), 2U);
  EXPECT_EQ(taken[0].number, 2);
  EXPECT_EQ(taken[1].number, 42);
  EXPECT_TRUE(taken[0].answer && taken[1].answer);
}

TEST_F(OrderActions, SendNothingForACancelledDialog) {
  TCustomClientOrder parent = ParentOrder();
  parent.SetTextProperty(440, "");
  Provider();
  for (const TOrderAction action : {TOrderAction::New, TOrderAction::Change, TOrderAction::Work}) {
    for (const bool before : {false, true}) {
      EXPECT_EQ(PostRecord(&parent, static_cast<std::int32_t>(action), before), before);
    }
  }
  EXPECT_EQ(Seen("show_modal").size(), 6U);
  EXPECT_TRUE(Seen("take_action").empty());
}

TEST_F(OrderActions, HideTheDialogAndUseItAgain) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  std::vector<forms::TDialogForm*> forms;
  const auto note = [&](forms::TDialogForm& form, TChangeFrame&) { forms.push_back(&form); };
  Confirm(order, note);
  EXPECT_FALSE(forms.front()->Showing());
  Change(order, note);
  Confirm(order, note);
  EXPECT_EQ(forms, (std::vector<forms::TDialogForm*>(3, forms.front())));
  TCustomClientOrder parent = ParentOrder();
  Work(parent, note);
  Work(parent, note);
  EXPECT_NE(forms[3], forms[0]);
  EXPECT_EQ(forms[4], forms[3]);
  EXPECT_EQ(LeftBehind().forms, 2U);
}

TEST_F(OrderActions, FitTheDialogToItsFrame) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
  forms::TSize small;
  Confirm(order, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    small = form.ClientSize();
    EXPECT_EQ(small.width, frame.GetWidth());
    EXPECT_EQ(small.height, frame.GetHeight());
  });
  order = OrderWith("TMLO:AlgoId=PEG;");
  Confirm(order, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    EXPECT_EQ(form.ClientSize().width, frame.GetWidth());
    EXPECT_EQ(form.ClientSize().height, frame.GetHeight());
    EXPECT_GT(form.ClientSize().width, small.width);
  });
}

TEST_F(OrderActions, FollowTheAlgorithmOfAChildInSize) {
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    EXPECT_EQ(form.ClientSize().height, frame.GetHeight());
    Pick(frame, "cmbOrderType", "Res_Algo_OrderType_CLOSE");
    const forms::TSize small = form.ClientSize();
    Pick(frame, "cmbOrderType", "Res_Algo_OrderType_PEG");
    EXPECT_GT(form.ClientSize().width, small.width);
    EXPECT_EQ(form.ClientSize().width, frame.GetWidth());
    EXPECT_EQ(form.ClientSize().height, frame.GetHeight());
  });
}

TEST_F(OrderActions, LeaveOrdersFromElsewhereAlone) {
  Provider();
  for (const char* origin : {"", "algoentry", "AlgoEntry ", "AlgoEntry2", "OrderEntry"}) {
    TCustomClientOrder order = ParentOrder();
    order.SetNamedText("Original", origin);
    for (const std::int32_t action : {1, 2, 42}) EXPECT_TRUE(PostRecord(&order, action, true)) << origin;
  }
  EXPECT_TRUE(Seen("show_modal").empty());
  EXPECT_TRUE(Told().empty());
}

TEST_F(OrderActions, IgnoreRecordsWithoutAClientOrder) {
  class TOtherOrder : public host::TCustomOrder {};
  TOtherOrder other;
  other.SetNamedText("Original", "AlgoEntry");
  other.flags = 0x10000001;
  Provider();
  for (const std::int32_t action : {1, 2, 42}) {
    EXPECT_FALSE(PostRecord(nullptr, action, false));
    EXPECT_FALSE(PostRecord(&other, action, false));
  }
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  host::TOrderCopyRecord copy;
  copy.object = &order;
  Host().PostAsHost(18011, copy);
  EXPECT_TRUE(Seen("show_modal").empty());
  EXPECT_TRUE(Told().empty());
}

TEST_F(OrderActions, IgnoreOtherActionCodes) {
  TCustomClientOrder order = ParentOrder();
  Provider();
  for (const std::int32_t action : {-1, 0, 3, 4, 41, 43}) EXPECT_FALSE(PostRecord(&order, action, false));
  EXPECT_TRUE(Seen("show_modal").empty());
}

TEST_F(OrderActions, CutChildrenFromMarkedParentsAlone) {
  struct TRow {
    std::uint32_t flags;
    bool shown;
  };
  Provider();
  for (const TRow& row :
       {TRow{0, false}, {0x1, false}, {0x20000001, false}, {0x10000000, true}, {0x10000001, true}}) {
    TCustomClientOrder order = ParentOrder();
    order.flags = row.flags;
    Forget();
    Post(&order, TOrderAction::Work);
    EXPECT_EQ(Seen("show_modal").size(), row.shown ? 1U : 0U) << row.flags;
  }
}

TEST_F(OrderActions, TakeALeadingNAloneForChangesBesideTheOtherWindows) {
  struct TRow {
    const char* setting;
    bool modal;
  };
  for (const TRow& row : {TRow{"N", false},
                          {"n", false},
                          {"No", false},
                          {"nothing", false},
                          {"Y", true},
                          {"0", true},
                          {"false", true},
                          {"", true},
                          {" N", true},
                          {"yN", true}}) {
    DropProvider();
    Data().config["USER"]["ChangeOrderShowModel"] = row.setting;
    Data().config["OTHER"]["ChangeOrderShowModel"] = row.modal ? "N" : "Y";
    Provider();
    Forget();
    Shown().clear();
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
    Post(&order, TOrderAction::Change);
    EXPECT_EQ(Seen("show_modal").size(), row.modal ? 1U : 0U) << row.setting;
    EXPECT_EQ(Shown().size(), row.modal ? 0U : 1U) << row.setting;
  }
  Shown().clear();
}

TEST_F(OrderActions, ShowChangesModallyWithoutTheSetting) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  Provider();
  Post(&order, TOrderAction::Change);
  EXPECT_EQ(Seen("show_modal").size(), 1U);
}

}  // namespace
}  // namespace algo::tests
