// The strict layers at a host that refuses, that has nothing to give, and that does other things while it is
// asked.

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <utility>

#include "plugin/host_contract/checks/null_host.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/installed_service.h"
#include "plugin/host_contract/market_data.h"
#include "plugin/host_contract/order_adapter.h"
#include "tests/plugin/host_contract/checks/objection.h"
#include "tests/terminal/host/sample_view.h"

namespace algo::host::checks::tests {
namespace {

/// Does `act`, once, in the middle of each removal.
class TBusyConfig final : public TCustomConfigManager {
 public:
  std::string CurrentSection() override { return {}; }
  std::string ReadText(std::string_view /*section*/, std::string_view /*key*/) override { return {}; }
  std::int32_t ReadInteger(std::string_view /*section*/, std::string_view /*key*/) override { return 0; }
  bool ReadBoolean(std::string_view /*section*/, std::string_view /*key*/) override { return false; }
  void Store(std::string_view /*section*/, std::string_view /*key*/, std::string_view /*value*/,
             bool /*writeThrough*/) override {}
  void AddListener(TListener /*listener*/, TOwner /*owner*/) override {}
  void RemoveListener(TOwner /*owner*/) override {
    if (const auto now = std::exchange(act, {})) now();
  }

  std::function<void()> act;
};

class TPoorOrders final : public TCustomOrderAdapter {
 public:
  bool GetListSetting(std::string_view /*key*/, std::vector<std::string>& /*values*/) override {
    return false;
  }
  TCustomClientOrder* NewClientOrder() override { return nullptr; }
  void FreeClientOrder(TCustomClientOrder* /*order*/) override {}
  std::size_t OrderCount() override { return 0; }
  TCustomOrder* OrderAt(std::size_t /*index*/) override { return nullptr; }
};

class TPoorMarket final : public TCustomSubscribeAdapter {
 public:
  TMarketDataItem* Subscribe(std::string_view /*symbol*/, std::string_view /*dataSet*/,
                             bool /*live*/) override {
    return nullptr;
  }
  void AddListener(TMarketDataItem* /*item*/, TListener /*listener*/, TOwner /*owner*/) override {}
  void Unsubscribe(TMarketDataItem* /*item*/, TOwner /*owner*/) override {}
};

struct TStrictReentryTest : testing::Test {
  TStrictReentryTest() { ThrowViolations(strict); }

  TInstalledService<TBusyConfig> config;
  TInstalledService<TPoorOrders> poorOrders;
  TInstalledService<TPoorMarket> poorMarket;
  TStrictHost strict;
  TCustomConfigManager& settings = TCustomConfigManager::GetInstance();
  int owner = 0;
};

TEST_F(TStrictReentryTest, AnOwnerThatWasNotLetGoMayListenAgainUnderTheSameAddress) {
  settings.AddListener([] {}, &owner);
  config->act = [] { throw std::runtime_error("refused"); };
  EXPECT_THROW(settings.RemoveListener(&owner), std::runtime_error);
  EXPECT_EQ(strict.LeftBehind().configListeners, 1U);
  settings.AddListener([] {}, &owner);
  EXPECT_EQ(Objection([&] { settings.AddListener([] {}, &owner); }),
            "an owner listens to the settings twice");
  settings.RemoveListener(&owner);
  EXPECT_EQ(strict.LeftBehind().configListeners, 0U);
}

TEST_F(TStrictReentryTest, AnOwnerMayListenAgainInTheMiddleOfItsRemoval) {
  settings.AddListener([] {}, &owner);
  config->act = [&] { settings.AddListener([] {}, &owner); };
  settings.RemoveListener(&owner);
  EXPECT_EQ(strict.LeftBehind().configListeners, 1U);
  settings.RemoveListener(&owner);
  EXPECT_EQ(strict.LeftBehind().configListeners, 0U);
}

TEST_F(TStrictReentryTest, WhatTheHostDidNotGiveIsNotOwed) {
  EXPECT_EQ(TCustomOrderAdapter::GetInstance().NewClientOrder(), nullptr);
  EXPECT_EQ(strict.LeftBehind().orders, 0U);
  auto& market = TCustomSubscribeAdapter::GetInstance();
  EXPECT_EQ(market.Subscribe("S", PriceDataSet, true), nullptr);
  EXPECT_NE(Objection([&] {
              market.AddListener(
                  nullptr, [](const void*, const TItemDictionary*) {}, &owner);
            }),
            "");
}

/// Is destroyed while it opens a view.
class TShortLivedProvider final : public host::tests::TSampleProvider {
 public:
  explicit TShortLivedProvider(std::unique_ptr<TIBaseView>& holder) : FHolder(holder) {}
  TInstanceHandle OpenNewInstance() override {
    FHolder.reset();
    return 17;
  }

 private:
  std::unique_ptr<TIBaseView>& FHolder;
};

TEST_F(TStrictReentryTest, AProviderMayBeDestroyedWhileItOpensAView) {
  std::unique_ptr<TIBaseView> provider;
  provider = strict.Watch(std::make_unique<TShortLivedProvider>(provider));
  EXPECT_EQ(provider->OpenNewInstance(), 0);
  EXPECT_EQ(provider, nullptr);
}

}  // namespace
}  // namespace algo::host::checks::tests
