#include "model/choices.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace algo::model {
namespace {

using TTexts = std::vector<std::string_view>;

template <class TList>
TTexts Texts(const TList& list) {
  return {list.begin(), list.end()};
}

TTexts Written(const TChoiceCode& code, std::int32_t items) {
  TTexts texts;
  for (std::int32_t index = 0; index < items; ++index) texts.push_back(ChoiceText(code, index));
  return texts;
}

TEST(Choices, AreListedWithTheNotSetItemLast) {
  EXPECT_EQ(Texts(OpenCloseList), (TTexts{"Res_No", "Res_Yes", "Res_NA"}));
  EXPECT_EQ(Texts(FuncList),
            (TTexts{"Res_Algo_Func_Config", "Res_Algo_Func_Native", "Res_Algo_Func_Simualted", "Res_NA"}));
  EXPECT_EQ(Texts(StyleList),
            (TTexts{"Res_Algo_Normal", "Res_Algo_Aggressive", "Res_Algo_Passive", "Res_NA"}));
  EXPECT_EQ(Texts(RefList),
            (TTexts{"OrderSide", "Opposite", "Last", "Bid", "Ask", "Low", "High", "VWAP", "Mid", "Bid2",
                    "Bid3", "Bid4", "Bid5", "Ask2", "Ask3", "Ask4", "Ask5", "N\\A"}));
}

TEST(Choices, ReferencePricesSkipTheCodesSixSevenAndTwelve) {
  const std::vector<std::int32_t> expected{1, 2, 3, 4, 5, 8, 9, 10, 11, 13, 14, 15, 16, 17, 18, 19, 20};
  EXPECT_EQ(std::vector<std::int32_t>(RefValues.begin(), RefValues.end()), expected);
}

TEST(Choices, AreWrittenByTheirCodeAndTheNotSetItemNotAtAll) {
  EXPECT_EQ(Written(OpenCloseCode, 3), (TTexts{"0", "1", ""}));
  EXPECT_EQ(Written(FuncCode, 4), (TTexts{"0", "1", "2", ""}));
  EXPECT_EQ(Written(StyleCode, 4), (TTexts{"3", "5", "1", ""}));
  EXPECT_EQ(Written(AccuVolCode, 3), (TTexts{"N", "Y", ""}));
  EXPECT_EQ(Written(RefCode, 18), (TTexts{"1", "2", "3", "4", "5", "8", "9", "10", "11", "13", "14", "15",
                                          "16", "17", "18", "19", "20", ""}));
}

TEST(Choices, AreNotWrittenWithoutASelection) {
  for (const TChoiceCode* code : {&OpenCloseCode, &FuncCode, &StyleCode, &RefCode, &AccuVolCode}) {
    EXPECT_EQ(ChoiceText(*code, -1), "");
    EXPECT_EQ(ChoiceText(*code, 18), "");
    EXPECT_EQ(ChoiceText(*code, 1000), "");
  }
}

TEST(Choices, AreReadBackByTheValueOfTheirCode) {
  EXPECT_EQ(ChoiceIndex(OpenCloseCode, "0"), 0);
  EXPECT_EQ(ChoiceIndex(OpenCloseCode, "1"), 1);
  EXPECT_EQ(ChoiceIndex(OpenCloseCode, " 01 "), 1);
  EXPECT_EQ(ChoiceIndex(FuncCode, "2"), 2);
  EXPECT_EQ(ChoiceIndex(StyleCode, "3"), 0);
  EXPECT_EQ(ChoiceIndex(StyleCode, "5"), 1);
  EXPECT_EQ(ChoiceIndex(StyleCode, "1"), 2);
  EXPECT_EQ(ChoiceIndex(RefCode, "8"), 5);
  EXPECT_EQ(ChoiceIndex(RefCode, "13"), 9);
  EXPECT_EQ(ChoiceIndex(RefCode, "20"), 16);
  EXPECT_EQ(ChoiceIndex(AccuVolCode, "N"), 0);
  EXPECT_EQ(ChoiceIndex(AccuVolCode, "Y"), 1);
}

TEST(Choices, AreNotReadFromATextThatStandsForNoItem) {
  for (const std::string_view text : {"", "2", "-1", "1.0", "x", "Y"}) {
    EXPECT_EQ(ChoiceIndex(OpenCloseCode, text), std::nullopt) << text;
  }
  for (const std::string_view text : {"3", "-1"})
    EXPECT_EQ(ChoiceIndex(FuncCode, text), std::nullopt) << text;
  for (const std::string_view text : {"0", "2", "4"})
    EXPECT_EQ(ChoiceIndex(StyleCode, text), std::nullopt) << text;
  for (const std::string_view text : {"0", "6", "7", "12", "21"}) {
    EXPECT_EQ(ChoiceIndex(RefCode, text), std::nullopt) << text;
  }
  for (const std::string_view text : {"n", "y", "0", "1", "Yes"}) {
    EXPECT_EQ(ChoiceIndex(AccuVolCode, text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace algo::model
