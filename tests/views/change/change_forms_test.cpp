// Changes in forms that show beside the other windows: each works on a copy of its order, sends the change
// itself and closes.

#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;
using host::TOrderAction;

class ChangeForms : public TOrderDialogTest {};

TEST_F(ChangeForms, SendTheirCopyAndClose) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL,VolPct=20;");
  const std::string before = Facts(order);
  OpenChange(order);
  TChangeFrame& frame = FrameIn(*Shown().front());
  EXPECT_EQ(LeftBehind().orders, 1U);
  Type(frame, "edtQty", "1200");
  Type(frame, "edtVolPct", "30");
  Shown().clear();
  Click(frame, "btnBuy");
  const TCustomClientOrder taken = TakenOrder();
  EXPECT_EQ(Seen("take_action").front().number, 2);
  EXPECT_EQ(Seen("take_action").front().more, "1");
  EXPECT_EQ(taken.key, "K1");
  EXPECT_EQ(taken.quantity, 1200);
  EXPECT_EQ(taken.TextProperty(440), "TMLO:AlgoId=TVOL,VolPct=30;");
  EXPECT_EQ(Facts(order), before);
  EXPECT_EQ(Closed(), 1);
  EXPECT_EQ(LeftBehind().orders, 0U);
  EXPECT_EQ(LeftBehind().forms, 0U);
}

TEST_F(ChangeForms, CloseWhateverTheHostAnswers) {
  Data().accept = false;
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  OpenChange(order);
  TChangeFrame& frame = FrameIn(*Shown().front());
  Shown().clear();
  Click(frame, "btnBuy");
  EXPECT_FALSE(Seen("take_action").front().answer);
  EXPECT_EQ(Closed(), 1);
  EXPECT_EQ(LeftBehind().orders, 0U);
}

TEST_F(ChangeForms, StayOpenWhileARuleRefuses) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  const auto form = OpenChange(order);
  Spin(FrameIn(*form), "edtVolPct").SetValue(80);
  Click(FrameIn(*form), "btnBuy");
  EXPECT_EQ(Told(), std::vector<std::string>{"Res_VolumePctFalse"});
  EXPECT_TRUE(form->Showing());
  EXPECT_EQ(LeftBehind().orders, 1U);
}

TEST_F(ChangeForms, ComeToTheFrontForTheSameOrderAndOpenAnewAfterClosing) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  const auto first = OpenChange(order);
  Type(FrameIn(*first), "edtQty", "77");
  TCustomClientOrder again = OrderWith("TMLO:AlgoId=VWAP;");
  Post(&again, TOrderAction::Change);
  EXPECT_EQ(Shown().size(), 1U);
  EXPECT_EQ(BroughtToFront(), 1);
  EXPECT_EQ(Named(FrameIn(*first), "edtQty").Text(), "77");
  EXPECT_EQ(LeftBehind().orders, 1U);
  first->Close();
  EXPECT_EQ(Closed(), 1);
  EXPECT_EQ(LeftBehind().orders, 0U);
  Post(&again, TOrderAction::Change);
  ASSERT_EQ(Shown().size(), 2U);
  EXPECT_EQ(BroughtToFront(), 1);
  EXPECT_EQ(Combo(FrameIn(*Shown().back()), "cmbOrderType").Text(), "Res_Algo_OrderType_VWAP");
}

TEST_F(ChangeForms, OwnACopyEach) {
  TCustomClientOrder first = OrderWith("TMLO:AlgoId=TVOL,VolPct=20;", "K1");
  TCustomClientOrder second = OrderWith("TMLO:AlgoId=STOP,StopLossPx=9.8;", "K2");
  TCustomClientOrder third = OrderWith("TMLO:AlgoId=CLOSE;", "K3");
  OpenChange(first);
  Post(&second, TOrderAction::Change);
  Post(&third, TOrderAction::Change);
  ASSERT_EQ(Shown().size(), 3U);
  EXPECT_EQ(LeftBehind().orders, 3U);
  Type(FrameIn(*Shown()[0]), "edtQty", "100");
  Type(FrameIn(*Shown()[1]), "edtQty", "200");
  Type(FrameIn(*Shown()[2]), "edtQty", "300");
  Shown()[1]->Close();
  EXPECT_EQ(LeftBehind().orders, 2U);
  Click(FrameIn(*Shown()[2]), "btnBuy");
  Click(FrameIn(*Shown()[0]), "btnBuy");
  const auto taken = Seen("take_action");
  ASSERT_EQ(taken.size(), 2U);
  EXPECT_EQ(taken[0].order.key, "K3");
  EXPECT_EQ(taken[0].order.quantity, 300);
  EXPECT_EQ(taken[0].order.TextProperty(440), "TMLO:AlgoId=CLOSE;");
  EXPECT_EQ(taken[1].order.key, "K1");
  EXPECT_EQ(taken[1].order.quantity, 100);
  EXPECT_EQ(taken[1].order.TextProperty(440), "TMLO:AlgoId=TVOL,VolPct=20;");
  EXPECT_EQ(LeftBehind().orders, 0U);
  Shown().clear();
  EXPECT_EQ(LeftBehind().forms, 0U);
}

