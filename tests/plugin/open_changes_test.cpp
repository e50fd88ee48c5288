// Change forms that show beside the others: one for an order, until the trader closes it.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "plugin/host_contract/view_functions.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;
using host::TOrderAction;

class OpenChangesTest : public TTerminalTest {
 protected:
  OpenChangesTest() {
    Data().config["USER"]["ChangeOrderShowModel"] = "No";
    Data().texts["Res"]["Res_Conf_ChangeOrder"] = "Change!";
  }

  host::TCustomClientOrder& Made(const std::string& key) {
    host::TCustomClientOrder order;
    order.key = key;
    order.account = "A1";
    order.symbol = "0005";
    order.quantity = 800;
    order.SetTextProperty(host::AlgoTextProperty, "TMLO:AlgoId=TVOL,VolPct=20;");
    order.SetNamedText("Original", "AlgoEntry");
    return Store(order);
  }

  /// Asks for a change of the order; the form that shows for it is the last of Forms().
  void Change(host::TCustomClientOrder& order) { Post(&order, TOrderAction::Change); }

  void OpenBoth(host::TCustomClientOrder& first, host::TCustomClientOrder& second) {
    Provider();
    Change(first);
    Change(second);
    ASSERT_EQ(Forms().size(), 2U);
  }

  const std::vector<forms::TDialogForm*>& Forms() const { return FForms; }

 private:
  void FormShown(forms::TDialogForm& form) override { FForms.push_back(&form); }
  void FormBroughtToFront(forms::TDialogForm& form) override { FToFront.push_back(&form); }
  void FormClosed(forms::TDialogForm& form) override { std::erase(FForms, &form); }

  std::vector<forms::TDialogForm*> FForms;

 protected:
  std::vector<forms::TDialogForm*> FToFront;
};

TEST_F(OpenChangesTest, AChangeOpensAFormOnTopThatFitsItsFrame) {
  Provider();
  Change(Made("K1"));
  ASSERT_EQ(Forms().size(), 1U);
  const auto& form = *Forms()[0];
  const auto& frame = dynamic_cast<host::TViewFrame&>(*form.Frame());
  EXPECT_EQ(form.Caption(), "Change!");
  EXPECT_TRUE(form.StaysOnTop());
  EXPECT_TRUE(form.Showing());
  EXPECT_FALSE(form.Modal());
  EXPECT_EQ(frame.ClassName(), "TAlgoOrderChangeFrame");
  EXPECT_EQ(form.ClientSize(),
            (forms::TSize{static_cast<double>(frame.GetWidth()), static_cast<double>(frame.GetHeight())}));
}

TEST_F(OpenChangesTest, ASecondRequestForAnOrderBringsItsFormToTheFront) {
  auto& first = Made("K1");
  auto& second = Made("K2");
  OpenBoth(first, second);
  EXPECT_EQ(LeftBehind().forms, 2U);
  Change(first);
  EXPECT_EQ(Forms().size(), 2U);
  EXPECT_EQ(FToFront, std::vector<forms::TDialogForm*>{Forms()[0]});
  Change(second);
  EXPECT_EQ(FToFront.back(), Forms()[1]);
  EXPECT_EQ(LeftBehind().forms, 2U);
}

TEST_F(OpenChangesTest, AFormThatWasClosedIsFreedAndTheNextRequestMakesANewOne) {
  Provider();
  auto& order = Made("K1");
  const auto untouched = LeftBehind();
  for (int round = 0; round < 3; ++round) {
    Change(order);
    ASSERT_EQ(Forms().size(), 1U);
    Forms()[0]->Close();
    EXPECT_TRUE(Forms().empty());
    EXPECT_EQ(LeftBehind(), untouched) << round;
  }
  EXPECT_TRUE(FToFront.empty());
}

TEST_F(OpenChangesTest, ClosingOneFormLeavesTheOthersListed) {
  auto& first = Made("K1");
  auto& second = Made("K2");
  OpenBoth(first, second);
  Forms()[0]->Close();
  ASSERT_EQ(Forms().size(), 1U);
  Change(second);
  EXPECT_EQ(Forms().size(), 1U);
  EXPECT_EQ(FToFront.size(), 1U);
  Change(first);
  EXPECT_EQ(Forms().size(), 2U);
  EXPECT_EQ(FToFront.size(), 1U);
}

TEST_F(OpenChangesTest, AChangeOfLanguageReachesEveryOpenFormAndItsCaption) {
  Provider();
  const auto instance = Provider().OpenNewInstance();
  Change(Made("K1"));
  Change(Made("K2"));
  Data().texts["Res"] = {{"Res_Conf_ChangeOrder", "Ändern"}, {"Res_OrderQty", "Menge"}};
  EXPECT_TRUE(Provider().SetLanguage(instance, 1));
  for (auto* form : Forms()) {
    EXPECT_EQ(form->Caption(), "Ändern");
    EXPECT_EQ(Element(*form->Frame(), "liQuantity").Caption(), "Menge");
  }
  EXPECT_EQ(Element(*Provider().FindView(instance), "liQuantity").Caption(), "Menge");
}

TEST_F(OpenChangesTest, AProviderThatGoesClosesItsFormsAndGivesTheirOrdersBack) {
  Provider();
  Change(Made("K1"));
  Change(Made("K2"));
  EXPECT_EQ(LeftBehind().forms, 2U);
  EXPECT_EQ(LeftBehind().orders, 2U);
  DestroyProvider();
  EXPECT_TRUE(Forms().empty());
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind());
}

TEST_F(OpenChangesTest, AFormThatTheHostCannotMakeIsReportedOnceAndLeavesNothingBehind) {
  Provider();
  auto& order = Made("K1");
  const auto untouched = LeftBehind();
  Data().faults.Set({"form.make"});
  Change(order);
  EXPECT_EQ(Told(), TTexts{"The host fails at form.make"});
  EXPECT_EQ(LeftBehind(), untouched);
  Data().faults.Set({});
  Change(order);
  EXPECT_EQ(Forms().size(), 1U);
}

TEST_F(OpenChangesTest, AnOrderThatCannotBeShownOpensNoForm) {
  Provider();
  auto& order = Made("K1");
  order.SetTextProperty(host::AlgoTextProperty, "TMLO:AlgoId=TVOL,STime=never;");
  const auto untouched = LeftBehind();
  Change(order);
  EXPECT_TRUE(Forms().empty());
  EXPECT_EQ(Told().size(), 1U);
  EXPECT_EQ(LeftBehind(), untouched);
  order.SetTextProperty(host::AlgoTextProperty, "TMLO:AlgoId=TVOL;");
  Change(order);
  EXPECT_EQ(Forms().size(), 1U);
}

}  // namespace
}  // namespace algo::tests
