#include "model/parameter_text.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "tests/model/sample_values.h"

namespace algo::model {
namespace {

using TTexts = std::vector<std::string_view>;
using TKind = TDecoded::TKind;

TEST(ParameterText, ComesApartIntoIdAndPieces) {
  const TSplitText split = SplitText("TMLO:AlgoId=17,STime=20240115-09:30:00,VolPct=20;");
  EXPECT_EQ(split.algoId, "17");
  EXPECT_EQ(split.pieces, (TTexts{"TMLO:AlgoId=17", "STime=20240115-09:30:00", "VolPct=20"}));
}

TEST(ParameterText, KeepsBlanksWhereItComesApart) {
  const TSplitText split = SplitText("TMLO:AlgoId=TVOL Threshold, VolPct = 20 ;");
  EXPECT_EQ(split.algoId, "TVOL Threshold");
  EXPECT_EQ(split.pieces, (TTexts{"TMLO:AlgoId=TVOL Threshold", " VolPct = 20 "}));
}

TEST(ParameterText, IsRecognisedByItsIdInWhateverLetterCase) {
  EXPECT_EQ(SplitText("tmlo:algoid=5").algoId, "5");
  EXPECT_EQ(SplitText("TMMO:ALGOID=5;").algoId, "5");
}

TEST(ParameterText, IsTheLastPartThatNamesAnId) {
  const TSplitText split = SplitText("TMLO:AlgoId=A,X=1;Original=AlgoEntry;TMLO:AlgoId=B,Y=2;rest;");
  EXPECT_EQ(split.algoId, "B");
  EXPECT_EQ(split.pieces, (TTexts{"TMLO:AlgoId=B", "Y=2"}));
}

TEST(ParameterText, HasNoIdWithoutAnEqualsSignInTheFirstPiece) {
  const TSplitText split = SplitText("TMLO:AlgoId,VolPct=20;");
  EXPECT_EQ(split.algoId, "");
  EXPECT_EQ(split.pieces, (TTexts{"TMLO:AlgoId", "VolPct=20"}));
}

TEST(ParameterText, TakesTheIdFromBehindTheFirstEqualsSign) {
  EXPECT_EQ(SplitText("TMLO:AlgoId=a=b").algoId, "a=b");
  EXPECT_EQ(SplitText("x=1,AlgoId=2").algoId, "1");
  EXPECT_EQ(SplitText("TMLO:AlgoId=").algoId, "");
}

TEST(ParameterText, GivesNothingWithoutAnId) {
  for (const std::string_view text : {"", ";", ";;;", "TMLO:VolPct=20;", "Algo Id=5", "Alg;oId=5"}) {
    const TSplitText split = SplitText(text);
    EXPECT_EQ(split.algoId, "") << text;
    EXPECT_TRUE(split.pieces.empty()) << text;
  }
}

TEST(ParameterText, ComesApartInTimeProportionalToItsLength) {
  constexpr std::size_t Length = 10'000'000;
  const std::vector<std::string> hostile{std::string(Length, ';'), std::string(Length, 'A'),
                                         "AlgoId=1" + std::string(Length, ','), std::string(Length, '='), [] {
                                           std::string text;
                                           while (text.size() < Length) text += "ALGOI;ALGOID=;";
                                           return text;
                                         }()};
  const auto start = std::chrono::steady_clock::now();
  for (const std::string& text : hostile) {
    const TSplitText split = SplitText(text);
    EXPECT_EQ(PieceValue(split.pieces, "VolPct"), std::nullopt);
  }
  // Far more than it takes, and far less than anything that grows with the square.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
}

TEST(ParameterText, GivesTheValueOfTheFirstPieceOfAName) {
  const TTexts pieces{"TMLO:AlgoId=PEG", "Closing=1", "WPx=10.5", "Closing=0", "Style=", "Ref"};
  EXPECT_EQ(PieceValue(pieces, "Closing"), "1");
  EXPECT_EQ(PieceValue(pieces, "WPx"), "10.5");
  EXPECT_EQ(PieceValue(pieces, "Style"), "");
}

TEST(ParameterText, GivesNoValueOfANameThatItDoesNotHave) {
  const TTexts pieces{"TMLO:AlgoId=PEG", "Closing=1", "MaxVolPct=20", "Ref", " WPx=1"};
  for (const std::string_view key :
       {"closing", "Clos", "VolPct", "Ref", "WPx", "MaxVolPct=20", "AlgoId", "1"}) {
    EXPECT_EQ(PieceValue(pieces, key), std::nullopt) << key;
  }
  EXPECT_EQ(PieceValue({}, "Closing"), std::nullopt);
}

TEST(ParameterText, KeepsWhatFollowsTheFirstEqualsSignOfAPiece) {
  const TTexts pieces{"WPx=1=2"};
  EXPECT_EQ(PieceValue(pieces, "WPx"), "1=2");
}

TEST(ParameterText, IsLoadedKeyByKeyInAFixedOrder) {
  TTexts keys;
  for (const TParamRow& row : ParamRows()) keys.push_back(row.key);
  EXPECT_EQ(keys, (TTexts{"STime",      "ETime",       "Timeout",    "VolPct",    "AccuVol",   "Opening",
                          "Closing",    "MinOrdAmt",   "Style",      "WPx",       "ThrPx1",    "ThrPx2",
                          "ThrVolPct1", "ThrVolPct2",  "Waves",      "MaxVolPct", "OpenPct",   "ClosePct",
                          "CloseSim",   "ShowQty",     "MaxShowQty", "RandPct",   "ReloadPct", "Func",
                          "AllInAuc",   "StopLossPx",  "StopQty",    "TickDiff",  "Iceberg",   "JoinThr",
                          "JoinQty",    "RandTimeout", "Ref",        "DiffPct",   "ServePct",  "MinQty",
                          "Join"}));
}

TEST(ParameterText, DecodesEveryNumberAndTakesZeroForWhatIsNone) {
  for (const TParam param :
       {TParam::VolPct,     TParam::WPx,        TParam::MinOrdAmt,  TParam::ThrPx1,      TParam::ThrVolPct1,
        TParam::ThrPx2,     TParam::ThrVolPct2, TParam::MaxVolPct,  TParam::OpenPct,     TParam::ClosePct,
        TParam::Slices,     TParam::ShowQty,    TParam::MaxShowQty, TParam::RandPct,     TParam::ReloadPct,
        TParam::StopLossPx, TParam::StopQty,    TParam::JoinThr,    TParam::RandTimeOut, TParam::JoinQty,
        TParam::DiffPct,    TParam::TickDiff,   TParam::TimeOut,    TParam::MinQty,      TParam::ServePct}) {
    EXPECT_EQ(DecodeValue(param, "12.5").kind, TKind::Number);
    EXPECT_EQ(DecodeValue(param, "12.5").number, 12.5);
    EXPECT_EQ(DecodeValue(param, "-3").number, -3);
    EXPECT_EQ(DecodeValue(param, "12,5").kind, TKind::Number);
    EXPECT_EQ(DecodeValue(param, "12,5").number, 0);
    EXPECT_EQ(DecodeValue(param, "many").number, 0);
    EXPECT_EQ(DecodeValue(param, "inf").number, 0);
  }
}

struct TChoiceCase {
  TParam param;
  std::string_view value;
  std::int32_t choice;
};

TEST(ParameterText, DecodesEveryChoice) {
  const std::vector<TChoiceCase> cases{
      {TParam::AccuVol, "N", 0},  {TParam::AccuVol, "Y", 1},  {TParam::Opening, "0", 0},
      {TParam::Opening, "1", 1},  {TParam::Closing, "0", 0},  {TParam::Closing, "1", 1},
      {TParam::CloseSim, "0", 0}, {TParam::CloseSim, "1", 1}, {TParam::AllInAuc, "0", 0},
      {TParam::AllInAuc, "1", 1}, {TParam::Iceberg, "0", 0},  {TParam::Iceberg, "1", 1},
      {TParam::Join, "0", 0},     {TParam::Join, "1", 1},     {TParam::Style, "3", 0},
      {TParam::Style, "5", 1},    {TParam::Style, "1", 2},    {TParam::Func, "0", 0},
      {TParam::Func, "1", 1},     {TParam::Func, "2", 2},     {TParam::Ref, "1", 0},
      {TParam::Ref, "2", 1},      {TParam::Ref, "3", 2},      {TParam::Ref, "4", 3},
      {TParam::Ref, "5", 4},      {TParam::Ref, "8", 5},      {TParam::Ref, "9", 6},
      {TParam::Ref, "10", 7},     {TParam::Ref, "11", 8},     {TParam::Ref, "13", 9},
      {TParam::Ref, "14", 10},    {TParam::Ref, "15", 11},    {TParam::Ref, "16", 12},
      {TParam::Ref, "17", 13},    {TParam::Ref, "18", 14},    {TParam::Ref, "19", 15},
      {TParam::Ref, "20", 16},
  };
  for (const TChoiceCase& expected : cases) {
    const TDecoded decoded = DecodeValue(expected.param, expected.value);
    EXPECT_EQ(decoded.kind, TKind::Choice) << ParamRow(expected.param).key << "=" << expected.value;
    EXPECT_EQ(decoded.choice, expected.choice) << ParamRow(expected.param).key << "=" << expected.value;
  }
}

TEST(ParameterText, LeavesAChoiceThatTheListDoesNotHave) {
  const std::vector<std::pair<TParam, std::string_view>> cases{
      {TParam::AccuVol, "1"}, {TParam::AccuVol, "y"},  {TParam::Opening, "2"},  {TParam::Opening, "-1"},
      {TParam::Closing, "x"}, {TParam::Style, "0"},    {TParam::Style, "2"},    {TParam::Style, "Normal"},
      {TParam::Func, "3"},    {TParam::Ref, "6"},      {TParam::Ref, "7"},      {TParam::Ref, "12"},
      {TParam::Ref, "0"},     {TParam::Ref, "21"},     {TParam::Ref, "Bid"},    {TParam::Join, "Res_Yes"},
      {TParam::Iceberg, "2"}, {TParam::CloseSim, "Y"}, {TParam::AllInAuc, "N"},
  };
  for (const auto& [param, value] : cases) {
    EXPECT_EQ(DecodeValue(param, value).kind, TKind::Leave) << ParamRow(param).key << "=" << value;
  }
}

TEST(ParameterText, DecodesTimesAndFailsOnWhatIsNone) {
  for (const TParam param : {TParam::STime, TParam::ETime}) {
    EXPECT_EQ(DecodeValue(param, "20240115-09:30:00").kind, TKind::Time);
    EXPECT_EQ(DecodeValue(param, "20240115-09:30:00").time, At(9, 30));
    for (const std::string_view value : {"now", "2024011", "2024-01-15 09:30:00", "20240230-09:30:00"}) {
      EXPECT_EQ(DecodeValue(param, value).kind, TKind::Failure) << value;
    }
  }
}

}  // namespace
}  // namespace algo::model
