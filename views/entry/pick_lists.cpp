// The pick lists: exchanges, the algorithms and host order types that the chosen exchange offers, and the
// fixed choices. Each list of codes or resource ids stands beside the combo box that shows its texts; the
// index is the same in both.

#include <algorithm>
#include <array>
#include <iterator>
#include <span>

#include "model/algos.h"
#include "model/choices.h"
#include "model/order_types.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "plugin/host_contract/user_app_profile.h"
#include "plugin/host_contract/view_functions.h"
#include "views/entry/entry_frame.h"

namespace algo::views {

namespace {

constexpr std::array YesNoCombos{TField::cmbAccuVol,  TField::cmbOpening,  TField::cmbClosing,
                                 TField::cmbCloseSim, TField::cmbAllInAuc, TField::cmbJoin,
                                 TField::cmbIceberg};

std::vector<std::string> Texts(std::span<const std::string_view> ids) { return {ids.begin(), ids.end()}; }

std::string EntryOf(const std::vector<std::string>& list, std::int32_t index) {
  const bool inRange = index >= 0 && index < std::ssize(list);
  return inRange ? list[static_cast<std::size_t>(index)] : std::string();
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

class TAlgoOrderEntryFrame::TRefill {
 public:
  explicit TRefill(TAlgoOrderEntryFrame& frame) : FFrame(frame) { ++FFrame.FRefillDepth; }
  ~TRefill() { --FFrame.FRefillDepth; }
  TRefill(const TRefill&) = delete;
  TRefill& operator=(const TRefill&) = delete;

  /// Ends the refill: at the outermost end the handlers of the changed choices run. Not in the destructor,
  /// because they may throw.
  void Announce() {
    if (FFrame.FRefillDepth > 1) return;
    const auto announce = [this](std::string TChosen::*entry, void (TAlgoOrderEntryFrame::*changed)()) {
      if (FFrame.Chosen().*entry != FFrame.FAnnounced.*entry) (FFrame.*changed)();
    };
    announce(&TChosen::exchange, &TAlgoOrderEntryFrame::cmbExchChange);
    announce(&TChosen::algoType, &TAlgoOrderEntryFrame::cmbOrderTypeChange);
    announce(&TChosen::orderType, &TAlgoOrderEntryFrame::cmbMOrderTypeChange);
  }

 private:
  TAlgoOrderEntryFrame& FFrame;
};

std::string TAlgoOrderEntryFrame::GetResource(std::string_view id) const { return host::ResourceText(id); }

auto TAlgoOrderEntryFrame::Chosen() const -> TChosen {
  return {EntryOf(FAlgoExchList, Combo(TField::cmbExch).Index()),
          EntryOf(FAlgoTypeList, Combo(TField::cmbOrderType).Index()),
          EntryOf(FOrderTypeList, Combo(TField::cmbMType).Index())};
}

const std::vector<std::string>& TAlgoOrderEntryFrame::ListOf(TField combo) const {
  switch (combo) {
    case TField::cmbExch:
      return FAlgoExchList;
    case TField::cmbOrderType:
      return FAlgoTypeList;
    case TField::cmbMType:
      return FOrderTypeList;
    case TField::cmbStyle:
      return FStyleList;
    case TField::cmbFunc:
      return FFuncList;
    case TField::cmbRef:
      return FRefList;
    default:
      return FOpenCloseList;
  }
}

void TAlgoOrderEntryFrame::InitializeList() {
  FOpenCloseList = Texts(model::OpenCloseList);
  FFuncList = Texts(model::FuncList);
  FRefList = Texts(model::RefList);
  FRefValList.assign(model::RefValues.begin(), model::RefValues.end());
  FillPickLists();
  ResetView();
  ResetInputUI();
}

void TAlgoOrderEntryFrame::FillPickLists() {
  const auto fill = [this](TField combo) {
    std::vector<std::string> items;
    std::ranges::transform(ListOf(combo), std::back_inserter(items),
                           [this](const std::string& id) { return GetResource(id); });
    Combo(combo).Refill(std::move(items), Combo(combo).Index());
  };
  std::ranges::for_each(YesNoCombos, fill);
  fill(TField::cmbFunc);
  fill(TField::cmbOrderType);
  FillRefList();
}

void TAlgoOrderEntryFrame::FillRefList() {
  // Levels behind the best are shown as the side's text followed by that of the level.
  struct TRefText {
    std::string_view id;
    std::string_view level;
  };
  static constexpr std::array<TRefText, model::RefList.size()> RefTexts{{
      {"Res_OrderSide", ""},
      {"Res_Opposite", ""},
      {"Res_Last", ""},
      {"Res_Bid", ""},
      {"Res_Ask", ""},
      {"Res_LowPrice", ""},
      {"Res_HighPrice", ""},
      {"Res_Algo_VWAP", ""},
      {"Res_Mid", ""},
      {"Res_Bid", "Res_Num2"},
      {"Res_Bid", "Res_Num3"},
      {"Res_Bid", "Res_Num4"},
      {"Res_Bid", "Res_Num5"},
      {"Res_Ask", "Res_Num2"},
      {"Res_Ask", "Res_Num3"},
      {"Res_Ask", "Res_Num4"},
      {"Res_Ask", "Res_Num5"},
      {"Res_NA", ""},
  }};
  std::vector<std::string> items;
  for (const TRefText& text : RefTexts) {
    items.push_back(GetResource(text.id));
    if (!text.level.empty()) items.back() += GetResource(text.level);
  }
  auto& combo = Combo(TField::cmbRef);
  const std::int32_t last = static_cast<std::int32_t>(items.size()) - 1;
  combo.Refill(std::move(items), combo.Index() < 0 ? last : combo.Index());
}

void TAlgoOrderEntryFrame::FillStyleList() {
  std::vector<std::string> items;
  items.reserve(model::StyleList.size());
  for (const std::string_view id : model::StyleList) items.push_back(GetResource(id));
  FStyleList = Texts(model::StyleList);
  const std::int32_t last = static_cast<std::int32_t>(items.size()) - 1;
  Combo(TField::cmbStyle).Refill(std::move(items), last);
}

void TAlgoOrderEntryFrame::InitExchangeList() {
  TRefill refill(*this);
  auto& combo = Combo(TField::cmbExch);
  std::string remembered = EntryOf(FAlgoExchList, combo.Index());
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
  refill.Announce();
}

void TAlgoOrderEntryFrame::InitializeOrderType(std::int32_t exchangeIndex) {
  TRefill refill(*this);
  const TChosen remembered = Chosen();
  const std::string exchange = EntryOf(FAlgoExchList, exchangeIndex);
  // Both lists are complete before either is shown: a host that fails half-way must not leave a combo box
  // whose items stand for other entries.
  TPickList algoTypes = AlgoTypesOf(exchange);
  TPickList orderTypes = OrderTypesOf(exchange);
  FAlgoTypeList = std::move(algoTypes.ids);
  FOrderTypeConstList = std::move(algoTypes.codes);
  FOrderTypeList = std::move(orderTypes.ids);
  const bool noneStays = remembered.algoType.empty() && !FirstAlgoStandsIn();
  Combo(TField::cmbOrderType)
      .Refill(std::move(algoTypes.texts), noneStays ? -1 : IndexOrFirst(FAlgoTypeList, remembered.algoType));
  Combo(TField::cmbMType)
      .Refill(std::move(orderTypes.texts), IndexOrFirst(FOrderTypeList, remembered.orderType));
  refill.Announce();
}

void TAlgoOrderEntryFrame::OfferNothing() {
  for (auto* list : {&FAlgoTypeList, &FOrderTypeConstList, &FOrderTypeList}) list->clear();
  for (const TField combo : {TField::cmbOrderType, TField::cmbMType}) Combo(combo).Refill({}, -1);
  ResetView();
}

void TAlgoOrderEntryFrame::RefillOrderLists() {
  TRefill refill(*this);
  InitExchangeList();
  InitializeOrderType(Combo(TField::cmbExch).Index());
  refill.Announce();
}

auto TAlgoOrderEntryFrame::AlgoTypesOf(const std::string& exchange) const -> TPickList {
  TPickList list;
  if (exchange.empty()) return list;
  for (const std::string& code : ConfiguredList("ALGO/ALGOType/" + exchange)) {
    const model::TAlgoRow* row = model::FindAlgoByCode(code);
    if (row == nullptr) continue;
    list.ids.emplace_back(row->resourceId);
    list.codes.emplace_back(row->code);
    list.texts.push_back(GetResource(row->resourceId));
  }
  return list;
}

auto TAlgoOrderEntryFrame::OrderTypesOf(const std::string& exchange) const -> TPickList {
  TPickList list;
  if (exchange.empty()) return list;
  auto& profile = host::TCustomUserAppProfile::GetInstance();
  for (const std::string& code : ConfiguredList("ALGO/OrderType/" + exchange)) {
    const model::TOrderTypeRow* row = model::FindOrderTypeByCode(code);
    if (row == nullptr || (!row->right.empty() && !profile.HasRight(row->right))) continue;
    list.ids.emplace_back(row->resourceId);
    list.codes.emplace_back(row->code);
    list.texts.push_back(GetResource(row->resourceId));
  }
  return list;
}

void TAlgoOrderEntryFrame::SelectExchange(const std::string& code) {
  Combo(TField::cmbExch).SetIndex(IndexOrFirst(FAlgoExchList, code));
}

void TAlgoOrderEntryFrame::cmbExchChange() {
  FAnnounced.exchange = Chosen().exchange;
  const std::int32_t index = Combo(TField::cmbExch).Index();
  if (index < 0) return;
  Check(TField::cbLockMOrder).SetChecked(false);
  Check(TField::cbLockOrderType).SetChecked(false);
  try {
    InitializeOrderType(index);
  } catch (...) {
    // Better nothing to choose from than what another exchange offers.
    OfferNothing();
    throw;
  }
}

void TAlgoOrderEntryFrame::cmbOrderTypeChange() {
  FAnnounced.algoType = Chosen().algoType;
  {
    const forms::TLayoutUpdate update(Layout());
    ResetView();
    if (Combo(TField::cmbOrderType).Index() >= 0) {
      ResetInputUI();
      InitializeView();
    }
  }
  host::SendViewNotify(*this, host::ViewChanged);
}

void TAlgoOrderEntryFrame::cmbMOrderTypeChange() {
  const std::string id = Chosen().orderType;
  FAnnounced.orderType = id;
  if (id.empty()) return;
  UpdatePriceEditorState();
  const model::TOrderTypeRow* row = model::FindOrderTypeById(id);
  auto& price = Spin(TField::edtPrice);
  if (!row->keepsPrice) {
    price.SetValue(0);
  } else if (!price.Value() || *price.Value() < model::PriceEpsilon) {
    FPriceSet = false;
    UpdateSymbolInfo();
  }
}

}  // namespace algo::views
