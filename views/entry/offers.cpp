// What depends on the exchange: the exchanges themselves, and the algorithms and host order types that the
// chosen one offers.

#include <algorithm>
#include <utility>

#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "plugin/host_contract/user_app_profile.h"
#include "views/entry/pick_lists.h"

namespace algo::views::entry {

namespace {

// Where the entry stands in the list; the first place when it is not there, -1 in an empty list.
std::int32_t IndexOrFirst(const std::vector<std::string>& list, const std::string& entry) {
  if (list.empty()) return -1;
  const auto found = std::find(list.begin(), list.end(), entry);
  const bool known = !entry.empty() && found != list.end();
  return known ? static_cast<std::int32_t>(found - list.begin()) : 0;
}

std::vector<std::string> ConfiguredList(const std::string& key) {
  std::vector<std::string> values;
  if (!host::TCustomOrderAdapter::GetInstance().GetListSetting(key, values)) values.clear();
  return values;
}

}  // namespace

/// While refills last, choices change silently; at the end of the outermost one the change handler of each
/// list whose chosen entry is another than before runs once.
class TPickLists::TRefill {
 public:
  explicit TRefill(TPickLists& lists) : FLists(lists) { ++FLists.FRefillDepth; }
  ~TRefill() { --FLists.FRefillDepth; }
  TRefill(const TRefill&) = delete;
  TRefill& operator=(const TRefill&) = delete;

  /// Ends the refill. Not in the destructor, because the handlers may throw.
  void NotifyChanges() {
    if (FLists.FRefillDepth > 1) return;
    const auto notify = [this](std::string TChosen::*entry, const std::function<void()>& changed) {
      if (FLists.Chosen().*entry != FLists.FHandled.*entry) changed();
    };
    notify(&TChosen::exchange, FLists.FHandlers.exchangeChanged);
    notify(&TChosen::algoType, FLists.FHandlers.algoChanged);
    notify(&TChosen::orderType, FLists.FHandlers.orderTypeChanged);
  }

 private:
  TPickLists& FLists;
};

void TPickLists::InitExchangeList() {
  TRefill refill(*this);
  auto& combo = FForm.Combo(TField::cmbExch);
  std::string remembered = Chosen().exchange;
  if (remembered.empty()) remembered = combo.Text();

  std::vector<std::string> codes = ConfiguredList("ALGO/Exchange");
  std::erase(codes, std::string());
  std::vector<std::string> items;
  for (const std::string& code : codes) {
    const std::string name =
        host::TCustomLanguageManager::GetInstance().GetText(host::ExchangeTag, code, 3, 0, 0);
    items.push_back(code);
    if (!name.empty()) items.back().append("(").append(name).append(")");
  }
  const std::int32_t index = IndexOrFirst(codes, remembered);
  FAlgoExchList = std::move(codes);
  combo.Refill(std::move(items), index);
  refill.NotifyChanges();
}

void TPickLists::InitializeOrderType(std::int32_t exchangeIndex) {
  TRefill refill(*this);
  const TChosen remembered = Chosen();
  const bool known = exchangeIndex >= 0 && exchangeIndex < std::ssize(FAlgoExchList);
  const std::string exchange = known ? FAlgoExchList[static_cast<std::size_t>(exchangeIndex)] : std::string();
  // Both lists are complete before either is shown: a host that fails half-way must not leave a combo box
  // whose items stand for other entries.
  TOffer algos = AlgosOf(exchange);
  TOffer orderTypes = OrderTypesOf(exchange);
  FAlgoTypeList = std::move(algos.ids);
  FOrderTypeConstList = std::move(algos.codes);
  FOrderTypeList = std::move(orderTypes.ids);
  const bool noneStays = remembered.algoType.empty() && !FAlgoMayStandIn;
  FForm.Combo(TField::cmbOrderType)
      .Refill(std::move(algos.texts), noneStays ? -1 : IndexOrFirst(FAlgoTypeList, remembered.algoType));
  FForm.Combo(TField::cmbMType)
      .Refill(std::move(orderTypes.texts), IndexOrFirst(FOrderTypeList, remembered.orderType));
  refill.NotifyChanges();
}

void TPickLists::RefillOrderLists() {
  TRefill refill(*this);
  InitExchangeList();
  InitializeOrderType(FForm.Combo(TField::cmbExch).Index());
  refill.NotifyChanges();
}

void TPickLists::OfferNothing() {
  for (auto* list : {&FAlgoTypeList, &FOrderTypeConstList, &FOrderTypeList}) list->clear();
  for (const TField combo : {TField::cmbOrderType, TField::cmbMType}) FForm.Combo(combo).Refill({}, -1);
}

auto TPickLists::AlgosOf(const std::string& exchange) -> TOffer {
  TOffer offer;
  if (exchange.empty()) return offer;
  for (const std::string& code : ConfiguredList("ALGO/ALGOType/" + exchange)) {
    const model::TAlgoRow* row = model::FindAlgoByCode(code);
    if (row == nullptr) continue;
    offer.ids.emplace_back(row->resourceId);
    offer.codes.emplace_back(row->code);
    offer.texts.push_back(host::ResourceText(row->resourceId));
  }
  return offer;
}

auto TPickLists::OrderTypesOf(const std::string& exchange) -> TOffer {
  TOffer offer;
  if (exchange.empty()) return offer;
  auto& profile = host::TCustomUserAppProfile::GetInstance();
  for (const std::string& code : ConfiguredList("ALGO/OrderType/" + exchange)) {
    const model::TOrderTypeRow* row = model::FindOrderTypeByCode(code);
    if (row == nullptr || (!row->right.empty() && !profile.HasRight(row->right))) continue;
    offer.ids.emplace_back(row->resourceId);
    offer.codes.emplace_back(row->code);
    offer.texts.push_back(host::ResourceText(row->resourceId));
  }
  return offer;
}

void TPickLists::SelectExchange(const std::string& code) {
  FForm.Combo(TField::cmbExch).SetIndex(IndexOrFirst(FAlgoExchList, code));
}

}  // namespace algo::views::entry
