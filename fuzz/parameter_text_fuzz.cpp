// Whatever text an order carries is taken apart and loaded without harm, and what is composed from it loads
// and composes to itself.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "model/parameter_text.h"

namespace {

using algo::model::AlgoRows;
using algo::model::ComposeText;
using algo::model::DecodeValue;
using algo::model::ParamRow;
using algo::model::PieceValue;
using algo::model::SplitText;
using algo::model::TAlgoRow;
using algo::model::TDecoded;
using algo::model::TParam;
using algo::model::TParamValues;
using algo::model::TSplitText;

/// Loads the pieces as the form does. A time that cannot be read ends the loading.
TParamValues Load(const TSplitText& split) {
  TParamValues values;
  for (const algo::model::TParamRow& row : algo::model::ParamRows()) {
    const TParam param = row.param;
    const auto value = PieceValue(split.pieces, ParamRow(param).key);
    if (!value || value->empty()) continue;
    const TDecoded decoded = DecodeValue(param, *value);
    switch (decoded.kind) {
      case TDecoded::TKind::Number:
        values.SetNumber(param, decoded.number);
        break;
      case TDecoded::TKind::Choice:
        values.SetChoice(param, decoded.choice);
        break;
      case TDecoded::TKind::Time:
        values.SetTime(param, decoded.time);
        break;
      case TDecoded::TKind::Leave:
        break;
      case TDecoded::TKind::Failure:
        return values;
    }
  }
  return values;
}

void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const TSplitText split = SplitText(text);
  Require(split.algoId.size() <= text.size());
  const TParamValues values = Load(split);
  for (const TAlgoRow& row : AlgoRows()) {
    const std::string composed = ComposeText(true, row.code, &row, values);
    const TSplitText again = SplitText(composed);
    Require(again.algoId == row.code);
    Require(ComposeText(true, again.algoId, &row, Load(again)) == composed);
  }
  return 0;
}