TEST_F(ChangeForms, KeepTheParentsTextInTheHostsOrder) {
  TCustomClientOrder parent = OrderWith("TMLO:AlgoId=VWAP;");
  parent.flags = 0x10000001;
  const auto form = OpenChange(parent);
  EXPECT_FALSE(Element(FrameIn(*form), "lgAlgo").Visible());
  Click(FrameIn(*form), "btnBuy");
  EXPECT_EQ(parent.TextProperty(440), "TMLO:AlgoId=VWAP;");
  EXPECT_EQ(TakenOrder().TextProperty(440), "");
}

TEST_F(ChangeForms, TakeNoInputOnceClosed) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  const auto form = OpenChange(order);
  form->Close();
  Forget();
  FrameIn(*form).InputClick(Named(FrameIn(*form), "btnBuy"));
  EXPECT_TRUE(Seen("take_action").empty());
  EXPECT_TRUE(Told().empty());
  form->Close();
  EXPECT_EQ(Closed(), 1);
}

TEST_F(ChangeForms, AreCaptionedAnewInAnotherLanguage) {
  TCustomClientOrder first = OrderWith("TMLO:AlgoId=TVOL,VolPct=20,Style=5;", "K1");
  TCustomClientOrder second = OrderWith("TMLO:AlgoId=XYZ;", "K2");
  OpenChange(first);
  Post(&second, TOrderAction::Change);
  auto& entry = Open();
  Data().texts["Res"] = {{"Res_Conf_ChangeOrder", "Order ändern"}, {"Res_Algo_VolPct", "Volumen"}};
  EXPECT_TRUE(Provider().SetLanguage(host::HandleOf(entry), 2));
  EXPECT_EQ(Element(entry, "liVolPct").Caption(), "Volumen");
  for (const auto& form : Shown()) {
    EXPECT_EQ(form->Caption(), "Order ändern");
    EXPECT_EQ(Element(FrameIn(*form), "liVolPct").Caption(), "Volumen");
  }
  TChangeFrame& frame = FrameIn(*Shown()[0]);
  EXPECT_EQ(Combo(frame, "cmbOrderType").Text(), "Res_Algo_OrderType_TVOL");
  EXPECT_EQ(Spin(frame, "edtVolPct").Value(), 20.0);
  EXPECT_EQ(Combo(FrameIn(*Shown()[1]), "cmbOrderType").Index(), -1);
  EXPECT_FALSE(Named(frame, "cmbMType").Enabled());
}

TEST_F(ChangeForms, AreTheOnlyOnesToFollowALanguageSwitchOfAnUnknownView) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  Data().config["USER"]["ChangeOrderShowModel"] = "N";
  std::shared_ptr<forms::TDialogForm> dialog;
  Confirm(order, [&](forms::TDialogForm& form, TChangeFrame&) { dialog = form.shared_from_this(); });
  const auto form = OpenChange(order);
  Data().texts["Res"] = {{"Res_Conf_ChangeOrder", "Change"}, {"Res_Conf_Caption", "Confirm"}};
  EXPECT_TRUE(Provider().SetLanguage(0, 2));
  EXPECT_EQ(form->Caption(), "Change");
  EXPECT_EQ(dialog->Caption(), "Res_Conf_Caption");
}

TEST_F(ChangeForms, NeedTheSettingOfAFrameToBeModal) {
  const auto frame = std::make_shared<TChangeFrame>();
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  frame->ChangeOrder(&order);
  EXPECT_EQ(LeftBehind().orders, 1U);
  frame->ReleaseOrder();
  EXPECT_EQ(LeftBehind().orders, 0U);
  frame->SetShownModally(true);
  frame->ChangeOrder(&order);
  EXPECT_EQ(LeftBehind().orders, 0U);
  frame->Detach();
}

}  // namespace
}  // namespace algo::tests
