// What depends on the exchange: the exchanges themselves, and the algorithms and host order types that the
// chosen one offers.

#include <algorithm>
#include <utility>

#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "plugin/host_contract/user_app_profile.h"
#include "text/text.h"
#include "views/entry/pick_lists.h"

namespace algo::views::entry {

namespace {

// Where the exchange code stands in the list, whatever its letter case; the first place when it is not there.
std::int32_t IndexOfExchange(const std::vector<std::string>& codes, const std::string& code) {
  if (codes.empty()) return -1;
  const auto found = std::find_if(codes.begin(), codes.end(),
                                  [&code](const std::string& each) { return text::EqualNoCase(each, code); });
  return found == codes.end() || code.empty() ? 0 : static_cast<std::int32_t>(found - codes.begin());
}

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
  std::vector<std::string> codes = ConfiguredList("ALGO/Exchange");
  std::erase(codes, std::string());
  std::vector<std::string> items;
  for (const std::string& code : codes) {
    const std::string name =
        host::TCustomLanguageManager::GetInstance().GetText(host::ExchangeTag, code, 3, 0, 0);
    items.push_back(code);
    if (!name.empty()) items.back().append("(").append(name).append(")");
  }
  // Looked at after the host was asked, which may have chosen another one meanwhile.
  std::string remembered = Chosen().exchange;
  if (remembered.empty()) remembered = combo.Text();
  const std::int32_t index = IndexOfExchange(codes, remembered);
  FAlgoExchList = std::move(codes);
  combo.Refill(std::move(items), index);
  refill.NotifyChanges();
}

void TPickLists::InitializeOrderType(std::int32_t exchangeIndex) { ShowOffers(OffersAt(exchangeIndex)); }

auto TPickLists::OffersAt(std::int32_t exchangeIndex) const -> TOffers {
  TOffers offers{
      .exchange = std::string(EntryAt(TField::cmbExch, exchangeIndex)), .algos = {}, .orderTypes = {}};
  // Both are complete before either is shown: a host that fails half-way must not leave a combo box whose
  // items stand for other entries.
  offers.algos = AlgosOf(offers.exchange);
  offers.orderTypes = OrderTypesOf(offers.exchange);
  for (TOffer* offer : {&offers.algos, &offers.orderTypes}) {
    for (const std::string& id : offer->ids) offer->texts.push_back(host::ResourceText(id));
  }
  return offers;
}

void TPickLists::ShowOffers(TOffers offers) {
  TChosen remembered = Chosen();
  if (remembered.exchange != offers.exchange) return;
  TRefill refill(*this);
  FAlgoTypeList = std::move(offers.algos.ids);
  FOrderTypeConstList = std::move(offers.algos.codes);
  FOfferedTypes = std::move(offers.orderTypes);
  FOffering = std::move(offers.exchange);
  if (FOwnType != TOwnType::NotShown && !remembered.algoType.empty() &&
      std::find(FAlgoTypeList.begin(), FAlgoTypeList.end(), remembered.algoType) == FAlgoTypeList.end()) {
    // The algorithm of an order that is shown gives way to none, never to another one.
    FAlgoMayStandIn = false;
    remembered.algoType.clear();
  }
  const bool noneStays = remembered.algoType.empty() && !FAlgoMayStandIn;
  FForm.Combo(TField::cmbOrderType)
      .Refill(std::move(offers.algos.texts),
              noneStays ? -1 : IndexOrFirst(FAlgoTypeList, remembered.algoType));
  ShowOrderTypes(remembered.orderType);
  refill.NotifyChanges();
}

void TPickLists::ShowOrderTypes(const std::string& chosen) {
  const std::string ownId = FOwnTypeId;
  std::string ownText = ownId.empty() ? std::string() : host::ResourceText(ownId);
  TOffer shown = FOfferedTypes;
  const auto own = std::find(shown.ids.begin(), shown.ids.end(), ownId);
  const bool offered = own != shown.ids.end();
  if (!ownId.empty() && (!offered || FOwnType == TOwnType::First)) {
    if (offered) {
      shown.texts.erase(shown.texts.begin() + (own - shown.ids.begin()));
      shown.ids.erase(own);
    }
    const bool first = FOwnType == TOwnType::First;
    shown.ids.insert(first ? shown.ids.begin() : shown.ids.end(), ownId);
    shown.texts.insert(first ? shown.texts.begin() : shown.texts.end(), std::move(ownText));
  }
  FOrderTypeList = std::move(shown.ids);
  FForm.Combo(TField::cmbMType).Refill(std::move(shown.texts), IndexOrFirst(FOrderTypeList, chosen));
}

void TPickLists::SelectOrderType(std::string_view id) {
  if (FOwnType != TOwnType::NotShown) {
    TRefill refill(*this);
    FOwnTypeId = id;
    ShowOrderTypes(std::string(id));
    refill.NotifyChanges();
    return;
  }
  const auto found = std::find(FOrderTypeList.begin(), FOrderTypeList.end(), id);
  auto& combo = FForm.Combo(TField::cmbMType);
  const auto index = static_cast<std::int32_t>(found - FOrderTypeList.begin());
  if (found != FOrderTypeList.end() && index < combo.Count()) {
    combo.SetIndex(index);
  } else {
    combo.SelectFirst();
  }
}

void TPickLists::RefillOrderLists() {
  TRefill refill(*this);
  InitExchangeList();
  try {
    InitializeOrderType(FForm.Combo(TField::cmbExch).Index());
  } catch (...) {
    // Better nothing to choose from than what another exchange offers.
    if (Chosen().exchange != FOffering) OfferNothing();
    throw;
  }
  refill.NotifyChanges();
}

void TPickLists::OfferNothing() {
  FAlgoTypeList.clear();
  FOrderTypeConstList.clear();
  FOfferedTypes = {};
  FOffering.clear();
  FForm.Combo(TField::cmbOrderType).Refill({}, -1);
  FOrderTypeList.clear();
  FForm.Combo(TField::cmbMType).Refill({}, -1);
  FForm.HideAlgo();
  // Handled anew with the next choice, the same one included, so that its fields come back.
  FHandled = {};
  FForm.Combo(TField::cmbExch).Unsettle();
}

auto TPickLists::AlgosOf(const std::string& exchange) -> TOffer {
  TOffer offer;
  if (exchange.empty()) return offer;
  for (const std::string& code : ConfiguredList("ALGO/ALGOType/" + exchange)) {
    const model::TAlgoRow* row = model::FindAlgoByCode(code);
    if (row == nullptr) continue;
    offer.ids.emplace_back(row->resourceId);
    offer.codes.emplace_back(row->code);
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
  }
  return offer;
}

void TPickLists::SelectExchange(const std::string& code) {
  FForm.Combo(TField::cmbExch).SetIndex(IndexOfExchange(FAlgoExchList, code));
}

}  // namespace algo::views::entry
