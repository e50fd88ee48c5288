#include "model/choices.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace algo::model {
namespace {

using TTexts = std::vector<std::string_view>;

TTexts Entries(TChoiceList choices) {
  TTexts entries;
  for (const TChoiceItem& item : choices) entries.push_back(item.entry);
  return entries;
}

TTexts Written(TChoiceList choices, std::int32_t items) {
  TTexts texts;
  for (std::int32_t index = 0; index < items; ++index) texts.push_back(ChoiceText(choices, index));
  return texts;
}

TEST(Choices, AreListedWithTheNotSetItemLast) {
  EXPECT_EQ(Entries(OpenCloseChoices), (TTexts{"Res_No", "Res_Yes", "Res_NA"}));
  EXPECT_EQ(Entries(AccuVolChoices), (TTexts{"Res_No", "Res_Yes", "Res_NA"}));
  EXPECT_EQ(Entries(FuncChoices),
            (TTexts{"Res_Algo_Func_Config", "Res_Algo_Func_Native", "Res_Algo_Func_Simualted", "Res_NA"}));
  EXPECT_EQ(Entries(StyleChoices),
            (TTexts{"Res_Algo_Normal", "Res_Algo_Aggressive", "Res_Algo_Passive", "Res_NA"}));
  EXPECT_EQ(Entries(RefChoices),
            (TTexts{"OrderSide", "Opposite", "Last", "Bid", "Ask", "Low", "High", "VWAP", "Mid", "Bid2",
                    "Bid3", "Bid4", "Bid5", "Ask2", "Ask3", "Ask4", "Ask5", "N\\A"}));
}

TEST(Choices, ReferencePricesSkipTheCodesSixSevenAndTwelve) {
  for (const std::string_view missing : {"6", "7", "12"}) {
    for (const TChoiceItem& item : RefChoices) EXPECT_NE(item.code, missing);
  }
  EXPECT_EQ(RefChoices.size(), 18U);
}

TEST(Choices, AreWrittenByTheirCodeAndTheNotSetItemNotAtAll) {
  EXPECT_EQ(Written(OpenCloseChoices, 3), (TTexts{"0", "1", ""}));
  EXPECT_EQ(Written(FuncChoices, 4), (TTexts{"0", "1", "2", ""}));
  EXPECT_EQ(Written(StyleChoices, 4), (TTexts{"3", "5", "1", ""}));
  EXPECT_EQ(Written(AccuVolChoices, 3), (TTexts{"N", "Y", ""}));
  EXPECT_EQ(Written(RefChoices, 18), (TTexts{"1", "2", "3", "4", "5", "8", "9", "10", "11", "13", "14", "15",
                                             "16", "17", "18", "19", "20", ""}));
}

TEST(Choices, AreNotWrittenWithoutASelection) {
  for (const TChoiceList choices :
       {TChoiceList(OpenCloseChoices), TChoiceList(FuncChoices), TChoiceList(StyleChoices),
        TChoiceList(RefChoices), TChoiceList(AccuVolChoices)}) {
    EXPECT_EQ(ChoiceText(choices, -1), "");
    EXPECT_EQ(ChoiceText(choices, 18), "");
    EXPECT_EQ(ChoiceText(choices, 1000), "");
  }
}

TEST(Choices, AreReadBackByTheValueOfTheirCode) {
  EXPECT_EQ(ChoiceIndex(OpenCloseChoices, "0"), 0);
  EXPECT_EQ(ChoiceIndex(OpenCloseChoices, "1"), 1);
  EXPECT_EQ(ChoiceIndex(OpenCloseChoices, " 01 "), 1);
  EXPECT_EQ(ChoiceIndex(FuncChoices, "2"), 2);
  EXPECT_EQ(ChoiceIndex(StyleChoices, "3"), 0);
  EXPECT_EQ(ChoiceIndex(StyleChoices, "5"), 1);
  EXPECT_EQ(ChoiceIndex(StyleChoices, "1"), 2);
  EXPECT_EQ(ChoiceIndex(RefChoices, "8"), 5);
  EXPECT_EQ(ChoiceIndex(RefChoices, "13"), 9);
  EXPECT_EQ(ChoiceIndex(RefChoices, "20"), 16);
  EXPECT_EQ(ChoiceIndex(AccuVolChoices, "N"), 0);
  EXPECT_EQ(ChoiceIndex(AccuVolChoices, "Y"), 1);
}

TEST(Choices, AreNotReadFromATextThatStandsForNoItem) {
  for (const std::string_view text : {"", "2", "-1", "1.0", "x", "Y"}) {
    EXPECT_EQ(ChoiceIndex(OpenCloseChoices, text), std::nullopt) << text;
  }
  for (const std::string_view text : {"3", "-1"})
    EXPECT_EQ(ChoiceIndex(FuncChoices, text), std::nullopt) << text;
  for (const std::string_view text : {"0", "2", "4"})
    EXPECT_EQ(ChoiceIndex(StyleChoices, text), std::nullopt) << text;
  for (const std::string_view text : {"0", "6", "7", "12", "21"}) {
    EXPECT_EQ(ChoiceIndex(RefChoices, text), std::nullopt) << text;
  }
  for (const std::string_view text : {"n", "y", "0", "1", "Yes"}) {
    EXPECT_EQ(ChoiceIndex(AccuVolChoices, text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace algo::model
