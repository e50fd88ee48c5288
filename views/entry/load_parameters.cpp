// An algo parameter text put back into the form.

#include <algorithm>

#include "model/choices.h"
#include "model/parameter_text.h"
#include "text/errors.h"
#include "text/text.h"
#include "views/entry/entry_frame.h"

namespace algo::views {

void TAlgoOrderEntryFrame::InitializeConfirmView(std::string_view algoName,
                                                 const std::vector<std::string_view>& pieces) {
  ChooseAlgo(algoName);
  for (const model::TParam param : model::LoadSteps()) LoadParameter(param, pieces);
}

void TAlgoOrderEntryFrame::ChooseAlgo(std::string_view algoName) {
  // The algorithm first, so that its groups and styles are there before the values and nothing loaded is
  // blanked again.
  const auto code =
      std::find_if(FOrderTypeConstList.begin(), FOrderTypeConstList.end(),
                   [algoName](const std::string& each) { return text::EqualNoCase(each, algoName); });
  if (code == FOrderTypeConstList.end()) return AlgoNotOffered();
  if (Check(TField::cbLockOrderType).Checked()) return;
  Combo(TField::cmbOrderType).SetIndex(static_cast<std::int32_t>(code - FOrderTypeConstList.begin()));
}

void TAlgoOrderEntryFrame::LoadParameter(model::TParam param, const std::vector<std::string_view>& pieces) {
  const model::TParamRow& row = model::ParamRow(param);
  const TField field = FieldOf(param);
  const std::string_view value = model::PieceValue(pieces, row.key).value_or(std::string_view());
  if (value.empty()) {
    if (row.missingSelectsLast) Combo(field).SelectLast();
    return;
  }
  const model::TDecoded decoded = model::DecodeValue(param, value);
  switch (decoded.kind) {
    case model::TDecoded::TKind::Number:
      Spin(field).SetValue(decoded.number);
      break;
    case model::TDecoded::TKind::Choice:
      if (decoded.choice < Combo(field).Count()) Combo(field).SetIndex(decoded.choice);
      break;
    case model::TDecoded::TKind::Time:
      Date(field).SetValue(decoded.time);
      break;
    case model::TDecoded::TKind::Leave:
      break;
    case model::TDecoded::TKind::Failure:
      throw EConversionError(std::string(value), "a date and time");
  }
}

}  // namespace algo::views
