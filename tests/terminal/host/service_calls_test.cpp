// The point that every service operation passes: what a call counts as, when the host's owner is told of it,
// and how it fails.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "plugin/host_contract/account_adapter.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/message_box.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "plugin/host_contract/user_app_profile.h"
#include "plugin/host_contract/view_functions.h"
#include "terminal/host/memory_host.h"
#include "tests/terminal/host/event_notes.h"
#include "tests/terminal/host/sample_view.h"

namespace algo::terminal::tests {
namespace {

/// Notes the calls beside the events.
class TCallNotes final : public TEventNotes {
 public:
  using TEventNotes::WatchCalls;

  std::uint32_t CallBegins(TServiceOperation operation) override {
    lines.push_back("begins " + std::string(RowOf(operation).name));
    return 5;
  }
  void CallEnds(TServiceOperation operation, std::uint32_t number) override {
    EXPECT_EQ(number, 5U);
    lines.push_back("ends " + std::string(RowOf(operation).name));
  }
};

/// A host, and something to call each of its operations with.
struct TCalledHost {
  TCalledHost() {
    item = host::TCustomSubscribeAdapter::GetInstance().Subscribe("S", "PRCDDS", false);
    form = host::GetDialogForm(provider);
    shown = host::GetDialogForm(provider);
    shown->Show();
    hidden = host::GetDialogForm(provider);
    form->ShowModal();
    memory.Data().profile = {.kind = 2, .flag = true, .account = "A1", .user = "U1"};
    memory.Data().accounts = {"A1"};
    memory.Data().lists["L"] = {"a"};
    memory.Data().instruments["S"] = {"S", "100"};
    memory.Data().colors[7] = 0x010203;
    memory.Orders().Add(std::make_unique<host::TCustomClientOrder>(order));
    events.lines.clear();
  }

