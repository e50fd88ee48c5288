// An algo parameter text put back into the form.

#include "model/parameter_text.h"
#include "text/errors.h"
#include "views/entry/entry_form.h"

namespace algo::views::entry {

void TEntryForm::LoadParameters(const std::vector<std::string_view>& pieces) {
  for (const model::TParamRow& row : model::ParamRows()) LoadParameter(row.param, pieces);
}

void TEntryForm::LoadParameter(model::TParam param, const std::vector<std::string_view>& pieces) {
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

}  // namespace algo::views::entry
