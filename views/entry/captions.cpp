// The texts of the form, all of them from the host's language service.

#include "forms/toolkit.h"
#include "views/entry/entry_frame.h"

namespace algo::views::entry {

namespace {

constexpr std::int32_t LargestSideFont = 36;
constexpr double SideButtonMargin = 12;

}  // namespace

bool TAlgoOrderEntryFrame::SetLanguage(std::int32_t /*language*/) {
  return AtBoundary(false, [this] {
    const TSizeNotice notice(*this);
    {
      const forms::TLayoutUpdate update(Layout());
      const std::int32_t style = Combo(TField::cmbStyle).Index();
      SetCaptions();
      FLists.FillPickLists();
      const model::TAlgoRow* algo = FLists.ChosenAlgo();
      if (algo != nullptr && model::Writes(*algo, model::TParam::Style)) FLists.FillStyleList();
      FLists.RefillOrderLists();
      UpdateSymbolInfo();
      FitSideButtons();
      // An order that is shown keeps its style; the trader's own form starts over with the list.
      if (FPurpose.showsOneOrder && style < Combo(TField::cmbStyle).Count())
        Combo(TField::cmbStyle).SetIndex(style);
    }
    notice.Send();
    return !Detached();
  });
}

void TAlgoOrderEntryFrame::SetCaptions() {
  for (const TGroupRow& row : GroupRows()) {
    if (!row.captionId.empty()) Group(row.group).SetCaption(GetResource(row.captionId));
  }
  for (const TFieldRow& row : FieldRows()) {
    switch (row.text.place) {
      case TFieldText::TPlace::Caption:
        Control(row.field).SetCaption(GetResource(row.text.id));
        break;
      case TFieldText::TPlace::Hint:
        Control(row.field).SetHint(GetResource(row.text.id));
        break;
      case TFieldText::TPlace::Placeholder:
        Edit(row.field).SetPlaceholder(GetResource(row.text.id));
        break;
      case TFieldText::TPlace::None:
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

}  // namespace algo::views::entry
