#include "model/algos.h"

#include <algorithm>

#include "model/algo_table.h"
#include "text/text.h"

namespace algo::model {

namespace {

template <class TPredicate>
constexpr bool EachRow(TPredicate&& holds) {
  return std::all_of(AlgoTable.begin(), AlgoTable.end(), holds);
}

constexpr bool NamesAreUnique() {
  for (std::size_t i = 0; i < AlgoTable.size(); ++i) {
    for (std::size_t j = i + 1; j < AlgoTable.size(); ++j) {
      if (AlgoTable[i].code == AlgoTable[j].code || AlgoTable[i].resourceId == AlgoTable[j].resourceId)
        return false;
    }
  }
  return true;
}

// Bounds belong to numbers, and every number that is written has at least a lower one.
constexpr bool BoundsFitTheKind(const TPiece& piece) {
  constexpr double None = std::numeric_limits<double>::infinity();
  return IsNumber(ParamRow(piece.param).kind) ? piece.above > -None && piece.above < piece.below
                                              : piece.above == -None && piece.below == None;
}

constexpr bool ColumnsFitTheKind(const TAlgoRow& row) {
  const auto choice = [](TParam param) { return ParamRow(param).kind == TValueKind::Choice; };
  return std::all_of(row.pieces.begin(), row.pieces.end(), BoundsFitTheKind) &&
         std::all_of(row.rules.begin(), row.rules.end(),
                     [](const TRule& rule) {
                       return IsNumber(ParamRow(rule.param).kind) && !rule.message.empty();
                     }) &&
         std::all_of(row.maximums.begin(), row.maximums.end(),
                     [](const TMaximum& maximum) { return IsNumber(ParamRow(maximum.param).kind); }) &&
         std::all_of(row.notSetAtFirst.begin(), row.notSetAtFirst.end(), choice);
}

// Every parameter is one that some algorithm writes, but for those that wait for an engine that knows them.
constexpr bool IsWritten(TParam param) {
  return !EachRow([param](const TAlgoRow& row) { return !Writes(row, param); });
}

constexpr bool ParametersAreWritten() {
  return std::all_of(ParamRows().begin(), ParamRows().end(),
                     [](const TParamRow& row) { return row.notWritten != IsWritten(row.param); });
}

static_assert(NamesAreUnique(), "two algorithms share a code or a resource id");
static_assert(EachRow(ColumnsFitTheKind),
              "a piece, rule or start value is of another kind than its parameter");
static_assert(ParametersAreWritten(), "a parameter is in no algorithm's text, or is and says that it is not");

const TAlgoRow* FindBy(std::string_view TAlgoRow::*name, std::string_view wanted) {
  const auto* found = std::find_if(AlgoTable.begin(), AlgoTable.end(),
                                   [&](const TAlgoRow& row) { return text::EqualNoCase(row.*name, wanted); });
  return found == AlgoTable.end() ? nullptr : found;
}

}  // namespace

std::span<const TAlgoRow> AlgoRows() { return AlgoTable; }

const TAlgoRow* FindAlgoByCode(std::string_view code) { return FindBy(&TAlgoRow::code, code); }

const TAlgoRow* FindAlgoById(std::string_view resourceId) {
  return FindBy(&TAlgoRow::resourceId, resourceId);
}

}  // namespace algo::model
