// How an entry frame comes to life, and what the host asks of an open view.

#include "views/entry/entry_frame.h"

#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/user_app_profile.h"
#include "text/text.h"

namespace algo::views::entry {

namespace {

constexpr std::int32_t StartLanguage = 3;
constexpr std::int32_t SideFontSize = 36;

}  // namespace

TAlgoOrderEntryFrame::TAlgoOrderEntryFrame(const TFramePurpose& purpose)
    : TGuardedFrame(std::string(purpose.className), "lcAlgoOrder"),
      FPurpose(purpose),
      FForm(*this),
      FLists(FForm, purpose.ownType,
             {.exchangeChanged = [this] { cmbExchChange(); },
              .algoChanged = [this] { cmbOrderTypeChange(); },
              .orderTypeChanged = [this] { cmbMOrderTypeChange(); }}),
      FSymbol(FForm, this, HostHandler(&TAlgoOrderEntryFrame::SymbolUpdate)),
      FLayoutText(FForm, FLists, FSymbol) {
  // Making the form is one call from outside: what its handlers set off fails, if it fails, as a whole.
  const TBoundary making;
  WireEvents();
  if (WorksOnProfileAccount()) {
    Group(TGroup::lgAcct).SetVisible(false);
    FCurrentAccount = host::TCustomUserAppProfile::GetInstance().AccountText();
  }
  RegisterWithHost();
  InitializeList();
  InitExchangeList();
  InitializeView();
  for (const TField side : {TField::btnBuy, TField::btnSell}) {
    Control(side).SetFont({.size = SideFontSize, .bold = true});
  }
  TAlgoOrderEntryFrame::SetLanguage(StartLanguage);
  ShowSkin();
  ConfigUpdate();
  Spin(TField::edtPrice).SetValue(0);
  const std::string startSymbol(text::Trim(Edit(TField::edtSymbol).Hint()));
  if (!startSymbol.empty()) SetSymbol(startSymbol);
  FMade = true;
}

TAlgoOrderEntryFrame::TSizeNotice::~TSizeNotice() {
  if (std::uncaught_exceptions() == FFailures) return;
  try {
    Send();
  } catch (...) {  // NOLINT(bugprone-empty-catch): the failure that led here is the one to report
  }
}

void TAlgoOrderEntryFrame::TSizeNotice::Send() const {
  const bool resized = FFrame.TViewFrame::GetWidth() != FWidth || FFrame.TViewFrame::GetHeight() != FHeight;
  if (FFrame.FMade && resized) FFrame.NotifyViewChanged();
}

void TAlgoOrderEntryFrame::SetSkin(std::string_view /*name*/) {
  AtHostBoundary([this] { ShowSkin(); });
}

void TAlgoOrderEntryFrame::ShowSkin() {
  auto& skin = host::TCustomLookAndFeelService::GetInstance();
  SideButton(TField::btnBuy).SetColor(host::ButtonColorSlot, skin.ColorOf(host::BuyColor, 0));
  SideButton(TField::btnSell).SetColor(host::ButtonColorSlot, skin.ColorOf(host::SellColor, 0));
  NotifyViewChanged();
}

std::string TAlgoOrderEntryFrame::GetLayoutData() {
  return AtHostBoundary(std::string(), [this] { return FLayoutText.Write(FCurrentAccount); });
}

bool TAlgoOrderEntryFrame::SetLayoutData(std::string_view text) {
  return AtHostBoundary(false, [&] {
    FLayoutText.Read(text);
    NotifyViewChanged();
    return !Detached();
  });
}

}  // namespace algo::views::entry
