// Each way to listen to the host and to register an editor, and its end.

#include "plugin/host_contract/listen.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "plugin/host_contract/checks/null_host.h"
#include "plugin/host_contract/checks/strict_host.h"
#include "plugin/host_contract/installed_service.h"
#include "tests/terminal/host/sample_view.h"

namespace algo::host::tests {
namespace {

using checks::TLeftBehind;

class ListenTest : public testing::Test {
 protected:
  ListenTest() {
    strict.OnViolation([](const std::string& what) { throw std::logic_error(what); });
  }

  checks::TNullHost null;
  checks::TStrictHost strict;
  TSampleView view;
  forms::TTextEdit& edit = view.Add<forms::TTextEdit>("edtAccount");
  forms::TSpinEdit& spin = view.Add<forms::TSpinEdit>("edtPrice");
};

TEST_F(ListenTest, EachRegistrationEndsWithItsObject) {
  struct TRow {
    std::string what;
    std::function<TRegistration()> make;
    TLeftBehind meanwhile;
  };
  const auto onPost = [](const void*, TChannelRecord*) {};
  const auto onItem = [](const void*, const TItemDictionary*) {};
  const auto onSpread = [](const void*, const TSpreadDictionary*) {};
  const auto item = [] { return TCustomSubscribeAdapter::GetInstance().Subscribe("S", PriceDataSet, true); };
  const std::vector<TRow> rows{
      {"channel", [&] { return ListenToChannel(18011, onPost, this); }, {.channels = 1}},
      {"settings", [&] { return ListenToSettings([] {}, this); }, {.configListeners = 1}},
      {"skins", [&] { return ListenToSkins([](std::string_view) {}, this); }, {.skinListeners = 1}},
      {"spreads", [&] { return ListenToSpreads(onSpread, this); }, {.marketListeners = 1}},
      {"item", [&] { return ListenToItem(item(), onItem, this); }, {.subscriptions = 1}},
      {"account", [&] { return RegisterAccountEditor(edit, "G", 0, 1); }, {.editors = 1}},
      {"symbol", [&] { return RegisterSymbolEditor(edit, "G", 0, 1); }, {.editors = 1}},
      {"price", [&] { return RegisterPriceEditor(spin, "G"); }, {.editors = 1}},
      {"quantity", [&] { return RegisterQuantityEditor(spin, "G"); }, {.editors = 1}},
  };
  for (const TRow& row : rows) {
    SCOPED_TRACE(row.what);
    {
      const TRegistration registration = row.make();
      EXPECT_TRUE(registration.Active());
      EXPECT_EQ(strict.LeftBehind(), row.meanwhile);
    }
    EXPECT_EQ(strict.LeftBehind(), TLeftBehind());
  }
}

TEST_F(ListenTest, WhatTheHostRefusesIsNotRegistered) {
  EXPECT_THROW(static_cast<void>(ListenToSettings({}, this)), std::logic_error);
  EXPECT_THROW(static_cast<void>(ListenToSettings([] {}, nullptr)), std::logic_error);
  EXPECT_THROW(static_cast<void>(RegisterAccountEditor(edit, "G", 7, 1)), std::logic_error);
  const TRegistration first = ListenToSettings([] {}, this);
  EXPECT_THROW(static_cast<void>(ListenToSettings([] {}, this)), std::logic_error);
  EXPECT_EQ(strict.LeftBehind(), TLeftBehind{.configListeners = 1});
}

/// Calls its one listener when asked to, whether it was taken back or not.
class TStubbornSkins final : public TCustomLookAndFeelService {
 public:
  forms::TColor ColorOf(std::int32_t /*index*/, std::int32_t /*variant*/) override { return 0; }
  void AddListener(TListener listener, TOwner owner) override {
    kept = std::move(listener);
    keptFor = owner;
  }
  void RemoveListener(TOwner owner) override {
    removedFor = owner;
    if (meanwhile) meanwhile();
    if (fails) throw std::runtime_error("The skins fail");
  }

  TListener kept;
  TOwner keptFor = nullptr;
  TOwner removedFor = nullptr;
  std::function<void()> meanwhile;
  bool fails = false;
};

class StubbornHostTest : public testing::Test {
 protected:
  TRegistration Listen() {
    return ListenToSkins([this](std::string_view skin) { received.emplace_back(skin); }, this);
  }

  TInstalledService<TStubbornSkins> skins;
  std::vector<std::string> received;
};

TEST_F(StubbornHostTest, AHandlerIsCalledWithWhatTheHostSendsUntilItIsTakenBack) {
  TRegistration registration = Listen();
  skins->kept("Dark");
  registration.Release();
  skins->kept("Light");
  EXPECT_EQ(received, std::vector<std::string>{"Dark"});
  EXPECT_EQ(skins->keptFor, this);
  EXPECT_EQ(skins->removedFor, this);
}

TEST_F(StubbornHostTest, AHandlerIsNotCalledAnyMoreAlsoWhenTheHostFailsAtTakingItBack) {
  skins->fails = true;
  TRegistration registration = Listen();
  EXPECT_THROW(registration.Release(), std::runtime_error);
  skins->kept("Light");
  EXPECT_TRUE(received.empty());
}

TEST_F(StubbornHostTest, AHandlerIsNotCalledWhileItIsTakenBack) {
  skins->meanwhile = [this] { skins->kept("Light"); };
  TRegistration registration = Listen();
  registration.Release();
  EXPECT_TRUE(received.empty());
}

TEST_F(StubbornHostTest, AHandlerIsCalledAsLongAsTheObjectToWhichItsRegistrationWasHandedOnLives) {
  TRegistration first = Listen();
  const TRegistration second = std::move(first);
  skins->kept("Dark");
  EXPECT_EQ(received, std::vector<std::string>{"Dark"});
}

TEST_F(StubbornHostTest, AnOwnerThatIsGoneIsNotCalledByAHostThatFailedAtTakingItsHandlerBack) {
  struct TOwnerOfOne {
    explicit TOwnerOfOne(std::vector<std::string>& log)
        : registration(ListenToSkins([&log](std::string_view skin) { log.emplace_back(skin); }, &log)) {}
    TRegistration registration;
  };
  skins->fails = true;
  std::optional<TOwnerOfOne> owner(std::in_place, received);
  skins->kept("Dark");
  owner.reset();
  skins->kept("Light");
  EXPECT_EQ(received, std::vector<std::string>{"Dark"});
}

TEST(Listen, ARegistrationThatOutlivesTheHostSaysSoOnceAndIsEmpty) {
  std::optional<TInstalledService<TStubbornSkins>> skins(std::in_place);
  TRegistration released = ListenToSkins([](std::string_view) {}, &skins);
  TRegistration kept = ListenToSkins([](std::string_view) {}, &released);
  skins.reset();
  EXPECT_THROW(released.Release(), EServiceMissing);
  EXPECT_NO_THROW(released.Release());
  EXPECT_NO_THROW(kept = TRegistration());
}

TEST(Listen, WithoutTheServiceNothingIsRegistered) {
  EXPECT_THROW(static_cast<void>(ListenToSkins([](std::string_view) {}, nullptr)), EServiceMissing);
}

}  // namespace
}  // namespace algo::host::tests
