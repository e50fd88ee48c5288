#pragma once

// The algo parameter text: the one line in which an order carries its algorithm and parameters to the engine.
// It is a child-order prefix, the algorithm's id, the parameters as key and value pairs behind commas, and a
// closing semicolon.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/algos.h"
#include "model/values.h"
#include "text/date_text.h"

namespace algo::model {

/// The text of an algorithm's parameters. `marketChildren` says that the engine's child orders are market
/// orders; `row` names the pieces, nullptr for none. Allocates nothing but the result.
std::string ComposeText(bool marketChildren, std::string_view algoCode, const TAlgoRow* row,
                        const TParamValues& values);

/// A text taken apart. All parts are parts of the text that was given.
struct TSplitText {
  std::string_view algoId;               ///< empty when the text names none
  std::vector<std::string_view> pieces;  ///< the pieces in their order; the first one still holds the prefix
};

/// Takes the last semicolon-separated part that names an algorithm id, in whatever letter case, apart at its
/// commas. A text without one gives no id and no pieces. Linear in the length of the text.
TSplitText SplitText(std::string_view text);

/// The value of the first piece of that key; nothing when no piece has it.
std::optional<std::string_view> PieceValue(std::span<const std::string_view> pieces, std::string_view key);

/// What a value's text stands for.
struct TDecoded {
  enum class TKind : std::uint8_t {
    Number,   ///< a number, 0 for a text that is none
    Choice,   ///< the chosen item
    Time,     ///< a time
    Leave,    ///< a choice that the list does not have: it changes nothing
    Failure,  ///< a time that cannot be read
  };

  TKind kind = TKind::Leave;
  double number = 0;
  std::int32_t choice = -1;
  text::TDateTime time;
};

/// Reads a value of that parameter.
TDecoded DecodeValue(TParam param, std::string_view value);

}  // namespace algo::model
