#include "model/parameter_text.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "text/number_text.h"
#include "text/text.h"

namespace algo::model {

namespace {

// The longest piece: a comma, a key, an equals sign and a number of many digits.
constexpr std::size_t PieceCapacity = 1 + MaxKeyLength + 1 + text::PlainNumberCapacity;

/// Collects the pieces in a buffer on the stack, which holds the longest that the tables can ask for.
class TWriter {
 public:
  void Put(std::string_view text) {
    std::memcpy(FEnd, text.data(), text.size());
    FEnd += text.size();
  }
  void PutKey(std::string_view key) {
    *FEnd++ = ',';
    Put(key);
    *FEnd++ = '=';
  }
  void PutNumber(double number) { FEnd += text::WritePlainNumber(number, FEnd); }
  void PutTime(text::TDateTime time) { FEnd += text::WriteCompactDateTime(time, FEnd); }
  std::string_view Text() const { return {FBuffer.data(), static_cast<std::size_t>(FEnd - FBuffer.data())}; }

 private:
  std::array<char, MaxPieces * PieceCapacity> FBuffer;
  char* FEnd = FBuffer.data();
};

void PutPiece(TWriter& writer, const TPiece& piece, const TParamValues& values) {
  const TParamRow& row = ParamRow(piece.param);
  switch (row.kind) {
    case TValueKind::Number:
    case TValueKind::Whole:
      if (const auto number = values.Number(piece.param);
          number && *number > piece.above && *number < piece.below) {
        writer.PutKey(row.key);
        writer.PutNumber(*number);
      }
      break;
    case TValueKind::Choice:
      if (const std::string_view text = ChoiceText(row.choices, values.Choice(piece.param)); !text.empty()) {
        writer.PutKey(row.key);
        writer.Put(text);
      }
      break;
    case TValueKind::Time:
      if (const auto time = values.Time(piece.param)) {
        writer.PutKey(row.key);
        writer.PutTime(*time);
      }
      break;
  }
}

}  // namespace

std::string ComposeText(bool marketChildren, std::string_view algoCode, const TAlgoRow* row,
                        const TParamValues& values) {
  TWriter pieces;
  if (row != nullptr) {
    for (const TPiece& piece : row->pieces) PutPiece(pieces, piece, values);
  }
  const std::string_view start = marketChildren ? "TMMO:AlgoId=" : "TMLO:AlgoId=";
  std::string whole;
  whole.reserve(start.size() + algoCode.size() + pieces.Text().size() + 1);
  whole.append(start).append(algoCode).append(pieces.Text()).append(1, ';');
  return whole;
}

TSplitText SplitText(std::string_view text) {
  std::string_view withId;
  text::ForEachPiece(text, ';', [&withId](std::string_view part) {
    if (text::ContainsNoCase(part, "ALGOID")) withId = part;
  });
  TSplitText split;
  if (withId.empty()) return split;
  text::ForEachPiece(withId, ',', [&split](std::string_view piece) { split.pieces.push_back(piece); });
  const std::string_view first = split.pieces.front();
  const std::size_t equals = first.find('=');
  if (equals != std::string_view::npos) split.algoId = first.substr(equals + 1);
  return split;
}

std::optional<std::string_view> PieceValue(std::span<const std::string_view> pieces, std::string_view key) {
  for (const std::string_view piece : pieces) {
    if (piece.size() > key.size() && piece[key.size()] == '=' && piece.starts_with(key)) {
      return piece.substr(key.size() + 1);
    }
  }
  return std::nullopt;
}

TDecoded DecodeValue(TParam param, std::string_view value) {
  const TParamRow& row = ParamRow(param);
  TDecoded decoded;
  switch (row.kind) {
    case TValueKind::Number:
    case TValueKind::Whole:
      decoded.kind = TDecoded::TKind::Number;
      decoded.number = text::NumberOr(value, 0);
      break;
    case TValueKind::Choice:
      if (const auto index = ChoiceIndex(row.choices, value)) {
        decoded.kind = TDecoded::TKind::Choice;
        decoded.choice = *index;
      }
      break;
    case TValueKind::Time: {
      const auto time = text::ParseCompactDateTime(value);
      decoded.kind = time ? TDecoded::TKind::Time : TDecoded::TKind::Failure;
      if (time) decoded.time = *time;
      break;
    }
  }
  return decoded;
}

}  // namespace algo::model
