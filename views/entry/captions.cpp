// The texts of the form, all of them from the host's language service.

#include <array>

#include "forms/toolkit.h"
#include "views/entry/entry_frame.h"

namespace algo::views {

namespace {

constexpr std::int32_t LargestSideFont = 36;
constexpr double SideButtonMargin = 12;

enum class TTextPlace : std::uint8_t { Caption, Hint, Placeholder };

struct TControlText {
  TField field;
  TTextPlace place;
  std::string_view id;
};

constexpr std::array ControlTexts{
    TControlText{TField::edtAccount, TTextPlace::Placeholder, "Res_Account"},
    TControlText{TField::edtSymbol, TTextPlace::Placeholder, "Res_Symbol"},
    TControlText{TField::edtPrice, TTextPlace::Hint, "Res_Ticket_Limit_Price_Hint"},
    TControlText{TField::btnBuy, TTextPlace::Caption, "Res_Side_Buy"},
    TControlText{TField::btnSell, TTextPlace::Caption, "Res_Side_Sell"},
    TControlText{TField::btnSubmit, TTextPlace::Caption, "Res_Submit"},
    TControlText{TField::btnClear, TTextPlace::Caption, "Res_Clear"},
    TControlText{TField::btnWork, TTextPlace::Caption, "Res_Work"},
    TControlText{TField::cbPopup, TTextPlace::Caption, "Res_Ticket_Conf_Off"},
    TControlText{TField::cbClear, TTextPlace::Caption, "Res_OrderClear"},
    TControlText{TField::cbLockAcct, TTextPlace::Hint, "Res_Account_Lock"},
    TControlText{TField::cbLockSymbol, TTextPlace::Hint, "Res_Symbol_Lock"},
    TControlText{TField::cbLockQty, TTextPlace::Hint, "Res_Qty_Lock"},
    TControlText{TField::cbLockPrice, TTextPlace::Hint, "Res_Price_Lock"},
    TControlText{TField::cbLockExch, TTextPlace::Hint, "Res_Market_Lock"},
};

}  // namespace

bool TAlgoOrderEntryFrame::SetLanguage(std::int32_t /*language*/) {
  return AtBoundary(false, [this] {
    const forms::TLayoutUpdate update(Layout());
    SetCaptions();
    FillPickLists();
    const model::TAlgoRow* algo = ChosenAlgo();
    if (algo != nullptr && algo->refillsStyle) FillStyleList();
    RefillOrderLists();
    UpdateSymbolInfo();
    FitSideButtons();
    return true;
  });
}

void TAlgoOrderEntryFrame::SetCaptions() {
  for (const TGroupRow& row : GroupRows()) {
    if (!row.captionId.empty()) Group(row.group).SetCaption(GetResource(row.captionId));
  }
  for (const TControlText& text : ControlTexts) {
    switch (text.place) {
      case TTextPlace::Caption:
        Control(text.field).SetCaption(GetResource(text.id));
        break;
      case TTextPlace::Hint:
        Control(text.field).SetHint(GetResource(text.id));
        break;
      case TTextPlace::Placeholder:
        Edit(text.field).SetPlaceholder(GetResource(text.id));
        break;
    }
  }
  for (const TFieldRow& row : FieldRows()) {
    if (!row.captionId.empty()) Item(row.field).SetCaption(GetResource(row.captionId));
  }
}

void TAlgoOrderEntryFrame::FitSideButtons() {
  // The sell caption sets the size for both, so that the two always look alike.
  const forms::TControl& sell = Control(TField::btnSell);
  const forms::TSize room{sell.Size().width - SideButtonMargin, sell.Size().height - SideButtonMargin};
  forms::TFont font = sell.Font();
  const auto fits = [&] {
    const forms::TSize text = forms::TToolkit::Current().MeasureText(sell.Caption(), font);
    return text.width <= room.width && text.height <= room.height;
  };
  font.size = LargestSideFont;
  while (font.size > 1 && !fits()) --font.size;
  Control(TField::btnSell).SetFont(font);
  Control(TField::btnBuy).SetFont(font);
}

}  // namespace algo::views
