#include "plugin/host_contract/checks/null_host.h"

#include <gtest/gtest.h>

#include "plugin/host_contract/account_adapter.h"
#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/market_data.h"
#include "plugin/host_contract/message_box.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "plugin/host_contract/user_app_profile.h"
#include "plugin/host_contract/view_functions.h"
#include "tests/terminal/host/sample_view.h"

namespace algo::host::checks::tests {
namespace {

TEST(NullHost, OffersEveryServiceWhileItLives) {
  {
    const TNullHost host;
    EXPECT_NO_THROW(TCustomConfigManager::GetInstance());
    EXPECT_NO_THROW(TCustomLanguageManager::GetInstance());
    EXPECT_NO_THROW(TCustomUserAppProfile::GetInstance());
    EXPECT_NO_THROW(TCustomOrderAdapter::GetInstance());
    EXPECT_NO_THROW(TCustomOrderActionManager::GetInstance());
    EXPECT_NO_THROW(TCustomGlobalChannelManager::GetInstance());
    EXPECT_NO_THROW(TCustomMarketAdapter::GetInstance());
    EXPECT_NO_THROW(TCustomSubscribeAdapter::GetInstance());
    EXPECT_NO_THROW(TCustomLookAndFeelService::GetInstance());
    EXPECT_NO_THROW(TCustomAccountAdapter::GetInstance());
    EXPECT_NO_THROW(TCustomMessageBoxCtrl::GetInstance());
    EXPECT_NO_THROW(TEditorManager::GetInstance());
    EXPECT_NO_THROW(TCustomViewService::GetInstance());
  }
  EXPECT_THROW(TCustomConfigManager::GetInstance(), EServiceMissing);
  EXPECT_THROW(TCustomViewService::GetInstance(), EServiceMissing);
}

TEST(NullHost, PutsBackWhatWasInstalledBefore) {
  const TNullHost outer;
  auto& before = TCustomConfigManager::GetInstance();
  {
    const TNullHost inner;
    EXPECT_NE(&TCustomConfigManager::GetInstance(), &before);
  }
  EXPECT_EQ(&TCustomConfigManager::GetInstance(), &before);
}

TEST(NullHost, AMissingServiceIsNamed) {
  try {
    TCustomAccountAdapter::GetInstance();
    FAIL();
  } catch (const EServiceMissing& error) {
    EXPECT_EQ(std::string(error.what()), "The host offers no TCustomAccountAdapter");
  }
}

TEST(NullHost, GrantsKnowsAndAcceptsNothing) {
  const TNullHost host;
  EXPECT_FALSE(TCustomUserAppProfile::GetInstance().HasRight("AlgoTabOrderEntry"));
  EXPECT_FALSE(TCustomAccountAdapter::GetInstance().IsKnown("A"));
  EXPECT_EQ(TCustomMarketAdapter::GetInstance().FindInstrument("S"), nullptr);
  EXPECT_EQ(TCustomConfigManager::GetInstance().ReadText("USER", "ClearOrd"), "");
  std::vector<std::string> values{"left over"};
  EXPECT_FALSE(TCustomOrderAdapter::GetInstance().GetListSetting("ALGO/Exchange", values));
  EXPECT_TRUE(values.empty());
  const TOwnedOrder order = MakeClientOrder();
  EXPECT_FALSE(
      TCustomOrderActionManager::GetInstance().TakeAction(nullptr, order.get(), TOrderAction::New, 1));
}

TEST(NullHost, ResourceTextsAreTheirIdsAndNamesAreEmpty) {
  const TNullHost host;
  auto& language = TCustomLanguageManager::GetInstance();
  EXPECT_EQ(language.GetText("Res", "Res_Order", 3, 0, 0), "Res_Order");
  EXPECT_EQ(language.GetText("Exchange", "HK", 3, 0, 0), "");
}

TEST(NullHost, EachSymbolHasAnEmptyItem) {
  const TNullHost host;
  const TMarketDataItem* item = TCustomSubscribeAdapter::GetInstance().Subscribe("S", PriceDataSet, true);
  EXPECT_EQ(item->Symbol(), "S");
  EXPECT_EQ(item->State(), 0);
  EXPECT_FALSE(item->HasField(PriceField));
  EXPECT_EQ(item->FieldNumber(PriceField), 0);
  EXPECT_EQ(item->FieldText(PriceField), "");
}

TEST(NullHost, AModalFormIsCancelled) {
  const TNullHost host;
  host::tests::TSampleProvider provider;
  EXPECT_EQ(GetDialogForm(provider)->ShowModal(), 2);
}

TEST(NullHost, AFormThatShowsIsHeldUntilItHides) {
  host::tests::TSampleProvider provider;
  std::weak_ptr<forms::TDialogForm> hidden;
  std::weak_ptr<forms::TDialogForm> showing;
  {
    const TNullHost host;
    hidden = [&] {
      const auto form = GetDialogForm(provider);
      form->Show();
      return form;
    }();
    ASSERT_FALSE(hidden.expired());
    hidden.lock()->Hide();
    EXPECT_TRUE(hidden.expired());
    const auto form = GetDialogForm(provider);
    form->Show();
    showing = form;
  }
  EXPECT_TRUE(showing.expired());
}

}  // namespace
}  // namespace algo::host::checks::tests