  TCallNotes events;
  TMemoryHost memory{events};
  host::tests::TSampleProvider provider;
  host::tests::TSampleView view;
  forms::TTextEdit& edit = view.Add<forms::TTextEdit>("edit");
  forms::TSpinEdit& spin = view.Add<forms::TSpinEdit>("spin");
  std::shared_ptr<forms::TDialogForm> form;
  std::shared_ptr<forms::TDialogForm> shown;
  std::shared_ptr<forms::TDialogForm> hidden;
  host::TMarketDataItem* item = nullptr;
  host::TCustomClientOrder order;
  host::TOrderTakeActionRecord record;
  std::vector<std::string> list;
};

struct TCallRow {
  const char* name;
  std::function<void(TCalledHost&)> call;
};

template <class TService>
TService& The() {
  return TService::GetInstance();
}

const std::vector<TCallRow> Calls{
    {"config.read", [](TCalledHost&) { The<host::TCustomConfigManager>().ReadText("USER", "k"); }},
    {"config.read", [](TCalledHost&) { The<host::TCustomConfigManager>().ReadInteger("USER", "k"); }},
    {"config.read", [](TCalledHost&) { The<host::TCustomConfigManager>().ReadBoolean("USER", "k"); }},
    {"config.store", [](TCalledHost&) { The<host::TCustomConfigManager>().Store("USER", "k", "v", true); }},
    {"config.listen", [](TCalledHost& h) { The<host::TCustomConfigManager>().AddListener([] {}, &h); }},
    {"config.unlisten", [](TCalledHost& h) { The<host::TCustomConfigManager>().RemoveListener(&h); }},
    {"language.text",
     [](TCalledHost&) { The<host::TCustomLanguageManager>().GetText("Res", "id", 3, 0, 0); }},
    {"profile.right", [](TCalledHost&) { The<host::TCustomUserAppProfile>().HasRight("R"); }},
    {"profile.data", [](TCalledHost&) { The<host::TCustomUserAppProfile>().UserKind(); }},
    {"profile.data", [](TCalledHost&) { The<host::TCustomUserAppProfile>().UserFlag(); }},
    {"profile.data", [](TCalledHost&) { The<host::TCustomUserAppProfile>().AccountText(); }},
    {"profile.data", [](TCalledHost&) { The<host::TCustomUserAppProfile>().UserIdentity(); }},
    {"account.known", [](TCalledHost&) { The<host::TCustomAccountAdapter>().IsKnown("A1"); }},
    {"orders.list", [](TCalledHost& h) { The<host::TCustomOrderAdapter>().GetListSetting("L", h.list); }},
    {"orders.new", [](TCalledHost&) { delete The<host::TCustomOrderAdapter>().NewClientOrder(); }},
    {"orders.free",
     [](TCalledHost&) {
       auto order = std::make_unique<host::TCustomClientOrder>();
       The<host::TCustomOrderAdapter>().FreeClientOrder(order.get());
       static_cast<void>(order.release());
     }},
    {"orders.count", [](TCalledHost&) { The<host::TCustomOrderAdapter>().OrderCount(); }},
    {"orders.at", [](TCalledHost&) { The<host::TCustomOrderAdapter>().OrderAt(0); }},
    {"action.take",
     [](TCalledHost& h) {
       The<host::TCustomOrderActionManager>().TakeAction(nullptr, &h.order, host::TOrderAction::Change, 1);
     }},
    {"channel.post", [](TCalledHost& h) { The<host::TCustomGlobalChannelManager>().Post(1, &h.record); }},
    {"channel.subscribe",
     [](TCalledHost& h) {
       The<host::TCustomGlobalChannelManager>().Subscribe(
           1, [](const void*, host::TChannelRecord*) {}, &h);
     }},
    {"channel.unsubscribe",
     [](TCalledHost& h) { The<host::TCustomGlobalChannelManager>().Unsubscribe(1, &h); }},
    {"market.item",
     [](TCalledHost&) { The<host::TCustomSubscribeAdapter>().Subscribe("S", "PRCDDS", false); }},
    {"market.instrument", [](TCalledHost&) { The<host::TCustomMarketAdapter>().FindInstrument("S"); }},
    {"market.listen",
     [](TCalledHost& h) {
       The<host::TCustomMarketAdapter>().AddSpreadListener([](const void*, const host::TSpreadDictionary*) {},
                                                           &h);
     }},
    {"market.unlisten", [](TCalledHost& h) { The<host::TCustomMarketAdapter>().RemoveSpreadListener(&h); }},
    {"subscribe.add",
     [](TCalledHost&) { The<host::TCustomSubscribeAdapter>().Subscribe("S", "PRCDDS", true); }},
    {"subscribe.listen",
     [](TCalledHost& h) {
       The<host::TCustomSubscribeAdapter>().AddListener(
           h.item, [](const void*, const host::TItemDictionary*) {}, &h);
     }},
    {"subscribe.remove",
     [](TCalledHost& h) { The<host::TCustomSubscribeAdapter>().Unsubscribe(h.item, &h); }},
    {"skin.color", [](TCalledHost&) { The<host::TCustomLookAndFeelService>().ColorOf(7, 0); }},
    {"skin.listen",
     [](TCalledHost& h) { The<host::TCustomLookAndFeelService>().AddListener([](std::string_view) {}, &h); }},
    {"skin.unlisten", [](TCalledHost& h) { The<host::TCustomLookAndFeelService>().RemoveListener(&h); }},
    {"message.text", [](TCalledHost&) { The<host::TCustomMessageBoxCtrl>().ShowText("t"); }},
    {"message.code", [](TCalledHost&) { The<host::TCustomMessageBoxCtrl>().ShowErrorCode("c"); }},
    {"editor.register",
     [](TCalledHost& h) { The<host::TEditorManager>().RegisterAccountEditor(h.edit, "", 0, 1); }},
    {"editor.register",
     [](TCalledHost& h) { The<host::TEditorManager>().RegisterSymbolEditor(h.edit, "", 0, 1); }},
    {"editor.register", [](TCalledHost& h) { The<host::TEditorManager>().RegisterPriceEditor(h.spin, ""); }},
    {"editor.register",
     [](TCalledHost& h) { The<host::TEditorManager>().RegisterQuantityEditor(h.spin, ""); }},
    {"editor.remove", [](TCalledHost& h) { The<host::TEditorManager>().RemoveAccountEditor(h.edit); }},
    {"editor.remove", [](TCalledHost& h) { The<host::TEditorManager>().RemoveSymbolEditor(h.edit); }},
    {"editor.remove", [](TCalledHost& h) { The<host::TEditorManager>().RemovePriceEditor(h.spin); }},
    {"editor.remove", [](TCalledHost& h) { The<host::TEditorManager>().RemoveQuantityEditor(h.spin); }},
    {"editor.symbol", [](TCalledHost& h) { The<host::TEditorManager>().SetPriceSymbol(h.spin, "S"); }},
    {"editor.symbol", [](TCalledHost& h) { The<host::TEditorManager>().SetQuantitySymbol(h.spin, "S"); }},
    {"editor.account",
     [](TCalledHost& h) { The<host::TEditorManager>().SetAccountLayoutAccount(h.edit, "A1"); }},
    {"form.make", [](TCalledHost& h) { host::GetDialogForm(h.provider); }},
    {"form.show", [](TCalledHost& h) { h.hidden->ShowModal(); }},
    {"form.show", [](TCalledHost& h) { h.hidden->Show(); }},
    {"form.hide", [](TCalledHost& h) { h.form->Hide(); }},
    {"form.close", [](TCalledHost& h) { h.shown->Close(); }},
    {"form.caption", [](TCalledHost& h) { h.shown->SetCaption("new"); }},
    {"form.caption", [](TCalledHost& h) { h.shown->SetCaption(""); }},
    {"form.front", [](TCalledHost& h) { h.shown->BringToFront(); }},
    {"view.notify", [](TCalledHost& h) { host::SendViewNotify(h.view, 1025); }},
};

TEST(ServiceCalls, EveryOperationIsCalledHere) {
  for (std::size_t i = 0; i < ServiceOperationCount; ++i) {
    const auto name = RowOf(static_cast<TServiceOperation>(i)).name;
    EXPECT_TRUE(std::any_of(Calls.begin(), Calls.end(), [&](const auto& row) { return row.name == name; }))
        << name;
  }
}

TEST(ServiceCalls, AreToldOfBeforeTheirWorkAndAfterIt) {
  for (const auto& row : Calls) {
    SCOPED_TRACE(row.name);
    TCalledHost called;
    called.events.WatchCalls(true);
    row.call(called);
    const TNotes& lines = called.events.lines;
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(lines.front(), "begins " + std::string(row.name));
    EXPECT_EQ(lines.back(), "ends " + std::string(row.name));
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const auto& line) { return line.starts_with("begins "); }),
              1);
  }
}

