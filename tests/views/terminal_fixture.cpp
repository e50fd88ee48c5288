#include "tests/views/terminal_fixture.h"

#include <algorithm>
#include <stdexcept>

#include "forms/dialog_form.h"

namespace algo::tests {

using terminal::TEditorKind;

namespace {

std::string KindName(TEditorKind kind) {
  switch (kind) {
    case TEditorKind::Account:
      return "account";
    case TEditorKind::Symbol:
      return "symbol";
    case TEditorKind::Price:
      return "price";
    case TEditorKind::Quantity:
      break;
  }
  return "quantity";
}

}  // namespace

TTerminalTest::TTerminalTest()
    : FHost(std::make_unique<terminal::TMemoryHost>(*this)),
      FStrict(std::make_unique<host::checks::TStrictHost>()) {
  FStrict->OnViolation([this](const std::string& what) {
    FViolations.push_back(what);
    throw std::logic_error("contract violated: " + what);
  });
  terminal::THostData& data = Data();
  data.rights = {"AlgoTabOrderEntry", "OEMarketOrder",  "OEStopM",         "OEStopL", "OEAO", "OEALO",
                 "OEEnhanced",        "OEMarketOnOpen", "OEMarketOnClose", "OELOC"};
  data.accounts = {"A1", "A2"};
  data.lists["ALGO/Exchange"] = {"HK", "US"};
  data.lists["ALGO/ALGOType/HK"] = {"TVOL",    "TVOL Threshold", "TWAP", "VWAP", "CLOSE",  "OPEN",
                                    "ICEBERG", "STOP",           "PEG",  "MOC",  "SNIPER", "SHORT SELL"};
  data.lists["ALGO/OrderType/HK"] = {"LO",  "MO",  "StopMarket", "StopLimit", "AO",
                                     "ALO", "ELO", "MOO",        "MOC",       "LOC"};
  data.lists["ALGO/ALGOType/US"] = {"VWAP", "TWAP"};
  data.lists["ALGO/OrderType/US"] = {"LO", "MO"};
  data.instruments["0005"] = {"0005", "400"};
  data.instruments["0700"] = {"0700", "100"};
  FHost->SetMarket("0005", host::ItemLive, {{host::PriceField, "60.5"}, {host::LotSizeField, "400"}},
                   terminal::TMarketNotice::None);
}

TTerminalTest::~TTerminalTest() {
  FProvider.reset();
  EXPECT_TRUE(FViolations.empty()) << FViolations.front();
}

plugin::TIAlgoEntryOrder& TTerminalTest::Provider() {
  if (!FProvider) FProvider = std::make_unique<plugin::TIAlgoEntryOrder>(nullptr);
  return *FProvider;
}

views::entry::TAlgoOrderEntryFrame& TTerminalTest::Open() {
  const auto frame = Provider().FindView(Provider().OpenNewInstance());
  if (!frame) throw std::runtime_error("the view did not open");
  return static_cast<views::entry::TAlgoOrderEntryFrame&>(*frame);
}

views::entry::TAlgoOrderEntryFrame& TTerminalTest::OpenFilled() {
  auto& frame = Open();
  Type(frame, "edtAccount", "A1");
  Type(frame, "edtSymbol", "0005");
  Type(frame, "edtQty", "800");
  Click(frame, "btnBuy");
  Forget();
  return frame;
}

forms::TControl& TTerminalTest::Named(forms::TFrame& frame, std::string_view control) const {
  auto* found = frame.FindControl(control);
  if (found == nullptr) throw std::runtime_error("no control " + std::string(control));
  return *found;
}

forms::TSpinEdit& TTerminalTest::Spin(forms::TFrame& frame, std::string_view control) const {
  return dynamic_cast<forms::TSpinEdit&>(Named(frame, control));
}

forms::TComboBox& TTerminalTest::Combo(forms::TFrame& frame, std::string_view control) const {
  return dynamic_cast<forms::TComboBox&>(Named(frame, control));
}

forms::TLayoutElement& TTerminalTest::Element(forms::TFrame& frame, std::string_view name) const {
  auto* found = frame.Layout().Find(name);
  if (found == nullptr) throw std::runtime_error("no layout element " + std::string(name));
  return *found;
}

void TTerminalTest::Type(forms::TFrame& frame, std::string_view control, std::string_view text) {
  EXPECT_EQ(frame.InputText(Named(frame, control), text), forms::TInputResult::Taken) << control;
}

void TTerminalTest::Click(forms::TFrame& frame, std::string_view control) {
  EXPECT_EQ(frame.InputClick(Named(frame, control)), forms::TInputResult::Taken) << control;
}

void TTerminalTest::Pick(forms::TFrame& frame, std::string_view control, std::string_view item) {
  auto& combo = Combo(frame, control);
  const auto found = std::find(combo.Items().begin(), combo.Items().end(), item);
  ASSERT_NE(found, combo.Items().end()) << control << " has no item " << item;
  EXPECT_EQ(frame.InputPick(combo, static_cast<std::int32_t>(found - combo.Items().begin())),
            forms::TInputResult::Taken)
      << control;
}

std::string TTerminalTest::Enter(forms::TFrame& frame, std::string_view control) {
  EXPECT_EQ(frame.InputEnter(Named(frame, control)), forms::TInputResult::Taken) << control;
  return frame.Focused() == nullptr ? std::string() : frame.Focused()->Name();
}

void TTerminalTest::ChooseAlgo(views::entry::TAlgoOrderEntryFrame& frame, std::string_view code) {
  const auto& offered = Data().lists["ALGO/ALGOType/HK"];
  const auto found = std::find(offered.begin(), offered.end(), code);
  ASSERT_NE(found, offered.end()) << code;
  Combo(frame, "cmbOrderType").SetIndex(static_cast<std::int32_t>(found - offered.begin()));
}

host::TCustomClientOrder& TTerminalTest::Store(const host::TCustomClientOrder& order) {
  FHost->Orders().Add(std::make_unique<host::TCustomClientOrder>(order));
  return *FHost->Orders().Find(order.key);
}

bool TTerminalTest::Post(host::TCustomClientOrder* order, host::TOrderAction action) {
  host::TOrderTakeActionRecord record;
  record.order = order;
  record.action = static_cast<std::int32_t>(action);
  FHost->PostAsHost(host::OrderActionChannel, record);
  return record.result;
}

void TTerminalTest::InDialogs(std::vector<std::function<void(forms::TDialogForm&)>> scripts) {
  FDialogScripts = std::move(scripts);
}

std::vector<TSeen> TTerminalTest::Seen(std::string_view event) const {
  std::vector<TSeen> found;
  std::copy_if(FSeen.begin(), FSeen.end(), std::back_inserter(found),
               [event](const TSeen& seen) { return seen.event == event; });
  return found;
}

std::vector<std::string> TTerminalTest::Told() const {
  std::vector<std::string> told;
  for (const TSeen& seen : FSeen) {
    if (seen.event == "message" || seen.event == "error_code") told.push_back(seen.text);
  }
  return told;
}

host::TCustomClientOrder TTerminalTest::TakenOrder() const {
  const auto taken = Seen("take_action");
  EXPECT_EQ(taken.size(), 1U);
  return taken.empty() ? host::TCustomClientOrder() : taken.front().order;
}

void TTerminalTest::MessageShown(std::string_view text) {
  FSeen.push_back({"message", std::string(text), {}, 0, false, {}});
}

void TTerminalTest::ErrorCodeShown(std::string_view code) {
  FSeen.push_back({"error_code", std::string(code), {}, 0, false, {}});
}

void TTerminalTest::ActionTaken(const host::TCustomClientOrder& order, host::TOrderAction action,
                                std::int32_t argument, bool answer) {
  FSeen.push_back(
      {"take_action", {}, std::to_string(argument), static_cast<std::int32_t>(action), answer, order});
}

void TTerminalTest::Posted(std::int32_t channel, const host::TChannelRecord& record) {
  const auto* action = dynamic_cast<const host::TOrderTakeActionRecord*>(&record);
  FSeen.push_back({"post", {}, {}, channel, action != nullptr && action->result, {}});
}

void TTerminalTest::ViewNotified(const host::TViewFrame& /*view*/, std::int32_t code) {
  FSeen.push_back({"view_notify", {}, {}, code, false, {}});
}

void TTerminalTest::Stored(std::string_view section, std::string_view key, std::string_view value,
                           bool writeThrough) {
  FSeen.push_back(
      {"store", std::string(section) + "/" + std::string(key), std::string(value), 0, writeThrough, {}});
}

void TTerminalTest::Subscribed(std::string_view symbol, std::string_view dataSet, bool live) {
  FSeen.push_back({"subscribe", std::string(symbol), std::string(dataSet), 0, live, {}});
}

void TTerminalTest::Unsubscribed(std::string_view symbol) {
  FSeen.push_back({"unsubscribe", std::string(symbol), {}, 0, false, {}});
}

void TTerminalTest::EditorRegistered(TEditorKind kind, const forms::TControl& control,
                                     std::string_view groupId) {
  FSeen.push_back(
      {"register_editor", KindName(kind) + " " + control.Name(), std::string(groupId), 0, false, {}});
}

void TTerminalTest::EditorRemoved(TEditorKind kind, const forms::TControl& control) {
  FSeen.push_back({"remove_editor", KindName(kind) + " " + control.Name(), {}, 0, false, {}});
}

void TTerminalTest::EditorSymbolSet(TEditorKind kind, const forms::TControl& control,
                                    std::string_view symbol) {
  FSeen.push_back(
      {"editor_symbol", KindName(kind) + " " + control.Name(), std::string(symbol), 0, false, {}});
}

void TTerminalTest::LayoutAccountSet(const forms::TControl& control, std::string_view account) {
  FSeen.push_back({"layout_account", control.Name(), std::string(account), 0, false, {}});
}

void TTerminalTest::FormShown(forms::TDialogForm& form) {
  FSeen.push_back({"show", form.Caption(), {}, 0, form.StaysOnTop(), {}});
}

void TTerminalTest::FormBroughtToFront(forms::TDialogForm& form) {
  FSeen.push_back({"to_front", form.Caption(), {}, 0, false, {}});
}

void TTerminalTest::FormClosed(forms::TDialogForm& form) {
  FSeen.push_back({"close_form", form.Caption(), {}, 0, false, {}});
}

void TTerminalTest::RunModal(forms::TDialogForm& form) {
  FSeen.push_back({"show_modal", form.Caption(), {}, 0, false, {}});
  if (!FDialogScripts.empty()) {
    const auto script = std::move(FDialogScripts.front());
    FDialogScripts.erase(FDialogScripts.begin());
    script(form);
  }
  if (form.ModalResult() == forms::ModalNone) form.SetModalResult(forms::ModalCancel);
}

}  // namespace algo::tests
