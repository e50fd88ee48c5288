// What the frame tells the trader, and what it reads in texts.

#include "plugin/host_contract/message_box.h"
#include "text/text.h"
#include "views/entry/entry_frame.h"

namespace algo::views::entry {

void TAlgoOrderEntryFrame::PopupMsg(std::string_view resourceId) const {
  ShowMessage(GetResource(resourceId));
}

void TAlgoOrderEntryFrame::Tell(const model::TRuleFailure& failure) const {
  if (failure.source == model::TMessageSource::Resource) return PopupMsg(failure.id);
  const TNestedLoopScope messageBox;
  host::TCustomMessageBoxCtrl::GetInstance().ShowErrorCode(failure.id);
}

bool TAlgoOrderEntryFrame::CheckTheOrder(std::string_view text) {
  bool found = false;
  text::ForEachPiece(text, ';', [&found](std::string_view piece) {
    found = found || piece.find("Original") != std::string_view::npos;
  });
  return found;
}

}  // namespace algo::views::entry