TEST(ServiceCalls, AreNotToldOfToThoseWhoDoNotWatch) {
  for (const auto& row : Calls) {
    TCalledHost called;
    row.call(called);
    for (const auto& line : called.events.lines) EXPECT_FALSE(line.starts_with("begins ")) << line;
  }
}

TEST(ServiceCalls, ThatFailNameTheOperationAndLeaveNoTrace) {
  for (const auto& row : Calls) {
    SCOPED_TRACE(row.name);
    TCalledHost called;
    called.memory.Data().faults.Set({row.name});
    called.events.WatchCalls(true);
    try {
      row.call(called);
      ADD_FAILURE() << "it did not fail";
    } catch (const EHostFault& fault) {
      EXPECT_EQ(std::string(fault.what()), "The host fails at " + std::string(row.name));
    }
    EXPECT_EQ(called.events.lines, TNotes{"begins " + std::string(row.name)});
    called.memory.Data().faults.Set({});
    called.events.WatchCalls(false);
    called.events.lines.clear();
    EXPECT_NO_THROW(row.call(called));
  }
}

TEST(ServiceCalls, MayThrowANumber) {
  for (const auto& row : Calls) {
    TCalledHost called;
    called.memory.Data().faults.SetAll({{FindServiceOperation(row.name)->operation, 1, {}, TFaultKind::Int}});
    EXPECT_THROW(row.call(called), int) << row.name;
    EXPECT_EQ(called.events.lines, TNotes{}) << row.name;
    called.memory.Data().faults.SetAll({});
  }
}

TEST(ServiceCalls, OfALayerInFrontOfTheServicesPassThePointOnce) {
  TCalledHost called;
  called.events.WatchCalls(true);
  called.memory.CallInFront(TServiceOperation::OrdersFree,
                            [] { The<host::TCustomOrderAdapter>().OrderCount(); });
  The<host::TCustomOrderAdapter>().OrderCount();
  EXPECT_EQ(called.events.lines,
            (TNotes{"begins orders.free", "ends orders.free", "begins orders.count", "ends orders.count"}));
}

}  // namespace
}  // namespace algo::terminal::tests
