#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

#include "model/parameter_text.h"

namespace algo::model {
namespace {

// Random entries of a form, the same in every run: numbers of every kind around the bounds and far from them.
class TRandomValues {
 public:
  explicit TRandomValues(std::uint32_t seed) : FRandom(seed) {}

  TParamValues Next() {
    TParamValues values;
    for (const TParamRow& row : ParamRows()) {
      if (Below(4) == 0) continue;
      if (IsNumber(row.kind)) values.SetNumber(row.param, Number());
      if (row.kind == TValueKind::Choice)
        values.SetChoice(row.param, static_cast<std::int32_t>(Below(20)) - 1);
      if (row.kind == TValueKind::Time) values.SetTime(row.param, Time());
    }
    return values;
  }

 private:
  std::uint64_t Below(std::uint64_t bound) { return FRandom() % bound; }

  double Number() {
    switch (Below(6)) {
      case 0:
        return static_cast<double>(Below(1200)) - 600;
      case 1:
        return static_cast<double>(Below(20000)) / 100 - 100;
      case 2:
        return static_cast<double>(Below(1'000'000'000'000));
      case 3:
        return static_cast<double>(FRandom() >> 11) / 9007199254740992.0 * 100;
      case 4:
        return std::numeric_limits<double>::denorm_min() * static_cast<double>(Below(100));
      default:
        return std::bit_cast<double>(FRandom());
    }
  }

  // Any second between the years 1 and 9999.
  text::TDateTime Time() {
    constexpr std::int64_t First = -62135596800;
    constexpr std::uint64_t Seconds = 315537897600;
    return text::TDateTime(std::chrono::seconds(First + static_cast<std::int64_t>(Below(Seconds))));
  }

  std::mt19937_64 FRandom;
};

TParamValues Load(const TSplitText& split) {
  TParamValues values;
  for (const TParamRow& row : ParamRows()) {
    const TParam param = row.param;
    const auto value = PieceValue(split.pieces, ParamRow(param).key);
    if (!value) continue;
    const TDecoded decoded = DecodeValue(param, *value);
    EXPECT_NE(decoded.kind, TDecoded::TKind::Failure);
    EXPECT_NE(decoded.kind, TDecoded::TKind::Leave);
    if (decoded.kind == TDecoded::TKind::Number) values.SetNumber(param, decoded.number);
    if (decoded.kind == TDecoded::TKind::Choice) values.SetChoice(param, decoded.choice);
    if (decoded.kind == TDecoded::TKind::Time) values.SetTime(param, decoded.time);
  }
  return values;
}

TEST(RoundTrip, ATextThatIsLoadedComposesToItself) {
  for (const TAlgoRow& row : AlgoRows()) {
    TRandomValues random(20240115);
    for (std::int32_t i = 0; i < 10000; ++i) {
      const std::string text = ComposeText(i % 2 == 0, row.code, &row, random.Next());
      const TSplitText split = SplitText(text);
      ASSERT_EQ(split.algoId, row.code);
      ASSERT_EQ(ComposeText(i % 2 == 0, split.algoId, &row, Load(split)), text);
    }
  }
}

TEST(RoundTrip, ATextHoldsNoBlankAndOneSemicolonWhateverTheEntries) {
  TRandomValues random(20240116);
  for (std::int32_t i = 0; i < 2000; ++i) {
    const TParamValues values = random.Next();
    for (const TAlgoRow& row : AlgoRows()) {
      std::string text = ComposeText(false, row.code, &row, values);
      ASSERT_EQ(text.find(';'), text.size() - 1);
      text.erase(0, std::string_view("TMLO:AlgoId=").size() + row.code.size());
      ASSERT_EQ(text.find_first_of(" \t\"eEnN+"), text.find_first_of("eEnN"));
      ASSERT_EQ(text.find("=,"), std::string::npos);
      ASSERT_EQ(text.find("=;"), std::string::npos);
    }
  }
}

}  // namespace
}  // namespace algo::model
